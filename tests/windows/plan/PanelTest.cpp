// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The active table on the page: its panel from day to day.
#include "support/PlanDesk.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
namespace
{

constexpr int kToday = 140; // 20 May 2026
const QDate kStart(2026, 5, 20);
const QString kTable = QStringLiteral("Piano.tab");

QByteArray Named(const char* name, const QByteArray& row)
{
    return QByteArray(name) + '|' + row;
}

CalendarDate DateOf(QDate date)
{
    return {date.year(), static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day())};
}

} // namespace

class PanelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noTableAtStart();
    void noTableInADiaryOpened();
    void noTableInANewDiary();
    void textsOfNoTable();
    void showsAndHides();
    void aTableThatBeginsLater();
    void aTableThatBeginsLaterInADiaryOpened();
    void aTableInADiaryOpened();
    void textsOfARow_data();
    void textsOfARow();
    void whatADayMeets_data();
    void whatADayMeets();
    void theRowReached_data();
    void theRowReached();
    void upAndDownTheDays();
    void aMonthIsWalkedDayByDay();
    void theLastDayOfTheYear();
    void daysStillOfAnotherYear();
};

void PanelTest::noTableAtStart()
{
    PlanDesk desk;
    desk.Begin();
    QCOMPARE(desk.Panel(), Named("Nessuna tabella attiva", kNeutral));
    QCOMPARE(desk.PanelParts(), 14);
    QCOMPARE(desk.Request(), QByteArray("0"));
    desk.GoTo(kToday + 1);
    QCOMPARE(desk.Panel(), Named("Nessuna tabella attiva", kNeutral));
    QVERIFY(Module1::IndiceTabella == 0);
    VERIFY_SCRIPT(desk.script);
}

void PanelTest::noTableInADiaryOpened()
{
    PlanDesk desk;
    desk.PutTable(kTable, CountedTable(kStart));
    desk.Activate("Piano.tab");
    desk.PutSecondDiary(PlanDesk::kNoPointer);
    desk.Begin();
    QCOMPARE(desk.Panel(), Named("Piano", Kilometres(1)));
    desk.script.Expect(desk.OpenDialog(QStringLiteral("prova.zlv"), QStringLiteral("seconda.zlv")));
    desk.OpenSecondDiary();
    QCOMPARE(desk.Panel(), Named("", kNeutralOfADiary));
    QCOMPARE(desk.PanelParts(), 14);
    desk.GoTo(kToday + 1);
    QCOMPARE(desk.Panel(), Named("", kNeutral));
    VERIFY_SCRIPT(desk.script);
}

void PanelTest::noTableInANewDiary()
{
    PlanDesk desk;
    desk.PutTable(kTable, CountedTable(kStart));
    desk.Activate("Piano.tab");
    desk.Begin();
    desk.script.Expect(desk.NewDialog(QStringLiteral("nuova")));
    desk.Menu("mnuFile", Qt::Key_N);
    QTRY_COMPARE(desk.Caption("lblNomeFile"), QStringLiteral("nuova"));
    QCOMPARE(desk.Panel(), Named("", kNeutralOfADiary));
    QCOMPARE(desk.PanelParts(), 14);
    desk.GoTo(kToday - 1);
    QCOMPARE(desk.Panel(), Named("", kNeutral));
    QCOMPARE(desk.Pointer(), desk.PointerTo("Piano.tab"));
    VERIFY_SCRIPT(desk.script);
}

void PanelTest::textsOfNoTable()
{
    PlanDesk desk;
    desk.Begin();
    desk->lblAndaturaTab->SetCaption("Media");
    desk->lblFondoTab->SetCaption("Strada");
    desk->NessunaTabella();
    QCOMPARE(desk.Panel(), Named("Nessuna tabella attiva", kNeutralOfADiary));
    desk->lblAndaturaTab->SetCaption("Media");
    desk->lblFondoTab->SetCaption("Strada");
    desk->AzzeraDatiTabella();
    QCOMPARE(desk.Panel(), Named("Nessuna tabella attiva", kNeutral));
}

void PanelTest::showsAndHides()
{
    PlanDesk desk;
    desk.Begin();
    QCOMPARE(desk.PanelParts(), 14);
    desk->TabAllenamentiNonVisibili();
    QCOMPARE(desk.PanelParts(), 0);
    // The texts that go with no table leave it as it is, the neutral values of a day show it.
    desk->NessunaTabella();
    QCOMPARE(desk.PanelParts(), 0);
    desk.GoTo(kToday + 1);
    QCOMPARE(desk.PanelParts(), 14);
    desk->TabAllenamentiNonVisibili();
    desk->TabAllenamentiVisibili();
    QCOMPARE(desk.PanelParts(), 14);
}

void PanelTest::aTableThatBeginsLater()
{
    PlanDesk desk;
    desk.PutTable(kTable, CountedTable(kStart.addDays(2)));
    desk.Activate("Piano.tab");
    desk.Begin();
    QCOMPARE(desk.Panel(), Named("Piano", kNeutral));
    QVERIFY(Module1::IndiceTabella == 1);
    desk.GoTo(kToday + 1);
    QCOMPARE(desk.Panel(), Named("Piano", kNeutral));
    QVERIFY(Module1::IndiceTabella == 1);
    desk.GoTo(kToday + 2);
    QCOMPARE(desk.Panel(), Named("Piano", Kilometres(1)));
    desk.GoTo(kToday + 1);
    QCOMPARE(desk.Panel(), Named("Piano", kNeutral));
    VERIFY_SCRIPT(desk.script);
}

void PanelTest::aTableThatBeginsLaterInADiaryOpened()
{
    PlanDesk desk;
    desk.PutTable(kTable, CountedTable(kStart.addDays(2)));
    desk.PutSecondDiary(desk.PointerTo("Piano.tab"));
    desk.Begin();
    desk.script.Expect(desk.OpenDialog(QStringLiteral("prova.zlv"), QStringLiteral("seconda.zlv")));
    desk.OpenSecondDiary();
    QCOMPARE(desk.Panel(), Named("Piano", kNeutralOfADiary));
    QVERIFY(Module1::IndiceTabella == 1);
    desk.GoTo(kToday + 1);
    QCOMPARE(desk.Panel(), Named("Piano", kNeutral));
    VERIFY_SCRIPT(desk.script);
}

void PanelTest::aTableInADiaryOpened()
{
    PlanDesk desk;
    desk.Run(kToday, 1);
    desk.PutTable(kTable, CountedTable(kStart));
    desk.PutTable(QStringLiteral("Prima.tab"), TableBytes(kStart).SetRow(1, "9"));
    desk.Activate("Prima.tab");
    desk.PutSecondDiary(desk.PointerTo("Piano.tab"));
    desk.Begin();
    QCOMPARE(desk.Panel(), Named("Prima", Kilometres(9)));
    desk.script.Expect(desk.OpenDialog(QStringLiteral("prova.zlv"), QStringLiteral("seconda.zlv")));
    desk.OpenSecondDiary();
    QCOMPARE(desk.Panel(), Named("Piano", Kilometres(1)));
    QVERIFY(Module1::IndiceTabella == 2);
    desk.GoTo(kToday + 1);
    QCOMPARE(desk.Panel(), Named("Piano", Kilometres(2)));
    VERIFY_SCRIPT(desk.script);
}

void PanelTest::textsOfARow_data()
{
    QTest::addColumn<QByteArray>("row");
    QTest::addColumn<QByteArray>("panel");
    const auto put = [](const char* name, const char* row, const char* panel) {
        QTest::newRow(name) << QByteArray(row) << QByteArray(panel);
    };
    put("kilometres", "10", "10,0|0:0:0|0:0|||0 x 0  @  0:0");
    put("metres of one digit", "6|5", "6,5|0:0:0|0:0|||0 x 0  @  0:0");
    put("metres of two", "6|50", "6,50|0:0:0|0:0|||0 x 0  @  0:0");
    put("metres alone", "0|800", "0,800|0:0:0|0:0|||0 x 0  @  0:0");
    put("a time", "||1|2|3", "0,0|1:2:3|0:0|||0 x 0  @  0:0");
    put("minutes alone", "|||50", "0,0|0:50:0|0:0|||0 x 0  @  0:0");
    put("an average", "|||||4|5", "0,0|0:0:0|4:5|||0 x 0  @  0:0");
    put("thousandths do not show", "|||||4|5|678", "0,0|0:0:0|4:5|||0 x 0  @  0:0");
    put("a pace", "||||||||Media/Veloce", "0,0|0:0:0|0:0|Media/Veloce||0 x 0  @  0:0");
    put("a pace with its blanks", "||||||||  Media, poi  lenta ", "0,0|0:0:0|0:0|  Media, poi  lenta ||0 x 0  @  0:0");
    put("a terrain with an accent", "|||||||||Citt\xE0", "0,0|0:0:0|0:0||Citt\xE0|0 x 0  @  0:0");
    put("repetitions", "||||||||||5|400|1|30", "0,0|0:0:0|0:0|||5 x 400  @  1:30");
    put("repetitions of four digits", "||||||||||3|2000|9|5", "0,0|0:0:0|0:0|||3 x 2000  @  9:5");
    put("a number of repetitions alone", "||||||||||5", "0,0|0:0:0|0:0|||5 x 0  @  0:0");
    put("all of it", "21|97|1|45|0|4|58|9|Veloce|Pista|2|1000|4|0", "21,97|1:45:0|4:58|Veloce|Pista|2 x 1000  @  4:0");
    put("a rest", "", "0,0|0:0:0|0:0|||0 x 0  @  0:0");
    // Without a number of repetitions it is a rest, which the empty day has met; the row stays for that day.
    put("a rest with a distance of repetitions", "|||||||||||400|1|30", "0,0|0:0:0|0:0|||0 x 400  @  1:30");
    put("a rest of thousandths", "|||||||999", "0,0|0:0:0|0:0|||0 x 0  @  0:0");
    put("a rest of blanks", "|||||||| |  ", "0,0|0:0:0|0:0| |  |0 x 0  @  0:0");
}

void PanelTest::textsOfARow()
{
    QFETCH(QByteArray, row);
    QFETCH(QByteArray, panel);
    PlanDesk desk;
    desk.PutTable(kTable, TableBytes(kStart).SetRow(1, row).SetRow(2, "42"));
    desk.Activate("Piano.tab");
    desk.Begin();
    QCOMPARE(desk.Panel(), Named("Piano", panel));
    desk.GoTo(kToday - 1);
    QCOMPARE(desk.Panel(), Named("Piano", kNeutral));
    desk.GoTo(kToday);
    QCOMPARE(desk.Panel(), Named("Piano", panel));
    VERIFY_SCRIPT(desk.script);
}

void PanelTest::whatADayMeets_data()
{
    QTest::addColumn<QByteArray>("row");
    QTest::addColumn<QByteArray>("day"); // Lines of the diary by their numbers, separated by "|".
    QTest::addColumn<bool>("met");
    const auto put = [](const char* name, const char* row, const char* day, bool met) {
        QTest::newRow(name) << QByteArray(row) << QByteArray(day) << met;
    };
    put("distance, as asked", "10|500", "5=10|6=500", true);
    put("distance, more", "10|500", "5=11", true);
    put("distance, ten metres less", "10|500", "5=10|6=490", false);
    put("time, as asked", "|||50", "16=\"0:50:00\"", true);
    put("time, parted by points", "|||50", "16=\"0.50.00\"", true);
    put("time, a second less", "|||50", "16=\"0:49:59\"", false);
    put("time, without two separators", "|||50", "16=\"50:00\"", false);
    put("average, as asked", "|||||5|0", "17=\"5:00\"", true);
    put("average, faster, parted by a comma", "|||||5|0", "17=\"4,59\"", true);
    put("average, a second slower", "|||||5|0", "17=\"5:01\"", false);
    put("average, none", "|||||5|0", "5=10", false);
    put("pace, in other letters and blanks", "||||||||  Media ", "7=\"MEDIA  \"", true);
    put("pace, another", "||||||||Media", "7=\"Media/Veloce\"", false);
    put("terrain, in other letters and blanks", "|||||||||strada", "8=\" Strada\"", true);
    put("terrain, another", "|||||||||Strada", "8=\"Pista\"", false);
    put("repetitions, as asked", "||||||||||5|400|1|30", "123=5|124=400|125=1|126=30", true);
    put("repetitions, one less", "||||||||||5|400|1|30", "123=4|124=400|125=1|126=30", false);
    put("repetitions, a second slower", "||||||||||5|400|1|30", "123=5|124=400|125=1|126=31", false);
    put("all six", "10||0|50||5|0||Media|Strada|5|400|1|30",
        "5=10|7=\"media\"|8=\"strada\"|16=\"0:50:00\"|17=\"5:00\"|123=5|124=400|125=1|126=30", true);
    put("one of the six missed", "10||0|50||5|0||Media|Strada|5|400|1|30",
        "5=10|7=\"media\"|8=\"pista\"|16=\"0:50:00\"|17=\"5:00\"|123=5|124=400|125=1|126=30", false);
    put("an empty day for work", "10", "", false);
    put("an empty day for a rest", "", "", true);
    put("a run for a rest", "", "5=1", false);
    put("the rest of a day is no matter", "", "3=\"Colle\"|9=\"Gara\"|118=\"Estate\"|121=4|122=70|127=\"nota\"", true);
}

void PanelTest::whatADayMeets()
{
    QFETCH(QByteArray, row);
    QFETCH(QByteArray, day);
    QFETCH(bool, met);
    PlanDesk desk(CalendarDate(2026, 5, 21));
    for (const QByteArray& line : day.isEmpty() ? QByteArrayList() : day.split('|')) {
        const auto equals = line.indexOf('=');
        desk.diary.SetLine(kToday, line.left(equals).toInt(), line.mid(equals + 1));
    }
    // The day after meets neither a rest nor any of the demands.
    desk.Run(kToday + 1, 1);
    desk.PutTable(kTable, TableBytes(kStart).SetRow(1, row).SetRow(2, "42"));
    desk.Activate("Piano.tab");
    desk.Begin();
    QCOMPARE(int{Module1::IndiceTabella.value()}, met ? 2 : 1);
    QCOMPARE(desk.PanelRow() == Kilometres(42), met);
    // On the day itself the row shows whether it met it or not.
    const QByteArray next = desk.Panel();
    desk.GoTo(kToday);
    QVERIFY(desk.PanelRow() != Kilometres(42));
    QCOMPARE(int{Module1::IndiceTabella.value()}, met ? 2 : 1);
    desk.GoTo(kToday + 1);
    QCOMPARE(desk.Panel(), next);
    VERIFY_SCRIPT(desk.script);
}

void PanelTest::theRowReached_data()
{
    QTest::addColumn<QDate>("start");
    QTest::addColumn<QDate>("today");
    QTest::addColumn<QList<int>>("runs"); // From the start's day of the year on, kilometres.
    QTest::addColumn<int>("shown");       // 0 for the neutral values.
    QTest::addColumn<int>("next");
    const auto put = [](const char* name, QDate start, QDate today, const QList<int>& runs, int shown, int next) {
        QTest::newRow(name) << start << today << runs << shown << next;
    };
    const QDate march(2026, 3, 2);
    put("the day before the start", march, QDate(2026, 3, 1), {9, 9, 9}, 0, 1);
    put("the start, an empty day", march, march, {}, 1, 1);
    put("the start, its row met", march, march, {1}, 1, 2);
    put("the start, too little", QDate(2026, 3, 2), march, {0}, 1, 1);
    put("the day after a row was met", march, QDate(2026, 3, 3), {1}, 2, 2);
    put("two rows met", march, QDate(2026, 3, 3), {1, 2}, 2, 3);
    put("one row for a day, however long", march, QDate(2026, 3, 3), {42}, 2, 2);
    put("days off use up no row", march, QDate(2026, 3, 31), {1}, 2, 2);
    put("and the row is met behind them", march, QDate(2026, 3, 6), {1, 0, 0, 0, 2}, 2, 3);
    put("a run too short uses up none", march, QDate(2026, 3, 5), {1, 1, 1}, 2, 2);
    put("over the end of a month", QDate(2026, 1, 30), QDate(2026, 2, 2), {1, 2, 3, 4}, 4, 5);
    put("over the end of February", QDate(2026, 2, 27), QDate(2026, 3, 2), {1, 2, 3, 4}, 4, 5);
    put("over a 29 February", QDate(2028, 2, 27), QDate(2028, 3, 2), {1, 2, 3, 4, 5}, 5, 6);
    put("from 29 February on", QDate(2028, 2, 29), QDate(2028, 3, 1), {1}, 2, 2);
    put("from New Year on", QDate(2026, 1, 1), QDate(2026, 1, 3), {1, 2}, 3, 3);
    put("the last day alone", QDate(2026, 12, 31), QDate(2026, 12, 31), {1}, 1, 2);
    put("the last day of a leap year", QDate(2028, 12, 31), QDate(2028, 12, 31), {1}, 1, 2);
    // In the diary of a later year the walk begins at the same number of the day.
    put("a year later, the day before", QDate(2026, 12, 21), QDate(2027, 12, 20), {31, 31}, 0, 1);
    put("a year later, New Year", QDate(2026, 12, 21), QDate(2027, 1, 1), {31, 31}, 0, 1);
    put("a year later, the day", QDate(2026, 12, 21), QDate(2027, 12, 21), {1}, 1, 2);
    put("a year later, the year's end", QDate(2026, 12, 21), QDate(2027, 12, 31), {1, 2, 3}, 4, 4);
    put("from 29 February, a year later, 28 February", QDate(2028, 2, 29), QDate(2029, 2, 28), {1}, 0, 1);
    put("from 29 February, a year later, 1 March", QDate(2028, 2, 29), QDate(2029, 3, 1), {1}, 1, 2);
    put("from day 366, a year later", QDate(2028, 12, 31), QDate(2029, 12, 31), {}, 0, 1);
    put("an earlier year", QDate(2026, 3, 2), QDate(2025, 12, 31), {1, 2, 3}, 0, 1);
    put("the date of a table without one", QDate(2007, 1, 1), QDate(2026, 1, 4), {1, 2, 3}, 4, 4);
}

void PanelTest::theRowReached()
{
    QFETCH(QDate, start);
    QFETCH(QDate, today);
    QFETCH(QList<int>, runs);
    QFETCH(int, shown);
    QFETCH(int, next);
    PlanDesk desk(DateOf(today));
    for (int i = 0; i < runs.size(); ++i) {
        desk.Run(start.dayOfYear() + i, runs[i]);
    }
    desk.PutTable(kTable, CountedTable(start));
    desk.Activate("Piano.tab");
    desk.Begin();
    QCOMPARE(desk.Panel(), Named("Piano", shown == 0 ? QByteArray(kNeutral) : Kilometres(shown)));
    QCOMPARE(int{Module1::IndiceTabella.value()}, next);
    QCOMPARE(desk.Pointer(), desk.PointerTo("Piano.tab"));
    VERIFY_SCRIPT(desk.script);
}

void PanelTest::upAndDownTheDays()
{
    PlanDesk desk(CalendarDate(2026, 5, 19));
    for (int day = 0; day < 10; ++day) {
        desk.Run(kToday + day, day + 1);
    }
    desk.PutTable(kTable, CountedTable(kStart));
    desk.Activate("Piano.tab");
    desk.Begin();
    const auto check = [&](int slot) {
        const bool begun = slot >= kToday;
        QCOMPARE(int{Module1::GiornoCorrente.value()}, slot);
        QCOMPARE(desk.PanelRow(), begun ? Kilometres(std::min(slot - kToday, 10) + 1) : QByteArray(kNeutral));
        QCOMPARE(int{Module1::IndiceTabella.value()}, begun ? std::min(slot - kToday + 2, 11) : 1);
    };
    check(kToday - 1);
    for (int slot = kToday; slot <= kToday + 12; ++slot) {
        desk.Up(*desk->upGiorno);
        check(slot);
    }
    for (int slot = kToday + 11; slot >= kToday - 2; --slot) {
        desk.Down(*desk->upGiorno);
        check(slot);
    }
    VERIFY_SCRIPT(desk.script);
}

void PanelTest::aMonthIsWalkedDayByDay()
{
    PlanDesk desk;
    for (int day = 0; day < 40; day += 2) {
        desk.Run(kToday + day, 31);
    }
    desk.PutTable(kTable, CountedTable(kStart));
    desk.Activate("Piano.tab");
    desk.Begin();
    QCOMPARE(desk.PanelRow(), Kilometres(1));
    // 20 June is the 32nd day: sixteen runs come before it.
    desk.Up(*desk->upMese);
    QCOMPARE(desk.PanelRow(), Kilometres(17));
    desk.Down(*desk->upMese);
    QCOMPARE(desk.PanelRow(), Kilometres(1));
    desk.Down(*desk->upMese);
    QCOMPARE(desk.PanelRow(), QByteArray(kNeutral));
    VERIFY_SCRIPT(desk.script);
}

void PanelTest::theLastDayOfTheYear()
{
    PlanDesk desk(CalendarDate(2026, 12, 31));
    desk.Run(364, 1);
    desk.Run(365, 2);
    desk.Run(366, 3); // The place that a common year leaves over.
    desk.PutTable(kTable, CountedTable(QDate(2026, 12, 30)));
    desk.Activate("Piano.tab");
    desk.Begin();
    for (int click = 0; click < 3; ++click) {
        QCOMPARE(desk.PanelRow(), Kilometres(2));
        QVERIFY(Module1::IndiceTabella == 3);
        desk.Up(*desk->upGiorno);
        QVERIFY(Module1::DataCorrente == CalendarDate(2026, 12, 31));
    }
    desk.Down(*desk->upGiorno);
    QCOMPARE(desk.PanelRow(), Kilometres(1));
    VERIFY_SCRIPT(desk.script);
}

/// Last year's days are before the start until the page has shown them once.
void PanelTest::daysStillOfAnotherYear()
{
    PlanDesk desk(CalendarDate(2026, 5, 22));
    desk.diary = DiaryBytes::Blank(2025);
    desk.PutTable(kTable, CountedTable(kStart));
    desk.Activate("Piano.tab");
    desk.Begin();
    QCOMPARE(desk.Panel(), Named("Piano", kNeutral));
    QVERIFY(Module1::IndiceTabella == 1);
    desk.GoTo(kToday + 3);
    QCOMPARE(desk.Panel(), Named("Piano", Kilometres(1)));
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::PanelTest)
#include "PanelTest.moc"
