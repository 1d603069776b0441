// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/merge/Conflicts.h"

#include "support/Bytes.h"
#include "support/TempFolder.h"
#include "support/TestProgram.h"

#include <QTest>

#include <filesystem>

using namespace zelvia;
using namespace zelvia::test;
namespace fs = std::filesystem;

class ConflictsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Marks_data();
    void Marks();
    void Kinds_data();
    void Kinds();
    void ThoseOfAFolder();
    void NamesThatOnlyLookLikeOne();
    void LinksAndHiddenOnes();
};

namespace
{

void Touch(const TempFolder& folder, const std::string& file)
{
    folder.MakeFolder(fs::path(file).parent_path().string());
    folder.Write(file, "");
}

QByteArray Found(const TempFolder& folder)
{
    QByteArray found;
    for (const Conflict& conflict : FindConflicts(folder.Native())) {
        found += Bytes(conflict.file + " -> " + conflict.original + "\n");
    }
    return found;
}

} // namespace

void ConflictsTest::Marks_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("original");

    const auto row = [](const char* name, const char* original) {
        QTest::newRow(name) << QString::fromUtf8(name) << QString::fromUtf8(original);
    };
    row("prova.sync-conflict-20261101-101010-ABCDEFG.zlv", "prova.zlv");
    row("2026.sync-conflict-20261101-101010.zlv", "2026.zlv");
    row("ListePercorso.sync-conflict-20261101-101010-ABCDEFG", "ListePercorso");
    row("Base 10 km.sync-conflict-20261101-101010-ABCDEFG.tab", "Base 10 km.tab");
    row("prova.zlv.sync-conflict-20261101-101010-ABCDEFG", "prova.zlv");
    row("prova (conflicted copy 2026-11-01).zlv", "prova.zlv");
    row("prova (conflicted copy 2026-11-01 101010).zlv", "prova.zlv");
    row("prova (Anna's conflicted copy 2026-11-01).zlv", "prova.zlv");
    row("prova (copia in conflitto di PC 2026-11-01).zlv", "prova.zlv");
    row("prova (Copia in conflitto).ZLV", "prova.ZLV");
    row("prova (lenta) (conflicted copy 2026-11-01).zlv", "prova (lenta).zlv");
    row("Tipo (conflicted copy 2026-11-01).lsx", "Tipo.lsx");
    row("CalendarioGare (copia in conflitto di PC 2026-11-01)", "CalendarioGare");
    row("prova_conflict-20261101-101010.zlv", "prova.zlv");
    row("prova-conflict-20261101.zlv", "prova.zlv");
    row("prova conflict 2026.zlv", "prova.zlv");
    // No mark of a conflict, or nothing before it.
    row("prova.zlv", "");
    row("prova-PC.zlv", "");
    row("conflitto.zlv", "");
    row("(conflicted copy 2026-11-01).zlv", "");
    row(".sync-conflict-20261101-101010-ABCDEFG.zlv", "");
    row("gara senza conflitti.zlv", "");
    row("inconflict-2026.zlv", "");
    row("prova (conflicted copy.zlv", "");
    row("conflict", "");
    row("", "");
}

void ConflictsTest::Marks()
{
    QFETCH(QString, name);
    QFETCH(QString, original);
    QCOMPARE(QString::fromStdString(OriginalByMark(name.toStdString()).value_or("")), original);
}

void ConflictsTest::Kinds_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("kind");

    const auto row = [](const char* path, std::optional<FileKind> kind) {
        QTest::newRow(path) << QString::fromUtf8(path) << (kind ? static_cast<int>(*kind) : -1);
    };
    row("ZelviaFile/prova.zlv", FileKind::Diary);
    row("ZelviaFile/vecchi/2020.ZLV", FileKind::Diary);
    row("prova/Tipo.lsx", FileKind::List);
    row("prova/ListePercorso", FileKind::Routes);
    row("prova/listepercorso", FileKind::Routes);
    row("prova/CalendarioGare", FileKind::Races);
    row("prova/Base 10 km.tab", FileKind::Table);
    row("prova/nometab", FileKind::Pointer);
    row("nomeload", std::nullopt);
    row("Tipo.lsx", std::nullopt);
    row("ListePercorso", std::nullopt);
    row("ZelviaFile/Tipo.lsx", std::nullopt);
    row("prova/appunti.txt", std::nullopt);
    row("prova/prova.zlv", std::nullopt);
}

void ConflictsTest::Kinds()
{
    QFETCH(QString, path);
    QFETCH(int, kind);
    const auto found = KindOfFile(path.toStdString());
    QCOMPARE(found ? static_cast<int>(*found) : -1, kind);
}

void ConflictsTest::ThoseOfAFolder()
{
    const TempFolder folder;
    for (const char* file :
         {"ZelviaFile/prova.zlv", "ZelviaFile/prova.sync-conflict-20261101-101010-ABCDEFG.zlv",
          "ZelviaFile/prova-PC.zlv", "ZelviaFile/prova-pc-di-anna.zlv", "ZelviaFile/prova (1).zlv",
          "ZelviaFile/vecchi/2020 (conflicted copy 2026-11-01).zlv", "prova/Tipo.lsx", "prova/Tipo-PC.lsx",
          "prova/ListePercorso", "prova/ListePercorso-PC", "prova/CalendarioGare (1)", "prova/CalendarioGare",
          "prova/Base.sync-conflict-20261101-101010-ABCDEFG.tab",
          "prova/nometab.sync-conflict-20261101-101010-ABCDEFG"}) {
        Touch(folder, file);
    }
    QCOMPARE(Found(folder),
             QByteArray("ZelviaFile/prova (1).zlv -> ZelviaFile/prova.zlv\n"
                        "ZelviaFile/prova-PC.zlv -> ZelviaFile/prova.zlv\n"
                        "ZelviaFile/prova-pc-di-anna.zlv -> ZelviaFile/prova.zlv\n"
                        "ZelviaFile/prova.sync-conflict-20261101-101010-ABCDEFG.zlv -> ZelviaFile/prova.zlv\n"
                        "ZelviaFile/vecchi/2020 (conflicted copy 2026-11-01).zlv -> ZelviaFile/vecchi/2020.zlv\n"
                        "prova/Base.sync-conflict-20261101-101010-ABCDEFG.tab -> prova/Base.tab\n"
                        "prova/CalendarioGare (1) -> prova/CalendarioGare\n"
                        "prova/ListePercorso-PC -> prova/ListePercorso\n"
                        "prova/Tipo-PC.lsx -> prova/Tipo.lsx\n"
                        "prova/nometab.sync-conflict-20261101-101010-ABCDEFG -> prova/nometab\n"));
}

void ConflictsTest::NamesThatOnlyLookLikeOne()
{
    const TempFolder folder;
    // A diary of its own folder, one whose likeness is not there, years, tables of a like name, other files.
    for (const char* file :
         {"ZelviaFile/prova.zlv", "ZelviaFile/prova-lenta.zlv", "prova-lenta/Tipo.lsx", "ZelviaFile/altra-PC.zlv",
          "ZelviaFile/prova-2.zlv", "ZelviaFile/prova-di anna.zlv", "ZelviaFile/prova (bis).zlv", "prova/Base.tab",
          "prova/Base-10.tab", "prova/Base-km.tab", "prova/Base (1).tab", "prova/appunti.txt",
          "prova/appunti.sync-conflict-20261101-101010-ABCDEFG.txt"}) {
        Touch(folder, file);
    }
    QCOMPARE(Found(folder), QByteArray());
}

void ConflictsTest::LinksAndHiddenOnes()
{
    const TempFolder folder;
    const TempFolder outside;
    outside.Write("fuori.zlv", "");
    Touch(folder, "ZelviaFile/prova.zlv");
    Touch(folder, "ZelviaFile/.prova.sync-conflict-20261101-101010-ABCDEFG.zlv");
    fs::create_symlink(outside.Native("fuori.zlv"), folder.Native("ZelviaFile/prova-PC.zlv"));
    QCOMPARE(Found(folder), QByteArray());
    QCOMPARE(Found(TempFolder()), QByteArray());
}

ZELVIA_TEST(ConflictsTest)

#include "ConflictsTest.moc"
