// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Label.h"

#include "support/Hand.h"
#include "support/WindowTest.h"
#include "toolkit/SampleForm.h"

#include <QAccessible>

using namespace zelvia;

class LabelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { form_.reset(); }

    void AClickFires();
    void OnlyALeftPressAndReleaseInsideIsAClick();
    void TheKeyboardReachesALabelThatActs_data();
    void TheKeyboardReachesALabelThatActs();
    void OneThatDoesNotActIsPassedOver();
    void TheCaptionIsPlainText_data();
    void TheCaptionIsPlainText();
    void AssistantsFindNamesAndRoles();

private:
    std::unique_ptr<SampleForm> form_;
};

void LabelTest::init()
{
    form_ = std::make_unique<SampleForm>();
    form_->Open();
    form_->Start(*form_->txtUno);
}

void LabelTest::AClickFires()
{
    hand::Click(*form_->lblVai);
    hand::Click(*form_->lblVai);
    QTRY_COMPARE(form_->told, QByteArray("lblVai lblVai"));
    QCOMPARE(form_->Focused(), QByteArray("txtUno"));
}

void LabelTest::OnlyALeftPressAndReleaseInsideIsAClick()
{
    hand::Click(*form_->lblVai, Qt::RightButton);
    hand::Click(*form_->lblVai, Qt::MiddleButton);
    hand::Press(*form_->lblVai, {10, 10});
    hand::Release(*form_->lblVai, {10, 60});
    // A release alone, after that press.
    QTest::mouseRelease(form_->lblVai, Qt::LeftButton);
    QVERIFY(StaysFalse([this] { return !form_->told.isEmpty(); }));
}

void LabelTest::TheKeyboardReachesALabelThatActs_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
    QTest::newRow("Space") << Qt::Key_Space;
}

void LabelTest::TheKeyboardReachesALabelThatActs()
{
    QFETCH(Qt::Key, key);
    form_->Start(*form_->lstUno);
    hand::Key(Qt::Key_Tab);
    QTRY_COMPARE(form_->told, QByteArray("-lstUno +lblVai"));
    hand::Key(key);
    QTRY_COMPARE(form_->told, QByteArray("-lstUno +lblVai lblVai"));
}

void LabelTest::OneThatDoesNotActIsPassedOver()
{
    // Pictures, spins and labels without a click are none of Tab's stops: once round the window.
    form_->told.clear();
    for (int i = 0; i < 6; ++i) {
        hand::Key(Qt::Key_Tab);
    }
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +txtDue -txtDue +txtTre -txtTre +lstUno -lstUno +lblVai "
                                         "-lblVai +cmdVai -cmdVai +txtUno"));
}

void LabelTest::TheCaptionIsPlainText_data()
{
    QTest::addColumn<QByteArray>("caption");
    QTest::addColumn<QString>("shown");
    QTest::newRow("markup") << QByteArray("<b>A</b>") << QStringLiteral("<b>A</b>");
    QTest::newRow("ampersand") << QByteArray("A & B &C") << QStringLiteral("A & B &C");
    QTest::newRow("character set") << QByteArray("8\xB0 \x80") << QStringLiteral("8\u00B0 \u20AC");
}

void LabelTest::TheCaptionIsPlainText()
{
    QFETCH(QByteArray, caption);
    QFETCH(QString, shown);
    Label& label = *form_->lblFermo;
    label.SetCaption({caption.constData(), static_cast<std::size_t>(caption.size())});
    QCOMPARE(label.text(), shown);
    QCOMPARE(label.Caption(), Text(caption.constData()));
    QCOMPARE(label.textFormat(), Qt::PlainText);
    // Each character takes its place on the screen.
    QCOMPARE(label.sizeHint().width(), label.fontMetrics().boundingRect(QRect(0, 0, 999, 99), 0, shown).width());
}

void LabelTest::AssistantsFindNamesAndRoles()
{
    const auto roleOf = [](QWidget& widget) { return QAccessible::queryAccessibleInterface(&widget)->role(); };
    QCOMPARE(roleOf(*form_->lblFermo), QAccessible::StaticText);
    QCOMPARE(roleOf(*form_->txtUno), QAccessible::EditableText);
    QCOMPARE(roleOf(*form_->lstUno), QAccessible::List);
    QCOMPARE(roleOf(*form_->cmdVai), QAccessible::Button);
    QAccessibleInterface* button = QAccessible::queryAccessibleInterface(form_->cmdVai);
    QCOMPARE(button->text(QAccessible::Name), QStringLiteral("Vai"));
    form_->upUno->setAccessibleName(QStringLiteral("giorno"));
    QCOMPARE(QAccessible::queryAccessibleInterface(form_->upUno)->text(QAccessible::Name), QStringLiteral("giorno"));
}

ZELVIA_WINDOW_TEST(LabelTest)

#include "LabelTest.moc"
