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
    void (*run)(frmMain& page) = nullptr;
    TextView key = {};
    QKeyCombination shortcut = {};
};

using M = frmMain;

/// Runs a routine of the page, or of what the page is made of.
template <auto Routine>
void Call(frmMain& page)
{
    (page.*Routine)();
}

constexpr Command kFile[] = {
    {"mnuFileOpen", "&Apri", Call<&M::mnuFileOpen_Click>, "Open", Qt::CTRL | Qt::Key_O},
    {"mnuFileBar0"},
    {"mnuFileNuovo", "&Nuovo", Call<&M::mnuFileNuovo_Click>, "Nuovo", Qt::CTRL | Qt::Key_N},
    {"mnuFileBar2"},
    {"mnuFileSave", "&Salva", Call<&M::mnuFileSave_Click>, "Save", Qt::CTRL | Qt::Key_S},
    {"mnuFileSaveAs", "Sal&va con nome", Call<&M::mnuFileSaveAs_Click>, {}, Qt::CTRL | Qt::SHIFT | Qt::Key_S},
    {"mnuFileBar3"},
    {"mnuFilePrint", "S&tampa", Call<&M::mnuFilePrint_Click>, "Print", Qt::CTRL | Qt::Key_P},
    {"mnuFileBar4"},
    {"mnuFileExit", "&Esci", Call<&M::mnuFileExit_Click>, {}, Qt::CTRL | Qt::Key_Q},
};
constexpr Command kOptions[] = {
    {"mnuNote", "&Note", Call<&M::mnuNote_Click>, "Note"},
    {"mnuAzzeraGiorno", "Az&zera Giorno", Call<&M::mnuAzzeraGiorno_Click>, "AzzeraGiorno"},
    {"mnuListaPrecedente", "Ripristina &Lista Precedente", Call<&M::mnuListaPrecedente_Click>, "ListaPrecedente"},
    {"mnuListaIniziale", "Ripristina Lista &Iniziale", Call<&M::mnuListaIniziale_Click>, "ListaIniziale"},
};
constexpr Command kTables[] = {
    {"mnuAllenamenti", "&Allenamenti", Call<&M::mnuAllenamenti_Click>, "Allenamenti"},
    {"mnuGare", "&Gare", Call<&M::mnuGare_Click>, "Gare"},
};
// The statistics follow.
constexpr Command kStatistics[] = {
    {"mnuMedie", "&Medie", Call<&M::mnuMedie_Click>, "Medie"},
    {"mnuStatBar"},
};
constexpr Command kHelp[] = {
    {"mnuHelpContents", "&Sommario", Call<&M::mnuHelpContents_Click>, "Help", Qt::Key_F1},
    {"mnuHelpSearchForHelpOn", "&Cerca argomento", Call<&M::mnuHelpSearchForHelpOn_Click>},
    {"mnuHelpBar0"},
    {"mnuHelpAbout", "&Informazioni su", Call<&M::mnuHelpAbout_Click>},
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
            entries.back().click = [&page, run = command.run] { run(page); };
        }
        if (command.shortcut != QKeyCombination()) {
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
            for (const zelvia::Categoria category : kAllCategories) {
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
                command.run(*this);
            }
        }
    }
    for (const zelvia::Categoria category : kAllCategories) {
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
