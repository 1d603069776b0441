// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/exchange/Csv.h"

#include "support/Bytes.h"
#include "support/TestProgram.h"
#include "tools/copies/SafeFiles.h"

#include <QTest>

using namespace zelvia;
using namespace zelvia::test;

class CsvTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Written();
    void Read_data();
    void Read();
    void Refused_data();
    void Refused();
    void ComesBack();
};

void CsvTest::Written()
{
    QCOMPARE(Bytes(CsvLine({"a", "", "b c", "d,e", "f\"g", "h\ni", ";"})),
             QByteArray("a,,b c,\"d,e\",\"f\"\"g\",\"h\ni\",;\r\n"));
    QCOMPARE(Bytes(CsvLine({""})), QByteArray("\r\n"));
}

void CsvTest::Read_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("cells"); // "|" between cells, "/" after a row.
    const auto row = [](const char* name, const char* bytes, const char* cells) {
        QTest::newRow(name) << QByteArray(bytes) << QString::fromUtf8(cells);
    };
    row("commas", "a,b\r\nc,d\r\n", "a|b/c|d/");
    row("no last line end", "a,b\nc,", "a|b/c|/");
    row("old line ends", "a,b\rc,d\r", "a|b/c|d/");
    row("semicolons", "a;b;c,d\n1,5;2;3\n", "a|b|c,d/1,5|2|3/");
    row("tabs", "a\tb\n1,5\t2\n", "a|b/1,5|2/");
    row("a mark in front", "\xEF\xBB\xBFkm,a\n", "km|a/");
    row("quoted", "\"a\",\"b\"\"c\",\"d\ne\"\n\"\",x\n", "a|b\"c|d\ne/|x/");
    row("a quote inside", "a\"b,c\n", "a\"b|c/");
    row("more behind a quote", "\"a\"b,c\n", "ab|c/");
    row("empty lines", "\n\na,b\n\n\nc,d\n", "a|b/c|d/");
    row("short and long rows", "a,b\nc\nd,e,f\n", "a|b/c/d|e|f/");
    row("accents", "citt\xC3\xA0,\xE2\x82\xAC\n", "città|€/");
    row("nothing", "", "");
}

void CsvTest::Read()
{
    QFETCH(QByteArray, bytes);
    QString cells;
    for (const auto& row : ReadCsv(bytes.toStdString())) {
        QStringList list;
        for (const std::string& cell : row) {
            list << QString::fromStdString(cell);
        }
        cells += list.join(QLatin1Char('|')) + QLatin1Char('/');
    }
    QTEST(cells, "cells");
}

void CsvTest::Refused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    QTest::newRow("open quote") << QByteArray("a,b\nc,\"d\ne") << "una virgoletta non è chiusa";
    QTest::newRow("Windows-1252") << QByteArray("citt\xE0,x\n") << "il file non è un testo in UTF-8";
    QTest::newRow("binary") << QByteArray("a\0b", 3) << "il file non è un testo in UTF-8";
}

void CsvTest::Refused()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, reason);
    try {
        ReadCsv(bytes.toStdString());
        QFAIL("it was read");
    } catch (const FileFailure& failure) {
        QCOMPARE(QString::fromUtf8(failure.what()), reason);
    }
}

void CsvTest::ComesBack()
{
    const std::vector<std::string> cells = {"", "\"", "\"\"", ",", "\r\n", "a\r", "x", "\"\n\","};
    const auto rows = ReadCsv(CsvLine({"1", "2", "3"}) + CsvLine(cells));
    QCOMPARE(rows.size(), std::size_t{2});
    QVERIFY(rows[1] == cells);
}

ZELVIA_TEST(CsvTest)
#include "CsvTest.moc"
