// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The three commands that blank the day or restore the lists.
#include "core/Messages.h"
#include "diary/RouteModel.h"
#include "support/DayPage.h"
#include "support/DiaryBytes.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
namespace
{

ExpectedBox Question(const Message& message, bool goesOn)
{
    return BoxOf(message, goesOn ? QMessageBox::Ok : QMessageBox::Cancel);
}

/// Adds an entry to each list.
void AddEntries(DayPage& page)
{
    for (const SelectionList lista : kAllLists) {
        page.AddEntry(lista, "Aggiunta");
    }
}

std::vector<int> Counts(frmMain& page)
{
    std::vector<int> counts;
    for (const SelectionList lista : kAllLists) {
        counts.push_back(page.ListField(lista).lst->ListCount());
    }
    return counts;
}

// In the order of the lists; the sample's routes are thirteen, its other lists the initial ones or longer.
const std::vector<int> kInitialCounts = {0, 9, 7, 9, 2, 4, 17, 6};

} // namespace

class OptionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void blankTheDay();
    void blankTheDayCancelled();
    void initialLists();
    void previousLists();
    void previousListsMissing();
    void listsCancelled_data();
    void listsCancelled();
};

void OptionsTest::blankTheDay()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    const QString km = page.Caption("lblNumKMPercorsi");
    const QString runs = page.Caption("lblNumGiorniCorseAnno");
    DayPage::Day().Note[1] = "nascosta";
    page.script.Expect(Question(Messages::kBlankDay, true));
    page.Menu("mnuOpzioni", Qt::Key_Z);
    VERIFY_SCRIPT(page.script);
    RecordGiorno blank;
    blank.NumGiorno = 60;
    blank.Data = CalendarDate(2026, 3, 1);
    QVERIFY(DayPage::Day() == blank);
    QVERIFY(Module1::FileModificato == 1);
    QCOMPARE(page.Caption("lblImmisTipo"), QString());
    QCOMPARE(page.Caption("txtTipo"), QString());
    QCOMPARE(page.Caption("lblImmisCorridori"), QStringLiteral("1"));
    QCOMPARE(page.Caption("lblOutTempoImpiegato"), QStringLiteral("0:00:00"));
    QCOMPARE(page->lstListaKM->ListCount(), 0);
    // The counters keep the old day until the next move.
    QCOMPARE(page.Caption("lblNumKMPercorsi"), km);
    QCOMPARE(page.Caption("lblNumGiorniCorseAnno"), runs);
    page.GoTo(61);
    QCOMPARE(page.Caption("lblNumGiorniCorseAnno"), QString::number(runs.toInt() - 1));
    page.Menu("mnuFile", Qt::Key_S);
    VERIFY_SCRIPT(page.script);
    DiaryBytes expected(SampleFile(QStringLiteral("ZelviaFile/prova.zlv")));
    expected.CopyDay(DiaryBytes::Blank(2026), 60);
    expected.Visit(60, QDate(2026, 3, 1));
    expected.Visit(61, QDate(2026, 3, 2));
    QVERIFY(page.folder.Read(QStringLiteral("ZelviaFile/prova.zlv")) == expected.Bytes());
}

void OptionsTest::blankTheDayCancelled()
{
    DayPage page(CalendarDate(2026, 3, 1));
    page.Start();
    const RecordGiorno before = DayPage::Day();
    page->upKM->SetValue(17);
    page.script.Expect(Question(Messages::kBlankDay, false));
    page.Menu("mnuOpzioni", Qt::Key_Z);
    VERIFY_SCRIPT(page.script);
    QVERIFY(DayPage::Day() == before);
    QCOMPARE(page->upKM->Value().value(), 17);
    QVERIFY(Module1::FileModificato == 0);
}

void OptionsTest::initialLists()
{
    DayPage page;
    page.Start();
    AddEntries(page);
    QCOMPARE(Module1::NomiPercorso[1], Text("Lungofiume"));
    page.script.Expect(Question(Messages::kFirstLists, true));
    page.Menu("mnuOpzioni", Qt::Key_I);
    VERIFY_SCRIPT(page.script);
    QVERIFY(Counts(page.Page()) == kInitialCounts);
    QVERIFY(page->ListField(SelectionList::Stagione).lst->Items() ==
            (std::vector<Text>{"Primavera", "Estate", "Autunno", "Inverno"}));
    QCOMPARE(Module1::NomiPercorso[1], Text());
    QVERIFY(Module1::FileModificato == 1);
    // The files follow at the next save.
    QCOMPARE(page.folder.Read(QStringLiteral("prova/Percorso.lsx")), SampleFile(QStringLiteral("prova/Percorso.lsx")));
    page.Menu("mnuFile", Qt::Key_S);
    VERIFY_SCRIPT(page.script);
    QCOMPARE(page.folder.Read(QStringLiteral("prova/Percorso.lsx")), QByteArray());
    QVERIFY(page.folder.Read(QStringLiteral("prova/ListePercorso")).startsWith("\"\"\r\n0\r\n\"\"\r\n0\r\n0\r\n"));
}

void OptionsTest::previousLists()
{
    DayPage page;
    page.Start();
    const std::vector<int> loaded = Counts(page.Page());
    AddEntries(page);
    Module1::NomiPercorso[1] = "un altro";
    page->NomeBaseFile = "dimenticato";
    page.script.Expect(Question(Messages::kSavedLists, true));
    page.Menu("mnuOpzioni", Qt::Key_L);
    VERIFY_SCRIPT(page.script);
    // The seasons have no file and keep what was added.
    std::vector<int> expected = loaded;
    expected[5] += 1;
    QVERIFY(Counts(page.Page()) == expected);
    QCOMPARE(loaded[0], 13);
    QCOMPARE(Module1::NomiPercorso[1], Text("Lungofiume"));
    QCOMPARE(page->NomeBaseFile, Text("prova"));
    QVERIFY(Module1::FileModificato == 1);
}

void OptionsTest::previousListsMissing()
{
    DayPage page;
    page.Start();
    const std::vector<int> loaded = Counts(page.Page());
    for (const QString& list : ListNames()) {
        page.folder.Remove(QStringLiteral("prova/%1.lsx").arg(list));
    }
    page.folder.Remove(QStringLiteral("prova/ListePercorso"));
    page.script.Expect(Question(Messages::kSavedLists, true));
    ExpectListsNotLoaded(page.script, kNotFound);
    page.script.Expect(RoutesNotLoaded(QStringLiteral("File non trovato")));
    page.Menu("mnuOpzioni", Qt::Key_L);
    VERIFY_SCRIPT(page.script);
    QVERIFY(Counts(page.Page()) == loaded);
    QVERIFY(Module1::FileModificato == 1);
}

void OptionsTest::listsCancelled_data()
{
    QTest::addColumn<int>("entry");
    QTest::newRow("initial") << int(Qt::Key_I);
    QTest::newRow("previous") << int(Qt::Key_L);
}

void OptionsTest::listsCancelled()
{
    QFETCH(int, entry);
    DayPage page;
    page.Start();
    AddEntries(page);
    const std::vector<int> before = Counts(page.Page());
    Module1::NomiPercorso[1] = "un altro";
    page.script.Expect(entry == Qt::Key_I ? Question(Messages::kFirstLists, false)
                                          : Question(Messages::kSavedLists, false));
    page.Menu("mnuOpzioni", Qt::Key(entry));
    VERIFY_SCRIPT(page.script);
    QVERIFY(Counts(page.Page()) == before);
    QCOMPARE(Module1::NomiPercorso[1], Text("un altro"));
    QVERIFY(Module1::FileModificato == 0);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::OptionsTest)
#include "OptionsTest.moc"
