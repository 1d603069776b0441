// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/ListBox.h"

#include "toolkit/Events.h"
#include "toolkit/FocusController.h"
#include "toolkit/Form.h"
#include "toolkit/Keys.h"
#include "toolkit/PagePalette.h"
#include "toolkit/QtText.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace zelvia
{

ListBox::ListBox(QWidget* parent, const QString& name) : QListWidget(parent), Control(this)
{
    setObjectName(name);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setUniformItemSizes(true);
    // Between the border and the entries, too, nothing under the list shows.
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    connect(model(), &QAbstractItemModel::rowsRemoved, &telling_, [this] { Describe(); });
    connect(model(), &QAbstractItemModel::modelReset, &telling_, [this] { Describe(); });
}

QString ListBox::Summary() const
{
    QString entries = QStringLiteral("%1 voci").arg(count());
    if (count() < 2) {
        entries = count() == 0 ? QStringLiteral("Nessuna voce") : QStringLiteral("Una voce");
    }
    return columns_.isEmpty() ? entries : entries + QStringLiteral("; colonne: ") + columns_.join(QStringLiteral(", "));
}

void ListBox::Describe()
{
    if (QAccessible::isActive() && isVisible()) {
        setAccessibleDescription(Summary());
    }
}

QString ListBox::SpokenLine(const QString& line) const
{
    QStringList parts = line.simplified().split(QLatin1Char(' '));
    if (parts.size() < columns_.size()) {
        return {};
    }
    QStringList spoken;
    for (qsizetype column = columns_.size() - 1; column > 0; --column) {
        spoken.prepend(columns_[column] + QLatin1Char(' ') + parts.takeLast());
    }
    return columns_.first() + QLatin1Char(' ') + parts.join(QLatin1Char(' ')) + QStringLiteral(", ") +
           spoken.join(QStringLiteral(", "));
}

void ListBox::SpeakLines(int first, int last)
{
    if (!columns_.isEmpty() && QAccessible::isActive()) {
        for (int i = first; i <= last; ++i) {
            item(i)->setData(Qt::AccessibleTextRole, SpokenLine(item(i)->text()));
        }
    }
}

/// A reader that has started since the lines were added finds them spoken too.
void ListBox::showEvent(QShowEvent* event)
{
    QListWidget::showEvent(event);
    SpeakLines(0, count() - 1);
    Describe();
}

/// Without the focus the list does not tell readers, as the base class does, that its row has it.
void ListBox::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    if (hasFocus()) {
        QListWidget::currentChanged(current, previous);
    } else {
        QAbstractItemView::currentChanged(current, previous);
    }
}

/// Qt tells of the list itself only, and behind this.
void ListBox::focusInEvent(QFocusEvent* event)
{
    QListWidget::focusInEvent(event);
    QMetaObject::invokeMethod(
        &telling_,
        [this] {
            if (hasFocus()) {
                TellRow();
            }
        },
        Qt::QueuedConnection);
}

void ListBox::TellRow()
{
    if (QAccessible::isActive() && currentRow() >= 0) {
        QAccessibleEvent event(this, QAccessible::Focus);
        event.setChild(currentRow());
        QAccessible::updateAccessibility(&event);
    }
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

void ListBox::Clear()
{
    marked_ = -1;
    clear();
}

void ListBox::RemoveItem(int index)
{
    marked_ = -1;
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
    FrameFirstRow(*this);
}

void ListBox::Mark(int index)
{
    marked_ = index;
    setCurrentRow(index, QItemSelectionModel::NoUpdate);
    if (index >= 0) {
        scrollToItem(item(index), QAbstractItemView::PositionAtCenter);
    }
    viewport()->update();
}

void ListBox::Choose(int index)
{
    SetListIndex(index);
    SetFocus();
    TellClick();
}

QPoint ListBox::EntryPoint() const
{
    const QRect entry = visualItemRect(currentItem()) & viewport()->rect();
    return viewport()->mapToGlobal(entry.center());
}

int ListBox::HeightOf(int entries) const
{
    const int entry = count() > 0 ? sizeHintForRow(0) : fontMetrics().height();
    const int bar = count() > entries ? verticalScrollBar()->sizeHint().width() : 0;
    const bool wide = sizeHintForColumn(0) > width() - 2 * frameWidth() - bar;
    return entries * entry + 2 * frameWidth() + (wide ? horizontalScrollBar()->sizeHint().height() : 0);
}

void ListBox::paintEvent(QPaintEvent* event)
{
    QListWidget::paintEvent(event);
    const QListWidgetItem* entry = item(marked_);
    // With the focus Qt frames the row that the keys are at.
    if (entry != nullptr && !entry->isSelected() && !hasFocus()) {
        QPainter painter(viewport());
        DrawRowFrame(painter, visualItemRect(entry), palette().color(QPalette::Base));
    }
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

void ListBox::rowsInserted(const QModelIndex& parent, int start, int end)
{
    QListWidget::rowsInserted(parent, start, end);
    FrameFirstRow(*this);
    SpeakLines(start, end);
    Describe();
}

void ListBox::keyPressEvent(QKeyEvent* event)
{
    if (FireListKey(*event, KeyPress)) {
        return;
    }
    const int key = event->key();
    const int before = ListIndex();
    if (before < 0 && count() > 0 && (key == Qt::Key_Down || key == Qt::Key_Up || key == Qt::Key_Home)) {
        // The base class has its cursor on the entry already, and would pass over it.
        SetListIndex(key == Qt::Key_Home ? 0 : std::max(marked_, 0));
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
                MouseUp(Qt::RightButton, EntryPoint());
            }
        });
    }
    event->accept();
}

} // namespace zelvia
