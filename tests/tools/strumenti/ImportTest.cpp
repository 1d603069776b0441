// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/DiaryBytes.h"
#include "support/TestProgram.h"
#include "tools/strumenti/ToolsDesk.h"
#include "tools/watch/WatchFigures.h"

#include <QRegularExpression>
#include <QTest>
#include <QTime>

#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>

using namespace zelvia;
using namespace zelvia::test;
namespace fs = std::filesystem;

class ImportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void Figures_data();
    void Figures();
    void ARealRun();
    void SplitsOfTheChosenClock();
    void OnlyShown();
    void IsAskedFirst_data();
    void IsAskedFirst();
    void WhatCameInBeforeStays();
    void IntoAnotherDay();
    void TheReport();
    void AYearThatCantBe();
    void ADayWithSomethingElse();
    void NotesAndWeightStay();
    void TwoOutingsOfADay();
    void OtherSports();
    void TheGivenOffset();
    void ARaceDay();
    void TheRouteOfAnEarlierImport();
    void AWholeFolder();
    void TheWholeFileBeforeOneThatIsCut();
    void WhichDiaryIsOpenedAtTheStart();
    void TheYearsDiary();
    void Bad_data();
    void Bad();
    void CutAnywhere();
    void ATable();
    void AConflictCopyIsNotWrittenTo();
    void ATableComesBack();
    void ATableOfSplits();
    void TablesWithFaults_data();
    void TablesWithFaults();
    void WrongWords_data();
    void WrongWords();
};

namespace
{

constexpr const char* kHead = "file\tsession\tdate\tstart\tend\tkm\tmetres\ttime\tmoving\tsplits\tstatus\n";

/// The run of 10.208 km with pauses, on 13 June 2013, slot 164, at 5:56:35.
const std::string kRun = WatchPath("run-pauses.fit");
constexpr int kSlot = 164;

/// The lines below the head, cell by cell.
QList<QByteArrayList> RowsOf(const Outcome& outcome)
{
    QList<QByteArrayList> rows;
    for (const QByteArray& line : outcome.out.split('\n').mid(1)) {
        if (!line.isEmpty()) {
            rows << line.split('\t');
        }
    }
    return rows;
}

QByteArray StatusesOf(const Outcome& outcome)
{
    QByteArrayList statuses;
    for (const QByteArrayList& row : RowsOf(outcome)) {
        statuses << row.last();
    }
    return statuses.join(' ');
}

/// "1:02:03" as seconds.
int SecondsOfClock(const QByteArray& text)
{
    int seconds = 0;
    for (const QByteArray& part : text.split(':')) {
        seconds = seconds * 60 + part.toInt();
    }
    return seconds;
}

DiaryBytes DiaryOf(const ToolsDesk& desk, const std::string& name)
{
    return DiaryBytes(Bytes(desk.Read("ZelviaFile/" + name + ".zlv")));
}

} // namespace

void ImportTest::init()
{
    qputenv("TZ", "Europe/Rome");
    tzset();
}

void ImportTest::Figures_data()
{
    QTest::addColumn<QStringList>("figures");
    for (const QStringList& row : WatchTable("figures.tsv")) {
        QTest::newRow(qPrintable(row[0] + QLatin1Char(' ') + row[1])) << row;
    }
}

void ImportTest::Figures()
{
    QFETCH(QStringList, figures);
    const ToolsDesk desk;
    const std::string file = WatchPath(figures[0].toStdString());
    const Outcome outcome = desk.Run({"importa", "--tsv", "--prova", "--tutti", file});
    QCOMPARE(outcome.status, 0);
    QVERIFY(outcome.out.startsWith(kHead));
    const int session = figures[1].toInt();
    const QByteArrayList row = RowsOf(outcome)[std::max(session, 1) - 1];
    QCOMPARE(row[0], Bytes(file));
    QCOMPARE(row[1].toInt(), session);
    if (session == 0) {
        QCOMPARE(row.last(), QByteArray("bad"));
        return;
    }
    // In the watch's own time, or else in that of Rome, two hours ahead of UTC in all these summers.
    const QDateTime start =
        QDateTime::fromString(figures[3], Qt::ISODate).addSecs(figures[4].isEmpty() ? 7200 : figures[4].toInt());
    QCOMPARE(QString::fromLatin1(row[2]), start.toString(QStringLiteral("yyyy-MM-dd")));
    QCOMPARE(QString::fromLatin1(row[3]), start.toString(QStringLiteral("H:mm:ss")));
    QVERIFY(Within(SecondsOfClock(row[4]) - SecondsOfClock(row[3]), figures[5], 1));
    QVERIFY(Within(row[5].toInt() * 1000 + row[6].toInt(), figures[7], 1));
    QVERIFY(Within(SecondsOfClock(row[7]), figures[5], 1));
    QVERIFY(Within(SecondsOfClock(row[8]), figures[6], 1));
}

void ImportTest::ARealRun()
{
    const ToolsDesk desk;
    const Outcome outcome = desk.Run({"importa", "--tsv", "--si", kRun});
    QCOMPARE(outcome.out, kHead + Bytes(kRun) +
                              "\t1\t2013-06-13\t5:56:35\t6:24:50\t10\t208\t0:28:15\t0:24:59\t"
                              "1=0:02:38;2=0:05:04;3=0:08:40;4=0:13:18;5=0:15:31;6=0:18:21;7=0:20:33;8=0:22:52;"
                              "9=0:25:13;10=0:27:35\tnew\n");
    QVERIFY(outcome.err.contains("L'ora di 1 attività è quella dell'orologio"));
    QVERIFY(outcome.err.contains("Ci sono pause in 1 attività"));
    QCOMPARE(outcome.status, 0);
    QCOMPARE(desk.Copies(), 1);

    const DiaryBytes diary = DiaryOf(desk, "2013");
    QVERIFY(diary.Complete());
    DiaryBytes expected = DiaryBytes::Blank(2013);
    const QByteArrayList lines = {
        "10", "208", "\"\"", "\"\"", "\"Allenamento\"", "5",       "56",
        "35", "6",   "24",   "50",   "\"0:28:15\"",     "\"2:46\""}; // 1695 seconds by 10.208 km are 166.05.
    for (qsizetype i = 0; i < lines.size(); ++i) {
        expected.SetLine(kSlot, DiaryBytes::Km + static_cast<int>(i), lines[i]);
    }
    const QByteArrayList splits = {"02:38", "05:04", "08:40", "13:18", "15:31",
                                   "18:21", "20:33", "22:52", "25:13", "27:35"};
    for (int i = 0; i < 10; ++i) {
        expected.SetLine(kSlot, DiaryBytes::Splits + i,
                         "\"" + QByteArray::number(i + 1).rightJustified(2, '0') + "      00:" + splits[i] + "\"");
    }
    expected.SetLine(kSlot, DiaryBytes::Route, "\"Lungofiume\""); // 10 km in the sample's routes, the closest.
    expected.SetLine(kSlot, DiaryBytes::Season, "\"Primavera\"");
    QCOMPARE(Difference(diary.Bytes().toStdString(), expected.Bytes().toStdString()), QByteArray());
    // The year's folder is as anno makes it.
    QCOMPARE(Bytes(desk.Read("2013/ListePercorso")), Bytes(desk.Read("prova/ListePercorso")));
    QVERIFY(desk.Has("2013/Base 10 km.tab"));
    QCOMPARE(Bytes(desk.Read("nomeload")), QByteArray("\"\"\r\n")); // An older year is not opened at the start.
}

void ImportTest::SplitsOfTheChosenClock()
{
    const ToolsDesk desk;
    const QByteArrayList row = RowsOf(desk.Run({"importa", "--tsv", "--prova", "--in-moto", kRun}))[0];
    QCOMPARE(row[4], QByteArray("6:21:34"));
    QCOMPARE(row[7], QByteArray("0:24:59"));
    QCOMPARE(row[8], QByteArray("0:24:59"));
    QCOMPARE(row[9], QByteArray("1=0:02:34;2=0:05:00;3=0:07:45;4=0:10:24;5=0:12:37;6=0:15:05;7=0:17:17;8=0:19:36;"
                                "9=0:21:57;10=0:24:19"));
}

void ImportTest::OnlyShown()
{
    const ToolsDesk desk;
    const QByteArray before = desk.Everything();
    const Outcome outcome = desk.Run({"importa", "--prova", kRun});
    QCOMPARE(outcome.status, 0);
    QVERIFY(outcome.out.contains("run-pauses.fit"));
    QVERIFY(outcome.out.contains("13/06/2013"));
    QVERIFY(outcome.out.contains("Diario nuovo: 2013.\nÈ una prova: niente è stato cambiato.\n"));
    QCOMPARE(desk.Everything(), before);
    QCOMPARE(desk.Copies(), 0);
    QVERIFY(!desk.home.Has("stato/zelvia/importati"));
}

void ImportTest::IsAskedFirst_data()
{
    QTest::addColumn<QByteArray>("answer"); // "-" for nobody there.
    QTest::addColumn<bool>("written");
    QTest::newRow("s") << QByteArray("s") << true;
    QTest::newRow("sì") << QByteArray("sì") << true;
    QTest::newRow("n") << QByteArray("n") << false;
    QTest::newRow("Enter") << QByteArray("") << false;
    QTest::newRow("nobody") << QByteArray("-") << false;
}

void ImportTest::IsAskedFirst()
{
    QFETCH(QByteArray, answer);
    QFETCH(bool, written);
    const ToolsDesk desk;
    const QByteArray before = desk.Everything();
    const std::vector<std::string> words = {"importa", kRun};
    const Outcome outcome = answer == "-" ? desk.Run(words) : desk.Answer(words, answer.toStdString());
    QCOMPARE(outcome.status, written ? 0 : 1);
    QCOMPARE(desk.Everything() != before, written);
    QCOMPARE(outcome.out.contains("Scrivere nel diario? (s/N)"), answer != "-");
    QCOMPARE(desk.home.Has("stato/zelvia/importati"), written);
}

void ImportTest::WhatCameInBeforeStays()
{
    const ToolsDesk desk;
    QCOMPARE(desk.Run({"importa", "--si", kRun}).status, 0);
    // What the runner corrects stays, the start and the route too.
    DiaryBytes diary = DiaryOf(desk, "2013");
    diary.SetLine(kSlot, DiaryBytes::Route, "\"Argine\"");
    diary.SetLine(kSlot, 10, "7");
    desk.Write("ZelviaFile/2013.zlv", diary.Bytes().toStdString());
    const QByteArray before = desk.Everything();
    for (const char* option : {"--si", "--sovrascrivi"}) {
        const Outcome outcome = desk.Run({"importa", "--tsv", "--si", option, kRun});
        QCOMPARE(StatusesOf(outcome), QByteArray("same"));
        QVERIFY(outcome.err.contains("Non c'è niente da scrivere."));
        QCOMPARE(outcome.status, 0);
        QCOMPARE(desk.Everything(), before);
    }
    // A day that was blanked since takes it again.
    desk.Write("ZelviaFile/2013.zlv", DiaryBytes::Blank(2013).Bytes().toStdString());
    QCOMPARE(StatusesOf(desk.Run({"importa", "--tsv", "--si", kRun})), QByteArray("new"));
}

void ImportTest::IntoAnotherDay()
{
    // The runner said that it was in America, the day before; the file alone says otherwise.
    const ToolsDesk desk;
    QCOMPARE(desk.Run({"importa", "--si", "--fuso", "-4", kRun}).status, 0);
    QCOMPARE(DiaryOf(desk, "2013").Line(kSlot - 1, DiaryBytes::Km), QByteArray("10"));
    Outcome outcome = desk.Run({"importa", "--tsv", "--si", kRun});
    QCOMPARE(StatusesOf(outcome), QByteArray("same"));
    QVERIFY(outcome.err.contains(": è già nel giorno 12/06/2013.\n"));
    QCOMPARE(outcome.status, 0);
    // Once that day is blank, it comes in where the file says.
    desk.Write("ZelviaFile/2013.zlv", DiaryBytes::Blank(2013).Bytes().toStdString());
    outcome = desk.Run({"importa", "--tsv", "--si", kRun});
    QCOMPARE(StatusesOf(outcome), QByteArray("new"));
    QCOMPARE(DiaryOf(desk, "2013").Line(kSlot, DiaryBytes::Km), QByteArray("10"));
}

void ImportTest::TheReport()
{
    const ToolsDesk desk;
    QVERIFY(desk.Run({"importa", "--si", kRun}).out.endsWith("\nFatto. Scritti: 1.\n"));
    QVERIFY(
        desk.Run({"importa", "--si", kRun, WatchPath("run-laps.fit"), WatchPath("ride.gpx"), WatchPath("settings.fit")})
            .out.endsWith("\nFatto. Scritti: 1. C'erano già: 1. Non sono corse: 1. Non si leggono: 1.\n"));
}

void ImportTest::AYearThatCantBe()
{
    // The name of the diary of 2015 is another one's; what goes elsewhere comes in all the same.
    const ToolsDesk desk;
    desk.Write("ZelviaFile/2015.zlv", DiaryBytes::Blank(2014).Bytes().toStdString());
    const Outcome outcome = desk.Run({"importa", "--tsv", "--si", WatchPath("run-laps.fit"), kRun});
    QCOMPARE(StatusesOf(outcome), QByteArray("bad new"));
    QVERIFY(outcome.err.contains("il diario 2015 c'è già"));
    QCOMPARE(outcome.status, 1);
    QCOMPARE(DiaryOf(desk, "2013").Line(kSlot, DiaryBytes::Km), QByteArray("10"));
}

void ImportTest::ADayWithSomethingElse()
{
    const ToolsDesk desk;
    DiaryBytes diary = DiaryBytes::Blank(2013);
    diary.SetLine(kSlot, DiaryBytes::Kind, "\"Allenamento\"");
    diary.SetLine(kSlot, DiaryBytes::Km, "5");
    diary.SetLine(kSlot, DiaryBytes::Splits + 12, "\"13      01:00:00\"");
    diary.SetLine(kSlot, DiaryBytes::Weight, "71");
    desk.Write("ZelviaFile/2013.zlv", diary.Bytes().toStdString());
    const QByteArray before = desk.Everything();
    Outcome outcome = desk.Run({"importa", "--tsv", "--si", kRun});
    QCOMPARE(StatusesOf(outcome), QByteArray("other"));
    QVERIFY(outcome.err.contains("In 1 giorno il diario ha già altro, che resta com'è; --sovrascrivi lo sostituisce."));
    QCOMPARE(outcome.status, 1);
    QCOMPARE(desk.Everything(), before);
    outcome = desk.Run({"importa", "--tsv", "--si", "--sovrascrivi", kRun});
    QCOMPARE(StatusesOf(outcome), QByteArray("other"));
    QCOMPARE(outcome.status, 0);
    diary = DiaryOf(desk, "2013");
    QCOMPARE(diary.Line(kSlot, DiaryBytes::Km), QByteArray("10"));
    QCOMPARE(diary.Line(kSlot, DiaryBytes::Splits + 12), QByteArray("\"\""));
    QCOMPARE(diary.Line(kSlot, DiaryBytes::Weight), QByteArray("71"));
    QCOMPARE(StatusesOf(desk.Run({"importa", "--tsv", "--si", kRun})), QByteArray("same"));
}

void ImportTest::NotesAndWeightStay()
{
    const ToolsDesk desk;
    DiaryBytes diary = DiaryBytes::Blank(2013);
    diary.SetLine(kSlot, DiaryBytes::Weight, "71");
    diary.SetLine(kSlot, DiaryBytes::Notes + 2, "\"gambe pesanti\"");
    diary.SetLine(kSlot, DiaryBytes::Notes, "\"fuori pagina\"");
    desk.Write("ZelviaFile/2013.zlv", diary.Bytes().toStdString());
    fs::permissions(desk.Native("ZelviaFile/2013.zlv"), fs::perms::owner_read | fs::perms::owner_write);
    QCOMPARE(StatusesOf(desk.Run({"importa", "--tsv", "--si", kRun})), QByteArray("new"));
    const DiaryBytes after = DiaryOf(desk, "2013");
    QCOMPARE(after.Line(kSlot, DiaryBytes::Km), QByteArray("10"));
    for (const int line : {static_cast<int>(DiaryBytes::Weight), DiaryBytes::Notes + 2, +DiaryBytes::Notes}) {
        QCOMPARE(after.Line(kSlot, line), diary.Line(kSlot, line));
    }
    QCOMPARE(fs::status(desk.Native("ZelviaFile/2013.zlv")).permissions(),
             fs::perms::owner_read | fs::perms::owner_write);
}

void ImportTest::TwoOutingsOfADay()
{
    const ToolsDesk desk;
    const auto gpx = [&](const std::string& name, const std::string& hour, const std::string& end) {
        desk.home.Write(name, "<gpx><trk><trkseg><trkpt lat=\"45\" lon=\"9\"><time>2024-05-01T" + hour +
                                  ":00:00Z</time></trkpt><trkpt lat=\"" + end + "\" lon=\"9\"><time>2024-05-01T" +
                                  hour + ":30:00Z</time></trkpt></trkseg></trk></gpx>");
        return desk.home.Native(name);
    };
    const std::string morning = gpx("mattina.gpx", "07", "45.05");
    const std::string evening = gpx("sera.gpx", "17", "45.06");
    for (const char* option : {"--si", "--sovrascrivi"}) {
        const Outcome outcome = desk.Run({"importa", "--tsv", "--prova", option, morning, evening, morning});
        QCOMPARE(StatusesOf(outcome), QByteArray("new other same"));
        QVERIFY(outcome.err.contains("«" + Bytes(evening) + "», n. 1: è un'altra uscita dello stesso giorno"));
    }
}

void ImportTest::OtherSports()
{
    const ToolsDesk desk;
    const std::string file = WatchPath("triathlon-chained.fit");
    const Outcome outcome = desk.Run({"importa", "--tsv", "--si", file});
    QCOMPARE(StatusesOf(outcome), QByteArray("rest rest rest rest new"));
    QCOMPARE(outcome.status, 0);
    QCOMPARE(DiaryOf(desk, "2018").Line(147, DiaryBytes::Km), QByteArray("9")); // 27 May.
    const Outcome all = desk.Run({"importa", "--tsv", "--prova", "--tutti", file});
    QCOMPARE(StatusesOf(all), QByteArray("other other other other same"));
    const Outcome ride = desk.Run({"importa", "--tsv", "--si", "--tutti", WatchPath("ride.gpx")});
    QCOMPARE(StatusesOf(ride), QByteArray("new"));
    QCOMPARE(DiaryOf(desk, "2023").Line(16, DiaryBytes::Kind), QByteArray("\"Bicicletta\""));
}

void ImportTest::TheGivenOffset()
{
    const ToolsDesk desk;
    const auto start = [&](const std::string& offset) {
        return RowsOf(desk.Run({"importa", "--tsv", "--prova", "--fuso", offset, kRun}))[0].mid(2, 2).join(' ');
    };
    QCOMPARE(start("0"), QByteArray("2013-06-13 3:56:35"));
    QCOMPARE(start("+5:30"), QByteArray("2013-06-13 9:26:35"));
    QCOMPARE(start("-4"), QByteArray("2013-06-12 23:56:35"));
    QVERIFY(desk.Run({"importa", "--tsv", "--prova", "--fuso", "1", kRun})
                .err.contains("L'ora di 1 attività è quella indicata con --fuso."));
}

void ImportTest::ARaceDay()
{
    const ToolsDesk desk;
    desk.Write("ZelviaFile/2013.zlv", DiaryBytes::Blank(2013).Bytes().toStdString());
    fs::create_directory(desk.Native("2013"));
    // Row 2 of the calendar is a race of 13 June 2013.
    QByteArray calendar;
    for (int row = 1; row <= 100; ++row) {
        const bool race = row == 2;
        calendar += QByteArray::number(row) + (race ? "\r\n13\r\n6\r\n2013\r\n" : "\r\n0\r\n0\r\n0\r\n");
        calendar += "\"\"\r\n\"\"\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n\"\"\r\n0\r\n";
    }
    desk.Write("2013/CalendarioGare", calendar.toStdString());
    QCOMPARE(desk.Run({"importa", "--si", kRun}).status, 0);
    QCOMPARE(DiaryOf(desk, "2013").Line(kSlot, DiaryBytes::Kind), QByteArray("\"Gara\""));
}

void ImportTest::TheRouteOfAnEarlierImport()
{
    const ToolsDesk desk;
    QCOMPARE(desk.Run({"importa", "--si", kRun}).status, 0);
    // The runner says on the page which route it was; another day starts there again, and is as long.
    DiaryBytes diary = DiaryOf(desk, "2013");
    diary.SetLine(kSlot, DiaryBytes::Route, "\"Giro del lago\"");
    desk.Write("ZelviaFile/2013.zlv", diary.Bytes().toStdString());
    const auto point = [](const char* lat, const char* time) {
        return "<trkpt lat=\"" + std::string(lat) + "\" lon=\"13.4194\"><time>2014-06-20T" + time + "Z</time></trkpt>";
    };
    // 0.0918 degrees of latitude are 10.208 km.
    desk.home.Write("ancora.gpx", "<gpx><trk><type>running</type><trkseg>" + point("52.4032", "05:00:00") +
                                      point("52.4950", "06:00:00") + "</trkseg></trk></gpx>");
    QCOMPARE(desk.Run({"importa", "--si", desk.home.Native("ancora.gpx")}).status, 0);
    QCOMPARE(DiaryOf(desk, "2014").Line(171, DiaryBytes::Route), QByteArray("\"Giro del lago\""));
}

void ImportTest::AWholeFolder()
{
    const ToolsDesk desk;
    const Outcome outcome = desk.Run({"importa", "--tsv", "--si", WatchPath("")});
    // In the order of the names; those that came twice are known, by the file that is whole.
    QCOMPARE(StatusesOf(outcome), QByteArray("bad rest rest same new same new new new new new new bad "
                                             "rest rest rest rest new"));
    QCOMPARE(outcome.status, 1);
    QVERIFY(outcome.err.contains("Diari nuovi: 1990, 2011, 2012, 2013, 2015, 2018, 2021."));
    for (const char* year : {"1990", "2011", "2012", "2013", "2015", "2018", "2021"}) {
        QVERIFY2(DiaryOf(desk, year).Complete(), year);
    }
    QCOMPARE(DiaryOf(desk, "2013").Line(249, DiaryBytes::Km), QByteArray("10")); // 6 September.
    QCOMPARE(desk.Copies(), 1);
}

void ImportTest::TheWholeFileBeforeOneThatIsCut()
{
    const ToolsDesk desk;
    std::ifstream file(WatchPath("run-laps.tcx"));
    const std::string whole(std::istreambuf_iterator<char>(file), {});
    desk.home.Write("a.tcx", whole.substr(0, whole.size() / 2));
    desk.home.Write("b.tcx", whole);
    const Outcome outcome =
        desk.Run({"importa", "--tsv", "--si", desk.home.Native("a.tcx"), desk.home.Native("b.tcx")});
    QCOMPARE(StatusesOf(outcome), QByteArray("same new"));
    const DiaryBytes diary = DiaryOf(desk, "2013");
    QCOMPARE(diary.Line(249, DiaryBytes::Km), QByteArray("10"));
    QCOMPARE(diary.Line(249, DiaryBytes::Metres), QByteArray("747"));
}

void ImportTest::WhichDiaryIsOpenedAtTheStart()
{
    // The first diary of all, and that of a later year, are; an older one is not.
    const ToolsDesk desk;
    fs::remove(desk.Native("ZelviaFile/prova.zlv"));
    QCOMPARE(desk.Run({"importa", "--si", kRun}).status, 0);
    QVERIFY(desk.Read("nomeload").ends_with("\\ZelviaFile\\2013.zlv\"\r\n"));
    QCOMPARE(desk.Run({"importa", "--si", WatchPath("run-miles.fit")}).status, 0);
    QVERIFY(desk.Read("nomeload").ends_with("\\ZelviaFile\\2013.zlv\"\r\n"));
    QCOMPARE(desk.Run({"importa", "--si", WatchPath("run-mangled.fit"), WatchPath("run-laps.fit")}).status, 0);
    QVERIFY(desk.Read("nomeload").ends_with("\\ZelviaFile\\2021.zlv\"\r\n"));
}

void ImportTest::TheYearsDiary()
{
    // Of several diaries of the year the one that is opened takes it, else the one named after it.
    const ToolsDesk desk;
    const Text blank = DiaryBytes::Blank(2013).Bytes().toStdString();
    for (const char* name : {"2013", "altro", "corsa"}) {
        desk.Write("ZelviaFile/" + std::string(name) + ".zlv", blank);
    }
    QCOMPARE(desk.Run({"importa", "--si", "--diario", "corsa", kRun}).status, 0);
    QVERIFY(desk.Read("ZelviaFile/corsa.zlv") != blank);
    QVERIFY(desk.Read("ZelviaFile/2013.zlv") == blank);
    QCOMPARE(desk.Run({"importa", "--si", WatchPath("run-laps.tcx")}).status, 0);
    QVERIFY(desk.Read("ZelviaFile/2013.zlv") != blank);
    QVERIFY(desk.Read("ZelviaFile/altro.zlv") == blank);

    // A diary of that name with another year stays.
    desk.Write("ZelviaFile/2015.zlv", DiaryBytes::Blank(2014).Bytes().toStdString());
    const QByteArray before = desk.Everything();
    const Outcome outcome = desk.Run({"importa", "--si", WatchPath("run-laps.fit")});
    QCOMPARE(outcome.status, 1);
    QVERIFY(outcome.err.contains("il diario 2015 c'è già"));
    QCOMPARE(desk.Everything(), before);
}

void ImportTest::Bad_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("reason");
    const auto row = [](const char* test, const char* name, const QByteArray& bytes, const char* reason) {
        QTest::newRow(test) << QString::fromLatin1(name) << bytes << QByteArray(reason);
    };
    QByteArray deep;
    for (int i = 0; i < 10'000; ++i) {
        deep += "<a>";
    }
    row("empty", "a.fit", "", "il file è vuoto");
    row("no format", "a.fit", "non è un orologio", "non è un file FIT, TCX, GPX o CSV");
    row("zeros", "a.gpx", QByteArray(5000, '\0'), "non è un file FIT, TCX, GPX o CSV");
    row("head alone", "a.fit", QByteArray("\x0E\x10\0\0\xFF\xFF\xFF\x7F.FIT\0\0", 14), "il file è troncato");
    row("a page", "a.tcx", "<html></html>", "non contiene attività");
    row("deep", "a.gpx", deep, "il file è troncato");
    row("garbled", "a.tcx", "<gpx>\xFF\x01&x;</gpx>", "il file è rovinato alla riga 1");
}

void ImportTest::Bad()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, reason);
    const ToolsDesk desk;
    desk.home.Write(name.toStdString(), bytes.toStdString());
    const QByteArray before = desk.Everything();
    const std::string file = desk.home.Native(name.toStdString());
    const Outcome outcome = desk.Run({"importa", "--tsv", "--si", file});
    QCOMPARE(outcome.out, kHead + Bytes(file) + "\t0\t\t\t\t\t\t\t\t\tbad\n");
    QVERIFY2(outcome.err.startsWith("«" + Bytes(file) + "»: " + reason + ".\n"), outcome.err.constData());
    QCOMPARE(outcome.status, 1);
    QCOMPARE(desk.Everything(), before);
    // A good one beside it comes in.
    QCOMPARE(StatusesOf(desk.Run({"importa", "--tsv", "--si", file, kRun, desk.home.Native("manca.fit"),
                                  desk.home.Native("Zelvia/nomeload/x")})),
             QByteArray("bad new bad bad"));
}

void ImportTest::CutAnywhere()
{
    const ToolsDesk desk;
    const QByteArray before = desk.Everything();
    const Text whole = ReadWhole(kRun);
    for (std::size_t length = 1; length < whole.size(); length += 557) {
        desk.home.Write("corta.fit", whole.substr(0, length));
        const Outcome outcome = desk.Run({"importa", "--tsv", "--prova", desk.home.Native("corta.fit")});
        QCOMPARE(outcome.status, 0);
        QVERIFY(StatusesOf(outcome) == "bad" || StatusesOf(outcome) == "new");
        QVERIFY(outcome.err.contains(length < 12 ? "non è un file FIT" : "il file è troncato"));
    }
    QCOMPARE(desk.Everything(), before);
}

void ImportTest::ATable()
{
    const ToolsDesk desk;
    desk.Write("ZelviaFile/2024.zlv", DiaryBytes::Blank(2024).Bytes().toStdString());
    desk.home.Write("anni.csv", "\xEF\xBB\xBF"
                                "Data;Chilometri;Tempo;Percorso;Scarpe\r\n"
                                "29/2/2024;10,5;50:00;Parco;blu\r\n2024-03-01;5;;;\r\n");
    const std::string file = desk.home.Native("anni.csv");
    const Outcome outcome = desk.Run({"importa", "--tsv", "--si", "--colonna", "Chilometri=km", file});
    QCOMPARE(outcome.out, kHead + Bytes(file) +
                              "\t1\t2024-02-29\t0:00:00\t0:50:00\t10\t500\t0:50:00\t0:50:00\t\tnew\n" + Bytes(file) +
                              "\t2\t2024-03-01\t0:00:00\t0:00:00\t5\t0\t0:00:00\t0:00:00\t\tnew\n");
    QVERIFY(outcome.err.contains("la colonna «Scarpe» non si conosce e non viene letta"));
    QVERIFY(!outcome.err.contains("«Chilometri»"));
    QCOMPARE(outcome.status, 0);
    const DiaryBytes diary = DiaryOf(desk, "2024");
    QCOMPARE(diary.Line(60, DiaryBytes::Route), QByteArray("\"Parco\""));
    QCOMPARE(diary.Line(60, DiaryBytes::Metres), QByteArray("500"));
    QCOMPARE(diary.Line(60, DiaryBytes::Time), QByteArray("\"0:50:00\""));
    QCOMPARE(diary.Line(60, DiaryBytes::Pace), QByteArray("\"4:45\"")); // 3000 / 10.5 = 285.7.
    QCOMPARE(diary.Line(61, DiaryBytes::Km), QByteArray("5"));
    // What is blank so far comes in beside the rest; what would be lost stays.
    desk.home.Write("altro.csv", "date,km,weight\n2024-02-29,,70\n2024-03-01,6,70\n");
    QCOMPARE(StatusesOf(desk.Run({"importa", "--tsv", "--si", desk.home.Native("altro.csv")})),
             QByteArray("new other"));
    QCOMPARE(DiaryOf(desk, "2024").Line(60, DiaryBytes::Weight), QByteArray("70"));
    QCOMPARE(DiaryOf(desk, "2024").Line(61, DiaryBytes::Weight), QByteArray("0"));
    QCOMPARE(StatusesOf(desk.Run({"importa", "--tsv", "--prova", "--colonna", "Chilometri=km", file})),
             QByteArray("same same"));
}

/// Even when its name comes first, and neither bears the year's.
void ImportTest::AConflictCopyIsNotWrittenTo()
{
    const ToolsDesk desk;
    const Text blank = DiaryBytes::Blank(2024).Bytes().toStdString();
    const std::string conflict = "ZelviaFile/alfa.sync-conflict-20261101-101010-ABCDEFG.zlv";
    desk.Write("ZelviaFile/alfa.zlv", blank);
    desk.Write(conflict, blank);
    desk.home.Write("anni.csv", "date,km\n2024-02-29,10.5\n");
    QCOMPARE(StatusesOf(desk.Run({"importa", "--tsv", "--si", desk.home.Native("anni.csv")})), QByteArray("new"));
    QCOMPARE(Bytes(desk.Read(conflict)), Bytes(blank));
    QCOMPARE(DiaryOf(desk, "alfa").Line(60, DiaryBytes::Km), QByteArray("10"));
}

void ImportTest::ATableComesBack()
{
    // The sample year goes out and into a blank diary of the same year; what goes out then is the same.
    const ToolsDesk desk;
    const std::string file = desk.home.Native("anno.csv");
    QCOMPARE(desk.Run({"esporta", "--formato", "csv", "-o", file}).status, 0);
    const QByteArray days = desk.Run({"esporta", "--formato", "csv"}).out;
    QCOMPARE(StatusesOf(desk.Run({"importa", "--tsv", "--prova", file})).count("same"), 220);
    desk.Write("ZelviaFile/prova.zlv", DiaryBytes::Blank(2026).Bytes().toStdString());
    QCOMPARE(desk.Run({"importa", "--si", file}).status, 0);
    QCOMPARE(Difference(desk.Run({"esporta", "--formato", "csv"}).out.toStdString(), days.toStdString()), QByteArray());
}

void ImportTest::ATableOfSplits()
{
    const ToolsDesk desk;
    desk.Write("ZelviaFile/2024.zlv", DiaryBytes::Blank(2024).Bytes().toStdString());
    desk.home.Write("tempi.csv", "date,km,time\n2024-02-29,1,0:05:07\n2024-02-29,10,1:00:59\n2024-03-01,1,4:59\n"
                                 "2024-03-01,101,1:00\n");
    const std::vector<std::string> words = {"importa", "--tsv", "--si", desk.home.Native("tempi.csv")};
    const Outcome outcome = desk.Run(words);
    QCOMPARE(StatusesOf(outcome), QByteArray("new new bad"));
    QCOMPARE(RowsOf(outcome)[0][9], QByteArray("1=0:05:07;10=1:00:59"));
    QVERIFY(outcome.err.contains("n. 4: la riga non dice un chilometro da 1 a 100 e un tempo"));
    const DiaryBytes diary = DiaryOf(desk, "2024");
    QCOMPARE(diary.Line(60, DiaryBytes::Splits), QByteArray("\"01      00:05:07\""));
    QCOMPARE(diary.Line(60, DiaryBytes::Splits + 1), QByteArray("\"10      01:00:59\""));
    QCOMPARE(diary.Line(60, DiaryBytes::Km), QByteArray("0"));
    QCOMPARE(StatusesOf(desk.Run(words)), QByteArray("same same bad"));
    desk.home.Write("tempi.csv", "date,km,time\n2024-02-29,1,0:05:08\n2024-02-29,10,1:00:59\n");
    QCOMPARE(StatusesOf(desk.Run(words)), QByteArray("other"));
    // A day a row is a table of days.
    desk.home.Write("tempi.csv", "date,km,time\n2024-05-01,1,0:05:08\n");
    QCOMPARE(RowsOf(desk.Run(words))[0][5], QByteArray("1"));
}

void ImportTest::TablesWithFaults_data()
{
    QTest::addColumn<QByteArray>("table");
    QTest::addColumn<QByteArray>("statuses");
    QTest::addColumn<QByteArray>("reason");
    const auto row = [](const char* name, const char* table, const char* statuses, const char* reason) {
        QTest::newRow(name) << QByteArray(table) << QByteArray(statuses) << QByteArray(reason);
    };
    row("no date", "km,time\n1,2\n", "bad", "nella prima riga deve esserci una colonna «date»");
    row("two dates", "date,Data\n2024-01-01,2024-01-01\n", "bad", "nella prima riga deve esserci una colonna «date»");
    row("head alone", "date,km\n", "bad", "la tabella non ha righe sotto la prima");
    row("blank lines", "\n\n\n", "bad", "la tabella è vuota");
    row("open quote", "date,km\n\"2024-01-01,1\n", "bad", "una virgoletta non è chiusa");
    row("a wrong row", "date,km\n2024-01-01,dieci\n2024-01-02,10\n,5\n", "bad new bad",
        "n. 1: «dieci» non è un valore di «km»");
    row("a day twice", "date,km\n2024-01-01,10\n2024-01-01,11\n", "new other", "è un'altra uscita dello stesso giorno");
    row("too long a note", "date,notes\n2024-01-01,\"1\n2\n3\n4\n5\n6\n7\n8\n9\"\n", "new",
        "le note non ci stanno tutte");
}

void ImportTest::TablesWithFaults()
{
    QFETCH(QByteArray, table);
    QFETCH(QByteArray, reason);
    const ToolsDesk desk;
    desk.home.Write("a.csv", table.toStdString());
    const Outcome outcome = desk.Run({"importa", "--tsv", "--prova", desk.home.Native("a.csv")});
    QTEST(StatusesOf(outcome), "statuses");
    QVERIFY2(outcome.err.contains(reason), outcome.err.constData());
}

void ImportTest::WrongWords_data()
{
    QTest::addColumn<QByteArrayList>("words");
    QTest::addColumn<QByteArray>("says");
    const auto row = [](const char* name, const QByteArrayList& words, const char* says) {
        QTest::newRow(name) << words << QByteArray(says);
    };
    row("no file", {}, "Per «importa» manca qualcosa.");
    row("unknown option", {"--forte", "a.fit"}, "Opzione sconosciuta: --forte");
    row("offset", {"--fuso", "Roma", "a.fit"}, "«Roma» non è una differenza da UTC come +2 o -3:30.");
    row("too large", {"--fuso", "16", "a.fit"}, "«16» non è una differenza da UTC come +2 o -3:30.");
    row("half", {"--fuso", "2:", "a.fit"}, "«2:» non è una differenza da UTC come +2 o -3:30.");
    row("column", {"--colonna", "Chilometri", "a.csv"},
        "«Chilometri» non dice TESTATA=NOME, con il NOME di una colonna come «km».");
    row("no such column", {"--colonna", "a=b", "a.csv"},
        "«a=b» non dice TESTATA=NOME, con il NOME di una colonna come «km».");
}

void ImportTest::WrongWords()
{
    QFETCH(QByteArrayList, words);
    QFETCH(QByteArray, says);
    std::vector<std::string> all = {"importa"};
    for (const QByteArray& word : words) {
        all.push_back(word.toStdString());
    }
    const Outcome outcome = ToolsDesk().Run(all);
    QVERIFY2(outcome.err.startsWith(says + "\n"), outcome.err.constData());
    QCOMPARE(outcome.status, 2);
}

ZELVIA_TEST(ImportTest)
#include "ImportTest.moc"
