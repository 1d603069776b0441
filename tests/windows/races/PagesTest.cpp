// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The five pages of the calendar's window.
#include "diary/CalendarModel.h"
#include "support/CalendarDesk.h"
#include "support/WindowTest.h"

namespace zelvia::test
{

class PagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fivePages();
    void pagesByTheKeys();
    void theKeysTestTheBox();
    void keysGoAlongTheColumn();
    void aTurnStoresThePage();
    void aTurnForgetsTheChangesOfAnother();
    void aTurnRemembersThePageLeft();
    void aTurnDoesNotTestTheBox();
    void aPartOfADateReturnsToNothing();
};

void PagesTest::fivePages()
{
    CalendarBytes file;
    file.SetRow(100, "31|12|2026|San Silvestro");
    CalendarDesk desk(file);
    desk.StartOpen();
    for (const int first : {21, 41, 61, 81, 81}) {
        desk.NextPage();
        QTRY_COMPARE(desk.FirstNumber(), QByteArray::number(first));
        QVERIFY(desk.Window()->PrimaGaraPagina == first - 1);
        QVERIFY(desk.Window()->upPaginaGare->Value() == first - 1);
        QCOMPARE(desk.Window()->lblPaginaGare->text(), QStringLiteral("Pagina %1 di 5").arg(first / 20 + 1));
        QCOMPARE(desk.Box(RaceColumn::Km, 20).accessibleName(), QStringLiteral("Chilometri, riga %1").arg(first + 19));
    }
    QCOMPARE(desk.Row(20), QByteArray("31|12|2026|San Silvestro||||||||||"));
    for (const int first : {61, 41, 21, 1, 1}) {
        desk.PreviousPage();
        QTRY_COMPARE(desk.FirstNumber(), QByteArray::number(first));
        QCOMPARE(desk.Row(20), QByteArray("|||||||||||||"));
    }
    VERIFY_SCRIPT(desk.script);
}

void PagesTest::pagesByTheKeys()
{
    CalendarDesk desk;
    desk.StartOpen();
    hand::Click(desk.Box(RaceColumn::RisultatoCat, 20));
    hand::Key(Qt::Key_PageDown);
    QTRY_COMPARE(desk.FirstNumber(), QByteArray("21"));
    hand::Key(Qt::Key_PageDown);
    QTRY_COMPARE(desk.FirstNumber(), QByteArray("41"));
    hand::Key(Qt::Key_PageUp);
    QTRY_COMPARE(desk.FirstNumber(), QByteArray("21"));
    QCOMPARE(CalendarDesk::Focused(), QByteArray("txtRisultatoCat(20)"));
    // After the last box come the arrows of the pages and the buttons.
    hand::Key(Qt::Key_Tab);
    QTRY_COMPARE(CalendarDesk::Focused(), QByteArray("upPaginaGare"));
    hand::Key(Qt::Key_Up);
    QTRY_COMPARE(desk.FirstNumber(), QByteArray("41"));
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(desk.FirstNumber(), QByteArray("21"));
    for (const char* next : {"cmdSalva", "cmdStampa", "cmdEsci"}) {
        hand::Key(Qt::Key_Tab);
        QTRY_COMPARE(CalendarDesk::Focused(), QByteArray(next));
    }
    const QPointer<frmCalendario> window = desk.Window();
    hand::Key(Qt::Key_Return);
    QTRY_VERIFY(window.isNull());
    VERIFY_SCRIPT(desk.script);
}

void PagesTest::theKeysTestTheBox()
{
    CalendarDesk desk;
    desk.StartOpen();
    desk.Write(RaceColumn::Minuti, 1, QStringLiteral("75"));
    for (const Qt::Key key : {Qt::Key_PageDown, Qt::Key_Down}) {
        desk.script.Expect(Warning(QStringLiteral("MAX 59 MINUTI                ")));
        hand::Key(key);
        TRY_SCRIPT(desk.script);
        CalendarDesk::AwaitFront(*desk.Window());
        QCOMPARE(desk.FirstNumber(), QByteArray("1"));
        QCOMPARE(CalendarDesk::Focused(), QByteArray("txtMinuti(1)"));
    }
    desk.Write(RaceColumn::Minuti, 1, QStringLiteral("5"));
    hand::Key(Qt::Key_PageDown);
    QTRY_COMPARE(desk.FirstNumber(), QByteArray("21"));
    QVERIFY(Module1::MinutiGara[1] == 5);
    hand::Key(Qt::Key_PageUp);
    QTRY_COMPARE(desk.Row(1), QByteArray("||||||||||05|||"));
    VERIFY_SCRIPT(desk.script);
}

void PagesTest::keysGoAlongTheColumn()
{
    const struct {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        const char* next;
    } steps[] = {
        {Qt::Key_Up, {}, "txtGiornoGara(1)"},
        {Qt::Key_Down, {}, "txtGiornoGara(2)"},
        {Qt::Key_End, Qt::ControlModifier, "txtGiornoGara(20)"},
        {Qt::Key_Down, {}, "txtGiornoGara(20)"},
        {Qt::Key_Up, {}, "txtGiornoGara(19)"},
        {Qt::Key_Home, Qt::ControlModifier, "txtGiornoGara(1)"},
        {Qt::Key_End, Qt::ControlModifier, "txtGiornoGara(20)"},
        {Qt::Key_F6, {}, "cmdSalva"},
        {Qt::Key_F6, {}, "txtGiornoGara(20)"},
        {Qt::Key_F6, {}, "cmdSalva"},
        {Qt::Key_Tab, {}, "cmdStampa"},
        {Qt::Key_F6, {}, "txtGiornoGara(20)"},
    };
    CalendarDesk desk;
    desk.StartOpen();
    QTRY_COMPARE(CalendarDesk::Focused(), QByteArray("txtGiornoGara(1)"));
    for (const auto& step : steps) {
        hand::Key(step.key, step.modifiers);
        QTRY_COMPARE(CalendarDesk::Focused(), QByteArray(step.next));
    }
    // The dashes come and go as they do on Tab.
    QCOMPARE(desk.Dashes(20), QByteArray("      -      -    "));
    QCOMPARE(desk.Dashes(19), QByteArray("                  "));
    VERIFY_SCRIPT(desk.script);
}

void PagesTest::aTurnStoresThePage()
{
    CalendarBytes file;
    file.SetRow(22, "1|1|2026|Capodanno");
    CalendarDesk desk(file);
    desk.StartOpen();
    desk.WriteRow(2, "24|5|2026|Giro Delle Mura|Lago|10|50|1234|592||49|6|MM45|84");
    desk.NextPage();
    QTRY_COMPARE(desk.Row(2), QByteArray("1|1|2026|Capodanno||||||||||"));
    QCOMPARE(RaceInMemory(2), QByteArray("24|5|2026|Giro Delle Mura|Lago|10|50|1234|592|0|49|6|MM45|84"));
    QCOMPARE(desk.File(), file.Bytes());
    desk.PreviousPage();
    QTRY_COMPARE(desk.Row(2), QByteArray("24|5|2026|Giro Delle Mura|Lago|10|050|1.234|592||49|06|MM45|84"));
    VERIFY_SCRIPT(desk.script);
}

void PagesTest::aTurnForgetsTheChangesOfAnother()
{
    CalendarDesk desk;
    desk.StartOpen();
    desk.Write(RaceColumn::Gara, 1, QStringLiteral("Corrida"));
    desk.NextPage();
    QVERIFY(desk.Window()->CalendarioModificato == 1);
    desk.NextPage();
    QVERIFY(desk.Window()->CalendarioModificato == 0);
    desk.Leave();
    QCOMPARE(RaceInMemory(1), QByteArray("0|0|0|Corrida||0|0|0|0|0|0|0||0"));
    QCOMPARE(desk.File(), CalendarBytes().Bytes());
    VERIFY_SCRIPT(desk.script);
}

void PagesTest::aTurnRemembersThePageLeft()
{
    CalendarDesk desk;
    desk.StartOpen();
    desk.Write(RaceColumn::Gara, 1, QStringLiteral("Corrida"));
    desk.NextPage();
    desk.LeaveAnswering(QMessageBox::Yes);
    QCOMPARE(desk.File(), CalendarBytes().SetRow(1, "|||Corrida").Bytes());
    VERIFY_SCRIPT(desk.script);
}

void PagesTest::aTurnDoesNotTestTheBox()
{
    CalendarDesk desk;
    desk.StartOpen();
    desk.Write(RaceColumn::Minuti, 1, QStringLiteral("75"));
    desk.NextPage();
    QTRY_COMPARE(desk.FirstNumber(), QByteArray("21"));
    QCOMPARE(CalendarDesk::Focused(), QByteArray("txtMinuti(1)"));
    QVERIFY(Module1::MinutiGara[1] == 75);
    VERIFY_SCRIPT(desk.script);
}

void PagesTest::aPartOfADateReturnsToNothing()
{
    CalendarDesk desk;
    desk.StartOpen();
    desk.Write(RaceColumn::Anno, 1, QStringLiteral("2026"));
    desk.script.Expect(Warning(QStringLiteral(" MANCA AL N° 1 :   GIORNO   ")));
    desk.script.Expect(Warning(QStringLiteral(" MANCA AL N° 1 :   MESE   ")));
    desk.NextPage();
    QTRY_COMPARE(desk.FirstNumber(), QByteArray("21"));
    QCOMPARE(RaceInMemory(1).left(8), QByteArray("0|0|2026"));
    // The row counts as free and is shown as such; the year goes when the page is left again.
    desk.PreviousPage();
    QTRY_COMPARE(desk.FirstNumber(), QByteArray("1"));
    QCOMPARE(desk.Row(1), QByteArray("|||||||||||||"));
    desk.NextPage();
    QTRY_COMPARE(desk.FirstNumber(), QByteArray("21"));
    QVERIFY(desk.Window()->CalendarioModificato == 1);
    QCOMPARE(RaceInMemory(1).left(5), QByteArray("0|0|0"));
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::PagesTest)
#include "PagesTest.moc"
