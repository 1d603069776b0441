// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the page takes up from the editor: the active table, its pointer, and the table read again.
#include "core/Messages.h"
#include "diary/TableModel.h"
#include "support/PlanDesk.h"
#include "support/WindowTest.h"
#include "toolkit/Events.h"

namespace zelvia::test
{
namespace
{

const QDate kStart(2026, 5, 20);

QByteArray Panel(const char* name, int km)
{
    return QByteArray(name) + '|' + Kilometres(km);
}

/// A table whose first row asks for kilometres from today on.
void PutTable(const PlanDesk& desk, const char* name, int km)
{
    desk.PutTable(QString::fromLatin1(name), TableBytes(kStart).SetRow(1, QByteArray::number(km)));
}

} // namespace

class PanelTimerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theEditorsEndAsksForAReading();
    void anotherTableInTheEditor();
    void daysWithAnotherTableInTheEditor();
    void whatWasNotSavedDoesNotReachTheDiary();
    void whatWasSavedDoes();
    void noReadingWithoutARequest();
    void aRequestWithoutATable();
    void thePointerFollowsTheActiveTable();
    void aPointerThatCannotBeWritten();
    void aTableInOtherLettersIsTheActiveOne();
};

void PanelTimerTest::theEditorsEndAsksForAReading()
{
    PlanDesk desk;
    PutTable(desk, "Alfa.tab", 7);
    desk.Activate("Alfa.tab");
    desk.Begin();
    QCOMPARE(desk->tmrFocus->Interval(), 500);
    desk.OpenList();
    desk.OpenNew();
    PutTable(desk, "Alfa.tab", 9);
    const QPointer<frmAllenamento> editor = desk.Editor();
    {
        // No tick comes while a routine runs.
        const Routine routine;
        hand::Click(*editor->cmdEsci);
        QTRY_COMPARE(desk.Request(), QByteArray("1"));
        QCOMPARE(desk.Panel(), Panel("Alfa", 7));
    }
    QTRY_COMPARE(desk.Request(), QByteArray("0"));
    QCOMPARE(desk.Panel(), Panel("Alfa", 9));
    QTRY_VERIFY(editor.isNull());
    VERIFY_SCRIPT(desk.script);
}

void PanelTimerTest::anotherTableInTheEditor()
{
    PlanDesk desk;
    PutTable(desk, "Alfa.tab", 7);
    PutTable(desk, "Beta.tab", 8);
    desk.Activate("Alfa.tab");
    desk.Begin();
    QVERIFY(Module1::TabKm[1] == 7);
    desk.OpenList();
    desk.OpenTable("Beta.tab");
    QVERIFY(Module1::TabKm[1] == 8);
    desk.LeaveEditor();
    QTRY_VERIFY(Module1::TabKm[1] == 7);
    QCOMPARE(desk.Panel(), Panel("Alfa", 7));
    QCOMPARE(desk.Pointer(), desk.PointerTo("Alfa.tab"));
    desk.LeaveList();
    desk.GoTo(141);
    QCOMPARE(desk.Panel(), Panel("Alfa", 7));
    VERIFY_SCRIPT(desk.script);
}

void PanelTimerTest::daysWithAnotherTableInTheEditor()
{
    // The editor shares the rows, so the walk of each step goes along them until the editor closes: 10 km on the first
    // day meet the first row of both tables.
    PlanDesk desk;
    desk.PutTable(QStringLiteral("Alfa.tab"), TableBytes(kStart).SetRow(1, "7").SetRow(2, "17"));
    desk.PutTable(QStringLiteral("Beta.tab"), TableBytes(kStart).SetRow(1, "8").SetRow(2, "18"));
    desk.Activate("Alfa.tab");
    desk.Run(140, 10);
    desk.Begin();
    desk.OpenList();
    desk.OpenTable("Beta.tab");
    QCOMPARE(desk.Panel(), Panel("Alfa", 7));
    desk.Up(*desk->upGiorno);
    QVERIFY(Module1::GiornoCorrente == 141);
    QCOMPARE(desk.Panel(), Panel("Alfa", 18));
    desk.Down(*desk->upGiorno);
    QCOMPARE(desk.Panel(), Panel("Alfa", 8));
    desk.Up(*desk->upMese);
    QVERIFY(Module1::DataCorrente == CalendarDate(2026, 6, 20));
    QCOMPARE(desk.Panel(), Panel("Alfa", 18));
    // The steps leave what the editor shows alone.
    QCOMPARE(desk.Row(1).left(2), QByteArray("8|"));
    QCOMPARE(Module1::NomeTabellaAttiva, FromQString(QString::fromLatin1(desk.PathOf("Alfa.tab"))));
    TableDesk::ToFront(*desk.Editor());
    desk.LeaveEditor();
    QTRY_COMPARE(desk.Panel(), Panel("Alfa", 17));
    QCOMPARE(desk.Pointer(), desk.PointerTo("Alfa.tab"));
    VERIFY_SCRIPT(desk.script);
}

void PanelTimerTest::whatWasNotSavedDoesNotReachTheDiary()
{
    PlanDesk desk;
    PutTable(desk, "Alfa.tab", 7);
    desk.Begin();
    desk.OpenList();
    desk.OpenTable("Alfa.tab");
    desk.Write(desk.Box(TableGrid::Km, 1), QStringLiteral("5"));
    desk.WriteStart("1", "6", "");
    hand::Click(*desk.Editor()->cmdOK);
    QTRY_VERIFY(desk.Editor()->cmdAttiva->isEnabled());
    hand::Click(*desk.Editor()->cmdAttiva);
    QTRY_COMPARE(desk.Pointer(), desk.PointerTo("Alfa.tab"));
    QVERIFY(Module1::TabKm[1] == 5);
    QVERIFY(Module1::TabDataInizio == CalendarDate(2026, 6, 1));
    desk.LeaveEditor();
    QTRY_COMPARE(desk.Panel(), Panel("Alfa", 7));
    QVERIFY(Module1::TabDataInizio == CalendarDate(2026, 5, 20));
    VERIFY_SCRIPT(desk.script);
}

void PanelTimerTest::whatWasSavedDoes()
{
    PlanDesk desk;
    PutTable(desk, "Alfa.tab", 7);
    desk.Activate("Alfa.tab");
    desk.Begin();
    desk.OpenList();
    desk.OpenTable("Alfa.tab");
    desk.Write(desk.Box(TableGrid::Km, 1), QStringLiteral("5"));
    desk.script.Expect(desk.SaveTableDialog(QStringLiteral("Alfa.tab"), QStringLiteral("Alfa.tab")));
    desk.script.Expect(
        desk.OverwriteQuestion(QStringLiteral("Salva Tabella con nome"), QStringLiteral("Alfa.tab"), QMessageBox::Yes));
    hand::Click(*desk.Editor()->cmdSalva);
    TRY_SCRIPT(desk.script);
    QCOMPARE(desk.Panel(), Panel("Alfa", 7));
    desk.LeaveEditor();
    QTRY_COMPARE(desk.Panel(), Panel("Alfa", 5));
    QCOMPARE(desk.folder.Read(QStringLiteral("prova/Alfa.tab")), TableBytes(kStart).SetRow(1, "5").Bytes());
    VERIFY_SCRIPT(desk.script);
}

void PanelTimerTest::noReadingWithoutARequest()
{
    PlanDesk desk;
    PutTable(desk, "Alfa.tab", 7);
    desk.Activate("Alfa.tab");
    desk.Begin();
    PutTable(desk, "Alfa.tab", 9);
    for (const char* caption : {"0", "", "2", "11"}) {
        desk->lblTimerTab->SetCaption(caption);
        QVERIFY(StaysFalse([&] { return desk.Panel() != Panel("Alfa", 7) || desk.Request() != caption; }, 700));
    }
    desk->lblTimerTab->SetCaption(" 1");
    QTRY_COMPARE(desk.Request(), QByteArray("0"));
    QCOMPARE(desk.Panel(), Panel("Alfa", 9));
    VERIFY_SCRIPT(desk.script);
}

void PanelTimerTest::aRequestWithoutATable()
{
    PlanDesk desk;
    desk.Begin();
    desk->TabAllenamentiNonVisibili();
    desk->lblTabNomeFile->SetCaption("Alfa");
    desk->lblKmTab->SetCaption("7,0");
    desk->lblFondoTab->SetCaption("Strada");
    desk.ReadAgain();
    QCOMPARE(desk.Panel(), QByteArray("Alfa|") + kNeutral);
    QCOMPARE(desk.PanelParts(), 14);
    VERIFY_SCRIPT(desk.script);
}

void PanelTimerTest::thePointerFollowsTheActiveTable()
{
    PlanDesk desk;
    const char* const accented = "Et\xE0.tab";
    PutTable(desk, accented, 7);
    PutTable(desk, "Beta.tab", 8);
    desk.Begin();
    QCOMPARE(desk.Pointer(), PlanDesk::kNoPointer);
    desk.OpenList();
    desk.ActivateByHand(accented);
    QCOMPARE(desk.Pointer(), desk.PointerTo(accented));
    QVERIFY(desk.Pointer().endsWith("\\prova\\Et\xE0.tab\"\r\n"));
    QCOMPARE(desk.Caption("lblTabNomeFile"), QString::fromLatin1("Et\xE0"));
    desk.LeaveEditor();
    QTRY_COMPARE(desk.Panel(), Panel("Et\xE0", 7));

    desk.OpenTable("Beta.tab");
    hand::Click(*desk.Editor()->cmdOK);
    desk.script.Expect(Messages::kReplaceActiveTable, QMessageBox::Cancel);
    hand::Click(*desk.Editor()->cmdAttiva);
    TRY_SCRIPT(desk.script);
    QCOMPARE(desk.Pointer(), desk.PointerTo(accented));
    QCOMPARE(desk.Caption("lblTabNomeFile"), QString::fromLatin1("Et\xE0"));
    desk.script.Expect(Messages::kReplaceActiveTable, QMessageBox::Ok);
    hand::Click(*desk.Editor()->cmdAttiva);
    TRY_SCRIPT(desk.script);
    QTRY_COMPARE(desk.Pointer(), desk.PointerTo("Beta.tab"));
    QCOMPARE(desk.Caption("lblTabNomeFile"), QStringLiteral("Beta"));
    desk.LeaveEditor();
    QTRY_COMPARE(desk.Panel(), Panel("Beta", 8));

    desk.OpenTable("Beta.tab");
    hand::Click(*desk.Editor()->cmdDisattiva);
    QTRY_COMPARE(desk.Pointer(), PlanDesk::kNoPointer);
    QCOMPARE(desk.Caption("lblTabNomeFile"), QString());
    desk.LeaveEditor();
    QTRY_COMPARE(desk.Panel(), QByteArray("|") + kNeutral);
    QCOMPARE(desk.Pointer(), PlanDesk::kNoPointer);
    QVERIFY(desk.folder.Exists(QStringLiteral("prova/Beta.tab")));
    VERIFY_SCRIPT(desk.script);
}

void PanelTimerTest::aPointerThatCannotBeWritten()
{
    PlanDesk desk;
    PutTable(desk, "Alfa.tab", 7);
    desk.Begin();
    desk.OpenList();
    desk.folder.Block(QStringLiteral("prova/nometab"));
    desk.script.Expect(BareReport(kDenied));
    desk.ActivateByHand("Alfa.tab");
    TRY_SCRIPT(desk.script);
    desk.LeaveEditor();
    QTRY_COMPARE(desk.Panel(), Panel("Alfa", 7));
    desk.Select(0);
    desk.script.Expect(DeleteQuestion(QStringLiteral("Alfa.tab"), QMessageBox::Cancel));
    desk.script.Expect(BareReport(kDenied));
    hand::Click(*desk.List()->cmdCancellaTab);
    TRY_SCRIPT(desk.script);
    QCOMPARE(desk.Caption("lblTabNomeFile"), QString());
    QCOMPARE(PlanDesk::Active(), QByteArray());
}

void PanelTimerTest::aTableInOtherLettersIsTheActiveOne()
{
    PlanDesk desk;
    PutTable(desk, "Alfa.tab", 7);
    desk.Activate("ALFA.TAB");
    desk.Begin();
    QCOMPARE(desk.Panel(), Panel("ALFA", 7));
    desk.OpenList();
    desk.OpenTable("Alfa.tab");
    QVERIFY(desk.Editor()->cmdDisattiva->isEnabled());
    QVERIFY(!desk.Editor()->cmdAttiva->isEnabled());
    desk.LeaveEditor();
    QTRY_COMPARE(desk.Request(), QByteArray("0"));
    QCOMPARE(desk.Panel(), Panel("ALFA", 7));
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::PanelTimerTest)
#include "PanelTimerTest.moc"
