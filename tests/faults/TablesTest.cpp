// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of the training tables when the calls on one of their files go wrong.
#include "faults/CommandFailures.h"
#include "support/TableDesk.h"
#include "support/WindowTest.h"

namespace zelvia::test
{

class TablesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tablesThatCannotBeListed_data() { AddFailures(kListFailures); }
    void tablesThatCannotBeListed();
    void deleteATable_data();
    void deleteATable();
    void saveATable_data() { AddFailures(kWriteFailures); }
    void saveATable();
    void openATable_data() { AddFailures(kReadFailures); }
    void openATable();
    void activateATable_data() { AddFailures(kWriteFailures); }
    void activateATable();
};

void TablesTest::tablesThatCannotBeListed()
{
    QFETCH(Failure, failure);
    TableDesk desk;
    desk.Start();
    desk.script.Expect(ReportOf({"prova", "Load - ERRORE : "}, failure));
    {
        const FaultyDisk disk(NativeOf(desk), {failure.call, 1, failure.reason, "/prova", {}});
        desk.OpenList();
        VERIFY_SCRIPT(desk.script);
        QVERIFY(disk.Struck());
    }
    QCOMPARE(desk.Entries(), QByteArrayList());
    desk.LeaveList();
    desk.OpenList();
    QCOMPARE(desk.Entries().size(), 2);
    VERIFY_SCRIPT(desk.script);
}

void TablesTest::deleteATable_data()
{
    constexpr Failure failures[] = {
        {"no permission", Call::Delete, EACCES, "75 Errore di accesso al file o alla cartella"},
        {"in use", Call::Delete, EBUSY, "70 Autorizzazione negata"},
        {"gone", Call::Delete, ENOENT, "53 File non trovato"},
        {"device", Call::Delete, EIO, "57 Errore della periferica"},
    };
    AddFailures(failures);
}

void TablesTest::deleteATable()
{
    QFETCH(Failure, failure);
    TableDesk desk;
    desk.Start();
    desk.OpenList();
    const ExpectedBox question = {QStringLiteral(" CANCELLARE LA TABELLA Base 10 km.tab ?"), QMessageBox::Information,
                                  QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes};
    desk.Select(0);
    desk.script.Expect(question);
    desk.script.Expect(ReportOf({"Base 10 km.tab", "cmdCancellaTab - ERRORE : "}, failure));
    const FaultyDisk disk(NativeOf(desk), {failure.call, 1, failure.reason, "Base 10 km.tab", {}});
    hand::Click(*desk.List()->cmdCancellaTab);
    VERIFY_SCRIPT(desk.script);
    QVERIFY(disk.Struck());
    QVERIFY(desk.folder.Exists(QStringLiteral("prova/Base 10 km.tab")));
    QCOMPARE(desk.Entries().size(), 2);
    desk.script.Expect(question);
    hand::Click(*desk.List()->cmdCancellaTab);
    VERIFY_SCRIPT(desk.script);
    QVERIFY(!desk.folder.Exists(QStringLiteral("prova/Base 10 km.tab")));
    QCOMPARE(desk.Entries(), QByteArrayList{"Mezza maratona.tab"});
}

void TablesTest::saveATable()
{
    QFETCH(Failure, failure);
    TableDesk desk;
    desk.StartNew();
    desk.script.Expect(desk.SaveTableDialog({}, QStringLiteral("nuova")));
    desk.script.Expect(ReportOf({"nuova.tab", "ERRORE : "}, failure));
    const FaultyDisk disk(NativeOf(desk), {failure.call, 1, failure.reason, "nuova.tab", {}});
    hand::Click(*desk.Editor()->cmdSalva);
    VERIFY_SCRIPT(desk.script);
    QVERIFY(disk.Struck());
    QVERIFY(Module1::FlagTabellaSalvata == 0);
    desk.script.Expect(desk.SaveTableDialog(QStringLiteral("nuova.tab"), QStringLiteral("altra")));
    hand::Click(*desk.Editor()->cmdSalva);
    VERIFY_SCRIPT(desk.script);
    QCOMPARE(desk.folder.Read(QStringLiteral("prova/altra.tab")).count('\n'), 466);
}

void TablesTest::openATable()
{
    QFETCH(Failure, failure);
    TableDesk desk;
    desk.Start();
    desk.OpenList();
    const bool reported = *failure.report != '\0';
    if (reported) {
        desk.script.Expect(ReportOf({"Base 10 km.tab", "ERRORE : "}, failure));
    }
    const FaultyDisk disk(NativeOf(desk), {failure.call, 1, failure.reason, "Base 10 km.tab", {}});
    desk.OpenTable("Base 10 km.tab");
    VERIFY_SCRIPT(desk.script);
    QVERIFY(disk.Struck());
    QCOMPARE(desk.Row(1), QByteArray(reported ? "|||||||||||||" : "6|||34||5|40||Media|Strada||||"));
}

void TablesTest::activateATable()
{
    QFETCH(Failure, failure);
    TableDesk desk;
    desk.Start();
    desk.OpenList();
    desk.OpenTable("Base 10 km.tab");
    hand::Click(*desk.Editor()->cmdOK);
    desk.script.Expect(ReportOf({"nometab", "ERRORE : "}, failure));
    const FaultyDisk disk(NativeOf(desk), {failure.call, 1, failure.reason, "nometab", {}});
    hand::Click(*desk.Editor()->cmdAttiva);
    VERIFY_SCRIPT(desk.script);
    QVERIFY(disk.Struck());
    QCOMPARE(desk.Caption("lblTabNomeFile"), QStringLiteral("Base 10 km"));
    hand::Click(*desk.Editor()->cmdDisattiva);
    VERIFY_SCRIPT(desk.script);
    QCOMPARE(desk.folder.Read(QStringLiteral("prova/nometab")), QByteArray("\"\"\r\n"));
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::TablesTest)
#include "TablesTest.moc"
