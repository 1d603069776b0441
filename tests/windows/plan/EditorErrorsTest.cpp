// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Values of the table editor that its columns and its calculations can't hold.
#include "support/TableBytes.h"
#include "support/TableDesk.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
namespace
{

using namespace TableGrid;

ExpectedBox TooLarge(const QString& routine)
{
    return {routine + QStringLiteral(" - ERRORE : 6 Numero oltre i limiti")};
}

} // namespace

class EditorErrorsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowMoved_data();
    void rowMoved();
    void averageOfAMetreADay();
    void averageBeyondAShort_data();
    void averageBeyondAShort();
};

void EditorErrorsTest::rowMoved_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("routine");
    QTest::newRow("inserted") << int{Qt::Key_I} << QStringLiteral("mnuInserisciRiga");
    QTest::newRow("deleted") << int{Qt::Key_E} << QStringLiteral("mnuEliminaRiga");
}

/// A caption takes no focus: the box that holds too much has not been tested yet.
void EditorErrorsTest::rowMoved()
{
    QFETCH(int, key);
    QFETCH(QString, routine);
    TableDesk desk;
    desk.StartNew();
    desk.Write(desk.Box(RipetDistanza, 5), QStringLiteral("99999"));
    desk.script.Expect(TooLarge(routine));
    desk.RowMenu(3, static_cast<Qt::Key>(key));
    desk.AwaitBoxes();
    QCOMPARE(desk.Held(RipetDistanza, 5), QByteArray("99999"));
    QCOMPARE(desk.Editor()->TabellaModificata, 0);
}

void EditorErrorsTest::averageOfAMetreADay()
{
    TableDesk desk;
    desk.StartNew();
    desk.Write(desk.Box(Metri, 2), QStringLiteral("1"));
    desk.Write(desk.Box(Ore, 2), QStringLiteral("24"));
    // 24 hours a metre are 1,440,000 minutes per kilometre.
    desk.script.Expect(TooLarge(QStringLiteral("CalcolaMediaKm")));
    hand::Click(*desk.Editor()->cmdCalcoloMedie);
    desk.AwaitBoxes();
    QCOMPARE(desk.Row(2), QByteArray("|001|24|||||||||||"));
}

void EditorErrorsTest::averageBeyondAShort_data()
{
    QTest::addColumn<QByteArray>("row");
    QTest::addColumn<QString>("routine");
    // 547 minutes are 32,820 seconds, more than 32,767.
    QTest::newRow("time") << QByteArray("10|0|0|0|0|547|1") << QStringLiteral("CalcolaTempo");
    QTest::newRow("distance") << QByteArray("0|0|1|0|0|547|1") << QStringLiteral("CalcolaDistanza");
}

/// No box takes so slow an average, but a file does.
void EditorErrorsTest::averageBeyondAShort()
{
    QFETCH(QByteArray, row);
    QFETCH(QString, routine);
    TableDesk desk;
    TableBytes table(QDate(2026, 5, 1));
    table.SetRow(4, row);
    desk.WriteTable("lenta.tab", table.Bytes());
    desk.StartWith("lenta.tab");
    const QByteArray before = desk.Row(4);
    desk.script.Expect(TooLarge(routine));
    hand::Click(*desk.Editor()->cmdCalcoloMedie);
    desk.AwaitBoxes();
    QCOMPARE(desk.Row(4), before);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::EditorErrorsTest)
#include "EditorErrorsTest.moc"
