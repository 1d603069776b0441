// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the start finds in the program's folder, and what it lays down there.
#include "core/Files.h"
#include "core/Messages.h"
#include "diary/CalendarModel.h"
#include "diary/RouteModel.h"
#include "support/DayPage.h"
#include "support/DiaryBytes.h"
#include "support/WindowTest.h"

#include <QProcess>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace zelvia::test
{
namespace
{

const QString kDiary = QStringLiteral("ZelviaFile/prova.zlv");

/// One quoted text a line.
QByteArray ListBytes(const QStringList& entries)
{
    return entries.isEmpty() ? QByteArray() : '"' + entries.join(QStringLiteral("\"\r\n\"")).toLatin1() + "\"\r\n";
}

QByteArray Pointer(const Text& path)
{
    return '"' + QByteArray::fromStdString(path) + "\"\r\n";
}

QByteArray BlankRoutes()
{
    const QByteArray route = "\"\"\r\n0\r\n" + QByteArray("\"\"\r\n0\r\n0\r\n").repeated(20);
    return route.repeated(200);
}

QByteArray BlankCalendar()
{
    QByteArray bytes;
    for (int row = 1; row <= 100; ++row) {
        bytes += QByteArray::number(row) + "\r\n0\r\n0\r\n0\r\n\"\"\r\n\"\"\r\n" + QByteArray("0\r\n").repeated(7) +
                 "\"\"\r\n0\r\n";
    }
    return bytes;
}

void VerifyFirstSet(const ProgramFolderCopy& folder, const QString& name)
{
    QCOMPARE(folder.Files(name), FullSet());
    const auto read = [&](const char* file) { return folder.Read(name + QLatin1Char('/') + QLatin1String(file)); };
    QVERIFY(read("ListePercorso") == BlankRoutes());
    QVERIFY(read("CalendarioGare") == BlankCalendar());
    QCOMPARE(read("nometab"), QByteArray("\"\"\r\n"));
    const struct {
        const char* file;
        const char* entries;
    } lists[] = {
        {"Lunghezza.lsx", "Cortissimo,Corto,Medio/Corto,Medio,Medio/Lungo,Lungo,Lunghissimo,Mezza Maratona,Maratona"},
        {"Modo.lsx", "Lentissima,Lenta,Media/Lenta,Media,Media/Veloce,Veloce,Fartlek"},
        {"Fondo.lsx", "Strada,Strada/Salita,Strada/Sentiero,Strada/Sentiero/Salita,Pista Atletica,Sentiero,"
                      "Sentiero/Salita,Sentiero di montagna,Spiaggia/Sabbia"},
        {"Tipo.lsx", "Allenamento,Gara"},
        {"TempoAtm.lsx", "Sole,Sole/Vento,Sole/Vento forte,Sole/Nuvoloso,Sole/Nuvoloso/Vento,Nuvoloso,Nuvoloso/Vento,"
                         "Nuvoloso/Vento forte,Nuvoloso/Pioggia,Nuvoloso/Pioggia/Vento,Neve,Neve/Ghiaccio,"
                         "Neve/Ghiaccio/Vento,Nebbia,Nebbia/Pioggia,Nebbia/Neve,Nebbia/Neve/Ghiaccio"},
        {"Temperatura.lsx", "Caldo,Molto Caldo,Afa,Mite,Freddo,Molto Freddo"},
    };
    QCOMPARE(read("Percorso.lsx"), QByteArray());
    for (const auto& list : lists) {
        QCOMPARE(read(list.file), ListBytes(QString::fromLatin1(list.entries).split(QLatin1Char(','))));
    }
}

} // namespace

class StartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theDiaryOfThePointer_data();
    void theDiaryOfThePointer();
    void pointersWithOrdinarySlashes();
    void theSampleIsShown();
    void firstUseWritesTheSet();
    void folderWithoutFilesIsFilled_data();
    void folderWithoutFilesIsFilled();
    void unsavedDiaryHasItsLists();
    void firstUseWritesInOrder();
    void startReadsInOrder();
    void pointerMissing();
    void pointerWithoutALine();
    void dotInAFolderAhead();
    void tablePointerMissing();
    void activeTableIsNamed();
    void theOtherPointerRoutineWritesTheName();
    void anotherRunHoldsTheFolder();
    void secondRunEndsAtOnce();
    void secondRunBringsThePageBack();
};

void StartTest::theDiaryOfThePointer_data()
{
    QTest::addColumn<QString>("diary");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("shown");
    QTest::newRow("empty") << QString() << "prova"
                           << "prova";
    QTest::newRow("named") << "ZelviaFile/maria.zlv"
                           << "maria"
                           << "maria";
    QTest::newRow("two dots") << "ZelviaFile/a.b.zlv"
                              << "a"
                              << "a.b";
    QTest::newRow("without the word") << "altrove/z.zlv"
                                      << "altrove/z"
                                      << "z";
}

void StartTest::theDiaryOfThePointer()
{
    QFETCH(QString, diary);
    QFETCH(QString, folder);
    QFETCH(QString, shown);
    DayPage page(CalendarDate(2026, 3, 1));
    if (!diary.isEmpty()) {
        page.folder.Write(diary, SampleFile(kDiary));
        page.folder.Write(QStringLiteral("nomeload"), Pointer(page.folder.System(diary)));
    }
    page.Start();
    VERIFY_SCRIPT(page.script);
    QCOMPARE(page->NomeFile, page.folder.System(diary.isEmpty() ? kDiary : diary));
    QCOMPARE(page->dlgCommonDialog.FileName, page->NomeFile);
    QCOMPARE(Module1::CartellaDiario, page.folder.System(folder));
    QCOMPARE(page.Caption("lblNomeFile"), shown);
    QCOMPARE(QString::fromStdString(page->NomeBaseFile), shown);
    QCOMPARE(page->upKM->Value().value(), 16);
    QCOMPARE(page.folder.Exists(folder + QStringLiteral("/ListePercorso")), true);
}

void StartTest::pointersWithOrdinarySlashes()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.folder.Write(QStringLiteral("ZelviaFile/maria.zlv"), SampleFile(kDiary));
    const QStringList files = FullSet() + QStringList{QStringLiteral("Base 10 km.tab")};
    for (const QString& file : files) {
        page.folder.Write(QStringLiteral("maria/") + file, SampleFile(QStringLiteral("prova/") + file));
    }
    const auto pointer = [&](const QString& path) { return '"' + page.folder.Native(path).toLatin1() + "\"\r\n"; };
    page.folder.Write(QStringLiteral("nomeload"), pointer(QStringLiteral("ZelviaFile/maria.zlv")));
    page.folder.Write(QStringLiteral("maria/nometab"), pointer(QStringLiteral("maria/Base 10 km.tab")));
    page.Start();
    VERIFY_SCRIPT(page.script);
    QCOMPARE(page->NomeFile, page.folder.System(QStringLiteral("ZelviaFile/maria.zlv")));
    QCOMPARE(page.Caption("lblNomeFile"), QStringLiteral("maria"));
    QCOMPARE(Module1::CartellaDiario, page.folder.System(QStringLiteral("maria")));
    QCOMPARE(page->upKM->Value().value(), 16);
    QCOMPARE(Module1::NomeTabellaAttiva, page.folder.System(QStringLiteral("maria/Base 10 km.tab")));
    QCOMPARE(page.Caption("lblTabNomeFile"), QStringLiteral("Base 10 km"));
    // The rule of the folder holds it for the same one.
    page.script.Expect(page.SaveDialog(QStringLiteral("maria.zlv"), QStringLiteral("copia")));
    page.Menu("mnuFile", Qt::Key_V);
    VERIFY_SCRIPT(page.script);
    QCOMPARE(page.folder.Files(QStringLiteral("copia")), FullSet());
}

void StartTest::theSampleIsShown()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    VERIFY_SCRIPT(page.script);
    QCOMPARE(page.Caption("lblImmisPercorso"), QStringLiteral("Colle dell'Università"));
    QCOMPARE(page.Caption("lblImmisFondo"), QStringLiteral("Strada/Sentiero/Salita"));
    QCOMPARE(page.Caption("lblImmisMetri"), QStringLiteral("16,200"));
    QCOMPARE(page.Caption("lblImmisOraInizio"), QStringLiteral("6:55:00"));
    QCOMPARE(page.Caption("lblImmisOraFine"), QStringLiteral("8:35:23"));
    QCOMPARE(page.Caption("lblOutTempoImpiegato"), QStringLiteral("1:40:23"));
    QCOMPARE(page.Caption("lblOutMediaKM"), QStringLiteral("6:11"));
    QCOMPARE(page.Caption("lblImmisCorridori"), QStringLiteral("6"));
    QCOMPARE(page->lstListaKM->List(1), Text("10      01:01:57"));
    // The list files go in front of the initial lists; the seasons have no file.
    QCOMPARE(page->ListField(SelectionList::Percorso).lst->ListCount(), 13);
    QCOMPARE(page->ListField(SelectionList::Stagione).lst->ListCount(), 4);
    QCOMPARE(Module1::NomiPercorso[1], Text("Lungofiume"));
    QVERIFY(Module1::NumeroGara[100] == 100);
    QVERIFY(Module1::FileModificato == 0);
    QVERIFY(page->NuovoAnnullato == 0);
    QCOMPARE(page.folder.Read(QStringLiteral("nomeload")), QByteArray("\"\"\r\n"));
}

void StartTest::firstUseWritesTheSet()
{
    DayPage page;
    page.folder.Remove(QStringLiteral("prova"));
    page.folder.Remove(kDiary);
    page.Start();
    VERIFY_SCRIPT(page.script);
    VerifyFirstSet(page.folder, QStringLiteral("prova"));
    QVERIFY(!page.folder.Exists(kDiary));
    QVERIFY(page->ListField(SelectionList::Fondo).lst->ListCount() == 9);
}

void StartTest::folderWithoutFilesIsFilled_data()
{
    QTest::addColumn<QString>("inside");
    QTest::newRow("empty") << QString();
    QTest::newRow("a hidden file") << "prova/.nascosto";
    QTest::newRow("a folder") << "prova/vecchie/tabella.tab";
}

void StartTest::folderWithoutFilesIsFilled()
{
    QFETCH(QString, inside);
    DayPage page;
    page.folder.Remove(QStringLiteral("prova"));
    page.folder.MakeFolder(QStringLiteral("prova"));
    if (!inside.isEmpty()) {
        page.folder.Write(inside, "x");
    }
    page.Start();
    VERIFY_SCRIPT(page.script);
    if (inside.contains(QLatin1String("vecchie"))) {
        page.folder.Remove(QStringLiteral("prova/vecchie"));
    }
    VerifyFirstSet(page.folder, QStringLiteral("prova"));
}

void StartTest::unsavedDiaryHasItsLists()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.folder.Remove(kDiary);
    page.Start();
    VERIFY_SCRIPT(page.script);
    QCOMPARE(page->ListField(SelectionList::Percorso).lst->ListCount(), 13);
    QCOMPARE(page.Caption("lblImmisPercorso"), QString());
    QCOMPARE(page.Caption("lblImmisCorridori"), QStringLiteral("1"));
    QVERIFY(DayPage::Day().Data == CalendarDate(2026, 3, 1));
    QCOMPARE(page.folder.Read(QStringLiteral("prova/Percorso.lsx")), SampleFile(QStringLiteral("prova/Percorso.lsx")));
}

void StartTest::firstUseWritesInOrder()
{
    DayPage page;
    page.folder.Remove(QStringLiteral("prova"));
    for (const QString& list : ListNames()) {
        page.folder.Block(QStringLiteral("prova/%1.lsx").arg(list));
    }
    page.folder.Block(QStringLiteral("prova/ListePercorso"));
    page.folder.Block(QStringLiteral("prova/nometab"));
    page.folder.Dangle(QStringLiteral("prova/CalendarioGare"));
    page.script.Expect(BareReport(kDenied));
    page.script.Expect(BareReport(kNoFolder));
    page.script.Expect(BareReport(kDenied));
    ExpectListsNotSaved(page.script, kDenied);
    ExpectListsNotLoaded(page.script, kDenied);
    page.script.Expect(BareReport(kDenied));
    page.script.Expect(RoutesNotLoaded(QStringLiteral("Errore di accesso al file o alla cartella")));
    page.script.Expect(BareReport(kNotFound));
    page.Start();
    VERIFY_SCRIPT(page.script);
    // A list whose file does not open keeps what it held.
    QCOMPARE(page->ListField(SelectionList::Tipo).lst->ListCount(), 2);
}

void StartTest::startReadsInOrder()
{
    DayPage page;
    page.folder.Write(kDiary, "");
    for (const QString& list : ListNames()) {
        page.folder.Remove(QStringLiteral("prova/%1.lsx").arg(list));
    }
    page.folder.Block(QStringLiteral("prova/nometab"));
    page.folder.Remove(QStringLiteral("prova/ListePercorso"));
    page.folder.Remove(QStringLiteral("prova/CalendarioGare"));
    page.script.Expect(Report(QStringLiteral("**ERRORE : 62 Lettura oltre la fine del file")));
    ExpectListsNotLoaded(page.script, kNotFound);
    page.script.Expect(BareReport(kDenied));
    page.script.Expect(RoutesNotLoaded(QStringLiteral("File non trovato")));
    page.script.Expect(BareReport(kNotFound));
    page.Start();
    VERIFY_SCRIPT(page.script);
    QVERIFY(page->isVisible());
}

void StartTest::pointerMissing()
{
    DayPage page;
    page.folder.Remove(QStringLiteral("nomeload"));
    page.script.Expect(page.NewDialog(QStringLiteral("mio")));
    page.script.Expect(Messages::kSavesElsewhere);
    page.script.Expect(page.NewDialog(QStringLiteral("altro")));
    page.script.Expect(Messages::kSavesElsewhere);
    page.script.Expect(page.NewDialog());
    page.script.Expect(Report(QStringLiteral("**ERRORE : 76 Cartella non trovata")));
    ExpectNoFolder(page.script);
    page.Start();
    VERIFY_SCRIPT(page.script);
    QCOMPARE(page->NomeFile, Text());
    QCOMPARE(page->NomeBaseFile, Text());
    QCOMPARE(Module1::CartellaDiario, Text());
    QVERIFY(page->NuovoAnnullato == 1);
    QVERIFY(page->isVisible());
    QVERIFY(!page.folder.Exists(QStringLiteral("nomeload")));
    QVERIFY(!QFileInfo::exists(QStringLiteral("/Percorso.lsx")));
}

void StartTest::pointerWithoutALine()
{
    DayPage page;
    page.folder.Write(QStringLiteral("nomeload"), "");
    page.script.Expect(Report(QStringLiteral("CaricaNomeFile - ERRORE : 62 Lettura oltre la fine del file")));
    page.script.Expect(Report(QStringLiteral("**ERRORE : 76 Cartella non trovata")));
    ExpectNoFolder(page.script);
    page.Start();
    VERIFY_SCRIPT(page.script);
    QCOMPARE(page->NomeFile, Text());
}

void StartTest::dotInAFolderAhead()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.folder.Write(QStringLiteral("versione 1.0/ZelviaFile/prova.zlv"), SampleFile(kDiary));
    page.folder.Write(QStringLiteral("versione 1.0/nomeload"), "\"\"\r\n");
    SetProgramFolder(page.folder.System(QStringLiteral("versione 1.0")));
    page.script.Expect(Report(QStringLiteral("CAPTIONDIR - ERRORE : 5 Argomento non valido")));
    ExpectNoFolder(page.script);
    page.Start();
    VERIFY_SCRIPT(page.script);
    QCOMPARE(Module1::CartellaDiario, Text());
    QCOMPARE(page.Caption("lblNomeFile"), QStringLiteral("prova"));
    QCOMPARE(page->upKM->Value().value(), 16);
    for (const QString& file : FullSet()) {
        QVERIFY2(!QFileInfo::exists(QLatin1Char('/') + file), qPrintable(file));
    }
    QVERIFY(!page.folder.Exists(QStringLiteral("versione 1.0/prova")));
}

void StartTest::tablePointerMissing()
{
    DayPage page;
    page.folder.Remove(QStringLiteral("prova/nometab"));
    page.Start();
    VERIFY_SCRIPT(page.script);
    QCOMPARE(Module1::NomeTabellaAttiva, Text());
    QCOMPARE(page.Caption("lblTabNomeFile"), QStringLiteral("Nessuna tabella attiva"));
    QVERIFY(!page.folder.Exists(QStringLiteral("prova/nometab")));
}

void StartTest::activeTableIsNamed()
{
    // The plan begins in September, so it says nothing of today yet.
    DayPage page(CalendarDate(2026, 3, 1));
    const Text table = page.folder.System(QStringLiteral("prova/Mezza maratona.tab"));
    page.folder.Write(QStringLiteral("prova/nometab"), Pointer(table));
    page.Start();
    VERIFY_SCRIPT(page.script);
    QCOMPARE(Module1::NomeTabellaAttiva, table);
    QCOMPARE(page.Caption("lblTabNomeFile"), QStringLiteral("Mezza maratona"));
}

void StartTest::theOtherPointerRoutineWritesTheName()
{
    DayPage page;
    page.Start();
    page->SalvaNomeFile();
    VERIFY_SCRIPT(page.script);
    QCOMPARE(page.folder.Read(QStringLiteral("nomeload")), Pointer(page.folder.System(kDiary)));
    page.folder.Block(QStringLiteral("nomeload"));
    page.script.Expect(Report(QStringLiteral("SalvaNomeFile - ERRORE : ") + kDenied));
    page->SalvaNomeFile();
    VERIFY_SCRIPT(page.script);
}

namespace
{

constexpr int kPatience = 60000;

/// The lock of a program's folder, held by another.
class OtherLock
{
public:
    explicit OtherLock(const ProgramFolderCopy& folder)
        : file_(::open(folder.Native(QStringLiteral(".zelvia.lock")).toLocal8Bit().constData(), O_RDWR | O_CREAT, 0600))
    {
        held_ = ::flock(file_, LOCK_EX | LOCK_NB) == 0;
    }
    ~OtherLock() { ::close(file_); }
    OtherLock(const OtherLock&) = delete;
    OtherLock& operator=(const OtherLock&) = delete;

    bool Held() const { return held_; }

private:
    int file_;
    bool held_;
};

bool IsOpen(const ProgramFolderCopy& folder)
{
    return !OtherLock(folder).Held();
}

/// Puts the real program into a folder.
QString PutProgram(const ProgramFolderCopy& folder)
{
    const QString program = folder.Native(QStringLiteral("zelvia"));
    return QFile::copy(QStringLiteral(ZELVIA_PROGRAM), program) ? program : QString();
}

} // namespace

void StartTest::anotherRunHoldsTheFolder()
{
    DayPage page;
    frmMain second;
    {
        const OtherLock other(page.folder);
        QVERIFY(other.Held());
        QVERIFY(!second.FormLoad());
        VERIFY_SCRIPT(page.script);
        QCOMPARE(second.NomeFile, Text());
    }
    QVERIFY(second.FormLoad());
    QCOMPARE(second.NomeFile, page.folder.System(kDiary));
}

void StartTest::secondRunEndsAtOnce()
{
    const ProgramFolderCopy folder;
    const QString program = PutProgram(folder);
    QProcess first;
    first.start(program, QStringList());
    QVERIFY(first.waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT(IsOpen(folder), kPatience);

    QProcess second;
    second.start(program, QStringList());
    QVERIFY(second.waitForFinished(kPatience));
    QCOMPARE(second.exitStatus(), QProcess::NormalExit);
    QCOMPARE(second.exitCode(), 0);
    QCOMPARE(second.readAllStandardOutput(), QByteArray());
    QCOMPARE(first.state(), QProcess::Running);

    // The lock of a run that crashed is free.
    first.kill();
    QVERIFY(first.waitForFinished(kPatience));
    QVERIFY(!IsOpen(folder));
    QProcess third;
    third.start(program, QStringList());
    QVERIFY(third.waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT(IsOpen(folder), kPatience);
    QCOMPARE(third.state(), QProcess::Running);
    third.kill();
    QVERIFY(third.waitForFinished(kPatience));
}

/// The second run asks the first one for its window.
void StartTest::secondRunBringsThePageBack()
{
    DayPage page;
    page.Start();
    const QString program = PutProgram(page.folder);
    page->showMinimized();
    QTRY_VERIFY(page->isMinimized());
    QProcess second;
    second.start(program, QStringList());
    QTRY_COMPARE_WITH_TIMEOUT(second.state(), QProcess::NotRunning, kPatience);
    QCOMPARE(second.exitCode(), 0);
    QTRY_VERIFY(!page->isMinimized());
    QTRY_VERIFY(page->isActiveWindow());
    VERIFY_SCRIPT(page.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::StartTest)
#include "StartTest.moc"
