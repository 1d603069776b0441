// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/CommandLine.h"

#include "support/TestProgram.h"

#include <QTest>

#include <vector>

using namespace zelvia;

namespace
{

/// What becomes of a command line whose words a "|" ends: its parts, or the reason for its refusal.
QByteArray Read(const QByteArray& typed)
{
    QByteArrayList words = typed.split('|');
    words.removeLast();
    std::vector<const char*> pointers;
    for (const QByteArray& word : words) {
        pointers.push_back(word.constData());
    }
    try {
        const CommandLine line = ReadCommandLine(pointers);
        const Text today = line.today ? Format(*line.today, "dddd dd/mm/yyyy") : "-";
        return QByteArray::fromStdString((line.help ? "help, " : "") + today + ", " +
                                         (line.diary ? *line.diary + " in " : "") + line.folder.value_or("-"));
    } catch (const WrongUsage& wrong) {
        return QByteArray::fromStdString(wrong.reason);
    }
}

} // namespace

class CommandLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lines_data();
    void lines();
    void wrongDays_data();
    void wrongDays();
};

void CommandLineTest::lines_data()
{
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<QByteArray>("read");
    const auto row = [](const char* name, const char* typed, const char* read) {
        QTest::newRow(name) << QByteArray(typed) << QByteArray(read);
    };
    row("nothing", "", "-, -");
    row("a folder", "diari di Anna|", "-, diari di Anna");
    row("a day", "--oggi|2026-11-22|", "domenica 22/11/2026, -");
    row("29 February", "--oggi|2028-02-29|", "marted\xEC 29/02/2028, -");
    row("the day after it", "--oggi|2028-03-01|", "mercoled\xEC 01/03/2028, -");
    row("a folder before the day", "Zelvia|--oggi|2027-01-01|", "venerd\xEC 01/01/2027, Zelvia");
    row("the later of two days", "--oggi|2027-01-01|--oggi|2027-01-02|", "sabato 02/01/2027, -");
    row("help", "--help|", "help, -, -");
    row("help about a good line", "--help|--oggi|2027-01-01|Zelvia|", "help, venerd\xEC 01/01/2027, Zelvia");
    row("a folder that looks like an option", "--|--oggi|", "-, --oggi");
    row("a day, then such a folder", "--oggi|2027-01-01|--|-d|", "venerd\xEC 01/01/2027, -d");

    row("a diary", "--diario|2025|", "-, 2025 in -");
    row("a diary of a folder", "--diario|vecchi/2020|Zelvia|", "-, vecchi/2020 in Zelvia");
    row("a day and a diary", "--oggi|2027-01-01|--diario|2025|", "venerd\xEC 01/01/2027, 2025 in -");
    row("no diary", "--diario|", "Dopo --diario ci vuole il NOME di un diario.");
    row("an empty diary", "--diario||", "Dopo --diario ci vuole il NOME di un diario.");

    row("an unknown option", "--prova|", "Opzione sconosciuta: --prova");
    row("an unknown letter", "-h|", "Opzione sconosciuta: -h");
    row("help about a bad line", "--help|--prova|", "Opzione sconosciuta: --prova");
    row("two folders", "a|b|", "Si può indicare una sola CARTELLA.");
    row("two folders behind the mark", "--|a|--|", "Si può indicare una sola CARTELLA.");
    row("an empty folder", "|", "Zelvia non può stare in «»: il nome della cartella è vuoto.");
}

void CommandLineTest::lines()
{
    QFETCH(QByteArray, typed);
    QTEST(Read(typed), "read");
}

void CommandLineTest::wrongDays_data()
{
    QTest::addColumn<QByteArray>("day");
    for (const char* day : {"2027-02-29",  "2100-02-29",  "2026-11-31", "2026-13-01", "2026-00-10",
                            "2026-10-00",  "0099-01-01",  "22/11/2026", "2026-1-01",  "2026-01-1",
                            "026-01-01",   "12026-01-01", "2026 -1-01", "2026- 1-01", "-026-01-01",
                            "2026-01-01 ", "2026/01/01",  "20260101",   "oggi",       ""}) {
        QTest::newRow(day) << QByteArray(day);
    }
}

void CommandLineTest::wrongDays()
{
    QFETCH(QByteArray, day);
    const QByteArray refusal = "Dopo --oggi ci vuole un giorno, AAAA-MM-GG: «" + day + "» non lo è.";
    QCOMPARE(Read("--oggi|" + day + "|"), refusal);
    if (day.isEmpty()) {
        QCOMPARE(Read("--oggi|"), refusal);
    }
}

ZELVIA_TEST(CommandLineTest)
#include "CommandLineTest.moc"
