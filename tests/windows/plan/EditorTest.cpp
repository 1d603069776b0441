// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The editor of a training table, worked by mouse and keys.
#include "support/TableDesk.h"
#include "support/WindowTest.h"
#include "toolkit/Colours.h"
#include "toolkit/PagePalette.h"
#include "windows/plan/PlanColumns.h"

namespace zelvia::test
{

using namespace TableGrid;

class EditorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensATableOfTheList();
    void aClickTurnsTheGridGrey();
    void limitsHoldTheFocus_data();
    void limitsHoldTheFocus();
    void aMovedDistanceLosesItsThousands();
    void activatesAndDeactivates();
    void itsSheetIsRuledAndItsHeadsStandOverTheirBoxes();
};

void EditorTest::opensATableOfTheList()
{
    TableDesk desk;
    desk.Start();
    desk.OpenList();
    QCOMPARE(desk.Entries(), (QByteArrayList{"Base 10 km.tab", "Mezza maratona.tab"}));
    desk.OpenTable("Base 10 km.tab");
    QCOMPARE(desk.Editor()->windowTitle(), QStringLiteral("Tabella allenamento : Base 10 km    di   "));
    QVERIFY(desk.Editor()->width() <= 1366 && desk.Editor()->height() <= 740);
    QCOMPARE(desk.Row(1), QByteArray("6|||34||5|40||Media|Strada||||"));
    QCOMPARE(desk.Row(22), QByteArray("10||||||||Media/Veloce|Strada|3|2.000|9|45"));
    QCOMPARE(desk.Row(30), QByteArray("|||||||||||||"));
    QCOMPARE(desk.StartDate(), QByteArray("2|3|2026"));
    VERIFY_SCRIPT(desk.script);
}

void EditorTest::aClickTurnsTheGridGrey()
{
    TableDesk desk;
    desk.Start();
    desk.OpenList();
    desk.OpenTable("Base 10 km.tab");
    QCOMPARE(BackColour(desk.Box(Km, 31)), TableColours::Accepted);
    hand::Click(desk.Box(Fondo, 2));
    QCOMPARE(BackColour(desk.Box(Km, 31)), TableColours::Editing);
    QCOMPARE(BackColour(*desk.Editor()->StripOf(LblKmt, 1)), TableColours::Editing);
    QCOMPARE(BackColour(*desk.Editor()->lblGiorni[1]), TableColours::Accepted);
    QCOMPARE(BackColour(*desk.Editor()->dateBoxes[0]), TableColours::Editing);
    QVERIFY(desk.Editor()->cmdOK->isEnabled());
    QVERIFY(!desk.Editor()->cmdAttiva->isEnabled());
    VERIFY_SCRIPT(desk.script);
}

void EditorTest::limitsHoldTheFocus_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("message");
    QTest::newRow("hours") << int{Ore} << "25"
                           << "MAX 24 ORE                ";
    QTest::newRow("minutes") << int{Minuti} << "75"
                             << "MAX 59 MINUTI                ";
    QTest::newRow("seconds") << int{Secondi} << "60"
                             << "MAX 59 SECONDI                ";
    QTest::newRow("average minutes") << int{MediaMinuti} << "61"
                                     << "MAX 60 MINUTI                 ";
    QTest::newRow("average seconds") << int{MediaSecondi} << "60"
                                     << "MAX 59 SECONDI                ";
    QTest::newRow("distance") << int{RipetDistanza} << "10000"
                              << "MAX 9.999                   ";
    QTest::newRow("each one's minutes") << int{RipetQuante} << "61"
                                        << "MAX 60 MINUTI                 ";
    QTest::newRow("each one's seconds") << int{RipetTempi} << "60"
                                        << "MAX 59 SECONDI                ";
}

void EditorTest::limitsHoldTheFocus()
{
    QFETCH(int, column);
    QFETCH(QString, typed);
    QFETCH(QString, message);
    TableDesk desk;
    desk.StartNew();
    TextBox& box = desk.Box(static_cast<Column>(column), 4);
    desk.Write(box, typed);
    desk.TryToLeave(box, message);
}

void EditorTest::aMovedDistanceLosesItsThousands()
{
    TableDesk desk;
    desk.StartNew();
    desk.Write(desk.Box(RipetVolte, 3), QStringLiteral("5"));
    desk.Write(desk.Box(RipetDistanza, 3), QStringLiteral("1500"));
    hand::Key(Qt::Key_Tab);
    QTRY_COMPARE(desk.Held(RipetDistanza, 3), QByteArray("1.500"));
    QCOMPARE(desk.RowMenu(2, Qt::Key_I),
             (QByteArrayList{"mnuInserisciRiga &Inserisci Riga", "mnuEliminaRiga &Elimina Riga"}));
    QTRY_COMPARE(desk.Row(4), QByteArray("||||||||||5|2||"));
    QCOMPARE(desk.Row(3), QByteArray("|||||||||||||"));
    VERIFY_SCRIPT(desk.script);
}

void EditorTest::activatesAndDeactivates()
{
    TableDesk desk;
    desk.Start();
    desk.OpenList();
    desk.OpenTable("Base 10 km.tab");
    hand::Click(*desk.Editor()->cmdOK);
    hand::Click(*desk.Editor()->cmdAttiva);
    QVERIFY(desk.folder.Read(QStringLiteral("prova/nometab")) == '"' + desk.PathOf("Base 10 km.tab") + "\"\r\n");
    QCOMPARE(desk.Caption("lblTabNomeFile"), QStringLiteral("Base 10 km"));
    QCOMPARE(BackColour(*desk.Editor()->dateBoxes[0]), TableColours::Active);
    hand::Click(*desk.Editor()->cmdDisattiva);
    QVERIFY(desk.folder.Read(QStringLiteral("prova/nometab")) == "\"\"\r\n");
    QCOMPARE(desk.Caption("lblTabNomeFile"), QString());
    QCOMPARE(BackColour(*desk.Editor()->dateBoxes[0]), TableColours::Accepted);
    VERIFY_SCRIPT(desk.script);
}

/// The printed lines are on paper between the strips; what is written has the pen's face, and heads are printed.
void EditorTest::itsSheetIsRuledAndItsHeadsStandOverTheirBoxes()
{
    TableDesk desk;
    desk.StartNew();
    const QImage shown = desk.Editor()->grab().toImage();
    for (const int row : {1, 17, 31}) {
        const QRect left = desk.Editor()->StripOf(LblKmt, row)->geometry();
        const QRect right = desk.Editor()->StripOf(LblTempi, row)->geometry();
        const int between = (left.right() + right.left()) / 2;
        QCOMPARE(shown.pixelColor(left.center().x(), left.bottom() + 1), QColor(Ink::Rule));
        QCOMPARE(shown.pixelColor(between, left.center().y()), QColor(Ink::Rule));
    }
    QVERIFY(desk.Box(Fondo, 1).font().italic());
    QVERIFY(!desk.Editor()->lblGiorni[1]->font().italic());
    QVERIFY(desk.Box(Km, 1).alignment().testFlag(Qt::AlignRight));

    // The middle of the ink of a word of the heads is over the middle of its box.
    const QRect heads = desk.Editor()->findChild<QWidget*>(QStringLiteral("lblTitoloKm"))->geometry();
    for (const Column column : {Km, Metri, Ore, Minuti, Secondi, MediaMinuti, MediaMillesimi}) {
        const QRect box = desk.Box(column, 1).geometry();
        int first = 0;
        int last = 0;
        for (int x = box.left() - 2; x <= box.right() + 2; ++x) {
            for (int y = heads.top(); y <= heads.bottom(); ++y) {
                if (shown.pixelColor(x, y).lightness() < 160) {
                    first = first == 0 ? x : first;
                    last = x;
                }
            }
        }
        QVERIFY(first > 0);
        const int off = std::abs((first + last) / 2 - box.center().x());
        QVERIFY2(off <= 2, qPrintable(QStringLiteral("%1: %2").arg(column).arg(off)));
    }
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::EditorTest)
#include "EditorTest.moc"
