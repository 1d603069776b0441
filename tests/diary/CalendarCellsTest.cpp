// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The values of the calendar as the boxes of its window show and hold them, and as the day page tells them.
#include "diary/CalendarCells.h"

#include "diary/CalendarModel.h"
#include "diary/RaceTexts.h"
#include "support/Bytes.h"

#include <QTest>

using namespace zelvia;
using namespace zelvia::Module1;
using zelvia::CalendarGrid::Casella;
using zelvia::test::Bytes;
using zelvia::test::RaisedBy;
using zelvia::test::TextOf;

Q_DECLARE_METATYPE(Casella)

class CalendarCellsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { AzzeraCalendario(); }
    void NumbersAreShown_data();
    void NumbersAreShown();
    void ADateIsShownWithItsDayOnly();
    void TextsAreShown();
    void BoxesAreTaken_data();
    void BoxesAreTaken();
    void ANumberBeyondItsColumn_data();
    void ANumberBeyondItsColumn();
    void Differences_data();
    void Differences();
    void RowsAreBounded();
    void RaceOnThePage_data();
    void RaceOnThePage();
};

namespace
{

/// The number that a row of a column holds.
int Held(Casella casella, int row)
{
    switch (casella) {
    case Casella::Giorno: return GiornoGara[row].value();
    case Casella::Mese: return MeseGara[row].value();
    case Casella::Anno: return AnnoGara[row].value();
    case Casella::Km: return KmGara[row].value();
    case Casella::Metri: return MetriGara[row].value();
    case Casella::Partecipanti: return Partecipanti[row].value();
    case Casella::Risultato: return Risultato[row].value();
    case Casella::Ore: return OreGara[row].value();
    case Casella::Minuti: return MinutiGara[row].value();
    case Casella::Secondi: return SecondiGara[row].value();
    case Casella::RisultatoCat: return RisultatoCat[row].value();
    default: qFatal("a column of texts");
    }
}

QByteArray HeldText(Casella casella, int row)
{
    return Bytes(casella == Casella::Gara ? Gara[row] : casella == Casella::Localita ? Localita[row] : Categoria[row]);
}

} // namespace

void CalendarCellsTest::NumbersAreShown_data()
{
    QTest::addColumn<Casella>("box");
    QTest::addColumn<int>("value");
    QTest::addColumn<QByteArray>("shown");
    const auto row = [](const char* name, Casella box, int value, const char* shown) {
        QTest::addRow("%s %d", name, value) << box << value << QByteArray(shown);
    };
    row("km", Casella::Km, 0, "");
    row("km", Casella::Km, 5, "5");
    row("km", Casella::Km, 42, "42");
    row("metres", Casella::Metri, 0, "");
    row("metres", Casella::Metri, 5, "005");
    row("metres", Casella::Metri, 97, "097");
    row("metres", Casella::Metri, 500, "500");
    row("runners", Casella::Partecipanti, 0, "");
    row("runners", Casella::Partecipanti, 999, "999");
    row("runners", Casella::Partecipanti, 1234, "1.234");
    row("runners", Casella::Partecipanti, 999999, "999.999");
    row("placing", Casella::Risultato, 1131, "1.131");
    row("hours", Casella::Ore, 0, "");
    row("hours", Casella::Ore, 1, "1");
    row("minutes", Casella::Minuti, 0, "");
    row("minutes", Casella::Minuti, 5, "05");
    row("minutes", Casella::Minuti, 45, "45");
    row("seconds", Casella::Secondi, 0, "");
    row("seconds", Casella::Secondi, 9, "09");
    row("placing in the category", Casella::RisultatoCat, 12345, "12.345");
}

void CalendarCellsTest::NumbersAreShown()
{
    QFETCH(Casella, box);
    QFETCH(int, value);
    QFETCH(QByteArray, shown);
    AssegnaCasella(box, 57, TextOf(QByteArray::number(value)));
    QCOMPARE(Held(box, 57), value);
    QCOMPARE(Bytes(TestoCasella(box, 57)), shown);
    QCOMPARE(Bytes(TestoCasella(box, 58)), QByteArray());
}

void CalendarCellsTest::ADateIsShownWithItsDayOnly()
{
    const auto shown = [] {
        return Bytes(TestoCasella(Casella::Giorno, 1) + "/" + TestoCasella(Casella::Mese, 1) + "/" +
                     TestoCasella(Casella::Anno, 1));
    };
    QCOMPARE(shown(), QByteArray("//"));
    MeseGara[1] = 5;
    AnnoGara[1] = 2026;
    QCOMPARE(shown(), QByteArray("//"));
    GiornoGara[1] = 7;
    QCOMPARE(shown(), QByteArray("7/5/2026"));
    MeseGara[1] = 0;
    QCOMPARE(shown(), QByteArray("7//2026"));
    GiornoGara[1] = -7;
    QCOMPARE(shown(), QByteArray("//"));
}

void CalendarCellsTest::TextsAreShown()
{
    Gara[3] = "corsa DEI Santi";
    Localita[3] = "Citt\xE0";
    Categoria[3] = "S50";
    QCOMPARE(Bytes(TestoCasella(Casella::Gara, 3)), QByteArray("corsa DEI Santi"));
    QCOMPARE(Bytes(TestoCasella(Casella::Localita, 3)), QByteArray("Citt\xE0"));
    QCOMPARE(Bytes(TestoCasella(Casella::Categoria, 3)), QByteArray("S50"));
}

void CalendarCellsTest::BoxesAreTaken_data()
{
    QTest::addColumn<Casella>("box");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("held");
    const auto row = [](const char* name, Casella box, const char* text, const char* held) {
        QTest::newRow(name) << box << QByteArray(text) << QByteArray(held);
    };
    row("day", Casella::Giorno, "31", "31");
    row("day, empty", Casella::Giorno, "", "0");
    row("month", Casella::Mese, "07", "7");
    row("year", Casella::Anno, "2026", "2026");
    row("name", Casella::Gara, "Mezza del Lago", "Mezza del Lago");
    row("place", Casella::Localita, " Lago ", " Lago ");
    row("km", Casella::Km, "42", "42");
    row("metres", Casella::Metri, "097", "97");
    row("runners with their dot", Casella::Partecipanti, "1.234", "1234");
    row("runners without", Casella::Partecipanti, "1234", "1234");
    row("runners, two dots", Casella::Partecipanti, "1.2.5", "12"); // 12.5 rounds to the even number.
    row("placing", Casella::Risultato, "999.999", "999999");
    row("hours", Casella::Ore, "1", "1");
    row("minutes", Casella::Minuti, "05", "5");
    row("seconds", Casella::Secondi, "00", "0");
    row("category", Casella::Categoria, "S50", "S50");
    row("placing in the category", Casella::RisultatoCat, "1.000", "1000");
    row("pasted letters", Casella::Km, "ab", "0");
    row("pasted, half a number", Casella::Metri, "1.5", "2");
}

void CalendarCellsTest::BoxesAreTaken()
{
    QFETCH(Casella, box);
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, held);
    AssegnaCasella(box, 100, TextOf(text));
    const bool words = box == Casella::Gara || box == Casella::Localita || box == Casella::Categoria;
    QCOMPARE(words ? HeldText(box, 100) : QByteArray::number(Held(box, 100)), held);
    QVERIFY(NumeroGara[100] == 100);
}

void CalendarCellsTest::ANumberBeyondItsColumn_data()
{
    QTest::addColumn<Casella>("box");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("km") << Casella::Km << QByteArray("32768");
    QTest::newRow("year") << Casella::Anno << QByteArray("99999");
    QTest::newRow("runners") << Casella::Partecipanti << QByteArray("2147483648");
}

void CalendarCellsTest::ANumberBeyondItsColumn()
{
    QFETCH(Casella, box);
    QFETCH(QByteArray, text);
    AssegnaCasella(box, 1, "5");
    QCOMPARE(RaisedBy([&] { AssegnaCasella(box, 1, TextOf(text)); }), 6);
    QCOMPARE(Held(box, 1), 5);
}

void CalendarCellsTest::Differences_data()
{
    QTest::addColumn<Casella>("box");
    QTest::addColumn<QByteArray>("held");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("differs");
    const auto row = [](const char* name, Casella box, const char* held, const char* text, bool differs) {
        QTest::newRow(name) << box << QByteArray(held) << QByteArray(text) << differs;
    };
    row("day", Casella::Giorno, "7", "7", false);
    row("day with a zero", Casella::Giorno, "7", "07", false);
    row("another day", Casella::Giorno, "7", "8", true);
    row("month emptied", Casella::Mese, "7", "", true);
    row("nothing and 0", Casella::Mese, "0", "", false);
    row("metres", Casella::Metri, "97", "097", false);
    row("half a metre", Casella::Metri, "2", "1.5", true);
    row("runners with their dot", Casella::Partecipanti, "1234", "1.234", false);
    row("runners without", Casella::Partecipanti, "1234", "1234", false);
    row("other runners", Casella::Partecipanti, "1234", "1.235", true);
    row("placing", Casella::Risultato, "1131", "1.131", false);
    row("placing in the category", Casella::RisultatoCat, "1131", "1.132", true);
    row("name", Casella::Gara, "Stracitt\xE0", "STRACITT\xC0", false);
    row("another name", Casella::Gara, "Corrida", "Corrido", true);
    row("a blank more", Casella::Localita, "Lago", "Lago ", true);
    row("category", Casella::Categoria, "mm45", "MM45", false);
}

void CalendarCellsTest::Differences()
{
    QFETCH(Casella, box);
    QFETCH(QByteArray, held);
    QFETCH(QByteArray, text);
    QFETCH(bool, differs);
    AssegnaCasella(box, 20, TextOf(held));
    QCOMPARE(CasellaDiversa(box, 20, TextOf(text)), differs);
}

void CalendarCellsTest::RowsAreBounded()
{
    QCOMPARE(RaisedBy([] { (void)TestoCasella(Casella::Km, 101); }), 9);
    QCOMPARE(RaisedBy([] { AssegnaCasella(Casella::Gara, -1, "x"); }), 9);
    QCOMPARE(RaisedBy([] { (void)CasellaDiversa(Casella::Km, 101, ""); }), 9);
    QCOMPARE(RaisedBy([] { (void)TestiDellaGara(101); }), 9);
}

void CalendarCellsTest::RaceOnThePage_data()
{
    QTest::addColumn<QByteArrayList>("values"); // Km, metres, runners, h, m, s, placing, placing in the category.
    QTest::addColumn<QByteArray>("shown");
    const auto row = [](const char* name, const char* values, const char* shown) {
        QTest::newRow(name) << QByteArray(values).split(' ') << QByteArray(shown);
    };
    row("10 km and 50 m", "10 50 0 0 0 0 0 0", "10,50||0:00:00||");
    row("5 km", "5 0 0 0 0 0 0 0", "5,0||0:00:00||");
    row("800 m", "0 800 0 0 0 0 0 0", "0,800||0:00:00||");
    row("no length", "0 0 0 0 0 0 0 0", "0,0||0:00:00||");
    row("a marathon", "42 195 12345 3 5 9 1234 56", "42,195|12.345|3:05:09|1.234|56");
    row("under an hour", "10 0 999 0 45 30 999999 1000", "10,0|999|0:45:30|999.999|1.000");
    row("25 hours", "99 999 1000 25 0 1 1 1", "99,999|1.000|25:00:01|1|1");
}

void CalendarCellsTest::RaceOnThePage()
{
    QFETCH(QByteArrayList, values);
    QFETCH(QByteArray, shown);
    const Casella boxes[] = {Casella::Km,     Casella::Metri,   Casella::Partecipanti, Casella::Ore,
                             Casella::Minuti, Casella::Secondi, Casella::Risultato,    Casella::RisultatoCat};
    for (std::size_t i = 0; i < std::size(boxes); ++i) {
        AssegnaCasella(boxes[i], 8, TextOf(values[static_cast<qsizetype>(i)]));
    }
    Gara[8] = "stracitt\xE0";
    Localita[8] = " LAGO";
    Categoria[8] = "S50 ";
    const TestiGara testi = TestiDellaGara(8);
    QCOMPARE(Bytes(testi.lunghezza + "|" + testi.partecipanti + "|" + testi.tempo + "|" + testi.risultato + "|" +
                   testi.risultatoCat),
             shown);
    QCOMPARE(Bytes(testi.gara + "|" + testi.localita + "|" + testi.categoria), QByteArray("stracitt\xE0| LAGO|S50 "));
}

QTEST_APPLESS_MAIN(CalendarCellsTest)
#include "CalendarCellsTest.moc"
