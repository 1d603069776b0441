// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/PlainStatistics.h"
#include "support/Grouped.h"

#include <QDate>
#include <QMap>

/// The searches and their chart computed a second time, without anything of the program.
namespace zelvia::test
{

struct PlainQuery {
    QMap<QByteArray, QByteArray> values; ///< By the title of the category.
    QDate from;
    QDate to;
};

struct PlainResult {
    QByteArrayList lines;
    QByteArray totals;         ///< The four of them as shown, separated by "|".
    QList<double> paces;       ///< Of each run.
    QByteArrayList unreadable; ///< Dates of the times and averages that can't be read, each behind "T" or "M".
};

inline bool SameWord(const QByteArray& a, const QByteArray& b)
{
    return QString::fromLatin1(a).toLower() == QString::fromLatin1(b).toLower();
}

inline bool Matches(const PlainDay& day, const PlainQuery& query)
{
    const QDate date = QDate::fromString(QString::fromLatin1(day.date), QStringLiteral("dd/MM/yyyy"));
    if ((query.from.isValid() && date < query.from) || (query.to.isValid() && date > query.to)) {
        return false;
    }
    for (auto wanted = query.values.begin(); wanted != query.values.end(); ++wanted) {
        const bool counts = IsNumeric(wanted.key()) ? wanted.value() != "0" : !wanted.value().isEmpty();
        if (counts && !SameWord(wanted.value(), ValueOf(wanted.key(), day).value_or(QByteArray()))) {
            return false;
        }
    }
    return day.km + day.metres > 0;
}

/// Hours, minutes and seconds; nothing when a piece is too long.
inline std::optional<std::array<int, 3>> TimeOf(const QByteArray& time)
{
    const QByteArrayList parts = time.split(':');
    if (parts.size() > 3 || std::any_of(parts.begin(), parts.end(), [](const auto& part) { return part.size() > 3; })) {
        return std::nullopt;
    }
    return std::array<int, 3>{parts.value(0).toInt(), parts.value(1).toInt(), parts.value(2).toInt()};
}

inline void PutInto(QByteArray& line, int column, const QByteArray& text)
{
    for (int i = 0; i < text.size() && column - 1 + i < line.size(); ++i) {
        line[column - 1 + i] = text[i];
    }
}

/// For days whose times have three parts at most and whose averages have two.
inline PlainResult Search(const std::vector<PlainDay>& days, const PlainQuery& query)
{
    PlainResult result;
    long metres = 0;
    long seconds = 0;
    long paceMinutes = 0;
    long paceSeconds = 0;
    int lastMinutes = 0;
    for (const PlainDay& day : days) {
        if (!Matches(day, query)) {
            continue;
        }
        metres += day.km * 1000L + day.metres;
        const auto time = TimeOf(day.time);
        const auto pace = TimeOf(day.average);
        if (time) {
            seconds += (*time)[0] * 3600L + (*time)[1] * 60L + (*time)[2];
        } else {
            result.unreadable << "T" + day.date;
        }
        if (pace) {
            lastMinutes = (*pace)[0];
            paceMinutes += (*pace)[0];
            paceSeconds += (*pace)[1];
            result.paces << (*pace)[0] + (*pace)[1] / 100.0;
        } else {
            result.unreadable << "M" + day.date;
            result.paces << 0;
        }
        QByteArray line(43, ' ');
        PutInto(line, 2, Spaced(day.km) + ',' + QByteArray::number(day.metres));
        PutInto(line, 11, day.time);
        PutInto(line, lastMinutes < 10 ? 23 : 22, day.average);
        PutInto(line, 33, day.date);
        result.lines << line;
    }
    const long runs = result.lines.size();
    const long mean = runs == 0 ? 0 : (paceMinutes * 60 + paceSeconds) / runs;
    const QString km = metres < 1000 ? QString() : test::Grouped(metres / 1000);
    const QString rest = metres % 1000 == 0 ? QString() : QStringLiteral(",%1").arg(metres % 1000);
    result.totals = QString::asprintf(" %ld| %s%s| %ld:%02ld:%02ld| %ld:%02ld", runs, qPrintable(km), qPrintable(rest),
                                      seconds / 3600, seconds / 60 % 60, seconds % 60,
                                      mean < 60 ? paceMinutes : mean / 60, mean % 60)
                        .toLatin1();
    return result;
}

} // namespace zelvia::test
