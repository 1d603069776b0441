// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/BoxTexts.h"
#include "core/Conversions.h"
#include "core/Files.h"
#include "core/RunTimeError.h"
#include "core/Tr.h"
#include "diary/DiaryDifference.h"
#include "diary/Module1.h"
#include "diary/Workspace.h"
#include "tools/copies/CopiesCommand.h"
#include "tools/copies/SafeFiles.h"
#include "tools/copies/SecondPlace.h"
#include "tools/copies/WorkspaceData.h"
#include "tools/strumenti/Actions.h"

#include <algorithm>
#include <limits>
#include <map>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;
using namespace Module1;

constexpr const char* kPutBackLabel = "copie rimetti";
constexpr std::string_view kCommand = "zelvia-strumenti copie";

using Days = std::vector<RecordGiorno>; ///< 0..366

CalendarDate DateIn(const std::string& word)
{
    return TrapValueWith(
        CalendarDate(), [&] { return IsoDate(FromUtf8(word)); },
        [&](const ErroreRunTime&) { throw Misuse{Tools::Tr("«%1» non è un giorno, AAAA-MM-GG.", word)}; });
}

/// Reads a diary of the copy.
Days DaysOfCopy(const Copy& copy, const std::string& diary)
{
    const BoxTexts boxes;
    AzzeraAnno();
    CaricaDiario(SystemPath((copy.place / DiaryFile(diary)).string()));
    if (!boxes.All().empty()) {
        throw FileFailure(
            Tools::Tr("il diario «%1» della copia non si legge per intero («%2»)", diary, ToUtf8(boxes.All().front())));
    }
    return {Giorni.begin(), Giorni.end()};
}

/// The diaries of a copy, or the one that --diario names.
std::vector<std::string> DiariesOf(const Copy& copy, const Options& options)
{
    std::vector<std::string> diaries;
    for (const std::string& file : FilesBelow(copy.place / kDiaryFolder)) {
        const fs::path path(file);
        const std::string diary = path.parent_path() / path.stem();
        if (SameText(path.extension().string(), ".zlv") && (!options.diary || diary == *options.diary)) {
            diaries.push_back(diary);
        }
    }
    if (diaries.empty()) {
        throw FileFailure(options.diary
                              ? Tools::Tr("nella copia %1 il diario «%2» non c'è", copy.number, *options.diary)
                              : Tools::Tr("nella copia %1 non c'è nessun diario", copy.number));
    }
    return diaries;
}

/// The last place of a common year has the date of the next one's first day, but is not that day.
Days::const_iterator DayOf(const Days& days, CalendarDate date)
{
    const auto place = days.begin() + date.DayOfYear().value();
    return place->Data == date ? place : days.end();
}

/// What comes back into one diary.
struct Return {
    Days days; ///< Of the copy.
    std::vector<CalendarDate> dates;
};

/// The diaries of the copy that can be read, by their names; what is wrong with the others is added to `damages`.
std::map<std::string, Return> ReadableDiaries(const Copy& copy, const Options& options,
                                              std::vector<std::string>& damages)
{
    std::map<std::string, Return> returns;
    for (const std::string& diary : DiariesOf(copy, options)) {
        try {
            returns[diary].days = DaysOfCopy(copy, diary);
        } catch (const FileFailure& failure) {
            returns.erase(diary);
            damages.emplace_back(failure.what());
        }
    }
    return returns;
}

/// The one diary of the copy that has the date. One that can't be read might have it, and is said when none does.
Return& HomeOf(std::map<std::string, Return>& returns, CalendarDate date, const std::vector<std::string>& damages)
{
    std::vector<Return*> homes;
    for (auto& [diary, back] : returns) {
        if (DayOf(back.days, date) != back.days.end()) {
            homes.push_back(&back);
        }
    }
    if (homes.size() == 1) {
        return *homes.front();
    }
    if (homes.empty() && !damages.empty()) {
        throw FileFailure(damages.front());
    }
    const std::string day = Format(date, "dd/mm/yyyy");
    throw FileFailure(
        homes.empty()
            ? Tools::Tr("nella copia il giorno %1 non c'è", day)
            : Tools::Tr("nella copia il giorno %1 è in più di un diario: indicare quale con --diario NOME", day));
}

/// Each of the dates in the one diary of the copy that has it.
std::map<std::string, Return> Returns(Context& context, const Copy& copy, const std::vector<CalendarDate>& dates)
{
    std::vector<std::string> damages;
    std::map<std::string, Return> returns = ReadableDiaries(copy, context.Chosen(), damages);
    for (const CalendarDate date : dates) {
        HomeOf(returns, date, damages).dates.push_back(date);
    }
    for (const std::string& damage : damages) {
        context.Err() << Tools::Tr("Attenzione: %1.", damage) << "\n";
    }
    std::erase_if(returns, [](const auto& row) { return row.second.dates.empty(); });
    return returns;
}

/// Puts the days into the present diary, which is then the one in memory.
void PutDays(Context& context, const std::string& diary, const Return& back)
{
    context.Load(diary);
    for (const CalendarDate date : back.dates) {
        const auto old = DayOf(back.days, date);
        RecordGiorno& now = Giorni[static_cast<int>(old - back.days.begin())];
        if (now.Data != date) {
            throw FileFailure(
                Tools::Tr("nel diario «%1» il giorno %2 non è al suo posto: «zelvia-strumenti controlla» dice dove",
                          diary, Format(date, "dd/mm/yyyy")));
        }
        now = *old;
    }
}

/// What changes in the days, a line for each field.
void AddChanges(Table& table, const Copy& copy, const fs::path& folder, const std::string& diary, const Return& back)
{
    const DiaryDifference difference =
        CompareDiaries(ReadFile(folder / DiaryFile(diary)), ReadFile(copy.place / DiaryFile(diary)));
    for (const DayDifference& day : difference.days) {
        for (const FieldDifference& field : day.fields) {
            if (std::find_if(back.dates.begin(), back.dates.end(), [&](CalendarDate date) {
                    return Format(date, "yyyy-mm-dd") == day.iso;
                }) != back.dates.end()) {
                table.rows.push_back({ToUtf8(day.iso), ToUtf8(field.name), ToUtf8(field.before), ToUtf8(field.after)});
            }
        }
    }
}

int PutBackDays(Context& context, const Copy& copy, const std::vector<CalendarDate>& dates)
{
    const fs::path folder = context.Folder();
    const std::map<std::string, Return> returns = Returns(context, copy, dates);
    Table table{{{"date", Tools::Mark("Giorno")},
                 {"field", Tools::Mark("Campo")},
                 {"before", Tools::Mark("Adesso")},
                 {"after", Tools::Mark("Nella copia")}},
                {}};
    for (const auto& [diary, back] : returns) {
        PutDays(context, diary, back);
        AddChanges(table, copy, folder, diary, back);
    }
    context.Print(table);
    if (table.rows.empty()) {
        context.Told() << Tools::Tr("Questi giorni sono già come nella copia.") << "\n";
        return kDone;
    }
    if (const auto status = context.AskFirst(Tools::Tr("Rimettere questi giorni?"))) {
        return *status;
    }
    FileSet files(folder, kPutBackLabel);
    for (const auto& [diary, back] : returns) {
        PutDays(context, diary, back);
        const BoxTexts boxes;
        SalvaDiario(SystemPath(files.PlaceOf(DiaryFile(diary)).string()));
        if (!boxes.All().empty()) {
            throw FileFailure(
                Tools::Tr("il diario «%1» non si può scrivere («%2»)", diary, ToUtf8(boxes.All().front())));
        }
    }
    const int status = context.Apply(files);
    context.Told() << Tools::Tr("Rimessi: %1. I giorni di prima sono nell'ultima copia di sicurezza.", dates.size())
                   << "\n";
    return status;
}

/// The diary's file and those of its folder that differ from the copy's, from the program folder on.
std::vector<fs::path> FilesToPutBack(const Copy& copy, const fs::path& folder, const std::string& diary)
{
    std::vector<fs::path> files = {DiaryFile(diary)};
    for (const std::string& file : FilesBelow(copy.place / DiaryFolder(diary))) {
        files.push_back(DiaryFolder(diary) / file);
    }
    std::erase_if(files, [&](const fs::path& file) {
        RefuseLinks(folder, file);
        return fs::exists(folder / file) && HoldTheSame(folder / file, copy.place / file);
    });
    return files;
}

int PutBackDiary(Context& context, const Copy& copy)
{
    const fs::path folder = context.Folder();
    Options options = context.Chosen();
    options.diary = context.ChosenDiary();
    const std::string diary = DiariesOf(copy, options).front();
    const std::vector<fs::path> changed = FilesToPutBack(copy, folder, diary);
    if (changed.empty()) {
        context.Told() << Tools::Tr("Il diario «%1» è già come nella copia.", diary) << "\n";
        return kDone;
    }
    context.Told() << Tools::Tr("Il diario «%1» torna come nella copia %2:", diary, copy.number) << "\n";
    for (const fs::path& file : changed) {
        context.Told() << "  " << file.string() << "\n";
    }
    if (const auto status = context.AskFirst(Tools::Tr("Rimettere il diario?"))) {
        return *status;
    }
    FileSet files(folder, kPutBackLabel);
    for (const fs::path& file : changed) {
        files.Write(file, ReadFile(copy.place / file));
    }
    const int status = context.Apply(files);
    context.Told() << Tools::Tr("Rimesso il diario «%1». I file di prima sono nell'ultima copia di sicurezza.", diary)
                   << "\n";
    return status;
}

} // namespace

int RunPutBack(Context& context, Arguments& arguments)
{
    const bool days = arguments.TakeFlag("--giorno");
    const bool whole = arguments.TakeFlag("--intero");
    if (days && whole) {
        throw Misuse{Tools::Tr("O --giorno o --intero.")};
    }
    const auto origin = arguments.TakeValue("--da");
    const std::vector<std::string> words =
        arguments.TakeWords(days ? 3 : 2, days ? std::numeric_limits<std::size_t>::max() : 2);
    const CopyStore store = origin ? CopyStore(CopiesIn(ResolvedFolder(*origin))) : UsersCopies();
    const Copy copy = NumberedCopy(store, words[1], std::string(kCommand));
    if (whole) {
        return PutBackDiary(context, copy);
    }
    std::vector<CalendarDate> dates;
    std::transform(words.begin() + 2, words.end(), std::back_inserter(dates), DateIn);
    std::sort(dates.begin(), dates.end());
    dates.erase(std::unique(dates.begin(), dates.end()), dates.end());
    return PutBackDays(context, copy, dates);
}

} // namespace zelvia
