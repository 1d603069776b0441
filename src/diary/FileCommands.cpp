// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Open, New, Save and Save As.
#include "diary/FileCommands.h"

#include "core/CMouse.h"
#include "core/Conversions.h"
#include "core/Files.h"
#include "core/Messages.h"
#include "core/RunTimeError.h"
#include "diary/CalendarModel.h"
#include "diary/Journal.h"
#include "diary/Module1.h"
#include "diary/RouteModel.h"
#include "diary/Workspace.h"

#include <optional>
#include <utility>

namespace zelvia
{

using namespace Module1;

namespace
{

/// Shows why a diary can't be kept under the path chosen, when its folder would have the name of a file.
bool RefusesFolder(const Text& diary, const Text& chosen)
{
    Text folder;
    // A path in another folder is refused after the dialog.
    if (CAPTIONPATH(diary, chosen) == 0) {
        TrapWith([&] { folder += FolderOfDiary(chosen); }, [](const ErroreRunTime&) {});
    }
    if (folder.empty() || CanBeFolder(folder)) {
        return false;
    }
    MsgBox(Messages::kFolderIsAFile, Mid(folder, InStrRev(folder, "\\") + 1));
    return true;
}

/// Points CartellaDiario somewhere else for as long as it lives.
class OtherFolder
{
public:
    explicit OtherFolder(Text folder) : kept_(std::exchange(CartellaDiario, std::move(folder))) {}
    ~OtherFolder() { CartellaDiario = kept_; }
    OtherFolder(const OtherFolder&) = delete;
    OtherFolder& operator=(const OtherFolder&) = delete;

private:
    Text kept_;
};

} // namespace

class FileCommands::Attempt
{
public:
    /// The choice has to be in the folder of `diary`.
    Attempt(DiaryPage& page, TextView title, bool opens, Text diary)
        : page_(page), title_(title), opens_(opens), diary_(std::move(diary))
    {
    }

    void Choose()
    {
        page_.ChooseFile(
            {title_, opens_, [diary = diary_](const Text& chosen) { return RefusesFolder(diary, chosen); }});
    }

    /// The name chosen. Raises error 32755 after the refusal's box when it is in another folder; the dialog then
    /// holds `diary` again.
    Text Checked()
    {
        Text& chosen = page_.ChosenName();
        if (CAPTIONPATH(diary_, chosen) != 0) {
            chosen = diary_;
            MsgBox(opens_ ? Messages::kOpensElsewhere : Messages::kSavesElsewhere);
            refused_ = true;
            throw ErroreRunTime(Errore::Annullato);
        }
        return chosen;
    }

    /// Runs the command. A refused choice has it run `again`; a cancelled dialog ends it silently; any other
    /// error is reported under `errors`. `undone` runs first in the two former cases.
    void Run(
        const std::function<void()>& command, TextView errors, const std::function<void()>& again,
        const std::function<void()>& undone = [] {})
    {
        TrapWith(command, [&](const ErroreRunTime& error) {
            if (error.Number() != Errore::Annullato) {
                ReportError(errors, error);
                return;
            }
            undone();
            if (refused_) {
                again();
            }
        });
    }

private:
    DiaryPage& page_;
    TextView title_;
    bool opens_;
    Text diary_;
    bool refused_ = false;
};

void FileCommands::ChiediSalvataggio(i16& cancelled)
{
    cancelled = 0;
    page_.AssegnaCampi();
    if (FileModificato != 1) {
        return;
    }
    switch (MsgBox(Messages::kSaveDiary)) {
    case MsgAnswer::Yes: mnuFileSave_Click(); break;
    case MsgAnswer::No:
        FileModificato = 0;
        Journal::Instance().Forget();
        break;
    default: cancelled = 1; break;
    }
}

void FileCommands::mnuFileSave_Click()
{
    CMouse pointer;
    Attempt attempt(page_, "Salva con nome", false, session.NomeFile);
    attempt.Run(
        [&] {
            page_.AssegnaCampi();
            if (page_.ChosenName().empty()) {
                attempt.Choose();
            }
            const Text chosen = attempt.Checked();
            pointer.SetPointer(MousePointer::Hourglass);
            SalvaDiario(chosen);
            FileModificato = 0;
            SaveCompanions();
        },
        "mnuFileSave - ERRORE : ", [this] { mnuFileSave_Click(); });
}

void FileCommands::mnuFileSaveAs_Click()
{
    CMouse pointer;
    Attempt attempt(page_, "Salva con nome", false, session.NomeFile);
    attempt.Run(
        [&] {
            page_.AssegnaCampi();
            attempt.Choose();
            const Text chosen = attempt.Checked();
            pointer.SetPointer(MousePointer::Hourglass);
            SalvaDiario(chosen);
            FileModificato = 0;
            const OtherFolder copy(CAPTIONDIR(chosen));
            if (FilesIn(CartellaDiario).empty()) {
                if (FindFolder(CartellaDiario).empty()) {
                    MakeFolder(CartellaDiario);
                }
                SalvaNomeTabella();
            }
            SaveCompanions();
        },
        "mnuFileSaveAs - ERRORE : ", [this] { mnuFileSaveAs_Click(); });
}

void FileCommands::mnuFileOpen_Click()
{
    Trap("mnuFileOpen - ERRORE : ", [this] {
        if (!page_.CalendarStays()) {
            OpenDiary();
        }
    });
}

void FileCommands::OpenDiary()
{
    std::optional<Session> kept;
    bool opened = false;
    Attempt attempt(page_, "Apri", true, session.NomeFile);
    attempt.Run(
        [&] {
            i16 cancelled;
            ChiediSalvataggio(cancelled);
            if (cancelled == 1) {
                return;
            }
            kept = session;
            session = kept->ForOtherDiary();
            attempt.Choose();
            session.NomeFile = attempt.Checked();
            opened = true;
            ReadOpenedDiary();
        },
        "mnuFileOpen - ERRORE : ", [this] { OpenDiary(); },
        [&] {
            if (kept) {
                session = *kept;
            }
        });
    // Also when reading it has failed half-way: what the other windows hold must not be saved there.
    if (opened) {
        page_.ShowOtherDiary();
        Journal::Instance().Opened();
    }
}

void FileCommands::ReadOpenedDiary()
{
    CaricaDiario(session.NomeFile);
    AzzeraPercorsi();
    AzzeraCalendario();
    SetToday();
    page_.Data();
    CartellaDiario = CAPTIONDIR(session.NomeFile);
    WriteFirstSet();
    page_.VisualizzaGiorno();
    page_.DatiAnno();
    NomeFleListe();
    page_.ShowDiaryName();
    page_.NessunaTabella();
    CaricaNomeTabella();
    page_.ShowTableName();
    if (!NomeTabellaAttiva.empty()) {
        page_.ShowActiveTable();
    }
    CaricaListe();
    CaricaPercorsi();
    AzzeraCalendario();
    LeggiCalendario();
    page_.AssegnaGara();
}

void FileCommands::mnuFileNuovo_Click()
{
    Trap("mnuFileNuovo - ERRORE : ", [this] {
        if (page_.CalendarStays()) {
            return;
        }
        i16 cancelled;
        ChiediSalvataggio(cancelled);
        if (cancelled == 1) {
            return;
        }
        const Session kept = session;
        session = kept.ForOtherDiary();
        NuovoFile(kept.NomeFile);
        if (NuovoAnnullato != 1) {
            ShowNewDiary();
            return;
        }
        session = kept;
        page_.ShowDiaryName();
        // A cancelled dialog leaves no name, and the next save asks for one. A name whose choice failed is
        // replaced by the old diary's, which the next save then overwrites.
        if (!page_.ChosenName().empty()) {
            page_.ChosenName() = session.NomeFile;
        }
    });
}

void FileCommands::ShowNewDiary()
{
    AzzeraPercorsi();
    AzzeraCalendario();
    SetToday();
    page_.Data();
    page_.NessunaTabella();
    page_.ShowTableName();
    InizializzaListe();
    page_.AzzeraCampi();
    page_.VisualizzaGiorno();
    page_.DatiAnno();
    page_.ShowOtherDiary();
    Journal::Instance().Opened();
}

void FileCommands::SalvaFileNuovo(const Text& path)
{
    Attempt attempt(page_, "Nuovo file", false, path);
    attempt.Run(
        [&] {
            page_.ChosenName().clear();
            attempt.Choose();
            session.NomeFile = attempt.Checked();
            AzzeraAnno();
            page_.SetBusy(true);
            FileModificato = 0;
            NomeFleListe();
            page_.ShowDiaryName();
            CartellaDiario = CAPTIONDIR(session.NomeFile);
            session.EsitoDir = FindFolder(CartellaDiario);
            page_.SetBusy(false);
        },
        "SalvaFileNuovo - ERRORE : ", [&] { SalvaFileNuovo(path); }, [this] { NuovoAnnullato = 1; });
}

} // namespace zelvia
