// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "toolkit/Form.h"
#include "windows/plan/FrmAllenamento.h"
#include "windows/plan/FrmTabAllenamenti.h"

namespace zelvia
{

class TablePage;

/// The two windows of the training tables, which open and refresh each other.
class TableWindows
{
public:
    explicit TableWindows(TablePage& page) : page_(page) {}

    TablePage& Page() { return page_; }
    frmTabAllenamenti& List() { return list_.Load(*this); }
    /// The list as its folder is now.
    frmTabAllenamenti& CurrentList()
    {
        if (list_.Loaded()) {
            List().Reload();
        }
        return List();
    }
    /// Has a list that is loaded show the tables of the diary that is open now.
    void ShowOtherDiary()
    {
        if (list_.Loaded()) {
            List().ShowOtherDiary();
        }
    }
    frmAllenamento& Editor() { return editor_.Load(*this); }
    void UnloadEditor() { editor_.Unload(); }
    void UnloadList() { list_.Unload(); }

private:
    TablePage& page_;
    FormSlot<frmTabAllenamenti> list_;
    FormSlot<frmAllenamento> editor_;
};

} // namespace zelvia
