// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The sorted list of a route's times on the page.
#include "core/Conversions.h"
#include "support/EntryPage.h"
#include "support/WindowTest.h"
#include "windows/page/PaperSheet.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QRegularExpression>
#include <QStyle>

namespace zelvia::test
{
namespace
{

void PutRun(int slot, TextView route, TextView time, TextView pace)
{
    RecordGiorno& day = Module1::Giorni[slot];
    day.Percorso = Text(route);
    day.TempoImpiegato = Text(time);
    day.MediaKm = Text(pace);
}

QStringList Lines(const EntryPage& page)
{
    QStringList lines;
    for (int i = 0; i < page->lstListaOrdinata->count(); ++i) {
        lines << page->lstListaOrdinata->item(i)->text();
    }
    return lines;
}

bool Shown(const EntryPage& page)
{
    return page->lstListaOrdinata->isVisible() &&
           std::all_of(page->cmdLO.begin(), page->cmdLO.end(), [](const Button* head) { return head->isVisible(); });
}

bool Hidden(const EntryPage& page)
{
    return !page->lstListaOrdinata->isVisible() &&
           std::none_of(page->cmdLO.begin(), page->cmdLO.end(), [](const Button* head) { return head->isVisible(); });
}

/// What is over the list or its heads on the screen.
QByteArrayList Covering(const EntryPage& page)
{
    QByteArrayList names;
    QWidget& paper = *page->lstListaOrdinata->parentWidget();
    const QRect area = page->lstListaOrdinata->geometry() | page->cmdLO[0]->geometry() | page->cmdLO[3]->geometry();
    constexpr int step = 5;
    for (int x = area.left() + 1; x < area.right(); x += step) {
        for (int y = area.top() + 1; y < area.bottom(); y += step) {
            Control* found = ControlOf(paper.childAt(x, y));
            const QByteArray name = found == nullptr ? QByteArray() : found->Widget().objectName().toLatin1();
            if (!name.isEmpty() && name != "lstListaOrdinata" && !name.startsWith("cmdLO") && !names.contains(name)) {
                names << name;
            }
        }
    }
    return names;
}

/// A run of 50 minutes on the day on show, whose distance is then opened and left.
void RunToday(const EntryPage& page, TextView route)
{
    page.Field(1).lblImmis->SetCaption(route);
    page->upKM->SetValue(10);
    page->upMinutiFine->SetValue(50);
    page.Open(*page->lblImmisMetri);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("upMetri"));
    page.Open(*page->lblImmisMetri);
    QTRY_VERIFY(Shown(page));
}

} // namespace

class OrderedListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void earlierRunsAndTheOneOnShow();
    void theRunOnShowIsThePages();
    void aRunWithoutTimeIsNotListed();
    void escapeHidesIt();
    void escapeOnThePageHidesIt_data();
    void escapeOnThePageHidesIt();
    void aStepOfTheDateHidesIt_data();
    void aStepOfTheDateHidesIt();
    void itLiesOverThePlan();
    void itLiesOverTheRace();
    void leavingHidesIt();
    void itComesUpAnew();
    void theCommandListsTheStoredRuns();
    void columnsLineUp();
    void headsStandOverTheirColumns_data();
    void headsStandOverTheirColumns();
};

void OrderedListTest::earlierRunsAndTheOneOnShow()
{
    EntryPage page;
    page.Start();
    QVERIFY(Hidden(page));
    PutRun(20, "Alfa", "1:02:03", "6:12");
    PutRun(10, "Alfa", "0:50:00", "5:00");
    PutRun(139, "Alfa", "0:49:59", "4:59");
    PutRun(30, "alfa", "0:10:00", "1:00");  // here the case counts
    PutRun(40, "Beta", "0:20:00", "2:00");  // another route
    PutRun(50, "Alfa ", "0:20:00", "2:00"); // and so do blanks
    PutRun(141, "Alfa", "0:30:00", "3:00"); // a later day
    PutRun(25, "Alfa", "2:00:00", "12:30");
    RunToday(page, "Alfa");
    // Of equal times the later run comes first.
    const QStringList expected = {
        QStringLiteral("   1°   0:49:59   4:59   19/05/2026"), QStringLiteral("   2°   0:50:00   5:00   20/05/2026"),
        QStringLiteral("   3°   0:50:00   5:00   10/01/2026"), QStringLiteral("   4°   1:02:03   6:12   20/01/2026"),
        QStringLiteral("   5°   2:00:00  12:30   25/01/2026")};
    QCOMPARE(Lines(page), expected);
    QCOMPARE(page->lstListaOrdinata->ListIndex(), 1);
    QCOMPARE(EntryPage::Focused(), QByteArray("pctGiornoAnno"));
    QCOMPARE(page->cmdLO[0]->text(), QStringLiteral("posizione"));
    QCOMPARE(page->cmdLO[1]->text(), QStringLiteral("tempo"));
    QCOMPARE(page->cmdLO[2]->text(), QStringLiteral("media"));
    QCOMPARE(page->cmdLO[3]->text(), QStringLiteral("data"));
    QCOMPARE(page->cmdLO[0]->objectName(), QStringLiteral("cmdLO1"));
    QCOMPARE(page->lstListaOrdinata->toolTip(), QStringLiteral("Lista Tempi"));
    VERIFY_SCRIPT(page.script);
}

void OrderedListTest::theRunOnShowIsThePages()
{
    // The record of the day on show holds another time: the page's counts, and only once.
    EntryPage page;
    page.Start();
    PutRun(140, "Alfa", "0:11:11", "1:11");
    RunToday(page, "Alfa");
    QCOMPARE(Lines(page), QStringList{QStringLiteral("   1°   0:50:00   5:00   20/05/2026")});
    QCOMPARE(page->lstListaOrdinata->ListIndex(), 0);
    VERIFY_SCRIPT(page.script);
}

void OrderedListTest::aRunWithoutTimeIsNotListed()
{
    EntryPage page;
    page.Start();
    PutRun(10, "Alfa", "0:50:00", "5:00");
    page.Field(1).lblImmis->SetCaption("Alfa");
    page->upKM->SetValue(10);
    page->upOraInizio->SetValue(9);
    page->upOraFine->SetValue(9);
    page.script.Expect(Warning(QStringLiteral("L'ORA FINE E' UGUALE ALL'ORA INIZIO        ")));
    page.script.Expect(Report(QStringLiteral("MediaKm - ERRORE : 11 Divisione per zero")));
    page.Open(*page->lblImmisMetri);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("upMetri"));
    page.Open(*page->lblImmisMetri);
    QTRY_VERIFY(Shown(page));
    QCOMPARE(Lines(page), QStringList{QStringLiteral("   1°   0:50:00   5:00   10/01/2026")});
    QCOMPARE(page->lstListaOrdinata->ListIndex(), -1);
    VERIFY_SCRIPT(page.script);
}

void OrderedListTest::escapeHidesIt()
{
    EntryPage page;
    page.Start();
    RunToday(page, "Alfa");
    page.ClickRow(*page->lstListaOrdinata, 0);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("lstListaOrdinata"));
    hand::Key(Qt::Key_Return);
    QVERIFY(Shown(page));
    hand::Key(Qt::Key_Escape);
    QTRY_VERIFY(Hidden(page));
    QCOMPARE(Lines(page), QStringList());
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("pctGiornoAnno"));
    VERIFY_SCRIPT(page.script);
}

void OrderedListTest::escapeOnThePageHidesIt_data()
{
    QTest::addColumn<QString>("focus");
    for (const char* focus : {"pctGiornoAnno", "lblImmisTipo", "upGiorno"}) {
        QTest::newRow(focus) << QString::fromLatin1(focus);
    }
}

void OrderedListTest::escapeOnThePageHidesIt()
{
    QFETCH(QString, focus);
    EntryPage page;
    page.Start();
    RunToday(page, "Alfa");
    if (focus == QLatin1String("upGiorno")) {
        hand::Click(*page->lblData);
    } else {
        dynamic_cast<Control*>(page->findChild<QWidget*>(focus))->SetFocus();
    }
    QTRY_COMPARE(EntryPage::Focused(), focus.toLatin1());
    QVERIFY(Shown(page));
    hand::Key(Qt::Key_Escape);
    QTRY_VERIFY(Hidden(page));
    QCOMPARE(Lines(page), QStringList());
    VERIFY_SCRIPT(page.script);
}

void OrderedListTest::aStepOfTheDateHidesIt_data()
{
    QTest::addColumn<QString>("arrow");
    QTest::addColumn<bool>("focused");
    for (const char* arrow : {"upGiorno", "upMese"}) {
        QTest::addRow("%s", arrow) << QString::fromLatin1(arrow) << false;
        QTest::addRow("%s, from the list", arrow) << QString::fromLatin1(arrow) << true;
    }
}

void OrderedListTest::aStepOfTheDateHidesIt()
{
    QFETCH(QString, arrow);
    QFETCH(bool, focused);
    EntryPage page;
    page.Start();
    hand::Click(*page->lblData);
    QTRY_VERIFY(page->upMese->isVisible());
    RunToday(page, "Alfa");
    if (focused) {
        page.ClickRow(*page->lstListaOrdinata, 0);
        QTRY_COMPARE(EntryPage::Focused(), QByteArray("lstListaOrdinata"));
    }
    page.Up(*page->findChild<UpDown*>(arrow));
    QTRY_VERIFY(Module1::GiornoCorrente > 140);
    QVERIFY(Hidden(page));
    QCOMPARE(Lines(page), QStringList());
    QCOMPARE(EntryPage::Focused(), QByteArray("pctGiornoAnno"));
    VERIFY_SCRIPT(page.script);
}

void OrderedListTest::itLiesOverThePlan()
{
    EntryPage page;
    page.Start();
    RunToday(page, "Alfa");
    // The tick behind a table that was closed shows the plan's slip again.
    page->lblTimerTab->SetCaption("1");
    QTRY_COMPARE(page.Caption("lblTimerTab"), QStringLiteral("0"));
    QVERIFY(page->lblTabNomeFile->isVisible());
    QCOMPARE(Covering(page), QByteArrayList());
    QVERIFY(Shown(page));
    VERIFY_SCRIPT(page.script);
}

void OrderedListTest::itLiesOverTheRace()
{
    EntryPage page;
    page.Start();
    RunToday(page, "Alfa");
    page->MostraRiquadriGara();
    QVERIFY(page->lblGara->isVisible());
    QCOMPARE(Covering(page), QByteArrayList());
    QVERIFY(Shown(page));
    VERIFY_SCRIPT(page.script);
}

void OrderedListTest::leavingHidesIt()
{
    EntryPage page;
    page.Start();
    RunToday(page, "Alfa");
    // The heads have no action and take no focus.
    page.ClickRow(*page->lstListaOrdinata, 0);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("lstListaOrdinata"));
    for (Button* head : page->cmdLO) {
        hand::Click(*head);
    }
    QVERIFY(Shown(page));
    page.Open(5);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtTipo"));
    QTRY_VERIFY(Hidden(page));
    QCOMPARE(Lines(page), QStringList());
    VERIFY_SCRIPT(page.script);
}

void OrderedListTest::itComesUpAnew()
{
    EntryPage page;
    page.Start();
    RunToday(page, "Alfa");
    RunToday(page, "Alfa");
    QCOMPARE(Lines(page).size(), 1);
    VERIFY_SCRIPT(page.script);
}

void OrderedListTest::theCommandListsTheStoredRuns()
{
    EntryPage page;
    page.Start();
    PutRun(10, "Beta", "0:50:00", "5:00");
    PutRun(140, "Beta", "0:40:00", "4:00");
    PutRun(141, "Beta", "0:30:00", "3:00");
    page->lblOutTempoImpiegato->SetCaption("0:20:00");
    page.Open(1);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtPercorso"));
    page.ClickRow(*page.Field(1).lst, 1);
    QTRY_COMPARE(page.Field(1).lst->ListIndex(), 1);
    page.PopUp(*page.Field(1).lst, Qt::Key_T);
    QTRY_VERIFY(Shown(page));
    QCOMPARE(Lines(page), QStringList({QStringLiteral("   1°   0:40:00   4:00   20/05/2026"),
                                       QStringLiteral("   2°   0:50:00   5:00   10/01/2026")}));
    QCOMPARE(page->lstListaOrdinata->ListIndex(), -1);
    QVERIFY(page.IsOpen(1));
    VERIFY_SCRIPT(page.script);
}

void OrderedListTest::columnsLineUp()
{
    EntryPage page;
    page.Start();
    for (int slot = 1; slot <= 120; ++slot) {
        PutRun(slot, "Alfa", "0:" + Format(i32(slot % 60), "00") + ":30", slot % 2 == 0 ? "5:00" : "12:30");
    }
    RunToday(page, "Alfa");
    const QStringList lines = Lines(page);
    QCOMPARE(lines.size(), 121);
    QVERIFY(lines[0].startsWith(QStringLiteral("   1°   ")));
    QVERIFY(lines[9].startsWith(QStringLiteral("  10°   ")));
    QVERIFY(lines[99].startsWith(QStringLiteral(" 100°   ")));
    QVERIFY(QFontInfo(page->lstListaOrdinata->font()).fixedPitch());
    QCOMPARE(page->lstListaOrdinata->font().families().constFirst(), QStringLiteral("Courier"));
    const QFontMetricsF metrics(page->lstListaOrdinata->font());
    QCOMPARE(metrics.horizontalAdvance(QStringLiteral("°")), metrics.horizontalAdvance(QStringLiteral("0")));
    // Place, time and average end, and the date begins, in the same column of each line and at the same place.
    const QRegularExpression columns(
        QStringLiteral("^[ \\d]{3}\\d°   \\d:\\d\\d:\\d\\d(   \\d|  \\d\\d):\\d\\d   \\d\\d/\\d\\d/2026$"));
    for (const QString& line : lines) {
        QVERIFY2(columns.match(line).hasMatch(), qPrintable(line));
        for (const int end : {5, 15, 22, 25, 35}) {
            QCOMPARE(metrics.horizontalAdvance(line.left(end)), metrics.horizontalAdvance(lines[0].left(end)));
        }
    }
    QCOMPARE(lines.filter(QStringLiteral("   5:00   ")).size(), 61);
    QCOMPARE(lines.filter(QStringLiteral("  12:30   ")).size(), 60);
    VERIFY_SCRIPT(page.script);
}

void OrderedListTest::headsStandOverTheirColumns_data()
{
    QTest::addColumn<double>("factor");
    QTest::newRow("smallest") << 0.7;
    QTest::newRow("as designed") << 1.0;
    QTest::newRow("larger") << 1.2;
}

void OrderedListTest::headsStandOverTheirColumns()
{
    QFETCH(double, factor);
    EntryPage page;
    page.Start();
    const int bar = page->height() - page->sheet->height();
    page->resize(qRound(1200 * factor), qRound(648 * factor) + bar);
    QTRY_VERIFY(std::abs(page->sheet->Factor() - factor) < 0.01);
    PutRun(20, "Alfa", "1:02:03", "12:30");
    RunToday(page, "Alfa");
    const ListBox& list = *page->lstListaOrdinata;
    const QFontMetricsF metrics(list.font());
    // The first and the last character of each column in a line.
    constexpr std::pair<int, int> columns[] = {{1, 5}, {8, 15}, {17, 22}, {25, 35}};
    const QString line = QStringLiteral("   1°   1:02:03  12:30   20/01/2026");
    QCOMPARE(line.size(), 35);
    const int margin = list.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &list) + 1;
    const int text = list.viewport()->mapTo(page->sheet, list.visualItemRect(list.item(0)).topLeft()).x() + margin;
    for (std::size_t i = 0; i < std::size(columns); ++i) {
        const QRect head = page->cmdLO[i]->geometry();
        const double from = text + metrics.horizontalAdvance(line.left(columns[i].first));
        const double to = text + metrics.horizontalAdvance(line.left(columns[i].second));
        QVERIFY2(head.left() <= from && to <= head.right() + 1, qPrintable(page->cmdLO[i]->text()));
        // The word is in the middle of the head, and over a part of its column.
        QVERIFY(from < head.center().x() && head.center().x() < to);
        QVERIFY(page->cmdLO[i]->fontMetrics().horizontalAdvance(page->cmdLO[i]->text()) < head.width());
    }
    QCOMPARE(page->cmdLO[0]->geometry().left(), list.geometry().left());
    QCOMPARE(page->cmdLO[3]->geometry().right(), list.geometry().right());
    VERIFY_SCRIPT(page.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::OrderedListTest)
#include "OrderedListTest.moc"
