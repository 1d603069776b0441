// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/TextBox.h"

#include "toolkit/Events.h"
#include "toolkit/Keys.h"
#include "toolkit/QtText.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QStyleOptionFrame>

#include <algorithm>
#include <limits>
#include <utility>

namespace zelvia
{
namespace
{

/// True for the codes of keys that enter no character: control characters, those of the second block too.
bool IsControl(char32_t character)
{
    return character < ' ' || (character >= 0x7F && character < 0xA0);
}

} // namespace

TextBox::TextBox(QWidget* parent, const QString& name, int limit) : QLineEdit(parent), Control(this), limit_(limit)
{
    setObjectName(name);
    setMaxLength(std::numeric_limits<int>::max());
    setDragEnabled(false);
    connect(this, &QLineEdit::textEdited, this, [this] { Fire(Change); });
}

void TextBox::SetContent(TextView text)
{
    setText(ToQString(text));
    setCursorPosition(0);
}

void TextBox::OnFocusGiven()
{
    if (entry_ == BoxEntry::SelectAll) {
        selectAll();
    } else {
        end(false);
    }
}

void TextBox::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason) {
        OnFocusGiven();
    }
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

/// Enters characters one by one as if typed, except those outside the set. False when there is none, or
/// none that a key enters.
bool TextBox::TypeCharacters(const QString& characters)
{
    const QList<uint> codePoints = characters.toUcs4();
    if (codePoints.isEmpty() || IsControl(codePoints.first())) {
        return false;
    }
    for (const char32_t codePoint : codePoints) {
        const int byte = IsControl(codePoint) ? -1 : ByteOf(codePoint);
        if (byte >= 0 && Passes(byte) && Room() > 0 && !isReadOnly()) {
            insert(QString(QChar(static_cast<char16_t>(codePoint))));
        }
    }
    return true;
}

void TextBox::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Paste)) {
        paste();
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
    const auto room = static_cast<std::size_t>(Room());
    Text clean;
    // Of megabytes only as much is examined as fits.
    for (qsizetype i = 0; i < pasted.size() && clean.size() < room; ++i) {
        const QChar character = pasted[i];
        // Control characters: the line ends and tabulators of what was copied elsewhere.
        if (character < u' ' || character == u'\x7F') {
            continue;
        }
        if (character.isHighSurrogate() && i + 1 < pasted.size() && pasted[i + 1].isLowSurrogate()) {
            ++i;
        }
        const int byte = ByteOf(character.unicode());
        clean += byte < 0 ? '?' : static_cast<char>(byte);
    }
    insert(ToQString(clean));
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
    if (event->button() == Qt::LeftButton && std::exchange(pressed_, false) &&
        rect().contains(event->position().toPoint())) {
        Fire(Click);
    }
}

void TextBox::paste()
{
    Paste(QApplication::clipboard()->text());
}

void TextBox::dropEvent(QDropEvent* event)
{
    setCursorPosition(cursorPositionAt(event->position().toPoint()));
    Paste(event->mimeData()->text());
    event->acceptProposedAction();
}

void TextBox::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    if (!hasFocus() || !hasFrame()) {
        return;
    }
    // The caret of a line as high as its box crosses the border by a part of a pixel at some scales.
    QStyleOptionFrame frame;
    initStyleOption(&frame);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_FrameLineEdit, &frame, &painter, this);
}

void TextBox::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Keyboard && MenuKey) {
        Fire([this] { MenuKey(mapToGlobal(rect().bottomLeft())); });
        return;
    }
    QMenu* menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (QAction* action : menu->actions()) {
        // From Qt 6.8 on the entry calls the base class's own function.
        if (action->text().startsWith(QLineEdit::tr("&Paste"))) {
            QObject::disconnect(action, nullptr, this, nullptr);
            connect(action, &QAction::triggered, this, &TextBox::paste);
        }
    }
    menu->popup(event->globalPos());
}

} // namespace zelvia
