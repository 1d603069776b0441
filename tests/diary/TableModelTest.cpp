// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/TableModel.h"

#include "core/Conversions.h"
#include "support/ModelFile.h"
#include "support/TestProgram.h"

#include <QTest>

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
using zelvia::test::TempFolder;

class TableModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void TheBlankTable();
    void ABlankTableIsWrittenLineByLine();
    void OnlyTheLastRowFilled();
    void ExtremeValuesComeBack();
    void RowZeroStaysOut();
    void RowNumbersAreTakenFromTheFile();
    void WritingReplacesTheFile();
    void CutAtEveryLine_data();
    void CutAtEveryLine() { kFile.ReadCut(); }
    void GarbledLine_data();
    void GarbledLine() { kFile.ReadGarbled(); }
    void ReadingFailsWithAReport_data();
    void ReadingFailsWithAReport();
    void WritingFailsWithAReport_data() { test::AddWriteFailures(); }
    void WritingFailsWithAReport();

private:
    static const ModelFile kFile;
    const TempFolder& folder_ = kFile.folder;
};

namespace
{

/// The 466 lines of the table in memory, by name.
FileLines TableLines()
{
    FileLines lines;
    for (int i = 1; i <= 31; ++i) {
        for (const std::string& line :
             {LineOf(TabGiorno[i]), LineOf(TabKm[i]), LineOf(TabMetri[i]), LineOf(TabOre[i]), LineOf(TabMinuti[i]),
              LineOf(TabSecondi[i]), LineOf(TabMediaMinuti[i]), LineOf(TabMediaSecondi[i]),
              LineOf(TabMediaMillesimi[i]), LineOf(TabAndatura[i]), LineOf(TabFondo[i]), LineOf(TabRipetVolte[i]),
              LineOf(TabRipetDistanza[i]), LineOf(TabRipetQuante[i]), LineOf(TabRipetTempi[i])}) {
            lines.push_back(line);
        }
    }
    lines.push_back(LineOf(TabDataInizio));
    return lines;
}

/// A file whose numbers are counted up and whose texts name their place.
FileLines CountedLines()
{
    FileLines lines;
    for (int row = 1; row <= 31; ++row) {
        for (int column = 1; column <= 15; ++column) {
            const std::string place = std::to_string(row * 100 + column);
            lines.push_back(column == 10 || column == 11 ? "\"riga, " + place + "\"" : place);
        }
    }
    lines.emplace_back("#2008-03-17#");
    return lines;
}

} // namespace

const ModelFile TableModelTest::kFile{.name = "una.tab",
                                      .memory = TableLines,
                                      .counted = CountedLines(),
                                      .read = [] { LeggiTabella(kFile.Path()); },
                                      .write = [] { ScriviTabella(kFile.Path()); },
                                      .isText = [](int line) { return line % 15 == 9 || line % 15 == 10; }};

void TableModelTest::init()
{
    TabGiorno[0] = 0;
    TabAndatura[0].clear();
    AzzeraTabella();
}

void TableModelTest::TheBlankTable()
{
    MessageScript boxes;
    for (int row = 0; row <= 31; ++row) {
        TabKm[row] = 5;
        TabRipetTempi[row] = 5;
        TabGiorno[row] = 5;
        TabAndatura[row] = "x";
        TabFondo[row] = "x";
    }
    TabDataInizio = CalendarDate(2020, 1, 1);
    AzzeraTabella();
    for (int row = 1; row <= 31; ++row) {
        QCOMPARE(int{TabGiorno[row].value()}, row);
        for (const auto* column :
             {&TabKm, &TabMetri, &TabOre, &TabMinuti, &TabSecondi, &TabMediaMinuti, &TabMediaSecondi,
              &TabMediaMillesimi, &TabRipetVolte, &TabRipetDistanza, &TabRipetQuante, &TabRipetTempi}) {
            QCOMPARE(int{(*column)[row].value()}, 0);
        }
        QVERIFY(TabAndatura[row].empty() && TabFondo[row].empty());
    }
    QCOMPARE(Bytes(PlainText(TabDataInizio)), QByteArray("01/01/2007"));
    QCOMPARE(RaisedBy([] { (void)TabKm[32]; }), 9);
    QCOMPARE(boxes.Shown(), 0);
    TabKm[0] = 0;
    TabRipetTempi[0] = 0;
    TabFondo[0].clear();
}

void TableModelTest::ABlankTableIsWrittenLineByLine()
{
    MessageScript boxes;
    std::string expected;
    for (int row = 1; row <= 31; ++row) {
        expected +=
            std::to_string(row) + "\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n\"\"\r\n\"\"\r\n0\r\n0\r\n0\r\n0\r\n";
    }
    expected += "#2007-01-01#\r\n";
    ScriviTabella(folder_.Path("vuota.tab"));
    const Text file = folder_.Read("vuota.tab");
    QCOMPARE(Difference(file, expected), QByteArray());
    QCOMPARE(std::count(file.begin(), file.end(), '\n'), std::ptrdiff_t{466});
    QCOMPARE(boxes.Shown(), 0);
}

void TableModelTest::OnlyTheLastRowFilled()
{
    MessageScript boxes;
    TabKm[31] = 42;
    TabMetri[31] = 195;
    TabAndatura[31] = "Media, poi  Veloce ";
    TabFondo[31] = "Citt\xE0";
    TabRipetDistanza[31] = 9999;
    TabDataInizio = CalendarDate(2008, 2, 29);
    kFile.ComesBack(AzzeraTabella);
    QVERIFY(TabKm[31] == 42);
    QCOMPARE(Bytes(TabAndatura[31]), QByteArray("Media, poi  Veloce "));
    QVERIFY(TabKm[30] == 0);
    QVERIFY(TabDataInizio == CalendarDate(2008, 2, 29));
    QCOMPARE(boxes.Shown(), 0);
}

void TableModelTest::ExtremeValuesComeBack()
{
    MessageScript boxes;
    for (int row = 1; row <= 31; ++row) {
        for (auto* column :
             {&TabGiorno, &TabKm, &TabMetri, &TabOre, &TabMinuti, &TabSecondi, &TabMediaMinuti, &TabMediaSecondi,
              &TabMediaMillesimi, &TabRipetVolte, &TabRipetDistanza, &TabRipetQuante, &TabRipetTempi}) {
            (*column)[row] = row % 2 == 0 ? 32767 : -32768;
        }
        for (int byte = 0; byte < 256; ++byte) {
            if (byte != '"') {
                TabAndatura[row] += static_cast<char>(byte);
            }
        }
        TabFondo[row] = Text(1000, ',');
    }
    TabDataInizio = CalendarDate(9999, 12, 31);
    kFile.ComesBack(AzzeraTabella);
}

void TableModelTest::RowZeroStaysOut()
{
    MessageScript boxes;
    TabGiorno[0] = 99;
    TabAndatura[0] = "riga zero";
    ScriviTabella(folder_.Path("zero.tab"));
    QVERIFY(!QByteArray(Bytes(folder_.Read("zero.tab"))).contains("riga zero"));
    QVERIFY(folder_.Read("zero.tab").starts_with("1\r\n"));
    LeggiTabella(folder_.Path("zero.tab"));
    AzzeraTabella();
    QVERIFY(TabGiorno[0] == 99);
    QCOMPARE(Bytes(TabAndatura[0]), QByteArray("riga zero"));
    QCOMPARE(boxes.Shown(), 0);
}

void TableModelTest::RowNumbersAreTakenFromTheFile()
{
    MessageScript boxes;
    folder_.Write("numeri.tab", Lines(CountedLines()));
    LeggiTabella(folder_.Path("numeri.tab"));
    QVERIFY(TabGiorno[1] == 101);
    QVERIFY(TabRipetTempi[31] == 3115);
    QVERIFY(TableLines() == CountedLines());
    QCOMPARE(boxes.Shown(), 0);
}

void TableModelTest::WritingReplacesTheFile()
{
    MessageScript boxes;
    folder_.Write("vecchia.tab", Text(100'000, 'x'));
    ScriviTabella(folder_.Path("vecchia.tab"));
    QCOMPARE(Difference(folder_.Read("vecchia.tab"), Lines(TableLines())), QByteArray());
}

void TableModelTest::CutAtEveryLine_data()
{
    QTest::addColumn<int>("kept");
    for (int kept = 0; kept <= 466; ++kept) {
        QTest::addRow("%d lines", kept) << kept;
    }
}

void TableModelTest::GarbledLine_data()
{
    ModelFile::AddGarbledColumns();
    for (const int line : {0, 1, 14, 15, 232, 464}) {
        kFile.AddGarbled(line, false);
    }
    QTest::newRow("the date, a number") << 465 << QByteArray("7") << 13;
    QTest::newRow("the date, no such day") << 465 << QByteArray("#2007-02-29#") << 13;
    QTest::newRow("the date, the other way round") << 465 << QByteArray("#17/03/2008#") << 13;
}

void TableModelTest::ReadingFailsWithAReport_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("error");
    QTest::newRow("missing file") << QByteArray("manca.tab") << 53;
    QTest::newRow("missing folder") << QByteArray("manca/x.tab") << 76;
    QTest::newRow("a folder") << QByteArray("cartella") << 75;
    QTest::newRow("an empty file") << QByteArray("nulla") << 62;
    QTest::newRow("no name at all") << QByteArray() << 76;
}

void TableModelTest::ReadingFailsWithAReport()
{
    QFETCH(QByteArray, name);
    QFETCH(int, error);
    folder_.MakeFolder("cartella");
    folder_.Write("nulla", "");
    TabKm[3] = 33;
    const FileLines before = TableLines();
    MessageScript boxes;
    boxes.ExpectError("ERRORE : ", error);
    LeggiTabella(name.isEmpty() ? Text() : folder_.Path(name.toStdString()));
    QVERIFY(boxes.AllShown());
    QVERIFY(TableLines() == before);
}

void TableModelTest::WritingFailsWithAReport()
{
    QFETCH(QByteArray, name);
    QFETCH(int, error);
    const Text path = test::MakeFailingFile(folder_, name);
    MessageScript boxes;
    boxes.ExpectError("ERRORE : ", error);
    ScriviTabella(path);
    QVERIFY(boxes.AllShown());
}

ZELVIA_TEST(TableModelTest)
#include "TableModelTest.moc"
