// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "toolkit/Button.h"
#include "toolkit/Form.h"
#include "toolkit/ListBox.h"

namespace zelvia
{

class TableWindows;

/// The list of the training tables in the diary's folder: opens, creates and deletes them.
class frmTabAllenamenti : public Form
{
    Q_OBJECT

public:
    explicit frmTabAllenamenti(TableWindows& windows);

    Control& FocusSink() override { return *flbListaTabelle; }

    void cmdOK_Click();
    void cmdNuovaTab_Click();
    void cmdCancellaTab_Click();

    /// Reads the folder again and selects the active table, or keeps the selection when there is none. Reports its
    /// failure.
    void Reload();
    /// The same for another diary, which may have no folder yet: then it has no tables.
    void ShowOtherDiary();
    /// Reads the folder again. Raises error 76 or 75 when it cannot be read; the list is then empty.
    void RefreshList();
    /// Selects the active table's first entry, ignoring case; without one the selection stays.
    void SelectActive();

    ListBox* flbListaTabelle;
    Button* cmdOK;
    Button* cmdNuovaTab;
    Button* cmdCancellaTab;
    Button* cmdEsci;

private:
    Text Selected() const;
    void Select(const Text& entry);
    void ShowEditor();

    TableWindows& windows_;
};

} // namespace zelvia
