// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The menus, the dispatcher of commands, help and the window about the program.
#include "core/Messages.h"
#include "core/RunTimeError.h"
#include "toolkit/Menu.h"
#include "toolkit/QtText.h"
#include "windows/page/FrmMain.h"

#include <QMenuBar>

#include <span>

namespace zelvia
{

namespace
{

/// A command of the menus and the key of its button, if it has one. One without a caption is a separator.
struct Command {
    const char* name;
    TextView caption = {};
    void (frmMain::*run)() = nullptr;
    TextView key = {};
    Qt::Key shortcut = {};
};

using M = frmMain;

constexpr Command kFile[] = {
    {"mnuFileOpen", "&Apri", &M::mnuFileOpen_Click, "Open"},
    {"mnuFileBar0"},
    {"mnuFileNuovo", "&Nuovo", &M::mnuFileNuovo_Click, "Nuovo"},
    {"mnuFileBar2"},
    {"mnuFileSave", "&Salva", &M::mnuFileSave_Click, "Save"},
    {"mnuFileSaveAs", "Sal&va con nome", &M::mnuFileSaveAs_Click},
    {"mnuFileBar3"},
    {"mnuFilePrint", "S&tampa", &M::mnuFilePrint_Click, "Print"},
    {"mnuFileBar4"},
    {"mnuFileExit", "&Esci", &M::mnuFileExit_Click},
};
constexpr Command kOptions[] = {
    {"mnuNote", "&Note", &M::mnuNote_Click, "Note"},
    {"mnuAzzeraGiorno", "Az&zera Giorno", &M::mnuAzzeraGiorno_Click, "AzzeraGiorno"},
    {"mnuListaPrecedente", "Ripristina &Lista Precedente", &M::mnuListaPrecedente_Click, "ListaPrecedente"},
    {"mnuListaIniziale", "Ripristina Lista &Iniziale", &M::mnuListaIniziale_Click, "ListaIniziale"},
};
constexpr Command kTables[] = {
    {"mnuAllenamenti", "&Allenamenti", &M::mnuAllenamenti_Click, "Allenamenti"},
    {"mnuGare", "&Gare", &M::mnuGare_Click, "Gare"},
};
// The statistics follow.
constexpr Command kStatistics[] = {
    {"mnuMedie", "&Medie", &M::mnuMedie_Click, "Medie"},
    {"mnuStatBar"},
};
constexpr Command kHelp[] = {
    {"mnuHelpContents", "&Sommario", &M::mnuHelpContents_Click, "Help", Qt::Key_F1},
    {"mnuHelpSearchForHelpOn", "&Cerca argomento", &M::mnuHelpSearchForHelpOn_Click},
    {"mnuHelpBar0"},
    {"mnuHelpAbout", "&Informazioni su", &M::mnuHelpAbout_Click},
};

constexpr struct {
    const char* name;
    TextView caption;
    std::span<const Command> commands;
} kMenus[] = {{"mnuFile", "&File", kFile},
              {"mnuOpzioni", "&Opzioni", kOptions},
              {"mnuTabelle", "&Tabelle", kTables},
              {"mnuStatistiche", "&Statistiche", kStatistics},
              {"mnuHelp", "&?", kHelp}};

std::vector<MenuEntry> Entries(frmMain& page, std::span<const Command> commands)
{
    std::vector<MenuEntry> entries;
    for (const Command& command : commands) {
        entries.push_back({command.name, command.caption, {}});
        if (command.run != nullptr) {
            entries.back().click = [&page, run = command.run] { (page.*run)(); };
        }
        if (command.shortcut != Qt::Key()) {
            entries.back().shortcut = QKeySequence(command.shortcut);
        }
    }
    return entries;
}

} // namespace

void frmMain::BuildMenus(QMenuBar& bar)
{
    for (const auto& menu : kMenus) {
        std::vector<MenuEntry> entries = Entries(*this, menu.commands);
        if (menu.commands.data() == kStatistics) {
            for (const Categoria category : kAllCategories) {
                const Statistic& statistic = StatisticOf(category);
                entries.push_back(
                    {"mnu" + Text(statistic.name), statistic.entry, [this, category] { ShowStatistic(category); }});
            }
        }
        AddMenu(bar, menu.name, menu.caption, entries);
    }
}

void frmMain::DispatchCommand(TextView key)
{
    for (const auto& menu : kMenus) {
        for (const Command& command : menu.commands) {
            if (!command.key.empty() && command.key == key) {
                (this->*command.run)();
            }
        }
    }
    for (const Categoria category : kAllCategories) {
        if (StatisticOf(category).title == key) {
            ShowStatistic(category);
        }
    }
}

void frmMain::mnuAllenamenti_Click()
{
    Trap("mnuAllenamenti - ERRORE : ", [this] { tables_.CurrentList().ShowInFront(); });
}

void frmMain::mnuGare_Click()
{
    Trap("mnuGare - ERRORE : ", [this] { calendario_.Load().ShowInFront(); });
}

void frmMain::ShowHelp(int command, const QString& topic)
{
    if (FileGuida.empty()) {
        MsgBox(Messages::kNoGuide);
        return;
    }
    TrapWith([&] { guida_.WinHelp(FileGuida, command, topic); },
             [](const ErroreRunTime& error) { MsgBox(Messages::kGuideNotRead, error.Description()); });
}

void frmMain::mnuHelpAbout_Click()
{
    Trap("mnuHelpAbout - ERRORE : ", [this] { info_.Load().ShowInFront(); });
}

} // namespace zelvia
