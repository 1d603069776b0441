// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The window of all years, worked by hand.
#include "support/WindowTest.h"

#include "core/Conversions.h"
#include "support/PrinterTray.h"
#include "toolkit/CommonDialog.h"
#include "toolkit/QtText.h"
#include "toolkit/WindowPlaces.h"
#include "tools/yearswindow/FigureCanvas.h"
#include "tools/yearswindow/YearsDesk.h"

#include <QAccessible>
#include <QClipboard>
#include <QFile>
#include <QImageReader>
#include <QScopeGuard>
#include <QSpinBox>
#include <QTableView>
#include <QTimer>

#include <numbers>

Q_DECLARE_METATYPE(zelvia::FigureKind)

namespace zelvia::test
{
namespace
{

const QString kWeek19 = QStringLiteral("Settimana 19, dal 04/05/2026 al 10/05/2026: 10,000 km, 1 uscita");

/// What a screen reader says of a widget.
QString Spoken(QWidget& widget, QAccessible::Text kind)
{
    const QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(&widget);
    return reader == nullptr ? QString() : reader->text(kind);
}

/// True when the picture has both the colours of the paper and dark print.
bool IsDrawn(const QImage& picture)
{
    int dark = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            dark += qGray(picture.pixel(x, y)) < 100 ? 1 : 0;
        }
    }
    constexpr int least = 500;
    return qGray(picture.pixel(0, 0)) == 255 && dark > least;
}

QCustomPlot& Plot(YearsDesk& desk)
{
    return *desk.View().findChild<QCustomPlot*>();
}

} // namespace

class WindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itOpensOnThisYear();
    void eachKind_data();
    void eachKind();
    void anotherYearBeside();
    void theLeapDayBeside();
    void aWeek53Beside();
    void barsBeginAtNothing();
    void oneRoute();
    void oneYearOfAll();
    void thePointerTellsTheValue();
    void theKeysTellTheValue();
    void keysGoFromLineToLine();
    void theWheelLooksCloser();
    void aStretchDrawnWithTheMouse();
    void keysLookCloser();
    void buttonsLookCloser();
    void thePictureIsCopied();
    void theTableIsCopied();
    void itIsSaved();
    void savingIsCancelled();
    void itCantBeSaved();
    void itIsPrinted();
    void aBrokenPrinter();
    void aGoalByKeys();
    void aGoalThatCantBeKept();
    void goalsThatCantBeRead();
    void manyDistances();
    void aSmallScreen_data();
    void aSmallScreen();
    void barsStandOnZero();
    void numbersAreThoseOfTheirLines();
    void theFirstOfSlantedNamesIsDrawn();
    void byKeysAlone();
    void everythingHasAName();
    void noDiaries();
    void noFolder();
    void itReadsAgain();
    void whatWasChosenHasGone();
    void theYearBesideBecomesTheYear();
    void itCloses();
    void openedTwice();
    void itEndsWhileItReads();
    void itGoesWithTheProgram();
};

void WindowTest::itOpensOnThisYear()
{
    YearsDesk desk;
    desk.Open();
    QCOMPARE(desk.Window().windowTitle(), QStringLiteral("Tutti gli anni"));
    QCOMPARE(desk.Title(), QStringLiteral("Chilometri per settimana, 2026"));
    QCOMPARE(desk.Get<QComboBox>("year").currentText(), QStringLiteral("2026"));
    // 2026 has 53 weeks; the run of 5 January is in the second.
    QCOMPARE(desk.View().Shown().rows.size(), 53);
    QCOMPARE(desk.Row(1), (QStringList{QStringLiteral("2"), QStringLiteral("05/01/2026"), QStringLiteral("11/01/2026"),
                                       QStringLiteral("20,000"), QStringLiteral("1"), QStringLiteral("0")}));
    QCOMPARE(desk.Text("leftOut"), QStringLiteral("Il diario «rovinato» non è contato: non si legge per intero "
                                                  "(«Tipo non corrispondente»)."));
    QVERIFY(desk.Get<QLabel>("leftOut").isVisible());
    QVERIFY(!desk.Get<QWidget>("progress").isVisible());
    VERIFY_SCRIPT(desk.script);
}

void WindowTest::eachKind_data()
{
    QTest::addColumn<FigureKind>("kind");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QStringList>("rows"); ///< All of them, or the first and the last; cells with bars between them.
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("first"); ///< What is said of the first point.
    const auto add = [](const char* name, FigureKind kind, const char* title, const char* rows, int count,
                        const char* first) {
        QTest::newRow(name) << kind << QString::fromUtf8(title) << QString::fromUtf8(rows).split(QLatin1Char(';'))
                            << count << QString::fromUtf8(first);
    };
    add("months", FigureKind::Months, "Chilometri per mese, 2026", "gennaio|20,000|1|0;dicembre|0,000|0|0", 12,
        "gennaio 2026: 20,000 km, 1 uscita");
    add("years", FigureKind::Years, "Chilometri per anno", "2024|28,000|3|1;2025|22,000|2|1;2026|30,000|2|0", 3,
        "2024: 28,000 km, 3 uscite");
    add("paces", FigureKind::Paces, "Andatura per percorso e anno",
        // 1:38:20 over 20 km and 1:47:30 over 22 km
        "Bosco|2024|1|8,000|5:30;Bosco|2026|1|20,000|5:00;Lungomare|2024|2|20,000|4:55;Lungomare|2025|2|22,000|4:53;"
        "Lungomare|2026|1|10,000|5:00",
        5, "Lungomare, 2024: 4:55 al km, 2 uscite");
    add("distances", FigureKind::Distances, "Migliori tempi per distanza, tutti gli anni",
        "8,000|0:44:00|5:30|29/02/2024|Bosco|1;10,000|0:47:30|4:45|01/06/2025|Lungomare|4;"
        "12,000|1:00:00|5:00|01/01/2025|Lungomare|1;20,000|1:40:00|5:00|05/01/2026|Bosco|1",
        4, "8,000 km, Bosco: 0:44:00, 5:30 al km, il 29/02/2024");
    add("routes", FigureKind::Routes, "Migliori tempi per percorso, tutti gli anni",
        // Each distance of the wood was run once: the longer one counts.
        "Bosco|20,000|1:40:00|5:00|05/01/2026|1;Lungomare|10,000|0:47:30|4:45|01/06/2025|4", 2,
        "Bosco, 20,000 km: 1:40:00, 5:00 al km, il 05/01/2026");
    add("weights", FigureKind::Weights, "Peso, media del mese, tutti gli anni",
        "gennaio 2024|72,0|72|72|1;febbraio 2024|71,0|71|71|1;giugno 2025|70,0|70|70|1;maggio 2026|69,0|69|69|1", 4,
        "gennaio 2024: 72,0 kg in media, da 72 a 72");
}

void WindowTest::eachKind()
{
    QFETCH(FigureKind, kind);
    QFETCH(QString, title);
    QFETCH(QStringList, rows);
    QFETCH(int, count);
    QFETCH(QString, first);
    YearsDesk desk;
    desk.Open();
    desk.Show(kind);
    QTRY_COMPARE(desk.Title(), title);
    QCOMPARE(desk.View().Shown().rows.size(), count);
    for (qsizetype i = 0; i < rows.size(); ++i) {
        const int row = static_cast<int>(i + 1 == rows.size() ? count - 1 : i);
        QCOMPARE(desk.Row(row).join(QLatin1Char('|')), rows[i]);
    }
    desk.View().setFocus();
    hand::Key(Qt::Key_Right);
    QTRY_COMPARE(desk.Text("value"), first);
}

void WindowTest::anotherYearBeside()
{
    YearsDesk desk;
    desk.Open();
    desk.Show(FigureKind::Months);
    auto& other = desk.Get<QComboBox>("other");
    QStringList entries;
    for (int i = 0; i < other.count(); ++i) {
        entries << other.itemText(i);
    }
    QCOMPARE(entries, (QStringList{QStringLiteral("nessun altro"), QStringLiteral("tutti gli altri"),
                                   QStringLiteral("2025"), QStringLiteral("2024")}));
    other.setFocus();
    hand::Key(Qt::Key_End);
    QTRY_COMPARE(other.currentText(), QStringLiteral("2024"));
    QCOMPARE(desk.View().Shown().series.size(), 2);
    QCOMPARE(desk.Row(1).join(QLatin1Char('|')), QStringLiteral("febbraio|0,000|0|0|8,000"));
    hand::Key(Qt::Key_Up);
    hand::Key(Qt::Key_Up);
    QTRY_COMPARE(other.currentText(), QStringLiteral("tutti gli altri"));
    QCOMPARE(desk.View().Shown().heads.mid(4), (QStringList{QStringLiteral("Km 2024"), QStringLiteral("Km 2025")}));
    QCOMPARE(desk.Row(0).join(QLatin1Char('|')), QStringLiteral("gennaio|20,000|1|0|10,000|12,000"));
}

/// The kilometres up to a day stand beside those up to the same day of the other year.
void WindowTest::theLeapDayBeside()
{
    YearsDesk desk;
    desk.Open();
    desk.Show(FigureKind::Curve);
    auto& year = desk.Get<QComboBox>("year");
    auto& other = desk.Get<QComboBox>("other");
    year.setFocus();
    hand::Key(Qt::Key_Down);
    other.setFocus();
    hand::Key(Qt::Key_End);
    QTRY_COMPARE(desk.Title() + other.currentText(), QStringLiteral("Chilometri dall'inizio dell'anno, 20252024"));
    QCOMPARE(desk.Row(58).join(QLatin1Char('|')), QStringLiteral("28/02/2025|12,000|10,000"));
    QCOMPARE(desk.Row(59).join(QLatin1Char('|')), QStringLiteral("01/03/2025|12,000|18,000"));
    QCOMPARE(desk.Row(364).join(QLatin1Char('|')), QStringLiteral("31/12/2025|22,000|28,000"));
    year.setFocus();
    hand::Key(Qt::Key_End);
    other.setFocus();
    hand::Key(Qt::Key_End);
    QTRY_COMPARE(desk.Title() + other.currentText(), QStringLiteral("Chilometri dall'inizio dell'anno, 20242025"));
    QCOMPARE(desk.Row(59).join(QLatin1Char('|')), QStringLiteral("29/02/2024|18,000|12,000"));
    QCOMPARE(desk.Row(365).join(QLatin1Char('|')), QStringLiteral("31/12/2024|28,000|22,000"));
}

/// 2026 has 53 weeks, 2025 has 52.
void WindowTest::aWeek53Beside()
{
    YearsDesk desk;
    desk.Open();
    auto& year = desk.Get<QComboBox>("year");
    auto& other = desk.Get<QComboBox>("other");
    year.setFocus();
    hand::Type(QStringLiteral("2025"));
    other.setFocus();
    hand::Type(QStringLiteral("2026"));
    QTRY_COMPARE(desk.Title() + other.currentText(), QStringLiteral("Chilometri per settimana, 20252026"));
    QCOMPARE(desk.View().Shown().series[1].points.size(), 53);
    QCOMPARE(desk.View().Shown().rows.size(), 53);
    QCOMPARE(desk.Row(52).join(QLatin1Char('|')), QStringLiteral("53||||||0,000"));
}

/// 28, 22 and 30 km: so far apart are the ends of the bars from the line below them.
void WindowTest::barsBeginAtNothing()
{
    YearsDesk desk;
    desk.Open();
    desk.Show(FigureKind::Years);
    const double bottom = desk.View().Field().bottom() + 1;
    const auto height = [&](int year) { return bottom - desk.View().PixelOf({0, year}).y(); };
    QVERIFY(height(2) > 0);
    QVERIFY2(std::abs(height(1) / height(2) - 22.0 / 30) < 0.02, qPrintable(QString::number(height(1) / height(2))));
    QVERIFY2(std::abs(height(0) / height(2) - 28.0 / 30) < 0.02, qPrintable(QString::number(height(0) / height(2))));
}

void WindowTest::oneRoute()
{
    YearsDesk desk;
    desk.Open();
    desk.Show(FigureKind::Paces);
    auto& route = desk.Get<QComboBox>("route");
    QTRY_VERIFY(route.isVisible());
    route.setFocus();
    hand::Type(QStringLiteral("b"));
    QTRY_COMPARE(desk.Title(), QStringLiteral("Andatura per anno, Bosco"));
    QCOMPARE(desk.View().Shown().rows.size(), 2);
}

void WindowTest::oneYearOfAll()
{
    YearsDesk desk;
    desk.Open();
    desk.Show(FigureKind::Loads);
    auto& year = desk.Get<QComboBox>("year");
    QTRY_COMPARE(desk.Title(), QStringLiteral("Carico di 7 e di 42 giorni, tutti gli anni"));
    // From the first Sunday on, which is the seventh of January.
    QCOMPARE(desk.Row(0).join(QLatin1Char('|')), QStringLiteral("07/01/2024|10,000|"));
    year.setFocus();
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(desk.Title(), QStringLiteral("Carico di 7 e di 42 giorni, 2026"));
    QCOMPARE(desk.View().Shown().rows.size(), 140); // Up to today.
    // 20 km in the week from 5 January on, and in six weeks.
    QCOMPARE(desk.Row(10).join(QLatin1Char('|')), QStringLiteral("11/01/2026|20,000|3,333"));
    QCOMPARE(desk.Row(11).join(QLatin1Char('|')), QStringLiteral("12/01/2026|0,000|3,333"));
    desk.Show(FigureKind::Weights);
    QTRY_COMPARE(desk.Title(), QStringLiteral("Peso, 2026"));
    QCOMPARE(desk.Row(0).join(QLatin1Char('|')), QStringLiteral("10/05/2026|69"));
}

void WindowTest::thePointerTellsTheValue()
{
    YearsDesk desk;
    desk.Open();
    FigureView& view = desk.View();
    QTRY_VERIFY(view.Field().height() > 100);
    int moves = 0;
    QTRY_VERIFY([&] {
        // Staying where it is moves nothing.
        hand::MoveTo(desk.Window(), QPoint(3, 4 + ++moves % 2));
        hand::MoveTo(view, view.PixelOf({0, 18}).toPoint());
        return desk.Text("value") == kWeek19;
    }());
    QCOMPARE(Spoken(view, QAccessible::Value), kWeek19);
    QCOMPARE(view.accessibleDescription(), kWeek19);
    hand::MoveTo(desk.Window(), QPoint(3, 3));
    QTRY_COMPARE(desk.Text("value"), QString());
}

void WindowTest::theKeysTellTheValue()
{
    YearsDesk desk;
    desk.Open();
    desk.Show(FigureKind::Years);
    FigureView& view = desk.View();
    view.setFocus();
    hand::Key(Qt::Key_Right);
    hand::Key(Qt::Key_Right);
    QTRY_COMPARE(desk.Text("value"), QStringLiteral("2025: 22,000 km, 2 uscite"));
    QCOMPARE(Spoken(view, QAccessible::Value), QStringLiteral("2025: 22,000 km, 2 uscite"));
    QCOMPARE(Spoken(view, QAccessible::Name), QStringLiteral("Chilometri per anno"));
    QCOMPARE(QAccessible::queryAccessibleInterface(&view)->role(), QAccessible::Chart);
    hand::Key(Qt::Key_End);
    QTRY_COMPARE(desk.Text("value"), QStringLiteral("2026: 30,000 km, 2 uscite"));
    hand::Key(Qt::Key_Right); // There is no further one.
    hand::Key(Qt::Key_Left);
    QTRY_COMPARE(desk.Text("value"), QStringLiteral("2025: 22,000 km, 2 uscite"));
    hand::Key(Qt::Key_Home);
    QTRY_COMPARE(desk.Text("value"), QStringLiteral("2024: 28,000 km, 3 uscite"));
    hand::Key(Qt::Key_Escape);
    QTRY_COMPARE(desk.Text("value"), QString());
}

void WindowTest::keysGoFromLineToLine()
{
    YearsDesk desk;
    desk.Open();
    desk.Show(FigureKind::Paces);
    desk.View().setFocus();
    hand::Key(Qt::Key_Right);
    QTRY_COMPARE(desk.Text("value"), QStringLiteral("Lungomare, 2024: 4:55 al km, 2 uscite"));
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(desk.Text("value"), QStringLiteral("Bosco, 2024: 5:30 al km, 1 uscita"));
    hand::Key(Qt::Key_Right);
    QTRY_COMPARE(desk.Text("value"), QStringLiteral("Bosco, 2026: 5:00 al km, 1 uscita"));
    hand::Key(Qt::Key_Up);
    QTRY_COMPARE(desk.Text("value"), QStringLiteral("Lungomare, 2026: 5:00 al km, 1 uscita"));
}

void WindowTest::theWheelLooksCloser()
{
    YearsDesk desk;
    desk.Open();
    FigureView& view = desk.View();
    QTRY_VERIFY(view.Field().height() > 100);
    const FigureSpan whole = view.Span();
    QVERIFY(!desk.Get<QPushButton>("whole").isEnabled());
    hand::Wheel(view, view.Field().center(), 2);
    QTRY_VERIFY(view.Span().Width() < whole.Width() * 0.6);
    const double middle = (view.Span().from + view.Span().to) / 2;
    QVERIFY(std::abs(middle - (whole.from + whole.to) / 2) < 1);
    QVERIFY(desk.Get<QPushButton>("whole").isEnabled());
    hand::Wheel(view, view.Field().center(), -8);
    QTRY_VERIFY(view.IsWhole());
    QCOMPARE(view.Span().from, whole.from);
    hand::Wheel(view, view.Field().center(), 1);
    QTRY_VERIFY(!view.IsWhole());
    hand::DoubleClick(view, view.Field().center());
    QTRY_VERIFY(view.IsWhole());
}

void WindowTest::aStretchDrawnWithTheMouse()
{
    YearsDesk desk;
    desk.Open();
    FigureView& view = desk.View();
    QTRY_VERIFY(view.Field().height() > 100);
    const QPoint from(view.PixelOf({0, 9}).toPoint().x(), view.Field().center().y());
    const QPoint to(view.PixelOf({0, 19}).toPoint().x(), view.Field().center().y());
    hand::Press(view, from);
    hand::MoveTo(view, (from + to) / 2);
    hand::MoveTo(view, to);
    hand::Release(view, to);
    QTRY_VERIFY(!view.IsWhole());
    QVERIFY(std::abs(view.Span().from - 10) < 0.3 && std::abs(view.Span().to - 20) < 0.3);
    // The value under the pointer is still the right one.
    QTRY_VERIFY([&] {
        hand::MoveTo(view, view.PixelOf({0, 18}).toPoint() - QPoint(0, 2));
        return desk.Text("value") == kWeek19;
    }());
    desk.Press("whole");
    QTRY_VERIFY(view.IsWhole());
}

void WindowTest::keysLookCloser()
{
    YearsDesk desk;
    desk.Open();
    FigureView& view = desk.View();
    view.setFocus();
    const double whole = view.Span().Width();
    hand::Type(QStringLiteral("+"));
    hand::Type(QStringLiteral("+"));
    QTRY_VERIFY(view.Span().Width() < whole * 0.5);
    const FigureSpan before = view.Span();
    hand::Key(Qt::Key_Right, Qt::ShiftModifier);
    QTRY_VERIFY(view.Span().from > before.from + 1);
    hand::Key(Qt::Key_Left, Qt::ShiftModifier);
    QTRY_COMPARE(view.Span().from, before.from);
    hand::Key(Qt::Key_End); // The stretch follows to what is pointed at.
    QTRY_VERIFY(view.Span().to > 53);
    hand::Type(QStringLiteral("-"));
    QTRY_VERIFY(view.Span().Width() > before.Width());
    hand::Type(QStringLiteral("0"));
    QTRY_VERIFY(view.IsWhole());
    for (int i = 0; i < 20; ++i) {
        hand::Type(QStringLiteral("+"));
    }
    QTRY_COMPARE(view.Span().Width(), 3.0); // Not closer than three weeks.
}

void WindowTest::buttonsLookCloser()
{
    YearsDesk desk;
    desk.Open();
    FigureView& view = desk.View();
    const double whole = view.Span().Width();
    desk.Press("zoomIn");
    QTRY_VERIFY(view.Span().Width() < whole * 0.8);
    desk.Press("zoomIn");
    desk.Press("zoomOut");
    QTRY_VERIFY(std::abs(view.Span().Width() - whole * 0.7) < 0.01);
    desk.Press("whole");
    QTRY_VERIFY(view.IsWhole());
}

void WindowTest::thePictureIsCopied()
{
    YearsDesk desk;
    desk.Open();
    QGuiApplication::clipboard()->clear();
    desk.Get<QListWidget>("kinds").setFocus();
    hand::Key(Qt::Key_C, Qt::ControlModifier);
    QTRY_COMPARE(desk.Text("said"), QStringLiteral("Il grafico è negli appunti."));
    const QImage picture = QGuiApplication::clipboard()->image();
    QCOMPARE(picture.size(), QSize(1856, 1180)); // Two dots to a pixel.
    QVERIFY(IsDrawn(picture));
    // What is seen closer is copied so.
    desk.Press("zoomIn");
    desk.Press("copy");
    QTRY_VERIFY(QGuiApplication::clipboard()->image() != picture);
}

void WindowTest::theTableIsCopied()
{
    YearsDesk desk;
    desk.Open();
    desk.Show(FigureKind::Years);
    hand::Key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    QTRY_COMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("Anno\tKm\tUscite\tGare\n"
                                                                      "2024\t28,000\t3\t1\n"
                                                                      "2025\t22,000\t2\t1\n"
                                                                      "2026\t30,000\t2\t0\n"));
    QCOMPARE(desk.Text("said"), QStringLiteral("La tabella è negli appunti."));
    QGuiApplication::clipboard()->clear();
    desk.Press("copyTable");
    QTRY_VERIFY(QGuiApplication::clipboard()->text().startsWith(QLatin1String("Anno\t")));
}

void WindowTest::itIsSaved()
{
    YearsDesk desk;
    desk.Open();
    const QString home = QString::fromStdString(desk.folder.Native());
    desk.script.Expect(ExpectedDialog{QStringLiteral("Salva il grafico"), QStringLiteral("Immagine PNG (*.png)"),
                                      QFileDialog::AcceptSave, home,
                                      QStringLiteral("Chilometri per settimana, 2026.png"), QStringLiteral("km")});
    hand::Key(Qt::Key_S, Qt::ControlModifier);
    TRY_SCRIPT(desk.script);
    const QString path = home + QStringLiteral("/km.png");
    QTRY_COMPARE(desk.Text("said"), QStringLiteral("Il grafico è in «%1».").arg(path));
    QCOMPARE(QImageReader::imageFormat(path), QByteArray("png"));
    const QImage picture(path);
    QCOMPARE(picture.size(), QSize(1856, 1180));
    QVERIFY(IsDrawn(picture));
}

void WindowTest::savingIsCancelled()
{
    YearsDesk desk;
    desk.Open();
    const QString home = QString::fromStdString(desk.folder.Native());
    desk.script.Expect(ExpectedDialog{QStringLiteral("Salva il grafico"),
                                      QStringLiteral("Immagine PNG (*.png)"),
                                      QFileDialog::AcceptSave,
                                      home,
                                      QStringLiteral("Chilometri per settimana, 2026.png"),
                                      {}});
    desk.Press("save");
    TRY_SCRIPT(desk.script);
    QCOMPARE(desk.Text("said"), QString());
    QVERIFY(QDir(home).entryList({QStringLiteral("*.png")}).isEmpty());
}

void WindowTest::itCantBeSaved()
{
    YearsDesk desk;
    desk.Open();
    SetFileDialogHandler([&](const CommonDialog&, FileDialogMode) { return desk.folder.Path("assente/km.png"); });
    desk.Press("save");
    const QString said = QStringLiteral("Il grafico non è stato salvato");
    QTRY_VERIFY(desk.Text("said").startsWith(said));
    VERIFY_SCRIPT(desk.script);
}

void WindowTest::itIsPrinted()
{
    YearsDesk desk;
    desk.Open();
    PrinterTray tray;
    QImage printed;
    tray.atTheEnd = [&] { printed = QGuiApplication::clipboard()->image(); };
    hand::Key(Qt::Key_P, Qt::ControlModifier);
    QTRY_COMPARE(tray.sheets.size(), std::size_t{1});
    QCOMPARE(printed.size(), QSize(1856, 1180));
    QVERIFY(IsDrawn(printed));
    QCOMPARE(tray.sheets[0].Job(), Text("Zelvia, grafico, 20/05/2026"));
    QCOMPARE(SheetLines(tray.sheets[0]).back(), QByteArray("picture 15,3"));
    QTRY_COMPARE(desk.Text("said"), QStringLiteral("Il grafico è in stampa."));
    QVERIFY(QGuiApplication::clipboard()->image().isNull());
}

void WindowTest::aBrokenPrinter()
{
    YearsDesk desk;
    desk.Open();
    PrinterTray tray;
    tray.broken = true;
    desk.script.Expect(Report(QString::fromUtf8(kPrinterReport)));
    desk.Press("print");
    TRY_SCRIPT(desk.script);
    QCOMPARE(desk.Text("said"), QString());
    tray.broken = false;
    desk.Press("print");
    QTRY_COMPARE(tray.sheets.size(), std::size_t{1});
}

/// 365 km in 2026: a kilometre a day, and today is its 140th.
void WindowTest::aGoalByKeys()
{
    YearsDesk desk;
    desk.Open();
    desk.Show(FigureKind::Curve);
    QTRY_COMPARE(desk.Text("standing"), QStringLiteral("Nessun obiettivo per quest'anno."));
    QCOMPARE(desk.View().Shown().series.size(), 1);
    hand::Key(Qt::Key_O, Qt::AltModifier);
    auto& goal = desk.Get<QSpinBox>("goal");
    QTRY_VERIFY(goal.hasFocus());
    QCOMPARE(goal.text(), QStringLiteral("nessuno"));
    hand::Key(Qt::Key_A, Qt::ControlModifier);
    hand::Type(QStringLiteral("365"));
    hand::Key(Qt::Key_Return);
    const QString standing =
        QStringLiteral("Obiettivo di 365 km: fatti 30,000 km, 110,000 km indietro sulla linea costante. "
                       "Mancano 335,000 km, 10,422 km a settimana fino al 31 dicembre.");
    QTRY_COMPARE(desk.Text("standing"), standing);
    QCOMPARE(desk.View().Shown().series.size(), 2);
    QCOMPARE(desk.Row(139).join(QLatin1Char('|')), QStringLiteral("20/05/2026|30,000|140,000"));
    QCOMPARE(desk.Row(140).join(QLatin1Char('|')), QStringLiteral("21/05/2026||141,000"));
    // It is of that year alone, and is kept.
    desk.Get<QComboBox>("year").setFocus();
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(desk.Text("standing"), QStringLiteral("Nessun obiettivo per quest'anno."));
    desk.Open();
    desk.Show(FigureKind::Curve);
    QTRY_COMPARE(desk.Text("standing"), standing);
    hand::Key(Qt::Key_O, Qt::AltModifier);
    QTRY_VERIFY(desk.Get<QSpinBox>("goal").hasFocus());
    hand::Key(Qt::Key_A, Qt::ControlModifier);
    hand::Type(QStringLiteral("0"));
    hand::Key(Qt::Key_Tab);
    QTRY_COMPARE(desk.Text("standing"), QStringLiteral("Nessun obiettivo per quest'anno."));
}

void WindowTest::aGoalThatCantBeKept()
{
    YearsDesk desk;
    desk.folder.Write("stato", "a file in the place of the folder");
    desk.Open();
    desk.Show(FigureKind::Curve);
    desk.Get<QSpinBox>("goal").setFocus();
    hand::Key(Qt::Key_Up);
    QTRY_VERIFY(desk.Text("said").startsWith(QStringLiteral("L'obiettivo non è stato salvato: ")));
    QCOMPARE(desk.Get<QSpinBox>("goal").value(), 0);
    QCOMPARE(desk.Text("standing"), QStringLiteral("Nessun obiettivo per quest'anno."));
}

/// A file that can't be read is not replaced either.
void WindowTest::goalsThatCantBeRead()
{
    YearsDesk desk;
    desk.folder.MakeFolder("stato/zelvia/obiettivi");
    desk.Open();
    QVERIFY(desk.Text("said").startsWith(QStringLiteral("Gli obiettivi non si leggono: ")));
    QCOMPARE(desk.View().Shown().rows.size(), 53);
    desk.Show(FigureKind::Curve);
    desk.Get<QSpinBox>("goal").setFocus();
    hand::Key(Qt::Key_Up);
    QTRY_VERIFY(desk.Text("said").startsWith(QStringLiteral("L'obiettivo non è stato salvato: ")));
    QVERIFY(std::filesystem::is_directory(desk.folder.Native("stato/zelvia/obiettivi")));
}

/// The chart has the sixty distances that were run most often, the table all of them.
void WindowTest::manyDistances()
{
    YearsDesk desk;
    DiaryBytes diary = YearsDesk::Year(2026);
    for (int slot = 1; slot <= 80; ++slot) {
        YearsDesk::Run(diary, slot, slot, "5:00:00", "Bosco");
    }
    YearsDesk::Run(diary, 81, 80, "5:00:00", "Bosco"); // The longest one was run twice.
    desk.Write("2026", diary);
    desk.Open();
    desk.Show(FigureKind::Distances);
    desk.Get<QComboBox>("year").setFocus();
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(desk.Title(), QStringLiteral("Migliori tempi per distanza, 2026"));
    QCOMPARE(desk.View().Shown().rows.size(), 80);
    QCOMPARE(desk.View().Shown().series.front().points.size(), 60);
    desk.View().setFocus();
    hand::Key(Qt::Key_End);
    QTRY_VERIFY(desk.Text("value").startsWith(QStringLiteral("80,000 km, Bosco: 5:00:00")));
    hand::Key(Qt::Key_Left);
    QTRY_VERIFY(desk.Text("value").startsWith(QStringLiteral("59,000 km, Bosco: 5:00:00")));
}

void WindowTest::aSmallScreen_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::newRow("1280x720 at 1.5") << QSize(853, 480);
    QTest::newRow("1366x768 at 1.5") << QSize(910, 512);
}

/// It reached beyond the screen, with the button that closes it.
void WindowTest::aSmallScreen()
{
    QFETCH(QSize, screen);
    WindowPlaces::Instance().SetScreen(screen);
    const auto whole = qScopeGuard([] { WindowPlaces::Instance().SetScreen({}); });
    YearsDesk desk;
    desk.Open();
    const QSize room = WindowPlaces::Instance().RoomFor(desk.Window());
    for (const FigureKindRow& kind : FigureKinds()) {
        desk.Show(kind.kind);
        QTRY_COMPARE(desk.Get<QListWidget>("kinds").currentItem()->text(), QString::fromUtf8(kind.title));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        QVERIFY2(desk.Window().size().boundedTo(room) == desk.Window().size(),
                 qPrintable(QStringLiteral("%1: %2 x %3")
                                .arg(QLatin1String(kind.title))
                                .arg(desk.Window().width())
                                .arg(desk.Window().height())));
        const auto* title = qobject_cast<QCPTextElement*>(Plot(desk).plotLayout()->element(0, 0));
        QVERIFY(title != nullptr);
        QVERIFY(QFontMetricsF(title->font()).horizontalAdvance(title->text()) <= title->rect().width());
        const auto& exit = desk.Get<QPushButton>("exit");
        QCOMPARE(exit.visibleRegion().boundingRect(), exit.rect());
    }
}

/// Years that are much alike have bars in proportion to their kilometres.
void WindowTest::barsStandOnZero()
{
    YearsDesk desk;
    desk.Open();
    desk.Show(FigureKind::Years);
    QTRY_COMPARE(desk.Title(), QStringLiteral("Chilometri per anno"));
    QCOMPARE(Plot(desk).yAxis->range().lower, 0.0);
}

/// 73,25 was written as 73,3.
void WindowTest::numbersAreThoseOfTheirLines()
{
    YearsDesk desk;
    desk.Write("2024", YearsDesk::Year(2024));
    desk.Write("2025", YearsDesk::Year(2025));
    DiaryBytes diary = YearsDesk::Year(2026);
    const struct {
        int slot;
        const char* weight;
    } days[] = {{1, "73"}, {2, "74"}, {40, "73"}, {70, "72"}, {100, "71"}};
    for (const auto& day : days) {
        YearsDesk::Run(diary, day.slot, 10, "0:50:00", "Bosco");
        diary.SetLine(day.slot, DiaryBytes::Weight, day.weight);
    }
    desk.Write("2026", diary);
    desk.Open();
    desk.Show(FigureKind::Weights);
    QTRY_COMPARE(desk.Title(), QStringLiteral("Peso, media del mese, tutti gli anni"));
    const QCPAxis& axis = *Plot(desk).yAxis;
    const QVector<double> places = axis.tickVector();
    const QVector<QString> labels = axis.tickVectorLabels();
    QVERIFY(places.size() > 4);
    QCOMPARE(labels.size(), places.size());
    for (qsizetype i = 0; i < places.size(); ++i) {
        QCOMPARE(QString(labels[i]).replace(QLatin1Char(','), QLatin1Char('.')).toDouble(), places[i]);
    }
}

/// A name that began beyond the border was left out.
void WindowTest::theFirstOfSlantedNamesIsDrawn()
{
    YearsDesk desk;
    DiaryBytes diary = YearsDesk::Year(2026);
    for (int slot = 1; slot <= 12; ++slot) {
        const QByteArray route = "Anello del parco " + QByteArray(1, char('A' + slot));
        YearsDesk::Run(diary, slot, 10, "0:50:00", route.constData());
    }
    desk.Write("2026", diary);
    desk.Open();
    desk.Show(FigureKind::Routes);
    QTRY_COMPARE(desk.Title(), QStringLiteral("Migliori tempi per percorso, tutti gli anni"));
    const QCPAxis& axis = *Plot(desk).xAxis;
    QCOMPARE(axis.tickLabelRotation(), -45.0);
    const QFontMetricsF metrics(axis.tickLabelFont());
    const double name = metrics.horizontalAdvance(axis.tickVectorLabels().first()) / std::numbers::sqrt2;
    QVERIFY2(axis.coordToPixel(axis.tickVector().first()) >= name, qPrintable(QString::number(name)));
}

/// Kind, year, figure and table without the mouse.
void WindowTest::byKeysAlone()
{
    YearsDesk desk;
    desk.Open();
    QTRY_VERIFY(desk.Get<QListWidget>("kinds").hasFocus());
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(desk.Title(), QStringLiteral("Chilometri per mese, 2026"));
    hand::Key(Qt::Key_A, Qt::AltModifier);
    QTRY_VERIFY(desk.Get<QComboBox>("year").hasFocus());
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(desk.Title(), QStringLiteral("Chilometri per mese, 2025"));
    hand::Key(Qt::Key_Tab); // To the year beside it, then to the figure.
    hand::Key(Qt::Key_Tab);
    QTRY_VERIFY(desk.View().hasFocus());
    hand::Key(Qt::Key_End);
    QTRY_COMPARE(desk.Text("value"), QStringLiteral("dicembre 2025: 0,000 km, 0 uscite"));
    hand::Key(Qt::Key_Tab);
    QTRY_VERIFY(desk.Get<QTableView>("table").hasFocus());
    hand::Key(Qt::Key_Tab);
    QTRY_VERIFY(desk.Get<QPushButton>("zoomIn").hasFocus());
    hand::Key(Qt::Key_Space);
    QTRY_VERIFY(!desk.View().IsWhole());
    hand::Key(Qt::Key_U, Qt::AltModifier);
    QTRY_VERIFY(desk.View().IsWhole());
}

void WindowTest::everythingHasAName()
{
    YearsDesk desk;
    desk.Open();
    for (const FigureKindRow& kind : FigureKinds()) {
        desk.Show(kind.kind);
        for (QWidget* widget : desk.Window().findChildren<QWidget*>()) {
            const bool inner = qobject_cast<QLineEdit*>(widget) != nullptr; // Of a box for numbers.
            if (widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus) != 0 && !inner) {
                QVERIFY2(!Spoken(*widget, QAccessible::Name).isEmpty(), qPrintable(widget->objectName()));
            }
        }
    }
    QCOMPARE(Spoken(desk.Get<QSpinBox>("goal"), QAccessible::Name), QStringLiteral("Obiettivo dell'anno"));
    QCOMPARE(Spoken(desk.Get<QTableView>("table"), QAccessible::Name),
             QStringLiteral("Tabella: Carico di 7 e di 42 giorni, tutti gli anni"));
}

void WindowTest::noDiaries()
{
    YearsDesk desk;
    for (const char* diary : {"2024", "2025", "2026", "rovinato"}) {
        std::filesystem::remove(desk.folder.Native("ZelviaFile/" + std::string(diary) + ".zlv"));
    }
    desk.Open();
    for (const FigureKindRow& kind : FigureKinds()) {
        desk.Show(kind.kind);
        QVERIFY(desk.View().Shown().IsEmpty());
        QCOMPARE(desk.View().accessibleDescription(), QStringLiteral("Nessun valore"));
        QVERIFY(!desk.Get<QPushButton>("copy").isEnabled());
        QVERIFY(!desk.Get<QPushButton>("print").isEnabled());
    }
    desk.View().setFocus();
    hand::Key(Qt::Key_Right);
    hand::Key(Qt::Key_Down);
    hand::Type(QStringLiteral("+"));
    QCOMPARE(desk.Text("value"), QString());
    VERIFY_SCRIPT(desk.script);
}

void WindowTest::noFolder()
{
    YearsDesk desk;
    std::filesystem::remove_all(desk.folder.Native("ZelviaFile"));
    desk.Open();
    QVERIFY(desk.View().Shown().IsEmpty());
    desk.Close();
    YearsWindow window(desk.folder.Native("assente"));
    window.show();
    QTRY_VERIFY(window.findChild<QLabel*>(QStringLiteral("said"))
                    ->text()
                    .startsWith(QStringLiteral("La cartella dei diari non si legge: ")));
}

void WindowTest::itReadsAgain()
{
    YearsDesk desk;
    desk.Open();
    desk.Show(FigureKind::Years);
    QTRY_COMPARE(desk.Row(2).join(QLatin1Char('|')), QStringLiteral("2026|30,000|2|0"));
    DiaryBytes diary = YearsDesk::Year(2026);
    YearsDesk::Run(diary, 5, 7, "0:35:00", "Bosco");
    desk.Write("2026", diary);
    hand::Key(Qt::Key_F5);
    QTRY_COMPARE(desk.Row(2).join(QLatin1Char('|')), QStringLiteral("2026|7,000|1|0"));
}

/// What was chosen and is no longer there when it reads again.
void WindowTest::whatWasChosenHasGone()
{
    YearsDesk desk;
    desk.Open();
    desk.Show(FigureKind::Loads);
    desk.Get<QComboBox>("year").setFocus();
    hand::Key(Qt::Key_End);
    QTRY_COMPARE(desk.Title(), QStringLiteral("Carico di 7 e di 42 giorni, 2024"));
    desk.Show(FigureKind::Months);
    desk.Get<QComboBox>("other").setFocus();
    hand::Key(Qt::Key_End);
    QTRY_COMPARE(desk.View().Shown().heads.back(), QStringLiteral("Km 2024"));
    std::filesystem::remove(desk.folder.Native("ZelviaFile/2024.zlv"));
    hand::Key(Qt::Key_F5);
    QTRY_COMPARE(desk.View().Shown().heads.back(), QStringLiteral("Gare"));
    QCOMPARE(desk.Get<QComboBox>("other").currentText(), QStringLiteral("nessun altro"));
    desk.Show(FigureKind::Loads);
    QTRY_COMPARE(desk.Title(), QStringLiteral("Carico di 7 e di 42 giorni, tutti gli anni"));
    QCOMPARE(desk.Get<QComboBox>("year").currentText(), QStringLiteral("tutti gli anni"));
}

/// The year beside is chosen itself.
void WindowTest::theYearBesideBecomesTheYear()
{
    YearsDesk desk;
    desk.Open();
    auto& other = desk.Get<QComboBox>("other");
    other.setFocus();
    hand::Key(Qt::Key_Down);
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(other.currentText(), QStringLiteral("2025"));
    desk.Get<QComboBox>("year").setFocus();
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(desk.Title(), QStringLiteral("Chilometri per settimana, 2025"));
    QCOMPARE(other.currentText(), QStringLiteral("nessun altro"));
    QCOMPARE(desk.View().Shown().series.size(), 1);
}

void WindowTest::itCloses()
{
    YearsDesk desk;
    desk.Open();
    hand::Key(Qt::Key_W, Qt::ControlModifier);
    QTRY_VERIFY(!desk.Window().isVisible());
    desk.Open();
    desk.Press("exit");
    QTRY_VERIFY(!desk.Window().isVisible());
}

/// Those over all diaries that there are.
static QList<QWidget*> YearsWindows()
{
    QList<QWidget*> all;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QLatin1String("YearsWindow")) {
            all << widget;
        }
    }
    return all;
}

/// The second time the window comes to the front; another folder has a window of its own.
void WindowTest::openedTwice()
{
    const YearsDesk desk;
    const TempFolder other;
    OpenAllYears(desk.folder.Native());
    const QList<QWidget*> first = YearsWindows();
    QCOMPARE(first.size(), 1);
    OpenAllYears(desk.folder.Native());
    QCOMPARE(YearsWindows(), first);
    OpenAllYears(other.Native());
    QCOMPARE(YearsWindows().size(), 1);
    YearsWindows().first()->close();
    QTRY_VERIFY(YearsWindows().isEmpty());
}

void WindowTest::itEndsWhileItReads()
{
    YearsDesk desk;
    for (int year = 1990; year < 2020; ++year) {
        desk.Write(std::to_string(year), YearsDesk::Year(year));
    }
    for (int i = 0; i < 10; ++i) {
        YearsWindow window(desk.folder.Native());
        window.show();
        QApplication::processEvents();
    }
    VERIFY_SCRIPT(desk.script);
}

/// Closed while reading, which must not outlive the program.
void WindowTest::itGoesWithTheProgram()
{
    const YearsDesk desk;
    OpenAllYears(desk.folder.Native());
    QCOMPARE(YearsWindows().size(), 1);
    QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(); });
    QCoreApplication::exec();
    QVERIFY(YearsWindows().isEmpty());
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::WindowTest)
#include "WindowTest.moc"
