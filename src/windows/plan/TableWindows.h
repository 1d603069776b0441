// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "toolkit/Form.h"
#include "windows/plan/FrmAllenamento.h"
#include "windows/plan/FrmTabAllenamenti.h"

namespace zelvia
{

/// What the windows of the training tables need of the day page.
class TablePage
{
public:
    virtual ~TablePage() = default;
    /// Shows the name of the active table, or nothing.
    virtual void SetActiveTableName(TextView name) = 0;
    /// Has the page read the active table again at its next tick.
    virtual void RequestTableReading() = 0;
};

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
