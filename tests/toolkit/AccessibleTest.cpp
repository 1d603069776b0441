// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Accessible.h"

#include "support/WindowTest.h"
#include "toolkit/Chart.h"
#include "toolkit/SampleForm.h"

#include <QAccessible>
#include <QLineEdit>
#include <QMessageBox>

using namespace zelvia;

namespace
{

QAccessibleInterface& Of(QObject* object)
{
    return *QAccessible::queryAccessibleInterface(object);
}

QString NameOf(QObject* object)
{
    return Of(object).text(QAccessible::Name);
}

QString DescriptionOf(QObject* object)
{
    return Of(object).text(QAccessible::Description);
}

} // namespace

class AccessibleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void AValueHasANameAndAText();
    void WhatIsClickedIsAButton();
    void AButtonTellsItsState();
    void AButtonIsPressedAsByTheUser();
    void ASpinHasAValueAndItsLimits();
    void ASpinTellsADateInPlaceOfItsValue();
    void AListTellsItsEntriesAndColumns();
    void WhatOnlyDecoratesIsLeftOut();
    void AWindowHasItsRole();
    void AMessageBoxReadsItsText_data();
    void AMessageBoxReadsItsText();

private:
    std::unique_ptr<SampleForm> form_;
};

void AccessibleTest::init()
{
    form_ = std::make_unique<SampleForm>();
    form_->Open();
}

void AccessibleTest::AValueHasANameAndAText()
{
    Label& label = *form_->lblFermo;
    label.SetCaption("  72 ");
    QCOMPARE(NameOf(&label), QStringLiteral("72"));
    QCOMPARE(DescriptionOf(&label), QString());
    label.setAccessibleName(QStringLiteral("Peso"));
    QCOMPARE(NameOf(&label), QStringLiteral("Peso"));
    QCOMPARE(DescriptionOf(&label), QStringLiteral("72"));
    QCOMPARE(Of(&label).text(QAccessible::Value), QStringLiteral("72"));
    QCOMPARE(Of(&label).role(), QAccessible::StaticText);
}

void AccessibleTest::WhatIsClickedIsAButton()
{
    Label& label = *form_->lblVai;
    QCOMPARE(Of(&label).role(), QAccessible::Button);
    QAccessibleActionInterface& actions = *Of(&label).actionInterface();
    QVERIFY(actions.actionNames().contains(QAccessibleActionInterface::pressAction()));
    actions.doAction(QAccessibleActionInterface::pressAction());
    QTRY_COMPARE(form_->told, QByteArray("lblVai"));
    actions.doAction(QAccessibleActionInterface::setFocusAction());
    QTRY_COMPARE(form_->Focused(), QByteArray("lblVai"));
    QVERIFY(Of(form_->lblFermo).actionInterface()->actionNames().isEmpty());
}

void AccessibleTest::AButtonTellsItsState()
{
    Button& button = *form_->cmdVai;
    QCOMPARE(NameOf(&button), QStringLiteral("Vai"));
    QVERIFY(!Of(&button).state().checkable && !Of(&button).state().pressed);
    button.SetSwitched(false);
    QVERIFY(Of(&button).state().checkable && !Of(&button).state().pressed);
    button.SetSwitched(true);
    QVERIFY(Of(&button).state().checked && Of(&button).state().pressed);
    button.setEnabled(false);
    QVERIFY(Of(&button).state().disabled);
    QVERIFY(!Of(&button).actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
}

void AccessibleTest::AButtonIsPressedAsByTheUser()
{
    QAccessibleActionInterface& actions = *Of(form_->cmdVai).actionInterface();
    form_->Start(*form_->txtUno);
    actions.doAction(QAccessibleActionInterface::pressAction());
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +cmdVai cmdVai"));
    // What has the focus may refuse to let it go.
    form_->Start(*form_->txtUno);
    bool asked = false;
    form_->txtUno->Validate = [&asked] { return asked = true; };
    actions.doAction(QAccessibleActionInterface::pressAction());
    QTRY_VERIFY(asked);
    form_->txtUno->Validate = {};
    QCOMPARE(form_->told, QByteArray());
}

void AccessibleTest::ASpinHasAValueAndItsLimits()
{
    UpDown& spin = *form_->upUno;
    spin.SetRange(0, 990, 10);
    spin.SetValue(40);
    spin.setToolTip(QStringLiteral("metri"));
    QCOMPARE(Of(&spin).role(), QAccessible::SpinBox);
    QAccessibleValueInterface& value = *Of(&spin).valueInterface();
    QCOMPARE(value.currentValue().toInt(), 40);
    QCOMPARE(value.minimumValue().toInt(), 0);
    QCOMPARE(value.maximumValue().toInt(), 990);
    QCOMPARE(value.minimumStepSize().toInt(), 10);
    QCOMPARE(Of(&spin).text(QAccessible::Value), QStringLiteral("40"));
    QCOMPARE(DescriptionOf(&spin), QString());
    value.setCurrentValue(100);
    QTRY_VERIFY(spin.Value() == 100);
    value.setCurrentValue(5000);
    QTRY_VERIFY(spin.Value() == 990);
    Of(&spin).actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
    QTRY_VERIFY(spin.Value() == 980);
    Of(&spin).actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    QTRY_VERIFY(spin.Value() == 990);
    QVERIFY(!Of(&spin).state().focused);
    spin.SetMarked(true);
    QVERIFY(Of(&spin).state().focused);
}

void AccessibleTest::ASpinTellsADateInPlaceOfItsValue()
{
    UpDown& spin = *form_->upUno;
    spin.SetRange(0, 31, 1);
    spin.SetSpokenValue(19);
    int steps = 0;
    spin.UpClick = [&steps] { ++steps; };
    QAccessibleValueInterface& value = *Of(&spin).valueInterface();
    QCOMPARE(value.currentValue().toInt(), 19);
    value.setCurrentValue(22);
    QTRY_COMPARE(steps, 3);
    spin.SetSpokenValue(22);
    QCOMPARE(value.currentValue().toInt(), 22);
}

void AccessibleTest::AListTellsItsEntriesAndColumns()
{
    ListBox& list = *form_->lstUno;
    list.Clear();
    QCOMPARE(list.Summary(), QStringLiteral("Nessuna voce"));
    list.AddItem("Parco");
    QCOMPARE(list.Summary(), QStringLiteral("Una voce"));
    list.SetSpokenColumns({QStringLiteral("descrizione"), QStringLiteral("frequenza")});
    list.AddItem("Parco Nord                     12     ");
    QCOMPARE(list.Summary(), QStringLiteral("2 voci; colonne: descrizione, frequenza"));
    QCOMPARE(list.SpokenLine(list.item(1)->text()), QStringLiteral("descrizione Parco Nord, frequenza 12"));
    // A line that lacks a part is read as it is.
    QCOMPARE(list.SpokenLine(QStringLiteral("Parco")), QString());
    // Without a reader nothing is made for it.
    QCOMPARE(list.accessibleDescription(), QString());
    QVERIFY(!list.item(1)->data(Qt::AccessibleTextRole).isValid());
}

void AccessibleTest::WhatOnlyDecoratesIsLeftOut()
{
    const auto placeOf = [this](QWidget& widget) { return Of(form_.get()).indexOfChild(&Of(&widget)); };
    Label& label = *form_->lblFermo;
    const int children = Of(form_.get()).childCount();
    label.SetCaption("   :   ,");
    QCOMPARE(placeOf(label), -1);
    QCOMPARE(Of(form_.get()).childCount(), children - 1);
    label.SetCaption("7");
    QVERIFY(placeOf(label) >= 0);
    QCOMPARE(Of(form_.get()).child(placeOf(label)), &Of(&label));
    QCOMPARE(Of(form_.get()).child(children), nullptr);
    QCOMPARE(Of(form_.get()).indexOfChild(nullptr), -1);
    Picture& picture = *form_->pctFigura;
    picture.setAccessibleName(QString());
    QCOMPARE(placeOf(picture), -1);
    picture.setAccessibleName(QStringLiteral("Una scarpa"));
    picture.setToolTip(QStringLiteral("Una scarpa"));
    QVERIFY(placeOf(picture) >= 0);
    QCOMPARE(Of(&picture).role(), QAccessible::Graphic);
    QCOMPARE(NameOf(&picture), QStringLiteral("Una scarpa"));
    QCOMPARE(DescriptionOf(&picture), QString());
}

void AccessibleTest::AWindowHasItsRole()
{
    form_->setWindowTitle(QStringLiteral("Tabella "));
    QCOMPARE(Of(form_.get()).role(), QAccessible::Window);
    QCOMPARE(NameOf(form_.get()), QStringLiteral("Tabella"));
    const Form plain(QStringLiteral("frmVuota"));
    QCOMPARE(Of(plain.findChild<Picture*>(QString())).role(), QAccessible::Pane);
    QLineEdit box;
    AddClearButton(box);
    QCOMPARE(Of(&box).child(0)->text(QAccessible::Name), QStringLiteral("Svuota"));
    Chart chart(form_.get(), QStringLiteral("MSChart1"));
    QCOMPARE(Of(&chart).role(), QAccessible::Chart);
    QCOMPARE(NameOf(&chart), QStringLiteral("Grafico"));
}

void AccessibleTest::AMessageBoxReadsItsText_data()
{
    QTest::addColumn<QMessageBox::Icon>("icon");
    QTest::addColumn<QString>("spoken");
    QTest::newRow("error") << QMessageBox::Critical << QStringLiteral("Errore");
    QTest::newRow("warning") << QMessageBox::Warning << QStringLiteral("Attenzione");
    QTest::newRow("information") << QMessageBox::Information << QStringLiteral("Informazione");
}

void AccessibleTest::AMessageBoxReadsItsText()
{
    QFETCH(QMessageBox::Icon, icon);
    QMessageBox box(icon, QStringLiteral("Zelvia"), QStringLiteral("Salvare?"));
    QCOMPARE(Of(&box).role(), QAccessible::AlertMessage);
    QCOMPARE(NameOf(&box), QStringLiteral("Zelvia"));
    QCOMPARE(DescriptionOf(&box), QStringLiteral("Salvare?"));
    QTEST(NameOf(box.findChild<QWidget*>(QStringLiteral("qt_msgboxex_icon_label"))), "spoken");
}

ZELVIA_WINDOW_TEST(AccessibleTest)

#include "AccessibleTest.moc"
