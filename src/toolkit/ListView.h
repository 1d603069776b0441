// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "toolkit/Control.h"

#include <QTreeWidget>

#include <functional>
#include <initializer_list>

namespace zelvia
{

/// A column of a list view; the width in logical pixels.
struct ListColumn {
    TextView caption;
    int width;
};

/// Rows of plain texts in columns under heads that have no action, in insertion order. A right press neither selects
/// nor takes the focus.
class ListView : public QTreeWidget, public Control
{
    Q_OBJECT

public:
    ListView(QWidget* parent, const QString& name, std::initializer_list<ListColumn> columns);

    int ListCount() const { return topLevelItemCount(); }
    /// A text for each column, from the first on.
    void AddRow(std::initializer_list<TextView> texts);
    void Clear() { clear(); }

    /// Enter comes as 13, Escape as 27.
    std::function<void(int keyAscii)> KeyPress;

protected:
    void rowsInserted(const QModelIndex& parent, int start, int end) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace zelvia
