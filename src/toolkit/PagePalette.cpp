// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/PagePalette.h"

namespace zelvia
{

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

} // namespace zelvia
