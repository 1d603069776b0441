// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The boxes of a route's description: keys, limits and sums.
#include "diary/RouteModel.h"
#include "support/WindowTest.h"
#include "windows/routes/RouteHand.h"

namespace zelvia::test
{

class RouteBoxesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void enterWalksThroughTheRows();
    void keysGoAlongTheColumn();
    void typingTakesTheTextsPlace();
    void onlyDigitsPass_data();
    void onlyDigitsPass();
    void everyKeyCountsAsAChange_data();
    void everyKeyCountsAsAChange();
    void lengthsAreLimited();
    void totals_data();
    void totals();
    void theSumsFollowTheFocus();
};

void RouteBoxesTest::enterWalksThroughTheRows()
{
    EntryPage page;
    page.Start();
    EnterRoute(page, QStringLiteral("Delta"));
    frmDesPercorso& window = Opened(page);
    QTRY_VERIFY(window.txtTratto[1]->hasFocus());
    for (int row = 1; row <= 20; ++row) {
        QTRY_VERIFY(window.txtTratto[row]->hasFocus());
        hand::Key(Qt::Key_Return);
        QTRY_VERIFY(window.txtKm[row]->hasFocus());
        hand::Key(Qt::Key_Return);
        QTRY_VERIFY(window.txtMetri[row]->hasFocus());
        hand::Key(Qt::Key_Return);
    }
    // On the last row the focus stays.
    hand::Type(QStringLiteral("5"));
    QTRY_COMPARE(window.txtMetri[20]->text(), QStringLiteral("5"));
    QVERIFY(window.txtMetri[20]->hasFocus());
    page.CloseRouteWindow();
    VERIFY_SCRIPT(page.script);
}

void RouteBoxesTest::keysGoAlongTheColumn()
{
    const struct {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        const char* next;
    } steps[] = {
        {Qt::Key_Down, {}, "txtKm(2)"},
        {Qt::Key_Up, {}, "txtKm(1)"},
        {Qt::Key_Up, {}, "txtKm(1)"},
        {Qt::Key_End, Qt::ControlModifier, "txtKm(20)"},
        {Qt::Key_Down, {}, "txtKm(20)"},
        {Qt::Key_Home, Qt::ControlModifier, "txtKm(1)"},
        // There are no buttons: F6 goes to the total.
        {Qt::Key_F6, {}, "txtDistanzaKm"},
        {Qt::Key_F6, {}, "txtKm(1)"},
    };
    EntryPage page;
    page.Start();
    OpenEntry(page, 1);
    const frmDesPercorso& window = Opened(page);
    TypeInto(*window.txtKm[1], QStringLiteral("21"));
    QTRY_COMPARE(window.txtKm[1]->text(), QStringLiteral("21"));
    Module1::FileModificato = 0;
    for (const auto& step : steps) {
        hand::Key(step.key, step.modifiers);
        QTRY_COMPARE(EntryPage::Focused(), QByteArray(step.next));
    }
    // Leaving the box added up; the keys entered nothing.
    QCOMPARE(window.txtDistanzaKm->text(), QStringLiteral("21"));
    QVERIFY(Module1::FileModificato == 0);
    page.CloseRouteWindow();
    VERIFY_SCRIPT(page.script);
}

void RouteBoxesTest::typingTakesTheTextsPlace()
{
    // "Beta" holds 1 km and 2 m in its first stretch, "t". Each box is entered by the opening or by Enter.
    EntryPage page;
    page.Start();
    OpenEntry(page, 1);
    const frmDesPercorso& window = Opened(page);
    QTRY_VERIFY(window.txtTratto[1]->hasFocus());
    hand::Type(QStringLiteral("ponte"));
    hand::Key(Qt::Key_Return);
    QTRY_VERIFY(window.txtKm[1]->hasFocus());
    hand::Type(QStringLiteral("21"));
    hand::Key(Qt::Key_Return);
    QTRY_VERIFY(window.txtMetri[1]->hasFocus());
    hand::Type(QStringLiteral("34"));
    QTRY_COMPARE(window.txtMetri[1]->text(), QStringLiteral("34"));
    QCOMPARE(window.txtKm[1]->text(), QStringLiteral("21"));
    QCOMPARE(window.txtTratto[1]->text(), QStringLiteral("ponte"));
    page.CloseRouteWindow();
    VERIFY_SCRIPT(page.script);
}

void RouteBoxesTest::onlyDigitsPass_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shows");
    QTest::newRow("km") << "txtKm(3)"
                        << "a-1,.2 "
                        << "12";
    QTest::newRow("metres") << "txtMetri(3)"
                            << "+x9/:8 7"
                            << "987";
    QTest::newRow("text") << "txtTratto(3)"
                          << "a-1,.2 "
                          << "a-1,.2 ";
}

void RouteBoxesTest::onlyDigitsPass()
{
    QFETCH(QString, box);
    QFETCH(QString, typed);
    QFETCH(QString, shows);
    EntryPage page;
    page.Start();
    EnterRoute(page, QStringLiteral("Delta"));
    auto& target = *Opened(page).findChild<TextBox*>(box);
    TypeInto(target, typed);
    QTRY_COMPARE(target.text(), shows);
    if (box != QLatin1String("txtTratto(3)")) {
        hand::Key(Qt::Key_Backspace);
        QTRY_COMPARE(target.text(), shows.chopped(1));
    }
    page.CloseRouteWindow();
    VERIFY_SCRIPT(page.script);
}

void RouteBoxesTest::everyKeyCountsAsAChange_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<int>("key");
    for (const char* box : {"txtTratto(2)", "txtKm(2)", "txtMetri(2)"}) {
        QTest::addRow("a letter in %s", box) << QString::fromLatin1(box) << int(Qt::Key_A);
        QTest::addRow("a digit in %s", box) << QString::fromLatin1(box) << int(Qt::Key_1);
        QTest::addRow("Enter in %s", box) << QString::fromLatin1(box) << int(Qt::Key_Return);
        QTest::addRow("Backspace in %s", box) << QString::fromLatin1(box) << int(Qt::Key_Backspace);
        QTest::addRow("Escape in %s", box) << QString::fromLatin1(box) << int(Qt::Key_Escape);
    }
}

void RouteBoxesTest::everyKeyCountsAsAChange()
{
    QFETCH(QString, box);
    QFETCH(int, key);
    EntryPage page;
    page.Start();
    OpenEntry(page, 1);
    auto& target = *Opened(page).findChild<TextBox*>(box);
    target.SetFocus();
    QTRY_VERIFY(target.hasFocus());
    Module1::FileModificato = 0;
    // The arrows are no characters.
    hand::Key(Qt::Key_Left);
    QVERIFY(Module1::FileModificato == 0);
    if (key == Qt::Key_A || key == Qt::Key_1) {
        hand::Type(QString(QChar(key == Qt::Key_A ? u'a' : u'1')));
    } else {
        hand::Key(Qt::Key(key));
    }
    QTRY_VERIFY(Module1::FileModificato == 1);
    QVERIFY(page.RouteWindow() != nullptr);
    page.CloseRouteWindow();
    VERIFY_SCRIPT(page.script);
}

void RouteBoxesTest::lengthsAreLimited()
{
    EntryPage page;
    page.Start();
    EnterRoute(page, QStringLiteral("Delta"));
    frmDesPercorso& window = Opened(page);
    TypeInto(*window.txtTratto[1], QString(85, QLatin1Char('w')));
    QTRY_COMPARE(window.txtTratto[1]->text().size(), 80);
    TypeInto(*window.txtKm[1], QStringLiteral("123"));
    QTRY_COMPARE(window.txtKm[1]->text(), QStringLiteral("12"));
    TypeInto(*window.txtMetri[1], QStringLiteral("1234"));
    QTRY_COMPARE(window.txtMetri[1]->text(), QStringLiteral("123"));
    page.CloseRouteWindow();
    QCOMPARE(page.Caption("lblImmisMetri"), QStringLiteral("12,123"));
    VERIFY_SCRIPT(page.script);
}

void RouteBoxesTest::totals_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("km");
    QTest::addColumn<int>("metres");
    QTest::addColumn<QString>("totalKm");
    QTest::addColumn<QString>("totalMetres");
    QTest::addColumn<int>("rest");
    QTest::newRow("20 stretches of 999 metres") << 20 << 0 << 999 << "19"
                                                << "980" << 980;
    QTest::newRow("a whole kilometre of metres") << 2 << 3 << 500 << "7"
                                                 << "0" << 0;
    // Below a kilometre nothing is left over, since nothing was taken off.
    QTest::newRow("999 metres") << 1 << 4 << 999 << "4"
                                << "999" << 0;
    QTest::newRow("the most") << 20 << 99 << 999 << "1999"
                              << "980" << 980;
}

void RouteBoxesTest::totals()
{
    QFETCH(int, rows);
    QFETCH(int, km);
    QFETCH(int, metres);
    QFETCH(QString, totalKm);
    QFETCH(QString, totalMetres);
    QFETCH(int, rest);
    EntryPage page;
    page.Start();
    EnterRoute(page, QStringLiteral("Delta"));
    frmDesPercorso& window = Opened(page);
    for (int row = 1; row <= rows; ++row) {
        window.txtKm[row]->SetContent(std::to_string(km));
        window.txtMetri[row]->SetContent(std::to_string(metres));
    }
    // The sums are made when a box of them loses the focus.
    window.txtMetri[1]->SetFocus();
    window.txtTratto[1]->SetFocus();
    QTRY_COMPARE(window.txtDistanzaKm->text(), totalKm);
    QCOMPARE(window.txtDistanzaMetri->text(), totalMetres);
    QVERIFY(window.TotaleKm == totalKm.toInt());
    QVERIFY(window.TotaleMetri == rows * metres);
    QVERIFY(window.RestoMetri == rest);
    page.CloseRouteWindow();
    QCOMPARE(page->upKM->Value().value(), totalKm.toInt());
    QCOMPARE(page->upMetri->Value().value(), totalMetres.toInt());
    QVERIFY(Module1::DistanzePercorso[4] == totalKm.toInt() * 1000 + totalMetres.toInt());
    VERIFY_SCRIPT(page.script);
}

void RouteBoxesTest::theSumsFollowTheFocus()
{
    EntryPage page;
    page.Start();
    EnterRoute(page, QStringLiteral("Delta"));
    frmDesPercorso& window = Opened(page);
    QCOMPARE(window.txtDistanzaKm->text(), QStringLiteral("0"));
    TypeInto(*window.txtKm[1], QStringLiteral("4"));
    QCOMPARE(window.txtDistanzaKm->text(), QStringLiteral("0"));
    hand::Key(Qt::Key_Tab);
    QTRY_COMPARE(window.txtDistanzaKm->text(), QStringLiteral("4"));
    hand::Type(QStringLiteral("150"));
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(window.txtDistanzaMetri->text(), QStringLiteral("150"));
    page.CloseRouteWindow();
    VERIFY_SCRIPT(page.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::RouteBoxesTest)
#include "RouteBoxesTest.moc"
