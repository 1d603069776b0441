// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/plan/FrmTabAllenamenti.h"

#include "core/Conversions.h"
#include "core/Files.h"
#include "core/Messages.h"
#include "core/RunTimeError.h"
#include "diary/Module1.h"
#include "diary/Workspace.h"
#include "toolkit/Fonts.h"
#include "toolkit/Keys.h"
#include "toolkit/QtText.h"
#include "windows/plan/TableWindows.h"

#include <algorithm>

namespace zelvia
{

using namespace Module1;

namespace
{

Text PathOf(const Text& entry)
{
    return CartellaDiario + "\\" + entry;
}

constexpr QRect ButtonPlace(int top)
{
    return {328, top, 176, 36};
}

} // namespace

frmTabAllenamenti::frmTabAllenamenti(TableWindows& windows)
    : Form(QStringLiteral("frmTabAllenamenti")), flbListaTabelle(new ListBox(this, QStringLiteral("flbListaTabelle"))),
      cmdOK(MakeButton(this, "cmdOK", "          O K         ", ButtonPlace(20), [this] { cmdOK_Click(); })),
      cmdNuovaTab(MakeButton(this, "cmdNuovaTab", "Nuova Tabella", ButtonPlace(72), [this] { cmdNuovaTab_Click(); })),
      cmdCancellaTab(
          MakeButton(this, "cmdCancellaTab", "Cancella Tabella", ButtonPlace(124), [this] { cmdCancellaTab_Click(); })),
      cmdEsci(MakeButton(this, "cmdEsci", "Esci", ButtonPlace(244), [this] { Unload(); })), windows_(windows)
{
    setWindowTitle(QStringLiteral("Lista Tabelle Allenamenti"));
    LayOnPaper({524, 300});
    flbListaTabelle->setGeometry(20, 20, 288, 260);
    flbListaTabelle->setFont(PenFont(20));
    flbListaTabelle->setAccessibleName(QStringLiteral("Tabelle di allenamento"));
    flbListaTabelle->DblClick = cmdOK->Click;
    flbListaTabelle->KeyPress = [this](int keyAscii) {
        if (keyAscii == kEnter) {
            cmdOK_Click();
        }
    };
    Reload();
}

void frmTabAllenamenti::Reload()
{
    Trap("Load - ERRORE : ", [this] {
        const Text before = Selected();
        RefreshList();
        Select(before);
        SelectActive();
    });
}

void frmTabAllenamenti::ShowOtherDiary()
{
    flbListaTabelle->Clear();
    if (!FindFolder(CartellaDiario).empty()) {
        Reload();
    }
}

void frmTabAllenamenti::RefreshList()
{
    flbListaTabelle->Clear();
    constexpr TextView extension = ".tab";
    for (const Text& file : ReadFolder(CartellaDiario)) {
        if (Len(file) > Len(extension) && SameText(Right(file, Len(extension)), extension)) {
            flbListaTabelle->AddItem(file);
        }
    }
}

void frmTabAllenamenti::SelectActive()
{
    for (int i = 0; i < flbListaTabelle->ListCount(); ++i) {
        if (SameText(PathOf(flbListaTabelle->List(i)), NomeTabellaAttiva)) {
            flbListaTabelle->SetListIndex(i);
            return;
        }
    }
}

void frmTabAllenamenti::Select(const Text& entry)
{
    const std::vector<Text> entries = flbListaTabelle->Items();
    const auto found = std::find(entries.begin(), entries.end(), entry);
    flbListaTabelle->SetListIndex(found == entries.end() ? -1 : static_cast<int>(found - entries.begin()));
}

Text frmTabAllenamenti::Selected() const
{
    return flbListaTabelle->List(flbListaTabelle->ListIndex());
}

void frmTabAllenamenti::ShowEditor()
{
    windows_.Editor().ShowInFront();
}

void frmTabAllenamenti::cmdOK_Click()
{
    Trap("cmdOk - ERRORE : ", [this] {
        NomeTabellaAperta.clear();
        const Text entry = Selected();
        if (entry.empty()) {
            MsgBox(Messages::kChooseTable);
            return;
        }
        NomeTabellaAperta = PathOf(entry);
        ShowEditor();
        windows_.Editor().setWindowTitle(
            ToQString("Tabella allenamento : " + NomeSenzaEstensione(entry) + "    di   "));
    });
}

void frmTabAllenamenti::cmdNuovaTab_Click()
{
    ShowEditor();
}

void frmTabAllenamenti::cmdCancellaTab_Click()
{
    Trap("cmdCancellaTab - ERRORE : ", [this] {
        const Text entry = Selected();
        const Text path = PathOf(entry);
        if (entry.empty()) {
            MsgBox(Messages::kChooseTable);
        } else if (MsgBox(Messages::kDeleteTable, entry) == MsgAnswer::Yes) {
            DeleteFile(path);
            RefreshList();
        }
        // The active table is deactivated with any answer.
        if (SameText(path, NomeTabellaAttiva)) {
            NomeTabellaAttiva.clear();
            SalvaNomeTabella();
            windows_.Page().SetActiveTableName({});
        }
        SelectActive();
    });
}

} // namespace zelvia
