// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/BoxTexts.h"
#include "core/Files.h"
#include "diary/FileCommands.h"
#include "diary/Module1.h"
#include "support/DiaryBytes.h"
#include "support/FixedClock.h"
#include "support/TestProgram.h"
#include "tools/strumenti/ToolsDesk.h"

#include <QTest>

#include <algorithm>
#include <filesystem>

using namespace zelvia;
using namespace zelvia::test;
namespace fs = std::filesystem;

class NewYearTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EqualsTheManualSteps_data();
    void EqualsTheManualSteps();
    void EveryYear();
    void TheFirstDiaryOfAll();
    void TakesWhatThePresentOneHas();
    void OpensAtTheNextStart();
    void AnExistingOneStays_data();
    void AnExistingOneStays();
    void WrongYears_data();
    void WrongYears();
    void IsAskedFirst_data();
    void IsAskedFirst();
    void OnlyShown();
    void APresentOneThatIsNotThere();
    void WhatWasLeftUndoneIsCompleted();
    void LinksAreNotFollowed();
};

namespace
{

/// A page that shows nothing and chooses the same file in every dialog.
class BlindPage : public DiaryPage
{
public:
    explicit BlindPage(Text choice = {}) : choice_(std::move(choice)) {}

    void AssegnaCampi() override {}
    void AzzeraCampi() override {}
    void Data() override {}
    void VisualizzaGiorno() override {}
    void DatiAnno() override {}
    void NessunaTabella() override {}
    void AssegnaGara() override {}
    void ShowDiaryName() override {}
    void ShowTableName() override {}
    void ShowActiveTable() override {}
    void ShowList(SelectionList /*list*/) override {}
    void ShowOtherDiary() override {}
    bool CalendarStays() override { return false; }
    void SetBusy(bool /*busy*/) override {}
    Text& ChosenName() override { return chosen_; }
    void ChooseFile(const FileChoice& /*choice*/) override { chosen_ = choice_; }

private:
    Text choice_;
    Text chosen_;
};

/// What a runner does by hand for the new year, but for the days that the page would show meanwhile.
void TakeTheManualSteps(const ToolsDesk& desk, int year, bool races)
{
    const std::string name = std::to_string(year);
    const FixedClock newYearsDay(CalendarDate(year, 1, 1));
    SetProgramFolder(SystemPath(desk.Native()));
    BlindPage page(SystemPath(desk.Native("ZelviaFile/" + name + ".zlv")));
    FileCommands commands(page);
    commands.Start();
    commands.mnuFileNuovo_Click();
    commands.mnuFileSaveAs_Click();
    std::string path = desk.Native("ZelviaFile/" + name + ".zlv");
    std::replace(path.begin(), path.end(), '/', '\\');
    desk.Write("nomeload", "\"" + path + "\"\r\n");
    for (const fs::directory_entry& file : fs::directory_iterator(desk.Native("prova"))) {
        const std::string extension = file.path().extension().string();
        const std::string base = file.path().filename().string();
        if (extension == ".lsx" || extension == ".tab" || base == "ListePercorso" ||
            (races && base == "CalendarioGare")) {
            fs::copy_file(file.path(), desk.Native(name) + "/" + base, fs::copy_options::overwrite_existing);
        }
    }
}

/// All that is in a program folder, with its own path replaced.
QByteArray WithoutItsPath(const ToolsDesk& desk)
{
    QByteArray path = QByteArray::fromStdString(desk.Native());
    path.replace('/', '\\');
    return desk.Everything().replace(path, "HERE");
}

std::vector<std::string> Command(int year, bool races)
{
    std::vector<std::string> words{"anno", std::to_string(year), "--si"};
    if (races) {
        words.emplace_back("--gare");
    }
    return words;
}

} // namespace

void NewYearTest::EqualsTheManualSteps_data()
{
    QTest::addColumn<int>("year");
    QTest::addColumn<bool>("races");
    for (const int year : {2001, 2027, 2028, 2096, 2099}) {
        QTest::addRow("%d", year) << year << false;
    }
    QTest::newRow("2027 with the races") << 2027 << true;
}

void NewYearTest::EqualsTheManualSteps()
{
    QFETCH(int, year);
    QFETCH(bool, races);
    const ToolsDesk byHand;
    const BoxTexts boxes;
    TakeTheManualSteps(byHand, year, races);
    QVERIFY(boxes.All().empty());
    const ToolsDesk desk;
    const Outcome outcome = desk.Run(Command(year, races));
    QCOMPARE(outcome.err, QByteArray());
    QCOMPARE(outcome.status, 0);
    QVERIFY(desk.Has(std::to_string(year) + "/Base 10 km.tab"));
    QCOMPARE(Difference(WithoutItsPath(desk).toStdString(), WithoutItsPath(byHand).toStdString()), QByteArray());
    QCOMPARE(desk.Copies(), 1);
}

void NewYearTest::EveryYear()
{
    const ToolsDesk desk;
    for (int year = 2001; year <= 2099; ++year) {
        const Outcome outcome = desk.Run(Command(year, false));
        QCOMPARE(outcome.status, 0);
        const std::string name = std::to_string(year);
        QCOMPARE(Difference(desk.Read("ZelviaFile/" + name + ".zlv"), DiaryBytes::Blank(year).Bytes().toStdString()),
                 QByteArray());
        QCOMPARE(desk.Read(name + "/nometab"), "\"\"\r\n");
        // The rest takes its time.
        fs::remove_all(desk.Native(name));
        fs::remove(desk.Native("ZelviaFile/" + name + ".zlv"));
        desk.Write("nomeload", "\"\"\r\n");
    }
}

void NewYearTest::TheFirstDiaryOfAll()
{
    const ToolsDesk byHand;
    const ToolsDesk desk;
    for (const ToolsDesk* each : {&byHand, &desk}) {
        fs::remove_all(each->Native("prova"));
        fs::remove(each->Native("ZelviaFile/prova.zlv"));
        fs::create_directory(each->Native("prova"));
    }
    qputenv("HOME", QByteArray::fromStdString(desk.home.Native()));
    const BoxTexts boxes;
    TakeTheManualSteps(byHand, 2027, false);
    QVERIFY(boxes.All().empty());
    const Outcome outcome = desk.Run({"anno", "2027", "--si"});
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.out, QByteArray("Diario nuovo: 2027, con i giorni vuoti del 2027 e la cartella «2027».\n"
                                     "Il calendario delle gare è vuoto.\n"
                                     "All'avvio si aprirà il diario 2027.\n"
                                     "Il diario 2027 è pronto: Zelvia lo apre al prossimo avvio.\n"));
    // The start has laid the folder of the other one.
    fs::remove_all(byHand.Native("prova"));
    fs::create_directory(byHand.Native("prova"));
    QCOMPARE(Difference(WithoutItsPath(desk).toStdString(), WithoutItsPath(byHand).toStdString()), QByteArray());
}

void NewYearTest::TakesWhatThePresentOneHas()
{
    const ToolsDesk desk;
    fs::create_directory(desk.Native("anna"));
    desk.Write("anna/TIPO.LSX", "\"Gara\"\r\n");
    desk.Write("anna/Salita.TAB", "tabella");
    desk.Write("anna/appunti", "x");
    const Outcome outcome = desk.Run({"--diario", "anna", "anno", "2027", "--gare", "--si"});
    QCOMPARE(outcome.err, QByteArray());
    QCOMPARE(outcome.out, QByteArray("Diario nuovo: 2027, con i giorni vuoti del 2027 e la cartella «2027».\n"
                                     "Dal diario «anna»:\n"
                                     "  Tipo.lsx\n"
                                     "  Salita.TAB\n"
                                     "Il calendario delle gare è vuoto.\n"
                                     "All'avvio si aprirà il diario 2027.\n"
                                     "Il diario 2027 è pronto: Zelvia lo apre al prossimo avvio.\n"));
    QCOMPARE(desk.Read("2027/Tipo.lsx"), "\"Gara\"\r\n");
    QCOMPARE(desk.Read("2027/Salita.TAB"), "tabella");
    QVERIFY(!desk.Has("2027/appunti") && desk.Has("2027/Modo.lsx") && desk.Has("2027/CalendarioGare"));
}

void NewYearTest::OpensAtTheNextStart()
{
    const ToolsDesk desk;
    QCOMPARE(desk.Run({"anno", "2028", "--si", "--gare"}).status, 0);
    const FixedClock newYearsDay(CalendarDate(2028, 1, 1));
    const BoxTexts boxes;
    SetProgramFolder(SystemPath(desk.Native()));
    BlindPage page;
    FileCommands(page).Start();
    QVERIFY(boxes.All().empty());
    QCOMPARE(Bytes(Module1::session.NomeBaseFile), QByteArray("2028"));
    QCOMPARE(Bytes(Module1::CartellaDiario), Bytes(SystemPath(desk.Native("2028"))));
    QVERIFY(Module1::Giorni[366].Data == CalendarDate(2028, 12, 31));
    QVERIFY(Module1::NomeTabellaAttiva.empty());
    const auto& routes = Module1::session.lists[1];
    QVERIFY(!routes.empty());
}

void NewYearTest::AnExistingOneStays_data()
{
    QTest::addColumn<QByteArray>("there");
    QTest::newRow("diary") << QByteArray("ZelviaFile/2027.zlv");
    QTest::newRow("diary in capitals") << QByteArray("ZelviaFile/2027.ZLV");
    QTest::newRow("folder") << QByteArray("2027/Tipo.lsx");
    QTest::newRow("hidden file in the folder") << QByteArray("2027/.x");
    QTest::newRow("file in place of the folder") << QByteArray("2027");
}

void NewYearTest::AnExistingOneStays()
{
    QFETCH(QByteArray, there);
    const ToolsDesk desk;
    fs::create_directories(fs::path(desk.Native(there.toStdString())).parent_path());
    desk.Write(there.toStdString(), "x");
    const QByteArray before = desk.Everything();
    const Outcome outcome = desk.Run({"anno", "2027", "--si"});
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.out, QByteArray());
    const QByteArray place = there.startsWith("2027/") ? QByteArray("2027") : there;
    QCOMPARE(outcome.err,
             QByteArray("zelvia-strumenti: il diario 2027 c'è già («" + QByteArray::fromStdString(desk.Native()) + '/' +
                        place + "») e resta com'è.\nNiente è stato cambiato.\n"));
    QCOMPARE(desk.Everything(), before);
    QCOMPARE(desk.Copies(), 0);
}

void NewYearTest::WrongYears_data()
{
    QTest::addColumn<QByteArray>("year");
    for (const char* year : {"2000", "2100", "27", "-2027", "2027x", "x", "02027x", " 2027"}) {
        QTest::newRow(year) << QByteArray(year);
    }
}

void NewYearTest::WrongYears()
{
    QFETCH(QByteArray, year);
    const ToolsDesk desk;
    const Outcome outcome = desk.Run({"anno", year.toStdString()});
    QCOMPARE(outcome.status, 2);
    const QByteArray reason =
        year.startsWith('-') ? "Opzione sconosciuta: -2027" : "«" + year + "» non è un anno dal 2001 al 2099.";
    QCOMPARE(outcome.err.left(outcome.err.indexOf('\n')), reason);
    QVERIFY(!desk.Has(".zelvia.lock"));
}

void NewYearTest::IsAskedFirst_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<bool>("made");
    QTest::newRow("s") << QByteArray("s") << true;
    QTest::newRow("sì") << QByteArray("sì") << true;
    QTest::newRow("nothing") << QByteArray("") << false;
    QTest::newRow("n") << QByteArray("n") << false;
    QTest::newRow("a capital letter") << QByteArray("S") << false;
    QTest::newRow("si without the accent") << QByteArray("si") << false;
    QTest::newRow("more words") << QByteArray("s s") << false;
}

void NewYearTest::IsAskedFirst()
{
    QFETCH(QByteArray, answer);
    QFETCH(bool, made);
    const ToolsDesk desk;
    const QByteArray before = desk.Everything();
    const Outcome outcome = desk.Answer({"anno", "2027"}, answer.toStdString());
    QCOMPARE(outcome.status, made ? 0 : 1);
    QVERIFY(outcome.out.contains("\nPreparare il diario? (s/N) "));
    QCOMPARE(desk.Has("ZelviaFile/2027.zlv"), made);
    QCOMPARE(desk.Everything() == before, !made);
    QVERIFY(outcome.out.endsWith(made ? "prossimo avvio.\n" : "Niente è stato cambiato.\n"));
}

void NewYearTest::OnlyShown()
{
    const ToolsDesk desk;
    const QByteArray before = desk.Everything();
    Outcome outcome = desk.Run({"anno", "2027", "--prova", "--si"});
    QCOMPARE(outcome.status, 0);
    QVERIFY(outcome.out.endsWith("È una prova: niente è stato cambiato.\n"));
    QCOMPARE(desk.Everything(), before);
    outcome = desk.Run({"anno", "2027"});
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.err,
             QByteArray("Manca la conferma: niente è stato cambiato. Confermare da un terminale, o con --si.\n"));
    QCOMPARE(desk.Everything(), before);
    QCOMPARE(desk.Copies(), 0);
    outcome = desk.Run({"anno", "2027", "--tsv", "--si"});
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.out, QByteArray());
}

void NewYearTest::APresentOneThatIsNotThere()
{
    const ToolsDesk desk;
    Outcome outcome = desk.Run({"anno", "2027", "--si", "--diario", "anna"});
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.err, QByteArray("zelvia-strumenti: il diario «anna» non c'è: «zelvia-strumenti anni» mostra "
                                     "quelli che ci sono.\nNiente è stato cambiato.\n"));
    desk.Write("nomeload", "\"\\altrove\\ZelviaFile\\a.zlv\"\r\n");
    outcome = desk.Run({"anno", "2027", "--si"});
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.err, QByteArray("zelvia-strumenti: «" + QByteArray::fromStdString(desk.Native("nomeload")) +
                                     "» indica «\\altrove\\ZelviaFile\\a.zlv», che non è un diario di questa "
                                     "cartella; il diario si indica con --diario.\nNiente è stato cambiato.\n"));
    desk.Write("nomeload", "");
    QCOMPARE(desk.Run({"anno", "2027", "--si"}).status, 1);
    QVERIFY(!desk.Has("ZelviaFile/2027.zlv"));
    QCOMPARE(desk.Run({"anno", "2027", "--si", "--diario", "prova"}).status, 0);
}

void NewYearTest::WhatWasLeftUndoneIsCompleted()
{
    // As a process killed before the last file has left it.
    const ToolsDesk desk;
    fs::create_directories(desk.Native(".zelvia-strumenti/prima"));
    fs::create_directories(desk.Native(".zelvia-strumenti/dopo"));
    desk.Write(".zelvia-strumenti/azione", "anno 2027");
    desk.Write(".zelvia-strumenti/prima/nomeload", "\"\"\r\n");
    desk.Write(".zelvia-strumenti/dopo/nomeload", "\"2027\"\r\n");
    desk.Write("ZelviaFile/2027.zlv", "x");
    Outcome outcome = desk.Run({"anno", "2027", "--prova"});
    QCOMPARE(outcome.status, 1);
    QVERIFY(outcome.err.startsWith("Una modifica è rimasta a metà: la completa il primo comando senza --prova.\n"));
    outcome = desk.Run({"anno", "2027"});
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.out, QByteArray("È stata completata una modifica rimasta a metà: anno 2027.\n"));
    QCOMPARE(desk.Read("nomeload"), "\"2027\"\r\n");
    QVERIFY(!desk.Has(".zelvia-strumenti"));
}

void NewYearTest::LinksAreNotFollowed()
{
    const ToolsDesk desk;
    desk.home.Write("fuori.tab", "x");
    fs::create_symlink(desk.home.Native("fuori.tab"), desk.Native("prova/fuori.tab"));
    const QByteArray before = desk.Everything();
    const Outcome outcome = desk.Run({"anno", "2027", "--si"});
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.err, QByteArray("zelvia-strumenti: «" + QByteArray::fromStdString(desk.Native("prova/fuori.tab")) +
                                     "» è un collegamento, che non viene seguito: al suo posto ci vuole il file o la "
                                     "cartella.\nNiente è stato cambiato.\n"));
    QCOMPARE(desk.Everything(), before);
}

ZELVIA_TEST(NewYearTest)

#include "NewYearTest.moc"
