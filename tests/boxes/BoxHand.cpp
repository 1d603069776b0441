// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "boxes/BoxHand.h"

#include "support/Bytes.h"

#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QHeaderView>
#include <QMenu>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTextEdit>

#include <algorithm>
#include <map>

namespace zelvia::test
{
namespace
{

template <typename... Kinds>
bool IsOneOf(const QWidget& widget)
{
    return ((qobject_cast<const Kinds*>(&widget) != nullptr) || ...);
}

bool TakesInput(const QWidget& widget)
{
    if (const auto* text = qobject_cast<const QTextEdit*>(&widget)) {
        return !text->isReadOnly();
    }
    return IsOneOf<UpDown, QLineEdit, QPlainTextEdit, QAbstractItemView, QAbstractSpinBox, QComboBox, QAbstractSlider>(
               widget) &&
           !IsOneOf<QHeaderView, QScrollBar>(widget);
}

QByteArray NameWithoutIndex(const QWidget& widget)
{
    const QByteArray name = widget.objectName().toLatin1();
    const qsizetype index = name.indexOf('(');
    return index < 0 ? name : name.first(index);
}

void PasteFromMenu(QLineEdit& box)
{
    hand::Click(box, Qt::RightButton);
    QTRY_VERIFY(qobject_cast<QMenu*>(QApplication::activePopupWidget()) != nullptr);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(QTest::qWaitForWindowExposed(menu));
    const QList<QAction*> actions = menu->actions();
    const auto paste = std::find_if(actions.begin(), actions.end(), [](const QAction* action) {
        return action->text().startsWith(QStringLiteral("&Incolla"));
    });
    QVERIFY(paste != actions.end());
    hand::Click(*menu, menu->actionGeometry(*paste).center());
    QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
    if (!hand::OnX11()) {
        // No manager there gives the keyboard back to the window.
        box.window()->activateWindow();
    }
    EntryPage::AwaitFront(*box.window());
}

void TypeCharacters(QLineEdit& box, const QString& text)
{
    for (const QChar character : text) {
        if (character.unicode() < 128) {
            hand::Type(QString(character));
        } else {
            // The display's keyboard has no key for it.
            QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, QString(character), Qt::NoModifier);
        }
    }
}

} // namespace

void EnterInto(QLineEdit& box, const BadInput& input)
{
    QTRY_VERIFY2(box.hasFocus(), qPrintable(box.objectName()));
    if (!box.text().isEmpty()) {
        box.selectAll();
        hand::Key(Qt::Key_Backspace);
    }
    QTRY_COMPARE(box.text(), QString());
    // However much comes in, the box shows it at once.
    const QSignalSpy changes(&box, &QLineEdit::textChanged);
    switch (input.how) {
    case Entry::Typed: TypeCharacters(box, input.text); return;
    case Entry::Pasted:
        QApplication::clipboard()->setText(input.text);
        hand::Key(Qt::Key_V, Qt::ControlModifier);
        break;
    case Entry::FromMenu:
        QApplication::clipboard()->setText(input.text);
        PasteFromMenu(box);
        break;
    }
    QTRY_COMPARE(changes.count(), 1);
}

void Fill(TextBox& box, const BadInput& input)
{
    box.SetFocus();
    EnterInto(box, input);
}

void Correct(TextBox& box, const QString& text)
{
    EnterInto(box, {"", Entry::Typed, text});
    QTRY_COMPARE(box.text(), text);
}

void LeaveByTab(DayPage& page, TextBox& box, const Outcome& outcome, const ExpectedBox& refusal)
{
    const auto hasFocus = [&box] { return QApplication::focusWidget() == &box; };
    if (outcome.refused) {
        page.script.Expect(refusal);
        hand::Key(Qt::Key_Tab);
        TRY_SCRIPT(page.script);
        EntryPage::AwaitFront(*box.window());
        QTRY_VERIFY2(hasFocus(), qPrintable(box.objectName()));
        QCOMPARE(box.text(), outcome.Shown());
        Correct(box, QStringLiteral("1"));
    }
    hand::Key(Qt::Key_Tab);
    QTRY_VERIFY2(!hasFocus(), qPrintable(box.objectName()));
    if (!outcome.refused) {
        QCOMPARE(box.text(), outcome.Left());
    }
}

void PressForeignKeys(const QString& text)
{
    QApplication::clipboard()->setText(QStringLiteral("7"));
    hand::Type(text);
    hand::Key(Qt::Key_V, Qt::ControlModifier);
    hand::Key(Qt::Key_Delete);
    hand::Key(Qt::Key_Backspace);
}

QByteArray GuideBytes()
{
    QFile file(QStringLiteral(ZELVIA_GUIDE));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("cannot read %s", ZELVIA_GUIDE);
    }
    return file.readAll();
}

void CompareFile(const QByteArray& written, const QByteArray& expected)
{
    QVERIFY2(written == expected, Difference(TextOf(written), TextOf(expected)).constData());
}

QByteArray Counted(const QByteArray& name, int count)
{
    return name + " x " + QByteArray::number(count);
}

QByteArrayList BoxesOf(const QWidget& window)
{
    std::map<QByteArray, int> counts;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->window() == &window && TakesInput(*widget)) {
            ++counts[NameWithoutIndex(*widget)];
        }
    }
    QByteArrayList boxes;
    for (const auto& [name, count] : counts) {
        boxes << Counted(name, count);
    }
    return Sorted(boxes);
}

QByteArrayList Sorted(QByteArrayList names)
{
    std::sort(names.begin(), names.end());
    return names;
}

QByteArrayList BoxesOfOtherLength(const QWidget& window, const std::function<int(const QByteArray& name)>& limitOf)
{
    constexpr qsizetype many = 10'000;
    QByteArrayList wrong;
    QApplication::clipboard()->setText(QString(many, u'0'));
    for (TextBox* box : window.findChildren<TextBox*>()) {
        if (box->window() != &window) {
            continue;
        }
        const Text before = box->Content();
        box->selectAll();
        box->paste();
        if (box->text() != QString(limitOf(NameWithoutIndex(*box)), u'0')) {
            wrong << box->objectName().toLatin1() + ' ' + QByteArray::number(box->text().size());
        }
        box->SetContent(before);
    }
    return wrong;
}

} // namespace zelvia::test
