// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ValueFile.h"

#include "core/RunTimeError.h"
#include "support/Bytes.h"
#include "support/TempFolder.h"
#include "support/TestProgram.h"

#include <QTest>

#include <cstdint>
#include <limits>
#include <random>
#include <vector>

using namespace zelvia;
using namespace zelvia::test;

class ValueFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void WrittenForms();
    void DatesAreWrittenYearFirst_data();
    void DatesAreWrittenYearFirst();
    void TextsAreReadByTheirQuotes_data();
    void TextsAreReadByTheirQuotes();
    void IntegersAreReadAndRefused_data();
    void IntegersAreReadAndRefused();
    void DatesAreReadAndRefused_data();
    void DatesAreReadAndRefused();
    void LineEndsOfEveryKind_data();
    void LineEndsOfEveryKind();
    void ReadingGoesOnBehindAnEarlyQuote();
    void AFailedReadKeepsTheTarget();
    void AnEmptyFileEndsAtOnce();
    void EndIsSeenBehindTheLastValue_data();
    void EndIsSeenBehindTheLastValue();
    void ATextOfAMegabyteComesBack();
    void ALongValueWithoutALineEndComesWhole();
    void ValuesAcrossTheBufferEdge_data();
    void ValuesAcrossTheBufferEdge();
    void AFullDiskIsSeen_data();
    void AFullDiskIsSeen();
    void RandomValuesComeBack();

private:
    /// A reader on a file of these bytes.
    ValueReader Reader(TextView bytes)
    {
        folder_.Write("valori", bytes);
        return ValueReader(folder_.Path("valori"));
    }

    TempFolder folder_;
};

void ValueFileTest::WrittenForms()
{
    {
        ValueWriter file(folder_.Path("scritto"));
        file.Write(i16(0));
        file.Write(i16(32767));
        file.Write(i16(-32768));
        file.Write(i32(2147483647));
        file.Write(i32(std::numeric_limits<std::int32_t>::min()));
        file.Write(i32(1));
        file.Write("");
        file.Write("uno, due");
        file.Write("dice \"ciao\" a tutti");
        file.Write("Citt\xE0 alta");
        file.Write(" blanks ");
        file.Write(TextView("a\0b", 3));
        file.Write(CalendarDate(2007, 3, 1));
        file.Close();
    }
    const Text expected = "0\r\n32767\r\n-32768\r\n2147483647\r\n-2147483648\r\n1\r\n\"\"\r\n\"uno, due\"\r\n"
                          "\"dice \"ciao\" a tutti\"\r\n\"Citt\xE0 alta\"\r\n\" blanks \"\r\n\"a" +
                          Text(1, '\0') + "b\"\r\n#2007-03-01#\r\n";
    QCOMPARE(Difference(folder_.Read("scritto"), expected), QByteArray());
}

void ValueFileTest::DatesAreWrittenYearFirst_data()
{
    QTest::addColumn<int>("year");
    QTest::addColumn<unsigned>("month");
    QTest::addColumn<unsigned>("day");
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("first of all") << 100 << 1U << 1U << QByteArray("#0100-01-01#");
    QTest::newRow("three digits") << 999 << 12U << 31U << QByteArray("#0999-12-31#");
    QTest::newRow("leap day") << 2008 << 2U << 29U << QByteArray("#2008-02-29#");
    QTest::newRow("last of all") << 9999 << 12U << 31U << QByteArray("#9999-12-31#");
}

void ValueFileTest::DatesAreWrittenYearFirst()
{
    QFETCH(int, year);
    QFETCH(unsigned, month);
    QFETCH(unsigned, day);
    QFETCH(QByteArray, line);
    const CalendarDate date(year, month, day);
    {
        ValueWriter file(folder_.Path("data"));
        file.Write(date);
        file.Close();
    }
    QCOMPARE(Bytes(folder_.Read("data")), line + "\r\n");
    CalendarDate read;
    ValueReader(folder_.Path("data")).Input(read);
    QVERIFY(read == date);
}

void ValueFileTest::TextsAreReadByTheirQuotes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("second");
    const auto row = [](const char* name, const char* bytes, const char* first, const char* second) {
        QTest::newRow(name) << QByteArray(bytes) << QByteArray(first) << QByteArray(second);
    };
    row("one a line", "\"a\"\r\n\"b\"\r\n", "a", "b");
    row("two on a line", "\"a\",\"b\"\r\n", "a", "b");
    row("blanks behind the quote", "\"a\"  ,  \"b\"\r\n", "a", "b");
    row("empty texts", "\"\"\r\n\"\"\r\n", "", "");
    row("comma inside", "\"a,b\"\r\n\"c\"\r\n", "a,b", "c");
    row("blanks inside", "\" a \"\r\n\"c\"\r\n", " a ", "c");
    row("line end inside", "\"a\r\nb\"\r\n\"c\"\r\n", "a\r\nb", "c");
    row("no quotes", "a\r\nb\r\n", "a", "b");
    row("no quotes, comma", "a,b\r\n", "a", "b");
    row("no quotes, blanks around", "  a b  \r\nc\r\n", "a b", "c");
    row("empty line", "\r\n\"b\"\r\n", "", "b");
    row("nothing between commas", ",b\r\n", "", "b");
    row("number taken as it stands", "1.5\r\n99999\r\n", "1.5", "99999");
    row("quote later in an open value", "a\"b\r\nc\r\n", "a\"b", "c");
    row("text right behind the quote", "\"a\"b\r\nc\r\n", "a", "b");
    row("text behind the quote and a blank", "\"a\" b\r\nc\r\n", "a", "b");
    row("quote right behind the quote", "\"a\"\"b\"\r\nc\r\n", "a", "b");
    row("last line without its end", "\"a\"\r\n\"b\"", "a", "b");
    row("open last line without its end", "a\r\nb", "a", "b");
    row("accents", "\"Citt\xE0\"\r\n\"\x80\x81\xFF\"\r\n", "Citt\xE0", "\x80\x81\xFF");
}

void ValueFileTest::TextsAreReadByTheirQuotes()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, first);
    QFETCH(QByteArray, second);
    ValueReader file = Reader(TextOf(bytes));
    Text text = "old";
    file.Input(text);
    QCOMPARE(Bytes(text), first);
    file.Input(text);
    QCOMPARE(Bytes(text), second);
}

void ValueFileTest::IntegersAreReadAndRefused_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("asShort"); // The value, or minus a million and the error's number.
    QTest::addColumn<int>("asLong");
    constexpr int error6 = -1000006;
    constexpr int error13 = -1000013;
    const auto row = [](const char* value, int asShort, int asLong) {
        QTest::newRow(*value != '\0' ? value : "(empty line)") << QByteArray(value) << asShort << asLong;
    };
    row("7", 7, 7);
    row("007", 7, 7);
    row("+7", 7, 7);
    row("-7", -7, -7);
    row("  7  ", 7, 7);
    row("32767", 32767, 32767);
    row("-32768", -32768, -32768);
    row("32768", error6, 32768);
    row("99999", error6, 99999);
    row("2147483647", error6, 2147483647);
    row("-2147483648", error6, std::numeric_limits<int>::min());
    row("2147483648", error6, error6);
    row("99999999999999999999999", error6, error6);
    row("1e400", error6, error6);
    row("0.001e+400", error6, error6);
    row("1e99999999999999999999", error6, error6);
    row("1e-400", 0, 0);
    row("-100.5e-400", 0, 0);
    row("1e-99999999999999999999", 0, 0);
    row("0e99999999999999999999", 0, 0);
    row("1e400-5", error13, error13);
    row("1e-400x", error13, error13);
    row("1.5", 2, 2);
    row("2.5", 2, 2);
    row("-0.5", 0, 0);
    row("32767.4", 32767, 32767);
    row("32767.5", error6, 32768);
    row("1e3", 1000, 1000);
    row("", error13, error13);
    row("km", error13, error13);
    row("7km", error13, error13);
    row("7 8", error13, error13);
    row("0x10", error13, error13);
    row("1e", error13, error13);
    row("-", error13, error13);
    row("--7", error13, error13);
    row("+-7", error13, error13);
    row("nan", error13, error13);
    row("inf", error13, error13);
    row("#2007-01-01#", error13, error13);
    row("\"7\"", error13, error13);
    row("\"\"", error13, error13);
    row("7\"", error13, error13);
    row("1.2.3", error13, error13);
}

void ValueFileTest::IntegersAreReadAndRefused()
{
    QFETCH(QByteArray, value);
    QFETCH(int, asShort);
    QFETCH(int, asLong);
    const auto check = [&](auto field, int expected) {
        const auto old = field;
        ValueReader file = Reader(TextOf(value) + "\r\n41\r\n");
        const int error = RaisedBy([&] { file.Input(field); });
        QCOMPARE(error, expected < -1000000 && expected > -1000100 ? -1000000 - expected : 0);
        QCOMPARE(int{field.value()}, error == 0 ? expected : int{old.value()});
        if (error == 0) {
            file.Input(field);
            QCOMPARE(int{field.value()}, 41);
        }
    };
    check(i16(-3), asShort);
    check(i32(-3), asLong);
}

void ValueFileTest::DatesAreReadAndRefused_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("good");
    QTest::newRow("plain") << QByteArray("#2008-02-29#") << true;
    QTest::newRow("blanks around") << QByteArray("  #2008-02-29#  ") << true;
    for (const char* bad : {"",
                            "#2007-02-29#",
                            "2008-02-29",
                            "#2008-02-29",
                            "2008-02-29#",
                            "#29/02/2008#",
                            "29/02/2008",
                            "#2008-13-01#",
                            "#2008-00-01#",
                            "#2008-01-00#",
                            "#2008-01-32#",
                            "#0099-01-01#",
                            "#0000-01-01#",
                            "#-200-01-01#",
                            "#2008-1-1#",
                            "#2008/02/29#",
                            "#2008-02-2a#",
                            "#2008- 2-29#",
                            "#2008-+2-29#",
                            "#2008-02-29 10:00:00#",
                            "\"#2008-02-29#\"",
                            "#",
                            "##",
                            "7",
                            "data",
                            "#TRUE#",
                            "#NULL#"}) {
        QTest::newRow(*bad != '\0' ? bad : "(empty line)") << QByteArray(bad) << false;
    }
}

void ValueFileTest::DatesAreReadAndRefused()
{
    QFETCH(QByteArray, value);
    QFETCH(bool, good);
    ValueReader file = Reader(TextOf(value) + "\r\n41\r\n");
    CalendarDate date(1999, 9, 9);
    QCOMPARE(RaisedBy([&] { file.Input(date); }), good ? 0 : 13);
    QVERIFY(date == (good ? CalendarDate(2008, 2, 29) : CalendarDate(1999, 9, 9)));
}

void ValueFileTest::LineEndsOfEveryKind_data()
{
    QTest::addColumn<QByteArray>("end");
    QTest::newRow("CR LF") << QByteArray("\r\n");
    QTest::newRow("LF") << QByteArray("\n");
    QTest::newRow("CR") << QByteArray("\r");
}

void ValueFileTest::LineEndsOfEveryKind()
{
    QFETCH(QByteArray, end);
    const Text e = TextOf(end);
    ValueReader file = Reader("\"a\"" + e + "7" + e + "#2007-03-01#" + e + "open" + e + e + "-8" + e);
    Text text;
    i16 number;
    CalendarDate date;
    file.Input(text);
    QCOMPARE(Bytes(text), QByteArray("a"));
    file.Input(number);
    QCOMPARE(int{number.value()}, 7);
    file.Input(date);
    QVERIFY(date == CalendarDate(2007, 3, 1));
    file.Input(text);
    QCOMPARE(Bytes(text), QByteArray("open"));
    file.Input(text);
    QCOMPARE(Bytes(text), QByteArray());
    file.Input(number);
    QCOMPARE(int{number.value()}, -8);
    QVERIFY(file.AtEnd());
}

void ValueFileTest::ReadingGoesOnBehindAnEarlyQuote()
{
    // The note written as: dice "ciao" a tutti
    ValueReader file = Reader("\"dice \"ciao\" a tutti\"\r\n\"seguente\"\r\n7\r\n");
    Text text;
    for (const char* piece : {"dice ", "ciao\" a tutti\"", "seguente"}) {
        file.Input(text);
        QCOMPARE(Bytes(text), QByteArray(piece));
    }
    i16 number;
    file.Input(number);
    QCOMPARE(int{number.value()}, 7);
    QVERIFY(file.AtEnd());
}

void ValueFileTest::AFailedReadKeepsTheTarget()
{
    ValueReader file = Reader("\"mai chiuso");
    Text text = "prima";
    QCOMPARE(RaisedBy([&] { file.Input(text); }), 62);
    QCOMPARE(Bytes(text), QByteArray("prima"));
    QCOMPARE(RaisedBy([&] { file.Input(text); }), 62);
    QCOMPARE(Bytes(text), QByteArray("prima"));
}

void ValueFileTest::AnEmptyFileEndsAtOnce()
{
    ValueReader file = Reader("");
    QVERIFY(file.AtEnd());
    Text text = "prima";
    i16 small = 3;
    i32 large = 4;
    CalendarDate date(2007, 1, 1);
    QCOMPARE(RaisedBy([&] { file.Input(text); }), 62);
    QCOMPARE(RaisedBy([&] { file.Input(small); }), 62);
    QCOMPARE(RaisedBy([&] { file.Input(large); }), 62);
    QCOMPARE(RaisedBy([&] { file.Input(date); }), 62);
    QCOMPARE(Bytes(text), QByteArray("prima"));
    QVERIFY(small == 3 && large == 4 && date == CalendarDate(2007, 1, 1));
}

void ValueFileTest::EndIsSeenBehindTheLastValue_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("line end") << QByteArray("\"a\"\r\n");
    QTest::newRow("no line end") << QByteArray("\"a\"");
    QTest::newRow("bare CR") << QByteArray("\"a\"\r");
    QTest::newRow("blanks behind the quote") << QByteArray("\"a\"   ");
    QTest::newRow("open value") << QByteArray("a");
}

void ValueFileTest::EndIsSeenBehindTheLastValue()
{
    QFETCH(QByteArray, bytes);
    ValueReader file = Reader(TextOf(bytes));
    QVERIFY(!file.AtEnd());
    Text text;
    file.Input(text);
    QCOMPARE(Bytes(text), QByteArray("a"));
    QVERIFY(file.AtEnd());
    QCOMPARE(RaisedBy([&] { file.Input(text); }), 62);
}

void ValueFileTest::ATextOfAMegabyteComesBack()
{
    Text huge;
    for (int i = 0; huge.size() < 1'000'000; ++i) {
        huge += std::to_string(i) + (i % 7 == 0 ? "\r\n" : ", ");
    }
    {
        ValueWriter file(folder_.Path("grande"));
        file.Write(i16(1));
        file.Write(huge);
        file.Write(i16(2));
        file.Close();
    }
    QCOMPARE(Difference(folder_.Read("grande"), "1\r\n\"" + huge + "\"\r\n2\r\n"), QByteArray());
    ValueReader file(folder_.Path("grande"));
    i16 number;
    Text text;
    file.Input(number);
    file.Input(text);
    QCOMPARE(Difference(text, huge), QByteArray());
    file.Input(number);
    QCOMPARE(int{number.value()}, 2);
}

/// It is longer than what one read brings.
void ValueFileTest::ALongValueWithoutALineEndComesWhole()
{
    const Text filed(100'000, 'x');
    ValueReader file = Reader(filed);
    Text text;
    file.Input(text);
    QCOMPARE(Difference(text, filed), QByteArray());
    QVERIFY(file.AtEnd());
}

void ValueFileTest::ValuesAcrossTheBufferEdge_data()
{
    QTest::addColumn<int>("edge");
    QTest::addColumn<int>("shift");
    for (const int edge : {1 << 15, 1 << 16, 1 << 18}) {
        for (int shift = -14; shift <= 2; ++shift) {
            QTest::addRow("%d%+d", edge, shift) << edge << shift;
        }
    }
}

/// Each kind of value laid across the edge of the buffers at each of its bytes.
void ValueFileTest::ValuesAcrossTheBufferEdge()
{
    QFETCH(int, edge);
    QFETCH(int, shift);
    const Text filler(static_cast<std::size_t>(edge + shift - 4), 'x');
    {
        ValueWriter file(folder_.Path("orlo"));
        file.Write(filler);
        file.Write("ab");
        file.Write(i32(-12));
        file.Write(CalendarDate(2007, 3, 1));
        file.Close();
    }
    QCOMPARE(Difference(folder_.Read("orlo"), "\"" + filler + "\"\r\n\"ab\"\r\n-12\r\n#2007-03-01#\r\n"), QByteArray());
    ValueReader file(folder_.Path("orlo"));
    Text text;
    i32 number;
    CalendarDate date;
    file.Input(text);
    QCOMPARE(Difference(text, filler), QByteArray());
    file.Input(text);
    QCOMPARE(Bytes(text), QByteArray("ab"));
    file.Input(number);
    QCOMPARE(number.value(), -12);
    file.Input(date);
    QVERIFY(date == CalendarDate(2007, 3, 1));
    QVERIFY(file.AtEnd());
}

void ValueFileTest::AFullDiskIsSeen_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("at the close") << 10;
    QTest::newRow("half-way") << 200'000;
}

void ValueFileTest::AFullDiskIsSeen()
{
    QFETCH(int, size);
    QCOMPARE(RaisedBy([&] {
                 ValueWriter file(folder_.FullDisk());
                 file.Write(Text(static_cast<std::size_t>(size), 'x'));
                 file.Close();
             }),
             61);
}

void ValueFileTest::RandomValuesComeBack()
{
    std::mt19937 random(466);
    constexpr int rounds = 5000;
    std::vector<i16> shorts;
    std::vector<i32> longs;
    std::vector<CalendarDate> dates;
    std::vector<Text> texts;
    {
        ValueWriter file(folder_.Path("caso"));
        for (int i = 0; i < rounds; ++i) {
            shorts.emplace_back(static_cast<std::int16_t>(random()));
            longs.emplace_back(static_cast<std::int32_t>(random()));
            dates.push_back(CalendarDate(100, 1, 1).PlusDays(static_cast<int>(random() % 3615900)));
            Text text;
            for (auto length = random() % 40; length > 0; --length) {
                const auto byte = static_cast<char>(random() % 256);
                text += byte == '"' ? '\'' : byte;
            }
            texts.push_back(text);
            file.Write(shorts.back());
            file.Write(longs.back());
            file.Write(dates.back());
            file.Write(texts.back());
        }
        file.Close();
    }
    ValueReader file(folder_.Path("caso"));
    for (std::size_t i = 0; i < rounds; ++i) {
        i16 small;
        i32 large;
        CalendarDate date;
        Text text;
        file.Input(small);
        file.Input(large);
        file.Input(date);
        file.Input(text);
        QVERIFY(small == shorts[i] && large == longs[i] && date == dates[i] && text == texts[i]);
    }
    QVERIFY(file.AtEnd());
}

ZELVIA_TEST(ValueFileTest)
#include "ValueFileTest.moc"
