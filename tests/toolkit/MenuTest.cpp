// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The menu bar closes the field that is open, a pop-up does not.
#include "toolkit/Menu.h"

#include "support/Hand.h"
#include "support/WindowTest.h"
#include "toolkit/SampleForm.h"

#include <QMenuBar>
#include <QWindow>

using namespace zelvia;

class MenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { form_.reset(); }

    void ACommandByMouseClosesTheFieldFirst();
    void ACommandByItsKeyClosesTheFieldFirst();
    void ACommandByTheMenusKeysClosesTheFieldFirst();
    void AMenuOpenedAndLeftIsNoLostFocus_data();
    void AMenuOpenedAndLeftIsNoLostFocus();
    void APopUpLeavesTheFieldOpen();
    void APopUpOpensOnRelease();
    void APopUpLeftWithoutAChoice();
    void EntriesCarryTheirNames();

private:
    void OpenPopUp();

    std::unique_ptr<SampleForm> form_;
};

void MenuTest::init()
{
    form_ = std::make_unique<SampleForm>();
    form_->Open();
    // A field whose value is taken when it is left; a command finds what it holds then.
    form_->txtUno->LostFocus = [this] {
        form_->Tell("-txtUno");
        form_->lblFermo->SetCaption(form_->txtUno->Content());
        form_->txtUno->SetVisible(false);
        form_->lstUno->SetVisible(false);
    };
    form_->Start(*form_->txtUno);
    hand::Type(QStringLiteral("nuovo"));
    QTRY_COMPARE(form_->txtUno->text(), QStringLiteral("nuovo"));
}

void MenuTest::ACommandByMouseClosesTheFieldFirst()
{
    hand::Click(*form_->bar, form_->bar->actionGeometry(form_->mnuFile->menuAction()).center());
    QTRY_VERIFY(form_->mnuFile->isVisible());
    QCOMPARE(form_->told, QByteArray());
    hand::Click(*form_->mnuFile, form_->mnuFile->actionGeometry(form_->mnuFile->actions().at(0)).center());
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +pctFondo mnuSalva"));
    QCOMPARE(form_->lblFermo->Caption(), Text("nuovo"));
    QTRY_COMPARE(form_->Focused(), QByteArray("pctFondo"));
}

void MenuTest::ACommandByItsKeyClosesTheFieldFirst()
{
    hand::Key(Qt::Key_S, Qt::ControlModifier);
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +pctFondo mnuSalva"));
    QCOMPARE(form_->lblFermo->Caption(), Text("nuovo"));
}

void MenuTest::ACommandByTheMenusKeysClosesTheFieldFirst()
{
    hand::Key(Qt::Key_F, Qt::AltModifier);
    QTRY_VERIFY(form_->mnuFile->isVisible());
    hand::Key(Qt::Key_A);
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +pctFondo mnuAltro"));
    QCOMPARE(form_->lblFermo->Caption(), Text("nuovo"));
    QTRY_COMPARE(form_->Focused(), QByteArray("pctFondo"));
}

void MenuTest::AMenuOpenedAndLeftIsNoLostFocus_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("mouse") << false;
    QTest::newRow("key") << true;
}

void MenuTest::AMenuOpenedAndLeftIsNoLostFocus()
{
    QFETCH(bool, byKey);
    if (byKey) {
        hand::Key(Qt::Key_F, Qt::AltModifier);
    } else {
        hand::Click(*form_->bar, form_->bar->actionGeometry(form_->mnuFile->menuAction()).center());
    }
    QTRY_VERIFY(form_->mnuFile->isVisible());
    hand::Key(Qt::Key_Escape);
    QTRY_VERIFY(!form_->mnuFile->isVisible());
    if (!hand::OnX11()) {
        // No manager there gives the keyboard back to the window.
        QTRY_VERIFY((form_->activateWindow(), QGuiApplication::focusWindow() == form_->windowHandle()));
    }
    hand::Key(Qt::Key_Escape); // leaves the bar, and is a key of the box when the bar is left already
    QTRY_COMPARE(form_->Focused(), QByteArray("txtUno"));
    QVERIFY(StaysFalse([this] { return !form_->told.isEmpty(); }));
    QVERIFY(form_->txtUno->isVisible());
    hand::Type(QStringLiteral("!"));
    QTRY_COMPARE(form_->txtUno->text(), QStringLiteral("nuovo!"));
}

/// As the lists of the page: the pop-up opens where the right button is released.
void MenuTest::OpenPopUp()
{
    form_->lstUno->MouseUp = [this](Qt::MouseButton button, const QPoint& globalPosition) {
        if (button == Qt::RightButton) {
            form_->popUp.popup(globalPosition);
        }
    };
    hand::Click(*form_->lstUno, RowCentre(*form_->lstUno, 1), Qt::RightButton);
    QTRY_VERIFY(form_->popUp.isVisible());
}

void MenuTest::APopUpLeavesTheFieldOpen()
{
    OpenPopUp();
    hand::Click(form_->popUp, form_->popUp.actionGeometry(form_->popUp.actions().at(0)).center());
    QTRY_COMPARE(form_->told, QByteArray("mnuCancella"));
    QVERIFY(form_->txtUno->isVisible());
    QVERIFY(form_->lstUno->isVisible());
    QTRY_COMPARE(form_->Focused(), QByteArray("txtUno"));
}

void MenuTest::APopUpOpensOnRelease()
{
    form_->lstUno->MouseUp = [this](Qt::MouseButton, const QPoint& position) { form_->popUp.popup(position); };
    const QPoint row = RowCentre(*form_->lstUno, 1);
    hand::Press(*form_->lstUno, row, Qt::RightButton);
    QVERIFY(StaysFalse([this] { return form_->popUp.isVisible(); }));
    hand::Release(*form_->lstUno, row, Qt::RightButton);
    QTRY_VERIFY(form_->popUp.isVisible());
    form_->popUp.close();
}

void MenuTest::APopUpLeftWithoutAChoice()
{
    OpenPopUp();
    hand::Key(Qt::Key_Escape);
    QTRY_VERIFY(!form_->popUp.isVisible());
    QVERIFY(StaysFalse([this] { return !form_->told.isEmpty(); }));
    QTRY_COMPARE(form_->Focused(), QByteArray("txtUno"));
}

void MenuTest::EntriesCarryTheirNames()
{
    QMenu menu;
    FillMenu(menu, {{"mnuUno", "&Uno", {}, QKeySequence(Qt::Key_F1)}, {"mnuRiga", "", {}}, {"mnuDue", "Citt\xE0", {}}},
             MenuKind::Bar);
    const QList<QAction*> actions = menu.actions();
    QCOMPARE(actions.size(), 3);
    QCOMPARE(actions.at(0)->objectName(), QStringLiteral("mnuUno"));
    QCOMPARE(actions.at(0)->text(), QStringLiteral("&Uno"));
    QCOMPARE(actions.at(0)->shortcut(), QKeySequence(Qt::Key_F1));
    QVERIFY(actions.at(1)->isSeparator());
    QCOMPARE(actions.at(2)->text(), QStringLiteral("Citt\u00E0"));
    QCOMPARE(form_->mnuFile->objectName(), QStringLiteral("mnuFile"));
    QCOMPARE(form_->mnuFile->title(), QStringLiteral("&File"));
}

ZELVIA_WINDOW_TEST(MenuTest)

#include "MenuTest.moc"
