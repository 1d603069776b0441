// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the file commands ask of the page.
#include "core/Files.h"
#include "diary/Workspace.h"
#include "windows/page/FrmMain.h"

namespace zelvia
{

using namespace Module1;

namespace
{

constexpr TextView kOpenFilter = "File Zelvia (*. zlv)|*.zlv|";
constexpr TextView kSaveFilter = "File Zelvia (*.zlv)|*.zlv|";
constexpr int kOpenFlags = DialogFlags::FileMustExist | DialogFlags::NoChangeDir | DialogFlags::HideReadOnly;
constexpr int kSaveFlags = DialogFlags::OverwritePrompt | DialogFlags::NoChangeDir | DialogFlags::HideReadOnly;

} // namespace

void frmMain::ChooseFile(const FileChoice& choice)
{
    dlgCommonDialog.CancelError = true;
    dlgCommonDialog.Flags = choice.opens ? kOpenFlags : kSaveFlags;
    dlgCommonDialog.InitDir = ProgramFolder() + "\\" + Text(kDiaryFolder);
    dlgCommonDialog.Filter = choice.opens ? kOpenFilter : kSaveFilter;
    dlgCommonDialog.DialogTitle = choice.title;
    dlgCommonDialog.Refuses = choice.refuses;
    choice.opens ? dlgCommonDialog.ShowOpen() : dlgCommonDialog.ShowSave();
}

void frmMain::ShowList(SelectionList lista)
{
    ListBox& lst = *Campo(lista).lst;
    lst.Clear();
    lst.AddItems(std::vector<TextView>(EntriesOf(lista).begin(), EntriesOf(lista).end()));
}

bool frmMain::CalendarStays()
{
    return calendario_.Loaded() && calendario_.Load().QueryUnload();
}

void frmMain::ShowOtherDiary()
{
    if (calendario_.Loaded()) {
        calendario_.Load().ShowOtherDiary();
    }
    tables_.ShowOtherDiary();
}

void frmMain::SetBusy(bool busy)
{
    busy ? setCursor(Qt::WaitCursor) : unsetCursor();
}

} // namespace zelvia
