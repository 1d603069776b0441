// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/RouteModel.h"

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

class RouteModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void BlankRoutesAreWrittenLineByLine();
    void BlankingAllRoutes();
    void BlankingOneRoute();
    void BlankingOutOfBoundsIsReported_data();
    void BlankingOutOfBoundsIsReported();
    void PlaceZeroStaysOut();
    void ExtremeValuesComeBack();
    void CutAtEveryLineOfSomeRoutes_data();
    void CutAtEveryLineOfSomeRoutes() { kFile.ReadCut(); }
    void GarbledLine_data();
    void GarbledLine() { kFile.ReadGarbled(); }
    void FailuresAreReported_data() { test::AddFolderFailures(); }
    void FailuresAreReported();
    void AFullDiskIsReported() { kFile.WriteToFullDisk(); }

private:
    static const ModelFile kFile;
};

namespace
{

/// The 12,400 lines of the routes in memory, by name.
FileLines RouteLines()
{
    FileLines lines;
    for (int i = 1; i <= 200; ++i) {
        lines.push_back(LineOf(NomiPercorso[i]));
        lines.push_back(LineOf(DistanzePercorso[i]));
        for (int j = 1; j <= 20; ++j) {
            lines.push_back(LineOf(TrattoDescrizione[i][j]));
            lines.push_back(LineOf(TrattoKm[i][j]));
            lines.push_back(LineOf(TrattoMetri[i][j]));
        }
    }
    return lines;
}

bool IsText(int line)
{
    const int place = line % 62;
    return place == 0 || (place >= 2 && (place - 2) % 3 == 0);
}

FileLines CountedLines()
{
    FileLines lines;
    for (int line = 0; line < 12400; ++line) {
        lines.push_back(IsText(line) ? "\"tratto, " + std::to_string(line) + "\"" : std::to_string(line));
    }
    return lines;
}

std::string BlankRoutes()
{
    std::string text;
    for (int route = 1; route <= 200; ++route) {
        text += "\"\"\r\n0\r\n";
        for (int stretch = 1; stretch <= 20; ++stretch) {
            text += "\"\"\r\n0\r\n0\r\n";
        }
    }
    return text;
}

void FillRoute(int i)
{
    NomiPercorso[i] = "Lungofiume " + std::to_string(i);
    DistanzePercorso[i] = 20978;
    for (int j = 0; j <= 20; ++j) {
        TrattoDescrizione[i][j] = std::to_string(j) + "\xB0 tratto";
        TrattoKm[i][j] = j;
        TrattoMetri[i][j] = 999;
    }
}

/// The report of the reader names no number, but the file.
void ExpectRouteReport(MessageScript& boxes, int number)
{
    boxes.Expect("ERRORE : " + DescriptionOf(number) + " Liste Percorso");
}

} // namespace

const ModelFile RouteModelTest::kFile{.name = "ListePercorso",
                                      .memory = RouteLines,
                                      .counted = CountedLines(),
                                      .read = CaricaPercorsi,
                                      .write = SalvaPercorsi,
                                      .isText = IsText,
                                      .expectReadReport = ExpectRouteReport};

void RouteModelTest::init()
{
    AzzeraStato();
    CartellaDiario = kFile.folder.Path();
    AzzeraPercorsi();
}

void RouteModelTest::BlankRoutesAreWrittenLineByLine()
{
    MessageScript boxes;
    SalvaPercorsi();
    const Text file = kFile.Content();
    QCOMPARE(Difference(file, BlankRoutes()), QByteArray());
    QCOMPARE(std::count(file.begin(), file.end(), '\n'), std::ptrdiff_t{12400});
    QCOMPARE(boxes.Shown(), 0);
}

void RouteModelTest::BlankingAllRoutes()
{
    MessageScript boxes;
    for (int i = 0; i <= 200; ++i) {
        FillRoute(i);
    }
    AzzeraPercorsi();
    QCOMPARE(Difference(Lines(RouteLines()), BlankRoutes()), QByteArray());
    // What has no place takes no part: route 0 and stretch 0 keep what they hold.
    QCOMPARE(Bytes(NomiPercorso[0]), QByteArray("Lungofiume 0"));
    QCOMPARE(Bytes(TrattoDescrizione[7][0]), QByteArray("0\xB0 tratto"));
    QCOMPARE(boxes.Shown(), 0);
    AzzeraPercorso(0);
}

void RouteModelTest::BlankingOneRoute()
{
    MessageScript boxes;
    for (const int i : {1, 2, 3, 200}) {
        FillRoute(i);
    }
    AzzeraPercorso(2);
    QVERIFY(NomiPercorso[2].empty());
    QVERIFY(DistanzePercorso[2] == 0);
    for (int j = 1; j <= 20; ++j) {
        QVERIFY(TrattoDescrizione[2][j].empty() && TrattoKm[2][j] == 0 && TrattoMetri[2][j] == 0);
    }
    for (const int i : {1, 3, 200}) {
        QCOMPARE(Bytes(NomiPercorso[i]), "Lungofiume " + QByteArray::number(i));
        QVERIFY(DistanzePercorso[i] == 20978 && TrattoMetri[i][20] == 999);
    }
    AzzeraPercorso(200);
    QVERIFY(NomiPercorso[200].empty());
    QCOMPARE(boxes.Shown(), 0);
}

void RouteModelTest::BlankingOutOfBoundsIsReported_data()
{
    QTest::addColumn<int>("place");
    QTest::newRow("201") << 201;
    QTest::newRow("-1") << -1;
    QTest::newRow("32767") << 32767;
}

void RouteModelTest::BlankingOutOfBoundsIsReported()
{
    QFETCH(int, place);
    FillRoute(200);
    const FileLines before = RouteLines();
    MessageScript boxes;
    boxes.ExpectError("ERRORE : ", 9);
    AzzeraPercorso(place);
    QVERIFY(boxes.AllShown());
    QVERIFY(RouteLines() == before);
}

void RouteModelTest::PlaceZeroStaysOut()
{
    MessageScript boxes;
    FillRoute(0);
    SalvaPercorsi();
    QCOMPARE(Difference(kFile.Content(), BlankRoutes()), QByteArray());
    CaricaPercorsi();
    QCOMPARE(Bytes(NomiPercorso[0]), QByteArray("Lungofiume 0"));
    QCOMPARE(boxes.Shown(), 0);
    AzzeraPercorso(0);
}

void RouteModelTest::ExtremeValuesComeBack()
{
    MessageScript boxes;
    Text everyByte;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != '"') {
            everyByte += static_cast<char>(byte);
        }
    }
    constexpr int high = std::numeric_limits<int>::max();
    constexpr int low = std::numeric_limits<int>::min();
    for (int i = 1; i <= 200; ++i) {
        NomiPercorso[i] = i % 2 == 0 ? everyByte : Text();
        DistanzePercorso[i] = i % 2 == 0 ? high : low;
        for (int j = 1; j <= 20; ++j) {
            TrattoDescrizione[i][j] = j % 5 == 0 ? everyByte : Text(80, ',');
            TrattoKm[i][j] = j % 2 == 0 ? high : low;
            TrattoMetri[i][j] = j % 2 == 0 ? low : high;
        }
    }
    kFile.ComesBack(AzzeraPercorsi);
}

void RouteModelTest::CutAtEveryLineOfSomeRoutes_data()
{
    QTest::addColumn<int>("kept");
    for (const int route : {1, 200}) {
        for (int line = 0; line < 62; ++line) {
            QTest::addRow("%d lines", (route - 1) * 62 + line) << (route - 1) * 62 + line;
        }
    }
    QTest::newRow("whole") << 12400;
}

void RouteModelTest::GarbledLine_data()
{
    ModelFile::AddGarbledColumns();
    for (const int line : {0, 1, 2, 3, 4, 60, 61, 62, 63, 12397, 12398, 12399}) {
        kFile.AddGarbled(line, true);
    }
}

void RouteModelTest::FailuresAreReported()
{
    FillRoute(5);
    kFile.FailInFolder();
}

ZELVIA_TEST(RouteModelTest)
#include "RouteModelTest.moc"
