// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The window of a route's description: when it opens, what it shows and what its closing stores.
#include "core/Messages.h"
#include "diary/RouteModel.h"
#include "support/WholeHand.h"
#include "support/WindowTest.h"
#include "toolkit/PagePalette.h"
#include "windows/routes/RouteHand.h"

namespace zelvia::test
{
namespace
{

QString Name(const char* array, int row)
{
    return QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(row);
}

} // namespace

class RouteWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void itsControls();
    void itsCaptionBeforeItHasARoute();
    void opensForANewNameOnly_data();
    void opensForANewNameOnly();
    void theLowestFreePlaceIsTaken();
    void theCommandOpensTheSelectedRoute();
    void closingStoresAndSetsTheDistance();
    void anEmptyDescriptionSetsTheDistanceToZero();
    void anEmptyCurrentRouteTakesTheFirstFreePlace();
    void aRouteWithoutAPlaceUsesRowZero();
    void deletingARouteWithoutAPlaceBlanksRowZero();
    void aRowPressedBehindANewName();
    void thePopUpBehindANewName_data();
    void thePopUpBehindANewName();
    void thePopUpBehindAListedName_data();
    void thePopUpBehindAListedName();
    void moreThan200AtOpeningAndClosing();
    void thePageIsBlocked();
    void moreThanTheTotalHolds_data();
    void moreThanTheTotalHolds();
    void moreThanTheDistanceHolds();
};

void RouteWindowTest::init()
{
    // Row 0, where what has no place ends, outlives a page.
    Module1::DistanzePercorso[0] = 0;
    Module1::TrattoDescrizione[0][1].clear();
    Module1::TrattoKm[0][1] = 0;
}

void RouteWindowTest::itsControls()
{
    EntryPage page;
    page.Start();
    OpenEntry(page, 1);
    frmDesPercorso& window = Opened(page);
    const auto text = [&](const QString& name) {
        const auto* child = window.findChild<QObject*>(name);
        return child == nullptr ? QStringLiteral("none") : child->property("text").toString();
    };
    QCOMPARE(window.objectName(), QStringLiteral("frmDesPercorso"));
    QCOMPARE(text(QStringLiteral("lblDescrizione")), QStringLiteral(" Descrizione "));
    QCOMPARE(text(QStringLiteral("lblKm")), QStringLiteral(" Km "));
    QCOMPARE(text(QStringLiteral("lblMetri")), QStringLiteral(" Metri "));
    QCOMPARE(text(QStringLiteral("lblTotale")), QStringLiteral(" Totale"));
    for (int row = 1; row <= 20; ++row) {
        QCOMPARE(text(Name("lblTratto", row)),
                 (row < 10 ? QStringLiteral(" ") : QString()) + QString::number(row) + QStringLiteral("°Tratto"));
        QVERIFY(window.findChild<TextBox*>(Name("txtTratto", row))->Limit() == 80);
        QVERIFY(window.findChild<TextBox*>(Name("txtKm", row))->Limit() == 2);
        QVERIFY(window.findChild<TextBox*>(Name("txtMetri", row))->Limit() == 3);
        QVERIFY(window.findChild<QWidget*>(Name("lblDescr", row)) != nullptr);
    }
    for (const TextBox* number :
         {window.txtKm[1], window.txtMetri[20], window.txtDistanzaKm, window.txtDistanzaMetri}) {
        QVERIFY(number->alignment().testFlag(Qt::AlignRight));
        QVERIFY(number->font().italic());
    }
    QVERIFY(window.txtTratto[1]->font().italic());
    QVERIFY(ShowsWholeHand(*window.txtTratto[1]));
    QVERIFY(!window.findChild<QWidget*>(QStringLiteral("lblDescrizione"))->font().italic());
    // A printed line under each row.
    const QImage sheet = window.grab().toImage();
    for (int row = 1; row <= 20; ++row) {
        const QRect box = window.txtTratto[row]->geometry();
        QCOMPARE(sheet.pixelColor(box.center().x(), box.bottom() + 2), QColor(Ink::Rule));
    }
    QVERIFY(window.txtDistanzaKm->isReadOnly());
    QVERIFY(window.txtDistanzaMetri->isReadOnly());
    // What the route holds; zeros show as nothing.
    QCOMPARE(text(Name("txtTratto", 1)), QStringLiteral("t"));
    QCOMPARE(text(Name("txtKm", 1)), QStringLiteral("1"));
    QCOMPARE(text(Name("txtMetri", 1)), QStringLiteral("2"));
    QCOMPARE(text(Name("txtKm", 2)), QString());
    QCOMPARE(text(Name("txtMetri", 2)), QString());
    QCOMPARE(text(QStringLiteral("txtDistanzaKm")), QStringLiteral("1"));
    QCOMPARE(text(QStringLiteral("txtDistanzaMetri")), QStringLiteral("2"));
    page.CloseRouteWindow();
    VERIFY_SCRIPT(page.script);
}

void RouteWindowTest::itsCaptionBeforeItHasARoute()
{
    EntryPage page;
    page.Start();
    const frmDesPercorso window(&page.Page(), page.Page());
    QCOMPARE(window.windowTitle(), QStringLiteral(" Percorso "));
}

void RouteWindowTest::opensForANewNameOnly_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("opens");
    QTest::newRow("new") << "Delta" << true;
    QTest::newRow("listed") << "Beta" << false;
    // Not in the list, but with a description of its own.
    QTest::newRow("described") << "Fuori lista" << false;
    QTest::newRow("described, another case") << "FUORI lista" << false;
    QTest::newRow("empty") << "" << false;
    QTest::newRow("blanks") << "   " << false;
}

void RouteWindowTest::opensForANewNameOnly()
{
    QFETCH(QString, typed);
    QFETCH(bool, opens);
    EntryPage page;
    page.Start();
    Module1::NomiPercorso[7] = "Fuori lista";
    EnterRoute(page, typed);
    if (opens) {
        QCOMPARE(Opened(page).windowTitle(), QStringLiteral("Percorso : Delta"));
        QVERIFY(Opened(page).windowModality() == Qt::WindowModal);
        QCOMPARE(Module1::NomiPercorso[4], Text("Delta"));
        page.CloseRouteWindow();
    } else {
        QCOMPARE(page.RouteWindow(), nullptr);
        QCOMPARE(Module1::NomiPercorso[4], Text());
        QCOMPARE(Module1::NomiPercorso[7], Text("Fuori lista"));
    }
    QCOMPARE(Module1::NomiPercorso[8], Text());
    VERIFY_SCRIPT(page.script);
}

void RouteWindowTest::theLowestFreePlaceIsTaken()
{
    EntryPage page;
    page.Start();
    Module1::AzzeraPercorso(2);
    EnterRoute(page, QStringLiteral("Delta"));
    page.CloseRouteWindow();
    QCOMPARE(Module1::NomiPercorso[2], Text("Delta"));
    QCOMPARE(Module1::NomiPercorso[4], Text());
    VERIFY_SCRIPT(page.script);
}

void RouteWindowTest::theCommandOpensTheSelectedRoute()
{
    EntryPage page;
    page.Start();
    OpenEntry(page, 2);
    QCOMPARE(Opened(page).windowTitle(), QStringLiteral("Percorso : Gamma"));
    QCOMPARE(Opened(page).txtMetri[1]->text(), QStringLiteral("3"));
    page.CloseRouteWindow();
    QCOMPARE(page.Caption("lblImmisMetri"), QStringLiteral("1,003"));
    VERIFY_SCRIPT(page.script);
}

void RouteWindowTest::closingStoresAndSetsTheDistance()
{
    EntryPage page;
    page.Start();
    page->upMetro->SetValue(4);
    EnterRoute(page, QStringLiteral("Delta"));
    frmDesPercorso& window = Opened(page);
    TypeInto(*window.txtTratto[1], QStringLiteral("dal ponte"));
    TypeInto(*window.txtKm[1], QStringLiteral("9"));
    TypeInto(*window.txtMetri[1], QStringLiteral("700"));
    TypeInto(*window.txtTratto[20], QStringLiteral("ritorno"));
    TypeInto(*window.txtMetri[20], QStringLiteral("350"));
    // Closed with the focus still in a box whose sum has not been made.
    page.CloseRouteWindow();
    QCOMPARE(Module1::TrattoDescrizione[4][1], Text("dal ponte"));
    QVERIFY(Module1::TrattoKm[4][1] == 9);
    QVERIFY(Module1::TrattoMetri[4][1] == 700);
    QCOMPARE(Module1::TrattoDescrizione[4][20], Text("ritorno"));
    QVERIFY(Module1::TrattoMetri[4][20] == 350);
    QVERIFY(Module1::DistanzePercorso[4] == 10050);
    QCOMPARE(page.Caption("lblImmisMetri"), QStringLiteral("10,050"));
    QCOMPARE(page->upMetro->Value().value(), 0);
    // The day gets it with its next commit.
    QVERIFY(DayPage::Day().Km == 0);
    page.GoTo(141);
    QVERIFY(Module1::Giorni[140].Km == 10);
    QVERIFY(Module1::Giorni[140].Metri == 50);
    VERIFY_SCRIPT(page.script);
}

void RouteWindowTest::anEmptyDescriptionSetsTheDistanceToZero()
{
    EntryPage page;
    page.Start();
    page->upKM->SetValue(12);
    page->upMetri->SetValue(500);
    EnterRoute(page, QStringLiteral("Delta"));
    page.CloseRouteWindow();
    QCOMPARE(page->upKM->Value().value(), 0);
    QCOMPARE(page->upMetri->Value().value(), 0);
    QCOMPARE(page.Caption("lblImmisMetri"), QStringLiteral("0,000"));
    VERIFY_SCRIPT(page.script);
}

void RouteWindowTest::anEmptyCurrentRouteTakesTheFirstFreePlace()
{
    EntryPage page;
    page.Start();
    QCOMPARE(Module1::PercorsoCorrente, Text());
    page->mnuDescrizionePercorso_Click();
    frmDesPercorso& window = Opened(page);
    QCOMPARE(window.windowTitle(), QStringLiteral("Percorso : "));
    QCOMPARE(window.txtTratto[1]->text(), QString());
    TypeInto(*window.txtTratto[1], QStringLiteral("senza nome"));
    page.CloseRouteWindow();
    QCOMPARE(Module1::NomiPercorso[4], Text());
    QCOMPARE(Module1::TrattoDescrizione[4][1], Text("senza nome"));
    VERIFY_SCRIPT(page.script);
}

void RouteWindowTest::aRouteWithoutAPlaceUsesRowZero()
{
    EntryPage page;
    page.Start();
    Module1::AzzeraPercorso(2); // "Beta" stays in the list
    OpenEntry(page, 1);
    frmDesPercorso& window = Opened(page);
    QCOMPARE(window.windowTitle(), QStringLiteral("Percorso : Beta"));
    QCOMPARE(window.txtTratto[1]->text(), QString());
    TypeInto(*window.txtTratto[1], QStringLiteral("nulla"));
    TypeInto(*window.txtKm[1], QStringLiteral("3"));
    page.CloseRouteWindow();
    QCOMPARE(Module1::TrattoDescrizione[0][1], Text("nulla"));
    QVERIFY(Module1::DistanzePercorso[0] == 3000);
    QCOMPARE(Module1::NomiPercorso[2], Text());
    QCOMPARE(Module1::TrattoDescrizione[2][1], Text());
    QCOMPARE(page->upKM->Value().value(), 3);
    VERIFY_SCRIPT(page.script);
}

void RouteWindowTest::deletingARouteWithoutAPlaceBlanksRowZero()
{
    EntryPage page;
    page.Start();
    Module1::AzzeraPercorso(2);
    Module1::AzzeraPercorso(3); // "Beta" and "Gamma" stay in the list
    OpenEntry(page, 1);
    TypeInto(*Opened(page).txtTratto[1], QStringLiteral("nulla"));
    TypeInto(*Opened(page).txtMetri[20], QStringLiteral("400"));
    page.CloseRouteWindow();
    QVERIFY(Module1::DistanzePercorso[0] == 400);
    // The list is still open with "Beta" selected.
    page.PopUp(*page.Field(kRoute).lst, Qt::Key_C);
    QCOMPARE(page.ListOf(kRoute), QStringList({QStringLiteral("Alfa"), QStringLiteral("Gamma")}));
    QVERIFY(Module1::DistanzePercorso[0] == 0);
    QCOMPARE(Module1::TrattoDescrizione[0][1], Text());
    QVERIFY(Module1::TrattoMetri[0][20] == 0);
    QCOMPARE(Module1::NomiPercorso[1], Text("Alfa"));
    QVERIFY(Module1::DistanzePercorso[1] == 1001);
    // The next route without a place finds nothing there.
    page.ClickRow(*page.Field(kRoute).lst, 1);
    QTRY_COMPARE(Module1::PercorsoCorrente, Text("Gamma"));
    page.PopUp(*page.Field(kRoute).lst, Qt::Key_D, false);
    const frmDesPercorso& window = Opened(page);
    QCOMPARE(window.windowTitle(), QStringLiteral("Percorso : Gamma"));
    QCOMPARE(window.txtTratto[1]->text(), QString());
    QCOMPARE(window.txtDistanzaMetri->text(), QStringLiteral("0"));
    page.CloseRouteWindow();
    VERIFY_SCRIPT(page.script);
}

void RouteWindowTest::aRowPressedBehindANewName()
{
    // The press closes the box, which opens the description of the new name. The row is the current route only when
    // that has closed: until then what is typed belongs to the new name.
    EntryPage page;
    page.Start();
    page.Open(kRoute);
    page.TypeOver(*page.Field(kRoute).txt, QStringLiteral("Delta"));
    ListBox& list = *page.Field(kRoute).lst;
    hand::Press(*list.viewport(), EntryPage::RowAt(list, 1));
    frmDesPercorso& window = Opened(page);
    QCOMPARE(window.windowTitle(), QStringLiteral("Percorso : Delta"));
    QCOMPARE(list.ListIndex(), 1);
    QCOMPARE(Module1::PercorsoCorrente, Text("Delta"));
    if (hand::OnX11()) {
        hand::Raw({QStringLiteral("mouseup"), QStringLiteral("1")});
    } else {
        hand::Release(*list.viewport(), EntryPage::RowAt(list, 1));
    }
    TypeInto(*window.txtTratto[1], QStringLiteral("dal ponte"));
    TypeInto(*window.txtKm[1], QStringLiteral("4"));
    page.CloseRouteWindow();
    QTRY_COMPARE(Module1::PercorsoCorrente, Text("Beta"));
    QCOMPARE(Module1::NomiPercorso[4], Text("Delta"));
    QCOMPARE(Module1::TrattoDescrizione[4][1], Text("dal ponte"));
    QVERIFY(Module1::DistanzePercorso[4] == 4000);
    QCOMPARE(Module1::TrattoDescrizione[2][1], Text("t"));
    QVERIFY(Module1::DistanzePercorso[2] == 1002);
    // Both commands of the pop-up act on the row.
    page.PopUp(list, Qt::Key_D, false);
    QCOMPARE(Opened(page).windowTitle(), QStringLiteral("Percorso : Beta"));
    QCOMPARE(Opened(page).txtTratto[1]->text(), QStringLiteral("t"));
    page.CloseRouteWindow();
    page.PopUp(list, Qt::Key_C);
    QCOMPARE(Module1::NomiPercorso[2], Text());
    QCOMPARE(Module1::NomiPercorso[4], Text("Delta"));
    QVERIFY(Module1::DistanzePercorso[4] == 4000);
    VERIFY_SCRIPT(page.script);
}

void RouteWindowTest::thePopUpBehindANewName_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("description");
    QTest::newRow("description, nothing selected") << -1 << true;
    QTest::newRow("description, an entry selected") << 1 << true;
    QTest::newRow("times, nothing selected") << -1 << false;
    QTest::newRow("times, an entry selected") << 1 << false;
}

void RouteWindowTest::thePopUpBehindANewName()
{
    QFETCH(int, row);
    QFETCH(bool, description);
    EntryPage page;
    page.Start();
    RecordGiorno& run = Module1::Giorni[100];
    run.Percorso = "Beta";
    run.TempoImpiegato = "0:50:00";
    run.MediaKm = "5:00";
    page.Open(kRoute);
    if (row >= 0) {
        QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtPercorso"));
        page.ClickRow(*page.Field(kRoute).lst, row);
        QTRY_COMPARE(Module1::PercorsoCorrente, Text("Beta"));
        hand::Key(Qt::Key_Tab, Qt::ShiftModifier);
    }
    page.TypeOver(*page.Field(kRoute).txt, QStringLiteral("Delta"));
    page.PopUp(*page.Field(kRoute).lst, description ? Qt::Key_D : Qt::Key_T, false);
    frmDesPercorso& window = Opened(page);
    QCOMPARE(window.windowTitle(), QStringLiteral("Percorso : Delta"));
    QVERIFY(!page.IsOpen(kRoute));
    QCOMPARE(page.Caption("lblImmisPercorso"), QStringLiteral("Delta"));
    QCOMPARE(page->lstListaOrdinata->isVisible(), !description);
    QCOMPARE(page->lstListaOrdinata->ListCount(), !description && row >= 0 ? 1 : 0);
    QCOMPARE(window.txtTratto[1]->text(), QString());
    TypeInto(*window.txtTratto[1], QStringLiteral("dal ponte"));
    page.CloseRouteWindow();
    QCOMPARE(Module1::NomiPercorso[4], Text("Delta"));
    QCOMPARE(Module1::TrattoDescrizione[4][1], Text("dal ponte"));
    QCOMPARE(Module1::TrattoDescrizione[2][1], Text("t"));
    QCOMPARE(Module1::TrattoDescrizione[0][1], Text());
    VERIFY_SCRIPT(page.script);
}

void RouteWindowTest::thePopUpBehindAListedName_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("place");
    // Without a selection it is the route of the box, and the caption has no name to show.
    QTest::newRow("nothing selected") << -1 << "Percorso : " << 3;
    QTest::newRow("another one selected") << 1 << "Percorso : Beta" << 2;
}

void RouteWindowTest::thePopUpBehindAListedName()
{
    QFETCH(int, row);
    QFETCH(QString, title);
    QFETCH(int, place);
    EntryPage page;
    page.Start();
    page.Open(kRoute);
    if (row >= 0) {
        QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtPercorso"));
        page.ClickRow(*page.Field(kRoute).lst, row);
        QTRY_COMPARE(Module1::PercorsoCorrente, Text("Beta"));
        hand::Key(Qt::Key_Tab, Qt::ShiftModifier);
    }
    page.TypeOver(*page.Field(kRoute).txt, QStringLiteral("Gamma"));
    page.PopUp(*page.Field(kRoute).lst, Qt::Key_D, false);
    frmDesPercorso& window = Opened(page);
    QCOMPARE(window.windowTitle(), title);
    QCOMPARE(window.txtMetri[1]->text(), QString::number(place));
    TypeInto(*window.txtTratto[1], QStringLiteral("dal ponte"));
    page.CloseRouteWindow();
    for (int i = 1; i <= 3; ++i) {
        QCOMPARE(Module1::TrattoDescrizione[i][1], i == place ? Text("dal ponte") : Text("t"));
        QCOMPARE(Module1::TrattoMetri[i][1].value(), i);
    }
    VERIFY_SCRIPT(page.script);
}

void RouteWindowTest::moreThan200AtOpeningAndClosing()
{
    // The third place of this message, a new name, is a matter of the field's closing.
    EntryPage page;
    page.folder.Write(QStringLiteral("prova/ListePercorso"), RouteFileOf(TwoHundredNames()));
    page.Start();
    page->upKM->SetValue(12);
    page.script.Expect(Messages::kTooManyRoutes);
    OpenEntry(page, 1); // "Beta" is in the list but has no place
    frmDesPercorso& window = Opened(page);
    QCOMPARE(window.windowTitle(), QStringLiteral("Percorso : Beta"));
    QCOMPARE(window.txtDistanzaKm->text(), QString());
    VERIFY_SCRIPT(page.script);
    TypeInto(*window.txtKm[1], QStringLiteral("3"));
    page.script.Expect(Messages::kTooManyRoutes);
    page.CloseRouteWindow();
    VERIFY_SCRIPT(page.script);
    QCOMPARE(page->upKM->Value().value(), 12);
    QVERIFY(Module1::TrattoKm[0][1] == 0);
}

void RouteWindowTest::thePageIsBlocked()
{
    EntryPage page;
    page.Start();
    EnterRoute(page, QStringLiteral("Delta"));
    frmDesPercorso& window = Opened(page);
    QVERIFY(QApplication::activeModalWidget() == &window);
    page.CloseRouteWindow();
    page.Open(5);
    QTRY_VERIFY(page.IsOpen(5));
    VERIFY_SCRIPT(page.script);
}

void RouteWindowTest::moreThanTheTotalHolds_data()
{
    QTest::addColumn<QList<int>>("km");
    QTest::addColumn<QList<int>>("metres");
    QTest::addColumn<QString>("shown"); // of the kilometres
    QTest::newRow("kilometres") << QList<int>{2000000000, 2000000000} << QList<int>{1, 1} << QString();
    QTest::newRow("metres") << QList<int>{7, 5} << QList<int>{2000000000, 2000000000} << QStringLiteral("12");
    QTest::newRow("kilometres with those of the metres")
        << QList<int>{2147483640, 7} << QList<int>{600, 400} << QStringLiteral("2147483647");
}

/// No box takes so much, but a file does.
void RouteWindowTest::moreThanTheTotalHolds()
{
    QFETCH(QList<int>, km);
    QFETCH(QList<int>, metres);
    QFETCH(QString, shown);
    EntryPage page;
    page.Start();
    for (int stretch = 0; stretch < 2; ++stretch) {
        Module1::TrattoKm[1][stretch + 1] = km[stretch];
        Module1::TrattoMetri[1][stretch + 1] = metres[stretch];
    }
    page.script.Expect(Report(QStringLiteral("CalcolaDistanza - ERRORE : 6 Numero oltre i limiti")));
    OpenEntry(page, 0);
    TRY_SCRIPT(page.script);
    QCOMPARE(page.RouteWindow()->txtKm[2]->text(), QString::number(km[1]));
    QCOMPARE(page.RouteWindow()->txtDistanzaKm->text(), shown);
    QCOMPARE(page.RouteWindow()->txtDistanzaMetri->text(), QString());
}

void RouteWindowTest::moreThanTheDistanceHolds()
{
    EntryPage page;
    page.Start();
    // In metres more than 2,147,483,647.
    Module1::TrattoKm[1][1] = 3'000'000;
    OpenEntry(page, 0);
    page.script.Expect(Report(QStringLiteral("AssegnaArray - ERRORE : 6 Numero oltre i limiti")));
    page.CloseRouteWindow();
    VERIFY_SCRIPT(page.script);
    QCOMPARE(Module1::DistanzePercorso[1].value(), 1001);
    QCOMPARE(page->upKM->Value(), 0);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::RouteWindowTest)
#include "RouteWindowTest.moc"
