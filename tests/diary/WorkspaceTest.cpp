// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/Workspace.h"

#include "core/RunTimeError.h"
#include "diary/Module1.h"
#include "support/Bytes.h"
#include "support/MessageScript.h"
#include "support/TempFolder.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace zelvia;
using namespace zelvia::test;

class WorkspaceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Module1::AzzeraStato(); }
    void FolderOfADiary_data();
    void FolderOfADiary();
    void SameWorkspace_data();
    void SameWorkspace();
    void NameParts_data();
    void NameParts();
    void PointerForms_data();
    void PointerForms();
    void ReadingAPointerFails_data();
    void ReadingAPointerFails();
    void TheActiveTableIsRemembered();
    void AMissingTablePointerIsSilent();
    void FailuresOfTheTablePointerAreReported_data();
    void FailuresOfTheTablePointerAreReported();
    void AFullDiskIsReported();
};

void WorkspaceTest::FolderOfADiary_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QByteArray>("folder");
    QTest::addColumn<int>("error");
    const auto row = [](const char* path, const char* folder, int error = 0) {
        QTest::newRow(*path != '\0' ? path : "(empty)") << QByteArray(path) << QByteArray(folder) << error;
    };
    row(R"(C:\X\ZelviaFile\prova.zlv)", R"(C:\X\prova)");
    row(R"(C:\X\ZelviaFile\a.b.zlv)", R"(C:\X\a)");
    row(R"(D:\Y\z.zlv)", R"(D:\Y\z)");
    row(R"(D:\Y\z.a.zlv)", R"(D:\Y\z.a)");
    row(R"(D:\Y.y\z)", R"(D:\Y)");
    row(R"(\home\anna\Zelvia\ZelviaFile\prova.zlv)", R"(\home\anna\Zelvia\prova)");
    row(R"(C:\X\ZelviaFile\sub\a.zlv)", R"(C:\X\sub\a)");
    row(R"(C:\ZelviaFile\ZelviaFile\a.zlv)", R"(C:\ZelviaFile\a)");
    row(R"(C:\X\zelviafile\a.zlv)", R"(C:\X\zelviafile\a)");
    row(R"(ZelviaFile\a.zlv)", "a");
    row(R"(C:\X\ZelviaFile\.zlv)", R"(C:\X\)");
    row("", "");
    row(R"(D:\Y\z)", "");
    row(R"(C:\X.y\ZelviaFile\prova.zlv)", "", 5);
    row(R"(C:\X\ZelviaFile\prova)", "", 5);
    row(R"(C:\X\ZelviaFile)", "", 5);
    QTest::newRow("accents") << QByteArray("C:\\X\\ZelviaFile\\citt\xE0.zlv") << QByteArray("C:\\X\\citt\xE0") << 0;
}

void WorkspaceTest::FolderOfADiary()
{
    QFETCH(QByteArray, path);
    QFETCH(QByteArray, folder);
    QFETCH(int, error);
    MessageScript boxes;
    if (error != 0) {
        boxes.ExpectError("CAPTIONDIR - ERRORE : ", error);
    }
    QCOMPARE(Bytes(Module1::CAPTIONDIR(TextOf(path))), folder);
    QVERIFY(boxes.AllShown());
}

void WorkspaceTest::SameWorkspace_data()
{
    QTest::addColumn<QByteArray>("a");
    QTest::addColumn<QByteArray>("b");
    QTest::addColumn<bool>("same");
    const auto row = [](const char* name, const char* a, const char* b, bool same) {
        QTest::newRow(name) << QByteArray(a) << QByteArray(b) << same;
    };
    row("same folder", R"(C:\X\ZelviaFile\a.zlv)", R"(C:\X\ZelviaFile\b.zlv)", true);
    row("subfolder", R"(C:\X\ZelviaFile\a.zlv)", R"(C:\X\ZelviaFile\sub\b.zlv)", true);
    row("the word runs on", R"(C:\X\ZelviaFile\a.zlv)", R"(C:\X\ZelviaFile2\b.zlv)", true);
    row("prefix of other case", R"(c:\x\ZelviaFile\a.zlv)", R"(C:\X\ZelviaFile\b.zlv)", true);
    row("word of other case", R"(c:\x\zelviafile\a.zlv)", R"(C:\X\ZelviaFile\b.zlv)", false);
    row("other folder", R"(C:\X\ZelviaFile\a.zlv)", R"(C:\Y\ZelviaFile\a.zlv)", false);
    row("other depth", R"(C:\X\ZelviaFile\a.zlv)", R"(C:\X\Y\ZelviaFile\a.zlv)", false);
    row("empty and any", "", R"(C:\X\ZelviaFile\a.zlv)", false);
    row("both empty", "", "", true);
    row("neither has the word, nine same", R"(C:\abcdefg)", R"(c:\ABCDEFxyz)", true);
    row("neither has the word, ninth differs", R"(C:\abcdeX)", R"(C:\abcdeY)", false);
    row("short ones", "C:\\a", "C:\\A", true);
    QTest::newRow("accents of other case")
        << QByteArray("C:\\CITT\xC0\\ZelviaFile\\a.zlv") << QByteArray("C:\\citt\xE0\\ZelviaFile\\b.zlv") << true;
}

void WorkspaceTest::SameWorkspace()
{
    QFETCH(QByteArray, a);
    QFETCH(QByteArray, b);
    QFETCH(bool, same);
    MessageScript boxes;
    QCOMPARE(Module1::CAPTIONPATH(TextOf(a), TextOf(b)) == 0, same);
    QCOMPARE(Module1::CAPTIONPATH(TextOf(b), TextOf(a)) == 0, same);
    QCOMPARE(boxes.Shown(), 0);
}

void WorkspaceTest::NameParts_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("withoutExtension");
    const auto row = [](const char* path, const char* name, const char* withoutExtension) {
        QTest::newRow(*path != '\0' ? path : "(empty)")
            << QByteArray(path) << QByteArray(name) << QByteArray(withoutExtension);
    };
    row(R"(C:\X\ZelviaFile\prova.zlv)", "prova", R"(C:\X\ZelviaFile\prova)");
    row(R"(C:\X\ZelviaFile\a.b.zlv)", "a.b", R"(C:\X\ZelviaFile\a.b)");
    row(R"(C:\X.y\prova)", "", R"(C:\X)");
    row(R"(C:\X\.zlv)", "", R"(C:\X\)");
    row(R"(C:\X\)", "", "");
    row("prova.zlv", "", "prova");
    row("prova", "", "");
    row("", "", "");
}

void WorkspaceTest::NameParts()
{
    QFETCH(QByteArray, path);
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, withoutExtension);
    QCOMPARE(Bytes(NomeSenzaCartella(TextOf(path))), name);
    QCOMPARE(Bytes(NomeSenzaEstensione(TextOf(path))), withoutExtension);
}

void WorkspaceTest::PointerForms_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("empty") << QByteArray() << QByteArray("\"\"\r\n");
    QTest::newRow("a path") << QByteArray(R"(C:\X\prova\Base 10 km.tab)")
                            << QByteArray("\"C:\\X\\prova\\Base 10 km.tab\"\r\n");
    QTest::newRow("a comma") << QByteArray(R"(\a, b\c.tab)") << QByteArray("\"\\a, b\\c.tab\"\r\n");
    QTest::newRow("accents") << QByteArray("\\citt\xE0") << QByteArray("\"\\citt\xE0\"\r\n");
}

void WorkspaceTest::PointerForms()
{
    QFETCH(QByteArray, value);
    QFETCH(QByteArray, file);
    const TempFolder folder;
    WritePointer(folder.Path("nomeload"), TextOf(value));
    QCOMPARE(Bytes(folder.Read("nomeload")), file);
    QCOMPARE(Bytes(ReadPointer(folder.Path("nomeload"))), value);
}

void WorkspaceTest::ReadingAPointerFails_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("error");
    QTest::newRow("no line at all") << QByteArray() << QByteArray() << 62;
    QTest::newRow("quote never closed") << QByteArray("\"C:\\X") << QByteArray() << 62;
    QTest::newRow("an empty line is an empty text") << QByteArray("\r\n") << QByteArray() << 0;
    QTest::newRow("without quotes") << QByteArray("C:\\X\\a.zlv\n") << QByteArray("C:\\X\\a.zlv") << 0;
    QTest::newRow("more lines") << QByteArray("\"a\"\r\n\"b\"\r\n") << QByteArray("a") << 0;
    // As who writes the file by hand on this system may well do.
    QTest::newRow("ordinary slashes") << QByteArray("\"/home/anna/a.zlv\"\r\n") << QByteArray("\\home\\anna\\a.zlv")
                                      << 0;
    QTest::newRow("both") << QByteArray("\"C:\\X/ZelviaFile/a.zlv\"\r\n") << QByteArray("C:\\X\\ZelviaFile\\a.zlv")
                          << 0;
}

void WorkspaceTest::ReadingAPointerFails()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, value);
    QFETCH(int, error);
    const TempFolder folder;
    folder.Write("nomeload", TextOf(bytes));
    Text read;
    QCOMPARE(RaisedBy([&] { read = ReadPointer(folder.Path("nomeload")); }), error);
    QCOMPARE(Bytes(read), value);
    QCOMPARE(RaisedBy([&] { ReadPointer(folder.Path("manca")); }), 53);
    QCOMPARE(RaisedBy([&] { ReadPointer(folder.Path("manca/nomeload")); }), 76);
}

void WorkspaceTest::TheActiveTableIsRemembered()
{
    MessageScript boxes;
    const TempFolder folder;
    Module1::CartellaDiario = folder.Path();
    Module1::NomeTabellaAttiva = R"(C:\X\prova\Base.tab)";
    Module1::SalvaNomeTabella();
    QCOMPARE(Bytes(folder.Read("nometab")), QByteArray("\"C:\\X\\prova\\Base.tab\"\r\n"));
    Module1::NomeTabellaAttiva.clear();
    Module1::CaricaNomeTabella();
    QCOMPARE(Bytes(Module1::NomeTabellaAttiva), QByteArray(R"(C:\X\prova\Base.tab)"));
    Module1::NomeTabellaAttiva.clear();
    Module1::SalvaNomeTabella();
    QCOMPARE(Bytes(folder.Read("nometab")), QByteArray("\"\"\r\n"));
    QCOMPARE(boxes.Shown(), 0);
}

void WorkspaceTest::AMissingTablePointerIsSilent()
{
    MessageScript boxes;
    const TempFolder folder;
    Module1::CartellaDiario = folder.Path();
    Module1::NomeTabellaAttiva = "resta";
    Module1::CaricaNomeTabella();
    QCOMPARE(Bytes(Module1::NomeTabellaAttiva), QByteArray("resta"));
    QCOMPARE(boxes.Shown(), 0);
}

void WorkspaceTest::FailuresOfTheTablePointerAreReported_data()
{
    QTest::addColumn<QByteArray>("folder"); // Below the temporary one; "-" for none known.
    QTest::addColumn<int>("reading");
    QTest::addColumn<int>("writing");
    QTest::newRow("missing folder") << QByteArray("manca") << 76 << 76;
    QTest::newRow("a folder in its place") << QByteArray("occupata") << 75 << 75;
    QTest::newRow("no folder known") << QByteArray("-") << 76 << 76;
    QTest::newRow("empty file") << QByteArray("vuota") << 62 << 0;
    QTest::newRow("quote never closed") << QByteArray("aperta") << 62 << 0;
}

void WorkspaceTest::FailuresOfTheTablePointerAreReported()
{
    QFETCH(QByteArray, folder);
    QFETCH(int, reading);
    QFETCH(int, writing);
    const TempFolder temp;
    temp.MakeFolder("occupata/nometab");
    temp.MakeFolder("vuota");
    temp.Write("vuota/nometab", "");
    temp.MakeFolder("aperta");
    temp.Write("aperta/nometab", "\"C:\\X\r\n");
    Module1::CartellaDiario = folder == "-" ? Text() : temp.Path(folder.toStdString());
    Module1::NomeTabellaAttiva = "resta";
    MessageScript boxes;
    boxes.ExpectError("ERRORE : ", reading);
    Module1::CaricaNomeTabella();
    QCOMPARE(Bytes(Module1::NomeTabellaAttiva), QByteArray("resta"));
    QVERIFY(boxes.AllShown());
    if (writing != 0) {
        boxes.ExpectError("ERRORE : ", writing);
    }
    Module1::SalvaNomeTabella();
    QVERIFY(boxes.AllShown());
}

void WorkspaceTest::AFullDiskIsReported()
{
    const TempFolder folder;
    std::filesystem::create_symlink("/dev/full", folder.Native("nometab"));
    Module1::CartellaDiario = folder.Path();
    MessageScript boxes;
    boxes.ExpectError("ERRORE : ", 61);
    Module1::SalvaNomeTabella();
    QVERIFY(boxes.AllShown());
}

ZELVIA_TEST(WorkspaceTest)
#include "WorkspaceTest.moc"
