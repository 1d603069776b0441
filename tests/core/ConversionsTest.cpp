// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Conversions.h"

#include "core/RunTimeError.h"
#include "support/Bytes.h"
#include "support/TestProgram.h"

#include <QTest>

#include <cmath>
#include <limits>
#include <random>

using namespace zelvia;
using namespace zelvia::test;

class ConversionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ValReadsTheNumberAtTheStart_data();
    void ValReadsTheNumberAtTheStart();
    void ValIntoAnInteger_data();
    void ValIntoAnInteger();
    void ValAgreesWithASlowParser();
    void ValOverflows();
    void ValOfAMinuteNumberIsZero();
    void LocaleReadsCommaAndDots_data();
    void LocaleReadsCommaAndDots();
    void LocaleSingleIsRoundedToSinglePrecision();
    void PlainTextOfIntegers_data();
    void PlainTextOfIntegers();
    void PlainTextOfFloats_data();
    void PlainTextOfFloats();
    void StrPutsABlankInFront_data();
    void StrPutsABlankInFront();
    void StrOfAFractionHasAPoint();
    void FormatOfIntegers_data();
    void FormatOfIntegers();
    void FormatOfFloats_data();
    void FormatOfFloats();
};

void ConversionsTest::ValReadsTheNumberAtTheStart_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("number");
    const auto row = [](const char* text, double number) {
        QTest::newRow(*text != '\0' ? text : "(empty)") << QByteArray(text) << number;
    };
    row("", 0);
    row(" ", 0);
    row("05", 5);
    row("1.500", 1.5);
    row("12,5", 12);
    row("3:07", 3);
    row(" 12 3", 123);
    row("1 2 3 4", 1234);
    row("1 . 5", 1.5);
    row("1.500.000", 1.5);
    row("10,500", 10);
    row(".5", 0.5);
    row("5.", 5);
    row(".", 0);
    row("-7", -7);
    row("- 7", -7);
    row("+7", 7);
    row("-.5", -0.5);
    row("-", 0);
    row("+", 0);
    row("--7", 0);
    row("+-7", 0);
    row("5-3", 5);
    row("7-", 7);
    row("km 7", 0);
    row("7km", 7);
    row("0:57:38", 0);
    row("00", 0);
    row("999999", 999999);
    row("\t7", 0);
    row("5\t7", 5);
    row("5\"7", 5);
    row("\xB2", 0);
    row("12\xB0", 12);
    QTest::newRow("nul inside") << QByteArray("7\0008", 3) << 7.0;
}

void ConversionsTest::ValReadsTheNumberAtTheStart()
{
    QFETCH(QByteArray, text);
    QFETCH(double, number);
    // No tolerance: the rows are exact in binary.
    QVERIFY2(Val(TextOf(text)) == number, qPrintable(QString::number(Val(TextOf(text)), 'g', 17)));
}

void ConversionsTest::ValIntoAnInteger_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("error");
    QTest::newRow("1.500 is two") << QByteArray("1.500") << 2 << 0;
    QTest::newRow("2.5 is two") << QByteArray("2.5") << 2 << 0;
    QTest::newRow("32767") << QByteArray("32767") << 32767 << 0;
    QTest::newRow("32767.4") << QByteArray("32767.4") << 32767 << 0;
    QTest::newRow("32767.5") << QByteArray("32767.5") << 0 << 6;
    QTest::newRow("32768") << QByteArray("32768") << 0 << 6;
    QTest::newRow("40000") << QByteArray("40000") << 0 << 6;
    QTest::newRow("-32768") << QByteArray("-32768") << -32768 << 0;
    QTest::newRow("-32768.5, tie to the even one") << QByteArray("-32768.5") << -32768 << 0;
    QTest::newRow("-32769") << QByteArray("-32769") << 0 << 6;
    QTest::newRow("40.000 is forty") << QByteArray("40.000") << 40 << 0;
}

void ConversionsTest::ValIntoAnInteger()
{
    QFETCH(QByteArray, text);
    QFETCH(int, number);
    QFETCH(int, error);
    int field = 0;
    QCOMPARE(RaisedBy([&] { field = RoundTo<i16>(Val(TextOf(text))).value(); }), error);
    QCOMPARE(field, number);
}

namespace
{

/// Digits summed up in exact integers, so the expected value owes nothing to a parser of floats.
double SlowVal(const Text& text)
{
    Text kept;
    for (const char c : text) {
        if (c != ' ') {
            kept += c;
        }
    }
    std::size_t at = 0;
    const bool negative = at < kept.size() && kept[at] == '-';
    if (at < kept.size() && (kept[at] == '-' || kept[at] == '+')) {
        ++at;
    }
    std::int64_t digits = 0;
    std::int64_t scale = 1;
    bool point = false;
    for (; at < kept.size(); ++at) {
        if (kept[at] == '.' && !point) {
            point = true;
        } else if (kept[at] >= '0' && kept[at] <= '9') {
            digits = digits * 10 + (kept[at] - '0');
            scale *= point ? 10 : 1;
        } else {
            break;
        }
    }
    // Both are exact in a double, so the one division rounds once, as a correct parser does.
    const double value = static_cast<double>(digits) / static_cast<double>(scale);
    return negative ? -value : value;
}

} // namespace

void ConversionsTest::ValAgreesWithASlowParser()
{
    std::mt19937 random(20010101);
    const Text letters = "0123456789012345678901234567890123456789  ..-+,:x\xE0";
    for (int i = 0; i < 20000; ++i) {
        Text text;
        const auto length = random() % 13;
        for (unsigned j = 0; j < length; ++j) {
            text += letters[random() % letters.size()];
        }
        const double number = Val(text);
        QVERIFY2(number == SlowVal(text), text.c_str());
    }
}

void ConversionsTest::ValOverflows()
{
    QCOMPARE(RaisedBy([] { Val(Text(400, '9')); }), 6);
    QCOMPARE(RaisedBy([] { Val("-" + Text(400, '9')); }), 6);
    QCOMPARE(Val(Text(308, '0') + "7"), 7.0);
}

void ConversionsTest::ValOfAMinuteNumberIsZero()
{
    QCOMPARE(Val("0." + Text(400, '0') + "1"), 0.0);
    QCOMPARE(Val("-." + Text(400, '0') + "1"), 0.0);
}

void ConversionsTest::LocaleReadsCommaAndDots_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("number");
    QTest::addColumn<int>("error");
    const auto number = [](const char* text, double value) { QTest::newRow(text) << QByteArray(text) << value << 0; };
    const auto refused = [](const char* text) {
        QTest::newRow(*text != '\0' ? text : "(empty)") << QByteArray(text) << 0.0 << 13;
    };
    number("10,500", 10.5);
    number("10.500", 10500);
    number("1.234.567,25", 1234567.25);
    number("0,125", 0.125);
    number(",5", 0.5);
    number("7,", 7);
    number("-3,5", -3.5);
    number("+3,5", 3.5);
    number(" 42 ", 42);
    number("0", 0);
    refused("");
    refused(" ");
    refused("km");
    refused("10 km");
    refused("1,5,5");
    refused("1,5.5");
    refused(",");
    refused(".");
    refused("-");
    refused("5-");
    refused("1:05");
    refused("1 2");
    refused("nan");
    refused("inf");
    refused("0x10");
}

void ConversionsTest::LocaleReadsCommaAndDots()
{
    QFETCH(QByteArray, text);
    QFETCH(double, number);
    QFETCH(int, error);
    double read = 0;
    QCOMPARE(RaisedBy([&] { read = LocaleDouble(TextOf(text)); }), error);
    QVERIFY(read == number);
    f32 single = 0;
    QCOMPARE(RaisedBy([&] { single = LocaleSingle(TextOf(text)); }), error);
    QVERIFY(single == static_cast<f32>(number));
}

void ConversionsTest::LocaleSingleIsRoundedToSinglePrecision()
{
    QVERIFY(LocaleSingle("0,1") == 0.1f);
    QVERIFY(static_cast<double>(LocaleSingle("0,1")) != LocaleDouble("0,1"));
    // 2^24 + 1 is the first whole number that a single can't hold.
    QVERIFY(static_cast<double>(LocaleSingle("16.777.217")) == 16777216.0);
    QVERIFY(LocaleDouble("16.777.217") == 16777217.0);
    QCOMPARE(RaisedBy([] { LocaleSingle("1" + Text(39, '0')); }), 6);
}

void ConversionsTest::PlainTextOfIntegers_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QByteArray>("text");
    for (const int number : {0, 7, -7, 10, 32767, -32768, 2147483647}) {
        QTest::addRow("%d", number) << number << QByteArray::number(number);
    }
    QTest::newRow("lowest") << std::numeric_limits<int>::min() << QByteArray("-2147483648");
}

void ConversionsTest::PlainTextOfIntegers()
{
    QFETCH(int, number);
    QFETCH(QByteArray, text);
    QCOMPARE(Bytes(PlainText(i32(number))), text);
    if (number >= -32768 && number <= 32767) {
        QCOMPARE(Bytes(PlainText(i16(number))), text);
    }
}

void ConversionsTest::PlainTextOfFloats_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<QByteArray>("asDouble");
    QTest::addColumn<QByteArray>("asSingle");
    QTest::newRow("whole") << 42.0 << QByteArray("42") << QByteArray("42");
    QTest::newRow("half") << 10.5 << QByteArray("10,5") << QByteArray("10,5");
    QTest::newRow("negative") << -0.25 << QByteArray("-0,25") << QByteArray("-0,25");
    QTest::newRow("zero") << 0.0 << QByteArray("0") << QByteArray("0");
    QTest::newRow("zero has no sign") << -0.0 << QByteArray("0") << QByteArray("0");
    QTest::newRow("a tenth") << 0.1 << QByteArray("0,1") << QByteArray("0,1");
    QTest::newRow("three tenths summed") << 0.1 + 0.2 << QByteArray("0,3") << QByteArray("0,3");
    QTest::newRow("a third") << 1.0 / 3 << QByteArray("0,333333333333333") << QByteArray("0,3333333");
    QTest::newRow("thousands are not parted") << 1234567.5 << QByteArray("1234567,5") << QByteArray("1234568");
}

void ConversionsTest::PlainTextOfFloats()
{
    QFETCH(double, number);
    QFETCH(QByteArray, asDouble);
    QFETCH(QByteArray, asSingle);
    QCOMPARE(Bytes(PlainText(number)), asDouble);
    QCOMPARE(Bytes(PlainText(static_cast<f32>(number))), asSingle);
}

void ConversionsTest::StrPutsABlankInFront_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("7") << 7 << QByteArray(" 7");
    QTest::newRow("0") << 0 << QByteArray(" 0");
    QTest::newRow("-7") << -7 << QByteArray("-7");
    QTest::newRow("366") << 366 << QByteArray(" 366");
}

void ConversionsTest::StrPutsABlankInFront()
{
    QFETCH(int, number);
    QFETCH(QByteArray, text);
    QCOMPARE(Bytes(Str(i32(number))), text);
    QCOMPARE(Bytes(Str(i16(number))), text);
    QCOMPARE(Bytes(Str(static_cast<double>(number))), text);
}

void ConversionsTest::StrOfAFractionHasAPoint()
{
    QCOMPARE(Bytes(Str(10.5)), QByteArray(" 10.5"));
    QCOMPARE(Bytes(Str(-10.5)), QByteArray("-10.5"));
    QCOMPARE(Bytes(Str(-0.0)), QByteArray(" 0"));
}

void ConversionsTest::FormatOfIntegers_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QByteArray>("pattern");
    QTest::addColumn<QByteArray>("text");
    const auto row = [](int number, const char* pattern, const char* text) {
        QTest::addRow("%d in %s", number, pattern) << number << QByteArray(pattern) << QByteArray(text);
    };
    row(0, "0", "0");
    row(7, "0", "7");
    row(99, "0", "99");
    row(-7, "0", "-7");
    row(0, "00", "00");
    row(7, "00", "07");
    row(59, "00", "59");
    row(123, "00", "123");
    row(-7, "00", "-07");
    row(5, "000", "005");
    row(50, "000", "050");
    row(990, "000", "990");
    row(1000, "000", "1000");
    row(0, "##", "");
    row(7, "##", "7");
    row(123, "##", "123");
    row(0, "###", "");
    row(12, "###", "12");
    row(1234, "###", "1234");
    row(0, "##0", "0");
    row(10, "##0", "10");
    row(1234, "##0", "1234");
    row(0, "##:", ":");
    row(7, "##:", "7:");
    row(0, "0:", "0:");
    row(7, "0:", "7:");
    row(12, "0:", "12:");
    row(0, "###,###", "");
    row(7, "###,###", "7");
    row(999, "###,###", "999");
    row(1000, "###,###", "1.000");
    row(1234, "###,###", "1.234");
    row(1234567, "###,###", "1.234.567");
    row(-1234, "###,###", "-1.234");
    row(std::numeric_limits<int>::min(), "###,###", "-2.147.483.648");
    row(7, "000.00", "007,00");
    row(0, "000.00", "000,00");
}

void ConversionsTest::FormatOfIntegers()
{
    QFETCH(int, number);
    QFETCH(QByteArray, pattern);
    QFETCH(QByteArray, text);
    QCOMPARE(Bytes(Format(i32(number), TextOf(pattern))), text);
    QCOMPARE(Bytes(Format(static_cast<double>(number), TextOf(pattern))), text);
    if (number >= -32768 && number <= 32767) {
        QCOMPARE(Bytes(Format(i16(number), TextOf(pattern))), text);
    }
}

void ConversionsTest::FormatOfFloats_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<QByteArray>("pattern");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("rounded up") << 123.456 << QByteArray("000.00") << QByteArray("123,46");
    QTest::newRow("half away from zero") << 0.125 << QByteArray("000.00") << QByteArray("000,13");
    QTest::newRow("decimal half that binary holds below") << 1.005 << QByteArray("000.00") << QByteArray("001,01");
    QTest::newRow("carry through") << 999.995 << QByteArray("000.00") << QByteArray("1000,00");
    QTest::newRow("fraction filled up") << 4.5 << QByteArray("000.00") << QByteArray("004,50");
    QTest::newRow("negative") << -4.5 << QByteArray("000.00") << QByteArray("-004,50");
    QTest::newRow("no minus on zero") << -0.001 << QByteArray("000.00") << QByteArray("000,00");
    QTest::newRow("to a whole") << 2.5 << QByteArray("0") << QByteArray("3");
    QTest::newRow("below a half") << 2.49 << QByteArray("00") << QByteArray("02");
    QTest::newRow("rounded to nothing") << 0.4 << QByteArray("##") << QByteArray("");
    QTest::newRow("thousands") << 1234.4 << QByteArray("###,###") << QByteArray("1.234");
    QTest::newRow("rounded into thousands") << 999.5 << QByteArray("###,###") << QByteArray("1.000");
}

void ConversionsTest::FormatOfFloats()
{
    QFETCH(double, number);
    QFETCH(QByteArray, pattern);
    QFETCH(QByteArray, text);
    QCOMPARE(Bytes(Format(number, TextOf(pattern))), text);
}

ZELVIA_TEST(ConversionsTest)
#include "ConversionsTest.moc"
