// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The files of a fixed number of lines, and the lists.
#include "core/Conversions.h"
#include "core/Date.h"
#include "core/RunTimeError.h"
#include "core/Tr.h"
#include "diary/Limits.h"
#include "tools/strumenti/Alignment.h"
#include "tools/strumenti/FileCheck.h"
#include "tools/strumenti/ValueCheck.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <limits>
#include <map>
#include <optional>

namespace zelvia
{
namespace
{

constexpr NumberRange kCount = {0, std::numeric_limits<std::int16_t>::max()};

/// A column of a row: what it is called and how far its numbers go.
struct ColumnName {
    const char* name;
    NumberRange range = {};
};

constexpr NumberRange UpTo(const Limit& limit)
{
    return {0, static_cast<int>(limit.highest)};
}

constexpr std::array<ColumnName, 15> kRaceColumns = {{{Tools::Mark("numero"), {1, 100}},
                                                      {Tools::Mark("giorno"), UpTo(Limits::kDay)},
                                                      {Tools::Mark("mese"), UpTo(Limits::kMonth)},
                                                      {Tools::Mark("anno"), UpTo(Limits::kYear)},
                                                      {Tools::Mark("gara")},
                                                      {Tools::Mark("località")},
                                                      {Tools::Mark("km"), kCount},
                                                      {Tools::Mark("metri"), kCount},
                                                      {Tools::Mark("partecipanti"), UpTo(Limits::kRunners)},
                                                      {Tools::Mark("risultato"), UpTo(Limits::kRunners)},
                                                      {Tools::Mark("ore"), UpTo(Limits::kHours)},
                                                      {Tools::Mark("minuti"), UpTo(Limits::kMinutes)},
                                                      {Tools::Mark("secondi"), UpTo(Limits::kSeconds)},
                                                      {Tools::Mark("categoria")},
                                                      {Tools::Mark("risultato di categoria"), UpTo(Limits::kRunners)}}};

constexpr std::array<ColumnName, 15> kPlanColumns = {
    {{Tools::Mark("numero"), {1, 31}},
     {Tools::Mark("km"), kCount},
     {Tools::Mark("metri"), kCount},
     {Tools::Mark("ore"), UpTo(Limits::kHours)},
     {Tools::Mark("minuti"), UpTo(Limits::kMinutes)},
     {Tools::Mark("secondi"), UpTo(Limits::kSeconds)},
     {Tools::Mark("media, minuti"), UpTo(Limits::kPaceMinutes)},
     {Tools::Mark("media, secondi"), UpTo(Limits::kSeconds)},
     {Tools::Mark("media, millesimi"), {0, 999}},
     {Tools::Mark("andatura")},
     {Tools::Mark("terreno")},
     {Tools::Mark("ripetizioni"), kCount},
     {Tools::Mark("ripetizioni, metri"), UpTo(Limits::kRepetitionMetres)},
     {Tools::Mark("ripetizioni, minuti"), UpTo(Limits::kPaceMinutes)},
     {Tools::Mark("ripetizioni, secondi"), UpTo(Limits::kSeconds)}}};

constexpr std::size_t kColumns = kRaceColumns.size();
constexpr std::size_t kRouteLines = 62;

Text BlankOf(ValueKind kind)
{
    return kind == ValueKind::Quoted ? "\"\"" : kind == ValueKind::Stamp ? "#2007-01-01#" : "0";
}

std::vector<LinePattern> RowPatterns(const std::vector<ValueKind>& form,
                                     const std::array<ColumnName, kColumns>& columns)
{
    std::vector<LinePattern> patterns;
    for (const ValueKind kind : form) {
        const std::size_t row = patterns.size() / kColumns + 1;
        const ColumnName& column = columns[patterns.size() % kColumns];
        if (kind == ValueKind::Stamp) {
            patterns.push_back({kind, Tools::Tr("data d'inizio"), {}, {}, BlankOf(kind)});
            continue;
        }
        const bool number = patterns.size() % kColumns == 0;
        patterns.push_back({kind,
                            Tools::Tr("riga %1, %2", row, Tools::Tr(column.name)),
                            {},
                            column.range,
                            number ? std::to_string(row) : BlankOf(kind)});
    }
    return patterns;
}

std::vector<LinePattern> RoutePatterns()
{
    std::vector<LinePattern> patterns;
    const auto form = RoutesForm();
    patterns.reserve(form.size());
    for (const ValueKind kind : form) {
        const std::size_t line = patterns.size() % kRouteLines;
        const std::size_t route = patterns.size() / kRouteLines + 1;
        const std::size_t stretch = (line - 2) / 3 + 1;
        std::string field;
        if (line < 2) {
            field = line == 0 ? Tools::Tr("percorso %1, nome", route) : Tools::Tr("percorso %1, distanza", route);
        } else {
            constexpr const char* parts[] = {Tools::Mark("percorso %1, tratto %2, descrizione"),
                                             Tools::Mark("percorso %1, tratto %2, km"),
                                             Tools::Mark("percorso %1, tratto %2, metri")};
            field = Tools::Tr(parts[(line - 2) % 3], route, stretch);
        }
        patterns.push_back({kind, std::move(field), {}, {}, BlankOf(kind)});
    }
    return patterns;
}

bool AreBlank(std::vector<SourceLine>::const_iterator first, std::vector<SourceLine>::const_iterator last)
{
    return std::all_of(first, last, [](const SourceLine& line) { return Trim(line.text).empty(); });
}

/// What a file lacks or has too much of is said in its words.
struct Words {
    std::string_view missing = "missing";
    std::string_view extra = "extra";
    Remedy tail = Remedy::Sure; ///< Of an end that is missing.
};

/// A file with as many lines as there are patterns.
class FixedCheck
{
public:
    FixedCheck(const CheckedFile& file, std::vector<LinePattern> patterns, Words words)
        : report_(file.name, file.overwrites), patterns_(std::move(patterns)), words_(words),
          source_(SplitSource(file.bytes)), lines_(source_.lines)
    {
        source_.unfinished = source_.unfinished && lines_.size() >= patterns_.size();
        report_.CheckSource(source_);
        Shorten();
        Lengthen();
        if (lines_.size() == patterns_.size()) {
            for (std::size_t i = 0; i < lines_.size(); ++i) {
                report_.CheckValue(lines_[i], patterns_[i]);
            }
        }
    }

    Report& Findings() { return report_; }
    /// As many as there are patterns, or the file as it was.
    std::vector<SourceLine>& Lines() { return lines_; }
    const std::vector<LinePattern>& Patterns() const { return patterns_; }
    bool IsWhole() const { return lines_.size() == patterns_.size(); }
    FileReport Result() { return {std::move(report_.findings), Joined(lines_)}; }

private:
    bool Conforms(std::size_t count) const
    {
        for (std::size_t i = 0; i < count; ++i) {
            // What was cut off in its middle still begins right.
            if (!LooksLike(patterns_[i].kind, lines_[i].text)) {
                return false;
            }
        }
        return true;
    }

    void Shorten()
    {
        if (lines_.size() <= patterns_.size()) {
            return;
        }
        const std::size_t count = patterns_.size();
        const bool behind = Conforms(count);
        const std::size_t surplus = lines_.size() - count;
        if (behind) {
            const auto first = lines_.begin() + static_cast<std::ptrdiff_t>(count);
            const bool blank = AreBlank(first, lines_.end());
            if (report_.Add(
                    words_.extra, first->number, {},
                    Tools::Tr(
                        "righe in più in fondo: %1; il programma non le legge e al salvataggio le perde; vengono tolte",
                        surplus),
                    blank ? Remedy::Sure : Remedy::Asked)) {
                lines_.erase(first, lines_.end());
            }
        } else {
            Rearrange(words_.extra, Tools::Tr("righe in più: %1; da qui in poi il programma leggerebbe ogni valore al "
                                              "posto di un altro; le righe tornano dove sembrano stare",
                                              surplus));
        }
    }

    void Lengthen()
    {
        if (lines_.size() >= patterns_.size()) {
            return;
        }
        const std::size_t count = lines_.size();
        const std::size_t lack = patterns_.size() - count;
        if (!Conforms(count)) {
            Rearrange(words_.missing, Tools::Tr("righe che mancano: %1; da qui in poi il programma leggerebbe ogni "
                                                "valore al posto di un altro; le righe tornano dove sembrano stare",
                                                lack));
            return;
        }
        if (report_.Add(
                words_.missing, static_cast<int>(count) + 1, patterns_[count],
                Tools::Tr(
                    "il file finisce prima: mancano %1 righe, e il programma lo direbbe con un errore; tornano vuote",
                    lack),
                words_.tail)) {
            CloseLast();
            for (std::size_t i = count; i < patterns_.size(); ++i) {
                lines_.push_back({patterns_[i].blank, {}, 0, SourceLine::Encoding::Own});
            }
        }
    }

    /// The text that the end of the file has cut.
    void CloseLast()
    {
        if (!lines_.empty() && patterns_[lines_.size() - 1].kind == ValueKind::Quoted) {
            Text& text = lines_.back().text;
            text += text.size() < 2 || !text.ends_with('"') ? "\"" : "";
        }
    }

    void Rearrange(std::string_view kind, const std::string& what)
    {
        std::size_t first = 0;
        while (first < std::min(lines_.size(), patterns_.size()) &&
               LooksLike(patterns_[first].kind, lines_[first].text)) {
            ++first;
        }
        const LinePattern& pattern = patterns_[std::min(first, patterns_.size() - 1)];
        if (report_.Add(kind, static_cast<int>(first) + 1, pattern, what, Remedy::Asked)) {
            lines_ = Align(lines_, patterns_);
        }
    }

    Report report_;
    std::vector<LinePattern> patterns_;
    Words words_;
    SourceLines source_;
    std::vector<SourceLine> lines_;
};

int NumberIn(const SourceLine& line)
{
    int number = 0;
    std::from_chars(line.text.data(), line.text.data() + line.text.size(), number);
    return number;
}

/// The races by themselves: their dates have to exist, each once.
void CheckRaces(FixedCheck& check)
{
    std::map<CalendarDate, std::size_t> rows;
    for (std::size_t row = 0; row * kColumns < check.Patterns().size(); ++row) {
        const SourceLine* values = &check.Lines()[row * kColumns];
        const int day = NumberIn(values[1]);
        if (day <= 0) {
            continue;
        }
        LinePattern pattern = check.Patterns()[row * kColumns + 1];
        const auto date = TrapValueWith(
            std::optional<CalendarDate>(),
            [&] {
                return std::optional(CalendarDate(NumberIn(values[3]), static_cast<unsigned>(NumberIn(values[2])),
                                                  static_cast<unsigned>(day)));
            },
            [](const ErroreRunTime&) {});
        if (!date) {
            check.Findings().Add("range", values[1].number, pattern,
                                 Tools::Tr("questa data non esiste: il programma non mostra la gara in nessun giorno"),
                                 Remedy::ByHand);
            continue;
        }
        pattern.day = Format(*date, "yyyy-mm-dd");
        const auto [first, isFirst] = rows.emplace(*date, row);
        if (!isFirst) {
            check.Findings().Add(
                "duplicate", values[1].number, pattern,
                Tools::Tr("una gara di questo giorno sta già nella riga %1: il programma mostra soltanto quella",
                          first->second + 1),
                Remedy::ByHand);
        }
    }
}

std::vector<std::string> FieldsOf(std::vector<LinePattern> patterns)
{
    std::vector<std::string> fields;
    for (LinePattern& pattern : patterns) {
        fields.push_back(std::move(pattern.field));
    }
    return fields;
}

std::string BlankFile(const std::vector<LinePattern>& patterns)
{
    std::string bytes;
    for (const LinePattern& pattern : patterns) {
        bytes += pattern.blank + "\r\n";
    }
    return bytes;
}

} // namespace

FileReport CheckCalendar(const CheckedFile& file)
{
    FixedCheck check(file, RowPatterns(CalendarForm(), kRaceColumns), {});
    if (check.IsWhole()) {
        CheckRaces(check);
    }
    return check.Result();
}

FileReport CheckRoutes(const CheckedFile& file)
{
    return FixedCheck(file, RoutePatterns(), {}).Result();
}

FileReport CheckTable(const CheckedFile& file)
{
    // Its last line is the date that it starts on, which is known from nothing else.
    return FixedCheck(file, RowPatterns(TableForm(), kPlanColumns), {"table", "table", Remedy::Asked}).Result();
}

FileReport CheckList(const CheckedFile& file)
{
    Report report(file.name, file.overwrites);
    SourceLines source = SplitSource(file.bytes);
    report.CheckSource(source);
    std::vector<SourceLine> lines;
    for (SourceLine& line : source.lines) {
        LinePattern pattern;
        pattern.field = Tools::Tr("voce %1", lines.size() + 1);
        if (Trim(line.text).empty()) {
            report.Add("extra", line.number, {},
                       Tools::Tr("una riga vuota, che il programma prenderebbe per una voce; viene tolta"),
                       Remedy::Sure);
            continue;
        }
        report.CheckValue(line, pattern);
        lines.push_back(std::move(line));
    }
    return {std::move(report.findings), Joined(lines)};
}

std::vector<std::string> CalendarFields()
{
    return FieldsOf(RowPatterns(CalendarForm(), kRaceColumns));
}

std::vector<std::string> RouteFields()
{
    return FieldsOf(RoutePatterns());
}

std::string BlankCalendar()
{
    return BlankFile(RowPatterns(CalendarForm(), kRaceColumns));
}

std::string BlankRoutes()
{
    return BlankFile(RoutePatterns());
}

} // namespace zelvia
