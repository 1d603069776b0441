// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Bad input to the fields of the day page.
#include "boxes/BoxHand.h"
#include "diary/Module1.h"
#include "support/Bytes.h"
#include "support/DiaryBytes.h"
#include "support/WindowTest.h"
#include "windows/routes/FrmDesPercorso.h"

#include <QMenuBar>

namespace zelvia::test
{
namespace
{

constexpr int kFirstSlot = 140;
constexpr int kRoute = 1;
constexpr int kListLimit = 22;
constexpr int kNoteLimit = 32;

struct ListRow {
    const char* box;
    const char* list;
    Text RecordGiorno::*field;
    int line;         ///< Of a day in the diary.
    const char* file; ///< Of the list, none for the season.
};

const ListRow kLists[] = {
    {"txtPercorso", "lstPercorso", &RecordGiorno::Percorso, 3, "prova/Percorso.lsx"},
    {"txtLunghezza", "lstLunghezza", &RecordGiorno::Lunghezza, 4, "prova/Lunghezza.lsx"},
    {"txtModo", "lstModo", &RecordGiorno::Modo, 7, "prova/Modo.lsx"},
    {"txtFondo", "lstFondo", &RecordGiorno::Fondo, 8, "prova/Fondo.lsx"},
    {"txtTipo", "lstTipo", &RecordGiorno::Tipo, 9, "prova/Tipo.lsx"},
    {"txtStagione", "lstStagione", &RecordGiorno::Stagione, 118, nullptr},
    {"txtTempoAtm", "lstTempoAtm", &RecordGiorno::TempoAtm, 119, "prova/TempoAtm.lsx"},
    {"txtTemperatura", "lstTemperatura", &RecordGiorno::Temperatura, 120, "prova/Temperatura.lsx"},
};

/// A spin control, its highest value, and the line of a day that holds it; 0 for one that is in no day.
struct SpinRow {
    const char* name;
    int maximum;
    int line;
};

const SpinRow kSpins[] = {
    {"upKM", 500, 5},
    // With the single metres.
    {"upMetri", 990, 0},
    {"upMetro", 9, 0},
    {"upOraInizio", 24, 10},
    {"upMinutiInizio", 59, 11},
    {"upSecondiInizio", 59, 12},
    {"upOraFine", 24, 13},
    {"upMinutiFine", 59, 14},
    {"upSecondiFine", 59, 15},
    {"upCorridori", 100000, 121},
    {"upPeso", 150, 122},
    {"upRipetizioni", 99, 123},
    {"upRipetizioniDistanza", 10000, 124},
    {"upRipetizioniQuante", 60, 125},
    {"upRipetizioniTempi", 59, 126},
    {"upTempoKM", 100, 0},
    {"upTempoOre", 24, 0},
    {"upTempoMinuti", 59, 0},
    {"upTempoSecondi", 59, 0},
};

/// What opens each group of them.
const char* const kOpeners[] = {"lblImmisMetri",        "lblImmisOraInizio",      "lblImmisOraFine",
                                "lblImmisCorridori",    "lblImmisPeso",           "lblRipetizioniVolte",
                                "lblRipetizioniQuante", "lblRipetizioniDistanza", "lblImmisTempoKM"};

/// The entries of the bar's menus, and the window that each opens.
const std::pair<const char*, const char*> kEntries[] = {
    {"mnuFileNuovo", nullptr},
    {"mnuFileOpen", nullptr},
    {"mnuFileSave", nullptr},
    {"mnuFileSaveAs", nullptr},
    {"mnuFilePrint", nullptr},
    {"mnuFileExit", nullptr},
    {"mnuNote", nullptr},
    {"mnuAzzeraGiorno", nullptr},
    {"mnuListaPrecedente", nullptr},
    {"mnuListaIniziale", nullptr},
    {"mnuAllenamenti", "frmTabAllenamenti"},
    {"mnuGare", "frmCalendario"},
    {"mnuMedie", "frmRicercheStatistiche"},
    {"mnuPercorso", "frmStatistiche1"},
    {"mnuLunghezza", "frmStatistiche1"},
    {"mnuKm", "frmStatistiche1"},
    {"mnuAndatura", "frmStatistiche1"},
    {"mnuFondo", "frmStatistiche1"},
    {"mnuTipo", "frmStatistiche1"},
    {"mnuStagione", "frmStatistiche1"},
    {"mnuMeteo", "frmStatistiche1"},
    {"mnuTemperatura", "frmStatistiche1"},
    {"mnuCorridori", "frmStatistiche1"},
    {"mnuPeso", "frmStatistiche1"},
    {"mnuRipetizioni", "frmStatistiche1"},
    {"mnuHelpContents", "HelpWindow"},
    {"mnuHelpSearchForHelpOn", "HelpWindow"},
    {"mnuHelpAbout", "frmInfo"},
};

UpDown& Spin(const EntryPage& page, const char* name)
{
    return *page->findChild<UpDown*>(QLatin1String(name));
}

QList<int> SpinValues(const EntryPage& page)
{
    QList<int> values;
    for (const SpinRow& row : kSpins) {
        values << Spin(page, row.name).Value().value();
    }
    return values;
}

QString Trimmed(const QString& text)
{
    return text.trimmed();
}

void Save(const EntryPage& page)
{
    Module1::FileModificato = 1;
    page.Menu("mnuFile", Qt::Key_S);
    QTRY_VERIFY(Module1::FileModificato == 0);
}

/// The diary as it was written.
DiaryBytes Written(const EntryPage& page)
{
    return DiaryBytes(page.folder.Read(QStringLiteral("ZelviaFile/prova.zlv")));
}

/// Closes a window that the page opened, and takes the page to the front again.
void CloseOther(const EntryPage& page, const QByteArray& name)
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->objectName().toLatin1() == name) {
            const QPointer<QWidget> watched = window;
            window->close();
            QTRY_VERIFY(watched.isNull() || !watched->isVisible());
        }
    }
    page->raise();
    page->activateWindow();
    page.TakeFront();
}

} // namespace

class PageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyBoxHasItsRow();
    void everyWindowOfTheMenusIsKnown();
    void lists_data();
    void lists();
    void notes_data();
    void notes();
    void doubleQuotesInANote();
    void keysThatAreNoneOfASpin_data();
    void keysThatAreNoneOfASpin();
    void allAtTheirLimits();
    void keysThatAreNoneOfAList_data();
    void keysThatAreNoneOfAList();
    void keysThatAreNoneOfTheSplitsAndTimes();
};

void PageTest::everyBoxHasItsRow()
{
    EntryPage page;
    page.Start();
    QByteArrayList named{Counted("lstListaKM", 1), Counted("lstListaOrdinata", 1), Counted("upGiorno", 1),
                         Counted("upMese", 1)};
    for (const ListRow& row : kLists) {
        named << Counted(row.box, 1) << Counted(row.list, 1);
    }
    for (const SpinRow& row : kSpins) {
        named << Counted(row.name, 1);
    }
    for (int line = 3; line <= 10; ++line) {
        named << Counted("txtNote" + QByteArray::number(line), 1);
    }
    QCOMPARE(BoxesOf(page.Page()), Sorted(named));
    QCOMPARE(
        BoxesOfOtherLength(page.Page(),
                           [](const QByteArray& name) { return name.startsWith("txtNote") ? kNoteLimit : kListLimit; }),
        QByteArrayList());
    VERIFY_SCRIPT(page.script);
}

void PageTest::everyWindowOfTheMenusIsKnown()
{
    EntryPage page;
    page.folder.Write(QStringLiteral("Guida.hlp"), GuideBytes());
    page.Start();
    QByteArrayList entries;
    QByteArrayList named;
    for (const QAction* action : page->findChildren<QAction*>()) {
        const auto* menu = qobject_cast<const QMenu*>(action->parent());
        const bool ofTheBar = menu != nullptr && menu->objectName() != QLatin1String("mnuCancelladallaLista") &&
                              action->menu() == nullptr && !action->isSeparator();
        if (ofTheBar) {
            entries << action->objectName().toLatin1();
        }
    }
    for (const auto& [entry, window] : kEntries) {
        named << entry;
    }
    QCOMPARE(Sorted(entries), Sorted(named));
    for (const auto& [entry, window] : kEntries) {
        if (window == nullptr) {
            continue;
        }
        page->findChild<QAction*>(QLatin1String(entry))->trigger();
        const auto opened = [] {
            QByteArrayList names;
            for (const QWidget* widget : QApplication::topLevelWidgets()) {
                if (widget->isVisible() && widget->objectName() != QLatin1String("frmMain")) {
                    names << widget->objectName().toLatin1();
                }
            }
            return names;
        };
        QTRY_COMPARE(opened(), QByteArrayList{window});
        CloseOther(page, window);
    }
    VERIFY_SCRIPT(page.script);
}

void PageTest::lists_data()
{
    QTest::addColumn<int>("number");
    for (int i = 0; i < int(std::size(kLists)); ++i) {
        QTest::newRow(kLists[i].box) << i + 1;
    }
}

void PageTest::lists()
{
    QFETCH(int, number);
    const ListRow& row = kLists[number - 1];
    EntryPage page;
    page.Start();
    const ListControls& field = page.Field(number);
    QStringList entries = EntryPage::Entries(number);
    int slot = kFirstSlot;
    for (const BadInput& input : TextInputs()) {
        page.Open(number);
        QTRY_COMPARE(EntryPage::Focused(), QByteArray(row.box));
        EnterInto(*field.txt, input);
        QTRY_COMPARE(field.txt->text(), Shown(input, kListLimit));
        const QString left = Trimmed(Shown(input, kListLimit));
        hand::Key(Qt::Key_Return);
        QTRY_VERIFY2(!page.IsOpen(number), input.name);
        if (!left.isEmpty()) {
            entries << left;
            if (number == kRoute) {
                page.CloseRouteWindow();
            }
        }
        QTRY_COMPARE(field.lblImmis->text(), left);
        QCOMPARE(page.ListOf(number), entries);
        // The date goes on, and the day keeps its text.
        page.Up(*page->upGiorno);
        QVERIFY(Module1::GiornoCorrente == slot + 1);
        QCOMPARE(Module1::Giorni[slot].*row.field, FromQString(left));
        ++slot;
    }
    Save(page);
    const DiaryBytes written = Written(page);
    QVERIFY(written.Complete());
    slot = kFirstSlot;
    for (const BadInput& input : TextInputs()) {
        const Text held = FromQString(Trimmed(Shown(input, kListLimit)));
        QCOMPARE(written.Line(slot, row.line), '"' + Bytes(held) + '"');
        ++slot;
    }
    if (row.file != nullptr) {
        QByteArray lines;
        for (const QString& entry : entries) {
            lines += '"' + Bytes(FromQString(entry)) + "\"\r\n";
        }
        CompareFile(page.folder.Read(QLatin1String(row.file)), lines);
    }
    // Read back it is the same.
    const Text route = Module1::Giorni[kFirstSlot + 1].*row.field;
    Module1::AzzeraAnno();
    Module1::CaricaDiario(page.folder.System(QStringLiteral("ZelviaFile/prova.zlv")));
    QCOMPARE(Module1::Giorni[kFirstSlot + 1].*row.field, route);
    VERIFY_SCRIPT(page.script);
}

void PageTest::notes_data()
{
    QTest::addColumn<int>("line");
    for (int line = 3; line <= 10; ++line) {
        QTest::addRow("txtNote%d", line) << line;
    }
}

void PageTest::notes()
{
    QFETCH(int, line);
    EntryPage page;
    page.Start();
    const NoteControls& note = page->notes[line];
    int slot = kFirstSlot;
    for (const BadInput& input : TextInputs()) {
        page.Open(*note.lbl);
        QTRY_COMPARE(EntryPage::Focused(), note.txt->objectName().toLatin1());
        EnterInto(*note.txt, input);
        QTRY_COMPARE(note.txt->text(), Shown(input, kNoteLimit));
        hand::Key(Qt::Key_Escape);
        QTRY_VERIFY2(!note.txt->isVisible(), input.name);
        QTRY_COMPARE(note.lbl->text(), Shown(input, kNoteLimit));
        page.Up(*page->upGiorno);
        QVERIFY(Module1::GiornoCorrente == slot + 1);
        ++slot;
    }
    Save(page);
    Module1::AzzeraAnno();
    Module1::CaricaDiario(page.folder.System(QStringLiteral("ZelviaFile/prova.zlv")));
    const DiaryBytes written = Written(page);
    slot = kFirstSlot;
    for (const BadInput& input : TextInputs()) {
        const Text held = FromQString(Shown(input, kNoteLimit));
        QCOMPARE(written.Line(slot, DiaryBytes::Notes + line - 1), '"' + Bytes(held) + '"');
        QCOMPARE(Module1::Giorni[slot].Note[line], held);
        ++slot;
    }
    VERIFY_SCRIPT(page.script);
}

/// A file can't hold them: what was typed is written unchanged, and reading it ends after that day.
void PageTest::doubleQuotesInANote()
{
    constexpr int line = 4;
    const QString typed = QStringLiteral("dice \"ciao\" a tutti");
    EntryPage page;
    page.Start();
    const NoteControls& note = page->notes[line];
    page.Open(*note.lbl);
    QTRY_COMPARE(EntryPage::Focused(), note.txt->objectName().toLatin1());
    hand::Type(typed);
    QTRY_COMPARE(note.txt->text(), typed);
    hand::Key(Qt::Key_Escape);
    QTRY_COMPARE(note.lbl->text(), typed);
    Save(page);
    QCOMPARE(Written(page).Line(kFirstSlot, DiaryBytes::Notes + line - 1), '"' + typed.toLatin1() + '"');

    // The days after it keep what they hold.
    Module1::Giorni[kFirstSlot + 1].Km = 6;
    const QString name = QStringLiteral("prova.zlv");
    page.script.Expect(page.OpenDialog(name, name));
    page.script.Expect(Report(QStringLiteral("**ERRORE : 13 Tipo non corrispondente")));
    page.Menu("mnuFile", Qt::Key_A);
    VERIFY_SCRIPT(page.script);
    QVERIFY(Module1::GiornoCorrente == kFirstSlot);
    QCOMPARE(note.lbl->text(), QStringLiteral("dice "));
    QCOMPARE(page->notes[line + 1].lbl->text(), QStringLiteral("ciao\" a tutti\""));
    page.Up(*page->upGiorno);
    QCOMPARE(page->upKM->Value().value(), 6);
    VERIFY_SCRIPT(page.script);
}

void PageTest::keysThatAreNoneOfASpin_data()
{
    QTest::addColumn<QString>("opener");
    for (const char* opener : kOpeners) {
        QTest::newRow(opener) << QString::fromLatin1(opener);
    }
}

void PageTest::keysThatAreNoneOfASpin()
{
    QFETCH(QString, opener);
    EntryPage page;
    page.Start();
    auto& label = *page->findChild<Label*>(opener);
    const QList<int> before = SpinValues(page);
    const QString caption = label.text();
    page.Open(label);
    QTRY_VERIFY(EntryPage::Focused() != "pctGiornoAnno");
    const QByteArray focused = EntryPage::Focused();
    // All but digits, which set it.
    PressForeignKeys(QStringLiteral("z-,.e+"));
    QCOMPARE(SpinValues(page), before);
    QCOMPARE(EntryPage::Focused(), focused);
    QCOMPARE(label.text(), caption);
    // The arrow keys go on as ever.
    hand::Key(Qt::Key_Up);
    QTRY_VERIFY(SpinValues(page) != before);
    VERIFY_SCRIPT(page.script);
}

void PageTest::allAtTheirLimits()
{
    EntryPage page;
    page.Start();
    for (const SpinRow& row : kSpins) {
        Spin(page, row.name).SetValue(row.maximum);
    }
    // The tens of metres put the single ones back to 0.
    Spin(page, "upMetro").SetValue(9);
    for (const SpinRow& row : kSpins) {
        page.Up(Spin(page, row.name));
        QCOMPARE(Spin(page, row.name).Value().value(), row.maximum);
    }
    QCOMPARE(page.Caption("lblImmisMetri"), QStringLiteral("500,999"));
    page.Up(*page->upGiorno);
    Save(page);
    const DiaryBytes written = Written(page);
    for (const SpinRow& row : kSpins) {
        if (row.line != 0) {
            QCOMPARE(written.Line(kFirstSlot, row.line), QByteArray::number(row.maximum));
        }
    }
    QCOMPARE(written.Line(kFirstSlot, DiaryBytes::Metres), QByteArray("999"));
    // Shown again nothing has changed.
    page.Down(*page->upGiorno);
    QVERIFY(Module1::GiornoCorrente == kFirstSlot);
    QCOMPARE(page.Caption("lblImmisMetri"), QStringLiteral("500,999"));
    QCOMPARE(page.Caption("lblImmisCorridori"), QStringLiteral("100000"));
    QCOMPARE(page.Caption("lblImmisOraFine"), QStringLiteral("24:59:59"));
    page.Up(*page->upGiorno);
    QVERIFY(Module1::FileModificato == 0);
    VERIFY_SCRIPT(page.script);
}

void PageTest::keysThatAreNoneOfAList_data()
{
    QTest::addColumn<int>("number");
    for (int i = 0; i < int(std::size(kLists)); ++i) {
        QTest::newRow(kLists[i].list) << i + 1;
    }
}

void PageTest::keysThatAreNoneOfAList()
{
    QFETCH(int, number);
    EntryPage page;
    page.Start();
    page.Open(number);
    ListBox& list = *page.Field(number).lst;
    page.ClickRow(list, 1);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray(kLists[number - 1].list));
    QCOMPARE(list.ListIndex(), 1);
    PressForeignKeys();
    QCOMPARE(page.ListOf(number), EntryPage::Entries(number));
    QVERIFY(list.findChild<QLineEdit*>() == nullptr);
    QVERIFY(page.IsOpen(number));
    QCOMPARE(page.Field(number).txt->text(), QString());
    page.ClickRow(list, 1);
    hand::Key(Qt::Key_Return);
    QTRY_VERIFY(!page.IsOpen(number));
    QCOMPARE(page.Field(number).lblImmis->text(), EntryPage::Entries(number)[1]);
    VERIFY_SCRIPT(page.script);
}

void PageTest::keysThatAreNoneOfTheSplitsAndTimes()
{
    EntryPage page;
    page.Start();
    page->lstListaKM->AddItem("01      00:05:00");
    page.Open(*page->lblImmisTempoKM);
    QTRY_VERIFY(page->lstListaKM->isVisible());
    PressForeignKeys(QStringLiteral("z-,.e+"));
    QCOMPARE(page->lstListaKM->ListCount(), 1);
    QCOMPARE(page->lstListaKM->List(0), Text("01      00:05:00"));

    // The sorted list of a route's times.
    page.Field(kRoute).lblImmis->SetCaption("Alfa");
    page->upKM->SetValue(10);
    page->upMinutiFine->SetValue(50);
    page.Open(*page->lblImmisMetri);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("upMetri"));
    page.Open(*page->lblImmisMetri);
    QTRY_VERIFY(page->lstListaOrdinata->isVisible());
    const std::vector<Text> lines = page->lstListaOrdinata->Items();
    QCOMPARE(lines.size(), std::size_t(1));
    page.ClickRow(*page->lstListaOrdinata, 0);
    PressForeignKeys();
    QVERIFY(page->lstListaOrdinata->Items() == lines);
    hand::Key(Qt::Key_Escape);
    QTRY_VERIFY(!page->lstListaOrdinata->isVisible());
    page.Up(*page->upGiorno);
    QVERIFY(Module1::GiornoCorrente == kFirstSlot + 1);
    QCOMPARE(Module1::Giorni[kFirstSlot].ListaKm[0], Text("01      00:05:00"));
    VERIFY_SCRIPT(page.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::PageTest)
#include "PageTest.moc"
