// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Date.h"
#include "diary/Module1.h"
#include "support/BoxScript.h"
#include "support/ProgramFolderCopy.h"
#include "toolkit/Application.h"
#include "toolkit/QtText.h"
#include "windows/page/FrmMain.h"

#include <QMenu>
#include <QPointer>
#include <QTest>

#include <memory>

namespace zelvia::test
{

/// The main window of a test on a program folder of its own, worked by real keys and clicks. The folder is there from
/// the first, the window from Start() on.
class DayPage
{
public:
    explicit DayPage(CalendarDate today = CalendarDate(2026, 5, 20));
    ~DayPage();
    DayPage(const DayPage&) = delete;
    DayPage& operator=(const DayPage&) = delete;

    const ProgramFolderCopy folder;
    BoxScript script;

    /// Loads the window and shows it.
    void Start();
    frmMain& Page() const { return *page_; }
    frmMain* operator->() const { return page_; }
    bool Gone() const { return page_.isNull(); }

    /// A click in the middle of a widget.
    void Click(QWidget& widget) const;
    /// A click on an arrow of a spin control; one that is hidden is shown first.
    void Up(UpDown& spin) const;
    void Down(UpDown& spin) const;
    /// Opens a menu of the bar with the mouse and presses the key of an entry.
    void Menu(const char* menu, Qt::Key entry) const;
    /// Opens a menu of the bar and takes an entry of it, both with the mouse: some entries share their key.
    void TakeEntry(const char* menu, const char* entry) const;

    /// What a label, a menu entry or a window of that name shows.
    QString Caption(const char* name) const;
    /// The record of the day shown.
    static RecordGiorno& Day() { return Module1::Giorni[Module1::GiornoCorrente]; }
    /// Moves to a slot by clicks on the arrows of the day.
    void GoTo(int slot) const;

    /// Gives a selection list other entries, or one more.
    void SetEntries(SelectionList lista, std::vector<Text> entries) const;
    void AddEntry(SelectionList lista, const Text& entry) const;

    // Dialogs as the commands show them; `choose` none cancels.
    ExpectedDialog OpenDialog(const QString& preset, const QString& choose = {}) const;
    ExpectedDialog SaveDialog(const QString& preset, const QString& choose = {}) const;
    ExpectedDialog NewDialog(const QString& choose = {}) const;
    /// Qt's own question before a file is replaced.
    ExpectedBox OverwriteQuestion(const QString& title, const QString& name, QMessageBox::StandardButton press) const;

private:
    QMenu* OpenMenu(const char* menu) const;
    void ClickAt(QWidget& widget, QPoint place) const;

    QPointer<frmMain> page_;
};

/// Error numbers with their descriptions, as in a report.
inline const QString kNotFound = QStringLiteral("53 File non trovato");
inline const QString kDenied = QStringLiteral("75 Errore di accesso al file o alla cartella");
inline const QString kNoFolder = QStringLiteral("76 Cartella non trovata");

/// The bare report of a shared routine.
ExpectedBox BareReport(const QString& error);
/// The reports of the seven lists.
void ExpectListsNotSaved(BoxScript& script, const QString& error);
void ExpectListsNotLoaded(BoxScript& script, const QString& error);
/// The route reader's own form.
ExpectedBox RoutesNotLoaded(const QString& description);
/// The reports of a start that knows no folder of the diary: nothing can be written, and nothing read.
void ExpectNoFolder(BoxScript& script);

} // namespace zelvia::test
