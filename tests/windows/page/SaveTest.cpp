// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Save and Save As.
#include "core/CMouse.h"
#include "core/Messages.h"
#include "support/DayPage.h"
#include "support/DiaryBytes.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
namespace
{

const QString kDiary = QStringLiteral("ZelviaFile/prova.zlv");
const QString kPreset = QStringLiteral("prova.zlv");
const QString kSaveTitle = QStringLiteral("Salva con nome");
constexpr int kSlot = 60; // 1 March of a common year, a day of sixteen kilometres and some splits

/// The sample with the day shown committed and its kilometres changed.
DiaryBytes SampleWithKm(const QByteArray& km)
{
    DiaryBytes diary(SampleFile(kDiary));
    diary.Visit(kSlot, QDate(2026, 3, 1));
    diary.SetLine(kSlot, DiaryBytes::Km, km);
    return diary;
}

/// The failures of writing each companion file, distinguished by number: lists and routes 75, calendar 76.
void BlockCompanions(const DayPage& page, const QString& folder)
{
    for (const QString& list : ListNames()) {
        page.folder.Block(folder + QLatin1Char('/') + list + QStringLiteral(".lsx"));
    }
    page.folder.Block(folder + QStringLiteral("/ListePercorso"));
    page.folder.Dangle(folder + QStringLiteral("/CalendarioGare"));
}

void ExpectBlockedCompanions(BoxScript& script)
{
    ExpectListsNotSaved(script, kDenied);
    script.Expect(BareReport(kDenied));
    script.Expect(BareReport(kNoFolder));
}

bool HourglassShown()
{
    return ScreenMousePointer() == MousePointer::Hourglass && QApplication::overrideCursor() != nullptr &&
           QApplication::overrideCursor()->shape() == Qt::WaitCursor;
}

} // namespace

class SaveTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saveWritesTheSetWithoutADialog();
    void saveWritesInOrderAndGoesOnAfterErrors();
    void hourglassWhileSaving();
    void saveAsMakesACopy();
    void saveAfterSaveAsGoesToTheCopy();
    void saveAsCopiesTheNameOfTheTable();
    void saveAsOntoItself();
    void saveAsOverwriteRefused();
    void saveAsInOtherLetters_data();
    void saveAsInOtherLetters();
    void saveAsWithDotsInTheName();
    void saveAsFromItsOwnFolder();
    void saveAsANameOfAFile();
    void saveAsOtherFolder_data();
    void saveAsOtherFolder();
    void saveAsCancelled();
    void saveAsIntoAnEmptyFolder();
    void saveAsWritesInOrder();
    void saveAsBelowTheDiaryFolder();
};

void SaveTest::saveWritesTheSetWithoutADialog()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    page.folder.Write(QStringLiteral("prova/nometab"), "untouched");
    page.folder.Write(QStringLiteral("nomeload"), "untouched");
    page->upKM->SetValue(17);
    page.AddEntry(SelectionList::Modo, "Passeggiata");
    page.Menu("mnuFile", Qt::Key_S);
    VERIFY_SCRIPT(page.script);
    QVERIFY(Module1::FileModificato == 0);
    QVERIFY(page.folder.Read(kDiary) == SampleWithKm("17").Bytes());
    QCOMPARE(page.folder.Read(QStringLiteral("prova/Modo.lsx")),
             SampleFile(QStringLiteral("prova/Modo.lsx")) + "\"Passeggiata\"\r\n");
    QCOMPARE(page.folder.Read(QStringLiteral("prova/nometab")), QByteArray("untouched"));
    QCOMPARE(page.folder.Read(QStringLiteral("nomeload")), QByteArray("untouched"));
}

void SaveTest::saveWritesInOrderAndGoesOnAfterErrors()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    page.folder.Dangle(kDiary);
    BlockCompanions(page, QStringLiteral("prova"));
    Module1::FileModificato = 1;
    page.script.Expect(BareReport(kNoFolder));
    ExpectBlockedCompanions(page.script);
    page.Menu("mnuFile", Qt::Key_S);
    VERIFY_SCRIPT(page.script);
    QVERIFY(Module1::FileModificato == 0);
}

void SaveTest::hourglassWhileSaving()
{
    DayPage page;
    page.Start();
    page.folder.Block(kDiary);
    page.folder.Block(QStringLiteral("prova/CalendarioGare"));
    bool atDiary = false;
    bool atCalendar = false;
    const ExpectedBox report = BareReport(kDenied);
    page.script.Expect(report);
    page.script.Meanwhile([&] { atDiary = HourglassShown(); });
    page.script.Expect(report);
    page.script.Meanwhile([&] { atCalendar = HourglassShown(); });
    page.Menu("mnuFile", Qt::Key_S);
    VERIFY_SCRIPT(page.script);
    QVERIFY(atDiary);
    QVERIFY(atCalendar);
    QVERIFY(ScreenMousePointer() == MousePointer::Default);
    QVERIFY(QApplication::overrideCursor() == nullptr);
}

void SaveTest::saveAsMakesACopy()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    page->upKM->SetValue(17);
    page.script.Expect(page.SaveDialog(kPreset, QStringLiteral("copia")));
    page.Menu("mnuFile", Qt::Key_V);
    VERIFY_SCRIPT(page.script);

    QVERIFY(page.folder.Read(QStringLiteral("ZelviaFile/copia.zlv")) == SampleWithKm("17").Bytes());
    QVERIFY(page.folder.Read(kDiary) == SampleFile(kDiary));
    QCOMPARE(page.folder.Files(QStringLiteral("copia")), FullSet());
    for (const QString& file : FullSet()) {
        QCOMPARE(page.folder.Read(QStringLiteral("copia/") + file), SampleFile(QStringLiteral("prova/") + file));
    }
    QVERIFY(Module1::FileModificato == 0);
    QCOMPARE(page->NomeFile, page.folder.System(kDiary));
    QCOMPARE(page->NomeBaseFile, Text("prova"));
    QCOMPARE(page.Caption("lblNomeFile"), QStringLiteral("prova"));
    QCOMPARE(Module1::CartellaDiario, page.folder.System(QStringLiteral("prova")));
    QCOMPARE(page->dlgCommonDialog.FileName, page.folder.System(QStringLiteral("ZelviaFile/copia.zlv")));
}

void SaveTest::saveAfterSaveAsGoesToTheCopy()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    page.script.Expect(page.SaveDialog(kPreset, QStringLiteral("copia")));
    page.Menu("mnuFile", Qt::Key_V);
    page->upKM->SetValue(18);
    page.AddEntry(SelectionList::Tipo, "Gita");
    page.Menu("mnuFile", Qt::Key_S);
    VERIFY_SCRIPT(page.script);
    QVERIFY(page.folder.Read(QStringLiteral("ZelviaFile/copia.zlv")) == SampleWithKm("18").Bytes());
    QVERIFY(page.folder.Read(kDiary) == SampleFile(kDiary));
    const QByteArray before = SampleFile(QStringLiteral("prova/Tipo.lsx"));
    QCOMPARE(page.folder.Read(QStringLiteral("prova/Tipo.lsx")), before + "\"Gita\"\r\n");
    QCOMPARE(page.folder.Read(QStringLiteral("copia/Tipo.lsx")), before);
}

void SaveTest::saveAsCopiesTheNameOfTheTable()
{
    DayPage page;
    page.Start();
    Module1::NomeTabellaAttiva = page.folder.System(QStringLiteral("prova/Base 10 km.tab"));
    page.script.Expect(page.SaveDialog(kPreset, QStringLiteral("copia")));
    page.Menu("mnuFile", Qt::Key_V);
    VERIFY_SCRIPT(page.script);
    QCOMPARE(page.folder.Read(QStringLiteral("copia/nometab")),
             '"' + QByteArray::fromStdString(Module1::NomeTabellaAttiva) + "\"\r\n");
    QCOMPARE(page.folder.Read(QStringLiteral("prova/nometab")), QByteArray("\"\"\r\n"));
}

void SaveTest::saveAsOntoItself()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    page.folder.Write(QStringLiteral("prova/nometab"), "untouched");
    page->upKM->SetValue(17);
    page.script.Expect(page.SaveDialog(kPreset, kPreset));
    page.script.Expect(page.OverwriteQuestion(kSaveTitle, kPreset, QMessageBox::Yes));
    page.Menu("mnuFile", Qt::Key_V);
    VERIFY_SCRIPT(page.script);
    QVERIFY(page.folder.Read(kDiary) == SampleWithKm("17").Bytes());
    QCOMPARE(page.folder.Read(QStringLiteral("prova/nometab")), QByteArray("untouched"));
    QCOMPARE(page.folder.Files(QStringLiteral("prova")).size(), 12);
}

void SaveTest::saveAsOverwriteRefused()
{
    DayPage page;
    page.Start();
    page.script.Expect(page.SaveDialog(kPreset, kPreset));
    page.script.Expect(page.OverwriteQuestion(kSaveTitle, kPreset, QMessageBox::No));
    page.script.Expect(page.SaveDialog(kPreset));
    page.Menu("mnuFile", Qt::Key_V);
    VERIFY_SCRIPT(page.script);
    QVERIFY(page.folder.Read(kDiary) == SampleFile(kDiary));
}

void SaveTest::saveAsInOtherLetters_data()
{
    QTest::addColumn<bool>("replaces");
    QTest::newRow("replaced") << true;
    QTest::newRow("not replaced") << false;
}

void SaveTest::saveAsInOtherLetters()
{
    QFETCH(bool, replaces);
    DayPage page(CalendarDate(2026, 3, 1));
    const QString maria = QStringLiteral("ZelviaFile/maria.zlv");
    const QByteArray before = DiaryBytes::Blank(2025).Bytes();
    page.folder.Write(maria, before);
    page.folder.Write(QStringLiteral("maria/nometab"), "untouched");
    page.Start();
    const QStringList files = page.folder.Files();
    page.script.Expect(page.SaveDialog(kPreset, QStringLiteral("Maria")));
    page.script.Expect(
        page.OverwriteQuestion(kSaveTitle, QStringLiteral("maria.zlv"), replaces ? QMessageBox::Yes : QMessageBox::No));
    if (!replaces) {
        page.script.Expect(page.SaveDialog(QStringLiteral("Maria")));
    }
    page.Menu("mnuFile", Qt::Key_V);
    VERIFY_SCRIPT(page.script);
    if (!replaces) {
        QCOMPARE(page.folder.Files(), files);
        QVERIFY(page.folder.Read(maria) == before);
        return;
    }
    // What was asked about is what is written, with its folder.
    QVERIFY(page.folder.Read(maria) == SampleWithKm("16").Bytes());
    QVERIFY(!page.folder.Exists(QStringLiteral("ZelviaFile/Maria.zlv")));
    QVERIFY(!page.folder.Exists(QStringLiteral("Maria")));
    QCOMPARE(page.folder.Files(QStringLiteral("maria")), FullSet());
    QCOMPARE(page.folder.Read(QStringLiteral("maria/nometab")), QByteArray("untouched"));
    QCOMPARE(page->dlgCommonDialog.FileName, page.folder.System(maria));
}

void SaveTest::saveAsWithDotsInTheName()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    page.script.Expect(page.SaveDialog(kPreset, QStringLiteral("gara 6.10")));
    page.Menu("mnuFile", Qt::Key_V);
    VERIFY_SCRIPT(page.script);
    const QString file = QStringLiteral("gara 6.10.zlv");
    QVERIFY(page.folder.Read(QStringLiteral("ZelviaFile/") + file) == SampleWithKm("16").Bytes());
    QVERIFY(!page.folder.Exists(QStringLiteral("ZelviaFile/gara 6.10")));
    // Its folder is named up to the first dot.
    QCOMPARE(page.folder.Files(QStringLiteral("gara 6")), FullSet());
    page.script.Expect(page.OpenDialog(file, QStringLiteral("gara 6.10")));
    page.Menu("mnuFile", Qt::Key_A);
    VERIFY_SCRIPT(page.script);
    QCOMPARE(page.Caption("lblNomeFile"), QStringLiteral("gara 6.10"));
}

void SaveTest::saveAsFromItsOwnFolder()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.folder.MakeFolder(QStringLiteral("maria"));
    page.Start();
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(page.folder.Native()));
    page.script.Expect(page.SaveDialog(kPreset, QStringLiteral("maria")));
    page.Menu("mnuFile", Qt::Key_V);
    QVERIFY(QDir::setCurrent(before));
    VERIFY_SCRIPT(page.script);
    QVERIFY(page.folder.Read(QStringLiteral("ZelviaFile/maria.zlv")) == SampleWithKm("16").Bytes());
    QVERIFY(!page.folder.Exists(QStringLiteral("ZelviaFile/maria")));
    QCOMPARE(page.folder.Files(QStringLiteral("maria")), FullSet());
}

void SaveTest::saveAsANameOfAFile()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    page.script.Expect(page.SaveDialog(kPreset, QStringLiteral("nomeload")));
    page.script.Expect(BoxOf(Messages::kFolderIsAFile, QMessageBox::Ok, {"nomeload"}));
    page.script.Expect(page.SaveDialog(QStringLiteral("nomeload"), QStringLiteral("copia")));
    page.Menu("mnuFile", Qt::Key_V);
    VERIFY_SCRIPT(page.script);
    QVERIFY(!page.folder.Exists(QStringLiteral("ZelviaFile/nomeload.zlv")));
    QCOMPARE(page.folder.Files(QStringLiteral("copia")), FullSet());
}

void SaveTest::saveAsOtherFolder_data()
{
    QTest::addColumn<bool>("cancels");
    QTest::newRow("then cancels") << true;
    QTest::newRow("then takes a good name") << false;
}

void SaveTest::saveAsOtherFolder()
{
    QFETCH(bool, cancels);
    DayPage page;
    page.Start();
    page.folder.MakeFolder(QStringLiteral("altrove"));
    Module1::FileModificato = 1;
    page.script.Expect(page.SaveDialog(kPreset, page.folder.Native(QStringLiteral("altrove/copia.zlv"))));
    page.script.Expect(Messages::kSavesElsewhere);
    page.script.Expect(page.SaveDialog(kPreset, cancels ? QString() : QStringLiteral("copia")));
    page.Menu("mnuFile", Qt::Key_V);
    VERIFY_SCRIPT(page.script);
    QVERIFY(page.folder.Files(QStringLiteral("altrove")).isEmpty());
    QCOMPARE(page.folder.Exists(QStringLiteral("ZelviaFile/copia.zlv")), !cancels);
    QVERIFY(Module1::FileModificato == (cancels ? 1 : 0));
    QCOMPARE(page->dlgCommonDialog.FileName,
             cancels ? page.folder.System(kDiary) : page.folder.System(QStringLiteral("ZelviaFile/copia.zlv")));
}

void SaveTest::saveAsCancelled()
{
    DayPage page;
    page.Start();
    page->upKM->SetValue(99);
    page.script.Expect(page.SaveDialog(kPreset));
    page.Menu("mnuFile", Qt::Key_V);
    VERIFY_SCRIPT(page.script);
    QVERIFY(page.folder.Read(kDiary) == SampleFile(kDiary));
    // The day was committed before the dialog came.
    QVERIFY(DayPage::Day().Km == 99);
    QVERIFY(Module1::FileModificato == 1);
    QVERIFY(QApplication::overrideCursor() == nullptr);
}

void SaveTest::saveAsIntoAnEmptyFolder()
{
    DayPage page;
    page.Start();
    page.folder.MakeFolder(QStringLiteral("copia"));
    page.script.Expect(page.SaveDialog(kPreset, QStringLiteral("copia")));
    page.Menu("mnuFile", Qt::Key_V);
    VERIFY_SCRIPT(page.script);
    QCOMPARE(page.folder.Files(QStringLiteral("copia")), FullSet());
}

void SaveTest::saveAsWritesInOrder()
{
    DayPage page;
    page.Start();
    BlockCompanions(page, QStringLiteral("copia"));
    QVERIFY(QFile::link(QStringLiteral("/dev/full"), page.folder.Native(QStringLiteral("copia/nometab"))));
    QVERIFY(QFile::link(page.folder.Native(QStringLiteral("missing/file")),
                        page.folder.Native(QStringLiteral("ZelviaFile/copia.zlv"))));
    page.script.Expect(page.SaveDialog(kPreset, QStringLiteral("copia")));
    page.script.Expect(BareReport(kNoFolder));
    page.script.Expect(Report(QStringLiteral("ERRORE : 61 Disco pieno")));
    ExpectBlockedCompanions(page.script);
    page.Menu("mnuFile", Qt::Key_V);
    VERIFY_SCRIPT(page.script);
    QCOMPARE(Module1::CartellaDiario, page.folder.System(QStringLiteral("prova")));
}

void SaveTest::saveAsBelowTheDiaryFolder()
{
    // Only the way to the diaries' folder counts, so the name is taken; its own folder can't be made.
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    page.folder.MakeFolder(QStringLiteral("ZelviaFile/sub"));
    page.script.Expect(page.SaveDialog(kPreset, QStringLiteral("sub/copia.zlv")));
    page.script.Expect(Report(QStringLiteral("mnuFileSaveAs - ERRORE : 76 Cartella non trovata")));
    page.Menu("mnuFile", Qt::Key_V);
    VERIFY_SCRIPT(page.script);
    QVERIFY(page.folder.Read(QStringLiteral("ZelviaFile/sub/copia.zlv")) == SampleWithKm("16").Bytes());
    QCOMPARE(Module1::CartellaDiario, page.folder.System(QStringLiteral("prova")));
    QVERIFY(QApplication::overrideCursor() == nullptr);
    QVERIFY(Module1::FileModificato == 0);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::SaveTest)
#include "SaveTest.moc"
