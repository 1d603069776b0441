// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/TimeAndPace.h"

#include "core/RunTimeError.h"
#include "support/Bytes.h"
#include "support/TestProgram.h"

#include <QString>
#include <QTest>

#include <cmath>
#include <cstdio>
#include <optional>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

using namespace zelvia;
using zelvia::test::Bytes;
using zelvia::test::RaisedBy;
using zelvia::test::TextOf;

class TimeAndPaceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void WhatCanBeComputed_data();
    void WhatCanBeComputed();
    void TimeTaken_data();
    void TimeTaken();
    void TimesAsText_data();
    void TimesAsText();
    void Average_data();
    void Average();
    void AverageFails_data();
    void AverageFails();
    void EdgesOfTheClockByAllDistances();
    void RandomRuns();
    void EverySecondOfTwoHours();
};

namespace
{

struct Clock {
    int hours;
    int minutes;
    int seconds;
};

int SecondsOfDay(Clock clock)
{
    return (clock.hours * 60 + clock.minutes) * 60 + clock.seconds;
}

ClockTime OrarioOf(Clock clock)
{
    return {clock.hours, clock.minutes, clock.seconds};
}

/// Reads h:mm:ss, with a minus sign before the hours if need be.
Clock ClockOf(const QByteArray& text)
{
    Clock clock{};
    if (std::sscanf(text.constData(), "%d:%d:%d", &clock.hours, &clock.minutes, &clock.seconds) != 3) {
        throw std::invalid_argument("not a time");
    }
    return clock;
}

QByteArray Shown(Clock clock)
{
    return QString::asprintf("%d:%02d:%02d", clock.hours, clock.minutes, clock.seconds).toLatin1();
}

QByteArray Warned(const char* text, int blanks)
{
    return text + QByteArray(blanks, ' ');
}

QByteArray Earlier()
{
    return Warned("L'ORA FINE E' MINORE DELL'ORA INIZIO", 9);
}

QByteArray EarlierBySeconds()
{
    return Warned("L'ORA FINE E' MINORE DELL'ORA INIZIO", 8);
}

QByteArray Equal()
{
    return Warned("L'ORA FINE E' UGUALE ALL'ORA INIZIO", 8);
}

// The computation once more, without the code under test: times by division of seconds, singles by rounding doubles to
// 24 bits by hand.

QByteArray ExpectedWarning(Clock start, Clock end)
{
    const int difference = SecondsOfDay(end) - SecondsOfDay(start);
    if (difference == 0) {
        return Equal();
    }
    if (difference > 0) {
        return {};
    }
    return SecondsOfDay(start) / 60 == SecondsOfDay(end) / 60 ? EarlierBySeconds() : Earlier();
}

Clock ExpectedTime(Clock start, Clock end)
{
    constexpr int day = 24 * 3600;
    const int later = SecondsOfDay(end) - SecondsOfDay(start) + day;
    return {later / 3600 - 24, later / 60 % 60, later % 60};
}

/// The nearest number of 24 significant bits, ties to the even one.
double Single(double value)
{
    int exponent = 0;
    const double fraction = std::frexp(value, &exponent);
    return std::ldexp(std::nearbyint(std::ldexp(fraction, 24)), exponent - 24);
}

struct Outcome {
    int error = 0;
    std::optional<QByteArray> shown;

    bool operator==(const Outcome&) const = default;
};

Outcome ExpectedAverage(int metres, Clock taken)
{
    int duration = 0;
    if (taken.hours >= 1) {
        duration = (taken.hours * 60 + taken.minutes) * 60 + taken.seconds;
    } else if (taken.hours == 0) {
        duration = taken.minutes > 0 ? taken.minutes * 60 + taken.seconds : taken.seconds;
    }
    if (duration == 0) {
        return {metres == 0 ? 6 : 11, {}};
    }
    const double speed = Single(double(metres) / double(duration) * 3.6);
    if (speed == 0.0) {
        return {11, {}};
    }
    const double fraction = Single(60.0 / speed);
    const double minutes = std::floor(fraction);
    if (minutes > 32767.0) {
        return {6, {}};
    }
    if (minutes > 60.0) {
        return {};
    }
    const double seconds = std::floor(Single(Single(fraction - minutes) * 60.0));
    return {0, QString::asprintf("%d:%02d", int(minutes), int(seconds)).toLatin1()};
}

/// A distance as the page shows it, 10,500 for 10500 metres.
Text CaptionOf(int metres)
{
    return TextOf(QString::asprintf("%d,%03d", metres / 1000, metres % 1000).toLatin1());
}

Outcome ActualAverage(TextView caption, ClockTime taken)
{
    Outcome outcome;
    outcome.error = RaisedBy([&] {
        if (const auto average = AverageText(caption, taken)) {
            outcome.shown = Bytes(*average);
        }
    });
    return outcome;
}

QByteArray Described(const Outcome& outcome)
{
    return outcome.error != 0 ? "error " + QByteArray::number(outcome.error) : outcome.shown.value_or("over 60");
}

QByteArray WarningOf(const TimesCheck& found)
{
    return found.warning != nullptr ? Bytes(found.warning->text) : QByteArray();
}

/// Empty when a run comes out as the second computation says, else what differs.
QByteArray Discrepancy(Clock start, Clock end, int metres)
{
    const QByteArray run = Shown(start) + " to " + Shown(end) + " over " + QByteArray::number(metres) + " m: ";

    const TimesCheck found = CheckTimes(metres > 0, OrarioOf(start), OrarioOf(end));
    const bool hasEnd = SecondsOfDay(end) > 0;
    const int possible = !hasEnd ? 0 : metres > 0 ? 1 : 2;
    const QByteArray warning = hasEnd ? ExpectedWarning(start, end) : QByteArray();
    if (static_cast<int>(found.calculation) != possible || found.blanks != (possible != 1) ||
        WarningOf(found) != warning) {
        return run + "what can be computed, or its warning";
    }

    const Clock taken = ExpectedTime(start, end);
    const ClockTime time = ElapsedTime(OrarioOf(start), OrarioOf(end));
    if (Bytes(TimeText(time)) != Shown(taken)) {
        return run + Bytes(TimeText(time)) + " instead of " + Shown(taken);
    }

    const Outcome actual = ActualAverage(CaptionOf(metres), time);
    const Outcome expected = ExpectedAverage(metres, taken);
    return actual == expected ? QByteArray() : run + Described(actual) + " instead of " + Described(expected);
}

const std::vector<int> kDistances = {0,     1,     3,     9,     10,    99,    100,    333,    500,   999,
                                     1000,  1001,  4990,  5000,  7310,  8765,  9999,   10000,  10500, 12340,
                                     15001, 21097, 42195, 60000, 99990, 99999, 100000, 500000, 500999};

} // namespace

void TimeAndPaceTest::WhatCanBeComputed_data()
{
    QTest::addColumn<bool>("distance");
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<QByteArray>("end");
    QTest::addColumn<int>("result");
    QTest::addColumn<bool>("blanked");
    QTest::addColumn<QByteArray>("warning");
    const auto row = [](const char* name, bool distance, const char* start, const char* end, int result, bool blanked,
                        const QByteArray& warning = {}) {
        QTest::newRow(name) << distance << QByteArray(start) << QByteArray(end) << result << blanked << warning;
    };
    row("nothing given", false, "0:00:00", "0:00:00", 0, true);
    row("a start alone", false, "10:00:00", "0:00:00", 0, true);
    row("a distance alone", true, "0:00:00", "0:00:00", 0, true);
    row("a distance and a start", true, "10:00:00", "0:00:00", 0, true);
    row("an end without a distance", false, "9:00:00", "10:00:00", 2, true);
    row("both", true, "9:00:00", "10:00:00", 1, false);
    row("both, from midnight on", true, "0:00:00", "1:00:00", 1, false);
    row("minutes are an end", true, "0:00:00", "0:01:00", 1, false);
    row("seconds are an end", true, "0:00:00", "0:00:01", 1, false);

    row("hours below", true, "10:00:00", "9:00:00", 1, false, Earlier());
    row("hours below, the rest above", true, "10:00:00", "9:59:59", 1, false, Earlier());
    row("hours below without a distance", false, "10:00:00", "9:00:00", 2, true, Earlier());
    row("minutes below", true, "10:30:00", "10:29:00", 1, false, Earlier());
    row("minutes below, seconds above", true, "10:30:00", "10:29:59", 1, false, Earlier());
    row("minutes below, seconds equal, no distance", false, "10:30:15", "10:29:15", 2, true, Earlier());
    row("seconds below", true, "10:30:15", "10:30:14", 1, false, EarlierBySeconds());
    row("seconds below without a distance", false, "10:30:15", "10:30:14", 2, true, EarlierBySeconds());
    row("equal", true, "10:30:15", "10:30:15", 1, false, Equal());
    row("equal without a distance", false, "10:30:15", "10:30:15", 2, true, Equal());

    row("hours above, the rest below", true, "9:59:59", "10:00:00", 1, false);
    row("minutes above, seconds below", true, "10:29:59", "10:30:00", 1, false);
    row("seconds above", true, "10:30:14", "10:30:15", 1, false);
}

void TimeAndPaceTest::WhatCanBeComputed()
{
    QFETCH(bool, distance);
    QFETCH(QByteArray, start);
    QFETCH(QByteArray, end);
    QFETCH(int, result);
    QFETCH(bool, blanked);
    QFETCH(QByteArray, warning);
    const TimesCheck found = CheckTimes(distance, OrarioOf(ClockOf(start)), OrarioOf(ClockOf(end)));
    QCOMPARE(static_cast<int>(found.calculation), result);
    QCOMPARE(found.blanks, blanked);
    QCOMPARE(WarningOf(found), warning);
}

void TimeAndPaceTest::TimeTaken_data()
{
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<QByteArray>("end");
    QTest::addColumn<QByteArray>("taken");
    const auto row = [](const char* name, const char* start, const char* end, const char* taken) {
        QTest::newRow(name) << QByteArray(start) << QByteArray(end) << QByteArray(taken);
    };
    row("no borrow", "9:10:20", "10:15:30", "1:05:10");
    row("from midnight", "0:00:00", "0:45:07", "0:45:07");
    row("the whole day", "0:00:00", "23:59:59", "23:59:59");
    row("a second borrowed", "10:04:50", "10:06:10", "0:01:20");
    row("the last second of a minute", "10:04:59", "10:05:00", "0:00:01");
    row("a minute borrowed", "9:50:00", "10:10:00", "0:20:00");
    row("both borrowed", "9:50:40", "10:10:20", "0:19:40");
    row("both borrowed, one minute short", "9:59:59", "10:00:00", "0:00:01");
    row("minutes equal, a second borrowed", "10:00:20", "11:00:10", "0:59:50");
    row("minutes equal at 59, a second borrowed", "10:59:59", "11:59:58", "0:59:59");
    row("equal", "10:30:15", "10:30:15", "0:00:00");
    row("an hour early", "10:00:00", "9:00:00", "-1:00:00");
    row("five seconds early", "10:00:05", "10:00:00", "-1:59:55");
    row("a minute early", "10:30:00", "10:29:00", "-1:59:00");
    row("past midnight", "23:30:00", "0:15:00", "-24:45:00");
    row("the whole day early", "23:59:59", "0:00:00", "-24:00:01");
}

void TimeAndPaceTest::TimeTaken()
{
    QFETCH(QByteArray, start);
    QFETCH(QByteArray, end);
    QFETCH(QByteArray, taken);
    const ClockTime found = ElapsedTime(OrarioOf(ClockOf(start)), OrarioOf(ClockOf(end)));
    const Clock expected = ClockOf(taken);
    QCOMPARE(found.hours.value(), expected.hours);
    QCOMPARE(found.minutes.value(), expected.minutes);
    QCOMPARE(found.seconds.value(), expected.seconds);
}

void TimeAndPaceTest::TimesAsText_data()
{
    QTest::addColumn<int>("hours");
    QTest::addColumn<int>("minutes");
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("nothing") << 0 << 0 << 0 << QByteArray("0:00:00");
    QTest::newRow("one digit each") << 1 << 2 << 3 << QByteArray("1:02:03");
    QTest::newRow("two digits each") << 23 << 59 << 58 << QByteArray("23:59:58");
    QTest::newRow("three digits of hours") << 100 << 0 << 10 << QByteArray("100:00:10");
    QTest::newRow("negative") << -1 << 0 << 0 << QByteArray("-1:00:00");
    QTest::newRow("negative hours alone") << -12 << 5 << 59 << QByteArray("-12:05:59");
}

void TimeAndPaceTest::TimesAsText()
{
    QFETCH(int, hours);
    QFETCH(int, minutes);
    QFETCH(int, seconds);
    QFETCH(QByteArray, text);
    QCOMPARE(Bytes(TimeText({hours, minutes, seconds})), text);
}

void TimeAndPaceTest::Average_data()
{
    QTest::addColumn<QByteArray>("distance");
    QTest::addColumn<QByteArray>("taken");
    QTest::addColumn<QByteArray>("average"); // "-" when it is over 60 minutes.
    const auto row = [](const char* name, const char* distance, const char* taken, const char* average) {
        QTest::newRow(name) << QByteArray(distance) << QByteArray(taken) << QByteArray(average);
    };
    // 60 / 13.04... is 4.5999999 in a single: a second less than exact arithmetic gives.
    row("a second lost in the single", "1,000", "0:04:36", "4:35");
    // 0.78333330 * 60 is 46.999998, which a single holds as 47.
    row("a second kept by the single", "1,000", "0:03:47", "3:47");
    row("ten kilometres", "10,000", "0:50:00", "5:00");
    row("the decimal comma", "10,500", "0:52:30", "5:00");
    row("the fraction is dropped", "42,195", "3:30:00", "4:58");       // 298.61 s
    row("the fraction is dropped, half", "21,097", "1:45:12", "4:59"); // 299.19 s
    row("ten minutes and more", "2,000", "0:24:31", "12:15");          // 735.5 s
    row("a whole minute", "1,000", "0:01:00", "1:00");
    row("below a minute", "2,000", "0:01:59", "0:59"); // 59.5 s
    row("half a minute", "1,000", "0:00:30", "0:30");
    row("one digit of seconds", "2,000", "0:00:19", "0:09"); // 9.5 s
    row("next to nothing", "100,000", "0:00:01", "0:00");
    row("hours alone", "20,000", "2:00:00", "6:00");
    row("hours and seconds", "20,000", "2:00:10", "6:00"); // 360.5 s
    row("a dot among the thousands", "1.000,000", "50:00:00", "3:00");
    row("exactly 60 minutes", "1,000", "1:00:00", "60:00");
    row("exactly 60 minutes, short", "0,100", "0:06:00", "60:00");
    row("60 minutes and some seconds", "2,000", "2:01:01", "60:30");   // 3630.5 s
    row("the last second of 60 minutes", "2,000", "2:01:59", "60:59"); // 3659.5 s
    row("61 minutes", "2,000", "2:02:01", "-");                        // 3660.5 s
    row("a hundred metres in two hours", "0,100", "2:00:00", "-");
    row("the most minutes there can be", "0,001", "0:32:46", "-"); // 32766.67 min
}

void TimeAndPaceTest::Average()
{
    QFETCH(QByteArray, distance);
    QFETCH(QByteArray, taken);
    QFETCH(QByteArray, average);
    const auto found = AverageText(TextOf(distance), OrarioOf(ClockOf(taken)));
    QCOMPARE(found ? Bytes(*found) : QByteArray("-"), average);
}

void TimeAndPaceTest::AverageFails_data()
{
    QTest::addColumn<QByteArray>("distance");
    QTest::addColumn<QByteArray>("taken");
    QTest::addColumn<int>("error");
    const auto row = [](const char* name, const char* distance, const char* taken, int error) {
        QTest::newRow(name) << QByteArray(distance) << QByteArray(taken) << error;
    };
    row("no time", "10,000", "0:00:00", 11);
    row("negative hours", "10,000", "-1:00:00", 11);
    row("negative hours, minutes and seconds left", "10,000", "-1:59:55", 11);
    row("no distance", "0,000", "0:50:00", 11);
    row("less than half a metre", "0,0004", "0:50:00", 11);
    row("neither", "0,000", "0:00:00", 6);
    row("no distance, negative hours", "0,000", "-1:30:00", 6);
    row("minutes beyond a short", "0,001", "0:32:47", 6);      // 32783.33 min
    row("metres beyond a long", "2147484,000", "1:00:00", 6);  // 2147484000 m
    row("seconds beyond a long", "10,000", "600000:00:00", 6); // 2160000000 s
    row("minutes of the run beyond a long", "1,000", "40000000:00:00", 6);
    row("empty", "", "0:50:00", 13);
    row("a blank", " ", "0:50:00", 13);
    row("a word", "Metri", "0:50:00", 13);
    row("a word behind", "10,500 km", "0:50:00", 13);
    row("two commas", "1,000,5", "0:50:00", 13);
    row("a comma alone", ",", "0:50:00", 13);
    row("no number comes before no time", "Metri", "0:00:00", 13);
}

void TimeAndPaceTest::AverageFails()
{
    QFETCH(QByteArray, distance);
    QFETCH(QByteArray, taken);
    QFETCH(int, error);
    const ClockTime time = OrarioOf(ClockOf(taken));
    QCOMPARE(RaisedBy([&] { AverageText(TextOf(distance), time); }), error);
}

/// 216 times of day as the start by the same 216 as the end, each pair over two of the distances in turn.
void TimeAndPaceTest::EdgesOfTheClockByAllDistances()
{
    std::vector<Clock> edges;
    for (const int hours : {0, 1, 9, 10, 22, 23}) {
        for (const int minutes : {0, 1, 29, 30, 58, 59}) {
            for (const int seconds : {0, 1, 29, 30, 58, 59}) {
                edges.push_back({hours, minutes, seconds});
            }
        }
    }
    std::size_t next = 0;
    for (const Clock start : edges) {
        for (const Clock end : edges) {
            for (int distance = 0; distance < 2; ++distance) {
                const QByteArray discrepancy = Discrepancy(start, end, kDistances[next]);
                QVERIFY2(discrepancy.isEmpty(), discrepancy.constData());
                next = (next + 1) % kDistances.size();
            }
        }
    }
}

void TimeAndPaceTest::RandomRuns()
{
    std::mt19937 random(20081005);
    const auto below = [&random](unsigned limit) { return static_cast<int>(random() % limit); };
    for (int run = 0; run < 20000; ++run) {
        const Clock start{below(24), below(60), below(60)};
        // Every other one ends in the hour or the one after, as most runs do.
        const Clock end{run % 2 == 0 ? below(24) : (start.hours + below(2)) % 24, below(60), below(60)};
        const int metres = below(3) == 0 ? below(501000) : below(25000);
        const QByteArray discrepancy = Discrepancy(start, end, metres);
        QVERIFY2(discrepancy.isEmpty(), discrepancy.constData());
    }
}

/// A second can get lost in the single where the average is a whole one. Reckoned with fractions, each step rounded to
/// its width, that happens to 1737 of the 3600 averages up to an hour, over one kilometre as over two.
void TimeAndPaceTest::EverySecondOfTwoHours()
{
    constexpr int hour = 3600;
    for (const int kilometres : {1, 2}) {
        int lost = 0;
        for (int second = 1; second <= 2 * hour; ++second) {
            const Clock end{second / hour, second / 60 % 60, second % 60};
            const QByteArray discrepancy = Discrepancy({0, 0, 0}, end, 1000 * kilometres);
            QVERIFY2(discrepancy.isEmpty(), discrepancy.constData());
            if (second > kilometres * hour) {
                continue;
            }
            const auto average = AverageText(CaptionOf(1000 * kilometres), OrarioOf(end));
            QVERIFY(average.has_value());
            const auto shown = [](int seconds) {
                return QString::asprintf("%d:%02d", seconds / 60, seconds % 60).toLatin1();
            };
            if (Bytes(*average) != shown(second / kilometres)) {
                QCOMPARE(Bytes(*average), shown(second / kilometres - 1));
                QCOMPARE(second % kilometres, 0);
                ++lost;
            }
        }
        QCOMPARE(lost, 1737);
    }
}

ZELVIA_TEST(TimeAndPaceTest)
#include "TimeAndPaceTest.moc"
