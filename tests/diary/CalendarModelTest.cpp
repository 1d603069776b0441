// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/CalendarModel.h"

#include "support/ModelFile.h"
#include "support/TestProgram.h"

#include <QTest>

#include <limits>

using namespace zelvia;
using namespace zelvia::Module1;
using zelvia::test::Bytes;
using zelvia::test::Difference;
using zelvia::test::FileLines;
using zelvia::test::LineOf;
using zelvia::test::Lines;
using zelvia::test::MessageScript;
using zelvia::test::ModelFile;
using zelvia::test::RaisedBy;

class CalendarModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void TheBlankCalendar();
    void ABlankCalendarIsWrittenLineByLine();
    void ARaceKeepsItsRow();
    void ATimeTakesThreeLines();
    void RowNumbersAreTakenFromTheFile();
    void ExtremeValuesComeBack();
    void CutAtEveryLineOfSomeRows_data();
    void CutAtEveryLineOfSomeRows() { kFile.ReadCut(); }
    void GarbledLine_data();
    void GarbledLine() { kFile.ReadGarbled(); }
    void AQuoteInANameEndsInTheReport();
    void FailuresAreReported_data() { test::AddFolderFailures(); }
    void FailuresAreReported() { kFile.FailInFolder(); }
    void AFullDiskIsReported() { kFile.WriteToFullDisk(); }
    void WritingReplacesTheFile();

private:
    static const ModelFile kFile;
};

namespace
{

/// The 1,500 lines of the calendar in memory, by name.
FileLines CalendarLines()
{
    FileLines lines;
    for (int i = 1; i <= 100; ++i) {
        for (const std::string& line :
             {LineOf(NumeroGara[i]), LineOf(GiornoGara[i]), LineOf(MeseGara[i]), LineOf(AnnoGara[i]), LineOf(Gara[i]),
              LineOf(Localita[i]), LineOf(KmGara[i]), LineOf(MetriGara[i]), LineOf(Partecipanti[i]),
              LineOf(Risultato[i]), LineOf(OreGara[i]), LineOf(MinutiGara[i]), LineOf(SecondiGara[i]),
              LineOf(Categoria[i]), LineOf(RisultatoCat[i])}) {
            lines.push_back(line);
        }
    }
    return lines;
}

bool IsText(int line)
{
    const int column = line % 15 + 1;
    return column == 5 || column == 6 || column == 14;
}

FileLines CountedLines()
{
    FileLines lines;
    for (int row = 1; row <= 100; ++row) {
        for (int column = 1; column <= 15; ++column) {
            const std::string place = std::to_string(row * 100 + column);
            lines.push_back(IsText((row - 1) * 15 + column - 1) ? "\"posto " + place + "\"" : place);
        }
    }
    return lines;
}

std::string BlankCalendar()
{
    std::string text;
    for (int row = 1; row <= 100; ++row) {
        text +=
            std::to_string(row) + "\r\n0\r\n0\r\n0\r\n\"\"\r\n\"\"\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n\"\"\r\n0\r\n";
    }
    return text;
}

} // namespace

const ModelFile CalendarModelTest::kFile{.name = "CalendarioGare",
                                         .memory = CalendarLines,
                                         .counted = CountedLines(),
                                         .read = LeggiCalendario,
                                         .write = ScriviCalendario,
                                         .isText = IsText};

void CalendarModelTest::init()
{
    AzzeraStato();
    CartellaDiario = kFile.folder.Path();
    AzzeraCalendario();
}

void CalendarModelTest::TheBlankCalendar()
{
    MessageScript boxes;
    for (int row = 0; row <= 100; ++row) {
        NumeroGara[row] = 5;
        GiornoGara[row] = 5;
        Gara[row] = "x";
        Categoria[row] = "x";
        RisultatoCat[row] = 5;
    }
    AzzeraCalendario();
    QCOMPARE(Difference(Lines(CalendarLines()), BlankCalendar()), QByteArray());
    QCOMPARE(Bytes(Gara[0]), QByteArray("x"));
    QVERIFY(GiornoGara[0] == 5);
    QCOMPARE(RaisedBy([] { (void)GiornoGara[101]; }), 9);
    QCOMPARE(boxes.Shown(), 0);
}

void CalendarModelTest::ABlankCalendarIsWrittenLineByLine()
{
    MessageScript boxes;
    ScriviCalendario();
    const Text file = kFile.Content();
    QCOMPARE(Difference(file, BlankCalendar()), QByteArray());
    QCOMPARE(std::count(file.begin(), file.end(), '\n'), std::ptrdiff_t{1500});
    QCOMPARE(boxes.Shown(), 0);
}

void CalendarModelTest::ARaceKeepsItsRow()
{
    MessageScript boxes;
    GiornoGara[57] = 29;
    MeseGara[57] = 2;
    AnnoGara[57] = 2008;
    Gara[57] = "Corrida, seconda prova";
    Localita[57] = "Citt\xE0";
    Partecipanti[57] = 40000;
    QCOMPARE(CalendarLines().size(), std::size_t{1500});
    kFile.ComesBack(AzzeraCalendario);
    QVERIFY(GiornoGara[57] == 29);
    QVERIFY(GiornoGara[56] == 0 && GiornoGara[58] == 0);
    QCOMPARE(Bytes(Gara[57]), QByteArray("Corrida, seconda prova"));
    QCOMPARE(Partecipanti[57].value(), 40000);
    QCOMPARE(boxes.Shown(), 0);
}

void CalendarModelTest::ATimeTakesThreeLines()
{
    MessageScript boxes;
    OreGara[1] = 1;
    MinutiGara[1] = 5;
    SecondiGara[1] = 0;
    ScriviCalendario();
    const QByteArrayList lines = Bytes(kFile.Content()).split('\n');
    QCOMPARE(lines.mid(10, 3), (QByteArrayList{"1\r", "5\r", "0\r"}));
}

void CalendarModelTest::RowNumbersAreTakenFromTheFile()
{
    MessageScript boxes;
    kFile.Put(CountedLines());
    LeggiCalendario();
    QVERIFY(NumeroGara[1] == 101);
    QVERIFY(NumeroGara[100] == 10001);
    QVERIFY(CalendarLines() == CountedLines());
    ScriviCalendario();
    QCOMPARE(Difference(kFile.Content(), Lines(CountedLines())), QByteArray());
    QCOMPARE(boxes.Shown(), 0);
}

void CalendarModelTest::ExtremeValuesComeBack()
{
    MessageScript boxes;
    for (int row = 1; row <= 100; ++row) {
        const bool high = row % 2 == 0;
        for (auto* column : {&NumeroGara, &GiornoGara, &MeseGara, &AnnoGara, &KmGara, &MetriGara, &OreGara, &MinutiGara,
                             &SecondiGara}) {
            (*column)[row] = high ? 32767 : -32768;
        }
        for (auto* column : {&Partecipanti, &Risultato, &RisultatoCat}) {
            (*column)[row] = high ? std::numeric_limits<int>::max() : std::numeric_limits<int>::min();
        }
        for (auto* column : {&Gara, &Localita, &Categoria}) {
            for (int byte = 0; byte < 256; ++byte) {
                if (byte != '"') {
                    (*column)[row] += static_cast<char>(byte);
                }
            }
        }
    }
    kFile.ComesBack(AzzeraCalendario);
}

void CalendarModelTest::CutAtEveryLineOfSomeRows_data()
{
    QTest::addColumn<int>("kept");
    for (const int row : {1, 2, 57, 100}) {
        for (int line = 0; line < 15; ++line) {
            QTest::addRow("%d lines", (row - 1) * 15 + line) << (row - 1) * 15 + line;
        }
    }
    QTest::newRow("whole") << 1500;
}

void CalendarModelTest::GarbledLine_data()
{
    ModelFile::AddGarbledColumns();
    for (int column = 1; column <= 15; ++column) {
        kFile.AddGarbled(49 * 15 + column - 1, column == 9 || column == 10 || column == 15);
    }
}

void CalendarModelTest::AQuoteInANameEndsInTheReport()
{
    Gara[3] = "la \"lunga\" gara";
    Localita[3] = "Pino";
    ScriviCalendario();
    AzzeraCalendario();
    MessageScript boxes;
    boxes.ExpectError("ERRORE : ", 13);
    LeggiCalendario();
    QVERIFY(boxes.AllShown());
    QCOMPARE(Bytes(Gara[3]), QByteArray("la "));
    QCOMPARE(Bytes(Localita[3]), QByteArray("lunga\" gara\""));
    QVERIFY(KmGara[3] == 0);
}

void CalendarModelTest::WritingReplacesTheFile()
{
    MessageScript boxes;
    kFile.folder.Write(kFile.name, Text(100'000, 'x'));
    ScriviCalendario();
    QCOMPARE(Difference(kFile.Content(), BlankCalendar()), QByteArray());
    QCOMPARE(boxes.Shown(), 0);
}

ZELVIA_TEST(CalendarModelTest)
#include "CalendarModelTest.moc"
