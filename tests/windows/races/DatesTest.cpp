// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the calendar's window makes of the dates: when a page is turned, at a save, at the close.
#include "core/Messages.h"
#include "diary/CalendarModel.h"
#include "support/CalendarDesk.h"
#include "support/WindowTest.h"

namespace zelvia::test
{

class DatesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void datesAreCorrected_data();
    void datesAreCorrected();
    void aCenturyIsALeapYear();
    void theNumberIsThatOfTheCalendar();
    void theYearIsThatOfTheDayShown();
    void twoRacesOnOneDate();
    void aNameWithoutADate();
};

namespace
{

ExpectedBox Wrong(const QByteArray& what)
{
    return Warning(QStringLiteral(" ERRORE AL N° 3 :  %1 ").arg(QString::fromLatin1(what)));
}

ExpectedBox Missing(const QByteArray& what)
{
    return Warning(QStringLiteral(" MANCA AL N° 3 :   %1   ").arg(QString::fromLatin1(what)));
}

ExpectedBox OtherYear()
{
    return Warning(QStringLiteral(" MODIFICA AL N° 3 :   ANNO 2026  "));
}

} // namespace

void DatesTest::datesAreCorrected_data()
{
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<QByteArray>("told");
    QTest::addColumn<QByteArray>("kept");
    const auto row = [](const char* typed, const char* told, const char* kept) {
        QTest::newRow(typed) << QByteArray(typed) << QByteArray(told) << QByteArray(kept);
    };
    row("31/04/2026", "MAX 30 GIORNI", "30|4|2026");
    row("30/02/2008", "MAX 29 GIORNI", "29|2|2008");
    row("29/02/2009", "MAX 28 GIORNI", "28|2|2009");
    row("05/05/2006", "ANNO", "5|5|2026");
    row("//2026", "GIORNO;MESE", "0|0|2026");
    row("//", "", "0|0|0");
    row("7//", "MESE;ANNO", "7|0|2026");
    row("/7/2026", "GIORNO", "0|7|2026");
    row("31/11/2006", "MAX 30 GIORNI;ANNO", "30|11|2026");
    row("29/02/2008", "", "29|2|2008");
}

void DatesTest::datesAreCorrected()
{
    QFETCH(QByteArray, typed);
    QFETCH(QByteArray, told);
    QFETCH(QByteArray, kept);
    // Not on entry: at each of the ways in which the boxes reach the calendar.
    for (const char* way : {"page", "save", "close"}) {
        CalendarDesk desk;
        desk.StartOpen();
        const QByteArrayList date = typed.split('/');
        desk.WriteDate(3, date[0], date[1], date[2]);
        hand::Click(desk.Box(RaceColumn::Gara, 3));
        QTRY_COMPARE(CalendarDesk::Focused(), QByteArray("txtGare(3)"));
        QCOMPARE(desk.Row(3), date.join('|') + "|||||||||||");
        VERIFY_SCRIPT(desk.script);
        if (*way == 's') {
            desk.script.Expect(Messages::kSaveRaces, QMessageBox::Ok);
        }
        for (const QByteArray& what : told.split(';')) {
            if (what.startsWith("MAX")) {
                desk.script.Expect(Wrong(what));
            } else if (what == "ANNO") {
                desk.script.Expect(OtherYear());
            } else if (!what.isEmpty()) {
                desk.script.Expect(Missing(what));
            }
        }
        switch (*way) {
        case 'p': desk.NextPage(); break;
        case 's': hand::Click(*desk.Window()->cmdSalva); break;
        default:
            if (typed != "//") {
                desk.script.Expect(Messages::kRacesNotSaved, QMessageBox::Cancel);
                desk.TryToLeave();
            } else {
                desk.Leave();
            }
        }
        TRY_SCRIPT(desk.script);
        QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
        QTRY_COMPARE(RaceInMemory(3), kept + "|||0|0|0|0|0|0|0||0");
        if (*way == 's') {
            QCOMPARE(desk.File(), CalendarBytes().SetRow(3, kept).Bytes());
        }
    }
}

void DatesTest::aCenturyIsALeapYear()
{
    CalendarDesk desk;
    desk.StartOpen();
    // The year is beyond the limit of its box, but turning the page does not leave the box.
    desk.WriteDate(3, "29", "02", "2100");
    desk.NextPage();
    QTRY_COMPARE(desk.FirstNumber(), QByteArray("21"));
    QCOMPARE(RaceInMemory(3), QByteArray("29|2|2100|||0|0|0|0|0|0|0||0"));
    VERIFY_SCRIPT(desk.script);
}

void DatesTest::theNumberIsThatOfTheCalendar()
{
    CalendarDesk desk;
    desk.StartOpen();
    for (int page = 2; page <= 5; ++page) {
        desk.NextPage();
    }
    QTRY_COMPARE(desk.FirstNumber(), QByteArray("81"));
    desk.WriteDate(20, "31", "6", "2026");
    desk.script.Expect(Warning(QStringLiteral(" ERRORE AL N° 100 :  MAX 30 GIORNI ")));
    desk.PreviousPage();
    QTRY_COMPARE(desk.FirstNumber(), QByteArray("61"));
    QCOMPARE(RaceInMemory(100).left(9), QByteArray("30|6|2026"));
    VERIFY_SCRIPT(desk.script);
}

void DatesTest::theYearIsThatOfTheDayShown()
{
    CalendarDesk desk;
    desk.StartOpen();
    Module1::DataCorrente = CalendarDate(2031, 1, 1);
    desk.WriteDate(1, "1", "1", "");
    desk.script.Expect(Warning(QStringLiteral(" MODIFICA AL N° 1 :   ANNO 2031  ")));
    desk.NextPage();
    QTRY_COMPARE(desk.FirstNumber(), QByteArray("21"));
    QCOMPARE(RaceInMemory(1).left(8), QByteArray("1|1|2031"));
    VERIFY_SCRIPT(desk.script);
}

void DatesTest::twoRacesOnOneDate()
{
    CalendarBytes file;
    file.SetRow(50, "5|9|2026|Lontana");
    CalendarDesk desk(file);
    desk.StartOpen();
    desk.WriteRow(2, "05|09|2026|Prima");
    desk.WriteRow(7, "5|9|2026|Seconda");
    const auto expectThem = [&] {
        for (const char* rows : {"2  E AL N° 7", "2  E AL N° 50", "7  E AL N° 50"}) {
            desk.script.Expect(
                Stop(QStringLiteral("5-9-2026   DATA PRESENTE AL  N° %1  ").arg(QString::fromUtf8(rows))));
        }
    };
    desk.script.Expect(Messages::kSaveRaces, QMessageBox::Ok);
    expectThem();
    hand::Click(*desk.Window()->cmdSalva);
    TRY_SCRIPT(desk.script);
    QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
    QCOMPARE(desk.File(), file.Bytes());
    // What could not be saved stays in memory.
    QCOMPARE(RaceInMemory(2), QByteArray("5|9|2026|Prima||0|0|0|0|0|0|0||0"));
    QCOMPARE(RaceInMemory(7), QByteArray("5|9|2026|Seconda||0|0|0|0|0|0|0||0"));

    desk.Write(RaceColumn::Giorno, 2, QStringLiteral("6"));
    desk.Write(RaceColumn::Giorno, 7, QStringLiteral("7"));
    desk.Save();
    file.SetRow(2, "6|9|2026|Prima").SetRow(7, "7|9|2026|Seconda");
    QTRY_COMPARE(desk.File(), file.Bytes());
    VERIFY_SCRIPT(desk.script);
}

void DatesTest::aNameWithoutADate()
{
    CalendarDesk desk;
    desk.StartOpen();
    desk.Write(RaceColumn::Gara, 4, QStringLiteral("Forse"));
    desk.Save();
    QTRY_COMPARE(desk.File(), CalendarBytes().SetRow(4, "|||Forse").Bytes());
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::DatesTest)
#include "DatesTest.moc"
