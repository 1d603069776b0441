// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The period of the search window: its boxes, their limits, and what is checked before a search.
#include "support/SearchDesk.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
class PeriodFieldsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aButtonShowsAndEmptiesThem();
    void theyTakeDigitsUpToTheirLength();
    void enterWalksThroughThem();
    void typingTakesTheTextsPlace();
    void aValueBeyondTheLimitHoldsTheFocus_data();
    void aValueBeyondTheLimitHoldsTheFocus();
    void aValueAtTheLimitPasses_data();
    void aValueAtTheLimitPasses();
    void aCheckRepairsAndTells_data();
    void aCheckRepairsAndTells();
    void aRefusalLeavesTheResult();
};

void PeriodFieldsTest::aButtonShowsAndEmptiesThem()
{
    SearchDesk desk;
    desk.StartSearch();
    const auto shown = [&] {
        int count = 0;
        for (const QWidget* widget : std::initializer_list<const QWidget*>{desk->lblDalTit, desk->lblDataInizio,
                                                                           desk->lblAlTit, desk->lblDataFine}) {
            count += widget->isVisible() ? 1 : 0;
        }
        for (const TextBox* box : desk->periodBoxes) {
            count += box->isVisible() ? 1 : 0;
        }
        return count;
    };
    QCOMPARE(shown(), 0);
    desk.TypePeriod("1|2|2026|3|4|2026");
    QCOMPARE(shown(), 10);
    QCOMPARE(desk.Period(), QByteArray("1|2|2026|3|4|2026"));
    hand::Click(*desk->cmdPeriodo);
    QTRY_COMPARE(shown(), 0);
    QCOMPARE(desk.Period(), QByteArray("|||||"));
    hand::Click(*desk->cmdPeriodo);
    QTRY_COMPARE(shown(), 10);
    QTRY_COMPARE(SearchDesk::Focused(), QByteArray("txtGiornoInizio"));
    QCOMPARE(desk.Period(), QByteArray("|||||"));
    VERIFY_SCRIPT(desk.script);
}

void PeriodFieldsTest::theyTakeDigitsUpToTheirLength()
{
    SearchDesk desk;
    desk.StartSearch();
    desk.TypePeriod("1a2b3|x0 4/5|2.0-2,67|-9|+1e|20 26");
    QCOMPARE(desk.Period(), QByteArray("12|04|2026|9|1|2026"));
    VERIFY_SCRIPT(desk.script);
}

void PeriodFieldsTest::enterWalksThroughThem()
{
    SearchDesk desk;
    desk.StartSearch();
    hand::Click(*desk->cmdPeriodo);
    const std::pair<const char*, const char*> steps[] = {{"txtGiornoInizio", "1"},  {"txtMeseInizio", "2"},
                                                         {"txtAnnoInizio", "2026"}, {"txtGiornoFine", ""},
                                                         {"txtMeseFine", "12"},     {"txtAnnoFine", "2027"}};
    for (const auto& [name, text] : steps) {
        QTRY_COMPARE(SearchDesk::Focused(), QByteArray(name));
        hand::Type(QLatin1String(text));
        hand::Key(Qt::Key_Return);
    }
    QTRY_COMPARE(SearchDesk::Focused(), QByteArray("cmdPercorso"));
    QCOMPARE(desk.Period(), QByteArray("1|2|2026||12|2027"));
    VERIFY_SCRIPT(desk.script);
}

void PeriodFieldsTest::typingTakesTheTextsPlace()
{
    SearchDesk desk;
    desk.StartSearch();
    desk.TypePeriod("6|4|2025|7|5|2025");
    hand::Click(*desk->periodBoxes[PeriodBox::GiornoInizio]);
    QTRY_COMPARE(SearchDesk::Focused(), QByteArray("txtGiornoInizio"));
    for (const char* value : {"1", "2026", "21", "12", "2026"}) {
        hand::Key(Qt::Key_Return);
        hand::Type(QString::fromLatin1(value));
    }
    QTRY_COMPARE(desk.Period(), QByteArray("6|1|2026|21|12|2026"));
    VERIFY_SCRIPT(desk.script);
}

void PeriodFieldsTest::aValueBeyondTheLimitHoldsTheFocus_data()
{
    QTest::addColumn<int>("field");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("message");
    QTest::newRow("start day") << int{PeriodBox::GiornoInizio} << "32"
                               << "MAX 31 GIORNI                 ";
    QTest::newRow("start month") << int{PeriodBox::MeseInizio} << "13"
                                 << "MAX 12 MESI                   ";
    QTest::newRow("start year") << int{PeriodBox::AnnoInizio} << "2100"
                                << "MAX ANNO 2099                 ";
    QTest::newRow("end day") << int{PeriodBox::GiornoFine} << "99"
                             << "MAX 31 GIORNI                 ";
    QTest::newRow("end month") << int{PeriodBox::MeseFine} << "20"
                               << "MAX 12 MESI                   ";
    QTest::newRow("end year") << int{PeriodBox::AnnoFine} << "9999"
                              << "MAX ANNO 2099                 ";
}

void PeriodFieldsTest::aValueBeyondTheLimitHoldsTheFocus()
{
    QFETCH(int, field);
    QFETCH(QString, typed);
    QFETCH(QString, message);
    SearchDesk desk;
    desk.StartSearch();
    hand::Click(*desk->cmdPeriodo);
    QTRY_VERIFY(desk->lblAlTit->isVisible());
    const auto place = static_cast<PeriodBox::Box>(field);
    desk.Write(place, typed);
    TextBox& box = *desk->periodBoxes[place];
    // Enter, Tab, another box, a condition, the search and the way out: each with its one message and nothing else.
    TextBox& other =
        *desk->periodBoxes[place == PeriodBox::GiornoInizio ? PeriodBox::MeseFine : PeriodBox::GiornoInizio];
    for (int way = 0; way < 6; ++way) {
        desk.script.Expect(Warning(message));
        switch (way) {
        case 0: hand::Key(Qt::Key_Return); break;
        case 1: hand::Key(Qt::Key_Tab); break;
        case 2: hand::Click(other); break;
        case 3: desk.ClickCategory(Categoria::Km); break;
        case 4: desk.Run(); break;
        default: hand::Click(*desk->cmdEsci);
        }
        desk.AwaitBoxes();
        QTRY_COMPARE(SearchDesk::Focused(), box.objectName().toLatin1());
        QCOMPARE(box.text(), typed);
    }
    QVERIFY(!desk.Condition(Categoria::Km).isVisible());
    QVERIFY(!desk.ShowsResult());
}

void PeriodFieldsTest::aValueAtTheLimitPasses_data()
{
    QTest::addColumn<QByteArray>("boxes");
    QTest::newRow("the highest") << QByteArray("31|12|2099|31|12|2099");
    QTest::newRow("zeros") << QByteArray("00|0|0000|0|00|0");
}

void PeriodFieldsTest::aValueAtTheLimitPasses()
{
    QFETCH(QByteArray, boxes);
    SearchDesk desk;
    desk.StartSearch();
    desk.TypePeriod(boxes);
    hand::Key(Qt::Key_Tab);
    QCOMPARE(desk.Period(), boxes);
    desk.Run();
    QTRY_VERIFY(desk.ShowsResult());
    VERIFY_SCRIPT(desk.script);
}

void PeriodFieldsTest::aCheckRepairsAndTells_data()
{
    QTest::addColumn<QByteArray>("boxes");
    QTest::addColumn<QStringList>("messages");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<bool>("searches");
    const QString reversed = QStringLiteral("DATA FINE MINORE DELLA DATA INIZIO                 ");
    QTest::newRow("a start's day alone") << QByteArray("15|||||")
                                         << QStringList{QStringLiteral("DATA INIZIO  MIN MESE  1               "),
                                                        QStringLiteral("DATA INIZIO  ANNO 2007                 "),
                                                        reversed}
                                         << QByteArray("15|1|2007|||") << false;
    QTest::newRow("29 February and 31 November")
        << QByteArray("29|2|2026|31|11|2026")
        << QStringList{QStringLiteral("DATA INIZIO  MAX 28 GIORNI                 "),
                       QStringLiteral("DATA FINE  MAX 30 GIORNI                 ")}
        << QByteArray("28|2|2026|30|11|2026") << true;
    QTest::newRow("an end on 29 February of a year before the first")
        << QByteArray("|||29|2|2006")
        << QStringList{QStringLiteral("DATA FINE  MAX 28 GIORNI                 "),
                       QStringLiteral("DATA FINE  ANNO 2007                 ")}
        << QByteArray("|||28|2|2007") << true;
    QTest::newRow("an end's year alone") << QByteArray("|||||2026")
                                         << QStringList{QStringLiteral("DATA FINE  MIN GIORNO 1                 "),
                                                        QStringLiteral("DATA FINE  MIN MESE  1                ")}
                                         << QByteArray("|||1|1|2026") << true;
    QTest::newRow("the end before the start")
        << QByteArray("15|3|2026|10|3|2026") << QStringList{reversed} << QByteArray("15|3|2026|10|3|2026") << false;
    QTest::newRow("no part for the years")
        << QByteArray("10|2|2009|15|3|2008") << QStringList{} << QByteArray("10|2|2009|15|3|2008") << true;
}

void PeriodFieldsTest::aCheckRepairsAndTells()
{
    QFETCH(QByteArray, boxes);
    QFETCH(QStringList, messages);
    QFETCH(bool, searches);
    SearchDesk desk;
    desk.StartSearch();
    desk.TypePeriod(boxes);
    for (const QString& message : messages) {
        desk.script.Expect(Warning(message));
    }
    desk.Run();
    desk.AwaitBoxes();
    QTRY_COMPARE(desk.ShowsResult(), searches);
    QTEST(desk.Period(), "after");
}

void PeriodFieldsTest::aRefusalLeavesTheResult()
{
    SearchDesk desk;
    desk.StartSearch();
    desk.Run();
    QTRY_VERIFY(desk.ShowsResult());
    const QByteArray totals = desk.Totals();
    desk.TypePeriod("5|5|2026|4|5|2026");
    desk.script.Expect(Warning(QStringLiteral("DATA FINE MINORE DELLA DATA INIZIO                 ")));
    desk.Run();
    desk.AwaitBoxes();
    QVERIFY(desk.ShowsResult());
    QCOMPARE(desk.Totals(), totals);
    // The period may be taken back.
    hand::Click(*desk->cmdPeriodo);
    desk.Run();
    QTRY_COMPARE(desk.Totals(), totals);
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::PeriodFieldsTest)
#include "PeriodFieldsTest.moc"
