// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The counters of the year.
#include "support/DayPage.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
namespace
{

/// What one day holds for the counters.
struct Outing {
    int slot;
    int km = 0;
    int metri = 0;
    TextView tipo = {};
    int peso = 0;
};

struct CounterRow {
    const char* name;
    std::vector<Outing> outings;
    const char* km;
    const char* runs;
    const char* races;
    int lastWeight = 0;
};

/// Counted on slot 10.
const std::vector<CounterRow>& Rows()
{
    static const std::vector<CounterRow> rows = {
        {"a blank year", {}, "", "0", "0"},
        {"twice 500 metres", {{1, 0, 500}, {2, 0, 500}}, "1", "0", "0"},
        {"three times 500 metres", {{1, 0, 500}, {2, 0, 500}, {3, 0, 500}}, "1", "0", "0"},
        {"metres below a kilometre", {{1, 0, 999}}, "", "0", "0"},
        {"metres of many days", {{1, 0, 900}, {2, 0, 900}, {3, 0, 900}, {4, 7}}, "9", "0", "0"},
        {"a thousand kilometres", {{1, 500}, {2, 500}, {3, 234}}, "1.234", "0", "0"},
        {"a hundred thousand", {{1, 30000}, {2, 30000}, {3, 30000}, {4, 9999}}, "99.999", "0", "0"},
        {"a race with blanks around", {{1, 10, 0, " Gara "}}, "10", "0", "1"},
        {"a race in any case", {{1, 0, 0, "gara"}, {2, 0, 0, "GARA"}}, "", "0", "2"},
        {"no race", {{1, 0, 0, "Gara di paese"}}, "", "1", "0"},
        {"an outing", {{1, 12, 0, "Allenamento"}, {2, 0, 0, "Camminata"}}, "12", "2", "0"},
        {"kilometres without a kind", {{1, 12}}, "12", "0", "0"},
        {"blanks are no kind", {{1, 12, 0, "   "}}, "12", "0", "0"},
        {"the present day counts", {{10, 5, 0, "Gara", 70}}, "5", "0", "1", 70},
        {"later days do not", {{11, 5, 0, "Gara", 70}, {366, 9, 0, "Gara", 70}}, "", "0", "0"},
        {"the last weight above nothing", {{1, 0, 0, {}, 71}, {4, 0, 0, {}, 69}, {5}}, "", "0", "0", 69},
        {"what is below nothing is left out", {{1, -5, -900, {}, -3}, {2, 3}}, "3", "0", "0"},
    };
    return rows;
}

} // namespace

class CountersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void counted_data();
    void counted();
    void movingBackLowersThem();
};

void CountersTest::counted_data()
{
    QTest::addColumn<int>("row");
    for (std::size_t i = 0; i < Rows().size(); ++i) {
        QTest::newRow(Rows()[i].name) << static_cast<int>(i);
    }
}

void CountersTest::counted()
{
    QFETCH(int, row);
    const CounterRow& expected = Rows()[static_cast<std::size_t>(row)];
    DayPage page(CalendarDate(2026, 1, 9));
    page.folder.Remove(QStringLiteral("ZelviaFile/prova.zlv"));
    page.Start();
    for (const Outing& outing : expected.outings) {
        RecordGiorno& day = Module1::Giorni[outing.slot];
        day.Km = outing.km;
        day.Metri = outing.metri;
        day.Tipo = outing.tipo;
        day.Peso = outing.peso;
    }
    page.Up(*page->upGiorno);
    VERIFY_SCRIPT(page.script);
    QCOMPARE(page.Caption("lblNumKMPercorsi"), QLatin1String(expected.km));
    QCOMPARE(page.Caption("lblNumGiorniCorseAnno"), QLatin1String(expected.runs));
    QCOMPARE(page.Caption("lblNumGare"), QLatin1String(expected.races));
    QCOMPARE(page.Caption("lblNumGiornoAnno"), QStringLiteral("10"));
    QCOMPARE(int(page->UltimoPeso.value()), expected.lastWeight);
    QCOMPARE(QString::number(page->GareAnno.value()), QLatin1String(expected.races));
    QCOMPARE(QString::number(page->GiorniCorseAnno.value()), QLatin1String(expected.runs));
    QCOMPARE(page->KmAnno.value(), QString::fromLatin1(expected.km).remove(QLatin1Char('.')).toInt());
}

void CountersTest::movingBackLowersThem()
{
    DayPage page(CalendarDate(2026, 1, 9));
    page.folder.Remove(QStringLiteral("ZelviaFile/prova.zlv"));
    page.Start();
    // The day on screen counts as it was last committed.
    page->upKM->SetValue(8);
    page->ListField(SelectionList::Tipo).lblImmis->SetCaption("Allenamento");
    page->upPeso->SetValue(70);
    QCOMPARE(page.Caption("lblNumKMPercorsi"), QString());
    page.Up(*page->upGiorno);
    QCOMPARE(page.Caption("lblNumKMPercorsi"), QStringLiteral("8"));
    QCOMPARE(page.Caption("lblNumGiorniCorseAnno"), QStringLiteral("1"));
    QVERIFY(page->UltimoPeso == 70);
    page.Down(*page->upGiorno);
    QCOMPARE(page.Caption("lblNumGiorniCorseAnno"), QStringLiteral("1"));
    page.Down(*page->upGiorno);
    QCOMPARE(page.Caption("lblNumKMPercorsi"), QString());
    QCOMPARE(page.Caption("lblNumGiorniCorseAnno"), QStringLiteral("0"));
    QVERIFY(page->UltimoPeso == 0);
    VERIFY_SCRIPT(page.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::CountersTest)
#include "CountersTest.moc"
