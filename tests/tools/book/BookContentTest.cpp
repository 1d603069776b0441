// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/DiaryBytes.h"
#include "support/TestProgram.h"
#include "tools/book/BookDesk.h"

#include <QTest>

#include <filesystem>

using namespace zelvia;
using namespace zelvia::test;

using Words = std::vector<std::string>;

class BookContentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Figures();
    void Months();
    void Days();
    void OneDay();
    void Races();
    void RacesOfTheCalendar();
    void Routes();
    void Statistics();
    void Tables();
    void EarlierYears();
    void LeapYear();
    void WhatCannotBeRead();
};

void BookContentTest::Figures()
{
    const Book book = BookDesk().Make("2023");
    QCOMPARE(book.year, 2023);
    QCOMPARE(Joined(book.facts), (Words{"Corse=2", "Km=20,090", "Tempo=1:55:00", "Media=5:43", "Gare=1"}));
    const auto dots = PartsOf<BookDots>(book, "anno");
    QCOMPARE(dots.size(), std::size_t{1});
    QCOMPARE(dots[0].days.size(), std::size_t{2});
    QCOMPARE(dots[0].days[1].month, 3);
    QCOMPARE(dots[0].days[1].day, 2);
    QCOMPARE(dots[0].days[1].metres, 10045);
    QVERIFY(!dots[0].days[0].race);
    QVERIFY(dots[0].days[1].race);
}

/// Both runs are in the ninth week, from 27 February on.
void BookContentTest::Months()
{
    const Book book = BookDesk().Make("2023");
    const auto charts = PartsOf<ChartData>(book, "anno");
    QCOMPARE(charts.size(), std::size_t{2});
    QCOMPARE(charts[0].ColumnCount(), 52);
    QCOMPARE(charts[0].Data(1, 8), 0.0);
    QCOMPARE(charts[0].Data(1, 9), 20.0);
    QCOMPARE(charts[1].ColumnCount(), 12);
    QCOMPARE(charts[1].ColumnLabel(3), Text("mar"));
    QCOMPARE(charts[1].Data(1, 3), 20.0);
    const auto tables = PartsOf<BookTable>(book, "anno");
    QCOMPARE(tables.size(), std::size_t{1});
    QCOMPARE(tables[0].rows.size(), std::size_t{12});
    QCOMPARE(tables[0].rows[0], (Words{"gennaio", "0", "", "", ""}));
    QCOMPARE(tables[0].rows[2], (Words{"marzo", "2", "20,090", "1:55:00", "5:43"}));
}

/// A day that was only looked at has no entry, nor has the place of a 366th day.
void BookContentTest::Days()
{
    const Book book = BookDesk().Make("2023");
    Words ids;
    for (const BookDay& day : PartsOf<BookDay>(book, "diario")) {
        ids.push_back(day.id + " " + DayTitle(day));
    }
    QCOMPARE(ids, (Words{"g2023-03-01 mercoledì 1 marzo 2023", "g2023-03-02 giovedì 2 marzo 2023",
                         "g2023-12-31 domenica 31 dicembre 2023"}));
    Words months;
    for (const BookHeading& heading : PartsOf<BookHeading>(book, "diario")) {
        months.push_back(heading.id + " " + heading.title);
    }
    QCOMPARE(months, (Words{"mese3 marzo", "mese12 dicembre"}));
}

void BookContentTest::OneDay()
{
    const auto days = PartsOf<BookDay>(BookDesk().Make("2023"), "diario");
    QCOMPARE(Joined(days[0].head), (Words{"Km=10,045", "Tempo=1:00:00", "Media=5:58"}));
    QCOMPARE(Joined(days[0].fields), (Words{"Percorso=Città alta", "Tipo=Allenamento", "Ora Inizio=9:00:00",
                                            "Ora Fine=10:00:00", "Peso=70", "Ripetizioni=5 x 1000 @ 4:30"}));
    QCOMPARE(days[0].splits, (Words{"01 00:06:00", "arrivo"}));
    QVERIFY(!days[0].race);
    QVERIFY(days[1].race);
    QCOMPARE(Joined(days[2].fields), Words());
    QCOMPARE(days[2].notes, (Words{"riposo <b> & 5 €", "", "fine"}));
}

/// A race of the diary that the calendar does not have.
void BookContentTest::Races()
{
    const auto tables = PartsOf<BookTable>(BookDesk().Make("2023"), "gare");
    QCOMPARE(tables.size(), std::size_t{1});
    QCOMPARE(tables[0].rows, (std::vector<Words>{{"2/3", "città ALTA", "10,045", "0:55:00", "5:28", "", ""}}));
}

/// One on the day of the diary's race, and one of another year.
void BookContentTest::RacesOfTheCalendar()
{
    const BookDesk desk;
    Text rows;
    for (int row = 1; row <= 100; ++row) {
        const std::string number = std::to_string(row);
        if (row == 1) {
            rows += number + "\r\n2\r\n3\r\n2023\r\n\"Corsa dei Ponti\"\r\n\"Lecco\"\r\n10\r\n45\r\n1234\r\n56\r\n"
                             "0\r\n54\r\n59\r\n\"S50\"\r\n3\r\n";
        } else {
            rows += number + (row == 2 ? "\r\n2\r\n3\r\n2022\r\n" : "\r\n0\r\n0\r\n0\r\n") +
                    "\"\"\r\n\"\"\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n\"\"\r\n0\r\n";
        }
    }
    std::filesystem::create_directory(desk.Native("2023"));
    desk.Write("2023/CalendarioGare", rows);
    const auto tables = PartsOf<BookTable>(desk.Make("2023"), "gare");
    QCOMPARE(tables.size(), std::size_t{1});
    // 3299 seconds over 10.045 km are 328 a kilometre.
    QCOMPARE(tables[0].rows, (std::vector<Words>{{"2/3", "Corsa dei Ponti, Lecco", "10,045", "0:54:59", "5:28",
                                                  "56° su 1.234", "3° S50"}}));
}

/// The spelling of a route does not matter.
void BookContentTest::Routes()
{
    const Book book = BookDesk().Make("2023");
    const auto headings = PartsOf<BookHeading>(book, "percorsi");
    QCOMPARE(headings.size(), std::size_t{1});
    QCOMPARE(headings[0].title, std::string("Città alta"));
    QCOMPARE(PartsOf<BookParagraph>(book, "percorsi")[0].text, std::string("2 corse, 20,090 km."));
    const auto rankings = PartsOf<BookTable>(book, "percorsi");
    QCOMPARE(rankings.size(), std::size_t{1});
    QCOMPARE(rankings[0].rows,
             (std::vector<Words>{{"1°", "0:55:00", "5:28", "02/03/2023"}, {"2°", "1:00:00", "5:58", "01/03/2023"}}));
    QVERIFY(rankings[0].best == std::size_t{0});
}

void BookContentTest::Statistics()
{
    const Book book = BookDesk().Make("2023");
    Words titles;
    for (const BookHeading& heading : PartsOf<BookHeading>(book, "statistiche")) {
        titles.push_back(heading.title);
    }
    QCOMPARE(titles,
             (Words{"Percorso", "Km", "Tipo", "Corridori", "Peso", "Ripetizioni", "Media al km, corsa per corsa"}));
    const auto charts = PartsOf<ChartData>(book, "statistiche");
    QCOMPARE(charts[0].ColumnCount(), 1);
    QCOMPARE(charts[0].Data(1, 1), 2.0);
    QCOMPARE(charts.back().RowCount(), 2);
    QCOMPARE(charts.back().Data(1, 1), 5.58);
}

/// A row of a table for each that asks for something; of a statistic with more values than a chart can show.
void BookContentTest::Tables()
{
    const Book book = BookDesk().Make("prova");
    const auto headings = PartsOf<BookHeading>(book, "tabelle");
    QCOMPARE(headings.size(), std::size_t{2});
    QCOMPARE(headings[0].title, std::string("Base 10 km"));
    const auto plans = PartsOf<BookTable>(book, "tabelle");
    QCOMPARE(plans[0].rows[0], (Words{"02/03/2026", "6,000 km, 0:34:00, 5:40 al km, Media, Strada"}));
    const auto lists = PartsOf<BookTable>(book, "statistiche");
    QVERIFY(!lists.empty());
    QVERIFY(lists[0].rows.size() > 14);
    QCOMPARE(lists[0].columns[0].heading, std::string("Km"));
    QVERIFY(book.warnings.empty());
}

/// From the latest on; those that follow the book's year, and another diary of the same year, are passed over.
void BookContentTest::EarlierYears()
{
    const BookDesk desk;
    desk.LayRun("2021", 2021, "7");
    desk.LayRun("2022", 2022, "8");
    desk.LayRun("2024", 2024, "9");
    desk.LayRun("altro", 2023, "500");
    const auto curves = PartsOf<BookCurves>(desk.Make("2023"), "anno");
    QCOMPARE(curves.size(), std::size_t{1});
    QCOMPARE(curves[0].curves.size(), std::size_t{3});
    QCOMPARE(curves[0].curves[0].year, 2023);
    QCOMPARE(curves[0].curves[0].km.back(), 20.09);
    QCOMPARE(curves[0].curves[1].year, 2022);
    QCOMPARE(curves[0].curves[1].km.size(), std::size_t{365});
    QCOMPARE(curves[0].curves[1].km.back(), 8.0);
    QCOMPARE(curves[0].curves[2].year, 2021);
}

void BookContentTest::LeapYear()
{
    const BookDesk desk;
    DiaryBytes diary = DiaryBytes::Blank(2024);
    diary.SetLine(366, DiaryBytes::Notes + 9, "\"ultima riga\"");
    desk.Write("ZelviaFile/2024.zlv", diary.Bytes().toStdString());
    const Book book = desk.Make("2024");
    const auto days = PartsOf<BookDay>(book, "diario");
    QCOMPARE(days.size(), std::size_t{1});
    // Without a run there are no figures.
    QVERIFY(ChapterOf(book, "anno") == nullptr);
    QVERIFY(book.facts.empty());
    QCOMPARE(DayTitle(days[0]), std::string("martedì 31 dicembre 2024"));
    QCOMPARE(days[0].notes, (Words{"", "", "", "", "", "", "", "ultima riga"}));
}

void BookContentTest::WhatCannotBeRead()
{
    const BookDesk desk;
    const Book missing = desk.Make("2023");
    QCOMPARE(missing.warnings.size(), std::size_t{2});
    QVERIFY(missing.warnings[0].starts_with("Il calendario delle gare non si legge per intero («"));
    QVERIFY(missing.warnings[1].starts_with("Le descrizioni dei percorsi non si leggono per intero («"));
    desk.Write("prova/Rotta.tab", "1\r\nx\r\n");
    const Book broken = desk.Make("prova");
    QCOMPARE(broken.warnings.size(), std::size_t{1});
    QVERIFY(broken.warnings[0].starts_with("La tabella «Rotta» non si legge per intero («"));
}

ZELVIA_TEST(BookContentTest)
#include "BookContentTest.moc"
