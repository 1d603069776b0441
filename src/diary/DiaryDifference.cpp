// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/DiaryDifference.h"

#include "core/Conversions.h"
#include "core/Date.h"
#include "core/RunTimeError.h"
#include "diary/Fields.h"

#include <algorithm>
#include <type_traits>
#include <utility>

namespace zelvia
{
namespace
{

constexpr int kDays = 366;
constexpr int kDateLine = 2;

/// The lines of a day.
constexpr int kLines = [] {
    int lines = 0;
    ForEachField([&](const auto& field) { lines += field.kLines; });
    return lines;
}();

/// One diary: any line of any day, the missing ones as empty texts.
class DiaryLines
{
public:
    explicit DiaryLines(TextView bytes) : lines_(LinesOf(bytes)) {}

    int WholeDays() const { return std::min(kDays, static_cast<int>(lines_.size()) / kLines); }

    TextView Line(int slot, int line) const
    {
        const auto index = static_cast<std::size_t>((slot - 1) * kLines + line - 1);
        return index < lines_.size() ? lines_[index] : TextView();
    }

private:
    std::vector<TextView> lines_;
};

TextView Unquoted(TextView line)
{
    if (line.starts_with('"')) {
        line.remove_prefix(1);
    }
    if (line.ends_with('"')) {
        line.remove_suffix(1);
    }
    return line;
}

// What a field shows in its line, empty for what a day holds before anything is entered.

template <typename Field>
Text Content(const Field& /*field*/, TextView line)
{
    return Text(Unquoted(line));
}

template <typename T>
Text Content(const NumberField<T>& field, TextView line)
{
    const TextView text = Unquoted(line);
    return Text(text == PlainText(RecordGiorno().*field.member) ? TextView() : text);
}

Text Content(const TimeField& field, TextView line)
{
    const TextView text = Unquoted(line);
    return Text(text == field.none ? TextView() : text);
}

/// A date line #2007-03-03# as `pattern` has it, or the line unchanged.
Text DateText(TextView line, TextView pattern)
{
    if (line.size() != 12) {
        return Text(line);
    }
    return TrapValueWith(
        Text(line),
        [&] { return Format(DateValue(Mid(line, 10, 2) + "/" + Mid(line, 7, 2) + "/" + Mid(line, 2, 4)), pattern); },
        [](const ErroreRunTime&) {});
}

Text DayName(TextView line, int slot)
{
    const Text date = DateText(line, "dddd d mmmm yyyy");
    return date == line ? "giorno " + std::to_string(slot) : date;
}

Text Content(const DateField& /*field*/, TextView line)
{
    return DateText(line, "dd/mm/yyyy");
}

/// Compares the lines of one day, field by field.
class DayComparison
{
public:
    DayComparison(int slot, const DiaryLines& before, const DiaryLines& after)
        : slot_(slot), before_(before), after_(after)
    {
        ForEachField([this](const auto& field) { Compare(field); });
    }

    std::vector<FieldDifference> differences;

private:
    void Compare(const SlotField& /*field*/) { ++line_; }

    template <typename Field>
    void Compare(const Field& field)
    {
        for (int i = 1; i <= field.kLines; ++i, ++line_) {
            const TextView before = before_.Line(slot_, line_);
            const TextView after = after_.Line(slot_, line_);
            if (before == after) {
                continue;
            }
            const Text old = Content(field, before);
            const Text now = Content(field, after);
            // A day that one diary lacks has no date there to differ.
            const bool noDate = std::is_same_v<Field, DateField> && (old.empty() || now.empty());
            if (old != now && !noDate) {
                differences.push_back(
                    {Text(field.label) + (field.kLines > 1 ? ", riga " + std::to_string(i) : ""), old, now});
            }
        }
    }

    int slot_;
    const DiaryLines& before_;
    const DiaryLines& after_;
    int line_ = 1;
};

} // namespace

std::vector<TextView> LinesOf(TextView bytes)
{
    std::vector<TextView> lines;
    while (!bytes.empty()) {
        const auto end = bytes.find('\n');
        TextView line = bytes.substr(0, end);
        bytes.remove_prefix(end == TextView::npos ? bytes.size() : end + 1);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        lines.push_back(line);
    }
    return lines;
}

int LinesOfDay()
{
    return kLines;
}

DiaryDifference CompareDiaries(TextView before, TextView after)
{
    const DiaryLines old(before);
    const DiaryLines now(after);
    DiaryDifference result{{}, old.WholeDays(), now.WholeDays()};
    for (int slot = 1; slot <= kDays; ++slot) {
        DayComparison day(slot, old, now);
        if (!day.differences.empty()) {
            const TextView date =
                now.Line(slot, kDateLine).empty() ? old.Line(slot, kDateLine) : now.Line(slot, kDateLine);
            const Text iso = DateText(date, "yyyy-mm-dd");
            result.days.push_back({slot, DayName(date, slot), std::move(day.differences), iso == date ? Text() : iso});
        }
    }
    return result;
}

} // namespace zelvia
