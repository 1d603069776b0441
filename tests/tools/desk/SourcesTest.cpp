// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The pages of the window that take in what was not saved, or what another computer has written, and the book.
#include "core/Conversions.h"
#include "core/Files.h"
#include "diary/Journal.h"
#include "diary/Module1.h"
#include "diary/SelectionLists.h"
#include "support/DiaryBytes.h"
#include "support/Hand.h"
#include "support/WindowTest.h"
#include "tools/desk/OutcomeTable.h"
#include "tools/desk/WindowDesk.h"

#include <QLineEdit>
#include <QPushButton>

#include <filesystem>

namespace fs = std::filesystem;
using namespace zelvia::Module1;

namespace zelvia::test
{

class SourcesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingUnsaved();
    void oneDayOfTwo();
    void aListAlone();
    void everything();
    void onlyWhatWasShown_data();
    void onlyWhatWasShown();
    void forgetting();
    void twoComputers();
    void bothHaveChanged();
    void theBook();
};

namespace
{

constexpr char kSample[] = "ZelviaFile/prova.zlv";

/// Enters weights on two blank days, 22 and 23 May 2026 unless another first one is said, and a length into its list,
/// in a program that ends unsaved.
void EnterUnsaved(const ToolsDesk& desk, int firstDay = 142)
{
    SetProgramFolder(SystemPath(desk.Native()));
    AzzeraStato();
    AzzeraAnno();
    session.NomeFile = SystemPath(desk.Native(kSample));
    CartellaDiario = SystemPath(desk.Native("prova"));
    CaricaDiario(session.NomeFile);
    for (const SelectionList list : kFiledLists) {
        ReadEntries(ListPath(list), EntriesOf(list));
    }
    Journal::Instance().Begin();
    Journal::Instance().Opened();
    for (const int slot : {firstDay, firstDay + 1}) {
        GiornoCorrente = slot;
        Journal::Instance().Look(Giorni[slot]);
        Giorni[slot].Peso = 70 + slot - firstDay;
        Journal::Instance().Look(Giorni[slot]);
    }
    EntriesOf(SelectionList::Lunghezza).push_back("Infinito");
    Journal::Instance().Look(Giorni[firstDay + 1]);
    Journal::Instance().End();
}

/// The first cells of the groups.
QStringList Groups(const OutcomeTable& table)
{
    QStringList cells;
    for (int i = 0; i < table.topLevelItemCount(); ++i) {
        cells << table.topLevelItem(i)->text(0);
    }
    return cells;
}

/// Whether the list in the folder has the new length.
bool HasInfinite(const ToolsDesk& desk)
{
    return desk.Read("prova/Lunghezza.lsx").find("Infinito") != Text::npos;
}

QByteArray Weight(const ToolsDesk& desk, int slot)
{
    return DiaryBytes(QByteArray::fromStdString(desk.Read(kSample))).Line(slot, DiaryBytes::Weight);
}

/// Ticks or unticks the row of a table by the keys.
void Toggle(OutcomeTable& table, int row)
{
    table.setFocus();
    table.setCurrentItem(table.topLevelItem(row));
    hand::Key(Qt::Key_Space);
}

const QStringList kUnsaved = {QStringLiteral("ven 22 mag 2026"), QStringLiteral("sab 23 mag 2026"),
                              QStringLiteral("liste")};

} // namespace

void SourcesTest::nothingUnsaved()
{
    WindowDesk desk;
    desk.Open("giornale");
    QTRY_COMPARE_WITH_TIMEOUT(desk.Notes(), QStringLiteral("Non c'è niente da riprendere: tutto è stato salvato."),
                              kDeskPatience);
    QVERIFY(!desk.MayRun());
}

void SourcesTest::oneDayOfTwo()
{
    WindowDesk desk;
    EnterUnsaved(desk.tools);
    const QByteArray before = desk.tools.Everything();
    desk.Open("giornale");
    QTRY_COMPARE_WITH_TIMEOUT(Groups(desk.Table()), kUnsaved, kDeskPatience);
    QTRY_VERIFY_WITH_TIMEOUT(desk.MayRun(), kDeskPatience);
    Toggle(desk.Table(), 0);
    Toggle(desk.Table(), 2);
    QCOMPARE(desk.Table().Ticked(), QStringList{QStringLiteral("2026-05-23")});
    QCOMPARE(desk.tools.Everything(), before);
    hand::Key(Qt::Key_E, Qt::AltModifier);
    QTRY_COMPARE_WITH_TIMEOUT(Groups(desk.Table()), (QStringList{kUnsaved[0], kUnsaved[2]}), kDeskPatience);
    QCOMPARE(Weight(desk.tools, 142), QByteArray("0"));
    QCOMPARE(Weight(desk.tools, 143), QByteArray("71"));
    QVERIFY(!HasInfinite(desk.tools));
    QCOMPARE(desk.tools.Copies(), 1);
}

void SourcesTest::aListAlone()
{
    WindowDesk desk;
    EnterUnsaved(desk.tools);
    const Text diary = desk.tools.Read(kSample);
    desk.Open("giornale");
    QTRY_COMPARE_WITH_TIMEOUT(Groups(desk.Table()), kUnsaved, kDeskPatience);
    Toggle(desk.Table(), 0);
    Toggle(desk.Table(), 1);
    hand::Key(Qt::Key_E, Qt::AltModifier);
    QTRY_COMPARE_WITH_TIMEOUT(Groups(desk.Table()), (QStringList{kUnsaved[0], kUnsaved[1]}), kDeskPatience);
    QVERIFY(HasInfinite(desk.tools));
    QCOMPARE(desk.tools.Read(kSample), diary);
}

void SourcesTest::everything()
{
    WindowDesk desk;
    EnterUnsaved(desk.tools);
    desk.Open("giornale");
    QTRY_COMPARE_WITH_TIMEOUT(Groups(desk.Table()), kUnsaved, kDeskPatience);
    hand::Click(desk.Button("run"));
    QTRY_VERIFY_WITH_TIMEOUT(
        desk.Notes().endsWith(QStringLiteral("Non c'è niente da riprendere: tutto è stato salvato.")), kDeskPatience);
    QCOMPARE(Weight(desk.tools, 142), QByteArray("70"));
    QCOMPARE(Weight(desk.tools, 143), QByteArray("71"));
    QVERIFY(HasInfinite(desk.tools));
}

void SourcesTest::onlyWhatWasShown_data()
{
    QTest::addColumn<bool>("forgets");
    QTest::newRow("bringing back") << false;
    QTest::newRow("forgetting") << true;
}

/// What was noted since the page was read is shown before anything is done with it.
void SourcesTest::onlyWhatWasShown()
{
    QFETCH(bool, forgets);
    WindowDesk desk;
    EnterUnsaved(desk.tools);
    const QByteArray before = desk.tools.Everything();
    desk.Open("giornale");
    QTRY_COMPARE_WITH_TIMEOUT(Groups(desk.Table()), kUnsaved, kDeskPatience);
    if (forgets) {
        hand::Key(Qt::Key_D, Qt::AltModifier);
    }
    QTRY_VERIFY_WITH_TIMEOUT(desk.MayRun() && !desk.Shared().Runner().IsBusy(), kDeskPatience);
    EnterUnsaved(desk.tools, 143);
    hand::Key(Qt::Key_E, Qt::AltModifier);
    QTRY_COMPARE_WITH_TIMEOUT(desk.Notes(),
                              QStringLiteral("Nel frattempo è cambiato ciò che c'è da fare: niente è stato fatto. "
                                             "Guardare e premere di nuovo."),
                              kDeskPatience);
    QTRY_COMPARE_WITH_TIMEOUT(
        Groups(desk.Table()),
        (QStringList{kUnsaved[0], kUnsaved[1], QStringLiteral("dom 24 mag 2026"), QStringLiteral("liste")}),
        kDeskPatience);
    QCOMPARE(desk.tools.Everything(), before);
    QTRY_VERIFY_WITH_TIMEOUT(desk.MayRun(), kDeskPatience);
    hand::Key(Qt::Key_E, Qt::AltModifier);
    QTRY_VERIFY_WITH_TIMEOUT(
        desk.Notes().endsWith(QStringLiteral("Non c'è niente da riprendere: tutto è stato salvato.")), kDeskPatience);
    if (forgets) {
        QCOMPARE(desk.tools.Everything(), before);
    } else {
        QCOMPARE(Weight(desk.tools, 144), QByteArray("71"));
    }
}

void SourcesTest::forgetting()
{
    WindowDesk desk;
    EnterUnsaved(desk.tools);
    const QByteArray before = desk.tools.Everything();
    desk.Open("giornale");
    QTRY_COMPARE_WITH_TIMEOUT(Groups(desk.Table()), kUnsaved, kDeskPatience);
    hand::Key(Qt::Key_D, Qt::AltModifier);
    QTRY_VERIFY_WITH_TIMEOUT(desk.MayRun(), kDeskPatience);
    hand::Key(Qt::Key_E, Qt::AltModifier);
    QTRY_VERIFY_WITH_TIMEOUT(
        desk.Notes().endsWith(QStringLiteral("Non c'è niente da riprendere: tutto è stato salvato.")), kDeskPatience);
    QCOMPARE(desk.tools.Everything(), before);
}

/// The last common state is a copy; the other computer has changed one day since.
void SourcesTest::twoComputers()
{
    WindowDesk desk;
    QCOMPARE(desk.tools.Run({"copie", "crea"}).status, 0);
    DiaryBytes other(QByteArray::fromStdString(desk.tools.Read(kSample)));
    other.SetLine(142, DiaryBytes::Weight, "70");
    desk.tools.home.Write("altro.zlv", other.Bytes().toStdString());
    const Text before = desk.tools.Read(kSample);
    desk.Open("unisci");
    QTRY_COMPARE_WITH_TIMEOUT(desk.Notes(), QStringLiteral("Non c'è niente da unire."), kDeskPatience);
    QVERIFY(!desk.MayRun());
    hand::Key(Qt::Key_L, Qt::AltModifier);
    QTRY_VERIFY_WITH_TIMEOUT(desk.Part<QLineEdit>("file").hasFocus(), kDeskPatience);
    hand::Type(QStringLiteral("altro.zlv"));
    QTRY_COMPARE_WITH_TIMEOUT(desk.Table().topLevelItemCount(), 1, kDeskPatience);
    QCOMPARE(desk.Table().topLevelItem(0)->text(0), QStringLiteral("ven 22 mag 2026"));
    QCOMPARE(desk.Table().topLevelItem(0)->text(5), QStringLiteral("di là"));
    QTRY_VERIFY_WITH_TIMEOUT(desk.MayRun(), kDeskPatience);
    QCOMPARE(desk.Notes(), QStringLiteral("Da prendere: 1. Restano da decidere: 0."));
    QCOMPARE(desk.tools.Read(kSample), before);
    hand::Key(Qt::Key_E, Qt::AltModifier);
    QTRY_COMPARE_WITH_TIMEOUT(QByteArray::fromStdString(desk.tools.Read(kSample)), other.Bytes(), kDeskPatience);
    QTRY_VERIFY_WITH_TIMEOUT(desk.Notes().startsWith(QStringLiteral("Da prendere: 1.")), kDeskPatience);
}

void SourcesTest::bothHaveChanged()
{
    WindowDesk desk;
    DiaryBytes days(QByteArray::fromStdString(desk.tools.Read(kSample)));
    days.SetLine(142, DiaryBytes::Weight, "70");
    desk.tools.home.Write("altro.zlv", days.Bytes().toStdString());
    days.SetLine(142, DiaryBytes::Weight, "75");
    desk.tools.Write(kSample, days.Bytes().toStdString());
    desk.Open("unisci");
    hand::Key(Qt::Key_L, Qt::AltModifier);
    hand::Type(QStringLiteral("altro.zlv"));
    QTRY_COMPARE_WITH_TIMEOUT(desk.Table().topLevelItemCount(), 1, kDeskPatience);
    QCOMPARE(desk.Table().topLevelItem(0)->text(5), QStringLiteral("qui e di là"));
    QVERIFY(!desk.MayRun());
    hand::Key(Qt::Key_P, Qt::AltModifier);
    QTRY_VERIFY_WITH_TIMEOUT(desk.MayRun(), kDeskPatience);
    hand::Key(Qt::Key_E, Qt::AltModifier);
    QTRY_COMPARE_WITH_TIMEOUT(Weight(desk.tools, 142), QByteArray("70"), kDeskPatience);
}

void SourcesTest::theBook()
{
    WindowDesk desk;
    const QByteArray before = desk.tools.Everything();
    desk.Open("libro");
    hand::Key(Qt::Key_F, Qt::AltModifier);
    hand::Key(Qt::Key_End);
    hand::Key(Qt::Key_L, Qt::AltModifier);
    QTRY_VERIFY_WITH_TIMEOUT(desk.Part<QLineEdit>("file").hasFocus(), kDeskPatience);
    hand::Type(QStringLiteral("libro.html"));
    QTRY_VERIFY_WITH_TIMEOUT(desk.MayRun(), kDeskPatience);
    hand::Key(Qt::Key_E, Qt::AltModifier);
    QTRY_VERIFY_WITH_TIMEOUT(desk.Notes().startsWith(QStringLiteral("Scritto «")), kDeskPatience);
    QCOMPARE(desk.tools.Run({"libro", "--formato", "html", "-o", desk.tools.home.Native("altro.html")}).status, 0);
    QCOMPARE(desk.tools.home.Read("libro.html"), desk.tools.home.Read("altro.html"));
    QCOMPARE(desk.tools.Everything(), before);
    // One that is there is replaced once that was said.
    desk.tools.home.Write("libro.html", "altro");
    hand::Click(desk.Button("look"));
    QTRY_VERIFY_WITH_TIMEOUT(desk.Notes().endsWith(QStringLiteral("Il file c'è già: viene sostituito.")),
                             kDeskPatience);
    hand::Click(desk.Button("run"));
    QTRY_COMPARE_WITH_TIMEOUT(desk.tools.home.Read("libro.html"), desk.tools.home.Read("altro.html"), kDeskPatience);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::SourcesTest)
#include "SourcesTest.moc"
