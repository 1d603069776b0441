// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Label.h"

#include "support/Hand.h"
#include "support/WindowTest.h"
#include "toolkit/PagePalette.h"
#include "toolkit/SampleForm.h"

#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QTextDocumentFragment>
#include <QToolTip>

#include <algorithm>
#include <cmath>

using namespace zelvia;

namespace
{

/// The ratio of two colours as the guidelines for accessible web content define it, from 1 up.
double Contrast(const QColor& one, const QColor& other)
{
    const auto luminance = [](const QColor& colour) {
        const auto linear = [](double part) {
            return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
    };
    const double first = luminance(one);
    const double second = luminance(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

int Darkest(Label& label)
{
    label.setPalette(PagePalette());
    label.setAutoFillBackground(true);
    const QImage image = label.grab().toImage();
    int darkest = 255;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            darkest = std::min(darkest, qGray(image.pixel(x, y)));
        }
    }
    return darkest;
}

} // namespace

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
    void AValueThatSaysNothingIsFaint_data();
    void AValueThatSaysNothingIsFaint();
    void FaintIsHalfAsDark();
    void ATooLongTextEndsInAnEllipsis();
    void TheTooltipShowsTheTextAsItStands();
    void AMarkHasItsPlaceFree();
    void AnArtworkIsPaintedForTheText();
    void AChangeIsTold();

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

void LabelTest::AValueThatSaysNothingIsFaint_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("faint");
    const auto row = [](const char* value, bool faint) { QTest::newRow(value) << QByteArray(value) << faint; };
    row("0", true);
    row("00", true);
    row("0,000", true);
    row("0:00:00", true);
    row("0 x 0  @  0:0", true);
    row("0 x 000     @ 0.00 ", true);
    row("Nessuna tabella attiva", true);
    row("0,010", false);
    row("0:00:01", false);
    row("10", false);
    row("1 x 0  @  0:0", false);
    row("Nessuna", false);
    row("x1", false);
}

void LabelTest::AValueThatSaysNothingIsFaint()
{
    QFETCH(QByteArray, value);
    QFETCH(bool, faint);
    Label& label = *form_->lblFermo;
    label.SetCaption(value.toStdString());
    QVERIFY(!label.Faint());
    label.FadeBlank("Nessuna tabella attiva");
    QCOMPARE(label.Faint(), faint);
    QCOMPARE(label.Caption(), value.toStdString());
    label.UnderlineNumber(0);
    QVERIFY(!label.Faint());
}

void LabelTest::FaintIsHalfAsDark()
{
    for (const QColor& paper : {Ink::Paper, Ink::Slip}) {
        QVERIFY(Contrast(Ink::Pencil, paper) <= Contrast(Ink::Pen, paper) / 2);
        QVERIFY(Contrast(Ink::Pencil, paper) <= Contrast(Ink::PrintDark, paper) / 2);
        // It can still be seen.
        QVERIFY(Contrast(Ink::Pencil, paper) >= 1.8);
    }
    Label& label = *form_->lblFermo;
    label.SetCaption("0:00:00");
    label.FadeBlank();
    QVERIFY(Darkest(label) >= qGray(Ink::Pencil.rgb()));
    label.SetCaption("0:00:01");
    QVERIFY(Darkest(label) < qGray(Ink::Pencil.rgb()));
}

void LabelTest::ATooLongTextEndsInAnEllipsis()
{
    Label& label = *form_->lblFermo;
    const QString whole = QStringLiteral("Strada/Sentiero/Salita fino in cima");
    label.SetCaption(whole.toStdString());
    label.resize(label.fontMetrics().horizontalAdvance(whole), label.height());
    QCOMPARE(label.Shown(), whole);
    label.resize(label.width() - 1, label.height());
    QVERIFY2(label.Shown().endsWith(QChar(0x2026)), qPrintable(label.Shown()));
    QVERIFY(whole.startsWith(label.Shown().chopped(1)));
    QVERIFY(label.fontMetrics().horizontalAdvance(label.Shown()) <= label.width());
    QCOMPARE(label.text(), whole);
    label.SetCaption(Text(1000000, 'a'));
    QVERIFY(label.Shown().size() < 100);
    QCOMPARE(label.text().size(), 1000000);
}

void LabelTest::TheTooltipShowsTheTextAsItStands()
{
    const auto ask = [](Label& label) {
        QHelpEvent event(QEvent::ToolTip, {5, 5}, label.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&label, &event);
        return QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
    };
    Label& label = *form_->lblFermo;
    label.SetCaption("Corto");
    label.setToolTip(QStringLiteral("Cambia"));
    QCOMPARE(ask(label), QStringLiteral("Cambia"));
    label.SetCaption("Lungo <b>lungo</b> & molto, molto lungo");
    QCOMPARE(ask(label), QStringLiteral("Lungo <b>lungo</b> & molto, molto lungo"));
    QToolTip::hideText();
}

void LabelTest::AMarkHasItsPlaceFree()
{
    Label& label = *form_->lblFermo;
    label.SetCaption("Sole");
    label.SetMark([](QPainter& painter, const QRectF& area) { painter.fillRect(area, Qt::green); }, 1.5);
    QCOMPARE(label.MarkArea(), QRectF(80 - 36, 0, 36, 24));
    const QImage image = label.grab().toImage();
    const qreal scale = image.devicePixelRatio();
    QCOMPARE(image.pixelColor(qRound(62 * scale), qRound(12 * scale)), QColor(Qt::green));
    label.SetCaption("Sole e vento");
    QVERIFY(label.Shown().endsWith(QChar(0x2026)));
    QVERIFY(label.fontMetrics().horizontalAdvance(label.Shown()) <= 80 - 36);
}

void LabelTest::AnArtworkIsPaintedForTheText()
{
    Label& label = *form_->lblFermo;
    label.SetCaption("20 maggio, e molto altro che non ci sta");
    label.SetArtwork([](QPainter& painter, const QRectF& area) { painter.fillRect(area, Qt::red); });
    QCOMPARE(label.grab().toImage().pixelColor(3, 3), QColor(Qt::red));
    QCOMPARE(label.Shown(), label.text());
}

void LabelTest::AChangeIsTold()
{
    int changes = 0;
    form_->lblFermo->Changed = [&changes] { ++changes; };
    form_->lblFermo->SetCaption("Fermo");
    QCOMPARE(changes, 0);
    form_->lblFermo->SetCaption("Gara");
    QCOMPARE(changes, 1);
}

ZELVIA_WINDOW_TEST(LabelTest)

#include "LabelTest.moc"
