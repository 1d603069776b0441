// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "monkey/Hand.h"

#include "monkey/Texts.h"
#include "support/Hand.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>
#include <QWindow>

namespace zelvia::monkey
{
namespace
{

QPoint ArrowOf(const UpDown& spin, bool upper)
{
    return {spin.width() / 2, upper ? spin.height() / 4 : spin.height() - spin.height() / 4};
}

QString At(QPoint place)
{
    return QStringLiteral(" %1,%2").arg(place.x()).arg(place.y());
}

} // namespace

QString Hand::Name(const QWidget& widget)
{
    QString name = widget.objectName();
    for (const QWidget* outer = widget.parentWidget(); name.isEmpty() && outer != nullptr;
         outer = outer->parentWidget()) {
        name = outer->objectName();
    }
    return widget.window()->objectName() + QLatin1Char('.') + name;
}

/// False when the widget can't be reached any more.
bool Hand::ToFront(QWidget& widget)
{
    const QPointer<QWidget> watched = &widget;
    QWidget& window = *widget.window();
    if (desk_.Front() != &window) {
        desk_.Activate(window);
    }
    return !watched.isNull() && watched->isVisible();
}

QPoint Hand::AnyPlace(const QWidget& widget)
{
    const int x = dice_.Below(widget.width());
    const int y = dice_.Below(widget.height());
    return {x, y};
}

void Hand::Click(QWidget& widget, Qt::MouseButton button)
{
    ClickAt(widget, widget.rect().center(), button);
}

void Hand::ClickAt(QWidget& widget, QPoint place, Qt::MouseButton button)
{
    const char* name = button == Qt::LeftButton    ? "click "
                       : button == Qt::RightButton ? "right click "
                                                   : "third click ";
    trail_.Note(QLatin1String(name) + Name(widget) + At(place));
    if (ToFront(widget)) {
        hand::Click(widget, place, button);
    }
}

void Hand::DoubleClickAt(QWidget& widget, QPoint place)
{
    trail_.Note(QStringLiteral("double click ") + Name(widget) + At(place));
    if (ToFront(widget)) {
        // The first click may be the end of the window.
        const QPointer<QWindow> window = widget.window()->windowHandle();
        const QPoint point = widget.mapTo(widget.window(), place);
        for (int i = 0; i < 2 && !window.isNull() && window->isVisible(); ++i) {
            QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, point);
            if (!window.isNull() && window->isVisible()) {
                QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, point);
                QTest::lastMouseTimestamp -= i == 0 ? QTest::mouseDoubleClickInterval : 0;
            }
        }
        // A third click that came by chance would select all.
        QTest::qWait(2 * QApplication::doubleClickInterval());
    }
}

void Hand::Drag(QWidget& widget, QPoint from, QPoint to)
{
    trail_.Note(QStringLiteral("drag ") + Name(widget) + At(from) + QStringLiteral(" to") + At(to));
    if (!ToFront(widget)) {
        return;
    }
    const QPointer<QWidget> watched = &widget;
    hand::Press(widget, from);
    if (!watched.isNull()) {
        hand::MoveTo(widget, to);
    }
    if (!watched.isNull()) {
        hand::Release(widget, to);
    }
}

void Hand::Wheel(QWidget& widget, int notches)
{
    trail_.Note(QStringLiteral("wheel %1 over ").arg(notches) + Name(widget));
    if (ToFront(widget)) {
        hand::Wheel(widget, widget.rect().center(), notches);
    }
}

void Hand::Hold(UpDown& spin, bool upper, int times)
{
    trail_.Note(QStringLiteral("hold %1 of ").arg(upper ? QLatin1String("up") : QLatin1String("down")) + Name(spin));
    if (!ToFront(spin)) {
        return;
    }
    const QPointer<UpDown> watched = &spin;
    hand::Press(spin, ArrowOf(spin, upper));
    desk_.Repeat(times);
    if (!watched.isNull()) {
        hand::Release(spin, ArrowOf(spin, upper));
    }
}

void Hand::Step(UpDown& spin, bool upper)
{
    ClickAt(spin, ArrowOf(spin, upper));
}

void Hand::Key(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    trail_.Note(QStringLiteral("key ") + QKeySequence(QKeyCombination(modifiers, key)).toString());
    if (QGuiApplication::focusWindow() != nullptr) {
        hand::Key(key, modifiers);
    }
}

void Hand::Type(const QString& text)
{
    trail_.Note(QStringLiteral("type ") + Spelt(text));
    for (const QChar character : text) {
        if (QGuiApplication::focusWindow() != nullptr) {
            hand::Type(character);
        }
    }
}

void Hand::Paste(const QString& text)
{
    QApplication::clipboard()->setText(text);
    trail_.Note(QStringLiteral("of ") + Spelt(text));
    Key(Qt::Key_V, Qt::ControlModifier);
}

} // namespace zelvia::monkey
