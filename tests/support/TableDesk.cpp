// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/TableDesk.h"

#include "support/Bytes.h"
#include "toolkit/FocusController.h"

#include <QMenu>
#include <QTimer>

namespace zelvia::test
{
namespace
{

/// The one colour of that role in all controls.
QByteArray CommonColour(const QWidgetList& controls, QPalette::ColorRole ofLabel, QPalette::ColorRole ofBox)
{
    QByteArray common;
    for (const QWidget* control : controls) {
        const bool isLabel = qobject_cast<const Label*>(control) != nullptr;
        const QByteArray colour = control->palette().color(isLabel ? ofLabel : ofBox).name().toLatin1();
        if (!common.isEmpty() && colour != common) {
            return "mixed";
        }
        common = colour;
    }
    return common;
}

QByteArray CommonBack(const QWidgetList& controls)
{
    return CommonColour(controls, QPalette::Window, QPalette::Base);
}

/// The twenty controls of a row, its caption not counted.
QWidgetList ControlsOf(const frmAllenamento& editor, int row)
{
    QWidgetList controls;
    for (int column = 0; column < TableGrid::kColumns; ++column) {
        controls << editor.Box(static_cast<TableGrid::Column>(column), row);
    }
    for (int strip = 0; strip < TableGrid::kStrips; ++strip) {
        controls << editor.StripOf(static_cast<TableGrid::Strip>(strip), row);
    }
    return controls;
}

} // namespace

void TableDesk::OpenList() const
{
    Menu("mnuTabelle", Qt::Key_A);
    QTRY_VERIFY(List() != nullptr);
    ToFront(*List());
}

void TableDesk::ToFront(QWidget& window)
{
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.raise();
    // In front on two looks in a row: a window that closes at this moment may still hand the keyboard to another one.
    int looks = 0;
    const auto settled = [&] {
        // Until the manager knows the window for the active one it may take a click for itself.
        const bool inFront = QGuiApplication::focusWindow() == window.windowHandle() &&
                             (!hand::OnX11() || hand::ManagersActiveWindow() == window.winId());
        looks = inFront ? looks + 1 : 0;
        return looks == 2;
    };
    // A busy manager misses a change at times.
    constexpr int attempts = 5;
    constexpr int patience = 2000;
    for (int i = 0; i < attempts; ++i) {
        if (i > 0 || QGuiApplication::focusWindow() != window.windowHandle()) {
            window.activateWindow();
        }
        if (QTest::qWaitFor(settled, patience)) {
            return;
        }
    }
    QFAIL(qPrintable(window.objectName() + QStringLiteral(" does not come to the front")));
}

void TableDesk::AwaitBoxes() const
{
    TRY_SCRIPT(script);
    QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
    QTRY_VERIFY(Editor()->isActiveWindow());
    ToFront(*Editor());
}

void TableDesk::WaitForEditor() const
{
    QTRY_VERIFY(Editor() != nullptr);
    ToFront(*Editor());
}

void TableDesk::OpenTable(const QByteArray& name) const
{
    Select(static_cast<int>(Entries().indexOf(name)));
    hand::Click(*List()->cmdOK);
    WaitForEditor();
}

void TableDesk::OpenNew() const
{
    hand::Click(*List()->cmdNuovaTab);
    WaitForEditor();
}

void TableDesk::StartNew()
{
    Start();
    OpenList();
    OpenNew();
}

void TableDesk::StartWith(const QByteArray& table)
{
    Start();
    OpenList();
    OpenTable(table);
}

void TableDesk::Leave(Form& window, Button& exit) const
{
    const QPointer<Form> watched = &window;
    hand::Click(exit);
    WaitUntilGone(watched);
}

void TableDesk::CloseEditor() const
{
    const QPointer<Form> watched = Editor();
    if (hand::OnX11()) {
        hand::AwaitManager(watched->winId());
        hand::KeyForManager({QStringLiteral("key"), QStringLiteral("alt+F4")},
                            [&] { return watched.isNull() || watched->Unloaded(); });
    } else {
        watched->windowHandle()->close();
    }
    WaitUntilGone(watched);
}

void TableDesk::WaitUntilGone(const QPointer<Form>& window) const
{
    QTRY_VERIFY(window.isNull());
    ToFront(List() != nullptr ? static_cast<QWidget&>(*List()) : Page());
}

void TableDesk::Write(TextBox& box, const QString& text) const
{
    hand::Click(box);
    QTRY_VERIFY2(box.hasFocus(), qPrintable(box.objectName()));
    box.selectAll();
    hand::Key(Qt::Key_Backspace);
    if (!text.isEmpty()) {
        hand::Type(text);
    }
}

void TableDesk::TryToLeave(TextBox& box, const QString& message)
{
    const QString held = box.text();
    const std::function<void()> ways[] = {[] { hand::Key(Qt::Key_Return); }, [] { hand::Key(Qt::Key_Tab); },
                                          [this] { hand::Click(Box(TableGrid::Km, 9)); },
                                          [this] { hand::Click(*Editor()->cmdOK); }};
    for (const auto& leave : ways) {
        script.Expect(Warning(message));
        leave();
        AwaitBoxes();
        QTRY_COMPARE(Focused(), box.objectName().toLatin1());
        QCOMPARE(box.text(), held);
    }
    // The button was not pressed.
    QCOMPARE(Enabled(), QByteArray("cmdOK"));
    VERIFY_SCRIPT(script);
}

void TableDesk::WriteStart(const QByteArray& day, const QByteArray& month, const QByteArray& year) const
{
    const QByteArray parts[] = {day, month, year};
    for (std::size_t i = 0; i < 3; ++i) {
        if (!parts[i].isEmpty()) {
            Write(*Editor()->dateBoxes[i], QString::fromLatin1(parts[i]));
        }
    }
}

QByteArray TableDesk::Row(int row) const
{
    QByteArrayList parts;
    for (int column = 0; column < TableGrid::kColumns; ++column) {
        parts << Held(static_cast<TableGrid::Column>(column), row);
    }
    return parts.join('|');
}

QByteArrayList TableDesk::Rows() const
{
    QByteArrayList rows;
    for (int row = 1; row <= TableGrid::kRows; ++row) {
        rows << Row(row);
    }
    return rows;
}

QByteArray TableDesk::RowBack(int row) const
{
    return CommonBack(ControlsOf(*Editor(), row));
}

QByteArray TableDesk::RowFore(int row) const
{
    QWidgetList controls = ControlsOf(*Editor(), row);
    controls << Editor()->lblGiorni[row];
    return CommonColour(controls, QPalette::WindowText, QPalette::Text);
}

QByteArray TableDesk::CaptionBack(int row) const
{
    return CommonBack({Editor()->lblGiorni[row]});
}

QByteArray TableDesk::GridBack() const
{
    QWidgetList controls;
    for (int row = 1; row <= TableGrid::kRows; ++row) {
        controls << ControlsOf(*Editor(), row);
    }
    return CommonBack(controls);
}

QByteArray TableDesk::DateBack() const
{
    QWidgetList controls{Editor()->lblGiorniInizio};
    for (TextBox* box : Editor()->dateBoxes) {
        controls << box;
    }
    return CommonBack(controls);
}

QByteArray TableDesk::Enabled() const
{
    QByteArrayList names;
    for (const Button* button : {Editor()->cmdOK, Editor()->cmdAttiva, Editor()->cmdDisattiva}) {
        if (button->isEnabled()) {
            names << button->objectName().toLatin1();
        }
    }
    return names.join(' ');
}

QByteArray TableDesk::StartDate() const
{
    QByteArrayList parts;
    for (const TextBox* box : Editor()->dateBoxes) {
        parts << box->text().toLatin1();
    }
    return parts.join('|');
}

QByteArray TableDesk::Focused()
{
    FocusController::Instance().Flush();
    const Control* control = FocusController::Instance().Current();
    return control == nullptr ? QByteArray("none") : control->Widget().objectName().toLatin1();
}

void TableDesk::TabTo(const char* name, Qt::KeyboardModifiers modifiers)
{
    constexpr int farthest = 500;
    for (int i = 0; i < farthest && Focused() != name; ++i) {
        hand::Key(Qt::Key_Tab, modifiers);
    }
    QCOMPARE(Focused(), QByteArray(name));
}

void TableDesk::Select(int entry) const
{
    ListBox& list = *List()->flbListaTabelle;
    QVERIFY(entry >= 0 && entry < list.count());
    hand::Click(*list.viewport(), list.visualItemRect(list.item(entry)).center());
    QTRY_COMPARE(list.ListIndex(), entry);
}

QByteArrayList TableDesk::Entries() const
{
    QByteArrayList entries;
    for (const Text& entry : List()->flbListaTabelle->Items()) {
        entries << Bytes(entry);
    }
    return entries;
}

QByteArrayList TableDesk::RowMenu(int row, Qt::Key key) const
{
    return RowMenu([&] { hand::Click(*Editor()->lblGiorni[row], Qt::RightButton); }, key);
}

QByteArrayList TableDesk::RowMenu(const std::function<void()>& open, Qt::Key key) const
{
    QByteArrayList shown;
    bool done = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (done || menu == nullptr || !menu->isVisible()) {
            return;
        }
        done = true;
        for (const QAction* action : menu->actions()) {
            shown << action->objectName().toLatin1() + ' ' + action->text().toLatin1();
        }
        QTest::keyClick(menu, key);
    });
    timer.start(5);
    open();
    if (!QTest::qWaitFor([&] { return done && QApplication::activePopupWidget() == nullptr; })) {
        return {"no pop-up"};
    }
    if (!hand::OnX11()) {
        // No manager there gives the keyboard back to the window.
        ToFront(*Editor());
    }
    return shown;
}

QByteArray TableDesk::PathOf(const QByteArray& table) const
{
    return Bytes(folder.System(QStringLiteral("prova/") + QLatin1String(table)));
}

void TableDesk::WriteTable(const QByteArray& name, const QByteArray& bytes) const
{
    folder.Write(QStringLiteral("prova/") + QLatin1String(name), bytes);
}

QByteArray TableDesk::ReadTable(const QByteArray& name) const
{
    return folder.Read(QStringLiteral("prova/") + QLatin1String(name));
}

ExpectedDialog TableDesk::SaveTableDialog(const QString& preset, const QString& choose) const
{
    return {QStringLiteral("Salva Tabella con nome"),
            QStringLiteral("File Tabella (*.tab)"),
            QFileDialog::AcceptSave,
            folder.Native(QStringLiteral("prova")),
            preset,
            choose};
}

} // namespace zelvia::test
