// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/TestProgram.h"
#include "tools/strumenti/Actions.h"
#include "tools/strumenti/ToolsDesk.h"

#include <QRegularExpression>
#include <QStringList>
#include <QTest>

#include <fcntl.h>
#include <filesystem>
#include <sstream>
#include <sys/file.h>
#include <unistd.h>

using namespace zelvia;
using namespace zelvia::test;

class CommandLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void WrongUse_data();
    void WrongUse();
    void HelpNamesEveryAction();
    void FoldersThatWontDo();
    void ADiaryInUse();
    void TheProgramOpensWhileTheToolsAsk_data();
    void TheProgramOpensWhileTheToolsAsk();
    void CopiesForPrograms();
    void CopiesAreOnlyShown();
};

namespace
{

std::vector<std::string> Words(const char* line)
{
    std::vector<std::string> words;
    for (const QString& word : QString::fromUtf8(line).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        words.push_back(word.toStdString());
    }
    return words;
}

} // namespace

void CommandLineTest::WrongUse_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("reason");
    const auto row = [](const char* line, const char* reason) {
        QTest::newRow(line) << QByteArray(line) << QByteArray(reason);
    };
    row("", "Manca l'AZIONE.");
    row("--tsv", "Manca l'AZIONE.");
    row("anno2", "Azione sconosciuta: anno2");
    row("--nuova anni", "Opzione sconosciuta: --nuova");
    row("anni --nuova", "Opzione sconosciuta: --nuova");
    row("anni -x", "Opzione sconosciuta: -x");
    row("anni 2026", "Per «anni» «2026» è di troppo.");
    row("anni --cartella", "Dopo --cartella manca la CARTELLA.");
    row("anni --diario", "Dopo --diario manca il NOME.");
    row("anni --diario ../prova", "«../prova» non è il nome di un diario.");
    row("anni --diario /prova", "«/prova» non è il nome di un diario.");
    row("anni --diario vecchi/", "«vecchi/» non è il nome di un diario.");
    row("copie", "Manca il COMANDO.");
    row("copie mostra", "Comando sconosciuto: mostra");
    row("copie confronta uno", "«uno» non è il numero di una copia.");
}

void CommandLineTest::WrongUse()
{
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, reason);
    const ToolsDesk desk;
    const Outcome outcome = desk.Run(Words(line.constData()));
    QCOMPARE(outcome.status, 2);
    QCOMPARE(outcome.out, QByteArray());
    QCOMPARE(outcome.err.left(outcome.err.indexOf('\n')), reason);
    QVERIFY(outcome.err.contains("\nUso: zelvia-strumenti [OPZIONI] AZIONE ...\n"));
}

void CommandLineTest::HelpNamesEveryAction()
{
    const ToolsDesk desk;
    const Outcome outcome = desk.Run({"--help"});
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.err, QByteArray());
    for (const Action& action : Actions()) {
        QVERIFY2(outcome.out.contains("\n  " + Bytes(action.name) + ' '), action.name.data());
    }
    for (const QByteArray& line : outcome.out.split('\n')) {
        QVERIFY2(QString::fromUtf8(line).size() <= 80, line.constData());
    }
}

void CommandLineTest::FoldersThatWontDo()
{
    const ToolsDesk desk;
    const QByteArray home = QByteArray::fromStdString(desk.home.Native());
    Outcome outcome = desk.Run({"--cartella", desk.home.Native("altra"), "anni"});
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.err, QByteArray("zelvia-strumenti: «" + home +
                                     "/altra» non c'è; la cartella di Zelvia si indica con --cartella.\n"
                                     "Niente è stato cambiato.\n"));
    outcome = desk.Run({"--cartella", desk.home.Native(), "anni"});
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.err, QByteArray("zelvia-strumenti: in «" + home +
                                     "» non ci sono diari di Zelvia (manca la cartella «ZelviaFile»); la cartella si "
                                     "indica con --cartella.\nNiente è stato cambiato.\n"));
    std::filesystem::rename(desk.Native("ZelviaFile"), desk.home.Native("altrove"));
    std::filesystem::create_symlink(desk.home.Native("altrove"), desk.Native("ZelviaFile"));
    outcome = desk.Run({"anni"});
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.err, QByteArray("zelvia-strumenti: «" + home +
                                     "/Zelvia/ZelviaFile» è un collegamento, che non viene seguito: al suo posto ci "
                                     "vuole il file o la cartella.\nNiente è stato cambiato.\n"));
}

void CommandLineTest::ADiaryInUse()
{
    const ToolsDesk desk;
    const int file = open(desk.Native(".zelvia.lock").c_str(), O_RDWR | O_CREAT, 0600);
    QVERIFY(file >= 0 && flock(file, LOCK_EX) == 0);
    const Outcome outcome = desk.Run({"anni"});
    close(file);
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.out, QByteArray());
    QCOMPARE(outcome.err, QByteArray("zelvia-strumenti: il diario di «" + QByteArray::fromStdString(desk.Native()) +
                                     "» è aperto, o ci lavora un altro comando: chiuderlo e riprovare.\n"
                                     "Niente è stato cambiato.\n"));
    QCOMPARE(desk.Run({"anni"}).status, 0);
}

void CommandLineTest::TheProgramOpensWhileTheToolsAsk_data()
{
    QTest::addColumn<bool>("changes");
    QTest::addColumn<bool>("stays");
    QTest::addColumn<QByteArray>("reason");
    QTest::addRow("only opened") << false << false << QByteArray();
    QTest::addRow("saved") << true << false
                           << QByteArray("il diario è cambiato mentre si aspettava la risposta: riprovare.");
    QTest::addRow("still open") << false << true
                                << QByteArray("» è aperto, o ci lavora un altro comando: chiuderlo e riprovare.");
}

void CommandLineTest::TheProgramOpensWhileTheToolsAsk()
{
    QFETCH(bool, changes);
    QFETCH(bool, stays);
    QFETCH(QByteArray, reason);
    const ToolsDesk desk;
    std::ostringstream out;
    std::ostringstream err;
    int lock = -1;
    Terminal terminal{out, err, [&]() -> std::optional<std::string> {
                          lock = open(desk.Native(".zelvia.lock").c_str(), O_RDWR | O_CREAT, 0600);
                          if (flock(lock, LOCK_EX | LOCK_NB) != 0) {
                              return std::nullopt;
                          }
                          if (changes) {
                              desk.Write("prova/Tipo.lsx", "\"Lungo\"\r\n");
                          }
                          if (!stays) {
                              close(lock);
                          }
                          return "s";
                      }};
    const int status = RunTools({"anno", "2027"}, terminal);
    QCOMPARE(status, reason.isEmpty() ? 0 : 1);
    QCOMPARE(desk.Has("ZelviaFile/2027.zlv"), reason.isEmpty());
    QCOMPARE(QByteArray::fromStdString(err.str()).endsWith(reason + "\nNiente è stato cambiato.\n"), !reason.isEmpty());
    if (stays) {
        close(lock);
    }
}

void CommandLineTest::CopiesForPrograms()
{
    const ToolsDesk desk;
    QCOMPARE(desk.Run({"copie", "elenco"}).out, QByteArray("Non ci sono copie.\n"));
    QCOMPARE(desk.Run({"copie", "--tsv", "elenco"}).out, QByteArray("number\ttime\tdiaries\tbytes\n"));
    const Outcome made = desk.Run({"--tsv", "copie", "crea"});
    QCOMPARE(made.out, QByteArray());
    QCOMPARE(made.err, QByteArray("Copia fatta.\n"));
    QCOMPARE(desk.Run({"copie", "crea"}).out, QByteArray("Niente è cambiato dall'ultima copia.\n"));
    // The files copied and the note of their origin, which is not counted.
    std::uintmax_t bytes = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(desk.Native())) {
        bytes += entry.is_regular_file() ? entry.file_size() : 0;
    }
    const QList<QByteArray> lines = desk.Run({"copie", "elenco", "--tsv"}).out.split('\n');
    QCOMPARE(lines.size(), 3);
    const QList<QByteArray> cells = lines[1].split('\t');
    QCOMPARE(cells.size(), 4);
    QCOMPARE(cells[0], QByteArray("1"));
    QVERIFY(QRegularExpression(QStringLiteral("^\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d$"))
                .match(QString::fromUtf8(cells[1]))
                .hasMatch());
    QCOMPARE(cells[2], QByteArray("1"));
    QCOMPARE(cells[3], QByteArray::number(static_cast<qulonglong>(bytes)));
}

void CommandLineTest::CopiesAreOnlyShown()
{
    const ToolsDesk desk;
    const Outcome shown = desk.Run({"copie", "crea", "--prova"});
    QCOMPARE(shown.status, 0);
    QCOMPARE(shown.out, QByteArray("Si farebbe una copia di «" + QByteArray::fromStdString(desk.Native()) +
                                   "», se qualcosa è cambiato.\n"));
    QCOMPARE(desk.Copies(), 0);
}

ZELVIA_TEST(CommandLineTest)

#include "CommandLineTest.moc"
