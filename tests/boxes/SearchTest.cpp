// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Bad input to the searches, the charts and the statistics.
#include "boxes/BoxHand.h"
#include "support/SearchDesk.h"
#include "support/StatisticsDesk.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
namespace
{

struct BoxRow {
    const char* name;
    int limit;
    const NumberKind* kind;
    QString message; ///< Beyond the limit.
    i16 SearchCriteria::*condition;
    int lowest;
    QString below; ///< Said of a lower value before the search, which then takes the lowest.
    const char* other;
};

// A period of which one box is tried: what the other five hold.
const BoxRow kBoxes[] = {
    {"txtGiornoInizio", 2, &kTwoCharactersToALimit, QStringLiteral("MAX 31 GIORNI                 "),
     &SearchCriteria::GiornoInizio, 1, QStringLiteral("DATA INIZIO  MIN GIORNO 1                 "), "1"},
    {"txtMeseInizio", 2, &kTwoCharactersToALimit, QStringLiteral("MAX 12 MESI                   "),
     &SearchCriteria::MeseInizio, 1, QStringLiteral("DATA INIZIO  MIN MESE  1               "), "1"},
    {"txtAnnoInizio", 4, &kYear, QStringLiteral("MAX ANNO 2099                 "), &SearchCriteria::AnnoInizio, 2007,
     QStringLiteral("DATA INIZIO  ANNO 2007                 "), "2026"},
    {"txtGiornoFine", 2, &kTwoCharactersToALimit, QStringLiteral("MAX 31 GIORNI                 "),
     &SearchCriteria::GiornoFine, 1, QStringLiteral("DATA FINE  MIN GIORNO 1                 "), "31"},
    {"txtMeseFine", 2, &kTwoCharactersToALimit, QStringLiteral("MAX 12 MESI                   "),
     &SearchCriteria::MeseFine, 1, QStringLiteral("DATA FINE  MIN MESE  1                "), "12"},
    {"txtAnnoFine", 4, &kYear, QStringLiteral("MAX ANNO 2099                 "), &SearchCriteria::AnnoFine, 2007,
     QStringLiteral("DATA FINE  ANNO 2007                 "), "2026"},
};

void FillOthers(const SearchDesk& desk, int index)
{
    for (int i = 0; i < int(std::size(kBoxes)); ++i) {
        if (i != index) {
            desk->periodBoxes[static_cast<std::size_t>(i)]->setText(QLatin1String(kBoxes[i].other));
        }
    }
}

} // namespace

class SearchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyBoxHasItsRow();
    void period_data() { AddBoxRows(kBoxes, true); }
    void period();
    void keysThatAreNoneOfItsLists();
    void keysThatAreNoneOfTheStatistics();
};

void SearchTest::everyBoxHasItsRow()
{
    SearchDesk desk;
    desk.StartSearch();
    QByteArrayList named{Counted("lstMedie", 1), Counted("lstStatistiche", 1)};
    for (const BoxRow& row : kBoxes) {
        named << Counted(row.name, 1);
    }
    QCOMPARE(BoxesOf(*desk.Search()), Sorted(named));
    const auto limitOf = [](const QByteArray& name) { return LimitIn(kBoxes, name); };
    QCOMPARE(BoxesOfOtherLength(*desk.Search(), limitOf), QByteArrayList());
    hand::Click(*desk->cmGrafico);
    QTRY_VERIFY(desk.Charts() != nullptr);
    QCOMPARE(BoxesOf(*desk.Charts()), QByteArrayList());
    VERIFY_SCRIPT(desk.script);
}

void SearchTest::period()
{
    QFETCH(int, index);
    const BoxRow& row = kBoxes[index];
    SearchDesk desk;
    desk.StartSearch();
    hand::Click(*desk->cmdPeriodo);
    QTRY_COMPARE(SearchDesk::Focused(), QByteArray("txtGiornoInizio"));
    TextBox& box = *desk->periodBoxes[static_cast<std::size_t>(index)];
    QCOMPARE(box.objectName(), QLatin1String(row.name));
    for (std::size_t i = 0; i < kNumberInputs; ++i) {
        const Outcome& outcome = (*row.kind)[i];
        FillOthers(desk, index);
        Fill(box, NumberInputs()[i]);
        QTRY_COMPARE(box.text(), outcome.Shown());
        int value = outcome.value;
        if (outcome.refused) {
            desk.script.Expect(Warning(row.message));
            hand::Key(Qt::Key_Tab);
            desk.AwaitBoxes();
            QTRY_COMPARE(SearchDesk::Focused(), QByteArray(row.name));
            QCOMPARE(box.text(), outcome.Shown());
            Correct(box, QStringLiteral("1"));
            value = 1;
        }
        hand::Key(Qt::Key_Tab);
        QTRY_VERIFY2(SearchDesk::Focused() != row.name, NumberInputs()[i].name);
        if (value < row.lowest) {
            desk.script.Expect(Warning(row.below));
            value = row.lowest;
        }
        desk.Run();
        desk.AwaitBoxes();
        QTRY_VERIFY(desk.ShowsResult());
        QCOMPARE((desk->criteria.*row.condition).value(), value);
    }
    VERIFY_SCRIPT(desk.script);
}

void SearchTest::keysThatAreNoneOfItsLists()
{
    SearchDesk desk;
    desk.StartSearch();
    desk.ClickCategory(Categoria::Stagione);
    QTRY_VERIFY(desk.Condition(Categoria::Stagione).isVisible());
    const auto tryList = [](ListBox& list) {
        const QByteArrayList before = SearchDesk::Entries(list);
        QVERIFY(!before.isEmpty());
        hand::Click(*list.viewport(), EntryPage::RowAt(list, 0));
        QTRY_VERIFY(list.hasFocus());
        PressForeignKeys();
        QCOMPARE(SearchDesk::Entries(list), before);
        QVERIFY(list.findChild<QLineEdit*>() == nullptr);
    };
    tryList(*desk->lstStatistiche);
    QCOMPARE(desk.Condition(Categoria::Stagione).text(), QString());
    desk.Run();
    QTRY_VERIFY(desk.ShowsResult());
    tryList(*desk->lstMedie);
    desk.Demand(Categoria::Tipo, QStringLiteral("Gara"));
    desk.Run();
    QTRY_VERIFY(desk.ShowsResult());
    VERIFY_SCRIPT(desk.script);
}

void SearchTest::keysThatAreNoneOfTheStatistics()
{
    StatisticsDesk desk(CalendarDate(2026, 5, 20));
    desk.Start();
    desk.Choose("mnuStagione");
    QCOMPARE(BoxesOf(*desk.Window()), Sorted({Counted("lstStatistica", 1), Counted("lvListaOrdinata", 1)}));
    const QByteArrayList lines = desk.Lines();
    QVERIFY(!lines.isEmpty());
    desk.Select(0);
    PressForeignKeys();
    QCOMPARE(desk.Lines(), lines);
    desk.OpenTimes(0);
    const QByteArrayList times = desk.Times();
    QVERIFY(!times.isEmpty());
    PressForeignKeys();
    QCOMPARE(desk.Times(), times);
    QVERIFY(desk.Window()->findChild<QLineEdit*>() == nullptr);
    desk.Leave();
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::SearchTest)
#include "SearchTest.moc"
