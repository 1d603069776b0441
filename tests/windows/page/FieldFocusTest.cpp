// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The ways out of a field that is open, and what is none: under a window manager each is true input of the display.
#include "core/Conversions.h"
#include "support/DiaryBytes.h"
#include "support/EntryPage.h"
#include "support/OtherProgram.h"
#include "support/WindowTest.h"
#include "windows/routes/FrmDesPercorso.h"

#include <QMenu>
#include <QMenuBar>

namespace zelvia::test
{
namespace
{

/// A field of each kind that is entered in place, and what shows that it is open.
struct Kind {
    const char* name;
    Label* (*value)(const EntryPage&);
    const char* focus;
    const char* shown; ///< A control that shows as long as it is open.
};

const Kind kKinds[] = {
    {"list", [](const EntryPage& page) { return page.Field(5).lblImmis; }, "txtTipo", "lstTipo"},
    {"spins", [](const EntryPage& page) -> Label* { return page->lblImmisMetri; }, "upMetri", "upKM"},
    {"note", [](const EntryPage& page) { return page->notes[4].lbl; }, "txtNote4", "txtNote4"},
    {"splits", [](const EntryPage& page) -> Label* { return page->lblImmisTempoKM; }, "cmdListaKM", "lstListaKM"},
};

enum { List, Spins, Note, Splits };

void AddKinds()
{
    QTest::addColumn<int>("kind");
    for (int i = 0; i < int(std::size(kKinds)); ++i) {
        QTest::newRow(kKinds[i].name) << i;
    }
}

bool IsOpen(const EntryPage& page, int kind)
{
    const auto* control = page->findChild<QWidget*>(QLatin1String(kKinds[kind].shown));
    return control != nullptr && control->isVisible();
}

/// Opens a field and enters something: "ab", one kilometre, or nothing among the splits.
void OpenAndEnter(const EntryPage& page, int kind)
{
    page.Open(*kKinds[kind].value(page));
    QTRY_COMPARE(EntryPage::Focused(), QByteArray(kKinds[kind].focus));
    QTRY_VERIFY(IsOpen(page, kind));
    if (kind == Spins) {
        hand::Click(*page->upKM, {page->upKM->width() / 2, page->upKM->height() / 4});
        QTRY_COMPARE(page->upKM->Value().value(), 1);
    } else if (kind != Splits) {
        hand::Type(QStringLiteral("ab"));
    }
}

/// What the page shows for the field, once something was entered.
QString Entered(const EntryPage& page, int kind)
{
    return kind == Splits ? QString() : kKinds[kind].value(page)->text();
}

QString Expected(int kind)
{
    return kind == Splits ? QString() : kind == Spins ? QStringLiteral("1,000") : QStringLiteral("ab");
}

/// The field is open still, and keys reach it.
void VerifyStillOpen(const EntryPage& page, int kind)
{
    QTRY_COMPARE(EntryPage::Focused(), QByteArray(kKinds[kind].focus));
    QVERIFY(IsOpen(page, kind));
    auto* control = page->findChild<QWidget*>(QLatin1String(kKinds[kind].focus));
    QTRY_VERIFY(control->hasFocus());
    if (kind == List || kind == Note) {
        hand::Type(QStringLiteral("c"));
        QTRY_COMPARE(control->property("text").toString(), QStringLiteral("abc"));
    }
}

/// Brings the arrows of the date up, with the focus where it was at first.
void ShowArrows(const EntryPage& page)
{
    hand::Click(*page->lblData);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("upGiorno"));
    page->FocusSink().SetFocus();
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("pctGiornoAnno"));
}

void StepDate(UpDown& spin, bool up)
{
    hand::Click(spin, {spin.width() / 2, up ? spin.height() / 4 : spin.height() * 3 / 4});
}

/// Chooses an entry of a menu of the bar, with the mouse or by the keys of both names.
void Choose(const EntryPage& page, const char* menu, Qt::Key menuKey, Qt::Key entryKey, bool byKeys)
{
    if (!byKeys) {
        page.Menu(menu, entryKey);
        return;
    }
    auto* opened = page->findChild<QMenu*>(QLatin1String(menu));
    hand::Key(menuKey, Qt::AltModifier);
    QTRY_VERIFY(opened->isVisible());
    QTest::keyClick(opened, entryKey);
}

} // namespace

class FieldFocusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anotherFieldCloses_data() { AddKinds(); }
    void anotherFieldCloses();
    void anotherFieldHasTheHand_data();
    void anotherFieldHasTheHand();
    void tabCloses_data();
    void tabCloses();
    void labelsAndTheBackgroundAreNoWayOut_data();
    void labelsAndTheBackgroundAreNoWayOut();
    void aStepOfTheDateClosesFirst_data();
    void aStepOfTheDateClosesFirst();
    void aStepOfTheDateComputesTheTime();
    void aStepOfTheDateBehindTheBoxesOfAField();
    void aStepOfTheDateWaitsForADescription_data();
    void aStepOfTheDateWaitsForADescription();
    void theArrowsKeepTheirFocus();
    void anotherWindowOfTheProgramCloses_data() { AddKinds(); }
    void anotherWindowOfTheProgramCloses();
    void anotherProgramIsNoWayOut_data() { AddKinds(); }
    void anotherProgramIsNoWayOut();
    void aMenuGivenUpIsNoWayOut_data() { AddKinds(); }
    void aMenuGivenUpIsNoWayOut();
    void aCommandClosesFirst_data();
    void aCommandClosesFirst();
    void saveTakesWhatIsBeingTyped_data();
    void saveTakesWhatIsBeingTyped();
    void fromTheBoxToItsListAndBack();
    void fromAListToAnotherField();
    void aPopUpOverAListIsNoWayOut();
    void aBoxOutOfAClosingField();
    void oneFieldAfterTheOther();
};

void FieldFocusTest::anotherFieldCloses()
{
    QFETCH(int, kind);
    EntryPage page;
    page.Start();
    OpenAndEnter(page, kind);
    // Another one of each kind.
    const int other = kind == Spins ? Note : Spins;
    page.Open(*kKinds[other].value(page));
    QTRY_COMPARE(EntryPage::Focused(), QByteArray(kKinds[other].focus));
    QTRY_VERIFY(!IsOpen(page, kind));
    QVERIFY(IsOpen(page, other));
    QCOMPARE(Entered(page, kind), Expected(kind));
    VERIFY_SCRIPT(page.script);
}

void FieldFocusTest::anotherFieldHasTheHand_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<int>("hands");
    // A note line has no hand of its own. No list covers the second of two.
    const struct {
        const char* first;
        const char* second;
        int hands;
    } rows[] = {{"lblImmisLunghezza", "lblImmisStagione", 15},
                {"lblImmisTipo", "lblImmisMetri", 15},
                {"lblImmisTipo", "lblImmisPeso", 15},
                {"lblImmisMetri", "lblImmisTipo", 15},
                {"lblImmisMetri", "lblImmisOraFine", 15},
                {"lblImmisMetri", "lblImmisTempoKM", 15},
                {"lblImmisTempoKM", "lblImmisMetri", 15},
                {"lblNote4", "lblImmisTipo", 15},
                {"lblImmisTipo", "lblNote4", 0},
                {"lblImmisMetri", "lblNote4", 0}};
    for (const auto& row : rows) {
        QTest::addRow("%s, %s", row.first, row.second)
            << QString::fromLatin1(row.first) << QString::fromLatin1(row.second) << row.hands;
    }
}

void FieldFocusTest::anotherFieldHasTheHand()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QFETCH(int, hands);
    EntryPage page;
    page.Start();
    page.Open(*page->findChild<Label*>(first));
    QTRY_VERIFY(EntryPage::Focused() != "pctGiornoAnno");
    const QByteArray before = EntryPage::Focused();
    page.Open(*page->findChild<Label*>(second));
    QTRY_VERIFY(EntryPage::Focused() != before);
    QCOMPARE(page.Hands(), hands);
    // Closing it takes the hand away.
    page->FocusSink().SetFocus();
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("pctGiornoAnno"));
    QCOMPARE(page.Hands(), 0);
    VERIFY_SCRIPT(page.script);
}

void FieldFocusTest::tabCloses_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("back");
    for (int i = 0; i < int(std::size(kKinds)); ++i) {
        QTest::addRow("%s, back", kKinds[i].name) << i << true;
        // From the box of a list Tab leads into the list, which keeps both open.
        if (i != List) {
            QTest::addRow("%s, on", kKinds[i].name) << i << false;
        }
    }
}

void FieldFocusTest::tabCloses()
{
    QFETCH(int, kind);
    QFETCH(bool, back);
    EntryPage page;
    page.Start();
    OpenAndEnter(page, kind);
    hand::Key(Qt::Key_Tab, back ? Qt::ShiftModifier : Qt::NoModifier);
    QTRY_VERIFY(!IsOpen(page, kind));
    QCOMPARE(Entered(page, kind), Expected(kind));
    QVERIFY(EntryPage::Focused() != kKinds[kind].focus);
    VERIFY_SCRIPT(page.script);
}

void FieldFocusTest::labelsAndTheBackgroundAreNoWayOut_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("where");
    for (int i = 0; i < int(std::size(kKinds)); ++i) {
        for (const char* where : {"lblNomeFile", "lblNumGare", "pctGare", "the background"}) {
            QTest::addRow("%s, %s", kKinds[i].name, where) << i << QString::fromLatin1(where);
        }
    }
}

void FieldFocusTest::labelsAndTheBackgroundAreNoWayOut()
{
    QFETCH(int, kind);
    QFETCH(QString, where);
    EntryPage page;
    page.Start();
    OpenAndEnter(page, kind);
    if (auto* target = page->findChild<QWidget*>(where)) {
        hand::Click(*target);
    } else {
        hand::Click(*page->lblData->parentWidget(), {4, 300});
    }
    VerifyStillOpen(page, kind);
    VERIFY_SCRIPT(page.script);
}

void FieldFocusTest::aStepOfTheDateClosesFirst_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("arrow");
    QTest::addColumn<bool>("up");
    QTest::addColumn<QString>("date");
    const struct {
        const char* arrow;
        bool up;
        const char* date;
    } steps[] = {{"upGiorno", true, "21/05/2026"},
                 {"upGiorno", false, "19/05/2026"},
                 {"upMese", true, "20/06/2026"},
                 {"upMese", false, "20/04/2026"}};
    for (int i = 0; i < int(std::size(kKinds)); ++i) {
        for (const auto& step : steps) {
            QTest::addRow("%s, %s %s", kKinds[i].name, step.arrow, step.up ? "up" : "down")
                << i << QString::fromLatin1(step.arrow) << step.up << QString::fromLatin1(step.date);
        }
    }
}

void FieldFocusTest::aStepOfTheDateClosesFirst()
{
    QFETCH(int, kind);
    QFETCH(QString, arrow);
    QFETCH(bool, up);
    QFETCH(QString, date);
    EntryPage page;
    page.Start();
    ShowArrows(page);
    OpenAndEnter(page, kind);
    StepDate(*page->findChild<UpDown*>(arrow), up);
    QTRY_COMPARE(QString::fromStdString(PlainText(Module1::DataCorrente)), date);
    QVERIFY(!IsOpen(page, kind));
    // What was entered is the value of the day that was left, and of no other one.
    const RecordGiorno& left = Module1::Giorni[140];
    QCOMPARE(left.Tipo, kind == List ? Text("ab") : Text());
    QCOMPARE(left.Km.value(), kind == Spins ? 1 : 0);
    QCOMPARE(left.Note[4], kind == Note ? Text("ab") : Text());
    QCOMPARE(page.Caption("lblImmisTipo"), QString());
    QCOMPARE(page->upKM->Value().value(), 0);
    QCOMPARE(page.Caption("lblNote4"), QString());
    QCOMPARE(page.ListOf(5).contains(QStringLiteral("ab")), kind == List);
    QCOMPARE(EntryPage::Focused(), QByteArray("pctGiornoAnno"));
    VERIFY_SCRIPT(page.script);
}

void FieldFocusTest::aStepOfTheDateComputesTheTime()
{
    EntryPage page;
    page.Start();
    ShowArrows(page);
    page->upKM->SetValue(10);
    page->upOraFine->SetValue(1);
    page.Open(*page->lblImmisOraFine);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("upOraFine"));
    StepDate(*page->upGiorno, true);
    QTRY_VERIFY(Module1::GiornoCorrente == 141);
    QCOMPARE(Module1::Giorni[140].TempoImpiegato, Text("1:00:00"));
    QCOMPARE(Module1::Giorni[140].MediaKm, Text("6:00"));
    QCOMPARE(page.Caption("lblOutTempoImpiegato"), QStringLiteral("0:00:00"));
    VERIFY_SCRIPT(page.script);
}

void FieldFocusTest::aStepOfTheDateBehindTheBoxesOfAField()
{
    EntryPage page;
    page.Start();
    ShowArrows(page);
    page->upKM->SetValue(10);
    page->upOraInizio->SetValue(10);
    page->upOraFine->SetValue(9);
    page.Open(*page->lblImmisOraFine);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("upOraFine"));
    int shown = 0;
    page.script.Expect(Warning(QStringLiteral("L'ORA FINE E' MINORE DELL'ORA INIZIO         ")));
    page.script.Meanwhile([&] { shown = Module1::GiornoCorrente.value(); });
    page.script.Expect(Report(QStringLiteral("MediaKm - ERRORE : 11 Divisione per zero")));
    StepDate(*page->upGiorno, false);
    TRY_SCRIPT(page.script);
    QCOMPARE(shown, 140);
    // One step, however long the boxes kept the arrow from being released.
    QTRY_VERIFY(Module1::GiornoCorrente == 139);
    constexpr int severalRepeats = 800;
    QVERIFY(!QTest::qWaitFor([] { return Module1::GiornoCorrente != 139; }, severalRepeats));
    QCOMPARE(Module1::Giorni[140].TempoImpiegato, Text("-1:00:00"));
}

void FieldFocusTest::aStepOfTheDateWaitsForADescription_data()
{
    QTest::addColumn<QString>("arrow");
    QTest::newRow("day") << "upGiorno";
    QTest::newRow("month") << "upMese";
}

void FieldFocusTest::aStepOfTheDateWaitsForADescription()
{
    QFETCH(QString, arrow);
    EntryPage page;
    page.Start();
    ShowArrows(page);
    page.Open(1);
    page.TypeOver(*page.Field(1).txt, QStringLiteral("Nuova"));
    auto* spin = page->findChild<UpDown*>(arrow);
    StepDate(*spin, true);
    QTRY_VERIFY(page.RouteWindow() != nullptr);
    QCOMPARE(page.RouteWindow()->windowTitle(), QStringLiteral("Percorso : Nuova"));
    QVERIFY(Module1::DataCorrente == CalendarDate(2026, 5, 20));
    QCOMPARE(page.Caption("lblImmisPercorso"), QStringLiteral("Nuova"));
    EntryPage::AwaitFront(*page.RouteWindow());
    page.RouteWindow()->txtKm[1]->SetFocus();
    hand::Type(QStringLiteral("7"));
    page.CloseRouteWindow();
    // The description's total belongs to the day that the route was typed on; then the day moves.
    QCOMPARE(page->upKM->Value().value(), 7);
    QVERIFY(Module1::DataCorrente == CalendarDate(2026, 5, 20));
    StepDate(*spin, true);
    QTRY_VERIFY(Module1::DataCorrente > CalendarDate(2026, 5, 20));
    QCOMPARE(Module1::Giorni[140].Percorso, Text("Nuova"));
    QVERIFY(Module1::Giorni[140].Km == 7);
    VERIFY_SCRIPT(page.script);
}

void FieldFocusTest::theArrowsKeepTheirFocus()
{
    EntryPage page;
    page.Start();
    OpenAndEnter(page, List);
    hand::Click(*page->lblData);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("upGiorno"));
    QTRY_VERIFY(!IsOpen(page, List));
    StepDate(*page->upGiorno, true);
    QTRY_VERIFY(Module1::GiornoCorrente == 141);
    StepDate(*page->upMese, true);
    QTRY_VERIFY(Module1::DataCorrente == CalendarDate(2026, 6, 21));
    QCOMPARE(EntryPage::Focused(), QByteArray("upGiorno"));
    QVERIFY(page->upGiorno->isVisible());
    QVERIFY(page->upMese->isVisible());
    QTRY_VERIFY(page->upGiorno->hasFocus());
    hand::Key(Qt::Key_Down);
    QTRY_VERIFY(Module1::DataCorrente == CalendarDate(2026, 6, 20));
    QCOMPARE(Module1::Giorni[140].Tipo, Text("ab"));
    VERIFY_SCRIPT(page.script);
}

void FieldFocusTest::anotherWindowOfTheProgramCloses()
{
    QFETCH(int, kind);
    EntryPage page;
    page.Start();
    frmInfo info;
    info.show();
    QVERIFY(QTest::qWaitForWindowExposed(&info));
    page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&page.Page()));
    OpenAndEnter(page, kind);
    info.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&info));
    QTRY_VERIFY(!IsOpen(page, kind));
    QCOMPARE(Entered(page, kind), Expected(kind));
    VERIFY_SCRIPT(page.script);
}

void FieldFocusTest::anotherProgramIsNoWayOut()
{
    QFETCH(int, kind);
    EntryPage page;
    page.Start();
    OpenAndEnter(page, kind);
    OtherProgram other(page.Page());
    QVERIFY(IsOpen(page, kind));
    other.ChangeBack();
    VerifyStillOpen(page, kind);
    VERIFY_SCRIPT(page.script);
}

void FieldFocusTest::aMenuGivenUpIsNoWayOut()
{
    QFETCH(int, kind);
    EntryPage page;
    page.Start();
    OpenAndEnter(page, kind);
    auto* bar = page->findChild<QMenuBar*>();
    auto* menu = page->findChild<QMenu*>(QStringLiteral("mnuOpzioni"));
    hand::Click(*bar, bar->actionGeometry(menu->menuAction()).center());
    QTRY_VERIFY(menu->isVisible());
    QVERIFY(IsOpen(page, kind));
    QTest::keyClick(menu, Qt::Key_Escape);
    QTRY_VERIFY(!menu->isVisible());
    // The bar may keep the keys until it is left as well.
    if (bar->hasFocus()) {
        QTest::keyClick(bar, Qt::Key_Escape);
    }
    page.TakeFront();
    VerifyStillOpen(page, kind);
    VERIFY_SCRIPT(page.script);
}

void FieldFocusTest::aCommandClosesFirst_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("byKeys");
    for (int i = 0; i < int(std::size(kKinds)); ++i) {
        QTest::addRow("%s, mouse", kKinds[i].name) << i << false;
        QTest::addRow("%s, keys", kKinds[i].name) << i << true;
    }
}

void FieldFocusTest::aCommandClosesFirst()
{
    QFETCH(int, kind);
    QFETCH(bool, byKeys);
    EntryPage page;
    page.Start();
    OpenAndEnter(page, kind);
    bool open = true;
    QString entered;
    page.script.Expect({QStringLiteral("RIPRISTINARE LE LISTE INIZIALI ?              "), QMessageBox::Information,
                        QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel});
    page.script.Meanwhile([&] {
        open = IsOpen(page, kind);
        entered = Entered(page, kind);
    });
    Choose(page, "mnuOpzioni", Qt::Key_O, Qt::Key_I, byKeys);
    QTRY_VERIFY(!open);
    QCOMPARE(entered, Expected(kind));
    page.TakeFront();
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("pctGiornoAnno"));
    VERIFY_SCRIPT(page.script);
}

void FieldFocusTest::saveTakesWhatIsBeingTyped_data()
{
    aCommandClosesFirst_data();
}

void FieldFocusTest::saveTakesWhatIsBeingTyped()
{
    QFETCH(int, kind);
    QFETCH(bool, byKeys);
    EntryPage page;
    page.Start();
    OpenAndEnter(page, kind);
    if (kind == Splits) {
        page->upTempoKM->SetValue(5);
        page->upTempoMinuti->SetValue(20);
        hand::Click(*page->cmdListaKM);
        QTRY_COMPARE(page->lstListaKM->ListCount(), 1);
    }
    Choose(page, "mnuFile", Qt::Key_F, Qt::Key_S, byKeys);
    DiaryBytes expected = DiaryBytes::Blank(2026);
    expected.Visit(140, QDate(2026, 5, 20));
    switch (kind) {
    case List: expected.SetLine(140, DiaryBytes::Kind, "\"ab\""); break;
    case Spins: expected.SetLine(140, DiaryBytes::Km, "1"); break;
    case Note: expected.SetLine(140, DiaryBytes::Notes + 3, "\"ab\""); break;
    default: expected.SetLine(140, DiaryBytes::Splits, "\"05      00:20:00\""); break;
    }
    QTRY_COMPARE(page.folder.Read(QStringLiteral("ZelviaFile/prova.zlv")), expected.Bytes());
    QCOMPARE(page.folder.Read(QStringLiteral("prova/Tipo.lsx")),
             QByteArray("\"Alfa\"\r\n\"Beta\"\r\n\"Gamma\"\r\n") + (kind == List ? "\"ab\"\r\n" : ""));
    QVERIFY(!IsOpen(page, kind));
    VERIFY_SCRIPT(page.script);
}

void FieldFocusTest::fromTheBoxToItsListAndBack()
{
    EntryPage page;
    page.Start();
    OpenAndEnter(page, List);
    // The row pressed is selected, though closing the box has hidden the list in between and added an entry to it.
    page.ClickRow(*page.Field(5).lst, 1);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("lstTipo"));
    QCOMPARE(page.Field(5).lst->ListIndex(), 1);
    QVERIFY(page.IsOpen(5));
    QCOMPARE(page.Caption("lblImmisTipo"), QStringLiteral("ab"));
    QCOMPARE(page.ListOf(5).constLast(), QStringLiteral("ab"));
    hand::Key(Qt::Key_Tab, Qt::ShiftModifier);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtTipo"));
    QTRY_VERIFY(page.Field(5).txt->hasFocus());
    QVERIFY(page.IsOpen(5));
    QVERIFY(page->ListaAperta == 5);
    hand::Key(Qt::Key_Return);
    QTRY_VERIFY(!page.IsOpen(5));
    QVERIFY(page->ListaAperta == 0);
    VERIFY_SCRIPT(page.script);
}

void FieldFocusTest::fromAListToAnotherField()
{
    EntryPage page;
    page.Start();
    OpenAndEnter(page, List);
    page.ClickRow(*page.Field(5).lst, 0);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("lstTipo"));
    page.Open(2);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtLunghezza"));
    // The list stays with its box; the new field opens as any other.
    QVERIFY(page.IsOpen(5));
    QVERIFY(page.IsOpen(2));
    QVERIFY(page->ListaAperta == 5);
    hand::Key(Qt::Key_Return);
    QTRY_VERIFY(!page.IsOpen(2));
    QVERIFY(page.IsOpen(5));
    QVERIFY(page->ListaAperta == 0);
    VERIFY_SCRIPT(page.script);
}

void FieldFocusTest::aPopUpOverAListIsNoWayOut()
{
    EntryPage page;
    page.Start();
    OpenAndEnter(page, List);
    page.PopUp(*page.Field(5).lst, Qt::Key_Escape);
    VerifyStillOpen(page, List);
    QVERIFY(page.Field(5).lst->isVisible());
    VERIFY_SCRIPT(page.script);
}

void FieldFocusTest::aBoxOutOfAClosingField()
{
    // Leaving the end time brings up two boxes; the field that was clicked is open behind them and stays so.
    EntryPage page;
    page.Start();
    page->upKM->SetValue(10);
    page->upOraInizio->SetValue(10);
    page->upOraFine->SetValue(9);
    page.Open(*page->lblImmisOraFine);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("upOraFine"));
    bool shown = true;
    page.script.Expect(Warning(QStringLiteral("L'ORA FINE E' MINORE DELL'ORA INIZIO         ")));
    page.script.Meanwhile([&] { shown = page->upOraFine->isVisible(); });
    page.script.Expect(Report(QStringLiteral("MediaKm - ERRORE : 11 Divisione per zero")));
    page.Open(5);
    QTRY_VERIFY(!shown);
    QTRY_VERIFY(page->lstListaOrdinata->isVisible());
    page.TakeFront();
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtTipo"));
    QVERIFY(page.IsOpen(5));
    QTRY_VERIFY(page.Field(5).txt->hasFocus());
    hand::Type(QStringLiteral("x"));
    QTRY_COMPARE(page.Field(5).txt->text(), QStringLiteral("x"));
    VERIFY_SCRIPT(page.script);
}

void FieldFocusTest::oneFieldAfterTheOther()
{
    EntryPage page;
    page.Start();
    // In an order in which no list covers the next field.
    for (const int number : {2, 6, 5, 7, 3, 8, 4}) {
        page.Open(number);
        QTRY_VERIFY(page.Field(number).txt->hasFocus());
        hand::Type(QString(QChar(u'a' + number)));
        QTRY_VERIFY(!page.Field(number).txt->text().isEmpty());
    }
    page.Open(*page->notes[3].lbl);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtNote3"));
    for (int number = 2; number <= 8; ++number) {
        QVERIFY(!page.IsOpen(number));
        QCOMPARE(page.Field(number).lblImmis->text(), QString(QChar(u'a' + number)));
    }
    VERIFY_SCRIPT(page.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::FieldFocusTest)

#include "FieldFocusTest.moc"
