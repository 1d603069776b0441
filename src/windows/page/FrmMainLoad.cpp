// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The start and the stop of the program, and what the file commands ask of the page.
#include "core/Files.h"
#include "core/RunTimeError.h"
#include "diary/ProgramFiles.h"
#include "diary/Workspace.h"
#include "toolkit/Application.h"
#include "toolkit/Events.h"
#include "toolkit/KeptSize.h"
#include "toolkit/QtText.h"
#include "toolkit/ScrollPane.h"
#include "toolkit/WindowPlaces.h"
#include "windows/page/FrmMain.h"
#include "windows/page/PageJournal.h"
#include "windows/page/PaperSheet.h"

#include <QMenuBar>
#include <QVBoxLayout>

namespace zelvia
{

namespace
{

constexpr TextView kOpenFilter = "File Zelvia (*. zlv)|*.zlv|";
constexpr TextView kSaveFilter = "File Zelvia (*.zlv)|*.zlv|";
constexpr int kOpenFlags = DialogFlags::FileMustExist | DialogFlags::NoChangeDir | DialogFlags::HideReadOnly;
constexpr int kSaveFlags = DialogFlags::OverwritePrompt | DialogFlags::NoChangeDir | DialogFlags::HideReadOnly;
constexpr int kTickMilliseconds = 500;

/// False when nothing of it is to be seen.
bool Raise(QWidget* window)
{
    if (window == nullptr || !window->isVisible()) {
        return false;
    }
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->raise();
    return true;
}

/// A list that is open when the page grows has to show whole entries again.
void FitOpenList(frmMain& page)
{
    for (const SelectionList list : kAllLists) {
        if (page.ListField(list).lst->Visible()) {
            page.Field(list).FitList();
        }
    }
}

} // namespace

frmMain::frmMain()
    : Form(QStringLiteral("frmMain")), tmrFocus(new Timer(this, QStringLiteral("tmrFocus"), kTickMilliseconds)),
      mnuCancelladallaLista(new ListMenu(*this)), tables_(*this)
{
    setWindowTitle(QStringLiteral("Zelvia"));
    auto* bar = new QMenuBar(this);
    bar->setAccessibleName(QStringLiteral("Menu"));
    auto* page = new PaperSheet(this);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addWidget(new ScrollPane(this, page), 1);
    BuildPage(*this, page);
    BuildMenus(*bar);
    ConnectFields();
    page->Grown = [this] { FitOpenList(*this); };
    WindowPlaces::Instance().SetMain(this);
    // In a bar that is too narrow when it is asked, a menu would be made of what has no room.
    bar->resize(page->sizeHint());
    new KeptSize(*this, page->sizeHint() + QSize(0, bar->sizeHint().height()));
    Application::Instance().HelpKey = [this](const QString& window) { ShowHelp(HelpCommand::Topic, window); };
    Application::Instance().RoutineEnded = [this, journal = PageJournal(*this)]() mutable {
        title_.Update();
        journal.Update();
    };
    Application::Instance().ShowAgain = [this] {
        QWidget* front = Raise(this) ? this : nullptr;
        // A box over the page, or over another window, stays in front. Wayland's token is good for one window.
        if (QWidget* box = QApplication::activeModalWidget(); Raise(box)) {
            front = box;
        }
        if (front != nullptr) {
            front->activateWindow();
        }
    };
}

frmMain::~frmMain()
{
    Application::Instance().RoutineEnded = {};
    Application::Instance().HelpKey = {};
    Application::Instance().ShowAgain = {};
}

bool frmMain::FormLoad()
{
    if (!Application::Instance().TakeInstanceLock()) {
        return false;
    }
    const Routine routine;
    Trap("Load - ERRORE : ", [this] {
        FileGuida = InstalledFile("Guida.hlp");
        LunghezzaNota = 0;
        files_.Start();
    });
    return true;
}

void frmMain::OnUnload()
{
    tables_.UnloadEditor();
    tables_.UnloadList();
    route_->UnloadDescription();
    calendario_.Unload();
    statistiche_.Unload();
    grafici_.Unload();
    ricerche_.Unload();
    info_.Unload();
    guida_.Close();
}

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

void frmMain::ShowList(SelectionList list)
{
    ListBox& lst = *ListField(list).lst;
    lst.Clear();
    lst.AddItems(std::vector<TextView>(EntriesOf(list).begin(), EntriesOf(list).end()));
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
