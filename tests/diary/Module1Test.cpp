// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/Module1.h"

#include "core/Conversions.h"
#include "diary/Fields.h"
#include "support/Bytes.h"
#include "support/Days.h"
#include "support/MessageScript.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace zelvia;
using namespace zelvia::test;

class Module1Test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { ForgetDays(); }
    void BlankYear_data();
    void BlankYear();
    void BlankYearOverAFullOne();
    void BlankYearBeyondTheDatesOfThePage();
    void ABlankedDayKeepsNumberAndDate();
    void BlankingOutOfBoundsIsReported_data();
    void BlankingOutOfBoundsIsReported();
    void DaysOutOfBoundsAreRefused();
    void StateAtStart();
    void AnyChangeMakesDaysDiffer();
};

namespace
{

/// A day with no field at its blank value.
RecordGiorno FullDay()
{
    RecordGiorno day;
    day.NumGiorno = 60;
    day.Data = CalendarDate(2003, 3, 1);
    day.Percorso = "Lungofiume";
    day.Lunghezza = "Medio";
    day.Km = 10;
    day.Metri = 500;
    day.Modo = "Lenta";
    day.Fondo = "Strada";
    day.Tipo = "Gara";
    day.OraInizio = 17;
    day.MinutiInizio = 35;
    day.SecondiInizio = 1;
    day.OraFine = 18;
    day.MinutiFine = 32;
    day.SecondiFine = 38;
    day.TempoImpiegato = "0:57:37";
    day.MediaKm = "5:45";
    for (int i = 0; i <= 100; ++i) {
        day.ListaKm[i] = "x";
    }
    day.Stagione = "Estate";
    day.TempoAtm = "Sole";
    day.Temperatura = "Caldo";
    day.Corridori = 400;
    day.Peso = 70;
    day.Ripetizioni = 5;
    day.RipetizioniDistanza = 1000;
    day.RipetizioniQuante = 4;
    day.RipetizioniTempi = 30;
    for (Text& line : day.Note) {
        line = "y";
    }
    return day;
}

void CheckBlank(const RecordGiorno& day)
{
    for (const Text* text : {&day.Percorso, &day.Lunghezza, &day.Modo, &day.Fondo, &day.Tipo, &day.TempoImpiegato,
                             &day.MediaKm, &day.Stagione, &day.TempoAtm, &day.Temperatura}) {
        QVERIFY(text->empty());
    }
    for (const i16 number : {day.Km, day.Metri, day.OraInizio, day.MinutiInizio, day.SecondiInizio, day.OraFine,
                             day.MinutiFine, day.SecondiFine, day.Peso, day.Ripetizioni, day.RipetizioniDistanza,
                             day.RipetizioniQuante, day.RipetizioniTempi}) {
        QCOMPARE(int{number.value()}, 0);
    }
    QCOMPARE(day.Corridori.value(), 1);
    for (int i = 0; i <= 100; ++i) {
        QVERIFY(day.ListaKm[i].empty());
    }
    for (int i = 1; i <= 10; ++i) {
        QVERIFY(day.Note[i].empty());
    }
}

} // namespace

void Module1Test::BlankYear_data()
{
    QTest::addColumn<int>("year");
    QTest::addColumn<int>("slot");
    QTest::addColumn<QByteArray>("date");
    QTest::newRow("2008, slot 1") << 2008 << 1 << QByteArray("01/01/2008");
    QTest::newRow("2008, slot 59") << 2008 << 59 << QByteArray("28/02/2008");
    QTest::newRow("2008, slot 60") << 2008 << 60 << QByteArray("29/02/2008");
    QTest::newRow("2008, slot 61") << 2008 << 61 << QByteArray("01/03/2008");
    QTest::newRow("2008, slot 366") << 2008 << 366 << QByteArray("31/12/2008");
    QTest::newRow("2007, slot 1") << 2007 << 1 << QByteArray("01/01/2007");
    QTest::newRow("2007, slot 60") << 2007 << 60 << QByteArray("01/03/2007");
    QTest::newRow("2007, slot 365") << 2007 << 365 << QByteArray("31/12/2007");
    QTest::newRow("2007, slot 366") << 2007 << 366 << QByteArray("01/01/2008");
}

void Module1Test::BlankYear()
{
    QFETCH(int, year);
    QFETCH(int, slot);
    QFETCH(QByteArray, date);
    MessageScript boxes;
    const FixedClock clock(CalendarDate(year, 8, 15));
    Module1::AzzeraAnno();
    const RecordGiorno& day = Module1::Giorni[slot];
    QCOMPARE(int{day.NumGiorno.value()}, slot);
    QCOMPARE(Bytes(PlainText(day.Data)), date);
    CheckBlank(day);
    QCOMPARE(boxes.Shown(), 0);
}

void Module1Test::BlankYearOverAFullOne()
{
    MessageScript boxes;
    for (RecordGiorno& day : Module1::Giorni) {
        day = FullDay();
    }
    Module1::FileModificato = 1;
    Module1::DataCorrente = CalendarDate(2007, 5, 5);
    const FixedClock clock(CalendarDate(2007, 12, 31));
    Module1::AzzeraAnno();
    for (int slot = 1; slot <= 366; ++slot) {
        const RecordGiorno& day = Module1::Giorni[slot];
        QCOMPARE(int{day.NumGiorno.value()}, slot);
        QVERIFY(day.Data == CalendarDate(2007, 1, 1).PlusDays(slot - 1));
        CheckBlank(day);
        QCOMPARE(Bytes(day.Note[0]), QByteArray("y"));
    }
    QVERIFY(Module1::Giorni[0] == FullDay());
    QVERIFY(Module1::FileModificato == 1);
    QVERIFY(Module1::DataCorrente == CalendarDate(2007, 5, 5));
}

void Module1Test::BlankYearBeyondTheDatesOfThePage()
{
    MessageScript boxes;
    for (const int year : {1999, 2000, 2100, 2150}) {
        const FixedClock clock(CalendarDate(year, 6, 1));
        Module1::AzzeraAnno();
        QVERIFY(Module1::Giorni[1].Data == CalendarDate(year, 1, 1));
    }
    QVERIFY(Module1::Giorni[366].Data == CalendarDate(2151, 1, 1));
}

void Module1Test::ABlankedDayKeepsNumberAndDate()
{
    MessageScript boxes;
    Module1::Giorni[7] = FullDay();
    Module1::Giorni[6] = FullDay();
    Module1::Giorni[8] = FullDay();
    Module1::AzzeraRecordGiorno(7);
    const RecordGiorno& day = Module1::Giorni[7];
    QCOMPARE(int{day.NumGiorno.value()}, 60);
    QVERIFY(day.Data == CalendarDate(2003, 3, 1));
    CheckBlank(day);
    QCOMPARE(Bytes(day.Note[0]), QByteArray("y"));
    QVERIFY(Module1::Giorni[6] == FullDay());
    QVERIFY(Module1::Giorni[8] == FullDay());
    QVERIFY(Module1::FileModificato == 0);
}

void Module1Test::BlankingOutOfBoundsIsReported_data()
{
    QTest::addColumn<int>("slot");
    QTest::newRow("367") << 367;
    QTest::newRow("-1") << -1;
    QTest::newRow("32767") << 32767;
    QTest::newRow("-32768") << -32768;
}

void Module1Test::BlankingOutOfBoundsIsReported()
{
    QFETCH(int, slot);
    MessageScript boxes;
    boxes.ExpectError("ERRORE : ", 9);
    const std::vector<RecordGiorno> before = AllDays();
    Module1::AzzeraRecordGiorno(slot);
    QVERIFY(boxes.AllShown());
    QVERIFY(AllDays() == before);
}

void Module1Test::DaysOutOfBoundsAreRefused()
{
    QCOMPARE(RaisedBy([] { (void)Module1::Giorni[367]; }), 9);
    QCOMPARE(RaisedBy([] { (void)Module1::Giorni[-1]; }), 9);
    QCOMPARE(RaisedBy([] { (void)Module1::Giorni[0]; }), 0);
    QCOMPARE(RaisedBy([] { (void)Module1::Giorni[366]; }), 0);
    QCOMPARE(RaisedBy([] { (void)Module1::Giorni[1].ListaKm[100]; }), 0);
    QCOMPARE(RaisedBy([] { (void)Module1::Giorni[1].ListaKm[101]; }), 9);
    QCOMPARE(RaisedBy([] { (void)Module1::Giorni[1].Note[10]; }), 0);
    QCOMPARE(RaisedBy([] { (void)Module1::Giorni[1].Note[11]; }), 9);
}

void Module1Test::StateAtStart()
{
    Module1::GiornoCorrente = 5;
    Module1::FileModificato = 1;
    Module1::CartellaDiario = "\\x";
    Module1::NomeTabellaAttiva = "\\x\\a.tab";
    Module1::NomeTabellaAperta = "\\x\\b.tab";
    Module1::FlagTabellaSalvata = 1;
    Module1::IndiceTabella = 31;
    Module1::PercorsoCorrente = "Lungofiume";
    Module1::AzzeraStato();
    QVERIFY(Module1::GiornoCorrente == 0);
    QVERIFY(Module1::FileModificato == 0);
    QVERIFY(Module1::CartellaDiario.empty());
    QVERIFY(Module1::NomeTabellaAttiva.empty());
    QVERIFY(Module1::NomeTabellaAperta.empty());
    QVERIFY(Module1::FlagTabellaSalvata == 0);
    QVERIFY(Module1::IndiceTabella == 0);
    QVERIFY(Module1::PercorsoCorrente.empty());
}

void Module1Test::AnyChangeMakesDaysDiffer()
{
    const std::vector<std::string> before = LinesOfDay(FullDay());
    QCOMPARE(before.size(), std::size_t{136});
    int values = 0;
    RecordGiorno visited = FullDay();
    VisitDiaryValues(visited, [&](const auto& value) {
        QCOMPARE(LineOf(value), before[static_cast<std::size_t>(values)]);
        ++values;
    });
    QCOMPARE(values, 136);
    RecordGiorno other = FullDay();
    other.ListaKm[100] = "z";
    QVERIFY(!(other == FullDay()));
    QVERIFY(LinesOfDay(other) == before);
}

ZELVIA_TEST(Module1Test)
#include "Module1Test.moc"
