// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The field of the route: what it remembers, and what it knows of a route that was run before.
#include "diary/RouteModel.h"
#include "support/EntryPage.h"
#include "support/WindowTest.h"
#include "windows/routes/FrmDesPercorso.h"

namespace zelvia::test
{
namespace
{

constexpr int kRoute = 1;
constexpr int kHands = 15;

/// A run of a route as it is in a day; everything of it differs from an empty page.
void PutRun(int slot, TextView route, TextView length, TextView ground, int km, int metres)
{
    RecordGiorno& day = Module1::Giorni[slot];
    day.Percorso = Text(route);
    day.Lunghezza = Text(length);
    day.Fondo = Text(ground);
    day.Km = km;
    day.Metri = metres;
    day.Modo = "Lenta";
    day.Tipo = "Gara";
    day.OraInizio = 9;
    day.OraFine = 10;
    day.TempoImpiegato = "1:00:00";
    day.MediaKm = "6:00";
    day.Stagione = "Estate";
    day.TempoAtm = "Sole";
    day.Temperatura = "Afa";
    day.Peso = 70;
    day.Ripetizioni = 4;
    day.Note[3] = "nota";
}

/// Opens the field and double clicks a row of its list.
void Take(const EntryPage& page, int row)
{
    page.Open(kRoute);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtPercorso"));
    ListBox& list = *page.Field(kRoute).lst;
    hand::DoubleClick(*list.viewport(), EntryPage::RowAt(list, row));
    QTRY_VERIFY(!page.IsOpen(kRoute));
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("pctGiornoAnno"));
}

} // namespace

class RouteFieldTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theHandStaysWhereAListedTextCloses_data();
    void theHandStaysWhereAListedTextCloses();
    void theCurrentRoute();
    void theSearchGoesDownFromTheLastDay_data();
    void theSearchGoesDownFromTheLastDay();
    void nothingElseIsCopied();
    void aRouteNeverRunLeavesThePageAlone();
    void theSearchRecomputes_data();
    void theSearchRecomputes();
    void closesInOrder();
    void deletingARouteFreesItsDescription();
    void aDeletedRouteComesBackFromADay();
};

void RouteFieldTest::theHandStaysWhereAListedTextCloses_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("hands");
    QTest::newRow("listed") << "Alfa" << kHands;
    QTest::newRow("listed in another case") << "aLFA" << kHands;
    QTest::newRow("empty") << "" << 0;
    QTest::newRow("blanks") << "   " << 0;
    QTest::newRow("new") << "Nuova" << 0;
}

void RouteFieldTest::theHandStaysWhereAListedTextCloses()
{
    QFETCH(QString, typed);
    QFETCH(int, hands);
    EntryPage page;
    page.Start();
    page.Open(kRoute);
    page.TypeOver(*page.Field(kRoute).txt, typed);
    hand::Key(Qt::Key_Return);
    QTRY_VERIFY(!page.IsOpen(kRoute));
    QCOMPARE(page.Hands(), hands);
    if (typed == QLatin1String("Nuova")) {
        page.CloseRouteWindow();
    }
    // The next field that closes takes the hand away.
    page.Open(5);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtTipo"));
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(page.Hands(), 0);
    VERIFY_SCRIPT(page.script);
}

void RouteFieldTest::theCurrentRoute()
{
    EntryPage page;
    page.Start();
    QCOMPARE(Module1::PercorsoCorrente, Text());
    page.Open(kRoute);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtPercorso"));
    page.ClickRow(*page.Field(kRoute).lst, 2);
    QTRY_COMPARE(Module1::PercorsoCorrente, Text("Gamma"));
    hand::Key(Qt::Key_Up);
    QTRY_COMPARE(Module1::PercorsoCorrente, Text("Beta"));
    hand::Key(Qt::Key_Escape);
    // The field closes on its own text, which is empty still.
    QTRY_VERIFY(!page.IsOpen(kRoute));
    QCOMPARE(Module1::PercorsoCorrente, Text());
    page.Open(kRoute);
    page.TypeOver(*page.Field(kRoute).txt, QStringLiteral(" alfa "));
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(Module1::PercorsoCorrente, Text("alfa"));
    Take(page, 1);
    QCOMPARE(Module1::PercorsoCorrente, Text("Beta"));
    // Another list does not touch it.
    page.Open(2);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtLunghezza"));
    page.ClickRow(*page.Field(2).lst, 2);
    QTRY_COMPARE(page.Field(2).lst->ListIndex(), 2);
    QCOMPARE(Module1::PercorsoCorrente, Text("Beta"));
    VERIFY_SCRIPT(page.script);
}

void RouteFieldTest::theSearchGoesDownFromTheLastDay_data()
{
    QTest::addColumn<QList<int>>("slots");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("from");
    const QString name = QStringLiteral("Alfa");
    QTest::newRow("the first day of the year") << QList<int>{1} << name << 1;
    QTest::newRow("an earlier day") << QList<int>{100} << name << 100;
    QTest::newRow("the later of two earlier ones") << QList<int>{100, 101} << name << 101;
    QTest::newRow("the day on show") << QList<int>{100, 140} << name << 140;
    QTest::newRow("a later day") << QList<int>{100, 140, 200} << name << 200;
    QTest::newRow("the last place") << QList<int>{1, 200, 366} << name << 366;
    QTest::newRow("in another case") << QList<int>{100} << QStringLiteral("ALFA") << 100;
}

void RouteFieldTest::theSearchGoesDownFromTheLastDay()
{
    QFETCH(QList<int>, slots);
    QFETCH(QString, name);
    QFETCH(int, from);
    EntryPage page;
    page.Start();
    for (const int slot : std::as_const(slots)) {
        const Text number = std::to_string(slot);
        PutRun(slot, FromQString(name), "L" + number, "F" + number, slot, 10);
    }
    PutRun(50, "Alfa bis", "L50", "F50", 50, 50);
    Take(page, 0);
    const QString number = QString::number(from);
    QCOMPARE(page.Caption("lblImmisPercorso"), QStringLiteral("Alfa"));
    QCOMPARE(page.Caption("lblImmisLunghezza"), QLatin1Char('L') + number);
    QCOMPARE(page.Caption("txtLunghezza"), QLatin1Char('L') + number);
    QCOMPARE(page.Caption("lblImmisFondo"), QLatin1Char('F') + number);
    QCOMPARE(page.Caption("txtFondo"), QLatin1Char('F') + number);
    QCOMPARE(page.Caption("lblImmisMetri"), number + QStringLiteral(",010"));
    VERIFY_SCRIPT(page.script);
}

void RouteFieldTest::nothingElseIsCopied()
{
    EntryPage page;
    page.Start();
    PutRun(100, "Beta", "Lungo", "Strada", 12, 995);
    page->upMetro->SetValue(5);
    Take(page, 1);
    QCOMPARE(page->upKM->Value().value(), 12);
    QCOMPARE(page->upMetri->Value().value(), 995);
    QCOMPARE(page->upMetro->Value().value(), 0);
    QCOMPARE(page.Caption("lblImmisMetri"), QStringLiteral("12,995"));
    for (const int other : {3, 5, 6, 7, 8}) {
        QCOMPARE(page.Field(other).lblImmis->text(), QString());
        QCOMPARE(page.Field(other).txt->text(), QString());
    }
    QCOMPARE(page.Caption("lblImmisOraInizio"), QStringLiteral("0:00:00"));
    QCOMPARE(page.Caption("lblImmisOraFine"), QStringLiteral("0:00:00"));
    QCOMPARE(page.Caption("lblImmisPeso"), QStringLiteral("0"));
    QCOMPARE(page.Caption("lblRipetizioniVolte"), QStringLiteral("0"));
    QCOMPARE(page.Caption("lblNote3"), QString());
    QVERIFY(Module1::FileModificato == 0);
    VERIFY_SCRIPT(page.script);
}

void RouteFieldTest::aRouteNeverRunLeavesThePageAlone()
{
    EntryPage page;
    page.Start();
    PutRun(100, "Beta", "Lungo", "Strada", 12, 500);
    page.Field(2).lblImmis->SetCaption("Corto");
    page.Field(4).lblImmis->SetCaption("Pista");
    page->upKM->SetValue(7);
    page->upMetro->SetValue(3);
    page->lblOutTempoImpiegato->SetCaption("0:41:00");
    DayPage::Day().TempoImpiegato = "0:41:00";
    Take(page, 0);
    QCOMPARE(page.Caption("lblImmisPercorso"), QStringLiteral("Alfa"));
    QCOMPARE(page.Caption("lblImmisLunghezza"), QStringLiteral("Corto"));
    QCOMPARE(page.Caption("lblImmisFondo"), QStringLiteral("Pista"));
    QCOMPARE(page.Caption("lblImmisMetri"), QStringLiteral("7,003"));
    QCOMPARE(page->upMetro->Value().value(), 3);
    // Nothing was computed either: that would have blanked the time of a run without an end.
    QCOMPARE(page.Caption("lblOutTempoImpiegato"), QStringLiteral("0:41:00"));
    QCOMPARE(DayPage::Day().TempoImpiegato, Text("0:41:00"));
    VERIFY_SCRIPT(page.script);
}

void RouteFieldTest::theSearchRecomputes_data()
{
    QTest::addColumn<int>("hour");
    QTest::addColumn<int>("km");
    QTest::addColumn<QString>("time");
    QTest::addColumn<QString>("pace");
    QTest::addColumn<bool>("listed");
    QTest::newRow("time and average") << 10 << 12 << "1:00:00"
                                      << "5:00" << true;
    QTest::newRow("no end time") << 0 << 12 << "0:00:00"
                                 << "0:00" << false;
    // With an end but no distance the time alone is not shown from here.
    QTest::newRow("no distance") << 10 << 0 << "0:00:00"
                                 << "0:00" << false;
}

void RouteFieldTest::theSearchRecomputes()
{
    QFETCH(int, hour);
    QFETCH(int, km);
    QFETCH(QString, time);
    QFETCH(QString, pace);
    QFETCH(bool, listed);
    EntryPage page;
    page.Start();
    PutRun(100, "Beta", "Lungo", "Strada", km, 0);
    if (hour > 0) {
        page->upOraInizio->SetValue(hour - 1);
        page->upOraFine->SetValue(hour);
    }
    page->lblOutTempoImpiegato->SetCaption("old");
    page->lblOutMediaKM->SetCaption("old");
    Take(page, 1);
    QCOMPARE(page.Caption("lblOutTempoImpiegato"), time);
    QCOMPARE(page.Caption("lblOutMediaKM"), pace);
    QCOMPARE(page->lstListaOrdinata->isVisible(), listed);
    VERIFY_SCRIPT(page.script);
}

void RouteFieldTest::closesInOrder()
{
    // With every place of a description taken, a new name ends in a box in the middle of the closing.
    EntryPage page;
    page.folder.Write(QStringLiteral("prova/ListePercorso"), RouteFileOf(TwoHundredNames()));
    page.Start();
    page->ListaAperta = 5;
    page.Open(kRoute);
    page.TypeOver(*page.Field(kRoute).txt, QStringLiteral(" Nuova "));
    QStringList seen;
    page.script.Expect({QStringLiteral(" DESCRIZIONE MAX PER 200 PERCORSI "), QMessageBox::Critical});
    page.script.Meanwhile([&] {
        const ListControls& field = page.Field(kRoute);
        seen << (field.txt->isVisible() || field.lst->isVisible() ? QStringLiteral("open") : QStringLiteral("hidden"))
             << QString::number(page->ListaAperta.value()) << page.ListOf(kRoute).constLast() << field.lblImmis->text()
             << ToQString(Module1::PercorsoCorrente) << QString::number(page.Hands());
    });
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(seen, QStringList({QStringLiteral("hidden"), QStringLiteral("0"), QStringLiteral("Nuova"),
                                    QStringLiteral("Nuova"), QStringLiteral("Nuova"), QString::number(kHands)}));
    QTRY_COMPARE(page.Hands(), 0);
    QCOMPARE(page.RouteWindow(), nullptr);
    VERIFY_SCRIPT(page.script);
}

void RouteFieldTest::deletingARouteFreesItsDescription()
{
    EntryPage page;
    page.Start();
    DayPage::Day().Percorso = "Beta";
    page->VisualizzaGiorno();
    QVERIFY(Module1::DistanzePercorso[2] == 1002);
    page.Open(kRoute);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtPercorso"));
    page.ClickRow(*page.Field(kRoute).lst, 1);
    QTRY_COMPARE(Module1::PercorsoCorrente, Text("Beta"));
    page.PopUp(*page.Field(kRoute).lst, Qt::Key_C);
    QCOMPARE(page.ListOf(kRoute), QStringList({QStringLiteral("Alfa"), QStringLiteral("Gamma")}));
    QCOMPARE(page.Field(kRoute).txt->text(), QString());
    QCOMPARE(page.Caption("lblImmisPercorso"), QStringLiteral("Beta"));
    QVERIFY(Module1::FileModificato == 1);
    QCOMPARE(Module1::NomiPercorso[1], Text("Alfa"));
    QCOMPARE(Module1::NomiPercorso[2], Text());
    QVERIFY(Module1::DistanzePercorso[2] == 0);
    QCOMPARE(Module1::TrattoDescrizione[2][1], Text());
    QVERIFY(Module1::TrattoKm[2][1] == 0);
    QVERIFY(Module1::TrattoMetri[2][1] == 0);
    QCOMPARE(Module1::NomiPercorso[3], Text("Gamma"));
    // The day keeps the name until its field is closed, which takes the emptied box.
    QCOMPARE(DayPage::Day().Percorso, Text("Beta"));
    hand::Click(*page.Field(kRoute).txt);
    QTRY_VERIFY(!page.IsOpen(kRoute));
    QCOMPARE(page.Caption("lblImmisPercorso"), QString());
    VERIFY_SCRIPT(page.script);
}

void RouteFieldTest::aDeletedRouteComesBackFromADay()
{
    EntryPage page;
    page.Start();
    Module1::Giorni[141].Percorso = "Alfa";
    page.Open(kRoute);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtPercorso"));
    page.ClickRow(*page.Field(kRoute).lst, 0);
    QTRY_COMPARE(Module1::PercorsoCorrente, Text("Alfa"));
    page.PopUp(*page.Field(kRoute).lst, Qt::Key_C);
    hand::Click(*page.Field(kRoute).txt);
    QTRY_VERIFY(!page.IsOpen(kRoute));
    QCOMPARE(Module1::NomiPercorso[1], Text());

    page.GoTo(141);
    QCOMPARE(page.Caption("lblImmisPercorso"), QStringLiteral("Alfa"));
    page.Open(kRoute);
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtPercorso"));
    hand::Key(Qt::Key_Return);
    QTRY_VERIFY(page.RouteWindow() != nullptr);
    QCOMPARE(page.ListOf(kRoute),
             QStringList({QStringLiteral("Beta"), QStringLiteral("Gamma"), QStringLiteral("Alfa")}));
    QCOMPARE(page.Caption("lblImmisPercorso"), QStringLiteral("Alfa"));
    // The lowest free place is the one that the deletion freed.
    QCOMPARE(Module1::NomiPercorso[1], Text("Alfa"));
    page.CloseRouteWindow();
    VERIFY_SCRIPT(page.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::RouteFieldTest)
#include "RouteFieldTest.moc"
