// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/GridBox.h"

#include "core/MessageBox.h"

namespace zelvia
{

QString Indexed(const char* name, int index)
{
    return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index);
}

Label* MakeLabel(QWidget* parent, const QString& name, TextView caption, const QRect& place, const QFont& font)
{
    auto* label = new Label(parent, name);
    label->SetCaption(caption);
    label->setGeometry(place);
    label->setFont(font);
    return label;
}

bool LimitHolds(double value, double limit, TextView message)
{
    if (value <= limit) {
        return true;
    }
    MsgBox(message, MsgButtons::OK, MsgIcon::Exclamation);
    return false;
}

} // namespace zelvia
