// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The eight lines of notes: opening, running on from line to line, closing.
#include "support/EntryPage.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
namespace
{

const QString kThirty = QStringLiteral("abcdefghijklmnopqrstuvwxyz0123");

QByteArray Box(int line)
{
    return "txtNote" + QByteArray::number(line);
}

/// The lines whose boxes show.
QList<int> Shown(const EntryPage& page)
{
    QList<int> lines;
    for (int line = 3; line <= 10; ++line) {
        if (page->notes[line].txt->isVisible()) {
            lines << line;
        }
    }
    return lines;
}

const QList<int> kAll = {3, 4, 5, 6, 7, 8, 9, 10};

void OpenLine(const EntryPage& page, int line)
{
    page.Open(*page->notes[line].lbl);
    QTRY_COMPARE(EntryPage::Focused(), Box(line));
    QTRY_VERIFY(page->notes[line].txt->hasFocus());
    page->notes[line].txt->end(false);
}

void AddLines()
{
    QTest::addColumn<int>("line");
    for (int line = 3; line <= 10; ++line) {
        QTest::addRow("line %d", line) << line;
    }
}

} // namespace

class NotesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aClickOpensWithTheCaption_data();
    void aClickOpensWithTheCaption();
    void theCaretStandsAtTheEnd_data();
    void theCaretStandsAtTheEnd();
    void leavingTakesTheText_data() { AddLines(); }
    void leavingTakesTheText();
    void enterMovesDownOneLine_data() { AddLines(); }
    void enterMovesDownOneLine();
    void escapeAndAClickHideAll_data();
    void escapeAndAClickHideAll();
    void theCommandShowsAndHidesAll();
    void theCommandKeepsWhatIsBeingTyped();
    void typingRunsOnIntoTheNextLine_data() { AddLines(); }
    void typingRunsOnIntoTheNextLine();
    void theThirtyThirdCharacterGoesToTheNextLine();
    void enterOnAFullLineMovesOnOnce();
    void backspaceIsNotCounted();
    void aLineHolds32Characters();
};

void NotesTest::aClickOpensWithTheCaption_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("way");
    for (int line = 3; line <= 10; ++line) {
        QTest::addRow("line %d by mouse", line) << line << int(Way::Mouse);
        QTest::addRow("line %d by Enter", line) << line << int(Way::Enter);
    }
}

void NotesTest::aClickOpensWithTheCaption()
{
    QFETCH(int, line);
    QFETCH(int, way);
    EntryPage page;
    page.Start();
    QCOMPARE(Shown(page), QList<int>());
    page->notes[line].lbl->SetCaption("sulla riga");
    page->LunghezzaNota = 7;
    page.Open(*page->notes[line].lbl, Way(way));
    QTRY_COMPARE(EntryPage::Focused(), Box(line));
    QCOMPARE(Shown(page), QList<int>{line});
    QCOMPARE(page->notes[line].txt->text(), QStringLiteral("sulla riga"));
    QVERIFY(page->LunghezzaNota == 0);
    QCOMPARE(page.Hands(), 0);
    VERIFY_SCRIPT(page.script);
}

void NotesTest::theCaretStandsAtTheEnd_data()
{
    QTest::addColumn<QString>("way");
    for (const char* way : {"mouse", "Enter", "the line above", "Tab"}) {
        QTest::newRow(way) << QString::fromLatin1(way);
    }
}

void NotesTest::theCaretStandsAtTheEnd()
{
    QFETCH(QString, way);
    EntryPage page;
    page.Start();
    page->notes[5].lbl->SetCaption("vento");
    page->notes[5].txt->SetContent("vento");
    if (way == QLatin1String("the line above")) {
        OpenLine(page, 4);
        hand::Key(Qt::Key_Return);
    } else if (way == QLatin1String("Tab")) {
        page->notes[5].txt->SetVisible(true);
        OpenLine(page, 4);
        hand::Key(Qt::Key_Tab);
    } else {
        page.Open(*page->notes[5].lbl, way == QLatin1String("mouse") ? Way::Mouse : Way::Enter);
    }
    QTRY_COMPARE(EntryPage::Focused(), Box(5));
    QCOMPARE(page->notes[5].txt->selectedText(), QString());
    hand::Type(QStringLiteral(" e sole"));
    QTRY_COMPARE(page->notes[5].txt->text(), QStringLiteral("vento e sole"));
    VERIFY_SCRIPT(page.script);
}

void NotesTest::leavingTakesTheText()
{
    QFETCH(int, line);
    EntryPage page;
    page.Start();
    OpenLine(page, line);
    hand::Type(QStringLiteral("vento"));
    QTRY_COMPARE(page->notes[line].txt->text(), QStringLiteral("vento"));
    // The length before the last key.
    QVERIFY(page->LunghezzaNota == 4);
    QCOMPARE(page->notes[line].lbl->text(), QString());
    page.Open(5);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtTipo"));
    QCOMPARE(Shown(page), QList<int>());
    QCOMPARE(page->notes[line].lbl->text(), QStringLiteral("vento"));
    page->AssegnaCampi();
    QCOMPARE(DayPage::Day().Note[line], Text("vento"));
    VERIFY_SCRIPT(page.script);
}

void NotesTest::enterMovesDownOneLine()
{
    QFETCH(int, line);
    EntryPage page;
    page.Start();
    OpenLine(page, line);
    hand::Type(QStringLiteral("sole"));
    if (line < 10) {
        page->notes[line + 1].lbl->SetCaption("sotto");
    }
    hand::Key(Qt::Key_Return);
    if (line < 10) {
        QTRY_COMPARE(EntryPage::Focused(), Box(line + 1));
        QCOMPARE(Shown(page), QList<int>{line + 1});
        QCOMPARE(page->notes[line + 1].txt->text(), QStringLiteral("sotto"));
        QVERIFY(page->LunghezzaNota == 0);
    } else {
        QTRY_COMPARE(EntryPage::Focused(), QByteArray("pctGiornoAnno"));
        QCOMPARE(Shown(page), QList<int>());
        QVERIFY(page->NoteAperte == 0);
    }
    QCOMPARE(page->notes[line].lbl->text(), QStringLiteral("sole"));
    VERIFY_SCRIPT(page.script);
}

void NotesTest::escapeAndAClickHideAll_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<bool>("escape");
    QTest::addColumn<bool>("all"); // all boxes show, by the command
    for (int line = 3; line <= 10; ++line) {
        QTest::addRow("Escape in line %d", line) << line << true << false;
        QTest::addRow("Escape in line %d of all", line) << line << true << true;
        QTest::addRow("click in line %d", line) << line << false << false;
        QTest::addRow("click in line %d of all", line) << line << false << true;
    }
}

void NotesTest::escapeAndAClickHideAll()
{
    QFETCH(int, line);
    QFETCH(bool, escape);
    QFETCH(bool, all);
    EntryPage page;
    page.Start();
    OpenLine(page, line);
    if (all) {
        page->mnuNote_Click();
        QCOMPARE(Shown(page), kAll);
        QVERIFY(page->NoteAperte == 1);
    }
    hand::Type(QStringLiteral("neve"));
    if (escape) {
        hand::Key(Qt::Key_Escape);
    } else {
        hand::Click(*page->notes[line].txt);
    }
    QTRY_COMPARE(Shown(page), QList<int>());
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("pctGiornoAnno"));
    QVERIFY(page->NoteAperte == 0);
    QCOMPARE(page->notes[line].lbl->text(), QStringLiteral("neve"));
    VERIFY_SCRIPT(page.script);
}

void NotesTest::theCommandShowsAndHidesAll()
{
    EntryPage page;
    page.Start();
    QVERIFY(page->NoteAperte == 0);
    page.Menu("mnuOpzioni", Qt::Key_N);
    QCOMPARE(Shown(page), kAll);
    QVERIFY(page->NoteAperte == 1);
    page.Menu("mnuOpzioni", Qt::Key_N);
    QCOMPARE(Shown(page), QList<int>());
    QVERIFY(page->NoteAperte == 0);
    page->DispatchCommand("Note");
    QCOMPARE(Shown(page), kAll);
    page->NoteAperte = 2;
    page->DispatchCommand("Note");
    QCOMPARE(Shown(page), kAll);
    QVERIFY(page->NoteAperte == 2);
    VERIFY_SCRIPT(page.script);
}

void NotesTest::theCommandKeepsWhatIsBeingTyped()
{
    EntryPage page;
    page.Start();
    page.Menu("mnuOpzioni", Qt::Key_N);
    page.TakeFront();
    page->notes[6].txt->SetFocus();
    QTRY_VERIFY(page->notes[6].txt->hasFocus());
    hand::Type(QStringLiteral("pioggia"));
    page.Menu("mnuOpzioni", Qt::Key_N);
    QCOMPARE(Shown(page), QList<int>());
    QCOMPARE(page.Caption("lblNote6"), QStringLiteral("pioggia"));
    VERIFY_SCRIPT(page.script);
}

void NotesTest::typingRunsOnIntoTheNextLine()
{
    QFETCH(int, line);
    EntryPage page;
    page.Start();
    if (line < 10) {
        page->notes[line + 1].txt->SetContent("gia'");
    }
    OpenLine(page, line);
    hand::Type(kThirty + QLatin1Char('x'));
    QTRY_COMPARE(page->notes[line].txt->text().size(), 31);
    QVERIFY(page->LunghezzaNota == 30);
    QCOMPARE(Shown(page), QList<int>{line});
    // The thirty-second character stays in its line and moves on.
    hand::Type(QStringLiteral("y"));
    QTRY_COMPARE(page->notes[line].lbl->text(), kThirty + QStringLiteral("xy"));
    QVERIFY(page->LunghezzaNota == 31);
    if (line < 10) {
        QTRY_COMPARE(EntryPage::Focused(), Box(line + 1));
        QCOMPARE(Shown(page), QList<int>{line + 1});
        QCOMPARE(page->notes[line + 1].txt->text(), QStringLiteral("gia'"));
    } else {
        QTRY_COMPARE(EntryPage::Focused(), QByteArray("pctGiornoAnno"));
        QCOMPARE(Shown(page), QList<int>());
    }
    page->AssegnaCampi();
    QCOMPARE(DayPage::Day().Note[line], FromQString(kThirty + QStringLiteral("xy")));
    VERIFY_SCRIPT(page.script);
}

void NotesTest::theThirtyThirdCharacterGoesToTheNextLine()
{
    EntryPage page;
    page.Start();
    OpenLine(page, 3);
    hand::Type(kThirty + kThirty + QStringLiteral("456789"));
    QTRY_COMPARE(page->notes[5].txt->text(), QStringLiteral("89"));
    QCOMPARE(page.Caption("lblNote3"), kThirty + QStringLiteral("ab"));
    QCOMPARE(page.Caption("lblNote4"), kThirty.mid(2) + QStringLiteral("4567"));
    QVERIFY(page->notes[5].txt->hasFocus());
    VERIFY_SCRIPT(page.script);
}

void NotesTest::enterOnAFullLineMovesOnOnce()
{
    EntryPage page;
    page.Start();
    OpenLine(page, 3);
    hand::Type(kThirty + QLatin1Char('x'));
    QTRY_COMPARE(page->notes[3].txt->text().size(), 31);
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(EntryPage::Focused(), Box(4));
    QCOMPARE(Shown(page), QList<int>{4});
    QCOMPARE(page.Caption("lblNote3"), kThirty + QLatin1Char('x'));
    VERIFY_SCRIPT(page.script);
}

void NotesTest::backspaceIsNotCounted()
{
    EntryPage page;
    page.Start();
    OpenLine(page, 3);
    hand::Type(kThirty + QLatin1Char('x'));
    QTRY_COMPARE(page->notes[3].txt->text().size(), 31);
    hand::Key(Qt::Key_Backspace);
    QTRY_COMPARE(page->notes[3].txt->text(), kThirty);
    QVERIFY(page->LunghezzaNota == 30);
    QCOMPARE(Shown(page), QList<int>{3});
    VERIFY_SCRIPT(page.script);
}

void NotesTest::aLineHolds32Characters()
{
    EntryPage page;
    page.Start();
    const QString full = kThirty + QStringLiteral("xy");
    page->notes[3].lbl->SetCaption(FromQString(full));
    OpenLine(page, 3);
    hand::Type(QStringLiteral("z"));
    QTRY_VERIFY(page->LunghezzaNota == 32);
    QCOMPARE(page->notes[3].txt->text(), full);
    QCOMPARE(Shown(page), QList<int>{3});
    hand::Key(Qt::Key_Escape);
    QTRY_COMPARE(page.Caption("lblNote3"), full);
    VERIFY_SCRIPT(page.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::NotesTest)
#include "NotesTest.moc"
