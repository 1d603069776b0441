// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// New, and what the saves after it do.
#include "core/Messages.h"
#include "diary/RouteModel.h"
#include "support/DayPage.h"
#include "support/DiaryBytes.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
namespace
{

const QString kDiary = QStringLiteral("ZelviaFile/prova.zlv");
const QString kPreset = QStringLiteral("prova.zlv");
const QString kNew = QStringLiteral("ZelviaFile/nuova.zlv");

/// The blank year of 2026 with one day that was shown and committed.
DiaryBytes BlankYearVisited(int slot)
{
    DiaryBytes diary = DiaryBytes::Blank(2026);
    diary.Visit(slot, QDate(2026, 1, 1).addDays(slot - 1));
    return diary;
}

} // namespace

class NewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newDiaryInMemoryOnly();
    void saveAfterNewReportsNineFiles();
    void saveAsAfterNewMakesTheFolder();
    void cancelKeepsTheDiary();
    void saveAfterACancelAsksForAName();
    void refusalAtSaveGoesBackToTheDiary();
    void saveAfterACancelCancelled();
    void aRefusalSpoilsEveryLaterNew_data();
    void aRefusalSpoilsEveryLaterNew();
    void theQuestionBefore_data();
    void theQuestionBefore();
    void overAnExistingFile_data();
    void overAnExistingFile();
    void aNameInOtherLetters();
    void aNameOfAFile_data();
    void aNameOfAFile();
};

void NewTest::newDiaryInMemoryOnly()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    page.GoTo(58);
    Module1::NomeTabellaAttiva = "attiva";
    page.AddEntry(SelectionList::Stagione, "Quinta");
    page.script.Expect(page.NewDialog(QStringLiteral("nuova")));
    page.Menu("mnuFile", Qt::Key_N);
    VERIFY_SCRIPT(page.script);

    QCOMPARE(page->NomeFile, page.folder.System(kNew));
    QCOMPARE(page->NomeBaseFile, Text("nuova"));
    QCOMPARE(page.Caption("lblNomeFile"), QStringLiteral("nuova"));
    QCOMPARE(Module1::CartellaDiario, page.folder.System(QStringLiteral("nuova")));
    QCOMPARE(Module1::NomeTabellaAttiva, Text());
    QCOMPARE(page.Caption("lblTabNomeFile"), QString());
    QVERIFY(Module1::FileModificato == 0);
    QVERIFY(page->NuovoAnnullato == 0);
    QVERIFY(Module1::DataCorrente == CalendarDate(2026, 3, 1));
    QVERIFY(page->DataMinima == CalendarDate(2001, 1, 1));
    QVERIFY(page->DataMassima == CalendarDate(2099, 12, 31));
    QCOMPARE(page->upKM->Value().value(), 0);
    QCOMPARE(page.Caption("lblImmisPercorso"), QString());
    QCOMPARE(page.Caption("lblNumKMPercorsi"), QString());
    QCOMPARE(page.Caption("lblNumGiorniCorseAnno"), QStringLiteral("0"));
    QCOMPARE(page->ListField(SelectionList::Percorso).lst->ListCount(), 0);
    QCOMPARE(page->ListField(SelectionList::Stagione).lst->ListCount(), 4);
    QCOMPARE(Module1::NomiPercorso[1], Text());
    QVERIFY(!page.folder.Exists(kNew));
    QVERIFY(!page.folder.Exists(QStringLiteral("nuova")));
    QCOMPARE(page->cursor().shape(), Qt::ArrowCursor);
}

void NewTest::saveAfterNewReportsNineFiles()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    page.script.Expect(page.NewDialog(QStringLiteral("nuova")));
    page.Menu("mnuFile", Qt::Key_N);
    ExpectListsNotSaved(page.script, kNoFolder);
    page.script.Expect(BareReport(kNoFolder));
    page.script.Expect(BareReport(kNoFolder));
    page.Menu("mnuFile", Qt::Key_S);
    VERIFY_SCRIPT(page.script);
    QVERIFY(page.folder.Read(kNew) == BlankYearVisited(60).Bytes());
    QVERIFY(!page.folder.Exists(QStringLiteral("nuova")));
    QVERIFY(page.folder.Read(kDiary) == SampleFile(kDiary));
    QVERIFY(Module1::FileModificato == 0);
}

void NewTest::saveAsAfterNewMakesTheFolder()
{
    DayPage page;
    page.Start();
    page.script.Expect(page.NewDialog(QStringLiteral("nuova")));
    page.Menu("mnuFile", Qt::Key_N);
    page.script.Expect(page.SaveDialog(QStringLiteral("nuova.zlv"), QStringLiteral("altra")));
    page.Menu("mnuFile", Qt::Key_V);
    VERIFY_SCRIPT(page.script);
    QCOMPARE(page.folder.Files(QStringLiteral("altra")), FullSet());
    QVERIFY(!page.folder.Exists(QStringLiteral("nuova")));
}

void NewTest::cancelKeepsTheDiary()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    const RecordGiorno before = Module1::Giorni[60];
    page.script.Expect(page.NewDialog());
    page.Menu("mnuFile", Qt::Key_N);
    VERIFY_SCRIPT(page.script);
    QVERIFY(page->NuovoAnnullato == 1);
    QVERIFY(Module1::Giorni[60] == before);
    QCOMPARE(page->NomeFile, page.folder.System(kDiary));
    QCOMPARE(page.Caption("lblNomeFile"), QStringLiteral("prova"));
    QCOMPARE(Module1::CartellaDiario, page.folder.System(QStringLiteral("prova")));
    QVERIFY(Module1::GiornoCorrente == 60);
    QCOMPARE(page.Caption("lblTabNomeFile"), QStringLiteral("Nessuna tabella attiva"));
}

void NewTest::saveAfterACancelAsksForAName()
{
    // The cancelled dialog has no name any more, and that is when a save shows its own.
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    page.script.Expect(page.NewDialog());
    page.Menu("mnuFile", Qt::Key_N);
    page.script.Expect(page.SaveDialog({}, QStringLiteral("copia")));
    page.Menu("mnuFile", Qt::Key_S);
    VERIFY_SCRIPT(page.script);
    QVERIFY(page.folder.Read(QStringLiteral("ZelviaFile/copia.zlv")) == SampleFile(kDiary));
    QCOMPARE(page->NomeFile, page.folder.System(kDiary));
}

void NewTest::refusalAtSaveGoesBackToTheDiary()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    page.script.Expect(page.NewDialog());
    page.Menu("mnuFile", Qt::Key_N);
    page->upKM->SetValue(17);
    page.folder.MakeFolder(QStringLiteral("altrove"));
    page.script.Expect(page.SaveDialog({}, page.folder.Native(QStringLiteral("altrove/copia"))));
    page.script.Expect(Messages::kSavesElsewhere);
    page.Menu("mnuFile", Qt::Key_S);
    VERIFY_SCRIPT(page.script);
    QVERIFY(page.folder.Files(QStringLiteral("altrove")).isEmpty());
    QCOMPARE(DiaryBytes(page.folder.Read(kDiary)).Line(60, DiaryBytes::Km), QByteArray("17"));
    QVERIFY(Module1::FileModificato == 0);
}

void NewTest::saveAfterACancelCancelled()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    page.script.Expect(page.NewDialog());
    page.Menu("mnuFile", Qt::Key_N);
    page->upKM->SetValue(17);
    page.script.Expect(page.SaveDialog({}));
    page.Menu("mnuFile", Qt::Key_S);
    VERIFY_SCRIPT(page.script);
    QVERIFY(page.folder.Read(kDiary) == SampleFile(kDiary));
    QVERIFY(Module1::FileModificato == 1);
}

void NewTest::aRefusalSpoilsEveryLaterNew_data()
{
    QTest::addColumn<QString>("before");
    QTest::newRow("refused in the same dialog") << "refusal";
    QTest::newRow("cancelled earlier") << "cancel";
}

void NewTest::aRefusalSpoilsEveryLaterNew()
{
    QFETCH(QString, before);
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    if (before == QLatin1String("cancel")) {
        page.script.Expect(page.NewDialog());
        page.Menu("mnuFile", Qt::Key_N);
    } else {
        page.folder.MakeFolder(QStringLiteral("altrove"));
        page.script.Expect(page.NewDialog(page.folder.Native(QStringLiteral("altrove/nuova"))));
        page.script.Expect(Messages::kSavesElsewhere);
    }
    page.script.Expect(page.NewDialog(QStringLiteral("nuova")));
    page.Menu("mnuFile", Qt::Key_N);
    VERIFY_SCRIPT(page.script);

    QVERIFY(page->NuovoAnnullato == 1);
    QCOMPARE(page->NomeFile, page.folder.System(kDiary));
    QCOMPARE(page->NomeBaseFile, Text("prova"));
    QCOMPARE(Module1::CartellaDiario, page.folder.System(QStringLiteral("prova")));
    QVERIFY(Module1::GiornoCorrente == 60);
    QVERIFY(Module1::Giorni[59].Km == 0);
    QCOMPARE(page.Caption("lblNomeFile"), QStringLiteral("prova"));
    // The page shows on as before, and a save writes it with the blanked year over the old diary.
    QCOMPARE(page->upKM->Value().value(), 16);
    page.Menu("mnuFile", Qt::Key_S);
    VERIFY_SCRIPT(page.script);
    DiaryBytes expected = DiaryBytes::Blank(2026);
    expected.CopyDay(DiaryBytes(SampleFile(kDiary)), 60);
    QVERIFY(page.folder.Read(kDiary) == expected.Bytes());
    QVERIFY(!page.folder.Exists(kNew));
    QCOMPARE(page.folder.Read(QStringLiteral("prova/Percorso.lsx")), SampleFile(QStringLiteral("prova/Percorso.lsx")));
}

void NewTest::theQuestionBefore_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<int>("kmOnDisk");
    QTest::addColumn<int>("kmInMemory");
    QTest::newRow("yes saves first") << int(QMessageBox::Yes) << 41 << 0;
    QTest::newRow("no forgets") << int(QMessageBox::No) << 16 << 0;
    QTest::newRow("cancel") << int(QMessageBox::Cancel) << 16 << 41;
}

void NewTest::theQuestionBefore()
{
    QFETCH(int, answer);
    QFETCH(int, kmOnDisk);
    QFETCH(int, kmInMemory);
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    page->upKM->SetValue(41);
    page.script.Expect(Messages::kSaveDiary, QMessageBox::StandardButton(answer));
    if (answer != QMessageBox::Cancel) {
        page.script.Expect(page.NewDialog(QStringLiteral("nuova")));
    }
    page.Menu("mnuFile", Qt::Key_N);
    VERIFY_SCRIPT(page.script);
    QCOMPARE(DiaryBytes(page.folder.Read(kDiary)).Line(60, DiaryBytes::Km), QByteArray::number(kmOnDisk));
    QVERIFY(Module1::Giorni[60].Km == kmInMemory);
    QVERIFY(Module1::FileModificato == (answer == QMessageBox::Cancel ? 1 : 0));
}

void NewTest::overAnExistingFile_data()
{
    QTest::addColumn<bool>("replaces");
    QTest::newRow("replaced") << true;
    QTest::newRow("not replaced") << false;
}

void NewTest::overAnExistingFile()
{
    QFETCH(bool, replaces);
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    page.script.Expect(page.NewDialog(kPreset));
    page.script.Expect(
        page.OverwriteQuestion(QStringLiteral("Nuovo file"), kPreset, replaces ? QMessageBox::Yes : QMessageBox::No));
    if (!replaces) {
        ExpectedDialog again = page.NewDialog();
        again.preset = kPreset;
        page.script.Expect(again);
    }
    page.Menu("mnuFile", Qt::Key_N);
    VERIFY_SCRIPT(page.script);
    QVERIFY(Module1::Giorni[60].Km == (replaces ? 0 : 16));
    QVERIFY(page.folder.Read(kDiary) == SampleFile(kDiary));
    QCOMPARE(page->NomeFile, page.folder.System(kDiary));
}

void NewTest::aNameInOtherLetters()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    page.script.Expect(page.NewDialog(QStringLiteral("PROVA")));
    page.script.Expect(page.OverwriteQuestion(QStringLiteral("Nuovo file"), kPreset, QMessageBox::Yes));
    page.Menu("mnuFile", Qt::Key_N);
    VERIFY_SCRIPT(page.script);
    QCOMPARE(page->NomeFile, page.folder.System(kDiary));
    QCOMPARE(Module1::CartellaDiario, page.folder.System(QStringLiteral("prova")));
    page.Menu("mnuFile", Qt::Key_S);
    VERIFY_SCRIPT(page.script);
    QVERIFY(page.folder.Read(kDiary) == BlankYearVisited(60).Bytes());
    QVERIFY(!page.folder.Exists(QStringLiteral("ZelviaFile/PROVA.zlv")));
}

void NewTest::aNameOfAFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("folder"); // The name that its folder would have.
    QTest::newRow("the program") << "zelvia"
                                 << "zelvia";
    QTest::newRow("the pointer") << "nomeload"
                                 << "nomeload";
    QTest::newRow("in other letters") << "NomeLoad"
                                      << "NomeLoad";
    QTest::newRow("up to the first dot") << "nomeload.2027"
                                         << "nomeload";
    QTest::newRow("a link that leads nowhere") << "perso"
                                               << "perso";
}

void NewTest::aNameOfAFile()
{
    QFETCH(QString, name);
    QFETCH(QString, folder);
    DayPage page(CalendarDate(2026, 3, 1));
    page.folder.Write(QStringLiteral("zelvia"), "the program");
    page.folder.Dangle(QStringLiteral("perso"));
    page.Start();
    const QStringList files = page.folder.Files();
    page.script.Expect(page.NewDialog(name));
    page.script.Expect(BoxOf(Messages::kFolderIsAFile, QMessageBox::Ok, {FromQString(folder)}));
    ExpectedDialog again = page.NewDialog(QStringLiteral("nuova"));
    again.preset = name;
    page.script.Expect(again);
    page.Menu("mnuFile", Qt::Key_N);
    VERIFY_SCRIPT(page.script);
    // The dialog was not cancelled meanwhile: the new diary is there.
    QVERIFY(page->NuovoAnnullato == 0);
    QCOMPARE(page->NomeFile, page.folder.System(kNew));
    QCOMPARE(page.Caption("lblNomeFile"), QStringLiteral("nuova"));
    QCOMPARE(page.folder.Files(), files);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::NewTest)
#include "NewTest.moc"
