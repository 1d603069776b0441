// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Messages.h"
#include "toolkit/QtText.h"

#include <QRegularExpression>

namespace zelvia::test
{

/// What the text of a message's box matches, whatever its parts are.
inline QRegularExpression PatternOf(const Message& message)
{
    const QString text = QRegularExpression::escape(ToQString(message.text));
    return QRegularExpression(QRegularExpression::anchoredPattern(
        QString(text).replace(QRegularExpression::escape(QStringLiteral("{}")), QStringLiteral(".*"))));
}

} // namespace zelvia::test
