// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/strumenti/ValueCheck.h"

#include "core/Conversions.h"
#include "core/Date.h"
#include "core/RunTimeError.h"
#include "core/Tr.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>

namespace zelvia
{
namespace
{

constexpr char kOpening = '\x93';
constexpr char kClosing = '\x94';

/// What is there, in the form that the runner reads: short, without control characters.
std::string Shown(TextView text)
{
    constexpr std::size_t longest = 60;
    Text shown(text.substr(0, longest));
    std::replace_if(
        shown.begin(), shown.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return "«" + ToUtf8(shown) + (text.size() > longest ? "…" : "") + "»";
}

TextView WithoutBlanksBehind(TextView text)
{
    const auto last = text.find_last_not_of(" \t");
    return text.substr(0, last == TextView::npos ? 0 : last + 1);
}

/// The text between the quotes of a line, as far as they are there.
TextView Inside(TextView line)
{
    line.remove_prefix(line.starts_with('"') ? 1 : 0);
    line.remove_suffix(line.ends_with('"') ? 1 : 0);
    return line;
}

Text WithTypographicQuotes(TextView text)
{
    Text result(text);
    for (std::size_t i = 0; i < result.size(); ++i) {
        if (result[i] == '"') {
            const bool opens = i == 0 || TextView(" ([\x93\x91'").find(result[i - 1]) != TextView::npos;
            result[i] = opens ? kOpening : kClosing;
        }
    }
    return result;
}

template <typename Number>
std::optional<Number> Whole(TextView text)
{
    Number number = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number);
    return read.ec == std::errc() && read.ptr == end ? std::optional(number) : std::nullopt;
}

std::optional<CalendarDate> DateIn(TextView line)
{
    if (line.size() < 2 || !line.starts_with('#') || !line.ends_with('#')) {
        return std::nullopt;
    }
    return TrapValueWith(
        std::optional<CalendarDate>(), [&] { return std::optional(IsoDate(line.substr(1, line.size() - 2))); },
        [](const ErroreRunTime&) {});
}

NumberRange RangeOf(const LinePattern& pattern)
{
    if (pattern.range.minimum != 0 || pattern.range.maximum != 0) {
        return pattern.range;
    }
    return pattern.kind == ValueKind::Short
               ? NumberRange{std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max()}
               : NumberRange{std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()};
}

} // namespace

bool LooksLike(ValueKind kind, TextView line)
{
    switch (kind) {
    case ValueKind::Quoted: return line.starts_with('"') || line.ends_with('"');
    case ValueKind::Stamp: return line.starts_with('#');
    default: return !line.empty() && TextView("-+0123456789").find(line.front()) != TextView::npos;
    }
}

std::string Joined(const std::vector<SourceLine>& lines)
{
    std::string bytes;
    for (const SourceLine& line : lines) {
        bytes += line.text + "\r\n";
    }
    return bytes;
}

bool Report::Add(std::string_view kind, int line, const LinePattern& pattern, std::string text, Remedy remedy)
{
    text = remedy == Remedy::Asked    ? Tools::Tr("%1 (soltanto con --sovrascrivi)", text)
           : remedy == Remedy::ByHand ? Tools::Tr("%1; va deciso a mano", text)
                                      : text;
    findings.push_back({file_, line, pattern.day, pattern.field, kind, std::move(text), remedy});
    return Applies(remedy);
}

void Report::CheckSource(const SourceLines& source)
{
    if (source.marked) {
        Add("encoding", 1, {},
            Tools::Tr("il file comincia con il segno di un'altra codifica, che il programma prenderebbe per un valore; "
                      "diventa Windows-1252"),
            Remedy::Sure);
    }
    if (source.zeros > 0) {
        Add("extra", static_cast<int>(source.lines.size()) + 1, {},
            Tools::Tr("byte vuoti in fondo al file, come li lascia un'interruzione: %1; vengono tolti", source.zeros),
            Remedy::Sure);
    }
    if (source.otherEnds > 0) {
        Add("line_end", source.firstOtherEnd, {},
            Tools::Tr("righe che non finiscono con CR LF: %1, questa è la prima; il programma le scrive con CR LF, e "
                      "così tornano",
                      source.otherEnds),
            Remedy::Sure);
    } else if (source.unfinished) {
        Add("line_end", source.lines.back().number, {},
            Tools::Tr("l'ultima riga non finisce con CR LF; le viene aggiunto"), Remedy::Sure);
    }
}

void Report::CheckValue(SourceLine& line, const LinePattern& pattern)
{
    CheckEncoding(line, pattern);
    switch (pattern.kind) {
    case ValueKind::Quoted: CheckText(line, pattern); break;
    case ValueKind::Stamp: CheckDate(line, pattern); break;
    default: CheckNumber(line, pattern); break;
    }
}

void Report::CheckEncoding(SourceLine& line, const LinePattern& pattern)
{
    using Encoding = SourceLine::Encoding;
    if (line.encoding == Encoding::Own) {
        return;
    }
    if (line.encoding == Encoding::Other) {
        Add("encoding", line.number, pattern,
            Tools::Tr("%1 è scritto in UTF-8: il programma ne mostrerebbe male gli accenti; diventa Windows-1252",
                      Shown(Inside(line.text))),
            Remedy::Sure);
        return;
    }
    const std::string what = Shown(Inside(line.other));
    const bool mended =
        line.encoding == Encoding::Perhaps
            ? Add("encoding", line.number, pattern,
                  Tools::Tr("%1 sembra scritto in UTF-8, il resto del file no: il programma ne mostrerebbe male gli "
                            "accenti; diventa Windows-1252",
                            what),
                  Remedy::Asked)
            : Add("encoding", line.number, pattern,
                  Tools::Tr("%1 è scritto in UTF-8 e ha caratteri che il diario non può contenere; diventano «?»",
                            what),
                  Remedy::Asked);
    if (mended) {
        line.text = line.other;
    }
}

void Report::CheckText(SourceLine& line, const LinePattern& pattern)
{
    const TextView value = WithoutBlanksBehind(line.text);
    const auto quotes = std::count(value.begin(), value.end(), '"');
    const bool framed = value.size() >= 2 && value.starts_with('"') && value.ends_with('"');
    if (!framed || quotes != 2) {
        const bool sure = framed || quotes > 0 || value.empty() || !LooksLike(ValueKind::Long, value);
        if (Add("quote", line.number, pattern,
                framed ? Tools::Tr("virgolette nel testo %1: il programma finirebbe lì il testo, leggerebbe male ciò "
                                   "che segue e lo perderebbe al salvataggio; diventano tipografiche",
                                   Shown(Inside(value)))
                       : Tools::Tr("a %1 mancano le virgolette che chiudono un testo: il programma leggerebbe male ciò "
                                   "che segue; vengono aggiunte",
                                   Shown(value)),
                sure ? Remedy::Sure : Remedy::Asked)) {
            line.text = "\"" + WithTypographicQuotes(Inside(value)) + "\"";
        }
    }
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < ' ' && c != '\t'; };
    if (std::any_of(line.text.begin(), line.text.end(), isControl) &&
        Add("encoding", line.number, pattern,
            Tools::Tr("in %1 ci sono caratteri di controllo, che il programma non mostra; diventano spazi",
                      Shown(Inside(line.text))),
            Remedy::Asked)) {
        std::replace_if(line.text.begin(), line.text.end(), isControl, ' ');
    }
}

void Report::CheckNumber(SourceLine& line, const LinePattern& pattern)
{
    const TextView value = WithoutBlanksBehind(line.text);
    const auto number = Whole<long>(value);
    const NumberRange range = RangeOf(pattern);
    if (number && *number >= range.minimum && *number <= range.maximum) {
        return;
    }
    const bool digits = !value.empty() &&
                        value.find_first_not_of("0123456789", value.starts_with('-') ? 1 : 0) == TextView::npos &&
                        value != "-";
    if (number || digits) {
        const bool low = number ? *number < range.minimum : value.starts_with('-');
        const std::string limit = std::to_string(low ? range.minimum : range.maximum);
        const NumberRange fits = RangeOf({pattern.kind, {}, {}, {}, {}});
        const bool tooLarge = !number || *number < fits.minimum || *number > fits.maximum;
        if (Add("range", line.number, pattern,
                Tools::Tr(tooLarge
                              ? Tools::Mark("%1 è fuori dai limiti, %2 e %3: il programma si fermerebbe qui e al "
                                            "salvataggio perderebbe il resto; diventa %4")
                              : Tools::Mark("%1 è fuori dai limiti, %2 e %3: il programma lo prende com'è; diventa %4"),
                          Shown(value), range.minimum, range.maximum, limit),
                Remedy::Asked)) {
            line.text = limit;
        }
        return;
    }
    const auto quoted = Whole<long>(Inside(value));
    const bool sure = value.starts_with('"') && quoted && *quoted >= range.minimum && *quoted <= range.maximum;
    const Text becomes = sure ? Text(Inside(value)) : pattern.blank;
    if (Add("number", line.number, pattern,
            Tools::Tr(
                "%1 non è un numero: il programma si fermerebbe qui e al salvataggio perderebbe il resto; diventa %2",
                Shown(value), becomes),
            sure ? Remedy::Sure : Remedy::Asked)) {
        line.text = becomes;
    }
}

void Report::CheckDate(SourceLine& line, const LinePattern& pattern)
{
    const TextView value = WithoutBlanksBehind(line.text);
    if (DateIn(value)) {
        return;
    }
    // A day's date follows from its place.
    const Remedy remedy = pattern.day.empty() ? Remedy::Asked : Remedy::Sure;
    if (Add("number", line.number, pattern,
            Tools::Tr(
                "%1 non è una data: il programma si fermerebbe qui e al salvataggio perderebbe il resto; diventa %2",
                Shown(value), pattern.blank),
            remedy)) {
        line.text = pattern.blank;
    }
}

} // namespace zelvia
