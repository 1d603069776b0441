// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The window of a route's description, opened from the page.
#include "routes/FrmDesPercorso.h"
#include "routes/RouteModel.h"
#include "support/EntryPage.h"

namespace zelvia::test
{
namespace
{

constexpr int kRoute = 1;

ExpectedBox TooMany()
{
    return {QStringLiteral(" DESCRIZIONE MAX PER 200 PERCORSI "), QMessageBox::Critical};
}

/// Types a name into the field of the route and confirms it.
void EnterRoute(const EntryPage& page, const QString& name)
{
    page.Open(kRoute);
    page.TypeOver(*page.Field(kRoute).txt, name);
    hand::Key(Qt::Key_Return);
    QTRY_VERIFY(!page.IsOpen(kRoute));
}

frmDesPercorso& Opened(const EntryPage& page)
{
    if (!QTest::qWaitFor([&] { return page.RouteWindow() != nullptr; }) ||
        !QTest::qWaitForWindowActive(page.RouteWindow())) {
        qFatal("no window of a route");
    }
    return *page.RouteWindow();
}

/// Opens the description of an entry of the list by the pop-up.
void OpenEntry(const EntryPage& page, int row)
{
    page.Open(kRoute);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtPercorso"));
    page.ClickRow(*page.Field(kRoute).lst, row);
    QTRY_COMPARE(page.Field(kRoute).lst->ListIndex(), row);
    page.PopUp(*page.Field(kRoute).lst, Qt::Key_D, false);
    QTRY_VERIFY(page.RouteWindow() != nullptr);
}

void TypeInto(TextBox& box, const QString& text)
{
    box.SetFocus();
    QTRY_VERIFY(box.hasFocus());
    hand::Type(text);
}

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
    void opensForANewNameOnly_data();
    void opensForANewNameOnly();
    void theLowestFreePlaceIsTaken();
    void theCommandOpensTheSelectedRoute();
    void enterWalksThroughTheRows();
    void onlyDigitsPass_data();
    void onlyDigitsPass();
    void everyKeyCountsAsAChange_data();
    void everyKeyCountsAsAChange();
    void lengthsAreLimited();
    void totals_data();
    void totals();
    void theSumsFollowTheFocus();
    void closingStoresAndSetsTheDistance();
    void anEmptyDescriptionSetsTheDistanceToZero();
    void anEmptyCurrentRouteTakesTheFirstFreePlace();
    void aRouteWithoutAPlaceUsesRowZero();
    void moreThan200AtOpeningAndClosing();
    void thePageIsBlocked();
};

void RouteWindowTest::init()
{
    // Row 0, where ends what has no place, is emptied by nothing.
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

void RouteWindowTest::enterWalksThroughTheRows()
{
    EntryPage page;
    page.Start();
    EnterRoute(page, QStringLiteral("Delta"));
    frmDesPercorso& window = Opened(page);
    QTRY_VERIFY(window.txtTratto[1]->hasFocus());
    for (int row = 1; row <= 20; ++row) {
        QTRY_VERIFY(window.txtTratto[row]->hasFocus());
        hand::Key(Qt::Key_Return);
        QTRY_VERIFY(window.txtKm[row]->hasFocus());
        hand::Key(Qt::Key_Return);
        QTRY_VERIFY(window.txtMetri[row]->hasFocus());
        hand::Key(Qt::Key_Return);
    }
    // On the last row the focus stays.
    hand::Type(QStringLiteral("5"));
    QTRY_COMPARE(window.txtMetri[20]->text(), QStringLiteral("5"));
    QVERIFY(window.txtMetri[20]->hasFocus());
    page.CloseRouteWindow();
    VERIFY_SCRIPT(page.script);
}

void RouteWindowTest::onlyDigitsPass_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shows");
    QTest::newRow("km") << "txtKm(3)"
                        << "a-1,.2 "
                        << "12";
    QTest::newRow("metres") << "txtMetri(3)"
                            << "+x9/:8 7"
                            << "987";
    QTest::newRow("text") << "txtTratto(3)"
                          << "a-1,.2 "
                          << "a-1,.2 ";
}

void RouteWindowTest::onlyDigitsPass()
{
    QFETCH(QString, box);
    QFETCH(QString, typed);
    QFETCH(QString, shows);
    EntryPage page;
    page.Start();
    EnterRoute(page, QStringLiteral("Delta"));
    auto& target = *Opened(page).findChild<TextBox*>(box);
    TypeInto(target, typed);
    QTRY_COMPARE(target.text(), shows);
    if (box != QLatin1String("txtTratto(3)")) {
        hand::Key(Qt::Key_Backspace);
        QTRY_COMPARE(target.text(), shows.chopped(1));
    }
    page.CloseRouteWindow();
    VERIFY_SCRIPT(page.script);
}

void RouteWindowTest::everyKeyCountsAsAChange_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<int>("key");
    for (const char* box : {"txtTratto(2)", "txtKm(2)", "txtMetri(2)"}) {
        QTest::addRow("a letter in %s", box) << QString::fromLatin1(box) << int(Qt::Key_A);
        QTest::addRow("a digit in %s", box) << QString::fromLatin1(box) << int(Qt::Key_1);
        QTest::addRow("Enter in %s", box) << QString::fromLatin1(box) << int(Qt::Key_Return);
        QTest::addRow("Backspace in %s", box) << QString::fromLatin1(box) << int(Qt::Key_Backspace);
        QTest::addRow("Escape in %s", box) << QString::fromLatin1(box) << int(Qt::Key_Escape);
    }
}

void RouteWindowTest::everyKeyCountsAsAChange()
{
    QFETCH(QString, box);
    QFETCH(int, key);
    EntryPage page;
    page.Start();
    OpenEntry(page, 1);
    auto& target = *Opened(page).findChild<TextBox*>(box);
    target.SetFocus();
    QTRY_VERIFY(target.hasFocus());
    Module1::FileModificato = 0;
    // The arrows are no characters.
    hand::Key(Qt::Key_Left);
    QVERIFY(Module1::FileModificato == 0);
    if (key == Qt::Key_A || key == Qt::Key_1) {
        hand::Type(QString(QChar(key == Qt::Key_A ? u'a' : u'1')));
    } else {
        hand::Key(Qt::Key(key));
    }
    QTRY_VERIFY(Module1::FileModificato == 1);
    QVERIFY(page.RouteWindow() != nullptr);
    page.CloseRouteWindow();
    VERIFY_SCRIPT(page.script);
}

void RouteWindowTest::lengthsAreLimited()
{
    EntryPage page;
    page.Start();
    EnterRoute(page, QStringLiteral("Delta"));
    frmDesPercorso& window = Opened(page);
    TypeInto(*window.txtTratto[1], QString(85, QLatin1Char('w')));
    QTRY_COMPARE(window.txtTratto[1]->text().size(), 80);
    TypeInto(*window.txtKm[1], QStringLiteral("123"));
    QTRY_COMPARE(window.txtKm[1]->text(), QStringLiteral("12"));
    TypeInto(*window.txtMetri[1], QStringLiteral("1234"));
    QTRY_COMPARE(window.txtMetri[1]->text(), QStringLiteral("123"));
    page.CloseRouteWindow();
    QCOMPARE(page.Caption("lblImmisMetri"), QStringLiteral("12,123"));
    VERIFY_SCRIPT(page.script);
}

void RouteWindowTest::totals_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("km");
    QTest::addColumn<int>("metres");
    QTest::addColumn<QString>("totalKm");
    QTest::addColumn<QString>("totalMetres");
    QTest::addColumn<int>("rest");
    QTest::newRow("20 stretches of 999 metres") << 20 << 0 << 999 << "19"
                                                << "980" << 980;
    QTest::newRow("a whole kilometre of metres") << 2 << 3 << 500 << "7"
                                                 << "0" << 0;
    // Below a kilometre nothing is left over, since nothing was taken off.
    QTest::newRow("999 metres") << 1 << 4 << 999 << "4"
                                << "999" << 0;
    QTest::newRow("the most") << 20 << 99 << 999 << "1999"
                              << "980" << 980;
}

void RouteWindowTest::totals()
{
    QFETCH(int, rows);
    QFETCH(int, km);
    QFETCH(int, metres);
    QFETCH(QString, totalKm);
    QFETCH(QString, totalMetres);
    QFETCH(int, rest);
    EntryPage page;
    page.Start();
    EnterRoute(page, QStringLiteral("Delta"));
    frmDesPercorso& window = Opened(page);
    for (int row = 1; row <= rows; ++row) {
        window.txtKm[row]->SetContent(std::to_string(km));
        window.txtMetri[row]->SetContent(std::to_string(metres));
    }
    // The sums are made when a box of them loses the focus.
    window.txtMetri[1]->SetFocus();
    window.txtTratto[1]->SetFocus();
    QTRY_COMPARE(window.txtDistanzaKm->text(), totalKm);
    QCOMPARE(window.txtDistanzaMetri->text(), totalMetres);
    QVERIFY(window.TotaleKm == totalKm.toInt());
    QVERIFY(window.TotaleMetri == rows * metres);
    QVERIFY(window.RestoMetri == rest);
    page.CloseRouteWindow();
    QCOMPARE(page->upKM->Value().value(), totalKm.toInt());
    QCOMPARE(page->upMetri->Value().value(), totalMetres.toInt());
    QVERIFY(Module1::DistanzePercorso[4] == totalKm.toInt() * 1000 + totalMetres.toInt());
    VERIFY_SCRIPT(page.script);
}

void RouteWindowTest::theSumsFollowTheFocus()
{
    EntryPage page;
    page.Start();
    EnterRoute(page, QStringLiteral("Delta"));
    frmDesPercorso& window = Opened(page);
    QCOMPARE(window.txtDistanzaKm->text(), QStringLiteral("0"));
    TypeInto(*window.txtKm[1], QStringLiteral("4"));
    QCOMPARE(window.txtDistanzaKm->text(), QStringLiteral("0"));
    hand::Key(Qt::Key_Tab);
    QTRY_COMPARE(window.txtDistanzaKm->text(), QStringLiteral("4"));
    hand::Type(QStringLiteral("150"));
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(window.txtDistanzaMetri->text(), QStringLiteral("150"));
    page.CloseRouteWindow();
    VERIFY_SCRIPT(page.script);
}

void RouteWindowTest::closingStoresAndSetsTheDistance()
{
    EntryPage page;
    page.Start();
    page->upMetro->SetValue(4);
    EnterRoute(page, QStringLiteral("Delta"));
    frmDesPercorso& window = Opened(page);
    hand::Type(QStringLiteral("dal ponte"));
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

void RouteWindowTest::moreThan200AtOpeningAndClosing()
{
    // The third place of this message, a new name, is a matter of the field's closing.
    EntryPage page;
    page.folder.Write(QStringLiteral("prova/ListePercorso"), RouteFileOf(TwoHundredNames()));
    page.Start();
    page->upKM->SetValue(12);
    page.script.Expect(TooMany());
    OpenEntry(page, 1); // "Beta" is in the list but has no place
    frmDesPercorso& window = Opened(page);
    QCOMPARE(window.windowTitle(), QStringLiteral("Percorso : Beta"));
    QCOMPARE(window.txtDistanzaKm->text(), QString());
    VERIFY_SCRIPT(page.script);
    TypeInto(*window.txtKm[1], QStringLiteral("3"));
    page.script.Expect(TooMany());
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

} // namespace zelvia::test

DAY_PAGE_TEST_MAIN(zelvia::test::RouteWindowTest)
#include "RouteWindowTest.moc"
