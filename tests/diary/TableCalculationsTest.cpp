// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The third of distance, time and average from the other two: known rows, and many random ones worked out a second
// time here.
#include "diary/TableCalculations.h"

#include "support/Bytes.h"
#include "support/TestProgram.h"

#include <QTest>

#include <cmath>
#include <random>
#include <string>

using namespace zelvia;
using zelvia::test::Bytes;
using zelvia::test::RaisedBy;
using zelvia::test::TextOf;

class TableCalculationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void WhatARowAsksFor_data();
    void WhatARowAsksFor();
    void Average_data();
    void Average();
    void Distance_data();
    void Distance();
    void Time_data();
    void Time();
    void Errors_data();
    void Errors();
    void RandomAverages();
    void RandomDistances();
    void RandomTimes();
};

namespace
{

constexpr int kRandomRows = 20000;

/// A row from its eight boxes separated by "|".
RowGroups RowOf(const QByteArray& boxes)
{
    const QByteArrayList parts = boxes.split('|');
    if (parts.size() != 8) {
        qFatal("a row has eight boxes: %s", boxes.constData());
    }
    return {TextOf(parts[0]), TextOf(parts[1]), TextOf(parts[2]), TextOf(parts[3]),
            TextOf(parts[4]), TextOf(parts[5]), TextOf(parts[6]), TextOf(parts[7])};
}

QByteArray Shown(const std::optional<RowAverage>& average)
{
    return average ? QByteArray::number(average->minutes.value()) + " " + QByteArray::number(average->seconds.value()) +
                         " " + Bytes(average->thousandths)
                   : QByteArray("too slow");
}

QByteArray Shown(const RowDistance& distance)
{
    return QByteArray::number(distance.km.value()) + " " + QByteArray::number(distance.metres.value());
}

QByteArray Shown(const RowTime& time)
{
    return QByteArray::number(time.hours.value()) + " " + QByteArray::number(time.minutes.value()) + " " +
           QByteArray::number(time.seconds.value());
}

/// The same eight boxes as plain numbers, for the second computation.
struct Numbers {
    int km, metres, hours, minutes, seconds, mm, ss, ms;

    int Metres() const { return km * 1000 + metres; }
    int Seconds() const { return (hours * 60 + minutes) * 60 + seconds; }
    float SecondsPerKm() const
    {
        const float fraction = float(ms) / 1000.0f;
        return fraction + float(mm * 60 + ss);
    }
    QByteArray Boxes() const
    {
        QByteArrayList parts;
        for (const int number : {km, metres, hours, minutes, seconds, mm, ss, ms}) {
            parts << (number == 0 ? QByteArray() : QByteArray::number(number));
        }
        return parts.join('|');
    }
};

/// Rows of any box contents that can be typed, small numbers and empty boxes often.
class RandomRows
{
public:
    Numbers Next() { return {Box(99), Box(999), Box(99), Box(99), Box(99), Box(99), Box(99), Box(999)}; }

private:
    int Box(int highest)
    {
        const int kind = static_cast<int>(engine_() % 4);
        return kind == 0 ? 0 : static_cast<int>(engine_() % static_cast<unsigned>(kind == 1 ? 10 : highest + 1));
    }

    std::mt19937 engine_{20260521};
};

QByteArray ExpectedAverage(const Numbers& row)
{
    const float speed = float(double(row.Metres()) / double(row.Seconds()) * 3.6);
    const float pace = 60.0f / speed;
    const int minutes = int(pace);
    if (minutes >= 61) {
        return "too slow";
    }
    const float rest = (pace - float(minutes)) * 60.0f;
    const int seconds = int(rest);
    const float thousandths = (rest - float(seconds)) * 1000.0f;
    const long hundredths = std::lround(double(thousandths) * 100.0);
    return QByteArray::number(minutes) + " " + QByteArray::number(seconds) + " " +
           QByteArray::number(int(hundredths / 100)).rightJustified(3, '0') + "," +
           QByteArray::number(int(hundredths % 100)).rightJustified(2, '0');
}

QByteArray ExpectedDistance(const Numbers& row)
{
    const float kilometres = float(double(row.Seconds()) / double(row.SecondsPerKm()));
    const int km = int(kilometres);
    const long metres = std::lrint((double(kilometres) - double(km)) * 1000.0);
    return QByteArray::number(km) + " " + QByteArray::number(int(metres));
}

QByteArray ExpectedTime(const Numbers& row)
{
    const float perMetre = row.SecondsPerKm() / 1000.0f;
    const float seconds = perMetre * float(row.Metres());
    const long total = std::lrint(double(seconds));
    return QByteArray::number(int(total / 3600)) + " " + QByteArray::number(int(total % 3600 / 60)) + " " +
           QByteArray::number(int(total % 60));
}

} // namespace

void TableCalculationsTest::WhatARowAsksFor_data()
{
    QTest::addColumn<QByteArray>("boxes");
    QTest::addColumn<QByteArray>("asked"); // M average, T time, D distance, ! one group alone

    QTest::newRow("an empty row") << QByteArray("|||||||") << QByteArray("");
    QTest::newRow("all zeros") << QByteArray("0|0|0|0|0|0|0|0") << QByteArray("");
    QTest::newRow("distance and time") << QByteArray("10||0|50||||") << QByteArray("M");
    QTest::newRow("metres and seconds are enough") << QByteArray("|400|||90|||") << QByteArray("M");
    QTest::newRow("hours are enough") << QByteArray("42|195|3|||||") << QByteArray("M");
    QTest::newRow("thousandths alone are no average") << QByteArray("10|||50||||500") << QByteArray("M");
    QTest::newRow("distance and average") << QByteArray("10|||||5||") << QByteArray("T");
    QTest::newRow("a time typed as zeros is none") << QByteArray("10||0|00|00|5||") << QByteArray("T");
    QTest::newRow("average of seconds only") << QByteArray("10||||||45|") << QByteArray("T");
    QTest::newRow("time and average") << QByteArray("||1|||5||") << QByteArray("D");
    QTest::newRow("distance typed as zeros is none") << QByteArray("0|000|1||||45|") << QByteArray("D");
    QTest::newRow("a time that rounds to nothing") << QByteArray("|1|||||1|") << QByteArray("T!");
    QTest::newRow("a distance that rounds to nothing") << QByteArray("||||1|55||") << QByteArray("D!");
    QTest::newRow("all three") << QByteArray("10|||50||4|30|") << QByteArray("");
    QTest::newRow("all three, the average without seconds") << QByteArray("10|||50||4||") << QByteArray("");
    QTest::newRow("distance alone") << QByteArray("10|||||||") << QByteArray("!");
    QTest::newRow("metres alone") << QByteArray("|100||||||") << QByteArray("!");
    QTest::newRow("time alone") << QByteArray("|||50||||") << QByteArray("!");
    QTest::newRow("average alone") << QByteArray("|||||4|30|") << QByteArray("!");
    QTest::newRow("a whole average alone does not count") << QByteArray("|||||5|0|") << QByteArray("");
    QTest::newRow("average seconds alone do not count") << QByteArray("||||||30|") << QByteArray("");
    QTest::newRow("thousandths alone") << QByteArray("|||||||500") << QByteArray("");
    QTest::newRow("distance and thousandths") << QByteArray("10|||||||500") << QByteArray("!");
    QTest::newRow("letters count as nothing") << QByteArray("x|y|1||||z|") << QByteArray("!");
    QTest::newRow("a leading number counts") << QByteArray("10km||1 ora|||||") << QByteArray("M");
}

void TableCalculationsTest::WhatARowAsksFor()
{
    QFETCH(QByteArray, boxes);
    QFETCH(QByteArray, asked);
    RowGroups row = RowOf(boxes);
    QByteArray answer;
    // One after the other, each seeing what the one before has written.
    if (AsksForAverage(row)) {
        answer += 'M';
        const auto average = AverageFrom(row);
        QVERIFY(average.has_value());
        row.averageMinutes = std::to_string(average->minutes.value());
        row.averageSeconds = std::to_string(average->seconds.value());
    }
    if (AsksForTime(row)) {
        answer += 'T';
        const RowTime time = TimeFrom(row);
        row.hours = std::to_string(time.hours.value());
        row.minutes = std::to_string(time.minutes.value());
        row.seconds = std::to_string(time.seconds.value());
    }
    if (AsksForDistance(row)) {
        answer += 'D';
        const RowDistance distance = DistanceFrom(row);
        row.km = std::to_string(distance.km.value());
        row.metres = std::to_string(distance.metres.value());
    }
    answer += OnlyOneGroup(row) ? "!" : "";
    QCOMPARE(answer, asked);
}

void TableCalculationsTest::Average_data()
{
    QTest::addColumn<QByteArray>("boxes");
    QTest::addColumn<QByteArray>("average");

    QTest::newRow("10 km in 50 minutes") << QByteArray("10||0|50||||") << QByteArray("5 0 000,00");
    QTest::newRow("10 km in 3000 seconds") << QByteArray("10||||3000|||") << QByteArray("5 0 000,00");
    QTest::newRow("8 km in 44 minutes") << QByteArray("8|||44||||") << QByteArray("5 30 000,00");
    QTest::newRow("a marathon in 3:30") << QByteArray("42|195|3|30||||") << QByteArray("4 58 613,58");
    QTest::newRow("1 km in 3:47") << QByteArray("1|||3|47|||") << QByteArray("3 47 000,00");
    QTest::newRow("400 metres in 90 seconds") << QByteArray("|400|||90|||") << QByteArray("3 45 000,00");
    QTest::newRow("10 km in 30 seconds") << QByteArray("10||||30|||") << QByteArray("0 3 000,00");
    QTest::newRow("60 minutes and 59 seconds pass") << QByteArray("1||1|0|59|||") << QByteArray("60 59 000,02");
    QTest::newRow("61 minutes do not") << QByteArray("1||1|1||||") << QByteArray("too slow");
    QTest::newRow("100 metres in two hours") << QByteArray("|100|2|||||") << QByteArray("too slow");
    QTest::newRow("minutes beyond 59 beside an hour") << QByteArray("10||1|60||||") << QByteArray("12 0 000,00");
}

void TableCalculationsTest::Average()
{
    QFETCH(QByteArray, boxes);
    QTEST(Shown(AverageFrom(RowOf(boxes))), "average");
}

void TableCalculationsTest::Distance_data()
{
    QTest::addColumn<QByteArray>("boxes");
    QTest::addColumn<QByteArray>("distance");

    QTest::newRow("50 minutes at 5:00") << QByteArray("||0|50||5||") << QByteArray("10 0");
    QTest::newRow("50 minutes at 4:30") << QByteArray("|||50||4|30|") << QByteArray("11 111");
    QTest::newRow("thousandths count") << QByteArray("||1|||4|15|500") << QByteArray("14 90");
    QTest::newRow("a calculated average stops at its comma") << QByteArray("||1|||4|15|500,99") << QByteArray("14 90");
    QTest::newRow("one second at 7 seconds") << QByteArray("||||1||7|") << QByteArray("0 143");
    QTest::newRow("a marathon back from its average") << QByteArray("||3|30||4|58|613") << QByteArray("42 195");
    QTest::newRow("more than the box can hold") << QByteArray("||24|59|59||1|") << QByteArray("89999 0");
    QTest::newRow("a thousandth is felt") << QByteArray("||||59||2|1") << QByteArray("29 485");
    QTest::newRow("the highest short sum passes") << QByteArray("||9|6|7|546|7|") << QByteArray("1 0");
}

void TableCalculationsTest::Distance()
{
    QFETCH(QByteArray, boxes);
    QTEST(Shown(DistanceFrom(RowOf(boxes))), "distance");
}

void TableCalculationsTest::Time_data()
{
    QTest::addColumn<QByteArray>("boxes");
    QTest::addColumn<QByteArray>("time");

    QTest::newRow("10 km at 5:00") << QByteArray("10|||||5||") << QByteArray("0 50 0");
    QTest::newRow("a marathon at 4:58.613") << QByteArray("42|195||||4|58|613") << QByteArray("3 30 0");
    QTest::newRow("a half at 4:15.250") << QByteArray("21|97||||4|15|250") << QByteArray("1 29 45");
    QTest::newRow("hours above 24") << QByteArray("42|195||||60|59|") << QByteArray("42 53 12");
    QTest::newRow("a second and a half is two") << QByteArray("|100|||||15|") << QByteArray("0 0 2");
    QTest::newRow("two and a half are two") << QByteArray("|500|||||5|") << QByteArray("0 0 2");
    QTest::newRow("a metre takes no time") << QByteArray("|1|||||1|") << QByteArray("0 0 0");
    QTest::newRow("nothing takes no time") << QByteArray("|||||5||") << QByteArray("0 0 0");
}

void TableCalculationsTest::Time()
{
    QFETCH(QByteArray, boxes);
    QTEST(Shown(TimeFrom(RowOf(boxes))), "time");
}

void TableCalculationsTest::Errors_data()
{
    QTest::addColumn<char>("what");
    QTest::addColumn<QByteArray>("boxes");
    QTest::addColumn<int>("number");

    QTest::newRow("average of no time") << 'M' << QByteArray("10|||||||") << 11;
    QTest::newRow("average of no distance") << 'M' << QByteArray("|||50||||") << 11;
    QTest::newRow("average of nothing") << 'M' << QByteArray("|||||||") << 6;
    QTest::newRow("kilometres beyond 32 bits of metres") << 'M' << QByteArray("2147484|||50||||") << 6;
    QTest::newRow("a box beyond 32 bits") << 'M' << QByteArray("1||||2147483648|||") << 6;
    QTest::newRow("hours beyond 32 bits of seconds") << 'M' << QByteArray("1||596524|||||") << 6;
    QTest::newRow("minutes of the average beyond 16 bits") << 'M' << QByteArray("|1|550|||||") << 6;
    QTest::newRow("distance by no average") << 'D' << QByteArray("|||50||||") << 11;
    QTest::newRow("no time by no average") << 'D' << QByteArray("|||||||") << 6;
    QTest::newRow("seconds per kilometre beyond 16 bits") << 'D' << QByteArray("||1|||546|8|") << 6;
    QTest::newRow("average minutes beyond 16 bits") << 'D' << QByteArray("||1|||547||") << 6;
    QTest::newRow("an average box beyond 16 bits") << 'T' << QByteArray("1||||||32768|") << 6;
    QTest::newRow("time beyond 16 bits of average") << 'T' << QByteArray("1|||||546|8|") << 6;
    QTest::newRow("metres beyond 32 bits") << 'T' << QByteArray("2147483|648||||5||") << 6;
    QTest::newRow("seconds beyond 32 bits") << 'T' << QByteArray("2147483|||||546||") << 6;
}

void TableCalculationsTest::Errors()
{
    QFETCH(char, what);
    QFETCH(QByteArray, boxes);
    const RowGroups row = RowOf(boxes);
    const int raised = RaisedBy([&] {
        if (what == 'M') {
            (void)AverageFrom(row);
        } else if (what == 'D') {
            (void)DistanceFrom(row);
        } else {
            (void)TimeFrom(row);
        }
    });
    QTEST(raised, "number");
}

void TableCalculationsTest::RandomAverages()
{
    RandomRows rows;
    for (int i = 0; i < kRandomRows;) {
        const Numbers row = rows.Next();
        if (row.Metres() == 0 || row.Seconds() == 0 || double(row.Seconds()) / row.Metres() * 1000 / 60 > 32000) {
            continue;
        }
        ++i;
        const QByteArray boxes = row.Boxes();
        const QByteArray got = Shown(AverageFrom(RowOf(boxes)));
        QVERIFY2(got == ExpectedAverage(row), (boxes + ": " + got + " for " + ExpectedAverage(row)).constData());
    }
}

void TableCalculationsTest::RandomDistances()
{
    RandomRows rows;
    for (int i = 0; i < kRandomRows;) {
        const Numbers row = rows.Next();
        if (row.mm + row.ss == 0) {
            continue;
        }
        ++i;
        const QByteArray boxes = row.Boxes();
        const QByteArray got = Shown(DistanceFrom(RowOf(boxes)));
        QVERIFY2(got == ExpectedDistance(row), (boxes + ": " + got + " for " + ExpectedDistance(row)).constData());
    }
}

void TableCalculationsTest::RandomTimes()
{
    RandomRows rows;
    for (int i = 0; i < kRandomRows; ++i) {
        const Numbers row = rows.Next();
        const QByteArray boxes = row.Boxes();
        const QByteArray got = Shown(TimeFrom(RowOf(boxes)));
        QVERIFY2(got == ExpectedTime(row), (boxes + ": " + got + " for " + ExpectedTime(row)).constData());
    }
}

ZELVIA_TEST(TableCalculationsTest)
#include "TableCalculationsTest.moc"
