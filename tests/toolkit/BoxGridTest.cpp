// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/BoxGrid.h"

#include "core/BoundedArray.h"
#include "core/Messages.h"
#include "support/BoxScript.h"
#include "support/Bytes.h"
#include "support/Hand.h"
#include "support/WindowTest.h"
#include "toolkit/SampleForm.h"

#include <array>

using namespace zelvia;
using namespace zelvia::test;
using zelvia::test::Bytes;
using zelvia::test::RaisedBy;

namespace
{

BoundedArray<i16, 1, 2> minutes;
BoundedArray<Text, 1, 2> names;

constexpr std::array<GridColumn, 2> kColumns = {{
    {"txtMinuti", 2, true, {59, &Messages::kMinutesLimit}, CellFormat::TwoDigits, 200, 50, "minuti", CellOf<minutes>},
    {"txtNome", 6, false, {}, CellFormat::Capitals, 260, 100, "nome", CellOf<names>},
}};

} // namespace

class BoxGridTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void BoxesAreNamed();
    void EnterGoesAlongTheRows();
    void OtherCharactersThanDigitsAreThrownAway();
    void ANumberBeyondTheLimitKeepsTheFocus_data();
    void ANumberBeyondTheLimitKeepsTheFocus();
    void KeysGoAlongTheColumn();
    void F6GoesBesideAndBack();
    void LeavingRewritesTheText();
    void TheSignsComeAndGo();
    void KeysAndChangesAreReported();
    void BoxesAndValues();
    void OtherPlacesAreErrors();

private:
    void Enter(int column, int row, const QString& text);

    std::unique_ptr<SampleForm> form_;
    std::unique_ptr<BoxGrid> grid_;
    std::array<Label*, 2> signs_{};
    int last_ = 0;
    int edited_ = 0;
};

void BoxGridTest::init()
{
    last_ = edited_ = 0;
    form_ = std::make_unique<SampleForm>();
    form_->UnhandledKey = [this](const QKeyEvent& key) { return grid_->MoveByKey(key); };
    for (std::size_t i = 0; i < signs_.size(); ++i) {
        signs_[i] = new Label(form_.get(), QStringLiteral("lblSegni"));
    }
    grid_ = std::make_unique<BoxGrid>(kColumns);
    grid_->signs = {0, ":", " ", [this](int row) { return signs_[static_cast<std::size_t>(row - 1)]; }};
    grid_->Edited = [this] { ++edited_; };
    grid_->LastEntered = [this] { ++last_; };
    form_->txtTre->setEnabled(false);
    grid_->beside = {form_->txtTre, form_->cmdVai};
    grid_->Build(form_.get(), {.rows = 2, .top = 240, .step = 30, .height = 26, .font = form_->font()});
    grid_->Speak(20);
    form_->Open();
    grid_->Box(0, 1)->SetFocus();
    QTRY_COMPARE(form_->Focused(), QByteArray("txtMinuti(1)"));
}

void BoxGridTest::cleanup()
{
    form_.reset();
    grid_.reset();
}

void Press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    hand::Key(key, modifiers);
}

/// Clicks into a box and types over what it holds.
void BoxGridTest::Enter(int column, int row, const QString& text)
{
    TextBox& box = *grid_->Box(column, row);
    hand::Click(box);
    QTRY_VERIFY(box.hasFocus());
    box.selectAll();
    hand::Type(text);
    QTRY_COMPARE(box.text(), text);
}

void BoxGridTest::BoxesAreNamed()
{
    QCOMPARE(grid_->Box(1, 2)->objectName(), QStringLiteral("txtNome(2)"));
    QCOMPARE(grid_->Box(1, 2)->accessibleName(), QStringLiteral("Nome, riga 22"));
    QCOMPARE(grid_->Box(1, 2)->geometry(), QRect(260, 270, 100, 26));
}

void BoxGridTest::EnterGoesAlongTheRows()
{
    for (const char* next : {"txtNome(1)", "txtMinuti(2)", "txtNome(2)"}) {
        QCOMPARE(last_, 0);
        hand::Key(Qt::Key_Return);
        QTRY_COMPARE(form_->Focused(), QByteArray(next));
    }
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(last_, 1);
    QCOMPARE(form_->Focused(), QByteArray("txtNome(2)"));
}

void BoxGridTest::OtherCharactersThanDigitsAreThrownAway()
{
    hand::Type(QStringLiteral("1a2"));
    QTRY_COMPARE(grid_->Box(0, 1)->text(), QStringLiteral("12"));
}

void BoxGridTest::ANumberBeyondTheLimitKeepsTheFocus_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QByteArray>("next");
    const auto row = [](const char* name, Qt::Key key, const char* next, Qt::KeyboardModifiers modifiers = {}) {
        QTest::newRow(name) << key << modifiers << QByteArray(next);
    };
    row("Tab", Qt::Key_Tab, "txtNome(1)");
    row("Enter", Qt::Key_Return, "txtNome(1)");
    row("Down", Qt::Key_Down, "txtMinuti(2)");
    row("Ctrl+End", Qt::Key_End, "txtMinuti(2)", Qt::ControlModifier);
    row("F6", Qt::Key_F6, "cmdVai");
}

void BoxGridTest::ANumberBeyondTheLimitKeepsTheFocus()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QByteArray, next);
    Enter(0, 1, QStringLiteral("60"));
    BoxScript script;
    script.Expect(Messages::kMinutesLimit);
    Press(key, modifiers);
    TRY_SCRIPT(script);
    QTRY_COMPARE(form_->Focused(), QByteArray("txtMinuti(1)"));
    Enter(0, 1, QStringLiteral("59"));
    Press(key, modifiers);
    QTRY_COMPARE(form_->Focused(), next);
    VERIFY_SCRIPT(script);
}

void BoxGridTest::KeysGoAlongTheColumn()
{
    const struct {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        const char* next;
    } steps[] = {
        // In the first row, and in the last, the focus stays.
        {Qt::Key_Up, {}, "txtNome(1)"},
        {Qt::Key_Down, {}, "txtNome(2)"},
        {Qt::Key_Down, {}, "txtNome(2)"},
        {Qt::Key_Up, {}, "txtNome(1)"},
        {Qt::Key_End, Qt::ControlModifier, "txtNome(2)"},
        {Qt::Key_End, Qt::ControlModifier, "txtNome(2)"},
        {Qt::Key_Home, Qt::ControlModifier, "txtNome(1)"},
        // These go along the text of the box.
        {Qt::Key_End, {}, "txtNome(1)"},
        {Qt::Key_Home, {}, "txtNome(1)"},
    };
    Enter(1, 1, QStringLiteral("ABCABC"));
    for (const auto& step : steps) {
        hand::Key(step.key, step.modifiers);
        QTRY_COMPARE(form_->Focused(), QByteArray(step.next));
        QCOMPARE(form_->focusWidget()->objectName().toLatin1(), QByteArray(step.next));
    }
    // Each was left as by Tab, and entered as by Tab.
    QCOMPARE(grid_->Box(1, 1)->text(), QStringLiteral("Abcabc"));
    hand::Key(Qt::Key_Down);
    hand::Key(Qt::Key_Up);
    QTRY_COMPARE(grid_->Box(1, 1)->selectedText(), QStringLiteral("Abcabc"));
}

void BoxGridTest::F6GoesBesideAndBack()
{
    hand::Click(*grid_->Box(1, 2));
    hand::Key(Qt::Key_F6);
    // What is disabled is passed over.
    QTRY_COMPARE(form_->Focused(), QByteArray("cmdVai"));
    hand::Key(Qt::Key_F6);
    QTRY_COMPARE(form_->Focused(), QByteArray("txtNome(2)"));
    // From wherever else, to the box that had the focus last.
    hand::Click(*grid_->Box(0, 1));
    hand::Click(*form_->txtDue);
    hand::Key(Qt::Key_F6);
    QTRY_COMPARE(form_->Focused(), QByteArray("txtMinuti(1)"));
}

void BoxGridTest::LeavingRewritesTheText()
{
    Enter(0, 1, QStringLiteral("5"));
    Enter(1, 1, QStringLiteral("ABCABC"));
    QTRY_COMPARE(grid_->Box(0, 1)->text(), QStringLiteral("05"));
    hand::Key(Qt::Key_Tab);
    QTRY_COMPARE(grid_->Box(1, 1)->text(), QStringLiteral("Abcabc"));
}

void BoxGridTest::TheSignsComeAndGo()
{
    Enter(0, 2, QStringLiteral("7"));
    QTRY_COMPARE(Bytes(signs_[1]->Caption()), QByteArray(":"));
    hand::Key(Qt::Key_Tab);
    QTRY_COMPARE(form_->Focused(), QByteArray("txtNome(2)"));
    QCOMPARE(Bytes(signs_[1]->Caption()), QByteArray(":"));
    Enter(0, 2, QStringLiteral("0"));
    hand::Key(Qt::Key_Tab);
    QTRY_COMPARE(Bytes(signs_[1]->Caption()), QByteArray(" "));
}

void BoxGridTest::KeysAndChangesAreReported()
{
    hand::Type(QStringLiteral("x"));
    QTRY_COMPARE(edited_, 1);
    grid_->Box(0, 1)->SetContent("8");
    QCOMPARE(edited_, 1);
    grid_->Box(0, 1)->selectAll();
    hand::Key(Qt::Key_Delete);
    QTRY_COMPARE(edited_, 2);
}

void BoxGridTest::BoxesAndValues()
{
    grid_->Box(0, 1)->SetContent("07");
    grid_->Box(1, 1)->SetContent("ABC");
    grid_->Store(0, 1, 2);
    grid_->Store(1, 1, 2);
    QVERIFY(minutes[2] == 7);
    QCOMPARE(Bytes(names[2]), QByteArray("ABC"));
    QCOMPARE(Bytes(grid_->Stored(0, 2)), QByteArray("07"));
    QCOMPARE(Bytes(grid_->Stored(1, 2)), QByteArray("ABC"));
    QCOMPARE(Bytes(grid_->Stored(0, 1)), QByteArray());
    grid_->Box(0, 1)->SetContent("7");
    QVERIFY(grid_->Holds(0, 1, 2));
    QVERIFY(!grid_->Holds(0, 1, 1));
    grid_->Box(1, 1)->SetContent("Abc");
    QVERIFY(!grid_->Holds(1, 1, 2));
    grid_->Box(0, 1)->SetContent("32768");
    QCOMPARE(RaisedBy([&] { grid_->Store(0, 1, 2); }), 6);
    QVERIFY(minutes[2] == 7);
}

void BoxGridTest::OtherPlacesAreErrors()
{
    QCOMPARE(RaisedBy([&] { grid_->Box(0, 0); }), 9);
    QCOMPARE(RaisedBy([&] { grid_->Box(0, 3); }), 9);
    QCOMPARE(RaisedBy([&] { grid_->Box(2, 1); }), 9);
    QCOMPARE(RaisedBy([&] { grid_->Stored(0, 3); }), 9);
}

ZELVIA_WINDOW_TEST(BoxGridTest)
#include "BoxGridTest.moc"
