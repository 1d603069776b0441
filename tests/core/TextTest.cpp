// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Text.h"

#include "core/Conversions.h"
#include "support/Bytes.h"
#include "support/TestProgram.h"

#include <QTest>

#include <array>
#include <utility>

using namespace zelvia;
using namespace zelvia::test;

class TextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void MidTakesWhatIsThere_data();
    void MidTakesWhatIsThere();
    void LeftAndRight_data();
    void LeftAndRight();
    void InStrCountsFromOne_data();
    void InStrCountsFromOne();
    void TrimRemovesBlanksOnly_data();
    void TrimRemovesBlanksOnly();
    void CaseOfEveryPairOfBytes();
    void TextCompareOrders_data();
    void TextCompareOrders();
    void EveryByteGoesThroughUtf8AndBack();
    void Utf8OfTheSpecialBytes_data();
    void Utf8OfTheSpecialBytes();
    void ForeignCharactersBecomeQuestionMarks_data();
    void ForeignCharactersBecomeQuestionMarks();
    void LiteralsAreConverted();
};

void TextTest::MidTakesWhatIsThere_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("length");
    QTest::addColumn<QByteArray>("part");
    QTest::addColumn<int>("error");
    QTest::newRow("first") << 1 << 1 << QByteArray("1") << 0;
    QTest::newRow("middle") << 3 << 2 << QByteArray("05") << 0;
    QTest::newRow("past the end") << 6 << 9 << QByteArray("30") << 0;
    QTest::newRow("starting behind the end") << 8 << 2 << QByteArray() << 0;
    QTest::newRow("nothing") << 2 << 0 << QByteArray() << 0;
    QTest::newRow("start 0") << 0 << 1 << QByteArray() << 5;
    QTest::newRow("start -1") << -1 << 1 << QByteArray() << 5;
    QTest::newRow("length -1") << 1 << -1 << QByteArray() << 5;
}

void TextTest::MidTakesWhatIsThere()
{
    QFETCH(int, start);
    QFETCH(int, length);
    QFETCH(QByteArray, part);
    QFETCH(int, error);
    Text taken;
    QCOMPARE(RaisedBy([&] { taken = Mid("1:05:30", start, length); }), error);
    QCOMPARE(Bytes(taken), part);
}

void TextTest::LeftAndRight_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<QByteArray>("left");
    QTest::addColumn<QByteArray>("right");
    QTest::addColumn<int>("error");
    QTest::newRow("0") << 0 << QByteArray() << QByteArray() << 0;
    QTest::newRow("2") << 2 << QByteArray("Ga") << QByteArray("ra") << 0;
    QTest::newRow("all") << 4 << QByteArray("Gara") << QByteArray("Gara") << 0;
    QTest::newRow("more") << 99 << QByteArray("Gara") << QByteArray("Gara") << 0;
    QTest::newRow("-1") << -1 << QByteArray() << QByteArray() << 5;
}

void TextTest::LeftAndRight()
{
    QFETCH(int, length);
    QFETCH(QByteArray, left);
    QFETCH(QByteArray, right);
    QFETCH(int, error);
    Text taken;
    QCOMPARE(RaisedBy([&] { taken = Left("Gara", length); }), error);
    QCOMPARE(Bytes(taken), left);
    QCOMPARE(RaisedBy([&] { taken = Right("Gara", length); }), error);
    QCOMPARE(Bytes(taken), right);
    QCOMPARE(Len("Gara"), std::ptrdiff_t{4});
    QCOMPARE(Len(""), std::ptrdiff_t{0});
    QCOMPARE(Len("lunedì"_t), std::ptrdiff_t{6});
    QCOMPARE(Bytes(Mid("Gara", 3)), QByteArray("ra"));
    QCOMPARE(Bytes(Mid("Gara", 5)), QByteArray());
    QCOMPARE(RaisedBy([] { Mid("Gara", 0); }), 5);
}

void TextTest::InStrCountsFromOne_data()
{
    QTest::addColumn<QByteArray>("part");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::newRow("colon") << QByteArray(":") << 2 << 5;
    QTest::newRow("start") << QByteArray("1") << 1 << 1;
    QTest::newRow("end") << QByteArray("30a") << 6 << 6;
    QTest::newRow("other case") << QByteArray("A") << 0 << 0;
    QTest::newRow("absent") << QByteArray("x") << 0 << 0;
    QTest::newRow("longer than the text") << QByteArray("1:05:30a.") << 0 << 0;
}

void TextTest::InStrCountsFromOne()
{
    QFETCH(QByteArray, part);
    QFETCH(int, first);
    QFETCH(int, last);
    QCOMPARE(int(InStr("1:05:30a", TextOf(part))), first);
    QCOMPARE(int(InStrRev("1:05:30a", TextOf(part))), last);
    QCOMPARE(int(InStr("", TextOf(part))), 0);
}

void TextTest::TrimRemovesBlanksOnly_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("trimmed");
    QTest::newRow("empty") << QByteArray("") << QByteArray("");
    QTest::newRow("blanks") << QByteArray("   ") << QByteArray("");
    QTest::newRow("both ends") << QByteArray("  Gara ") << QByteArray("Gara");
    QTest::newRow("inside kept") << QByteArray(" Mezza  Maratona ") << QByteArray("Mezza  Maratona");
    QTest::newRow("tab is no blank") << QByteArray(" \t ") << QByteArray("\t");
    QTest::newRow("line end is no blank") << QByteArray("a\r\n") << QByteArray("a\r\n");
    QTest::newRow("hard blank is no blank") << QByteArray("\xA0") << QByteArray("\xA0");
}

void TextTest::TrimRemovesBlanksOnly()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, trimmed);
    QCOMPARE(Bytes(Trim(TextOf(text))), trimmed);
    QCOMPARE(CampoNonVuoto(TextOf(text)), !trimmed.isEmpty());
}

namespace
{

/// The letters of Windows-1252 that have both cases, upper and lower side by side. Not among them: ß, ƒ, µ, ª and º,
/// whose capitals the set lacks, and × and ÷, which are no letters.
constexpr std::array<std::pair<unsigned char, unsigned char>, 60> kPairs = {{
    {'A', 'a'},   {'B', 'b'}, {'C', 'c'}, {'D', 'd'}, {'E', 'e'}, {'F', 'f'},   {'G', 'g'},
    {'H', 'h'},   {'I', 'i'}, {'J', 'j'}, {'K', 'k'}, {'L', 'l'}, {'M', 'm'},   {'N', 'n'},
    {'O', 'o'},   {'P', 'p'}, {'Q', 'q'}, {'R', 'r'}, {'S', 's'}, {'T', 't'},   {'U', 'u'},
    {'V', 'v'},   {'W', 'w'}, {'X', 'x'}, {'Y', 'y'}, {'Z', 'z'}, {0x8A, 0x9A}, // Š š
    {0x8C, 0x9C},                                                               // Œ œ
    {0x8E, 0x9E},                                                               // Ž ž
    {0x9F, 0xFF},                                                               // Ÿ ÿ
    {0xC0, 0xE0},                                                               // À à
    {0xC1, 0xE1},                                                               // Á á
    {0xC2, 0xE2},                                                               // Â â
    {0xC3, 0xE3},                                                               // Ã ã
    {0xC4, 0xE4},                                                               // Ä ä
    {0xC5, 0xE5},                                                               // Å å
    {0xC6, 0xE6},                                                               // Æ æ
    {0xC7, 0xE7},                                                               // Ç ç
    {0xC8, 0xE8},                                                               // È è
    {0xC9, 0xE9},                                                               // É é
    {0xCA, 0xEA},                                                               // Ê ê
    {0xCB, 0xEB},                                                               // Ë ë
    {0xCC, 0xEC},                                                               // Ì ì
    {0xCD, 0xED},                                                               // Í í
    {0xCE, 0xEE},                                                               // Î î
    {0xCF, 0xEF},                                                               // Ï ï
    {0xD0, 0xF0},                                                               // Ð ð
    {0xD1, 0xF1},                                                               // Ñ ñ
    {0xD2, 0xF2},                                                               // Ò ò
    {0xD3, 0xF3},                                                               // Ó ó
    {0xD4, 0xF4},                                                               // Ô ô
    {0xD5, 0xF5},                                                               // Õ õ
    {0xD6, 0xF6},                                                               // Ö ö
    {0xD8, 0xF8},                                                               // Ø ø
    {0xD9, 0xF9},                                                               // Ù ù
    {0xDA, 0xFA},                                                               // Ú ú
    {0xDB, 0xFB},                                                               // Û û
    {0xDC, 0xFC},                                                               // Ü ü
    {0xDD, 0xFD},                                                               // Ý ý
    {0xDE, 0xFE},                                                               // Þ þ
}};

} // namespace

void TextTest::CaseOfEveryPairOfBytes()
{
    std::array<int, 256> partner{};
    for (int byte = 0; byte < 256; ++byte) {
        partner[static_cast<std::size_t>(byte)] = byte;
    }
    for (const auto& [upper, lower] : kPairs) {
        partner[upper] = lower;
        partner[lower] = upper;
    }
    for (int a = 0; a < 256; ++a) {
        for (int b = 0; b < 256; ++b) {
            const Text left(1, static_cast<char>(a));
            const Text right(1, static_cast<char>(b));
            const bool same = a == b || partner[static_cast<std::size_t>(a)] == b;
            QVERIFY2(SameText(left, right) == same, qPrintable(QStringLiteral("%1 %2").arg(a, 0, 16).arg(b, 0, 16)));
            QVERIFY((TextCompare(left, right) == 0) == same);
        }
    }
}

void TextTest::TextCompareOrders_data()
{
    QTest::addColumn<QByteArray>("a");
    QTest::addColumn<QByteArray>("b");
    QTest::addColumn<int>("sign");
    QTest::newRow("same") << QByteArray("Medio") << QByteArray("medio") << 0;
    QTest::newRow("accents count") << QByteArray("Citt\xE0") << QByteArray("Citta") << 1;
    QTest::newRow("accents and case") << QByteArray("CITT\xC0") << QByteArray("citt\xE0") << 0;
    QTest::newRow("prefix comes first") << QByteArray("Medio") << QByteArray("medio/corto") << -1;
    QTest::newRow("case does not order") << QByteArray("alfa") << QByteArray("BETA") << -1;
    QTest::newRow("nor the other way") << QByteArray("beta") << QByteArray("ALFA") << 1;
    QTest::newRow("empty first") << QByteArray() << QByteArray("a") << -1;
    QTest::newRow("both empty") << QByteArray() << QByteArray() << 0;
    QTest::newRow("blanks count") << QByteArray("Gara") << QByteArray("Gara ") << -1;
}

void TextTest::TextCompareOrders()
{
    QFETCH(QByteArray, a);
    QFETCH(QByteArray, b);
    QFETCH(int, sign);
    const auto signOf = [](int value) { return value < 0 ? -1 : value > 0 ? 1 : 0; };
    QCOMPARE(signOf(TextCompare(TextOf(a), TextOf(b))), sign);
    QCOMPARE(signOf(TextCompare(TextOf(b), TextOf(a))), -sign);
    QCOMPARE(SameText(TextOf(a), TextOf(b)), sign == 0);
}

void TextTest::EveryByteGoesThroughUtf8AndBack()
{
    Text all;
    for (int byte = 0; byte < 256; ++byte) {
        const Text one(1, static_cast<char>(byte));
        QCOMPARE(Bytes(FromUtf8(ToUtf8(one))), Bytes(one));
        all += one;
    }
    QCOMPARE(Bytes(FromUtf8(ToUtf8(all))), Bytes(all));
    // Qt reads each of the 256 as one character: what is made is well-formed.
    QCOMPARE(QString::fromStdString(ToUtf8(all)).size(), qsizetype{256});
    QVERIFY(!QString::fromStdString(ToUtf8(all)).contains(QChar::ReplacementCharacter));
}

void TextTest::Utf8OfTheSpecialBytes_data()
{
    QTest::addColumn<int>("byte");
    QTest::addColumn<int>("codePoint");
    const auto row = [](int byte, int codePoint) { QTest::addRow("%02X", byte) << byte << codePoint; };
    row(0x41, 'A');
    row(0x80, 0x20AC); // €
    row(0x81, 0x81);   // Unassigned.
    row(0x82, 0x201A);
    row(0x83, 0x0192);
    row(0x84, 0x201E);
    row(0x85, 0x2026); // …
    row(0x86, 0x2020);
    row(0x87, 0x2021);
    row(0x88, 0x02C6);
    row(0x89, 0x2030);
    row(0x8A, 0x0160); // Š
    row(0x8B, 0x2039);
    row(0x8C, 0x0152); // Œ
    row(0x8D, 0x8D);   // Unassigned.
    row(0x8E, 0x017D); // Ž
    row(0x8F, 0x8F);   // Unassigned.
    row(0x90, 0x90);   // Unassigned.
    row(0x91, 0x2018); // ‘
    row(0x92, 0x2019); // ’
    row(0x93, 0x201C);
    row(0x94, 0x201D);
    row(0x95, 0x2022);
    row(0x96, 0x2013); // –
    row(0x97, 0x2014); // —
    row(0x98, 0x02DC);
    row(0x99, 0x2122);
    row(0x9A, 0x0161); // š
    row(0x9B, 0x203A);
    row(0x9C, 0x0153); // œ
    row(0x9D, 0x9D);   // Unassigned.
    row(0x9E, 0x017E); // ž
    row(0x9F, 0x0178); // Ÿ
    row(0xA0, 0xA0);
    row(0xB0, 0xB0); // °
    row(0xE0, 0xE0); // à
    row(0xFF, 0xFF); // ÿ
}

void TextTest::Utf8OfTheSpecialBytes()
{
    QFETCH(int, byte);
    QFETCH(int, codePoint);
    const QByteArray utf8 = QString(QChar(codePoint)).toUtf8();
    QCOMPARE(Bytes(ToUtf8(Text(1, static_cast<char>(byte)))), utf8);
    QCOMPARE(Bytes(FromUtf8(TextOf(utf8))), QByteArray(1, static_cast<char>(byte)));
}

void TextTest::ForeignCharactersBecomeQuestionMarks_data()
{
    QTest::addColumn<QByteArray>("utf8");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("Greek") << QByteArray("a\xCF\x80z") << QByteArray("a?z");
    QTest::newRow("Chinese") << QByteArray("\xE6\x97\xA5") << QByteArray("?");
    QTest::newRow("beyond 16 bits") << QByteArray("\xF0\x9F\x8F\x83!") << QByteArray("?!");
    QTest::newRow("lone follower") << QByteArray("a\x80z") << QByteArray("a?z");
    QTest::newRow("cut in two") << QByteArray("a\xC3") << QByteArray("a?");
    QTest::newRow("lead without follower") << QByteArray("\xC3z") << QByteArray("?z");
    QTest::newRow("empty") << QByteArray() << QByteArray();
}

void TextTest::ForeignCharactersBecomeQuestionMarks()
{
    QFETCH(QByteArray, utf8);
    QFETCH(QByteArray, text);
    QCOMPARE(Bytes(FromUtf8(TextOf(utf8))), text);
}

void TextTest::LiteralsAreConverted()
{
    QCOMPARE(Bytes("Località 1° € ’"_t), QByteArray("Localit\xE0 1\xB0 \x80 \x92"));
    QCOMPARE(Bytes(""_t), QByteArray());
}

ZELVIA_TEST(TextTest)
#include "TextTest.moc"
