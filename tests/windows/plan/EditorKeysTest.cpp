// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// From box to box of the table editor, what a box that refuses holds back, and what it lets through.
#include "support/TableDesk.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
namespace
{

using namespace TableGrid;

const QString kMaxMinutes = QStringLiteral("MAX 59 MINUTI                ");

/// A new table whose minutes of a row can't be left.
void WriteTooManyMinutes(TableDesk& desk, int row)
{
    desk.StartNew();
    desk.Write(desk.Box(Minuti, row), QStringLiteral("75"));
}

/// The box still holds the focus, and refuses to let it go.
void VerifyStillRefuses(TableDesk& desk, int row)
{
    const QByteArray name = "txtMinuti(" + QByteArray::number(row) + ')';
    QTRY_COMPARE(TableDesk::Focused(), name);
    desk.script.Expect(Warning(kMaxMinutes));
    hand::Key(Qt::Key_Tab);
    desk.AwaitBoxes();
    QTRY_COMPARE(TableDesk::Focused(), name);
}

} // namespace

class EditorKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void enterGoesAlongTheRow();
    void typingTakesTheTextsPlace_data();
    void typingTakesTheTextsPlace();
    void theFirstBoxIsReadyToBeTypedOver();
    void enterEndsWithTheGrid();
    void enterGoesAlongTheDate();
    void tabGoesAlongTheRow();
    void keysGoAlongTheColumn();
    void f6GoesToTheButtonsAndBack();
    void keysAlongTheColumnAreRefusedToo_data();
    void keysAlongTheColumnAreRefusedToo();
    void theLimitsThemselvesPass();
    void aRefusedPressDoesNotFire_data();
    void aRefusedPressDoesNotFire();
    void correctedItGoesOn();
    void thePopUpPasses_data();
    void thePopUpPasses();
    void thePageIsFree();
    void theCloseBoxPasses();
    void captionsAndStripsTakeNoFocus();
    void aNumberBeyondAllLimitsIsReported();
};

void EditorKeysTest::enterGoesAlongTheRow()
{
    struct Step {
        const char* box;
        const char* typed;
    };
    const Step steps[] = {{"txtKm(7)", "10"},          {"txtMetri(7)", "5"},          {"txtOre(7)", "1"},
                          {"txtMinuti(7)", "2"},       {"txtSecondi(7)", "3"},        {"txtMediaMinuti(7)", "5"},
                          {"txtMediaSecondi(7)", "7"}, {"txtMediaMillesimi(7)", "9"}, {"txtAndatura(7)", "LENTA"},
                          {"txtFondo(7)", "strada"},   {"txtRipetVolte(7)", "4"},     {"txtRipetDistanza(7)", "1500"},
                          {"txtRipetQuante(7)", "5"},  {"txtRipetTempi(7)", "3"}};
    TableDesk desk;
    desk.StartNew();
    hand::Click(desk.Box(Km, 7));
    for (const Step& step : steps) {
        QTRY_COMPARE(TableDesk::Focused(), QByteArray(step.box));
        hand::Type(QLatin1String(step.typed));
        hand::Key(Qt::Key_Return);
    }
    QTRY_COMPARE(TableDesk::Focused(), QByteArray("txtKm(8)"));
    QCOMPARE(desk.Row(7), QByteArray("10|005|1|02|03|5|07|009|Lenta|strada|4|1.500|5|03"));
    // Empty boxes are passed by as well.
    for (int i = 0; i < kColumns; ++i) {
        hand::Key(Qt::Key_Enter);
    }
    QTRY_COMPARE(TableDesk::Focused(), QByteArray("txtKm(9)"));
    QCOMPARE(desk.Row(8), QByteArray("|||||||||||||"));
    VERIFY_SCRIPT(desk.script);
}

void EditorKeysTest::typingTakesTheTextsPlace_data()
{
    QTest::addColumn<bool>("tab");
    QTest::newRow("Enter") << false;
    QTest::newRow("Tab") << true;
}

void EditorKeysTest::typingTakesTheTextsPlace()
{
    QFETCH(bool, tab);
    TableDesk desk;
    desk.StartNew();
    const char* const old[] = {"3",  "340",   "6",      "34", "34",    "6", "34",
                               "34", "Media", "Strada", "4",  "1.500", "6", "34"};
    for (int column = 0; column < kColumns; ++column) {
        desk.Box(static_cast<Column>(column), 7).SetContent(old[column]);
    }
    // Into the first box from the one before it.
    hand::Click(desk.Box(RipetTempi, 6));
    const Qt::Key onward = tab ? Qt::Key_Tab : Qt::Key_Return;
    for (const char* typed :
         {"21", "120", "1", "50", "5", "5", "5", "500", "Lenta", "Pista", "10", "2000", "1", "59"}) {
        hand::Key(onward);
        hand::Type(QLatin1String(typed));
    }
    hand::Key(onward);
    QTRY_COMPARE(desk.Row(7), QByteArray("21|120|1|50|05|5|05|500|Lenta|Pista|10|2.000|1|59"));
    VERIFY_SCRIPT(desk.script);
}

void EditorKeysTest::theFirstBoxIsReadyToBeTypedOver()
{
    TableDesk desk;
    desk.Start();
    desk.OpenList();
    desk.OpenTable("Base 10 km.tab");
    QTRY_COMPARE(TableDesk::Focused(), QByteArray("txtKm(1)"));
    QCOMPARE(desk.Held(Km, 1), QByteArray("6"));
    hand::Type(QStringLiteral("21"));
    QTRY_COMPARE(desk.Held(Km, 1), QByteArray("21"));
    VERIFY_SCRIPT(desk.script);
}

void EditorKeysTest::enterEndsWithTheGrid()
{
    TableDesk desk;
    desk.StartNew();
    hand::Click(desk.Box(RipetTempi, 30));
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(TableDesk::Focused(), QByteArray("txtKm(31)"));
    desk.Write(desk.Box(RipetTempi, 31), QStringLiteral("7"));
    for (int i = 0; i < 2; ++i) {
        hand::Key(Qt::Key_Return);
        QCOMPARE(TableDesk::Focused(), QByteArray("txtRipetTempi(31)"));
        // Not left, so not rewritten.
        QCOMPARE(desk.Held(RipetTempi, 31), QByteArray("7"));
    }
    desk.Write(desk.Box(RipetTempi, 31), QStringLiteral("60"));
    desk.TryToLeave(desk.Box(RipetTempi, 31), QStringLiteral("MAX 59 SECONDI                "));
}

void EditorKeysTest::enterGoesAlongTheDate()
{
    TableDesk desk;
    desk.StartNew();
    hand::Click(*desk.Editor()->dateBoxes[0]);
    for (const char* box : {"txtGiornoInizio", "txtMeseInizio", "txtAnnoInizio"}) {
        QTRY_COMPARE(TableDesk::Focused(), QByteArray(box));
        hand::Key(Qt::Key_Return);
    }
    QTRY_COMPARE(TableDesk::Focused(), QByteArray("cmdOK"));
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(desk.Enabled(), QByteArray("cmdAttiva"));
    // A button that is switched off takes no focus.
    TableDesk::TabTo("txtAnnoInizio", Qt::ShiftModifier);
    hand::Key(Qt::Key_Return);
    QCOMPARE(TableDesk::Focused(), QByteArray("txtAnnoInizio"));
    VERIFY_SCRIPT(desk.script);
}

void EditorKeysTest::tabGoesAlongTheRow()
{
    TableDesk desk;
    desk.StartNew();
    hand::Click(desk.Box(Km, 30));
    for (int i = 1; i <= 2 * kColumns; ++i) {
        hand::Key(Qt::Key_Tab);
        const QByteArray expected =
            i == 2 * kColumns ? QByteArray("txtGiornoInizio")
                              : desk.Box(static_cast<Column>(i % kColumns), 30 + i / kColumns).objectName().toLatin1();
        QTRY_COMPARE(TableDesk::Focused(), expected);
    }
    VERIFY_SCRIPT(desk.script);
}

void EditorKeysTest::keysGoAlongTheColumn()
{
    const struct {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        const char* next;
    } steps[] = {
        {Qt::Key_Down, {}, "txtFondo(31)"},
        {Qt::Key_Down, {}, "txtFondo(31)"},
        {Qt::Key_Up, {}, "txtFondo(30)"},
        {Qt::Key_Home, Qt::ControlModifier, "txtFondo(1)"},
        {Qt::Key_Up, {}, "txtFondo(1)"},
        {Qt::Key_Down, {}, "txtFondo(2)"},
        {Qt::Key_End, Qt::ControlModifier, "txtFondo(31)"},
    };
    TableDesk desk;
    desk.StartNew();
    desk.Write(desk.Box(Fondo, 30), QStringLiteral("PISTA"));
    for (const auto& step : steps) {
        hand::Key(step.key, step.modifiers);
        QTRY_COMPARE(TableDesk::Focused(), QByteArray(step.next));
    }
    // Leaving wrote the text again, and is no click.
    QCOMPARE(desk.Row(30), QByteArray("|||||||||Pista||||"));
    // The signs of the repetitions come and go as they do on Tab.
    hand::Key(Qt::Key_Tab);
    QTRY_COMPARE(desk.Editor()->StripOf(LblRipetizioni, 31)->text(), QLatin1String(kRepetitionStrip.data()));
    hand::Key(Qt::Key_Up);
    QTRY_COMPARE(TableDesk::Focused(), QByteArray("txtRipetVolte(30)"));
    QCOMPARE(desk.Editor()->StripOf(LblRipetizioni, 31)->text(), QLatin1String(kBlankRepetitionStrip.data()));
    QCOMPARE(desk.Editor()->StripOf(LblRipetizioni, 30)->text(), QLatin1String(kRepetitionStrip.data()));
    VERIFY_SCRIPT(desk.script);
}

void EditorKeysTest::f6GoesToTheButtonsAndBack()
{
    TableDesk desk(CalendarDate(2026, 3, 1));
    desk.SetActive("Base 10 km.tab");
    desk.StartWith("Base 10 km.tab");
    hand::Click(desk.Box(Andatura, 17));
    QTRY_COMPARE(TableDesk::Focused(), QByteArray("txtAndatura(17)"));
    hand::Key(Qt::Key_F6);
    QTRY_COMPARE(TableDesk::Focused(), QByteArray("cmdOK"));
    // From any button, and from the start date, to the box that was left.
    const std::pair<const char*, Qt::KeyboardModifiers> places[] = {
        {"cmdOK", {}}, {"cmdSalva", {}}, {"txtMeseInizio", Qt::ShiftModifier}};
    for (const auto& [place, modifiers] : places) {
        TableDesk::TabTo(place, modifiers);
        hand::Key(Qt::Key_F6);
        QTRY_COMPARE(TableDesk::Focused(), QByteArray("txtAndatura(17)"));
        hand::Key(Qt::Key_F6);
        QTRY_COMPARE(TableDesk::Focused(), QByteArray("cmdOK"));
    }
    VERIFY_SCRIPT(desk.script);

    // A button that can't be pressed is passed over.
    hand::Key(Qt::Key_Return);
    QCOMPARE(desk.Enabled(), QByteArray("cmdOK cmdDisattiva"));
    hand::Click(*desk.Editor()->cmdDisattiva);
    hand::Click(*desk.Editor()->cmdOK);
    QTRY_COMPARE(desk.Enabled(), QByteArray("cmdAttiva"));
    hand::Key(Qt::Key_F6);
    QTRY_COMPARE(TableDesk::Focused(), QByteArray("txtAndatura(17)"));
    hand::Key(Qt::Key_F6);
    QTRY_COMPARE(TableDesk::Focused(), QByteArray("cmdAttiva"));
}

void EditorKeysTest::keysAlongTheColumnAreRefusedToo_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QByteArray>("next");
    const auto row = [](const char* name, Qt::Key key, const char* next, Qt::KeyboardModifiers modifiers = {}) {
        QTest::newRow(name) << key << modifiers << QByteArray(next);
    };
    row("Up", Qt::Key_Up, "txtMinuti(1)");
    row("Down", Qt::Key_Down, "txtMinuti(3)");
    row("Ctrl+Home", Qt::Key_Home, "txtMinuti(1)", Qt::ControlModifier);
    row("Ctrl+End", Qt::Key_End, "txtMinuti(31)", Qt::ControlModifier);
    row("F6", Qt::Key_F6, "cmdOK");
}

void EditorKeysTest::keysAlongTheColumnAreRefusedToo()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QByteArray, next);
    const auto press = [&] { hand::Key(key, modifiers); };
    TableDesk desk;
    WriteTooManyMinutes(desk, 2);
    desk.script.Expect(Warning(kMaxMinutes));
    press();
    desk.AwaitBoxes();
    VerifyStillRefuses(desk, 2);
    desk.Write(desk.Box(Minuti, 2), QStringLiteral("7"));
    press();
    QTRY_COMPARE(TableDesk::Focused(), next);
    QCOMPARE(desk.Held(Minuti, 2), QByteArray("07"));
    VERIFY_SCRIPT(desk.script);
}

void EditorKeysTest::theLimitsThemselvesPass()
{
    TableDesk desk;
    desk.StartNew();
    hand::Click(desk.Box(Km, 1));
    for (const char* highest :
         {"99", "999", "24", "59", "59", "60", "59", "999", "Lenta", "Strada", "99", "9999", "60", "59"}) {
        hand::Type(QLatin1String(highest));
        hand::Key(Qt::Key_Return);
    }
    QTRY_COMPARE(TableDesk::Focused(), QByteArray("txtKm(2)"));
    QCOMPARE(desk.Row(1), QByteArray("99|999|24|59|59|60|59|999|Lenta|Strada|99|9.999|60|59"));
    VERIFY_SCRIPT(desk.script);
}

void EditorKeysTest::aRefusedPressDoesNotFire_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<bool>("active");
    for (const char* button : {"cmdOK", "cmdCalcoloMedie", "cmdSalva", "cmdStampa", "cmdEsci"}) {
        QTest::newRow(button) << QByteArray(button) << false;
    }
    QTest::newRow("cmdDisattiva") << QByteArray("cmdDisattiva") << true;
}

void EditorKeysTest::aRefusedPressDoesNotFire()
{
    QFETCH(QByteArray, button);
    QFETCH(bool, active);
    TableDesk desk(CalendarDate(2026, 3, 1));
    if (active) {
        desk.SetActive("Base 10 km.tab");
    }
    desk.StartWith("Base 10 km.tab");
    // A distance and a time alone: the calculation would find the average.
    desk.Write(desk.Box(Km, 3), QStringLiteral("8"));
    desk.Write(desk.Box(Minuti, 3), QStringLiteral("75"));
    const QByteArray enabled = desk.Enabled();
    // The button is pressed once more when it already was in vain.
    for (int i = 0; i < 2; ++i) {
        desk.script.Expect(Warning(kMaxMinutes));
        hand::Click(*desk.Editor()->findChild<Button*>(QLatin1String(button)));
        desk.AwaitBoxes();
        QTRY_COMPARE(TableDesk::Focused(), QByteArray("txtMinuti(3)"));
    }
    QVERIFY(desk.Editor() != nullptr);
    QCOMPARE(desk.Row(3), QByteArray("8|||75||||||||||"));
    QCOMPARE(desk.Enabled(), enabled);
    QCOMPARE(desk.GridBack(), kGrey);
    QCOMPARE(desk.Nometab(), active ? desk.Pointer("Base 10 km.tab") : kNoPointer);
    QVERIFY(desk.ReadTable("Base 10 km.tab") == SampleFile(QStringLiteral("prova/Base 10 km.tab")));
    VERIFY_SCRIPT(desk.script);
}

void EditorKeysTest::correctedItGoesOn()
{
    TableDesk desk;
    WriteTooManyMinutes(desk, 2);
    VerifyStillRefuses(desk, 2);
    hand::Key(Qt::Key_End);
    hand::Key(Qt::Key_Backspace);
    hand::Click(*desk.Editor()->cmdOK);
    QTRY_COMPARE(desk.Enabled(), QByteArray("cmdAttiva"));
    QCOMPARE(desk.Held(Minuti, 2), QByteArray("07"));
    VERIFY_SCRIPT(desk.script);
}

void EditorKeysTest::thePopUpPasses_data()
{
    QTest::addColumn<int>("chosen");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("row");
    QTest::newRow("left without a choice") << 1 << int{Qt::Key_Escape} << 2;
    QTest::newRow("a row inserted above") << 1 << int{Qt::Key_I} << 3;
    QTest::newRow("a row deleted above") << 1 << int{Qt::Key_E} << 1;
    QTest::newRow("a row inserted below") << 4 << int{Qt::Key_I} << 2;
    QTest::newRow("a row deleted below") << 4 << int{Qt::Key_E} << 2;
}

void EditorKeysTest::thePopUpPasses()
{
    QFETCH(int, chosen);
    QFETCH(int, key);
    QFETCH(int, row);
    TableDesk desk;
    WriteTooManyMinutes(desk, 2);
    (void)desk.RowMenu(chosen, static_cast<Qt::Key>(key));
    VERIFY_SCRIPT(desk.script);
    for (int i = 1; i <= 5; ++i) {
        QCOMPARE(desk.Held(Minuti, i), QByteArray(i == row ? "75" : ""));
    }
    // The focus is where it was, and so is the refusal when the number is still too high.
    if (row == 2) {
        VerifyStillRefuses(desk, 2);
    } else {
        QTRY_COMPARE(TableDesk::Focused(), QByteArray("txtMinuti(2)"));
        hand::Key(Qt::Key_Tab);
        QTRY_COMPARE(TableDesk::Focused(), QByteArray("txtSecondi(2)"));
        VERIFY_SCRIPT(desk.script);
    }
}

void EditorKeysTest::thePageIsFree()
{
    TableDesk desk;
    WriteTooManyMinutes(desk, 2);
    const int slot = Module1::GiornoCorrente.value();
    TableDesk::ToFront(desk.Page());
    desk.Up(*desk->upGiorno);
    QCOMPARE(int{Module1::GiornoCorrente.value()}, slot + 1);
    desk.Menu("mnuTabelle", Qt::Key_A);
    QVERIFY(QTest::qWaitForWindowActive(desk.List()));
    VERIFY_SCRIPT(desk.script);

    TableDesk::ToFront(*desk.Editor());
    QCOMPARE(desk.Held(Minuti, 2), QByteArray("75"));
    VerifyStillRefuses(desk, 2);
}

void EditorKeysTest::theCloseBoxPasses()
{
    TableDesk desk;
    WriteTooManyMinutes(desk, 2);
    const QStringList files = desk.folder.Files();
    desk.CloseEditor();
    QVERIFY(desk.Editor() == nullptr);
    QCOMPARE(desk.folder.Files(), files);
    VERIFY_SCRIPT(desk.script);
}

void EditorKeysTest::captionsAndStripsTakeNoFocus()
{
    TableDesk desk;
    WriteTooManyMinutes(desk, 2);
    hand::Click(*desk.Editor()->lblGiorni[4]);
    hand::Click(*desk.Editor()->lblGiorni[4], Qt::MiddleButton);
    const Label& strip = *desk.Editor()->StripOf(LblTempi, 5);
    hand::Click(*desk.Editor()->StripOf(LblTempi, 5), QPoint(strip.width() - 1, strip.height() / 2));
    hand::Click(*desk.Editor()->findChild<Label*>(QStringLiteral("lblGiorno")));
    QVERIFY(QApplication::activePopupWidget() == nullptr);
    QCOMPARE(desk.GridBack(), kGrey);
    QVERIFY(desk.Editor()->RigaSelezionata == 0);
    VERIFY_SCRIPT(desk.script);
    VerifyStillRefuses(desk, 2);
}

void EditorKeysTest::aNumberBeyondAllLimitsIsReported()
{
    // The pop-up reads the rows above the chosen one with what no move of the focus would have let through.
    TableDesk desk;
    desk.StartNew();
    desk.Write(desk.Box(Km, 2), QStringLiteral("8"));
    desk.Write(desk.Box(Andatura, 1), QStringLiteral("Lento"));
    desk.Write(desk.Box(Fondo, 1), QStringLiteral("Erba"));
    desk.Write(desk.Box(RipetVolte, 1), QStringLiteral("5"));
    desk.Write(desk.Box(RipetQuante, 1), QStringLiteral("2"));
    desk.Write(desk.Box(RipetDistanza, 1), QStringLiteral("40000"));
    desk.script.Expect(Report(QStringLiteral("AssegnaTab - ERRORE : 6 Numero oltre i limiti")));
    (void)desk.RowMenu(2, Qt::Key_I);
    desk.AwaitBoxes();
    // The columns before the distance were taken, nothing from it on; the other rows were still moved.
    QTRY_COMPARE(desk.Row(1), QByteArray("||||||||Lento|Erba|5|||"));
    QTRY_COMPARE(desk.Row(3), QByteArray("8|||||||||||||"));
    QCOMPARE(desk.Row(2), QByteArray("|||||||||||||"));
    QVERIFY(desk.Editor()->TabellaModificata == 1);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::EditorKeysTest)
#include "EditorKeysTest.moc"
