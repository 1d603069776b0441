// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/UnsavedRecords.h"

#include "core/Conversions.h"
#include "core/Date.h"
#include "core/Files.h"
#include "core/RunTimeError.h"
#include "core/Tr.h"
#include "core/ValueFile.h"
#include "diary/CalendarModel.h"
#include "diary/Fields.h"
#include "diary/Module1.h"
#include "diary/RouteModel.h"
#include "diary/Workspace.h"

#include <algorithm>
#include <array>
#include <filesystem>

namespace zelvia
{
namespace
{

using namespace Module1;
namespace fs = std::filesystem;

constexpr std::size_t kDatePlace = 1;

const Text& At(const Values& values, std::size_t place)
{
    static const Text blank;
    return place < values.size() ? values[place] : blank;
}

bool IsThere(TextView path)
{
    return TrapValueWith(
        false, [&] { return fs::exists(NativePath(path)); }, [](const ErroreRunTime&) {});
}

/// What the program knows of a file before it is read.
void Blank(const JournalDiary& diary, RecordKind kind)
{
    switch (kind) {
    case RecordKind::Day:
        for (int i = 1; i <= 366; ++i) {
            Giorni[i] = RecordGiorno();
            const auto change = diary.changes.find({kind, i});
            // The days of a diary that has no file yet are known as far as they are in the journal.
            if (change != diary.changes.end()) {
                Restore(Giorni[i], change->second.before);
            }
        }
        break;
    case RecordKind::List:
        for (const SelectionList list : kFiledLists) {
            const auto entries = FirstEntries(list);
            EntriesOf(list).assign(entries.begin(), entries.end());
        }
        break;
    case RecordKind::Route: AzzeraPercorsi(); break;
    case RecordKind::Race: AzzeraCalendario(); break;
    }
}

/// Reads all values of the file one after the other.
template <typename Read>
void ReadFile(const Text& path, Read&& read)
{
    if (IsThere(path)) {
        ValueReader file(path);
        read([&](auto& value) { file.Input(value); });
    }
}

void ReadKind(const JournalDiary& diary, RecordKind kind)
{
    switch (kind) {
    case RecordKind::Day:
        ReadFile(diary.file, [](auto&& input) {
            for (int i = 1; i <= 366; ++i) {
                VisitDiaryValues(Giorni[i], input);
            }
        });
        break;
    case RecordKind::List:
        for (const SelectionList list : kFiledLists) {
            const Text path = diary.companions + "\\" + Text(ListName(list)) + ".lsx";
            if (IsThere(path)) {
                ReadEntries(path, EntriesOf(list));
            }
        }
        break;
    case RecordKind::Route:
        ReadFile(diary.companions + "\\ListePercorso", [](auto&& input) {
            for (int i = 1; i <= PerRoute<Text>::kLast; ++i) {
                VisitRoute(i, input);
            }
        });
        break;
    case RecordKind::Race:
        ReadFile(diary.companions + "\\CalendarioGare", [](auto&& input) {
            for (int i = 1; i <= RaceValues<Text>::kLast; ++i) {
                VisitRace(i, input);
            }
        });
        break;
    }
}

/// The name of a diary as the tools know it.
std::string NameOf(const JournalDiary& diary)
{
    const Text diaries = diary.folder + "\\" + Text(kDiaryFolder) + "\\";
    const Text inside = PathWithin(diary.file, diary.folder + "\\" + Text(kDiaryFolder));
    if (!inside.starts_with(diaries) || InStr(inside, "\\..") != 0 || !SameText(Right(inside, 4), ".zlv")) {
        return {};
    }
    std::string name = ToUtf8(inside.substr(diaries.size(), inside.size() - diaries.size() - 4));
    std::replace(name.begin(), name.end(), '\\', '/');
    return name;
}

UnsavedDiary BesideFiles(const JournalDiary& journal)
{
    UnsavedDiary diary{journal, NameOf(journal), !journal.fresh && !IsThere(journal.file), {}};
    for (const RecordKind kind : {RecordKind::Day, RecordKind::List, RecordKind::Route, RecordKind::Race}) {
        const auto ofKind = [&](const auto& row) { return row.first.kind == kind; };
        if (std::none_of(journal.changes.begin(), journal.changes.end(), ofKind)) {
            continue;
        }
        const bool readable = ReadRecords(journal, kind) && !diary.missing && !diary.name.empty();
        for (const auto& [key, change] : journal.changes) {
            if (key.kind == kind && !(readable && Holds(key, change.after))) {
                diary.records.push_back(
                    {key, change.before, change.after, change.offered, !readable || !Holds(key, change.before)});
            }
        }
    }
    return diary;
}

/// A date of the journal as `pattern` has it, empty for none.
std::string DateText(const Text& iso, TextView pattern)
{
    return ToUtf8(TrapValueWith(
        Text(), [&] { return Format(IsoDate(iso), pattern); }, [](const ErroreRunTime&) {}));
}

/// What a field shows of its value.
template <typename Field>
Text Content(const Field& /*field*/, const Text& text)
{
    return text;
}

template <typename T>
Text Content(const NumberField<T>& field, const Text& text)
{
    return text == PlainText(RecordGiorno().*field.member) ? Text() : text;
}

Text Content(const TimeField& field, const Text& text)
{
    return text == field.none ? Text() : text;
}

/// Hands the fields of a day that differ to `add`.
template <typename Add>
void ForEachChange(const UnsavedRecord& record, Add&& add)
{
    std::size_t place = 0;
    ForEachField([&](const auto& field) {
        for (int i = 1; i <= field.kLines; ++i, ++place) {
            const Text before = Content(field, At(record.before, place));
            const Text after = Content(field, At(record.after, place));
            if (before != after && !field.label.empty() && place != kDatePlace) {
                const std::string label = ToUtf8(field.label);
                add(field.kLines > 1 ? Tools::Tr("%1, riga %2", label, i) : label, before, after);
            }
        }
    });
}

constexpr std::array<const char*, 15> kRaceFields = {
    Tools::Mark("numero"),    Tools::Mark("giorno"),    Tools::Mark("mese"),
    Tools::Mark("anno"),      Tools::Mark("gara"),      Tools::Mark("località"),
    Tools::Mark("km"),        Tools::Mark("metri"),     Tools::Mark("partecipanti"),
    Tools::Mark("risultato"), Tools::Mark("ore"),       Tools::Mark("minuti"),
    Tools::Mark("secondi"),   Tools::Mark("categoria"), Tools::Mark("risultato categoria")};

std::string RouteField(std::size_t place)
{
    if (place < 2) {
        return place == 0 ? Tools::Tr("nome") : Tools::Tr("lunghezza");
    }
    const char* const parts[] = {Tools::Mark("tratto %1"), Tools::Mark("tratto %1, km"),
                                 Tools::Mark("tratto %1, metri")};
    return Tools::Tr(parts[(place - 2) % 3], (place - 2) / 3 + 1);
}

std::string RaceDate(const Values& values)
{
    return TrapValueWith(
        std::string(),
        [&] {
            const CalendarDate date(Parsed<i16>(At(values, 3)).value(),
                                    static_cast<unsigned>(Parsed<i16>(At(values, 2)).value()),
                                    static_cast<unsigned>(Parsed<i16>(At(values, 1)).value()));
            return Format(date, "yyyy-mm-dd");
        },
        [](const ErroreRunTime&) {});
}

/// The entries of a list that one has more of than the other.
std::vector<ChangedField> ListChanges(const UnsavedRecord& record)
{
    std::vector<ChangedField> fields;
    const auto lacks = [](const Values& values, const Text& entry) {
        return std::find(values.begin(), values.end(), entry) == values.end();
    };
    for (const Text& entry : record.before) {
        if (lacks(record.after, entry)) {
            fields.push_back({"", TitleOf(record), ToUtf8(entry), ""});
        }
    }
    for (const Text& entry : record.after) {
        if (lacks(record.before, entry)) {
            fields.push_back({"", TitleOf(record), "", ToUtf8(entry)});
        }
    }
    if (fields.empty()) {
        fields.push_back({"", Tools::Tr("%1, ordine", TitleOf(record)), "", ""});
    }
    return fields;
}

std::vector<ChangedField> DayChanges(const UnsavedRecord& record)
{
    std::vector<ChangedField> fields;
    ForEachChange(record, [&](const std::string& name, const Text& before, const Text& after) {
        fields.push_back({At(record.after, kDatePlace), name, ToUtf8(before), ToUtf8(after)});
    });
    return fields;
}

} // namespace

bool ReadRecords(const JournalDiary& diary, RecordKind kind)
{
    return TrapValueWith(
        false,
        [&] {
            Blank(diary, kind);
            ReadKind(diary, kind);
            return true;
        },
        [](const ErroreRunTime&) {});
}

UnsavedRecords ReadUnsaved(TextView programFolder)
{
    UnsavedRecords unsaved;
    unsaved.file = JournalFile::Open(programFolder, false);
    if (!unsaved.file) {
        unsaved.busy = JournalFile::IsBusy(programFolder);
        return unsaved;
    }
    const JournalContent content = ReadJournal(unsaved.file->Read());
    unsaved.unreadable = content.unreadable;
    for (const JournalDiary& journal : content.diaries) {
        UnsavedDiary diary = BesideFiles(journal);
        if (journal.folder == programFolder && !diary.records.empty()) {
            unsaved.diaries.push_back(std::move(diary));
        }
    }
    return unsaved;
}

std::string TitleOf(const UnsavedRecord& record)
{
    switch (record.key.kind) {
    case RecordKind::Day: {
        const std::string date = DateText(At(record.after, kDatePlace), "dddd d mmmm yyyy");
        return date.empty() ? Tools::Tr("giorno %1", record.key.index) : date;
    }
    case RecordKind::List:
        return Tools::Tr("lista %1", std::string(ListName(static_cast<SelectionList>(record.key.index))));
    case RecordKind::Route: {
        const Text& name = At(record.after, 0).empty() ? At(record.before, 0) : At(record.after, 0);
        return Tools::Tr("percorso «%1»", ToUtf8(name));
    }
    case RecordKind::Race: break;
    }
    return Tools::Tr("gara %1", record.key.index);
}

std::string WordOf(const UnsavedRecord& record)
{
    switch (record.key.kind) {
    case RecordKind::Day: return At(record.after, kDatePlace);
    case RecordKind::List: return "liste";
    case RecordKind::Route: return "percorsi";
    case RecordKind::Race: break;
    }
    return "calendario";
}

std::vector<ChangedField> FieldsOf(const UnsavedRecord& record)
{
    if (record.key.kind == RecordKind::Day) {
        return DayChanges(record);
    }
    if (record.key.kind == RecordKind::List) {
        return ListChanges(record);
    }
    const bool race = record.key.kind == RecordKind::Race;
    std::vector<ChangedField> fields;
    const std::size_t last = race ? kRaceFields.size() : 2 + 3 * kStretches;
    for (std::size_t place = 0; place < last; ++place) {
        const Text& before = At(record.before, place);
        const Text& after = At(record.after, place);
        if (before != after) {
            const std::string name = race ? Tools::Tr(kRaceFields[place]) : RouteField(place);
            fields.push_back(
                {race ? RaceDate(record.after) : "", TitleOf(record) + ", " + name, ToUtf8(before), ToUtf8(after)});
        }
    }
    return fields;
}

} // namespace zelvia
