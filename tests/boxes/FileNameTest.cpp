// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Bad names in the file dialogs.
#include "boxes/BoxHand.h"
#include "support/TableDesk.h"
#include "support/WindowTest.h"

#include <QClipboard>
#include <QFileDialog>

namespace zelvia::test
{
namespace
{

const QString kPreset = QStringLiteral("prova.zlv");

// A name takes 255 bytes.
constexpr int kLongest = 255;
constexpr int kSuffix = 4;

QString Long(int characters, QChar character = u'n')
{
    return QString(characters, character);
}

/// Pastes into the box of the dialog that is up and restores what was there; returns what the box held in between.
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
    QTest::addColumn<QString>("file");    // Without its suffix, none when it is refused.
    QTest::addColumn<QString>("refusal"); // What the dialog says then.
    const auto row = [](const char* name, const QString& typed, const QString& file, const QString& refusal = {}) {
        QTest::newRow(name) << typed << file << refusal;
    };
    const QString accented = QStringLiteral("Città è già €");
    row("accented letters", accented, accented);
    const QString marks = QStringLiteral("l'anno (2), [a] & 50% #1; x=y+z! ~$@^{}");
    row("marks", marks, marks);
    row("blanks around", QStringLiteral("  Lago  "), QStringLiteral("  Lago  "));
    row("a minus sign", QStringLiteral("-1e9"), QStringLiteral("-1e9"));
    const QString characters = QStringLiteral(" IL NOME CONTIENE CARATTERI NON AMMESSI   ");
    row("outside the set", QStringLiteral("Жλ"), {}, characters);
    row("a backslash", QStringLiteral("a\\b"), {}, characters);
    row("a quote", QStringLiteral("a\"b\""), {}, characters);
    row("hidden", QStringLiteral(".x"), {}, QStringLiteral(" IL NOME NON PUO' COMINCIARE CON UN PUNTO   "));
    row("the longest", Long(kLongest - kSuffix), Long(kLongest - kSuffix));
    const QString longer = QStringLiteral(" IL NOME E' TROPPO LUNGO   ");
    row("a character more", Long(kLongest - kSuffix + 1), {}, longer);
    row("a byte more", Long((kLongest - kSuffix + 1) / 2, u'è'), {}, longer);
    row("a folder that is not there", QStringLiteral("manca/x"), {}, QStringLiteral(" LA CARTELLA NON ESISTE   "));
}

/// A name for the dialog; one that is refused is given up.
void Choose(BoxScript& script, const ExpectedDialog& dialog, const QString& refusal)
{
    script.Expect(dialog);
    if (refusal.isEmpty()) {
        return;
    }
    script.Expect({refusal, QMessageBox::Critical});
    ExpectedDialog again = dialog;
    again.preset = dialog.choose;
    again.choose = QString();
    script.Expect(again);
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
};

void FileNameTest::saveAs()
{
    QFETCH(QString, typed);
    QFETCH(QString, file);
    QFETCH(QString, refusal);
    DayPage page;
    page.Start();
    const QStringList before = page.folder.Files();
    Choose(page.script, page.SaveDialog(kPreset, typed), refusal);
    page.Menu("mnuFile", Qt::Key_V);
    TRY_SCRIPT(page.script);
    QStringList after = before;
    if (!file.isEmpty()) {
        after << QStringLiteral("ZelviaFile/") + file + QStringLiteral(".zlv");
        for (const QString& companion : FullSet()) {
            after << file + QLatin1Char('/') + companion;
        }
    }
    after.sort();
    QCOMPARE(page.folder.Files(), after);
    // The diary is the one it was, and is saved as ever.
    QCOMPARE(page.Caption("lblNomeFile"), QStringLiteral("prova"));
    page->upKM->SetValue(17);
    page.Up(*page->upGiorno);
    page.Menu("mnuFile", Qt::Key_S);
    QTRY_VERIFY(Module1::FileModificato == 0);
    VERIFY_SCRIPT(page.script);
}

void FileNameTest::saveTable()
{
    QFETCH(QString, typed);
    QFETCH(QString, file);
    QFETCH(QString, refusal);
    TableDesk desk;
    desk.StartNew();
    const QStringList before = desk.folder.Files(QStringLiteral("prova"));
    desk.Write(desk.Box(TableGrid::Km, 1), QStringLiteral("9"));
    Choose(desk.script, desk.SaveTableDialog({}, typed), refusal);
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
    TRY_SCRIPT(page.script);
    QVERIFY(held > 0 && held <= most);
    QVERIFY(page.folder.Exists(QStringLiteral("ZelviaFile/copia.zlv")));
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::FileNameTest)
#include "FileNameTest.moc"
