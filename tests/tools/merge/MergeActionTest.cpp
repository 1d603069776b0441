// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/CalendarBytes.h"
#include "support/DiaryBytes.h"
#include "support/TestProgram.h"
#include "tools/strumenti/ToolsDesk.h"

#include <QTest>

#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <unistd.h>

using namespace zelvia;
using namespace zelvia::test;
namespace fs = std::filesystem;

class MergeActionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void NothingToMerge();
    void OneConflict();
    void Table();
    void Questions_data();
    void Questions();
    void WithoutATerminal();
    void LeftForLater();
    void TakenFromThere();
    void ARehearsal();
    void WithoutACopy();
    void ACopyThatIsDamaged();
    void SeveralConflicts();
    void AConflictThatEquals();
    void ConflictsThatStay_data();
    void ConflictsThatStay();
    void ADamagedDiaryHere();
    void TheOtherFiles();
    void NoPlaceForARoute();
    void TheDiaryThatOpensAtTheStart();
    void AnotherFolder();
    void WhatOnlyTheOtherFolderHas();
    void AFileFromElsewhere();
    void ADatedCopy();
    void Refused_data();
    void Refused();
    void AFolderThatCantBeWritten();
    void ALinkInThePlaceOfTheDiary();
};

namespace
{

constexpr const char* kDiary = "ZelviaFile/prova.zlv";
constexpr const char* kConflict = "ZelviaFile/prova.sync-conflict-20261101-101010-ABCDEFG.zlv";

/// Weights of days; 60 is 1 March 2026.
using Lines = std::vector<std::string>;
using Weights = std::vector<std::pair<int, int>>;

Text Diary(const Weights& weights, int year = 2026)
{
    DiaryBytes diary = DiaryBytes::Blank(year);
    for (const auto& [slot, weight] : weights) {
        diary.SetLine(slot, DiaryBytes::Weight, QByteArray::number(weight));
    }
    return diary.Bytes().toStdString();
}

/// A desk whose diary has a copy, and was changed on two computers since.
class Desk : public ToolsDesk
{
public:
    Desk(const Weights& base, const Weights& here, const Weights& there)
    {
        Write(kDiary, Diary(base));
        Run({"copie", "crea"});
        Write(kDiary, Diary(here));
        Write(kConflict, Diary(there));
    }

    bool Holds(const Weights& weights) const { return Read(kDiary) == Diary(weights); }
};

const Weights kBase{{60, 70}};
const Weights kHere{{60, 70}, {61, 71}, {62, 72}};
const Weights kThere{{60, 75}, {61, 74}};
/// Day 60 of there, 61 of here or there, 62 of here.
const Weights kHalf{{60, 75}, {61, 71}, {62, 72}};
const Weights kWhole{{60, 75}, {61, 74}, {62, 72}};

/// True when the newest copy holds the file.
bool NewestCopyHas(const ToolsDesk& desk, const std::string& file)
{
    fs::path newest;
    for (const fs::directory_entry& entry : fs::directory_iterator(desk.home.Native("stato/zelvia/copie"))) {
        newest = entry.is_directory() && entry.path().filename() > newest.filename() ? entry.path() : newest;
    }
    return fs::exists(newest / file);
}

} // namespace

void MergeActionTest::NothingToMerge()
{
    const ToolsDesk desk;
    const QByteArray before = desk.Everything();
    Outcome outcome = desk.Run({"unisci"});
    QCOMPARE(outcome.out, QByteArray("Non c'è niente da unire.\n"));
    QCOMPARE(outcome.err, QByteArray());
    QCOMPARE(outcome.status, 0);
    outcome = desk.Run({"unisci", "--tsv"});
    QCOMPARE(outcome.out, QByteArray("date\tfield\tbase\there\tthere\tstate\n"));
    QCOMPARE(desk.Everything(), before);
    QCOMPARE(desk.Copies(), 0);
}

void MergeActionTest::OneConflict()
{
    const Desk desk({{60, 70}}, {{60, 70}, {62, 72}}, {{60, 75}});
    const Outcome outcome = desk.Answer({"unisci"}, "s");
    QCOMPARE(outcome.err, QByteArray());
    QCOMPARE(outcome.out,
             QByteArray("ZelviaFile/prova.zlv e «ZelviaFile/prova.sync-conflict-20261101-101010-ABCDEFG.zlv»:\n"
                        "  domenica 1 marzo 2026: cambiato di là\n"
                        "    Peso: prima «70», qui «70», di là «75»\n"
                        "  cambiati soltanto qui, restano: 1\n"
                        "Da prendere: 1. Restano da decidere: 0.\n"
                        "Unire? (s/N) "
                        "Fatto. I file in conflitto sono nell'ultima copia di sicurezza.\n"));
    QCOMPARE(outcome.status, 0);
    QVERIFY(desk.Holds({{60, 75}, {62, 72}}));
    QVERIFY(!desk.Has(kConflict));
    QCOMPARE(desk.Copies(), 2);
    QVERIFY(NewestCopyHas(desk, kConflict));
    QCOMPARE(desk.Run({"unisci"}).out, QByteArray("Non c'è niente da unire.\n"));
}

void MergeActionTest::Table()
{
    const Desk desk(kBase, kHere, kThere);
    const Outcome outcome = desk.Run({"unisci", "--tsv", "--si"});
    QCOMPARE(outcome.out, QByteArray("date\tfield\tbase\there\tthere\tstate\n"
                                     "2026-03-01\tPeso\t70\t70\t75\tthere\n"
                                     "2026-03-02\tPeso\t\t71\t74\tboth\n"
                                     "2026-03-03\tPeso\t\t72\t\there\n"));
}

void MergeActionTest::Questions_data()
{
    QTest::addColumn<Lines>("lines");
    QTest::addColumn<int>("day61");
    QTest::addColumn<int>("day60");
    QTest::addColumn<int>("status");

    QTest::newRow("there") << Lines{"s", "s"} << 74 << 75 << 0;
    QTest::newRow("here") << Lines{"n", "sì"} << 71 << 75 << 0;
    QTest::newRow("nothing at all") << Lines{"s", "n"} << 71 << 70 << 1;
    QTest::newRow("end of the input") << Lines{} << 71 << 70 << 1;
}

void MergeActionTest::Questions()
{
    QFETCH(Lines, lines);
    QFETCH(int, day61);
    QFETCH(int, day60);
    QFETCH(int, status);
    const Desk desk(kBase, kHere, kThere);
    const Outcome outcome = desk.Answers({"unisci"}, lines);
    QVERIFY(outcome.out.contains("  lunedì 2 marzo 2026: cambiato qui e di là\n"
                                 "    Peso: prima niente, qui «71», di là «74»\n"
                                 "  Prendere quello di là? (s/N) "));
    QVERIFY(outcome.out.contains("Unire? (s/N) "));
    QCOMPARE(outcome.status, status);
    QVERIFY(desk.Holds({{60, day60}, {61, day61}, {62, 72}}));
    QCOMPARE(desk.Has(kConflict), status != 0);
}

void MergeActionTest::WithoutATerminal()
{
    const Desk desk(kBase, kHere, kThere);
    const QByteArray before = desk.Everything();
    const Outcome outcome = desk.Run({"unisci"});
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.err, QByteArray("Manca la conferma: niente è stato cambiato. Confermare da un terminale, o con "
                                     "--si.\n"));
    QCOMPARE(desk.Everything(), before);
}

void MergeActionTest::LeftForLater()
{
    const Desk desk(kBase, kHere, kThere);
    Outcome outcome = desk.Run({"unisci", "--si"});
    QCOMPARE(outcome.status, 1);
    QVERIFY(outcome.out.contains("Da prendere: 1. Restano da decidere: 1.\n"));
    QVERIFY(desk.Holds(kHalf));
    QVERIFY(desk.Has(kConflict));
    // The copy that was kept meanwhile is not taken for the base.
    outcome = desk.Answer({"unisci"}, "s");
    QCOMPARE(outcome.status, 0);
    QVERIFY(outcome.out.contains("  cambiati soltanto qui, restano: 1\n"));
    QVERIFY(desk.Holds(kWhole));
    QVERIFY(!desk.Has(kConflict));
}

void MergeActionTest::TakenFromThere()
{
    const Desk desk(kBase, kHere, kThere);
    QCOMPARE(desk.Run({"unisci", "--si", "--sovrascrivi"}).status, 0);
    QVERIFY(desk.Holds(kWhole));
    QVERIFY(!desk.Has(kConflict));
}

void MergeActionTest::ARehearsal()
{
    const Desk desk(kBase, kHere, kThere);
    const QByteArray before = desk.Everything();
    const Outcome outcome = desk.Answer({"unisci", "--prova"}, "s");
    QCOMPARE(outcome.status, 0);
    QVERIFY(outcome.out.endsWith("Da prendere: 1. Restano da decidere: 1.\nÈ una prova: niente è stato cambiato.\n"));
    QCOMPARE(desk.Everything(), before);
    QCOMPARE(desk.Copies(), 1);
}

void MergeActionTest::WithoutACopy()
{
    const Desk desk(kBase, kHere, kThere);
    fs::remove_all(desk.home.Native("stato"));
    QCOMPARE(desk.Run({"unisci", "--tsv", "--si"}).out, QByteArray("date\tfield\tbase\there\tthere\tstate\n"
                                                                   "2026-03-01\tPeso\t\t70\t75\tboth\n"
                                                                   "2026-03-02\tPeso\t\t71\t74\tboth\n"
                                                                   "2026-03-03\tPeso\t\t72\t\tboth\n"));
    QVERIFY(desk.Holds(kHere));
    QVERIFY(desk.Has(kConflict));
}

void MergeActionTest::ACopyThatIsDamaged()
{
    const Desk desk(kBase, kHere, kThere);
    for (const fs::directory_entry& entry : fs::directory_iterator(desk.home.Native("stato/zelvia/copie"))) {
        if (entry.is_directory()) {
            fs::resize_file(entry.path() / kDiary, 1000);
        }
    }
    QVERIFY(desk.Run({"unisci", "--tsv", "--si"}).out.contains("2026-03-01\tPeso\t\t70\t75\tboth\n"));
    QVERIFY(desk.Run({"unisci", "--si"}).out.endsWith("Restano da decidere: 3.\nNiente è stato cambiato.\n"));
    QVERIFY(desk.Holds(kHere));
}

void MergeActionTest::SeveralConflicts()
{
    const Desk desk({}, {{60, 70}}, {{61, 71}});
    desk.Write("ZelviaFile/prova (conflicted copy 2026-11-01).zlv", Diary({{61, 71}, {62, 72}}));
    desk.Write("ZelviaFile/prova-PC.zlv", Diary({{63, 73}}));
    QCOMPARE(desk.Run({"unisci", "--si"}).status, 0);
    QVERIFY(desk.Holds({{60, 70}, {61, 71}, {62, 72}, {63, 73}}));
    QVERIFY(!desk.Has("ZelviaFile/prova (conflicted copy 2026-11-01).zlv"));
    QVERIFY(!desk.Has("ZelviaFile/prova-PC.zlv"));
    QVERIFY(NewestCopyHas(desk, "ZelviaFile/prova-PC.zlv"));
}

void MergeActionTest::AConflictThatEquals()
{
    const Desk desk(kBase, kHere, kHere);
    const Outcome outcome = desk.Run({"unisci", "--si"});
    QCOMPARE(outcome.status, 0);
    QVERIFY(outcome.out.contains("  nessuna differenza\nDa prendere: 0. Restano da decidere: 0.\n"));
    QVERIFY(desk.Holds(kHere));
    QVERIFY(!desk.Has(kConflict));
}

void MergeActionTest::ConflictsThatStay_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("message");

    const QByteArray there = QByteArray::fromStdString(Diary({{61, 71}}));
    QTest::newRow("cut") << there.left(there.size() / 2) << QByteArray("è rovinato (riga ");
    QTest::newRow("empty") << QByteArray() << QByteArray("è rovinato (riga 1: ");
    QByteArray quoted = there;
    quoted.replace("\"\"\r\n", "\"a\"b\"\r\n");
    QTest::newRow("a quote in a note") << quoted << QByteArray("è rovinato (riga 3: ");
    QTest::newRow("too many lines") << there + "0\r\n" << QByteArray("è rovinato (riga 49777: ");
    QTest::newRow("of another year") << QByteArray::fromStdString(Diary({{61, 71}}, 2025))
                                     << QByteArray("è del 2025, e «ZelviaFile/prova.zlv» del 2026.\n");
}

void MergeActionTest::ConflictsThatStay()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, message);
    const Desk desk(kBase, kHere, kThere);
    desk.Write(kConflict, bytes.toStdString());
    desk.Write("ZelviaFile/prova-PC.zlv", Diary({{60, 70}, {63, 73}}));
    const Outcome outcome = desk.Run({"unisci", "--si"});
    QCOMPARE(outcome.status, 1);
    QVERIFY(
        outcome.err.startsWith("«ZelviaFile/prova.sync-conflict-20261101-101010-ABCDEFG.zlv» resta com'è: " + message));
    // The others are merged all the same.
    QVERIFY(desk.Holds({{60, 70}, {61, 71}, {62, 72}, {63, 73}}));
    QVERIFY(desk.Read(kConflict) == bytes.toStdString());
    QVERIFY(!desk.Has("ZelviaFile/prova-PC.zlv"));
}

void MergeActionTest::ADamagedDiaryHere()
{
    const Desk desk(kBase, kHere, kThere);
    fs::resize_file(desk.Native(kDiary), 1000);
    const QByteArray before = desk.Everything();
    const Outcome outcome = desk.Run({"unisci", "--si"});
    QCOMPARE(outcome.status, 1);
    QVERIFY(outcome.err.contains("resta com'è: prima va riparato «ZelviaFile/prova.zlv» (riga "));
    QCOMPARE(desk.Everything(), before);
}

void MergeActionTest::TheOtherFiles()
{
    const ToolsDesk desk;
    CalendarBytes calendar;
    calendar.SetRow(1, "3|5|2026|Corrida|Borgo|10");
    desk.Write("prova/CalendarioGare", calendar.Bytes().toStdString());
    desk.Write("prova/Tipo.lsx", "\"Gara\"\r\n");
    desk.Run({"copie", "crea"});
    const Text table = desk.Read("prova/Base 10 km.tab");
    CalendarBytes there = calendar;
    there.SetRow(2, "10|5|2026|Notturna|Riva|8");
    desk.Write("prova/CalendarioGare-PC", there.Bytes().toStdString());
    calendar.SetRow(2, "17|5|2026|Alba|Riva|8");
    desk.Write("prova/CalendarioGare", calendar.Bytes().toStdString());
    desk.Write("prova/Tipo.lsx", "\"Gara\"\r\n\"Prova\"\r\n");
    desk.Write("prova/Tipo (copia in conflitto di PC 2026-11-01).lsx", "\"Gara\"\r\n\"Passeggiata\"\r\n");
    Text changed = table;
    changed.replace(changed.find("\r\n") + 2, 1, "9");
    const std::string tableConflict = "prova/Base 10 km.sync-conflict-20261101-101010-ABCDEFG.tab";
    desk.Write(tableConflict, changed);
    desk.Write("prova/nometab.sync-conflict-20261101-101010-ABCDEFG", "\"C:\\altrove.tab\"\r\n");
    const Text pointer = desk.Read("prova/nometab");
    const Outcome outcome = desk.Run({"unisci", "--si", "--tsv"});
    QCOMPARE(outcome.status, 0);
    QVERIFY(outcome.out.contains("\tprova/Tipo.lsx, voce\t\tProva\t\there\n"));
    QVERIFY(outcome.out.contains("\tprova/Tipo.lsx, voce\t\t\tPasseggiata\tthere\n"));
    QVERIFY(outcome.out.contains("2026-05-10\tprova/CalendarioGare, riga 2, gara\t\t\tNotturna\tthere\n"));
    QVERIFY(outcome.out.contains("2026-05-17\tprova/CalendarioGare, riga 2, gara\t\tAlba\t\there\n"));
    QVERIFY(outcome.out.contains("\tprova/Base 10 km.tab\t\t\t\tthere\n"));
    calendar.SetRow(3, "10|5|2026|Notturna|Riva|8");
    QVERIFY(desk.Read("prova/CalendarioGare") == calendar.Bytes().toStdString());
    QCOMPARE(desk.Read("prova/Tipo.lsx"), "\"Gara\"\r\n\"Prova\"\r\n\"Passeggiata\"\r\n");
    QVERIFY(desk.Read("prova/Base 10 km.tab") == changed);
    QCOMPARE(desk.Read("prova/nometab"), pointer);
    for (const char* file : {"prova/CalendarioGare-PC", "prova/Tipo (copia in conflitto di PC 2026-11-01).lsx",
                             "prova/nometab.sync-conflict-20261101-101010-ABCDEFG"}) {
        QVERIFY(!desk.Has(file));
        QVERIFY(NewestCopyHas(desk, file));
    }
    QVERIFY(!desk.Has(tableConflict));
}

void MergeActionTest::NoPlaceForARoute()
{
    constexpr int lines = 62;
    const ToolsDesk desk;
    const auto routes = [](int count, const QByteArray& last) {
        QByteArray bytes;
        for (int i = 0; i < 200 * lines; ++i) {
            const int line = i % lines;
            const int place = i / lines + 1;
            const QByteArray name = place > count ? "" : place == 200 ? last : "R" + QByteArray::number(place);
            bytes += (line == 0 ? "\"" + name + "\"" : line > 1 && (line - 2) % 3 == 0 ? "\"\"" : "0") + "\r\n";
        }
        return bytes.toStdString();
    };
    desk.Write("prova/ListePercorso", routes(199, ""));
    desk.Run({"copie", "crea"});
    desk.Write("prova/ListePercorso", routes(200, "Qui"));
    desk.Write("prova/ListePercorso-PC", routes(200, "Altrove"));
    const Outcome outcome = desk.Run({"unisci", "--si"});
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.err, QByteArray("In «prova/ListePercorso» non c'è più posto per «Altrove», che resta di là.\n"));
    QVERIFY(desk.Read("prova/ListePercorso") == routes(200, "Qui"));
    QVERIFY(desk.Has("prova/ListePercorso-PC"));
}

void MergeActionTest::TheDiaryThatOpensAtTheStart()
{
    const Desk desk(kBase, kHere, kThere);
    desk.Write("nomeload", "\"" + SystemPath(desk.Native(kConflict)) + "\"\r\n");
    const Outcome outcome = desk.Run({"unisci", "--si"});
    QCOMPARE(outcome.err, QByteArray("«ZelviaFile/prova.sync-conflict-20261101-101010-ABCDEFG.zlv» è il diario che si "
                                     "apre all'avvio, e resta com'è.\n"));
    QCOMPARE(outcome.out, QByteArray("Non c'è niente da unire.\n"));
    QVERIFY(desk.Has(kConflict));
}

void MergeActionTest::AnotherFolder()
{
    const Desk desk(kBase, kHere, kThere);
    const std::string other = desk.home.Native("Altrove");
    fs::copy(desk.Native(), other, fs::copy_options::recursive);
    fs::remove(desk.Native(kConflict));
    fs::rename(other + "/" + kConflict, other + "/" + kDiary);
    desk.home.Write("Altrove/prova/nometab", "\"C:\\altrove.tab\"\r\n");
    const Text pointer = desk.Read("prova/nometab");
    const Outcome outcome = desk.Answers({"unisci", other}, {"n", "s"});
    QCOMPARE(outcome.err, QByteArray());
    QCOMPARE(outcome.status, 0);
    QVERIFY(outcome.out.startsWith(QByteArray::fromStdString("ZelviaFile/prova.zlv e «" + other + "/" + kDiary)));
    QVERIFY(outcome.out.endsWith("Unire? (s/N) Fatto.\n"));
    QVERIFY(desk.Holds(kHalf));
    QCOMPARE(desk.Read("prova/nometab"), pointer);
    // The other one stays as it is.
    QVERIFY(desk.home.Read(std::string("Altrove/") + kDiary) == Diary(kThere));
    // It is in use.
    const int lock = ::open((other + "/.zelvia.lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    QVERIFY(::flock(lock, LOCK_EX | LOCK_NB) == 0);
    QCOMPARE(desk.Run({"unisci", other, "--si"}).err,
             QByteArray::fromStdString("zelvia-strumenti: il diario di «" + other +
                                       "» è aperto: chiuderlo e riprovare.\nNiente è stato cambiato.\n"));
    ::close(lock);
}

void MergeActionTest::WhatOnlyTheOtherFolderHas()
{
    const Desk desk(kBase, kBase, kBase);
    const std::string other = desk.home.Native("Altrove");
    fs::remove(desk.Native(kConflict));
    fs::copy(desk.Native(), other, fs::copy_options::recursive);
    desk.home.Write("Altrove/ZelviaFile/2025.zlv", Diary({{60, 70}}, 2025));
    // A table that was deleted here is not brought back.
    fs::remove(desk.Native("prova/Base 10 km.tab"));
    const Outcome outcome = desk.Run({"unisci", other, "--si"});
    QCOMPARE(outcome.err, QByteArray());
    QCOMPARE(outcome.out, QByteArray("ZelviaFile/2025.zlv: c'è soltanto di là\n"
                                     "Da prendere: 1. Restano da decidere: 0.\nFatto.\n"));
    QVERIFY(desk.Read("ZelviaFile/2025.zlv") == Diary({{60, 70}}, 2025));
    QVERIFY(!desk.Has("prova/Base 10 km.tab"));
    // Of one diary alone.
    desk.home.Write("Altrove/ZelviaFile/2024.zlv", Diary({}, 2024));
    QCOMPARE(desk.Run({"unisci", other, "--diario", "prova", "--si"}).out, QByteArray("Non c'è niente da unire.\n"));
}

void MergeActionTest::AFileFromElsewhere()
{
    const Desk desk(kBase, kHere, kThere);
    fs::rename(desk.Native(kConflict), desk.home.Native("prova.zlv"));
    QCOMPARE(desk.Run({"unisci", desk.home.Native("prova.zlv"), "--si"}).status, 1);
    QVERIFY(desk.Holds(kHalf));
    // One of another name is a version of the present diary.
    desk.home.Write("portatile.zlv", Diary({{60, 70}, {64, 76}}));
    QCOMPARE(desk.Run({"unisci", desk.home.Native("portatile.zlv"), "--si"}).status, 0);
    QVERIFY(desk.Holds({{60, 75}, {61, 71}, {62, 72}, {64, 76}}));
    QVERIFY(desk.home.Has("portatile.zlv"));
}

void MergeActionTest::ADatedCopy()
{
    const Desk desk(kBase, kHere, kThere);
    fs::remove(desk.Native(kConflict));
    fs::path copy;
    for (const fs::directory_entry& entry : fs::directory_iterator(desk.home.Native("stato/zelvia/copie"))) {
        copy = entry.is_directory() ? entry.path() : copy;
    }
    // What has changed since it was taken has changed here.
    QCOMPARE(desk.Run({"unisci", copy.string(), "--tsv"}).out, QByteArray("date\tfield\tbase\there\tthere\tstate\n"
                                                                          "2026-03-02\tPeso\t\t71\t\there\n"
                                                                          "2026-03-03\tPeso\t\t72\t\there\n"));
    QVERIFY(desk.Holds(kHere));
}

void MergeActionTest::Refused_data()
{
    QTest::addColumn<QByteArray>("word");
    QTest::addColumn<QByteArray>("message");

    QTest::newRow("nothing there") << QByteArray("manca.zlv") << QByteArray("/manca.zlv» non c'è.\n");
    QTest::newRow("no diary") << QByteArray("a.txt")
                              << QByteArray("/a.txt» non è un diario («.zlv») né una cartella.\n");
    QTest::newRow("the folder itself") << QByteArray("Zelvia") << QByteArray("/Zelvia» è la cartella stessa.\n");
    QTest::newRow("the diary itself") << QByteArray("Zelvia/ZelviaFile/prova.zlv")
                                      << QByteArray("/prova.zlv» è il diario stesso.\n");
    QTest::newRow("a folder of no diary")
        << QByteArray("vuota") << QByteArray("/vuota» non ci sono diari di Zelvia.\n");
}

void MergeActionTest::Refused()
{
    QFETCH(QByteArray, word);
    QFETCH(QByteArray, message);
    const ToolsDesk desk;
    desk.home.Write("a.txt", "x");
    desk.home.MakeFolder("vuota");
    const QByteArray before = desk.Everything();
    const Outcome outcome = desk.Run({"unisci", desk.home.Native(word.toStdString()), "--si"});
    QCOMPARE(outcome.status, 1);
    QVERIFY(outcome.err.endsWith(message + "Niente è stato cambiato.\n"));
    QCOMPARE(desk.Everything(), before);
}

void MergeActionTest::AFolderThatCantBeWritten()
{
    const Desk desk(kBase, kHere, kThere);
    if (::geteuid() == 0) {
        // Permissions don't hold the superuser, who is refused the state folder instead.
        fs::remove_all(desk.home.Native("stato"));
        desk.home.Write("stato", "x");
    } else {
        fs::permissions(desk.Native(), fs::perms::owner_read | fs::perms::owner_exec);
    }
    const Outcome outcome = desk.Run({"unisci", "--si", "--sovrascrivi"});
    fs::permissions(desk.Native(), fs::perms::owner_all);
    QCOMPARE(outcome.status, 1);
    QVERIFY(outcome.err.endsWith("Niente è stato cambiato.\n"));
    QVERIFY(desk.Holds(kHere));
    QVERIFY(desk.Has(kConflict));
}

void MergeActionTest::ALinkInThePlaceOfTheDiary()
{
    const Desk desk(kBase, kHere, kThere);
    fs::rename(desk.Native(kDiary), desk.home.Native("fuori.zlv"));
    fs::create_symlink(desk.home.Native("fuori.zlv"), desk.Native(kDiary));
    const Outcome outcome = desk.Run({"unisci", "--si"});
    QCOMPARE(outcome.status, 1);
    QVERIFY(outcome.err.contains("» è un collegamento, che non viene seguito"));
    QVERIFY(desk.home.Read("fuori.zlv") == Diary(kHere));
    QVERIFY(desk.Has(kConflict));
}

ZELVIA_TEST(MergeActionTest)

#include "MergeActionTest.moc"
