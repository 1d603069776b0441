// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Numbers.h"

#include "core/BoundedArray.h"
#include "core/SparseArray.h"
#include "support/Bytes.h"
#include "support/TestProgram.h"

#include <QTest>

#include <iterator>
#include <limits>
#include <string>
#include <utility>
#include <vector>

using namespace zelvia;
using namespace zelvia::test;

class NumbersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void RoundingGoesToTheEvenOne_data();
    void RoundingGoesToTheEvenOne();
    void RoundingOutOfRange_data();
    void RoundingOutOfRange();
    void FixDropsTheFraction();
    void ArithmeticOfShorts();
    void ArithmeticOfLongs();
    void MixedArithmeticIsLong();
    void ValuesOutOfRangeAreRefused();
    void FailedArithmeticChangesNothing();
    void ArraysKeepTheirBounds();
    void SparseArraysHoldWhatIsWritten();
    void SparseArraysAreVisitedInTurn();
};

void NumbersTest::RoundingGoesToTheEvenOne_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("rounded");
    const auto row = [](double value, int rounded) { QTest::addRow("%g", value) << value << rounded; };
    row(0.5, 0);
    row(1.5, 2);
    row(2.5, 2);
    row(3.5, 4);
    row(-0.5, 0);
    row(-1.5, -2);
    row(-2.5, -2);
    row(0.49999, 0);
    row(0.50001, 1);
    row(2.50001, 3);
    row(-2.50001, -3);
    row(32766.5, 32766);
    row(-32767.5, -32768);
}

void NumbersTest::RoundingGoesToTheEvenOne()
{
    QFETCH(double, value);
    QFETCH(int, rounded);
    QCOMPARE(int{RoundTo<i16>(value).value()}, rounded);
    QCOMPARE(int{RoundTo<i32>(value).value()}, rounded);
}

void NumbersTest::RoundingOutOfRange_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("asShort");
    QTest::addColumn<int>("asLong");
    QTest::newRow("highest short") << 32767.0 << 0 << 0;
    QTest::newRow("tie above the highest short") << 32767.5 << 6 << 0;
    QTest::newRow("one above") << 32768.0 << 6 << 0;
    QTest::newRow("lowest short, tie to even") << -32768.5 << 0 << 0;
    QTest::newRow("one below") << -32769.0 << 6 << 0;
    QTest::newRow("highest long") << 2147483647.0 << 6 << 0;
    QTest::newRow("just below the tie") << 2147483647.49 << 6 << 0;
    QTest::newRow("tie above the highest long") << 2147483647.5 << 6 << 6;
    QTest::newRow("lowest long") << -2147483648.5 << 6 << 0;
    QTest::newRow("below it") << -2147483649.0 << 6 << 6;
    QTest::newRow("beyond 64 bits") << 1e300 << 6 << 6;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << 6 << 6;
    QTest::newRow("minus infinite") << -std::numeric_limits<double>::infinity() << 6 << 6;
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << 6 << 6;
}

void NumbersTest::RoundingOutOfRange()
{
    QFETCH(double, value);
    QFETCH(int, asShort);
    QFETCH(int, asLong);
    QCOMPARE(RaisedBy([&] { RoundTo<i16>(value); }), asShort);
    QCOMPARE(RaisedBy([&] { RoundTo<i32>(value); }), asLong);
}

void NumbersTest::FixDropsTheFraction()
{
    QCOMPARE(Fix(2.9), 2.0);
    QCOMPARE(Fix(-2.9), -2.0);
    QCOMPARE(Fix(0.99), 0.0);
    QCOMPARE(Fix(7), 7.0);
}

void NumbersTest::ArithmeticOfShorts()
{
    const i16 high = 32767;
    const i16 low = -32768;
    QCOMPARE(int{(i16(30000) + i16(2767)).value()}, 32767);
    QCOMPARE(RaisedBy([&] { (void)(high + i16(1)); }), 6);
    QCOMPARE(RaisedBy([&] { (void)(low - i16(1)); }), 6);
    QCOMPARE(RaisedBy([&] { (void)-low; }), 6);
    // Hours into seconds in shorts: 9 h fit, 10 h do not.
    QCOMPARE(int{(i16(9) * i16(3600)).value()}, 32400);
    QCOMPARE(RaisedBy([&] { (void)(i16(10) * i16(3600)); }), 6);
    // Also when the result is meant for a wider field.
    QCOMPARE(RaisedBy([&] { (void)i32(i16(10) * i16(3600)); }), 6);
    // A plain number takes the width of its partner.
    QCOMPARE(RaisedBy([&] { (void)(i16(33) * 1000); }), 6);
}

void NumbersTest::ArithmeticOfLongs()
{
    const i32 high = std::numeric_limits<int>::max();
    const i32 low = std::numeric_limits<int>::min();
    QCOMPARE((i32(10) * i32(3600)).value(), 36000);
    QCOMPARE(RaisedBy([&] { (void)(high + i32(1)); }), 6);
    QCOMPARE(RaisedBy([&] { (void)(low - i32(1)); }), 6);
    QCOMPARE(RaisedBy([&] { (void)-low; }), 6);
    QCOMPARE(RaisedBy([&] { (void)(i32(65536) * i32(65536)); }), 6);
    QCOMPARE(RaisedBy([&] { (void)(low * i32(-1)); }), 6);
    QCOMPARE((low * i32(1)).value(), std::numeric_limits<int>::min());
}

void NumbersTest::MixedArithmeticIsLong()
{
    QCOMPARE((i16(10) * i32(3600)).value(), 36000);
    QCOMPARE((i32(1) + i16(32767)).value(), 32768);
}

void NumbersTest::ValuesOutOfRangeAreRefused()
{
    QCOMPARE(RaisedBy([] {
                 i16 field = 32768;
                 (void)field;
             }),
             6);
    QCOMPARE(RaisedBy([] {
                 i16 field = -32769;
                 (void)field;
             }),
             6);
    QCOMPARE(RaisedBy([] {
                 i32 field = std::int64_t{2147483648};
                 (void)field;
             }),
             6);
    QCOMPARE(RaisedBy([] { (void)i16(i32(40000)); }), 6);
    QCOMPARE(RaisedBy([] { (void)i16(i32(32767)); }), 0);
}

void NumbersTest::FailedArithmeticChangesNothing()
{
    i16 field = 32000;
    QCOMPARE(RaisedBy([&] { field += 1000; }), 6);
    QCOMPARE(int{field.value()}, 32000);
    field = -32000;
    QCOMPARE(RaisedBy([&] { field -= 1000; }), 6);
    QCOMPARE(int{field.value()}, -32000);
}

void NumbersTest::ArraysKeepTheirBounds()
{
    BoundedArray<int, 1, 31> rows;
    for (int i = 1; i <= 31; ++i) {
        rows[i] = i;
    }
    QCOMPARE(rows[i16(1)], 1);
    QCOMPARE(rows[i16(31)], 31);
    QCOMPARE(RaisedBy([&] { (void)rows[0]; }), 9);
    QCOMPARE(RaisedBy([&] { (void)rows[32]; }), 9);
    QCOMPARE(RaisedBy([&] { (void)rows[-1]; }), 9);
    QCOMPARE(RaisedBy([&] { (void)rows[i16(-32768)]; }), 9);
    BoundedArray<int, 0, 10> note;
    note[0] = 5;
    QCOMPARE(note[0], 5);
    QCOMPARE(RaisedBy([&] { (void)note[11]; }), 9);
}

void NumbersTest::SparseArraysHoldWhatIsWritten()
{
    using Lines = SparseArray<std::string, 0, 100>;
    Lines lines;
    const Lines& read = lines;
    QCOMPARE(RaisedBy([&] { (void)read[101]; }), 9);
    QCOMPARE(RaisedBy([&] { (void)read[-1]; }), 9);
    QCOMPARE(RaisedBy([&] { lines[101] = "x"; }), 9);
    QVERIFY(read[100].empty());
    QVERIFY(read.begin() == read.end());

    lines[2] = "due";
    QCOMPARE(std::distance(read.begin(), read.end()), 3);
    QCOMPARE(read[2], std::string("due"));
    QVERIFY(read[1].empty() && read[3].empty());

    Lines other;
    other[2] = "due";
    QVERIFY(lines == other);
    other[50].clear();
    QVERIFY(lines == other && other == lines);
    other[50] = "x";
    QVERIFY(!(lines == other) && !(other == lines));

    lines.Clear();
    QVERIFY(lines == Lines());
}

void NumbersTest::SparseArraysAreVisitedInTurn()
{
    SparseArray<std::string, 0, 100> lines;
    lines[1] = "uno";
    std::vector<std::string> met;
    lines.Visit(0, 3, [&](std::string& line) {
        met.push_back(line);
        line = met.size() == 3 ? "tre" : line + "!";
    });
    QVERIFY(met == (std::vector<std::string>{"", "uno", "", ""}));
    QVERIFY(std::vector<std::string>(lines.begin(), lines.end()) ==
            (std::vector<std::string>{"!", "uno!", "tre", "!"}));

    met.clear();
    std::as_const(lines).Visit(2, 5, [&](const std::string& line) { met.push_back(line); });
    QVERIFY(met == (std::vector<std::string>{"tre", "!", "", ""}));

    met.clear();
    std::as_const(lines).Visit(
        2, 5, [&](const std::string& line, int count = 1) { met.push_back(line + std::to_string(count)); });
    QVERIFY(met == (std::vector<std::string>{"tre1", "!1", "2"}));

    lines.Clear();
    lines.Visit(0, 100, [](std::string& line) { line.clear(); });
    QVERIFY(lines.begin() == lines.end());
}

ZELVIA_TEST(NumbersTest)
#include "NumbersTest.moc"
