// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/strumenti/FileSet.h"

#include "support/TempFolder.h"
#include "support/TestProgram.h"
#include "tools/copies/SafeFiles.h"

#include <QTest>

#include <filesystem>
#include <functional>
#include <iterator>
#include <sys/stat.h>

using namespace zelvia;
using namespace zelvia::test;
namespace fs = std::filesystem;

class FileSetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void SeveralFiles();
    void NothingUntilItIsApplied();
    void AFileThatHasChangedMeanwhile();
    void LinksAreNotFollowed();
    void WhatWasLeftUndone();
    void FilesThatGo();
    void FilesThatWereLeftToGo();
    void SweepsOnlyItsOwn();
};

namespace
{

int Entries(const TempFolder& folder)
{
    return static_cast<int>(std::distance(fs::directory_iterator(folder.Native()), fs::directory_iterator()));
}

std::string FailureOf(const std::function<void()>& block)
{
    try {
        block();
    } catch (const FileFailure& failure) {
        return failure.what();
    }
    return {};
}

} // namespace

void FileSetTest::SeveralFiles()
{
    const TempFolder folder;
    folder.Write("nomeload", "prima");
    folder.MakeFolder("prova");
    folder.Write("prova/Tipo.lsx", "lista");
    fs::permissions(folder.Native("nomeload"), fs::perms(0640));
    FileSet files(folder.Native(), "prova");
    files.Write("nomeload", "dopo");
    files.Write("ZelviaFile/vecchi/a.zlv", "diario");
    files.Copy("prova/Tipo.lsx", "nuova/Tipo.lsx");
    QVERIFY(files.Apply().empty());
    QCOMPARE(folder.Read("nomeload"), "dopo");
    QCOMPARE(folder.Read("ZelviaFile/vecchi/a.zlv"), "diario");
    QCOMPARE(folder.Read("nuova/Tipo.lsx"), "lista");
    QCOMPARE(static_cast<int>(fs::status(folder.Native("nomeload")).permissions()), 0640);
    QCOMPARE(Entries(folder), 4);
}

void FileSetTest::NothingUntilItIsApplied()
{
    const TempFolder folder;
    folder.Write("nomeload", "prima");
    {
        FileSet files(folder.Native(), "prova");
        files.Write("nomeload", "dopo");
        QCOMPARE(folder.Read("nomeload"), "prima");
        QCOMPARE(Entries(folder), 2);
    }
    QCOMPARE(folder.Read("nomeload"), "prima");
    QCOMPARE(Entries(folder), 1);
}

void FileSetTest::AFileThatHasChangedMeanwhile()
{
    const TempFolder folder;
    folder.Write("uno", "prima");
    folder.Write("due", "prima");
    FileSet files(folder.Native(), "prova");
    files.Write("uno", "dopo");
    files.Write("due", "dopo");
    files.Write("tre", "dopo");
    folder.Write("uno", "altro");
    folder.Write("tre", "altro");
    const std::vector<std::string> expected{"tre", "uno"};
    QCOMPARE(files.Apply(), expected);
    QCOMPARE(folder.Read("uno"), "altro");
    QCOMPARE(folder.Read("due"), "dopo");
    QCOMPARE(folder.Read("tre"), "altro");
}

void FileSetTest::LinksAreNotFollowed()
{
    const TempFolder outside;
    outside.Write("file", "fuori");
    const TempFolder folder;
    fs::create_symlink(outside.Native("file"), folder.Native("file"));
    fs::create_directory_symlink(outside.Native(), folder.Native("cartella"));
    const std::string end = "» è un collegamento, che non viene seguito: al suo posto ci vuole il file o la cartella";
    FileSet files(folder.Native(), "prova");
    QCOMPARE(FailureOf([&] { files.Write("file", "x"); }), "«" + folder.Native("file") + end);
    QCOMPARE(FailureOf([&] { files.Write("cartella/file", "x"); }), "«" + folder.Native("cartella") + end);
    // One that comes up later.
    files.Write("dopo/file", "x");
    fs::create_directory_symlink(outside.Native(), folder.Native("dopo"));
    QCOMPARE(FailureOf([&] { files.Apply(); }), "«" + folder.Native("dopo") + end);
    QCOMPARE(outside.Read("file"), "fuori");
    QCOMPARE(Entries(outside), 1);
}

void FileSetTest::WhatWasLeftUndone()
{
    const TempFolder folder;
    folder.Write("nomeload", "prima");
    folder.MakeFolder(".zelvia-strumenti/prima");
    folder.MakeFolder(".zelvia-strumenti/dopo/ZelviaFile");
    folder.Write(".zelvia-strumenti/azione", "anno 2027");
    folder.Write(".zelvia-strumenti/prima/nomeload", "prima");
    folder.Write(".zelvia-strumenti/dopo/nomeload", "dopo");
    folder.Write(".zelvia-strumenti/dopo/ZelviaFile/2027.zlv", "diario");
    QVERIFY(FileSet::IsPending(folder.Native()));
    const auto completion = FileSet::Complete(folder.Native());
    QVERIFY(completion && completion->leftAlone.empty());
    QCOMPARE(completion->label, "anno 2027");
    QCOMPARE(folder.Read("nomeload"), "dopo");
    QCOMPARE(folder.Read("ZelviaFile/2027.zlv"), "diario");
    QCOMPARE(Entries(folder), 2);
    QVERIFY(!FileSet::Complete(folder.Native()));
}

void FileSetTest::FilesThatGo()
{
    const TempFolder outside;
    outside.Write("file", "fuori");
    const TempFolder folder;
    folder.Write("uno", "prima");
    folder.Write("due", "prima");
    folder.MakeFolder("prova");
    folder.Write("prova/tre", "prima");
    fs::create_symlink(outside.Native("file"), folder.Native("quattro"));
    FileSet files(folder.Native(), "prova");
    for (const char* file : {"uno", "due", "prova/tre", "manca"}) {
        files.Remove(file);
    }
    QCOMPARE(FailureOf([&] { files.Remove("quattro"); }),
             "«" + folder.Native("quattro") +
                 "» è un collegamento, che non viene seguito: al suo posto ci vuole il file o la cartella");
    files.Write("cinque", "dopo");
    QVERIFY(folder.Has("uno"));
    // One that has changed meanwhile stays.
    folder.Write("due", "altro");
    QCOMPARE(files.Apply(), std::vector<std::string>{"due"});
    QVERIFY(!folder.Has("uno") && folder.Has("due") && !folder.Has("prova/tre") && folder.Has("prova"));
    QCOMPARE(folder.Read("cinque"), "dopo");
    QCOMPARE(Entries(folder), 4);
    QCOMPARE(outside.Read("file"), "fuori");
}

void FileSetTest::FilesThatWereLeftToGo()
{
    const TempFolder folder;
    folder.MakeFolder(".zelvia-strumenti/prima");
    folder.MakeFolder(".zelvia-strumenti/dopo");
    folder.MakeFolder(".zelvia-strumenti/via");
    folder.Write(".zelvia-strumenti/azione", "unisci");
    for (const char* file : {"uno", "due"}) {
        folder.Write(std::string(".zelvia-strumenti/prima/") + file, "prima");
        folder.Write(std::string(".zelvia-strumenti/via/") + file, "");
    }
    // The first has gone already.
    folder.Write("due", "prima");
    const auto completion = FileSet::Complete(folder.Native());
    QVERIFY(completion && completion->leftAlone.empty());
    QCOMPARE(Entries(folder), 0);
}

void FileSetTest::SweepsOnlyItsOwn()
{
    const TempFolder folder;
    folder.MakeFolder(".zelvia-strumenti-0123/dopo");
    folder.MakeFolder(".zelvia-altro");
    folder.MakeFolder("mio");
    fs::create_directory_symlink(folder.Native("mio"), folder.Native(".zelvia-strumenti-4567"));
    FileSet::Sweep(folder.Native());
    QVERIFY(!folder.Has(".zelvia-strumenti-0123"));
    QVERIFY(folder.Has(".zelvia-altro") && folder.Has("mio") && folder.Has(".zelvia-strumenti-4567"));
}

ZELVIA_TEST(FileSetTest)

#include "FileSetTest.moc"
