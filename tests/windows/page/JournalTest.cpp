// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What is entered on the page and not saved is in the journal.
#include "diary/Journal.h"

#include "core/Messages.h"
#include "diary/CalendarModel.h"
#include "diary/UnsavedRecords.h"
#include "support/Bytes.h"
#include "support/EntryPage.h"
#include "support/WindowTest.h"
#include "toolkit/SessionEnd.h"
#include "windows/routes/FrmDesPercorso.h"

#include <QDir>

#include <csignal>

namespace zelvia::test
{
namespace
{

/// A page whose changes are noted; each starts with an empty journal.
class NotedPage : public EntryPage
{
public:
    NotedPage()
    {
        QDir(Folder()).removeRecursively();
        Journal::Instance().Begin();
        Start();
    }
    ~NotedPage() { Journal::Instance().End(); }

    static QString Folder() { return QString::fromStdString(JournalFile::Folder().string()); }
    static int Files() { return static_cast<int>(QDir(Folder()).entryList(QDir::Files).size()); }

    /// What the journal on the disk holds, a line for each field.
    static QStringList Noted()
    {
        QStringList lines;
        for (const QString& name : QDir(Folder()).entryList(QDir::Files)) {
            const JournalContent content = ReadJournal(ReadWhole((Folder() + QLatin1Char('/') + name).toStdString()));
            for (const JournalDiary& diary : content.diaries) {
                for (const auto& [key, change] : diary.changes) {
                    for (const ChangedField& field : FieldsOf({key, change.before, change.after})) {
                        lines << QString::fromStdString(field.date + " " + field.name + " " + field.before + ">" +
                                                        field.after);
                    }
                }
            }
        }
        return lines;
    }
};

const QStringList kWeight = {QStringLiteral("2026-05-20 Peso >1")};

/// The weight is entered and its field closed.
void EnterWeight(const NotedPage& page)
{
    page.Open(*page->lblImmisPeso, Way::Enter);
    hand::Key(Qt::Key_Up);
    hand::Key(Qt::Key_Escape);
}

} // namespace

class JournalTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ADayEntered();
    void ADayOnlyLookedAt();
    void ANoteBeingWritten();
    void ATextThatIsNew();
    void Saved();
    void SavedUnderAnotherName();
    void BlankedDay();
    void RefusedToSave();
    void ARouteDescribed();
    void ExitSaysNothing();
    void SessionEnds_data();
    void SessionEnds();
    void SessionEndsWithRacesNotSaved();
    void SessionEndsInABox();
};

void JournalTest::ADayEntered()
{
    const NotedPage page;
    EnterWeight(page);
    QTRY_COMPARE(NotedPage::Noted(), kWeight);
    // And stays so when the page is turned.
    hand::Key(Qt::Key_PageDown);
    QTRY_VERIFY(Module1::GiornoCorrente == 141);
    QCOMPARE(NotedPage::Noted(), kWeight);
}

void JournalTest::ADayOnlyLookedAt()
{
    const NotedPage page;
    hand::Key(Qt::Key_PageDown);
    hand::Key(Qt::Key_PageDown);
    QTRY_VERIFY(Module1::GiornoCorrente == 142);
    hand::Key(Qt::Key_PageUp);
    QTRY_VERIFY(Module1::GiornoCorrente == 141);
    QCOMPARE(NotedPage::Files(), 0);
}

/// The program may be killed before the line is closed.
void JournalTest::ANoteBeingWritten()
{
    const NotedPage page;
    hand::Click(*page->notes[3].lbl);
    QTRY_VERIFY(page->notes[3].txt->hasFocus());
    hand::Type(QStringLiteral("Bosco"));
    QCOMPARE(NotedPage::Noted(), QStringList(QStringLiteral("2026-05-20 Note, riga 1 >Bosco")));
    hand::Key(Qt::Key_Backspace);
    QCOMPARE(NotedPage::Noted(), QStringList(QStringLiteral("2026-05-20 Note, riga 1 >Bosc")));
    hand::Key(Qt::Key_Backspace);
    hand::Key(Qt::Key_Backspace);
    hand::Key(Qt::Key_Backspace);
    hand::Key(Qt::Key_Backspace);
    QCOMPARE(NotedPage::Noted(), QStringList());
}

/// A text that its list does not hold changes the list too.
void JournalTest::ATextThatIsNew()
{
    const NotedPage page;
    page.Open(2);
    EntryPage::TypeOver(*page.Field(2).txt, QStringLiteral("Delta"));
    QCOMPARE(NotedPage::Files(), 0);
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(NotedPage::Noted(), QStringList({QStringLiteral("2026-05-20 Lunghezza >Delta"),
                                                  QStringLiteral(" lista Lunghezza >Delta")}));
}

void JournalTest::Saved()
{
    const NotedPage page;
    EnterWeight(page);
    QTRY_COMPARE(NotedPage::Noted(), kWeight);
    hand::Key(Qt::Key_S, Qt::ControlModifier);
    QTRY_VERIFY(Module1::FileModificato == 0);
    QTRY_COMPARE(NotedPage::Files(), 0);
}

void JournalTest::SavedUnderAnotherName()
{
    NotedPage page;
    EnterWeight(page);
    QTRY_COMPARE(NotedPage::Noted(), kWeight);
    page.script.Expect(page.SaveDialog(QStringLiteral("prova.zlv"), QStringLiteral("copia")));
    page.Menu("mnuFile", Qt::Key_V);
    QCOMPARE(page.script.Problems(), QString());
    QCOMPARE(NotedPage::Files(), 0);
}

void JournalTest::BlankedDay()
{
    NotedPage page;
    EnterWeight(page);
    hand::Key(Qt::Key_S, Qt::ControlModifier);
    QTRY_VERIFY(Module1::FileModificato == 0);
    page.script.Expect(Messages::kBlankDay, QMessageBox::Ok);
    page.TakeEntry("mnuOpzioni", "mnuAzzeraGiorno");
    QCOMPARE(page.script.Problems(), QString());
    QTRY_COMPARE(NotedPage::Noted(), QStringList(QStringLiteral("2026-05-20 Peso 1>")));
}

/// A user who was asked and said no is not asked again.
void JournalTest::RefusedToSave()
{
    NotedPage page;
    EnterWeight(page);
    QTRY_COMPARE(NotedPage::Noted(), kWeight);
    page.script.Expect(Messages::kSaveDiary, QMessageBox::No);
    page.script.Expect(page.OpenDialog(QStringLiteral("prova.zlv"), QStringLiteral("prova.zlv")));
    page.Menu("mnuFile", Qt::Key_A);
    QCOMPARE(page.script.Problems(), QString());
    QTRY_VERIFY(page.Day().Peso == 0);
    QCOMPARE(NotedPage::Files(), 0);
}

void JournalTest::ARouteDescribed()
{
    const NotedPage page;
    page.Open(1);
    EntryPage::TypeOver(*page.Field(1).txt, QStringLiteral("Delta"));
    hand::Key(Qt::Key_Return);
    QTRY_VERIFY(page.RouteWindow() != nullptr);
    EntryPage::AwaitFront(*page.RouteWindow());
    hand::Click(*page.RouteWindow()->txtKm[1]);
    EntryPage::TypeOver(*page.RouteWindow()->txtKm[1], QStringLiteral("7"));
    page.CloseRouteWindow();
    QTRY_VERIFY(NotedPage::Noted().contains(QStringLiteral(" percorso «Delta», lunghezza >7000")));
    QVERIFY(NotedPage::Noted().contains(QStringLiteral(" percorso «Delta», tratto 1, km >7")));
    QVERIFY(NotedPage::Noted().contains(QStringLiteral("2026-05-20 Km >7")));
}

void JournalTest::ExitSaysNothing()
{
    NotedPage page;
    EnterWeight(page);
    page->Unload();
    QTRY_VERIFY(page.Gone());
    QCOMPARE(page.script.Problems(), QString());
    QCOMPARE(NotedPage::Noted(), kWeight);
}

void JournalTest::SessionEnds_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGHUP") << SIGHUP;
    QTest::newRow("the desktop's") << 0;
}

/// A field that is open is closed first, so that its text counts.
void JournalTest::SessionEnds()
{
    QFETCH(int, signal);
    NotedPage page;
    SessionEnd end(page.Page());
    page.Open(2);
    EntryPage::TypeOver(*page.Field(2).txt, QStringLiteral("Beta"));
    if (signal != 0) {
        QCOMPARE(std::raise(signal), 0);
    } else {
        end.End();
    }
    QTRY_VERIFY(page.Gone());
    QCOMPARE(page.script.Problems(), QString());
    QCOMPARE(NotedPage::Noted(), QStringList(QStringLiteral("2026-05-20 Lunghezza >Beta")));
}

void JournalTest::SessionEndsWithRacesNotSaved()
{
    NotedPage page;
    const SessionEnd end(page.Page());
    page->mnuGare_Click();
    QTRY_VERIFY(qobject_cast<frmCalendario*>(QApplication::activeWindow()) != nullptr);
    // Like the close box of the page it leaves open a window that won't close; here no end of the program follows.
    const std::unique_ptr<frmCalendario> races(qobject_cast<frmCalendario*>(QApplication::activeWindow()));
    EntryPage::AwaitFront(*races);
    hand::Click(*races->Box(CalendarGrid::RaceColumn::Gara, 1));
    EntryPage::TypeOver(*races->Box(CalendarGrid::RaceColumn::Gara, 1), QStringLiteral("Maratona"));
    std::raise(SIGTERM);
    QTRY_VERIFY(page.Gone());
    QCOMPARE(page.script.Problems(), QString());
    QVERIFY2(NotedPage::Noted()
                 .join(QLatin1Char('|'))
                 .contains(QStringLiteral("2026-02-08 gara 1, gara Corrida della Candelora>Maratona")),
             qPrintable(NotedPage::Noted().join(QLatin1Char('|'))));
}

/// A question that is up does not hold up a logout.
void JournalTest::SessionEndsInABox()
{
    NotedPage page;
    const SessionEnd end(page.Page());
    EnterWeight(page);
    page.script.Expect(Messages::kBlankDay, QMessageBox::Cancel);
    page.script.Meanwhile([] { std::raise(SIGTERM); });
    page.TakeEntry("mnuOpzioni", "mnuAzzeraGiorno");
    QCOMPARE(page.script.Problems(), QString());
    QTRY_VERIFY(page.Gone());
    QCOMPARE(NotedPage::Noted(), kWeight);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::JournalTest)
#include "JournalTest.moc"
