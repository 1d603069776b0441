// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/watch/FitFile.h"

#include "support/TestProgram.h"
#include "tools/watch/FitBytes.h"
#include "tools/watch/WatchFigures.h"

#include <QTest>

#include <numeric>

using namespace zelvia;
using namespace zelvia::test;

class FitFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void RealFiles_data();
    void RealFiles();
    void RealLaps();
    void Faults_data();
    void Faults();
    void Pauses();
    void BothByteOrders_data();
    void BothByteOrders();
    void CompressedTimes();
    void DeveloperFieldsAreSkipped();
    void WithoutItsSummary();
    void WithoutItsLength();
    void CutAnywhere();
    void EachByteWrong();
    void HugeLengths();
};

namespace
{

constexpr std::uint64_t kStart = 1'000'000'000; // 2021-09-08 01:46:40 UTC in seconds since 1989-12-31.
constexpr std::int64_t kStartSince1970 = 1'631'065'600;

const std::vector<FitBytes::Field> kSessionFields = {{253, 4, 0x86}, {2, 4, 0x86}, {7, 4, 0x86},
                                                     {8, 4, 0x86},   {9, 4, 0x86}, {5, 1, 0x00}};

/// A run of 1.5 km in 10 minutes, 9 of them moving.
FitBytes& AddSession(FitBytes& file)
{
    return file.Define(1, 18, kSessionFields)
        .Byte(1)
        .Four(kStart + 600)
        .Four(kStart)
        .Four(600'000)
        .Four(540'000)
        .Four(150'000)
        .Byte(1);
}

WatchFile Read(const char* name)
{
    return ReadFit(ReadWhole(WatchPath(name)));
}

QString Joined(const std::vector<std::string>& texts)
{
    QStringList list;
    for (const std::string& text : texts) {
        list << QString::fromStdString(text);
    }
    return list.join(QLatin1Char('|'));
}

} // namespace

void FitFileTest::RealFiles_data()
{
    QTest::addColumn<QStringList>("figures");
    for (const QStringList& row : WatchTable("figures.tsv")) {
        QTest::newRow(qPrintable(row[0] + QLatin1Char(' ') + row[1])) << row;
    }
}

void FitFileTest::RealFiles()
{
    QFETCH(QStringList, figures);
    const WatchFile file = Read(qPrintable(figures[0]));
    const int session = figures[1].toInt();
    if (session == 0) {
        QVERIFY(file.activities.empty());
        return;
    }
    QVERIFY(file.activities.size() >= static_cast<std::size_t>(session));
    const Activity& activity = file.activities[static_cast<std::size_t>(session) - 1];
    QCOMPARE(QString::fromStdString(activity.sport), figures[2]);
    QCOMPARE(activity.start, SecondsOf(figures[3]));
    QCOMPARE(activity.offset.has_value(), !figures[4].isEmpty());
    QCOMPARE(activity.offset.value_or(0), figures[4].toInt());
    QVERIFY(Within(activity.elapsed, figures[5], 1));
    QVERIFY(Within(activity.moving, figures[6], 1));
    QVERIFY(Within(activity.metres, figures[7], 1));
    QCOMPARE(activity.laps.size(), figures[8].toUInt());
}

void FitFileTest::RealLaps()
{
    std::size_t compared = 0;
    for (const QStringList& row : WatchTable("laps.tsv")) {
        const WatchFile file = Read(qPrintable(row[0]));
        const Lap& lap = file.activities.at(row[1].toUInt() - 1).laps.at(row[2].toUInt() - 1);
        QVERIFY2(std::abs(lap.start - SecondsOf(row[3])) <= 1, qPrintable(row.join(QLatin1Char(' '))));
        QVERIFY2(Within(lap.elapsed, row[4], 1), qPrintable(row.join(QLatin1Char(' '))));
        QVERIFY2(Within(lap.moving, row[5], 1), qPrintable(row.join(QLatin1Char(' '))));
        QVERIFY2(Within(lap.metres, row[6], 1), qPrintable(row.join(QLatin1Char(' '))));
        ++compared;
    }
    QCOMPARE(compared, std::size_t{43});
}

void FitFileTest::Faults_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("activities");
    QTest::addColumn<QString>("faults");
    const auto row = [](const char* name, int activities, const char* faults) {
        QTest::newRow(name) << QString::fromLatin1(name) << activities << QString::fromUtf8(faults);
    };
    row("run-laps.fit", 1, "");
    row("run-pauses.fit", 1, "");
    row("run-compressed.fit", 1, "");
    row("run-miles.fit", 1, "");
    row("run-short.fit", 1, "");
    row("ride.fit", 1, "");
    row("triathlon-chained.fit", 5, "");
    row("settings.fit", 0, "");
    row("run-cut.fit", 1, "il file è troncato");
    row("run-mangled.fit", 1, "il file è troncato");
    row("run-bad-second-part.fit", 1, "il resto del file non si può leggere");
}

void FitFileTest::Faults()
{
    QFETCH(QString, name);
    QFETCH(int, activities);
    QFETCH(QString, faults);
    const WatchFile file = Read(qPrintable(name));
    QCOMPARE(static_cast<int>(file.activities.size()), activities);
    QCOMPARE(Joined(file.faults), faults);
}

void FitFileTest::Pauses()
{
    const Activity activity = Read("run-pauses.fit").activities.at(0);
    QCOMPARE(activity.pauses.size(), std::size_t{6});
    const double stopped = std::accumulate(activity.pauses.begin(), activity.pauses.end(), 0.0,
                                           [](double sum, const Pause& pause) { return sum + pause.to - pause.from; });
    QCOMPARE(stopped, 4.0 + 20 + 31 + 28 + 91 + 22);
}

void FitFileTest::BothByteOrders_data()
{
    QTest::addColumn<bool>("bigEndian");
    QTest::newRow("little") << false;
    QTest::newRow("big") << true;
}

void FitFileTest::BothByteOrders()
{
    QFETCH(bool, bigEndian);
    FitBytes bytes(bigEndian);
    const WatchFile file = ReadFit(AddSession(bytes).Whole());
    QVERIFY(file.faults.empty());
    const Activity& activity = file.activities.at(0);
    QCOMPARE(activity.start, kStartSince1970);
    QCOMPARE(activity.elapsed, 600.0);
    QCOMPARE(activity.moving, 540.0);
    QCOMPARE(activity.metres, 1500.0);
    QVERIFY(activity.sport == "running");
}

void FitFileTest::CompressedTimes()
{
    FitBytes bytes;
    AddSession(bytes);
    // A full time whose lower five bits are 0 (1,000,000,000 is divisible by 32), then 20, 5 and 4 of them: 20, 37 and
    // 68 seconds after it.
    bytes.Define(0, 20, {{253, 4, 0x86}, {5, 4, 0x86}}).Byte(0).Four(kStart).Four(0);
    bytes.Define(2, 20, {{5, 4, 0x86}});
    for (const auto& [low, centimetres] : {std::pair(20, 5000U), std::pair(5, 10000U), std::pair(4, 20000U)}) {
        bytes.Byte(0x80 | (2 << 5) | low).Four(centimetres);
    }
    const auto track = ReadFit(bytes.Whole()).activities.at(0).track;
    QCOMPARE(track.size(), std::size_t{4});
    QCOMPARE(track[1].seconds, 20.0);
    QCOMPARE(track[2].seconds, 37.0);
    QCOMPARE(track[3].seconds, 68.0);
    QCOMPARE(track[3].metres, 200.0);
}

void FitFileTest::DeveloperFieldsAreSkipped()
{
    FitBytes bytes;
    bytes.Define(1, 18, kSessionFields, 7);
    bytes.Byte(1).Four(kStart + 600).Four(kStart).Four(600'000).Four(540'000).Four(150'000).Byte(1).Number(0, 7);
    bytes.Define(2, 20, {{253, 4, 0x86}, {5, 4, 0x86}}, 3).Byte(2).Four(kStart + 300).Four(75'000).Number(0, 3);
    const WatchFile file = ReadFit(bytes.Whole());
    QVERIFY(file.faults.empty());
    QCOMPARE(file.activities.at(0).metres, 1500.0);
    QCOMPARE(file.activities.at(0).track.at(0).metres, 750.0);
}

void FitFileTest::WithoutItsSummary()
{
    FitBytes bytes;
    bytes.Define(0, 20, {{253, 4, 0x86}, {5, 4, 0x86}});
    bytes.Byte(0).Four(kStart).Four(0).Byte(0).Four(kStart + 60).Four(20'000);
    bytes.Define(1, 21, {{253, 4, 0x86}, {0, 1, 0}, {1, 1, 0}});
    bytes.Byte(1).Four(kStart + 60).Byte(0).Byte(4).Byte(1).Four(kStart + 100).Byte(0).Byte(0);
    bytes.Byte(0).Four(kStart + 160).Four(40'000);
    const Activity activity = ReadFit(bytes.Whole()).activities.at(0);
    QCOMPARE(activity.start, kStartSince1970);
    QCOMPARE(activity.elapsed, 160.0);
    QCOMPARE(activity.moving, 120.0);
    QCOMPARE(activity.metres, 400.0);
    QVERIFY(activity.sport.empty());
}

void FitFileTest::WithoutItsLength()
{
    FitBytes bytes;
    std::string file = AddSession(bytes).Whole();
    file.replace(4, 4, 4, '\0');
    const WatchFile read = ReadFit(file);
    QCOMPARE(read.activities.size(), std::size_t{1});
    QCOMPARE(Joined(read.faults), QStringLiteral("il file è troncato"));
}

void FitFileTest::CutAnywhere()
{
    const std::string whole = ReadWhole(WatchPath("run-short.fit"));
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const WatchFile file = ReadFit(std::string_view(whole).substr(0, length));
        QCOMPARE(file.faults.empty(), length == 0);
        QVERIFY(file.activities.size() <= 1);
    }
}

void FitFileTest::EachByteWrong()
{
    const std::string whole = ReadWhole(WatchPath("run-short.fit"));
    for (std::size_t place = 0; place < whole.size(); ++place) {
        std::string wrong = whole;
        wrong[place] = static_cast<char>(~wrong[place]);
        QVERIFY2(!ReadFit(wrong).faults.empty(), qPrintable(QString::number(place)));
    }
}

void FitFileTest::HugeLengths()
{
    FitBytes bytes;
    std::string file = AddSession(bytes).Whole();
    file.replace(4, 4, 4, '\xFF');
    QCOMPARE(ReadFit(file).activities.size(), std::size_t{1});

    // 255 fields of 255 bytes of which not one is there.
    FitBytes wide;
    wide.Define(0, 20, std::vector<FitBytes::Field>(255, {5, 255, 0x86})).Byte(0);
    QCOMPARE(Joined(ReadFit(wide.Whole()).faults), QStringLiteral("il file è rovinato"));
}

ZELVIA_TEST(FitFileTest)
#include "FitFileTest.moc"
