// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/DiaryDifference.h"

#include "core/Conversions.h"
#include "core/Date.h"
#include "core/RunTimeError.h"

#include <algorithm>
#include <array>

namespace zelvia
{
namespace
{

constexpr int kDays = 366;
constexpr int kLines = 136;

enum class Kind { Text, Number, Runners, Time, Date };

/// Lines of a day that hold a field, counted from 1, and what the field is called.
struct FieldLines {
    int first;
    int count;
    TextView name;
    Kind kind = Kind::Text;
};

constexpr FieldLines kFields[] = {
    {2, 1, "Data", Kind::Date},
    {3, 1, "Percorso"},
    {4, 1, "Lunghezza"},
    {5, 1, "Km", Kind::Number},
    {6, 1, "Metri", Kind::Number},
    {7, 1, "Andatura"},
    {8, 1, "Terreno"},
    {9, 1, "Tipo"},
    {10, 1, "Ora Inizio, ore", Kind::Number},
    {11, 1, "Ora Inizio, minuti", Kind::Number},
    {12, 1, "Ora Inizio, secondi", Kind::Number},
    {13, 1, "Ora Fine, ore", Kind::Number},
    {14, 1, "Ora Fine, minuti", Kind::Number},
    {15, 1, "Ora Fine, secondi", Kind::Number},
    {16, 1, "Tempo", Kind::Time},
    {17, 1, "Media", Kind::Time},
    {18, 100, "Tempi Km"},
    {118, 1, "Stagione"},
    {119, 1, "Meteo"},
    {120, 1, "Temperatura"},
    {121, 1, "Corridori", Kind::Runners},
    {122, 1, "Peso", Kind::Number},
    {123, 1, "Ripetizioni", Kind::Number},
    {124, 1, "Ripetizioni, metri", Kind::Number},
    {125, 1, "Ripetizioni, minuti", Kind::Number},
    {126, 1, "Ripetizioni, secondi", Kind::Number},
    {127, 2, "Note fuori pagina"},
    {129, 8, "Note"},
};

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

/// The content of a line, empty for what a day holds before anything is entered.
TextView Content(TextView line, Kind kind)
{
    const TextView text = Unquoted(line);
    const bool blank = (kind == Kind::Number && text == "0") || (kind == Kind::Runners && text == "1") ||
                       (kind == Kind::Time && (text == "0:00:00" || text == "0:00"));
    return blank ? TextView() : text;
}

/// A date line #2007-03-03# as `pattern` has it, or the line as it stands.
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

void CompareField(const FieldLines& field, int slot, const DiaryLines& before, const DiaryLines& after,
                  std::vector<FieldDifference>& differences)
{
    for (int i = 0; i < field.count; ++i) {
        const TextView old = Content(before.Line(slot, field.first + i), field.kind);
        const TextView now = Content(after.Line(slot, field.first + i), field.kind);
        // A day that one diary lacks has no date there to differ.
        if (old == now || (field.kind == Kind::Date && (old.empty() || now.empty()))) {
            continue;
        }
        const Text name = Text(field.name) + (field.count > 1 ? ", riga " + std::to_string(i + 1) : "");
        const bool date = field.kind == Kind::Date;
        differences.push_back(
            {name, date ? DateText(old, "dd/mm/yyyy") : Text(old), date ? DateText(now, "dd/mm/yyyy") : Text(now)});
    }
}

} // namespace

DiaryDifference CompareDiaries(TextView before, TextView after)
{
    const DiaryLines old(before);
    const DiaryLines now(after);
    DiaryDifference result{{}, old.WholeDays(), now.WholeDays()};
    for (int slot = 1; slot <= kDays; ++slot) {
        std::vector<FieldDifference> fields;
        for (const FieldLines& field : kFields) {
            CompareField(field, slot, old, now, fields);
        }
        if (!fields.empty()) {
            const TextView date = now.Line(slot, 2).empty() ? old.Line(slot, 2) : now.Line(slot, 2);
            result.days.push_back({slot, DayName(date, slot), std::move(fields)});
        }
    }
    return result;
}

} // namespace zelvia
