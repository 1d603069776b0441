// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/DiaryBytes.h"
#include "support/TestProgram.h"
#include "tools/book/BookDesk.h"

#include <QTest>

#include <filesystem>

using namespace zelvia;
using namespace zelvia::test;
namespace fs = std::filesystem;

class BookCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Writes();
    void AFileThatIsThere();
    void Faults_data();
    void Faults();
    void EmptyAndDamagedYears();
};

namespace
{

std::vector<std::string> Words(const BookDesk& desk, const std::vector<std::string>& more = {})
{
    std::vector<std::string> words = {
        "libro", "--diario", "2023", "--formato", "html", "-o", desk.home.Native("libro")};
    words.insert(words.end(), more.begin(), more.end());
    return words;
}

} // namespace

void BookCommandTest::Writes()
{
    const BookDesk desk;
    const QByteArray before = desk.Everything();
    const Outcome rehearsal = desk.Run(Words(desk, {"--prova"}));
    QCOMPARE(rehearsal.out, "Si scriverebbe «" + QByteArray::fromStdString(desk.home.Native("libro")) +
                                "».\nÈ una prova: niente è stato cambiato.\n");
    QCOMPARE(rehearsal.status, 0);
    QVERIFY(!desk.home.Has("libro"));
    const Outcome outcome = desk.Run(Words(desk));
    QCOMPARE(outcome.out, QByteArray());
    QVERIFY(outcome.err.startsWith("Il calendario delle gare non si legge per intero («"));
    QCOMPARE(outcome.status, 0);
    QVERIFY(Bytes(desk.home.Read("libro")).endsWith("</html>\n"));
    QCOMPARE(desk.Everything(), before);
    // What a printer's shop or a browser of another user can read, too.
    QCOMPARE(fs::status(desk.home.Native("libro")).permissions(), fs::perms{0644});
}

/// Replaced only when the runner says so, and --si alone does not say it.
void BookCommandTest::AFileThatIsThere()
{
    const BookDesk desk;
    desk.home.Write("libro", "mio");
    for (const std::vector<std::string>& more : {std::vector<std::string>{}, {"--si"}}) {
        const Outcome refused = desk.Run(Words(desk, more));
        QCOMPARE(refused.status, 1);
        QCOMPARE(refused.err, "zelvia-strumenti: «" + QByteArray::fromStdString(desk.home.Native("libro")) +
                                  "» c'è già; lo sostituisce --sovrascrivi.\nNiente è stato cambiato.\n");
    }
    const Outcome asked = desk.Answer(Words(desk), "n");
    QCOMPARE(asked.status, 1);
    QCOMPARE(asked.out, "C'è già «" + QByteArray::fromStdString(desk.home.Native("libro")) + "». Sostituirlo? (s/N) ");
    QCOMPARE(Bytes(desk.home.Read("libro")), QByteArray("mio"));
    QCOMPARE(desk.Answer(Words(desk), "s").status, 0);
    QVERIFY(Bytes(desk.home.Read("libro")).startsWith("<!DOCTYPE html>"));
    desk.home.Write("libro", "mio");
    QCOMPARE(desk.Run(Words(desk, {"--sovrascrivi"})).status, 0);
    QVERIFY(Bytes(desk.home.Read("libro")).startsWith("<!DOCTYPE html>"));
}

void BookCommandTest::Faults_data()
{
    QTest::addColumn<QByteArrayList>("words");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("says");
    const auto row = [](const char* name, const QByteArrayList& words, int status, const char* says) {
        QTest::newRow(name) << words << status << QByteArray(says);
    };
    row("no format", {"-o", "x"}, 2, "Manca --formato.\n");
    row("unknown format", {"--formato", "a3", "-o", "x"}, 2, "«a3» non è un formato: a4, a5 o html.\n");
    row("no file", {"--formato", "a5"}, 2, "Manca -o FILE.\n");
    row("a word too many", {"--formato", "a5", "-o", "x", "y"}, 2, "Per «libro» «y» è di troppo.\n");
    row("no such diary", {"--formato", "a5", "-o", "x", "--diario", "1999"}, 1,
        "zelvia-strumenti: il diario «1999» non c'è");
    row("no such folder", {"--formato", "html", "-o", "/non/c/e"}, 1,
        "zelvia-strumenti: la cartella «/non/c» non c'è.\n");
    row("a folder", {"--formato", "html", "-o", "/"}, 1, "zelvia-strumenti: «/» c'è già e non è un file.\n");
    row("no program for the pages", {"--formato", "a5", "-o", "/tmp/zelvia-mai"}, 1,
        "zelvia-strumenti: manca il programma che disegna le pagine («");
}

void BookCommandTest::Faults()
{
    QFETCH(QByteArrayList, words);
    QFETCH(QByteArray, says);
    std::vector<std::string> all = {"libro"};
    for (const QByteArray& word : words) {
        all.push_back(word.toStdString());
    }
    const BookDesk desk;
    const QByteArray before = desk.Everything();
    const Outcome outcome = desk.Run(all);
    QVERIFY2(outcome.err.startsWith(says), outcome.err.constData());
    QTEST(outcome.status, "status");
    QCOMPARE(outcome.out, QByteArray());
    QCOMPARE(desk.Everything(), before);
    QVERIFY(!fs::exists("/tmp/zelvia-mai"));
}

void BookCommandTest::EmptyAndDamagedYears()
{
    const BookDesk desk;
    DiaryBytes diary = DiaryBytes::Blank(2023);
    diary.SetLine(366, DiaryBytes::Km, "99");
    desk.Write("ZelviaFile/2023.zlv", diary.Bytes().toStdString());
    QCOMPARE(desk.Run(Words(desk)).err,
             QByteArray("zelvia-strumenti: nel diario «2023» non è scritto nessun giorno: il libro sarebbe vuoto.\n"
                        "Niente è stato cambiato.\n"));
    diary.SetLine(7, DiaryBytes::Km, "\"sette\"");
    desk.Write("ZelviaFile/2023.zlv", diary.Bytes().toStdString());
    const Outcome damaged = desk.Run(Words(desk));
    QCOMPARE(damaged.status, 1);
    QVERIFY2(damaged.err.startsWith("zelvia-strumenti: il diario «2023» non si legge per intero («"),
             damaged.err.constData());
    QVERIFY(!desk.home.Has("libro"));
}

ZELVIA_TEST(BookCommandTest)
#include "BookCommandTest.moc"
