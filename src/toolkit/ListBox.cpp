// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/ListBox.h"

#include "toolkit/Events.h"
#include "toolkit/QtText.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

namespace zelvia
{

ListBox::ListBox(QWidget* parent, const QString& name) : QListWidget(parent), Control(this)
{
    setObjectName(name);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setUniformItemSizes(true);
}

Text ListBox::List(int index) const
{
    const QListWidgetItem* entry = item(index);
    return entry == nullptr ? Text() : FromQString(entry->text());
}

std::vector<Text> ListBox::Items() const
{
    std::vector<Text> items;
    items.reserve(static_cast<std::size_t>(count()));
    for (int i = 0; i < count(); ++i) {
        items.push_back(List(i));
    }
    return items;
}

void ListBox::AddItem(TextView text)
{
    addItem(ToQString(text));
}

void ListBox::AddItems(std::span<const TextView> texts)
{
    QStringList strings;
    strings.reserve(static_cast<qsizetype>(texts.size()));
    for (const TextView text : texts) {
        strings << ToQString(text);
    }
    addItems(strings);
}

void ListBox::RemoveItem(int index)
{
    // The entry that follows must not come up as the selected one.
    delete takeItem(index);
    SetListIndex(-1);
}

int ListBox::ListIndex() const
{
    const QList<QListWidgetItem*> selected = selectedItems();
    return selected.isEmpty() ? -1 : row(selected.first());
}

void ListBox::SetListIndex(int index)
{
    setCurrentRow(index, index < 0 ? QItemSelectionModel::Clear : QItemSelectionModel::ClearAndSelect);
}

void ListBox::mousePressEvent(QMouseEvent* event)
{
    pressed_ = event->button() == Qt::LeftButton;
    QListWidget::mousePressEvent(event);
}

void ListBox::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::RightButton) {
        QListWidget::mouseReleaseEvent(event);
        // The second release of a double click is none of its own.
        if (event->button() == Qt::LeftButton && std::exchange(pressed_, false) &&
            itemAt(event->position().toPoint()) != nullptr) {
            Fire(Click);
        }
    }
    Fire([&] {
        if (MouseUp) {
            MouseUp(event->button(), event->globalPosition().toPoint());
        }
    });
}

void ListBox::mouseDoubleClickEvent(QMouseEvent* event)
{
    QListWidget::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && itemAt(event->position().toPoint()) != nullptr) {
        Fire(DblClick);
    }
}

void ListBox::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    const int keyAscii = key == Qt::Key_Return || key == Qt::Key_Enter ? 13 : key == Qt::Key_Escape ? 27 : 0;
    if (keyAscii != 0) {
        Fire([&] {
            if (KeyPress) {
                KeyPress(keyAscii);
            }
        });
        return;
    }
    const int before = ListIndex();
    if (before < 0 && count() > 0 && (key == Qt::Key_Down || key == Qt::Key_Up)) {
        // The base class has its cursor on the first entry already, and would pass over it.
        SetListIndex(0);
    } else {
        QListWidget::keyPressEvent(event);
    }
    if (ListIndex() != before) {
        Fire(Click);
    }
}

void ListBox::contextMenuEvent(QContextMenuEvent* event)
{
    // The mouse's own comes with the release; the keyboard's stands for it.
    if (event->reason() == QContextMenuEvent::Keyboard) {
        Fire([&] {
            if (MouseUp) {
                const QRect entry = visualItemRect(currentItem()) & viewport()->rect();
                MouseUp(Qt::RightButton, viewport()->mapToGlobal(entry.center()));
            }
        });
    }
    event->accept();
}

} // namespace zelvia
