// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A runner's races from the plan to the result, through the real windows.
#include "support/CalendarDesk.h"
#include "support/WindowTest.h"

namespace zelvia::test
{

class RaceYearTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fromThePlanToTheResult();
};

namespace
{

/// Types three races on two pages, each with a date or a number to be corrected.
void PlanRaces(CalendarDesk& desk)
{
    desk.Write(RaceColumn::Giorno, 1, QStringLiteral("35"));
    desk.script.Expect(Warning(QStringLiteral("MAX 31 GIORNI                 ")));
    hand::Key(Qt::Key_Return);
    TRY_SCRIPT(desk.script);
    desk.Write(RaceColumn::Giorno, 1, QStringLiteral("31"));
    hand::Key(Qt::Key_Return);
    for (const char* value : {"4", "2026", "GIRO DELLE MURA", "CITTA ALTA", "10"}) {
        hand::Type(QLatin1String(value));
        hand::Key(Qt::Key_Return);
    }
    desk.WriteRow(2, "24|5|2006|Notturna|Lido|9|500");
    desk.script.Expect(Warning(QStringLiteral(" ERRORE AL N° 1 :  MAX 30 GIORNI ")));
    desk.script.Expect(Warning(QStringLiteral(" MODIFICA AL N° 2 :   ANNO 2026  ")));
    desk.NextPage();
    QTRY_COMPARE(desk.FirstNumber(), QByteArray("21"));
    desk.WriteRow(1, "24||2026|Doppia|Ponte|21|97");
}

} // namespace

void RaceYearTest::fromThePlanToTheResult()
{
    CalendarDesk desk;
    desk.StartOpen();
    PlanRaces(desk);
    VERIFY_SCRIPT(desk.script);

    // A date without its month is reported and saved unchanged, a date that occurs twice is not saved.
    desk.script.Expect(Messages::kSaveRaces, QMessageBox::Ok);
    desk.script.Expect(Warning(QStringLiteral(" MANCA AL N° 21 :   MESE   ")));
    hand::Click(*desk.Window()->cmdSalva);
    TRY_SCRIPT(desk.script);
    QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
    CalendarBytes file;
    file.SetRow(1, "30|4|2026|Giro Delle Mura|Citta Alta|10").SetRow(2, "24|5|2026|Notturna|Lido|9|500");
    file.SetRow(21, "24|0|2026|Doppia|Ponte|21|97");
    QTRY_COMPARE(desk.File(), file.Bytes());
    desk.Write(RaceColumn::Mese, 1, QStringLiteral("5"));
    desk.script.Expect(Messages::kSaveRaces, QMessageBox::Ok);
    desk.script.Expect(Stop(QStringLiteral("24-5-2026   DATA PRESENTE AL  N° 2  E AL N° 21  ")));
    hand::Click(*desk.Window()->cmdSalva);
    TRY_SCRIPT(desk.script);
    QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
    QCOMPARE(desk.File(), file.Bytes());
    desk.Write(RaceColumn::Mese, 1, QStringLiteral("6"));
    desk.Save();
    file.SetRow(21, "24|6|2026|Doppia|Ponte|21|97");
    QTRY_COMPARE(desk.File(), file.Bytes());
    desk.Leave();

    // The day of the race, and its result: first thrown away, then kept back, then saved.
    desk.GoTo(144);
    QVERIFY(desk->lblGara->isVisible());
    QCOMPARE(desk.Caption("lblGara"), QStringLiteral("Notturna"));
    QCOMPARE(desk.Caption("lblLunghezzaGara"), QStringLiteral("9,500"));
    QCOMPARE(desk.Caption("lblTempoImpiegato"), QStringLiteral("0:00:00"));
    const char* result = "24|5|2026|Notturna|Lido|9|500|1234|217||44|5|MM45|27";
    desk.OpenCalendar();
    desk.WriteRow(2, "||||||||217");
    desk.LeaveAnswering(QMessageBox::No);
    QCOMPARE(desk.File(), file.Bytes());
    QCOMPARE(RaceInMemory(2), QByteArray("24|5|2026|Notturna|Lido|9|500|0|217|0|0|0||0"));

    desk.OpenCalendar();
    QCOMPARE(desk.Row(2), QByteArray("24|5|2026|Notturna|Lido|9|500|||||||"));
    hand::Click(desk.Box(RaceColumn::Partecipanti, 2));
    for (const char* value : {"1234", "217", "", "44", "5", "MM45", "27"}) {
        if (*value != '\0') {
            hand::Type(QLatin1String(value));
        }
        hand::Key(Qt::Key_Return);
    }
    desk.script.Expect(Messages::kRacesNotSaved, QMessageBox::Cancel);
    desk.TryToLeave();
    QCOMPARE(desk.File(), file.Bytes());
    QCOMPARE(desk.Row(2), QByteArray("24|5|2026|Notturna|Lido|9|500|1.234|217||44|05|MM45|27"));
    desk.LeaveAnswering(QMessageBox::Yes);
    QCOMPARE(desk.File(), file.SetRow(2, result).Bytes());

    desk.GoTo(143);
    QVERIFY(!desk->lblGara->isVisible());
    desk.GoTo(144);
    QCOMPARE(desk.Caption("lblPartecipanti"), QStringLiteral("1.234"));
    QCOMPARE(desk.Caption("lblTempoImpiegato"), QStringLiteral("0:44:05"));
    QCOMPARE(desk.Caption("lblRisultato"), QStringLiteral("217"));
    QCOMPARE(desk.Caption("lblRisultatoCat"), QStringLiteral("27"));
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::RaceYearTest)
#include "RaceYearTest.moc"
#include "core/Messages.h"
