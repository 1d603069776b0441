// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/MessageBox.h"

#include "support/BoxAnswer.h"
#include "support/Hand.h"
#include "support/WindowTest.h"
#include "toolkit/Events.h"
#include "toolkit/SampleForm.h"
#include "toolkit/Timer.h"

#include <QAbstractButton>

using namespace zelvia;

class MessageBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { form_.reset(); }

    void ItShowsWhatItIsGiven_data();
    void ItShowsWhatItIsGiven();
    void TheAnswerIsTheButton_data();
    void TheAnswerIsTheButton();
    void EscapeIsCancel();
    void ItsTextIsPlain();
    void ItsTextKeepsItsBlanks();
    void NoFocusEventAndNoTickWhileItIsUp();
    void ABoxIsNoLostFocus();
    void AnErrorOfAHandlerIsReportedUnderTheBareTitle();

private:
    std::unique_ptr<SampleForm> form_;
};

Q_DECLARE_METATYPE(MsgButtons)
Q_DECLARE_METATYPE(MsgIcon)
Q_DECLARE_METATYPE(MsgAnswer)

void MessageBoxTest::init()
{
    form_ = std::make_unique<SampleForm>();
    form_->Open();
    form_->Start(*form_->txtUno);
}

void MessageBoxTest::ItShowsWhatItIsGiven_data()
{
    QTest::addColumn<MsgButtons>("buttons");
    QTest::addColumn<MsgIcon>("icon");
    QTest::addColumn<QMessageBox::StandardButtons>("shown");
    QTest::addColumn<QMessageBox::Icon>("picture");

    QTest::newRow("plain") << MsgButtons::OK << MsgIcon::None << QMessageBox::StandardButtons(QMessageBox::Ok)
                           << QMessageBox::NoIcon;
    QTest::newRow("information") << MsgButtons::OKCancel << MsgIcon::Information
                                 << (QMessageBox::Ok | QMessageBox::Cancel) << QMessageBox::Information;
    QTest::newRow("exclamation") << MsgButtons::YesNoCancel << MsgIcon::Exclamation
                                 << (QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel) << QMessageBox::Warning;
    QTest::newRow("critical") << MsgButtons::OK << MsgIcon::Critical << QMessageBox::StandardButtons(QMessageBox::Ok)
                              << QMessageBox::Critical;
}

void MessageBoxTest::ItShowsWhatItIsGiven()
{
    QFETCH(MsgButtons, buttons);
    QFETCH(MsgIcon, icon);
    QMessageBox::StandardButtons shown;
    QMessageBox::Icon picture = QMessageBox::Question;
    QString title;
    const BoxAnswer answer(QMessageBox::Ok, [&](QMessageBox& box) {
        shown = box.standardButtons();
        picture = box.icon();
        title = box.windowTitle();
    });
    ShowBox({"SALVARE ?  ", icon, buttons});
    QCOMPARE(answer.Texts(), QStringList(QStringLiteral("SALVARE ?  ")));
    QTEST(shown, "shown");
    QTEST(picture, "picture");
    QCOMPARE(title, QStringLiteral("Zelvia"));
}

void MessageBoxTest::TheAnswerIsTheButton_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("button");
    QTest::addColumn<MsgAnswer>("answered");
    QTest::newRow("yes") << QMessageBox::Yes << MsgAnswer::Yes;
    QTest::newRow("no") << QMessageBox::No << MsgAnswer::No;
    QTest::newRow("cancel") << QMessageBox::Cancel << MsgAnswer::Cancel;
}

void MessageBoxTest::TheAnswerIsTheButton()
{
    QFETCH(QMessageBox::StandardButton, button);
    QFETCH(MsgAnswer, answered);
    BoxAnswer answer(QMessageBox::NoButton, [&](QMessageBox& box) { hand::Click(*box.button(button)); });
    QVERIFY(ShowBox({"PROVA", MsgIcon::None, MsgButtons::YesNoCancel}) == answered);
}

void MessageBoxTest::EscapeIsCancel()
{
    const BoxAnswer answer(QMessageBox::NoButton, [](QMessageBox& box) {
        QTRY_VERIFY(box.isActiveWindow());
        hand::Key(Qt::Key_Escape);
    });
    QVERIFY(ShowBox({"PROVA", MsgIcon::None, MsgButtons::OKCancel}) == MsgAnswer::Cancel);
    QVERIFY(ShowBox({"PROVA", MsgIcon::None, MsgButtons::YesNoCancel}) == MsgAnswer::Cancel);
    QVERIFY(ShowBox({"PROVA"}) == MsgAnswer::OK);
    QCOMPARE(answer.Texts().size(), 3);
}

void MessageBoxTest::ItsTextIsPlain()
{
    Qt::TextFormat format = Qt::AutoText;
    const BoxAnswer answer(QMessageBox::Ok, [&](QMessageBox& box) { format = box.textFormat(); });
    ShowBox({"<b>A & B</b>"});
    QCOMPARE(format, Qt::PlainText);
    QCOMPARE(answer.Texts(), QStringList(QStringLiteral("<b>A & B</b>")));
}

void MessageBoxTest::ItsTextKeepsItsBlanks()
{
    const BoxAnswer answer;
    ShowBox({"LOCALIT\xC0                 "});
    QCOMPARE(answer.Texts(), QStringList(QStringLiteral("LOCALIT\u00C0                 ")));
}

void MessageBoxTest::NoFocusEventAndNoTickWhileItIsUp()
{
    Timer timer(form_.get(), QStringLiteral("tmrProva"), 20);
    bool up = false;
    int ticks = 0;
    int ticksUnderBox = 0;
    timer.Tick = [&] { ++(up ? ticksUnderBox : ticks); };
    QTRY_VERIFY(ticks > 0);

    bool told = false;
    const BoxAnswer answer(QMessageBox::Ok, [&](QMessageBox&) {
        up = true;
        form_->pctFondo->SetFocus();
        told = !StaysFalse([this] { return !form_->told.isEmpty(); }, 200);
        up = false;
    });
    // The box is opened by no event's handler, and asked all the same.
    ShowBox({"PROVA"});
    QVERIFY(!told);
    QCOMPARE(ticksUnderBox, 0);
    const int before = ticks;
    QTRY_VERIFY(ticks > before);
    QTRY_COMPARE(form_->told, QByteArray("-txtUno +pctFondo"));
}

void MessageBoxTest::ABoxIsNoLostFocus()
{
    const BoxAnswer answer;
    form_->txtUno->KeyPress = [](int&) { ShowBox({"PROVA"}); };
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(answer.Texts(), QStringList(QStringLiteral("PROVA")));
    QTRY_COMPARE(form_->Focused(), QByteArray("txtUno"));
    QVERIFY(StaysFalse([this] { return !form_->told.isEmpty(); }));
}

void MessageBoxTest::AnErrorOfAHandlerIsReportedUnderTheBareTitle()
{
    const BoxAnswer answer;
    form_->cmdVai->Click = [] { throw std::bad_alloc(); };
    hand::Click(*form_->cmdVai);
    QTRY_COMPARE(answer.Texts().size(), 1);
    QVERIFY2(answer.Texts().constFirst().startsWith(QStringLiteral("ERRORE : 7 ")),
             qPrintable(answer.Texts().constFirst()));
    // And the program goes on once the box is gone.
    QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
    hand::Click(*form_->lblVai);
    QTRY_VERIFY(form_->told.endsWith("lblVai"));
}

ZELVIA_WINDOW_TEST(MessageBoxTest)

#include "MessageBoxTest.moc"
