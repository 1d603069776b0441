// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/copies/CopyStore.h"

#include "support/TempFolder.h"
#include "support/TestProgram.h"
#include "tools/copies/SafeFiles.h"
#include "tools/copies/WorkspaceData.h"

#include <QStringList>
#include <QTest>

#include <cstdlib>
#include <ctime>
#include <functional>
#include <memory>
#include <sys/resource.h>

using namespace zelvia;
using namespace zelvia::test;

class CopyStoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void ACopyHoldsTheRunnersFiles();
    void OnlyAChangeMakesACopy_data();
    void OnlyAChangeMakesACopy();
    void NothingToCopy();
    void AnOpenDiaryIsNotCopied();
    void TheClockIsSetBack();
    void OldCopiesGo_data();
    void OldCopiesGo();
    void FoldersDoNotThinEachOther();
    void LeftoversAreSweptAway();
    void OtherNamesAreNoCopies();
    void AnotherProcessIsWaitedFor();
    void AFailureLeavesTheCopiesAlone_data();
    void AFailureLeavesTheCopiesAlone();
    void ALongFile();
    void PuttingBack_data();
    void PuttingBack();
    void PuttingBackIsRefused_data();
    void PuttingBackIsRefused();
    void PointersMoveAlong_data();
    void PointersMoveAlong();
    void WhereTheCopiesLie_data();
    void WhereTheCopiesLie();

private:
    std::filesystem::path Program() const { return temp_->Native("Zelvia"); }
    std::filesystem::path Root() const { return temp_->Native("stato/zelvia/copie"); }
    CopyOutcome TakeAt(const char* date) const;
    QString Names() const;

    std::unique_ptr<TempFolder> temp_;
};

namespace
{

std::chrono::system_clock::time_point At(const char* date)
{
    std::tm time{};
    if (strptime(date, "%Y-%m-%d %H:%M:%S", &time) == nullptr) {
        throw std::runtime_error(date);
    }
    time.tm_isdst = -1;
    return std::chrono::system_clock::from_time_t(std::mktime(&time));
}

/// The most memory that the process has had, in KiB.
long PeakMemory()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

constexpr const char* kNoon = "2026-11-21 12:00:00";

} // namespace

CopyOutcome CopyStoreTest::TakeAt(const char* date) const
{
    return CopyStore(Root()).Take(Program(), At(date));
}

/// All that is in the folder of the copies but the lock.
QString CopyStoreTest::Names() const
{
    QStringList names;
    if (std::filesystem::exists(Root())) {
        for (const auto& entry : std::filesystem::directory_iterator(Root())) {
            names << QString::fromStdString(entry.path().filename());
        }
    }
    names.removeAll(QStringLiteral(".blocco"));
    names.sort();
    return names.join(QLatin1Char('|'));
}

void CopyStoreTest::initTestCase()
{
    // A zone with two hours that are the same in autumn; the names are local time.
    qputenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
    tzset();
}

void CopyStoreTest::init()
{
    temp_ = std::make_unique<TempFolder>();
    temp_->MakeFolder("Zelvia/ZelviaFile");
    temp_->MakeFolder("Zelvia/prova");
    temp_->Write("Zelvia/zelvia", "programma");
    temp_->Write("Zelvia/nomeload", "\"\"\r\n");
    temp_->Write("Zelvia/ZelviaFile/prova.zlv", "diario");
    temp_->Write("Zelvia/prova/Tipo.lsx", "lista");
}

void CopyStoreTest::ACopyHoldsTheRunnersFiles()
{
    QCOMPARE(TakeAt("2026-07-05 08:09:10"), CopyOutcome::Made);
    QCOMPARE(Names(), QStringLiteral("000001_2026-07-05_08-09-10"));
    const auto copy = CopyStore(Root()).Find(1);
    QVERIFY(copy.has_value());
    QCOMPARE(copy->number, 1);
    QCOMPARE(copy->date, std::string("2026-07-05"));
    QCOMPARE(copy->time, std::string("08-09-10"));
    QCOMPARE(copy->folder.string(), Program().string());
    QCOMPARE(FilesBelow(copy->place), (std::vector<std::string>{"ZelviaFile/prova.zlv", "nomeload", "prova/Tipo.lsx"}));
    QCOMPARE(ReadWhole(copy->place / "ZelviaFile/prova.zlv"), Text("diario"));
    QCOMPARE(ReadWhole(copy->place / "nomeload"), Text("\"\"\r\n"));
    QCOMPARE(ReadWhole(copy->place / "prova/Tipo.lsx"), Text("lista"));
    QVERIFY(!CopyStore(Root()).Find(2).has_value());
    // Nobody else reads a diary.
    const auto others = std::filesystem::perms::group_all | std::filesystem::perms::others_all;
    QCOMPARE(std::filesystem::status(Root()).permissions() & others, std::filesystem::perms::none);
}

void CopyStoreTest::OnlyAChangeMakesACopy_data()
{
    using Change = std::function<void(const TempFolder&)>;
    QTest::addColumn<Change>("change");
    QTest::addColumn<bool>("copied");
    const auto row = [](const char* name, bool copied, const Change& change) {
        QTest::newRow(name) << change << copied;
    };
    row("nothing", false, [](const TempFolder&) {});
    row("the program", false, [](const TempFolder& temp) { temp.Write("Zelvia/zelvia", "nuovo"); });
    row("a new time, the same bytes", false,
        [](const TempFolder& temp) { temp.Write("Zelvia/prova/Tipo.lsx", "lista"); });
    row("one byte of a diary", true,
        [](const TempFolder& temp) { temp.Write("Zelvia/ZelviaFile/prova.zlv", "Diario"); });
    row("an empty diary", true, [](const TempFolder& temp) { temp.Write("Zelvia/ZelviaFile/prova.zlv", ""); });
    row("a list", true, [](const TempFolder& temp) { temp.Write("Zelvia/prova/Tipo.lsx", "Lista"); });
    row("the pointer", true, [](const TempFolder& temp) { temp.Write("Zelvia/nomeload", "\"C:\\a.zlv\"\r\n"); });
    row("a new table", true, [](const TempFolder& temp) { temp.Write("Zelvia/prova/a.tab", ""); });
    row("a file that is gone", true,
        [](const TempFolder& temp) { std::filesystem::remove(temp.Native("Zelvia/prova/Tipo.lsx")); });
    row("a file under another name", true, [](const TempFolder& temp) {
        std::filesystem::rename(temp.Native("Zelvia/prova/Tipo.lsx"), temp.Native("Zelvia/prova/Modo.lsx"));
    });
}

void CopyStoreTest::OnlyAChangeMakesACopy()
{
    QFETCH(std::function<void(const TempFolder&)>, change);
    QFETCH(bool, copied);
    QCOMPARE(TakeAt(kNoon), CopyOutcome::Made);
    change(*temp_);
    QCOMPARE(TakeAt("2026-11-21 13:00:00"), copied ? CopyOutcome::Made : CopyOutcome::Unchanged);
    QCOMPARE(Names(), copied ? QStringLiteral("000001_2026-11-21_12-00-00|000002_2026-11-21_13-00-00")
                             : QStringLiteral("000001_2026-11-21_12-00-00"));
    QCOMPARE(TakeAt("2026-11-21 14:00:00"), CopyOutcome::Unchanged);
    QCOMPARE(ReadWhole(Root() / "000001_2026-11-21_12-00-00/ZelviaFile/prova.zlv"), Text("diario"));
}

void CopyStoreTest::NothingToCopy()
{
    std::filesystem::remove_all(Program() / "ZelviaFile");
    std::filesystem::remove_all(Program() / "prova");
    QCOMPARE(TakeAt(kNoon), CopyOutcome::NothingThere);
    std::filesystem::remove_all(Program());
    QCOMPARE(TakeAt(kNoon), CopyOutcome::NothingThere);
    QVERIFY(!std::filesystem::exists(Root()));
}

void CopyStoreTest::AnOpenDiaryIsNotCopied()
{
    {
        const FileLock running(Program() / ".zelvia.lock", std::chrono::milliseconds(0));
        QCOMPARE(TakeAt(kNoon), CopyOutcome::InUse);
        QCOMPARE(Names(), QString());
    }
    QCOMPARE(TakeAt(kNoon), CopyOutcome::Made);
}

void CopyStoreTest::TheClockIsSetBack()
{
    QCOMPARE(TakeAt(kNoon), CopyOutcome::Made);
    temp_->Write("Zelvia/ZelviaFile/prova.zlv", "secondo");
    QCOMPARE(TakeAt("2001-01-01 00:00:00"), CopyOutcome::Made);
    // The newest is the one taken last, not the one with the latest date.
    QCOMPARE(TakeAt("2001-01-01 00:00:00"), CopyOutcome::Unchanged);
    temp_->Write("Zelvia/ZelviaFile/prova.zlv", "diario");
    QCOMPARE(TakeAt("2001-01-01 00:00:00"), CopyOutcome::Made);
    QCOMPARE(Names(),
             QStringLiteral("000001_2026-11-21_12-00-00|000002_2001-01-01_00-00-00|000003_2001-01-01_00-00-00"));
    // Dates far ahead and far behind alike count their months; of the 30 last none goes for its date.
    for (int i = 4; i <= 33; ++i) {
        temp_->Write("Zelvia/ZelviaFile/prova.zlv", std::to_string(i));
        QCOMPARE(TakeAt("1999-12-31 23:59:59"), CopyOutcome::Made);
    }
    // 1 is the last of its month, 3 the last of January 2001; 2 is neither and old.
    const QStringList names = Names().split(QLatin1Char('|'));
    QCOMPARE(names.size(), 32);
    QCOMPARE(names[0], QStringLiteral("000001_2026-11-21_12-00-00"));
    QCOMPARE(names[1], QStringLiteral("000003_2001-01-01_00-00-00"));
    QCOMPARE(names[2], QStringLiteral("000004_1999-12-31_23-59-59"));
}

void CopyStoreTest::OldCopiesGo_data()
{
    QTest::addColumn<int>("count"); // Copies taken, two a month from January 2026 on.
    QTest::addColumn<QList<int>>("gone");
    QTest::newRow("thirty stay") << 30 << QList<int>{};
    QTest::newRow("the first of January goes") << 31 << QList<int>{1};
    QTest::newRow("the last of January stays") << 32 << QList<int>{1};
    QTest::newRow("the first of February goes") << 33 << QList<int>{1, 3};
    QTest::newRow("of five months the last") << 40 << QList<int>{1, 3, 5, 7, 9};
}

void CopyStoreTest::OldCopiesGo()
{
    QFETCH(int, count);
    QFETCH(QList<int>, gone);
    for (int i = 0; i < count; ++i) {
        temp_->Write("Zelvia/ZelviaFile/prova.zlv", std::to_string(i));
        const std::string date = std::to_string(2026 + i / 24) + "-" + std::to_string(i / 2 % 12 + 1) + "-" +
                                 std::to_string(i % 2 * 10 + 10) + " 12:00:00";
        QCOMPARE(TakeAt(date.c_str()), CopyOutcome::Made);
    }
    QList<int> left;
    for (const Copy& copy : CopyStore(Root()).List()) {
        left << copy.number;
        QCOMPARE(ReadWhole(copy.place / "ZelviaFile/prova.zlv"), std::to_string(copy.number - 1));
    }
    QList<int> wanted;
    for (int i = 1; i <= count; ++i) {
        if (!gone.contains(i)) {
            wanted << i;
        }
    }
    QCOMPARE(left, wanted);
    QCOMPARE(Names().count(QLatin1Char('|')), wanted.size() - 1);
}

void CopyStoreTest::FoldersDoNotThinEachOther()
{
    temp_->MakeFolder("Altra/prova");
    temp_->Write("Altra/prova/Tipo.lsx", "altra");
    QCOMPARE(CopyStore(Root()).Take(temp_->Native("Altra"), At(kNoon)), CopyOutcome::Made);
    for (int i = 0; i < 31; ++i) {
        temp_->Write("Zelvia/ZelviaFile/prova.zlv", std::to_string(i));
        QCOMPARE(TakeAt(kNoon), CopyOutcome::Made);
    }
    // Nor does the newest copy of one say anything about the other.
    QCOMPARE(CopyStore(Root()).Take(temp_->Native("Altra"), At(kNoon)), CopyOutcome::Unchanged);
    const std::vector<Copy> copies = CopyStore(Root()).List();
    QCOMPARE(copies.size(), std::size_t(31));
    QCOMPARE(copies[0].folder.string(), temp_->Native("Altra"));
    QCOMPARE(copies[0].number, 1);
    QCOMPARE(copies[1].number, 3);
}

void CopyStoreTest::LeftoversAreSweptAway()
{
    temp_->MakeFolder("stato/zelvia/copie/.nuova/ZelviaFile");
    temp_->Write("stato/zelvia/copie/.nuova/ZelviaFile/prova.zlv", "dia");
    temp_->MakeFolder("stato/zelvia/copie/.vecchia000007_2026-01-01_00-00-00/prova");
    QCOMPARE(TakeAt(kNoon), CopyOutcome::Made);
    QCOMPARE(Names(), QStringLiteral("000001_2026-11-21_12-00-00"));
    temp_->MakeFolder("stato/zelvia/copie/.nuova");
    QCOMPARE(TakeAt(kNoon), CopyOutcome::Unchanged);
    QCOMPARE(Names(), QStringLiteral("000001_2026-11-21_12-00-00"));
}

void CopyStoreTest::OtherNamesAreNoCopies()
{
    temp_->MakeFolder("stato/zelvia/copie/appunti");
    temp_->MakeFolder("stato/zelvia/copie/000009_2026-11-21_12-00-00"); // Without its origin.
    temp_->MakeFolder("stato/zelvia/copie/9_2026-11-21_12-00-00");
    temp_->Write("stato/zelvia/copie/9_2026-11-21_12-00-00/.cartella", Program().string());
    temp_->Write("stato/zelvia/copie/000008_2026-11-21_12-00-00", "un file");
    QCOMPARE(CopyStore(Root()).List().size(), std::size_t(0));
    QCOMPARE(TakeAt(kNoon), CopyOutcome::Made);
    QCOMPARE(CopyStore(Root()).List().size(), std::size_t(1));
    QVERIFY(temp_->Has("stato/zelvia/copie/appunti"));
}

void CopyStoreTest::AnotherProcessIsWaitedFor()
{
    QCOMPARE(TakeAt(kNoon), CopyOutcome::Made);
    temp_->Write("Zelvia/prova/Tipo.lsx", "nuova");
    const FileLock other(Root() / ".blocco", std::chrono::milliseconds(0));
    QVERIFY_THROWS_EXCEPTION(FileFailure, CopyStore(Root(), std::chrono::milliseconds(100)).Take(Program(), At(kNoon)));
    QCOMPARE(Names(), QStringLiteral("000001_2026-11-21_12-00-00"));
}

void CopyStoreTest::AFailureLeavesTheCopiesAlone_data()
{
    using Obstacle = std::function<void(const TempFolder&)>;
    QTest::addColumn<Obstacle>("obstacle");
    QTest::newRow("the copies' folder can't be made")
        << Obstacle([](const TempFolder& temp) { temp.Write("stato", "un file"); });
    QTest::newRow("a file of the diary can't be read") << Obstacle([](const TempFolder& temp) {
        // The end of a read of one's own memory from its start is an error of the device, whoever reads.
        std::filesystem::create_symlink("/proc/self/mem", temp.Native("Zelvia/prova/Modo.lsx"));
    });
}

void CopyStoreTest::AFailureLeavesTheCopiesAlone()
{
    QFETCH(std::function<void(const TempFolder&)>, obstacle);
    obstacle(*temp_);
    QVERIFY_THROWS_EXCEPTION(FileFailure, TakeAt(kNoon));
    QCOMPARE(Names(), QString());
}

/// A long file is copied and compared without being held in memory.
void CopyStoreTest::ALongFile()
{
    constexpr std::uintmax_t length = std::uintmax_t{1} << 26;
    const long before = PeakMemory();
    const std::string modo = temp_->Native("Zelvia/prova/Modo.lsx");
    temp_->Write("Zelvia/prova/Modo.lsx", "lista");
    std::filesystem::resize_file(modo, length);
    QCOMPARE(TakeAt(kNoon), CopyOutcome::Made);
    QCOMPARE(TakeAt("2026-11-21 12:00:01"), CopyOutcome::Unchanged);
    const std::vector<Copy> copies = CopyStore(Root()).List();
    QCOMPARE(copies.size(), std::size_t(1));
    QCOMPARE(std::filesystem::file_size(copies.front().place / "prova/Modo.lsx"), length);
    QVERIFY(PeakMemory() - before < static_cast<long>(length / 1024 / 4));
}

void CopyStoreTest::PuttingBack_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("there");
    QTest::newRow("a new folder") << "Nuova" << false;
    QTest::newRow("a new folder in a new one") << "casa/Nuova" << false;
    QTest::newRow("an empty folder") << "Nuova" << true;
}

void CopyStoreTest::PuttingBack()
{
    QFETCH(QString, target);
    QFETCH(bool, there);
    const std::filesystem::path place = temp_->Native(target.toStdString());
    if (there) {
        std::filesystem::create_directories(place);
    }
    QCOMPARE(TakeAt(kNoon), CopyOutcome::Made);
    temp_->Write("Zelvia/ZelviaFile/prova.zlv", "dopo");
    CopyStore store(Root());
    QCOMPARE(store.PutBack(*store.Find(1), place), std::vector<std::string>());
    QCOMPARE(FilesBelow(place), (std::vector<std::string>{"ZelviaFile/prova.zlv", "nomeload", "prova/Tipo.lsx"}));
    QCOMPARE(ReadWhole(place / "ZelviaFile/prova.zlv"), Text("diario"));
    QCOMPARE(temp_->Read("Zelvia/ZelviaFile/prova.zlv"), Text("dopo"));
    // Nothing but the runner's files: not the copy's own note, nothing passing.
    QVERIFY(!std::filesystem::exists(place / ".cartella"));
    for (const auto& entry : std::filesystem::directory_iterator(place.parent_path())) {
        QVERIFY(!entry.path().filename().string().starts_with('.'));
    }
}

void CopyStoreTest::PuttingBackIsRefused_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("the diary itself") << "Zelvia";
    QTest::newRow("a folder with a hidden file") << "nascosto";
    QTest::newRow("a file") << "file";
    QTest::newRow("a link that leads nowhere") << "rotto";
}

void CopyStoreTest::PuttingBackIsRefused()
{
    QFETCH(QString, target);
    temp_->MakeFolder("nascosto");
    temp_->Write("nascosto/.x", "");
    temp_->Write("file", "");
    std::filesystem::create_symlink("manca", temp_->Native("rotto"));
    QCOMPARE(TakeAt(kNoon), CopyOutcome::Made);
    temp_->Write("Zelvia/ZelviaFile/prova.zlv", "dopo");
    CopyStore store(Root());
    QVERIFY_THROWS_EXCEPTION(FileFailure, store.PutBack(*store.Find(1), temp_->Native(target.toStdString())));
    QCOMPARE(temp_->Read("Zelvia/ZelviaFile/prova.zlv"), Text("dopo"));
    QCOMPARE(temp_->Read("file"), Text());
    QCOMPARE(FilesBelow(temp_->Native("nascosto")), std::vector<std::string>());
}

void CopyStoreTest::PointersMoveAlong_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("before"); // "@" means the folder of the test.
    QTest::addColumn<QString>("after");
    QTest::addColumn<bool>("elsewhere");
    const auto row = [](const char* name, const char* file, const char* before, const char* after, bool elsewhere) {
        QTest::newRow(name) << QString::fromUtf8(file) << QString::fromUtf8(before) << QString::fromUtf8(after)
                            << elsewhere;
    };
    row("the diary", "nomeload", "\"@\\Zelvia\\ZelviaFile\\a.zlv\"\r\n", "\"@\\Nuova\\ZelviaFile\\a.zlv\"\r\n", false);
    row("a table", "prova/nometab", "\"@\\Zelvia\\prova\\a.tab\"\r\n", "\"@\\Nuova\\prova\\a.tab\"\r\n", false);
    row("none", "prova/nometab", "\"\"\r\n", "\"\"\r\n", false);
    row("a folder that begins alike", "nomeload", "\"@\\Zelvia2\\a.zlv\"\r\n", "\"@\\Zelvia2\\a.zlv\"\r\n", true);
    row("another folder", "prova/nometab", "\"C:\\X\\a.tab\"\r\n", "\"C:\\X\\a.tab\"\r\n", true);
    row("no pointer file", "prova/Modo.lsx", "\"@\\Zelvia\\a\"\r\n", "\"@\\Zelvia\\a\"\r\n", false);
}

void CopyStoreTest::PointersMoveAlong()
{
    QFETCH(QString, file);
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(bool, elsewhere);
    const QString place = QString::fromStdString(temp_->Path());
    temp_->Write("Zelvia/" + file.toStdString(), before.replace(QLatin1Char('@'), place).toStdString());
    QCOMPARE(TakeAt(kNoon), CopyOutcome::Made);
    CopyStore store(Root());
    const auto others = store.PutBack(*store.Find(1), temp_->Native("Nuova"));
    QCOMPARE(others, elsewhere ? std::vector<std::string>{file.toStdString()} : std::vector<std::string>());
    QCOMPARE(temp_->Read("Nuova/" + file.toStdString()), after.replace(QLatin1Char('@'), place).toStdString());
}

void CopyStoreTest::WhereTheCopiesLie_data()
{
    QTest::addColumn<QByteArray>("state");
    QTest::addColumn<QByteArray>("home");
    QTest::addColumn<QString>("place");
    QTest::newRow("the state folder") << QByteArray("/stato") << QByteArray("/casa") << "/stato/zelvia/copie";
    QTest::newRow("the home") << QByteArray() << QByteArray("/casa") << "/casa/.local/state/zelvia/copie";
    QTest::newRow("a relative state folder counts for none")
        << QByteArray("stato") << QByteArray("/casa") << "/casa/.local/state/zelvia/copie";
    QTest::newRow("neither") << QByteArray() << QByteArray() << "";
}

void CopyStoreTest::WhereTheCopiesLie()
{
    QFETCH(QByteArray, state);
    QFETCH(QByteArray, home);
    QFETCH(QString, place);
    qputenv("XDG_STATE_HOME", state);
    qputenv("HOME", home);
    QCOMPARE(QString::fromStdString(CopyFolder()), place);
}

ZELVIA_TEST(CopyStoreTest)
#include "CopyStoreTest.moc"
