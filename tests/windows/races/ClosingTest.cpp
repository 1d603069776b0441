// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The close of the calendar's window, with its question and its refusals.
#include "core/Messages.h"
#include "diary/CalendarModel.h"
#include "support/CalendarDesk.h"
#include "support/WindowTest.h"

#include <QWindow>

namespace zelvia::test
{

class ClosingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingChangedAsksNothing();
    void theQuestion_data();
    void theQuestion();
    void theExitButtonTestsTheBox();
    void theCloseBoxDoesNot();
    void doubleDatesKeepTheWindow();
    void noKeepsTheChangesInMemory();
    void anUnwritableFile();
    void theEndOfTheProgram_data();
    void theEndOfTheProgram();
    void whatStaysIsAWindowOfItsOwn();
    void errorsOfTheQuestion();
};

namespace
{

/// A press of the window's close box; the boxes of the script come meanwhile.
void PressCloseBox(const CalendarDesk& desk)
{
    desk.Window()->close();
    TRY_SCRIPT(desk.script);
    QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
}

} // namespace

void ClosingTest::nothingChangedAsksNothing()
{
    CalendarBytes file;
    file.SetRow(1, "8|2|2026|Corrida|Borgo|10|5|1234|1131|0|45|30|MM45|16");
    CalendarDesk desk(file);
    desk.StartOpen();
    desk.Leave();
    desk.OpenCalendar();
    desk.Write(RaceColumn::Gara, 1, QStringLiteral("CORRIDA")); // The case does not count.
    const QPointer<frmCalendario> window = desk.Window();
    PressCloseBox(desk);
    QTRY_VERIFY(window.isNull());
    QCOMPARE(desk.File(), file.Bytes());
    VERIFY_SCRIPT(desk.script);
}

void ClosingTest::theQuestion_data()
{
    QTest::addColumn<bool>("closeBox");
    QTest::addColumn<int>("answer");
    for (const bool closeBox : {false, true}) {
        const char* way = closeBox ? "close box" : "Esci";
        QTest::addRow("%s, yes", way) << closeBox << int{QMessageBox::Yes};
        QTest::addRow("%s, no", way) << closeBox << int{QMessageBox::No};
        QTest::addRow("%s, cancel", way) << closeBox << int{QMessageBox::Cancel};
    }
}

void ClosingTest::theQuestion()
{
    QFETCH(bool, closeBox);
    QFETCH(int, answer);
    CalendarDesk desk;
    desk.StartOpen();
    desk.WriteRow(1, "8|2|2026|Corrida");
    const QPointer<frmCalendario> window = desk.Window();
    desk.script.Expect(Messages::kRacesNotSaved, static_cast<QMessageBox::StandardButton>(answer));
    if (closeBox) {
        PressCloseBox(desk);
    } else {
        hand::Click(*window->cmdEsci);
        TRY_SCRIPT(desk.script);
        QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
    }
    const QByteArray kept = CalendarBytes().SetRow(1, "8|2|2026|Corrida").Bytes();
    QCOMPARE(desk.File(), answer == QMessageBox::Yes ? kept : CalendarBytes().Bytes());
    QCOMPARE(RaceInMemory(1), QByteArray("8|2|2026|Corrida||0|0|0|0|0|0|0||0"));
    if (answer != QMessageBox::Cancel) {
        QTRY_VERIFY(window.isNull());
        return;
    }
    // What was changed is in memory by now, but the flag is still set and the question comes again.
    QVERIFY(window != nullptr && window->isVisible());
    QVERIFY(window->CalendarioModificato == 1);
    QCOMPARE(desk.Row(1), QByteArray("8|2|2026|Corrida||||||||||"));
    desk.LeaveAnswering(QMessageBox::Yes);
    QCOMPARE(desk.File(), kept);
}

void ClosingTest::theExitButtonTestsTheBox()
{
    CalendarDesk desk;
    desk.StartOpen();
    desk.Write(RaceColumn::Minuti, 1, QStringLiteral("75"));
    desk.script.Expect(Warning(QStringLiteral("MAX 59 MINUTI                ")));
    desk.TryToLeave();
    QTRY_COMPARE(CalendarDesk::Focused(), QByteArray("txtMinuti(1)"));
    VERIFY_SCRIPT(desk.script);
}

void ClosingTest::theCloseBoxDoesNot()
{
    CalendarDesk desk;
    desk.StartOpen();
    desk.Write(RaceColumn::Minuti, 1, QStringLiteral("75"));
    const QPointer<frmCalendario> window = desk.Window();
    desk.script.Expect(Messages::kRacesNotSaved, QMessageBox::Yes);
    PressCloseBox(desk);
    QTRY_VERIFY(window.isNull());
    QCOMPARE(desk.File(), CalendarBytes().SetRow(1, "||||||||||75").Bytes());
}

void ClosingTest::doubleDatesKeepTheWindow()
{
    CalendarDesk desk;
    desk.StartOpen();
    desk.WriteRow(1, "8|2|2026|Corrida");
    desk.WriteRow(2, "8|2|2026|Notturna");
    desk.script.Expect(Messages::kRacesNotSaved, QMessageBox::Yes);
    desk.script.Expect(Stop(QStringLiteral("8-2-2026   DATA PRESENTE AL  N° 1  E AL N° 2  ")));
    desk.TryToLeave();
    QCOMPARE(desk.File(), CalendarBytes().Bytes());
    QVERIFY(desk.Window()->CalendarioModificato == 1);
    // Without saving it may go.
    desk.LeaveAnswering(QMessageBox::No);
    QCOMPARE(desk.File(), CalendarBytes().Bytes());
    QCOMPARE(RaceInMemory(2), QByteArray("8|2|2026|Notturna||0|0|0|0|0|0|0||0"));
    VERIFY_SCRIPT(desk.script);
}

void ClosingTest::noKeepsTheChangesInMemory()
{
    CalendarDesk desk;
    desk.StartOpen();
    desk.WriteRow(1, "21|5|2026|Corrida");
    desk.LeaveAnswering(QMessageBox::No);
    desk.GoTo(141);
    QCOMPARE(desk.Caption("lblGara"), QStringLiteral("Corrida"));
    QVERIFY(desk->lblGara->isVisible());
    // A reopening reads the file.
    desk.OpenCalendar();
    QCOMPARE(desk.Row(1), QByteArray("|||||||||||||"));
    desk.WriteRow(1, "22|5|2026|Notturna");
    desk.LeaveAnswering(QMessageBox::No);
    QCOMPARE(desk.File(), CalendarBytes().Bytes());
    desk.Menu("mnuFile", Qt::Key_S);
    QCOMPARE(desk.File(), CalendarBytes().SetRow(1, "22|5|2026|Notturna").Bytes());
    VERIFY_SCRIPT(desk.script);
}

void ClosingTest::anUnwritableFile()
{
    CalendarDesk desk;
    desk.StartOpen();
    desk.WriteRow(1, "21|5|2026|Corrida");
    desk.folder.Block(QStringLiteral("prova/CalendarioGare"));
    desk.script.Expect(Messages::kRacesNotSaved, QMessageBox::Yes);
    desk.script.Expect(BareReport(kDenied));
    desk.Leave();
    VERIFY_SCRIPT(desk.script);
}

void ClosingTest::theEndOfTheProgram_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("yes") << int{QMessageBox::Yes};
    QTest::newRow("no") << int{QMessageBox::No};
    QTest::newRow("cancel") << int{QMessageBox::Cancel};
}

void ClosingTest::theEndOfTheProgram()
{
    QFETCH(int, answer);
    CalendarDesk desk;
    desk.StartOpen();
    desk.WriteRow(1, "8|2|2026|Corrida");
    const QPointer<frmCalendario> window = desk.Window();
    desk.script.Expect(Messages::kRacesNotSaved, static_cast<QMessageBox::StandardButton>(answer));
    desk.Menu("mnuFile", Qt::Key_E);
    TRY_SCRIPT(desk.script);
    QTRY_VERIFY(desk.Gone());
    if (answer == QMessageBox::Cancel) {
        // The calendar stays alone, and still works.
        QVERIFY(window != nullptr && window->isVisible());
        QCOMPARE(desk.File(), CalendarBytes().Bytes());
        desk.NextPage();
        QTRY_COMPARE(desk.FirstNumber(), QByteArray("21"));
        PressCloseBox(desk);
    }
    QTRY_VERIFY(window.isNull());
    const bool saved = answer == QMessageBox::Yes;
    QCOMPARE(desk.File(), saved ? CalendarBytes().SetRow(1, "8|2|2026|Corrida").Bytes() : CalendarBytes().Bytes());
    VERIFY_SCRIPT(desk.script);
}

void ClosingTest::whatStaysIsAWindowOfItsOwn()
{
    // As a child of the page it would not keep the program running.
    CalendarDesk desk;
    desk.StartOpen();
    desk.WriteRow(1, "8|2|2026|Corrida");
    const QPointer<frmCalendario> window = desk.Window();
    QCOMPARE(window->windowHandle()->transientParent(), desk->windowHandle());
    desk.script.Expect(Messages::kRacesNotSaved, QMessageBox::Cancel);
    QVERIFY(desk.Page().Unload());
    QVERIFY(!desk.Gone());
    QVERIFY(window != nullptr && window->windowHandle()->transientParent() == nullptr);
    desk.script.Expect(Messages::kRacesNotSaved, QMessageBox::No);
    window->close();
    QTRY_VERIFY(window.isNull());
    VERIFY_SCRIPT(desk.script);
}

void ClosingTest::errorsOfTheQuestion()
{
    const QString overflow = QStringLiteral("6 Numero oltre i limiti");
    CalendarDesk desk;
    desk.StartOpen();
    desk.Box(RaceColumn::Anno, 1).SetContent("9999999999");
    desk.script.Expect(Report(QStringLiteral("ContrData - ERRORE : ") + overflow));
    desk.script.Expect(Report(QStringLiteral("Query - ERRORE : ") + overflow));
    // As if the question had ended normally, so the window goes.
    desk.Leave();
    QCOMPARE(desk.File(), CalendarBytes().Bytes());

    desk.OpenCalendar();
    desk.Box(RaceColumn::Anno, 1).SetContent(Text(400, '9'));
    const QPointer<frmCalendario> window = desk.Window();
    desk.script.Expect(Report(QStringLiteral("ControllaSaveGar - ERRORE : ") + overflow));
    desk.script.Expect(Report(QStringLiteral("ContrData - ERRORE : ") + overflow));
    desk.script.Expect(Report(QStringLiteral("Query - ERRORE : ") + overflow));
    PressCloseBox(desk);
    QTRY_VERIFY(window.isNull());
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::ClosingTest)
#include "ClosingTest.moc"
