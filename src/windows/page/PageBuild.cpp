// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/page/PageBuild.h"

#include "toolkit/Fonts.h"
#include "toolkit/QtText.h"
#include "windows/page/PageArt.h"

namespace zelvia::PageBuild
{
namespace
{

void ApplyStyle(Label& label, Style style)
{
    const auto ink = [&label](const QColor& color) {
        QPalette palette = label.palette();
        palette.setColor(QPalette::WindowText, color);
        label.setPalette(palette);
    };
    switch (style) {
    case Style::Caption: break; // As the page itself.
    case Style::Value:
    case Style::Note:
    case Style::SlipValue:
        label.setFont(PenFont(22));
        ink(Ink::Pen);
        label.FadeBlank();
        break;
    case Style::Date:
    case Style::Counter:
        label.setFont(style == Style::Date ? DateFont() : HeadFont());
        ink(Ink::PrintDark);
        break;
    case Style::FileName: label.setFont(PrintFont(16, true)); break;
    case Style::SlipHeading:
        label.setFont(PrintFont(16, true));
        ink(Ink::PrintDark);
        break;
    }
}

} // namespace

QString Numbered(const char* name, int number)
{
    return QLatin1String(name) + QString::number(number);
}

Label* MakeLabel(QWidget* page, const QString& name, TextView caption, const QRect& place, Style style, TextView spoken)
{
    auto* label = new Label(page, name);
    label->setGeometry(place);
    label->SetCaption(caption);
    label->setAccessibleName(ToQString(spoken).trimmed());
    ApplyStyle(*label, style);
    return label;
}

void MakeReadable(Label& label)
{
    label.setFocusPolicy(Qt::TabFocus);
}

UpDown* MakeSpin(QWidget* page, TextView name, const QRect& place, TextView tip, const QString& spoken,
                 const NumberRange& range, int start)
{
    auto* spin = new UpDown(page, QLatin1String("up") + ToQString(name));
    spin->setGeometry(place);
    spin->SetRange(range.minimum, range.maximum, range.step);
    spin->SetValue(start);
    spin->setToolTip(ToQString(tip));
    spin->setAccessibleName(spoken);
    spin->SetVisible(false);
    return spin;
}

} // namespace zelvia::PageBuild
