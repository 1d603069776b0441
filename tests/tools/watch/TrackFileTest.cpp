// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/watchxml/TrackFile.h"

#include "support/TestProgram.h"
#include "tools/watch/KilometreTimes.h"
#include "tools/watch/WatchFigures.h"

#include <QTest>

using namespace zelvia;
using namespace zelvia::test;

class TrackFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ARealRunWithLaps();
    void ARealRide();
    void ACourseIsNoActivity();
    void OwnOffset();
    void SegmentsArePauses();
    void TracksOfALapArePauses();
    void TheTypeOfALinkIsNoSport();
    void SeveralActivities();
    void CutInSteps_data();
    void CutInSteps();
    void Bad_data();
    void Bad();
};

namespace
{

WatchFile Read(const char* name)
{
    return ReadTrackFile(ReadWhole(WatchPath(name)));
}

/// Points 0.001 degrees of latitude apart, which are 111.195 m on the sphere.
std::string Point(int step, const char* time)
{
    return "<trkpt lat=\"45.00" + std::to_string(step) + "\" lon=\"9\"><time>2024-05-01T" + time + "</time></trkpt>";
}

std::string Gpx(const std::string& track)
{
    return "<?xml version=\"1.0\"?><gpx><trk>" + track + "</trk></gpx>";
}

} // namespace

void TrackFileTest::ARealRunWithLaps()
{
    const WatchFile file = Read("run-laps.tcx");
    QVERIFY(file.faults.empty());
    QCOMPARE(file.activities.size(), std::size_t{1});
    const Activity& run = file.activities[0];
    QVERIFY(run.sport == "running");
    QCOMPARE(run.start, SecondsOf(QStringLiteral("2013-09-06T14:27:17Z")));
    QVERIFY(!run.offset);
    QCOMPARE(run.laps.size(), std::size_t{14});
    QVERIFY(std::abs(run.elapsed - 3923) <= 1);
    QVERIFY(std::abs(run.moving - 3922.99) <= 1);
    QVERIFY(std::abs(run.metres - 10746.51) <= 1);
    QCOMPARE(run.laps[1].elapsed, 391.0);
    QCOMPARE(run.laps[1].moving, 387.3);
    const auto times = KilometreTimes(run, RunClock::Elapsed);
    QCOMPARE(times.size(), std::size_t{10});
    QCOMPARE(times[0].seconds, 491);
    QCOMPARE(times[9].seconds, 3674);
}

void TrackFileTest::ARealRide()
{
    const WatchFile file = Read("ride.gpx");
    QVERIFY(file.faults.empty());
    QCOMPARE(file.activities.size(), std::size_t{1});
    const Activity& ride = file.activities[0];
    QVERIFY(ride.sport == "cycling");
    QCOMPARE(ride.start, SecondsOf(QStringLiteral("2023-01-16T18:02:26Z")));
    QCOMPARE(ride.elapsed, 298.0);
    QCOMPARE(ride.moving, 298.0);
    QVERIFY(std::abs(ride.metres - 1587.2) < 1); // Added up by another program.
    QVERIFY(std::abs(ride.place.value().latitude - 40.18895) < 0.0001);
}

void TrackFileTest::ACourseIsNoActivity()
{
    const WatchFile file = Read("course.tcx");
    QVERIFY(file.activities.empty());
    QVERIFY(file.faults.empty());
}

void TrackFileTest::OwnOffset()
{
    const Activity run =
        ReadTrackFile(Gpx("<trkseg>" + Point(0, "10:00:00+02:00") + Point(1, "10:01:00.500+02:00") + "</trkseg>"))
            .activities.at(0);
    QCOMPARE(run.start, SecondsOf(QStringLiteral("2024-05-01T08:00:00Z")));
    QCOMPARE(run.offset.value(), 7200);
    QCOMPARE(run.elapsed, 60.5);
    QVERIFY(run.sport.empty());
}

void TrackFileTest::SegmentsArePauses()
{
    const Activity run =
        ReadTrackFile(Gpx("<trkseg>" + Point(0, "10:00:00Z") + Point(1, "10:01:00Z") + "</trkseg><trkseg>" +
                          Point(5, "10:05:00Z") + Point(6, "10:06:30Z") + "</trkseg>"))
            .activities.at(0);
    QCOMPARE(run.elapsed, 390.0);
    QCOMPARE(run.moving, 150.0);
    QVERIFY(std::abs(run.metres - 2 * 111.195) < 0.01); // The way during the pause was not run.
}

void TrackFileTest::TracksOfALapArePauses()
{
    const auto point = [](const char* time, int metres) {
        return "<Trackpoint><Time>2024-05-01T" + std::string(time) + "Z</Time><DistanceMeters>" +
               std::to_string(metres) + "</DistanceMeters></Trackpoint>";
    };
    const Activity run =
        ReadTrackFile("<TrainingCenterDatabase><Activities><Activity Sport=\"Running\">"
                      "<Lap StartTime=\"2024-05-01T08:00:00Z\"><TotalTimeSeconds>300</TotalTimeSeconds>"
                      "<DistanceMeters>1500</DistanceMeters><Track>" +
                      point("08:00:00", 0) + point("08:03:20", 1000) + "</Track><Track>" + point("08:08:20", 1000) +
                      point("08:10:00", 1500) + "</Track></Lap></Activity></Activities></TrainingCenterDatabase>")
            .activities.at(0);
    QCOMPARE(run.elapsed, 600.0);
    QCOMPARE(run.moving, 300.0);
    QCOMPARE(run.pauses.size(), std::size_t{1});
    QCOMPARE(run.pauses[0].from, 200.0);
    QCOMPARE(run.pauses[0].to, 500.0);
}

void TrackFileTest::TheTypeOfALinkIsNoSport()
{
    const Activity run = ReadTrackFile(Gpx("<type> Running </type><link><type>text/html</type></link><trkseg>" +
                                           Point(0, "10:00:00Z") + Point(1, "10:01:00Z") + "</trkseg>"))
                             .activities.at(0);
    QVERIFY(run.sport == "running");
}

void TrackFileTest::SeveralActivities()
{
    const std::string track = "<trk><trkseg>" + Point(0, "10:00:00Z") + Point(1, "10:01:00Z") + "</trkseg></trk>";
    QCOMPARE(ReadTrackFile("<gpx>" + track + track + "</gpx>").activities.size(), std::size_t{2});
}

void TrackFileTest::CutInSteps_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("step");
    QTest::newRow("tcx") << QStringLiteral("run-laps.tcx") << 49'999;
    QTest::newRow("gpx") << QStringLiteral("ride.gpx") << 997;
    QTest::newRow("course") << QStringLiteral("course.tcx") << 997;
}

void TrackFileTest::CutInSteps()
{
    QFETCH(QString, name);
    QFETCH(int, step);
    const std::string whole = ReadWhole(WatchPath(name.toStdString()));
    double metres = 0;
    for (std::size_t length = 1; length < whole.size() - 20; length += static_cast<std::size_t>(step)) {
        const WatchFile file = ReadTrackFile(std::string_view(whole).substr(0, length));
        QCOMPARE(file.faults.size(), std::size_t{1});
        QVERIFY2(file.faults[0] == "il file è troncato", file.faults[0].c_str());
        QVERIFY(file.activities.size() <= 1);
        const double read = file.activities.empty() ? 0 : file.activities[0].metres;
        QVERIFY(read >= metres);
        metres = read;
    }
    QCOMPARE(metres > 0, !name.startsWith(QLatin1String("course")));
}

void TrackFileTest::Bad_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("faults");
    const auto row = [](const char* name, const std::string& bytes, int faults) {
        QTest::newRow(name) << QByteArray::fromStdString(bytes) << faults;
    };
    std::string deep;
    std::string back;
    for (int i = 0; i < 10'000; ++i) {
        deep += "<a>";
        back += "</a>";
    }
    row("another kind of file", "<html><body/></html>", 0);
    row("deep", "<gpx><trk>" + deep + back + "</trk></gpx>", 0);
    row("deep and cut", "<gpx><trk>" + deep, 1);
    row("no time", Gpx("<trkseg><trkpt lat=\"45\" lon=\"9\"/><trkpt lat=\"46\" lon=\"9\"/></trkseg>"), 0);
    row("a single point", Gpx("<trkseg>" + Point(0, "10:00:00Z") + "</trkseg>"), 0);
    row("no numbers",
        Gpx("<trkseg><trkpt lat=\"nord\" lon=\"1e999\"><time>oggi</time></trkpt><trkpt lat=\"\"/></trkseg>"), 0);
    row("wrong end", "<gpx><trk></gpx></trk>", 1);
    row("garbled", "<gpx>\x01\xFF<trk>&nulla;", 1);
    row("entities",
        "<!DOCTYPE g [<!ENTITY a \"aaaaaaaaaaaaaaaaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;\">"
        "<!ENTITY c \"&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;\"><!ENTITY d \"&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;\">"
        "<!ENTITY e \"&d;&d;&d;&d;&d;&d;&d;&d;&d;&d;\">]><gpx>&e;</gpx>",
        1);
}

void TrackFileTest::Bad()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, faults);
    const WatchFile file = ReadTrackFile(bytes.toStdString());
    QVERIFY(file.activities.empty());
    QCOMPARE(static_cast<int>(file.faults.size()), faults);
}

ZELVIA_TEST(TrackFileTest)
#include "TrackFileTest.moc"
