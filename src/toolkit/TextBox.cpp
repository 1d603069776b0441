// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/TextBox.h"

#include "toolkit/Events.h"
#include "toolkit/QtText.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>

#include <algorithm>
#include <limits>
#include <memory>

namespace zelvia
{
namespace
{

constexpr int kBackspace = 8;
constexpr int kEnter = 13;
constexpr int kEscape = 27;

/// The key's character as the handlers see it, or 0 for a key that is none.
int ControlKey(int key)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return kEnter;
    case Qt::Key_Escape: return kEscape;
    case Qt::Key_Backspace: return kBackspace;
    default: return 0;
    }
}

bool IsPrintable(const QString& text)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar c) { return c.isPrint(); });
}

} // namespace

TextBox::TextBox(QWidget* parent, const QString& name, int limit) : QLineEdit(parent), Control(this), limit_(limit)
{
    setObjectName(name);
    setMaxLength(std::numeric_limits<int>::max());
    setDragEnabled(false);
}

Text TextBox::Content() const
{
    return FromQString(text());
}

void TextBox::SetContent(TextView text)
{
    setText(ToQString(text));
    setCursorPosition(0);
}

int TextBox::Room() const
{
    if (limit_ == 0) {
        return std::numeric_limits<int>::max();
    }
    const auto kept = text().size() - selectedText().size();
    return static_cast<int>(std::max<qsizetype>(limit_ - kept, 0));
}

bool TextBox::Passes(int keyAscii)
{
    Fire([&] {
        if (KeyPress) {
            KeyPress(keyAscii);
        }
    });
    return keyAscii != 0;
}

/// Enters characters one by one as the keys they stand for; false when nothing of them was for the box.
bool TextBox::TypeCharacters(const QString& characters)
{
    if (!IsPrintable(characters)) {
        return false;
    }
    if (!IsInCharacterSet(characters)) {
        return true;
    }
    for (const QChar character : characters) {
        if (Passes(ByteOf(character.unicode())) && Room() > 0) {
            insert(QString(character));
        }
    }
    return true;
}

void TextBox::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Paste)) {
        Paste(QApplication::clipboard()->text());
        return;
    }
    const bool command = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0 &&
                         !event->modifiers().testFlag(Qt::GroupSwitchModifier);
    const int controlKey = ControlKey(event->key());
    if (controlKey != 0) {
        // Enter and Escape are the handler's alone.
        if (Passes(controlKey) && controlKey == kBackspace) {
            QLineEdit::keyPressEvent(event);
        }
        event->accept();
        return;
    }
    const bool altGr =
        (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == (Qt::ControlModifier | Qt::AltModifier);
    if ((!command || altGr) && TypeCharacters(event->text())) {
        event->accept();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void TextBox::inputMethodEvent(QInputMethodEvent* event)
{
    const QString committed = event->commitString();
    event->setCommitString(QString());
    QLineEdit::inputMethodEvent(event);
    TypeCharacters(committed);
}

void TextBox::Paste(const QString& pasted)
{
    if (isReadOnly()) {
        return;
    }
    Text clean = FromQString(pasted);
    // Control characters: the line ends and tabulators of what was copied elsewhere.
    std::erase_if(clean, [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; });
    insert(ToQString(clean).left(Room()));
}

void TextBox::mousePressEvent(QMouseEvent* event)
{
    pressed_ = event->button() == Qt::LeftButton;
    QLineEdit::mousePressEvent(event);
}

void TextBox::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::MiddleButton) {
        if (QApplication::clipboard()->supportsSelection()) {
            deselect();
            setCursorPosition(cursorPositionAt(event->position().toPoint()));
            Paste(QApplication::clipboard()->text(QClipboard::Selection));
        }
        return;
    }
    QLineEdit::mouseReleaseEvent(event);
    if (pressed_ && event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
        pressed_ = false;
        Fire(Click);
    }
}

void TextBox::contextMenuEvent(QContextMenuEvent* event)
{
    const std::unique_ptr<QMenu> menu(createStandardContextMenu());
    for (QAction* action : menu->actions()) {
        if (action->objectName() == QLatin1String("edit-paste")) {
            action->disconnect();
            connect(action, &QAction::triggered, this, [this] { Paste(QApplication::clipboard()->text()); });
        }
    }
    menu->exec(event->globalPos());
}

void TextBox::dropEvent(QDropEvent* event)
{
    setCursorPosition(cursorPositionAt(event->position().toPoint()));
    Paste(event->mimeData()->text());
    event->acceptProposedAction();
}

} // namespace zelvia
