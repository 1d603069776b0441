// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/DiaryDifference.h"

#include "support/Bytes.h"
#include "support/DiaryBytes.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace zelvia;
using namespace zelvia::test;

class DiaryDifferenceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AFieldDiffers_data();
    void AFieldDiffers();
    void NothingDiffers_data();
    void NothingDiffers();
    void DaysInTheirOrder();
    void TheNameOfADay_data();
    void TheNameOfADay();
    void ADiaryCutShort_data();
    void ADiaryCutShort();
    void AMissingDiaryIsBlank();
};

namespace
{

Text Year(const DiaryBytes& diary)
{
    return TextOf(diary.Bytes());
}

Text BlankYear()
{
    return Year(DiaryBytes::Blank(2007));
}

} // namespace

void DiaryDifferenceTest::AFieldDiffers_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    const auto row = [](int line, const char* value, const char* name, const char* before, const char* after) {
        QTest::addRow("line %d, %s", line, value)
            << line << QByteArray(value) << QByteArray(name) << QByteArray(before) << QByteArray(after);
    };
    row(2, "#2008-03-03#", "Data", "03/03/2007", "03/03/2008");
    row(3, "\"Lago, giro\"", "Percorso", "", "Lago, giro");
    row(4, "\"Medio\"", "Lunghezza", "", "Medio");
    row(5, "10", "Km", "", "10");
    row(6, "500", "Metri", "", "500");
    row(7, "\"Lenta\"", "Andatura", "", "Lenta");
    row(8, "\"Strada\"", "Terreno", "", "Strada");
    row(9, "\"Gara\"", "Tipo", "", "Gara");
    row(10, "6", "Ora Inizio, ore", "", "6");
    row(15, "59", "Ora Fine, secondi", "", "59");
    row(16, "\"2:00:45\"", "Tempo", "", "2:00:45");
    row(17, "\"5:43\"", "Media", "", "5:43");
    row(18, "\"4:30\"", "Tempi Km, riga 1", "", "4:30");
    row(117, "\"4:31\"", "Tempi Km, riga 100", "", "4:31");
    row(118, "\"Estate\"", "Stagione", "", "Estate");
    row(119, "\"Sole\"", "Meteo", "", "Sole");
    row(120, "\"Mite\"", "Temperatura", "", "Mite");
    row(121, "3", "Corridori", "", "3");
    row(122, "73", "Peso", "", "73");
    row(123, "8", "Ripetizioni", "", "8");
    row(126, "30", "Ripetizioni, secondi", "", "30");
    row(127, "\"a\"", "Note fuori pagina, riga 1", "", "a");
    row(129, "\"Scarpe nuove\"", "Note, riga 1", "", "Scarpe nuove");
    row(136, "\"detto \"presto\"\"", "Note, riga 8", "", "detto \"presto\"");
    row(121, "0", "Corridori", "", "0");
    row(5, "non un numero", "Km", "", "non un numero");
}

void DiaryDifferenceTest::AFieldDiffers()
{
    QFETCH(int, line);
    QFETCH(QByteArray, value);
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    DiaryBytes changed = DiaryBytes::Blank(2007);
    changed.SetLine(62, line, value);
    const DiaryDifference there = CompareDiaries(BlankYear(), Year(changed));
    QCOMPARE(there.days.size(), std::size_t(1));
    QCOMPARE(there.days[0].slot, 62);
    QCOMPARE(there.days[0].fields.size(), std::size_t(1));
    QCOMPARE(Bytes(there.days[0].fields[0].name), name);
    QCOMPARE(Bytes(there.days[0].fields[0].before), before);
    QCOMPARE(Bytes(there.days[0].fields[0].after), after);
    const DiaryDifference back = CompareDiaries(Year(changed), BlankYear());
    QCOMPARE(back.days.size(), std::size_t(1));
    QCOMPARE(Bytes(back.days[0].fields[0].before), after);
    QCOMPARE(Bytes(back.days[0].fields[0].after), before);
}

void DiaryDifferenceTest::NothingDiffers_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("the day's number") << 1 << QByteArray("7");
    QTest::newRow("the time of a day looked at") << 16 << QByteArray("\"0:00:00\"");
    QTest::newRow("its pace") << 17 << QByteArray("\"0:00\"");
    QTest::newRow("no change") << 5 << QByteArray("0");
}

void DiaryDifferenceTest::NothingDiffers()
{
    QFETCH(int, line);
    QFETCH(QByteArray, value);
    DiaryBytes changed = DiaryBytes::Blank(2007);
    changed.SetLine(1, line, value);
    const DiaryDifference difference = CompareDiaries(BlankYear(), Year(changed));
    QCOMPARE(difference.days.size(), std::size_t(0));
    QCOMPARE(difference.daysBefore, 366);
    QCOMPARE(difference.daysAfter, 366);
    // Line ends are none of the content.
    QByteArray lineFeeds = changed.Bytes();
    lineFeeds.replace("\r\n", "\n");
    QCOMPARE(CompareDiaries(BlankYear(), TextOf(lineFeeds)).days.size(), std::size_t(0));
}

void DiaryDifferenceTest::DaysInTheirOrder()
{
    DiaryBytes changed = DiaryBytes::Blank(2007);
    changed.SetLine(366, DiaryBytes::Km, "3");
    changed.SetLine(1, DiaryBytes::Weight, "70");
    changed.SetLine(1, DiaryBytes::Km, "5");
    const DiaryDifference difference = CompareDiaries(BlankYear(), Year(changed));
    QCOMPARE(difference.days.size(), std::size_t(2));
    QCOMPARE(difference.days[0].slot, 1);
    QCOMPARE(difference.days[0].fields.size(), std::size_t(2));
    QCOMPARE(Bytes(difference.days[0].fields[0].name), QByteArray("Km"));
    QCOMPARE(Bytes(difference.days[0].fields[1].name), QByteArray("Peso"));
    QCOMPARE(difference.days[1].slot, 366);
}

void DiaryDifferenceTest::TheNameOfADay_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("its date") << QByteArray("#2007-03-03#") << QByteArray("#2007-03-03#")
                              << QByteArray("sabato 3 marzo 2007");
    QTest::newRow("the present one") << QByteArray("#2007-03-03#") << QByteArray("#2026-03-03#")
                                     << QByteArray("marted\xEC 3 marzo 2026");
    QTest::newRow("no such date") << QByteArray("#2007-03-03#") << QByteArray("#2007-13-03#")
                                  << QByteArray("giorno 62");
    QTest::newRow("no date at all") << QByteArray("#2007-03-03#") << QByteArray("\"\"") << QByteArray("giorno 62");
    QTest::newRow("twelve other characters")
        << QByteArray("#2007-03-03#") << QByteArray("abcdefghijkl") << QByteArray("giorno 62");
}

void DiaryDifferenceTest::TheNameOfADay()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(QByteArray, name);
    DiaryBytes old = DiaryBytes::Blank(2007);
    old.SetLine(62, 2, before);
    DiaryBytes now = DiaryBytes::Blank(2007);
    now.SetLine(62, 2, after);
    now.SetLine(62, DiaryBytes::Km, "5");
    const DiaryDifference difference = CompareDiaries(Year(old), Year(now));
    QCOMPARE(difference.days.size(), std::size_t(1));
    QCOMPARE(Bytes(difference.days[0].date), name);
}

void DiaryDifferenceTest::ADiaryCutShort_data()
{
    QTest::addColumn<int>("lines"); // That are left.
    QTest::addColumn<int>("days");
    QTest::addColumn<QList<int>>("lost"); // Days that differ, of 3, 200 and 300, which are written.
    QTest::newRow("in the middle of day 200") << 199 * 136 + 4 << 199 << QList<int>{200, 300};
    QTest::newRow("after day 200") << 200 * 136 << 200 << QList<int>{300};
    QTest::newRow("before its first line") << 0 << 0 << QList<int>{3, 200, 300};
    QTest::newRow("at its last line") << 366 * 136 - 1 << 365 << QList<int>{};
}

void DiaryDifferenceTest::ADiaryCutShort()
{
    QFETCH(int, lines);
    QFETCH(int, days);
    QFETCH(QList<int>, lost);
    DiaryBytes whole = DiaryBytes::Blank(2007);
    for (const int slot : {3, 200, 300}) {
        whole.SetLine(slot, DiaryBytes::Km, "5");
    }
    const QByteArray bytes = whole.Bytes();
    qsizetype end = 0;
    for (int i = 0; i < lines; ++i) {
        end = bytes.indexOf('\n', end) + 1;
    }

    const DiaryDifference difference = CompareDiaries(Year(whole), TextOf(bytes.left(end)));
    QCOMPARE(difference.daysBefore, 366);
    QCOMPARE(difference.daysAfter, days);
    QList<int> found;
    for (const DayDifference& day : difference.days) {
        found << day.slot;
    }
    QCOMPARE(found, lost);
}

void DiaryDifferenceTest::AMissingDiaryIsBlank()
{
    DiaryBytes written = DiaryBytes::Blank(2007);
    written.SetLine(62, DiaryBytes::Route, "\"Lago\"");
    const DiaryDifference difference = CompareDiaries(Year(written), "");
    QCOMPARE(difference.daysAfter, 0);
    QCOMPARE(difference.days.size(), std::size_t(1));
    QCOMPARE(Bytes(difference.days[0].date), QByteArray("sabato 3 marzo 2007"));
    QCOMPARE(difference.days[0].fields.size(), std::size_t(1));
    QCOMPARE(CompareDiaries("", "").days.size(), std::size_t(0));
}

ZELVIA_TEST(DiaryDifferenceTest)
#include "DiaryDifferenceTest.moc"
