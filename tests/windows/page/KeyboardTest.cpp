// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The page without a mouse: the keys of a group of arrows, and where Tab goes on when a field is closed.
#include "support/EntryPage.h"
#include "support/WindowTest.h"

#include <QContextMenuEvent>
#include <QMenu>

namespace zelvia::test
{

class KeyboardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheArrowsOfAGroupAreChosenAndStepped();
    void TheKeysStartWithTheControlThatHoldsTheFocus();
    void TheSplitsAreEnteredByKeys();
    void TheMonthIsTurnedByKeys();
    void EscapeLeavesAGroup_data();
    void EscapeLeavesAGroup();
    void TabGoesOnBehindTheFieldThatWasOpen_data();
    void TabGoesOnBehindTheFieldThatWasOpen();
    void TheMenuKeyOpensThePopUpOfAList();
};

// The pairs of the distance are in the order kilometres, tens of metres, metres; the tens hold the focus.
void KeyboardTest::TheArrowsOfAGroupAreChosenAndStepped()
{
    EntryPage page;
    page.Start();
    page.Open(*page->lblImmisMetri, Way::Enter);
    hand::Keys({Qt::Key_Left, Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_Left, Qt::Key_Down});
    QTRY_COMPARE(page->upKM->Value(), i32(2));
    hand::Keys({Qt::Key_Right, Qt::Key_Up, Qt::Key_Up});
    QTRY_COMPARE(page->upMetri->Value(), i32(20));
    hand::Keys({Qt::Key_Right, Qt::Key_Right, Qt::Key_Up});
    QTRY_COMPARE(page->upMetro->Value(), i32(1));
    QCOMPARE(page->lblImmisMetri->text(), QStringLiteral("2,021"));
    QCOMPARE(EntryPage::Focused(), QByteArray("upMetri"));
}

void KeyboardTest::TheKeysStartWithTheControlThatHoldsTheFocus()
{
    EntryPage page;
    page.Start();
    page.Open(*page->lblImmisOraInizio, Way::Space);
    hand::Keys({Qt::Key_Up, Qt::Key_Right, Qt::Key_Up, Qt::Key_Escape});
    QTRY_VERIFY(!page->upOraInizio->isVisible());
    QCOMPARE(page->lblImmisOraInizio->text(), QStringLiteral("1:01:00"));
    page.Open(*page->lblImmisOraInizio, Way::Enter);
    hand::Keys({Qt::Key_Up});
    QTRY_COMPARE(page->lblImmisOraInizio->text(), QStringLiteral("2:01:00"));
}

void KeyboardTest::TheSplitsAreEnteredByKeys()
{
    EntryPage page;
    page.Start();
    page.Open(*page->lblImmisTempoKM, Way::Enter);
    hand::Keys(
        {Qt::Key_Up, Qt::Key_Right, Qt::Key_Right, Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_Return});
    QTRY_COMPARE(page->lstListaKM->ListCount(), 1);
    QCOMPARE(page->lstListaKM->item(0)->text(), QStringLiteral("01      00:04:00"));
}

void KeyboardTest::TheMonthIsTurnedByKeys()
{
    EntryPage page;
    page.Start();
    page.Open(*page->lblData, Way::Enter);
    hand::Keys({Qt::Key_Up});
    QTRY_COMPARE(page->lblData->text(), QStringLiteral("   giovedì  21  maggio  2026"));
    hand::Keys({Qt::Key_Right, Qt::Key_Down});
    QTRY_COMPARE(page->lblData->text(), QStringLiteral("   martedì  21  aprile  2026"));
}

void KeyboardTest::EscapeLeavesAGroup_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("spin");
    QTest::newRow("runners") << QStringLiteral("lblImmisCorridori") << QStringLiteral("upCorridori");
    QTest::newRow("end") << QStringLiteral("lblImmisOraFine") << QStringLiteral("upSecondiFine");
    QTest::newRow("splits") << QStringLiteral("lblImmisTempoMinuti") << QStringLiteral("upTempoOre");
}

void KeyboardTest::EscapeLeavesAGroup()
{
    QFETCH(QString, label);
    QFETCH(QString, spin);
    EntryPage page;
    page.Start();
    page.Open(*page->findChild<Label*>(label));
    const auto* control = page->findChild<UpDown*>(spin);
    QTRY_VERIFY(control->isVisible());
    hand::Keys({Qt::Key_Escape});
    QTRY_VERIFY(!control->isVisible());
    QCOMPARE(EntryPage::Focused(), QByteArray("pctGiornoAnno"));
}

void KeyboardTest::TabGoesOnBehindTheFieldThatWasOpen_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("next");
    QTest::newRow("list") << QStringLiteral("lblImmisFondo") << QStringLiteral("lblImmisTipo");
    QTest::newRow("numbers") << QStringLiteral("lblImmisOraFine") << QStringLiteral("lblOutTempoImpiegato");
    QTest::newRow("note") << QStringLiteral("lblNote4") << QStringLiteral("lblNote5");
    QTest::newRow("last list") << QStringLiteral("lblImmisTemperatura") << QStringLiteral("lblImmisCorridori");
}

void KeyboardTest::TabGoesOnBehindTheFieldThatWasOpen()
{
    QFETCH(QString, label);
    QFETCH(QString, next);
    EntryPage page;
    page.Start();
    page.Open(*page->findChild<Label*>(label), Way::Enter);
    hand::Keys({Qt::Key_Escape});
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("pctGiornoAnno"));
    hand::Keys({Qt::Key_Tab});
    QTRY_COMPARE(EntryPage::Focused(), next.toLatin1());
}

void KeyboardTest::TheMenuKeyOpensThePopUpOfAList()
{
    EntryPage page;
    page.Start();
    const int tipo = 5;
    page.Open(tipo);
    page.ClickRow(*page.Field(tipo).lst, 1);
    QTRY_COMPARE(page.Field(tipo).lst->ListIndex(), 1);
    const QStringList before = page.ListOf(tipo);
    QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, QPoint(4, 4), QPoint(4, 4));
    QObject::connect(page->mnuCancelladallaLista, &QMenu::aboutToShow, page->mnuCancelladallaLista,
                     [menu = page->mnuCancelladallaLista] {
                         QMetaObject::invokeMethod(
                             menu,
                             [menu] {
                                 menu->actions().first()->trigger();
                                 menu->close();
                             },
                             Qt::QueuedConnection);
                     });
    QApplication::sendEvent(page.Field(tipo).lst->viewport(), &menuKey);
    QTRY_COMPARE(page.ListOf(tipo), before.mid(0, 1) + before.mid(2));
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::KeyboardTest)
#include "KeyboardTest.moc"
