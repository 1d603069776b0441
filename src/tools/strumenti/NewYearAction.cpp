// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/BoxTexts.h"
#include "core/Conversions.h"
#include "core/Date.h"
#include "core/Files.h"
#include "core/RunTimeError.h"
#include "core/Tr.h"
#include "diary/CalendarModel.h"
#include "diary/FileCommands.h"
#include "diary/Module1.h"
#include "diary/RouteModel.h"
#include "diary/SelectionLists.h"
#include "diary/Workspace.h"
#include "tools/copies/SafeFiles.h"
#include "tools/strumenti/Actions.h"
#include "tools/strumenti/Years.h"

#include <algorithm>
#include <charconv>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;
using namespace Module1;

constexpr const char* kRoutes = "ListePercorso";
constexpr const char* kCalendar = "CalendarioGare";

int YearIn(const std::string& word)
{
    int year = 0;
    const char* const end = word.data() + word.size();
    const int first = kFirstDate.Year().value();
    const int last = kLastDate.Year().value();
    if (std::from_chars(word.data(), end, year).ptr != end || year < first || year > last) {
        throw Misuse{Tools::Tr("«%1» non è un anno dal %2 al %3.", word, first, last)};
    }
    return year;
}

/// The path of a diary as the program knows it.
Text PathOf(const std::string& diary)
{
    return ProgramFolder() + "\\" + Text(kDiaryFolder) + "\\" + diary + ".zlv";
}

/// Nothing that a diary of that name would have may be there.
void RefuseExisting(const fs::path& folder, const std::string& diary)
{
    const fs::path own = folder / DiaryFolder(diary);
    for (const fs::path& place : {NativePath(PathOf(diary)), own}) {
        const fs::file_status status = fs::symlink_status(place);
        if (fs::exists(status) && !(place == own && fs::is_directory(status) && fs::is_empty(place))) {
            throw FileFailure(Tools::Tr("il diario %1 c'è già («%2») e resta com'è", diary, place));
        }
    }
    const Text found = TrapValueWith(
        Text(), [&] { return FolderOfDiary(PathOf(diary)); }, [](const ErroreRunTime&) {});
    if (found != SystemPath(own.string())) {
        throw FileFailure(Tools::Tr("il programma non trova i diari di «%1»: nel percorso c'è un punto o la parola "
                                    "«ZelviaFile». Spostare la cartella",
                                    folder));
    }
}

/// Keeps the system date at the first day of a year.
class FirstDay
{
public:
    explicit FirstDay(int year)
    {
        SetClock([year] { return CalendarDate(year, 1, 1); });
    }
    FirstDay(const FirstDay&) = delete;
    FirstDay& operator=(const FirstDay&) = delete;
    ~FirstDay() { SetClock({}); }
};

/// What the new diary takes from the present one, and writes of its own.
class NewYear
{
public:
    NewYear(const fs::path& folder, int year, const std::string& present, bool races)
        : folder_(folder), year_(year), diary_(std::to_string(year)), present_(present)
    {
        for (const SelectionList list : kFiledLists) {
            TakeOver(Text(ListName(list)) + ".lsx");
        }
        TakeOver(kRoutes);
        if (races) {
            TakeOver(kCalendar);
        }
        for (const Text& file : FilesIn(PresentFolder())) {
            if (SameText(fs::path(file).extension().string(), ".tab")) {
                taken_.push_back(file);
            }
        }
    }

    void Show(std::ostream& out) const
    {
        out << Tools::Tr("Diario nuovo: %1, con i giorni vuoti del %2 e la cartella «%1».", diary_, year_) << "\n";
        if (!taken_.empty()) {
            out << Tools::Tr("Dal diario «%1»:", present_) << "\n";
        }
        for (const Text& file : taken_) {
            out << "  " << ToUtf8(file) << "\n";
        }
        if (!Takes(kCalendar)) {
            out << Tools::Tr("Il calendario delle gare è vuoto.") << "\n";
        }
        out << Tools::Tr("All'avvio si aprirà il diario %1.", diary_) << "\n";
    }

    void Prepare(FileSet& files, bool opensAtStart) const
    {
        const BoxTexts boxes;
        try {
            Write(files);
            if (opensAtStart) {
                WritePointer(PlaceOf(files, kStartPointer), PathOf(diary_));
            }
        } catch (const ErroreRunTime& error) {
            RaiseUnwritten(error.Description());
        }
        if (!boxes.All().empty()) {
            RaiseUnwritten(boxes.All().front());
        }
    }

private:
    Text PresentFolder() const { return SystemPath((folder_ / DiaryFolder(present_)).string()); }
    fs::path FileOfPresent(const Text& file) const { return NativePath(PresentFolder() + "\\" + file); }
    bool Takes(const Text& file) const { return std::find(taken_.begin(), taken_.end(), file) != taken_.end(); }

    void TakeOver(const Text& file)
    {
        if (fs::exists(fs::symlink_status(FileOfPresent(file)))) {
            taken_.push_back(file);
        }
    }

    static Text PlaceOf(FileSet& files, const fs::path& file) { return SystemPath(files.PlaceOf(file).string()); }

    [[noreturn]] void RaiseUnwritten(const Text& why) const
    {
        throw FileFailure(Tools::Tr("il diario %1 non si può scrivere («%2»)", diary_, ToUtf8(why)));
    }

    void Write(FileSet& files) const
    {
        WriteBlank(files);
        for (const Text& file : taken_) {
            files.Copy(FileOfPresent(file).lexically_relative(folder_), fs::path(diary_) / ToUtf8(file));
        }
    }

    /// The diary and of its folder what is not taken over.
    void WriteBlank(FileSet& files) const
    {
        AzzeraStato();
        const FirstDay clock(year_);
        AzzeraAnno();
        SalvaDiario(PlaceOf(files, DiaryFile(diary_)));
        CartellaDiario = SystemPath(files.PlaceOf(fs::path(diary_) / "nometab").parent_path().string());
        SalvaNomeTabella();
        for (const SelectionList list : kFiledLists) {
            const auto entries = FirstEntries(list);
            if (!Takes(Text(ListName(list)) + ".lsx")) {
                WriteEntries(ListPath(list), {entries.begin(), entries.end()});
            }
        }
        if (!Takes(kRoutes)) {
            AzzeraPercorsi();
            SalvaPercorsi();
        }
        if (!Takes(kCalendar)) {
            AzzeraCalendario();
            ScriviCalendario();
        }
    }

    fs::path folder_;
    int year_;
    std::string diary_;
    std::string present_;
    std::vector<Text> taken_;
};

} // namespace

void RefuseYear(const fs::path& folder, int year)
{
    RefuseExisting(folder, std::to_string(year));
}

void PrepareYear(FileSet& files, const fs::path& folder, int year, const std::string& present, bool opensAtStart)
{
    NewYear(folder, year, present, false).Prepare(files, opensAtStart);
}

int RunNewYear(Context& context, Arguments& arguments)
{
    const bool races = arguments.TakeFlag("--gare");
    const std::string diary = arguments.TakeWords(1, 1).front();
    const int year = YearIn(diary);
    const std::string label = "anno " + diary;
    const fs::path folder = context.Folder();
    if (context.Completed() == label) {
        return kDone;
    }
    RefuseExisting(folder, diary);
    const std::string present = context.PresentDiary();
    const NewYear newYear(folder, year, present, races);
    newYear.Show(context.Told());
    if (const auto status = context.AskFirst(Tools::Tr("Preparare il diario?"))) {
        return *status;
    }
    FileSet files(folder, label);
    newYear.Prepare(files, true);
    const int status = context.Apply(files);
    context.Told() << Tools::Tr("Il diario %1 è pronto: Zelvia lo apre al prossimo avvio.", diary) << "\n";
    return status;
}

} // namespace zelvia
