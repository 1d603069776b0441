// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// "Salva" of the table editor: its dialog, the rule of the folder, and the file.
#include "core/Messages.h"
#include "diary/Module1.h"
#include "support/TableDesk.h"
#include "support/TableLines.h"
#include "support/WindowTest.h"

#include <QFile>

namespace zelvia::test
{
namespace
{

using namespace TableGrid;

const char* const kTable = "Base 10 km.tab";
const QString kPreset = QStringLiteral("Base 10 km.tab");
const QString kTitle = QStringLiteral("Salva Tabella con nome");
const QString kOpenedCaption = QStringLiteral("Tabella allenamento : Base 10 km    di   ");

QByteArray Sample()
{
    return SampleFile(QStringLiteral("prova/Base 10 km.tab"));
}

/// Presses "Salva" and waits for all that is to come of it.
void Save(const TableDesk& desk)
{
    hand::Click(*desk.Editor()->cmdSalva);
    desk.AwaitBoxes();
}

} // namespace

class EditorSaveTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void savesWhatTheBoxesHold();
    void anUntouchedTableIsWrittenAsItWas_data();
    void anUntouchedTableIsWrittenAsItWas();
    void onlyTheLastRow();
    void aTableWithoutADateKeepsThePlaceholder();
    void textsAreKeptWhole();
    void overwritingReplacesTheWholeFile();
    void overwritingRefused();
    void cancelled();
    void namesAndExtensions_data();
    void namesAndExtensions();
    void otherFolders_data();
    void otherFolders();
    void theBareNameStaysAfterARefusal();
    void unwritable_data();
    void unwritable();
    void theOpenedTableStaysTheWindowsOwn();
    void savingTakesTheGridAsAccepted_data();
    void savingTakesTheGridAsAccepted();
};

void EditorSaveTest::savesWhatTheBoxesHold()
{
    TableDesk desk;
    desk.StartWith(kTable);
    desk.Write(desk.Box(Km, 3), QStringLiteral("21"));
    desk.Write(desk.Box(Metri, 3), QStringLiteral("97"));
    desk.Write(desk.Box(Andatura, 3), QStringLiteral("LENTA"));
    desk.Write(desk.Box(RipetDistanza, 4), QStringLiteral("1500"));
    desk.Write(desk.Box(Km, 31), QString());
    desk.WriteStart("9", "11", "2027");
    // Not accepted: "Salva" reads the boxes by itself.
    desk.script.Expect(desk.SaveTableDialog(kPreset, kPreset));
    desk.script.Expect(desk.OverwriteQuestion(kTitle, kPreset, QMessageBox::Yes));
    Save(desk);
    QCOMPARE(desk.ReadTable(kTable), TableLines(Sample())
                                         .Set(3, Km, "21")
                                         .Set(3, Metri, "97")
                                         .Set(3, Andatura, "\"Lenta\"")
                                         .Set(4, RipetDistanza, "1500")
                                         .Set(31, Km, "0")
                                         .SetDate("2027-11-09")
                                         .Bytes());
    QCOMPARE(desk.Editor()->windowTitle(), QStringLiteral("Tabella allenamento : Base 10 km"));
    QVERIFY(Module1::FlagTabellaSalvata == 0);
}

void EditorSaveTest::anUntouchedTableIsWrittenAsItWas_data()
{
    QTest::addColumn<QString>("table");
    QTest::newRow("ten kilometres") << kPreset;
    QTest::newRow("half a marathon") << QStringLiteral("Mezza maratona.tab");
}

void EditorSaveTest::anUntouchedTableIsWrittenAsItWas()
{
    QFETCH(QString, table);
    TableDesk desk;
    desk.StartWith(table.toLatin1());
    desk.script.Expect(desk.SaveTableDialog(table, QStringLiteral("Copia")));
    Save(desk);
    QCOMPARE(desk.ReadTable("Copia.tab"), SampleFile(QStringLiteral("prova/") + table));
    QCOMPARE(desk.folder.Files(QStringLiteral("prova")).size(), 13);
}

void EditorSaveTest::onlyTheLastRow()
{
    TableDesk desk;
    desk.StartNew();
    const char* const values[] = {"8", "500", "1", "2", "3", "4", "5", "6", "Media", "Pista", "7", "1500", "8", "9"};
    for (int column = 0; column < kColumns; ++column) {
        desk.Write(desk.Box(static_cast<Column>(column), 31), QLatin1String(values[column]));
    }
    desk.WriteStart("5", "4", "2026");
    desk.script.Expect(desk.SaveTableDialog(QString(), QStringLiteral("nuova")));
    Save(desk);
    const QByteArray file = desk.ReadTable("nuova.tab");
    QCOMPARE(file.count("\r\n"), 466);
    QCOMPARE(file, TableLines::Blank()
                       .SetRow(31, "8|500|1|2|3|4|5|6|\"Media\"|\"Pista\"|7|1500|8|9")
                       .SetDate("2026-04-05")
                       .Bytes());
    QCOMPARE(desk.Editor()->windowTitle(), QStringLiteral("Tabella allenamento : nuova"));

    // The list has it as soon as the editor closes.
    desk.LeaveEditor();
    QCOMPARE(desk.Entries(), (QByteArrayList{"Base 10 km.tab", "Mezza maratona.tab", "nuova.tab"}));
    desk.OpenTable("nuova.tab");
    QCOMPARE(desk.Row(31), QByteArray("8|500|1|02|03|4|05|006|Media|Pista|7|1.500|8|09"));
    QCOMPARE(desk.Row(30), QByteArray("|||||||||||||"));
    QCOMPARE(desk.StartDate(), QByteArray("5|4|2026"));
    VERIFY_SCRIPT(desk.script);
}

void EditorSaveTest::aTableWithoutADateKeepsThePlaceholder()
{
    TableDesk desk;
    desk.StartNew();
    desk.script.Expect(desk.SaveTableDialog(QString(), QStringLiteral("vuota")));
    Save(desk);
    QCOMPARE(desk.ReadTable("vuota.tab"), TableLines::Blank().Bytes());
    desk.LeaveEditor();
    desk.OpenTable("vuota.tab");
    QCOMPARE(desk.StartDate(), QByteArray("1|1|2007"));
    VERIFY_SCRIPT(desk.script);
}

void EditorSaveTest::textsAreKeptWhole()
{
    TableDesk desk;
    desk.StartNew();
    desk.Write(desk.Box(Andatura, 1), QStringLiteral("  Media, poi lenta  "));
    desk.Write(desk.Box(Fondo, 1), QStringLiteral(" "));
    desk.script.Expect(desk.SaveTableDialog(QString(), QStringLiteral("testi")));
    Save(desk);
    QCOMPARE(desk.ReadTable("testi.tab"),
             TableLines::Blank().Set(1, Andatura, "\"  Media, poi lenta  \"").Set(1, Fondo, "\" \"").Bytes());
    desk.LeaveEditor();
    desk.OpenTable("testi.tab");
    QCOMPARE(desk.Row(1), QByteArray("||||||||  Media, poi lenta  | ||||"));
    VERIFY_SCRIPT(desk.script);
}

void EditorSaveTest::overwritingReplacesTheWholeFile()
{
    TableDesk desk;
    desk.WriteTable("Lunga.tab", Sample() + Sample());
    desk.StartNew();
    desk.script.Expect(desk.SaveTableDialog(QString(), QStringLiteral("Lunga")));
    desk.script.Expect(desk.OverwriteQuestion(kTitle, QStringLiteral("Lunga.tab"), QMessageBox::Yes));
    Save(desk);
    QCOMPARE(desk.ReadTable("Lunga.tab"), TableLines::Blank().Bytes());
}

void EditorSaveTest::overwritingRefused()
{
    TableDesk desk;
    desk.StartWith(kTable);
    desk.Write(desk.Box(Km, 1), QStringLiteral("99"));
    desk.script.Expect(desk.SaveTableDialog(kPreset, kPreset));
    desk.script.Expect(desk.OverwriteQuestion(kTitle, kPreset, QMessageBox::No));
    desk.script.Expect(desk.SaveTableDialog(kPreset));
    Save(desk);
    QVERIFY(desk.ReadTable(kTable) == Sample());
    QVERIFY(Module1::FlagTabellaSalvata == 1);
    QCOMPARE(desk.Editor()->windowTitle(), kOpenedCaption);
}

void EditorSaveTest::cancelled()
{
    TableDesk desk;
    desk.StartWith(kTable);
    (void)desk.RowMenu(31, Qt::Key_I);
    const QStringList files = desk.folder.Files();
    desk.script.Expect(desk.SaveTableDialog(kPreset));
    Save(desk);
    QVERIFY(Module1::FlagTabellaSalvata == 1);
    QCOMPARE(desk.folder.Files(), files);
    QVERIFY(desk.ReadTable(kTable) == Sample());
    QCOMPARE(desk.Editor()->windowTitle(), kOpenedCaption);
    QVERIFY(desk.Editor()->TabellaModificata == 1);
    // Saved after all.
    desk.script.Expect(desk.SaveTableDialog(kPreset, QStringLiteral("copia")));
    Save(desk);
    QVERIFY(Module1::FlagTabellaSalvata == 0);
    QVERIFY(desk.Editor()->TabellaModificata == 0);
}

void EditorSaveTest::namesAndExtensions_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("caption");
    QTest::newRow("none") << "nuova"
                          << "nuova.tab"
                          << "nuova";
    QTest::newRow("its own") << "nuova.tab"
                             << "nuova.tab"
                             << "nuova";
    QTest::newRow("in capitals") << "nuova.TAB"
                                 << "nuova.TAB"
                                 << "nuova";
    QTest::newRow("blanks") << "Mia nuova tabella"
                            << "Mia nuova tabella.tab"
                            << "Mia nuova tabella";
    QTest::newRow("a dot inside") << "21.1 km.tab"
                                  << "21.1 km.tab"
                                  << "21.1 km";
}

void EditorSaveTest::namesAndExtensions()
{
    QFETCH(QString, typed);
    QFETCH(QString, file);
    QFETCH(QString, caption);
    TableDesk desk;
    desk.StartNew();
    QStringList files = desk.folder.Files();
    desk.script.Expect(desk.SaveTableDialog(QString(), typed));
    Save(desk);
    files << QStringLiteral("prova/") + file;
    files.sort();
    QCOMPARE(desk.folder.Files(), files);
    QCOMPARE(desk.Editor()->windowTitle(), QStringLiteral("Tabella allenamento : ") + caption);
    // The next time the dialog comes up with it.
    desk.script.Expect(desk.SaveTableDialog(file));
    Save(desk);
    desk.LeaveEditor();
    QVERIFY(desk.Entries().contains(file.toLatin1()));
}

void EditorSaveTest::otherFolders_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<bool>("cancels");
    for (const char* folder : {"altrove", "prova/sotto", "PROVA", "ZelviaFile", ""}) {
        for (const bool cancels : {true, false}) {
            QTest::addRow("\"%s\", then %s", folder, cancels ? "cancelled" : "a good name")
                << QString::fromLatin1(folder) << cancels;
        }
    }
}

void EditorSaveTest::otherFolders()
{
    QFETCH(QString, folder);
    QFETCH(bool, cancels);
    TableDesk desk;
    desk.folder.MakeFolder(QStringLiteral("./") + folder);
    desk.StartWith(kTable);
    desk.Write(desk.Box(Km, 1), QStringLiteral("99"));
    const QStringList files = desk.folder.Files();
    const QString wrong = desk.folder.Native(folder) + QStringLiteral("/Copia.tab");
    desk.script.Expect(desk.SaveTableDialog(kPreset, wrong));
    desk.script.Expect(Messages::kTableSavesElsewhere);
    // As often as it takes, with the bare name and the right folder.
    desk.script.Expect(desk.SaveTableDialog(QStringLiteral("Copia"), wrong));
    desk.script.Expect(Messages::kTableSavesElsewhere);
    desk.script.Expect(desk.SaveTableDialog(QStringLiteral("Copia"), cancels ? QString() : QStringLiteral("Copia")));
    Save(desk);
    QVERIFY(Module1::FlagTabellaSalvata == (cancels ? 1 : 0));
    if (cancels) {
        QCOMPARE(desk.folder.Files(), files);
        QCOMPARE(desk.Editor()->windowTitle(), kOpenedCaption);
    } else {
        QCOMPARE(desk.folder.Files().size(), files.size() + 1);
        QCOMPARE(desk.ReadTable("Copia.tab"), TableLines(Sample()).Set(1, Km, "99").Bytes());
        QCOMPARE(desk.Editor()->windowTitle(), QStringLiteral("Tabella allenamento : Copia"));
    }
    QVERIFY(desk.ReadTable(kTable) == Sample());
    VERIFY_SCRIPT(desk.script);
}

void EditorSaveTest::theBareNameStaysAfterARefusal()
{
    TableDesk desk;
    desk.folder.MakeFolder(QStringLiteral("altrove"));
    desk.StartWith(kTable);
    desk.script.Expect(desk.SaveTableDialog(kPreset, desk.folder.Native(QStringLiteral("altrove/Mia.tab"))));
    desk.script.Expect(Messages::kTableSavesElsewhere);
    desk.script.Expect(desk.SaveTableDialog(QStringLiteral("Mia")));
    Save(desk);
    desk.script.Expect(desk.SaveTableDialog(QStringLiteral("Mia")));
    Save(desk);
    QVERIFY(!desk.folder.Exists(QStringLiteral("prova/Mia.tab")));
}

void EditorSaveTest::unwritable_data()
{
    QTest::addColumn<QString>("leadsTo");
    QTest::addColumn<QString>("error");
    QTest::newRow("no such folder") << QString() << kNoFolder;
    QTest::newRow("disk full") << QStringLiteral("/dev/full") << QStringLiteral("61 Disco pieno");
}

void EditorSaveTest::unwritable()
{
    QFETCH(QString, leadsTo);
    QFETCH(QString, error);
    const QString name = QStringLiteral("guasta.tab");
    TableDesk desk;
    desk.StartWith(kTable);
    desk.Write(desk.Box(Km, 1), QStringLiteral("99"));
    desk.script.Expect(desk.SaveTableDialog(kPreset, name));
    if (leadsTo.isEmpty()) {
        desk.folder.Dangle(QStringLiteral("prova/") + name);
    } else {
        QVERIFY(QFile::link(leadsTo, desk.folder.Native(QStringLiteral("prova/") + name)));
        desk.script.Expect(desk.OverwriteQuestion(kTitle, name, QMessageBox::Yes));
    }
    desk.script.Expect(BareReport(error));
    Save(desk);
    // The report is all: only a cancelled dialog counts for a table that was not saved.
    QVERIFY(Module1::FlagTabellaSalvata == 0);
    QCOMPARE(desk.Editor()->windowTitle(), QStringLiteral("Tabella allenamento : guasta"));
    QCOMPARE(desk.Held(Km, 1), QByteArray("99"));
    // A better name saves it.
    desk.script.Expect(desk.SaveTableDialog(name, QStringLiteral("buona")));
    Save(desk);
    QCOMPARE(desk.ReadTable("buona.tab"), TableLines(Sample()).Set(1, Km, "99").Bytes());
}

void EditorSaveTest::theOpenedTableStaysTheWindowsOwn()
{
    TableDesk desk(CalendarDate(2026, 3, 1));
    desk.SetActive(kTable);
    desk.StartWith(kTable);
    desk.script.Expect(desk.SaveTableDialog(kPreset, QStringLiteral("Copia")));
    Save(desk);
    QCOMPARE(desk.Editor()->windowTitle(), QStringLiteral("Tabella allenamento : Copia"));
    // It is still the active one that was opened here.
    QCOMPARE(desk.Editor()->NomeFileForm, desk.folder.System(QStringLiteral("prova/Base 10 km.tab")));
    QCOMPARE(desk.DateBack(), kYellow);
    QCOMPARE(desk.Enabled(), QByteArray("cmdDisattiva"));
    QCOMPARE(desk.Nometab(), desk.Pointer(kTable));
    desk.script.Expect(desk.SaveTableDialog(QStringLiteral("Copia.tab")));
    Save(desk);
}

void EditorSaveTest::savingTakesTheGridAsAccepted_data()
{
    QTest::addColumn<QByteArray>("active");
    QTest::addColumn<bool>("opened");
    QTest::addColumn<QByteArray>("grey");
    QTest::addColumn<QByteArray>("saved");
    QTest::newRow("the active table") << QByteArray(kTable) << true << kYellow << kYellow;
    QTest::newRow("another one") << QByteArray("Mezza maratona.tab") << true << kGrey << kWhite;
    QTest::newRow("opened, none active") << QByteArray() << true << kGrey << kWhite;
    QTest::newRow("new, another one active") << QByteArray("Mezza maratona.tab") << false << kGrey << kWhite;
    // A new table and the lack of an active one have the same name.
    QTest::newRow("new, none active") << QByteArray() << false << kGrey << kYellow;
}

void EditorSaveTest::savingTakesTheGridAsAccepted()
{
    QFETCH(QByteArray, active);
    QFETCH(bool, opened);
    QFETCH(QByteArray, grey);
    QFETCH(QByteArray, saved);
    TableDesk desk(CalendarDate(2026, 3, 1));
    if (!active.isEmpty()) {
        desk.SetActive(active);
    }
    if (opened) {
        desk.StartWith(kTable);
    } else {
        desk.StartNew();
    }
    hand::Click(desk.Box(Km, 1));
    QTRY_COMPARE(desk.GridBack(), kGrey);
    QCOMPARE(desk.DateBack(), grey);
    const QByteArray enabled = desk.Enabled();
    desk.script.Expect(desk.SaveTableDialog(opened ? kPreset : QString()));
    Save(desk);
    // Though the dialog was cancelled.
    QCOMPARE(desk.GridBack(), kWhite);
    QCOMPARE(desk.DateBack(), saved);
    QCOMPARE(desk.Enabled(), enabled);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::EditorSaveTest)
#include "EditorSaveTest.moc"
