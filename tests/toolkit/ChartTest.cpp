// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Chart.h"

#include "core/Conversions.h"
#include "support/WindowTest.h"
#include "toolkit/ChartDrawing.h"
#include "toolkit/ChartLabels.h"
#include "toolkit/PagePalette.h"
#include "toolkit/QtText.h"
#include "toolkit/TextCatcher.h"

#include <QClipboard>
#include <QImage>
#include <QRegularExpression>

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

QImage Drawn(const ChartData& chart, int scale = 1)
{
    QImage image(kSize * scale, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    DrawChart(painter, QRectF(QPointF(), QSizeF(kSize)), chart);
    return image;
}

std::vector<CaughtText> Written(const ChartData& chart)
{
    TextCatcher catcher(kSize);
    QPainter painter(&catcher);
    DrawChart(painter, QRectF(QPointF(), QSizeF(kSize)), chart);
    painter.end();
    return catcher.Texts();
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
        if (!IsWash(image.pixelColor(x, base)) || (x > 0 && IsWash(image.pixelColor(x - 1, base)))) {
            continue;
        }
        int height = 0;
        while (IsWash(image.pixelColor(x + 1, base - height))) {
            ++height;
        }
        heights.push_back(height);
    }
    return heights;
}

/// Labels in `count` places of a chart of the size above, as the drawing asks for them.
ChartLabels Laid(const QStringList& labels)
{
    const double step = 870.0 / static_cast<double>(labels.size());
    return ChartLabels(labels, {step, 40 + step / 2, 260});
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
    void LabelsKeepClear_data();
    void LabelsKeepClear();
    void LabelsTakeTheFlattestStand();
    void ItDrawsIntoItsRectangleAlone();
    void TwiceTheScaleIsTheSameDrawing();
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
}

void ChartTest::TextsOfBars()
{
    const std::vector<CaughtText> texts =
        Written(Bars({QStringLiteral("Città alta"), QStringLiteral("Mare")}, {12, 3}));
    QStringList written;
    for (const CaughtText& text : texts) {
        written << text.text;
    }
    // The title, the axis, the labels and the counts over the bars.
    QCOMPARE(written, QStringList({QStringLiteral("Percorso"), QStringLiteral("0"), QStringLiteral("2"),
                                   QStringLiteral("4"), QStringLiteral("6"), QStringLiteral("8"), QStringLiteral("10"),
                                   QStringLiteral("12"), QStringLiteral("Città alta"), QStringLiteral("Mare"),
                                   QStringLiteral("12"), QStringLiteral("3")}));
    QCOMPARE(texts[0].font.families().constFirst(), QStringLiteral("Book Antiqua"));
    QCOMPARE(texts[0].font.pixelSize(), 19); // 14 points at 96 to the inch
    QCOMPARE(texts[1].font.families().constFirst(), QStringLiteral("MS Sans Serif"));
    QCOMPARE(texts[8].font.families().constFirst(), QStringLiteral("MS Sans Serif"));
    QVERIFY(texts[8].start.x() < texts[9].start.x());
}

void ChartTest::TextsOfALine()
{
    const std::vector<CaughtText> texts =
        Written(Line({QStringLiteral("5,07"), QStringLiteral("5,3"), QStringLiteral("4,5")}));
    QStringList written;
    for (const CaughtText& text : texts) {
        written << text.text;
    }
    QCOMPARE(written.first(), QStringLiteral("Velocità Media per Km"));
    QCOMPARE(written.last(), QStringLiteral("Tempo"));
    QCOMPARE(written.mid(written.size() - 4, 3),
             QStringList({QStringLiteral("5,07"), QStringLiteral("5,3"), QStringLiteral("4,5")}));
    // The numbers of the axis have two decimals behind a comma.
    const QStringList axis = written.mid(1, written.size() - 5);
    QVERIFY(axis.size() >= 4);
    for (const QString& number : axis) {
        QVERIFY2(QRegularExpression(QStringLiteral("^\\d,\\d\\d$")).match(number).hasMatch(), qPrintable(number));
    }
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
    double left = 0;
    qsizetype next = 0;
    for (const CaughtText& text : Written(chart)) {
        if (next < labels.size() && text.text == labels[next] && text.start.y() > kSize.height() / 3) {
            QVERIFY(text.start.x() > left);
            QVERIFY(text.font.pixelSize() >= 9);
            left = text.start.x();
            ++next;
        }
    }
    QCOMPARE(next, labels.size());
}

void ChartTest::LabelsKeepClear_data()
{
    QTest::addColumn<QStringList>("labels");
    QTest::newRow("60 names") << SixtyNames();
    QTest::newRow("40 values") << Paces(40);
    QTest::newRow("120 values") << Paces(120);
    QTest::newRow("350 values") << Paces(350);
    QTest::newRow("5 names") << SixtyNames().mid(27, 5);
}

void ChartTest::LabelsKeepClear()
{
    QFETCH(QStringList, labels);
    const ChartLabels laid = Laid(labels);
    QVERIFY(laid.Height() <= 260);
    QVERIFY(laid.Font().pixelSize() >= ChartLabels::kSmallest);
    if (laid.Standing() == ChartLabels::Stand::Slanted) {
        // Lines at 45 degrees lie this far apart.
        const double apart = 870.0 / static_cast<double>(labels.size()) * 0.7071;
        QVERIFY(apart >= QFontMetricsF(laid.Font()).capHeight() + 2);
        return;
    }
    const double step = 870.0 / static_cast<double>(labels.size());
    for (qsizetype i = 0; i < labels.size(); ++i) {
        const QRectF one = laid.Cover(i).translated(static_cast<double>(i) * step, 0);
        QVERIFY(one.bottom() <= laid.Height() + 1);
        for (qsizetype j = i + 1; j < std::min(labels.size(), i + 40); ++j) {
            const QRectF other = laid.Cover(j).translated(static_cast<double>(j) * step, 0);
            QVERIFY2(!one.intersects(other), qPrintable(QStringLiteral("%1 and %2").arg(i).arg(j)));
        }
    }
}

void ChartTest::LabelsTakeTheFlattestStand()
{
    QVERIFY(Laid({QStringLiteral("Lungofiume"), QStringLiteral("Mare")}).Standing() == ChartLabels::Stand::Level);
    QVERIFY(Laid(SixtyNames().first(7)).Standing() == ChartLabels::Stand::Level);
    QVERIFY(Laid(Paces(40)).Standing() == ChartLabels::Stand::Slanted);
    QVERIFY(Laid(SixtyNames()).Standing() == ChartLabels::Stand::Upright);
    QCOMPARE(Laid(SixtyNames()).Rows(), 1);
    QVERIFY(Laid(Paces(350)).Rows() > 1);
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

void ChartTest::ItTellsItsValues()
{
    Chart chart(nullptr, QStringLiteral("MSChart1"));
    chart.Show(Bars({QStringLiteral("Città"), QStringLiteral("Mare")}, {12, 3}));
    QCOMPARE(chart.objectName(), QStringLiteral("MSChart1"));
    QCOMPARE(chart.accessibleName(), QStringLiteral("Grafico: Percorso"));
    QCOMPARE(chart.accessibleDescription(), QStringLiteral("Città: 12; Mare: 3"));
    chart.Show(Line({QStringLiteral("5,07"), QStringLiteral("0"), QStringLiteral("4,5")}));
    QCOMPARE(chart.accessibleName(), QStringLiteral("Grafico: Velocità Media per Km"));
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

ZELVIA_WINDOW_TEST_MAIN(ChartTest)
#include "ChartTest.moc"
