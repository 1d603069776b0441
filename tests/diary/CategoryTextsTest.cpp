// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/CategoryTexts.h"

#include "support/Bytes.h"
#include "support/TestProgram.h"

#include <QTest>

#include <random>

using namespace zelvia;
using zelvia::test::Bytes;
using zelvia::test::RaisedBy;
using zelvia::test::TextOf;

class CategoryTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Distances_data();
    void Distances();
    void Repetitions_data();
    void Repetitions();
    void Pieces_data();
    void Pieces();
    void Errors_data();
    void Errors();
    void WhatIsBuiltIsTakenApart();
};

namespace
{

RecordGiorno Distance(int km, int metri)
{
    RecordGiorno giorno;
    giorno.Km = km;
    giorno.Metri = metri;
    return giorno;
}

RecordGiorno Repeated(int volte, int distanza, int quante, int tempi)
{
    RecordGiorno giorno;
    giorno.Ripetizioni = volte;
    giorno.RipetizioniDistanza = distanza;
    giorno.RipetizioniQuante = quante;
    giorno.RipetizioniTempi = tempi;
    return giorno;
}

using Part = i16 (*)(TextView);

struct NamedPiece {
    const char* name;
    Part piece;
};

constexpr NamedPiece kPieces[] = {{"Km", KmPart},          {"Metri", MetresPart},
                                  {"Volte", TimesPart},    {"Distanza", DistancePart},
                                  {"Quante", MinutesPart}, {"Tempi", SecondsPart}};

Part PieceOf(const QByteArray& name)
{
    for (const NamedPiece& piece : kPieces) {
        if (name == piece.name) {
            return piece.piece;
        }
    }
    qFatal("no piece %s", name.constData());
}

} // namespace

void CategoryTextsTest::Distances_data()
{
    QTest::addColumn<int>("km");
    QTest::addColumn<int>("metri");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("metres are not padded") << 7 << 50 << QByteArray(" 7,50");
    QTest::newRow("and three digits differ") << 7 << 500 << QByteArray(" 7,500");
    QTest::newRow("one digit of metres") << 7 << 5 << QByteArray(" 7,5");
    QTest::newRow("no metres") << 7 << 0 << QByteArray(" 7,0");
    QTest::newRow("no kilometres") << 0 << 400 << QByteArray(" 0,400");
    QTest::newRow("nine") << 9 << 990 << QByteArray(" 9,990");
    QTest::newRow("ten") << 10 << 0 << QByteArray("10,0");
    QTest::newRow("twelve, no metres") << 12 << 0 << QByteArray("12,0");
    QTest::newRow("three digits") << 100 << 1 << QByteArray("100,1");
    QTest::newRow("the widest") << 32767 << 32767 << QByteArray("32767,32767");
    QTest::newRow("negative, the sign in the blank's place") << -5 << -50 << QByteArray("-5,-50");
}

void CategoryTextsTest::Distances()
{
    QFETCH(int, km);
    QFETCH(int, metri);
    QTEST(Bytes(KmText(Distance(km, metri))), "text");
}

void CategoryTextsTest::Repetitions_data()
{
    QTest::addColumn<QList<int>>("numbers");
    QTest::addColumn<QByteArray>("text");
    const auto row = [](const char* name, const QList<int>& numbers, const char* text) {
        QTest::newRow(name) << numbers << QByteArray(text);
    };
    row("many and long", {10, 1000, 4, 5}, "10 x 1000 @ 4:5");
    row("many and short", {10, 999, 4, 5}, "10 x 999  @ 4:5");
    row("few and long", {9, 1000, 4, 5}, " 9 x 1000 @ 4:5");
    row("few and short", {9, 999, 4, 5}, " 9 x 999  @ 4:5");
    row("once, nothing else", {1, 0, 0, 0}, " 1 x 0  @ 0:0");
    row("the most that can be entered", {99, 10000, 60, 59}, "99 x 10000 @ 60:59");
    row("two digits of a distance", {3, 80, 0, 15}, " 3 x 80  @ 0:15");
}

void CategoryTextsTest::Repetitions()
{
    QFETCH(QList<int>, numbers);
    QTEST(Bytes(RepetitionsText(Repeated(numbers[0], numbers[1], numbers[2], numbers[3]))), "text");
}

void CategoryTextsTest::Pieces_data()
{
    QTest::addColumn<QByteArray>("piece");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("number");
    const auto row = [](const char* piece, const char* text, int number) {
        QTest::addRow("%s of \"%s\"", piece, text) << QByteArray(piece) << QByteArray(text) << number;
    };
    row("Km", " 7,500", 7);
    row("Km", "12,0", 12);
    row("Km", "12", 0); // without its mark
    row("Km", "", 0);
    row("Km", ",5", 0);
    row("Km", "1,2,3", 1); // before the first
    row("Km", "-5,-50", -5);
    row("Metri", " 7,500", 500);
    row("Metri", " 7,50", 50);
    row("Metri", " 7,0", 0);
    row("Metri", "12", 12); // the whole text
    row("Metri", "", 0);
    row("Metri", "1,2,3", 2); // to the end, where the number stops at the comma
    row("Metri", "-5,-50", -50);
    row("Volte", " 5 x 1000 @ 4:30", 5);
    row("Volte", "10 x 400  @ 1:20", 10);
    row("Volte", "10", 0);
    row("Volte", "", 0);
    row("Volte", "3 x 4 x 5 @ 6:7", 3); // before the first
    row("Volte", "1 0 x 4", 10);        // blanks between digits are skipped
    row("Distanza", " 5 x 1000 @ 4:30", 1000);
    row("Distanza", "10 x 400  @ 1:20", 400);
    row("Distanza", "3 x 4 x 5 @ 6 @ 7:8", 5); // from the last x; the number stops at the first @
    row("Distanza", "x@", 0);
    row("Distanza", "x1@2", 1);
    row("Quante", " 5 x 1000 @ 4:30", 4);
    row("Quante", "1 @ 2 @ 3:4:5", 3); // from the last @; the number stops at the first colon
    row("Quante", "@:", 0);
    row("Tempi", " 5 x 1000 @ 4:30", 30);
    row("Tempi", "10 x 400  @ 1:5", 5);
    row("Tempi", "1:2:3", 3); // after the last
    row("Tempi", "17", 17);   // the whole text
    row("Tempi", "Giro", 0);
    row("Tempi", "", 0);
    row("Tempi", "4:2.5", 2); // rounded to the even one
    row("Tempi", "4:3.5", 4);
}

void CategoryTextsTest::Pieces()
{
    QFETCH(QByteArray, piece);
    QFETCH(QByteArray, text);
    QTEST(int{PieceOf(piece)(TextOf(text)).value()}, "number");
}

void CategoryTextsTest::Errors_data()
{
    QTest::addColumn<QByteArray>("piece");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("number");
    const auto row = [](const char* piece, const char* text, int number) {
        QTest::addRow("%s of \"%s\"", piece, text) << QByteArray(piece) << QByteArray(text) << number;
    };
    row("Distanza", "", 5);
    row("Distanza", "1000 @ 4:30", 5);  // no x: a start at 0
    row("Distanza", "5 x 1000", 5);     // no @: a negative length
    row("Distanza", "4:30 @ 5 x 9", 5); // in the wrong order
    row("Quante", "", 5);
    row("Quante", "5 x 1000 4:30", 5);
    row("Quante", "5 x 1000 @ 430", 5);
    row("Quante", "4:30 @ 5", 5);
    row("Km", "32768,0", 6);
    row("Metri", "1,-32769", 6);
    row("Volte", "40000 x 1000 @ 4:30", 6);
    row("Distanza", "5 x 32768 @ 4:30", 6);
    row("Quante", "5 x 1000 @ 99999:30", 6);
    row("Tempi", "5 x 1000 @ 4:32767.5", 6);
}

void CategoryTextsTest::Errors()
{
    QFETCH(QByteArray, piece);
    QFETCH(QByteArray, text);
    const int raised = RaisedBy([&] { (void)PieceOf(piece)(TextOf(text)); });
    QTEST(raised, "number");
}

void CategoryTextsTest::WhatIsBuiltIsTakenApart()
{
    std::mt19937 engine(20260522);
    const auto any = [&](int highest) { return static_cast<int>(engine() % static_cast<unsigned>(highest + 1)); };
    constexpr int rounds = 20000;
    for (int i = 0; i < rounds; ++i) {
        const int highest = i % 2 == 0 ? 99 : 32767;
        const RecordGiorno run = Distance(any(highest), any(highest));
        const Text km = KmText(run);
        QVERIFY2(KmPart(km) == run.Km && MetresPart(km) == run.Metri, km.c_str());
        const RecordGiorno day = Repeated(any(highest), any(32767), any(highest), any(highest));
        const Text text = RepetitionsText(day);
        QVERIFY2(TimesPart(text) == day.Ripetizioni && DistancePart(text) == day.RipetizioniDistanza &&
                     MinutesPart(text) == day.RipetizioniQuante && SecondsPart(text) == day.RipetizioniTempi,
                 text.c_str());
    }
}

ZELVIA_TEST(CategoryTextsTest)
#include "CategoryTextsTest.moc"
