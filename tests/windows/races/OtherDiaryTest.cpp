// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The calendar's window while another diary is opened or begun.
#include "core/Messages.h"
#include "diary/CalendarModel.h"
#include "support/CalendarDesk.h"
#include "support/DiaryBytes.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
namespace
{

const QString kPreset = QStringLiteral("prova.zlv");
const QString kSecond = QStringLiteral("seconda.zlv");
const QByteArray kBlankRow = "|||||||||||||";

/// Two races, on the first page and on the second.
CalendarBytes FirstCalendar()
{
    return CalendarBytes().SetRow(1, "8|2|2026|Corrida").SetRow(21, "9|2|2026|Notturna");
}

CalendarBytes SecondCalendar()
{
    return CalendarBytes().SetRow(1, "1|3|2026|Stracitta|Ponte").SetRow(2, "20|5|2026|Del giorno");
}

/// A desk with a second diary beside the first; the calendar is open, and the page in front of it.
class TwoDiaries : public CalendarDesk
{
public:
    TwoDiaries() : CalendarDesk(FirstCalendar())
    {
        folder.Write(QStringLiteral("ZelviaFile/seconda.zlv"), DiaryBytes::Blank(2026).Bytes());
        for (const QString& file : FullSet()) {
            folder.Write(QStringLiteral("seconda/") + file, folder.Read(QStringLiteral("prova/") + file));
        }
        folder.Write(QStringLiteral("seconda/CalendarioGare"), SecondCalendar().Bytes());
    }

    /// Takes Open or New from the menu of the page, and waits for the boxes of the script.
    void Take(bool opens)
    {
        Page().raise();
        Page().activateWindow();
        AwaitFront(Page());
        Menu("mnuFile", opens ? Qt::Key_A : Qt::Key_N);
        TRY_SCRIPT(script);
        QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
    }

    ExpectedDialog Dialog(bool opens, const QString& choose) const
    {
        return opens ? OpenDialog(kPreset, choose) : NewDialog(choose);
    }

    void ToCalendar() const
    {
        Window()->raise();
        Window()->activateWindow();
        AwaitFront(*Window());
    }

    QByteArray SecondFile() const { return folder.Read(QStringLiteral("seconda/CalendarioGare")); }
};

} // namespace

class OtherDiaryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void openShowsItsCalendar();
    void newShowsABlankOne();
    void theQuestionFirst_data();
    void theQuestionFirst();
    void theDialogIsCancelled_data();
    void theDialogIsCancelled();
    void doubleDatesEndTheCommand();
    void refusalDoesNotAskAgain();
    void itsQuestionComesBeforeTheDiarys();
    void aNewThatCountsAsCancelled();
    void aDiaryWithoutAFolder();
};

void OtherDiaryTest::openShowsItsCalendar()
{
    TwoDiaries desk;
    desk.StartOpen();
    desk.NextPage();
    QTRY_COMPARE(desk.FirstNumber(), QByteArray("21"));
    desk.script.Expect(desk.OpenDialog(kPreset, kSecond));
    desk.Take(true);
    QCOMPARE(desk.Caption("lblNomeFile"), QStringLiteral("seconda"));
    // From its first page on, and behind the page.
    QVERIFY(desk.Window() != nullptr);
    QVERIFY(desk.Window()->PrimaGaraPagina == 0);
    QVERIFY(desk.Window()->upPaginaGare->Value() == 0);
    QCOMPARE(desk.FirstNumber(), QByteArray("1"));
    QCOMPARE(desk.Window()->lblPaginaGare->text(), QStringLiteral("Pagina 1 di 5"));
    QCOMPARE(desk.Row(1), QByteArray("1|3|2026|Stracitta|Ponte|||||||||"));
    QCOMPARE(desk.Dashes(1), QByteArray("      -      -    "));
    QCOMPARE(desk.Row(3), kBlankRow);
    QCOMPARE(RaceInMemory(1), QByteArray("1|3|2026|Stracitta|Ponte|0|0|0|0|0|0|0||0"));
    QCOMPARE(desk.Caption("lblGara"), QStringLiteral("Del giorno"));
    QTRY_VERIFY(desk.Page().isActiveWindow());
    // What is written from now on is the second diary's.
    desk.ToCalendar();
    desk.Write(RaceColumn::Localita, 1, QStringLiteral("lido"));
    desk.LeaveAnswering(QMessageBox::Yes);
    QCOMPARE(desk.SecondFile(), SecondCalendar().SetRow(1, "1|3|2026|Stracitta|lido").Bytes());
    QCOMPARE(desk.File(), FirstCalendar().Bytes());
    VERIFY_SCRIPT(desk.script);
}

void OtherDiaryTest::newShowsABlankOne()
{
    TwoDiaries desk;
    desk.StartOpen();
    desk.script.Expect(desk.NewDialog(QStringLiteral("nuova")));
    desk.Take(false);
    QCOMPARE(desk.Caption("lblNomeFile"), QStringLiteral("nuova"));
    for (int row = 1; row <= 20; ++row) {
        QCOMPARE(desk.Row(row), kBlankRow);
        QCOMPARE(desk.Dashes(row), QByteArray(18, ' '));
    }
    desk.ToCalendar();
    desk.NextPage();
    QTRY_COMPARE(desk.FirstNumber(), QByteArray("21"));
    QCOMPARE(desk.Row(1), kBlankRow);
    // Nothing has changed, so nothing is asked.
    desk.Leave();
    QCOMPARE(desk.File(), FirstCalendar().Bytes());
    VERIFY_SCRIPT(desk.script);
}

void OtherDiaryTest::theQuestionFirst_data()
{
    QTest::addColumn<bool>("opens");
    QTest::addColumn<int>("answer");
    for (const bool opens : {true, false}) {
        const char* command = opens ? "Open" : "New";
        QTest::addRow("%s, yes", command) << opens << int{QMessageBox::Yes};
        QTest::addRow("%s, no", command) << opens << int{QMessageBox::No};
        QTest::addRow("%s, cancel", command) << opens << int{QMessageBox::Cancel};
    }
}

void OtherDiaryTest::theQuestionFirst()
{
    QFETCH(bool, opens);
    QFETCH(int, answer);
    TwoDiaries desk;
    desk.StartOpen();
    desk.WriteRow(2, "10|2|2026|Lungofiume");
    desk.script.Expect(Messages::kRacesNotSaved, static_cast<QMessageBox::StandardButton>(answer));
    if (answer != QMessageBox::Cancel) {
        desk.script.Expect(desk.Dialog(opens, opens ? kSecond : QStringLiteral("nuova")));
    }
    desk.Take(opens);
    const CalendarBytes written = FirstCalendar().SetRow(2, "10|2|2026|Lungofiume");
    QCOMPARE(desk.File(), answer == QMessageBox::Yes ? written.Bytes() : FirstCalendar().Bytes());
    QCOMPARE(desk.SecondFile(), SecondCalendar().Bytes());
    if (answer == QMessageBox::Cancel) {
        QCOMPARE(desk->NomeFile, desk.folder.System(QStringLiteral("ZelviaFile/prova.zlv")));
        QVERIFY(desk->NuovoAnnullato == 0);
        QCOMPARE(desk.Row(2), QByteArray("10|2|2026|Lungofiume||||||||||"));
        desk.ToCalendar();
        desk.LeaveAnswering(QMessageBox::Yes);
        QCOMPARE(desk.File(), written.Bytes());
        return;
    }
    QCOMPARE(desk.Caption("lblNomeFile"), opens ? QStringLiteral("seconda") : QStringLiteral("nuova"));
    QCOMPARE(desk.Row(2), opens ? QByteArray("20|5|2026|Del giorno||||||||||") : kBlankRow);
    desk.ToCalendar();
    desk.Leave();
    VERIFY_SCRIPT(desk.script);
}

void OtherDiaryTest::theDialogIsCancelled_data()
{
    QTest::addColumn<bool>("opens");
    QTest::addColumn<bool>("saved");
    for (const bool opens : {true, false}) {
        QTest::addRow("%s, saved", opens ? "Open" : "New") << opens << true;
        QTest::addRow("%s, not saved", opens ? "Open" : "New") << opens << false;
    }
}

void OtherDiaryTest::theDialogIsCancelled()
{
    QFETCH(bool, opens);
    QFETCH(bool, saved);
    TwoDiaries desk;
    desk.StartOpen();
    desk.NextPage();
    QTRY_COMPARE(desk.FirstNumber(), QByteArray("21"));
    desk.WriteRow(2, "10|2|2026|Lungofiume");
    desk.script.Expect(Messages::kRacesNotSaved, saved ? QMessageBox::Yes : QMessageBox::No);
    desk.script.Expect(desk.Dialog(opens, QString()));
    desk.Take(opens);
    // The calendar is the one it was, on the page it was on.
    QCOMPARE(desk.FirstNumber(), QByteArray("21"));
    QCOMPARE(desk.Row(2), QByteArray("10|2|2026|Lungofiume||||||||||"));
    desk.ToCalendar();
    if (saved) {
        desk.Leave();
    } else {
        desk.LeaveAnswering(QMessageBox::Yes);
    }
    QCOMPARE(desk.File(), FirstCalendar().SetRow(22, "10|2|2026|Lungofiume").Bytes());
    VERIFY_SCRIPT(desk.script);
}

void OtherDiaryTest::doubleDatesEndTheCommand()
{
    TwoDiaries desk;
    desk.StartOpen();
    desk.WriteRow(2, "8|2|2026|Lungofiume");
    desk.script.Expect(Messages::kRacesNotSaved, QMessageBox::Yes);
    desk.script.Expect(Stop(QStringLiteral("8-2-2026   DATA PRESENTE AL  N° 1  E AL N° 2  ")));
    desk.Take(true);
    QCOMPARE(desk.Caption("lblNomeFile"), QStringLiteral("prova"));
    QCOMPARE(desk.Row(2), QByteArray("8|2|2026|Lungofiume||||||||||"));
    QCOMPARE(desk.File(), FirstCalendar().Bytes());
    VERIFY_SCRIPT(desk.script);
}

void OtherDiaryTest::refusalDoesNotAskAgain()
{
    TwoDiaries desk;
    desk.folder.Write(QStringLiteral("altrove/x.zlv"), DiaryBytes::Blank(2026).Bytes());
    desk.StartOpen();
    desk.WriteRow(2, "10|2|2026|Lungofiume");
    desk.script.Expect(Messages::kRacesNotSaved, QMessageBox::No);
    desk.script.Expect(desk.OpenDialog(kPreset, desk.folder.Native(QStringLiteral("altrove/x.zlv"))));
    desk.script.Expect(Messages::kOpensElsewhere);
    desk.script.Expect(desk.OpenDialog(kPreset, kSecond));
    desk.Take(true);
    QCOMPARE(desk.Row(1), QByteArray("1|3|2026|Stracitta|Ponte|||||||||"));
    VERIFY_SCRIPT(desk.script);
}

void OtherDiaryTest::itsQuestionComesBeforeTheDiarys()
{
    TwoDiaries desk;
    desk.StartOpen();
    desk.WriteRow(2, "10|2|2026|Lungofiume");
    desk->upKM->SetValue(17);
    desk.script.Expect(Messages::kRacesNotSaved, QMessageBox::No);
    desk.script.Expect(Messages::kSaveDiary, QMessageBox::Yes);
    desk.script.Expect(desk.OpenDialog(kPreset, kSecond));
    desk.Take(true);
    // Not saved by the calendar, its changes are in memory; saving the diary writes them.
    QCOMPARE(desk.File(), FirstCalendar().SetRow(2, "10|2|2026|Lungofiume").Bytes());
    QCOMPARE(desk.Row(2), QByteArray("20|5|2026|Del giorno||||||||||"));
    VERIFY_SCRIPT(desk.script);
}

/// Its calendar stays the old diary's, and so does the window.
void OtherDiaryTest::aNewThatCountsAsCancelled()
{
    TwoDiaries desk;
    desk.StartOpen();
    desk.script.Expect(desk.NewDialog());
    desk.Take(false);
    desk.script.Expect(desk.NewDialog(QStringLiteral("nuova")));
    desk.Take(false);
    QCOMPARE(desk.Caption("lblNomeFile"), QStringLiteral("prova"));
    QCOMPARE(desk.Row(1), QByteArray("8|2|2026|Corrida||||||||||"));
    desk.ToCalendar();
    desk.Leave();
    VERIFY_SCRIPT(desk.script);
}

/// Nothing can be read there, which is reported once; the old diary's races are gone from the window.
void OtherDiaryTest::aDiaryWithoutAFolder()
{
    TwoDiaries desk;
    desk.folder.Remove(QStringLiteral("seconda"));
    desk.StartOpen();
    desk.script.Expect(desk.OpenDialog(kPreset, kSecond));
    for (int i = 0; i < 3; ++i) {
        desk.script.Expect(BareReport(kNoFolder));
    }
    ExpectListsNotSaved(desk.script, kNoFolder);
    desk.script.Expect(BareReport(kNoFolder));
    ExpectListsNotLoaded(desk.script, kNoFolder);
    desk.script.Expect(RoutesNotLoaded(QStringLiteral("Cartella non trovata")));
    desk.script.Expect(BareReport(kNoFolder));
    desk.Take(true);
    QCOMPARE(desk.Row(1), kBlankRow);
    QVERIFY(!desk.folder.Exists(QStringLiteral("seconda")));
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::OtherDiaryTest)
#include "OtherDiaryTest.moc"
