// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/ListBox.h"

#include "toolkit/Events.h"
#include "toolkit/FocusController.h"
#include "toolkit/Form.h"
#include "toolkit/Keys.h"
#include "toolkit/QtText.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>

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
    // The entry that follows must not become the selected one.
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

void ListBox::TellClick()
{
    FocusController::Instance().Flush();
    if (Form* form = Form::Of(this)) {
        form->RunUnblocked([this] { Fire(Click); });
    }
}

/// Reports a click when the selected entry is no longer `before`.
void ListBox::TellNewChoice(int before)
{
    if (ListIndex() >= 0 && ListIndex() != before) {
        TellClick();
    }
}

void ListBox::mousePressEvent(QMouseEvent* event)
{
    const int before = ListIndex();
    QListWidget::mousePressEvent(event);
    const QListWidgetItem* pressed = itemAt(event->position().toPoint());
    // The entry that is selected already can be chosen again: the list keeps its selection while it is closed.
    const bool again = event->button() == Qt::LeftButton && pressed != nullptr && pressed->isSelected();
    TellNewChoice(again ? -1 : before);
}

void ListBox::mouseMoveEvent(QMouseEvent* event)
{
    const int before = ListIndex();
    QListWidget::mouseMoveEvent(event);
    TellNewChoice(before);
}

void ListBox::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::RightButton) {
        QListWidget::mouseReleaseEvent(event);
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
    if (FireListKey(*event, KeyPress)) {
        return;
    }
    const int key = event->key();
    const int before = ListIndex();
    if (before < 0 && count() > 0 && (key == Qt::Key_Down || key == Qt::Key_Up)) {
        // The base class has its cursor on the first entry already, and would pass over it.
        SetListIndex(0);
    } else {
        QListWidget::keyPressEvent(event);
    }
    TellNewChoice(before);
}

void ListBox::contextMenuEvent(QContextMenuEvent* event)
{
    // With the mouse the menu opens on the release; the menu key is reported as such a release.
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
