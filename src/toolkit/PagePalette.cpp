// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/PagePalette.h"

#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QProxyStyle>
#include <QStyleOption>

namespace zelvia
{
namespace
{

/// Qt's Fusion style with the printed lines of the diary around its edit boxes, and without the icon that a menu bar
/// asks for at its creation: looking for it in the themes would load every plugin for pictures at the start.
class Style : public QProxyStyle
{
public:
    Style() : QProxyStyle(QStringLiteral("Fusion")) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
};

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const
{
    if (element != PE_FrameLineEdit) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    const bool focused = option->state.testFlag(State_HasFocus);
    const QRect frame = option->rect.adjusted(0, 0, -1, -1);
    painter->save();
    painter->setBrush(Qt::NoBrush);
    painter->setPen(focused ? Ink::Pen : Ink::Rule);
    painter->drawRect(frame);
    if (focused) {
        painter->drawRect(frame.adjusted(1, 1, -1, -1));
    }
    painter->restore();
}

QIcon Style::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const
{
    if (icon != SP_ToolBarHorizontalExtensionButton) {
        return QProxyStyle::standardIcon(icon, option, widget);
    }
    constexpr int size = 8;
    QPixmap arrows(size, size);
    arrows.fill(Qt::transparent);
    QPainter painter(&arrows);
    for (const int left : {0, 4}) {
        painter.drawLine(left, 0, left + 3, 3);
        painter.drawLine(left + 3, 3, left, 6);
    }
    return QIcon(arrows);
}

} // namespace

QPalette PagePalette()
{
    QPalette palette;
    palette.setColor(QPalette::Window, Ink::Paper);
    palette.setColor(QPalette::WindowText, Ink::Print);
    palette.setColor(QPalette::Base, Ink::Slip);
    palette.setColor(QPalette::AlternateBase, Ink::Paper);
    palette.setColor(QPalette::Text, Ink::Pen);
    palette.setColor(QPalette::Button, Ink::PaperShade);
    palette.setColor(QPalette::ButtonText, Ink::PrintDark);
    palette.setColor(QPalette::Mid, Ink::Rule.darker(120));
    palette.setColor(QPalette::Highlight, Ink::Pen);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, Ink::Slip);
    palette.setColor(QPalette::ToolTipText, Ink::PrintDark);
    palette.setColor(QPalette::PlaceholderText, Ink::Rule);
    palette.setColor(QPalette::Disabled, QPalette::Button, Ink::Paper);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, Ink::Rule.darker(115));
    return palette;
}

QStyle* MakePageStyle()
{
    return new Style;
}

} // namespace zelvia
