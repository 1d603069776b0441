// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The pages of the window of the tools, worked by hand: what each does is what the command line does.
#include "support/ActiveWindow.h"
#include "support/BoxScript.h"
#include "support/DiaryBytes.h"
#include "support/Hand.h"
#include "support/WindowTest.h"
#include "tools/desk/OutcomeTable.h"
#include "tools/desk/WindowDesk.h"

#include <QComboBox>
#include <QDate>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace zelvia::test
{

class PagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewYear_data();
    void aNewYear();
    void theYearThatHasNoDiary();
    void theYearThatWasChosenStays();
    void theYears();
    void allYears();
    void anOlderYearOpensWithItsDates();
    void aYearBeforeThePages();
    void nothingToMend();
    void readingIsStopped();
    void mending();
    void whatIsOnlyLikely();
    void daysOfACopy();
    void aWholeDiaryOfACopy();
    void aCopyNow();
    void theSecondPlace();
    void aSecondPlaceThatCannotBe();
    void exporting_data();
    void exporting();
    void onlyWhatWasSaidIsReplaced();
    void anotherDiary();
    void zelviaIsRunning();
    void noCopyCanBeKept();
    void aDamagedDiary();
    void aFolderWithoutDiaries();
};

namespace
{

/// The first line of the notes that is on the page.
constexpr int kNote = DiaryBytes::Notes + 2;
constexpr char kSample[] = "ZelviaFile/prova.zlv";

/// Sets a line of a day in the sample diary.
void SetLine(const ToolsDesk& tools, int slot, int line, const QByteArray& value)
{
    DiaryBytes days(QByteArray::fromStdString(tools.Read(kSample)));
    days.SetLine(slot, line, value);
    tools.Write(kSample, days.Bytes().toStdString());
}

/// Holds the lock of the program, as Zelvia does.
class RunningProgram
{
public:
    explicit RunningProgram(const ToolsDesk& tools)
        : file_(open(tools.Native(".zelvia.lock").c_str(), O_RDWR | O_CREAT, 0600))
    {
        if (flock(file_, LOCK_EX | LOCK_NB) != 0) {
            qFatal("the lock is held by another");
        }
    }
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;
    ~RunningProgram() { close(file_); }

private:
    int file_;
};

/// The first column of the rows that a table shows.
QStringList FirstColumn(const OutcomeTable& table)
{
    QStringList cells;
    for (int i = 0; i < table.topLevelItemCount(); ++i) {
        cells << table.topLevelItem(i)->text(0);
    }
    return cells;
}

} // namespace

void PagesTest::aNewYear_data()
{
    QTest::addColumn<bool>("races");
    QTest::newRow("an empty calendar") << false;
    QTest::newRow("the present calendar") << true;
}

void PagesTest::aNewYear()
{
    QFETCH(bool, races);
    WindowDesk desk;
    const QByteArray before = desk.tools.Everything();
    desk.Open("anno");
    auto& year = desk.Part<QSpinBox>("year");
    QTRY_VERIFY_WITH_TIMEOUT(desk.MayRun(), kDeskPatience);
    hand::Key(Qt::Key_A, Qt::AltModifier);
    QTRY_VERIFY_WITH_TIMEOUT(year.hasFocus(), kDeskPatience);
    year.selectAll();
    hand::Type(QStringLiteral("2031"));
    if (races) {
        hand::Key(Qt::Key_T, Qt::AltModifier);
    }
    QTRY_VERIFY_WITH_TIMEOUT(desk.Notes().startsWith(QStringLiteral("Diario nuovo: 2031, con i giorni vuoti del 2031")),
                             kDeskPatience);
    QTRY_COMPARE_WITH_TIMEOUT(desk.Notes().contains(QStringLiteral("Il calendario delle gare è vuoto.")), !races,
                              kDeskPatience);
    QVERIFY(!desk.Notes().contains(QStringLiteral("prova:")));
    QTRY_VERIFY_WITH_TIMEOUT(desk.MayRun(), kDeskPatience);
    QCOMPARE(desk.tools.Everything(), before);

    hand::Key(Qt::Key_E, Qt::AltModifier);
    QTRY_VERIFY_WITH_TIMEOUT(
        desk.Notes().contains(QStringLiteral("Il diario 2031 è pronto: Zelvia lo apre al prossimo avvio.")),
        kDeskPatience);
    // The same twice by mistake is not possible.
    QVERIFY(!desk.MayRun());
    const QByteArray made = WindowDesk::WithoutItsPath(desk.tools);
    const ToolsDesk byCommand;
    std::vector<std::string> words = {"anno", "2031", "--si"};
    if (races) {
        words.emplace_back("--gare");
    }
    QCOMPARE(byCommand.Run(words).status, 0);
    QCOMPARE(made, WindowDesk::WithoutItsPath(byCommand));
}

/// The sample diary has the days of 2026.
void PagesTest::theYearThatHasNoDiary()
{
    WindowDesk desk;
    desk.Open("anno");
    const int now = QDate::currentDate().year();
    const int first = now == 2026 ? 2027 : now;
    QTRY_COMPARE_WITH_TIMEOUT(desk.Part<QSpinBox>("year").value(), first, kDeskPatience);
    QTRY_VERIFY_WITH_TIMEOUT(desk.MayRun(), kDeskPatience);
    hand::Click(desk.Button("run"));
    QTRY_VERIFY_WITH_TIMEOUT(desk.tools.Has("ZelviaFile/" + std::to_string(first) + ".zlv"), kDeskPatience);
    QTRY_VERIFY_WITH_TIMEOUT(desk.Notes().contains(QStringLiteral("è pronto")), kDeskPatience);
    // The page comes up again with the one after that.
    hand::Key(Qt::Key_PageDown, Qt::ControlModifier);
    hand::Key(Qt::Key_PageUp, Qt::ControlModifier);
    QTRY_COMPARE_WITH_TIMEOUT(desk.Part<QSpinBox>("year").value(), first + 1, kDeskPatience);
}

void PagesTest::theYearThatWasChosenStays()
{
    WindowDesk desk;
    desk.Open("anno");
    QTRY_VERIFY_WITH_TIMEOUT(desk.MayRun(), kDeskPatience);
    auto& year = desk.Part<QSpinBox>("year");
    year.setFocus();
    year.selectAll();
    hand::Type(QStringLiteral("2040"));
    QTRY_VERIFY_WITH_TIMEOUT(desk.Notes().startsWith(QStringLiteral("Diario nuovo: 2040,")), kDeskPatience);
    QTRY_VERIFY_WITH_TIMEOUT(desk.MayRun(), kDeskPatience);
    bool looked = false;
    connect(&desk.Shared().Runner(), &ToolRunner::StateChanged, this, [&] { looked = true; });
    hand::Click(desk.Button("look"));
    QTRY_VERIFY_WITH_TIMEOUT(looked && !desk.Shared().Runner().IsBusy(), kDeskPatience);
    QCOMPARE(year.value(), 2040);
}

void PagesTest::theYears()
{
    WindowDesk desk;
    QCOMPARE(desk.tools.Run({"anno", "2025", "--si"}).status, 0);
    desk.Open("anni");
    QTRY_COMPARE_WITH_TIMEOUT(FirstColumn(desk.Table()), (QStringList{QStringLiteral("2025"), QStringLiteral("prova")}),
                              kDeskPatience);
    const QList<QByteArray> sample = desk.tools.Run({"anni", "--tsv"}).out.split('\n').at(2).split('\t');
    QCOMPARE(desk.Table().Cell(1, QStringLiteral("year")), QStringLiteral("2026"));
    QCOMPARE(desk.Table().topLevelItem(1)->text(2), QString::fromUtf8(sample.at(2)));
    QCOMPARE(desk.Table().headerItem()->text(3), QStringLiteral("Km"));
    QVERIFY(desk.Window().findChild<QPushButton*>(QStringLiteral("allYears")) == nullptr);
}

void PagesTest::allYears()
{
    WindowDesk desk;
    std::vector<fs::path> opened;
    desk.OpenAllYears = [&](const fs::path& folder) { opened.push_back(folder); };
    desk.Open("anni");
    QTRY_COMPARE_WITH_TIMEOUT(desk.Table().topLevelItemCount(), 1, kDeskPatience);
    hand::Key(Qt::Key_T, Qt::AltModifier);
    QTRY_COMPARE_WITH_TIMEOUT(opened.size(), 1U, kDeskPatience);
    QVERIFY(opened.front() == fs::path(desk.tools.Native()));
}

void PagesTest::anOlderYearOpensWithItsDates()
{
    WindowDesk desk;
    QCOMPARE(desk.tools.Run({"anno", "2024", "--si"}).status, 0);
    // In the program's place something that notes how it was called.
    const std::string program = desk.tools.home.Native("programma");
    desk.tools.home.Write("programma",
                          "#!/bin/sh\nprintf '%s\\n' \"$@\" >\"$0.nuovo\"\nmv \"$0.nuovo\" \"$0.detto\"\n");
    fs::permissions(program, fs::perms::owner_all);
    desk.Open("anni");
    desk.Shared().Program = program;
    QTRY_COMPARE_WITH_TIMEOUT(desk.Table().topLevelItemCount(), 2, kDeskPatience);
    desk.Table().setFocus();
    hand::Key(Qt::Key_Home);
    const int copies = desk.tools.Copies();
    hand::Key(Qt::Key_A, Qt::AltModifier);
    QTRY_VERIFY_WITH_TIMEOUT(desk.tools.home.Has("programma.detto"), kDeskPatience);
    QCOMPARE(desk.tools.home.Read("programma.detto"),
             Text("--oggi\n2024-12-31\n--diario\n2024\n--\n") + FromUtf8(desk.tools.Native()) + "\n");
    QCOMPARE(desk.tools.Copies(), copies + 1);
}

/// The page begins with 2001. 28 years later every day has the same weekday, and there is a 29 February again.
void PagesTest::aYearBeforeThePages()
{
    WindowDesk desk;
    desk.tools.Write("ZelviaFile/1996.zlv", TextOf(DiaryBytes::Blank(1996).Bytes()));
    const std::string program = desk.tools.home.Native("programma");
    desk.tools.home.Write("programma",
                          "#!/bin/sh\nprintf '%s\\n' \"$@\" >\"$0.nuovo\"\nmv \"$0.nuovo\" \"$0.detto\"\n");
    fs::permissions(program, fs::perms::owner_all);
    desk.Open("anni");
    desk.Shared().Program = program;
    QTRY_COMPARE_WITH_TIMEOUT(desk.Table().topLevelItemCount(), 2, kDeskPatience);
    desk.Table().setFocus();
    hand::Key(Qt::Key_Home);
    hand::Key(Qt::Key_A, Qt::AltModifier);
    QTRY_VERIFY_WITH_TIMEOUT(desk.tools.home.Has("programma.detto"), kDeskPatience);
    QVERIFY(desk.tools.home.Read("programma.detto").starts_with("--oggi\n2024-12-31\n--diario\n1996\n"));
    QTRY_COMPARE_WITH_TIMEOUT(desk.Notes(),
                              QStringLiteral("Zelvia apre il diario «1996». La pagina non va prima del 2001: mostra il "
                                             "2024, che ha gli stessi giorni della settimana."),
                              kDeskPatience);
}

void PagesTest::nothingToMend()
{
    WindowDesk desk;
    desk.Open("ripara");
    QTRY_COMPARE_WITH_TIMEOUT(desk.Notes(), QStringLiteral("Tutto a posto."), kDeskPatience);
    QVERIFY(!desk.MayRun());
}

void PagesTest::readingIsStopped()
{
    WindowDesk desk;
    desk.Open("ripara");
    QTRY_COMPARE_WITH_TIMEOUT(desk.Notes(), QStringLiteral("Tutto a posto."), kDeskPatience);
    desk.Button("look").click();
    desk.Shared().Runner().Cancel();
    QTRY_COMPARE_WITH_TIMEOUT(desk.Notes(), QStringLiteral("Fermato: niente è stato cambiato."), kDeskPatience);
    QVERIFY(!desk.MayRun());
    QCOMPARE(desk.Button("look").text(), QStringLiteral("&Riprova"));
}

void PagesTest::mending()
{
    WindowDesk desk;
    SetLine(desk.tools, 40, kNote, "\"di \"corsa\" e no\"");
    const Text damaged = desk.tools.Read(kSample);
    desk.Open("ripara");
    QTRY_COMPARE_WITH_TIMEOUT(desk.Table().topLevelItemCount(), 1, kDeskPatience);
    QCOMPARE(desk.Table().topLevelItem(0)->text(0), QStringLiteral("ZelviaFile/prova.zlv"));
    // 9 February, the 40th day; line 129 of it.
    QCOMPARE(desk.Table().topLevelItem(0)->text(1), QString::number(39 * 136 + 129));
    QCOMPARE(desk.Table().topLevelItem(0)->text(2), QStringLiteral("lun 9 feb 2026"));
    QCOMPARE(desk.Table().topLevelItem(0)->text(4), QStringLiteral("virgolette"));
    QVERIFY(desk.Notes().startsWith(QStringLiteral("Da riparare: 1. Restano come sono: 0.")));
    QCOMPARE(desk.tools.Read(kSample), damaged);
    QTRY_VERIFY_WITH_TIMEOUT(desk.MayRun(), kDeskPatience);
    hand::Click(desk.Button("run"));
    QTRY_VERIFY_WITH_TIMEOUT(desk.Notes().contains(QStringLiteral("Riparati: 1.")), kDeskPatience);
    QTRY_VERIFY_WITH_TIMEOUT(desk.Notes().endsWith(QStringLiteral("Tutto a posto.")), kDeskPatience);
    QVERIFY(!desk.MayRun());
    const Text mended = desk.tools.Read(kSample);
    QCOMPARE(desk.tools.Copies(), 1);

    const ToolsDesk byCommand;
    byCommand.Write(kSample, damaged);
    QCOMPARE(byCommand.Run({"ripara", "--si"}).status, 0);
    QCOMPARE(mended, byCommand.Read(kSample));
}

void PagesTest::whatIsOnlyLikely()
{
    WindowDesk desk;
    SetLine(desk.tools, 40, DiaryBytes::Km, "mille");
    const Text damaged = desk.tools.Read(kSample);
    desk.Open("ripara");
    QTRY_VERIFY_WITH_TIMEOUT(desk.Notes().startsWith(QStringLiteral("Da riparare: 0. Restano come sono: 1.")),
                             kDeskPatience);
    QVERIFY(!desk.MayRun());
    hand::Key(Qt::Key_R, Qt::AltModifier);
    QTRY_VERIFY_WITH_TIMEOUT(desk.Notes().startsWith(QStringLiteral("Da riparare: 1. Restano come sono: 0.")),
                             kDeskPatience);
    QTRY_VERIFY_WITH_TIMEOUT(desk.MayRun(), kDeskPatience);
    QCOMPARE(desk.tools.Read(kSample), damaged);
    hand::Key(Qt::Key_E, Qt::AltModifier);
    QTRY_VERIFY_WITH_TIMEOUT(desk.Notes().endsWith(QStringLiteral("Tutto a posto.")), kDeskPatience);
    const Text mended = desk.tools.Read(kSample);
    const ToolsDesk byCommand;
    byCommand.Write(kSample, damaged);
    QCOMPARE(byCommand.Run({"ripara", "--si", "--sovrascrivi"}).status, 0);
    QCOMPARE(mended, byCommand.Read(kSample));
}

void PagesTest::daysOfACopy()
{
    WindowDesk desk;
    QCOMPARE(desk.tools.Run({"copie", "crea"}).status, 0);
    SetLine(desk.tools, 40, kNote, "\"altro\"");
    const Text oneChanged = desk.tools.Read(kSample);
    SetLine(desk.tools, 60, kNote, "\"altro ancora\"");
    const Text bothChanged = desk.tools.Read(kSample);
    desk.Open("copie");
    QTRY_COMPARE_WITH_TIMEOUT(FirstColumn(desk.Table("changes")),
                              (QStringList{QStringLiteral("lun 9 feb 2026"), QStringLiteral("dom 1 mar 2026")}),
                              kDeskPatience);
    QCOMPARE(desk.Table("copies").topLevelItemCount(), 1);
    QVERIFY(!desk.MayRun());
    // The second day is ticked by the keys.
    desk.Table("changes").setFocus();
    hand::Key(Qt::Key_End);
    hand::Key(Qt::Key_Up);
    QTRY_COMPARE_WITH_TIMEOUT(desk.Table("changes").currentItem()->text(0), QStringLiteral("dom 1 mar 2026"),
                              kDeskPatience);
    hand::Key(Qt::Key_Space);
    QTRY_VERIFY_WITH_TIMEOUT(desk.MayRun(), kDeskPatience);
    QCOMPARE(desk.tools.Read(kSample), bothChanged);
    hand::Key(Qt::Key_E, Qt::AltModifier);
    QTRY_COMPARE_WITH_TIMEOUT(desk.Table("copies").topLevelItemCount(), 2, kDeskPatience);
    QTRY_VERIFY_WITH_TIMEOUT(desk.Notes().contains(QStringLiteral("Rimessi: 1.")), kDeskPatience);
    QCOMPARE(desk.tools.Read(kSample), oneChanged);
}

void PagesTest::aWholeDiaryOfACopy()
{
    WindowDesk desk;
    const QByteArray before = desk.tools.Everything();
    QCOMPARE(desk.tools.Run({"copie", "crea"}).status, 0);
    SetLine(desk.tools, 40, kNote, "\"altro\"");
    fs::remove(desk.tools.Native("prova/Modo.lsx"));
    desk.Open("copie");
    QTRY_COMPARE_WITH_TIMEOUT(desk.Table("changes").topLevelItemCount(), 2, kDeskPatience);
    QVERIFY(!desk.MayRun());
    hand::Key(Qt::Key_T, Qt::AltModifier);
    QTRY_VERIFY_WITH_TIMEOUT(desk.MayRun(), kDeskPatience);
    hand::Key(Qt::Key_E, Qt::AltModifier);
    QTRY_VERIFY_WITH_TIMEOUT(desk.Notes().contains(QStringLiteral("Rimesso il diario «prova».")), kDeskPatience);
    QCOMPARE(desk.tools.Everything(), before);
    QCOMPARE(desk.tools.Copies(), 2);
}

void PagesTest::aCopyNow()
{
    WindowDesk desk;
    desk.Open("copie");
    QTRY_COMPARE_WITH_TIMEOUT(desk.Notes(), QStringLiteral("Non ci sono ancora copie di questa cartella."),
                              kDeskPatience);
    hand::Key(Qt::Key_F, Qt::AltModifier);
    QTRY_COMPARE_WITH_TIMEOUT(desk.Table("copies").topLevelItemCount(), 1, kDeskPatience);
    QTRY_COMPARE_WITH_TIMEOUT(desk.Notes(), QStringLiteral("Copia fatta.\nDopo la copia 1 non è cambiato niente."),
                              kDeskPatience);
    QCOMPARE(desk.tools.Copies(), 1);
}

namespace
{

/// Types a folder into the dialog that asks for the second place.
DialogWork TypingFolder(const QString& folder)
{
    return [folder](QFileDialog& dialog) {
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Scegliere il secondo posto delle copie"));
        auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        name->setFocus();
        name->selectAll();
        hand::Type(folder);
        hand::Key(Qt::Key_Return);
    };
}

const QString kOnePlace = QStringLiteral("Le copie vanno in un posto solo, su questo computer.");

} // namespace

void PagesTest::theSecondPlace()
{
    WindowDesk desk;
    const std::string stick = desk.tools.home.Native("CHIAVETTA");
    fs::create_directory(stick);
    const QString place = QString::fromStdString(stick);
    desk.Open("copie");
    QTRY_COMPARE_WITH_TIMEOUT(desk.Part<QLabel>("second").text(), kOnePlace, kDeskPatience);
    QVERIFY(!desk.Button("none").isEnabled());
    BoxScript script;
    script.Expect(TypingFolder(place));
    hand::Key(Qt::Key_P, Qt::AltModifier);
    TRY_SCRIPT(script);
    QTRY_COMPARE_WITH_TIMEOUT(desk.Part<QLabel>("second").text(),
                              QStringLiteral("Le copie vanno anche in «%1».").arg(place), kDeskPatience);
    QVERIFY2(desk.Notes().startsWith(QStringLiteral("Alla fine di Zelvia l'ultima copia va anche in «%1».").arg(place)),
             qPrintable(desk.Notes()));
    // Offscreen no manager gives the keyboard back to it.
    desk.Window().activateWindow();
    hand::AwaitFront(desk.Window());
    hand::Key(Qt::Key_F, Qt::AltModifier);
    QTRY_VERIFY_WITH_TIMEOUT(
        desk.Notes().contains(QStringLiteral("L'ultima copia è anche nel secondo posto, «%1».").arg(place)),
        kDeskPatience);
    QCOMPARE(desk.tools.Run({"copie", "elenco", "--da", stick, "--tsv"}).out.count('\n'), qsizetype{2});
    // What is there stays.
    hand::Key(Qt::Key_N, Qt::AltModifier);
    QTRY_COMPARE_WITH_TIMEOUT(desk.Part<QLabel>("second").text(), kOnePlace, kDeskPatience);
    QVERIFY(!desk.Button("none").isEnabled());
    QCOMPARE(desk.tools.Run({"copie", "elenco", "--da", stick, "--tsv"}).out.count('\n'), qsizetype{2});
}

/// The first copies would be copied into themselves.
void PagesTest::aSecondPlaceThatCannotBe()
{
    WindowDesk desk;
    const QString diaries = QString::fromStdString(desk.tools.Native("ZelviaFile"));
    desk.Open("copie");
    QTRY_COMPARE_WITH_TIMEOUT(desk.Part<QLabel>("second").text(), kOnePlace, kDeskPatience);
    BoxScript script;
    script.Expect(TypingFolder(diaries));
    hand::Key(Qt::Key_P, Qt::AltModifier);
    TRY_SCRIPT(script);
    QTRY_VERIFY_WITH_TIMEOUT(desk.Notes().startsWith(QStringLiteral("«%1» sta fra i diari:").arg(diaries)),
                             kDeskPatience);
    QCOMPARE(desk.Part<QLabel>("second").text(), kOnePlace);
}

void PagesTest::exporting_data()
{
    QTest::addColumn<int>("steps");
    QTest::addColumn<QString>("form");
    QTest::newRow("days") << 0 << QStringLiteral("csv");
    QTest::newRow("splits") << 1 << QStringLiteral("splits");
    QTest::newRow("JSON lines") << 2 << QStringLiteral("jsonl");
}

void PagesTest::exporting()
{
    QFETCH(int, steps);
    QFETCH(QString, form);
    WindowDesk desk;
    const QByteArray before = desk.tools.Everything();
    desk.Open("esporta");
    QTRY_COMPARE_WITH_TIMEOUT(desk.Notes(), QStringLiteral("Scegliere il file da scrivere."), kDeskPatience);
    QVERIFY(!desk.MayRun());
    hand::Key(Qt::Key_F, Qt::AltModifier);
    for (int i = 0; i < steps; ++i) {
        hand::Key(Qt::Key_Down);
    }
    hand::Key(Qt::Key_L, Qt::AltModifier);
    QTRY_VERIFY_WITH_TIMEOUT(desk.Part<QLineEdit>("file").hasFocus(), kDeskPatience);
    // A name that is not absolute is one of the home.
    hand::Type(QStringLiteral("giorni"));
    QTRY_COMPARE_WITH_TIMEOUT(
        desk.Notes(),
        QStringLiteral("Si scriverebbe «%1/giorni».").arg(QString::fromStdString(desk.tools.home.Native())),
        kDeskPatience);
    QTRY_VERIFY_WITH_TIMEOUT(desk.MayRun(), kDeskPatience);
    QVERIFY(!desk.tools.home.Has("giorni"));
    hand::Key(Qt::Key_E, Qt::AltModifier);
    QTRY_COMPARE_WITH_TIMEOUT(
        desk.Notes(), QStringLiteral("Scritto «%1/giorni».").arg(QString::fromStdString(desk.tools.home.Native())),
        kDeskPatience);
    QCOMPARE(QByteArray::fromStdString(desk.tools.home.Read("giorni")),
             desk.tools.Run({"esporta", "--formato", form.toStdString()}).out);
    QCOMPARE(desk.tools.Everything(), before);
    // Shown again it would be replaced.
    hand::Click(desk.Button("look"));
    QTRY_VERIFY_WITH_TIMEOUT(desk.Notes().endsWith(QStringLiteral("Il file c'è già: viene sostituito.")),
                             kDeskPatience);
}

/// A file that has come since the page was read stays.
void PagesTest::onlyWhatWasSaidIsReplaced()
{
    WindowDesk desk;
    desk.Open("libro");
    hand::Key(Qt::Key_L, Qt::AltModifier);
    QTRY_VERIFY_WITH_TIMEOUT(desk.Part<QLineEdit>("file").hasFocus(), kDeskPatience);
    const QString file = QString::fromStdString(desk.tools.home.Native("libro.pdf"));
    hand::Type(QStringLiteral("libro.pdf"));
    QTRY_COMPARE_WITH_TIMEOUT(desk.Notes(), QStringLiteral("Si scriverebbe «%1».").arg(file), kDeskPatience);
    QTRY_VERIFY_WITH_TIMEOUT(desk.MayRun(), kDeskPatience);
    desk.tools.home.Write("libro.pdf", "altro");
    hand::Key(Qt::Key_E, Qt::AltModifier);
    QTRY_COMPARE_WITH_TIMEOUT(
        desk.Notes(), QStringLiteral("«%1» c'è già; lo sostituisce --sovrascrivi.\nNiente è stato cambiato.").arg(file),
        kDeskPatience);
    QCOMPARE(desk.tools.home.Read("libro.pdf"), Text("altro"));
}

void PagesTest::anotherDiary()
{
    WindowDesk desk;
    QCOMPARE(desk.tools.Run({"anno", "2025", "--si"}).status, 0);
    desk.Open("esporta");
    auto& diary = desk.Part<QComboBox>("diary");
    QCOMPARE(diary.count(), 3);
    hand::Key(Qt::Key_I, Qt::AltModifier);
    QTRY_VERIFY_WITH_TIMEOUT(diary.hasFocus(), kDeskPatience);
    hand::Key(Qt::Key_End);
    QTRY_COMPARE_WITH_TIMEOUT(diary.currentText(), QStringLiteral("prova"), kDeskPatience);
    QTRY_COMPARE_WITH_TIMEOUT(desk.Shared().Diary(), std::string("prova"), kDeskPatience);
    hand::Key(Qt::Key_L, Qt::AltModifier);
    hand::Type(QStringLiteral("~/giorni.csv"));
    QTRY_VERIFY_WITH_TIMEOUT(desk.MayRun(), kDeskPatience);
    hand::Key(Qt::Key_E, Qt::AltModifier);
    QTRY_VERIFY_WITH_TIMEOUT(desk.Notes().startsWith(QStringLiteral("Scritto «")), kDeskPatience);
    const QByteArray written = QByteArray::fromStdString(desk.tools.home.Read("giorni.csv"));
    QCOMPARE(written, desk.tools.Run({"esporta", "--formato", "csv", "--diario", "prova"}).out);
    QVERIFY(written != desk.tools.Run({"esporta", "--formato", "csv"}).out);
}

void PagesTest::zelviaIsRunning()
{
    WindowDesk desk;
    SetLine(desk.tools, 40, kNote, "\"di \"corsa\" e no\"");
    const QByteArray before = desk.tools.Everything();
    const QString busy = QStringLiteral("Il diario di «%1» è aperto, o ci lavora un altro comando: chiuderlo e "
                                        "riprovare.\nNiente è stato cambiato.")
                             .arg(QString::fromStdString(desk.tools.Native()));
    {
        const RunningProgram program(desk.tools);
        desk.Open("ripara");
        QTRY_COMPARE_WITH_TIMEOUT(desk.Notes(), busy, kDeskPatience);
        QCOMPARE(desk.Button("look").text(), QStringLiteral("&Riprova"));
        QVERIFY(!desk.MayRun());
    }
    hand::Click(desk.Button("look"));
    QTRY_VERIFY_WITH_TIMEOUT(desk.MayRun(), kDeskPatience);
    QCOMPARE(desk.Button("look").text(), QStringLiteral("&Mostra"));
    {
        // It starts between the look and the run; the window does not keep it from that.
        const RunningProgram program(desk.tools);
        hand::Click(desk.Button("run"));
        QTRY_VERIFY_WITH_TIMEOUT(desk.Notes().startsWith(busy), kDeskPatience);
        QCOMPARE(desk.tools.Everything(), before);
        QCOMPARE(desk.tools.Copies(), 0);
        QTRY_COMPARE_WITH_TIMEOUT(desk.Button("look").text(), QStringLiteral("&Riprova"), kDeskPatience);
    }
    hand::Click(desk.Button("look"));
    QTRY_VERIFY_WITH_TIMEOUT(desk.MayRun(), kDeskPatience);
    hand::Click(desk.Button("run"));
    QTRY_VERIFY_WITH_TIMEOUT(desk.Notes().contains(QStringLiteral("Riparati: 1.")), kDeskPatience);
}

void PagesTest::noCopyCanBeKept()
{
    WindowDesk desk;
    desk.Open("anno");
    QTRY_VERIFY_WITH_TIMEOUT(desk.MayRun(), kDeskPatience);
    const QByteArray before = desk.tools.Everything();
    // A file where the folder of the copies would be.
    fs::remove_all(desk.tools.home.Native("stato"));
    desk.tools.home.Write("stato", "");
    hand::Click(desk.Button("run"));
    QTRY_VERIFY_WITH_TIMEOUT(desk.Notes().endsWith(QStringLiteral("Niente è stato cambiato.")), kDeskPatience);
    QVERIFY(desk.Notes().contains(QStringLiteral("stato")));
    QCOMPARE(desk.tools.Everything(), before);
}

void PagesTest::aDamagedDiary()
{
    WindowDesk desk;
    QCOMPARE(desk.tools.Run({"anno", "2025", "--si"}).status, 0);
    desk.tools.Write(kSample, desk.tools.Read(kSample).substr(0, 5000));
    desk.Open("anni");
    QTRY_COMPARE_WITH_TIMEOUT(FirstColumn(desk.Table()), QStringList{QStringLiteral("2025")}, kDeskPatience);
    QTRY_VERIFY_WITH_TIMEOUT(desk.Notes().contains(QStringLiteral("il diario «prova» non si legge per intero")),
                             kDeskPatience);
}

void PagesTest::aFolderWithoutDiaries()
{
    WindowDesk desk;
    fs::remove_all(desk.tools.Native());
    fs::create_directory(desk.tools.Native());
    for (const char* page : {"anno", "anni", "ripara", "copie"}) {
        desk.Open(page);
        const QString expected = QByteArray(page) == "copie" ? QStringLiteral("Non ci sono ancora copie")
                                                             : QStringLiteral("non ci sono diari di Zelvia");
        QTRY_VERIFY2_WITH_TIMEOUT(desk.Notes().contains(expected), page, kDeskPatience);
        QVERIFY2(!desk.Window().findChild<QPushButton*>(QStringLiteral("run"))->isEnabled(), page);
        QVERIFY(fs::is_empty(desk.tools.Native()) || desk.tools.Everything().isEmpty());
    }
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::PagesTest)
#include "PagesTest.moc"
