// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Days of a copy, or a whole diary, put back into the folder itself.
#include "support/DiaryBytes.h"
#include "support/TestProgram.h"
#include "tools/copies/CopyStore.h"
#include "tools/strumenti/ToolsDesk.h"

#include <QTest>

#include <filesystem>

using namespace zelvia;
using namespace zelvia::test;
namespace fs = std::filesystem;

class PutBackTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatHasChanged();
    void days();
    void daysOfTheSecondPlace();
    void onlyShown();
    void asTheyAreAlready();
    void aWholeDiary();
    void wrongUse_data();
    void wrongUse();
    void whatCannotBe_data();
    void whatCannotBe();
    void aDayOfTwoDiaries();
    void besideADamagedDiary();
    void theFirstDayOfTheYear();
    void withoutTheSecondPlace();
};

namespace
{

constexpr char kSample[] = "ZelviaFile/prova.zlv";

/// The first note of the 40th day, 9 February 2026, and of the 60th, 1 March.
void Change(const ToolsDesk& desk, int slot, const QByteArray& note)
{
    DiaryBytes days(QByteArray::fromStdString(desk.Read(kSample)));
    // The first two lines of the notes are not on the page.
    days.SetLine(slot, DiaryBytes::Notes + 2, note);
    desk.Write(kSample, days.Bytes().toStdString());
}

/// A desk with a copy in which those two notes are "prima" and "poi", and now are others.
class ChangedDesk : public ToolsDesk
{
public:
    ChangedDesk()
    {
        Change(*this, 40, "\"prima\"");
        Change(*this, 60, "\"poi\"");
        Run({"copie", "crea"});
        Change(*this, 40, "\"altro\"");
        Change(*this, 60, "\"altro ancora\"");
    }
};

} // namespace

void PutBackTest::whatHasChanged()
{
    const ChangedDesk desk;
    fs::remove(desk.Native("prova/Modo.lsx"));
    desk.Write("prova/Nuova.tab", "x");
    const Outcome outcome = desk.Run({"copie", "confronta", "1", "--tsv"});
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.err, QByteArray());
    QCOMPARE(outcome.out, QByteArray("file\tdate\tfield\tcopy\tnow\n"
                                     "ZelviaFile/prova.zlv\t2026-02-09\tNote, riga 1\tprima\taltro\n"
                                     "ZelviaFile/prova.zlv\t2026-03-01\tNote, riga 1\tpoi\taltro ancora\n"
                                     "prova/Modo.lsx\t\t\t1\t\n"
                                     "prova/Nuova.tab\t\t\t\t1\n"));
}

void PutBackTest::days()
{
    QByteArray oneBack;
    QByteArray bothBack;
    {
        const ChangedDesk expected;
        Change(expected, 60, "\"poi\"");
        oneBack = expected.Everything();
        Change(expected, 40, "\"prima\"");
        bothBack = expected.Everything();
    }
    const ChangedDesk desk;
    const Outcome outcome = desk.Run({"copie", "rimetti", "1", "--giorno", "2026-03-01", "--si", "--tsv"});
    QCOMPARE(outcome.out, QByteArray("date\tfield\tbefore\tafter\n2026-03-01\tNote, riga 1\taltro ancora\tpoi\n"));
    QCOMPARE(outcome.err, QByteArray("Rimessi: 1. I giorni di prima sono nell'ultima copia di sicurezza.\n"));
    QCOMPARE(outcome.status, 0);
    QCOMPARE(desk.Everything(), oneBack);
    QCOMPARE(desk.Copies(), 2);
    QCOMPARE(desk.Run({"copie", "rimetti", "1", "--giorno", "2026-02-09", "2026-03-01", "--si"}).status, 0);
    QCOMPARE(desk.Everything(), bothBack);
}

void PutBackTest::daysOfTheSecondPlace()
{
    const ChangedDesk desk;
    const std::string stick = desk.home.Native("CHIAVETTA");
    fs::create_directory(stick);
    QCOMPARE(desk.Run({"copie", "rimetti", "1", "--giorno", "2026-03-01", "--da", stick, "--si"}).err,
             QByteArray("zelvia-strumenti: «") + QByteArray::fromStdString(stick) +
                 "/Zelvia-copie» non c'è: la chiavetta o la cartella è staccata.\nNiente è stato cambiato.\n");
    fs::rename(CopyFolder(), stick + "/Zelvia-copie");
    const Outcome outcome =
        desk.Run({"copie", "rimetti", "1", "--giorno", "2026-03-01", "--da", stick, "--si", "--tsv"});
    QCOMPARE(outcome.out, QByteArray("date\tfield\tbefore\tafter\n2026-03-01\tNote, riga 1\taltro ancora\tpoi\n"));
    QCOMPARE(outcome.status, 0);
    // The days of before are kept in the first place.
    QCOMPARE(desk.Copies(), 1);
}

void PutBackTest::onlyShown()
{
    const ChangedDesk desk;
    const QByteArray before = desk.Everything();
    QCOMPARE(desk.Run({"copie", "rimetti", "1", "--giorno", "2026-03-01", "--prova"}).status, 0);
    QCOMPARE(desk.Run({"copie", "rimetti", "1", "--intero", "--prova"}).status, 0);
    const Outcome refused = desk.Answer({"copie", "rimetti", "1", "--giorno", "2026-03-01"}, "no");
    QCOMPARE(refused.status, 1);
    QVERIFY(refused.out.contains("Rimettere questi giorni? (s/N) Niente è stato cambiato.\n"));
    QCOMPARE(desk.Run({"copie", "rimetti", "1", "--intero"}).status, 1);
    QCOMPARE(desk.Everything(), before);
    QCOMPARE(desk.Copies(), 1);
}

void PutBackTest::asTheyAreAlready()
{
    const ChangedDesk desk;
    Outcome outcome = desk.Run({"copie", "rimetti", "1", "--giorno", "2026-03-02", "--si"});
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.out, QByteArray("Questi giorni sono già come nella copia.\n"));
    QCOMPARE(desk.Copies(), 1);
    QCOMPARE(desk.Run({"copie", "rimetti", "1", "--intero", "--si"}).status, 0);
    outcome = desk.Run({"copie", "rimetti", "1", "--intero", "--si"});
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.out, QByteArray("Il diario «prova» è già come nella copia.\n"));
}

void PutBackTest::aWholeDiary()
{
    const QByteArray withoutChanges = [] {
        const ToolsDesk other;
        Change(other, 40, "\"prima\"");
        Change(other, 60, "\"poi\"");
        return QByteArray::fromStdString(other.Read(kSample));
    }();
    const ChangedDesk desk;
    QCOMPARE(desk.Run({"anno", "2027", "--si"}).status, 0);
    fs::remove(desk.Native("prova/Modo.lsx"));
    desk.Write("prova/Nuova.tab", "x");
    const Text other = desk.Read("ZelviaFile/2027.zlv");
    const Outcome outcome = desk.Run({"copie", "rimetti", "1", "--intero", "--diario", "prova", "--si"});
    QCOMPARE(outcome.err, QByteArray());
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.out,
             QByteArray("Il diario «prova» torna come nella copia 1:\n"
                        "  ZelviaFile/prova.zlv\n"
                        "  prova/Modo.lsx\n"
                        "Rimesso il diario «prova». I file di prima sono nell'ultima copia di sicurezza.\n"));
    QCOMPARE(QByteArray::fromStdString(desk.Read(kSample)), withoutChanges);
    QVERIFY(desk.Has("prova/Modo.lsx"));
    // What came later stays.
    QVERIFY(desk.Has("prova/Nuova.tab"));
    QCOMPARE(desk.Read("ZelviaFile/2027.zlv"), other);
}

void PutBackTest::wrongUse_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QByteArray>("reason");
    const auto row = [](const char* words, const char* reason) {
        QTest::newRow(words) << QString::fromUtf8(words).split(QLatin1Char(' ')) << QByteArray(reason);
    };
    row("rimetti 1 --giorno", "Per «copie» manca qualcosa.");
    row("rimetti --intero", "Per «copie» manca qualcosa.");
    row("rimetti 1 --intero altro", "Per «copie» «altro» è di troppo.");
    row("rimetti 1 --giorno --intero", "O --giorno o --intero.");
    row("rimetti uno --intero", "«uno» non è il numero di una copia.");
    row("rimetti 1 --giorno 2026-02-30", "«2026-02-30» non è un giorno, AAAA-MM-GG.");
    row("rimetti 1 --giorno ieri", "«ieri» non è un giorno, AAAA-MM-GG.");
    row("rimetti 1 --intero --altro", "Opzione sconosciuta: --altro");
}

void PutBackTest::wrongUse()
{
    QFETCH(QStringList, words);
    QFETCH(QByteArray, reason);
    const ChangedDesk desk;
    std::vector<std::string> command = {"copie"};
    for (const QString& word : words) {
        command.push_back(word.toStdString());
    }
    const Outcome outcome = desk.Run(command);
    QCOMPARE(outcome.status, 2);
    QCOMPARE(outcome.err.left(outcome.err.indexOf('\n')), reason);
}

void PutBackTest::whatCannotBe_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QByteArray>("reason");
    const auto row = [](const char* words, const char* reason) {
        QTest::newRow(words) << QString::fromUtf8(words).split(QLatin1Char(' ')) << QByteArray(reason);
    };
    row("rimetti 7 --intero", "la copia 7 non c'è; «zelvia-strumenti copie elenco» mostra quelle che ci sono");
    row("rimetti 1 --giorno 2025-03-01", "nella copia il giorno 01/03/2025 non c'è");
    row("rimetti 1 --intero --diario 2025", "nella copia 1 il diario «2025» non c'è");
    row("rimetti 1 --giorno 2026-03-01 --diario 2025", "nella copia 1 il diario «2025» non c'è");
}

void PutBackTest::whatCannotBe()
{
    QFETCH(QStringList, words);
    QFETCH(QByteArray, reason);
    const ChangedDesk desk;
    const QByteArray before = desk.Everything();
    std::vector<std::string> command = {"copie", "--si"};
    for (const QString& word : words) {
        command.push_back(word.toStdString());
    }
    const Outcome outcome = desk.Run(command);
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.err, "zelvia-strumenti: " + reason + ".\nNiente è stato cambiato.\n");
    QCOMPARE(desk.Everything(), before);
}

void PutBackTest::aDayOfTwoDiaries()
{
    const ToolsDesk desk;
    desk.Write("ZelviaFile/gemello.zlv", desk.Read(kSample));
    QCOMPARE(desk.Run({"copie", "crea"}).status, 0);
    Change(desk, 60, "\"altro\"");
    const Outcome outcome = desk.Run({"copie", "rimetti", "1", "--giorno", "2026-03-01", "--si"});
    QCOMPARE(outcome.status, 1);
    QVERIFY(outcome.err.contains(
        "nella copia il giorno 01/03/2026 è in più di un diario: indicare quale con --diario NOME"));
    QCOMPARE(desk.Run({"copie", "rimetti", "1", "--giorno", "2026-03-01", "--diario", "prova", "--si"}).status, 0);
    QCOMPARE(desk.Read(kSample), desk.Read("ZelviaFile/gemello.zlv"));
}

/// It keeps nothing from coming back but its own days.
void PutBackTest::besideADamagedDiary()
{
    const ChangedDesk desk;
    desk.Write("ZelviaFile/rotto.zlv", desk.Read(kSample).substr(0, 5000));
    QCOMPARE(desk.Run({"copie", "crea"}).status, 0);
    Change(desk, 60, "\"di nuovo\"");
    const QByteArray damage = "il diario «rotto» della copia non si legge per intero («";
    const std::vector<std::string> words = {"copie", "rimetti", "2", "--giorno", "2026-03-01", "--si", "--tsv"};
    Outcome outcome = desk.Run(words);
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.out, QByteArray("date\tfield\tbefore\tafter\n2026-03-01\tNote, riga 1\tdi nuovo\taltro ancora\n"));
    QVERIFY2(outcome.err.startsWith("Attenzione: " + damage), outcome.err.constData());
    // A day that no other has may be one of its own.
    for (const std::vector<std::string>& more :
         {std::vector<std::string>{"2025-03-01"}, {"2026-03-01", "--diario", "rotto"}}) {
        std::vector<std::string> own = {"copie", "rimetti", "2", "--si", "--giorno"};
        own.insert(own.end(), more.begin(), more.end());
        outcome = desk.Run(own);
        QCOMPARE(outcome.status, 1);
        QVERIFY2(outcome.err.startsWith("zelvia-strumenti: " + damage), outcome.err.constData());
    }
}

/// The last place of the common year before has the same date.
void PutBackTest::theFirstDayOfTheYear()
{
    const ToolsDesk desk;
    QCOMPARE(desk.Run({"anno", "2025", "--si"}).status, 0);
    Change(desk, 1, "\"prima\"");
    QCOMPARE(desk.Run({"copie", "crea"}).status, 0);
    Change(desk, 1, "\"poi\"");
    const Outcome outcome = desk.Run({"copie", "rimetti", "2", "--giorno", "2026-01-01", "--si", "--tsv"});
    QCOMPARE(outcome.out, QByteArray("date\tfield\tbefore\tafter\n2026-01-01\tNote, riga 1\tpoi\tprima\n"));
    QCOMPARE(outcome.status, 0);
}

/// The first copy is made all the same, which is not denied.
void PutBackTest::withoutTheSecondPlace()
{
    const ToolsDesk desk;
    const std::string stick = desk.home.Native("CHIAVETTA");
    fs::create_directory(stick);
    QCOMPARE(desk.Run({"copie", "secondo-posto", stick}).status, 0);
    fs::remove_all(stick);
    const Outcome outcome = desk.Run({"copie", "crea"});
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.out, QByteArray("Copia fatta.\n"));
    QCOMPARE(outcome.err, "La copia non è anche nel secondo posto: «" + QByteArray::fromStdString(stick) +
                              "/Zelvia-copie» non c'è: la chiavetta o la cartella è staccata.\n"
                              "Quelle di sempre ci sono tutte; riprovare quando sarà possibile.\n");
    QCOMPARE(desk.Copies(), 1);
}

ZELVIA_TEST(PutBackTest)

#include "PutBackTest.moc"
