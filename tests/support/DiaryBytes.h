// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDate>
#include <QList>

namespace zelvia::test
{

/// A diary file line by line, worked on without the program's own reader and writer: 366 days of 136 lines.
class DiaryBytes
{
public:
    static constexpr int kDays = 366;
    static constexpr int kLines = 136;

    /// Lines of a day, counted from 1.
    enum LineOfDay {
        Number = 1,
        Stamp = 2,
        Route = 3,
        Km = 5,
        Metres = 6,
        Kind = 9,
        Time = 16,
        Pace = 17,
        Splits = 18,
        Season = 118,
        Runners = 121,
        Weight = 122,
        Notes = 127
    };

    explicit DiaryBytes(const QByteArray& bytes) : lines_(bytes.split('\n')) { lines_.removeLast(); }
    static DiaryBytes Blank(int year);

    bool Complete() const { return lines_.size() == kDays * kLines; }
    QByteArray Line(int slot, int line) const { return lines_[Index(slot, line)].chopped(1); }
    void SetLine(int slot, int line, const QByteArray& value) { lines_[Index(slot, line)] = value + '\r'; }
    void CopyDay(const DiaryBytes& from, int slot);

    /// What showing a day and leaving it makes of its lines.
    void Visit(int slot, QDate date);

    QByteArray Bytes() const { return lines_.join('\n') + '\n'; }

private:
    static qsizetype Index(int slot, int line) { return (slot - 1) * kLines + line - 1; }

    QList<QByteArray> lines_;
};

} // namespace zelvia::test
