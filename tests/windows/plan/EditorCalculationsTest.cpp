// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// "Calculation Medie" of the table editor.
#include "diary/TableModel.h"
#include "support/TableDesk.h"
#include "support/TableLines.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
namespace
{

using namespace TableGrid;

ExpectedBox TwoValuesNeeded(int row)
{
    return Warning(QStringLiteral("GIORNO %1 : IMMETTERE 2 VALORI PER CALCOLARNE IL 3%2       ")
                       .arg(row)
                       .arg(QChar(char16_t{0xB0})));
}

ExpectedBox TooSlow(int row)
{
    return Warning(QStringLiteral("GIORNO %1: OLTRE 60 MINUTI                 ").arg(row));
}

/// Types into distance, time and average of a row what is given for them, separated by "|".
void WriteGroups(const TableDesk& desk, int row, const QByteArray& groups)
{
    int column = Km;
    for (const QByteArray& value : groups.split('|')) {
        if (!value.isEmpty()) {
            desk.Write(desk.Box(static_cast<Column>(column), row), QString::fromLatin1(value));
        }
        ++column;
    }
}

QByteArray GroupsOf(const TableDesk& desk, int row)
{
    return desk.Row(row).split('|').mid(Km, Andatura).join('|');
}

} // namespace

class EditorCalculationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void calculatesTheThird_data();
    void calculatesTheThird();
    void goesOnThroughAllRows();
    void writesTheBoxesOnly();
    void hundredthsAreNotCarriedFurther();
    void calculatedHoursAreHeldToNoLimit();
};

void EditorCalculationsTest::calculatesTheThird_data()
{
    enum Message { None, NeedsTwo, Slow };
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<int>("message");
    QTest::addColumn<QByteArray>("after");
    const auto add = [](const char* typed, Message message, const char* after) {
        QTest::newRow(typed) << QByteArray(typed) << int{message} << QByteArray(after);
    };
    // Of distance and time, the average.
    add("10|||50||||", None, "10|||50||5|0|000,00");
    add("|500||2|30|||", None, "|500||02|30|5|0|000,00");
    add("8||0|36|0|||", None, "8||0|36|00|4|30|000,00");
    add("32||2|24|15|||", None, "32||2|24|15|4|30|468,75");
    add("10|||50||0|0|", None, "10|||50||5|0|000,00");
    // 60 minutes are the slowest that pass.
    add("1||1|||||", None, "1||1|||60|0|000,00");
    add("1||1|1||||", Slow, "1||1|01||||");
    add("|100|2|||||", Slow, "|100|2|||||");
    // Of distance and average, the time.
    add("10|||||5|0|", None, "10||0|50|0|5|00|");
    add("10|||||5||", None, "10||0|50|0|5||");
    add("10||||||50|", None, "10||0|8|20||50|");
    add("10||0|0|0|5|30|", None, "10||0|55|0|5|30|");
    add("99|||||60||", None, "99||99|0|0|60||");
    // Of time and average, the distance.
    add("|||50||5|0|", None, "10|0||50||5|00|");
    add("|||50||4|0|", None, "12|500||50||4|00|");
    add("0|0|1|40||5|0|", None, "20|0|1|40||5|00|");
    // All three are there, whatever they say.
    add("10||1|||4|30|", None, "10||1|||4|30|");
    // One alone.
    add("10|||||||", NeedsTwo, "10|||||||");
    add("|500||||||", NeedsTwo, "|500||||||");
    add("||1|||||", NeedsTwo, "||1|||||");
    add("|||50||||", NeedsTwo, "|||50||||");
    add("||||45|||", NeedsTwo, "||||45|||");
    add("|||||4|30|", NeedsTwo, "|||||4|30|");
    add("10||0|0|0|0|0|", NeedsTwo, "10||0|00|00|0|00|");
    // An average without minutes or without seconds doesn't count when it is alone.
    add("|||||5|0|", None, "|||||5|00|");
    add("|||||5||", None, "|||||5||");
    add("||||||30|", None, "||||||30|");
    add("|||||||5", None, "|||||||005");
    // Nothing at all.
    add("0|0|0|0|0|0|0|0", None, "0|000|0|00|00|0|00|000");
    add("|||||||", None, "|||||||");
}

void EditorCalculationsTest::calculatesTheThird()
{
    QFETCH(QByteArray, typed);
    QFETCH(int, message);
    QFETCH(QByteArray, after);
    constexpr int row = 12;
    TableDesk desk;
    desk.StartNew();
    WriteGroups(desk, row, typed);
    if (message != 0) {
        desk.script.Expect(message == 1 ? TwoValuesNeeded(row) : TooSlow(row));
    }
    hand::Click(*desk.Editor()->cmdCalcoloMedie);
    QTRY_COMPARE(GroupsOf(desk, row), after);
    desk.AwaitBoxes();
    QCOMPARE(desk.Row(row - 1), QByteArray("|||||||||||||"));
    QCOMPARE(desk.Row(row + 1), QByteArray("|||||||||||||"));
}

void EditorCalculationsTest::goesOnThroughAllRows()
{
    TableDesk desk;
    desk.StartNew();
    WriteGroups(desk, 1, "10|||50||||");
    WriteGroups(desk, 2, "10|||||||");
    WriteGroups(desk, 3, "10|||||5|0|");
    WriteGroups(desk, 5, "|100|2|||||");
    WriteGroups(desk, 30, "|||50||5|0|");
    WriteGroups(desk, 31, "|||||4|30|");
    desk.script.Expect(TwoValuesNeeded(2));
    // A row is calculated before the next one is looked at.
    desk.script.Meanwhile([&] {
        QCOMPARE(GroupsOf(desk, 1), QByteArray("10|||50||5|0|000,00"));
        QCOMPARE(GroupsOf(desk, 3), QByteArray("10|||||5|00|"));
    });
    desk.script.Expect(TooSlow(5));
    desk.script.Expect(TwoValuesNeeded(31));
    hand::Click(*desk.Editor()->cmdCalcoloMedie);
    desk.AwaitBoxes();
    QCOMPARE(GroupsOf(desk, 3), QByteArray("10||0|50|0|5|00|"));
    QCOMPARE(GroupsOf(desk, 5), QByteArray("|100|2|||||"));
    QCOMPARE(GroupsOf(desk, 30), QByteArray("10|0||50||5|00|"));
    // Pressed again it has nothing to add to what it found.
    const QByteArrayList rows = desk.Rows();
    desk.script.Expect(TwoValuesNeeded(2));
    desk.script.Expect(TooSlow(5));
    desk.script.Expect(TwoValuesNeeded(31));
    hand::Click(*desk.Editor()->cmdCalcoloMedie);
    desk.AwaitBoxes();
    QCOMPARE(desk.Rows(), rows);
}

void EditorCalculationsTest::writesTheBoxesOnly()
{
    TableDesk desk;
    desk.StartNew();
    WriteGroups(desk, 4, "10|||50||||");
    hand::Click(*desk.Editor()->cmdOK);
    QTRY_COMPARE(desk.Enabled(), QByteArray("cmdAttiva"));
    QCOMPARE(desk.GridBack(), kWhite);
    hand::Click(*desk.Editor()->cmdCalcoloMedie);
    QTRY_COMPARE(GroupsOf(desk, 4), QByteArray("10|||50||5|0|000,00"));
    QCOMPARE(desk.GridBack(), kWhite);
    QCOMPARE(desk.Enabled(), QByteArray("cmdAttiva"));
    QVERIFY(Module1::TabMediaMinuti[4] == 0);
    hand::Click(desk.Box(Km, 1));
    hand::Click(*desk.Editor()->cmdOK);
    QTRY_COMPARE(desk.Enabled(), QByteArray("cmdAttiva"));
    QVERIFY(Module1::TabMediaMinuti[4] == 5);
    VERIFY_SCRIPT(desk.script);
}

void EditorCalculationsTest::hundredthsAreNotCarriedFurther()
{
    TableDesk desk;
    desk.StartNew();
    for (const int row : {1, 2}) {
        WriteGroups(desk, row, "32||2|24|15|||");
    }
    hand::Click(*desk.Editor()->cmdCalcoloMedie);
    QTRY_COMPARE(desk.Held(MediaMillesimi, 2), QByteArray("468,75"));
    hand::Click(desk.Box(MediaMillesimi, 2));
    hand::Key(Qt::Key_Tab);
    QTRY_COMPARE(desk.Held(MediaMillesimi, 2), QByteArray("468"));
    desk.script.Expect(desk.SaveTableDialog(QString(), QStringLiteral("Nuova")));
    hand::Click(*desk.Editor()->cmdSalva);
    desk.AwaitBoxes();
    QCOMPARE(desk.Held(MediaMillesimi, 1), QByteArray("468,75"));
    QCOMPARE(desk.ReadTable("Nuova.tab"), TableLines::Blank()
                                              .SetRow(1, "32|0|2|24|15|4|30|468|\"\"|\"\"|0|0|0|0")
                                              .SetRow(2, "32|0|2|24|15|4|30|468|\"\"|\"\"|0|0|0|0")
                                              .Bytes());
}

void EditorCalculationsTest::calculatedHoursAreHeldToNoLimit()
{
    TableDesk desk;
    desk.StartNew();
    WriteGroups(desk, 1, "99|||||60||");
    hand::Click(*desk.Editor()->cmdCalcoloMedie);
    QTRY_COMPARE(desk.Held(Ore, 1), QByteArray("99"));
    hand::Click(*desk.Editor()->cmdOK);
    QTRY_COMPARE(desk.Enabled(), QByteArray("cmdAttiva"));
    VERIFY_SCRIPT(desk.script);
    // Only the box itself has one, when it is to be left.
    hand::Click(desk.Box(Ore, 1));
    desk.TryToLeave(desk.Box(Ore, 1), QStringLiteral("MAX 24 ORE                "));
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::EditorCalculationsTest)
#include "EditorCalculationsTest.moc"
