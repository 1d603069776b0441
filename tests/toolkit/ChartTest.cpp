// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Chart.h"

#include "core/Conversions.h"
#include "support/WindowTest.h"
#include "toolkit/PagePalette.h"
#include "toolkit/QtText.h"
#include "toolkit/TextCatcher.h"

#include <QClipboard>
#include <QImage>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>
#include <vector>

Q_DECLARE_METATYPE(zelvia::ChartData)

using namespace zelvia;

namespace
{

constexpr QSize kSize(920, 580);

ChartData Bars(const QStringList& names, const std::vector<int>& counts)
{
    ChartData chart;
    chart.chartType = ChartType::Bars;
    chart.TitleText = "Percorso";
    chart.SetColumnCount(static_cast<int>(names.size()));
    chart.SetRowCount(1);
    for (int i = 1; i <= chart.ColumnCount(); ++i) {
        chart.Column = i;
        chart.SetColumnLabel(FromQString(names[i - 1]));
        chart.SetData(PlainText(i32(counts[static_cast<std::size_t>(i - 1)])));
    }
    return chart;
}

ChartData Line(const QStringList& values)
{
    ChartData chart;
    chart.chartType = ChartType::Line;
    chart.TitleText = Text("Velocità Media per Km"_t);
    chart.SetColumnCount(1);
    chart.SetColumnLabel("Tempo");
    chart.SetRowCount(static_cast<int>(values.size()));
    for (int i = 1; i <= chart.RowCount(); ++i) {
        chart.Row = i;
        chart.SetData(FromQString(values[i - 1]));
        chart.SetRowLabel(FromQString(values[i - 1]));
    }
    return chart;
}

/// Sixty route names of 13 to 45 letters.
QStringList SixtyNames()
{
    QStringList names;
    for (int i = 1; i <= 60; ++i) {
        names << QStringLiteral("Percorso n. %1").arg(i, 2) +
                     QStringLiteral(" con il ritorno lungo la riva destra").left(i % 33);
    }
    return names;
}

/// Paces between 4:40 and 5:49, as the search stores them.
QStringList Paces(int count)
{
    QStringList paces;
    for (int i = 0; i < count; ++i) {
        const int seconds = 280 + i * 37 % 70;
        paces << ToQString(PlainText(static_cast<f32>(seconds / 60 + seconds % 60 / 100.0)));
    }
    return paces;
}

QImage Drawn(const ChartData& chart, double scale = 1)
{
    QImage image((QSizeF(kSize) * scale).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    DrawChart(painter, QRectF(QPointF(), QSizeF(kSize)), chart);
    return image;
}

std::vector<CaughtText> Written(const ChartData& chart, const QSize& size = kSize)
{
    TextCatcher catcher(size);
    QPainter painter(&catcher);
    DrawChart(painter, QRectF(QPointF(), QSizeF(size)), chart);
    painter.end();
    return catcher.Texts();
}

/// The texts in alphabetical order.
QStringList Sorted(const std::vector<CaughtText>& texts)
{
    QStringList sorted;
    for (const CaughtText& text : texts) {
        sorted << text.text;
    }
    sorted.sort();
    return sorted;
}

/// The one text of this wording; an empty one when it is not there exactly once.
CaughtText Find(const std::vector<CaughtText>& texts, const QString& wording)
{
    std::vector<CaughtText> found;
    std::copy_if(texts.begin(), texts.end(), std::back_inserter(found),
                 [&](const CaughtText& text) { return text.text == wording; });
    return found.size() == 1 ? found.front() : CaughtText{};
}

bool IsWash(const QColor& colour)
{
    return colour.blue() > 180 && colour.blue() - colour.red() > 40 && colour.red() > 80;
}

/// The heights of the bars in pixels, from left to right: the washes over the row just above the axis.
std::vector<int> BarHeights(const QImage& image)
{
    int base = 0;
    int most = 0;
    for (int y = 0; y < image.height(); ++y) {
        int washed = 0;
        for (int x = 0; x < image.width(); ++x) {
            washed += IsWash(image.pixelColor(x, y)) ? 1 : 0;
        }
        if (washed >= most && washed > 0) {
            most = washed;
            base = y;
        }
    }
    std::vector<int> heights;
    for (int x = 0; x < image.width(); ++x) {
        const int left = x;
        while (x < image.width() && IsWash(image.pixelColor(x, base))) {
            ++x;
        }
        // An outline between two pixels is of the same colour.
        constexpr int outline = 2;
        if (x - left <= outline) {
            continue;
        }
        int height = 0;
        while (IsWash(image.pixelColor((left + x) / 2, base - height))) {
            ++height;
        }
        heights.push_back(height);
    }
    return heights;
}

/// How many pixels high each line of the grid is, from top to bottom, in the column that crosses most of
/// them.
std::vector<int> GridLines(const QImage& image)
{
    const QRgb ink = QColor(226, 215, 187).rgb();
    std::vector<int> most;
    for (int x = 0; x < image.width(); ++x) {
        std::vector<int> lines;
        for (int y = 1; y < image.height(); ++y) {
            if (image.pixel(x, y) == ink) {
                if (image.pixel(x, y - 1) != ink) {
                    lines.push_back(0);
                }
                ++lines.back();
            }
        }
        if (lines.size() > most.size()) {
            most = lines;
        }
    }
    return most;
}

} // namespace

class ChartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void BarsAreAsHighAsTheirCounts_data();
    void BarsAreAsHighAsTheirCounts();
    void AHigherValueStandsHigher();
    void NoValuesLeaveATitle();
    void TextsOfBars();
    void TextsOfALine();
    void EveryLabelIsWritten_data();
    void EveryLabelIsWritten();
    void TextsKeepClear_data();
    void TextsKeepClear();
    void LabelsAreAsFlatAsTheyCanBe_data();
    void LabelsAreAsFlatAsTheyCanBe();
    void ItDrawsIntoItsRectangleAlone();
    void TwiceTheScaleIsTheSameDrawing();
    void LinesOfTheGridAreAllAsWide_data();
    void LinesOfTheGridAreAllAsWide();
    void ItTellsItsValues();
    void TheCopyIsAPicture();
};

void ChartTest::BarsAreAsHighAsTheirCounts_data()
{
    QTest::addColumn<int>("bars");
    QTest::newRow("1") << 1;
    QTest::newRow("5") << 5;
    QTest::newRow("30") << 30;
    QTest::newRow("60") << 60;
}

void ChartTest::BarsAreAsHighAsTheirCounts()
{
    QFETCH(int, bars);
    QStringList names;
    std::vector<int> counts;
    for (int i = 1; i <= bars; ++i) {
        names << QStringLiteral("P%1").arg(i);
        counts.push_back(180 - 2 * i);
    }
    const std::vector<int> heights = BarHeights(Drawn(Bars(names, counts)));
    QCOMPARE(static_cast<int>(heights.size()), bars);
    const double perRun = static_cast<double>(heights.front()) / counts.front();
    for (std::size_t i = 0; i < heights.size(); ++i) {
        QVERIFY2(std::abs(heights[i] - counts[i] * perRun) <= 2.5, qPrintable(QString::number(i)));
    }
    QVERIFY(heights.front() > kSize.height() / 2);
}

void ChartTest::AHigherValueStandsHigher()
{
    // Two points: the discs' ink in the left and in the right half, below the name of the line.
    const QImage image = Drawn(Line({QStringLiteral("5,07"), QStringLiteral("6")}));
    double sum[2] = {};
    int count[2] = {};
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 45; y < image.height(); ++y) {
            const QColor colour = image.pixelColor(x, y);
            if (colour.red() > 140 && colour.red() - colour.green() > 60 && colour.red() - colour.blue() > 60) {
                const int half = x < image.width() / 2 ? 0 : 1;
                sum[half] += y;
                ++count[half];
            }
        }
    }
    QVERIFY(count[0] > 5 && count[1] > 5);
    QVERIFY(sum[1] / count[1] < sum[0] / count[0] - 200);
}

void ChartTest::NoValuesLeaveATitle()
{
    ChartData none = Bars({}, {});
    none.TitleText = "Meteo";
    QCOMPARE(BarHeights(Drawn(none)).size(), std::size_t{0});
    QCOMPARE(Written(none).front().text, QStringLiteral("Meteo"));
    QCOMPARE(Written(Line({})).front().text, QStringLiteral("Velocità Media per Km"));
    // No name of a line that is not there.
    QVERIFY(!Sorted(Written(Line({}))).contains(QStringLiteral("Tempo")));
}

void ChartTest::TextsOfBars()
{
    const std::vector<CaughtText> texts =
        Written(Bars({QStringLiteral("Città alta"), QStringLiteral("Mare")}, {12, 3}));
    // The axis to 12, the count of each bar, the labels and the title.
    QCOMPARE(Sorted(texts),
             QStringList({QStringLiteral("0"), QStringLiteral("10"), QStringLiteral("12"), QStringLiteral("12"),
                          QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("4"), QStringLiteral("6"),
                          QStringLiteral("8"), QStringLiteral("Città alta"), QStringLiteral("Mare"),
                          QStringLiteral("Percorso")}));
    const CaughtText title = Find(texts, QStringLiteral("Percorso"));
    const CaughtText first = Find(texts, QStringLiteral("Città alta"));
    const CaughtText second = Find(texts, QStringLiteral("Mare"));
    const CaughtText count = Find(texts, QStringLiteral("3"));
    QCOMPARE(title.font.families().constFirst(), QStringLiteral("Book Antiqua"));
    QCOMPARE(title.font.pixelSize(), 19); // 14 points at 96 to the inch
    for (const CaughtText& text : {first, count, Find(texts, QStringLiteral("6"))}) {
        QCOMPARE(text.font.families().constFirst(), QStringLiteral("MS Sans Serif"));
    }
    QVERIFY(first.start.x() < second.start.x());
    // The count is above its bar, in line with its label.
    const QRectF label = second.ink.boundingRect();
    QVERIFY(std::abs(count.ink.boundingRect().center().x() - label.center().x()) < 2);
    QVERIFY(count.ink.boundingRect().bottom() < label.top());
}

void ChartTest::TextsOfALine()
{
    const std::vector<CaughtText> texts =
        Written(Line({QStringLiteral("5,07"), QStringLiteral("5,3"), QStringLiteral("4,5")}));
    QStringList written = Sorted(texts);
    for (const QString& text : {QStringLiteral("Velocità Media per Km"), QStringLiteral("Tempo"),
                                QStringLiteral("5,07"), QStringLiteral("5,3"), QStringLiteral("4,5")}) {
        QVERIFY2(written.removeOne(text), qPrintable(text));
    }
    // The numbers of the axis have two decimals.
    QVERIFY(written.size() >= 4);
    for (const QString& number : std::as_const(written)) {
        QVERIFY2(QRegularExpression(QStringLiteral("^\\d,\\d\\d$")).match(number).hasMatch(), qPrintable(number));
    }
    QVERIFY(Find(texts, QStringLiteral("5,07")).start.x() < Find(texts, QStringLiteral("5,3")).start.x());
    QVERIFY(Find(texts, QStringLiteral("5,3")).start.x() < Find(texts, QStringLiteral("4,5")).start.x());
}

void ChartTest::EveryLabelIsWritten_data()
{
    QTest::addColumn<ChartData>("chart");
    QTest::addColumn<QStringList>("labels");
    QTest::newRow("60 names") << Bars(SixtyNames(), std::vector<int>(60, 3)) << SixtyNames();
    QTest::newRow("40 values") << Line(Paces(40)) << Paces(40);
    QTest::newRow("350 values") << Line(Paces(350)) << Paces(350);
    QStringList long60;
    for (const QString& name : SixtyNames()) {
        long60 << name + QStringLiteral(" e poi ancora avanti fino al ponte vecchio sul torrente di mezzo");
    }
    QTest::newRow("60 names beyond all room") << Bars(long60, std::vector<int>(60, 3)) << long60;
}

void ChartTest::EveryLabelIsWritten()
{
    QFETCH(ChartData, chart);
    QFETCH(QStringList, labels);
    // Whole, in their order from left to right, and in a size that can be read.
    std::vector<CaughtText> texts = Written(chart);
    std::erase_if(texts, [](const CaughtText& text) { return text.degrees == 0; });
    std::sort(texts.begin(), texts.end(),
              [](const CaughtText& one, const CaughtText& other) { return one.start.x() < other.start.x(); });
    QStringList written;
    for (const CaughtText& text : texts) {
        QVERIFY(text.font.pixelSize() >= 9);
        written << text.text;
    }
    QCOMPARE(written, labels);
}

void ChartTest::TextsKeepClear_data()
{
    QTest::addColumn<ChartData>("chart");
    QTest::addColumn<QSize>("size");
    const auto bars = [](int count) { return Bars(SixtyNames().first(count), std::vector<int>(60, 3)); };
    constexpr QSize smallest(600, 370); // in the smallest window
    QTest::newRow("1 name") << bars(1) << kSize;
    QTest::newRow("3 names") << bars(3) << kSize;
    QTest::newRow("7 names") << bars(7) << kSize;
    QTest::newRow("12 names") << bars(12) << kSize;
    QTest::newRow("30 names") << bars(30) << kSize;
    QTest::newRow("60 names") << bars(60) << kSize;
    QTest::newRow("60 names, small") << bars(60) << smallest;
    QTest::newRow("1 value") << Line(Paces(1)) << kSize;
    QTest::newRow("12 values") << Line(Paces(12)) << kSize;
    QTest::newRow("40 values") << Line(Paces(40)) << kSize;
    QTest::newRow("120 values") << Line(Paces(120)) << kSize;
    QTest::newRow("350 values") << Line(Paces(350)) << kSize;
    QTest::newRow("350 values, small") << Line(Paces(350)) << smallest;
    QTest::newRow("paces of a slow year") << Line({QStringLiteral("999,59"), QStringLiteral("5,07")}) << kSize;
}

void ChartTest::TextsKeepClear()
{
    QFETCH(ChartData, chart);
    QFETCH(QSize, size);
    const std::vector<CaughtText> texts = Written(chart, size);
    for (auto one = texts.begin(); one != texts.end(); ++one) {
        QVERIFY2(QRectF(QPointF(), QSizeF(size)).contains(one->ink.boundingRect()), qPrintable(one->text));
        const auto hit = std::find_if(std::next(one), texts.end(), [&](const CaughtText& other) {
            return one->ink.boundingRect().intersects(other.ink.boundingRect()) && one->ink.intersects(other.ink);
        });
        QVERIFY2(hit == texts.end(), qPrintable(one->text));
    }
}

void ChartTest::LabelsAreAsFlatAsTheyCanBe_data()
{
    QTest::addColumn<ChartData>("chart");
    QTest::addColumn<QString>("label");
    QTest::addColumn<int>("degrees");
    const auto bars = [](int count) { return Bars(SixtyNames().first(count), std::vector<int>(60, 3)); };
    const QString first = SixtyNames().constFirst();
    QTest::newRow("2 names") << bars(2) << first << 0;
    QTest::newRow("7 names") << bars(7) << first << 0;
    QTest::newRow("40 values") << Line(Paces(40)) << QStringLiteral("4,4") << -45;
    QTest::newRow("60 names") << bars(60) << first << -90;
}

void ChartTest::LabelsAreAsFlatAsTheyCanBe()
{
    QFETCH(ChartData, chart);
    QFETCH(QString, label);
    QFETCH(int, degrees);
    const CaughtText found = Find(Written(chart), label);
    QCOMPARE(found.text, label);
    QCOMPARE(found.degrees, degrees);
}

void ChartTest::ItDrawsIntoItsRectangleAlone()
{
    const QSize around = kSize + QSize(100, 100);
    QImage image(around, QImage::Format_RGB32);
    image.fill(Qt::green);
    QPainter painter(&image);
    DrawChart(painter, QRectF(QPointF(50, 50), QSizeF(kSize)), Bars(SixtyNames(), std::vector<int>(60, 3)));
    painter.end();
    const QRect inside(QPoint(50, 50), kSize);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            QVERIFY(inside.contains(x, y) || image.pixelColor(x, y) == QColor(Qt::green));
        }
    }
}

void ChartTest::TwiceTheScaleIsTheSameDrawing()
{
    const std::vector<int> counts = {40, 30, 12, 5};
    const QStringList names = {QStringLiteral("Uno"), QStringLiteral("Due"), QStringLiteral("Tre"),
                               QStringLiteral("Quattro")};
    const std::vector<int> once = BarHeights(Drawn(Bars(names, counts)));
    const std::vector<int> twice = BarHeights(Drawn(Bars(names, counts), 2));
    QCOMPARE(twice.size(), once.size());
    for (std::size_t i = 0; i < once.size(); ++i) {
        QVERIFY(std::abs(twice[i] - 2 * once[i]) <= 3);
    }
}

void ChartTest::LinesOfTheGridAreAllAsWide_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("pixels");
    QTest::newRow("1") << 1.0 << 1;
    QTest::newRow("1.25") << 1.25 << 1;
    QTest::newRow("1.5") << 1.5 << 2;
    QTest::newRow("1.75") << 1.75 << 2;
    QTest::newRow("2") << 2.0 << 2;
}

void ChartTest::LinesOfTheGridAreAllAsWide()
{
    QFETCH(double, scale);
    QFETCH(int, pixels);
    const std::vector<int> lines = GridLines(Drawn(Line(Paces(40)), scale));
    QVERIFY(lines.size() >= 5);
    for (const int line : lines) {
        QCOMPARE(line, pixels);
    }
}

void ChartTest::ItTellsItsValues()
{
    Chart chart(nullptr, QStringLiteral("MSChart1"));
    chart.Show(Bars({QStringLiteral("Città"), QStringLiteral("Mare")}, {12, 3}));
    QCOMPARE(chart.objectName(), QStringLiteral("MSChart1"));
    QCOMPARE(chart.accessibleName(), QStringLiteral("Percorso"));
    QCOMPARE(chart.accessibleDescription(), QStringLiteral("Città: 12; Mare: 3"));
    chart.Show(Line({QStringLiteral("5,07"), QStringLiteral("0"), QStringLiteral("4,5")}));
    QCOMPARE(chart.accessibleName(), QStringLiteral("Velocità Media per Km"));
    QCOMPARE(chart.accessibleDescription(), QStringLiteral("Tempo: 5,07; 0; 4,5"));
    chart.Show(Line({}));
    QCOMPARE(chart.accessibleDescription(), QStringLiteral("Nessun valore"));
}

void ChartTest::TheCopyIsAPicture()
{
    Chart chart(nullptr, QStringLiteral("MSChart1"));
    chart.resize(kSize);
    const ChartData data = Bars({QStringLiteral("Uno"), QStringLiteral("Due")}, {40, 20});
    chart.Show(data);
    QGuiApplication::clipboard()->setText(QStringLiteral("prima"));
    chart.EditCopy(kSize);
    const QImage picture = QGuiApplication::clipboard()->image();
    QVERIFY(picture.convertToFormat(QImage::Format_RGB32) == Drawn(data, 2));
    QGuiApplication::clipboard()->clear();
}

ZELVIA_WINDOW_TEST(ChartTest)
#include "ChartTest.moc"
