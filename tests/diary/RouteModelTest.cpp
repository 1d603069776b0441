// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/RouteModel.h"

#include "diary/Module1.h"
#include "support/Bytes.h"
#include "support/Days.h"
#include "support/FileFailures.h"
#include "support/MessageScript.h"
#include "support/TempFolder.h"
#include "support/TestProgram.h"

#include <QTest>

#include <limits>

using namespace zelvia;
using namespace zelvia::Module1;
using zelvia::test::Bytes;
using zelvia::test::Difference;
using zelvia::test::LineOf;
using zelvia::test::Lines;
using zelvia::test::MessageScript;
using zelvia::test::RaisedBy;
using zelvia::test::TempFolder;

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
    void CutAtEveryLineOfSomeRoutes();
    void GarbledLine_data();
    void GarbledLine();
    void FailuresAreReported_data() { test::AddFolderFailures(); }
    void FailuresAreReported();
    void AFullDiskIsReported();

private:
    TempFolder folder_;
};

namespace
{

/// The 12,400 lines of the routes in memory, by name.
std::vector<std::string> RouteLines()
{
    std::vector<std::string> lines;
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

bool IsWords(int line)
{
    const int place = line % 62;
    return place == 0 || (place >= 2 && (place - 2) % 3 == 0);
}

std::vector<std::string> CountedLines()
{
    std::vector<std::string> lines;
    for (int line = 0; line < 12400; ++line) {
        lines.push_back(IsWords(line) ? "\"tratto, " + std::to_string(line) + "\"" : std::to_string(line));
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
    boxes.Expect("ERRORE : " + DescriptionOf(number) + " Liste Percorso", MsgButtons::OK, MsgIcon::None);
}

} // namespace

void RouteModelTest::init()
{
    AzzeraStato();
    CartellaDiario = folder_.Path();
    AzzeraPercorsi();
}

void RouteModelTest::BlankRoutesAreWrittenLineByLine()
{
    MessageScript boxes;
    SalvaPercorsi();
    const Text file = folder_.Read("ListePercorso");
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
    const std::vector<std::string> before = RouteLines();
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
    QCOMPARE(Difference(folder_.Read("ListePercorso"), BlankRoutes()), QByteArray());
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
    const std::vector<std::string> lines = RouteLines();
    SalvaPercorsi();
    QCOMPARE(Difference(folder_.Read("ListePercorso"), Lines(lines)), QByteArray());
    AzzeraPercorsi();
    CaricaPercorsi();
    QVERIFY(RouteLines() == lines);
    QCOMPARE(boxes.Shown(), 0);
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

void RouteModelTest::CutAtEveryLineOfSomeRoutes()
{
    QFETCH(int, kept);
    const std::vector<std::string> filed = CountedLines();
    std::vector<std::string> expected = RouteLines();
    std::copy(filed.begin(), filed.begin() + kept, expected.begin());
    folder_.Write("ListePercorso", Lines({filed.begin(), filed.begin() + kept}));
    MessageScript boxes;
    if (kept < 12400) {
        ExpectRouteReport(boxes, 62);
    }
    CaricaPercorsi();
    QVERIFY(boxes.AllShown());
    QCOMPARE(Difference(Lines(RouteLines()), Lines(expected)), QByteArray());
}

void RouteModelTest::GarbledLine_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<QByteArray>("garbage");
    QTest::addColumn<int>("error"); // 0 where the line passes silently.
    for (const int line : {0, 1, 2, 3, 4, 60, 61, 62, 63, 12397, 12398, 12399}) {
        const bool words = IsWords(line);
        QTest::addRow("line %d, text", line + 1) << line << QByteArray("xyz") << (words ? 0 : 13);
        QTest::addRow("line %d, quoted", line + 1) << line << QByteArray("\"7\"") << (words ? 0 : 13);
        QTest::addRow("line %d, empty", line + 1) << line << QByteArray() << (words ? 0 : 13);
        QTest::addRow("line %d, 99999", line + 1) << line << QByteArray("99999") << 0;
        QTest::addRow("line %d, 2147483648", line + 1) << line << QByteArray("2147483648") << (words ? 0 : 6);
    }
}

void RouteModelTest::GarbledLine()
{
    QFETCH(int, line);
    QFETCH(QByteArray, garbage);
    QFETCH(int, error);
    std::vector<std::string> filed = CountedLines();
    filed[static_cast<std::size_t>(line)] = garbage.toStdString();
    folder_.Write("ListePercorso", Lines(filed));
    std::vector<std::string> expected = filed;
    if (error != 0) {
        expected = RouteLines();
        std::copy(filed.begin(), filed.begin() + line, expected.begin());
    } else if (IsWords(line)) {
        expected[static_cast<std::size_t>(line)] = LineOf(test::TextOf(QByteArray(garbage).replace("\"", "")));
    }
    MessageScript boxes;
    if (error != 0) {
        ExpectRouteReport(boxes, error);
    }
    CaricaPercorsi();
    QVERIFY(boxes.AllShown());
    QCOMPARE(Difference(Lines(RouteLines()), Lines(expected)), QByteArray());
}

void RouteModelTest::FailuresAreReported()
{
    QFETCH(QByteArray, folder);
    QFETCH(int, reading);
    QFETCH(int, writing);
    const TempFolder temp;
    CartellaDiario = test::MakeFailingFolder(temp, folder, "ListePercorso");
    FillRoute(5);
    const std::vector<std::string> before = RouteLines();
    MessageScript boxes;
    ExpectRouteReport(boxes, reading);
    CaricaPercorsi();
    QVERIFY(boxes.AllShown());
    QVERIFY(RouteLines() == before);
    if (writing != 0) {
        boxes.ExpectError("ERRORE : ", writing);
    }
    SalvaPercorsi();
    QVERIFY(boxes.AllShown());
}

void RouteModelTest::AFullDiskIsReported()
{
    const TempFolder temp;
    std::filesystem::create_symlink("/dev/full", temp.Native("ListePercorso"));
    CartellaDiario = temp.Path();
    MessageScript boxes;
    boxes.ExpectError("ERRORE : ", 61);
    SalvaPercorsi();
    QVERIFY(boxes.AllShown());
}

ZELVIA_TEST(RouteModelTest)
#include "RouteModelTest.moc"
