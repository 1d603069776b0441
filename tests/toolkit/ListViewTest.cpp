// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/ListView.h"

#include "support/Hand.h"
#include "support/WindowTest.h"
#include "toolkit/SampleForm.h"

#include <QHeaderView>

using namespace zelvia;

class ListViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { form_.reset(); }

    void ColumnsStandAsGiven();
    void RowsArePlainTextInTheirOrder();
    void AClickChoosesTheWholeRow();
    void ARightPressNeitherSelectsNorFocuses();
    void ArrowKeysChoose();
    void EnterAndEscapeAreTheHandlers();
    void TabLeavesIt();
    void AHeadHasNoAction();
    void HidingItWhileFocusedGoesToTheSink();

private:
    QPoint RowCentre(int row) const
    {
        const QTreeWidgetItem* item = view_->topLevelItem(row);
        return view_->viewport()->mapTo(view_, view_->visualItemRect(item).center());
    }
    int Selected() const
    {
        const QList<QTreeWidgetItem*> items = view_->selectedItems();
        return items.isEmpty() ? -1 : view_->indexOfTopLevelItem(items.first());
    }

    std::unique_ptr<SampleForm> form_;
    ListView* view_ = nullptr;
};

void ListViewTest::init()
{
    form_ = std::make_unique<SampleForm>();
    view_ = new ListView(form_.get(), QStringLiteral("lvUno"), {{"posto", 60}, {"tempo", 90}});
    view_->setGeometry(20, 220, 250, 150);
    for (const TextView place : {"1", "2", "3"}) {
        view_->AddRow({place, "0:50:00"});
    }
    form_->Open();
    form_->Start(*form_->txtUno);
    view_->GotFocus = [this] { form_->Tell("+lvUno"); };
    view_->LostFocus = [this] { form_->Tell("-lvUno"); };
    view_->KeyPress = [this](int keyAscii) { form_->Tell("key" + QByteArray::number(keyAscii)); };
}

void ListViewTest::ColumnsStandAsGiven()
{
    QCOMPARE(view_->objectName(), QStringLiteral("lvUno"));
    QCOMPARE(view_->columnCount(), 2);
    QCOMPARE(view_->headerItem()->text(0), QStringLiteral("posto"));
    QCOMPARE(view_->headerItem()->text(1), QStringLiteral("tempo"));
    QCOMPARE(view_->columnWidth(0), 60);
    QVERIFY(view_->columnWidth(1) >= 90); // the last one fills the view
    QVERIFY(!view_->isHeaderHidden());
}

void ListViewTest::RowsArePlainTextInTheirOrder()
{
    view_->Clear();
    QCOMPARE(view_->ListCount(), 0);
    view_->AddRow({"  2\xB0", "<b>A & B</b>"});
    view_->AddRow({"1", ""});
    QCOMPARE(view_->ListCount(), 2);
    QCOMPARE(view_->model()->index(0, 0).data().toString(), QStringLiteral("  2°"));
    QCOMPARE(view_->model()->index(0, 1).data().toString(), QStringLiteral("<b>A & B</b>"));
    QCOMPARE(view_->model()->index(1, 0).data().toString(), QStringLiteral("1"));
    QCOMPARE(view_->model()->index(1, 1).data().toString(), QString());
}

void ListViewTest::AClickChoosesTheWholeRow()
{
    hand::Click(*view_, RowCentre(1));
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +lvUno"));
    QCOMPARE(Selected(), 1);
    QCOMPARE(view_->selectionModel()->selectedIndexes().size(), 2);
}

void ListViewTest::ARightPressNeitherSelectsNorFocuses()
{
    hand::Click(*view_, RowCentre(2), Qt::RightButton);
    QVERIFY(StaysFalse([this] { return !form_->told.isEmpty(); }));
    QCOMPARE(Selected(), -1);
    QCOMPARE(form_->Focused(), QByteArray("txtUno"));
}

void ListViewTest::ArrowKeysChoose()
{
    form_->Start(*view_);
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(Selected(), 0);
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(Selected(), 1);
    hand::Key(Qt::Key_Up);
    QTRY_COMPARE(Selected(), 0);
    view_->Clear();
    hand::Key(Qt::Key_Down);
    QCOMPARE(Selected(), -1);
    QCOMPARE(form_->told, QByteArray());
}

void ListViewTest::EnterAndEscapeAreTheHandlers()
{
    form_->Start(*view_);
    hand::Key(Qt::Key_Return);
    hand::Key(Qt::Key_Enter);
    hand::Key(Qt::Key_Escape);
    QTRY_COMPARE(form_->told, QByteArray("key13 key13 key27"));
    QVERIFY(form_->isVisible());
}

void ListViewTest::TabLeavesIt()
{
    form_->Start(*view_);
    hand::Key(Qt::Key_Tab);
    QTRY_VERIFY(form_->told.startsWith("-lvUno +"));
    QVERIFY(!view_->hasFocus());
}

void ListViewTest::AHeadHasNoAction()
{
    form_->Start(*view_);
    const QHeaderView& head = *view_->header();
    hand::Click(*view_, head.mapTo(view_, QPoint(30, head.height() / 2)));
    QVERIFY(StaysFalse([this] { return !form_->told.isEmpty(); }));
    QCOMPARE(Selected(), -1);
    QCOMPARE(view_->model()->index(0, 0).data().toString(), QStringLiteral("1"));
}

void ListViewTest::HidingItWhileFocusedGoesToTheSink()
{
    form_->Start(*view_);
    view_->KeyPress = [this](int /*keyAscii*/) { view_->SetVisible(false); };
    hand::Key(Qt::Key_Escape);
    QTRY_COMPARE(form_->told, QByteArray("-lvUno +pctFondo"));
    QVERIFY(!view_->isVisible());
}

ZELVIA_WINDOW_TEST(ListViewTest)

#include "ListViewTest.moc"
