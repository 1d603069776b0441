// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"
#include "toolkit/Control.h"
#include "toolkit/QtText.h"

#include <QLineEdit>

namespace zelvia
{

/// What a box does with its text when it gets the focus other than with the mouse.
enum class BoxEntry {
    SelectAll, ///< What is typed takes the text's place.
    CaretAtEnd ///< What is typed is appended.
};

/// A single-line edit box. What is typed outside the character set is refused, what is pasted outside it becomes "?".
/// The length limits typing and pasting, not what the program sets.
class TextBox : public QLineEdit, public Control
{
    Q_OBJECT

public:
    /// `limit` is the longest text that can be typed, 0 for none.
    TextBox(QWidget* parent, const QString& name, int limit = 0);

    Text Content() const { return FromQString(text()); }
    void SetContent(TextView text);
    int Limit() const { return limit_; }
    void SetEntry(BoxEntry entry) { entry_ = entry; }
    void OnFocusGiven() override;

    /// Sees each character before it is entered, Enter as 13, Escape as 27 and Backspace as 8; setting it to 0 discards
    /// the key.
    std::function<void(int& keyAscii)> KeyPress;
    /// The user changed the text: typed, pasted, deleted or undone, but not set by the program.
    std::function<void()> Change;
    std::function<void()> Click;
    /// The menu key, with the place where a pop-up may open. Without it the key brings the box's own menu.
    std::function<void(const QPoint& globalPosition)> MenuKey;

public Q_SLOTS:
    /// Pastes by the rules of this box, as its context menu does.
    void paste();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool Passes(int keyAscii);
    bool TypeCharacters(const QString& characters);
    void Paste(const QString& pasted);
    int Room() const;

    int limit_;
    BoxEntry entry_ = BoxEntry::SelectAll;
    bool pressed_ = false;
};

} // namespace zelvia
