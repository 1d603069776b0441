// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/ListView.h"

#include "toolkit/Keys.h"
#include "toolkit/QtText.h"

#include <QHeaderView>
#include <QKeyEvent>

namespace zelvia
{

ListView::ListView(QWidget* parent, const QString& name, std::initializer_list<ListColumn> columns)
    : QTreeWidget(parent), Control(this)
{
    setObjectName(name);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setTabKeyNavigation(false);
    setColumnCount(static_cast<int>(columns.size()));
    header()->setSectionsMovable(false);
    header()->setDefaultAlignment(Qt::AlignCenter);
    int index = 0;
    for (const ListColumn& column : columns) {
        headerItem()->setText(index, ToQString(column.caption));
        setColumnWidth(index, column.width);
        ++index;
    }
}

void ListView::AddRow(std::initializer_list<TextView> texts)
{
    auto* row = new QTreeWidgetItem(this);
    int column = 0;
    for (const TextView text : texts) {
        row->setText(column, ToQString(text));
        row->setData(column, Qt::AccessibleTextRole,
                     QString(headerItem()->text(column) + QLatin1Char(' ') + ToQString(text).trimmed()));
        row->setTextAlignment(column, Qt::AlignCenter);
        ++column;
    }
}

void ListView::rowsInserted(const QModelIndex& parent, int start, int end)
{
    QTreeWidget::rowsInserted(parent, start, end);
    FrameFirstRow(*this);
}

void ListView::keyPressEvent(QKeyEvent* event)
{
    if (FireListKey(*event, KeyPress)) {
        return;
    }
    const int key = event->key();
    if (selectedItems().isEmpty() && ListCount() > 0 && (key == Qt::Key_Down || key == Qt::Key_Up)) {
        // The base class may have its cursor on the first row already, and would pass over it.
        setCurrentItem(topLevelItem(0));
        return;
    }
    QTreeWidget::keyPressEvent(event);
}

} // namespace zelvia
