// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/DiaryBytes.h"
#include "support/TestProgram.h"
#include "tools/strumenti/ToolsDesk.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <filesystem>

using namespace zelvia;
using namespace zelvia::test;
namespace fs = std::filesystem;

class ExportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Csv();
    void Splits();
    void JsonLines();
    void Calendar();
    void ATableOfAnotherComputer();
    void IntoAFile();
    void NotIntoTheDiary();
    void Faults_data();
    void Faults();
};

namespace
{

/// A diary of 2024 with two days: a run on 29 February, and only a note on 31 December.
void LayDiary(const ToolsDesk& desk)
{
    DiaryBytes diary = DiaryBytes::Blank(2024);
    diary.Visit(59, QDate(2024, 2, 28));
    diary.SetLine(60, DiaryBytes::Route, "\"Citt\xE0 alta\"");
    diary.SetLine(60, DiaryBytes::Km, "10");
    diary.SetLine(60, DiaryBytes::Metres, "45");
    diary.SetLine(60, DiaryBytes::Kind, "\"Gara\"");
    diary.SetLine(60, 10, "9");
    diary.SetLine(60, 13, "10");
    diary.SetLine(60, DiaryBytes::Time, "\"1:00:00\"");
    diary.SetLine(60, DiaryBytes::Pace, "\"5:58\"");
    diary.SetLine(60, DiaryBytes::Splits, "\"01      00:06:00\"");
    diary.SetLine(60, DiaryBytes::Splits + 1, "\"10      00:59:30\"");
    diary.SetLine(60, DiaryBytes::Splits + 2, "\"arrivo\"");
    diary.SetLine(60, DiaryBytes::Weight, "70");
    diary.SetLine(366, DiaryBytes::Notes + 2, "\"riposo, finalmente\"");
    desk.Write("ZelviaFile/2024.zlv", diary.Bytes().toStdString());
}

} // namespace

void ExportTest::Csv()
{
    const ToolsDesk desk;
    LayDiary(desk);
    const Outcome outcome = desk.Run({"esporta", "--diario", "2024", "--formato", "csv"});
    QCOMPARE(outcome.out,
             QByteArray("date,route,length_class,km,pace_class,terrain,type,start,end,time,average,season,weather,"
                        "temperature,runners,weight,repetitions,repetition_distance,repetition_time,notes\r\n"
                        "2024-02-29,Città alta,,10.045,,,Gara,9:00:00,10:00:00,1:00:00,0:05:58,,,,1,70,,,,\r\n"
                        "2024-12-31,,,0.000,,,,,,,,,,,1,,,,,\"riposo, finalmente\"\r\n"));
    QCOMPARE(outcome.err, QByteArray());
    QCOMPARE(outcome.status, 0);
}

void ExportTest::Splits()
{
    const ToolsDesk desk;
    LayDiary(desk);
    const Outcome outcome = desk.Run({"esporta", "--diario", "2024", "--formato", "splits"});
    QCOMPARE(outcome.out, QByteArray("date,km,time\r\n2024-02-29,1,0:06:00\r\n2024-02-29,10,0:59:30\r\n"));
    QCOMPARE(outcome.err, QByteArray("Righe dei Tempi Km che non dicono chilometro e tempo, e restano fuori: 1.\n"));
    QCOMPARE(outcome.status, 0);
}

void ExportTest::JsonLines()
{
    const ToolsDesk desk;
    LayDiary(desk);
    const Outcome outcome = desk.Run({"esporta", "--diario", "2024", "--formato", "jsonl"});
    const QByteArrayList lines = outcome.out.split('\n');
    QCOMPARE(lines.size(), qsizetype{3});
    const QJsonObject run = QJsonDocument::fromJson(lines[0]).object();
    QCOMPARE(run.size(), qsizetype{20});
    QCOMPARE(run[QLatin1String("date")].toString(), QStringLiteral("2024-02-29"));
    QCOMPARE(run[QLatin1String("route")].toString(), QStringLiteral("Città alta"));
    QCOMPARE(run[QLatin1String("km")].toDouble(), 10.045);
    QVERIFY(lines[0].contains("\"km\": 10.045,"));
    QCOMPARE(run[QLatin1String("weight")].toInt(), 70);
    QVERIFY(run[QLatin1String("repetitions")].isNull());
    QCOMPARE(run[QLatin1String("average")].toString(), QStringLiteral("0:05:58"));
    const QJsonObject rest = QJsonDocument::fromJson(lines[1]).object();
    QCOMPARE(rest[QLatin1String("notes")].toString(), QStringLiteral("riposo, finalmente"));
}

void ExportTest::Calendar()
{
    const ToolsDesk desk;
    Outcome outcome = desk.Run({"esporta", "--formato", "ics"});
    QCOMPARE(outcome.err, QByteArray());
    QCOMPARE(outcome.status, 0);
    QVERIFY(outcome.out.startsWith("BEGIN:VCALENDAR\r\n"));
    const auto races = outcome.out.count("BEGIN:VEVENT");
    QCOMPARE(outcome.out.count("CATEGORIES:Gara"), races);
    QVERIFY(races > 0);
    // With a table active its rows come, too.
    desk.Write("prova/nometab", "\"" + SystemPath(desk.Native("prova/Base 10 km.tab")) + "\"\r\n");
    outcome = desk.Run({"esporta", "--formato", "ics"});
    QVERIFY(outcome.out.count("CATEGORIES:Allenamento") > 0);
    QVERIFY(outcome.out.contains("DESCRIPTION:Tabella Base 10 km\\, giorno 1\r\n"));
}

void ExportTest::ATableOfAnotherComputer()
{
    const ToolsDesk desk;
    desk.Write("prova/nometab", "\"C:\\Programmi\\Zelvia\\prova\\Base 10 km.tab\"\r\n");
    Outcome outcome = desk.Run({"esporta", "--formato", "ics"});
    QVERIFY(outcome.out.count("CATEGORIES:Allenamento") > 0);
    desk.Write("prova/nometab", "\"C:\\Programmi\\Zelvia\\prova\\Sparita.tab\"\r\n");
    outcome = desk.Run({"esporta", "--formato", "ics"});
    QCOMPARE(outcome.out.count("CATEGORIES:Allenamento"), qsizetype{0});
    QVERIFY2(outcome.err.startsWith("La tabella attiva non si legge per intero («"), outcome.err.constData());
}

void ExportTest::IntoAFile()
{
    const ToolsDesk desk;
    LayDiary(desk);
    const QByteArray before = desk.Everything();
    const std::string file = desk.home.Native("anno.csv");
    const std::vector<std::string> words = {"esporta", "--diario", "2024", "--formato", "csv", "-o", file};
    const auto with = [&](const char* word) {
        std::vector<std::string> all = words;
        all.emplace_back(word);
        return all;
    };
    QCOMPARE(desk.Run(with("--prova")).status, 0);
    QVERIFY(!desk.home.Has("anno.csv"));
    const QByteArray text = desk.Run({"esporta", "--diario", "2024", "--formato", "csv"}).out;
    const Outcome outcome = desk.Run(words);
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.out, QByteArray());
    QCOMPARE(Bytes(desk.home.Read("anno.csv")), text);
    const auto entries = [&] { return std::distance(fs::directory_iterator(desk.home.Native()), {}); };
    const auto count = entries();
    // Another file of that name is replaced only when the runner says so, and --si alone does not say it.
    desk.home.Write("anno.csv", "mio");
    for (const std::vector<std::string>& refused : {words, with("--si")}) {
        const Outcome stays = desk.Run(refused);
        QCOMPARE(stays.status, 1);
        QCOMPARE(stays.err, "zelvia-strumenti: «" + QByteArray::fromStdString(file) +
                                "» c'è già; lo sostituisce --sovrascrivi.\nNiente è stato cambiato.\n");
    }
    QCOMPARE(desk.Answer(words, "n").status, 1);
    QCOMPARE(Bytes(desk.home.Read("anno.csv")), QByteArray("mio"));
    QCOMPARE(desk.Answer(words, "s").status, 0);
    QCOMPARE(Bytes(desk.home.Read("anno.csv")), text);
    desk.home.Write("anno.csv", "mio");
    QCOMPARE(desk.Run(with("--sovrascrivi")).status, 0);
    QCOMPARE(Bytes(desk.home.Read("anno.csv")), text);
    // Nothing else is left there.
    QCOMPARE(entries(), count);
    QCOMPARE(desk.Everything(), before);
}

/// Not even under another name of the file.
void ExportTest::NotIntoTheDiary()
{
    const ToolsDesk desk;
    const QByteArray before = desk.Everything();
    fs::create_symlink(desk.Native("prova/Modo.lsx"), desk.home.Native("anno.csv"));
    for (const std::string& file :
         {desk.Native("ZelviaFile/prova.zlv"), desk.Native("prova/../nomeload"), desk.home.Native("anno.csv")}) {
        const Outcome outcome = desk.Run({"esporta", "--formato", "csv", "--sovrascrivi", "-o", file});
        QCOMPARE(outcome.err, "zelvia-strumenti: «" + QByteArray::fromStdString(file) +
                                  "» è un file del diario: indicarne un altro.\nNiente è stato cambiato.\n");
        QCOMPARE(outcome.status, 1);
    }
    QCOMPARE(desk.Everything(), before);
}

void ExportTest::Faults_data()
{
    QTest::addColumn<QByteArrayList>("words");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("says");
    const auto row = [](const char* name, const QByteArrayList& words, int status, const char* says) {
        QTest::newRow(name) << words << status << QByteArray(says);
    };
    row("no format", {}, 2, "Manca --formato.\n");
    row("unknown format", {"--formato", "xls"}, 2, "«xls» non è un formato: csv, splits, jsonl o ics.\n");
    row("a word too many", {"--formato", "csv", "x"}, 2, "Per «esporta» «x» è di troppo.\n");
    row("no such diary", {"--formato", "csv", "--diario", "1999"}, 1, "zelvia-strumenti: il diario «1999» non c'è");
    row("no such folder", {"--formato", "csv", "-o", "/non/c/e"}, 1, "zelvia-strumenti: ");
    row("a folder", {"--formato", "csv", "-o", "/"}, 1, "zelvia-strumenti: «/» c'è già e non è un file");
}

void ExportTest::Faults()
{
    QFETCH(QByteArrayList, words);
    QFETCH(QByteArray, says);
    std::vector<std::string> all = {"esporta"};
    for (const QByteArray& word : words) {
        all.push_back(word.toStdString());
    }
    const Outcome outcome = ToolsDesk().Run(all);
    QVERIFY2(outcome.err.startsWith(says), outcome.err.constData());
    QTEST(outcome.status, "status");
    QCOMPARE(outcome.out, QByteArray());
}

ZELVIA_TEST(ExportTest)
#include "ExportTest.moc"
