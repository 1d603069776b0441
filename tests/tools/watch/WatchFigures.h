// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/Bytes.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <cmath>
#include <string>
#include <vector>

namespace zelvia::test
{

/// The native path of one of the watches' files.
inline std::string WatchPath(const std::string& name)
{
    return std::string(ZELVIA_SOURCE_DIR "/tests/tools/watch/files/") + name;
}

/// The rows of a table beside those files, without its head.
inline std::vector<QStringList> WatchTable(const std::string& name)
{
    std::vector<QStringList> rows;
    const QString text = QString::fromStdString(ReadWhole(WatchPath(name)));
    for (const QString& line : text.split(QLatin1Char('\n'), Qt::SkipEmptyParts).mid(1)) {
        rows.push_back(line.split(QLatin1Char('\t')));
    }
    return rows;
}

inline qint64 SecondsOf(const QString& moment)
{
    return QDateTime::fromString(moment, Qt::ISODate).toSecsSinceEpoch();
}

inline bool Within(double actual, const QString& expected, double tolerance)
{
    return std::abs(actual - expected.toDouble()) <= tolerance;
}

} // namespace zelvia::test
