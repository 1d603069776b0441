// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/start/BeforeStart.h"

#include "core/Tr.h"
#include "tools/copies/CopyStore.h"
#include "tools/copies/SafeFiles.h"
#include "tools/copies/WorkspaceData.h"
#include "tools/start/RunningProgram.h"

#include <chrono>
#include <exception>
#include <thread>

namespace zelvia
{
namespace
{

/// Waits for tools that work on the diaries. True when the folder is free.
bool AwaitTools(Start& start)
{
    constexpr std::chrono::milliseconds pause(20);
    for (std::chrono::milliseconds patience(5'000); IsInUse(start.folder); patience -= pause) {
        if (ProgramAnswers(start.folder)) {
            return false;
        }
        if (patience <= pause) {
            start.speaker.tell(Tools::Tr("Gli strumenti di Zelvia stanno lavorando ai diari di «%1»: il diario si apre "
                                         "quando hanno finito. Riprovare fra poco.",
                                         start.folder));
            return false;
        }
        std::this_thread::sleep_for(pause);
    }
    return true;
}

} // namespace

void KeepCopy(Start& start)
{
    try {
        const std::filesystem::path root = CopyFolder();
        if (root.empty()) {
            throw FileFailure(Tools::Tr("la cartella personale non è nota (HOME)"));
        }
        CopyStore(root).Take(start.folder, std::chrono::system_clock::now());
    } catch (const std::exception& error) {
        start.speaker.tell(Tools::Tr("La copia di sicurezza del diario non è riuscita; il diario si apre lo stesso.") +
                           "\n" + error.what());
    }
}

bool PrepareStart(Start& start)
{
    if (!AwaitTools(start)) {
        return false;
    }
    constexpr void (*steps[])(Start&) = {KeepCopy, CheckPresentDiary, TellConflicts, OfferUnsaved, OfferNewYear};
    for (const auto& step : steps) {
        try {
            step(start);
        } catch (const std::exception&) {
            // What can't be looked at, the program itself will say.
            continue;
        }
    }
    return true;
}

} // namespace zelvia
