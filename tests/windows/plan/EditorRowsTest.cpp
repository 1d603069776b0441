// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of the table editor: chosen with the right button, moved, coloured.
#include "support/DiaryBytes.h"
#include "support/TableDesk.h"
#include "support/TableLines.h"
#include "support/WindowTest.h"

#include <QContextMenuEvent>
#include <QMenu>

namespace zelvia::test
{
namespace
{

using namespace TableGrid;

const char* const kTable = "Base 10 km.tab";
const QByteArray kEmptyRow = "|||||||||||||";
const QString kSigns = QStringLiteral("       x              @      .  ");

/// A row of the sample once it was moved: its two thousand metres are read as 2.
QByteArray Moved(QByteArray row)
{
    return row.replace("|2.000|", "|2|");
}

/// A year in which only 20, 21 and 22 May were run, and a plan that each of these days moves on by a row.
void WritePassedPlan(const TableDesk& desk)
{
    DiaryBytes diary = DiaryBytes::Blank(2026);
    for (const int slot : {140, 141, 142}) {
        diary.SetLine(slot, DiaryBytes::Km, "10");
    }
    desk.folder.Write(QStringLiteral("ZelviaFile/prova.zlv"), diary.Bytes());
    TableLines plan = TableLines::Blank();
    for (int row = 1; row <= kRows; ++row) {
        plan.Set(row, Km, "5");
    }
    desk.WriteTable("Piano.tab", plan.SetDate("2026-05-18").Bytes());
}

} // namespace

class EditorRowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void insertsARow_data();
    void insertsARow();
    void deletesARow_data();
    void deletesARow();
    void movedDistances_data();
    void movedDistances();
    void whatIsNotAcceptedMovesToo();
    void theGridIsTakenAsAccepted();
    void theSignsStayWhereTheyAre();
    void aRightClickColoursTheRow();
    void theMenuKeyChoosesTheRowOfItsBox();
    void movedRowsAreSaved();
    void passedRowsAreGrey();
    void rowsOfAnotherTableKeepTheirColour();
};

void EditorRowsTest::insertsARow_data()
{
    QTest::addColumn<int>("chosen");
    for (const int row : {1, 2, 22, 23, 30, 31}) {
        QTest::addRow("row %d", row) << row;
    }
}

void EditorRowsTest::insertsARow()
{
    QFETCH(int, chosen);
    TableDesk desk;
    desk.StartWith(kTable);
    const QByteArrayList before = desk.Rows();
    (void)desk.RowMenu(chosen, Qt::Key_I);
    QTRY_COMPARE(desk.Row(chosen), kEmptyRow);
    for (int row = 1; row <= kRows; ++row) {
        const QByteArray expected = row < chosen ? before[row - 1] : row == chosen ? kEmptyRow : Moved(before[row - 2]);
        QCOMPARE(desk.Row(row), expected);
        QCOMPARE(desk.Editor()->lblGiorni[row]->text(), QStringLiteral(" %1").arg(row));
    }
    QCOMPARE(desk.StartDate(), QByteArray("2|3|2026"));
    QVERIFY(desk.Editor()->TabellaModificata == 1);
    VERIFY_SCRIPT(desk.script);
}

void EditorRowsTest::deletesARow_data()
{
    insertsARow_data();
}

void EditorRowsTest::deletesARow()
{
    QFETCH(int, chosen);
    TableDesk desk;
    desk.StartWith(kTable);
    const QByteArrayList before = desk.Rows();
    QVERIFY(before[30] != kEmptyRow);
    (void)desk.RowMenu(chosen, Qt::Key_E);
    QTRY_COMPARE(desk.Row(kRows), kEmptyRow);
    for (int row = 1; row < kRows; ++row) {
        QCOMPARE(desk.Row(row), row < chosen ? before[row - 1] : Moved(before[row]));
    }
    QCOMPARE(desk.StartDate(), QByteArray("2|3|2026"));
    QVERIFY(desk.Editor()->TabellaModificata == 1);
    VERIFY_SCRIPT(desk.script);
}

void EditorRowsTest::movedDistances_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("to");
    QTest::newRow("inserted") << int{Qt::Key_I} << 4;
    QTest::newRow("deleted") << int{Qt::Key_E} << 2;
}

void EditorRowsTest::movedDistances()
{
    // The dot of the thousands counts for a decimal point, and halves go to the even number.
    struct Distance {
        const char* file;
        const char* shown;
        const char* moved;
    };
    const Distance distances[] = {{"400", "400", "400"},  {"999", "999", "999"},  {"1000", "1.000", "1"},
                                  {"1499", "1.499", "1"}, {"1500", "1.500", "2"}, {"2500", "2.500", "2"},
                                  {"3500", "3.500", "4"}, {"9499", "9.499", "9"}, {"9999", "9.999", "10"}};
    QFETCH(int, key);
    QFETCH(int, to);
    TableLines table = TableLines::Blank();
    // The first row is above the chosen one and is not moved.
    table.Set(1, RipetDistanza, "1500");
    int row = 3;
    for (const Distance& distance : distances) {
        table.Set(row++, RipetDistanza, distance.file);
    }
    TableDesk desk;
    desk.WriteTable("Distanze.tab", table.SetDate("2026-03-02").Bytes());
    desk.StartWith("Distanze.tab");
    row = 3;
    for (const Distance& distance : distances) {
        QCOMPARE(desk.Held(RipetDistanza, row++), QByteArray(distance.shown));
    }
    (void)desk.RowMenu(2, static_cast<Qt::Key>(key));
    QTRY_COMPARE(desk.Held(RipetDistanza, to), QByteArray(distances[0].moved));
    row = to;
    for (const Distance& distance : distances) {
        QCOMPARE(desk.Held(RipetDistanza, row++), QByteArray(distance.moved));
    }
    QCOMPARE(desk.Held(RipetDistanza, 1), QByteArray("1.500"));
    VERIFY_SCRIPT(desk.script);
}

void EditorRowsTest::whatIsNotAcceptedMovesToo()
{
    TableDesk desk;
    desk.StartWith(kTable);
    desk.Write(desk.Box(Km, 3), QStringLiteral("7"));
    desk.Write(desk.Box(Fondo, 3), QStringLiteral("  Prato, erba"));
    desk.Write(desk.Box(Km, 1), QString());
    (void)desk.RowMenu(3, Qt::Key_I);
    QTRY_COMPARE(desk.Row(4), QByteArray("7|||||||||  Prato, erba||||"));
    QCOMPARE(desk.Row(1), QByteArray("|||34||5|40||Media|Strada||||"));
    // Back again.
    (void)desk.RowMenu(3, Qt::Key_E);
    QTRY_COMPARE(desk.Row(3), QByteArray("7|||||||||  Prato, erba||||"));
    QCOMPARE(desk.Row(4), QByteArray("8||||||||Veloce|Pista Atletica|10|400|1|40"));
    VERIFY_SCRIPT(desk.script);
}

void EditorRowsTest::theGridIsTakenAsAccepted()
{
    for (const Qt::Key key : {Qt::Key_I, Qt::Key_E}) {
        TableDesk desk;
        desk.StartWith(kTable);
        hand::Click(desk.Box(Km, 3));
        QCOMPARE(desk.GridBack(), kGrey);
        QCOMPARE(desk.DateBack(), kGrey);
        (void)desk.RowMenu(5, key);
        QTRY_COMPARE(desk.GridBack(), kWhite);
        QCOMPARE(desk.DateBack(), kWhite);
        // The commands stay as they were.
        QCOMPARE(desk.Enabled(), QByteArray("cmdOK"));
        hand::Click(*desk.Editor()->cmdOK);
        QTRY_COMPARE(desk.Enabled(), QByteArray("cmdAttiva"));
        (void)desk.RowMenu(5, key);
        QTRY_COMPARE(desk.GridBack(), kWhite);
        QCOMPARE(desk.Enabled(), QByteArray("cmdAttiva"));
        VERIFY_SCRIPT(desk.script);
    }
}

void EditorRowsTest::theSignsStayWhereTheyAre()
{
    TableDesk desk;
    desk.StartWith(kTable);
    const auto strip = [&](int row) { return desk.Editor()->StripOf(LblRipetizioni, row)->text(); };
    QCOMPARE(strip(22), kSigns);
    QVERIFY(strip(23).trimmed().isEmpty());
    (void)desk.RowMenu(22, Qt::Key_I);
    QTRY_COMPARE(desk.Row(22), kEmptyRow);
    // The row that received the repetitions shows them; nothing takes them off the row that lost them.
    QCOMPARE(strip(23), kSigns);
    QCOMPARE(strip(22), kSigns);
    VERIFY_SCRIPT(desk.script);
}

void EditorRowsTest::aRightClickColoursTheRow()
{
    TableDesk desk;
    desk.StartWith(kTable);
    const auto backs = [&] {
        QByteArrayList different;
        for (int row = 1; row <= kRows; ++row) {
            if (desk.RowBack(row) != kWhite) {
                different << QByteArray::number(row) + ' ' + desk.RowBack(row);
            }
            if (desk.CaptionBack(row) != kWhite) {
                different << "caption " + QByteArray::number(row);
            }
        }
        return different;
    };
    const QByteArrayList before = desk.Rows();
    QCOMPARE(backs(), QByteArrayList());
    QCOMPARE(desk.RowMenu(5, Qt::Key_Escape),
             (QByteArrayList{"mnuInserisciRiga &Inserisci Riga", "mnuEliminaRiga &Elimina Riga"}));
    QCOMPARE(desk.Editor()->mnuRigheTabella->title(), QStringLiteral("&Righe Tabella"));
    QVERIFY(desk.Editor()->RigaSelezionata == 5);
    QCOMPARE(backs(), QByteArrayList{"5 #8080ff"});
    // Left without a choice it keeps its colour beside the next one.
    (void)desk.RowMenu(31, Qt::Key_Escape);
    QVERIFY(desk.Editor()->RigaSelezionata == 31);
    QCOMPARE(backs(), (QByteArrayList{"5 #8080ff", "31 #8080ff"}));
    QCOMPARE(desk.Rows(), before);
    QVERIFY(desk.Editor()->TabellaModificata == 0);

    hand::Click(*desk.Editor()->cmdOK);
    QTRY_COMPARE(backs(), QByteArrayList());
    (void)desk.RowMenu(1, Qt::Key_Escape);
    QCOMPARE(backs(), QByteArrayList{"1 #8080ff"});
    hand::Click(desk.Box(Fondo, 9));
    QTRY_COMPARE(desk.GridBack(), kGrey);
    (void)desk.RowMenu(2, Qt::Key_E);
    QTRY_COMPARE(backs(), QByteArrayList());
    VERIFY_SCRIPT(desk.script);
}

void EditorRowsTest::theMenuKeyChoosesTheRowOfItsBox()
{
    TableDesk desk;
    desk.StartWith(kTable);
    const QByteArrayList before = desk.Rows();
    hand::Click(desk.Box(Fondo, 4));
    const auto menuKey = [&] {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(4, 4), QPoint(4, 4));
        QApplication::sendEvent(&desk.Box(Fondo, 4), &event);
    };
    QCOMPARE(desk.RowMenu(menuKey, Qt::Key_Escape),
             (QByteArrayList{"mnuInserisciRiga &Inserisci Riga", "mnuEliminaRiga &Elimina Riga"}));
    QVERIFY(desk.Editor()->RigaSelezionata == 4);
    QCOMPARE(desk.RowBack(4), kChosen);
    QCOMPARE(desk.RowBack(5), kGrey);
    (void)desk.RowMenu(menuKey, Qt::Key_E);
    QTRY_COMPARE(desk.Row(4), before[4]);
    VERIFY_SCRIPT(desk.script);
}

void EditorRowsTest::movedRowsAreSaved()
{
    TableDesk desk;
    desk.WriteTable("Tre.tab", TableLines::Blank()
                                   .SetRow(1, "1|0|0|0|0|0|0|0|\"Uno\"|\"\"|0|1500|0|0")
                                   .SetRow(2, "2|5|1|2|3|4|5|6|\"Due\"|\"Prato\"|7|1500|8|9")
                                   .SetRow(31, "31|0|0|0|0|0|0|0|\"\"|\"\"|0|0|0|0")
                                   .SetDate("2026-03-02")
                                   .Bytes());
    desk.StartWith("Tre.tab");
    (void)desk.RowMenu(2, Qt::Key_I);
    QTRY_COMPARE(desk.Row(2), kEmptyRow);
    desk.script.Expect(desk.SaveTableDialog(QStringLiteral("Tre.tab"), QStringLiteral("Mossa")));
    hand::Click(*desk.Editor()->cmdSalva);
    desk.AwaitBoxes();
    // The rows keep their numbers; the last one has gone.
    QCOMPARE(desk.ReadTable("Mossa.tab"), TableLines::Blank()
                                              .SetRow(1, "1|0|0|0|0|0|0|0|\"Uno\"|\"\"|0|1500|0|0")
                                              .SetRow(3, "2|5|1|2|3|4|5|6|\"Due\"|\"Prato\"|7|2|8|9")
                                              .SetDate("2026-03-02")
                                              .Bytes());
    QVERIFY(desk.Editor()->TabellaModificata == 0);
}

void EditorRowsTest::passedRowsAreGrey()
{
    TableDesk desk(CalendarDate(2026, 5, 22));
    WritePassedPlan(desk);
    desk.SetActive("Piano.tab");
    desk.StartWith("Piano.tab");
    const auto fores = [&](const QByteArray& passed) {
        for (int row = 1; row <= kRows; ++row) {
            QCOMPARE(desk.RowFore(row), row <= 3 ? passed : kBlack);
        }
    };
    QCOMPARE(desk.GridBack(), kWhite);
    fores(kPassed);
    // They stay so while the table is edited, accepted and moved.
    hand::Click(desk.Box(Km, 8));
    QTRY_COMPARE(desk.GridBack(), kGrey);
    fores(kPassed);
    hand::Click(*desk.Editor()->cmdOK);
    QTRY_COMPARE(desk.GridBack(), kWhite);
    fores(kPassed);
    (void)desk.RowMenu(1, Qt::Key_I);
    QTRY_COMPARE(desk.Row(1), kEmptyRow);
    fores(kPassed);
    // Switched off, the table begins with its first row again.
    hand::Click(*desk.Editor()->cmdDisattiva);
    QTRY_COMPARE(desk.Enabled(), QByteArray("cmdOK cmdAttiva"));
    fores(kBlack);
    VERIFY_SCRIPT(desk.script);
}

void EditorRowsTest::rowsOfAnotherTableKeepTheirColour()
{
    TableDesk desk(CalendarDate(2026, 5, 22));
    WritePassedPlan(desk);
    desk.SetActive("Piano.tab");
    const auto accept = [&] {
        hand::Click(desk.Box(Km, 8));
        QTRY_COMPARE(desk.GridBack(), kGrey);
        hand::Click(*desk.Editor()->cmdOK);
        QTRY_COMPARE(desk.GridBack(), kWhite);
    };
    const auto fores = [&](const QByteArray& firstThree) {
        for (int row = 1; row <= kRows; ++row) {
            QCOMPARE(desk.RowFore(row), row <= 3 ? firstThree : kBlack);
        }
    };
    // Black in a table that was never the active one.
    desk.StartWith(kTable);
    accept();
    fores(kBlack);
    // Grey in the one that was active until the list switched it off.
    desk.LeaveEditor();
    desk.OpenTable("Piano.tab");
    fores(kPassed);
    TableDesk::ToFront(*desk.List());
    desk.Select(static_cast<int>(desk.Entries().indexOf("Piano.tab")));
    desk.script.Expect({QStringLiteral(" CANCELLARE LA TABELLA Piano.tab ?"), QMessageBox::Information,
                        QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::No});
    hand::Click(*desk.List()->cmdCancellaTab);
    VERIFY_SCRIPT(desk.script);
    QVERIFY(Module1::NomeTabellaAttiva.empty());
    TableDesk::ToFront(*desk.Editor());
    accept();
    fores(kPassed);
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::EditorRowsTest)
#include "EditorRowsTest.moc"
