// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of the page when the calls on one of their files go wrong.
#include "diary/CalendarModel.h"
#include "diary/RouteModel.h"
#include "faults/CommandFailures.h"
#include "support/DiaryBytes.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
namespace
{

const QString kDiary = QStringLiteral("ZelviaFile/prova.zlv");
const QString kPreset = QStringLiteral("prova.zlv");
constexpr int kSlot = 60; // 1 March of a common year

constexpr FileTitle kSaved[] = {
    {"ZelviaFile/prova.zlv", "ERRORE : "},
    {"prova/Percorso.lsx", "SalvaListaPercorso - ERRORE : "},
    {"prova/Lunghezza.lsx", "SalvaListaLunghezza - ERRORE : "},
    {"prova/Modo.lsx", "SalvaListaModo - ERRORE : "},
    {"prova/Fondo.lsx", "SalvaListaFondo - ERRORE : "},
    {"prova/Tipo.lsx", "SalvaListaTipo - ERRORE : "},
    {"prova/TempoAtm.lsx", "SalvaListaTempoAtm - ERRORE : "},
    {"prova/Temperatura.lsx", "SalvaListaTemperatura - ERRORE : "},
    {"prova/ListePercorso", "ERRORE : "},
    {"prova/CalendarioGare", "ERRORE : "},
};

constexpr FileTitle kOpened[] = {
    {"ZelviaFile/prova.zlv", "**ERRORE : "},
    {"prova/nometab", "ERRORE : "},
    {"prova/Percorso.lsx", "CaricaListaPercorso - ERRORE : "},
    {"prova/Lunghezza.lsx", "CaricaListaLunghezza - ERRORE : "},
    {"prova/Modo.lsx", "CaricaListaModo - ERRORE : "},
    {"prova/Fondo.lsx", "CaricaListaFondo - ERRORE : "},
    {"prova/Tipo.lsx", "CaricaListaTipo - ERRORE : "},
    {"prova/TempoAtm.lsx", "CaricaListaTempoAtm - ERRORE : "},
    {"prova/Temperatura.lsx", "CaricaListaTeperatura - ERRORE : "},
    {"prova/ListePercorso", "ERRORE : ", " Liste Percorso"},
    {"prova/CalendarioGare", "ERRORE : "},
};

/// The lists and the routes, as the command that restores them reads them.
constexpr FileTitle kRestored[] = {kOpened[2], kOpened[3], kOpened[4], kOpened[5],
                                   kOpened[6], kOpened[7], kOpened[8], kOpened[9]};

/// What a first use writes, and then reads; a missing pointer is silent.
constexpr FileTitle kFirstSet[] = {
    {"prova/ListePercorso", "ERRORE : "},
    {"prova/CalendarioGare", "ERRORE : "},
    {"prova/nometab", "ERRORE : "},
    kSaved[1],
    kSaved[2],
    kSaved[3],
    kSaved[4],
    kSaved[5],
    kSaved[6],
    kSaved[7],
};

template <std::size_t N>
void AddFiles(const FileTitle (&files)[N])
{
    QTest::addColumn<FileTitle>("file");
    for (const FileTitle& file : files) {
        QTest::newRow(file.file) << file;
    }
}

template <std::size_t N>
std::vector<std::string> NamesOf(const FileTitle (&files)[N])
{
    std::vector<std::string> names;
    for (const FileTitle& file : files) {
        names.emplace_back(file.file);
    }
    return names;
}

QString PathOf(const FileTitle& file)
{
    return QLatin1String(file.file);
}

bool IsSame(const FileTitle& a, const FileTitle& b)
{
    return PathOf(a) == PathOf(b);
}

bool MissingIsSilent(const FileTitle& file)
{
    return IsSame(file, kOpened[0]) || IsSame(file, kOpened[1]);
}

/// What a save of the sample writes to a file.
QByteArray SavedBytes(const FileTitle& file)
{
    if (!IsSame(file, kSaved[0])) {
        return SampleFile(PathOf(file));
    }
    DiaryBytes diary(SampleFile(kDiary));
    diary.Visit(kSlot, QDate(2026, 3, 1));
    return diary.Bytes();
}

/// What must be left of a file that was "vecchio" before its save failed.
bool IsLeftOf(const QByteArray& left, const FileTitle& file, Call call)
{
    const QByteArray whole = SavedBytes(file);
    switch (call) {
    case Call::Open: return left == "vecchio";
    case Call::Write: return left.size() < whole.size() && whole.startsWith(left);
    default: return left == whole;
    }
}

ExpectedBox RestoreQuestion()
{
    return {QStringLiteral("RIPRISTINARE LE LISTE PRECEDENTI ?              "), QMessageBox::Information,
            QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok};
}

void ClearLists(const DayPage& page)
{
    for (const SelectionList list : kFiledLists) {
        page.SetEntries(list, {});
    }
}

/// True when what a file fills holds something.
bool IsLoaded(const DayPage& page, const FileTitle& file)
{
    for (const SelectionList list : kFiledLists) {
        if (PathOf(file) == QLatin1String("prova/%1.lsx").arg(QString::fromStdString(Text(ListName(list))))) {
            return page->ListField(list).lst->ListCount() > 0;
        }
    }
    if (PathOf(file) == QLatin1String("prova/ListePercorso")) {
        return !Module1::NomiPercorso[1].empty();
    }
    return PathOf(file) != QLatin1String("prova/CalendarioGare") || Module1::GiornoGara[1] > 0;
}

/// Every file of the sample's folder is as it was.
void VerifySampleUntouched(const DayPage& page)
{
    for (const QString& file : page.folder.Files(QStringLiteral("prova"))) {
        QCOMPARE(page.folder.Read(QStringLiteral("prova/") + file), SampleFile(QStringLiteral("prova/") + file));
    }
    QCOMPARE(page.folder.Files(QStringLiteral("prova")).size(), 12);
}

} // namespace

class PageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void save_data() { AddFailures(kWriteFailures); }
    void save();
    void saveIsOnTheDiskWhenItCounts();
    void open_data() { AddFailures(kReadFailures); }
    void open();
    void restoreTheLists_data() { AddFailures(kReadFailures); }
    void restoreTheLists();
    void start_data() { AddFiles(kOpened); }
    void start();
    void startWithoutItsPointer_data() { AddFailures(kReadFailures); }
    void startWithoutItsPointer();
    void firstUse_data() { AddFiles(kFirstSet); }
    void firstUse();
    void startWithoutAFolder_data() { AddFailures(kFolderFailures); }
    void startWithoutAFolder();
    void saveAsWithoutAFolder_data() { AddFailures(kFolderFailures); }
    void saveAsWithoutAFolder();
    void startOnAFolderThatCannotBeListed_data() { AddFailures(kListFailures); }
    void startOnAFolderThatCannotBeListed();
    void openOfAFolderThatCannotBeListed_data() { AddFailures(kListFailures); }
    void openOfAFolderThatCannotBeListed();
    void saveThePointer_data() { AddFailures(kWriteFailures); }
    void saveThePointer();
};

/// One file of the set fails, in turn: it alone is reported, the others are written.
void PageTest::save()
{
    QFETCH(Failure, failure);
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    int descriptors = 0;
    for (const FileTitle& struck : kSaved) {
        for (const FileTitle& file : kSaved) {
            page.folder.Write(PathOf(file), "vecchio");
        }
        {
            const FaultyDisk disk(NativeOf(page), {failure.call, 1, failure.reason, struck.file, {}});
            page.script.Expect(ReportOf(struck, failure));
            page.Menu("mnuFile", Qt::Key_S);
            VERIFY_SCRIPT(page.script);
            QVERIFY(disk.Struck());
            QVERIFY(disk.Opened() == NamesOf(kSaved));
        }
        for (const FileTitle& file : kSaved) {
            const QByteArray left = page.folder.Read(PathOf(file));
            QVERIFY2(IsSame(file, struck) ? IsLeftOf(left, file, failure.call) : left == SavedBytes(file), file.file);
        }
        QVERIFY(Module1::FileModificato == 0);
        // The first box has the toolkit open files of its own, and its threads hold one for a moment.
        if (descriptors == 0) {
            descriptors = OpenDescriptors();
        }
        QTRY_COMPARE_LE(OpenDescriptors(), descriptors);
    }
    page.Menu("mnuFile", Qt::Key_S);
    VERIFY_SCRIPT(page.script);
    for (const FileTitle& file : kSaved) {
        QVERIFY2(page.folder.Read(PathOf(file)) == SavedBytes(file), file.file);
    }
}

/// The diary is synced before it counts as saved, and each of its companions before the command ends.
void PageTest::saveIsOnTheDiskWhenItCounts()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    Module1::FileModificato = 1;
    bool modified = false;
    QByteArray left;
    const FaultyDisk disk(NativeOf(page), {Call::Sync, 1, 0, {}, [&] {
                                               modified = Module1::FileModificato == 1;
                                               left = page.folder.Read(PathOf(kSaved[0]));
                                           }});
    page.Menu("mnuFile", Qt::Key_S);
    VERIFY_SCRIPT(page.script);
    QVERIFY(modified);
    QVERIFY(left == SavedBytes(kSaved[0]));
    QVERIFY(Module1::FileModificato == 0);
    std::vector<Caught> synced;
    for (const FileTitle& file : kSaved) {
        synced.push_back({file.file, true});
    }
    QVERIFY(disk.Calls() == synced);
}

void PageTest::open()
{
    QFETCH(Failure, failure);
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    const bool reported = *failure.report != '\0';
    for (const FileTitle& struck : kOpened) {
        ClearLists(page);
        page.script.Expect(page.OpenDialog(kPreset, kPreset));
        if (reported && !(failure.reason == ENOENT && MissingIsSilent(struck))) {
            page.script.Expect(ReportOf(struck, failure));
        }
        {
            const FaultyDisk disk(NativeOf(page), {failure.call, 1, failure.reason, struck.file, {}});
            page.Menu("mnuFile", Qt::Key_A);
            VERIFY_SCRIPT(page.script);
            QVERIFY(disk.Struck());
            QVERIFY(disk.Opened() == NamesOf(kOpened));
        }
        for (const FileTitle& file : kOpened) {
            const bool fails = reported && IsSame(file, struck) && !MissingIsSilent(file);
            QVERIFY2(IsLoaded(page, file) != fails, file.file);
        }
        QCOMPARE(page->upKM->Value().value(), 16);
        QCOMPARE(page.Caption("lblNomeFile"), QStringLiteral("prova"));
    }
    VerifySampleUntouched(page);
}

void PageTest::restoreTheLists()
{
    QFETCH(Failure, failure);
    DayPage page;
    page.Start();
    const bool reported = *failure.report != '\0';
    for (const FileTitle& struck : kRestored) {
        ClearLists(page);
        Module1::AzzeraPercorsi();
        page.script.Expect(RestoreQuestion());
        if (reported) {
            page.script.Expect(ReportOf(struck, failure));
        }
        const FaultyDisk disk(NativeOf(page), {failure.call, 1, failure.reason, struck.file, {}});
        page.Menu("mnuOpzioni", Qt::Key_L);
        VERIFY_SCRIPT(page.script);
        QVERIFY(disk.Struck());
        QVERIFY(disk.Opened() == NamesOf(kRestored));
        for (const FileTitle& file : kRestored) {
            QVERIFY2(IsLoaded(page, file) != (reported && IsSame(file, struck)), file.file);
        }
    }
}

void PageTest::start()
{
    QFETCH(FileTitle, file);
    DayPage page(CalendarDate(2026, 3, 1));
    page.script.Expect(ReportOf(file, {"", Call::Open, EACCES, "75 Errore di accesso al file o alla cartella"}));
    {
        const FaultyDisk disk(NativeOf(page), {Call::Open, 1, EACCES, file.file, {}});
        page.Start();
        VERIFY_SCRIPT(page.script);
        QVERIFY(disk.Struck());
        std::vector<std::string> names = {"nomeload", "ZelviaFile/prova.zlv"};
        for (const FileTitle& list : kRestored) {
            names.emplace_back(list.file);
        }
        names.insert(names.end() - 1, "prova/nometab");
        names.emplace_back("prova/CalendarioGare");
        QVERIFY(disk.Opened() == names);
    }
    QVERIFY(page->isVisible());
    QCOMPARE(page->upKM->Value().value(), IsSame(file, kOpened[0]) ? 0 : 16);
    VerifySampleUntouched(page);
    page.Menu("mnuFile", Qt::Key_S);
    VERIFY_SCRIPT(page.script);
}

void PageTest::startWithoutItsPointer()
{
    QFETCH(Failure, failure);
    DayPage page;
    if (failure.reason == ENOENT) {
        page.script.Expect(page.NewDialog());
    } else if (*failure.report != '\0') {
        page.script.Expect(ReportOf({"nomeload", "CaricaNomeFile - ERRORE : "}, failure));
    }
    if (*failure.report != '\0') {
        page.script.Expect(Report(QStringLiteral("**ERRORE : 76 Cartella non trovata")));
        ExpectNoFolder(page.script);
    }
    const FaultyDisk disk(NativeOf(page), {failure.call, 1, failure.reason, "nomeload", {}});
    page.Start();
    VERIFY_SCRIPT(page.script);
    QVERIFY(disk.Struck());
    QVERIFY(page->isVisible());
    VerifySampleUntouched(page);
}

/// The file that could not be written is not there when it is read.
void PageTest::firstUse()
{
    QFETCH(FileTitle, file);
    DayPage page;
    page.folder.Remove(QStringLiteral("prova"));
    page.script.Expect(ReportOf(file, {"", Call::Open, EACCES, "75 Errore di accesso al file o alla cartella"}));
    for (const FileTitle& read : kOpened) {
        if (IsSame(read, file) && !MissingIsSilent(read)) {
            page.script.Expect(ReportOf(read, {"", Call::Open, ENOENT, "53 File non trovato"}));
        }
    }
    const FaultyDisk disk(NativeOf(page), {Call::Open, 1, EACCES, file.file, {}});
    page.Start();
    VERIFY_SCRIPT(page.script);
    QVERIFY(disk.Struck());
    QStringList written = FullSet();
    written.removeOne(PathOf(file).section(QLatin1Char('/'), 1));
    QCOMPARE(page.folder.Files(QStringLiteral("prova")), written);
    QVERIFY(page->isVisible());
}

void PageTest::startWithoutAFolder()
{
    QFETCH(Failure, failure);
    DayPage page;
    page.folder.Remove(QStringLiteral("prova"));
    page.script.Expect(ReportOf({"prova", "Load - ERRORE : "}, failure));
    {
        const FaultyDisk disk(NativeOf(page), {failure.call, 1, failure.reason, "/prova", {}});
        page.Start();
        VERIFY_SCRIPT(page.script);
        QVERIFY(disk.Struck());
    }
    QVERIFY(page->isVisible());
    QVERIFY(!page.folder.Exists(QStringLiteral("prova")));
    // The diary can be saved; the files of its folder each report that there is none.
    ExpectListsNotSaved(page.script, kNoFolder);
    page.script.Expect(BareReport(kNoFolder));
    page.script.Expect(BareReport(kNoFolder));
    page.Menu("mnuFile", Qt::Key_S);
    VERIFY_SCRIPT(page.script);
}

void PageTest::saveAsWithoutAFolder()
{
    QFETCH(Failure, failure);
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    page.script.Expect(page.SaveDialog(kPreset, QStringLiteral("copia")));
    page.script.Expect(ReportOf({"copia", "mnuFileSaveAs - ERRORE : "}, failure));
    {
        const FaultyDisk disk(NativeOf(page), {failure.call, 1, failure.reason, "/copia", {}});
        page.Menu("mnuFile", Qt::Key_V);
        VERIFY_SCRIPT(page.script);
        QVERIFY(disk.Struck());
    }
    QVERIFY(page.folder.Read(QStringLiteral("ZelviaFile/copia.zlv")) == SavedBytes(kSaved[0]));
    QVERIFY(!page.folder.Exists(QStringLiteral("copia")));
    QCOMPARE(Module1::CartellaDiario, page.folder.System(QStringLiteral("prova")));
    QVERIFY(QApplication::overrideCursor() == nullptr);
    page.script.Expect(page.SaveDialog(QStringLiteral("copia.zlv"), QStringLiteral("altra")));
    page.Menu("mnuFile", Qt::Key_V);
    VERIFY_SCRIPT(page.script);
    QCOMPARE(page.folder.Files(QStringLiteral("altra")), FullSet());
}

/// The files are there, though they can't be seen: nothing is written over them.
void PageTest::startOnAFolderThatCannotBeListed()
{
    QFETCH(Failure, failure);
    DayPage page;
    page.script.Expect(ReportOf({"prova", "Load - ERRORE : "}, failure));
    {
        const FaultyDisk disk(NativeOf(page), {failure.call, 1, failure.reason, "/prova", {}});
        page.Start();
        VERIFY_SCRIPT(page.script);
        QVERIFY(disk.Struck());
    }
    QVERIFY(page->isVisible());
    VerifySampleUntouched(page);
}

void PageTest::openOfAFolderThatCannotBeListed()
{
    QFETCH(Failure, failure);
    DayPage page;
    page.Start();
    page.script.Expect(page.OpenDialog(kPreset, kPreset));
    page.script.Expect(ReportOf({"prova", "mnuFileOpen - ERRORE : "}, failure));
    {
        const FaultyDisk disk(NativeOf(page), {failure.call, 1, failure.reason, "/prova", {}});
        page.Menu("mnuFile", Qt::Key_A);
        VERIFY_SCRIPT(page.script);
        QVERIFY(disk.Struck());
    }
    VerifySampleUntouched(page);
    page.script.Expect(page.OpenDialog(kPreset, kPreset));
    page.Menu("mnuFile", Qt::Key_A);
    VERIFY_SCRIPT(page.script);
}

void PageTest::saveThePointer()
{
    QFETCH(Failure, failure);
    DayPage page;
    page.Start();
    page.script.Expect(ReportOf({"nomeload", "SalvaNomeFile - ERRORE : "}, failure));
    const FaultyDisk disk(NativeOf(page), {failure.call, 1, failure.reason, "nomeload", {}});
    page->SalvaNomeFile();
    VERIFY_SCRIPT(page.script);
    QVERIFY(disk.Struck());
    page->SalvaNomeFile();
    VERIFY_SCRIPT(page.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::PageTest)
#include "PageTest.moc"
