// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/QtText.h"

#include <algorithm>

namespace zelvia
{

QString ToQString(TextView text)
{
    QString string(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
    std::transform(text.begin(), text.end(), string.begin(),
                   [](char c) { return QChar(static_cast<char16_t>(CodePointOf(static_cast<unsigned char>(c)))); });
    return string;
}

Text FromQString(const QString& string)
{
    return FromUtf8(string.toStdString());
}

bool IsInCharacterSet(const QString& string)
{
    return std::all_of(string.begin(), string.end(), [](QChar c) { return ByteOf(c.unicode()) >= 0; });
}

} // namespace zelvia
