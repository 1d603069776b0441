// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The walk of the active table along the days of the diary.
#include "diary/TableWalk.h"

#include "core/Files.h"
#include "diary/Module1.h"
#include "diary/TableModel.h"
#include "support/Days.h"
#include "support/MessageScript.h"
#include "support/TestProgram.h"

#include <QTest>

#include <memory>

using namespace zelvia;
using namespace zelvia::Module1;
using namespace zelvia::test;

class TableWalkTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void TheSampleYear_data();
    void TheSampleYear();
    void BeforeTheStart();
    void TheStartDay();
    void EmptyDaysUseUpNoRow();
    void ARestRowNeedsADayOff();
    void ZeroRowsLastForThirtyOneDays();
    void GoingBack();
    void MonthEndsHaveNoEffect();
    void ADiaryOfALaterYear();
    void ADiaryOfAnEarlierYear();
    void DaysOfAnotherYearInTheDiary();
    void AReportDoesNotStopTheWalk();

private:
    std::unique_ptr<MessageScript> boxes_;
};

namespace
{

/// A diary of that year without an outing.
void BlankYear(int year)
{
    const FixedClock clock(CalendarDate(year, 1, 1));
    AzzeraAnno();
}

WalkResult WalkTo(CalendarDate date)
{
    DataCorrente = date;
    GiornoCorrente = date.DayOfYear();
    return WalkTable();
}

QByteArray Shown(const WalkResult& outcome)
{
    switch (outcome.state) {
    case WalkResult::State::BeforeStart: return "before";
    case WalkResult::State::Finished: return "finished";
    case WalkResult::State::UnderWay: break;
    }
    return "row " + QByteArray::number(outcome.row.value()) + ", next " + QByteArray::number(IndiceTabella.value());
}

/// What is to come out, by a walk that keeps no position of its own but the list of rows still ahead.
QByteArray Expected(CalendarDate start, CalendarDate date)
{
    if (date < start) {
        return "before";
    }
    std::vector<int> ahead;
    for (int row = 31; row >= 1; --row) {
        ahead.push_back(row);
    }
    int met = 0;
    bool lastDayMet = true;
    for (int slot = start.DayOfYear().value(); slot <= date.DayOfYear().value(); ++slot) {
        const RecordGiorno& day = Giorni[slot];
        if (day.Data < start) {
            continue;
        }
        if (ahead.empty()) {
            return "finished";
        }
        lastDayMet = FailedDemands(day, PlanRowAt(ahead.back())) == 0;
        if (lastDayMet) {
            met = ahead.back();
            ahead.pop_back();
        }
    }
    const int next = met + 1;
    return "row " + QByteArray::number(lastDayMet ? met : next) + ", next " + QByteArray::number(next);
}

/// A plan that asks for as many kilometres as the row has for its number.
void CountedTable(CalendarDate start)
{
    AzzeraTabella();
    for (int row = 1; row <= 31; ++row) {
        TabKm[row] = row;
    }
    TabDataInizio = start;
}

} // namespace

void TableWalkTest::init()
{
    boxes_ = std::make_unique<MessageScript>();
    ForgetDays();
    AzzeraTabella();
}

void TableWalkTest::cleanup()
{
    boxes_.reset();
}

void TableWalkTest::TheSampleYear_data()
{
    QTest::addColumn<QByteArray>("table");
    QTest::addColumn<int>("kind");
    for (const char* table : {"Base 10 km", "Mezza maratona"}) {
        QTest::addRow("%s", table) << QByteArray(table) << 0;
        QTest::addRow("%s, distances only", table) << QByteArray(table) << 1;
        QTest::addRow("%s, only that a day is run or not", table) << QByteArray(table) << 2;
    }
}

/// Every day of the year against starts all over it and the table's own.
void TableWalkTest::TheSampleYear()
{
    QFETCH(QByteArray, table);
    QFETCH(int, kind);
    const std::string demo = ZELVIA_SOURCE_DIR "/share/demo/";
    CaricaDiario(SystemPath(demo + "ZelviaFile/prova.zlv"));
    LeggiTabella(SystemPath(demo + "prova/" + table.toStdString() + ".tab"));
    if (kind > 0) {
        for (int row = 1; row <= 31; ++row) {
            for (auto* column : {&TabOre, &TabMinuti, &TabSecondi, &TabMediaMinuti, &TabMediaSecondi, &TabRipetVolte}) {
                (*column)[row] = 0;
            }
            TabAndatura[row].clear();
            TabFondo[row].clear();
            TabKm[row] = kind == 2 && TabKm[row] > 0 ? i16(1) : TabKm[row];
            TabMetri[row] = kind == 2 ? i16(0) : TabMetri[row];
        }
    }
    std::vector<CalendarDate> starts = {TabDataInizio};
    for (int day = 0; day < 365; day += 30) {
        starts.push_back(CalendarDate(2026, 1, 1).PlusDays(day));
    }
    int beyondTheFirstRow = 0;
    int finished = 0;
    for (const CalendarDate start : starts) {
        TabDataInizio = start;
        for (int day = 0; day < 365; ++day) {
            const CalendarDate date = CalendarDate(2026, 1, 1).PlusDays(day);
            const QByteArray got = Shown(WalkTo(date));
            const QByteArray expected = Expected(start, date);
            QVERIFY2(got == expected, (LineOf(start) + " to " + LineOf(date) + ": " + got.toStdString() + " for " +
                                       expected.toStdString())
                                          .c_str());
            QVERIFY(IndiceTabella >= 1 && IndiceTabella <= 32);
            beyondTheFirstRow += IndiceTabella > 1 ? 1 : 0;
            finished += got == "finished" ? 1 : 0;
        }
    }
    // The plan of the half marathon asks more than anybody ran.
    QVERIFY(beyondTheFirstRow > 0 || (kind == 0 && table.startsWith("Mezza")));
    QVERIFY(kind != 2 || finished > 0);
}

void TableWalkTest::BeforeTheStart()
{
    BlankYear(2026);
    CountedTable(CalendarDate(2026, 3, 2));
    Giorni[60].Km = 42; // 1 March
    IndiceTabella = 9;
    QCOMPARE(Shown(WalkTo(CalendarDate(2026, 3, 1))), QByteArray("before"));
    QCOMPARE(int{IndiceTabella.value()}, 1);
    QCOMPARE(Shown(WalkTo(CalendarDate(2026, 3, 2))), QByteArray("row 1, next 1"));
}

void TableWalkTest::TheStartDay()
{
    BlankYear(2026);
    CountedTable(CalendarDate(2026, 3, 2));
    QCOMPARE(Shown(WalkTo(CalendarDate(2026, 3, 2))), QByteArray("row 1, next 1"));
    Giorni[61].Km = 1;
    QCOMPARE(Shown(WalkTo(CalendarDate(2026, 3, 2))), QByteArray("row 1, next 2"));
    QCOMPARE(Shown(WalkTo(CalendarDate(2026, 3, 3))), QByteArray("row 2, next 2"));
}

void TableWalkTest::EmptyDaysUseUpNoRow()
{
    BlankYear(2026);
    CountedTable(CalendarDate(2026, 3, 2));
    Giorni[61].Km = 1;
    for (int day = 3; day <= 31; ++day) {
        QCOMPARE(Shown(WalkTo(CalendarDate(2026, 3, static_cast<unsigned>(day)))), QByteArray("row 2, next 2"));
    }
    Giorni[91].Km = 1; // 1 April: too little for row 2
    QCOMPARE(Shown(WalkTo(CalendarDate(2026, 4, 1))), QByteArray("row 2, next 2"));
    Giorni[91].Km = 40; // and one row only for a day that would do for all
    QCOMPARE(Shown(WalkTo(CalendarDate(2026, 4, 1))), QByteArray("row 2, next 3"));
    QCOMPARE(Shown(WalkTo(CalendarDate(2026, 4, 2))), QByteArray("row 3, next 3"));
}

void TableWalkTest::ARestRowNeedsADayOff()
{
    BlankYear(2026);
    CountedTable(CalendarDate(2026, 3, 2));
    TabKm[2] = 0;
    Giorni[61].Km = 1;
    Giorni[62].Km = 3;
    QCOMPARE(Shown(WalkTo(CalendarDate(2026, 3, 3))), QByteArray("row 2, next 2"));
    QCOMPARE(Shown(WalkTo(CalendarDate(2026, 3, 4))), QByteArray("row 2, next 3"));
    QCOMPARE(Shown(WalkTo(CalendarDate(2026, 3, 5))), QByteArray("row 3, next 3"));
}

void TableWalkTest::ZeroRowsLastForThirtyOneDays()
{
    BlankYear(2026);
    TabDataInizio = CalendarDate(2026, 1, 10);
    for (int day = 1; day <= 31; ++day) {
        const QByteArray row = QByteArray::number(day);
        QCOMPARE(Shown(WalkTo(CalendarDate(2026, 1, 9).PlusDays(day))),
                 "row " + row + ", next " + QByteArray::number(day + 1));
    }
    QCOMPARE(int{IndiceTabella.value()}, 32);
    QCOMPARE(Shown(WalkTo(CalendarDate(2026, 2, 10))), QByteArray("finished"));
    QCOMPARE(int{IndiceTabella.value()}, 1);
    QCOMPARE(Shown(WalkTo(CalendarDate(2026, 12, 31))), QByteArray("finished"));
}

void TableWalkTest::GoingBack()
{
    BlankYear(2026);
    CountedTable(CalendarDate(2026, 3, 2));
    for (int day = 0; day < 20; ++day) {
        Giorni[61 + day].Km = day + 1;
    }
    QCOMPARE(Shown(WalkTo(CalendarDate(2026, 3, 21))), QByteArray("row 20, next 21"));
    QCOMPARE(Shown(WalkTo(CalendarDate(2026, 3, 5))), QByteArray("row 4, next 5"));
    QCOMPARE(Shown(WalkTo(CalendarDate(2026, 3, 2))), QByteArray("row 1, next 2"));
    QCOMPARE(Shown(WalkTo(CalendarDate(2026, 2, 28))), QByteArray("before"));
    QCOMPARE(Shown(WalkTo(CalendarDate(2026, 3, 22))), QByteArray("row 21, next 21"));
}

void TableWalkTest::MonthEndsHaveNoEffect()
{
    BlankYear(2028); // with a 29 February
    CountedTable(CalendarDate(2028, 2, 27));
    for (int slot = 58; slot <= 62; ++slot) {
        Giorni[slot].Km = 31;
    }
    QCOMPARE(Shown(WalkTo(CalendarDate(2028, 2, 29))), QByteArray("row 3, next 4"));
    QCOMPARE(Shown(WalkTo(CalendarDate(2028, 3, 2))), QByteArray("row 5, next 6"));
}

void TableWalkTest::ADiaryOfALaterYear()
{
    BlankYear(2027);
    CountedTable(CalendarDate(2026, 12, 21)); // day 355
    for (int slot = 1; slot <= 365; ++slot) {
        Giorni[slot].Km = 31;
    }
    // Neither before the start nor a day walked: the row shown is 0, and all of it is zero.
    QCOMPARE(Shown(WalkTo(CalendarDate(2027, 1, 1))), QByteArray("row 0, next 1"));
    QCOMPARE(Shown(WalkTo(CalendarDate(2027, 12, 20))), QByteArray("row 0, next 1"));
    QCOMPARE(Shown(WalkTo(CalendarDate(2027, 12, 21))), QByteArray("row 1, next 2"));
    QCOMPARE(Shown(WalkTo(CalendarDate(2027, 12, 31))), QByteArray("row 11, next 12"));
}

void TableWalkTest::ADiaryOfAnEarlierYear()
{
    BlankYear(2025);
    CountedTable(CalendarDate(2026, 1, 5));
    QCOMPARE(Shown(WalkTo(CalendarDate(2025, 12, 31))), QByteArray("before"));
}

/// Days that still carry an earlier year's date are before the start and are passed over.
void TableWalkTest::DaysOfAnotherYearInTheDiary()
{
    BlankYear(2025);
    CountedTable(CalendarDate(2026, 1, 5));
    for (int slot = 5; slot <= 10; ++slot) {
        Giorni[slot].Km = 31;
    }
    Giorni[9].Data = CalendarDate(2026, 1, 9);
    Giorni[10].Data = CalendarDate(2026, 1, 10);
    QCOMPARE(Shown(WalkTo(CalendarDate(2026, 1, 8))), QByteArray("row 0, next 1"));
    QCOMPARE(Shown(WalkTo(CalendarDate(2026, 1, 9))), QByteArray("row 1, next 2"));
    QCOMPARE(Shown(WalkTo(CalendarDate(2026, 1, 10))), QByteArray("row 2, next 3"));
}

/// The report of a day that can't be compared keeps the result of the day before.
void TableWalkTest::AReportDoesNotStopTheWalk()
{
    BlankYear(2026);
    CountedTable(CalendarDate(2026, 3, 2));
    Giorni[62].TempoImpiegato = "40000:00:00";
    boxes_->ExpectError("ControlloAllenamento - ERRORE : ", 6);
    QCOMPARE(Shown(WalkTo(CalendarDate(2026, 3, 4))), QByteArray("row 1, next 1"));
    QVERIFY(boxes_->AllShown());
}

ZELVIA_TEST(TableWalkTest)
#include "TableWalkTest.moc"
