// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/RunSearch.h"

#include "diary/Module1.h"
#include "support/Bytes.h"
#include "support/Days.h"
#include "support/TestProgram.h"

#include <QByteArrayList>
#include <QTest>

using namespace zelvia;
using zelvia::Module1::Giorni;
using zelvia::test::Bytes;
using zelvia::test::ForgetDays;
using zelvia::test::TextOf;

namespace
{

/// Day 1 is 1 January 2026.
void PutRun(int day, int km, int metres, const QByteArray& time, const QByteArray& average)
{
    RecordGiorno& giorno = Giorni[day];
    giorno.Data = CalendarDate(2026, 1, 1).PlusDays(day - 1);
    giorno.Km = km;
    giorno.Metri = metres;
    giorno.TempoImpiegato = TextOf(time);
    giorno.MediaKm = TextOf(average);
}

/// Days 1 to `last` with a run of 10 km in 50 minutes each.
void PutRuns(int last)
{
    for (int day = 1; day <= last; ++day) {
        PutRun(day, 10, 0, "0:50:00", "5:00");
    }
}

/// A search with its sums carried over, as the window does it.
SearchResult AddedUp(SearchResult result)
{
    SommaKm(result.totals);
    TempiTotali(result.totals);
    MediaTotali(result.totals);
    return result;
}

SearchResult Find(int last, const SearchCriteria& conditions = {})
{
    return AddedUp(FindRuns(Giorni, last, conditions, {}));
}

/// The days of the runs found, from the dates of their lines.
QByteArrayList Dates(const SearchResult& result)
{
    QByteArrayList dates;
    for (const Text& line : result.lines) {
        dates << Bytes(line).mid(32, 5);
    }
    return dates;
}

QByteArrayList Told(const SearchResult& result)
{
    QByteArrayList told;
    for (const SearchError& error : result.errors) {
        told << Bytes(error.title) + QByteArray::number(error.error.Number()) + ' ' + Bytes(error.error.Description());
    }
    return told;
}

QByteArray Totals(const SearchResult& result)
{
    return Bytes(RunsText(result.totals) + "|" + DistanceText(result.totals) + "|" + TimesText(result.totals) + "|" +
                 MeanText(result.totals));
}

} // namespace

class RunSearchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { ForgetDays(); }
    void cleanup() { ForgetDays(); }

    void WithoutConditionsAllRunsUpToTheDayShown();
    void ADayWithoutDistanceIsNoRun();
    void MetresAloneAreARun();
    void BothEndsAreInsideThePeriod_data();
    void BothEndsAreInsideThePeriod();
    void EachConditionAlone_data();
    void EachConditionAlone();
    void ConditionsMeet();
    void ARunWithoutATimePullsTheMeanDown();
    void TooLongATimeIsToldAndLeftOut();
    void TooLongAnAverageIsToldAndLeftOut();
    void APeriodThatIsNoDateEndsTheSearch();
    void KilometresAndMetresBeyondAnInteger();
    void MoreThan350Runs();
    void Lines_data();
    void Lines();
};

void RunSearchTest::WithoutConditionsAllRunsUpToTheDayShown()
{
    PutRuns(366);
    const SearchResult result = Find(3);
    QCOMPARE(Dates(result), (QByteArrayList{"01/01", "02/01", "03/01"}));
    QCOMPARE(Totals(result), QByteArray(" 3| 30| 2:30:00| 5:00"));
    QVERIFY(!result.ended);
    QCOMPARE(Find(0).lines.size(), std::size_t{0});
    QCOMPARE(Totals(Find(0)), QByteArray(" 0| | 0:00:00| 0:00"));
}

void RunSearchTest::ADayWithoutDistanceIsNoRun()
{
    PutRuns(3);
    Giorni[2].Km = 0;
    QCOMPARE(Dates(Find(3)), (QByteArrayList{"01/01", "03/01"}));
}

void RunSearchTest::MetresAloneAreARun()
{
    PutRun(1, 0, 500, "0:02:30", "5:00");
    QCOMPARE(Totals(Find(1)), QByteArray(" 1| ,500| 0:02:30| 5:00"));
    QCOMPARE(Bytes(Find(1).lines[0]), QByteArray("  0,500   0:02:30     5:00      01/01/2026 "));
}

void RunSearchTest::BothEndsAreInsideThePeriod_data()
{
    QTest::addColumn<CalendarDate>("from");
    QTest::addColumn<CalendarDate>("to");
    QTest::addColumn<QByteArrayList>("found");
    const CalendarDate none;
    const auto january = [](unsigned day) { return CalendarDate(2026, 1, day); };
    QTest::newRow("start and end") << january(2) << january(4) << QByteArrayList{"02/01", "03/01", "04/01"};
    QTest::newRow("a start alone") << january(5) << none << QByteArrayList{"05/01", "06/01"};
    QTest::newRow("an end alone") << none << january(2) << QByteArrayList{"01/01", "02/01"};
    QTest::newRow("one day") << january(3) << january(3) << QByteArrayList{"03/01"};
    QTest::newRow("an end after the day shown")
        << january(5) << CalendarDate(2026, 12, 31) << QByteArrayList{"05/01", "06/01"};
    QTest::newRow("another year") << CalendarDate(2025, 1, 2) << CalendarDate(2025, 1, 4) << QByteArrayList{};
}

void RunSearchTest::BothEndsAreInsideThePeriod()
{
    QFETCH(CalendarDate, from);
    QFETCH(CalendarDate, to);
    PutRuns(8);
    SearchCriteria conditions;
    const CalendarDate none;
    if (from != none) {
        conditions.GiornoInizio = from.Day();
        conditions.MeseInizio = from.Month();
        conditions.AnnoInizio = from.Year();
    }
    if (to != none) {
        conditions.GiornoFine = to.Day();
        conditions.MeseFine = to.Month();
        conditions.AnnoFine = to.Year();
    }
    QTEST(Dates(Find(6, conditions)), "found");
}

void RunSearchTest::EachConditionAlone_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QByteArray>("wanted");
    const char* const wanted[] = {"LUNGOFIUME \xC8", "medio", " 7,50",   "lento", "ASFALTO", "gara",
                                  "estate",          "SOLE",  "torrido", "3",     "72",      "10 x 400  @ 1:20"};
    for (int i = 0; i < 12; ++i) {
        QTest::newRow(wanted[i]) << i << QByteArray(wanted[i]);
    }
}

void RunSearchTest::EachConditionAlone()
{
    // The second day is the one sought, the third spells every word in another way.
    QFETCH(int, row);
    QFETCH(QByteArray, wanted);
    PutRuns(4);
    RecordGiorno& giorno = Giorni[2];
    giorno.Percorso = "Lungofiume \xE8";
    giorno.Lunghezza = "Medio";
    giorno.Km = 7;
    giorno.Metri = 50;
    giorno.Modo = "Lento";
    giorno.Fondo = "Asfalto";
    giorno.Tipo = "Gara";
    giorno.Stagione = "Estate";
    giorno.TempoAtm = "Sole";
    giorno.Temperatura = "Torrido";
    giorno.Corridori = 3;
    giorno.Peso = 72;
    giorno.Ripetizioni = 10;
    giorno.RipetizioniDistanza = 400;
    giorno.RipetizioniQuante = 1;
    giorno.RipetizioniTempi = 20;
    const CalendarDate date = Giorni[3].Data;
    Giorni[3] = giorno;
    Giorni[3].Data = date;
    for (Text* text : {&Giorni[3].Percorso, &Giorni[3].Lunghezza, &Giorni[3].Modo, &Giorni[3].Fondo, &Giorni[3].Tipo,
                       &Giorni[3].Stagione, &Giorni[3].TempoAtm, &Giorni[3].Temperatura}) {
        *text += " ";
    }
    Giorni[3].Metri = 500;
    Giorni[3].Corridori = 2;
    Giorni[3].Peso = 73;
    Giorni[3].RipetizioniTempi = 2;

    SearchCriteria conditions;
    std::visit(Overloaded{[&](Text SearchCriteria::*text) { conditions.*text = TextOf(wanted); },
                          [&](i16 SearchCriteria::*number) { conditions.*number = wanted.toInt(); }},
               StatisticOf(static_cast<Categoria>(row)).criterion);
    QCOMPARE(Dates(Find(4, conditions)), QByteArrayList{"02/01"});
}

void RunSearchTest::ConditionsMeet()
{
    PutRuns(5);
    for (int day = 1; day <= 5; ++day) {
        Giorni[day].Percorso = day <= 4 ? "Alfa" : "Beta";
        Giorni[day].Tipo = day >= 2 ? "Gara" : "Lento";
        Giorni[day].Corridori = day == 3 ? 5 : 1;
    }
    SearchCriteria conditions;
    conditions.CercaPercorso = "Alfa";
    conditions.CercaTipo = "Gara";
    conditions.CercaCorridori = 1;
    conditions.GiornoFine = 3;
    conditions.MeseFine = 1;
    conditions.AnnoFine = 2026;
    QCOMPARE(Dates(Find(5, conditions)), QByteArrayList{"02/01"});
}

void RunSearchTest::ARunWithoutATimePullsTheMeanDown()
{
    PutRuns(2);
    PutRun(2, 5, 0, "", "");
    const SearchResult result = Find(2);
    QCOMPARE(Totals(result), QByteArray(" 2| 15| 0:50:00| 2:30"));
    QCOMPARE(result.totals.Medie[1], 5.0F);
    QCOMPARE(result.totals.Medie[2], 0.0F);
    QCOMPARE(Told(result), QByteArrayList());
    QCOMPARE(Bytes(result.lines[1]), QByteArray("  5,0                           02/01/2026 "));
}

void RunSearchTest::TooLongATimeIsToldAndLeftOut()
{
    PutRuns(3);
    Giorni[2].TempoImpiegato = "1:0000:59";
    const SearchResult result = Find(3);
    QCOMPARE(Told(result), QByteArrayList{"Somma Tempi - ERRORE : 5 Argomento non valido"});
    QCOMPARE(Totals(result), QByteArray(" 3| 30| 1:40:00| 5:00"));
    QCOMPARE(Bytes(result.lines[1]), QByteArray(" 10,0     1:0000:59   5:00      02/01/2026 "));
    QVERIFY(!result.ended);
}

void RunSearchTest::TooLongAnAverageIsToldAndLeftOut()
{
    PutRuns(3);
    Giorni[1].MediaKm = "12:00";
    Giorni[2].MediaKm = "1234:56";
    const SearchResult result = Find(3);
    QCOMPARE(Told(result), QByteArrayList{"Somma Media - ERRORE : 5 Argomento non valido"});
    // 17 minutes over three runs.
    QCOMPARE(Totals(result), QByteArray(" 3| 30| 2:30:00| 5:40"));
    QCOMPARE(result.totals.Medie[2], 0.0F);
    // The minutes read last place the average of the line.
    QCOMPARE(Bytes(result.lines[0]), QByteArray(" 10,0     0:50:00    12:00      01/01/2026 "));
    QCOMPARE(Bytes(result.lines[1]), QByteArray(" 10,0     0:50:00    1234:56    02/01/2026 "));
    QCOMPARE(Bytes(result.lines[2]), QByteArray(" 10,0     0:50:00     5:00      03/01/2026 "));
}

void RunSearchTest::APeriodThatIsNoDateEndsTheSearch()
{
    PutRuns(3);
    SearchCriteria conditions;
    conditions.GiornoInizio = 31;
    conditions.MeseInizio = 4;
    conditions.AnnoInizio = 2026;
    const SearchResult result = Find(3, conditions);
    QVERIFY(result.ended);
    QCOMPARE(Told(result), QByteArrayList{"Ricerca Medie - ERRORE : 13 Tipo non corrispondente"});
    QCOMPARE(result.lines.size(), std::size_t{0});
    QCOMPARE(Totals(result), QByteArray(" 0| | 0:00:00| 0:00"));
}

void RunSearchTest::KilometresAndMetresBeyondAnInteger()
{
    PutRuns(3);
    Giorni[2].Km = 32767;
    Giorni[2].Metri = 1;
    const SearchResult result = Find(3);
    QVERIFY(result.ended);
    QCOMPARE(Told(result), QByteArrayList{"Ricerca Medie - ERRORE : 6 Numero oltre i limiti"});
    QCOMPARE(Dates(result), QByteArrayList{"01/01"});
}

void RunSearchTest::MoreThan350Runs()
{
    PutRuns(366);
    for (int day = 351; day <= 366; ++day) {
        Giorni[day].MediaKm = "6:30";
    }
    const SearchResult all = Find(366);
    QCOMPARE(int{all.totals.NumCorse.value()}, 366);
    QCOMPARE(all.totals.Medie[350], 5.0F);
    QCOMPARE(all.totals.Medie[366], 6.3F);
    // The next search empties the first 350 places and leaves those after them.
    SearchTotals totals = all.totals;
    ClearTotals(totals);
    const SearchResult few = FindRuns(Giorni, 10, {}, totals);
    QCOMPARE(int{few.totals.NumCorse.value()}, 10);
    QCOMPARE(few.totals.Medie[10], 5.0F);
    QCOMPARE(few.totals.Medie[11], 0.0F);
    QCOMPARE(few.totals.Medie[350], 0.0F);
    QCOMPARE(few.totals.Medie[351], 6.3F);
    QCOMPARE(few.totals.Medie[366], 6.3F);
}

void RunSearchTest::Lines_data()
{
    QTest::addColumn<int>("km");
    QTest::addColumn<int>("metres");
    QTest::addColumn<QByteArray>("time");
    QTest::addColumn<QByteArray>("average");
    QTest::addColumn<int>("minutes");
    QTest::addColumn<QByteArray>("line");
    //                                                                                  1...5....0....5....0....5....0....5....0....
    QTest::newRow("one digit") << 7 << 500 << QByteArray("0:41:15") << QByteArray("5:30") << 5
                               << QByteArray("  7,500   0:41:15     5:30      10/01/2026 ");
    QTest::newRow("two digits") << 21 << 97 << QByteArray("12:00:45") << QByteArray("10:05") << 10
                                << QByteArray(" 21,97    12:00:45   10:05      10/01/2026 ");
    QTest::newRow("nothing but a distance")
        << 9 << 0 << QByteArray() << QByteArray() << 0 << QByteArray("  9,0                           10/01/2026 ");
    QTest::newRow("too long a time is written over")
        << 9 << 0 << QByteArray("12345678901234567890") << QByteArray("5:30") << 5
        << QByteArray("  9,0     1234567890125:307890  10/01/2026 ");
}

void RunSearchTest::Lines()
{
    QFETCH(int, km);
    QFETCH(int, metres);
    QFETCH(QByteArray, time);
    QFETCH(QByteArray, average);
    QFETCH(int, minutes);
    PutRun(10, km, metres, time, average);
    QTEST(Bytes(RunLine(Giorni[10], minutes)), "line");
}

ZELVIA_TEST(RunSearchTest)
#include "RunSearchTest.moc"
