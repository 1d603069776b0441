// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Bad names in the file dialogs.
#include "boxes/BoxHand.h"
#include "support/FileBoxes.h"
#include "support/TableDesk.h"

#include <QClipboard>
#include <QFileDialog>

namespace zelvia::test
{
namespace
{

const QString kPreset = QStringLiteral("prova.zlv");
const QString kBadName = QStringLiteral("52 Nome di file non valido");

// A name takes 255 bytes.
constexpr int kLongest = 255;
constexpr int kSuffix = 4;

QString Long(int characters, QChar character = u'n')
{
    return QString(characters, character);
}

/// Pastes into the box of the dialog that is up and puts back what stood there; what the box held in between.
QString Pasted(const QString& text)
{
    auto* name = QApplication::activeModalWidget()->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    const QString before = name->text();
    QApplication::clipboard()->setText(text);
    name->selectAll();
    name->paste();
    const QString held = name->text();
    name->setText(before);
    return held;
}

void AddNames()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("file");     // Without its suffix, none when it is not written.
    QTest::addColumn<QString>("error");    // Why it is not.
    QTest::addColumn<bool>("inItsWriter"); // Reported by the routine that writes, not by the command.
    const auto row = [](const char* name, const QString& typed, const QString& file, const QString& error = {},
                        bool inItsWriter = false) { QTest::newRow(name) << typed << file << error << inItsWriter; };
    const QString accented = QStringLiteral("Città è già €");
    row("accented letters", accented, accented);
    const QString marks = QStringLiteral("l'anno (2), [a] & 50% #1; x=y+z! ~$@^{}");
    row("marks", marks, marks);
    row("blanks around", QStringLiteral("  Lago  "), QStringLiteral("  Lago  "));
    row("a minus sign", QStringLiteral("-1e9"), QStringLiteral("-1e9"));
    row("outside the set", QStringLiteral("Жλ"), {}, kBadName);
    row("the longest", Long(kLongest - kSuffix), Long(kLongest - kSuffix));
    // The dialog counts characters, the system bytes.
    row("one byte more", Long((kLongest - kSuffix + 1) / 2, u'è'), {}, kBadName, true);
    row("a backslash", QStringLiteral("a\\b"), {}, kNoFolder, true);
}

} // namespace

class FileNameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saveAs_data() { AddNames(); }
    void saveAs();
    void saveTable_data() { AddNames(); }
    void saveTable();
    void megabytes();
    void theDialogTakesNoLongerName();
};

void FileNameTest::saveAs()
{
    QFETCH(QString, typed);
    QFETCH(QString, file);
    QFETCH(QString, error);
    QFETCH(bool, inItsWriter);
    DayPage page;
    page.Start();
    const QStringList before = page.folder.Files(QStringLiteral("ZelviaFile"));
    page.script.Expect(page.SaveDialog(kPreset, typed));
    if (inItsWriter) {
        page.script.Expect(BareReport(error));
    }
    if (error == kNoFolder || (!error.isEmpty() && !inItsWriter)) {
        page.script.Expect(Report(QStringLiteral("mnuFileSaveAs - ERRORE : ") + error));
    }
    page.Menu("mnuFile", Qt::Key_V);
    QTRY_VERIFY2(page.script.Problems().isEmpty(), qPrintable(page.script.Problems()));
    QStringList after = before;
    if (!file.isEmpty()) {
        after << file + QStringLiteral(".zlv");
        QCOMPARE(page.folder.Files(file), FullSet());
    }
    after.sort();
    QCOMPARE(page.folder.Files(QStringLiteral("ZelviaFile")), after);
    // The diary is the one it was, and is saved as ever.
    QCOMPARE(page.Caption("lblNomeFile"), QStringLiteral("prova"));
    page->upKM->SetValue(17);
    page.Up(*page->upGiorno);
    if (inItsWriter) {
        // Saving goes to the name chosen last.
        page.script.Expect(BareReport(error));
    }
    page.Menu("mnuFile", Qt::Key_S);
    QTRY_VERIFY(Module1::FileModificato == 0);
    VERIFY_SCRIPT(page.script);
}

void FileNameTest::saveTable()
{
    QFETCH(QString, typed);
    QFETCH(QString, file);
    QFETCH(QString, error);
    TableDesk desk;
    desk.StartNew();
    const QStringList before = desk.folder.Files(QStringLiteral("prova"));
    desk.Write(desk.Box(TableGrid::Km, 1), QStringLiteral("9"));
    desk.script.Expect(desk.SaveTableDialog({}, typed));
    const bool refused = error == kNoFolder;
    if (refused) {
        // The backslash parts folders: it is none of the diary's. The dialog comes again.
        desk.script.Expect(
            {QStringLiteral(" LA TABELLA NON PUO' ESSERE SALVATA IN UN ALTRA CARTELLA   "), QMessageBox::Critical});
        desk.script.Expect(desk.SaveTableDialog(QStringLiteral("b")));
    } else if (!error.isEmpty()) {
        desk.script.Expect(BareReport(error));
    }
    hand::Click(*desk.Editor()->cmdSalva);
    desk.AwaitBoxes();
    QStringList after = before;
    if (!file.isEmpty()) {
        after << file + QStringLiteral(".tab");
    }
    after.sort();
    QCOMPARE(desk.folder.Files(QStringLiteral("prova")), after);
    QCOMPARE(desk.Held(TableGrid::Km, 1), QByteArray("9"));
    desk.LeaveEditor();
    if (!file.isEmpty()) {
        QStringList entries;
        for (const Text& entry : desk.List()->flbListaTabelle->Items()) {
            entries << ToQString(entry);
        }
        ListBox& list = *desk.List()->flbListaTabelle;
        const int entry = static_cast<int>(entries.indexOf(file + QStringLiteral(".tab")));
        const QRect place = list.visualItemRect(list.item(entry));
        hand::Click(*list.viewport(), {place.left() + 10, place.center().y()});
        QTRY_COMPARE(list.ListIndex(), entry);
        hand::Click(*desk.List()->cmdOK);
        QTRY_VERIFY(desk.Editor() != nullptr);
        QCOMPARE(desk.Held(TableGrid::Km, 1), QByteArray("9"));
    }
    VERIFY_SCRIPT(desk.script);
}

void FileNameTest::megabytes()
{
    DayPage page;
    page.Start();
    constexpr qsizetype many = 5'000'000;
    constexpr qsizetype most = 32767;
    qsizetype held = 0;
    page.script.Expect(page.SaveDialog(kPreset, QStringLiteral("copia")));
    page.script.Meanwhile([&] { held = Pasted(QString(many, u'm')).size(); });
    page.Menu("mnuFile", Qt::Key_V);
    QTRY_VERIFY2(page.script.Problems().isEmpty(), qPrintable(page.script.Problems()));
    QVERIFY(held > 0 && held <= most);
    QVERIFY(page.folder.Exists(QStringLiteral("ZelviaFile/copia.zlv")));
}

void FileNameTest::theDialogTakesNoLongerName()
{
    DayPage page;
    page.Start();
    ExpectedDialog dialog = page.SaveDialog(kPreset, Long(kLongest - kSuffix + 1));
    dialog.takesIt = false;
    page.script.Expect(dialog);
    page.Menu("mnuFile", Qt::Key_V);
    VERIFY_SCRIPT(page.script);
    QCOMPARE(page.Caption("lblNomeFile"), QStringLiteral("prova"));
}

} // namespace zelvia::test

DAY_PAGE_TEST_MAIN(zelvia::test::FileNameTest)
#include "FileNameTest.moc"
