// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Date.h"
#include "core/Numbers.h"
#include "core/Text.h"
#include "diary/SelectionLists.h"

#include <functional>

namespace zelvia
{

/// What a file dialog is asked for.
struct FileChoice {
    TextView title;
    bool opens = false;
    /// True for a path that can't be chosen, after the box that says why.
    std::function<bool(const Text& path)> refuses;
};

/// What the file commands ask of the page that shows the diary.
class DiaryPage
{
public:
    virtual ~DiaryPage() = default;

    virtual void AssegnaCampi() = 0;
    virtual void AzzeraCampi() = 0;
    virtual void Data() = 0;
    virtual void VisualizzaGiorno() = 0;
    virtual void DatiAnno() = 0;
    virtual void NessunaTabella() = 0;
    virtual void AssegnaGara() = 0;
    virtual void ShowDiaryName() = 0;
    virtual void ShowTableName() = 0;
    /// Reads the active table and shows the row of the day.
    virtual void ShowActiveTable() = 0;
    virtual void ShowList(SelectionList list) = 0;
    /// Has the other windows that are open show the calendar and the tables of the diary that is open now.
    virtual void ShowOtherDiary() = 0;
    /// True when the calendar's window is open with changes and the user wants to stay with them.
    virtual bool CalendarStays() = 0;
    virtual void SetBusy(bool busy) = 0;
    /// The name in the file dialog, which survives from one dialog to the next.
    virtual Text& ChosenName() = 0;
    /// Lets the user choose; raises error 32755 on Cancel.
    virtual void ChooseFile(const FileChoice& choice) = 0;
};

/// The file commands and the start, on the state in Module1.
class FileCommands
{
public:
    explicit FileCommands(DiaryPage& page) : page_(page) {}

    int NuovoAnnullato = 0; ///< 1 once the dialog of a new file was cancelled; only the start clears it.

    /// Finds the diary that was open last and shows it, with all that belongs to it.
    void Start();

    void mnuFileOpen_Click();
    void mnuFileNuovo_Click();
    void mnuFileSave_Click();
    void mnuFileSaveAs_Click();
    /// Asks to save what changed; `cancelled` becomes 1 when the user cancels.
    void ChiediSalvataggio(i16& cancelled);
    void NuovoFile(const Text& path) { SalvaFileNuovo(path); }
    void SalvaFileNuovo(const Text& path);

    void CaricaNomeFile();
    /// The counterpart of CaricaNomeFile: writes NomeFile to the pointer file of the program's folder.
    void SalvaNomeFile();
    void NomeFleListe();

    void InizializzaListe();
    void SalvaLista(SelectionList list);
    void CaricaLista(SelectionList list);
    void CaricaListe();

private:
    /// One attempt at a command whose choice of a file may be refused.
    class Attempt;

    void SetToday();
    void SetUpFolder();
    /// Writes the full set into CartellaDiario when it holds no file.
    void WriteFirstSet();
    void LoadTable();
    void LoadCompanions();
    void SalvaListe();
    /// Writes the lists, the routes and the calendar.
    void SaveCompanions();
    void OpenDiary();
    /// Reads the diary named by NomeFile with its companions and shows it.
    void ReadOpenedDiary();
    void ShowNewDiary();

    DiaryPage& page_;
};

/// The range of the dates that the page shows.
inline constexpr CalendarDate kFirstDate(2001, 1, 1);
inline constexpr CalendarDate kLastDate(2099, 12, 31);

} // namespace zelvia
