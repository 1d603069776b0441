// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A box that refuses to give the focus away.
#include "core/Messages.h"
#include "support/BoxScript.h"
#include "support/Hand.h"
#include "support/WindowTest.h"
#include "toolkit/SampleForm.h"

#include <QMenuBar>

using namespace zelvia;
using namespace zelvia::test;

class ValidateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { form_.reset(); }

    void RefusesTab_data();
    void RefusesTab();
    void RefusesAClickOnAnotherBox();
    void RefusesAClickOnAListWithoutSelecting();
    void RefusesAClickOnAButtonWhichDoesNotFire();
    void RefusesTheProgramsSetFocus();
    void LetsGoOnceItIsContent();
    void IsAskedOnceForSeveralMovesOfAHandler();
    void IsNotAskedForWhatTakesNoFocus_data();
    void IsNotAskedForWhatTakesNoFocus();
    void IsNotAskedForAMenu();
    void IsNotAskedForTheCloseBox();
    void IsNotAskedForAnotherWindow();
    void IsNotAskedForKeysThatMoveNothing();

private:
    void VerifyRefused(const BoxScript& script);

    std::unique_ptr<SampleForm> form_;
    int asked_ = 0;
};

void ValidateTest::init()
{
    form_ = std::make_unique<SampleForm>();
    form_->Open();
    asked_ = 0;
    form_->txtUno->SetContent("75");
    form_->txtUno->Validate = [this] {
        ++asked_;
        if (form_->txtUno->Content() != "75") {
            return false;
        }
        MsgBox(Messages::kMinutesLimit);
        return true;
    };
    form_->Start(*form_->txtUno);
}

/// One message, and nothing but that: no focus moved, nothing fired.
void ValidateTest::VerifyRefused(const BoxScript& script)
{
    TRY_SCRIPT(script);
    QTRY_COMPARE(form_->Focused(), QByteArray("txtUno"));
    QVERIFY(StaysFalse([&] { return !form_->told.isEmpty() || !script.Problems().isEmpty() || asked_ > 1; }));
}

void ValidateTest::RefusesTab_data()
{
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("Tab") << Qt::KeyboardModifiers();
    QTest::newRow("Shift+Tab") << Qt::KeyboardModifiers(Qt::ShiftModifier);
}

void ValidateTest::RefusesTab()
{
    QFETCH(Qt::KeyboardModifiers, modifiers);
    BoxScript script;
    script.Expect(Messages::kMinutesLimit);
    hand::Key(Qt::Key_Tab, modifiers);
    VerifyRefused(script);
}

void ValidateTest::RefusesAClickOnAnotherBox()
{
    BoxScript script;
    script.Expect(Messages::kMinutesLimit);
    bool clicked = false;
    form_->txtDue->Click = [&] { clicked = true; };
    hand::Click(*form_->txtDue);
    VerifyRefused(script);
    QVERIFY(!clicked);
}

void ValidateTest::RefusesAClickOnAListWithoutSelecting()
{
    BoxScript script;
    script.Expect(Messages::kMinutesLimit);
    hand::Click(*form_->lstUno, RowCentre(*form_->lstUno, 1));
    VerifyRefused(script);
    QCOMPARE(form_->lstUno->ListIndex(), -1);
}

void ValidateTest::RefusesAClickOnAButtonWhichDoesNotFire()
{
    BoxScript script;
    script.Expect(Messages::kMinutesLimit);
    hand::Click(*form_->cmdVai);
    VerifyRefused(script);
    QVERIFY(!form_->cmdVai->isDown());
}

void ValidateTest::RefusesTheProgramsSetFocus()
{
    BoxScript script;
    script.Expect(Messages::kMinutesLimit);
    form_->txtUno->KeyPress = [this](int& keyAscii) {
        if (keyAscii == 13) {
            form_->txtDue->SetFocus();
        }
    };
    hand::Key(Qt::Key_Return);
    VerifyRefused(script);
}

void ValidateTest::LetsGoOnceItIsContent()
{
    BoxScript script;
    form_->txtUno->SetContent("59");
    hand::Key(Qt::Key_Tab);
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +txtDue"));
    QCOMPARE(asked_, 1);
    form_->Start(*form_->txtUno);
    QCOMPARE(asked_, 1);
    hand::Click(*form_->cmdVai);
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +cmdVai cmdVai"));
    QCOMPARE(asked_, 2);
    VERIFY_SCRIPT(script);
}

void ValidateTest::IsAskedOnceForSeveralMovesOfAHandler()
{
    form_->txtUno->SetContent("59");
    form_->txtUno->KeyPress = [this](int&) {
        form_->txtDue->SetFocus();
        form_->txtTre->SetFocus();
    };
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +txtDue -txtDue +txtTre"));
    QCOMPARE(asked_, 1);
}

void ValidateTest::IsNotAskedForWhatTakesNoFocus_data()
{
    QTest::addColumn<QString>("control");
    for (const char* name : {"upUno", "lblFermo", "lblVai", "pctFigura", "cmdVai"}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void ValidateTest::IsNotAskedForWhatTakesNoFocus()
{
    QFETCH(QString, control);
    BoxScript script;
    form_->cmdVai->setEnabled(false);
    auto* widget = form_->findChild<QWidget*>(control);
    QVERIFY(widget != nullptr);
    hand::Click(*widget, {5, 5});
    QVERIFY(StaysFalse([&] { return asked_ > 0; }));
    QCOMPARE(form_->Focused(), QByteArray("txtUno"));
    VERIFY_SCRIPT(script);
}

void ValidateTest::IsNotAskedForAMenu()
{
    BoxScript script;
    hand::Click(*form_->bar, form_->bar->actionGeometry(form_->mnuFile->menuAction()).center());
    QTRY_VERIFY(form_->mnuFile->isVisible());
    hand::Click(*form_->mnuFile, form_->mnuFile->actionGeometry(form_->mnuFile->actions().at(1)).center());
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +pctFondo mnuAltro"));
    QCOMPARE(asked_, 0);
    VERIFY_SCRIPT(script);
}

void ValidateTest::IsNotAskedForTheCloseBox()
{
    BoxScript script;
    auto* closing = form_.release();
    const QPointer<SampleForm> watched = closing;
    if (hand::OnX11()) {
        hand::AwaitManager(closing->winId());
        hand::KeyForManager({QStringLiteral("key"), QStringLiteral("alt+F4")}, [&] { return watched.isNull(); });
    } else {
        closing->close();
    }
    QTRY_VERIFY(watched.isNull());
    QCOMPARE(asked_, 0);
    VERIFY_SCRIPT(script);
}

void ValidateTest::IsNotAskedForAnotherWindow()
{
    BoxScript script;
    SampleForm second;
    second.show();
    second.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&second));
    second.txtDue->SetFocus();
    QTRY_COMPARE(second.Focused(), QByteArray("txtDue"));
    QTRY_COMPARE(form_->told, QByteArray("-txtUno"));
    QCOMPARE(asked_, 0);
    VERIFY_SCRIPT(script);
}

void ValidateTest::IsNotAskedForKeysThatMoveNothing()
{
    BoxScript script;
    hand::Type(QStringLiteral("1"));
    hand::Key(Qt::Key_Left);
    hand::Key(Qt::Key_Tab, Qt::ControlModifier);
    hand::Key(Qt::Key_Escape);
    QVERIFY(StaysFalse([&] { return asked_ > 0; }));
    QCOMPARE(form_->Focused(), QByteArray("txtUno"));
    VERIFY_SCRIPT(script);
}

ZELVIA_WINDOW_TEST(ValidateTest)

#include "ValidateTest.moc"
