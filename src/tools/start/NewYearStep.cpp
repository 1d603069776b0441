// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Date.h"
#include "core/Tr.h"
#include "diary/FileCommands.h"
#include "diary/Module1.h"
#include "tools/copies/SafeFiles.h"
#include "tools/start/BeforeStart.h"
#include "tools/strumenti/Actions.h"
#include "tools/strumenti/Years.h"

#include <algorithm>
#include <sstream>

namespace zelvia
{
namespace
{

constexpr const char* kYearNote = "anno";

/// The year of the folder's newest diary, 0 when there is none. Raises FileFailure when `year` can't be made there.
int NewestYear(const std::filesystem::path& folder, int year)
{
    std::ostringstream ignored;
    Terminal terminal{ignored, ignored, {}};
    Options options;
    options.folder = folder;
    Context context(options, terminal);
    int newest = 0;
    for (const std::string& diary : context.Diaries()) {
        try {
            context.Load(diary);
            newest = std::max(newest, YearOf(Module1::Giorni));
        } catch (const FileFailure&) {
            // One that can't be read has no known year.
            continue;
        }
    }
    RefuseYear(context.Folder(), year);
    return newest;
}

void MakeYear(Start& start, const std::string& year)
{
    std::ostringstream out;
    std::ostringstream err;
    Terminal terminal{out, err, {}};
    if (RunTools({"--cartella", start.folder.string(), "anno", year, "--si"}, terminal) != kDone) {
        start.speaker.tell(Tools::Tr("Il diario del %1 non è pronto; si apre quello di prima.", year) + "\n" +
                           err.str());
    }
}

} // namespace

void OfferNewYear(Start& start)
{
    const CalendarDate today = Date();
    const int year = today.Year().value();
    const std::string name = std::to_string(year);
    if (today.Month().value() != 1 || today > kLastDate || start.memory.Of(kYearNote, start.folder) == name) {
        return;
    }
    const int newest = NewestYear(start.folder, year);
    if (newest == 0 || newest >= year) {
        return;
    }
    const auto answer =
        start.speaker.ask(Tools::Tr("È cominciato il %1, e il diario più recente è del %2.\n\nPreparare il diario del "
                                    "%1, con le liste, i percorsi e le tabelle di adesso e il calendario delle gare "
                                    "vuoto? Quello di prima resta com'è e si riapre con «Apri».",
                                    name, newest),
                          {Tools::Tr("Prepara"), Tools::Tr("Non ora")},
                          Tools::Tr("Per prepararlo: zelvia-strumenti --cartella «%1» anno %2", start.folder, name));
    start.memory.Note(kYearNote, start.folder, name);
    if (answer == 0U) {
        MakeYear(start, name);
    }
}

} // namespace zelvia
