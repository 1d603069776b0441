// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/strumenti/DiaryShelf.h"

#include "core/BoxTexts.h"
#include "core/Files.h"
#include "core/Tr.h"
#include "diary/CalendarModel.h"
#include "diary/Module1.h"
#include "diary/RouteModel.h"
#include "tools/copies/SafeFiles.h"
#include "tools/strumenti/Years.h"

#include <algorithm>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;
using namespace Module1;

constexpr int kDays = 366;

/// Routes and races of the diary whose folder is set; without their files there are none.
std::vector<RouteCandidate> ReadRoutes()
{
    const BoxTexts boxes;
    AzzeraPercorsi();
    CaricaPercorsi();
    std::vector<RouteCandidate> routes;
    for (int i = 1; i <= PerRoute<Text>::kLast; ++i) {
        if (!NomiPercorso[i].empty() && DistanzePercorso[i] > 0) {
            routes.push_back({NomiPercorso[i], DistanzePercorso[i].value(), {}});
        }
    }
    return routes;
}

std::set<CalendarDate> ReadRaces()
{
    const BoxTexts boxes;
    AzzeraCalendario();
    LeggiCalendario();
    std::set<CalendarDate> races;
    for (int row = 1; row <= RaceValues<i16>::kLast; ++row) {
        TrapWith(
            [&] {
                races.insert(CalendarDate(AnnoGara[row].value(), static_cast<unsigned>(MeseGara[row].value()),
                                          static_cast<unsigned>(GiornoGara[row].value())));
            },
            [](const ErroreRunTime&) {}); // A free row holds no date.
    }
    return races;
}

} // namespace

DiaryShelf::DiaryShelf(Context& context) : context_(context), present_(context.PresentDiary())
{
    for (const std::string& diary : context.Diaries()) {
        try {
            context.Load(diary);
        } catch (const FileFailure& failure) {
            if (diary == present_) {
                throw;
            }
            context.Err() << failure.what() << "\n";
            continue;
        }
        // Of several the chosen one, else the one that is named after the year.
        const int year = YearOf(Giorni);
        std::string& own = diaries_[year];
        if (own.empty() || diary == present_ || (own != present_ && diary == std::to_string(year))) {
            own = diary;
        }
    }
}

DiaryShelf::Shelved& DiaryShelf::Year(int year)
{
    const auto known = years_.find(year);
    if (known != years_.end()) {
        return known->second;
    }
    Shelved shelved;
    const auto diary = diaries_.find(year);
    if (diary != diaries_.end()) {
        shelved.diary = diary->second;
        Read(shelved);
    } else {
        MakeBlank(shelved, year);
    }
    return years_.emplace(year, std::move(shelved)).first->second;
}

void DiaryShelf::Read(Shelved& shelved) const
{
    context_.Load(shelved.diary);
    shelved.days.assign(Giorni.begin(), Giorni.end());
    shelved.folder = CartellaDiario;
    shelved.routes = ReadRoutes();
    shelved.races = ReadRaces();
}

void DiaryShelf::MakeBlank(Shelved& shelved, int year) const
{
    RefuseYear(context_.Folder(), year);
    shelved.diary = std::to_string(year);
    shelved.fresh = true;
    shelved.days.resize(kDays + 1);
    for (int i = 1; i <= kDays; ++i) {
        shelved.days[static_cast<std::size_t>(i)].NumGiorno = i;
        shelved.days[static_cast<std::size_t>(i)].Data = CalendarDate(year, 1, 1).PlusDays(i - 1);
    }
    // Its routes will be those of the present diary.
    CartellaDiario = SystemPath((context_.Folder() / DiaryFolder(present_)).string());
    shelved.folder = CartellaDiario;
    shelved.routes = ReadRoutes();
}

RecordGiorno& DiaryShelf::Day(CalendarDate date)
{
    return Year(date.Year().value()).days[static_cast<std::size_t>(date.DayOfYear().value())];
}

bool DiaryShelf::IsRaceDay(CalendarDate date)
{
    return Year(date.Year().value()).races.contains(date);
}

const std::vector<RouteCandidate>& DiaryShelf::Routes(int year)
{
    return Year(year).routes;
}

std::vector<Text> DiaryShelf::Entries(int year, SelectionList list)
{
    CartellaDiario = Year(year).folder;
    std::vector<Text> entries;
    TrapWith([&] { ReadEntries(ListPath(list), entries); }, [](const ErroreRunTime&) {}); // A list may be absent.
    return entries;
}

const RecordGiorno* DiaryShelf::Find(CalendarDate date)
{
    return diaries_.contains(date.Year().value()) ? &Day(date) : nullptr;
}

void DiaryShelf::Touch(CalendarDate date)
{
    Shelved& shelved = Year(date.Year().value());
    RecordGiorno& day = Day(date);
    day.NumGiorno = date.DayOfYear();
    day.Data = date;
    shelved.touched.insert(date);
}

DiaryShelf::Summary DiaryShelf::Changes() const
{
    Summary summary;
    for (const auto& [year, shelved] : years_) {
        if (!shelved.touched.empty()) {
            summary.diaries.push_back(shelved.diary);
            summary.days += static_cast<int>(shelved.touched.size());
            if (shelved.fresh) {
                summary.fresh.push_back(shelved.diary);
            }
        }
    }
    return summary;
}

/// The newest of the new diaries does, when there is no diary to open yet or none as new.
bool DiaryShelf::OpensAtStart(int year) const
{
    const auto newest = std::find_if(years_.rbegin(), years_.rend(),
                                     [](const auto& row) { return row.second.fresh && !row.second.touched.empty(); });
    return newest != years_.rend() && newest->first == year && (diaries_.empty() || diaries_.rbegin()->first < year);
}

void DiaryShelf::Prepare(FileSet& files) const
{
    const BoxTexts boxes;
    for (const auto& [year, shelved] : years_) {
        if (shelved.touched.empty()) {
            continue;
        }
        if (shelved.fresh) {
            PrepareYear(files, context_.Folder(), year, present_, OpensAtStart(year));
        }
        const fs::path file = DiaryFile(shelved.diary);
        const fs::path place = files.PlaceOf(file);
        std::copy(shelved.days.begin(), shelved.days.end(), Giorni.begin());
        SalvaDiario(SystemPath(place.string()));
        if (!boxes.All().empty()) {
            throw FileFailure(
                Tools::Tr("il diario «%1» non si può scrivere («%2»)", shelved.diary, ToUtf8(boxes.All().front())));
        }
        if (!shelved.fresh) {
            fs::permissions(place, fs::status(context_.Folder() / file).permissions());
        }
    }
}

} // namespace zelvia
