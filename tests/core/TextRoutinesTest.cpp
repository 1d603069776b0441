// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/TextRoutines.h"

#include "core/Cell.h"
#include "support/Bytes.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace zelvia;
using namespace zelvia::Module1;
using zelvia::test::Bytes;
using zelvia::test::TextOf;

class TextRoutinesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Dots_data();
    void Dots();
    void Capitals_data();
    void Capitals();
    void Formats_data();
    void Formats();
};

void TextRoutinesTest::Dots_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("with");
    QTest::addColumn<QByteArray>("without");
    const auto row = [](const char* text, const char* with, const char* without) {
        QTest::newRow(*text == 0 ? "empty" : text) << QByteArray(text) << QByteArray(with) << QByteArray(without);
    };
    row("", "", "");
    row("1", "1", "1");
    row("999", "999", "999");
    row("1234", "1.234", "1234");
    row("1.234", "1.234", "1234");
    row("9999", "9.999", "9999");
    row("12345", "12.345", "12345");
    row("1234567", "1234.567", "1234567");
    row("12.34", "1.234", "1234");
    row("1.2", "12", "12");
    row(".123", "123", "123");
    row(".", "", "");
    row("1.234.567", "1234..567", "1234.567"); // Only the first one goes.
    row("abcd", "a.bcd", "abcd");
    row("..ab", ".ab", ".ab");
    row("a..b", "a.b", "a.b");
}

void TextRoutinesTest::Dots()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, with);
    QFETCH(QByteArray, without);
    QCOMPARE(Bytes(ConPuntoMigliaia(TextOf(text))), with);
    QCOMPARE(Bytes(SenzaPuntoMigliaia(TextOf(text))), without);
}

void TextRoutinesTest::Capitals_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("result");
    const auto row = [](const char* name, const char* text, const char* result) {
        QTest::newRow(name) << QByteArray(text) << QByteArray(result);
    };
    row("empty", "", "");
    row("one letter", "A", "A");
    row("one small letter", "a", "a");
    row("all capitals", "MEDIA", "Media");
    row("the first letter keeps its case", "mEDIA", "media");
    row("each word by itself", "MEDIA VELOCE", "Media Veloce");
    row("any sign parts words", "MEDIA/VELOCE-X", "Media/Veloce-X");
    row("a digit parts words", "A1B2CD", "A1B2Cd");
    row("blanks stay", "  AB  CD ", "  Ab  Cd ");
    row("small letters stay", "media veloce", "media veloce");
    row("an accented letter stays", "CITT\xC0", "Citt\xC0");
    row("an accented letter parts words",
        "CITT\xC0"
        "BELLA",
        "Citt\xC0"
        "Bella");
    row("an apostrophe parts words", "SANT'ANNA", "Sant'Anna");
    row("the signs beside the letters", "@AB[CD`EF{GH", "@Ab[Cd`Ef{Gh");
}

void TextRoutinesTest::Capitals()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, result);
    Text inPlace = TextOf(text);
    QCOMPARE(Bytes(ControlloMaiuscole(inPlace)), result);
    QCOMPARE(Bytes(inPlace), result);
}

void TextRoutinesTest::Formats_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("result");
    const auto row = [](CellFormat format, const char* text, const char* result) {
        QTest::addRow("%d, \"%s\"", static_cast<int>(format), text)
            << static_cast<int>(format) << QByteArray(text) << QByteArray(result);
    };
    for (const CellFormat format : {CellFormat::Plain, CellFormat::TwoDigits, CellFormat::ThreeDigits,
                                    CellFormat::Capitals, CellFormat::Thousands}) {
        row(format, "", "");
    }
    row(CellFormat::Plain, "07", "07");
    row(CellFormat::TwoDigits, "7", "07");
    row(CellFormat::TwoDigits, "0", "00");
    row(CellFormat::TwoDigits, "59", "59");
    row(CellFormat::ThreeDigits, "7", "007");
    row(CellFormat::ThreeDigits, "097", "097");
    row(CellFormat::Capitals, "MEZZA DEL LAGO", "Mezza Del Lago");
    row(CellFormat::Thousands, "999", "999");
    row(CellFormat::Thousands, "1234", "1.234");
    row(CellFormat::Thousands, "1.234", "1.234");
}

void TextRoutinesTest::Formats()
{
    QFETCH(int, format);
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, result);
    QCOMPARE(Bytes(Formatted(TextOf(text), static_cast<CellFormat>(format))), result);
}

ZELVIA_TEST(TextRoutinesTest)
#include "TextRoutinesTest.moc"
