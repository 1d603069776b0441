// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/Bytes.h"
#include "support/TestProgram.h"
#include "tools/copies/SafeFiles.h"
#include "tools/exchange/IncomingDay.h"

#include <QTest>

using namespace zelvia;
using namespace zelvia::test;

class DayColumnsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Names();
    void Heads_data();
    void Heads();
    void AFullDay();
    void ABlankDay();
    void Entries();
    void Splits();
    void Incoming_data();
    void Incoming();
    void Refused_data();
    void Refused();
    void Notes_data();
    void Notes();
    void ComesBack();
};

namespace
{

RecordGiorno FullDay()
{
    RecordGiorno day;
    day.Data = CalendarDate(2024, 2, 29);
    day.Percorso = "Citt\xE0 alta";
    day.Lunghezza = "Medio";
    day.Km = 10;
    day.Metri = 45;
    day.Modo = "Media";
    day.Fondo = "Strada";
    day.Tipo = "Gara";
    day.OraInizio = 9;
    day.MinutiInizio = 5;
    day.OraFine = 10;
    day.MinutiFine = 0;
    day.SecondiFine = 7;
    day.TempoImpiegato = "0:55:07";
    day.MediaKm = "5:29"; // 3307 seconds by 10.045 km are 329.2.
    day.Stagione = "Inverno";
    day.TempoAtm = "Sole";
    day.Temperatura = "Freddo";
    day.Corridori = 412;
    day.Peso = 70;
    day.Ripetizioni = 5;
    day.RipetizioniDistanza = 1000;
    day.RipetizioniQuante = 4;
    day.RipetizioniTempi = 30;
    day.Note[4] = "seconda, riga";
    return day;
}

/// The cells of a day, "|" between them.
QByteArray CellsOf(const RecordGiorno& day)
{
    QByteArrayList cells;
    for (const DayColumnRow& row : DayColumns()) {
        cells << Bytes(CellOf(day, row.column));
    }
    return cells.join('|');
}

IncomingDay OneCell(DayColumn column, const std::string& cell)
{
    return IncomingOf({DayColumn::Date, column}, {"2024-02-29", cell});
}

} // namespace

void DayColumnsTest::Names()
{
    QByteArrayList names;
    for (const DayColumnRow& row : DayColumns()) {
        names << Bytes(row.name);
    }
    QCOMPARE(names.join(' '), QByteArray("date route length_class km pace_class terrain type start end time average "
                                         "season weather temperature runners weight repetitions repetition_distance "
                                         "repetition_time notes"));
    for (std::size_t i = 0; i < DayColumns().size(); ++i) {
        QCOMPARE(static_cast<std::size_t>(DayColumns()[i].column), i);
    }
}

void DayColumnsTest::Heads_data()
{
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<int>("column");
    QTest::newRow("name") << QByteArray("km") << static_cast<int>(DayColumn::Km);
    QTest::newRow("case and blanks") << QByteArray(" Length_Class ") << static_cast<int>(DayColumn::LengthClass);
    QTest::newRow("the page's") << QByteArray("ora inizio") << static_cast<int>(DayColumn::Start);
    QTest::newRow("another one") << QByteArray("chilometri") << -1;
    QTest::newRow("none") << QByteArray() << -1;
}

void DayColumnsTest::Heads()
{
    QFETCH(QByteArray, head);
    const auto column = ColumnOf(head.toStdString());
    QTEST(column ? static_cast<int>(*column) : -1, "column");
}

void DayColumnsTest::AFullDay()
{
    QCOMPARE(CellsOf(FullDay()),
             QByteArray("2024-02-29|Città alta|Medio|10.045|Media|Strada|Gara|9:05:00|10:00:07|0:55:07|0:05:29|"
                        "Inverno|Sole|Freddo|412|70|5|1000|0:04:30|\nseconda, riga"));
}

void DayColumnsTest::ABlankDay()
{
    RecordGiorno day;
    day.Data = CalendarDate(2023, 1, 1);
    day.TempoImpiegato = "0:00:00";
    day.MediaKm = "0:00";
    QCOMPARE(CellsOf(day), QByteArray("2023-01-01|||0.000|||||||||||1|||||"));
    day.OraFine = 1; // From midnight on.
    QCOMPARE(Bytes(CellOf(day, DayColumn::Start)), QByteArray("0:00:00"));
    day.TempoImpiegato = "-1:00:00";
    QCOMPARE(Bytes(CellOf(day, DayColumn::Time)), QByteArray("-1:00:00"));
    day.MediaKm = "60:00";
    QCOMPARE(Bytes(CellOf(day, DayColumn::Average)), QByteArray("1:00:00"));
}

void DayColumnsTest::Entries()
{
    RecordGiorno day;
    day.NumGiorno = 5;
    day.Data = CalendarDate(2023, 1, 5);
    QVERIFY(!HasEntry(day));
    day.TempoImpiegato = "0:00:00";
    day.MediaKm = "0:00";
    QVERIFY(!HasEntry(day));
    day.Peso = 70;
    QVERIFY(HasEntry(day));
    day.Peso = 0;
    day.Note[10] = "x";
    QVERIFY(HasEntry(day));
}

void DayColumnsTest::Splits()
{
    RecordGiorno day;
    day.ListaKm[0] = "01      00:05:07";
    day.ListaKm[1] = "100      10:05:07";
    day.ListaKm[3] = "meta'      00:25:00";
    day.ListaKm[4] = "05      presto";
    int unreadable = 0;
    const std::vector<DaySplit> splits = SplitsOf(day, unreadable);
    QCOMPARE(splits.size(), std::size_t{2});
    QCOMPARE(Bytes(splits[0].km + "=" + splits[0].time), QByteArray("1=0:05:07"));
    QCOMPARE(Bytes(splits[1].km + "=" + splits[1].time), QByteArray("100=10:05:07"));
    QCOMPARE(unreadable, 2);
}

void DayColumnsTest::Incoming_data()
{
    QTest::addColumn<QStringList>("heads");
    QTest::addColumn<QStringList>("cells");
    QTest::addColumn<QByteArray>("expected"); // date|km|start|end|time|average
    const auto row = [](const char* name, const char* heads, const char* cells, const char* expected) {
        QTest::newRow(name) << QString::fromLatin1(heads).split(QLatin1Char('|'))
                            << QString::fromLatin1(cells).split(QLatin1Char('|')) << QByteArray(expected);
    };
    row("ours", "date|km|start|end", "2024-05-01|10.500|9:00:00|10:00:30",
        "2024-05-01|10.500|9:00:00|10:00:30|1:00:30|0:05:45");
    row("a spreadsheet's", "Data|Km|Tempo", "1/5/2024|10,5|1:00:30",
        "2024-05-01|10.500|0:00:00|1:00:30|1:00:30|0:05:45");
    row("start and time", "date|start|time", "2024-05-01|9:00|48:30", "2024-05-01|0.000|9:00:00|9:48:30|0:48:30|");
    row("the end counts", "date|start|end|time", "2024-05-01|9:00|9:30|0:48:30",
        "2024-05-01|0.000|9:00:00|9:30:00|0:30:00|");
    row("rounded", "date|km", "2024-05-01|10.4996", "2024-05-01|10.500||||");
    row("up to the next", "date|km", "2024-05-01|9.9996", "2024-05-01|10.000||||");
    row("only the distance", "date|km|time", "2024-05-01|7|", "2024-05-01|7.000||||");
}

void DayColumnsTest::Incoming()
{
    QFETCH(QStringList, heads);
    QFETCH(QStringList, cells);
    std::vector<std::optional<DayColumn>> columns;
    std::vector<std::string> texts;
    for (qsizetype i = 0; i < heads.size(); ++i) {
        columns.push_back(ColumnOf(heads[i].toStdString()));
        texts.push_back(cells[i].toStdString());
    }
    const IncomingDay incoming = IncomingOf(columns, texts);
    RecordGiorno day;
    QVERIFY(PutInto(day, incoming));
    day.Data = incoming.date;
    QByteArrayList result;
    for (const DayColumn column :
         {DayColumn::Date, DayColumn::Km, DayColumn::Start, DayColumn::End, DayColumn::Time, DayColumn::Average}) {
        result << Bytes(CellOf(day, column));
    }
    QTEST(result.join('|'), "expected");
}

void DayColumnsTest::Refused_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QByteArray>("cell");
    QTest::addColumn<QByteArray>("reason");
    const auto row = [](const char* name, DayColumn column, const char* cell, const char* reason) {
        QTest::newRow(name) << static_cast<int>(column) << QByteArray(cell) << QByteArray(reason);
    };
    row("too far", DayColumn::Km, "501", "«501» non è un valore di «km»");
    row("negative", DayColumn::Km, "-1", "«-1» non è un valore di «km»");
    row("two points", DayColumn::Km, "1.000,5", "«1.000,5» non è un valore di «km»");
    row("not finite", DayColumn::Km, "nan", "«nan» non è un valore di «km»");
    row("no time", DayColumn::Start, "nove", "«nove» non è un valore di «start»");
    row("61 minutes", DayColumn::End, "9:61", "«9:61» non è un valore di «end»");
    row("past the day", DayColumn::End, "25:00:00", "«25:00:00» non è un valore di «end»");
    row("a huge number", DayColumn::Time, "99999999999:00:00", "«99999999999:00:00» non è un valore di «time»");
    row("too heavy", DayColumn::Weight, "151", "«151» non è un valore di «weight»");
    row("nobody", DayColumn::Runners, "0", "«0» non è un valore di «runners»");
    row("half", DayColumn::Repetitions, "2.5", "«2.5» non è un valore di «repetitions»");
    row("slow repetitions", DayColumn::RepetitionTime, "1:01:00", "«1:01:00» non è un valore di «repetition_time»");
}

void DayColumnsTest::Refused()
{
    QFETCH(int, column);
    QFETCH(QByteArray, cell);
    QFETCH(QByteArray, reason);
    RecordGiorno day;
    try {
        PutInto(day, OneCell(static_cast<DayColumn>(column), cell.toStdString()));
        QFAIL("it was taken");
    } catch (const FileFailure& failure) {
        QCOMPARE(QByteArray(failure.what()), reason);
    }
    for (const char* date : {"", "ieri", "2024-02-30", "31/2/2024", "1899-12-31", "2100-01-01"}) {
        QVERIFY_THROWS_EXCEPTION(FileFailure, IncomingOf({DayColumn::Date}, {date}));
    }
}

void DayColumnsTest::Notes_data()
{
    QTest::addColumn<QByteArray>("cell");
    QTest::addColumn<QByteArray>("notes"); // "|" between the lines.
    QTest::addColumn<bool>("whole");
    QTest::newRow("lines") << QByteArray("uno\r\ndue\n\nquattro") << QByteArray("uno|due||quattro||||") << true;
    QTest::newRow("quotes") << QByteArray("detto \"bravo\"") << QByteArray("detto 'bravo'|||||||") << true;
    QTest::newRow("wrapped") << QByteArray("una riga che non sta nella casella perche' e' lunga")
                             << QByteArray("una riga che non sta nella|casella perche' e' lunga||||||") << true;
    QTest::newRow("no blank") << QByteArray(40, 'x') << QByteArray(32, 'x') + "|xxxxxxxx||||||" << true;
    QTest::newRow("too many") << QByteArray("1\n2\n3\n4\n5\n6\n7\n8\n9") << QByteArray("1|2|3|4|5|6|7|8") << false;
}

void DayColumnsTest::Notes()
{
    QFETCH(QByteArray, cell);
    RecordGiorno day;
    QTEST(PutInto(day, OneCell(DayColumn::Notes, cell.toStdString())), "whole");
    QByteArrayList notes;
    for (int i = 3; i <= 10; ++i) {
        notes << Bytes(day.Note[i]);
    }
    QTEST(notes.join('|'), "notes");
}

void DayColumnsTest::ComesBack()
{
    const RecordGiorno day = FullDay();
    std::vector<std::optional<DayColumn>> columns;
    std::vector<std::string> cells;
    for (const DayColumnRow& row : DayColumns()) {
        columns.emplace_back(row.column);
        cells.push_back(CellOf(day, row.column));
    }
    const IncomingDay incoming = IncomingOf(columns, cells);
    RecordGiorno back;
    back.Data = incoming.date;
    QVERIFY(PutInto(back, incoming));
    QCOMPARE(CellsOf(back), CellsOf(day));
    QVERIFY(back == day);
}

ZELVIA_TEST(DayColumnsTest)
#include "DayColumnsTest.moc"
