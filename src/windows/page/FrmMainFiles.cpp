// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Save and Save As, the question whether to save, and what all file dialogs have in common.
#include "core/Conversions.h"
#include "core/Files.h"
#include "core/RunTimeError.h"
#include "diary/CalendarModel.h"
#include "diary/DiaryFile.h"
#include "diary/RouteModel.h"
#include "diary/Workspace.h"
#include "windows/page/FrmMain.h"

#include <utility>

namespace zelvia
{

using namespace Module1;

namespace
{

constexpr TextView kOpenFilter = "File Zelvia (*. zlv)|*.zlv|";
constexpr TextView kSaveFilter = "File Zelvia (*.zlv)|*.zlv|";
constexpr int kOpenFlags = DialogFlags::FileMustExist | DialogFlags::NoChangeDir | DialogFlags::HideReadOnly;
constexpr int kSaveFlags = DialogFlags::OverwritePrompt | DialogFlags::NoChangeDir | DialogFlags::HideReadOnly;
constexpr TextView kRefusedSave = " IL FILE NON PUO' ESSERE SALVATO IN UN ALTRA CARTELLA   ";
constexpr TextView kRefusedOpen = " NON SI POSSONO APRIRE FILE DI ALTRE CARTELLE   ";

/// Why a diary can't be kept under the path chosen, or nothing: its folder has to be one.
Text RefusalOfFolder(const Text& diario, const Text& scelto)
{
    Text cartella;
    // What lies in another folder is refused behind the dialog.
    if (CAPTIONPATH(diario, scelto) == 0) {
        TrapWith([&] { cartella += FolderOfDiary(scelto); }, [](const ErroreRunTime&) {});
    }
    if (cartella.empty() || CanBeFolder(cartella)) {
        return {};
    }
    return " LA CARTELLA DEL DIARIO AVREBBE IL NOME DI UN FILE CHE C'E' GIA' :  " +
           Mid(cartella, InStrRev(cartella, "\\") + 1) + "   ";
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

void frmMain::PrepareDialog(TextView title, FileDialogMode mode, const Text& diario)
{
    const bool opens = mode == FileDialogMode::Open;
    dlgCommonDialog.CancelError = true;
    dlgCommonDialog.Flags = opens ? kOpenFlags : kSaveFlags;
    dlgCommonDialog.InitDir = ProgramFolder() + "\\" + Text(kDiaryFolder);
    dlgCommonDialog.Filter = opens ? kOpenFilter : kSaveFilter;
    dlgCommonDialog.DialogTitle = title;
    dlgCommonDialog.Refusal = [diario](const Text& scelto) { return RefusalOfFolder(diario, scelto); };
}

void frmMain::ApplyFolderRule(FileDialogMode mode, const Text& diario, bool& riprova)
{
    if (CAPTIONPATH(diario, dlgCommonDialog.FileName) == 0) {
        return;
    }
    dlgCommonDialog.FileName = diario;
    MsgBox(mode == FileDialogMode::Open ? kRefusedOpen : kRefusedSave, MsgButtons::OK, MsgIcon::Critical);
    riprova = true;
    throw ErroreRunTime(Errore::Annullato);
}

void frmMain::SaveCompanions()
{
    SalvaListe();
    SalvaPercorsi();
    ScriviCalendario();
}

void frmMain::ChiediSalvataggio(i16& annullato)
{
    annullato = 0;
    AssegnaCampi();
    if (FileModificato != 1) {
        return;
    }
    switch (MsgBox("IL FILE NON E' STATO SALVATO, SALVARE IL FILE ?             ", MsgButtons::YesNoCancel,
                   MsgIcon::Information)) {
    case MsgAnswer::Yes: mnuFileSave_Click(); break;
    case MsgAnswer::No: FileModificato = 0; break;
    default: annullato = 1; break;
    }
}

void frmMain::mnuFileSave_Click()
{
    CMouse puntatore;
    bool riprova = false;
    TrapWith(
        [&] {
            AssegnaCampi();
            PrepareDialog("Salva con nome", FileDialogMode::Save, NomeFile);
            if (dlgCommonDialog.FileName.empty()) {
                dlgCommonDialog.ShowSave();
            }
            ApplyFolderRule(FileDialogMode::Save, NomeFile, riprova);
            const Text scelto = dlgCommonDialog.FileName;
            puntatore.SetPointer(MousePointer::Hourglass);
            SalvaDiario(scelto);
            FileModificato = 0;
            SaveCompanions();
        },
        [&](const ErroreRunTime& error) {
            if (error.Number() != Errore::Annullato) {
                ReportError("mnuFileSave - ERRORE : ", error);
            } else if (riprova) {
                mnuFileSave_Click();
            }
        });
}

void frmMain::mnuFileSaveAs_Click()
{
    CMouse puntatore;
    bool riprova = false;
    TrapWith(
        [&] {
            AssegnaCampi();
            PrepareDialog("Salva con nome", FileDialogMode::Save, NomeFile);
            dlgCommonDialog.ShowSave();
            ApplyFolderRule(FileDialogMode::Save, NomeFile, riprova);
            const Text scelto = dlgCommonDialog.FileName;
            puntatore.SetPointer(MousePointer::Hourglass);
            SalvaDiario(scelto);
            FileModificato = 0;
            const OtherFolder copia(CAPTIONDIR(scelto));
            if (FilesIn(CartellaDiario).empty()) {
                if (FindFolder(CartellaDiario).empty()) {
                    MakeFolder(CartellaDiario);
                }
                SalvaNomeTabella();
            }
            SaveCompanions();
        },
        [&](const ErroreRunTime& error) {
            if (error.Number() != Errore::Annullato) {
                ReportError("mnuFileSaveAs - ERRORE : ", error);
            } else if (riprova) {
                mnuFileSaveAs_Click();
            }
        });
}

} // namespace zelvia
