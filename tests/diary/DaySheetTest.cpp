// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/DaySheet.h"

#include "support/SheetLines.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace zelvia;
using zelvia::test::SheetLines;
using zelvia::test::SheetRow;

namespace
{

DaySheetTexts ADay()
{
    DaySheetTexts giorno;
    giorno.date = CalendarDate(2026, 3, 1);
    giorno.values = {"Lungofiume", "Medio",    "12,500",  "Lento", "Asfalto",   "Allenamento",
                     "18:00:00",   "19:02:05", "1:02:05", "4:58",  "Primavera", "Sereno",
                     "Mite",       "2",        "68",      "8",     "400",       "1:30"};
    giorno.tableName = "Base 10 km";
    giorno.plan = {"10,0", "0:50:0", "5:0", "Medio", "Strada", "0 x 0  @  0:0"};
    giorno.race = {"Mezza del lago", "Como", "1.234", "1:31:07", "21,97", "87", "S50", "9"};
    giorno.note = {"uno", "due", "tre", "quattro", "cinque", "sei", "sette", "otto"};
    giorno.counters = {"60", "31", "402", "2"};
    return giorno;
}

/// The head, the left block and the frame, whatever is on the right.
const QByteArrayList kLeft = {"box 3,1 94,48",
                              "40,2 Times New Roman 12|01/03/2026",
                              "4,4 Times New Roman 11|Percorso ",
                              "4,6 Times New Roman 11|Lunghezza",
                              "4,8 Times New Roman 11|Km",
                              "4,10 Times New Roman 11|Andatura ",
                              "4,12 Times New Roman 11|Terreno",
                              "4,14 Times New Roman 11|Tipo",
                              "4,16 Times New Roman 11|Ora Inizio",
                              "4,18 Times New Roman 11|Ora Fine",
                              "4,20 Times New Roman 11|Tempo",
                              "4,22 Times New Roman 11|Media",
                              "4,24 Times New Roman 11|Stagione",
                              "4,26 Times New Roman 11|Meteo",
                              "4,28 Times New Roman 11|Temperatura",
                              "4,30 Times New Roman 11|Corridori",
                              "4,32 Times New Roman 11|Peso",
                              "4,34 Times New Roman 11|Ripetizioni",
                              "16,4 Times New Roman 11 italic|Lungofiume",
                              "16,6 Times New Roman 11 italic|Medio",
                              "16,8 Times New Roman 11 italic|12,500",
                              "16,10 Times New Roman 11 italic|Lento",
                              "16,12 Times New Roman 11 italic|Asfalto",
                              "16,14 Times New Roman 11 italic|Allenamento",
                              "16,16 Times New Roman 11 italic|18:00:00",
                              "16,18 Times New Roman 11 italic|19:02:05",
                              "16,20 Times New Roman 11 italic|1:02:05",
                              "16,22 Times New Roman 11 italic|4:58",
                              "16,24 Times New Roman 11 italic|Primavera",
                              "16,26 Times New Roman 11 italic|Sereno",
                              "16,28 Times New Roman 11 italic|Mite",
                              "16,30 Times New Roman 11 italic|2",
                              "16,32 Times New Roman 11 italic|68",
                              "16,34 Times New Roman 11 italic|8",
                              "18,34 Times New Roman 11 italic|x",
                              "20,34 Times New Roman 11 italic|400",
                              "25,34 Times New Roman 11 italic|@",
                              "27,34 Times New Roman 11 italic|1:30"};

const QByteArrayList kTableForm = {"48,4 Times New Roman 11|ALLENAMENTO :  Base 10 km",
                                   "48,6 Times New Roman 11|Km",
                                   "48,8 Times New Roman 11|Tempo",
                                   "48,10 Times New Roman 11|Media Km",
                                   "48,12 Times New Roman 11|Andatura",
                                   "48,14 Times New Roman 11|Terreno",
                                   "48,16 Times New Roman 11|Ripetizioni",
                                   "62,6 Times New Roman 11 italic|10,0",
                                   "62,8 Times New Roman 11 italic|0:50:0",
                                   "62,10 Times New Roman 11 italic|5:0",
                                   "62,12 Times New Roman 11 italic|Medio",
                                   "62,14 Times New Roman 11 italic|Strada",
                                   "62,16 Times New Roman 11 italic|0 x 0  @  0:0"};

const QByteArrayList kRaceForm = {"48,4 Times New Roman 11|GARA :  ",       "48,6 Times New Roman 11|Localit\xE0 ",
                                  "48,8 Times New Roman 11|Partecipanti",   "48,10 Times New Roman 11|Tempo Impiegato",
                                  "48,12 Times New Roman 11|Lunghezza",     "48,14 Times New Roman 11|Risultato",
                                  "48,16 Times New Roman 11|Categoria",     "48,18 Times New Roman 11|Risultato",
                                  "62,4 Times New Roman 11|Mezza del lago", "62,6 Times New Roman 11 italic|Como",
                                  "62,8 Times New Roman 11 italic|1.234",   "62,10 Times New Roman 11 italic|1:31:07",
                                  "62,12 Times New Roman 11 italic|21,97",  "62,14 Times New Roman 11 italic|87",
                                  "62,16 Times New Roman 11 italic|S50",    "62,18 Times New Roman 11 italic|9"};

const QByteArrayList kNotesAndFoot = {"48,20 Times New Roman 11 italic|Note",
                                      "56,20 Courier New 10 italic|uno",
                                      "56,22 Courier New 10 italic|due",
                                      "56,24 Courier New 10 italic|tre",
                                      "56,26 Courier New 10 italic|quattro",
                                      "56,28 Courier New 10 italic|cinque",
                                      "56,30 Courier New 10 italic|sei",
                                      "56,32 Courier New 10 italic|sette",
                                      "56,34 Courier New 10 italic|otto",
                                      "4,40 Times New Roman 11|Giorno dell'anno",
                                      "4,42 Times New Roman 11|Allenamenti",
                                      "4,44 Times New Roman 11|Km percorsi",
                                      "4,46 Times New Roman 11|Gare",
                                      "21,40 Times New Roman 11|60",
                                      "21,42 Times New Roman 11|31",
                                      "21,44 Times New Roman 11|402",
                                      "21,46 Times New Roman 11|2"};

} // namespace

class DaySheetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withTheActiveTable()
    {
        const Sheet sheet = DaySheet(ADay());
        QVERIFY(sheet.Paper() == Orientation::Portrait);
        QCOMPARE(SheetLines(sheet), kLeft + kTableForm + kNotesAndFoot);
    }

    void withARaceAndNoRowOfTheTable()
    {
        DaySheetTexts giorno = ADay();
        giorno.showsRace = true;
        QCOMPARE(SheetLines(DaySheet(giorno)), kLeft + kRaceForm + kNotesAndFoot);
    }

    void withoutATable()
    {
        DaySheetTexts giorno = ADay();
        giorno.tableName = "Nessuna tabella attiva";
        giorno.plan = {"0", "0:00", "0:00", "", "", "0 x 000     @ 0.00 "};
        const Sheet sheet = DaySheet(giorno);
        QVERIFY(SheetRow(sheet, 4).contains("48|ALLENAMENTO :  Nessuna tabella attiva"));
        QCOMPARE(SheetRow(sheet, 12), (QByteArrayList{"4|Terreno", "16|Asfalto", "48|Andatura"}));
        QVERIFY(SheetRow(sheet, 16).contains("62|0 x 000     @ 0.00 "));
    }

    void noKilometresLeaveTheirFootLineWithoutAValue()
    {
        DaySheetTexts giorno = ADay();
        giorno.counters[2].clear();
        QCOMPARE(SheetRow(DaySheet(giorno), 44), (QByteArrayList{"4|Km percorsi"}));
    }

    void aLongTextIsNeitherWrappedNorCut()
    {
        DaySheetTexts giorno = ADay();
        giorno.note[7] = Text(200, 'x');
        QVERIFY(SheetRow(DaySheet(giorno), 34).contains("56|" + QByteArray(200, 'x')));
    }
};

ZELVIA_TEST(DaySheetTest)
#include "DaySheetTest.moc"
