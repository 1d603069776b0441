// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The values of the calendar as the boxes of its window show and hold them, and as the day page shows them.
#include "diary/CalendarModel.h"
#include "support/Bytes.h"
#include "support/TestProgram.h"
#include "windows/races/RaceColumns.h"

#include <QTest>

using namespace zelvia;
using namespace zelvia::Module1;
using zelvia::CalendarGrid::RaceColumn;
using zelvia::test::Bytes;
using zelvia::test::RaisedBy;
using zelvia::test::TextOf;

Q_DECLARE_METATYPE(RaceColumn)

class CellsTest : public QObject
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

void Take(RaceColumn column, int race, TextView text)
{
    const GridColumn& taken = CalendarGrid::kRaceColumns[column];
    SetCell(taken.cell(race), text, taken.format);
}

/// The number that a row of a column holds.
int Held(RaceColumn column, int row)
{
    switch (column) {
    case RaceColumn::Giorno: return GiornoGara[row].value();
    case RaceColumn::Mese: return MeseGara[row].value();
    case RaceColumn::Anno: return AnnoGara[row].value();
    case RaceColumn::Km: return KmGara[row].value();
    case RaceColumn::Metri: return MetriGara[row].value();
    case RaceColumn::Partecipanti: return Partecipanti[row].value();
    case RaceColumn::Risultato: return Risultato[row].value();
    case RaceColumn::Ore: return OreGara[row].value();
    case RaceColumn::Minuti: return MinutiGara[row].value();
    case RaceColumn::Secondi: return SecondiGara[row].value();
    case RaceColumn::RisultatoCat: return RisultatoCat[row].value();
    default: qFatal("a column of texts");
    }
}

QByteArray HeldText(RaceColumn column, int row)
{
    return Bytes(column == RaceColumn::Gara       ? Gara[row]
                 : column == RaceColumn::Localita ? Localita[row]
                                                  : Categoria[row]);
}

} // namespace

void CellsTest::NumbersAreShown_data()
{
    QTest::addColumn<RaceColumn>("box");
    QTest::addColumn<int>("value");
    QTest::addColumn<QByteArray>("shown");
    const auto row = [](const char* name, RaceColumn box, int value, const char* shown) {
        QTest::addRow("%s %d", name, value) << box << value << QByteArray(shown);
    };
    row("km", RaceColumn::Km, 0, "");
    row("km", RaceColumn::Km, 5, "5");
    row("km", RaceColumn::Km, 42, "42");
    row("metres", RaceColumn::Metri, 0, "");
    row("metres", RaceColumn::Metri, 5, "005");
    row("metres", RaceColumn::Metri, 97, "097");
    row("metres", RaceColumn::Metri, 500, "500");
    row("runners", RaceColumn::Partecipanti, 0, "");
    row("runners", RaceColumn::Partecipanti, 999, "999");
    row("runners", RaceColumn::Partecipanti, 1234, "1.234");
    row("runners", RaceColumn::Partecipanti, 999999, "999.999");
    row("placing", RaceColumn::Risultato, 1131, "1.131");
    row("hours", RaceColumn::Ore, 0, "");
    row("hours", RaceColumn::Ore, 1, "1");
    row("minutes", RaceColumn::Minuti, 0, "");
    row("minutes", RaceColumn::Minuti, 5, "05");
    row("minutes", RaceColumn::Minuti, 45, "45");
    row("seconds", RaceColumn::Secondi, 0, "");
    row("seconds", RaceColumn::Secondi, 9, "09");
    row("placing in the category", RaceColumn::RisultatoCat, 12345, "12.345");
}

void CellsTest::NumbersAreShown()
{
    QFETCH(RaceColumn, box);
    QFETCH(int, value);
    QFETCH(QByteArray, shown);
    Take(box, 57, TextOf(QByteArray::number(value)));
    QCOMPARE(Held(box, 57), value);
    QCOMPARE(Bytes(RaceText(box, 57)), shown);
    QCOMPARE(Bytes(RaceText(box, 58)), QByteArray());
}

void CellsTest::ADateIsShownWithItsDayOnly()
{
    const auto shown = [] {
        return Bytes(RaceText(RaceColumn::Giorno, 1) + "/" + RaceText(RaceColumn::Mese, 1) + "/" +
                     RaceText(RaceColumn::Anno, 1));
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

void CellsTest::TextsAreShown()
{
    Gara[3] = "corsa DEI Santi";
    Localita[3] = "Citt\xE0";
    Categoria[3] = "S50";
    QCOMPARE(Bytes(RaceText(RaceColumn::Gara, 3)), QByteArray("corsa DEI Santi"));
    QCOMPARE(Bytes(RaceText(RaceColumn::Localita, 3)), QByteArray("Citt\xE0"));
    QCOMPARE(Bytes(RaceText(RaceColumn::Categoria, 3)), QByteArray("S50"));
}

void CellsTest::BoxesAreTaken_data()
{
    QTest::addColumn<RaceColumn>("box");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("held");
    const auto row = [](const char* name, RaceColumn box, const char* text, const char* held) {
        QTest::newRow(name) << box << QByteArray(text) << QByteArray(held);
    };
    row("day", RaceColumn::Giorno, "31", "31");
    row("day, empty", RaceColumn::Giorno, "", "0");
    row("month", RaceColumn::Mese, "07", "7");
    row("year", RaceColumn::Anno, "2026", "2026");
    row("name", RaceColumn::Gara, "Mezza del Lago", "Mezza del Lago");
    row("place", RaceColumn::Localita, " Lago ", " Lago ");
    row("km", RaceColumn::Km, "42", "42");
    row("metres", RaceColumn::Metri, "097", "97");
    row("runners with their dot", RaceColumn::Partecipanti, "1.234", "1234");
    row("runners without", RaceColumn::Partecipanti, "1234", "1234");
    row("runners, two dots", RaceColumn::Partecipanti, "1.2.5", "12"); // 12.5 rounds to the even number.
    row("placing", RaceColumn::Risultato, "999.999", "999999");
    row("hours", RaceColumn::Ore, "1", "1");
    row("minutes", RaceColumn::Minuti, "05", "5");
    row("seconds", RaceColumn::Secondi, "00", "0");
    row("category", RaceColumn::Categoria, "S50", "S50");
    row("placing in the category", RaceColumn::RisultatoCat, "1.000", "1000");
    row("pasted letters", RaceColumn::Km, "ab", "0");
    row("pasted, half a number", RaceColumn::Metri, "1.5", "2");
}

void CellsTest::BoxesAreTaken()
{
    QFETCH(RaceColumn, box);
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, held);
    Take(box, 100, TextOf(text));
    const bool words = box == RaceColumn::Gara || box == RaceColumn::Localita || box == RaceColumn::Categoria;
    QCOMPARE(words ? HeldText(box, 100) : QByteArray::number(Held(box, 100)), held);
    QVERIFY(NumeroGara[100] == 100);
}

void CellsTest::ANumberBeyondItsColumn_data()
{
    QTest::addColumn<RaceColumn>("box");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("km") << RaceColumn::Km << QByteArray("32768");
    QTest::newRow("year") << RaceColumn::Anno << QByteArray("99999");
    QTest::newRow("runners") << RaceColumn::Partecipanti << QByteArray("2147483648");
}

void CellsTest::ANumberBeyondItsColumn()
{
    QFETCH(RaceColumn, box);
    QFETCH(QByteArray, text);
    Take(box, 1, "5");
    QCOMPARE(RaisedBy([&] { Take(box, 1, TextOf(text)); }), 6);
    QCOMPARE(Held(box, 1), 5);
}

void CellsTest::Differences_data()
{
    QTest::addColumn<RaceColumn>("box");
    QTest::addColumn<QByteArray>("held");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("differs");
    const auto row = [](const char* name, RaceColumn box, const char* held, const char* text, bool differs) {
        QTest::newRow(name) << box << QByteArray(held) << QByteArray(text) << differs;
    };
    row("day", RaceColumn::Giorno, "7", "7", false);
    row("day with a zero", RaceColumn::Giorno, "7", "07", false);
    row("another day", RaceColumn::Giorno, "7", "8", true);
    row("month emptied", RaceColumn::Mese, "7", "", true);
    row("nothing and 0", RaceColumn::Mese, "0", "", false);
    row("metres", RaceColumn::Metri, "97", "097", false);
    row("half a metre", RaceColumn::Metri, "2", "1.5", true);
    row("runners with their dot", RaceColumn::Partecipanti, "1234", "1.234", false);
    row("runners without", RaceColumn::Partecipanti, "1234", "1234", false);
    row("other runners", RaceColumn::Partecipanti, "1234", "1.235", true);
    row("placing", RaceColumn::Risultato, "1131", "1.131", false);
    row("placing in the category", RaceColumn::RisultatoCat, "1131", "1.132", true);
    row("name", RaceColumn::Gara, "Stracitt\xE0", "STRACITT\xC0", false);
    row("another name", RaceColumn::Gara, "Corrida", "Corrido", true);
    row("a blank more", RaceColumn::Localita, "Lago", "Lago ", true);
    row("category", RaceColumn::Categoria, "mm45", "MM45", false);
}

void CellsTest::Differences()
{
    QFETCH(RaceColumn, box);
    QFETCH(QByteArray, held);
    QFETCH(QByteArray, text);
    QFETCH(bool, differs);
    Take(box, 20, TextOf(held));
    QCOMPARE(RaceDiffers(box, 20, TextOf(text)), differs);
}

void CellsTest::RowsAreBounded()
{
    QCOMPARE(RaisedBy([] { (void)RaceText(RaceColumn::Km, 101); }), 9);
    QCOMPARE(RaisedBy([] { Take(RaceColumn::Gara, -1, "x"); }), 9);
    QCOMPARE(RaisedBy([] { (void)RaceDiffers(RaceColumn::Km, 101, ""); }), 9);
    QCOMPARE(RaisedBy([] { (void)RaceTextsOf(101); }), 9);
}

void CellsTest::RaceOnThePage_data()
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

void CellsTest::RaceOnThePage()
{
    QFETCH(QByteArrayList, values);
    QFETCH(QByteArray, shown);
    const RaceColumn boxes[] = {RaceColumn::Km,        RaceColumn::Metri,       RaceColumn::Partecipanti,
                                RaceColumn::Ore,       RaceColumn::Minuti,      RaceColumn::Secondi,
                                RaceColumn::Risultato, RaceColumn::RisultatoCat};
    for (std::size_t i = 0; i < std::size(boxes); ++i) {
        Take(boxes[i], 8, TextOf(values[static_cast<qsizetype>(i)]));
    }
    Gara[8] = "stracitt\xE0";
    Localita[8] = " LAGO";
    Categoria[8] = "S50 ";
    const RaceTexts texts = RaceTextsOf(8);
    QCOMPARE(Bytes(texts.length + "|" + texts.runners + "|" + texts.time + "|" + texts.placing + "|" +
                   texts.categoryPlacing),
             shown);
    QCOMPARE(Bytes(texts.name + "|" + texts.place + "|" + texts.category), QByteArray("stracitt\xE0| LAGO|S50 "));
}

ZELVIA_TEST(CellsTest)
#include "CellsTest.moc"
