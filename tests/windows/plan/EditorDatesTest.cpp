// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The start date of the table editor: its limits, what the program makes of a date that can't be, and its strip.
#include "core/Conversions.h"
#include "diary/Module1.h"
#include "diary/TableModel.h"
#include "support/Bytes.h"
#include "support/TableDesk.h"
#include "support/TableLines.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
namespace
{

using namespace TableGrid;

const QString kMaxThirty = QStringLiteral("DATA INIZIO  MAX 30 GIORNI                 ");
const QString kMaxTwentyNine = QStringLiteral("DATA INIZIO  MAX 29 GIORNI                 ");
const QString kMaxTwentyEight = QStringLiteral("DATA INIZIO  MAX 28 GIORNI                 ");
const QString kMinDay = QStringLiteral("DATA INIZIO  MIN GIORNO 1                 ");
const QString kMinMonth = QStringLiteral("DATA INIZIO  MIN MESE  1               ");
const QString kMinYear = QStringLiteral("DATA INIZIO MIN ANNO 2008                 ");

const QString kBars = QStringLiteral("      /      /    ");
const QString kNoBars = QString(18, QLatin1Char(' '));

/// A table without a start date of its own, whose first row no day of the sample meets.
QByteArray Undated()
{
    return TableLines::Blank().Set(1, Km, "99").Bytes();
}

QByteArray StartInMemory()
{
    return Bytes(PlainText(Module1::TabDataInizio));
}

} // namespace

class EditorDatesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void limitsHoldTheFocus_data();
    void limitsHoldTheFocus();
    void theLimitsThemselvesPass();
    void okRepairsTheDate_data();
    void okRepairsTheDate();
    void everyCommandRepairsTheDate_data();
    void everyCommandRepairsTheDate();
    void aFreshRowBringsThePlaceholder();
    void theBarsComeAndGo();
    void datesUpToTheYear2000StayHidden_data();
    void datesUpToTheYear2000StayHidden();
};

void EditorDatesTest::limitsHoldTheFocus_data()
{
    QTest::addColumn<int>("part");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("message");
    QTest::newRow("day 32") << 0 << "32"
                            << "MAX 31 GIORNI                 ";
    QTest::newRow("day 99") << 0 << "99"
                            << "MAX 31 GIORNI                 ";
    QTest::newRow("month") << 1 << "13"
                           << "MAX 12 MESI                   ";
    QTest::newRow("year") << 2 << "2100"
                          << "MAX ANNO 2099                 ";
}

void EditorDatesTest::limitsHoldTheFocus()
{
    QFETCH(int, part);
    QFETCH(QString, typed);
    QFETCH(QString, message);
    TableDesk desk;
    desk.StartNew();
    TextBox& box = *desk.Editor()->dateBoxes[static_cast<std::size_t>(part)];
    desk.Write(box, typed);
    desk.TryToLeave(box, message);
    QCOMPARE(desk.Editor()->lblGiorniInizio->text(), part == 0 ? kBars : kNoBars);
}

void EditorDatesTest::theLimitsThemselvesPass()
{
    TableDesk desk;
    desk.StartNew();
    desk.Write(*desk.Editor()->dateBoxes[0], QStringLiteral("31"));
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(TableDesk::Focused(), QByteArray("txtMeseInizio"));
    hand::Type(QStringLiteral("12"));
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(TableDesk::Focused(), QByteArray("txtAnnoInizio"));
    hand::Type(QStringLiteral("2099"));
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(TableDesk::Focused(), QByteArray("cmdOK"));
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(StartInMemory(), QByteArray("31/12/2099"));
    VERIFY_SCRIPT(desk.script);
}

void EditorDatesTest::okRepairsTheDate_data()
{
    QTest::addColumn<QByteArrayList>("typed");
    QTest::addColumn<QStringList>("messages");
    QTest::addColumn<QByteArray>("repaired");
    QTest::addColumn<QByteArray>("inMemory");
    const auto add = [](const char* day, const char* month, const char* year, const QStringList& messages,
                        const char* repaired, const char* inMemory) {
        QTest::addRow("%s/%s/%s", day, month, year)
            << QByteArrayList{day, month, year} << messages << QByteArray(repaired) << QByteArray(inMemory);
    };
    add("31", "4", "2026", {kMaxThirty}, "30|4|2026", "30/04/2026");
    add("31", "6", "2026", {kMaxThirty}, "30|6|2026", "30/06/2026");
    add("31", "9", "2026", {kMaxThirty}, "30|9|2026", "30/09/2026");
    add("31", "11", "2026", {kMaxThirty}, "30|11|2026", "30/11/2026");
    add("30", "11", "2026", {}, "30|11|2026", "30/11/2026");
    add("31", "12", "2026", {}, "31|12|2026", "31/12/2026");
    // Every fourth year has its 29 February.
    add("29", "2", "2028", {}, "29|2|2028", "29/02/2028");
    add("30", "2", "2028", {kMaxTwentyNine}, "29|2|2028", "29/02/2028");
    add("31", "02", "2028", {kMaxTwentyNine}, "29|02|2028", "29/02/2028");
    add("28", "2", "2026", {}, "28|2|2026", "28/02/2026");
    add("29", "2", "2026", {kMaxTwentyEight}, "28|2|2026", "28/02/2026");
    add("31", "2", "2009", {kMaxTwentyEight}, "28|2|2009", "28/02/2009");
    add("5", "5", "2008", {}, "5|5|2008", "05/05/2008");
    add("5", "5", "2007", {kMinYear}, "5|5|2008", "05/05/2008");
    // The day is repaired for the year that was typed, whatever becomes of that.
    add("29", "2", "2007", {kMaxTwentyEight, kMinYear}, "28|2|2008", "28/02/2008");
    add("31", "2", "", {kMaxTwentyNine, kMinYear}, "29|2|2008", "29/02/2008");
    add("31", "4", "1", {kMaxThirty, kMinYear}, "30|4|2008", "30/04/2008");
    // What is missing beside a part that is there.
    add("", "5", "2026", {kMinDay}, "1|5|2026", "01/05/2026");
    add("0", "5", "2026", {kMinDay}, "1|5|2026", "01/05/2026");
    add("5", "", "2026", {kMinMonth}, "5|1|2026", "05/01/2026");
    add("5", "0", "2026", {kMinMonth}, "5|1|2026", "05/01/2026");
    add("5", "5", "", {kMinYear}, "5|5|2008", "05/05/2008");
    add("15", "", "", {kMinMonth, kMinYear}, "15|1|2008", "15/01/2008");
    add("", "4", "", {kMinDay, kMinYear}, "1|4|2008", "01/04/2008");
    add("", "", "2026", {kMinDay, kMinMonth}, "1|1|2026", "01/01/2026");
    // No date at all is left alone; the table keeps its placeholder.
    add("", "", "", {}, "||", "01/01/2007");
    add("0", "0", "0", {}, "0|0|0", "01/01/2007");
}

void EditorDatesTest::okRepairsTheDate()
{
    QFETCH(QByteArrayList, typed);
    QFETCH(QStringList, messages);
    QFETCH(QByteArray, repaired);
    QFETCH(QByteArray, inMemory);
    TableDesk desk;
    desk.StartNew();
    desk.WriteStart(typed[0], typed[1], typed[2]);
    // Each message once, whatever the number of rows that are read after it.
    for (const QString& message : messages) {
        desk.script.Expect(Warning(message));
    }
    hand::Click(*desk.Editor()->cmdOK);
    desk.AwaitBoxes();
    QTRY_COMPARE(desk.Enabled(), QByteArray("cmdAttiva"));
    QCOMPARE(desk.StartDate(), repaired);
    QCOMPARE(StartInMemory(), inMemory);
    // What was repaired is in order from then on.
    hand::Click(desk.Box(Km, 1));
    hand::Click(*desk.Editor()->cmdOK);
    QTRY_COMPARE(desk.Enabled(), QByteArray("cmdAttiva"));
    VERIFY_SCRIPT(desk.script);
}

void EditorDatesTest::everyCommandRepairsTheDate_data()
{
    QTest::addColumn<QByteArray>("command");
    for (const char* command : {"cmdOK", "cmdSalva", "cmdAttiva", "mnuInserisciRiga", "mnuEliminaRiga"}) {
        QTest::newRow(command) << QByteArray(command);
    }
}

void EditorDatesTest::everyCommandRepairsTheDate()
{
    QFETCH(QByteArray, command);
    TableDesk desk(CalendarDate(2026, 3, 1));
    desk.WriteTable("Senza data.tab", Undated());
    desk.SetActive("Senza data.tab");
    desk.StartWith("Senza data.tab");
    // The placeholder is later than the first day that is shown.
    QCOMPARE(desk.StartDate(), QByteArray("1|1|2007"));
    QCOMPARE(desk.Editor()->lblGiorniInizio->text(), kBars);
    hand::Click(*desk.Editor()->cmdDisattiva);
    QTRY_COMPARE(desk.Enabled(), QByteArray("cmdAttiva"));
    if (command == "cmdOK") {
        // Only a click into a box lets the table be accepted.
        hand::Click(desk.Box(Km, 1));
    }

    desk.script.Expect(Warning(kMinYear));
    if (command == "cmdSalva") {
        desk.script.Expect(desk.SaveTableDialog(QStringLiteral("Senza data.tab")));
    }
    if (command.startsWith("mnu")) {
        (void)desk.RowMenu(2, command == "mnuInserisciRiga" ? Qt::Key_I : Qt::Key_E);
    } else {
        hand::Click(*desk.Editor()->findChild<Button*>(QLatin1String(command)));
    }
    QTRY_COMPARE(desk.StartDate(), QByteArray("1|1|2008"));
    QTRY_COMPARE(StartInMemory(), QByteArray("01/01/2008"));
    desk.AwaitBoxes();
    QCOMPARE(desk.Nometab(), command == "cmdAttiva" ? desk.Pointer("Senza data.tab") : kNoPointer);
    QCOMPARE(desk.Enabled(), QByteArray(command == "cmdAttiva" ? "cmdDisattiva" : "cmdAttiva"));
}

void EditorDatesTest::aFreshRowBringsThePlaceholder()
{
    // With no row to be read ahead of the first, nobody looks at the date of the boxes: that of the table is shown.
    TableDesk desk;
    desk.StartNew();
    desk.WriteStart("31", "2", "2026");
    (void)desk.RowMenu(1, Qt::Key_I);
    QTRY_COMPARE(desk.StartDate(), QByteArray("1|1|2007"));
    VERIFY_SCRIPT(desk.script);
}

void EditorDatesTest::theBarsComeAndGo()
{
    TableDesk desk;
    desk.StartNew();
    const Label& strip = *desk.Editor()->lblGiorniInizio;
    TextBox& day = *desk.Editor()->dateBoxes[0];
    QCOMPARE(strip.text(), kNoBars);
    hand::Click(*desk.Editor()->dateBoxes[1]);
    QCOMPARE(TableDesk::Focused(), QByteArray("txtMeseInizio"));
    QCOMPARE(strip.text(), kNoBars);

    for (const char* blank : {"", "0", "00"}) {
        desk.Write(day, QLatin1String(blank));
        QCOMPARE(strip.text(), kBars);
        hand::Key(Qt::Key_Tab);
        QTRY_COMPARE(TableDesk::Focused(), QByteArray("txtMeseInizio"));
        QCOMPARE(strip.text(), kNoBars);
        QCOMPARE(desk.StartDate(), QByteArray(blank) + "||");
    }
    desk.Write(day, QStringLiteral("5"));
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(TableDesk::Focused(), QByteArray("txtMeseInizio"));
    QCOMPARE(strip.text(), kBars);
    VERIFY_SCRIPT(desk.script);
}

void EditorDatesTest::datesUpToTheYear2000StayHidden_data()
{
    QTest::addColumn<QByteArray>("date");
    QTest::addColumn<QByteArray>("shown");
    QTest::newRow("the year before") << QByteArray("1999-12-31") << QByteArray("||");
    QTest::newRow("the first of January") << QByteArray("2000-01-01") << QByteArray("||");
    QTest::newRow("a day later") << QByteArray("2000-01-02") << QByteArray("2|1|2000");
}

void EditorDatesTest::datesUpToTheYear2000StayHidden()
{
    QFETCH(QByteArray, date);
    QFETCH(QByteArray, shown);
    TableDesk desk;
    desk.WriteTable("Vecchia.tab", TableLines::Blank().SetDate(date).Bytes());
    desk.StartWith("Vecchia.tab");
    QCOMPARE(desk.StartDate(), shown);
    QCOMPARE(desk.Editor()->lblGiorniInizio->text(), shown == "||" ? kNoBars : kBars);
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::EditorDatesTest)
#include "EditorDatesTest.moc"
