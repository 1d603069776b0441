// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/Module1.h"
#include "faults/FaultyDisk.h"
#include "faults/SavedFiles.h"
#include "support/Days.h"
#include "support/MessageScript.h"
#include "support/TempFolder.h"
#include "support/TestProgram.h"

#include <QTest>

#include <filesystem>
#include <memory>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace zelvia;
using namespace zelvia::test;

/// Things that are no files where the files of a diary are expected, files far too long, and files that somebody else
/// changes while they are written: nothing hangs or fills the memory, and the next save is whole.
class OddFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void InPlaceOfAFile_data();
    void InPlaceOfAFile();
    void ALinkToNowhere_data() { AddFileRows(); }
    void ALinkToNowhere();
    void AFileWithAHole_data() { AddFileRows(); }
    void AFileWithAHole();
    void AHoleBehindTheLastValue_data() { AddFileRows(); }
    void AHoleBehindTheLastValue();
    void ChangedWhileItIsWritten_data();
    void ChangedWhileItIsWritten();

private:
    std::unique_ptr<TempFolder> folder_;
    int descriptors_ = 0;
};

namespace
{

void MakePipe(const std::string& path)
{
    QCOMPARE(mkfifo(path.c_str(), 0666), 0);
}

void MakeSocket(const std::string& path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    const int descriptor = socket(AF_UNIX, SOCK_STREAM, 0);
    QCOMPARE(bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    close(descriptor);
}

void LinkToItself(const std::string& path)
{
    std::filesystem::create_symlink(path, path);
}

/// Two links that lead to each other.
void LinkInACircle(const std::string& path)
{
    std::filesystem::create_symlink(path, path + "2");
    std::filesystem::create_symlink(path + "2", path);
}

template <const char* device>
void LinkToDevice(const std::string& path)
{
    std::filesystem::create_symlink(device, path);
}

constexpr char kZeros[] = "/dev/zero";
constexpr char kChance[] = "/dev/urandom";

struct OddThing {
    const char* name;
    void (*make)(const std::string& path);
    bool takesText;
};

constexpr OddThing kOddThings[] = {
    {"pipe", MakePipe, false},
    {"socket", MakeSocket, false},
    {"link to itself", LinkToItself, false},
    {"links in a circle", LinkInACircle, false},
    {"zeros without end", LinkToDevice<kZeros>, true},
    {"bytes without end", LinkToDevice<kChance>, true},
};

constexpr off_t kHole = off_t{1} << 31;

/// The most memory that the process has had, in KiB.
long PeakMemory()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

constexpr long kMuchMemory = 600 * 1024;

/// The report of a file that begins with zeros and has no value for a long way: a text is too long, a number is none.
int ErrorOfHole(const SavedFile& file)
{
    return file.lines().front().starts_with('"') ? 7 : 13;
}

enum class Change { Deleted, Emptied, Replaced, Folder };

struct ChangeRow {
    const char* name;
    Change change;
};

constexpr ChangeRow kChanges[] = {
    {"deleted", Change::Deleted},
    {"emptied", Change::Emptied},
    {"replaced", Change::Replaced},
    {"renamed, a folder in its place", Change::Folder},
};

void Make(Change change, const std::string& path)
{
    namespace fs = std::filesystem;
    switch (change) {
    case Change::Deleted: fs::remove(path); break;
    case Change::Emptied: fs::resize_file(path, 0); break;
    case Change::Replaced:
        WriteWhole(path + "-nuovo", "altro");
        fs::rename(path + "-nuovo", path);
        break;
    case Change::Folder:
        fs::rename(path, path + "-prima");
        fs::create_directory(path);
        break;
    }
}

} // namespace

void OddFilesTest::init()
{
    folder_ = std::make_unique<TempFolder>();
    Module1::CartellaDiario = folder_->Path();
    descriptors_ = OpenDescriptors();
}

/// No file is left open, whatever went wrong with it.
void OddFilesTest::cleanup()
{
    QCOMPARE(OpenDescriptors(), descriptors_);
}

void OddFilesTest::InPlaceOfAFile_data()
{
    QTest::addColumn<int>("file");
    QTest::addColumn<int>("thing");
    for (std::size_t i = 0; i < SavedFiles().size(); ++i) {
        for (int thing = 0; thing < static_cast<int>(std::size(kOddThings)); ++thing) {
            QTest::addRow("%s: %s", SavedFiles()[i].name, kOddThings[thing].name) << static_cast<int>(i) << thing;
        }
    }
}

/// Neither read nor written, but for a device, which takes a text; and no file that a folder is said to hold.
void OddFilesTest::InPlaceOfAFile()
{
    QFETCH(int, thing);
    const SavedFile& file = FetchedFile();
    const OddThing& odd = kOddThings[thing];
    odd.make(folder_->Native(file.name));
    file.forget();
    const std::vector<std::string> before = file.lines();
    ReadFor(file, 75);
    QVERIFY(file.lines() == before);
    WriteFor(file, odd.takesText ? 0 : 75);
    QVERIFY(FilesIn(folder_->Path()).empty());
    QCOMPARE(RaisedBy([&] { DeleteFile(folder_->Path(file.name)); }), 0);
    WriteFor(file, 0);
    QCOMPARE(Difference(folder_->Read(file.name), Lines(before)), QByteArray());
}

void OddFilesTest::ALinkToNowhere()
{
    const SavedFile& file = FetchedFile();
    std::filesystem::create_symlink(folder_->Native("altrove"), folder_->Native(file.name));
    file.fill();
    const std::vector<std::string> filed = file.lines();
    ReadFor(file, 53);
    QVERIFY(file.lines() == filed);
    QVERIFY(FilesIn(folder_->Path()).empty());
    WriteFor(file, 0);
    QCOMPARE(Difference(folder_->Read("altrove"), Lines(filed)), QByteArray());
}

/// Two gibibytes of zeros that take no room on the disk.
void OddFilesTest::AFileWithAHole()
{
    const SavedFile& file = FetchedFile();
    file.forget();
    const std::vector<std::string> before = file.lines();
    folder_->Write(file.name, {});
    std::filesystem::resize_file(folder_->Native(file.name), kHole);
    ReadFor(file, ErrorOfHole(file));
    QVERIFY(file.lines() == (file.clearedWhenOpen ? std::vector<std::string>() : before));
    QVERIFY(PeakMemory() < kMuchMemory);
    file.fill();
    const std::string whole = Lines(file.lines());
    WriteFor(file, 0);
    QCOMPARE(Difference(folder_->Read(file.name), whole), QByteArray());
}

void OddFilesTest::AHoleBehindTheLastValue()
{
    const SavedFile& file = FetchedFile();
    file.fill();
    const std::vector<std::string> filed = file.lines();
    folder_->Write(file.name, Lines(filed));
    std::filesystem::resize_file(folder_->Native(file.name), kHole);
    file.forget();
    ReadFor(file, file.clearedWhenOpen ? 7 : 0);
    QVERIFY(file.lines() == filed);
    QVERIFY(PeakMemory() < kMuchMemory);
}

void OddFilesTest::ChangedWhileItIsWritten_data()
{
    QTest::addColumn<int>("file");
    QTest::addColumn<int>("change");
    for (std::size_t i = 0; i < SavedFiles().size(); ++i) {
        for (const ChangeRow& row : kChanges) {
            QTest::addRow("%s: %s", SavedFiles()[i].name, row.name)
                << static_cast<int>(i) << static_cast<int>(row.change);
        }
    }
}

/// A save does not see it; what is in memory stays, and the next one writes all of it.
void OddFilesTest::ChangedWhileItIsWritten()
{
    QFETCH(int, change);
    const SavedFile& file = FetchedFile();
    const std::string path = folder_->Native(file.name);
    file.fill();
    const std::vector<std::string> filed = file.lines();
    {
        const FaultyDisk disk(folder_->Native(),
                              {Call::Write, 2, 0, file.name, [&] { Make(static_cast<Change>(change), path); }});
        WriteFor(file, 0);
        QVERIFY(disk.Struck());
    }
    QVERIFY(file.lines() == filed);
    if (static_cast<Change>(change) == Change::Folder) {
        QCOMPARE(Difference(folder_->Read(file.name + std::string("-prima")), Lines(filed)), QByteArray());
        WriteFor(file, 75);
        std::filesystem::remove(path);
    }
    WriteFor(file, 0);
    QCOMPARE(Difference(folder_->Read(file.name), Lines(filed)), QByteArray());
}

ZELVIA_TEST(OddFilesTest)
#include "OddFilesTest.moc"
