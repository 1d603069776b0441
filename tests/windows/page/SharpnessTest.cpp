// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Lines and edges of the page on the pixels of screens of each scale.
#include "support/EntryPage.h"
#include "support/WindowTest.h"
#include "toolkit/PagePalette.h"
#include "windows/page/PageArt.h"
#include "windows/page/PaperSheet.h"

#include <QMenuBar>

#include <vector>

namespace zelvia::test
{
namespace
{

constexpr int kRowsOfFields = 17;

/// What a screen of a scale shows of a widget.
QImage OnScreen(QWidget& widget, double scale)
{
    QImage image((QSizeF(widget.size()) * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    widget.render(&image);
    return image;
}

/// A stretch of one colour in a column of pixels.
struct Run {
    int top;
    int length;
};

std::vector<Run> RunsOf(const QImage& image, int x, const QColor& colour)
{
    std::vector<Run> runs;
    for (int y = 0; y < image.height(); ++y) {
        if (image.pixelColor(x, y) != colour) {
            continue;
        }
        if (runs.empty() || runs.back().top + runs.back().length != y) {
            runs.push_back({y, 0});
        }
        ++runs.back().length;
    }
    return runs;
}

/// The colours along a line from one pixel to another, without those that are repeated.
QList<QRgb> Along(const QImage& image, QPoint from, QPoint to)
{
    const QPoint step(from.x() < to.x() ? 1 : 0, from.y() < to.y() ? 1 : 0);
    QList<QRgb> colours{image.pixel(from)};
    for (QPoint at = from; at != to; at += step) {
        if (!colours.contains(image.pixel(at + step))) {
            colours << image.pixel(at + step);
        }
    }
    return colours;
}

/// The pixels that a place of the page covers.
QRect PixelsOf(const QRect& place, double scale)
{
    const QPoint corner(qRound(place.left() * scale), qRound(place.top() * scale));
    return {corner, QPoint(qRound((place.right() + 1) * scale) - 1, qRound((place.bottom() + 1) * scale) - 1)};
}

/// How wide the border of a box is on its four sides, 0 for a side without one of one colour from corner to corner.
QList<int> BorderOf(const QImage& image, const QRect& box)
{
    const QRgb ink = image.pixel(box.topLeft());
    const auto whole = [&](const QRect& side) {
        return Along(image, side.topLeft(), side.bottomRight()) == QList<QRgb>{ink};
    };
    QList<int> widths(4, 0);
    const auto rows = [&](int& width, int from, int step) {
        while (width < box.height() / 2 && whole({box.left(), from + width * step, box.width(), 1})) {
            ++width;
        }
    };
    const auto columns = [&](int& width, int from, int step) {
        while (width < box.width() / 2 && whole({from + width * step, box.top(), 1, box.height()})) {
            ++width;
        }
    };
    rows(widths[0], box.top(), 1);
    rows(widths[1], box.bottom(), -1);
    columns(widths[2], box.left(), 1);
    columns(widths[3], box.right(), -1);
    return widths;
}

void AddScales()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<double>("factor");
    for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
        for (const double factor : {1.0, 0.85, 1.25}) {
            QTest::addRow("%g, page %g", scale, factor) << scale << factor;
        }
    }
}

void Grow(const EntryPage& page, double factor)
{
    const int bar = page->findChild<QMenuBar*>()->height();
    page->resize(qRound(1200 * factor), qRound(648 * factor) + bar);
    QTRY_COMPARE(page->sheet->Factor(), factor);
}

} // namespace

class SharpnessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rules_data() { AddScales(); }
    void rules();
    void repainted_data() { AddScales(); }
    void repainted();
    void desk_data() { AddScales(); }
    void desk();
    void boxesAndLists_data() { AddScales(); }
    void boxesAndLists();
};

void SharpnessTest::rules()
{
    QFETCH(double, scale);
    QFETCH(double, factor);
    EntryPage page;
    page.Start();
    Grow(page, factor);
    const QImage image = OnScreen(*page->sheet, scale);
    // Between the values, which end at 400, and the arrows, from 412 on. The rules run from 56 to 576.
    const double shown = scale * factor;
    const std::vector<Run> runs = RunsOf(image, qRound(404 * shown), Ink::Rule);
    QCOMPARE(runs.size(), std::size_t(kRowsOfFields));
    for (const Run& run : runs) {
        QCOMPARE(run.length, std::max(qRound(shown), 1));
        const int left = qRound(56 * shown);
        const int right = qRound(576 * shown) - 1;
        for (int y = run.top; y < run.top + run.length; ++y) {
            QCOMPARE(Along(image, {left, y}, {right, y}), QList<QRgb>{Ink::Rule.rgb()});
        }
        // Nothing of it on the pixels above and below: paper, or one of the laid lines of its grain.
        const int x = qRound(404 * shown);
        const QList<QRgb> paper{Ink::Paper.rgb(), Mixed(Ink::Paper, Ink::PaperShade, 0.28).rgb()};
        QVERIFY(paper.contains(image.pixel(x, run.top - 1)));
        QVERIFY(paper.contains(image.pixel(x, run.top + run.length)));
    }
}

void SharpnessTest::repainted()
{
    QFETCH(double, scale);
    QFETCH(double, factor);
    EntryPage page;
    page.Start();
    Grow(page, factor);
    const QImage first = OnScreen(*page->sheet, scale);
    QCOMPARE(OnScreen(*page->sheet, scale), first);
    // A part of it over the rest.
    QImage again = first;
    for (const int number : {1, 2, 3, 4, 5, 6, 7, 8}) {
        const QRect value = page.Field(number).lblImmis->geometry();
        page->sheet->render(&again, value.topLeft(), value);
    }
    QCOMPARE(again, first);
}

void SharpnessTest::desk()
{
    QFETCH(double, scale);
    QFETCH(double, factor);
    EntryPage page;
    page.Start();
    Grow(page, factor);
    const QImage image = OnScreen(*page->sheet, scale);
    for (int y = 1; y < image.height(); ++y) {
        QVERIFY2(image.pixelColor(1, y).lightness() <= image.pixelColor(1, y - 1).lightness(),
                 QByteArray::number(y).constData());
    }
}

void SharpnessTest::boxesAndLists()
{
    QFETCH(double, scale);
    QFETCH(double, factor);
    EntryPage page;
    page.Start();
    Grow(page, factor);
    page.Click(*page.Field(2).lblImmis);
    QTRY_VERIFY(page.Field(2).txt->hasFocus());
    const QImage image = OnScreen(*page->sheet, scale);
    for (const QWidget* box : {static_cast<QWidget*>(page.Field(2).txt), static_cast<QWidget*>(page.Field(2).lst)}) {
        const QRect place = PixelsOf(box->geometry(), scale);
        const QList<int> widths = BorderOf(image, place);
        QVERIFY2(widths[0] > 0, box->objectName().toLatin1().constData());
        QCOMPARE(widths, QList<int>(4, widths[0]));
        // Neither the border nor the box reaches further.
        for (const int x : {place.left() - 1, place.right() + 1}) {
            QVERIFY(image.pixel(x, place.center().y()) != image.pixel(place.topLeft()));
            QVERIFY(image.pixel(x, place.center().y()) != Ink::Slip.rgb());
        }
    }
    // Between its border and its entries nothing is seen of the values under the list.
    const QRect list = PixelsOf(page.Field(2).lst->geometry(), scale);
    const int width = BorderOf(image, list).first();
    const QRect inside = list.adjusted(width, width, -width, -width);
    QCOMPARE(Along(image, inside.topLeft(), inside.bottomLeft()), QList<QRgb>{Ink::Slip.rgb()});
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::SharpnessTest)
#include "SharpnessTest.moc"
