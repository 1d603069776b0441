// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Conversions.h"
#include "core/Date.h"
#include "core/Tr.h"
#include "tools/strumenti/Alignment.h"
#include "tools/strumenti/DayPatterns.h"
#include "tools/strumenti/DayStarts.h"
#include "tools/strumenti/FileCheck.h"
#include "tools/strumenti/ValueCheck.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

namespace zelvia
{
namespace
{

constexpr std::size_t kStamp = 1; ///< The place of the date in a day.

using Lines = std::vector<SourceLine>;

class DiaryCheck
{
public:
    DiaryCheck(const CheckedFile& file, int year)
        : report_(file.name, file.overwrites), patterns_(DayPatterns()), lines_(patterns_.size()),
          source_(SplitSource(file.bytes)), starts_(source_.lines, lines_), year_(starts_.YearOf(year))
    {
        const bool inPlace = starts_.AreInPlace();
        const bool whole = inPlace && source_.lines.size() >= lines_ * kDaysOfDiary;
        source_.unfinished = source_.unfinished && whole;
        if (starts_.All().empty() && !(inPlace && starts_.IsBarelyBegun())) {
            TellNoDay();
            return;
        }
        report_.CheckSource(source_);
        if (inPlace) {
            TakeByPlace();
        } else {
            TakeByNumber();
        }
        mended_ = Joined(out_);
    }

    FileReport Result() { return {std::move(report_.findings), std::move(mended_)}; }

private:
    /// Such a file is none of the program's, and stays as it is.
    void TellNoDay()
    {
        report_.Add("missing", 1, {},
                    Tools::Tr("in questo file non c'è nessun giorno: il programma lo direbbe con un errore"),
                    Remedy::ByHand);
    }

    CalendarDate DateOf(int slot) const { return CalendarDate(year_, 1, 1).PlusDays(slot - 1); }
    std::string DayOf(int slot) const { return Format(DateOf(slot), "yyyy-mm-dd"); }

    /// Has the patterns report that day.
    void Turn(int slot)
    {
        const std::string day = DayOf(slot);
        for (LinePattern& pattern : patterns_) {
            pattern.day = day;
        }
        patterns_.front().blank = std::to_string(slot);
        patterns_[kStamp].blank = "#" + day + "#";
    }

    LinePattern DayPattern(int slot) const
    {
        LinePattern pattern;
        pattern.day = DayOf(slot);
        return pattern;
    }

    void AppendBlankDay(int slot, std::size_t from = 0)
    {
        Turn(slot);
        for (std::size_t i = from; i < lines_; ++i) {
            out_.push_back({patterns_[i].blank, {}, 0, SourceLine::Encoding::Own});
        }
    }

    void Append(Lines day)
    {
        out_.insert(out_.end(), std::make_move_iterator(day.begin()), std::make_move_iterator(day.end()));
    }

    /// Checks a whole day and appends it.
    void AppendDay(Lines day, int slot)
    {
        Turn(slot);
        CheckPlace(day, slot);
        for (std::size_t i = 0; i < lines_; ++i) {
            report_.CheckValue(day[i], patterns_[i]);
        }
        Append(std::move(day));
    }

    /// A day's number and date should be those of its place. In a common year the last place has the date of the next
    /// year's first day, and shares it with a first day that was looked at in that year.
    void CheckPlace(Lines& day, int slot)
    {
        const int number = SlotIn(day.front().text);
        const auto stamp = StampIn(day[kStamp].text);
        const bool otherDate =
            stamp && stamp->DayOfYear() != slot && !(slot == kDaysOfDiary && stamp->DayOfYear() == 1);
        const TextView digits = day.front().text;
        const bool otherNumber =
            number != slot && !digits.empty() && digits.find_first_not_of("0123456789") == TextView::npos;
        const Remedy remedy = otherDate && otherNumber ? Remedy::Asked : Remedy::Sure;
        if (otherNumber &&
            report_.Add(
                number >= 1 && number <= kDaysOfDiary ? "duplicate" : "range", day.front().number, patterns_.front(),
                Tools::Tr("al posto del giorno %1 c'è il numero %2; il programma si regola sul posto: diventa %1", slot,
                          number),
                remedy)) {
            day.front().text = std::to_string(slot);
        }
        if (otherDate && report_.Add("duplicate", day[kStamp].number, patterns_[kStamp],
                                     Tools::Tr("al posto del giorno %1 c'è la data %2, che è di un altro: le ricerche "
                                               "lo conterebbero lì; diventa %3",
                                               slot, Format(*stamp, "dd/mm/yyyy"), Format(DateOf(slot), "dd/mm/yyyy")),
                                     Remedy::Asked)) {
            day[kStamp].text = patterns_[kStamp].blank;
        }
    }

    /// The last line of a file that was cut in the middle of it.
    void CloseCutLine(Lines& day)
    {
        SourceLine& last = day.back();
        const LinePattern& pattern = patterns_[day.size() - 1];
        if (pattern.kind == ValueKind::Quoted) {
            last.text += last.text.size() < 2 || !last.text.ends_with('"') ? "\"" : "";
        } else if (pattern.kind == ValueKind::Stamp ? !StampIn(last.text).has_value()
                                                    : last.text == "-" || last.text.empty()) {
            last.text = pattern.blank;
        }
    }

    /// The end of the diary is missing from a line of `slot` on, of which `day` is what there is.
    void AppendTail(Lines day, int slot)
    {
        Turn(slot);
        const std::size_t there = day.size();
        const int line = static_cast<int>(source_.lines.size()) + 1;
        const int whole = kDaysOfDiary - slot + (there == 0 ? 1 : 0);
        report_.Add(
            "missing", line, there < lines_ ? patterns_[there] : DayPattern(slot),
            there == 0
                ? Tools::Tr("il file finisce prima; giorni interi che mancano: %1. Il programma si fermerebbe con "
                            "l'errore 62 e al salvataggio li scriverebbe come li ha in memoria; tornano vuoti",
                            whole)
                : Tools::Tr(
                      "il file finisce prima, in mezzo al giorno; giorni interi che mancano: %1. Il programma si "
                      "fermerebbe con l'errore 62 e al salvataggio li scriverebbe come li ha in memoria; tornano vuoti",
                      whole),
            Remedy::Sure);
        if (there > 0) {
            CloseCutLine(day);
            for (std::size_t i = there; i < lines_; ++i) {
                day.push_back({patterns_[i].blank, {}, line, SourceLine::Encoding::Own});
            }
            AppendDay(std::move(day), slot);
        }
        for (int next = there == 0 ? slot : slot + 1; next <= kDaysOfDiary; ++next) {
            AppendBlankDay(next);
        }
    }

    void TakeByPlace()
    {
        const std::size_t count = source_.lines.size();
        const std::size_t days = std::min(count / lines_, static_cast<std::size_t>(kDaysOfDiary));
        out_.reserve(lines_ * kDaysOfDiary);
        for (std::size_t i = 0; i < days; ++i) {
            AppendDay(Taken(i * lines_, (i + 1) * lines_), static_cast<int>(i) + 1);
        }
        if (days < kDaysOfDiary) {
            AppendTail(Taken(days * lines_, count), static_cast<int>(days) + 1);
        } else {
            AppendRest(Taken(days * lines_, count));
        }
    }

    Lines Part(std::size_t from, std::size_t to) const
    {
        return {source_.lines.begin() + static_cast<std::ptrdiff_t>(from),
                source_.lines.begin() + static_cast<std::ptrdiff_t>(to)};
    }

    /// The same for lines that nothing else looks at any more.
    Lines Taken(std::size_t from, std::size_t to)
    {
        const auto first = std::make_move_iterator(source_.lines.begin());
        return {first + static_cast<std::ptrdiff_t>(from), first + static_cast<std::ptrdiff_t>(to)};
    }

    static bool IsEmpty(const SourceLine& line) { return Trim(line.text).empty(); }

    /// What follows the last day.
    void AppendRest(const Lines& rest)
    {
        if (!rest.empty() &&
            !report_.Add("extra", rest.front().number, {},
                         Tools::Tr("righe in più dopo l'ultimo giorno: %1; il programma non le legge e al salvataggio "
                                   "le perde; vengono tolte",
                                   rest.size()),
                         std::all_of(rest.begin(), rest.end(), IsEmpty) ? Remedy::Sure : Remedy::Asked)) {
            Append(rest);
        }
    }

    /// Days of the wrong length are distinguished by where they begin, and ordered by their numbers.
    void TakeByNumber()
    {
        const std::vector<std::size_t>& starts = starts_.All();
        if (starts.front() > 0) {
            const Lines before = Part(0, starts.front());
            if (!report_.Add(
                    "extra", 1, {},
                    Tools::Tr("righe in più prima del primo giorno: %1; il programma si fermerebbe qui; vengono tolte",
                              before.size()),
                    std::all_of(before.begin(), before.end(), IsEmpty) ? Remedy::Sure : Remedy::Asked)) {
                Append(before);
            }
        }
        int last = 0;
        Lines lastDay;
        for (std::size_t i = 0; i < starts.size(); ++i) {
            const bool final = i + 1 == starts.size();
            Lines day = Part(starts[i], final ? source_.lines.size() : starts[i + 1]);
            const int slot = starts_.SlotAt(i, last);
            if (slot <= last || slot > kDaysOfDiary) {
                TakeAgain(day, slot, slot == last && SameDay(day, lastDay));
                continue;
            }
            FillGap(last + 1, slot, day.front().number);
            last = slot;
            lastDay = day;
            if (final && day.size() < lines_) {
                AppendTail(std::move(day), slot);
                return;
            }
            TakeDay(std::move(day), slot, final && slot == kDaysOfDiary);
        }
        if (last < kDaysOfDiary) {
            AppendTail({}, last + 1);
        }
    }

    static bool SameDay(const Lines& one, const Lines& other)
    {
        return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                          [](const SourceLine& a, const SourceLine& b) { return a.text == b.text; });
    }

    /// A day that was there already.
    void TakeAgain(const Lines& day, int slot, bool same)
    {

        if (!report_.Add("duplicate", day.front().number, slot <= kDaysOfDiary ? DayPattern(slot) : LinePattern(),
                         same ? Tools::Tr("il giorno %1 c'è due volte, uguale: il programma leggerebbe ogni giorno che "
                                          "segue al posto di un altro; il secondo viene tolto",
                                          slot)
                              : Tools::Tr("il giorno %1 c'è due volte, diverso o fuori posto: il programma leggerebbe "
                                          "ogni giorno che segue al posto di un altro",
                                          slot),
                         same ? Remedy::Sure : Remedy::ByHand)) {
            Append(day);
        }
    }

    /// Days that are missing before `slot`.
    void FillGap(int first, int slot, int line)
    {
        if (first < slot && report_.Add("missing", line, DayPattern(first),
                                        Tools::Tr("prima di questa riga mancano giorni: %1; il programma leggerebbe "
                                                  "ogni giorno che segue al posto di un altro; tornano vuoti",
                                                  slot - first),
                                        Remedy::Asked)) {
            for (int day = first; day < slot; ++day) {
                AppendBlankDay(day);
            }
        }
    }

    void TakeDay(Lines day, int slot, bool last)
    {
        if (day.size() > lines_) {
            Shorten(day, slot, last);
        } else if (day.size() < lines_) {
            Turn(slot);
            if (report_.Add("missing", day.front().number, DayPattern(slot),
                            Tools::Tr("al giorno mancano righe: %1; da lì in poi il programma leggerebbe ogni valore "
                                      "al posto di un altro; le righe tornano dove sembrano stare",
                                      lines_ - day.size()),
                            Remedy::Asked)) {
                day = Align(day, patterns_);
            }
        }
        if (day.size() == lines_) {
            AppendDay(std::move(day), slot);
        } else {
            Append(day);
        }
    }

    /// A day with too many lines: empty ones that no program writes, what follows the last day, or others.
    void Shorten(Lines& day, int slot, bool last)
    {
        const std::size_t surplus = day.size() - lines_;
        const auto empty = static_cast<std::size_t>(std::count_if(day.begin(), day.end(), IsEmpty));
        if (empty == surplus) {
            const auto first = std::find_if(day.begin(), day.end(), IsEmpty);
            report_.Add(
                "extra", first->number, DayPattern(slot),
                Tools::Tr("righe vuote nel giorno: %1; il programma le prenderebbe per valori; vengono tolte", empty),
                Remedy::Sure);
            std::erase_if(day, IsEmpty);
            return;
        }
        if (last) {
            const Lines rest(day.begin() + static_cast<std::ptrdiff_t>(lines_), day.end());
            day.resize(lines_);
            AppendDay(std::move(day), slot);
            AppendRest(rest);
            day.clear();
            return;
        }
        Turn(slot);
        if (report_.Add("extra", day.front().number, DayPattern(slot),
                        Tools::Tr("nel giorno ci sono righe in più: %1; da lì in poi il programma leggerebbe ogni "
                                  "valore al posto di un altro; le righe tornano dove sembrano stare",
                                  surplus),
                        Remedy::Asked)) {
            day = Align(day, patterns_);
        }
    }

    Report report_;
    std::vector<LinePattern> patterns_;
    std::size_t lines_; ///< Of a day.
    SourceLines source_;
    DayStarts starts_;
    int year_;
    Lines out_;
    std::optional<std::string> mended_; ///< None for a file that is not one of the program's.
};

} // namespace

FileReport CheckDiary(const CheckedFile& file, int year)
{
    return DiaryCheck(file, year).Result();
}

} // namespace zelvia
