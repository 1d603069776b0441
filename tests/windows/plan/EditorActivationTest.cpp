// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Switching a table of the editor on and off.
#include "core/Conversions.h"
#include "core/Messages.h"
#include "diary/Module1.h"
#include "diary/TableModel.h"
#include "support/Bytes.h"
#include "support/TableDesk.h"
#include "support/TableLines.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
namespace
{

using namespace TableGrid;

const char* const kTable = "Base 10 km.tab";
const char* const kOther = "Mezza maratona.tab";
/// Ahead of both tables of the sample: their first rows are to be met.
const CalendarDate kBeforehand(2026, 3, 1);

ExpectedBox DateNeeded()
{
    return Warning(QStringLiteral(" INSERIRE ' DATA INIZIO ' ALLENAMENTO     "));
}

QByteArray StartInMemory()
{
    return Bytes(PlainText(Module1::TabDataInizio));
}

/// Accepts the grid.
void Accept(const TableDesk& desk)
{
    hand::Click(*desk.Editor()->cmdOK);
    QTRY_VERIFY(desk.Editor()->cmdAttiva->isEnabled());
}

/// Presses "Attiva" and waits for all that is to come of it.
void Activate(const TableDesk& desk)
{
    hand::Click(*desk.Editor()->cmdAttiva);
    desk.AwaitBoxes();
}

/// Another last digit of the year, not accepted: the keys alone leave "Attiva" as it is.
void TypeLastOfYear(const QString& digit)
{
    TableDesk::TabTo("txtAnnoInizio", Qt::ShiftModifier);
    hand::Key(Qt::Key_End);
    hand::Key(Qt::Key_Backspace);
    hand::Type(digit);
}

void VerifyActive(const TableDesk& desk, const char* table, const QString& name)
{
    QTRY_COMPARE(desk.Enabled(), QByteArray("cmdDisattiva"));
    QCOMPARE(desk.Nometab(), desk.Pointer(table));
    QCOMPARE(desk.Caption("lblTabNomeFile"), name);
    QCOMPARE(desk.DateBack(), kYellow);
    QCOMPARE(desk.GridBack(), kWhite);
    QVERIFY(Module1::IndiceTabella == 1);
    QVERIFY(desk.Editor()->TabellaModificata == 0);
}

} // namespace

class EditorActivationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commandsFollowTheState();
    void theActiveTableOpensYellow_data();
    void theActiveTableOpensYellow();
    void aDateIsNeeded_data();
    void aDateIsNeeded();
    void replacesTheActiveTable_data();
    void replacesTheActiveTable();
    void anUnsavedTableIsSavedFirst_data();
    void anUnsavedTableIsSavedFirst();
    void aTableThatIsNotWrittenIsNotActive_data();
    void aTableThatIsNotWrittenIsNotActive();
    void afterAFailedSaveItIsSavedFirst();
    void theFolderRuleHoldsForAnUnsavedTable();
    void aTableSavedHereNeedsNoDialog();
    void aTableOpenedHereKeepsItsPath();
    void activatingDoesNotWriteTheTable();
    void deactivates_data();
    void deactivates();
    void switchedOffAndOnAgain();
    void aPointerThatCannotBeWrittenIsReported();
};

void EditorActivationTest::commandsFollowTheState()
{
    TableDesk desk(kBeforehand);
    desk.StartWith(kTable);
    QCOMPARE(desk.Enabled(), QByteArray("cmdOK"));
    QVERIFY(desk.Editor()->TabellaModificata == 0);
    hand::Click(desk.Box(Km, 3));
    QCOMPARE(desk.Enabled(), QByteArray("cmdOK"));
    QVERIFY(desk.Editor()->cmdSalva->isEnabled());
    Accept(desk);
    QCOMPARE(desk.Enabled(), QByteArray("cmdAttiva"));
    QVERIFY(desk.Editor()->TabellaModificata == 0);
    // Keys alone open nothing for editing.
    TableDesk::TabTo("txtKm(1)");
    hand::Key(Qt::Key_Backspace);
    hand::Type(QStringLiteral("9"));
    hand::Key(Qt::Key_Return);
    QCOMPARE(desk.Held(Km, 1), QByteArray("9"));
    QCOMPARE(desk.Enabled(), QByteArray("cmdAttiva"));
    QCOMPARE(desk.GridBack(), kWhite);
    QCOMPARE(desk.DateBack(), kWhite);
    QVERIFY(Module1::TabKm[1] == 6);
    // A click does, into any box of the grid or of the date.
    QWidget* const boxes[] = {&desk.Box(RipetTempi, 31), desk.Editor()->dateBoxes[2]};
    for (QWidget* box : boxes) {
        hand::Click(*box);
        QTRY_COMPARE(desk.Enabled(), QByteArray("cmdOK"));
        QCOMPARE(desk.GridBack(), kGrey);
        QCOMPARE(desk.DateBack(), kGrey);
        Accept(desk);
        QCOMPARE(desk.GridBack(), kWhite);
        QCOMPARE(desk.DateBack(), kWhite);
    }
    // The first of the two found the change; it is remembered.
    QVERIFY(desk.Editor()->TabellaModificata == 1);
    QVERIFY(Module1::TabKm[1] == 9);
    Activate(desk);
    VerifyActive(desk, kTable, QStringLiteral("Base 10 km"));
    VERIFY_SCRIPT(desk.script);
}

void EditorActivationTest::theActiveTableOpensYellow_data()
{
    QTest::addColumn<QByteArray>("pointer");
    QTest::newRow("by its name") << QByteArray(kTable);
    QTest::newRow("in other letters") << QByteArray("BASE 10 KM.TAB");
}

void EditorActivationTest::theActiveTableOpensYellow()
{
    QFETCH(QByteArray, pointer);
    TableDesk desk(kBeforehand);
    desk.SetActive(pointer);
    desk.StartWith(kTable);
    QCOMPARE(desk.Enabled(), QByteArray("cmdDisattiva"));
    QCOMPARE(desk.DateBack(), kYellow);
    QCOMPARE(desk.GridBack(), kWhite);
    QCOMPARE(desk.RowFore(1), kBlack);
    // A click opens it like any other; its date stays yellow and it stays active.
    hand::Click(desk.Box(Km, 3));
    QTRY_COMPARE(desk.Enabled(), QByteArray("cmdOK cmdDisattiva"));
    QCOMPARE(desk.GridBack(), kGrey);
    QCOMPARE(desk.DateBack(), kYellow);
    // Accepted, the commands stay.
    hand::Click(*desk.Editor()->cmdOK);
    QTRY_COMPARE(desk.GridBack(), kWhite);
    QCOMPARE(desk.Enabled(), QByteArray("cmdOK cmdDisattiva"));
    QCOMPARE(desk.DateBack(), kYellow);
    QCOMPARE(desk.Nometab(), desk.Pointer(pointer));
    VERIFY_SCRIPT(desk.script);
}

void EditorActivationTest::aDateIsNeeded_data()
{
    QTest::addColumn<bool>("another");
    QTest::newRow("none active") << false;
    QTest::newRow("another one active") << true;
}

void EditorActivationTest::aDateIsNeeded()
{
    QFETCH(bool, another);
    TableDesk desk(kBeforehand);
    if (another) {
        desk.SetActive(kOther);
    }
    desk.WriteTable("Vecchia.tab", TableLines::Blank().SetDate("1999-12-31").Bytes());
    desk.StartWith("Vecchia.tab");
    QCOMPARE(desk.StartDate(), QByteArray("||"));
    Accept(desk);
    desk.script.Expect(DateNeeded());
    Activate(desk);
    QCOMPARE(desk.Enabled(), QByteArray("cmdAttiva"));
    QCOMPARE(desk.DateBack(), kWhite);
    QCOMPARE(desk.Nometab(), another ? desk.Pointer(kOther) : kNoPointer);
    QCOMPARE(StartInMemory(), QByteArray("31/12/1999"));
}

void EditorActivationTest::replacesTheActiveTable_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("OK") << int{QMessageBox::Ok};
    QTest::newRow("Cancel") << int{QMessageBox::Cancel};
}

void EditorActivationTest::replacesTheActiveTable()
{
    QFETCH(int, answer);
    TableDesk desk(kBeforehand);
    desk.SetActive(kOther);
    desk.StartWith(kTable);
    QCOMPARE(desk.Enabled(), QByteArray("cmdOK"));
    QCOMPARE(desk.DateBack(), kWhite);
    QCOMPARE(desk.Caption("lblTabNomeFile"), QStringLiteral("Mezza maratona"));
    (void)desk.RowMenu(31, Qt::Key_E);
    Accept(desk);
    TypeLastOfYear(QStringLiteral("8"));

    desk.script.Expect(Messages::kReplaceActiveTable, static_cast<QMessageBox::StandardButton>(answer));
    desk.script.Meanwhile([&] { QCOMPARE(desk.Nometab(), desk.Pointer(kOther)); });
    Activate(desk);
    QCOMPARE(desk.StartDate(), QByteArray("2|3|2028"));
    if (answer == QMessageBox::Ok) {
        VerifyActive(desk, kTable, QStringLiteral("Base 10 km"));
        QCOMPARE(StartInMemory(), QByteArray("02/03/2028"));
    } else {
        QCOMPARE(desk.Enabled(), QByteArray("cmdAttiva"));
        QCOMPARE(desk.Nometab(), desk.Pointer(kOther));
        QCOMPARE(desk.Caption("lblTabNomeFile"), QStringLiteral("Mezza maratona"));
        QCOMPARE(desk.DateBack(), kWhite);
        QCOMPARE(StartInMemory(), QByteArray("02/03/2026"));
        QVERIFY(desk.Editor()->TabellaModificata == 1);
    }
    for (const char* table : {kTable, kOther}) {
        QVERIFY(desk.ReadTable(table) == SampleFile(QStringLiteral("prova/") + QLatin1String(table)));
    }
    VERIFY_SCRIPT(desk.script);
}

void EditorActivationTest::anUnsavedTableIsSavedFirst_data()
{
    QTest::addColumn<bool>("another");
    QTest::addColumn<bool>("saves");
    for (const bool another : {false, true}) {
        for (const bool saves : {true, false}) {
            QTest::addRow("%s, %s", another ? "another one active" : "none active", saves ? "saved" : "cancelled")
                << another << saves;
        }
    }
}

void EditorActivationTest::anUnsavedTableIsSavedFirst()
{
    QFETCH(bool, another);
    QFETCH(bool, saves);
    TableDesk desk(kBeforehand);
    if (another) {
        desk.SetActive(kOther);
    }
    desk.StartNew();
    const QString none = desk.Caption("lblTabNomeFile");
    const QStringList files = desk.folder.Files();
    desk.Write(desk.Box(Km, 1), QStringLiteral("8"));
    desk.WriteStart("5", "4", "2026");
    Accept(desk);
    TypeLastOfYear(QStringLiteral("7"));
    const QByteArray date = desk.DateBack();
    if (another) {
        desk.script.Expect(Messages::kReplaceActiveTable, QMessageBox::Ok);
    }
    desk.script.Expect(desk.SaveTableDialog(QString(), saves ? QStringLiteral("nuova") : QString()));
    Activate(desk);
    if (saves) {
        VerifyActive(desk, "nuova.tab", QStringLiteral("nuova"));
        QCOMPARE(desk.ReadTable("nuova.tab"), TableLines::Blank().Set(1, Km, "8").SetDate("2027-04-05").Bytes());
        // From now on it is this window's table.
        hand::Click(desk.Box(Km, 1));
        QTRY_COMPARE(desk.GridBack(), kGrey);
        QCOMPARE(desk.DateBack(), kYellow);
    } else {
        QCOMPARE(desk.folder.Files(), files);
        QCOMPARE(desk.Enabled(), QByteArray("cmdAttiva"));
        QCOMPARE(desk.Nometab(), another ? desk.Pointer(kOther) : kNoPointer);
        QCOMPARE(desk.Caption("lblTabNomeFile"), none);
        QCOMPARE(desk.GridBack(), kWhite);
        QCOMPARE(desk.DateBack(), date);
        QCOMPARE(StartInMemory(), QByteArray("05/04/2026"));
        QVERIFY(desk.Editor()->TabellaModificata == 1);
        QCOMPARE(desk.Editor()->windowTitle(), QStringLiteral("Tabella allenamento "));
    }
    VERIFY_SCRIPT(desk.script);
}

void EditorActivationTest::aTableThatIsNotWrittenIsNotActive_data()
{
    QTest::addColumn<bool>("another");
    QTest::addColumn<bool>("full");
    for (const bool another : {false, true}) {
        for (const bool full : {true, false}) {
            QTest::addRow("%s, %s", another ? "another one active" : "none active", full ? "disk full" : "no folder")
                << another << full;
        }
    }
}

void EditorActivationTest::aTableThatIsNotWrittenIsNotActive()
{
    QFETCH(bool, another);
    QFETCH(bool, full);
    TableDesk desk(kBeforehand);
    if (another) {
        desk.SetActive(kOther);
    }
    desk.StartNew();
    const QString none = desk.Caption("lblTabNomeFile");
    desk.WriteStart("5", "4", "2026");
    Accept(desk);
    TypeLastOfYear(QStringLiteral("7"));
    desk.Editor()->TabellaModificata = 1;
    const QByteArray date = desk.DateBack();
    const QString file = QStringLiteral("nuova.tab");
    const QString native = desk.folder.Native(QStringLiteral("prova/nuova.tab"));
    if (full) {
        QVERIFY(QFile::link(QStringLiteral("/dev/full"), native));
    } else {
        desk.folder.Dangle(QStringLiteral("prova/nuova.tab"));
    }
    if (another) {
        desk.script.Expect(Messages::kReplaceActiveTable, QMessageBox::Ok);
    }
    desk.script.Expect(desk.SaveTableDialog(QString(), QStringLiteral("nuova")));
    if (full) {
        desk.script.Expect(desk.OverwriteQuestion(QStringLiteral("Salva Tabella con nome"), file, QMessageBox::Yes));
    }
    desk.script.Expect(BareReport(full ? QStringLiteral("61 Disco pieno") : kNoFolder));
    Activate(desk);
    QCOMPARE(desk.Enabled(), QByteArray("cmdAttiva"));
    QCOMPARE(desk.Nometab(), another ? desk.Pointer(kOther) : kNoPointer);
    QCOMPARE(Bytes(Module1::NomeTabellaAttiva), another ? desk.PathOf(kOther) : QByteArray());
    QCOMPARE(desk.Caption("lblTabNomeFile"), none);
    QCOMPARE(desk.GridBack(), kWhite);
    QCOMPARE(desk.DateBack(), date);
    QCOMPARE(StartInMemory(), QByteArray("05/04/2026"));
    QVERIFY(desk.Editor()->TabellaModificata == 1);
    QCOMPARE(desk.Editor()->NomeFileForm, Text());
    // There is still no file of its own, so the next try asks again.
    if (another) {
        desk.script.Expect(Messages::kReplaceActiveTable, QMessageBox::Ok);
    }
    desk.script.Expect(desk.SaveTableDialog(file, QStringLiteral("buona")));
    Activate(desk);
    VerifyActive(desk, "buona.tab", QStringLiteral("buona"));
    QCOMPARE(desk.ReadTable("buona.tab"), TableLines::Blank().SetDate("2027-04-05").Bytes());
    VERIFY_SCRIPT(desk.script);
}

void EditorActivationTest::afterAFailedSaveItIsSavedFirst()
{
    TableDesk desk(kBeforehand);
    desk.StartNew();
    desk.WriteStart("5", "4", "2026");
    desk.script.Expect(desk.SaveTableDialog(QString(), QStringLiteral("prima")));
    hand::Click(*desk.Editor()->cmdSalva);
    desk.AwaitBoxes();
    desk.folder.Dangle(QStringLiteral("prova/persa.tab"));
    desk.script.Expect(desk.SaveTableDialog(QStringLiteral("prima.tab"), QStringLiteral("persa")));
    desk.script.Expect(BareReport(kNoFolder));
    hand::Click(*desk.Editor()->cmdSalva);
    desk.AwaitBoxes();
    Accept(desk);
    desk.script.Expect(desk.SaveTableDialog(QStringLiteral("persa.tab")));
    Activate(desk);
    QCOMPARE(desk.Nometab(), kNoPointer);
    desk.script.Expect(desk.SaveTableDialog(QStringLiteral("persa.tab"), QStringLiteral("buona")));
    Activate(desk);
    VerifyActive(desk, "buona.tab", QStringLiteral("buona"));
    VERIFY_SCRIPT(desk.script);
}

void EditorActivationTest::theFolderRuleHoldsForAnUnsavedTable()
{
    TableDesk desk(kBeforehand);
    desk.folder.MakeFolder(QStringLiteral("altrove"));
    desk.StartNew();
    desk.WriteStart("5", "4", "2026");
    Accept(desk);
    desk.script.Expect(desk.SaveTableDialog(QString(), desk.folder.Native(QStringLiteral("altrove/nuova.tab"))));
    desk.script.Expect(Messages::kTableSavesElsewhere);
    desk.script.Expect(desk.SaveTableDialog(QStringLiteral("nuova"), QStringLiteral("nuova")));
    Activate(desk);
    VerifyActive(desk, "nuova.tab", QStringLiteral("nuova"));
}

void EditorActivationTest::aTableSavedHereNeedsNoDialog()
{
    TableDesk desk(kBeforehand);
    desk.StartNew();
    desk.WriteStart("5", "4", "2026");
    for (const char* name : {"prima", "seconda"}) {
        desk.script.Expect(desk.SaveTableDialog(
            QLatin1String(name) == QLatin1String("prima") ? QString() : QStringLiteral("prima.tab"),
            QLatin1String(name)));
        hand::Click(*desk.Editor()->cmdSalva);
        desk.AwaitBoxes();
    }
    Accept(desk);
    Activate(desk);
    // The name that it was given last.
    VerifyActive(desk, "seconda.tab", QStringLiteral("seconda"));
}

void EditorActivationTest::aTableOpenedHereKeepsItsPath()
{
    TableDesk desk(kBeforehand);
    desk.StartWith(kTable);
    desk.script.Expect(desk.SaveTableDialog(QLatin1String(kTable), QStringLiteral("Copia")));
    hand::Click(*desk.Editor()->cmdSalva);
    desk.AwaitBoxes();
    Accept(desk);
    Activate(desk);
    VerifyActive(desk, kTable, QStringLiteral("Base 10 km"));
    QCOMPARE(desk.Editor()->windowTitle(), QStringLiteral("Tabella allenamento : Copia"));
}

void EditorActivationTest::activatingDoesNotWriteTheTable()
{
    // The day before the plan begins is shown, then its first day, on which nothing is asked but by the file.
    TableDesk desk(CalendarDate(2026, 3, 2));
    desk.WriteTable("Piano.tab", TableLines::Blank().Set(1, Km, "99").SetDate("2026-03-02").Bytes());
    desk.StartWith("Piano.tab");
    desk.Write(desk.Box(Km, 1), QStringLiteral("77"));
    Accept(desk);
    Activate(desk);
    VerifyActive(desk, "Piano.tab", QStringLiteral("Piano"));
    QCOMPARE(desk.ReadTable("Piano.tab"), TableLines::Blank().Set(1, Km, "99").SetDate("2026-03-02").Bytes());
    desk.LeaveEditor();
    QTRY_COMPARE(desk.Caption("lblKmTab"), QStringLiteral("99,0"));
    QCOMPARE(desk.Caption("lblTabNomeFile"), QStringLiteral("Piano"));
    VERIFY_SCRIPT(desk.script);
}

void EditorActivationTest::deactivates_data()
{
    QTest::addColumn<bool>("clicked");
    QTest::newRow("as it was opened") << false;
    QTest::newRow("opened for editing") << true;
}

void EditorActivationTest::deactivates()
{
    QFETCH(bool, clicked);
    TableDesk desk(kBeforehand);
    desk.SetActive(kTable);
    desk.StartWith(kTable);
    if (clicked) {
        hand::Click(desk.Box(Km, 1));
        QTRY_COMPARE(desk.GridBack(), kGrey);
    }
    hand::Click(*desk.Editor()->cmdDisattiva);
    QTRY_COMPARE(desk.Enabled(), QByteArray(clicked ? "cmdOK cmdAttiva" : "cmdAttiva"));
    QCOMPARE(desk.GridBack(), kWhite);
    QCOMPARE(desk.DateBack(), kWhite);
    QCOMPARE(desk.Nometab(), kNoPointer);
    QCOMPARE(desk.Caption("lblTabNomeFile"), QString());
    QVERIFY(Module1::IndiceTabella == 1);
    QVERIFY(desk.ReadTable(kTable) == SampleFile(QStringLiteral("prova/") + QLatin1String(kTable)));
    // No longer the active one.
    hand::Click(desk.Box(Km, 1));
    QTRY_COMPARE(desk.DateBack(), kGrey);
    desk.LeaveEditor();
    QCOMPARE(desk.Nometab(), kNoPointer);
    VERIFY_SCRIPT(desk.script);
}

void EditorActivationTest::switchedOffAndOnAgain()
{
    TableDesk desk(kBeforehand);
    desk.SetActive(kTable);
    desk.StartWith(kTable);
    for (int i = 0; i < 2; ++i) {
        hand::Click(*desk.Editor()->cmdDisattiva);
        QTRY_COMPARE(desk.Enabled(), QByteArray("cmdAttiva"));
        QCOMPARE(desk.Nometab(), kNoPointer);
        // Nothing need be accepted in between, and there is no table to ask for.
        Activate(desk);
        VerifyActive(desk, kTable, QStringLiteral("Base 10 km"));
    }
}

void EditorActivationTest::aPointerThatCannotBeWrittenIsReported()
{
    TableDesk desk(kBeforehand);
    desk.StartWith(kTable);
    Accept(desk);
    desk.folder.Block(QStringLiteral("prova/nometab"));
    desk.script.Expect(BareReport(kDenied));
    Activate(desk);
    // The table is active all the same, until the program ends.
    QTRY_COMPARE(desk.Enabled(), QByteArray("cmdDisattiva"));
    QCOMPARE(desk.Caption("lblTabNomeFile"), QStringLiteral("Base 10 km"));
    desk.script.Expect(BareReport(kDenied));
    hand::Click(*desk.Editor()->cmdDisattiva);
    desk.AwaitBoxes();
    QCOMPARE(desk.Enabled(), QByteArray("cmdAttiva"));
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::EditorActivationTest)
#include "EditorActivationTest.moc"
