// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/MessageBox.h"

#include "support/BoxScript.h"
#include "support/Hand.h"
#include "support/WindowTest.h"
#include "toolkit/Events.h"
#include "toolkit/SampleForm.h"
#include "toolkit/Timer.h"

#include <QAbstractButton>

using namespace zelvia;
using namespace zelvia::test;

namespace
{

const QString kText = QStringLiteral("PROVA");
constexpr auto kYesNoCancel = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;

QMessageBox* OpenBox()
{
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

} // namespace

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
    QFETCH(QMessageBox::StandardButtons, shown);
    QFETCH(QMessageBox::Icon, picture);
    const auto press = shown.testFlag(QMessageBox::Ok) ? QMessageBox::Ok : QMessageBox::No;
    BoxScript script;
    script.Expect({QStringLiteral("SALVARE ?  "), picture, shown, press});
    ShowBox({"SALVARE ?  ", icon, buttons});
    VERIFY_SCRIPT(script);
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
    BoxScript script;
    script.Expect({kText, QMessageBox::NoIcon, kYesNoCancel, button});
    script.Meanwhile([button] { hand::Click(*OpenBox()->button(button)); });
    QVERIFY(ShowBox({"PROVA", MsgIcon::None, MsgButtons::YesNoCancel}) == answered);
    VERIFY_SCRIPT(script);
}

void MessageBoxTest::EscapeIsCancel()
{
    BoxScript script;
    for (const QMessageBox::StandardButtons buttons :
         {QMessageBox::Ok | QMessageBox::Cancel, kYesNoCancel, QMessageBox::StandardButtons(QMessageBox::Ok)}) {
        script.Expect({kText, QMessageBox::NoIcon, buttons,
                       buttons.testFlag(QMessageBox::Cancel) ? QMessageBox::Cancel : QMessageBox::Ok});
        script.Meanwhile([] { hand::Key(Qt::Key_Escape); });
    }
    QVERIFY(ShowBox({"PROVA", MsgIcon::None, MsgButtons::OKCancel}) == MsgAnswer::Cancel);
    QVERIFY(ShowBox({"PROVA", MsgIcon::None, MsgButtons::YesNoCancel}) == MsgAnswer::Cancel);
    QVERIFY(ShowBox({"PROVA"}) == MsgAnswer::OK);
    VERIFY_SCRIPT(script);
}

void MessageBoxTest::ItsTextIsPlain()
{
    Qt::TextFormat format = Qt::AutoText;
    BoxScript script;
    script.Expect(Report(QStringLiteral("<b>A & B</b>")));
    script.Meanwhile([&] { format = OpenBox()->textFormat(); });
    ShowBox({"<b>A & B</b>"});
    QCOMPARE(format, Qt::PlainText);
    VERIFY_SCRIPT(script);
}

void MessageBoxTest::ItsTextKeepsItsBlanks()
{
    BoxScript script;
    script.Expect(Report(QStringLiteral("LOCALIT\u00C0                 ")));
    ShowBox({"LOCALIT\xC0                 "});
    VERIFY_SCRIPT(script);
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
    BoxScript script;
    script.Expect(Report(kText));
    script.Meanwhile([&] {
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
    BoxScript script;
    script.Expect(Report(kText));
    form_->txtUno->KeyPress = [](int&) { ShowBox({"PROVA"}); };
    hand::Key(Qt::Key_Return);
    TRY_SCRIPT(script);
    QTRY_COMPARE(form_->Focused(), QByteArray("txtUno"));
    QVERIFY(StaysFalse([this] { return !form_->told.isEmpty(); }));
}

void MessageBoxTest::AnErrorOfAHandlerIsReportedUnderTheBareTitle()
{
    BoxScript script;
    script.Expect(Report(QStringLiteral("ERRORE : 7 Memoria esaurita")));
    form_->cmdVai->Click = [] { throw std::bad_alloc(); };
    hand::Click(*form_->cmdVai);
    TRY_SCRIPT(script);
    // And the program goes on once the box is gone.
    QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
    hand::Click(*form_->lblVai);
    QTRY_VERIFY(form_->told.endsWith("lblVai"));
}

ZELVIA_WINDOW_TEST(MessageBoxTest)

#include "MessageBoxTest.moc"
