// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/book/BookGeometry.h"

#include "support/TestProgram.h"

#include <QTest>

using namespace zelvia;

class BookGeometryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Dots();
    void Axis_data();
    void Axis();
    void Apart();
    void Months();
};

/// A quarter of the distance has half the radius.
void BookGeometryTest::Dots()
{
    QCOMPARE(DotRadius(42195, 8), 8.0);
    QCOMPARE(DotRadius(100000, 8), 8.0);
    QVERIFY(std::abs(DotRadius(10549, 8) - 4) < 0.01);
    QCOMPARE(DotRadius(1, 100), 22.0);
}

void BookGeometryTest::Axis_data()
{
    QTest::addColumn<double>("highest");
    QTest::addColumn<double>("step");
    QTest::newRow("nothing") << 0.0 << 0.2;
    QTest::newRow("a bar of 7") << 7.0 << 2.0;
    QTest::newRow("a week") << 70.0 << 20.0;
    QTest::newRow("a month") << 245.0 << 50.0;
    QTest::newRow("exactly") << 500.0 << 100.0;
    QTest::newRow("a year") << 2300.0 << 500.0;
}

void BookGeometryTest::Axis()
{
    QFETCH(double, highest);
    QTEST(AxisStep(highest), "step");
}

void BookGeometryTest::Apart()
{
    using Places = std::vector<double>;
    QCOMPARE(SpreadApart({10, 50, 90}, 10, 100), (Places{10, 50, 90}));
    QCOMPARE(SpreadApart({50, 50, 52}, 10, 100), (Places{50, 60, 70}));
    QCOMPARE(SpreadApart({98, 95}, 10, 100), (Places{100, 90}));
    // Five have no room for that.
    QCOMPARE(SpreadApart({40, 40, 40, 40, 40}, 30, 100), (Places{20, 40, 60, 80, 100}));
}

void BookGeometryTest::Months()
{
    const std::vector<int> starts = MonthStarts();
    QCOMPARE(starts.size(), std::size_t{12});
    QCOMPARE(starts[0], 0);
    QCOMPARE(starts[2], 60);
    QCOMPARE(starts[11], 335);
}

ZELVIA_TEST(BookGeometryTest)
#include "BookGeometryTest.moc"
