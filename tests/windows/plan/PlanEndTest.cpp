// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The end of the active table: reported once wherever it is noticed, and the table is then deactivated.
#include "support/PlanDesk.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
namespace
{

constexpr int kToday = 140; // 20 May 2026
const QDate kStart(2026, 5, 20);
const QString kTable = QStringLiteral("Piano.tab");
/// The panel of a table that was switched off.
const QByteArray kOff = QByteArray("|") + kNeutral;

enum Moment { Step, ProgramStart, Opening, Tick };

/// Thirty days off and a run: all used up on 20 May's eve.
TableBytes ShortPlan()
{
    return TableBytes(kStart.addDays(-31)).SetRow(31, "1");
}

} // namespace

class PlanEndTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyZeroRows();
    void theEnd_data();
    void theEnd();
    void aPointerThatCannotBeWritten();
};

void PlanEndTest::onlyZeroRows()
{
    PlanDesk desk(CalendarDate(2026, 6, 19)); // The 31st day.
    desk.PutTable(kTable, TableBytes(kStart));
    desk.Activate("Piano.tab");
    desk.Begin();
    QCOMPARE(desk.Panel(), QByteArray("Piano|") + kNeutral);
    QVERIFY(Module1::IndiceTabella == 32);
    desk.script.Expect(EndOfTable(QStringLiteral("Piano")));
    desk.Up(*desk->upGiorno);
    TRY_SCRIPT(desk.script);
    QCOMPARE(desk.Pointer(), PlanDesk::kNoPointer);
    desk.GoTo(kToday);
    VERIFY_SCRIPT(desk.script);
}

void PlanEndTest::theEnd_data()
{
    QTest::addColumn<int>("moment");
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("name");
    QTest::newRow("at a step of the day") << int{Step} << QByteArray("Piano.tab") << "Piano";
    QTest::newRow("at the program's start") << int{ProgramStart} << QByteArray("Piano.tab") << "Piano";
    QTest::newRow("when a diary is opened") << int{Opening} << QByteArray("Piano.tab") << "Piano";
    QTest::newRow("when the editor has closed") << int{Tick} << QByteArray("Piano.tab") << "Piano";
    QTest::newRow("a name with two dots") << int{Step} << QByteArray("Piano 2.0.TAB") << "Piano 2.0";
    QTest::newRow("a name with an accent") << int{Step} << QByteArray("Et\xE0.tab") << QString::fromLatin1("Et\xE0");
}

void PlanEndTest::theEnd()
{
    QFETCH(int, moment);
    QFETCH(QByteArray, file);
    QFETCH(QString, name);
    PlanDesk desk(moment == Step ? CalendarDate(2026, 5, 19) : CalendarDate(2026, 5, 20));
    desk.Run(kToday - 1, 1);
    const QString path = QStringLiteral("prova/") + QString::fromLatin1(file);
    desk.folder.Write(path, ShortPlan().Bytes());
    const QString pointer = moment == Opening ? QStringLiteral("seconda/nometab") : QStringLiteral("prova/nometab");
    const auto expectEnd = [&] {
        desk.script.Expect(EndOfTable(name));
        // It is switched off behind the box.
        desk.script.Meanwhile([&] {
            QCOMPARE(desk.folder.Read(pointer), desk.PointerTo(file.constData()));
            QCOMPARE(PlanDesk::Active(), desk.PathOf(file.constData()));
        });
    };
    switch (moment) {
    case Step:
        desk.Activate(file.constData());
        desk.Begin();
        // The day that met the last row still shows it.
        QCOMPARE(desk.Panel(), name.toLatin1() + '|' + Kilometres(1));
        QVERIFY(Module1::IndiceTabella == 32);
        expectEnd();
        desk.Up(*desk->upGiorno);
        break;
    case ProgramStart:
        desk.Activate(file.constData());
        expectEnd();
        desk.Begin();
        break;
    case Opening:
        desk.PutSecondDiary(desk.PointerTo(file.constData()));
        desk.Begin();
        desk.script.Expect(desk.OpenDialog(QStringLiteral("prova.zlv"), QStringLiteral("seconda.zlv")));
        expectEnd();
        desk.OpenSecondDiary();
        break;
    default:
        desk.Begin();
        desk.OpenList();
        desk.ActivateByHand(file.constData());
        expectEnd();
        desk.LeaveEditor();
        break;
    }
    TRY_SCRIPT(desk.script);
    QCOMPARE(desk.Panel(), kOff);
    QCOMPARE(desk.PanelParts(), 14);
    QCOMPARE(PlanDesk::Active(), QByteArray());
    QVERIFY(Module1::IndiceTabella == 1);
    QCOMPARE(desk.folder.Read(pointer), PlanDesk::kNoPointer);
    QCOMPARE(desk.folder.Read(path), ShortPlan().Bytes());
    // The page goes on, and the end is reported once.
    desk.GoTo(kToday + 1);
    desk.GoTo(kToday - 1);
    QCOMPARE(desk.Panel(), kOff);
    VERIFY_SCRIPT(desk.script);
}

void PlanEndTest::aPointerThatCannotBeWritten()
{
    PlanDesk desk(CalendarDate(2026, 5, 19));
    desk.Run(kToday - 1, 1);
    desk.PutTable(kTable, ShortPlan());
    desk.Activate("Piano.tab");
    desk.Begin();
    desk.folder.Block(QStringLiteral("prova/nometab"));
    desk.script.Expect(EndOfTable(QStringLiteral("Piano")));
    desk.script.Expect(BareReport(kDenied));
    desk.Up(*desk->upGiorno);
    TRY_SCRIPT(desk.script);
    QCOMPARE(desk.Panel(), kOff);
    QCOMPARE(PlanDesk::Active(), QByteArray());
    desk.GoTo(kToday + 2);
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::PlanEndTest)
#include "PlanEndTest.moc"
