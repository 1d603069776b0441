// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// "Salva" of the calendar's window, and the calendar that the page's own commands write.
#include "support/CalendarDesk.h"
#include "support/WindowTest.h"

#include <QFile>

namespace zelvia::test
{

class SaveTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void savesWhatIsTyped();
    void cancelSavesNothing();
    void savesTwoPages();
    void aFileThatCannotBeWritten_data();
    void aFileThatCannotBeWritten();
    void errorsEndTheSave();
    void theRowNumbersStay();
    void afterNewAHundredBlankRows();
};

void SaveTest::savesWhatIsTyped()
{
    CalendarDesk desk;
    desk.StartOpen();
    desk.WriteRow(1, "08|2|2026|CORRIDA|Borgo|10|5|1234|135|1|5|0|MM45|16");
    desk.Save();
    const CalendarBytes file = CalendarBytes().SetRow(1, "8|2|2026|Corrida|Borgo|10|5|1234|135|1|5|0|MM45|16");
    QTRY_COMPARE(desk.File(), file.Bytes());
    QVERIFY(desk.Window()->CalendarioModificato == 0);
    desk.Leave();
    QCOMPARE(desk.File(), file.Bytes());
    VERIFY_SCRIPT(desk.script);
}

void SaveTest::cancelSavesNothing()
{
    CalendarDesk desk;
    desk.StartOpen();
    desk.Write(RaceColumn::Gara, 1, QStringLiteral("Corrida"));
    desk.Save(QMessageBox::Cancel);
    QCOMPARE(desk.File(), CalendarBytes().Bytes());
    QCOMPARE(RaceInMemory(1), QByteArray("0|0|0|||0|0|0|0|0|0|0||0"));
    QCOMPARE(desk.Row(1), QByteArray("|||Corrida||||||||||"));
    desk.LeaveAnswering(QMessageBox::No);
    VERIFY_SCRIPT(desk.script);
}

void SaveTest::savesTwoPages()
{
    CalendarDesk desk;
    desk.StartOpen();
    desk.WriteRow(1, "8|2|2026|Corrida");
    desk.NextPage();
    desk.NextPage();
    QTRY_COMPARE(desk.FirstNumber(), QByteArray("41"));
    desk.WriteRow(17, "9|8|2026|Notturna");
    desk.Save();
    QTRY_COMPARE(desk.File(), CalendarBytes().SetRow(1, "8|2|2026|Corrida").SetRow(57, "9|8|2026|Notturna").Bytes());
    VERIFY_SCRIPT(desk.script);
}

void SaveTest::aFileThatCannotBeWritten_data()
{
    QTest::addColumn<QString>("target"); // Where the file's name leads.
    QTest::addColumn<QString>("report");
    QTest::newRow("denied") << "a folder" << kDenied;
    QTest::newRow("no folder") << "nowhere" << kNoFolder;
    QTest::newRow("full disk") << "/dev/full"
                               << "61 Disco pieno";
}

void SaveTest::aFileThatCannotBeWritten()
{
    QFETCH(QString, target);
    QFETCH(QString, report);
    const QString path = QStringLiteral("prova/CalendarioGare");
    CalendarDesk desk;
    desk.StartOpen();
    desk.Write(RaceColumn::Gara, 1, QStringLiteral("Corrida"));
    if (target == QLatin1String("a folder")) {
        desk.folder.Block(path);
    } else if (target == QLatin1String("nowhere")) {
        desk.folder.Dangle(path);
    } else {
        desk.folder.Remove(path);
        QVERIFY(QFile::link(target, desk.folder.Native(path)));
    }
    desk.script.Expect(Messages::kSaveRaces, QMessageBox::Ok);
    desk.script.Expect(BareReport(report));
    hand::Click(*desk.Window()->cmdSalva);
    TRY_SCRIPT(desk.script);
    QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
    QCOMPARE(RaceInMemory(1), QByteArray("0|0|0|Corrida||0|0|0|0|0|0|0||0"));
    // The writing reports for itself: to the window the calendar is saved.
    desk.Leave();
    VERIFY_SCRIPT(desk.script);
}

void SaveTest::errorsEndTheSave()
{
    const QString overflow = QStringLiteral("6 Numero oltre i limiti");
    CalendarDesk desk;
    desk.StartOpen();
    desk.Box(RaceColumn::Anno, 1).SetContent("9999999999");
    desk.script.Expect(Messages::kSaveRaces, QMessageBox::Ok);
    desk.script.Expect(Report(QStringLiteral("ContrData - ERRORE : ") + overflow));
    desk.script.Expect(BareReport(overflow));
    hand::Click(*desk.Window()->cmdSalva);
    TRY_SCRIPT(desk.script);
    QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
    QCOMPARE(desk.File(), CalendarBytes().Bytes());
}

void SaveTest::theRowNumbersStay()
{
    CalendarBytes file;
    file.SetLine(1, 1, "77").SetLine(100, 1, "5");
    CalendarDesk desk(file);
    desk.StartOpen();
    QCOMPARE(desk.FirstNumber(), QByteArray("77"));
    desk.Write(RaceColumn::Gara, 1, QStringLiteral("Corrida"));
    desk.Save();
    QTRY_COMPARE(desk.File(), file.SetRow(1, "|||Corrida").Bytes());
    VERIFY_SCRIPT(desk.script);
}

void SaveTest::afterNewAHundredBlankRows()
{
    CalendarBytes file;
    file.SetRow(1, "8|2|2026|Corrida");
    CalendarDesk desk(file);
    desk.folder.MakeFolder(QStringLiteral("nuova"));
    desk.Start();
    desk.script.Expect(desk.NewDialog(QStringLiteral("nuova")));
    desk.Menu("mnuFile", Qt::Key_N);
    desk.Menu("mnuFile", Qt::Key_S);
    VERIFY_SCRIPT(desk.script);
    QCOMPARE(desk.folder.Read(QStringLiteral("nuova/CalendarioGare")), CalendarBytes().Bytes());
    QCOMPARE(desk.File(), file.Bytes());
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::SaveTest)
#include "SaveTest.moc"
#include "core/Messages.h"
