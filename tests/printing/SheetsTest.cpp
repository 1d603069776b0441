// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The six sheets of the sample year and the chart over all years, from the windows to the PDF.
#include "printing/PrintedPdf.h"
#include "support/FixedClock.h"
#include "support/PrinterTray.h"
#include "support/TableDesk.h"
#include "support/WindowTest.h"
#include "tools/yearswindow/YearsWindow.h"
#include "windows/races/FrmCalendario.h"
#include "windows/statistics/FrmGrafici.h"
#include "windows/statistics/FrmRicercheStatistiche.h"
#include "windows/statistics/FrmStatistiche1.h"

#include <QSignalSpy>

namespace zelvia::test
{

namespace
{

const QByteArrayList kUpright = {"LiberationSerif"};
const QByteArrayList kWithItalics = {"LiberationSerif", "LiberationSerif-Italic"};

template <typename Window>
Window* Shown()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* window = qobject_cast<Window*>(widget);
        if (window != nullptr && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

/// Opens a window from the page's menu and waits for it.
template <typename Window>
Window& Open(const DayPage& page, const char* menu, const char* entry)
{
    page.TakeEntry(menu, entry);
    if (!QTest::qWaitFor([] { return Shown<Window>() != nullptr; })) {
        qFatal("no window");
    }
    return *Shown<Window>();
}

/// What came out of the printer, and the list of what was to be drawn.
struct Printed {
    Sheet sheet;
    PrintedPdf pdf;
};

/// Prints twice, once into a tray that keeps the list and once for real.
Printed Print(const std::function<void()>& press)
{
    PrinterTray tray;
    press();
    if (tray.sheets.size() != 1) {
        qFatal("nothing was handed to the printer");
    }
    SetPrinterHandler({});
    press();
    return {tray.sheets.front(), PrintedPdf::Next()};
}

/// The name of the job; every job is to be printed in high quality.
QString JobOf(const Printed& printed)
{
    const QStringList& attributes = printed.pdf.Attributes();
    return attributes.contains(QStringLiteral("print-quality=5"))
               ? printed.pdf.Job()
               : QStringLiteral("not in high quality: ") + attributes.join(u' ');
}

/// The word that begins at a cell of the first page.
QString At(const Printed& printed, int x, int y)
{
    for (const PrintedWord& word : printed.pdf.Pages()[0].words) {
        // Margin 12 points, cells of 6 by 12, a quarter of one to spare.
        if (std::abs(word.left - (12 + 6 * x)) < 1.5 && std::abs(word.top - (12 + 12 * y)) < 3) {
            return word.text;
        }
    }
    return {};
}

bool IsLandscape(const Printed& printed)
{
    const QSizeF size = printed.pdf.Pages()[0].size;
    return std::abs(size.width() - 842) < 1 && std::abs(size.height() - 595) < 1;
}

bool IsPortrait(const Printed& printed)
{
    const QSizeF size = printed.pdf.Pages()[0].size;
    return std::abs(size.width() - 595) < 1 && std::abs(size.height() - 842) < 1;
}

/// The dark dots of a chart's picture: it begins at (15, 3) and is as large as on the screen.
int DotsOfPicture(const Printed& printed, const QSize& chart)
{
    constexpr int dotsPerInch = 72;
    constexpr double pointsPerDot = 0.75;
    const QImage sheet = printed.pdf.Picture(0, dotsPerInch);
    const QRect picture(QPoint(12 + 15 * 6, 12 + 3 * 12), (QSizeF(chart) * pointsPerDot).toSize());
    int inked = 0;
    for (int y = picture.top(); y < picture.bottom(); ++y) {
        for (int x = picture.left(); x < picture.right(); ++x) {
            inked += qGray(sheet.pixel(x, y)) < 200 ? 1 : 0;
        }
    }
    return inked;
}

} // namespace

class SheetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDay();
    void aRaceDay();
    void aTrainingTable();
    void aPageOfTheCalendar();
    void aStatistic();
    void aSearchOverSeveralPages();
    void aChart();
    void aChartOfAllYears();
};

void SheetsTest::aDay()
{
    DayPage page;
    page.Start();
    const Printed printed = Print([&] { page.Menu("mnuFile", Qt::Key_T); });
    QVERIFY(IsPortrait(printed));
    QCOMPARE(printed.pdf.Faults(printed.sheet), QString());
    QCOMPARE(printed.pdf.Fonts(),
             (QByteArrayList{"LiberationMono-Italic", "LiberationSerif", "LiberationSerif-Italic"}));
    QCOMPARE(At(printed, 40, 2), QStringLiteral("20/05/2026"));
    QCOMPARE(At(printed, 16, 8), QStringLiteral("8,000"));
    QCOMPARE(At(printed, 48, 4), QStringLiteral("ALLENAMENTO"));
    QCOMPARE(At(printed, 56, 20), QStringLiteral("Bene"));
    QCOMPARE(At(printed, 21, 40), QStringLiteral("140"));
    QCOMPARE(JobOf(printed), QStringLiteral("Zelvia, giorno, 20/05/2026"));
    VERIFY_SCRIPT(page.script);
}

void SheetsTest::aRaceDay()
{
    DayPage page(CalendarDate(2026, 5, 31));
    page.Start();
    const Printed printed = Print([&] { page.Menu("mnuFile", Qt::Key_T); });
    QCOMPARE(printed.pdf.Faults(printed.sheet), QString());
    QCOMPARE(At(printed, 48, 4), QStringLiteral("GARA"));
    QCOMPARE(At(printed, 62, 4), QStringLiteral("Giro"));
    QCOMPARE(At(printed, 62, 8), QStringLiteral("1.234"));
    QCOMPARE(At(printed, 62, 10), QStringLiteral("0:49:06"));
    QCOMPARE(At(printed, 62, 12), QStringLiteral("10,0"));
    QCOMPARE(JobOf(printed), QStringLiteral("Zelvia, giorno, 31/05/2026"));
    VERIFY_SCRIPT(page.script);
}

void SheetsTest::aTrainingTable()
{
    TableDesk desk;
    desk.Start();
    desk.OpenList();
    desk.OpenTable("Base 10 km.tab");
    const Printed printed = Print([&] { desk.Click(*desk.Editor()->cmdStampa); });
    QVERIFY(IsPortrait(printed));
    QCOMPARE(printed.pdf.Faults(printed.sheet), QString());
    QCOMPARE(printed.pdf.Fonts(), kUpright);
    QCOMPARE(At(printed, 26, 1), QStringLiteral("Tabella"));
    QCOMPARE(At(printed, 33, 7), QStringLiteral("Media"));
    QCOMPARE(At(printed, 20, 40), QStringLiteral("2026"));
    QCOMPARE(JobOf(printed), QStringLiteral("Zelvia, tabella, 20/05/2026"));
    VERIFY_SCRIPT(desk.script);
}

void SheetsTest::aPageOfTheCalendar()
{
    DayPage page;
    page.Start();
    auto& window = Open<frmCalendario>(page, "mnuTabelle", "mnuGare");
    const Printed printed = Print([&] { page.Click(*window.cmdStampa); });
    QVERIFY(IsLandscape(printed));
    QCOMPARE(printed.pdf.Faults(printed.sheet), QString());
    QCOMPARE(printed.pdf.Fonts(), kUpright);
    QCOMPARE(At(printed, 60, 1), QStringLiteral("Calendario"));
    QCOMPARE(At(printed, 3, 7), QStringLiteral("8"));
    QCOMPARE(At(printed, 13, 7), QStringLiteral("Corrida"));
    QCOMPARE(At(printed, 78, 9), QStringLiteral("1.843"));
    QCOMPARE(JobOf(printed), QStringLiteral("Zelvia, calendario, 20/05/2026"));
    VERIFY_SCRIPT(page.script);
}

void SheetsTest::aStatistic()
{
    DayPage page(CalendarDate(2026, 12, 31));
    page.Start();
    auto& window = Open<frmStatistiche1>(page, "mnuStatistiche", "mnuPercorso");
    const Printed printed = Print([&] { page.Click(*window.cmdStampa); });
    QVERIFY(IsPortrait(printed));
    QCOMPARE(printed.pdf.Faults(printed.sheet), QString());
    QCOMPARE(printed.pdf.Fonts(), kUpright);
    QCOMPARE(JobOf(printed), QStringLiteral("Zelvia, statistica, 31/12/2026"));
    VERIFY_SCRIPT(page.script);
}

void SheetsTest::aSearchOverSeveralPages()
{
    DayPage page(CalendarDate(2026, 12, 31));
    page.Start();
    auto& window = Open<frmRicercheStatistiche>(page, "mnuStatistiche", "mnuMedie");
    page.Click(*window.cmdAvvia);
    const int runs = window.lstMedie->ListCount();
    QVERIFY(runs > 100);
    const Printed printed = Print([&] { page.Click(*window.cmdStampa); });
    QVERIFY(IsPortrait(printed));
    // The first page holds 22 runs, each one after it 31, and the totals may take a page of their own.
    QVERIFY(printed.pdf.Pages().size() >= 1 + (runs - 22 + 30) / 31);
    QCOMPARE(printed.pdf.Faults(printed.sheet), QString());
    QCOMPARE(printed.pdf.Fonts(), kWithItalics);
    QCOMPARE(JobOf(printed), QStringLiteral("Zelvia, ricerca, 31/12/2026"));
    VERIFY_SCRIPT(page.script);
}

void SheetsTest::aChart()
{
    DayPage page(CalendarDate(2026, 12, 31));
    page.Start();
    auto& statistic = Open<frmStatistiche1>(page, "mnuStatistiche", "mnuPercorso");
    page.Click(*statistic.cmGrafico);
    QTRY_VERIFY(Shown<frmGrafici>() != nullptr);
    frmGrafici& window = *Shown<frmGrafici>();
    const Printed printed = Print([&] { page.Click(*window.cmdStampa); });
    QVERIFY(IsLandscape(printed));
    QCOMPARE(printed.pdf.Faults(printed.sheet), QString());
    QCOMPARE(printed.pdf.Fonts(), (QByteArrayList{"LiberationSerif-Bold"}));
    QVERIFY(DotsOfPicture(printed, window.MSChart1->size()) > window.MSChart1->width());
    QCOMPARE(JobOf(printed), QStringLiteral("Zelvia, grafico, 31/12/2026"));
    VERIFY_SCRIPT(page.script);
}

void SheetsTest::aChartOfAllYears()
{
    const FixedClock clock(CalendarDate(2026, 12, 31));
    YearsWindow window(ZELVIA_SOURCE_DIR "/share/demo");
    QSignalSpy ready(&window, &YearsWindow::Ready);
    window.show();
    QTRY_VERIFY(!ready.isEmpty());
    const Printed printed = Print([&] { QTest::keyClick(&window, Qt::Key_P, Qt::ControlModifier); });
    QVERIFY(IsLandscape(printed));
    QCOMPARE(printed.pdf.Faults(printed.sheet), QString());
    constexpr QSize chart(928, 590);
    QVERIFY(DotsOfPicture(printed, chart) > chart.width());
    QCOMPARE(JobOf(printed), QStringLiteral("Zelvia, grafico, 31/12/2026"));
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::SheetsTest)
#include "SheetsTest.moc"
