// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Open, New, Save and Save As on a page that only notes what is asked of it.
#include "diary/FileCommands.h"

#include "core/Messages.h"
#include "core/RunTimeError.h"
#include "diary/Module1.h"
#include "support/Bytes.h"
#include "support/MessageScript.h"
#include "support/TempFolder.h"
#include "support/TestProgram.h"

#include <QTest>

#include <deque>
#include <optional>

using namespace zelvia;
using namespace zelvia::test;

namespace
{

/// Notes what the commands ask and answers their dialogs in turn, none for Cancel.
class NotedPage : public DiaryPage
{
public:
    QStringList asked;
    std::deque<std::optional<Text>> choices;
    std::vector<Session> atDialogs;
    bool calendarStays = false;
    Text chosen;

    void AssegnaCampi() override { asked << QStringLiteral("AssegnaCampi"); }
    void AzzeraCampi() override { asked << QStringLiteral("AzzeraCampi"); }
    void Data() override { asked << QStringLiteral("Data"); }
    void VisualizzaGiorno() override { asked << QStringLiteral("VisualizzaGiorno"); }
    void DatiAnno() override { asked << QStringLiteral("DatiAnno"); }
    void NessunaTabella() override { asked << QStringLiteral("NessunaTabella"); }
    void AssegnaGara() override { asked << QStringLiteral("AssegnaGara"); }
    void ShowDiaryName() override { asked << QStringLiteral("diary's name"); }
    void ShowTableName() override { asked << QStringLiteral("table's name"); }
    void ShowActiveTable() override { asked << QStringLiteral("active table"); }
    void ShowList(SelectionList lista) override { asked << QStringLiteral("list %1").arg(static_cast<int>(lista)); }
    void ShowOtherDiary() override { asked << QStringLiteral("other diary"); }
    bool CalendarStays() override { return calendarStays; }
    void SetBusy(bool busy) override { asked << (busy ? QStringLiteral("busy") : QStringLiteral("idle")); }
    Text& ChosenName() override { return chosen; }

    void ChooseFile(const FileChoice& choice) override
    {
        asked << QStringLiteral("dialog ") + QString::fromStdString(Text(choice.title));
        atDialogs.push_back(Module1::session);
        if (choices.empty()) {
            QFAIL("a dialog that was not expected");
        }
        const std::optional<Text> answer = choices.front();
        choices.pop_front();
        if (!answer) {
            throw ErroreRunTime(Errore::Annullato);
        }
        chosen = *answer;
    }
};

} // namespace

class FileCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theQuestion_data();
    void theQuestion();
    void openResetsAndReads();
    void openCancelled();
    void openRefusedThenCancelled();
    void openNotSaved();
    void theCalendarStays();
    void saveWithoutADialog();
    void saveAsksForAName();
    void saveRefusedGoesToTheOpenDiary();
    void saveAsMakesACopy();
    void newInMemoryOnly();
    void newCancelledStaysCancelled();
    void startReadsThePointer();

private:
    void SaveOther();
    Text Diary(const char* name) const { return folder_->Path(std::string("ZelviaFile/") + name); }

    std::unique_ptr<TempFolder> folder_;
    NotedPage page_;
    std::unique_ptr<FileCommands> files_;
};

void FileCommandsTest::init()
{
    folder_ = std::make_unique<TempFolder>();
    page_ = NotedPage();
    files_ = std::make_unique<FileCommands>(page_);
    SetProgramFolder(folder_->Path());
    folder_->MakeFolder("ZelviaFile");
    folder_->MakeFolder("prova");
    folder_->MakeFolder("altra");
    Module1::AzzeraStato();
    Module1::AzzeraAnno();
    Session& session = Module1::session;
    session.NomeFile = Diary("prova.zlv");
    session.NomeBaseFile = "prova";
    session.CartellaDiario = folder_->Path("prova");
    session.GiornoCorrente = 60;
    session.UltimoPeso = 71;
    session.KmAnno = 500;
    session.GareAnno = 3;
    session.PercorsoCorrente = "Lago";
    page_.chosen = session.NomeFile;
}

void FileCommandsTest::cleanup()
{
    SetProgramFolder({});
    Module1::AzzeraStato();
}

void FileCommandsTest::theQuestion_data()
{
    QTest::addColumn<int>("changed");
    QTest::addColumn<int>("answer");
    QTest::addColumn<int>("cancelled");
    QTest::addColumn<int>("changedThen");
    QTest::addColumn<bool>("saved");
    QTest::newRow("nothing to save") << 0 << -1 << 0 << 0 << false;
    QTest::newRow("yes") << 1 << static_cast<int>(MsgAnswer::Yes) << 0 << 0 << true;
    QTest::newRow("no") << 1 << static_cast<int>(MsgAnswer::No) << 0 << 0 << false;
    QTest::newRow("cancel") << 1 << static_cast<int>(MsgAnswer::Cancel) << 1 << 1 << false;
}

void FileCommandsTest::theQuestion()
{
    QFETCH(int, changed);
    QFETCH(int, answer);
    QFETCH(int, cancelled);
    QFETCH(int, changedThen);
    QFETCH(bool, saved);
    Module1::FileModificato = changed;
    MessageScript script;
    if (answer >= 0) {
        script.Expect(Messages::kSaveDiary, static_cast<MsgAnswer>(answer));
    }
    i16 annullato = 7;
    files_->ChiediSalvataggio(annullato);
    QVERIFY(annullato == cancelled);
    QVERIFY(Module1::FileModificato == changedThen);
    QCOMPARE(folder_->Has("ZelviaFile/prova.zlv"), saved);
}

/// Writes a second diary, whose types are but one.
void FileCommandsTest::SaveOther()
{
    const Session open = Module1::session;
    page_.chosen = Diary("altra.zlv");
    Module1::CartellaDiario = folder_->Path("altra");
    EntriesOf(SelectionList::Tipo) = {"Gara"};
    files_->mnuFileSave_Click();
    Module1::session = open;
    page_.chosen = open.NomeFile;
    page_.asked.clear();
}

void FileCommandsTest::openResetsAndReads()
{
    const MessageScript script;
    SaveOther();
    EntriesOf(SelectionList::Modo) = {"Lenta"};
    page_.choices = {Diary("altra.zlv")};
    files_->mnuFileOpen_Click();
    Session reset;
    reset.UltimoPeso = 71;
    reset.KmAnno = 500;
    reset.lists[static_cast<int>(SelectionList::Modo)] = {"Lenta"};
    QVERIFY(page_.atDialogs.front() == reset);
    QCOMPARE(page_.asked.join(QStringLiteral(", ")),
             QStringLiteral("AssegnaCampi, dialog Apri, Data, VisualizzaGiorno, DatiAnno, diary's name, "
                            "NessunaTabella, table's name, list 1, list 2, list 3, list 4, list 5, list 7, list 8, "
                            "AssegnaGara, other diary"));
    QCOMPARE(Module1::session.NomeFile, Diary("altra.zlv"));
    QCOMPARE(Module1::session.NomeBaseFile, Text("altra"));
    QCOMPARE(Module1::CartellaDiario, folder_->Path("altra"));
    QCOMPARE(EntriesOf(SelectionList::Tipo), std::vector<Text>{"Gara"});
}

void FileCommandsTest::openCancelled()
{
    const MessageScript script;
    const Session before = Module1::session;
    page_.choices = {std::nullopt};
    files_->mnuFileOpen_Click();
    QVERIFY(Module1::session == before);
    QCOMPARE(page_.asked, (QStringList{QStringLiteral("AssegnaCampi"), QStringLiteral("dialog Apri")}));
}

void FileCommandsTest::openRefusedThenCancelled()
{
    MessageScript script;
    script.Expect(Messages::kOpensElsewhere);
    const Session before = Module1::session;
    page_.choices = {folder_->Path("altrove/ZelviaFile/x.zlv"), std::nullopt};
    files_->mnuFileOpen_Click();
    QVERIFY(script.AllShown());
    QVERIFY(Module1::session == before);
    QCOMPARE(page_.chosen, before.NomeFile);
}

void FileCommandsTest::openNotSaved()
{
    Module1::FileModificato = 1;
    MessageScript script;
    script.Expect(Messages::kSaveDiary, MsgAnswer::Cancel);
    files_->mnuFileOpen_Click();
    QCOMPARE(page_.asked, QStringList{QStringLiteral("AssegnaCampi")});
}

void FileCommandsTest::theCalendarStays()
{
    const MessageScript script;
    page_.calendarStays = true;
    files_->mnuFileOpen_Click();
    files_->mnuFileNuovo_Click();
    QVERIFY(page_.asked.isEmpty());
}

void FileCommandsTest::saveWithoutADialog()
{
    const MessageScript script;
    Module1::FileModificato = 1;
    files_->mnuFileSave_Click();
    QVERIFY(Module1::FileModificato == 0);
    for (const char* name : {"ZelviaFile/prova.zlv", "prova/Percorso.lsx", "prova/Temperatura.lsx",
                             "prova/ListePercorso", "prova/CalendarioGare"}) {
        QVERIFY2(folder_->Has(name), name);
    }
    QVERIFY(!folder_->Has("prova/Stagione.lsx"));
    QVERIFY(!folder_->Has("prova/nometab"));
    QCOMPARE(page_.asked, QStringList{QStringLiteral("AssegnaCampi")});
}

void FileCommandsTest::saveAsksForAName()
{
    const MessageScript script;
    Module1::FileModificato = 1;
    page_.chosen.clear();
    page_.choices = {std::nullopt};
    files_->mnuFileSave_Click();
    QVERIFY(Module1::FileModificato == 1);
    QVERIFY(!folder_->Has("ZelviaFile/prova.zlv"));
}

void FileCommandsTest::saveRefusedGoesToTheOpenDiary()
{
    MessageScript script;
    script.Expect(Messages::kSavesElsewhere);
    page_.chosen.clear();
    page_.choices = {folder_->Path("altrove/ZelviaFile/x.zlv")};
    files_->mnuFileSave_Click();
    QCOMPARE(page_.chosen, Diary("prova.zlv"));
    QVERIFY(folder_->Has("ZelviaFile/prova.zlv"));
}

void FileCommandsTest::saveAsMakesACopy()
{
    const MessageScript script;
    Module1::FileModificato = 1;
    Module1::NomeTabellaAttiva = folder_->Path("prova/base.tab");
    page_.choices = {Diary("copia.zlv")};
    files_->mnuFileSaveAs_Click();
    QVERIFY(Module1::FileModificato == 0);
    QVERIFY(folder_->Has("ZelviaFile/copia.zlv"));
    QVERIFY(!folder_->Has("ZelviaFile/prova.zlv"));
    QCOMPARE(folder_->Read("copia/nometab"), "\"" + folder_->Path("prova/base.tab") + "\"\r\n");
    QVERIFY(folder_->Has("copia/CalendarioGare"));
    QCOMPARE(Module1::session.NomeFile, Diary("prova.zlv"));
    QCOMPARE(Module1::CartellaDiario, folder_->Path("prova"));
    QCOMPARE(page_.chosen, Diary("copia.zlv"));
}

void FileCommandsTest::newInMemoryOnly()
{
    const MessageScript script;
    Module1::Giorni[60].Km = 12;
    page_.choices = {Diary("nuova.zlv")};
    files_->mnuFileNuovo_Click();
    QVERIFY(Module1::Giorni[60].Km == 0);
    QVERIFY(files_->NuovoAnnullato == 0);
    QCOMPARE(Module1::session.NomeFile, Diary("nuova.zlv"));
    QCOMPARE(EntriesOf(SelectionList::Tipo), (std::vector<Text>{"Allenamento", "Gara"}));
    QVERIFY(!folder_->Has("ZelviaFile/nuova.zlv"));
    QVERIFY(!folder_->Has("nuova"));
    QCOMPARE(page_.asked.last(), QStringLiteral("other diary"));
}

void FileCommandsTest::newCancelledStaysCancelled()
{
    const MessageScript script;
    const Session before = Module1::session;
    page_.choices = {std::nullopt, Diary("nuova.zlv")};
    files_->mnuFileNuovo_Click();
    QVERIFY(files_->NuovoAnnullato == 1);
    QVERIFY(Module1::session == before);
    QVERIFY(page_.chosen.empty());
    // The flag is never cleared: a later New blanks the year and keeps the old names.
    Module1::Giorni[60].Km = 12;
    files_->mnuFileNuovo_Click();
    QVERIFY(Module1::session == before);
    QVERIFY(Module1::Giorni[60].Km == 0);
    QCOMPARE(page_.chosen, before.NomeFile);
}

void FileCommandsTest::startReadsThePointer()
{
    const MessageScript script;
    folder_->Write("nomeload", "\"" + Diary("prima.zlv") + "\"\r\n");
    files_->Start();
    QVERIFY(page_.atDialogs.empty());
    QCOMPARE(page_.chosen, Diary("prima.zlv"));
    QCOMPARE(Module1::session.NomeBaseFile, Text("prima"));
    for (const char* name : {"prima/ListePercorso", "prima/CalendarioGare", "prima/nometab", "prima/Tipo.lsx"}) {
        QVERIFY2(folder_->Has(name), name);
    }
}

ZELVIA_TEST(FileCommandsTest)
#include "FileCommandsTest.moc"
