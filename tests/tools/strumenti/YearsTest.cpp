// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/Bytes.h"
#include "support/DiaryBytes.h"
#include "support/TestProgram.h"
#include "tools/strumenti/ToolsDesk.h"

#include <QTest>

#include <filesystem>

using namespace zelvia;
using namespace zelvia::test;

class YearsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EveryDiary();
    void OneThatCantBeRead();
    void ConflictCopiesAreNoDiaries();
};

void YearsTest::EveryDiary()
{
    const ToolsDesk desk;
    std::filesystem::remove(desk.Native("ZelviaFile/prova.zlv"));
    // A race and two runs of 7.5, 10 and 0.55 km; kilometres alone are no run, nor is a type of blanks.
    DiaryBytes diary = DiaryBytes::Blank(2024);
    diary.SetLine(1, DiaryBytes::Kind, "\" gara \"");
    diary.SetLine(1, DiaryBytes::Km, "7");
    diary.SetLine(1, DiaryBytes::Metres, "500");
    diary.SetLine(60, DiaryBytes::Kind, "\"Allenamento\"");
    diary.SetLine(60, DiaryBytes::Km, "10");
    diary.SetLine(366, DiaryBytes::Kind, "\"Altro\"");
    diary.SetLine(366, DiaryBytes::Metres, "550");
    diary.SetLine(100, DiaryBytes::Km, "3");
    diary.SetLine(101, DiaryBytes::Kind, "\"  \"");
    diary.SetLine(102, DiaryBytes::Km, "-5");
    // A day that was looked at in another year does not make the diary one of it.
    diary.SetLine(103, DiaryBytes::Stamp, "#2026-04-12#");
    desk.Write("ZelviaFile/2024.zlv", TextOf(diary.Bytes()));
    std::filesystem::create_directory(desk.Native("ZelviaFile/vecchi"));
    desk.Write("ZelviaFile/vecchi/2007.zlv", TextOf(DiaryBytes::Blank(2007).Bytes()));
    desk.Write("ZelviaFile/appunti.txt", "x");
    desk.home.Write("fuori.zlv", TextOf(diary.Bytes()));
    std::filesystem::create_symlink(desk.home.Native("fuori.zlv"), desk.Native("ZelviaFile/fuori.zlv"));
    Outcome outcome = desk.Run({"anni", "--tsv"});
    QCOMPARE(outcome.err, QByteArray());
    QCOMPARE(outcome.out, QByteArray("diary\tyear\truns\tkm\traces\n"
                                     "2024\t2024\t3\t21.050\t1\n"
                                     "vecchi/2007\t2007\t0\t0.000\t0\n"));
    QCOMPARE(outcome.status, 0);
    outcome = desk.Run({"anni"});
    QCOMPARE(outcome.out, QByteArray("Diario       Anno  Uscite      Km  Gare\n"
                                     "2024         2024       3  21.050     1\n"
                                     "vecchi/2007  2007       0   0.000     0\n"));
}

void YearsTest::OneThatCantBeRead()
{
    const ToolsDesk desk;
    desk.Write("ZelviaFile/2024.zlv", "x\r\n");
    desk.Write("ZelviaFile/prova.zlv", TextOf(DiaryBytes::Blank(2026).Bytes()));
    const Outcome outcome = desk.Run({"anni", "--tsv"});
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.out, QByteArray("diary\tyear\truns\tkm\traces\nprova\t2026\t0\t0.000\t0\n"));
    QCOMPARE(outcome.err,
             QByteArray("il diario «2024» non si legge per intero («**ERRORE : 13 Tipo non corrispondente»): "
                        "«zelvia-strumenti controlla» dice dove\n"));
}

void YearsTest::ConflictCopiesAreNoDiaries()
{
    const ToolsDesk desk;
    const std::string conflict = "prova.sync-conflict-20261101-101010-ABCDEFG";
    const Text diary = TextOf(DiaryBytes::Blank(2026).Bytes());
    desk.Write("ZelviaFile/prova.zlv", diary);
    desk.Write("ZelviaFile/" + conflict + ".zlv", diary);
    const QByteArray head = "diary\tyear\truns\tkm\traces\n";
    const QByteArray original = "prova\t2026\t0\t0.000\t0\n";
    QCOMPARE(desk.Run({"anni", "--tsv"}).out, head + original);
    // One that is worked on is listed all the same.
    const QByteArray both = head + QByteArray::fromStdString(conflict) + "\t2026\t0\t0.000\t0\n" + original;
    QCOMPARE(desk.Run({"--diario", conflict, "anni", "--tsv"}).out, both);
    desk.Write("nomeload", "\"" + desk.home.Path("Zelvia/ZelviaFile/" + conflict + ".zlv") + "\"\r\n");
    QCOMPARE(desk.Run({"anni", "--tsv"}).out, both);
}

ZELVIA_TEST(YearsTest)

#include "YearsTest.moc"
