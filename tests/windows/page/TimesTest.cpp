// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Time taken and average, computed when the distance or one of the times is left.
#include "support/EntryPage.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
namespace
{

// In the order of the hours, of the minutes, of the seconds, and when all are equal.
const QString kBefore = QStringLiteral("L'ORA FINE E' MINORE DELL'ORA INIZIO         ");
const QString kBeforeBySeconds = QStringLiteral("L'ORA FINE E' MINORE DELL'ORA INIZIO        ");
const QString kEqual = QStringLiteral("L'ORA FINE E' UGUALE ALL'ORA INIZIO        ");
const QString kDivision = QStringLiteral("MediaKm - ERRORE : 11 Divisione per zero");
const QString kOverSixty = QStringLiteral("OLTRE 60 MINUTI                 ");

enum Group { Distance, Start, End };

const char* const kGroupNames[] = {"distance", "start", "end"};

Label& ValueOf(const EntryPage& page, int group)
{
    return group == Distance ? *page->lblImmisMetri
           : group == Start  ? *page->lblImmisOraInizio
                             : *page->lblImmisOraFine;
}

std::vector<UpDown*> SpinsOf(const EntryPage& page, int group)
{
    switch (group) {
    case Distance: return {page->upKM, page->upMetri, page->upMetro};
    case Start: return {page->upOraInizio, page->upMinutiInizio, page->upSecondiInizio};
    default: return {page->upOraFine, page->upMinutiFine, page->upSecondiFine};
    }
}

bool AnyShown(const std::vector<UpDown*>& spins)
{
    return std::any_of(spins.begin(), spins.end(), [](const UpDown* spin) { return spin->isVisible(); });
}

void Set(const std::vector<UpDown*>& spins, const QList<int>& values)
{
    for (int i = 0; i < 3; ++i) {
        spins[static_cast<std::size_t>(i)]->SetValue(values[i]);
    }
}

/// Opens a group by a click on its value and leaves it by another.
void OpenAndLeave(const EntryPage& page, int group)
{
    page.Open(ValueOf(page, group));
    QTRY_VERIFY(AnyShown(SpinsOf(page, group)));
    page.Open(ValueOf(page, group));
    QTRY_VERIFY(!AnyShown(SpinsOf(page, group)));
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("pctGiornoAnno"));
}

using Numbers = QList<int>;

} // namespace

class TimesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leavingAGroup_data();
    void leavingAGroup();
    void computes_data();
    void computes();
    void warnings_data();
    void warnings();
    void aBlankedDayLosesBothTexts();
};

void TimesTest::leavingAGroup_data()
{
    QTest::addColumn<int>("group");
    QTest::addColumn<bool>("distance");
    QTest::addColumn<bool>("end");
    QTest::addColumn<QString>("time");
    QTest::addColumn<QString>("pace");
    const QString blankTime = QStringLiteral("0:00:00");
    const QString blankPace = QStringLiteral("0:00");
    for (const int group : {Distance, Start, End}) {
        const char* name = kGroupNames[group];
        QTest::addRow("%s, nothing given", name) << group << false << false << blankTime << blankPace;
        QTest::addRow("%s, no end time", name) << group << true << false << blankTime << blankPace;
        // The time alone is worth showing only when one of the times is left.
        QTest::addRow("%s, no distance", name)
            << group << false << true << (group == Distance ? blankTime : QStringLiteral("1:00:00")) << blankPace;
        QTest::addRow("%s, both", name) << group << true << true << QStringLiteral("1:00:00") << QStringLiteral("5:00");
    }
}

void TimesTest::leavingAGroup()
{
    QFETCH(int, group);
    QFETCH(bool, distance);
    QFETCH(bool, end);
    QFETCH(QString, time);
    QFETCH(QString, pace);
    EntryPage page;
    page.Start();
    page->upKM->SetValue(distance ? 12 : 0);
    page->upOraFine->SetValue(end ? 1 : 0);
    page->lblOutTempoImpiegato->SetCaption("old");
    page->lblOutMediaKM->SetCaption("old");
    OpenAndLeave(page, group);
    QCOMPARE(page.Caption("lblOutTempoImpiegato"), time);
    QCOMPARE(page.Caption("lblOutMediaKM"), pace);
    // Every average that is computed brings up the list of the route's times.
    QCOMPARE(page->lstListaOrdinata->isVisible(), distance && end);
    VERIFY_SCRIPT(page.script);
}

void TimesTest::computes_data()
{
    QTest::addColumn<Numbers>("start");
    QTest::addColumn<Numbers>("end");
    QTest::addColumn<Numbers>("distance");
    QTest::addColumn<QString>("time");
    QTest::addColumn<QString>("pace");
    const auto row = [](const char* name, const Numbers& start, const Numbers& end, const Numbers& distance,
                        const char* time, const char* pace) {
        QTest::newRow(name) << start << end << distance << QString::fromLatin1(time) << QString::fromLatin1(pace);
    };
    row("from midnight", {0, 0, 0}, {0, 42, 0}, {8, 0, 0}, "0:42:00", "5:15");
    row("no borrow", {9, 10, 20}, {10, 11, 22}, {10, 0, 0}, "1:01:02", "6:06");
    row("a second borrowed", {9, 0, 30}, {9, 50, 0}, {7, 0, 0}, "0:49:30", "7:04");
    row("a minute borrowed", {9, 50, 0}, {10, 32, 0}, {10, 500, 0}, "0:42:00", "4:00");
    row("one second over the minute", {10, 4, 59}, {10, 5, 0}, {0, 100, 0}, "0:00:01", "0:10");
    row("equal minutes and a second borrowed", {10, 0, 20}, {11, 0, 10}, {7, 0, 0}, "0:59:50", "8:32");
    row("to 24 hours", {23, 0, 0}, {24, 0, 0}, {12, 0, 0}, "1:00:00", "5:00");
    // Single precision is part of the result.
    row("one second lower", {0, 0, 0}, {0, 4, 36}, {1, 0, 0}, "0:04:36", "4:35");
    row("10 km in 50 minutes", {0, 0, 0}, {0, 50, 0}, {10, 0, 0}, "0:50:00", "5:00");
    row("exactly 60 minutes", {0, 0, 0}, {1, 0, 0}, {1, 0, 0}, "1:00:00", "60:00");
    // The single metres count as long as the caption shows them.
    row("single metres alone", {0, 0, 0}, {0, 0, 9}, {0, 0, 9}, "0:00:09", "16:40");
}

void TimesTest::computes()
{
    QFETCH(Numbers, start);
    QFETCH(Numbers, end);
    QFETCH(Numbers, distance);
    QFETCH(QString, time);
    QFETCH(QString, pace);
    EntryPage page;
    page.Start();
    Set(SpinsOf(page, Distance), distance);
    Set(SpinsOf(page, Start), start);
    Set(SpinsOf(page, End), end);
    OpenAndLeave(page, End);
    QCOMPARE(page.Caption("lblOutTempoImpiegato"), time);
    QCOMPARE(page.Caption("lblOutMediaKM"), pace);
    page->AssegnaCampi();
    QCOMPARE(DayPage::Day().TempoImpiegato, FromQString(time));
    QCOMPARE(DayPage::Day().MediaKm, FromQString(pace));
    VERIFY_SCRIPT(page.script);
}

void TimesTest::warnings_data()
{
    QTest::addColumn<int>("group");
    QTest::addColumn<Numbers>("start");
    QTest::addColumn<Numbers>("end");
    QTest::addColumn<Numbers>("distance");
    QTest::addColumn<QStringList>("boxes");
    QTest::addColumn<QString>("time");
    QTest::addColumn<QString>("pace");
    const auto row = [](const char* name, const Numbers& start, const Numbers& end, const Numbers& distance,
                        const QStringList& boxes, const char* time, const char* pace) {
        for (const int group : {Distance, Start, End}) {
            // After the distance the time alone is not computed.
            const bool timeAlone = group == Distance && distance == Numbers({0, 0, 0});
            QTest::addRow("%s, %s", kGroupNames[group], name)
                << group << start << end << distance << boxes << QString::fromLatin1(timeAlone ? "0:00:00" : time)
                << QString::fromLatin1(pace);
        }
    };
    const Numbers ten = {10, 0, 0};
    row("hours", {10, 0, 0}, {9, 0, 0}, ten, {kBefore, kDivision}, "-1:00:00", "old");
    row("minutes", {10, 30, 0}, {10, 20, 0}, ten, {kBefore, kDivision}, "-1:50:00", "old");
    row("seconds", {10, 0, 30}, {10, 0, 20}, ten, {kBeforeBySeconds, kDivision}, "-1:59:50", "old");
    row("equal", {10, 0, 0}, {10, 0, 0}, ten, {kEqual, kDivision}, "0:00:00", "old");
    // Without a distance there is no average that could fail.
    row("hours, no distance", {10, 0, 0}, {9, 0, 0}, {0, 0, 0}, {kBefore}, "-1:00:00", "0:00");
    row("equal, no distance", {10, 0, 0}, {10, 0, 0}, {0, 0, 0}, {kEqual}, "0:00:00", "0:00");
    row("more than 60 minutes", {0, 0, 0}, {2, 0, 0}, {0, 100, 0}, {kOverSixty}, "2:00:00", "old");
    row("one second over 61 minutes", {0, 0, 0}, {1, 1, 1}, {1, 0, 0}, {kOverSixty}, "1:01:01", "old");
}

void TimesTest::warnings()
{
    QFETCH(int, group);
    QFETCH(Numbers, start);
    QFETCH(Numbers, end);
    QFETCH(Numbers, distance);
    QFETCH(QStringList, boxes);
    QFETCH(QString, time);
    QFETCH(QString, pace);
    EntryPage page;
    page.Start();
    Set(SpinsOf(page, Distance), distance);
    Set(SpinsOf(page, Start), start);
    Set(SpinsOf(page, End), end);
    page->lblOutMediaKM->SetCaption("old");
    QList<bool> shown;
    for (const QString& text : boxes) {
        page.script.Expect(text == kDivision ? Report(text) : Warning(text));
        page.script.Meanwhile([&] {
            shown << AnyShown(SpinsOf(page, group));
            // The second box too is over the page, though the display has no active window right after the first.
            QVERIFY(QApplication::activeModalWidget()->parentWidget() == &page.Page());
        });
    }
    page.Open(ValueOf(page, group));
    QTRY_VERIFY(AnyShown(SpinsOf(page, group)));
    page.Open(ValueOf(page, group));
    QTRY_COMPARE(shown.size(), boxes.size());
    QTRY_COMPARE(page.Caption("lblOutTempoImpiegato"), time);
    page.TakeFront();
    QVERIFY(!shown.contains(true));
    QCOMPARE(page.Caption("lblOutMediaKM"), pace);
    // A warning stops nothing: the list of times comes up all the same.
    QTRY_COMPARE(page->lstListaOrdinata->isVisible(), distance != Numbers({0, 0, 0}));
    VERIFY_SCRIPT(page.script);
}

void TimesTest::aBlankedDayLosesBothTexts()
{
    EntryPage page;
    page.Start();
    DayPage::Day().TempoImpiegato = "0:50:00";
    DayPage::Day().MediaKm = "5:00";
    DayPage::Day().Km = 10;
    page->VisualizzaGiorno();
    QCOMPARE(page.Caption("lblOutTempoImpiegato"), QStringLiteral("0:50:00"));
    OpenAndLeave(page, Distance);
    QCOMPARE(page.Caption("lblOutTempoImpiegato"), QStringLiteral("0:00:00"));
    QCOMPARE(page.Caption("lblOutMediaKM"), QStringLiteral("0:00"));
    QCOMPARE(DayPage::Day().TempoImpiegato, Text());
    QCOMPARE(DayPage::Day().MediaKm, Text());
    VERIFY_SCRIPT(page.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::TimesTest)
#include "TimesTest.moc"
