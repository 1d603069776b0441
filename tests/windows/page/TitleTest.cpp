// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The title of the page: the diary, the day, and the mark of what is not saved.
#include "core/Messages.h"
#include "support/EntryPage.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
namespace
{

/// The title without Qt's mark, which has to be at its end.
QString Title(const DayPage& page)
{
    const QString title = page->windowTitle();
    return title.endsWith(QStringLiteral("[*]")) ? title.chopped(3) : QStringLiteral("no mark: ") + title;
}

} // namespace

class TitleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsDiaryAndDay();
    void withoutADiarysName();
    void aMarkInAName();
    void followsTheDay();
    void marksAClosedField();
    void marksANumber();
    void marksANote();
    void marksACommand();
    void savingTakesTheMarkAway();
    void anotherDiary();
};

void TitleTest::tellsDiaryAndDay()
{
    DayPage page(CalendarDate(2026, 5, 17));
    page.Start();
    QCOMPARE(Title(page), QStringLiteral("Zelvia \u2013 prova \u2013 17 maggio 2026"));
    QVERIFY(!page->isWindowModified());
}

void TitleTest::withoutADiarysName()
{
    DayPage page(CalendarDate(2026, 5, 1));
    page.Start();
    page->lblNomeFile->SetCaption({});
    page.Up(*page->upGiorno);
    QCOMPARE(Title(page), QStringLiteral("Zelvia \u2013 2 maggio 2026"));
}

void TitleTest::aMarkInAName()
{
    DayPage page;
    page.Start();
    page->lblNomeFile->SetCaption("a[*]b");
    page.Up(*page->upGiorno);
    // Doubled in the title, it means itself.
    QCOMPARE(Title(page), QStringLiteral("Zelvia \u2013 a[*][*]b \u2013 21 maggio 2026"));
}

void TitleTest::followsTheDay()
{
    DayPage page(CalendarDate(2026, 1, 31));
    page.Start();
    page.Up(*page->upGiorno);
    QCOMPARE(Title(page), QStringLiteral("Zelvia \u2013 prova \u2013 1 febbraio 2026"));
    page.Up(*page->upMese);
    QCOMPARE(Title(page), QStringLiteral("Zelvia \u2013 prova \u2013 1 marzo 2026"));
    page.Down(*page->upGiorno);
    QCOMPARE(Title(page), QStringLiteral("Zelvia \u2013 prova \u2013 28 febbraio 2026"));
    QVERIFY(!page->isWindowModified());
}

void TitleTest::marksAClosedField()
{
    EntryPage page;
    page.Start();
    constexpr int weather = 7;
    page.Open(weather);
    page.TypeOver(*page.Field(weather).txt, EntryPage::Entries(weather).constFirst());
    QVERIFY(!page->isWindowModified());
    hand::Key(Qt::Key_Return);
    QTRY_VERIFY(!page.IsOpen(weather));
    QTRY_VERIFY(page->isWindowModified());
    VERIFY_SCRIPT(page.script);
}

void TitleTest::marksANumber()
{
    DayPage page;
    page.Start();
    page.Click(*page->lblImmisCorridori);
    page.Up(*page->upCorridori);
    QVERIFY(page->isWindowModified());
    // Back at what is saved, nothing is left to save.
    page.Down(*page->upCorridori);
    QVERIFY(!page->isWindowModified());
}

void TitleTest::marksANote()
{
    EntryPage page;
    page.Start();
    page.Open(*page->notes[3].lbl);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtNote3"));
    hand::Type(QStringLiteral("x"));
    hand::Key(Qt::Key_Tab);
    QTRY_VERIFY(page->isWindowModified());
    VERIFY_SCRIPT(page.script);
}

void TitleTest::marksACommand()
{
    DayPage page;
    page.Start();
    page.script.Expect(Messages::kBlankDay);
    page.Menu("mnuOpzioni", Qt::Key_Z);
    VERIFY_SCRIPT(page.script);
    QVERIFY(page->isWindowModified());
    // Not a matter of the day shown.
    page.Up(*page->upGiorno);
    QVERIFY(page->isWindowModified());
}

void TitleTest::savingTakesTheMarkAway()
{
    DayPage page;
    page.Start();
    page.Click(*page->lblImmisCorridori);
    page.Up(*page->upCorridori);
    QVERIFY(page->isWindowModified());
    page.Menu("mnuFile", Qt::Key_S);
    VERIFY_SCRIPT(page.script);
    QVERIFY(!page->isWindowModified());
    QCOMPARE(Title(page), QStringLiteral("Zelvia \u2013 prova \u2013 20 maggio 2026"));
}

void TitleTest::anotherDiary()
{
    DayPage page;
    page.Start();
    page.Up(*page->upGiorno);
    page.script.Expect(page.NewDialog(QStringLiteral("Nuovo anno")));
    page.Menu("mnuFile", Qt::Key_N);
    TRY_SCRIPT(page.script);
    QCOMPARE(Title(page), QStringLiteral("Zelvia \u2013 Nuovo anno \u2013 20 maggio 2026"));
    page.script.Expect(page.OpenDialog(QStringLiteral("Nuovo anno.zlv"), QStringLiteral("prova.zlv")));
    page.Menu("mnuFile", Qt::Key_A);
    TRY_SCRIPT(page.script);
    QCOMPARE(Title(page), QStringLiteral("Zelvia \u2013 prova \u2013 20 maggio 2026"));
}

ZELVIA_WINDOW_TEST(TitleTest)

} // namespace zelvia::test

#include "TitleTest.moc"
