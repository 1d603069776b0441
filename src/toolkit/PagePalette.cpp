// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/PagePalette.h"

#include "toolkit/Pixels.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <utility>

namespace zelvia
{
namespace
{

/// The relative luminance of a colour as the guidelines for accessible web content define it, 0 to 1.
double Luminance(const QColor& colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

bool StandsOut(const QColor& ink, const QColor& under)
{
    constexpr double flare = 0.05;
    constexpr double least = 3;
    const auto [darker, lighter] = std::minmax({Luminance(ink), Luminance(under)});
    return (lighter + flare) / (darker + flare) >= least;
}

/// The first of the inks that stands out, else a light one.
QColor FirstThatStandsOut(std::initializer_list<QColor> inks, const QColor& under)
{
    const auto* found =
        std::find_if(inks.begin(), inks.end(), [&](const QColor& ink) { return StandsOut(ink, under); });
    return found != inks.end() ? *found : Ink::Slip;
}

QColor FocusInk(const QColor& under)
{
    return FirstThatStandsOut({Ink::Pen}, under);
}

} // namespace

QPalette PagePalette()
{
    const std::pair<QPalette::ColorRole, QColor> colours[] = {
        {QPalette::Window, Ink::Paper},      {QPalette::WindowText, Ink::Print},
        {QPalette::Base, Ink::Slip},         {QPalette::AlternateBase, Ink::Paper},
        {QPalette::Text, Ink::Pen},          {QPalette::PlaceholderText, Ink::Faded},
        {QPalette::Button, Ink::PaperShade}, {QPalette::ButtonText, Ink::PrintDark},
        {QPalette::BrightText, Ink::Slip},   {QPalette::Light, Ink::Slip},
        {QPalette::Midlight, Ink::Paper},    {QPalette::Mid, Ink::Edge},
        {QPalette::Dark, Ink::Edge},         {QPalette::Shadow, Ink::PrintDark},
        {QPalette::Highlight, Ink::Pen},     {QPalette::HighlightedText, Qt::white},
        {QPalette::Link, Ink::Pen},          {QPalette::LinkVisited, Ink::Accent},
        {QPalette::ToolTipBase, Ink::Slip},  {QPalette::ToolTipText, Ink::PrintDark},
    };
    QPalette palette;
    for (const auto& [role, colour] : colours) {
        palette.setColor(role, colour);
    }
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
    palette.setColor(QPalette::Accent, Ink::Pen);
#endif
    palette.setColor(QPalette::Disabled, QPalette::Button, Ink::Paper);
    for (const QPalette::ColorRole text : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, text, Ink::Faded);
    }
    return palette;
}

void DrawBorder(QPainter& painter, const QRectF& place, const QColor& ink, int width)
{
    const Pixels pixels(painter);
    pixels.DrawFrame(pixels.Of(place), pixels.Of(width), ink);
}

QColor EdgeInk(const QColor& under)
{
    // From light to dark, for none is to look heavier than it has to.
    return FirstThatStandsOut({Ink::Edge, Ink::Edge.darker(120), Ink::Edge.darker(140), Ink::Print, Ink::PrintDark},
                              under);
}

void DrawRowFrame(QPainter& painter, const QRect& place, const QColor& under)
{
    const QColor ink = FocusInk(under);
    const Pixels pixels(painter);
    const QRect frame = pixels.Of(place);
    const int dot = pixels.Of(1.0);
    for (int x = frame.left(); x <= frame.right(); x += 2 * dot) {
        painter.fillRect(x, frame.top(), dot, dot, ink);
        painter.fillRect(x, frame.bottom() + 1 - dot, dot, dot, ink);
    }
    for (int y = frame.top(); y <= frame.bottom(); y += 2 * dot) {
        painter.fillRect(frame.left(), y, dot, dot, ink);
        painter.fillRect(frame.right() + 1 - dot, y, dot, dot, ink);
    }
}

void DrawFocusRing(QPainter& painter, const QRect& place, const QColor& under)
{
    constexpr int width = 2;
    DrawBorder(painter, place, FocusInk(under), width);
}

} // namespace zelvia
