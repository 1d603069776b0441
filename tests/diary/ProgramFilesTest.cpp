// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Where the program works, how that folder begins, and which guide and pointer it takes.
#include "diary/ProgramFiles.h"

#include "support/Bytes.h"
#include "support/MessageScript.h"
#include "support/TempFolder.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace zelvia;
using namespace zelvia::test;

namespace fs = std::filesystem;

class ProgramFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFolderGivenComesFirst();
    void theExecutablesOwnFolder_data();
    void theExecutablesOwnFolder();
    void theFolderInTheHome();
    void aFolderIsLaid_data();
    void aFolderIsLaid();
    void aFolderIsLaidOnce();
    void whatIsThereStays();
    void layingFails_data();
    void layingFails();
    void theShareFolder_data();
    void theShareFolder();
    void installedFiles();
};

void ProgramFilesTest::theFolderGivenComesFirst()
{
    const TempFolder folder;
    folder.MakeFolder("programma");
    folder.Write("programma/nomeload", "\"\"\r\n");
    folder.MakeFolder("diari");
    const fs::path own = folder.Native("programma");
    QCOMPARE(Bytes(ChooseProgramFolder(folder.Native("diari"), own, folder.Native())), Bytes(folder.Path("diari")));
    QCOMPARE(Bytes(ChooseProgramFolder(folder.Native("diari/"), own, folder.Native())), Bytes(folder.Path("diari")));
    QCOMPARE(Bytes(ChooseProgramFolder(folder.Native("diari/../nuovi"), own, {})), Bytes(folder.Path("nuovi")));
    fs::create_symlink("diari", folder.Native("legame"));
    QCOMPARE(Bytes(ChooseProgramFolder(folder.Native("legame"), own, {})), Bytes(folder.Path("diari")));
    fs::create_symlink("circolo", folder.Native("circolo"));
    QCOMPARE(Bytes(ChooseProgramFolder(folder.Native("circolo"), own, {})), Bytes(folder.Path("circolo")));
    fs::current_path(folder.Native("diari"));
    QCOMPARE(Bytes(ChooseProgramFolder(".", own, {})), Bytes(folder.Path("diari")));
    QCOMPARE(Bytes(ChooseProgramFolder("2027", own, {})), Bytes(folder.Path("diari/2027")));
    fs::current_path("/");
}

void ProgramFilesTest::theExecutablesOwnFolder_data()
{
    QTest::addColumn<QString>("holds");
    QTest::addColumn<bool>("taken");
    QTest::newRow("a start pointer") << "nomeload" << true;
    QTest::newRow("a start pointer in capitals") << "NOMELOAD" << true;
    QTest::newRow("the folder of the diaries") << "ZelviaFile/" << true;
    QTest::newRow("that folder in small letters") << "zelviafile/" << true;
    QTest::newRow("a file in the folder's place") << "ZelviaFile" << false;
    QTest::newRow("a guide alone") << "Guida.hlp" << false;
}

void ProgramFilesTest::theExecutablesOwnFolder()
{
    QFETCH(QString, holds);
    QFETCH(bool, taken);
    const TempFolder folder;
    const std::string thing = "programma/" + holds.toStdString();
    folder.MakeFolder("programma");
    if (holds.endsWith(QLatin1Char('/'))) {
        folder.MakeFolder(thing);
    } else {
        folder.Write(thing, "");
    }
    QCOMPARE(Bytes(ChooseProgramFolder({}, folder.Native("programma"), folder.Native("anna"))),
             Bytes(folder.Path(taken ? "programma" : "anna/Zelvia")));
}

void ProgramFilesTest::theFolderInTheHome()
{
    const TempFolder folder;
    QCOMPARE(Bytes(ChooseProgramFolder({}, folder.Native(), folder.Native("anna/"))),
             Bytes(folder.Path("anna/Zelvia")));
    QCOMPARE(Bytes(ChooseProgramFolder({}, folder.Native(), {})), QByteArray());
    QCOMPARE(Bytes(ChooseProgramFolder({}, "/", {})), QByteArray());
}

void ProgramFilesTest::aFolderIsLaid_data()
{
    QTest::addColumn<QString>("before");
    QTest::newRow("there is none") << "";
    QTest::newRow("it is empty") << "anna/Zelvia/";
    QTest::newRow("a full disk left an empty pointer") << "anna/Zelvia/nomeload";
}

void ProgramFilesTest::aFolderIsLaid()
{
    QFETCH(QString, before);
    const TempFolder folder;
    folder.MakeFolder("anna/Zelvia");
    if (before.isEmpty()) {
        fs::remove_all(folder.Native("anna"));
    } else if (!before.endsWith(QLatin1Char('/'))) {
        folder.Write(before.toStdString(), "");
    }
    const MessageScript script;
    QVERIFY(LayProgramFolder(folder.Path("anna/Zelvia")));
    QCOMPARE(Bytes(folder.Read("anna/Zelvia/nomeload")), QByteArray("\"\"\r\n"));
    QVERIFY(fs::is_directory(folder.Native("anna/Zelvia/ZelviaFile")));
    QVERIFY(fs::is_empty(folder.Native("anna/Zelvia/ZelviaFile")));
    QCOMPARE(std::distance(fs::directory_iterator(folder.Native("anna/Zelvia")), {}), 2);
}

void ProgramFilesTest::aFolderIsLaidOnce()
{
    const TempFolder folder;
    const MessageScript script;
    QVERIFY(LayProgramFolder(folder.Path()));
    // Whatever becomes of the pointer is the runner's affair from now on.
    fs::remove(folder.Native("nomeload"));
    QVERIFY(LayProgramFolder(folder.Path()));
    QVERIFY(!folder.Has("nomeload"));
}

void ProgramFilesTest::whatIsThereStays()
{
    const TempFolder folder;
    const MessageScript script;
    folder.Write("nomeload", "\"\\altrove\\a.zlv\"\r\n");
    folder.MakeFolder("prova");
    folder.Write("prova/nometab", "\"\"\r\n");
    QVERIFY(LayProgramFolder(folder.Path()));
    QCOMPARE(Bytes(folder.Read("nomeload")), QByteArray("\"\\altrove\\a.zlv\"\r\n"));
    QCOMPARE(Bytes(folder.Read("prova/nometab")), QByteArray("\"\"\r\n"));
    QVERIFY(folder.Has("ZelviaFile"));

    fs::remove_all(folder.Native("ZelviaFile"));
    fs::remove(folder.Native("nomeload"));
    fs::create_symlink("manca", folder.Native("nomeload"));
    QVERIFY(LayProgramFolder(folder.Path()));
    QVERIFY(fs::is_symlink(folder.Native("nomeload")));
    QVERIFY(!folder.Has("manca"));
}

void ProgramFilesTest::layingFails_data()
{
    QTest::addColumn<QString>("inTheWay");
    QTest::addColumn<int>("error");
    QTest::newRow("a file for a folder") << "Zelvia" << 76;
    QTest::newRow("a file for the diaries' folder") << "Zelvia/ZelviaFile" << 75;
}

void ProgramFilesTest::layingFails()
{
    QFETCH(QString, inTheWay);
    QFETCH(int, error);
    const TempFolder folder;
    if (inTheWay.contains(QLatin1Char('/'))) {
        folder.MakeFolder("Zelvia");
    }
    folder.Write(inTheWay.toStdString(), "mio");
    MessageScript script;
    script.ExpectError("CARTELLA DEL PROGRAMMA - ERRORE : ", error);
    QVERIFY(!LayProgramFolder(folder.Path("Zelvia")));
    QCOMPARE(Bytes(folder.Read(inTheWay.toStdString())), QByteArray("mio"));
}

void ProgramFilesTest::theShareFolder_data()
{
    QTest::addColumn<QString>("own");
    QTest::addColumn<QString>("share");
    QTest::newRow("of bin") << "usr/bin"
                            << "usr/share/zelvia";
    QTest::newRow("of libexec") << "usr/libexec/zelvia"
                                << "usr/share/zelvia";
    QTest::newRow("elsewhere") << "anna/Zelvia"
                               << "";
}

void ProgramFilesTest::theShareFolder()
{
    QFETCH(QString, own);
    QFETCH(QString, share);
    const TempFolder folder;
    folder.MakeFolder("usr/share/zelvia");
    folder.MakeFolder(own.toStdString());
    QCOMPARE(Bytes(ShareFolder(folder.Native(own.toStdString()))),
             share.isEmpty() ? QByteArray() : Bytes(folder.Path(share.toStdString())));
}

void ProgramFilesTest::installedFiles()
{
    const TempFolder folder;
    folder.MakeFolder("Zelvia");
    folder.MakeFolder("share");
    SetProgramFolder(folder.Path("Zelvia"));
    const auto guide = [] { return Bytes(InstalledFile("Guida.hlp")); };
    const QByteArray own = Bytes(folder.Path("Zelvia")) + "\\Guida.hlp";
    const QByteArray shared = Bytes(folder.Path("share")) + "\\Guida.hlp";

    folder.Write("share/Guida.hlp", "di tutti");
    QCOMPARE(guide(), own);
    SetShareFolder(folder.Path("share"));
    QCOMPARE(guide(), shared);
    folder.Write("Zelvia/guida.HLP", "mia");
    QCOMPARE(guide(), own);
    fs::remove(folder.Native("Zelvia/guida.HLP"));
    fs::remove(folder.Native("share/Guida.hlp"));
    QCOMPARE(guide(), own);
    SetShareFolder({});
    SetProgramFolder({});
    QCOMPARE(guide(), QByteArray("\\Guida.hlp"));
}

ZELVIA_TEST(ProgramFilesTest)
#include "ProgramFilesTest.moc"
