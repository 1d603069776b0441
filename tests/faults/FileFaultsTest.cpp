// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Files.h"
#include "diary/Module1.h"
#include "faults/FaultyDisk.h"
#include "faults/SavedFiles.h"
#include "support/Days.h"
#include "support/MessageScript.h"
#include "support/TempFolder.h"
#include "support/TestProgram.h"

#include <QTest>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <span>
#include <utility>

using namespace zelvia;
using namespace zelvia::test;

/// Every call on a file goes wrong in turn: each routine reports it under its own title, leaves as much as it had
/// done, closes the file, and does its work the next time.
class FileFaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void Writing_data();
    void Writing();
    void WritingWhatCannotBeSynced_data();
    void WritingWhatCannotBeSynced();
    void WritingANewFile_data() { AddFileRows(); }
    void WritingANewFile();
    void Opening_data() { AddFileRows(); }
    void Opening();
    void Reading_data();
    void Reading();
    void MakingAFolder_data();
    void MakingAFolder();
    void SyncingAFoldersName();
    void Deleting_data();
    void Deleting();
    void ListingAFolder_data();
    void ListingAFolder();
    void LookingAtAFile_data();
    void LookingAtAFile();
    void LookingAtTheNames_data();
    void LookingAtTheNames();

private:
    std::string WriteOnce(const SavedFile& file, const Fault& fault, int error);
    void ReadOnce(const SavedFile& file, const Fault& fault, int error);

    TempFolder folder_;
};

namespace
{

// As much as the routines hand to the system at a time, and take from it.
constexpr std::size_t kWritten = 1 << 16;
constexpr std::size_t kRead = 1 << 15;

struct Failure {
    Call call;
    int reason;
    int error; ///< Of the report; 0 when the failure does not matter.
};

constexpr Failure kWriteFailures[] = {
    {Call::Open, EACCES, 75}, {Call::Open, ENOENT, 76}, {Call::Write, ENOSPC, 61},
    {Call::Write, EIO, 57},   {Call::Close, EIO, 57},   {Call::Sync, EIO, 57},
};

constexpr Failure kReadFailures[] = {
    {Call::Open, EACCES, 75},
    {Call::Open, ENOENT, 53},
    {Call::Read, EIO, 57},
    {Call::Close, EIO, 0},
};

// The reasons why a file can't be opened, but for ENOENT.
constexpr std::pair<int, int> kOpenReasons[] = {
    {EACCES, 75}, {EPERM, 75},  {EROFS, 75},  {EISDIR, 75}, {ELOOP, 75}, {ENOTDIR, 76}, {ENOSPC, 61},
    {EDQUOT, 61}, {EMFILE, 67}, {ENFILE, 67}, {EIO, 57},    {EBUSY, 70}, {ETXTBSY, 70}, {ENAMETOOLONG, 52},
};

// The other failures of the later calls, for one file: the numbers are found in one place for all.
constexpr const char* kFileOfReasons = "CalendarioGare";

constexpr Failure kWriteReasons[] = {
    {Call::Write, EDQUOT, 61}, {Call::Write, EFBIG, 61}, {Call::Close, ENOSPC, 61}, {Call::Close, EDQUOT, 61},
    {Call::Sync, ENOSPC, 61},  {Call::Sync, EDQUOT, 61}, {Call::Sync, EROFS, 75},
};

// A file system that can't sync says so, and a call that was interrupted is made again.
constexpr Failure kNoFailures[] = {{Call::Sync, EINVAL, 0}, {Call::Sync, ENOTSUP, 0}, {Call::Sync, EINTR, 0}};

constexpr Failure kReadReasons[] = {{Call::Read, EISDIR, 75}, {Call::Read, EAGAIN, 70}};

constexpr Failure kFolderFailures[] = {
    {Call::Make, EACCES, 75}, {Call::Make, EPERM, 75},   {Call::Make, EROFS, 75},
    {Call::Make, ENOSPC, 61}, {Call::Make, EDQUOT, 61},  {Call::Make, EIO, 57},
    {Call::Make, ENOENT, 76}, {Call::Make, ENOTDIR, 76}, {Call::Make, ENAMETOOLONG, 52},
};

constexpr Failure kDeleteFailures[] = {
    {Call::Delete, EACCES, 75}, {Call::Delete, EPERM, 75},   {Call::Delete, EROFS, 75},  {Call::Delete, EBUSY, 70},
    {Call::Delete, EIO, 57},    {Call::Delete, ETXTBSY, 70}, {Call::Delete, ENOENT, 53},
};

// What can't be looked at is opened all the same.
constexpr Failure kLookFailures[] = {
    {Call::Look, EACCES, 0},
    {Call::Look, ENOENT, 0},
};

constexpr Failure kListFailures[] = {
    {Call::List, EACCES, 75}, {Call::List, EPERM, 75}, {Call::List, EMFILE, 67},
    {Call::List, ENFILE, 67}, {Call::List, EIO, 57},   {Call::NextName, EIO, 57},
};

QByteArray NameOf(const Failure& failure)
{
    constexpr const char* calls[] = {"open",      "read", "write",   "close",  "sync", "list",
                                     "next name", "make", "sync of", "delete", "look"};
    return QByteArray(calls[static_cast<int>(failure.call)]) + ", " + strerrorname_np(failure.reason);
}

void AddColumns()
{
    QTest::addColumn<int>("call");
    QTest::addColumn<int>("reason");
    QTest::addColumn<int>("error");
}

QTestData& operator<<(QTestData& row, const Failure& failure)
{
    return row << static_cast<int>(failure.call) << failure.reason << failure.error;
}

void AddFailures(std::span<const Failure> failures)
{
    AddColumns();
    for (const Failure& failure : failures) {
        QTest::newRow(NameOf(failure).constData()) << failure;
    }
}

void AddFilesWithFailures(std::span<const Failure> failures, std::span<const Failure> reasons = {})
{
    QTest::addColumn<int>("file");
    AddColumns();
    for (std::size_t i = 0; i < SavedFiles().size(); ++i) {
        const QByteArray name = SavedFiles()[i].name;
        const auto add = [&](const Failure& failure) {
            QTest::newRow((name + ": " + NameOf(failure)).constData()) << static_cast<int>(i) << failure;
        };
        std::for_each(failures.begin(), failures.end(), add);
        if (name == kFileOfReasons) {
            std::for_each(reasons.begin(), reasons.end(), add);
        }
    }
}

const SavedFile& FileOf(int index)
{
    return SavedFiles()[static_cast<std::size_t>(index)];
}

} // namespace

void FileFaultsTest::init()
{
    Module1::CartellaDiario = folder_.Path();
}

void FileFaultsTest::Writing_data()
{
    AddFilesWithFailures(kWriteFailures, kWriteReasons);
}

/// Writes over an old file and returns what is there then.
std::string FileFaultsTest::WriteOnce(const SavedFile& file, const Fault& fault, int error)
{
    folder_.Write(file.name, "vecchio");
    const int descriptors = OpenDescriptors();
    {
        const FaultyDisk disk(folder_.Native(), fault);
        MessageScript boxes;
        if (error != 0) {
            boxes.Expect(WriteReport(file, error));
        }
        file.write();
        if (!boxes.AllShown() || disk.Struck() != (error != 0)) {
            QTest::qFail("the failure came without its report, or not at all", __FILE__, __LINE__);
        }
    }
    if (OpenDescriptors() != descriptors) {
        QTest::qFail("a file was left open", __FILE__, __LINE__);
    }
    return folder_.Read(file.name);
}

void FileFaultsTest::Writing()
{
    QFETCH(int, file);
    QFETCH(int, call);
    QFETCH(int, reason);
    QFETCH(int, error);
    const SavedFile& saved = FileOf(file);
    saved.fill();
    const std::string whole = Lines(saved.lines());
    QVERIFY(whole.size() > 2 * kRead);
    const auto kind = static_cast<Call>(call);
    const bool writes = kind == Call::Write;
    const std::size_t last = writes ? (whole.size() + kWritten - 1) / kWritten : 1;
    for (std::size_t n = 1; n <= last; ++n) {
        const std::string left = WriteOnce(saved, {kind, static_cast<int>(n), reason, {}, {}}, error);
        const std::size_t start = (n - 1) * kWritten;
        // A disk that fills up takes a part of the piece.
        const std::size_t taken = reason == EIO ? 0 : std::min(kWritten, whole.size() - start) / 2;
        const std::string expected = writes               ? whole.substr(0, start + taken)
                                     : kind == Call::Open ? std::string("vecchio")
                                                          : whole;
        QCOMPARE(Difference(left, expected), QByteArray());
    }
    const int none = static_cast<int>(last) + 1;
    QCOMPARE(Difference(WriteOnce(saved, {kind, none, reason, {}, {}}, 0), whole), QByteArray());
}

void FileFaultsTest::WritingWhatCannotBeSynced_data()
{
    AddFilesWithFailures(kNoFailures);
}

void FileFaultsTest::WritingWhatCannotBeSynced()
{
    QFETCH(int, file);
    QFETCH(int, reason);
    const SavedFile& saved = FileOf(file);
    saved.fill();
    const FaultyDisk disk(folder_.Native(), {Call::Sync, 1, reason, {}, {}});
    WriteFor(saved, 0);
    QCOMPARE(disk.Calls(), std::vector<Caught>(reason == EINTR ? 2 : 1, Caught{saved.name, true}));
    QCOMPARE(Difference(folder_.Read(saved.name), Lines(saved.lines())), QByteArray());
}

/// The name of a new file is synced as its bytes are, and the folder of an old one left alone.
void FileFaultsTest::WritingANewFile()
{
    const SavedFile& saved = FetchedFile();
    saved.fill();
    const auto write = [&](int nth, int reason, int error, std::size_t calls) {
        const int descriptors = OpenDescriptors();
        const FaultyDisk disk(folder_.Native(), {Call::SyncFolder, nth, reason, {}, {}});
        WriteFor(saved, error);
        QCOMPARE(disk.Calls(), std::vector<Caught>(calls, Caught{}));
        QCOMPARE(Difference(folder_.Read(saved.name), Lines(saved.lines())), QByteArray());
        QCOMPARE(OpenDescriptors(), descriptors);
    };
    const auto writeNew = [&](int nth, int reason, int error, std::size_t calls) {
        std::filesystem::remove(folder_.Native(saved.name));
        write(nth, reason, error, calls);
    };
    constexpr int opening = 1;
    constexpr int syncing = 2;
    writeNew(opening, 0, 0, 2);
    writeNew(opening, EMFILE, 67, 1);
    writeNew(opening, EACCES, 0, 1);
    writeNew(syncing, EIO, 57, 2);
    writeNew(syncing, ENOSPC, 61, 2);
    writeNew(syncing, EINVAL, 0, 2);
    write(opening, EIO, 0, 0);
}

/// Neither the file nor what is in memory changes, whatever the reason.
void FileFaultsTest::Opening()
{
    const SavedFile& saved = FetchedFile();
    saved.forget();
    const std::vector<std::string> before = saved.lines();
    folder_.Write(saved.name, "vecchio");
    const int descriptors = OpenDescriptors();
    for (const auto& [reason, error] : kOpenReasons) {
        const FaultyDisk disk(folder_.Native(), {Call::Open, 1, reason, {}, {}});
        WriteFor(saved, error);
        QVERIFY2(disk.Struck(), strerrorname_np(reason));
        const FaultyDisk another(folder_.Native(), {Call::Open, 1, reason, {}, {}});
        ReadFor(saved, error);
        QVERIFY2(another.Struck(), strerrorname_np(reason));
        QCOMPARE(folder_.Read(saved.name), Text("vecchio"));
        QVERIFY2(saved.lines() == before, strerrorname_np(reason));
    }
    QCOMPARE(OpenDescriptors(), descriptors);
}

void FileFaultsTest::Reading_data()
{
    AddFilesWithFailures(kReadFailures, kReadReasons);
}

/// Reads over other values.
void FileFaultsTest::ReadOnce(const SavedFile& file, const Fault& fault, int error)
{
    file.forget();
    const int descriptors = OpenDescriptors();
    {
        const FaultyDisk disk(folder_.Native(), fault);
        ReadFor(file, error);
        QCOMPARE(disk.Struck(), fault.error != 0);
    }
    QCOMPARE(OpenDescriptors(), descriptors);
}

void FileFaultsTest::Reading()
{
    QFETCH(int, file);
    QFETCH(int, call);
    QFETCH(int, reason);
    QFETCH(int, error);
    const SavedFile& saved = FileOf(file);
    saved.forget();
    const std::vector<std::string> before = saved.lines();
    saved.fill();
    const std::vector<std::string> filed = saved.lines();
    const std::string whole = Lines(filed);
    folder_.Write(saved.name, whole);
    const auto kind = static_cast<Call>(call);
    // The whole pieces, the last one, and the end after it.
    const std::size_t last = kind == Call::Read ? whole.size() / kRead + 2 : 1;
    for (std::size_t n = 1; n <= last; ++n) {
        ReadOnce(saved, {kind, static_cast<int>(n), reason, {}, {}}, error);
        if (kind == Call::Open) {
            QVERIFY(saved.lines() == before);
        } else if (kind == Call::Close) {
            QVERIFY(saved.lines() == filed);
        } else {
            QCOMPARE(WrongAfterCut(saved, filed, std::min(n - 1, whole.size() / kRead) * kRead), QByteArray());
        }
    }
    ReadOnce(saved, {kind, static_cast<int>(last) + 1, 0, {}, {}}, 0);
    QCOMPARE(Difference(Lines(saved.lines()), whole), QByteArray());
}

void FileFaultsTest::MakingAFolder_data()
{
    AddFailures(kFolderFailures);
}

void FileFaultsTest::MakingAFolder()
{
    QFETCH(int, reason);
    QFETCH(int, error);
    const TempFolder folder;
    {
        const FaultyDisk disk(folder.Native(), {Call::Make, 1, reason, {}, {}});
        QCOMPARE(RaisedBy([&] { MakeFolder(folder.Path("nuova")); }), error);
        QVERIFY(disk.Struck());
        QVERIFY(!folder.Has("nuova"));
        QCOMPARE(RaisedBy([&] { MakeFolder(folder.Path("nuova")); }), 0);
    }
    QVERIFY(folder.Has("nuova"));
}

/// The folder is there even so.
void FileFaultsTest::SyncingAFoldersName()
{
    const TempFolder folder;
    const FaultyDisk disk(folder.Native(), {Call::SyncFolder, 2, EIO, {}, {}});
    QCOMPARE(RaisedBy([&] { MakeFolder(folder.Path("nuova")); }), 57);
    QVERIFY(folder.Has("nuova"));
}

void FileFaultsTest::Deleting_data()
{
    AddFailures(kDeleteFailures);
}

void FileFaultsTest::Deleting()
{
    QFETCH(int, reason);
    QFETCH(int, error);
    const TempFolder folder;
    folder.Write("Base.tab", "x");
    {
        const FaultyDisk disk(folder.Native(), {Call::Delete, 1, reason, {}, {}});
        QCOMPARE(RaisedBy([&] { DeleteFile(folder.Path("Base.tab")); }), error);
        QVERIFY(disk.Struck());
        QVERIFY(folder.Has("Base.tab"));
        QCOMPARE(RaisedBy([&] { DeleteFile(folder.Path("Base.tab")); }), 0);
    }
    QVERIFY(!folder.Has("Base.tab"));
}

void FileFaultsTest::ListingAFolder_data()
{
    AddFailures(kListFailures);
}

/// A folder that can't be listed is never taken for an empty one: the files in it would be written over.
void FileFaultsTest::ListingAFolder()
{
    QFETCH(int, call);
    QFETCH(int, reason);
    QFETCH(int, error);
    const TempFolder folder;
    folder.MakeFolder("prova");
    folder.Write("prova/uno", "x");
    folder.Write("prova/due", "x");
    const int descriptors = OpenDescriptors();
    int failed = 0;
    for (bool struck = true; struck;) {
        const FaultyDisk disk(folder.Native(), {static_cast<Call>(call), failed + 1, reason, {}, {}});
        std::vector<Text> names;
        const int raised = RaisedBy([&] { names = FilesIn(folder.Path("prova")); });
        struck = disk.Struck();
        QCOMPARE(raised, struck ? error : 0);
        QCOMPARE(names.size(), std::size_t(struck ? 0 : 2));
        QCOMPARE(OpenDescriptors(), descriptors);
        failed += struck ? 1 : 0;
    }
    // The folder, or its two files, the two names of the folders and the end.
    QCOMPARE(failed, static_cast<Call>(call) == Call::List ? 1 : 5);
}

void FileFaultsTest::LookingAtAFile_data()
{
    AddFilesWithFailures(kLookFailures);
}

/// A failure of a look alone neither stops a save or a load nor changes what comes of it.
void FileFaultsTest::LookingAtAFile()
{
    QFETCH(int, file);
    QFETCH(int, reason);
    const SavedFile& saved = FileOf(file);
    const auto looks = [&](const std::function<void()>& work) {
        int n = 0;
        for (bool struck = true; struck;) {
            const FaultyDisk disk(folder_.Native(), {Call::Look, ++n, reason, {}, {}});
            const MessageScript none;
            work();
            struck = disk.Struck();
        }
        return n - 1;
    };
    saved.fill();
    const std::vector<std::string> filed = saved.lines();
    folder_.Write(saved.name, "vecchio");
    QVERIFY(looks([&] {
                saved.write();
                QCOMPARE(Difference(folder_.Read(saved.name), Lines(filed)), QByteArray());
                folder_.Write(saved.name, "vecchio");
            }) >= 2);
    folder_.Write(saved.name, Lines(filed));
    QVERIFY(looks([&] {
                saved.forget();
                saved.read();
                QVERIFY(saved.lines() == filed);
            }) >= 2);
}

void FileFaultsTest::LookingAtTheNames_data()
{
    AddColumns();
    for (const auto& [reason, counted] :
         {std::pair(EACCES, 1), std::pair(EIO, 1), std::pair(ENOENT, 0), std::pair(ELOOP, 0)}) {
        QTest::newRow(strerrorname_np(reason)) << static_cast<int>(Call::Look) << reason << counted;
    }
}

/// A link that can't be followed counts as a file, so that its folder is never taken for an empty one; one that leads
/// nowhere does not.
void FileFaultsTest::LookingAtTheNames()
{
    QFETCH(int, reason);
    QFETCH(int, error);
    const TempFolder folder;
    folder.MakeFolder("prova");
    folder.Write("altrove", "x");
    std::filesystem::create_symlink(folder.Native("altrove"), folder.Native("prova/nome"));
    {
        const FaultyDisk disk(folder.Native(), {Call::Look, 1, reason, "/nome", {}});
        QCOMPARE(FilesIn(folder.Path("prova")).size(), static_cast<std::size_t>(error));
        QVERIFY(disk.Struck());
    }
    QCOMPARE(FilesIn(folder.Path("prova")), std::vector<Text>{"nome"});
}

ZELVIA_TEST(FileFaultsTest)
#include "FileFaultsTest.moc"
