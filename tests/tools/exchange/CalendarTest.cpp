// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/exchange/Calendar.h"

#include "diary/CalendarModel.h"
#include "diary/TableModel.h"
#include "support/Bytes.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace zelvia;
using namespace zelvia::Module1;
using namespace zelvia::test;

class CalendarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AnEvent();
    void LongLinesAreFolded();
    void Races();
    void Plan();
};

void CalendarTest::AnEvent()
{
    const CalendarEvent event{
        "gara-1-20241231@zelvia", CalendarDate(2024, 12, 31), "Corsa, una; e \\ due", "Città\nalta", "", "Gara"};
    QCOMPARE(Bytes(ICalendar({event}, "20241122T171500Z")),
             QByteArray("BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Zelvia//Zelvia//IT\r\nCALSCALE:GREGORIAN\r\n"
                        "BEGIN:VEVENT\r\nUID:gara-1-20241231@zelvia\r\nDTSTAMP:20241122T171500Z\r\n"
                        "DTSTART;VALUE=DATE:20241231\r\nDTEND;VALUE=DATE:20250101\r\n"
                        "SUMMARY:Corsa\\, una\\; e \\\\ due\r\nLOCATION:Città\\nalta\r\nCATEGORIES:Gara\r\n"
                        "TRANSP:TRANSPARENT\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n"));
}

void CalendarTest::LongLinesAreFolded()
{
    // "SUMMARY:" and 66 letters are 74 bytes; the accented letter of two would be the 75th and 76th.
    const std::string text = std::string(66, 'a') + "à" + std::string(80, 'b');
    QByteArray file = Bytes(ICalendar({{"1", CalendarDate(2024, 1, 1), text, "", "", ""}}, "20241122T171500Z"));
    constexpr int longest = 75;
    for (const QByteArray& line : file.split('\n')) {
        QVERIFY2(line.chopped(line.endsWith('\r') ? 1 : 0).size() <= longest, line.constData());
        QCOMPARE(QString::fromUtf8(line).toUtf8(), line);
    }
    file.replace("\r\n ", "");
    QVERIFY(file.contains("\r\nSUMMARY:" + Bytes(text) + "\r\n"));
}

void CalendarTest::Races()
{
    AzzeraCalendario();
    GiornoGara[1] = 12;
    MeseGara[1] = 10;
    AnnoGara[1] = 2025;
    Gara[1] = "Maratona d\x92"
              "autunno";
    Localita[1] = "Cittadella";
    KmGara[1] = 42;
    MetriGara[1] = 195;
    OreGara[1] = 3;
    MinutiGara[1] = 59;
    SecondiGara[1] = 5;
    Partecipanti[1] = 1200;
    Risultato[1] = 412;
    Categoria[1] = "S50";
    RisultatoCat[1] = 31;
    MeseGara[2] = 5; // No day: a free row.
    GiornoGara[3] = 30;
    MeseGara[3] = 2;
    AnnoGara[3] = 2025; // No such day.
    GiornoGara[100] = 1;
    MeseGara[100] = 1;
    AnnoGara[100] = 2026;
    const std::vector<CalendarEvent> events = RaceEvents();
    QCOMPARE(events.size(), std::size_t{2});
    QVERIFY(events[0].date == CalendarDate(2025, 10, 12));
    QCOMPARE(Bytes(events[0].uid), QByteArray("gara-1-20251012@zelvia"));
    QCOMPARE(Bytes(events[0].summary), QByteArray("Maratona d’autunno"));
    QCOMPARE(Bytes(events[0].place), QByteArray("Cittadella"));
    QCOMPARE(Bytes(events[0].description), QByteArray("42,195 km, 3:59:05, 412º su 1200, 31º S50"));
    QCOMPARE(Bytes(events[1].summary), QByteArray("Gara"));
    QCOMPARE(Bytes(events[1].description), QByteArray());
}

void CalendarTest::Plan()
{
    AzzeraTabella();
    TabDataInizio = CalendarDate(2024, 2, 28);
    TabKm[1] = 10;
    TabMetri[1] = 500;
    TabOre[1] = 0;
    TabMinuti[1] = 50;
    TabMediaMinuti[3] = 4;
    TabMediaSecondi[3] = 5;
    TabAndatura[3] = "Veloce";
    TabFondo[3] = "Strada";
    TabRipetVolte[3] = 5;
    TabRipetDistanza[3] = 1000;
    TabRipetQuante[3] = 4;
    TabRipetTempi[3] = 30;
    const std::vector<CalendarEvent> events = PlanEvents("Base");
    QCOMPARE(events.size(), std::size_t{2});
    QVERIFY(events[0].date == CalendarDate(2024, 2, 28));
    QCOMPARE(Bytes(events[0].summary), QByteArray("10,500 km, 0:50:00"));
    QCOMPARE(Bytes(events[0].description), QByteArray("Tabella Base, giorno 1"));
    QVERIFY(events[1].date == CalendarDate(2024, 3, 1));
    QCOMPARE(Bytes(events[1].summary), QByteArray("4:05 al km, Veloce, Strada, 5 x 1000 m @ 4:30"));
}

ZELVIA_TEST(CalendarTest)
#include "CalendarTest.moc"
