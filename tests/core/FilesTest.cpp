// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Files.h"

#include "core/RunTimeError.h"
#include "support/Bytes.h"
#include "support/TempFolder.h"
#include "support/TestProgram.h"

#include <QTest>

#include <cerrno>
#include <filesystem>
#include <unistd.h>

using namespace zelvia;
using namespace zelvia::test;

class FilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void OpeningFails_data();
    void OpeningFails();
    void OpeningWithoutPermission();
    void OutputEmptiesAtOnce();
    void OutputMakesTheFile();
    void ErrorsOfTheSystem_data();
    void ErrorsOfTheSystem();
    void CaseFallback_data();
    void CaseFallback();
    void CaseFallbackNeedsASingleEntry();
    void OutputGoesToTheEntryOfOtherCase();
    void AccentedNames();
    void SystemPathTurnsSlashes();
    void PathOnDiskSpellsAsTheDiskDoes();
    void PathWithinAFolder();
    void WhatCanBeAFolder_data();
    void WhatCanBeAFolder();
    void FindFolderTellsFoldersOnly();
    void FilesInCountsVisibleRegularFiles();
    void FilesInAnAbsentFolder();
    void ReadFolderRaises_data();
    void ReadFolderRaises();
    void ReadingAFolderWithoutPermission();
    void MakeFolderRaises_data();
    void MakeFolderRaises();
    void ProgramFolderIsKept();
};

void FilesTest::OpeningFails_data()
{
    QTest::addColumn<QByteArray>("path"); // Below the folder, unless it begins with a backslash or is empty.
    QTest::addColumn<int>("input");
    QTest::addColumn<int>("output");
    QTest::newRow("missing file") << QByteArray("manca") << 53 << 0;
    QTest::newRow("missing folder") << QByteArray("manca\\file") << 76 << 76;
    QTest::newRow("missing folder of a missing folder") << QByteArray("manca\\manca\\file") << 76 << 76;
    QTest::newRow("a file where a folder is due") << QByteArray("file\\x") << 76 << 76;
    QTest::newRow("a folder") << QByteArray("cartella") << 75 << 75;
    QTest::newRow("a folder, backslash at its end") << QByteArray("cartella\\") << 75 << 75;
    QTest::newRow("a link to a folder") << QByteArray("legame") << 75 << 75;
    QTest::newRow("a name too long") << QByteArray(300, 'n') << 52 << 52;
    QTest::newRow("a character 0 in the name") << QByteArray("file\0x", 6) << 52 << 52;
    QTest::newRow("right under the root") << QByteArray("\\nometab") << 76 << 76;
    QTest::newRow("the root") << QByteArray("\\") << 76 << 76;
    QTest::newRow("empty") << QByteArray() << 76 << 76;
    QTest::newRow("a file") << QByteArray("file") << 0 << 0;
}

void FilesTest::OpeningFails()
{
    QFETCH(QByteArray, path);
    QFETCH(int, input);
    QFETCH(int, output);
    const TempFolder folder;
    folder.Write("file", "bytes");
    folder.MakeFolder("cartella");
    std::filesystem::create_symlink(folder.Native("cartella"), folder.Native("legame"));
    const bool absolute = path.isEmpty() || path.startsWith('\\');
    const Text full = (absolute ? Text() : folder.Path() + "\\") + TextOf(path);
    QCOMPARE(RaisedBy([&] { OpenFile(full, OpenMode::Input); }), input);
    QCOMPARE(RaisedBy([&] { OpenFile(full, OpenMode::Output); }), output);
}

namespace
{

/// Takes the rights of an ordinary user for as long as it lives; root has rights on everything.
class OrdinaryUser
{
public:
    OrdinaryUser() : own_(geteuid()), done_(own_ != 0 || seteuid(nobody) == 0) {}
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;
    ~OrdinaryUser()
    {
        if (own_ == 0 && seteuid(0) != 0) {
            std::abort();
        }
    }
    bool Done() const { return done_; }

private:
    static constexpr uid_t nobody = 65534;
    uid_t own_;
    bool done_;
};

} // namespace

void FilesTest::OpeningWithoutPermission()
{
    namespace fs = std::filesystem;
    const TempFolder folder;
    fs::permissions(folder.Native(), fs::perms(0755));
    folder.MakeFolder("chiusa");
    folder.Write("chiusa/sola", "1\r\n");
    folder.Write("chiusa/segreta", "1\r\n");
    fs::permissions(folder.Native("chiusa/sola"), fs::perms(0444));
    fs::permissions(folder.Native("chiusa/segreta"), fs::perms(0));
    fs::permissions(folder.Native("chiusa"), fs::perms(0555));
    {
        const OrdinaryUser user;
        QVERIFY(user.Done());
        QCOMPARE(RaisedBy([&] { OpenFile(folder.Path("chiusa/sola"), OpenMode::Input); }), 0);
        QCOMPARE(RaisedBy([&] { OpenFile(folder.Path("chiusa/sola"), OpenMode::Output); }), 75);
        QCOMPARE(RaisedBy([&] { OpenFile(folder.Path("chiusa/segreta"), OpenMode::Input); }), 75);
        QCOMPARE(RaisedBy([&] { OpenFile(folder.Path("chiusa/nuova"), OpenMode::Output); }), 75);
        QCOMPARE(RaisedBy([&] { zelvia::MakeFolder(folder.Path("chiusa/cartella")); }), 75);
    }
    fs::permissions(folder.Native("chiusa"), fs::perms(0755));
    QCOMPARE(Bytes(folder.Read("chiusa/sola")), QByteArray("1\r\n"));
}

void FilesTest::OutputEmptiesAtOnce()
{
    const TempFolder folder;
    folder.Write("file", "bytes");
    const FileHandle file = OpenFile(folder.Path("file"), OpenMode::Output);
    QVERIFY(file != nullptr);
    QCOMPARE(Bytes(folder.Read("file")), QByteArray());
}

void FilesTest::OutputMakesTheFile()
{
    const TempFolder folder;
    QVERIFY(!folder.Has("file"));
    OpenFile(folder.Path("file"), OpenMode::Output);
    QCOMPARE(Bytes(folder.Read("file")), QByteArray());
}

void FilesTest::ErrorsOfTheSystem_data()
{
    QTest::addColumn<int>("reason");
    QTest::addColumn<int>("number");
    QTest::newRow("ENOENT") << ENOENT << 76;
    QTest::newRow("ENOTDIR") << ENOTDIR << 76;
    QTest::newRow("EACCES") << EACCES << 75;
    QTest::newRow("EPERM") << EPERM << 75;
    QTest::newRow("EROFS") << EROFS << 75;
    QTest::newRow("EISDIR") << EISDIR << 75;
    QTest::newRow("ELOOP") << ELOOP << 75;
    QTest::newRow("ETXTBSY") << ETXTBSY << 70;
    QTest::newRow("EBUSY") << EBUSY << 70;
    QTest::newRow("EAGAIN") << EAGAIN << 70;
    QTest::newRow("ENOSPC") << ENOSPC << 61;
    QTest::newRow("EDQUOT") << EDQUOT << 61;
    QTest::newRow("EFBIG") << EFBIG << 61;
    QTest::newRow("EMFILE") << EMFILE << 67;
    QTest::newRow("ENFILE") << ENFILE << 67;
    QTest::newRow("ENAMETOOLONG") << ENAMETOOLONG << 52;
    QTest::newRow("EINVAL") << EINVAL << 52;
    QTest::newRow("EIO") << EIO << 57;
    QTest::newRow("ENXIO") << ENXIO << 57;
    QTest::newRow("none told") << 0 << 57;
}

void FilesTest::ErrorsOfTheSystem()
{
    QFETCH(int, reason);
    QFETCH(int, number);
    QCOMPARE(ErrorOfErrno(reason), number);
}

void FilesTest::CaseFallback_data()
{
    QTest::addColumn<QByteArray>("asked");
    QTest::newRow("as it is") << QByteArray("ZelviaFile\\Prova.zlv");
    QTest::newRow("file in capitals") << QByteArray("ZelviaFile\\PROVA.ZLV");
    QTest::newRow("folder in small letters") << QByteArray("zelviafile\\Prova.zlv");
    QTest::newRow("both") << QByteArray("ZELVIAFILE\\prova.ZLV");
}

void FilesTest::CaseFallback()
{
    QFETCH(QByteArray, asked);
    const TempFolder folder;
    folder.MakeFolder("ZelviaFile");
    folder.Write("ZelviaFile/Prova.zlv", "x");
    const Text path = folder.Path() + "\\" + TextOf(asked);
    QCOMPARE(NativePath(path).string(), folder.Native("ZelviaFile/Prova.zlv"));
    QCOMPARE(RaisedBy([&] { OpenFile(path, OpenMode::Input); }), 0);
}

void FilesTest::CaseFallbackNeedsASingleEntry()
{
    const TempFolder folder;
    folder.Write("nometab", "1");
    folder.Write("NomeTab", "2");
    QCOMPARE(NativePath(folder.Path("NOMETAB")).string(), folder.Native("NOMETAB"));
    QCOMPARE(RaisedBy([&] { OpenFile(folder.Path("NOMETAB"), OpenMode::Input); }), 53);
    QCOMPARE(NativePath(folder.Path("nometab")).string(), folder.Native("nometab"));
    QCOMPARE(NativePath(folder.Path("NomeTab")).string(), folder.Native("NomeTab"));
}

void FilesTest::OutputGoesToTheEntryOfOtherCase()
{
    const TempFolder folder;
    folder.Write("Prova.zlv", "x");
    OpenFile(folder.Path("PROVA.ZLV"), OpenMode::Output);
    QVERIFY(!folder.Has("PROVA.ZLV"));
    QCOMPARE(Bytes(folder.Read("Prova.zlv")), QByteArray());
}

void FilesTest::AccentedNames()
{
    const TempFolder folder;
    folder.Write("Citt\u00E0 \u20AC.tab", "x");
    QCOMPARE(RaisedBy([&] { OpenFile(folder.Path() + "\\Citt\xE0 \x80.tab", OpenMode::Input); }), 0);
    QCOMPARE(RaisedBy([&] { OpenFile(folder.Path() + "\\CITT\xC0 \x80.tab", OpenMode::Input); }), 0);
    QCOMPARE(RaisedBy([&] { OpenFile(folder.Path() + "\\Citta \x80.tab", OpenMode::Input); }), 53);
    QCOMPARE(Bytes(FilesIn(folder.Path()).at(0)), QByteArray("Citt\xE0 \x80.tab"));
    OpenFile(folder.Path() + "\\Universit\xE0", OpenMode::Output);
    QVERIFY(folder.Has("Universit\u00E0"));
}

void FilesTest::SystemPathTurnsSlashes()
{
    QCOMPARE(Bytes(SystemPath("/home/anna/Zelvia/ZelviaFile/prova.zlv")),
             QByteArray("\\home\\anna\\Zelvia\\ZelviaFile\\prova.zlv"));
    QCOMPARE(Bytes(SystemPath("/home/anna/Citt\u00E0")), QByteArray("\\home\\anna\\Citt\xE0"));
    QCOMPARE(Bytes(SystemPath("")), QByteArray());
}

void FilesTest::PathOnDiskSpellsAsTheDiskDoes()
{
    const TempFolder folder;
    folder.MakeFolder("Prova");
    folder.Write("Prova/Piano.tab", "x");
    QCOMPARE(PathOnDisk(folder.Path("PROVA/piano.TAB")), folder.Path("Prova/Piano.tab"));
    QCOMPARE(PathOnDisk(folder.Path("prova/altro.tab")), folder.Path("Prova/altro.tab"));
    QCOMPARE(PathOnDisk(folder.Path("manca/Piano.tab")), folder.Path("manca/Piano.tab"));
    folder.Write("Prova/PIANO.tab", "x");
    QCOMPARE(PathOnDisk(folder.Path("Prova/piano.tab")), folder.Path("Prova/piano.tab"));
    QCOMPARE(PathOnDisk("\\nometab"), Text("\\nometab"));
    QCOMPARE(PathOnDisk(""), Text());
}

void FilesTest::PathWithinAFolder()
{
    const TempFolder folder;
    folder.MakeFolder("prova/dentro");
    folder.MakeFolder("altra");
    std::filesystem::create_directory_symlink(folder.Native("prova"), folder.Native("legame"));
    const Text given = folder.Path("PROVA");
    QCOMPARE(PathWithin(folder.Path("prova/Piano.tab"), given), given + "\\Piano.tab");
    QCOMPARE(PathWithin(folder.Path("prova/dentro/Piano.tab"), given), given + "\\dentro\\Piano.tab");
    QCOMPARE(PathWithin(folder.Path("legame/Piano.tab"), given), given + "\\Piano.tab");
    for (const char* other : {"altra/Piano.tab", "Piano.tab", "manca/Piano.tab"}) {
        QCOMPARE(PathWithin(folder.Path(other), given), folder.Path(other));
    }
    QCOMPARE(PathWithin(folder.Path("prova/Piano.tab"), folder.Path("manca")), folder.Path("prova/Piano.tab"));
    QCOMPARE(PathWithin(folder.Path("prova/Piano.tab"), ""), folder.Path("prova/Piano.tab"));
    // Two folders that differ in case alone are two.
    folder.MakeFolder("PROVA");
    QCOMPARE(PathWithin(folder.Path("prova/Piano.tab"), given), folder.Path("prova/Piano.tab"));
}

void FilesTest::WhatCanBeAFolder_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("can");
    QTest::newRow("a folder") << QByteArray("cartella") << true;
    QTest::newRow("in other letters") << QByteArray("CARTELLA") << true;
    QTest::newRow("nothing") << QByteArray("manca") << true;
    QTest::newRow("nothing in nothing") << QByteArray("manca/manca") << true;
    QTest::newRow("a link to a folder") << QByteArray("legame") << true;
    QTest::newRow("a file") << QByteArray("file") << false;
    QTest::newRow("a file in other letters") << QByteArray("FILE") << false;
    QTest::newRow("below a file") << QByteArray("file/dentro") << false;
    QTest::newRow("a link that leads nowhere") << QByteArray("perso") << false;
}

void FilesTest::WhatCanBeAFolder()
{
    QFETCH(QByteArray, name);
    QFETCH(bool, can);
    const TempFolder folder;
    folder.MakeFolder("cartella");
    folder.Write("file", "x");
    std::filesystem::create_directory_symlink(folder.Native("cartella"), folder.Native("legame"));
    std::filesystem::create_symlink(folder.Native("altrove"), folder.Native("perso"));
    QCOMPARE(CanBeFolder(folder.Path(name.toStdString())), can);
}

void FilesTest::FindFolderTellsFoldersOnly()
{
    const TempFolder folder;
    folder.MakeFolder("prova");
    folder.Write("file", "x");
    QCOMPARE(Bytes(FindFolder(folder.Path("prova"))), QByteArray("prova"));
    QCOMPARE(Bytes(FindFolder(folder.Path("manca"))), QByteArray());
    QCOMPARE(Bytes(FindFolder(folder.Path("file"))), QByteArray());
    QCOMPARE(Bytes(FindFolder("")), QByteArray());
    QVERIFY(!FindFolder(folder.Path("PROVA")).empty());
}

void FilesTest::FilesInCountsVisibleRegularFiles()
{
    const TempFolder folder;
    QVERIFY(FilesIn(folder.Path()).empty());
    folder.Write(".nascosto", "x");
    folder.MakeFolder("cartella");
    folder.Write("cartella/dentro", "x");
    QVERIFY(FilesIn(folder.Path()).empty());
    folder.Write("b", "x");
    folder.Write("a.tab", "x");
    folder.Write("vuoto", "");
    const std::vector<Text> names = FilesIn(folder.Path());
    QCOMPARE(names, (std::vector<Text>{"a.tab", "b", "vuoto"}));
}

void FilesTest::FilesInAnAbsentFolder()
{
    const TempFolder folder;
    folder.Write("file", "x");
    QVERIFY(FilesIn(folder.Path("manca")).empty());
    QVERIFY(FilesIn(folder.Path("file")).empty());
    QVERIFY(FilesIn("").empty());
    // A folder that can't be listed for another reason is no empty one.
    QCOMPARE(RaisedBy([&] { FilesIn(folder.Path(std::string(300, 'x'))); }), 52);
}

void FilesTest::ReadFolderRaises_data()
{
    QTest::addColumn<QByteArray>("path"); // Below the folder.
    QTest::addColumn<int>("number");
    QTest::newRow("a folder") << QByteArray("\\cartella") << 0;
    QTest::newRow("in other letters") << QByteArray("\\CARTELLA") << 0;
    QTest::newRow("missing") << QByteArray("\\manca") << 76;
    QTest::newRow("missing below a missing one") << QByteArray("\\manca\\manca") << 76;
    QTest::newRow("a file") << QByteArray("\\file") << 76;
}

void FilesTest::ReadFolderRaises()
{
    QFETCH(QByteArray, path);
    QFETCH(int, number);
    const TempFolder folder;
    folder.Write("file", "x");
    folder.MakeFolder("cartella");
    folder.Write("cartella/b", "x");
    folder.Write("cartella/a", "x");
    folder.Write("cartella/.nascosto", "x");
    std::vector<Text> names;
    QCOMPARE(RaisedBy([&] { names = ReadFolder(folder.Path() + TextOf(path)); }), number);
    QCOMPARE(names, number == 0 ? (std::vector<Text>{"a", "b"}) : std::vector<Text>());
    QCOMPARE(RaisedBy([] { (void)ReadFolder(""); }), 76);
}

void FilesTest::ReadingAFolderWithoutPermission()
{
    namespace fs = std::filesystem;
    const TempFolder folder;
    fs::permissions(folder.Native(), fs::perms(0755));
    folder.MakeFolder("segreta");
    fs::permissions(folder.Native("segreta"), fs::perms(0));
    {
        const OrdinaryUser user;
        QVERIFY(user.Done());
        QCOMPARE(RaisedBy([&] { (void)ReadFolder(folder.Path("segreta")); }), 75);
        QCOMPARE(RaisedBy([&] { (void)FilesIn(folder.Path("segreta")); }), 75);
    }
    fs::permissions(folder.Native("segreta"), fs::perms(0755));
}

void FilesTest::MakeFolderRaises_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("number");
    QTest::newRow("new") << QByteArray("nuova") << 0;
    QTest::newRow("existing") << QByteArray("cartella") << 75;
    QTest::newRow("a file of that name") << QByteArray("file") << 75;
    QTest::newRow("no parent") << QByteArray("manca/nuova") << 76;
    QTest::newRow("parent is a file") << QByteArray("file/nuova") << 76;
}

void FilesTest::MakeFolderRaises()
{
    QFETCH(QByteArray, name);
    QFETCH(int, number);
    const TempFolder folder;
    folder.MakeFolder("cartella");
    folder.Write("cartella/dentro", "x");
    folder.Write("file", "x");
    QCOMPARE(RaisedBy([&] { zelvia::MakeFolder(folder.Path(name.toStdString())); }), number);
    QCOMPARE(std::filesystem::is_directory(folder.Native("nuova")), number == 0);
    QVERIFY(folder.Has("cartella/dentro"));
    QCOMPARE(RaisedBy([] { zelvia::MakeFolder(""); }), 76);
    QCOMPARE(RaisedBy([] { zelvia::MakeFolder("\\zelvia-prova"); }), 76);
}

void FilesTest::ProgramFolderIsKept()
{
    SetProgramFolder("\\home\\anna\\Zelvia");
    QCOMPARE(Bytes(ProgramFolder()), QByteArray("\\home\\anna\\Zelvia"));
    SetProgramFolder("");
    QCOMPARE(Bytes(ProgramFolder()), QByteArray());
}

ZELVIA_TEST(FilesTest)
#include "FilesTest.moc"
