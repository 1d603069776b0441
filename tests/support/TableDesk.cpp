// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/TableDesk.h"

#include "support/Bytes.h"
#include "toolkit/FocusController.h"

#include <QMenu>
#include <QTimer>

namespace zelvia::test
{

void TableDesk::OpenList() const
{
    Menu("mnuTabelle", Qt::Key_A);
    QTRY_VERIFY(List() != nullptr);
    List()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(List()));
}

void TableDesk::WaitForEditor() const
{
    QTRY_VERIFY(Editor() != nullptr);
    QVERIFY(QTest::qWaitForWindowExposed(Editor()));
    QVERIFY(QTest::qWaitForWindowActive(Editor()));
}

void TableDesk::OpenTable(const char* name) const
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

void TableDesk::Leave(Form& window, Button& exit) const
{
    const QPointer<Form> watched = &window;
    hand::Click(exit);
    QTRY_VERIFY(watched.isNull());
    QWidget& below = List() != nullptr ? static_cast<QWidget&>(*List()) : Page();
    below.raise();
    below.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&below));
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

void TableDesk::WriteStart(const char* day, const char* month, const char* year) const
{
    const char* const parts[] = {day, month, year};
    for (std::size_t i = 0; i < 3; ++i) {
        if (*parts[i] != '\0') {
            Write(*Editor()->dateBoxes[i], QLatin1String(parts[i]));
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
    hand::Click(*Editor()->lblGiorni[row], Qt::RightButton);
    if (!QTest::qWaitFor([&] { return done && QApplication::activePopupWidget() == nullptr; })) {
        return {"no pop-up"};
    }
    return shown;
}

QByteArray TableDesk::PathOf(const char* table) const
{
    return Bytes(folder.System(QStringLiteral("prova/") + QLatin1String(table)));
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

ExpectedBox Exclamation(const QString& text)
{
    return {text, QMessageBox::Warning};
}

} // namespace zelvia::test
