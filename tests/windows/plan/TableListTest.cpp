// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The list of the training tables: what it shows, opens and deletes.
#include "support/PlanDesk.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
namespace
{

const QString kChoose = QStringLiteral("SELEZIONARE UNA TABELLA       ");
const QDate kStart(2026, 5, 20);

/// Two tables, whose first rows ask for 7 and for 8 km from today on.
void PutTwoTables(const PlanDesk& desk)
{
    desk.PutTable(QStringLiteral("Alfa.tab"), TableBytes(kStart).SetRow(1, "7"));
    desk.PutTable(QStringLiteral("Beta.tab"), TableBytes(kStart).SetRow(1, "8"));
}

QByteArray SelectedEntry(const PlanDesk& desk)
{
    const ListBox& list = *desk.List()->flbListaTabelle;
    return QByteArray::fromStdString(list.List(list.ListIndex()));
}

const QByteArray kBlankRow = "|||||||||||||";

} // namespace

class TableListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void captions();
    void listsTheTablesWhateverTheCase();
    void anEmptyFolder();
    void nothingSelected_data();
    void nothingSelected();
    void theActiveTableIsSelected_data();
    void theActiveTableIsSelected();
    void opensTheTableSelected_data();
    void opensTheTableSelected();
    void anEntryOpensAtOnce_data();
    void anEntryOpensAtOnce();
    void deletes_data();
    void deletes();
    void deletesTheActiveTableInOtherLetters();
    void deletingWhatHasGone_data();
    void deletingWhatHasGone();
    void thePanelAfterADeletion();
    void aSavedTableAppears();
    void theEditorsEndSelectsTheActiveTable();
    void theEditorLoadsAListThatWasClosed();
    void openedAgainItComesToTheFront();
    void openedAgainItShowsWhatIsThere();
    void openedAgainWithoutAFolder();
    void anotherDiaryHasOtherTables_data();
    void anotherDiaryHasOtherTables();
    void aNewDiaryHasNone();
    void anOpenEditorKeepsItsTable();
    void aTableThatWaitedForTheEditorHasGone();
    void theFolderHasGone();
    void theFolderGoesMeanwhile();
    void theProgramEndsWithItsWindows();
};

void TableListTest::captions()
{
    PlanDesk desk;
    desk.Begin();
    desk.OpenList();
    QCOMPARE(desk.List()->windowTitle(), QStringLiteral("Lista Tabelle Allenamenti"));
    QCOMPARE(desk.List()->cmdOK->text(), QStringLiteral("          O K         "));
    QCOMPARE(desk.List()->cmdNuovaTab->text(), QStringLiteral("Nuova Tabella"));
    QCOMPARE(desk.List()->cmdCancellaTab->text(), QStringLiteral("Cancella Tabella"));
    QCOMPARE(desk.List()->cmdEsci->text(), QStringLiteral("Esci"));
    const QPointer<frmTabAllenamenti> window = desk.List();
    desk.LeaveList();
    QVERIFY(window.isNull());
    desk.OpenList();
    VERIFY_SCRIPT(desk.script);
}

void TableListTest::listsTheTablesWhateverTheCase()
{
    PlanDesk desk;
    for (const char* name : {"gamma.tab", "Beta 2.0.Tab", "Et\xE0.tab", "ALFA.TAB"}) {
        desk.PutTable(QString::fromLatin1(name), TableBytes(kStart));
    }
    for (const char* other : {"tab", ".tab", ".nascosta.tab", "gamma.tabx", "gamma.tab.bak", "gammatab", "delta.txt",
                              "cartella.tab/dentro.tab"}) {
        desk.PutTable(QLatin1String(other), TableBytes(kStart));
    }
    desk.Begin();
    desk.OpenList();
    QCOMPARE(desk.Entries(), (QByteArrayList{"ALFA.TAB", "Beta 2.0.Tab", "Et\xE0.tab", "gamma.tab"}));
    QCOMPARE(desk.List()->flbListaTabelle->ListIndex(), -1);
    VERIFY_SCRIPT(desk.script);
}

void TableListTest::anEmptyFolder()
{
    PlanDesk desk;
    desk.Begin();
    desk.OpenList();
    QCOMPARE(desk.Entries(), QByteArrayList());
    for (Button* button : {desk.List()->cmdOK, desk.List()->cmdCancellaTab}) {
        desk.script.Expect(Warning(kChoose));
        hand::Click(*button);
        TRY_SCRIPT(desk.script);
        QCOMPARE(desk.Editor(), nullptr);
    }
    desk.OpenNew();
    QCOMPARE(desk.Editor()->windowTitle(), QStringLiteral("Tabella allenamento "));
    for (int row = 1; row <= TableBytes::kRows; ++row) {
        QCOMPARE(desk.Row(row), kBlankRow);
    }
    QCOMPARE(desk.StartDate(), QByteArray("||"));
    VERIFY_SCRIPT(desk.script);
}

void TableListTest::nothingSelected_data()
{
    QTest::addColumn<QByteArray>("way");
    QTest::addColumn<bool>("opens");
    QTest::newRow("OK") << QByteArray("cmdOK") << true;
    QTest::newRow("Enter") << QByteArray("Enter") << true;
    QTest::newRow("delete") << QByteArray("cmdCancellaTab") << false;
}

void TableListTest::nothingSelected()
{
    QFETCH(QByteArray, way);
    QFETCH(bool, opens);
    PlanDesk desk;
    PutTwoTables(desk);
    desk.Activate("altrove/Alfa.tab");
    desk.PutTable(QStringLiteral("altrove/Alfa.tab"), TableBytes(kStart));
    desk.Begin();
    desk.OpenList();
    Module1::NomeTabellaAperta = "da prima";
    desk.script.Expect(Warning(kChoose));
    if (way == "Enter") {
        QCOMPARE(TableDesk::Focused(), QByteArray("flbListaTabelle"));
        hand::Key(Qt::Key_Return);
    } else {
        hand::Click(*desk.List()->findChild<Button*>(QLatin1String(way)));
    }
    TRY_SCRIPT(desk.script);
    QCOMPARE(desk.Editor(), nullptr);
    QCOMPARE(Module1::NomeTabellaAperta, opens ? Text() : Text("da prima"));
    Module1::NomeTabellaAperta.clear();
    QCOMPARE(desk.Entries(), (QByteArrayList{"Alfa.tab", "Beta.tab"}));
    QCOMPARE(desk.Pointer(), desk.PointerTo("altrove/Alfa.tab"));
    QCOMPARE(desk.Caption("lblTabNomeFile"), QStringLiteral("Alfa"));
}

void TableListTest::theActiveTableIsSelected_data()
{
    QTest::addColumn<QByteArray>("active"); // Its path below the program's folder.
    QTest::addColumn<QByteArray>("selected");
    QTest::newRow("none") << QByteArray() << QByteArray();
    QTest::newRow("as it is written") << QByteArray("prova/Beta.tab") << QByteArray("Beta.tab");
    QTest::newRow("the name in capitals") << QByteArray("prova/BETA.TAB") << QByteArray("Beta.tab");
    QTest::newRow("the folder in capitals") << QByteArray("PROVA/beta.tab") << QByteArray("Beta.tab");
    QTest::newRow("an accent in capitals") << QByteArray("prova/ET\xC0.tab") << QByteArray("Et\xE0.tab");
    QTest::newRow("of another folder") << QByteArray("altra/Beta.tab") << QByteArray();
    QTest::newRow("two of one name but for case") << QByteArray("prova/gamma.tab") << QByteArray("GAMMA.tab");
}

void TableListTest::theActiveTableIsSelected()
{
    QFETCH(QByteArray, active);
    QFETCH(QByteArray, selected);
    PlanDesk desk;
    PutTwoTables(desk);
    for (const char* name : {"Et\xE0.tab", "GAMMA.tab", "gamma.tab"}) {
        desk.PutTable(QString::fromLatin1(name), TableBytes(kStart));
    }
    desk.folder.Write(QStringLiteral("altra/Beta.tab"), TableBytes(kStart).Bytes());
    if (!active.isEmpty()) {
        const QByteArray path = QByteArray::fromStdString(desk.folder.System() + "\\") + active;
        desk.folder.Write(QStringLiteral("prova/nometab"), '"' + QByteArray(path).replace('/', '\\') + "\"\r\n");
    }
    desk.Begin();
    desk.OpenList();
    QCOMPARE(SelectedEntry(desk), selected);
    VERIFY_SCRIPT(desk.script);
}

void TableListTest::opensTheTableSelected_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QString>("caption");
    QTest::newRow("small letters") << QByteArray("piano.tab") << "Tabella allenamento : piano    di   ";
    QTest::newRow("capitals") << QByteArray("PIANO.TAB") << "Tabella allenamento : PIANO    di   ";
    QTest::newRow("two dots") << QByteArray("Piano 2.0.tab") << "Tabella allenamento : Piano 2.0    di   ";
    QTest::newRow("an accent") << QByteArray("Et\xE0.tab")
                               << QString::fromLatin1("Tabella allenamento : Et\xE0    di   ");
}

void TableListTest::opensTheTableSelected()
{
    QFETCH(QByteArray, entry);
    QFETCH(QString, caption);
    PlanDesk desk;
    PutTwoTables(desk);
    desk.PutTable(QString::fromLatin1(entry),
                  TableBytes(QDate(2026, 6, 1)).SetRow(31, "12|50|1|2|3|4|5|6|Media|Strada|7|1500|8|9"));
    desk.Begin();
    desk.OpenList();
    desk.OpenTable(entry.constData());
    QCOMPARE(desk.Editor()->windowTitle(), caption);
    QCOMPARE(desk.Row(1), kBlankRow);
    QCOMPARE(desk.Row(31), QByteArray("12|050|1|02|03|4|05|006|Media|Strada|7|1.500|8|09"));
    QCOMPARE(desk.StartDate(), QByteArray("1|6|2026"));
    QCOMPARE(Module1::NomeTabellaAperta, Text());
    VERIFY_SCRIPT(desk.script);
}

void TableListTest::anEntryOpensAtOnce_data()
{
    QTest::addColumn<std::function<void(const TableDesk&)>>("open");
    const auto row = [](const char* name, const std::function<void(const TableDesk&)>& open) {
        QTest::newRow(name) << open;
    };
    const auto press = [](Qt::Key key) {
        hand::Key(Qt::Key_Down);
        hand::Key(Qt::Key_Down);
        hand::Key(key);
    };
    row("Return", [press](const TableDesk& /*desk*/) { press(Qt::Key_Return); });
    row("Enter", [press](const TableDesk& /*desk*/) { press(Qt::Key_Enter); });
    row("double click", [](const TableDesk& desk) {
        ListBox& list = *desk.List()->flbListaTabelle;
        hand::DoubleClick(*list.viewport(), list.visualItemRect(list.item(1)).center());
    });
}

void TableListTest::anEntryOpensAtOnce()
{
    QFETCH(std::function<void(const TableDesk&)>, open);
    PlanDesk desk;
    PutTwoTables(desk);
    desk.PutTable(QStringLiteral("Beta.tab"), TableBytes(QDate(2026, 6, 1)).SetRow(1, "12"));
    desk.Begin();
    desk.OpenList();
    open(desk);
    QTRY_VERIFY(desk.Editor() != nullptr);
    QTRY_COMPARE(desk.Editor()->windowTitle(), QStringLiteral("Tabella allenamento : Beta    di   "));
    QCOMPARE(desk.Row(1), QByteArray("12|||||||||||||"));
    TableDesk::ToFront(*desk.Editor());
    VERIFY_SCRIPT(desk.script);
}

void TableListTest::deletes_data()
{
    QTest::addColumn<QByteArray>("active");
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("deleted");
    QTest::addColumn<bool>("stillActive");
    QTest::addColumn<QByteArray>("selected");
    // "Alfa.tab" is what the user selects.
    QTest::newRow("yes") << QByteArray() << int(QMessageBox::Yes) << true << false << QByteArray();
    QTest::newRow("no") << QByteArray() << int(QMessageBox::No) << false << false << QByteArray("Alfa.tab");
    QTest::newRow("cancel") << QByteArray() << int(QMessageBox::Cancel) << false << false << QByteArray("Alfa.tab");
    const QByteArray other = "Beta.tab";
    QTest::newRow("another is active, yes") << other << int(QMessageBox::Yes) << true << true << other;
    QTest::newRow("another is active, no") << other << int(QMessageBox::No) << false << true << other;
    QTest::newRow("another is active, cancel") << other << int(QMessageBox::Cancel) << false << true << other;
    // The active table is switched off whatever the answer is.
    const QByteArray own = "Alfa.tab";
    QTest::newRow("the active one, yes") << own << int(QMessageBox::Yes) << true << false << QByteArray();
    QTest::newRow("the active one, no") << own << int(QMessageBox::No) << false << false << own;
    QTest::newRow("the active one, cancel") << own << int(QMessageBox::Cancel) << false << false << own;
}

void TableListTest::deletes()
{
    QFETCH(QByteArray, active);
    QFETCH(int, answer);
    QFETCH(bool, deleted);
    QFETCH(bool, stillActive);
    QFETCH(QByteArray, selected);
    PlanDesk desk;
    PutTwoTables(desk);
    if (!active.isEmpty()) {
        desk.Activate(active.constData());
    }
    desk.Begin();
    desk.OpenList();
    desk.Select(0);
    desk.script.Expect(DeleteQuestion(QStringLiteral("Alfa.tab"), QMessageBox::StandardButton(answer)));
    // Nothing has happened while the question is up.
    QByteArray meanwhile;
    desk.script.Meanwhile([&] { meanwhile = desk.Pointer(); });
    hand::Click(*desk.List()->cmdCancellaTab);
    TRY_SCRIPT(desk.script);
    QCOMPARE(desk.Entries(), deleted ? QByteArrayList{"Beta.tab"} : (QByteArrayList{"Alfa.tab", "Beta.tab"}));
    QCOMPARE(desk.folder.Exists(QStringLiteral("prova/Alfa.tab")), !deleted);
    QVERIFY(desk.folder.Exists(QStringLiteral("prova/Beta.tab")));
    QCOMPARE(SelectedEntry(desk), selected);
    QCOMPARE(meanwhile, active.isEmpty() ? PlanDesk::kNoPointer : desk.PointerTo(active.constData()));
    QCOMPARE(desk.Pointer(), stillActive ? meanwhile : PlanDesk::kNoPointer);
    const QByteArray path = stillActive ? desk.PathOf(active.constData()) : QByteArray();
    QCOMPARE(QByteArray::fromStdString(Module1::NomeTabellaAttiva), path);
    QCOMPARE(desk.Caption("lblTabNomeFile"), active.isEmpty() ? QStringLiteral("Nessuna tabella attiva")
                                             : stillActive    ? QStringLiteral("Beta")
                                                              : QString());
    VERIFY_SCRIPT(desk.script);
}

void TableListTest::deletesTheActiveTableInOtherLetters()
{
    PlanDesk desk;
    PutTwoTables(desk);
    desk.Activate("ALFA.tab");
    desk.Begin();
    QCOMPARE(desk.Panel(), QByteArray("ALFA|7,0|0:0:0|0:0|||0 x 0  @  0:0"));
    desk.OpenList();
    desk.Select(0);
    desk.script.Expect(DeleteQuestion(QStringLiteral("Alfa.tab"), QMessageBox::No));
    hand::Click(*desk.List()->cmdCancellaTab);
    TRY_SCRIPT(desk.script);
    QCOMPARE(desk.Pointer(), PlanDesk::kNoPointer);
    QVERIFY(desk.folder.Exists(QStringLiteral("prova/Alfa.tab")));
}

void TableListTest::deletingWhatHasGone_data()
{
    QTest::addColumn<bool>("folderInstead");
    QTest::addColumn<QString>("error");
    QTest::newRow("the file has gone") << false << kNotFound;
    QTest::newRow("a folder has its name") << true << kDenied;
}

/// The error ends the routine: what follows on a deletion is left out.
void TableListTest::deletingWhatHasGone()
{
    QFETCH(bool, folderInstead);
    QFETCH(QString, error);
    PlanDesk desk;
    PutTwoTables(desk);
    desk.Activate("Alfa.tab");
    desk.Begin();
    desk.OpenList();
    desk.Select(0);
    desk.folder.Remove(QStringLiteral("prova/Alfa.tab"));
    if (folderInstead) {
        desk.folder.MakeFolder(QStringLiteral("prova/Alfa.tab"));
    }
    desk.script.Expect(DeleteQuestion(QStringLiteral("Alfa.tab"), QMessageBox::Yes));
    desk.script.Expect(Report(QStringLiteral("cmdCancellaTab - ERRORE : ") + error));
    hand::Click(*desk.List()->cmdCancellaTab);
    TRY_SCRIPT(desk.script);
    QCOMPARE(desk.Pointer(), desk.PointerTo("Alfa.tab"));
    QCOMPARE(desk.Caption("lblTabNomeFile"), QStringLiteral("Alfa"));
    QCOMPARE(desk.folder.Exists(QStringLiteral("prova/Alfa.tab")), folderInstead);
}

void TableListTest::thePanelAfterADeletion()
{
    PlanDesk desk;
    PutTwoTables(desk);
    desk.Activate("Alfa.tab");
    desk.Begin();
    desk.OpenList();
    QCOMPARE(SelectedEntry(desk), QByteArray("Alfa.tab"));
    desk.script.Expect(DeleteQuestion(QStringLiteral("Alfa.tab"), QMessageBox::Yes));
    hand::Click(*desk.List()->cmdCancellaTab);
    TRY_SCRIPT(desk.script);
    QCOMPARE(desk.Request(), QByteArray("0"));
    QCOMPARE(desk.Panel(), QByteArray("|7,0|0:0:0|0:0|||0 x 0  @  0:0"));
    desk.LeaveList();
    desk.GoTo(141);
    QCOMPARE(desk.Panel(), QByteArray("|") + kNeutral);
    desk.GoTo(140);
    QCOMPARE(desk.Panel(), QByteArray("|") + kNeutral);
    VERIFY_SCRIPT(desk.script);
}

void TableListTest::aSavedTableAppears()
{
    PlanDesk desk;
    desk.PutTable(QStringLiteral("Beta.tab"), TableBytes(kStart));
    desk.Begin();
    desk.OpenList();
    desk.OpenNew();
    desk.Write(desk.Box(TableGrid::Km, 1), QStringLiteral("9"));
    desk.script.Expect(desk.SaveTableDialog(QString(), QStringLiteral("Nuova")));
    hand::Click(*desk.Editor()->cmdSalva);
    TRY_SCRIPT(desk.script);
    QCOMPARE(desk.Entries(), QByteArrayList{"Beta.tab"});
    desk.LeaveEditor();
    QCOMPARE(desk.Entries(), (QByteArrayList{"Beta.tab", "Nuova.tab"}));
    desk.OpenTable("Nuova.tab");
    QCOMPARE(desk.Held(TableGrid::Km, 1), QByteArray("9"));
    VERIFY_SCRIPT(desk.script);
}

void TableListTest::theEditorsEndSelectsTheActiveTable()
{
    PlanDesk desk;
    PutTwoTables(desk);
    desk.Activate("ALFA.TAB");
    desk.Begin();
    desk.OpenList();
    desk.OpenTable("Beta.tab");
    QCOMPARE(SelectedEntry(desk), QByteArray("Beta.tab"));
    desk.LeaveEditor();
    QCOMPARE(SelectedEntry(desk), QByteArray("Alfa.tab"));
    VERIFY_SCRIPT(desk.script);
}

void TableListTest::theEditorLoadsAListThatWasClosed()
{
    PlanDesk desk;
    PutTwoTables(desk);
    desk.Activate("Beta.tab");
    desk.Begin();
    desk.OpenList();
    desk.OpenNew();
    const QPointer<frmTabAllenamenti> first = desk.List();
    first->close();
    QTRY_VERIFY(first.isNull());
    desk.PutTable(QStringLiteral("Gamma.tab"), TableBytes(kStart));
    desk.LeaveEditor();
    // It is loaded, not shown.
    QCOMPARE(desk.List(), nullptr);
    desk.OpenList();
    QCOMPARE(desk.Entries(), (QByteArrayList{"Alfa.tab", "Beta.tab", "Gamma.tab"}));
    QCOMPARE(SelectedEntry(desk), QByteArray("Beta.tab"));
    VERIFY_SCRIPT(desk.script);
}

void TableListTest::openedAgainItComesToTheFront()
{
    PlanDesk desk;
    PutTwoTables(desk);
    desk.Begin();
    desk.OpenList();
    desk.Select(1);
    const QPointer<frmTabAllenamenti> list = desk.List();
    desk.Page().raise();
    desk.Page().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&desk.Page()));
    desk.OpenList();
    QVERIFY(!list.isNull() && desk.List() == list);
    QCOMPARE(SelectedEntry(desk), QByteArray("Beta.tab"));
    VERIFY_SCRIPT(desk.script);
}

void TableListTest::openedAgainItShowsWhatIsThere()
{
    PlanDesk desk;
    PutTwoTables(desk);
    desk.Begin();
    desk.OpenList();
    desk.Select(1);
    desk.PutTable(QStringLiteral("Altra.tab"), TableBytes(kStart));
    TableDesk::ToFront(desk.Page());
    desk.OpenList();
    QCOMPARE(desk.Entries(), (QByteArrayList{"Alfa.tab", "Altra.tab", "Beta.tab"}));
    QCOMPARE(SelectedEntry(desk), QByteArray("Beta.tab"));
    // The active table goes before what the user selected.
    Module1::NomeTabellaAttiva = desk.folder.System(QStringLiteral("prova/Alfa.tab"));
    desk.folder.Remove(QStringLiteral("prova/Altra.tab"));
    TableDesk::ToFront(desk.Page());
    desk.OpenList();
    QCOMPARE(desk.Entries(), (QByteArrayList{"Alfa.tab", "Beta.tab"}));
    QCOMPARE(SelectedEntry(desk), QByteArray("Alfa.tab"));
    VERIFY_SCRIPT(desk.script);
}

void TableListTest::openedAgainWithoutAFolder()
{
    PlanDesk desk;
    PutTwoTables(desk);
    desk.Begin();
    desk.OpenList();
    desk.folder.Remove(QStringLiteral("prova"));
    TableDesk::ToFront(desk.Page());
    // As when it opens.
    desk.script.Expect(Report(QStringLiteral("Load - ERRORE : ") + kNoFolder));
    desk.OpenList();
    TRY_SCRIPT(desk.script);
    QCOMPARE(desk.Entries(), QByteArrayList());
}

void TableListTest::anotherDiaryHasOtherTables_data()
{
    QTest::addColumn<QByteArray>("active");
    QTest::addColumn<QByteArray>("selected");
    QTest::newRow("one of them is active") << QByteArray("Gamma.tab") << QByteArray("Gamma.tab");
    QTest::newRow("none is active") << QByteArray() << QByteArray();
}

void TableListTest::anotherDiaryHasOtherTables()
{
    QFETCH(QByteArray, active);
    QFETCH(QByteArray, selected);
    PlanDesk desk;
    PutTwoTables(desk);
    const QByteArray gamma = QByteArray::fromStdString(desk.folder.System(QStringLiteral("seconda/Gamma.tab")));
    desk.PutSecondDiary(active.isEmpty() ? PlanDesk::kNoPointer : PlanDesk::PointerOf(gamma));
    for (const char* name : {"seconda/Gamma.tab", "seconda/Alfa.tab"}) {
        desk.folder.Write(QLatin1String(name), TableBytes(kStart).SetRow(1, "9").Bytes());
    }
    desk.Begin();
    desk.OpenList();
    desk.Select(0);
    const QPointer<frmTabAllenamenti> list = desk.List();
    TableDesk::ToFront(desk.Page());
    desk.script.Expect(desk.OpenDialog(QStringLiteral("prova.zlv"), QStringLiteral("seconda.zlv")));
    desk.OpenSecondDiary();
    TRY_SCRIPT(desk.script);
    QVERIFY(!list.isNull() && desk.List() == list);
    QCOMPARE(desk.Entries(), (QByteArrayList{"Alfa.tab", "Gamma.tab"}));
    QCOMPARE(SelectedEntry(desk), selected);
    TableDesk::ToFront(*list);
    desk.OpenTable("Alfa.tab");
    QCOMPARE(desk.Held(TableGrid::Km, 1), QByteArray("9"));
    VERIFY_SCRIPT(desk.script);
}

/// It has no folder yet either; nothing is said of that.
void TableListTest::aNewDiaryHasNone()
{
    PlanDesk desk;
    PutTwoTables(desk);
    desk.Activate("Beta.tab");
    desk.Begin();
    desk.OpenList();
    TableDesk::ToFront(desk.Page());
    desk.script.Expect(desk.NewDialog(QStringLiteral("nuova")));
    desk.Menu("mnuFile", Qt::Key_N);
    TRY_SCRIPT(desk.script);
    QCOMPARE(desk.Caption("lblNomeFile"), QStringLiteral("nuova"));
    QCOMPARE(desk.Entries(), QByteArrayList());
    TableDesk::ToFront(*desk.List());
    desk.script.Expect(Warning(kChoose));
    hand::Click(*desk.List()->cmdOK);
    TRY_SCRIPT(desk.script);
}

/// An editor that is open already is not loaded a second time: it gets the caption of what was asked for, and the next
/// one that is loaded takes the table.
void TableListTest::anOpenEditorKeepsItsTable()
{
    PlanDesk desk;
    PutTwoTables(desk);
    desk.Begin();
    desk.OpenList();
    desk.OpenTable("Alfa.tab");
    const QPointer<frmAllenamento> editor = desk.Editor();
    TableDesk::ToFront(*desk.List());
    desk.OpenTable("Beta.tab");
    QVERIFY(!editor.isNull() && desk.Editor() == editor);
    QCOMPARE(desk.Held(TableGrid::Km, 1), QByteArray("7"));
    QCOMPARE(editor->windowTitle(), QStringLiteral("Tabella allenamento : Beta    di   "));
    desk.LeaveEditor();
    desk.OpenNew();
    QCOMPARE(desk.Held(TableGrid::Km, 1), QByteArray("8"));
    QCOMPARE(desk.Editor()->windowTitle(), QStringLiteral("Tabella allenamento "));
    desk.LeaveEditor();
    desk.OpenNew();
    QCOMPARE(desk.Held(TableGrid::Km, 1), QByteArray());
    VERIFY_SCRIPT(desk.script);
}

void TableListTest::aTableThatWaitedForTheEditorHasGone()
{
    PlanDesk desk;
    PutTwoTables(desk);
    desk.Begin();
    desk.OpenList();
    desk.OpenTable("Alfa.tab");
    TableDesk::ToFront(*desk.List());
    desk.OpenTable("Beta.tab");
    desk.LeaveEditor();
    desk.Select(1);
    desk.script.Expect(DeleteQuestion(QStringLiteral("Beta.tab"), QMessageBox::Yes));
    hand::Click(*desk.List()->cmdCancellaTab);
    TRY_SCRIPT(desk.script);
    desk.script.Expect(Report(QStringLiteral("ERRORE : 53 File non trovato")));
    desk.OpenNew();
    QCOMPARE(desk.Row(1), kBlankRow);
    desk.LeaveEditor();
    desk.OpenNew();
    QCOMPARE(desk.Row(1), kBlankRow);
    VERIFY_SCRIPT(desk.script);
}

void TableListTest::theFolderHasGone()
{
    PlanDesk desk;
    PutTwoTables(desk);
    desk.Begin();
    desk.folder.Remove(QStringLiteral("prova"));
    desk.script.Expect(Report(QStringLiteral("Load - ERRORE : ") + kNoFolder));
    desk.OpenList();
    TRY_SCRIPT(desk.script);
    QCOMPARE(desk.Entries(), QByteArrayList());
    desk.LeaveList();
    desk.folder.Write(QStringLiteral("prova"), "a file in its place");
    desk.script.Expect(Report(QStringLiteral("Load - ERRORE : ") + kNoFolder));
    desk.OpenList();
    TRY_SCRIPT(desk.script);
    QCOMPARE(desk.Entries(), QByteArrayList());
    desk.LeaveList();
    desk.folder.Remove(QStringLiteral("prova"));
    PutTwoTables(desk);
    desk.OpenList();
    QCOMPARE(desk.Entries(), (QByteArrayList{"Alfa.tab", "Beta.tab"}));
    VERIFY_SCRIPT(desk.script);
}

/// The editor's end can't refresh the list, and asks for nothing more.
void TableListTest::theFolderGoesMeanwhile()
{
    PlanDesk desk;
    PutTwoTables(desk);
    desk.Begin();
    desk.OpenList();
    desk.OpenTable("Alfa.tab");
    desk.folder.Remove(QStringLiteral("prova"));
    desk.script.Expect(BareReport(kNoFolder));
    desk.LeaveEditor();
    TRY_SCRIPT(desk.script);
    QCOMPARE(desk.Entries(), QByteArrayList());
    QCOMPARE(desk.Request(), QByteArray("0"));
    desk.script.Expect(Warning(kChoose));
    hand::Click(*desk.List()->cmdOK);
    TRY_SCRIPT(desk.script);
}

/// The editor's end loads the list, which has to go after it.
void TableListTest::theProgramEndsWithItsWindows()
{
    PlanDesk desk;
    PutTwoTables(desk);
    desk.Begin();
    desk.OpenList();
    desk.OpenTable("Alfa.tab");
    desk.List()->close();
    QTRY_VERIFY(desk.List() == nullptr);
    desk.Page().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&desk.Page()));
    desk.Menu("mnuFile", Qt::Key_E);
    QTRY_VERIFY(desk.Gone());
    const auto loaded = [] {
        const QWidgetList windows = QApplication::topLevelWidgets();
        return std::count_if(windows.begin(), windows.end(),
                             [](const QWidget* window) { return qobject_cast<const Form*>(window) != nullptr; });
    };
    QTRY_COMPARE(loaded(), 0);
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::TableListTest)
#include "TableListTest.moc"
