// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Who gets the report of a change of focus, when, and what is no change.
#include "core/MessageBox.h"
#include "support/BoxScript.h"
#include "support/Hand.h"
#include "support/OtherProgram.h"
#include "support/WindowTest.h"
#include "toolkit/FocusController.h"
#include "toolkit/SampleForm.h"

using namespace zelvia;
using namespace zelvia::test;

class FocusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void TheOldControlIsToldBeforeTheNewOne();
    void AChangeIsFinishedBeforeItIsTold();
    void SeveralChangesOfAHandlerAreToldInOrderAndNotNested();
    void AClickFindsTheChangeTold();
    void TabAndShiftTabMoveOn();
    void FocusOfTheSameControlIsNoChange();
    void AHiddenOrDisabledControlTakesNoFocus();
    void LabelsPicturesAndTheBackgroundTakeNone();
    void AnotherProgramIsNoLostFocus();
    void AClickInAnotherControlAfterAnotherProgram();
    void AnotherWindowOfTheProgramIsALostFocus();
    void AFieldThatItClosesLeavesTheFocusToAnotherWindow();
    void AWindowThatClosesGivesTheFocusBack();
    void TheFirstFocusIsTheSink();
    void AButtonGreyedForAWhileKeepsTheFocus();
    void AButtonThatStaysGreyHandsTheFocusBack_data();
    void AButtonThatStaysGreyHandsTheFocusBack();
    void AButtonGreyedWithoutTheFocusMovesNothing();

private:
    std::unique_ptr<SampleForm> form_;
};

void FocusTest::init()
{
    form_ = std::make_unique<SampleForm>();
    form_->Open();
}

void FocusTest::cleanup()
{
    form_.reset();
}

void FocusTest::TheFirstFocusIsTheSink()
{
    QCOMPARE(form_->Focused(), QByteArray("pctFondo"));
}

void FocusTest::AButtonGreyedForAWhileKeepsTheFocus()
{
    form_->Start(*form_->txtUno);
    form_->cmdVai->Click = [this] {
        FocusController::Instance().Grey(*form_->cmdVai);
        form_->Tell(form_->cmdVai->isEnabled() ? "on" : "off");
        FocusController::Instance().EndGrey(*form_->cmdVai, true);
    };
    hand::Click(*form_->cmdVai);
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +cmdVai off"));
    QVERIFY(form_->cmdVai->isEnabled());
    QCOMPARE(form_->Focused(), QByteArray("cmdVai"));
    // Enter presses it again, and nothing was reported in between.
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +cmdVai off off"));
    QCOMPARE(form_->Focused(), QByteArray("cmdVai"));
}

void FocusTest::AButtonThatStaysGreyHandsTheFocusBack_data()
{
    QTest::addColumn<bool>("box");
    QTest::newRow("at once") << false;
    QTest::newRow("behind a box") << true;
}

void FocusTest::AButtonThatStaysGreyHandsTheFocusBack()
{
    QFETCH(bool, box);
    BoxScript script;
    if (box) {
        script.Expect(Report(QStringLiteral("PROVA")));
    }
    form_->txtDue->SetContent("Colle");
    form_->Start(*form_->txtDue);
    form_->cmdVai->Click = [&] {
        FocusController::Instance().Grey(*form_->cmdVai);
        if (box) {
            ShowBox({"PROVA"});
        }
        FocusController::Instance().EndGrey(*form_->cmdVai, false);
    };
    hand::Click(*form_->cmdVai);
    QTRY_COMPARE(form_->told, QByteArray("-txtDue +cmdVai -cmdVai +txtDue"));
    QVERIFY(!form_->cmdVai->isEnabled());
    QTRY_COMPARE(form_->Focused(), QByteArray("txtDue"));
    VERIFY_SCRIPT(script);
    hand::Type(QStringLiteral("x"));
    QTRY_COMPARE(form_->txtDue->text(), QStringLiteral("x"));
}

void FocusTest::AButtonGreyedWithoutTheFocusMovesNothing()
{
    form_->Start(*form_->txtUno);
    FocusController::Instance().Grey(*form_->cmdVai);
    FocusController::Instance().EndGrey(*form_->cmdVai, false);
    QVERIFY(!form_->cmdVai->isEnabled());
    QVERIFY(StaysFalse([this] { return !form_->told.isEmpty(); }));
    QCOMPARE(form_->Focused(), QByteArray("txtUno"));
}

void FocusTest::TheOldControlIsToldBeforeTheNewOne()
{
    form_->Start(*form_->txtUno);
    hand::Click(*form_->txtDue);
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +txtDue"));
    QCOMPARE(form_->Focused(), QByteArray("txtDue"));
}

void FocusTest::AChangeIsFinishedBeforeItIsTold()
{
    form_->Start(*form_->txtUno);
    QByteArray seen;
    form_->txtUno->LostFocus = [&] { seen = form_->Focused(); };
    hand::Click(*form_->txtDue);
    QTRY_COMPARE(seen, QByteArray("txtDue"));
}

void FocusTest::SeveralChangesOfAHandlerAreToldInOrderAndNotNested()
{
    form_->Start(*form_->txtUno);
    form_->txtUno->LostFocus = [this] {
        form_->Tell("-txtUno");
        form_->txtTre->SetFocus();
        form_->pctFondo->SetFocus();
        form_->Tell("end-txtUno");
    };
    hand::Click(*form_->txtDue);
    // The change to txtDue was finished when the handler asked for two more; each of them is reported in full.
    QTRY_COMPARE(form_->told, QByteArray("-txtUno end-txtUno +txtDue -txtDue +txtTre -txtTre +pctFondo"));
    QCOMPARE(form_->Focused(), QByteArray("pctFondo"));
}

void FocusTest::AClickFindsTheChangeTold()
{
    form_->Start(*form_->txtUno);
    hand::Click(*form_->cmdVai);
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +cmdVai cmdVai"));

    // Also when press and release come with nothing between them.
    form_->Start(*form_->txtUno);
    QTest::mouseClick(form_->cmdVai, Qt::LeftButton);
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +cmdVai cmdVai"));
}

void FocusTest::TabAndShiftTabMoveOn()
{
    form_->Start(*form_->txtUno);
    hand::Key(Qt::Key_Tab);
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +txtDue"));
    hand::Key(Qt::Key_Tab, Qt::ShiftModifier);
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +txtDue -txtDue +txtUno"));
}

void FocusTest::FocusOfTheSameControlIsNoChange()
{
    form_->Start(*form_->txtUno);
    form_->txtUno->SetFocus();
    hand::Click(*form_->txtUno);
    hand::Key(Qt::Key_Tab);
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +txtDue"));
}

void FocusTest::AHiddenOrDisabledControlTakesNoFocus()
{
    form_->Start(*form_->txtUno);
    form_->txtDue->SetVisible(false);
    form_->txtDue->SetFocus();
    form_->cmdVai->setEnabled(false);
    form_->cmdVai->SetFocus();
    QVERIFY(StaysFalse([this] { return !form_->told.isEmpty(); }));
    QCOMPARE(form_->Focused(), QByteArray("txtUno"));
}

void FocusTest::LabelsPicturesAndTheBackgroundTakeNone()
{
    form_->Start(*form_->txtUno);
    hand::Click(*form_->lblFermo);
    hand::Click(*form_->pctFigura);
    hand::Click(*form_, {300, 300});
    hand::Click(*form_->lblVai);
    QTRY_COMPARE(form_->told, QByteArray("lblVai"));
    QCOMPARE(form_->Focused(), QByteArray("txtUno"));
}

void FocusTest::AnotherProgramIsNoLostFocus()
{
    form_->Start(*form_->txtUno);
    OtherProgram other(*form_);
    other.ChangeBack();
    QTRY_COMPARE(form_->Focused(), QByteArray("txtUno"));
    hand::Type(QStringLiteral("ab"));
    QTRY_COMPARE(form_->txtUno->text(), QStringLiteral("ab"));
    QCOMPARE(form_->told, QByteArray());
}

void FocusTest::AClickInAnotherControlAfterAnotherProgram()
{
    form_->Start(*form_->txtUno);
    OtherProgram other(*form_);
    other.ChangeBack();
    hand::Click(*form_->txtDue);
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +txtDue"));
}

void FocusTest::AnotherWindowOfTheProgramIsALostFocus()
{
    form_->Start(*form_->txtUno);
    SampleForm second;
    second.move(700, 500);
    second.show();
    second.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&second));
    QTRY_COMPARE(form_->told, QByteArray("-txtUno"));
    QTRY_COMPARE(second.told, QByteArray("+pctFondo"));

    // A click into the first one, on a label that takes no focus: the window's last one comes back.
    if (hand::OnX11()) {
        hand::Click(*form_->lblFermo);
    } else {
        form_->activateWindow();
    }
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +txtUno"));
    QTRY_COMPARE(second.told, QByteArray("+pctFondo -pctFondo"));
}

void FocusTest::AFieldThatItClosesLeavesTheFocusToAnotherWindow()
{
    form_->txtUno->LostFocus = [this] {
        form_->Tell("-txtUno");
        form_->txtUno->SetVisible(false);
    };
    form_->Start(*form_->txtUno);
    SampleForm second;
    second.move(700, 500);
    second.Open();
    QTRY_COMPARE(form_->told, QByteArray("-txtUno"));
    QVERIFY(!form_->txtUno->isVisible());

    // The field that closed belonged to the first window: the second one still has the focus and reports its loss.
    second.Start(*second.txtDue);
    QVERIFY(StaysFalse([&] { return form_->told != "-txtUno" || !second.told.isEmpty(); }));
    QCOMPARE(FocusController::Instance().Current(), static_cast<Control*>(second.txtDue));
    form_->activateWindow();
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +pctFondo"));
    QTRY_COMPARE(second.told, QByteArray("-txtDue"));
}

void FocusTest::AWindowThatClosesGivesTheFocusBack()
{
    form_->Start(*form_->txtUno);
    auto* second = new SampleForm;
    second->show();
    second->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(second));
    QTRY_COMPARE(form_->told, QByteArray("-txtUno"));
    QVERIFY(second->Unload());
    form_->activateWindow();
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +txtUno"));
    QTRY_COMPARE(form_->Focused(), QByteArray("txtUno"));
}

ZELVIA_WINDOW_TEST(FocusTest)

#include "FocusTest.moc"
