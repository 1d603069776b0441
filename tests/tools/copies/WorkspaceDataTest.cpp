// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/copies/WorkspaceData.h"

#include "support/MessageScript.h"
#include "support/TempFolder.h"
#include "support/TestProgram.h"

#include <QStringList>
#include <QTest>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

using namespace zelvia;
using namespace zelvia::test;

class WorkspaceDataTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheRunnersFiles_data();
    void TheRunnersFiles();
    void ThePointersDiary_data();
    void ThePointersDiary();
    void LinkedFoldersAreFollowed();
    void FilesBelowAFolder();
    void AFolderInUse();
};

namespace
{

QString Joined(const std::vector<std::string>& files)
{
    QStringList names;
    for (const std::string& file : files) {
        names << QString::fromStdString(file);
    }
    return names.join(QLatin1Char('|'));
}

void Fill(const TempFolder& folder, const QString& files)
{
    for (const QString& file : files.split(QLatin1Char('|'), Qt::SkipEmptyParts)) {
        const std::string name = file.toStdString();
        folder.MakeFolder(std::filesystem::path(name).parent_path());
        folder.Write(name, "x");
    }
}

} // namespace

void WorkspaceDataTest::TheRunnersFiles_data()
{
    QTest::addColumn<QString>("there");
    QTest::addColumn<QString>("taken");
    const auto row = [](const char* name, const char* there, const char* taken) {
        QTest::newRow(name) << QString::fromUtf8(there) << QString::fromUtf8(taken);
    };
    row("nothing", "", "");
    row("the program's own", "zelvia|Guida.hlp|mano.cur|.zelvia.lock", "");
    row("the pointer", "nomeload|zelvia", "nomeload");
    row("a diary and its folder", "nomeload|ZelviaFile/prova.zlv|prova/Tipo.lsx|prova/Base 10 km.tab|prova/nometab",
        "ZelviaFile/prova.zlv|nomeload|prova/Base 10 km.tab|prova/Tipo.lsx|prova/nometab");
    row("the default diary before its first save", "prova/Tipo.lsx|altra/Tipo.lsx", "prova/Tipo.lsx");
    row("two diaries", "ZelviaFile/2026.zlv|ZelviaFile/2027.zlv|2026/nometab|2027/nometab",
        "2026/nometab|2027/nometab|ZelviaFile/2026.zlv|ZelviaFile/2027.zlv");
    row("the name ends at its first dot", "ZelviaFile/a.b.zlv|a/nometab|a.b/nometab", "ZelviaFile/a.b.zlv|a/nometab");
    row("a subfolder of diaries", "ZelviaFile/vecchi/a.zlv|vecchi/a/nometab|vecchi/altro|a/nometab",
        "ZelviaFile/vecchi/a.zlv|vecchi/a/nometab");
    row("a name without a dot has no folder", "ZelviaFile/appunti|appunti/a", "ZelviaFile/appunti");
    row("hidden files", "ZelviaFile/.a.zlv|ZelviaFile/.cestino/b.zlv|prova/.x|prova/Tipo.lsx", "prova/Tipo.lsx");
    row("what lies deeper is not the diary's", "prova/Tipo.lsx|prova/foto/a.jpg", "prova/Tipo.lsx");
    row("strangers in the folder", "Documenti/lettera|film.avi|ZelviaFile/prova.zlv", "ZelviaFile/prova.zlv");
    row("names of other case", "NOMELOAD|zelviafile/PROVA.ZLV|Prova/TIPO.LSX",
        "NOMELOAD|Prova/TIPO.LSX|zelviafile/PROVA.ZLV");
    row("accents", "ZelviaFile/città.zlv|città/nometab", "ZelviaFile/città.zlv|città/nometab");
    row("a diary named like the program", "ZelviaFile/zelvia.zlv|zelvia", "ZelviaFile/zelvia.zlv");
}

void WorkspaceDataTest::TheRunnersFiles()
{
    QFETCH(QString, there);
    QFETCH(QString, taken);
    const TempFolder folder;
    Fill(folder, there);
    const MessageScript noBoxes;
    QCOMPARE(Joined(WorkspaceFiles(folder.Native())), taken);
}

void WorkspaceDataTest::ThePointersDiary_data()
{
    QTest::addColumn<QString>("diary"); // In the backslash form; "@" means the folder.
    QTest::addColumn<QString>("taken");
    const auto row = [](const char* name, const char* diary, const char* taken) {
        QTest::newRow(name) << QString::fromUtf8(diary) << QString::fromUtf8(taken);
    };
    row("none", "", "nomeload");
    row("one not saved yet", "@\\ZelviaFile\\2027.zlv", "2027/nometab|nomeload");
    row("one beside the diaries", "@\\z.zlv", "nomeload|z.zlv|z/nometab");
    row("one of another folder", "\\altrove\\ZelviaFile\\2027.zlv", "nomeload");
    row("a folder that begins alike", "@2\\ZelviaFile\\2027.zlv", "nomeload");
    row("out of the folder by dots", "@\\..\\z.zlv", "nomeload");
}

void WorkspaceDataTest::ThePointersDiary()
{
    QFETCH(QString, diary);
    QFETCH(QString, taken);
    const TempFolder folder;
    Fill(folder, QStringLiteral("2027/nometab|z.zlv|z/nometab"));
    diary.replace(QLatin1Char('@'), QString::fromStdString(folder.Path()));
    folder.Write("nomeload", "\"" + diary.toStdString() + "\"\r\n");
    const MessageScript noBoxes;
    QCOMPARE(Joined(WorkspaceFiles(folder.Native())), taken);
}

void WorkspaceDataTest::LinkedFoldersAreFollowed()
{
    const TempFolder folder;
    Fill(folder, QStringLiteral("a/prova.zlv|b/Tipo.lsx"));
    std::filesystem::create_directory_symlink("a", folder.Native("ZelviaFile"));
    std::filesystem::create_directory_symlink("b", folder.Native("prova"));
    std::filesystem::create_symlink("manca", folder.Native("a/rotto.zlv"));
    QCOMPARE(Joined(WorkspaceFiles(folder.Native())), QStringLiteral("ZelviaFile/prova.zlv|prova/Tipo.lsx"));
}

void WorkspaceDataTest::FilesBelowAFolder()
{
    const TempFolder folder;
    Fill(folder, QStringLiteral(".cartella|nomeload|prova/Tipo.lsx|prova/a/b/c"));
    QCOMPARE(Joined(FilesBelow(folder.Native())), QStringLiteral("nomeload|prova/Tipo.lsx|prova/a/b/c"));
    QCOMPARE(Joined(FilesBelow(folder.Native("manca"))), QString());
}

void WorkspaceDataTest::AFolderInUse()
{
    const TempFolder folder;
    QVERIFY(!IsInUse(folder.Native()));
    // A file left by a crash holds no lock.
    folder.Write(".zelvia.lock", "123\nzelvia\nmacchina\n");
    QVERIFY(!IsInUse(folder.Native()));
    const int file = ::open(folder.Native(".zelvia.lock").c_str(), O_RDWR);
    QCOMPARE(::flock(file, LOCK_EX), 0);
    QVERIFY(IsInUse(folder.Native()));
    ::close(file);
    QVERIFY(!IsInUse(folder.Native()));
}

ZELVIA_TEST(WorkspaceDataTest)
#include "WorkspaceDataTest.moc"
