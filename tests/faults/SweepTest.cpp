// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Every command with files, each of its calls going wrong in turn until none is left.
#include "core/Messages.h"
#include "diary/CalendarModel.h"
#include "diary/RouteModel.h"
#include "faults/CommandFailures.h"
#include "support/CalendarDesk.h"
#include "support/TableDesk.h"
#include "support/WindowTest.h"
#include "windows/races/FrmCalendario.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <optional>

namespace zelvia::test
{
namespace
{

using Files = std::map<QString, QByteArray>;

constexpr const char* kTable = "Base 10 km.tab";

/// A command that works with files.
struct Command {
    const char* name;
    const char* kinds; ///< Of its calls, by their letters.
    /// Lays the files as the command finds them.
    void (*lay)(TableDesk& desk);
    /// Brings the program to where the command can be given; nothing for the start itself.
    void (*begin)(TableDesk& desk);
    /// Gives the command and expects the boxes and dialogs that it always shows. `behind` gives the report its place.
    void (*give)(TableDesk& desk, const std::function<void()>& report);
    const char* folderTitle; ///< Of the report of what goes wrong with the diary's folder or a deletion.
    int names = 0;           ///< How often a name is asked for in the listing by which the command decides.
};

QString Path(const char* path)
{
    return QLatin1String(path);
}

void LaySample(TableDesk& desk)
{
    desk.SetActive(kTable);
}

void LayNoFolder(TableDesk& desk)
{
    desk.folder.Remove(Path("prova"));
}

void LayEmptyFolder(TableDesk& desk)
{
    LayNoFolder(desk);
    desk.folder.MakeFolder(Path("prova"));
}

void LayEmptyCopy(TableDesk& desk)
{
    LaySample(desk);
    desk.folder.MakeFolder(Path("copia"));
}

void Begin(TableDesk& desk)
{
    desk.Start();
}

void BeginWithEditor(TableDesk& desk)
{
    desk.Start();
    desk.OpenList();
    desk.OpenTable(kTable);
}

void BeginWithList(TableDesk& desk)
{
    desk.Start();
    desk.OpenList();
    desk.Select(0);
}

void GiveStart(TableDesk& desk, const std::function<void()>& report)
{
    report();
    desk.Start();
}

void GiveSave(TableDesk& desk, const std::function<void()>& report)
{
    report();
    desk.Menu("mnuFile", Qt::Key_S);
}

void GiveSaveAs(TableDesk& desk, const std::function<void()>& report)
{
    desk.script.Expect(desk.SaveDialog(Path("prova.zlv"), Path("copia")));
    report();
    desk.Menu("mnuFile", Qt::Key_V);
}

void GiveOpen(TableDesk& desk, const std::function<void()>& report)
{
    desk.script.Expect(desk.OpenDialog(Path("prova.zlv"), Path("prova.zlv")));
    report();
    desk.Menu("mnuFile", Qt::Key_A);
}

/// The save that the question before an Open asks for.
void GiveSaveBeforeOpen(TableDesk& desk, const std::function<void()>& report)
{
    Module1::FileModificato = 1;
    desk.script.Expect(Messages::kSaveDiary, QMessageBox::Yes);
    report();
    desk.script.Expect(desk.OpenDialog(Path("prova.zlv")));
    desk.Menu("mnuFile", Qt::Key_A);
}

void GiveRestore(TableDesk& desk, const std::function<void()>& report)
{
    desk.script.Expect({QStringLiteral("RIPRISTINARE LE LISTE PRECEDENTI ?              "), QMessageBox::Information,
                        QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok});
    report();
    desk.Menu("mnuOpzioni", Qt::Key_L);
}

void GiveRaces(TableDesk& desk, const std::function<void()>& report)
{
    report();
    desk.Menu("mnuTabelle", Qt::Key_G);
}

frmCalendario* Races()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* window = qobject_cast<frmCalendario*>(widget)) {
            return window;
        }
    }
    return nullptr;
}

void BeginWithRaces(TableDesk& desk)
{
    desk.Start();
    desk.Menu("mnuTabelle", Qt::Key_G);
    QTRY_VERIFY(Races() != nullptr);
    TableDesk::ToFront(*Races());
}

void GiveSaveOfRaces(TableDesk& desk, const std::function<void()>& report)
{
    desk.script.Expect(Messages::kSaveRaces, QMessageBox::Ok);
    report();
    hand::Click(*Races()->cmdSalva);
}

void GiveTables(TableDesk& desk, const std::function<void()>& report)
{
    report();
    desk.OpenList();
}

void GiveTable(TableDesk& desk, const std::function<void()>& report)
{
    report();
    desk.OpenTable(kTable);
}

/// Of the table that is active.
void GiveDelete(TableDesk& desk, const std::function<void()>& report)
{
    desk.script.Expect({QStringLiteral(" CANCELLARE LA TABELLA Base 10 km.tab ?"), QMessageBox::Information,
                        QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes});
    report();
    hand::Click(*desk.List()->cmdCancellaTab);
}

void GiveDeactivate(TableDesk& desk, const std::function<void()>& report)
{
    report();
    hand::Click(*desk.Editor()->cmdDisattiva);
}

void GiveSaveOfTable(TableDesk& desk, const std::function<void()>& report)
{
    hand::Click(*desk.Editor()->cmdOK);
    desk.script.Expect(desk.SaveTableDialog(Path(kTable), Path("nuova")));
    report();
    hand::Click(*desk.Editor()->cmdSalva);
}

/// The list is refreshed when the editor closes, and the page takes up the active table at its next tick.
void GiveLeave(TableDesk& desk, const std::function<void()>& report)
{
    report();
    desk.LeaveEditor();
    QTRY_COMPARE(desk.Caption("lblTimerTab"), QStringLiteral("0"));
}

void GiveHand(TableDesk& desk, const std::function<void()>& report)
{
    report();
    desk.Click(*desk->lblImmisMetri);
}

// The twelve files of the sample's folder, the two names of folders, and the end.
constexpr int kSampleNames = 15;
constexpr int kNoNames = 3;

constexpr Command kCommands[] = {
    {"start", "orcln", LaySample, nullptr, GiveStart, "Load - ERRORE : ", kSampleNames},
    {"first use", "orwsclnm", LayNoFolder, nullptr, GiveStart, "Load - ERRORE : ", kNoNames},
    {"start, empty folder", "orwscln", LayEmptyFolder, nullptr, GiveStart, "Load - ERRORE : ", kNoNames},
    {"save", "owsc", LaySample, Begin, GiveSave, nullptr},
    {"save as", "owsclnm", LaySample, Begin, GiveSaveAs, "mnuFileSaveAs - ERRORE : "},
    {"save as, empty folder", "owscln", LayEmptyCopy, Begin, GiveSaveAs, "mnuFileSaveAs - ERRORE : ", kNoNames},
    {"open", "orcln", LaySample, Begin, GiveOpen, "mnuFileOpen - ERRORE : ", kSampleNames},
    {"save before open", "owsc", LaySample, Begin, GiveSaveBeforeOpen, nullptr},
    {"lists as saved", "orc", LaySample, Begin, GiveRestore, nullptr},
    {"races", "orc", LaySample, Begin, GiveRaces, nullptr},
    {"save of the races", "owsc", LaySample, BeginWithRaces, GiveSaveOfRaces, nullptr},
    {"tables", "ln", LaySample, Begin, GiveTables, "Load - ERRORE : ", kSampleNames},
    {"table", "orc", LaySample, BeginWithList, GiveTable, nullptr},
    {"delete a table", "owsclnd", LaySample, BeginWithList, GiveDelete, "cmdCancellaTab - ERRORE : ", kSampleNames - 1},
    {"deactivate a table", "owsc", LaySample, BeginWithEditor, GiveDeactivate, nullptr},
    {"save a table", "owscln", LaySample, BeginWithEditor, GiveSaveOfTable, nullptr},
    {"leave a table", "orcln", LaySample, BeginWithEditor, GiveLeave, "ERRORE : ", kSampleNames},
    {"hand pointer", "orc", LaySample, Begin, GiveHand, nullptr},
};

/// A kind of call with a reason to fail and the report.
struct Kind {
    char letter;
    const char* name;
    Call call;
    int reason;
    const char* report;
};

constexpr Kind kKinds[] = {
    {'o', "open", Call::Open, EACCES, "75 Errore di accesso al file o alla cartella"},
    {'r', "read", Call::Read, EIO, "57 Errore della periferica"},
    {'w', "write", Call::Write, EIO, "57 Errore della periferica"},
    {'c', "close", Call::Close, EIO, "57 Errore della periferica"},
    {'s', "sync", Call::Sync, EIO, "57 Errore della periferica"},
    {'l', "list", Call::List, EMFILE, "67 Troppi file aperti"},
    {'n', "next name", Call::NextName, EIO, "57 Errore della periferica"},
    {'m', "make", Call::Make, EROFS, "75 Errore di accesso al file o alla cartella"},
    {'d', "delete", Call::Delete, EBUSY, "70 Autorizzazione negata"},
};

/// The title of the report of a file, by what its name ends with.
struct Title {
    const char* end;
    const char* written;
    const char* read;
};

constexpr Title kTitles[] = {
    {"nomeload", nullptr, "CaricaNomeFile - ERRORE : "},
    {".zlv", "ERRORE : ", "**ERRORE : "},
    {"nometab", "ERRORE : ", "ERRORE : "},
    {".tab", "ERRORE : ", "ERRORE : "},
    {"Percorso.lsx", "SalvaListaPercorso - ERRORE : ", "CaricaListaPercorso - ERRORE : "},
    {"Lunghezza.lsx", "SalvaListaLunghezza - ERRORE : ", "CaricaListaLunghezza - ERRORE : "},
    {"Modo.lsx", "SalvaListaModo - ERRORE : ", "CaricaListaModo - ERRORE : "},
    {"Fondo.lsx", "SalvaListaFondo - ERRORE : ", "CaricaListaFondo - ERRORE : "},
    {"Tipo.lsx", "SalvaListaTipo - ERRORE : ", "CaricaListaTipo - ERRORE : "},
    {"TempoAtm.lsx", "SalvaListaTempoAtm - ERRORE : ", "CaricaListaTempoAtm - ERRORE : "},
    {"Temperatura.lsx", "SalvaListaTemperatura - ERRORE : ", "CaricaListaTeperatura - ERRORE : "},
    {"ListePercorso", "ERRORE : ", "ERRORE : "},
    {"CalendarioGare", "ERRORE : ", "ERRORE : "},
    {"mano.cur", nullptr, "CursoreMano - ERRORE : "},
};

bool EndsWith(const Caught& call, const char* end)
{
    return call.path.ends_with(end);
}

ExpectedBox ReportOf(const Caught& call, const char* error)
{
    const QString report = QLatin1String(error);
    if (!call.writes && EndsWith(call, "ListePercorso")) {
        return RoutesNotLoaded(report.mid(3));
    }
    for (const Title& title : kTitles) {
        if (EndsWith(call, title.end)) {
            return Report(QLatin1String(call.writes ? title.written : title.read) + report);
        }
    }
    return Report(QStringLiteral("no report"));
}

/// What the reading of a file reports after its writing has failed; nothing when it does not.
std::optional<ExpectedBox> ReportOfReading(const Caught& written, Call failed)
{
    const bool list = EndsWith(written, ".lsx");
    if (failed == Call::Close || failed == Call::Sync || (failed == Call::Write && list) ||
        (failed == Call::Open && EndsWith(written, "nometab"))) {
        return std::nullopt;
    }
    return ReportOf({written.path, false},
                    failed == Call::Write ? "62 Lettura oltre la fine del file" : "53 File non trovato");
}

bool ReadsWhatItWrote(const Command& command)
{
    return command.give == GiveStart && command.lay != LaySample;
}

/// True for the first listing of the diary's folder, the one by which a command decides; `before` are the calls of the
/// kind ahead of it. A listing that looks for a name in other letters does not matter.
bool IsListingThatMatters(const Command& command, Call kind, const Caught& call, std::size_t before)
{
    const bool folder = call.path == "prova" || call.path == "copia";
    const auto calls = static_cast<std::size_t>(kind == Call::List ? 1 : command.names);
    return command.folderTitle != nullptr && folder && before < calls;
}

void ExpectReports(BoxScript& script, const Command& command, const Kind& kind, const Caught& call, std::size_t before)
{
    switch (kind.call) {
    case Call::List:
    case Call::NextName:
        if (IsListingThatMatters(command, kind.call, call, before)) {
            script.Expect(Report(QLatin1String(command.folderTitle) + QLatin1String(kind.report)));
        }
        break;
    case Call::Make:
    case Call::Delete: script.Expect(Report(QLatin1String(command.folderTitle) + QLatin1String(kind.report))); break;
    case Call::Close:
        if (call.writes) {
            script.Expect(ReportOf(call, kind.report));
        }
        break;
    default: script.Expect(ReportOf(call, kind.report)); break;
    }
    if (const auto reading =
            call.writes && ReadsWhatItWrote(command) ? ReportOfReading(call, kind.call) : std::nullopt) {
        script.Expect(*reading);
    }
}

/// All files of the program's folder, its path in them written as "@".
Files FilesOf(const TableDesk& desk)
{
    const Text folder = desk.folder.System();
    Files files;
    for (const QString& name : desk.folder.Files()) {
        files[name] = desk.folder.Read(name).replace(QByteArray::fromStdString(folder), "@");
    }
    return files;
}

/// The bytes of a file, nothing when there is none.
std::optional<QByteArray> StateOf(const Files& files, const QString& name)
{
    const auto found = files.find(name);
    return found == files.end() ? std::nullopt : std::optional(found->second);
}

} // namespace

class SweepTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyCall_data();
    void everyCall();

private:
    void Run(const Command& command, const Kind& kind, std::size_t nth);
    void VerifyFiles(const Files& before, const Files& after, const Caught& struck, Call kind) const;

    void SaveAgain(TableDesk& desk, const Command& command, const Caught& struck) const;

    std::vector<Caught> calls_; ///< Of the command when nothing fails.
    Files whole_;               ///< What it leaves then.
};

void SweepTest::everyCall_data()
{
    QTest::addColumn<int>("command");
    QTest::addColumn<int>("kind");
    for (int command = 0; command < static_cast<int>(std::size(kCommands)); ++command) {
        for (int kind = 0; kind < static_cast<int>(std::size(kKinds)); ++kind) {
            if (std::strchr(kCommands[command].kinds, kKinds[kind].letter) != nullptr) {
                QTest::addRow("%s: %s", kCommands[command].name, kKinds[kind].name) << command << kind;
            }
        }
    }
}

/// All files but the one struck are as when nothing fails; that one is as it was when it could not be opened. After a
/// call on a folder the rest of the command is not done, and each may be as it was.
void SweepTest::VerifyFiles(const Files& before, const Files& after, const Caught& struck, Call kind) const
{
    Files all = before;
    all.insert(after.begin(), after.end());
    all.insert(whole_.begin(), whole_.end());
    for (const auto& [name, ignored] : all) {
        const bool isStruck = struck.writes && name.toStdString() == struck.path;
        if (isStruck && kind == Call::Write) {
            continue;
        }
        const bool mayStay = kind >= Call::List || (isStruck && kind == Call::Open);
        const auto left = StateOf(after, name);
        QVERIFY2((left == StateOf(whole_, name) && !(isStruck && mayStay)) ||
                     (mayStay && left == StateOf(before, name)),
                 qPrintable(name));
    }
}

/// Runs the command with the call `nth` failing, or for 0 none, and takes down its calls and files then.
void SweepTest::Run(const Command& command, const Kind& kind, std::size_t nth)
{
    TableDesk desk(CalendarDate(2026, 3, 1));
    command.lay(desk);
    if (command.begin != nullptr) {
        command.begin(desk);
    }
    const Files before = FilesOf(desk);
    const Caught struck = nth > 0 ? calls_[nth - 1] : Caught{};
    {
        const FaultyDisk disk(NativeOf(desk), {kind.call, static_cast<int>(nth), kind.reason, {}, {}});
        command.give(desk, [&] {
            if (nth > 0) {
                const auto same = std::count_if(calls_.begin(), calls_.begin() + static_cast<std::ptrdiff_t>(nth) - 1,
                                                [&](const Caught& call) { return call.path == struck.path; });
                ExpectReports(desk.script, command, kind, struck, static_cast<std::size_t>(same));
            }
        });
        TRY_SCRIPT(desk.script);
        QTRY_COMPARE(disk.Struck(), nth > 0);
        if (nth == 0) {
            calls_ = disk.Calls();
            whole_ = FilesOf(desk);
        }
    }
    QVERIFY(desk->isVisible());
    QTRY_VERIFY(QApplication::overrideCursor() == nullptr);
    if (nth > 0) {
        VerifyFiles(before, FilesOf(desk), struck, kind.call);
        SaveAgain(desk, command, struck);
    }
}

/// The next save works, and a file of the set that was struck is whole then.
void SweepTest::SaveAgain(TableDesk& desk, const Command& command, const Caught& struck) const
{
    if (!desk->isActiveWindow() || !desk.folder.Exists(Path("prova"))) {
        return;
    }
    desk.Menu("mnuFile", Qt::Key_S);
    VERIFY_SCRIPT(desk.script);
    const bool inSet = struck.path.starts_with("ZelviaFile/") || struck.path.starts_with("prova/");
    const bool pointer = EndsWith(struck, "nometab") || EndsWith(struck, ".tab");
    // What a first use could not write it then reads as it is.
    if (struck.writes && inSet && !pointer && command.begin != nullptr) {
        const QString name = QString::fromStdString(struck.path);
        QVERIFY2(StateOf(FilesOf(desk), name) == StateOf(whole_, name), qPrintable(name));
    }
}

void SweepTest::everyCall()
{
    QFETCH(int, command);
    QFETCH(int, kind);
    const Command& given = kCommands[command];
    const Kind& failing = kKinds[kind];
    Run(given, failing, 0);
    const std::size_t count = calls_.size();
    QVERIFY(count > 0);
    const int descriptors = OpenDescriptors();
    for (std::size_t nth = 1; nth <= count && !QTest::currentTestFailed(); ++nth) {
        const Caught& call = calls_[nth - 1];
        // One more piece or name of the same: these are tried without windows. A start without its pointer has tests of
        // its own.
        const bool again = nth > 1 && call == calls_[nth - 2] && nth < count;
        if (!again && !(EndsWith(call, "nomeload") && failing.call != Call::Close)) {
            Run(given, failing, nth);
            // The threads of the toolkit hold one for a moment.
            QTRY_COMPARE_LE(OpenDescriptors(), descriptors);
        }
    }
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::SweepTest)
#include "SweepTest.moc"
