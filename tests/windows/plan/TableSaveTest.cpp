// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The file that saving a table makes, and the folder it may be in.
#include "support/PlanDesk.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
namespace
{

const QString kTitle = QStringLiteral("Salva Tabella con nome");
const QDate kNoStart(2007, 1, 1);

/// A new table of which only the last row is filled.
void WriteLastRow(PlanDesk& desk)
{
    desk.Begin();
    desk.OpenList();
    desk.OpenNew();
    desk.Write(desk.Box(TableGrid::Km, 31), QStringLiteral("42"));
    desk.Write(desk.Box(TableGrid::Metri, 31), QStringLiteral("195"));
    desk.Write(desk.Box(TableGrid::Andatura, 31), QStringLiteral(" media, poi  lenta "));
}

QByteArray LastRow(QDate start = kNoStart)
{
    return TableBytes(start).SetRow(31, "42|195|||||||" + QByteArray(" media, poi  lenta ")).Bytes();
}

} // namespace

class TableSaveTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyTheLastRow();
    void overAnExistingTable_data();
    void overAnExistingTable();
    void inOtherLetters();
    void withDotsInTheName();
    void anotherFolder_data();
    void anotherFolder();
    void theFolderInOtherLetters();
};

void TableSaveTest::onlyTheLastRow()
{
    PlanDesk desk;
    Module1::FlagTabellaSalvata = 1;
    WriteLastRow(desk);
    desk.script.Expect(desk.SaveTableDialog(QString(), QStringLiteral("Piano")));
    hand::Click(*desk.Editor()->cmdSalva);
    TRY_SCRIPT(desk.script);
    QVERIFY(Module1::FlagTabellaSalvata == 0);
    const QByteArray file = desk.folder.Read(QStringLiteral("prova/Piano.tab"));
    QCOMPARE(file.count("\r\n"), 466);
    QCOMPARE(file, LastRow());
    // The start that means none comes back as a date.
    desk.LeaveEditor();
    desk.OpenTable("Piano.tab");
    QCOMPARE(desk.Row(31), QByteArray("42|195||||||| media, poi  lenta |||||"));
    QCOMPARE(desk.StartDate(), QByteArray("1|1|2007"));
    VERIFY_SCRIPT(desk.script);
}

void TableSaveTest::overAnExistingTable_data()
{
    QTest::addColumn<bool>("replaces");
    QTest::newRow("yes") << true;
    QTest::newRow("no") << false;
}

void TableSaveTest::overAnExistingTable()
{
    QFETCH(bool, replaces);
    PlanDesk desk;
    const QString file = QStringLiteral("Piano.tab");
    const QByteArray before = CountedTable(QDate(2026, 5, 1)).Bytes() + QByteArray(100000, 'x');
    desk.folder.Write(QStringLiteral("prova/Piano.tab"), before);
    WriteLastRow(desk);
    desk.WriteStart("29", "2", "2028");
    desk.script.Expect(desk.SaveTableDialog(QString(), file));
    desk.script.Expect(desk.OverwriteQuestion(kTitle, file, replaces ? QMessageBox::Yes : QMessageBox::No));
    if (!replaces) {
        desk.script.Expect(desk.SaveTableDialog(file));
    }
    hand::Click(*desk.Editor()->cmdSalva);
    TRY_SCRIPT(desk.script);
    QVERIFY(Module1::FlagTabellaSalvata == (replaces ? 0 : 1));
    QCOMPARE(desk.folder.Read(QStringLiteral("prova/Piano.tab")), replaces ? LastRow(QDate(2028, 2, 29)) : before);
    QCOMPARE(desk.Editor()->windowTitle(),
             replaces ? QStringLiteral("Tabella allenamento : Piano") : QStringLiteral("Tabella allenamento "));
    QCOMPARE(desk.folder.Files(QStringLiteral("prova")).filter(QStringLiteral(".tab")), QStringList{file});
    VERIFY_SCRIPT(desk.script);
}

void TableSaveTest::inOtherLetters()
{
    PlanDesk desk;
    const QString file = QStringLiteral("Piano.tab");
    desk.folder.Write(QStringLiteral("prova/Piano.tab"), CountedTable(QDate(2026, 5, 1)).Bytes());
    WriteLastRow(desk);
    desk.script.Expect(desk.SaveTableDialog(QString(), QStringLiteral("PIANO")));
    desk.script.Expect(desk.OverwriteQuestion(kTitle, file, QMessageBox::Yes));
    hand::Click(*desk.Editor()->cmdSalva);
    TRY_SCRIPT(desk.script);
    QCOMPARE(desk.folder.Read(QStringLiteral("prova/Piano.tab")), LastRow());
    QCOMPARE(desk.folder.Files(QStringLiteral("prova")).filter(QStringLiteral(".tab")), QStringList{file});
    QCOMPARE(desk.Editor()->windowTitle(), QStringLiteral("Tabella allenamento : Piano"));
}

void TableSaveTest::withDotsInTheName()
{
    PlanDesk desk;
    WriteLastRow(desk);
    desk.script.Expect(desk.SaveTableDialog(QString(), QStringLiteral("Ripetute 1.500")));
    hand::Click(*desk.Editor()->cmdSalva);
    TRY_SCRIPT(desk.script);
    QCOMPARE(desk.folder.Read(QStringLiteral("prova/Ripetute 1.500.tab")), LastRow());
    QCOMPARE(desk.Editor()->windowTitle(), QStringLiteral("Tabella allenamento : Ripetute 1.500"));
    desk.LeaveEditor();
    QCOMPARE(desk.Entries(), QByteArrayList{"Ripetute 1.500.tab"});
}

void TableSaveTest::anotherFolder_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<bool>("cancels");
    for (const bool cancels : {true, false}) {
        const char* then = cancels ? "then cancels" : "then takes the name";
        QTest::addRow("another, %s", then) << "altra" << cancels;
        QTest::addRow("another but for case, %s", then) << "PROVA" << cancels;
        QTest::addRow("one inside, %s", then) << "prova/vecchie" << cancels;
        QTest::addRow("the one of the diaries, %s", then) << "ZelviaFile" << cancels;
    }
}

void TableSaveTest::anotherFolder()
{
    QFETCH(QString, folder);
    QFETCH(bool, cancels);
    PlanDesk desk;
    desk.folder.MakeFolder(folder);
    WriteLastRow(desk);
    const QString name = folder + QStringLiteral("/Piano 2.tab");
    desk.script.Expect(desk.SaveTableDialog(QString(), desk.folder.Native(name)));
    desk.script.Expect(Messages::kTableSavesElsewhere);
    // The bare name is kept, the folder is not.
    desk.script.Expect(
        desk.SaveTableDialog(QStringLiteral("Piano 2"), cancels ? QString() : QStringLiteral("Piano 2")));
    hand::Click(*desk.Editor()->cmdSalva);
    TRY_SCRIPT(desk.script);
    QVERIFY(!desk.folder.Exists(name));
    QCOMPARE(desk.folder.Exists(QStringLiteral("prova/Piano 2.tab")), !cancels);
    QVERIFY(Module1::FlagTabellaSalvata == (cancels ? 1 : 0));
    if (!cancels) {
        QCOMPARE(desk.folder.Read(QStringLiteral("prova/Piano 2.tab")), LastRow());
    }
    VERIFY_SCRIPT(desk.script);
}

/// The pointer of the start names the diary in capitals; on the disk its folder has small letters.
void TableSaveTest::theFolderInOtherLetters()
{
    PlanDesk desk;
    const Text diary = desk.folder.System(QStringLiteral("ZelviaFile/PROVA.zlv"));
    desk.folder.Write(QStringLiteral("nomeload"), '"' + QByteArray::fromStdString(diary) + "\"\r\n");
    const QString file = QStringLiteral("Piano.tab");
    desk.folder.Write(QStringLiteral("prova/Piano.tab"), CountedTable(QDate(2026, 5, 1)).Bytes());
    WriteLastRow(desk);
    QCOMPARE(Module1::CartellaDiario, desk.folder.System(QStringLiteral("PROVA")));
    // One of the files that the dialog shows, and a new one.
    desk.script.Expect(desk.SaveTableDialog(QString(), file));
    desk.script.Expect(desk.OverwriteQuestion(kTitle, file, QMessageBox::Yes));
    hand::Click(*desk.Editor()->cmdSalva);
    TRY_SCRIPT(desk.script);
    desk.AwaitBoxes();
    desk.script.Expect(desk.SaveTableDialog(file, QStringLiteral("Altro")));
    hand::Click(*desk.Editor()->cmdSalva);
    TRY_SCRIPT(desk.script);
    QVERIFY(Module1::FlagTabellaSalvata == 0);
    QCOMPARE(desk.folder.Read(QStringLiteral("prova/Piano.tab")), LastRow());
    QCOMPARE(desk.folder.Read(QStringLiteral("prova/Altro.tab")), LastRow());
    QVERIFY(!desk.folder.Exists(QStringLiteral("PROVA")));
    desk.LeaveEditor();
    QCOMPARE(desk.Entries(), (QByteArrayList{"Altro.tab", "Piano.tab"}));
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::TableSaveTest)
#include "TableSaveTest.moc"
#include "core/Messages.h"
