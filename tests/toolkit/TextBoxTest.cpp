// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/TextBox.h"

#include "support/Hand.h"
#include "support/WindowTest.h"
#include "toolkit/SampleForm.h"

#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>

#include <algorithm>

using namespace zelvia;

class TextBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { form_.reset(); }

    void TheProgramSelectsTheText();
    void TheMouseSelectsNothing();
    void AKeySelectsTheText();
    void AnOpeningSelectsTheText();
    void AnotherProgramLeavesTheCaret();
    void ABoxMayHaveItsCaretAtTheEnd_data();
    void ABoxMayHaveItsCaretAtTheEnd();
    void TypingStopsAtTheLimit();
    void PastingIsCutAtTheLimit();
    void ASelectionMakesRoom();
    void AProgramsTextStaysWholeUntilEdited();
    void TypedCharactersOutsideTheSetAreRefused_data();
    void TypedCharactersOutsideTheSetAreRefused();
    void AccentedCharactersAreTyped();
    void PastedTextIsMadeFit_data();
    void PastedTextIsMadeFit();
    void PasteHasTwoKeys();
    void TheContextMenuPastesByTheSameRules();
    void TheMiddleButtonPastesTheSelection();
    void ADroppedTextIsAPaste();
    void AnInputMethodTypes();
    void KeyPressSeesCharacters();
    void KeyPressMaySwallowACharacter();
    void AClickIsAPressAndAReleaseInside();
    void TheTextIsPlain();

private:
    void Paste(const QString& text);
    void Commit(const QString& text);

    std::unique_ptr<SampleForm> form_;
    TextBox* box_ = nullptr;
};

void TextBoxTest::init()
{
    form_ = std::make_unique<SampleForm>();
    box_ = new TextBox(form_.get(), QStringLiteral("txtLimite"), 5);
    box_->setGeometry(200, 250, 150, 28);
    form_->Open();
    box_->SetFocus();
    QTRY_COMPARE(form_->Focused(), QByteArray("txtLimite"));
}

void TextBoxTest::Paste(const QString& text)
{
    QApplication::clipboard()->setText(text);
    hand::Key(Qt::Key_V, Qt::ControlModifier);
}

void TextBoxTest::Commit(const QString& text)
{
    QInputMethodEvent event;
    event.setCommitString(text);
    QApplication::sendEvent(box_, &event);
}

void TextBoxTest::TheProgramSelectsTheText()
{
    form_->txtUno->SetContent("Colle");
    form_->Start(*form_->txtUno);
    QCOMPARE(form_->txtUno->selectedText(), QStringLiteral("Colle"));
    hand::Type(QStringLiteral("Lago"));
    QTRY_COMPARE(form_->txtUno->text(), QStringLiteral("Lago"));
    // Given to the box that has it, the focus selects again.
    form_->txtUno->SetFocus();
    hand::Type(QStringLiteral("x"));
    QTRY_COMPARE(form_->txtUno->text(), QStringLiteral("x"));
}

void TextBoxTest::TheMouseSelectsNothing()
{
    form_->txtUno->SetContent("Colle");
    hand::Click(*form_->txtUno, {140, 14});
    QTRY_COMPARE(form_->Focused(), QByteArray("txtUno"));
    QCOMPARE(form_->txtUno->selectedText(), QString());
    QCOMPARE(form_->txtUno->cursorPosition(), 5);
}

void TextBoxTest::AKeySelectsTheText()
{
    form_->txtDue->SetContent("Colle");
    form_->Start(*form_->txtUno);
    hand::Key(Qt::Key_Tab);
    QTRY_COMPARE(form_->Focused(), QByteArray("txtDue"));
    QCOMPARE(form_->txtDue->selectedText(), QStringLiteral("Colle"));
}

void TextBoxTest::AnOpeningSelectsTheText()
{
    class BoxForm : public Form
    {
    public:
        BoxForm() : Form(QStringLiteral("frmCasella")), box(new TextBox(this, QStringLiteral("txtCasella")))
        {
            box->SetContent("Colle");
        }
        Control& FocusSink() override { return *box; }
        TextBox* box;
    };
    BoxForm form;
    form.show();
    form.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    QTRY_VERIFY(form.box->hasFocus());
    QCOMPARE(form.box->selectedText(), QStringLiteral("Colle"));
}

void TextBoxTest::AnotherProgramLeavesTheCaret()
{
    form_->txtUno->SetContent("Colle");
    form_->Start(*form_->txtUno);
    hand::Key(Qt::Key_End);
    QTRY_COMPARE(form_->txtUno->selectedText(), QString());
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    form_->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(form_.get()));
    QTRY_VERIFY(form_->txtUno->hasFocus());
    QCOMPARE(form_->txtUno->selectedText(), QString());
    QCOMPARE(form_->txtUno->cursorPosition(), 5);
}

void TextBoxTest::ABoxMayHaveItsCaretAtTheEnd_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("by program") << false;
    QTest::newRow("by key") << true;
}

void TextBoxTest::ABoxMayHaveItsCaretAtTheEnd()
{
    QFETCH(bool, byKey);
    form_->txtDue->SetContent("Colle");
    form_->txtDue->SetEntry(BoxEntry::CaretAtEnd);
    form_->Start(*form_->txtUno);
    if (byKey) {
        hand::Key(Qt::Key_Tab);
    } else {
        form_->txtDue->SetFocus();
    }
    QTRY_COMPARE(form_->Focused(), QByteArray("txtDue"));
    QCOMPARE(form_->txtDue->selectedText(), QString());
    QCOMPARE(form_->txtDue->cursorPosition(), 5);
}

void TextBoxTest::TypingStopsAtTheLimit()
{
    hand::Type(QStringLiteral("abcdefg"));
    QTRY_COMPARE(box_->text(), QStringLiteral("abcde"));
}

void TextBoxTest::PastingIsCutAtTheLimit()
{
    hand::Type(QStringLiteral("ab"));
    Paste(QStringLiteral("12345"));
    QTRY_COMPARE(box_->text(), QStringLiteral("ab123"));
}

void TextBoxTest::ASelectionMakesRoom()
{
    box_->SetContent("abcde");
    box_->setSelection(1, 3);
    Paste(QStringLiteral("12345"));
    QTRY_COMPARE(box_->text(), QStringLiteral("a123e"));
    box_->setSelection(0, 1);
    hand::Type(QStringLiteral("xy"));
    QTRY_COMPARE(box_->text(), QStringLiteral("x123e"));
}

void TextBoxTest::AProgramsTextStaysWholeUntilEdited()
{
    box_->SetContent("abcdefgh");
    QCOMPARE(box_->text(), QStringLiteral("abcdefgh"));
    hand::Type(QStringLiteral("x"));
    QVERIFY(StaysFalse([this] { return box_->text() != QStringLiteral("abcdefgh"); }));
    hand::Key(Qt::Key_Delete);
    hand::Key(Qt::Key_Delete);
    hand::Key(Qt::Key_Delete);
    hand::Key(Qt::Key_Delete);
    hand::Type(QStringLiteral("xy"));
    QTRY_COMPARE(box_->text(), QStringLiteral("xefgh"));
}

void TextBoxTest::TypedCharactersOutsideTheSetAreRefused_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("Cyrillic") << QStringLiteral("\u0416");
    QTest::newRow("arrow") << QStringLiteral("\u2192");
    QTest::newRow("outside the first plane") << QStringLiteral("\U0001F3C3");
    QTest::newRow("zero width joiner") << QStringLiteral("\u200D");
    QTest::newRow("private use") << QStringLiteral("\uE000");
}

void TextBoxTest::TypedCharactersOutsideTheSetAreRefused()
{
    QFETCH(QString, typed);
    int seen = 0;
    box_->KeyPress = [&](int&) { ++seen; };
    // Characters that no key of this keyboard has: as the platform hands them on.
    QTest::sendKeyEvent(QTest::Click, box_->window()->windowHandle(), Qt::Key_unknown, typed, Qt::NoModifier);
    Commit(typed);
    QVERIFY(StaysFalse([&] { return !box_->text().isEmpty() || seen > 0; }));
}

void TextBoxTest::AccentedCharactersAreTyped()
{
    QTest::sendKeyEvent(QTest::Click, box_->window()->windowHandle(), Qt::Key_unknown, QStringLiteral("\u00E8"),
                        Qt::NoModifier);
    QTest::sendKeyEvent(QTest::Click, box_->window()->windowHandle(), Qt::Key_unknown, QStringLiteral("\u20AC"),
                        Qt::NoModifier);
    QTRY_COMPARE(box_->text(), QStringLiteral("\u00E8\u20AC"));
    QCOMPARE(box_->Content(), Text("\xE8\x80"));
}

void TextBoxTest::PastedTextIsMadeFit_data()
{
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("entered");
    QTest::newRow("outside the set") << QStringLiteral("a\u2192b") << QStringLiteral("a?b");
    QTest::newRow("line ends and tabulators") << QStringLiteral("a\r\nb\tc") << QStringLiteral("abc");
    QTest::newRow("delete") << QStringLiteral("a\u007Fb") << QStringLiteral("ab");
    QTest::newRow("euro") << QStringLiteral("5 \u20AC") << QStringLiteral("5 \u20AC");
    QTest::newRow("cut once it is clean") << QStringLiteral("a\n\n\n\nbcdefg") << QStringLiteral("abcde");
}

void TextBoxTest::PastedTextIsMadeFit()
{
    QFETCH(QString, pasted);
    QFETCH(QString, entered);
    Paste(pasted);
    QTRY_COMPARE(box_->text(), entered);
}

void TextBoxTest::PasteHasTwoKeys()
{
    QApplication::clipboard()->setText(QStringLiteral("1234567"));
    hand::Key(Qt::Key_Insert, Qt::ShiftModifier);
    QTRY_COMPARE(box_->text(), QStringLiteral("12345"));
}

void TextBoxTest::TheContextMenuPastesByTheSameRules()
{
    QApplication::clipboard()->setText(QStringLiteral("a\u2192\nbcdef"));
    hand::Click(*box_, {20, 10}, Qt::RightButton);
    QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu != nullptr);
    const QList<QAction*> actions = menu->actions();
    const auto paste = std::find_if(actions.begin(), actions.end(), [](const QAction* action) {
        return action->text().startsWith(QStringLiteral("&Incolla"));
    });
    QVERIFY(paste != actions.end());
    hand::Click(*menu, menu->actionGeometry(*paste).center());
    QTRY_COMPARE(box_->text(), QStringLiteral("a?bcd"));
    QCOMPARE(form_->Focused(), QByteArray("txtLimite"));
}

void TextBoxTest::TheMiddleButtonPastesTheSelection()
{
    QClipboard& clipboard = *QApplication::clipboard();
    if (!clipboard.supportsSelection()) {
        // Where there is no such thing, the button does nothing.
        clipboard.setText(QStringLiteral("no"));
        hand::Click(*box_, Qt::MiddleButton);
        QCOMPARE(box_->text(), QString());
        return;
    }
    clipboard.setText(QStringLiteral("x\u2192y\nzabcd"), QClipboard::Selection);
    hand::Click(*box_, Qt::MiddleButton);
    QTRY_COMPARE(box_->text(), QStringLiteral("x?yza"));
}

void TextBoxTest::ADroppedTextIsAPaste()
{
    box_->SetContent("ab");
    QMimeData data;
    data.setText(QStringLiteral("1\u21922\n345"));
    QDragEnterEvent enter({140, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(box_, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop({140, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(box_, &drop);
    QCOMPARE(box_->text(), QStringLiteral("ab1?2"));
}

void TextBoxTest::AnInputMethodTypes()
{
    QByteArray seen;
    box_->KeyPress = [&](int& keyAscii) { seen += static_cast<char>(keyAscii); };
    // Each of its characters counts as a key, and the one outside the set is refused alone.
    Commit(QStringLiteral("a\u2192bcdefg"));
    QCOMPARE(box_->text(), QStringLiteral("abcde"));
    QCOMPARE(seen, QByteArray("abcdefg"));
}

void TextBoxTest::KeyPressSeesCharacters()
{
    QByteArray seen;
    box_->KeyPress = [&](int& keyAscii) { seen += QByteArray::number(keyAscii) + ' '; };
    hand::Type(QStringLiteral("aB7"));
    hand::Key(Qt::Key_Backspace);
    hand::Key(Qt::Key_Left);
    hand::Key(Qt::Key_Delete);
    hand::Key(Qt::Key_Home);
    hand::Key(Qt::Key_Down);
    hand::Key(Qt::Key_Return);
    hand::Key(Qt::Key_Enter);
    hand::Key(Qt::Key_Escape);
    hand::Key(Qt::Key_A, Qt::ControlModifier);
    hand::Key(Qt::Key_Tab);
    QTRY_VERIFY(form_->Focused() != "txtLimite");
    QCOMPARE(seen, QByteArray("97 66 55 8 13 13 27 "));
    QCOMPARE(box_->text(), QStringLiteral("a"));
}

void TextBoxTest::KeyPressMaySwallowACharacter()
{
    box_->KeyPress = [](int& keyAscii) {
        if (keyAscii >= 32 && (keyAscii < '0' || keyAscii > '9')) {
            keyAscii = 0;
        }
    };
    hand::Type(QStringLiteral("1a2-3"));
    QTRY_COMPARE(box_->text(), QStringLiteral("123"));
    box_->KeyPress = [](int& keyAscii) { keyAscii = 0; };
    hand::Key(Qt::Key_Backspace);
    QVERIFY(StaysFalse([this] { return box_->text() != QStringLiteral("123"); }));
}

void TextBoxTest::AClickIsAPressAndAReleaseInside()
{
    int clicks = 0;
    box_->Click = [&] { ++clicks; };
    hand::Click(*box_);
    QTRY_COMPARE(clicks, 1);
    hand::Press(*box_, {10, 10});
    hand::Release(*box_, {10, 60});
    // A release that follows no press of its own.
    hand::Press(*form_->lblFermo, {10, 10});
    hand::Release(*box_, {10, 10});
    QTest::mouseRelease(box_, Qt::LeftButton);
    hand::Click(*box_, Qt::MiddleButton);
    QVERIFY(StaysFalse([&] { return clicks != 1; }));
}

void TextBoxTest::TheTextIsPlain()
{
    form_->txtUno->SetContent("<b>A & B</b>");
    QCOMPARE(form_->txtUno->text(), QStringLiteral("<b>A & B</b>"));
    QCOMPARE(form_->txtUno->Content(), Text("<b>A & B</b>"));
}

ZELVIA_WINDOW_TEST(TextBoxTest)

#include "TextBoxTest.moc"
