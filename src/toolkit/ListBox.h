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
    void Clear() { clear(); }

    /// The selected entry from 0 on, -1 for none.
    int ListIndex() const;
    void SetListIndex(int index);

    /// An entry was chosen: pressed with the mouse, even if the press turns into a drag, or selected by a key. It is
    /// reported after the change of focus that the press caused and, if that opened a window above this one, after that
    /// has closed.
    std::function<void()> Click;
    std::function<void()> DblClick;

    /// Enter comes as 13, Escape as 27.
    std::function<void(int keyAscii)> KeyPress;
    std::function<void(Qt::MouseButton button, const QPoint& globalPosition)> MouseUp;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void TellNewChoice(int before);
    void TellClick();
};

} // namespace zelvia
