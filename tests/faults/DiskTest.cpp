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

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <optional>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

using namespace zelvia;
using namespace zelvia::test;

/// The files of a diary on disks as they are: full, small, read-only, in use, changed by somebody else.
class DiskTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void AFullDisk_data() { AddFileRows(); }
    void AFullDisk();
    void AFileThatMayNotGrow_data() { AddFileRows(); }
    void AFileThatMayNotGrow();
    void ASmallDisk_data() { AddFileRows(); }
    void ASmallDisk();
    void AReadOnlyDisk_data() { AddFileRows(); }
    void AReadOnlyDisk();
    void AReadOnlyFolder_data() { AddFileRows(); }
    void AReadOnlyFolder();
    void AFileThatMayNotBeTouched_data() { AddFileRows(); }
    void AFileThatMayNotBeTouched();
    void AFolderThatMayNotBeListed();
    void AFolderInPlaceOfTheFile_data() { AddFileRows(); }
    void AFolderInPlaceOfTheFile();
    void AFileInPlaceOfTheFolder_data() { AddFileRows(); }
    void AFileInPlaceOfTheFolder();
    void TooManyFilesAreOpen_data() { AddFileRows(); }
    void TooManyFilesAreOpen();
    void ChangedWhileItIsRead_data();
    void ChangedWhileItIsRead();

private:
    std::unique_ptr<TempFolder> folder_;
    int descriptors_ = 0;
};

namespace
{

constexpr rlim_t kSmall = 65536;

/// Holds a limit of the system lower for as long as it lives.
class Limit
{
public:
    Limit(__rlimit_resource resource, rlim_t value) : resource_(resource), signal_(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(resource_, &before_);
        const rlimit limit{value, before_.rlim_max};
        setrlimit(resource_, &limit);
    }
    ~Limit()
    {
        setrlimit(resource_, &before_);
        std::signal(SIGXFSZ, signal_);
    }
    Limit(const Limit&) = delete;
    Limit& operator=(const Limit&) = delete;

private:
    __rlimit_resource resource_;
    rlimit before_{};
    void (*signal_)(int);
};

/// Root is above the rights on files: while this lives the process is another user's, to whom the folder then belongs.
class OrdinaryUser
{
public:
    explicit OrdinaryUser(const TempFolder& folder)
    {
        constexpr uid_t nobody = 65534;
        if (geteuid() == 0 && chown(folder.Native().c_str(), nobody, nobody) == 0) {
            changed_ = seteuid(nobody) == 0;
        }
    }
    ~OrdinaryUser()
    {
        if (changed_ && seteuid(0) != 0) {
            qFatal("no way back to root");
        }
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    bool changed_ = false;
};

/// Gives a file or folder other rights for as long as it lives.
class Rights
{
public:
    Rights(std::string path, mode_t mode) : path_(std::move(path))
    {
        struct stat before {
        };
        stat(path_.c_str(), &before);
        before_ = before.st_mode;
        chmod(path_.c_str(), mode);
    }
    ~Rights() { chmod(path_.c_str(), before_); }
    Rights(const Rights&) = delete;
    Rights& operator=(const Rights&) = delete;

private:
    std::string path_;
    mode_t before_;
};

/// A disk of 64 KiB at a folder, for as long as it lives. Only root may mount one; to others files of that size do.
class SmallDisk
{
public:
    explicit SmallDisk(std::string folder) : folder_(std::move(folder))
    {
        mounted_ = mount("zelvia", folder_.c_str(), "tmpfs", 0, kOptions) == 0;
        if (!mounted_) {
            limit_.emplace(RLIMIT_FSIZE, kSmall);
        }
    }
    ~SmallDisk()
    {
        if (mounted_) {
            umount2(folder_.c_str(), MNT_DETACH);
        }
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    /// To others than root a folder without write permission serves instead.
    void MakeReadOnly()
    {
        if (!mounted_) {
            rights_.emplace(folder_, 0555);
        } else if (mount("zelvia", folder_.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, kOptions) != 0) {
            qFatal("the disk can't be made read-only");
        }
    }

private:
    static constexpr const char* kOptions = "size=64k,mode=0777";

    std::string folder_;
    bool mounted_;
    std::optional<Limit> limit_;
    std::optional<Rights> rights_;
};

} // namespace

void DiskTest::init()
{
    folder_ = std::make_unique<TempFolder>();
    Module1::CartellaDiario = folder_->Path();
    descriptors_ = OpenDescriptors();
}

/// No file is left open, whatever went wrong with it.
void DiskTest::cleanup()
{
    QCOMPARE(OpenDescriptors(), descriptors_);
}

void DiskTest::AFullDisk()
{
    const SavedFile& file = FetchedFile();
    file.fill();
    std::filesystem::create_symlink("/dev/full", folder_->Native(file.name));
    WriteFor(file, 61);
}

void DiskTest::AFileThatMayNotGrow()
{
    const SavedFile& file = FetchedFile();
    file.fill();
    const std::string whole = Lines(file.lines());
    {
        const Limit limit(RLIMIT_FSIZE, kSmall + 10);
        WriteFor(file, 61);
    }
    QCOMPARE(Difference(folder_->Read(file.name), whole.substr(0, kSmall + 10)), QByteArray());
    WriteFor(file, 0);
    QCOMPARE(Difference(folder_->Read(file.name), whole), QByteArray());
}

void DiskTest::ASmallDisk()
{
    const SavedFile& file = FetchedFile();
    file.fill();
    const std::string whole = Lines(file.lines());
    {
        const SmallDisk disk(folder_->Native());
        WriteFor(file, 61);
        const std::string left = folder_->Read(file.name);
        QVERIFY(!left.empty() && left.size() <= kSmall);
        QCOMPARE(Difference(left, whole.substr(0, left.size())), QByteArray());
    }
    WriteFor(file, 0);
    QCOMPARE(Difference(folder_->Read(file.name), whole), QByteArray());
}

void DiskTest::AReadOnlyDisk()
{
    const SavedFile& file = FetchedFile();
    file.fill();
    folder_->MakeFolder("disco");
    SmallDisk disk(folder_->Native("disco"));
    folder_->Write("disco/vecchio", "x");
    disk.MakeReadOnly();
    const OrdinaryUser user(*folder_);
    Module1::CartellaDiario = folder_->Path("disco");
    WriteFor(file, 75);
    QCOMPARE(RaisedBy([&] { MakeFolder(folder_->Path("disco/nuova")); }), 75);
    QCOMPARE(RaisedBy([&] { DeleteFile(folder_->Path("disco/vecchio")); }), 75);
    QCOMPARE(FilesIn(folder_->Path("disco")).size(), std::size_t(1));
    ReadFor(file, 53);
}

void DiskTest::AReadOnlyFolder()
{
    const SavedFile& file = FetchedFile();
    file.fill();
    const std::vector<std::string> filed = file.lines();
    folder_->Write("vecchio", "x");
    const OrdinaryUser user(*folder_);
    {
        const Rights rights(folder_->Native(), 0555);
        WriteFor(file, 75);
        QCOMPARE(RaisedBy([&] { MakeFolder(folder_->Path("nuova")); }), 75);
        QCOMPARE(RaisedBy([&] { DeleteFile(folder_->Path("vecchio")); }), 75);
        QVERIFY(folder_->Has("vecchio"));
    }
    WriteFor(file, 0);
    // What is there already can be written over and read even so.
    const Rights rights(folder_->Native(), 0555);
    WriteFor(file, 0);
    file.forget();
    ReadFor(file, 0);
    QVERIFY(file.lines() == filed);
}

void DiskTest::AFileThatMayNotBeTouched()
{
    const SavedFile& file = FetchedFile();
    file.forget();
    const std::vector<std::string> before = file.lines();
    const OrdinaryUser user(*folder_);
    folder_->Write(file.name, "vecchio");
    {
        const Rights rights(folder_->Native(file.name), 0000);
        ReadFor(file, 75);
        QVERIFY(file.lines() == before);
        WriteFor(file, 75);
    }
    QCOMPARE(Bytes(folder_->Read(file.name)), QByteArray("vecchio"));
}

/// A folder that may be written but not listed still holds its files.
void DiskTest::AFolderThatMayNotBeListed()
{
    const OrdinaryUser user(*folder_);
    folder_->MakeFolder("prova");
    folder_->Write("prova/Base.tab", "x");
    const Rights rights(folder_->Native("prova"), 0300);
    QCOMPARE(RaisedBy([&] { FilesIn(folder_->Path("prova")); }), 75);
    QCOMPARE(Bytes(FindFolder(folder_->Path("prova"))), QByteArray("prova"));
    QCOMPARE(RaisedBy([&] { DeleteFile(folder_->Path("prova/Base.tab")); }), 0);
}

void DiskTest::AFolderInPlaceOfTheFile()
{
    const SavedFile& file = FetchedFile();
    folder_->MakeFolder(file.name);
    WriteFor(file, 75);
    ReadFor(file, 75);
    QCOMPARE(RaisedBy([&] { DeleteFile(folder_->Path(file.name)); }), 75);
    QVERIFY(folder_->Has(file.name));
}

void DiskTest::AFileInPlaceOfTheFolder()
{
    const SavedFile& file = FetchedFile();
    folder_->Write("prova", "x");
    Module1::CartellaDiario = folder_->Path("prova");
    WriteFor(file, 76);
    ReadFor(file, 76);
    QCOMPARE(RaisedBy([&] { DeleteFile(folder_->Path("prova") + "\\Base.tab"); }), 76);
    QCOMPARE(RaisedBy([&] { MakeFolder(folder_->Path("prova")); }), 75);
    QVERIFY(FilesIn(folder_->Path("prova")).empty());
    QCOMPARE(Bytes(folder_->Read("prova")), QByteArray("x"));
}

void DiskTest::TooManyFilesAreOpen()
{
    const SavedFile& file = FetchedFile();
    file.fill();
    const std::vector<std::string> filed = file.lines();
    folder_->Write(file.name, Lines(filed));
    const int lowest = open("/dev/null", O_RDONLY);
    close(lowest);
    {
        const Limit limit(RLIMIT_NOFILE, static_cast<rlim_t>(lowest));
        ReadFor(file, 67);
        WriteFor(file, 67);
        QCOMPARE(RaisedBy([&] { FilesIn(folder_->Path()); }), 67);
    }
    QCOMPARE(Difference(folder_->Read(file.name), Lines(filed)), QByteArray());
    file.forget();
    ReadFor(file, 0);
    QVERIFY(file.lines() == filed);
}

namespace
{

enum class Change { Cut, Emptied, Deleted, Replaced, Longer };

struct ChangeRow {
    const char* name;
    Change change;
    int error;
};

constexpr ChangeRow kChanges[] = {
    {"cut", Change::Cut, 62},          {"emptied", Change::Emptied, 62}, {"deleted", Change::Deleted, 0},
    {"replaced", Change::Replaced, 0}, {"longer", Change::Longer, 0},
};

constexpr off_t kCutAt = 300000;
constexpr std::size_t kRead = 1 << 15; // As much as the reader takes at a time.

void Make(Change change, const std::string& path)
{
    namespace fs = std::filesystem;
    switch (change) {
    case Change::Cut: fs::resize_file(path, kCutAt); break;
    case Change::Emptied: fs::resize_file(path, 0); break;
    case Change::Deleted: fs::remove(path); break;
    case Change::Replaced: fs::rename(path + "-nuovo", path); break;
    case Change::Longer: WriteWhole(path, ReadWhole(path) + "\"coda\"\r\n"); break;
    }
}

} // namespace

void DiskTest::ChangedWhileItIsRead_data()
{
    QTest::addColumn<int>("file");
    QTest::addColumn<int>("change");
    QTest::addColumn<int>("error");
    for (std::size_t i = 0; i < SavedFiles().size(); ++i) {
        for (const ChangeRow& row : kChanges) {
            QTest::addRow("%s: %s", SavedFiles()[i].name, row.name)
                << static_cast<int>(i) << static_cast<int>(row.change) << row.error;
        }
    }
}

/// The change comes when the first piece has been read.
void DiskTest::ChangedWhileItIsRead()
{
    QFETCH(int, change);
    QFETCH(int, error);
    const SavedFile& file = FetchedFile();
    file.fill();
    std::vector<std::string> filed = file.lines();
    folder_->Write(file.name, Lines(filed));
    folder_->Write(file.name + std::string("-nuovo"), "altro");
    file.forget();
    {
        const auto kind = static_cast<Change>(change);
        const FaultyDisk disk(folder_->Native(),
                              {Call::Read, 2, 0, {}, [&] { Make(kind, folder_->Native(file.name)); }});
        ReadFor(file, error);
        QVERIFY(disk.Struck());
        if (kind == Change::Longer && file.clearedWhenOpen) {
            filed.emplace_back("\"coda\"");
        }
        if (error == 0) {
            QVERIFY(file.lines() == filed);
        } else {
            QCOMPARE(WrongAfterCut(file, filed, kind == Change::Cut ? std::size_t(kCutAt) : kRead), QByteArray());
        }
    }
}

ZELVIA_TEST(DiskTest)
#include "DiskTest.moc"
