// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "toolkit/Control.h"
#include "toolkit/QtText.h"

#include <QListWidget>

#include <span>
#include <vector>

namespace zelvia
{

/// A list of plain texts in insertion order. A right press neither selects nor takes the focus.
class ListBox : public QListWidget, public Control
{
    Q_OBJECT

public:
    ListBox(QWidget* parent, const QString& name);

    int ListCount() const { return count(); }
    Text List(int index) const;
    std::vector<Text> Items() const;
    void AddItem(TextView text) { addItem(ToQString(text)); }
    void AddItems(std::span<const TextView> texts);
    void RemoveItem(int index);
    void Clear();

    /// Names the columns of its lines for screen readers: all but the first hold no blank.
    void SetSpokenColumns(const QStringList& columns) { columns_ = columns; }
    /// What screen readers say of the list: the number of its entries, and its columns.
    QString Summary() const;
    /// A line with each part after the name of its column; nothing for one with fewer parts, which is read as it is.
    QString SpokenLine(const QString& line) const;

    /// The selected entry from 0 on, -1 for none.
    int ListIndex() const;
    void SetListIndex(int index);

    /// Marks an entry with a dotted frame and brings it into sight, without selecting it; -1 marks none.
    void Mark(int index);
    int Marked() const { return marked_; }

    /// Selects an entry as a press on it does: the list takes the focus, and the click is reported.
    void Choose(int index);

    /// Tells readers of the current entry, as of one that has the focus.
    void TellRow();

    /// Where a pop-up for the current entry opens, on the screen.
    QPoint EntryPoint() const;
    /// The height of so many whole entries, with what else the list needs to show them.
    int HeightOf(int entries) const;

    /// An entry was chosen: pressed with the mouse, even if the press turns into a drag, or selected by a key. It is
    /// reported after the change of focus that the press caused and, if that opened a window above this one, after that
    /// has closed.
    std::function<void()> Click;
    std::function<void()> DblClick;

    /// Enter comes as 13, Escape as 27.
    std::function<void(int keyAscii)> KeyPress;
    std::function<void(Qt::MouseButton button, const QPoint& globalPosition)> MouseUp;

protected:
    void paintEvent(QPaintEvent* event) override;
    void rowsInserted(const QModelIndex& parent, int start, int end) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void showEvent(QShowEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void TellNewChoice(int before);
    void TellClick();
    void Describe();
    void SpeakLines(int first, int last);

    QStringList columns_;
    int marked_ = -1;
    QObject telling_; ///< What the base class does on destruction is no longer reported.
};

} // namespace zelvia
