// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The pop-up of the lists, and the commands that put the lists back.
#include "core/Messages.h"
#include "diary/RouteModel.h"
#include "support/EntryPage.h"
#include "support/WindowTest.h"

#include <QAction>
#include <QMenu>

namespace zelvia::test
{
namespace
{

const char* const kNames[] = {"",     "Percorso", "Lunghezza", "Modo",       "Fondo",
                              "Tipo", "Stagione", "TempoAtm",  "Temperatura"};

void AddFields()
{
    QTest::addColumn<int>("number");
    for (int number = 1; number <= 8; ++number) {
        QTest::newRow(kNames[number]) << number;
    }
}

void OpenAndSelect(const EntryPage& page, int number, int row)
{
    page.Open(number);
    QTRY_VERIFY(page.Field(number).txt->hasFocus());
    page.ClickRow(*page.Field(number).lst, row);
    QTRY_COMPARE(page.Field(number).lst->ListIndex(), row);
}

QStringList Words(const char* text)
{
    return QString::fromUtf8(text).split(QLatin1Char('|'), Qt::SkipEmptyParts);
}

} // namespace

class ListMenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePopUpOfAList_data() { AddFields(); }
    void thePopUpOfAList();
    void aRightClickNeitherSelectsNorTakesTheFocus();
    void aReleaseOverTheRoutesHidesTheirEntries();
    void cancellaRemovesTheSelectedEntry_data() { AddFields(); }
    void cancellaRemovesTheSelectedEntry();
    void cancellaWithoutASelection_data() { AddFields(); }
    void cancellaWithoutASelection();
    void cancellaOfNoList_data();
    void cancellaOfNoList();
    void theInitialLists();
    void theInitialListsRefused();
    void thePreviousLists();
    void thePreviousListsRefused();
    void thePreviousListsWithMissingFiles();
    void anAddedSeasonLastsUntilTheNextStart();
};

void ListMenuTest::thePopUpOfAList()
{
    QFETCH(int, number);
    EntryPage page;
    page.Start();
    OpenAndSelect(page, number, 1);
    const QByteArrayList shown = page.PopUp(*page.Field(number).lst, Qt::Key_Escape);
    QCOMPARE(shown, number == 1 ? QByteArrayList({"mnuCancella", "mnuListaWOrdinata", "mnuDescrizionePercorso"})
                                : QByteArrayList({"mnuCancella"}));
    for (const char* entry : {"mnuListaWOrdinata", "mnuDescrizionePercorso"}) {
        QVERIFY(!page->findChild<QAction*>(QLatin1String(entry))->isVisible());
    }
    const QList<QAction*> actions = page->mnuCancelladallaLista->actions();
    QCOMPARE(actions[0]->text(), QStringLiteral("&Cancella"));
    QCOMPARE(actions[1]->text(), QStringLiteral("&Tempi"));
    QCOMPARE(actions[2]->text(), QStringLiteral("&Descrizione"));
    QVERIFY(page.IsOpen(number));
    QCOMPARE(page.ListOf(number), EntryPage::Entries(number));
    QVERIFY(Module1::FileModificato == 0);
    VERIFY_SCRIPT(page.script);
}

void ListMenuTest::aRightClickNeitherSelectsNorTakesTheFocus()
{
    EntryPage page;
    page.Start();
    page.Open(5);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtTipo"));
    hand::Type(QStringLiteral("ab"));
    page.PopUp(*page.Field(5).lst, Qt::Key_Escape);
    QCOMPARE(page.Field(5).lst->ListIndex(), -1);
    QCOMPARE(EntryPage::Focused(), QByteArray("txtTipo"));
    QVERIFY(page.IsOpen(5));
    QVERIFY(page->ListaAperta == 0);
    QTRY_VERIFY(page.Field(5).txt->hasFocus());
    hand::Type(QStringLiteral("c"));
    QTRY_COMPARE(page.Field(5).txt->text(), QStringLiteral("abc"));
    VERIFY_SCRIPT(page.script);
}

void ListMenuTest::aReleaseOverTheRoutesHidesTheirEntries()
{
    EntryPage page;
    page.Start();
    page->mnuCancelladallaLista->ShowRouteEntries(true);
    OpenAndSelect(page, 1, 0);
    for (const char* entry : {"mnuListaWOrdinata", "mnuDescrizionePercorso"}) {
        QTRY_VERIFY(!page->findChild<QAction*>(QLatin1String(entry))->isVisible());
    }
    VERIFY_SCRIPT(page.script);
}

void ListMenuTest::cancellaRemovesTheSelectedEntry()
{
    QFETCH(int, number);
    EntryPage page;
    page.Start();
    page.Field(number).txt->SetContent("Beta");
    page.Field(number).lblImmis->SetCaption("Beta");
    OpenAndSelect(page, number, 1);
    page.PopUp(*page.Field(number).lst, Qt::Key_C);
    QStringList rest = EntryPage::Entries(number);
    rest.removeAt(1);
    const int after = number == 6 ? 1 : 0; // the season had no "Beta": closing its box for the list has added it
    QCOMPARE(page.ListOf(number), after == 1 ? rest << QStringLiteral("Beta") : rest);
    QCOMPARE(page.Field(number).lst->ListIndex(), -1);
    QVERIFY(Module1::FileModificato == 1);
    QCOMPARE(page.Field(number).txt->text(), QString());
    QCOMPARE(page.Field(number).lblImmis->text(), QStringLiteral("Beta"));
    // Closing the field now empties its value.
    hand::Click(*page.Field(number).txt);
    QTRY_VERIFY(!page.IsOpen(number));
    QCOMPARE(page.Field(number).lblImmis->text(), QString());
    VERIFY_SCRIPT(page.script);
}

void ListMenuTest::cancellaWithoutASelection()
{
    QFETCH(int, number);
    EntryPage page;
    page.Start();
    page.Open(number);
    page.TypeOver(*page.Field(number).txt, EntryPage::Entries(number).constLast());
    page.Field(number).lst->SetFocus();
    QTRY_VERIFY(page->ListaAperta == number);
    QVERIFY(Module1::FileModificato == 0);
    page.PopUp(*page.Field(number).lst, Qt::Key_C);
    QVERIFY(Module1::FileModificato == 1);
    QCOMPARE(page.ListOf(number), EntryPage::Entries(number));
    QCOMPARE(page.Field(number).txt->text(), EntryPage::Entries(number).constLast());
    VERIFY_SCRIPT(page.script);
}

void ListMenuTest::cancellaOfNoList_data()
{
    QTest::addColumn<int>("number");
    for (const int number : {-1, 0, 9, 10}) {
        QTest::addRow("%d", number) << number;
    }
}

void ListMenuTest::cancellaOfNoList()
{
    QFETCH(int, number);
    EntryPage page;
    page.Start();
    page->lstListaKM->AddItem("01      00:05:00");
    page.Field(5).lst->SetListIndex(0);
    page->ListaAperta = number;
    page->findChild<QAction*>(QStringLiteral("mnuCancella"))->trigger();
    QVERIFY(Module1::FileModificato == 1);
    for (int list = 1; list <= 8; ++list) {
        QCOMPARE(page.ListOf(list), EntryPage::Entries(list));
    }
    QCOMPARE(page->lstListaKM->ListCount(), 1);
    VERIFY_SCRIPT(page.script);
}

void ListMenuTest::theInitialLists()
{
    EntryPage page;
    page.Start();
    page.script.Expect(Messages::kFirstLists, QMessageBox::Ok);
    page.Menu("mnuOpzioni", Qt::Key_I);
    const QStringList lists[] = {
        {},
        {},
        Words("Cortissimo|Corto|Medio/Corto|Medio|Medio/Lungo|Lungo|Lunghissimo|Mezza Maratona|Maratona"),
        Words("Lentissima|Lenta|Media/Lenta|Media|Media/Veloce|Veloce|Fartlek"),
        Words("Strada|Strada/Salita|Strada/Sentiero|Strada/Sentiero/Salita|Pista Atletica|Sentiero|Sentiero/Salita|"
              "Sentiero di montagna|Spiaggia/Sabbia"),
        Words("Allenamento|Gara"),
        Words("Primavera|Estate|Autunno|Inverno"),
        Words("Sole|Sole/Vento|Sole/Vento forte|Sole/Nuvoloso|Sole/Nuvoloso/Vento|Nuvoloso|Nuvoloso/Vento|"
              "Nuvoloso/Vento forte|Nuvoloso/Pioggia|Nuvoloso/Pioggia/Vento|Neve|Neve/Ghiaccio|Neve/Ghiaccio/Vento|"
              "Nebbia|Nebbia/Pioggia|Nebbia/Neve|Nebbia/Neve/Ghiaccio"),
        Words("Caldo|Molto Caldo|Afa|Mite|Freddo|Molto Freddo"),
    };
    for (int number = 1; number <= 8; ++number) {
        QCOMPARE(page.ListOf(number), lists[number]);
    }
    for (int place = 1; place <= 200; ++place) {
        QCOMPARE(Module1::NomiPercorso[place], Text());
        QVERIFY(Module1::DistanzePercorso[place] == 0);
    }
    QVERIFY(Module1::FileModificato == 1);
    QCOMPARE(page.folder.Read(QStringLiteral("prova/Percorso.lsx")),
             QByteArray("\"Alfa\"\r\n\"Beta\"\r\n\"Gamma\"\r\n"));

    page.Menu("mnuFile", Qt::Key_S);
    QCOMPARE(page.folder.Read(QStringLiteral("prova/Percorso.lsx")), QByteArray());
    QCOMPARE(page.folder.Read(QStringLiteral("prova/Tipo.lsx")), QByteArray("\"Allenamento\"\r\n\"Gara\"\r\n"));
    QVERIFY(page.folder.Read(QStringLiteral("prova/ListePercorso")) == RouteFileOf({}));
    VERIFY_SCRIPT(page.script);
}

void ListMenuTest::theInitialListsRefused()
{
    EntryPage page;
    page.Start();
    page.script.Expect(Messages::kFirstLists, QMessageBox::Cancel);
    page.Menu("mnuOpzioni", Qt::Key_I);
    VERIFY_SCRIPT(page.script);
    QCOMPARE(page.ListOf(1), EntryPage::Entries(1));
    QCOMPARE(Module1::NomiPercorso[3], Text("Gamma"));
    QVERIFY(Module1::FileModificato == 0);
}

void ListMenuTest::thePreviousLists()
{
    EntryPage page;
    page.Start();
    for (int number = 1; number <= 8; ++number) {
        const auto list = static_cast<SelectionList>(number);
        EntriesOf(list).erase(EntriesOf(list).begin());
        page.AddEntry(list, "Altra");
    }
    Module1::NomiPercorso[1] = "Altra";
    page->NomeBaseFile = "altro";
    page.script.Expect(Messages::kSavedLists, QMessageBox::Ok);
    page.Menu("mnuOpzioni", Qt::Key_L);
    VERIFY_SCRIPT(page.script);
    for (const int number : {1, 2, 3, 4, 5, 7, 8}) {
        QCOMPARE(page.ListOf(number), EntryPage::Entries(number));
    }
    QCOMPARE(page.ListOf(6), QStringList({QStringLiteral("Estate"), QStringLiteral("Autunno"),
                                          QStringLiteral("Inverno"), QStringLiteral("Altra")}));
    QCOMPARE(Module1::NomiPercorso[1], Text("Alfa"));
    QCOMPARE(page->NomeBaseFile, Text("prova"));
    QVERIFY(Module1::FileModificato == 1);
}

void ListMenuTest::thePreviousListsRefused()
{
    EntryPage page;
    page.Start();
    page.AddEntry(SelectionList::Percorso, "Altra");
    page.script.Expect(Messages::kSavedLists, QMessageBox::Cancel);
    page.Menu("mnuOpzioni", Qt::Key_L);
    VERIFY_SCRIPT(page.script);
    QCOMPARE(page.ListOf(1), EntryPage::Entries(1) << QStringLiteral("Altra"));
    QVERIFY(Module1::FileModificato == 0);
}

void ListMenuTest::thePreviousListsWithMissingFiles()
{
    EntryPage page;
    page.Start();
    for (const char* file : {"Modo.lsx", "Temperatura.lsx", "ListePercorso"}) {
        page.folder.Remove(QStringLiteral("prova/") + QLatin1String(file));
    }
    page.folder.Write(QStringLiteral("prova/Tipo.lsx"), "\"x\"\r\n\"x\"\r\n");
    page.script.Expect(Messages::kSavedLists, QMessageBox::Ok);
    page.script.Expect(Report(QStringLiteral("CaricaListaModo - ERRORE : 53 File non trovato")));
    page.script.Expect(Report(QStringLiteral("CaricaListaTeperatura - ERRORE : 53 File non trovato")));
    page.script.Expect(Report(QStringLiteral("ERRORE : File non trovato Liste Percorso")));
    page.Menu("mnuOpzioni", Qt::Key_L);
    VERIFY_SCRIPT(page.script);
    QCOMPARE(page.ListOf(3), EntryPage::Entries(3));
    QCOMPARE(page.ListOf(8), EntryPage::Entries(8));
    // Nothing checks what a file holds.
    QCOMPARE(page.ListOf(5), QStringList({QStringLiteral("x"), QStringLiteral("x")}));
    QCOMPARE(Module1::NomiPercorso[1], Text("Alfa"));
}

void ListMenuTest::anAddedSeasonLastsUntilTheNextStart()
{
    EntryPage page;
    page.Start();
    page.Open(6);
    page.TypeOver(*page.Field(6).txt, QStringLiteral("Monsone"));
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(page.ListOf(6).constLast(), QStringLiteral("Monsone"));
    page.Menu("mnuFile", Qt::Key_S);
    QVERIFY(!page.folder.Exists(QStringLiteral("prova/Stagione.lsx")));
    delete &page.Page();
    page.Start();
    QCOMPARE(page.ListOf(6), EntryPage::Entries(6));
    QCOMPARE(page.Caption("lblImmisStagione"), QStringLiteral("Monsone"));
    VERIFY_SCRIPT(page.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::ListMenuTest)
#include "ListMenuTest.moc"
