// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Visibility changed by the handlers of a focus change, and fields made of a box and its list.
#include "core/MessageBox.h"
#include "support/BoxScript.h"
#include "support/Hand.h"
#include "support/OtherProgram.h"
#include "support/WindowTest.h"
#include "toolkit/SampleForm.h"

using namespace zelvia;
using namespace zelvia::test;

class FieldTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { form_.reset(); }

    void HidingTheFocusedControlSendsTheFocusToTheSink();
    void HidingItInItsOwnGotFocus();
    void HidingItForTheNextOfTheSameHandler();
    void HidingItWhileAnotherProgramIsInFront();
    void HidingItAfterABoxOfTheSameRoutine();
    void HidingAnotherControlMovesNothing();
    void AClickInTheBoxOpensNothingTwice();
    void TheListOfAnOpenBoxTakesTheRowPressed();
    void PressAndReleaseApartTakeTheRow();
    void ADoubleClickFromTheBoxTakesTheRow();
    void ABoxOutOfLostFocusFindsTheFieldHidden();
    void TheListStaysWhenItLosesTheFocus();

private:
    void MakeField();

    std::unique_ptr<SampleForm> form_;
};

void FieldTest::init()
{
    form_ = std::make_unique<SampleForm>();
    form_->Open();
}

/// txtUno and lstUno as the fields of the page: leaving the box closes both, the list's GotFocus opens both.
void FieldTest::MakeField()
{
    form_->txtUno->LostFocus = [this] {
        form_->Tell("-txtUno");
        form_->txtUno->SetVisible(false);
        form_->lstUno->SetVisible(false);
    };
    form_->lstUno->GotFocus = [this] {
        form_->Tell("+lstUno");
        form_->txtUno->SetVisible(true);
        form_->lstUno->SetVisible(true);
    };
    form_->lstUno->Click = [this] { form_->Tell("click"); };
}

void FieldTest::HidingTheFocusedControlSendsTheFocusToTheSink()
{
    form_->Start(*form_->txtUno);
    form_->txtUno->SetVisible(false);
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +pctFondo"));
    QCOMPARE(form_->Focused(), QByteArray("pctFondo"));

    form_->Start(*form_->lstUno);
    form_->lstUno->SetVisible(false);
    QTRY_COMPARE(form_->told, QByteArray("-lstUno +pctFondo"));
}

void FieldTest::HidingItInItsOwnGotFocus()
{
    form_->Start(*form_->txtUno);
    form_->txtDue->GotFocus = [this] {
        form_->Tell("+txtDue");
        form_->txtDue->SetVisible(false);
    };
    hand::Click(*form_->txtDue);
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +txtDue -txtDue +pctFondo"));
    QVERIFY(!form_->txtDue->isVisible());
}

void FieldTest::HidingItForTheNextOfTheSameHandler()
{
    // As a note line that is full hands over to the next one, here from within a change of focus.
    form_->txtTre->SetVisible(false);
    form_->txtDue->GotFocus = [this] {
        form_->Tell("+txtDue");
        form_->txtDue->SetVisible(false);
        form_->txtTre->SetVisible(true);
        form_->txtTre->SetFocus();
    };
    form_->Start(*form_->txtUno);
    hand::Click(*form_->txtDue);
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +txtDue -txtDue +txtTre"));
    QTRY_COMPARE(form_->Focused(), QByteArray("txtTre"));
}

void FieldTest::HidingItWhileAnotherProgramIsInFront()
{
    form_->Start(*form_->txtUno);
    OtherProgram other(*form_);
    form_->txtUno->SetVisible(false);
    other.ChangeBack();
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +pctFondo"));
    QTRY_COMPARE(form_->Focused(), QByteArray("pctFondo"));
}

void FieldTest::HidingItAfterABoxOfTheSameRoutine()
{
    // The window may not be the active one again when the routine goes on.
    BoxScript script;
    script.Expect(Report(QStringLiteral("PROVA")));
    form_->txtUno->KeyPress = [this](int&) {
        ShowBox({"PROVA"});
        form_->txtUno->SetVisible(false);
    };
    form_->Start(*form_->txtUno);
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +pctFondo"));
    QTRY_COMPARE(form_->Focused(), QByteArray("pctFondo"));
    VERIFY_SCRIPT(script);
}

void FieldTest::HidingAnotherControlMovesNothing()
{
    form_->Start(*form_->txtUno);
    form_->txtDue->SetVisible(false);
    form_->txtDue->SetVisible(true);
    QVERIFY(StaysFalse([this] { return !form_->told.isEmpty(); }));
    QCOMPARE(form_->Focused(), QByteArray("txtUno"));
}

void FieldTest::AClickInTheBoxOpensNothingTwice()
{
    MakeField();
    form_->txtUno->Click = [this] { form_->pctFondo->SetFocus(); };
    form_->Start(*form_->txtUno);
    hand::Click(*form_->txtUno);
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +pctFondo"));
    QVERIFY(!form_->txtUno->isVisible());
    QVERIFY(!form_->lstUno->isVisible());
}

void FieldTest::TheListOfAnOpenBoxTakesTheRowPressed()
{
    MakeField();
    form_->Start(*form_->txtUno);
    hand::Click(*form_->lstUno, RowCentre(*form_->lstUno, 2));
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +lstUno click"));
    QCOMPARE(form_->lstUno->ListIndex(), 2);
    QCOMPARE(form_->Focused(), QByteArray("lstUno"));
    QVERIFY(form_->lstUno->isVisible());
    QVERIFY(form_->txtUno->isVisible());
}

void FieldTest::PressAndReleaseApartTakeTheRow()
{
    MakeField();
    form_->Start(*form_->txtUno);
    const QPoint row = RowCentre(*form_->lstUno, 1);
    hand::Press(*form_->lstUno, row);
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +lstUno click"));
    QCOMPARE(form_->lstUno->ListIndex(), 1);
    hand::Release(*form_->lstUno, row);
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +lstUno click"));
    QCOMPARE(form_->lstUno->ListIndex(), 1);
    QCOMPARE(form_->Focused(), QByteArray("lstUno"));
}

void FieldTest::ADoubleClickFromTheBoxTakesTheRow()
{
    MakeField();
    form_->lstUno->DblClick = [this] {
        form_->Tell("dblclick");
        form_->txtUno->SetContent(form_->lstUno->List(form_->lstUno->ListIndex()));
        form_->txtUno->SetFocus();
        form_->pctFondo->SetFocus();
    };
    form_->Start(*form_->txtUno);
    hand::DoubleClick(*form_->lstUno, RowCentre(*form_->lstUno, 2));
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +lstUno click dblclick -lstUno +txtUno -txtUno +pctFondo"));
    QCOMPARE(form_->txtUno->text(), QStringLiteral("Lungo"));
    QVERIFY(!form_->lstUno->isVisible());
    QVERIFY(!form_->txtUno->isVisible());
    QCOMPARE(form_->Focused(), QByteArray("pctFondo"));
}

void FieldTest::ABoxOutOfLostFocusFindsTheFieldHidden()
{
    MakeField();
    form_->txtUno->LostFocus = [this] {
        form_->Tell("-txtUno");
        form_->txtUno->SetVisible(false);
        form_->lstUno->SetVisible(false);
        ShowBox({"PROVA", MsgIcon::Exclamation});
        form_->Tell("end-txtUno");
    };
    form_->Start(*form_->txtUno);
    bool hidden = false;
    bool quiet = false;
    BoxScript script;
    script.Expect(Warning(QStringLiteral("PROVA")));
    script.Meanwhile([&] {
        hidden = !form_->txtUno->isVisible() && !form_->lstUno->isVisible();
        quiet = StaysFalse([this] { return form_->told != "-txtUno"; });
    });
    hand::Click(*form_->lstUno, RowCentre(*form_->lstUno, 2));
    QTRY_COMPARE(form_->told.left(26), QByteArray("-txtUno end-txtUno +lstUno"));
    QVERIFY(hidden);
    QVERIFY(quiet);
    QCOMPARE(form_->lstUno->ListIndex(), 2);
    QTRY_COMPARE(form_->Focused(), QByteArray("lstUno"));
    QVERIFY(form_->lstUno->isVisible());
    VERIFY_SCRIPT(script);
}

void FieldTest::TheListStaysWhenItLosesTheFocus()
{
    MakeField();
    form_->Start(*form_->lstUno);
    hand::Click(*form_->txtDue);
    QTRY_COMPARE(form_->told, QByteArray("-lstUno +txtDue"));
    QVERIFY(form_->lstUno->isVisible());
    QVERIFY(form_->txtUno->isVisible());
}

ZELVIA_WINDOW_TEST(FieldTest)

#include "FieldTest.moc"
