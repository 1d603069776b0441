// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/UpDown.h"

#include "core/MessageBox.h"
#include "support/BoxScript.h"
#include "support/Hand.h"
#include "support/WindowTest.h"
#include "toolkit/SampleForm.h"

using namespace zelvia;
using namespace zelvia::test;

namespace
{

const QPoint kUpper(10, 6);
const QPoint kLower(10, 20);

} // namespace

class UpDownTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void AClickSteps_data();
    void AClickSteps();
    void ClickEventsComeWhateverTheValue();
    void ChangeComesOnlyWithANewValue();
    void ClickingDoesNotTakeTheFocus();
    void HoldingRepeatsUntilReleased();
    void LeavingTheArrowStopsTheRepeat();
    void ABoxStopsTheRepeat();
    void HidingStopsTheRepeat();
    void OtherButtonsDoNothing();
    void TheWheelStepsWhatIsUnderThePointer();
    void ArrowKeysNeedTheFocus();
    void ItsPropertiesTellTheRange();

private:
    std::unique_ptr<SampleForm> form_;
    UpDown* up_ = nullptr;
    int changes_ = 0;
};

void UpDownTest::init()
{
    form_ = std::make_unique<SampleForm>();
    form_->Open();
    up_ = form_->upUno;
    changes_ = 0;
    up_->SetRange(0, 1000, 1);
    up_->Change = [this] { ++changes_; };
}

void UpDownTest::cleanup()
{
    form_.reset();
}

void UpDownTest::AClickSteps_data()
{
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("increment");
    QTest::addColumn<int>("before");
    QTest::addColumn<bool>("upper");
    QTest::addColumn<int>("after");

    QTest::newRow("up") << 10 << 1 << 3 << true << 4;
    QTest::newRow("down") << 10 << 1 << 3 << false << 2;
    QTest::newRow("up by ten") << 990 << 10 << 120 << true << 130;
    QTest::newRow("no wrap at the top") << 10 << 1 << 10 << true << 10;
    QTest::newRow("no wrap at the bottom") << 10 << 1 << 0 << false << 0;
    QTest::newRow("the last step up is clamped") << 990 << 10 << 985 << true << 990;
    QTest::newRow("the last step down is clamped") << 990 << 10 << 5 << false << 0;
    QTest::newRow("beyond the maximum, up") << 990 << 10 << 995 << true << 995;
    QTest::newRow("beyond the maximum, down to the limit") << 990 << 1 << 995 << false << 990;
    QTest::newRow("beyond the maximum, down by one step") << 990 << 10 << 995 << false << 985;
    QTest::newRow("below the minimum, down") << 10 << 1 << -5 << false << -5;
    QTest::newRow("below the minimum, up") << 10 << 1 << -5 << true << 0;
}

void UpDownTest::AClickSteps()
{
    QFETCH(int, maximum);
    QFETCH(int, increment);
    QFETCH(int, before);
    QFETCH(bool, upper);
    QFETCH(int, after);
    up_->SetRange(0, maximum, increment);
    up_->SetValue(before);
    QCOMPARE(up_->Value().value(), before);
    hand::Click(*up_, upper ? kUpper : kLower);
    QTRY_COMPARE(up_->Value().value(), after);
}

void UpDownTest::ClickEventsComeWhateverTheValue()
{
    int ups = 0;
    int downs = 0;
    up_->SetRange(0, 0, 1);
    up_->UpClick = [&] { ++ups; };
    up_->DownClick = [&] { ++downs; };
    hand::Click(*up_, kUpper);
    hand::Click(*up_, kLower);
    hand::Click(*up_, kLower);
    QTRY_COMPARE(downs, 2);
    QCOMPARE(ups, 1);
    QCOMPARE(changes_, 0);
}

void UpDownTest::ChangeComesOnlyWithANewValue()
{
    up_->SetValue(5);
    QCOMPARE(changes_, 1);
    up_->SetValue(5);
    QCOMPARE(changes_, 1);
    up_->SetRange(0, 6, 1);
    hand::Click(*up_, kUpper);
    QTRY_COMPARE(changes_, 2);
    hand::Click(*up_, kUpper);
    hand::Click(*up_, kLower);
    QTRY_COMPARE(up_->Value().value(), 5);
    QCOMPARE(changes_, 3);
}

void UpDownTest::ClickingDoesNotTakeTheFocus()
{
    form_->Start(*form_->upDue);
    hand::Click(*up_, kUpper);
    hand::Click(*form_->upDue, kUpper);
    QTRY_COMPARE(form_->upDue->Value().value(), 1);
    QCOMPARE(form_->Focused(), QByteArray("upDue"));
    QCOMPARE(form_->told, QByteArray());
}

void UpDownTest::HoldingRepeatsUntilReleased()
{
    hand::Press(*up_, kUpper);
    QTRY_VERIFY(up_->Value().value() >= 3);
    hand::Release(*up_, kUpper);
    const int released = up_->Value().value();
    QVERIFY(StaysFalse([&] { return up_->Value().value() != released; }, 600));
}

void UpDownTest::LeavingTheArrowStopsTheRepeat()
{
    hand::Press(*up_, kUpper);
    QTRY_VERIFY(up_->Value().value() >= 3);
    hand::MoveTo(*up_, {10, 80});
    const int left = up_->Value().value();
    QVERIFY(StaysFalse([&] { return up_->Value().value() != left; }, 600));
    hand::MoveTo(*up_, kLower);
    QVERIFY(StaysFalse([&] { return up_->Value().value() != left; }, 300));
    hand::Release(*up_, {10, 80});
}

void UpDownTest::ABoxStopsTheRepeat()
{
    BoxScript script;
    script.Expect(Report(QStringLiteral("PROVA")));
    up_->Change = [this] {
        if (up_->Value().value() == 2) {
            ShowBox({"PROVA"});
        }
    };
    // Held through the box, which is gone before the next repeat is due.
    hand::Press(*up_, kUpper);
    TRY_SCRIPT(script);
    QVERIFY(StaysFalse([&] { return up_->Value().value() != 2; }, 600));
    hand::Release(*up_, kUpper);
    hand::Click(*up_, kUpper);
    QTRY_COMPARE(up_->Value().value(), 3);
}

void UpDownTest::HidingStopsTheRepeat()
{
    hand::Press(*up_, kUpper);
    QTRY_VERIFY(up_->Value().value() >= 2);
    up_->SetVisible(false);
    const int hidden = up_->Value().value();
    up_->SetVisible(true);
    QVERIFY(StaysFalse([&] { return up_->Value().value() != hidden; }, 600));
    hand::Release(*up_, kUpper);
}

void UpDownTest::OtherButtonsDoNothing()
{
    hand::Click(*up_, kUpper, Qt::RightButton);
    hand::Click(*up_, kUpper, Qt::MiddleButton);
    QVERIFY(StaysFalse([this] { return changes_ > 0; }));
}

void UpDownTest::TheWheelStepsWhatIsUnderThePointer()
{
    form_->Start(*form_->txtUno);
    hand::Wheel(*up_, kUpper, 1);
    QTRY_COMPARE(up_->Value().value(), 1);
    hand::Wheel(*up_, kLower, 2);
    QTRY_COMPARE(up_->Value().value(), 3);
    hand::Wheel(*up_, kLower, -1);
    QTRY_COMPARE(up_->Value().value(), 2);
    QCOMPARE(form_->Focused(), QByteArray("txtUno"));
}

void UpDownTest::ArrowKeysNeedTheFocus()
{
    form_->Start(*form_->txtUno);
    hand::Key(Qt::Key_Up);
    QVERIFY(StaysFalse([this] { return changes_ > 0; }));

    form_->Start(*up_);
    hand::Key(Qt::Key_Up);
    QTRY_COMPARE(up_->Value().value(), 1);
    hand::Key(Qt::Key_Down);
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(up_->Value().value(), 0);
    QCOMPARE(form_->Focused(), QByteArray("upUno"));
}

void UpDownTest::ItsPropertiesTellTheRange()
{
    up_->SetRange(1, 100000, 100);
    up_->SetValue(30);
    QCOMPARE(up_->property("minimum").toInt(), 1);
    QCOMPARE(up_->property("maximum").toInt(), 100000);
    QCOMPARE(up_->property("increment").toInt(), 100);
    QCOMPARE(up_->property("value").toInt(), 30);
    QVERIFY(up_->setProperty("value", 77));
    QCOMPARE(up_->Value().value(), 77);
    QCOMPARE(changes_, 2);
}

ZELVIA_WINDOW_TEST(UpDownTest)

#include "UpDownTest.moc"
