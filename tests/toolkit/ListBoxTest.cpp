// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/ListBox.h"

#include "support/Hand.h"
#include "support/WindowTest.h"
#include "toolkit/SampleForm.h"

using namespace zelvia;

class ListBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { form_.reset(); }

    void AClickChooses();
    void APressChooses_data();
    void APressChooses();
    void APressOnTheSelectedEntryChoosesIt();
    void TheDrawnSelectionIsChosen();
    void AnotherWindowPutsTheChoiceOff();
    void AClickBelowTheEntriesChoosesNothing();
    void ARightPressNeitherSelectsNorFocuses();
    void MouseUpTellsTheButton_data();
    void MouseUpTellsTheButton();
    void ArrowKeysChoose();
    void ADoubleClickIsOneClickAndOneDoubleClick();
    void EnterAndEscapeAreTheHandlers();
    void EntriesArePlainTextInTheirOrder();
    void RemovingLeavesNothingSelected();
    void TheIndexFollowsTheProgram();

private:
    std::unique_ptr<SampleForm> form_;
    ListBox* list_ = nullptr;
};

void ListBoxTest::init()
{
    form_ = std::make_unique<SampleForm>();
    form_->Open();
    form_->Start(*form_->txtUno);
    list_ = form_->lstUno;
    list_->Click = [this] { form_->Tell("click" + QByteArray::number(list_->ListIndex())); };
    list_->DblClick = [this] { form_->Tell("dblclick" + QByteArray::number(list_->ListIndex())); };
    list_->KeyPress = [this](int keyAscii) { form_->Tell("key" + QByteArray::number(keyAscii)); };
}

void ListBoxTest::AClickChooses()
{
    hand::Click(*list_, RowCentre(*list_, 2));
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +lstUno click2"));
    QCOMPARE(list_->List(2), Text("Lungo"));
    hand::Click(*list_, RowCentre(*list_, 0));
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +lstUno click2 click0"));
}

void ListBoxTest::APressChooses_data()
{
    QTest::addColumn<QString>("end");
    QTest::newRow("on the entry") << "entry";
    QTest::newRow("below the entries") << "below";
    QTest::newRow("outside") << "outside";
    QTest::newRow("behind another button") << "button";
}

void ListBoxTest::APressChooses()
{
    QFETCH(QString, end);
    const QPoint row = RowCentre(*list_, 2);
    hand::Press(*list_, row);
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +lstUno click2"));
    QCOMPARE(list_->ListIndex(), 2);
    if (end == QLatin1String("button")) {
        hand::Click(*list_, row, Qt::RightButton);
    }
    hand::Release(*list_, end == QLatin1String("below")     ? QPoint(60, 120)
                          : end == QLatin1String("outside") ? QPoint(400, 300)
                                                            : row);
    QVERIFY(StaysFalse([this] { return form_->told != "-txtUno +lstUno click2"; }));
    QCOMPARE(list_->ListIndex(), 2);
}

void ListBoxTest::APressOnTheSelectedEntryChoosesIt()
{
    list_->SetListIndex(2);
    hand::Press(*list_, RowCentre(*list_, 2));
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +lstUno click2"));
    hand::Release(*list_, RowCentre(*list_, 2));
    QVERIFY(StaysFalse([this] { return form_->told != "-txtUno +lstUno click2"; }));
}

void ListBoxTest::TheDrawnSelectionIsChosen()
{
    form_->Start(*list_);
    hand::Press(*list_, RowCentre(*list_, 0));
    QTRY_COMPARE(form_->told, QByteArray("click0"));
    hand::MoveTo(*list_->viewport(), list_->viewport()->mapFrom(list_, RowCentre(*list_, 1)));
    QTRY_COMPARE(form_->told, QByteArray("click0 click1"));
    hand::Release(*list_, RowCentre(*list_, 1));
    QVERIFY(StaysFalse([this] { return form_->told != "click0 click1"; }));
}

void ListBoxTest::AnotherWindowPutsTheChoiceOff()
{
    // Leaving the box opens a window over this one: the choice is reported when that has closed.
    Form over(QStringLiteral("frmSopra"), form_.get());
    over.setWindowModality(Qt::WindowModal);
    form_->txtUno->LostFocus = [&] {
        form_->Tell("-txtUno");
        over.show();
    };
    hand::Press(*list_, RowCentre(*list_, 1));
    QVERIFY(QTest::qWaitForWindowExposed(&over));
    QTRY_VERIFY(form_->told.startsWith("-txtUno +lstUno"));
    QVERIFY(StaysFalse([this] { return form_->told.contains("click"); }));
    if (hand::OnX11()) {
        hand::Raw({QStringLiteral("mouseup"), QStringLiteral("1")});
    } else {
        hand::Release(*list_, RowCentre(*list_, 1));
    }
    over.hide();
    QTRY_COMPARE(form_->told.count("click1"), 1);
    QCOMPARE(list_->ListIndex(), 1);
    QVERIFY(StaysFalse([this] { return form_->told.count("click") != 1; }));
}

void ListBoxTest::AClickBelowTheEntriesChoosesNothing()
{
    form_->Start(*list_);
    hand::Click(*list_, {60, 120});
    QVERIFY(StaysFalse([this] { return !form_->told.isEmpty(); }));
    QCOMPARE(list_->ListIndex(), -1);
}

void ListBoxTest::ARightPressNeitherSelectsNorFocuses()
{
    list_->SetListIndex(1);
    int ups = 0;
    list_->MouseUp = [&](Qt::MouseButton, const QPoint&) { ++ups; };
    hand::Press(*list_, RowCentre(*list_, 3), Qt::RightButton);
    QCOMPARE(ups, 0);
    hand::Release(*list_, RowCentre(*list_, 3), Qt::RightButton);
    QTRY_COMPARE(ups, 1);
    QCOMPARE(list_->ListIndex(), 1);
    QCOMPARE(form_->Focused(), QByteArray("txtUno"));
    QCOMPARE(form_->told, QByteArray());
}

void ListBoxTest::MouseUpTellsTheButton_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
}

void ListBoxTest::MouseUpTellsTheButton()
{
    QFETCH(Qt::MouseButton, button);
    list_->MouseUp = [&](Qt::MouseButton released, const QPoint& globalPosition) {
        const bool placed = globalPosition == list_->mapToGlobal(RowCentre(*list_, 1));
        form_->Tell((placed ? "up" : "elsewhere") + QByteArray::number(int(released)));
    };
    list_->Click = {};
    form_->Start(*list_);
    const QPoint row = RowCentre(*list_, 1);
    hand::Press(*list_, row, button);
    QVERIFY(StaysFalse([this] { return !form_->told.isEmpty(); }));
    hand::Release(*list_, row, button);
    QTRY_COMPARE(form_->told, "up" + QByteArray::number(int(button)));
    QVERIFY(StaysFalse([&] { return form_->told != "up" + QByteArray::number(int(button)); }));
}

void ListBoxTest::ArrowKeysChoose()
{
    form_->Start(*list_);
    hand::Key(Qt::Key_Down);
    QTRY_VERIFY(list_->ListIndex() >= 0);
    list_->SetListIndex(0);
    form_->told.clear();
    hand::Key(Qt::Key_Down);
    hand::Key(Qt::Key_Down);
    hand::Key(Qt::Key_Up);
    QTRY_COMPARE(form_->told, QByteArray("click1 click2 click1"));
    // At its end nothing else is chosen.
    list_->SetListIndex(3);
    hand::Key(Qt::Key_Down);
    QVERIFY(StaysFalse([this] { return form_->told != "click1 click2 click1"; }));
}

void ListBoxTest::ADoubleClickIsOneClickAndOneDoubleClick()
{
    form_->Start(*list_);
    hand::DoubleClick(*list_, RowCentre(*list_, 1));
    QTRY_COMPARE(form_->told, QByteArray("click1 dblclick1"));
    QVERIFY(StaysFalse([this] { return form_->told != "click1 dblclick1"; }));
}

void ListBoxTest::EnterAndEscapeAreTheHandlers()
{
    form_->Start(*list_);
    hand::Key(Qt::Key_Return);
    hand::Key(Qt::Key_Enter);
    hand::Key(Qt::Key_Escape);
    QTRY_COMPARE(form_->told, QByteArray("key13 key13 key27"));
    QVERIFY(form_->isVisible());
}

void ListBoxTest::EntriesArePlainTextInTheirOrder()
{
    list_->Clear();
    list_->AddItem("Zeta");
    list_->AddItem("<b>A & B</b>");
    list_->AddItem("\xE0 8\x80");
    QCOMPARE(list_->Items(), (std::vector<Text>{"Zeta", "<b>A & B</b>", "\xE0 8\x80"}));
    QCOMPARE(list_->item(2)->text(), QStringLiteral("\u00E0 8\u20AC"));

    // Shown with each of its characters: as wide as the text, and not drawn as what markup would make of it.
    const int written = list_->fontMetrics().horizontalAdvance(QStringLiteral("<b>A & B</b>"));
    QVERIFY(list_->sizeHintForColumn(0) >= written);
    const auto drawn = [this](TextView text) {
        list_->Clear();
        list_->AddItem(text);
        static_cast<QAbstractItemView*>(list_)->doItemsLayout();
        return list_->viewport()->grab().toImage();
    };
    QVERIFY(drawn("A & B") != drawn("A  B"));
    QVERIFY(drawn("A &B") != drawn("A B"));
}

void ListBoxTest::RemovingLeavesNothingSelected()
{
    list_->SetListIndex(1);
    list_->RemoveItem(1);
    QCOMPARE(list_->Items(), (std::vector<Text>{"Corto", "Lungo", "Lunghissimo"}));
    QCOMPARE(list_->ListIndex(), -1);
    QCOMPARE(form_->told, QByteArray());
}

void ListBoxTest::TheIndexFollowsTheProgram()
{
    list_->SetListIndex(3);
    QCOMPARE(list_->ListIndex(), 3);
    QCOMPARE(list_->List(3), Text("Lunghissimo"));
    list_->SetListIndex(-1);
    QCOMPARE(list_->ListIndex(), -1);
    QCOMPARE(list_->List(-1), Text());
    QCOMPARE(list_->List(4), Text());
    QCOMPARE(list_->ListCount(), 4);
}

ZELVIA_WINDOW_TEST(ListBoxTest)

#include "ListBoxTest.moc"
