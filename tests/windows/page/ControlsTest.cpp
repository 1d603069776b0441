// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of the page: names, limits, captions, what is visible at rest, what the spins write, the hand.
#include "core/Files.h"
#include "support/DayPage.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
namespace
{

struct SpinRow {
    const char* name;
    int minimum;
    int maximum;
    int increment;
    int start;
};

constexpr SpinRow kSpins[] = {
    {"upKM", 0, 500, 1, 0},
    {"upMetri", 0, 990, 10, 0},
    {"upMetro", 0, 9, 1, 0},
    {"upOraInizio", 0, 24, 1, 0},
    {"upMinutiInizio", 0, 59, 1, 0},
    {"upSecondiInizio", 0, 59, 1, 0},
    {"upOraFine", 0, 24, 1, 0},
    {"upMinutiFine", 0, 59, 1, 0},
    {"upSecondiFine", 0, 59, 1, 0},
    {"upCorridori", 1, 100000, 1, 1},
    {"upPeso", 0, 150, 1, 30},
    {"upRipetizioni", 0, 99, 1, 0},
    {"upRipetizioniQuante", 0, 60, 1, 0},
    {"upRipetizioniTempi", 0, 59, 1, 0},
    {"upRipetizioniDistanza", 0, 10000, 100, 0},
    {"upTempoKM", 0, 100, 1, 0},
    {"upTempoOre", 0, 24, 1, 0},
    {"upTempoMinuti", 0, 59, 1, 0},
    {"upTempoSecondi", 0, 59, 1, 0},
    {"upGiorno", 0, 31, 1, 0},
    {"upMese", 0, 12, 1, 0},
};

constexpr const char* kFields[] = {"Percorso", "Lunghezza", "Modo",     "Fondo",
                                   "Tipo",     "Stagione",  "TempoAtm", "Temperatura"};

constexpr const char* kHandLabels[] = {"lblPercorso",    "lblLunghezza", "lblKm",      "lblModo",     "lblFondo",
                                       "lblTipo",        "lblOraInizio", "lblOraFine", "lblStagione", "lblTempoAtm",
                                       "lblTemperatura", "lblCorridori", "lblPeso",    "lblTempoKm",  "lblRipetizioni"};

constexpr const char* kPlanPanel[] = {"pctTabAllenamenti", "pctTabKm",         "pctTabTempo",       "pctTabMedia",
                                      "pctTabAndatura",    "pctTabTerreno",    "pctTabRipetizioni", "lblTabNomeFile",
                                      "lblKmTab",          "lblTempoTab",      "lblMediaTab",       "lblAndaturaTab",
                                      "lblFondoTab",       "lblRipetizioniTab"};

constexpr const char* kRacePanel[] = {"pctCalGara",         "pctCalLocalita",       "pctCalLunghezza",
                                      "pctCalPartecipanti", "pctCalTempoImpiegato", "pctCalRisultato",
                                      "pctCalCategoria",    "pctCalRisCategoria",   "lblGara",
                                      "lblLocalita",        "lblPartecipanti",      "lblTempoImpiegato",
                                      "lblLunghezzaGara",   "lblRisultato",         "lblCategoria",
                                      "lblRisultatoCat"};

constexpr const char* kAlwaysShown[] = {"lblData",
                                        "lblNomeFile",
                                        "lblNumGiornoAnno",
                                        "lblNumGiorniCorseAnno",
                                        "lblNumKMPercorsi",
                                        "lblNumGare",
                                        "pctGiornoAnno",
                                        "pctAllenamenti",
                                        "pctKmpercorsi",
                                        "pctGare",
                                        "lblImmisMetri",
                                        "lblImmisOraInizio",
                                        "lblImmisOraFine",
                                        "lblImmisCorridori",
                                        "lblImmisPeso",
                                        "lblRipetizioniVolte",
                                        "lblRipetizioniQuante",
                                        "lblRipetizioniDistanza",
                                        "lblOutTempoImpiegato",
                                        "lblOutMediaKM",
                                        "lblImmisTempoKM",
                                        "lblImmisTempoMinuti",
                                        "chkBarraGiorno1",
                                        "chkBarraGiorno2",
                                        "chkBarraGiorno3",
                                        "chkBarraGiorno4",
                                        "chkBordoInf",
                                        "chkBordoSup",
                                        "chkBordoSup2"};

constexpr const char* kHiddenAtRest[] = {"lstListaKM", "cmdListaKM", "lstListaOrdinata", "cmdLO1",
                                         "cmdLO2",     "cmdLO3",     "cmdLO4",           "lblTimerTab"};

QWidget* Named(const QWidget& window, const QString& name)
{
    const QList<QWidget*> found = window.findChildren<QWidget*>(name);
    return found.size() == 1 ? found.first() : nullptr;
}

} // namespace

class ControlsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void spinLimits_data();
    void spinLimits();
    void captionsOfTheNewWindow_data();
    void captionsOfTheNewWindow();
    void visibleAtRest();
    void dateHasItsFaceAndTips();
    void textBoxesHoldTheirLength_data();
    void textBoxesHoldTheirLength();
    void spinsWriteTheirLabels_data();
    void spinsWriteTheirLabels();
    void arrowsStopAtTheLimits();
    void singleMetresUntilTheNextChange();
    void handOnTheFifteenLabels();
    void handFileMissingOrDamaged_data();
    void handFileMissingOrDamaged();
};

void ControlsTest::spinLimits_data()
{
    QTest::addColumn<int>("row");
    for (std::size_t i = 0; i < std::size(kSpins); ++i) {
        QTest::newRow(kSpins[i].name) << static_cast<int>(i);
    }
}

void ControlsTest::spinLimits()
{
    QFETCH(int, row);
    const SpinRow& expected = kSpins[row];
    const DayPage page;
    const frmMain window;
    const QWidget* spin = Named(window, QLatin1String(expected.name));
    QVERIFY(spin != nullptr);
    QCOMPARE(spin->property("minimum").toInt(), expected.minimum);
    QCOMPARE(spin->property("maximum").toInt(), expected.maximum);
    QCOMPARE(spin->property("increment").toInt(), expected.increment);
    QCOMPARE(spin->property("value").toInt(), expected.start);
    QVERIFY(spin->isHidden());
}

void ControlsTest::captionsOfTheNewWindow_data()
{
    QTest::addColumn<QString>("caption");
    const struct {
        const char* name;
        const char* caption;
    } rows[] = {{"lblImmisMetri", "0,0"},
                {"lblImmisOraInizio", "0:00:00"},
                {"lblImmisOraFine", "0:00:00"},
                {"lblImmisCorridori", "1"},
                {"lblImmisPeso", "0"},
                {"lblRipetizioniVolte", "0"},
                {"lblRipetizioniQuante", "0:00"},
                {"lblRipetizioniDistanza", "00"},
                {"lblTimerTab", "0"},
                {"lblTabNomeFile", "Nessuna tabella attiva"}};
    for (const auto& row : rows) {
        QTest::newRow(row.name) << row.caption;
    }
}

void ControlsTest::captionsOfTheNewWindow()
{
    QFETCH(QString, caption);
    const DayPage page;
    const frmMain window;
    const QWidget* label = Named(window, QLatin1String(QTest::currentDataTag()));
    QVERIFY(label != nullptr);
    QCOMPARE(label->property("text").toString(), caption);
}

void ControlsTest::visibleAtRest()
{
    DayPage page; // a day without a race
    page.Start();
    VERIFY_SCRIPT(page.script);
    const auto check = [&](const QString& name, bool visible) {
        const QWidget* control = Named(page.Page(), name);
        QVERIFY2(control != nullptr, qPrintable(name));
        QVERIFY2(control->isVisible() == visible, qPrintable(name));
    };
    const auto checkAll = [&](const auto& names, bool visible) {
        for (const char* name : names) {
            check(QLatin1String(name), visible);
        }
    };
    for (const char* field : kFields) {
        check(QLatin1String("lbl") + QLatin1String(field), true);
        check(QLatin1String("lblImmis") + QLatin1String(field), true);
        check(QLatin1String("txt") + QLatin1String(field), false);
        check(QLatin1String("lst") + QLatin1String(field), false);
    }
    for (int line = 3; line <= 10; ++line) {
        check(QStringLiteral("lblNote%1").arg(line), true);
        check(QStringLiteral("txtNote%1").arg(line), false);
    }
    checkAll(kHandLabels, true);
    checkAll(kAlwaysShown, true);
    checkAll(kPlanPanel, true);
    checkAll(kRacePanel, false);
    checkAll(kHiddenAtRest, false);
    for (const SpinRow& spin : kSpins) {
        check(QLatin1String(spin.name), false);
    }
}

void ControlsTest::dateHasItsFaceAndTips()
{
    const DayPage page;
    const frmMain window;
    QCOMPARE(window.lblData->font().families().first(), QStringLiteral("Times New Roman"));
    QCOMPARE(window.upGiorno->toolTip(), QStringLiteral("giorno"));
    QCOMPARE(window.upMese->toolTip(), QStringLiteral("mese"));
    QCOMPARE(window.tmrFocus->objectName(), QStringLiteral("tmrFocus"));
    QCOMPARE(window.objectName(), QStringLiteral("frmMain"));
    QCOMPARE(window.windowTitle(), QStringLiteral("Zelvia"));
}

void ControlsTest::textBoxesHoldTheirLength_data()
{
    QTest::addColumn<int>("length");
    for (const char* field : kFields) {
        QTest::addRow("txt%s", field) << 22;
    }
}

void ControlsTest::textBoxesHoldTheirLength()
{
    QFETCH(int, length);
    DayPage page;
    page.Start();
    auto* box = page->findChild<TextBox*>(QLatin1String(QTest::currentDataTag()));
    QVERIFY(box != nullptr);
    box->SetContent("");
    QTest::keyClicks(box, QString(40, QLatin1Char('m')));
    QCOMPARE(box->text().size(), length);
    VERIFY_SCRIPT(page.script);
}

void ControlsTest::spinsWriteTheirLabels_data()
{
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("caption");
    const struct {
        const char* steps;
        const char* label;
        const char* caption;
    } rows[] = {
        {"upKM 12", "lblImmisMetri", "12,000"},
        {"upMetri 50", "lblImmisMetri", "0,050"},
        {"upMetro 5", "lblImmisMetri", "0,005"},
        {"upKM 42;upMetri 190;upMetro 5", "lblImmisMetri", "42,195"},
        {"upMetri 990;upMetro 9;upKM 1", "lblImmisMetri", "1,990"},
        {"upKM 100;upMetro 5;upMetri 10", "lblImmisMetri", "100,010"},
        {"upOraInizio 7", "lblImmisOraInizio", "7:00:00"},
        {"upOraInizio 24;upMinutiInizio 5;upSecondiInizio 9", "lblImmisOraInizio", "24:05:09"},
        {"upMinutiInizio 59", "lblImmisOraInizio", "0:59:00"},
        {"upOraFine 8;upSecondiFine 30", "lblImmisOraFine", "8:00:30"},
        {"upMinutiFine 1", "lblImmisOraFine", "0:01:00"},
        {"upCorridori 100000", "lblImmisCorridori", "100000"},
        {"upPeso 72", "lblImmisPeso", "72"},
        {"upRipetizioni 10", "lblRipetizioniVolte", "10"},
        {"upRipetizioniDistanza 1000", "lblRipetizioniDistanza", "1000"},
        {"upRipetizioniDistanza 100;upRipetizioniDistanza 0", "lblRipetizioniDistanza", "0"},
        {"upRipetizioniQuante 4;upRipetizioniTempi 5", "lblRipetizioniQuante", "4:05"},
        {"upRipetizioniTempi 45", "lblRipetizioniQuante", "0:45"},
    };
    for (const auto& row : rows) {
        QTest::newRow(row.steps) << QString::fromLatin1(row.steps).split(QLatin1Char(';')) << row.label << row.caption;
    }
}

void ControlsTest::spinsWriteTheirLabels()
{
    QFETCH(QStringList, steps);
    QFETCH(QString, label);
    QFETCH(QString, caption);
    DayPage page(CalendarDate(2026, 3, 2)); // a blank day of the sample
    page.Start();
    for (const QString& step : steps) {
        auto* spin = page->findChild<UpDown*>(step.section(QLatin1Char(' '), 0, 0));
        QVERIFY(spin != nullptr);
        spin->SetValue(step.section(QLatin1Char(' '), 1).toInt());
    }
    QCOMPARE(page.Caption(qPrintable(label)), caption);
    VERIFY_SCRIPT(page.script);
}

void ControlsTest::arrowsStopAtTheLimits()
{
    DayPage page(CalendarDate(2026, 3, 2));
    page.Start();
    page.Down(*page->upCorridori);
    QCOMPARE(page->upCorridori->Value().value(), 1);
    page.Up(*page->upRipetizioniDistanza);
    QCOMPARE(page.Caption("lblRipetizioniDistanza"), QStringLiteral("100"));
    page->upOraFine->SetValue(23);
    page.Up(*page->upOraFine);
    page.Up(*page->upOraFine);
    QCOMPARE(page.Caption("lblImmisOraFine"), QStringLiteral("24:00:00"));
    page.Down(*page->upMinutiFine);
    QCOMPARE(page->upMinutiFine->Value().value(), 0);
    // Beyond the limit: up does nothing, down leads back to it.
    page->upMetri->SetValue(995);
    page.Up(*page->upMetri);
    QCOMPARE(page->upMetri->Value().value(), 995);
    page.Down(*page->upMetri);
    QCOMPARE(page->upMetri->Value().value(), 985);
    VERIFY_SCRIPT(page.script);
}

void ControlsTest::singleMetresUntilTheNextChange()
{
    DayPage page(CalendarDate(2026, 3, 2));
    page.Start();
    page->upKM->SetValue(100);
    page->upMetro->SetValue(5);
    QCOMPARE(page.Caption("lblImmisMetri"), QStringLiteral("100,005"));
    page.Up(*page->upKM);
    QCOMPARE(page.Caption("lblImmisMetri"), QStringLiteral("101,000"));
    QCOMPARE(page->upMetro->Value().value(), 5);
    page->AssegnaCampi();
    QVERIFY(DayPage::Day().Metri == 5);
    page.Up(*page->upMetri);
    QCOMPARE(page->upMetro->Value().value(), 0);
    QCOMPARE(page.Caption("lblImmisMetri"), QStringLiteral("101,010"));
    VERIFY_SCRIPT(page.script);
}

void ControlsTest::handOnTheFifteenLabels()
{
    DayPage page;
    page.Start();
    page->CursoreMano();
    QStringList withHand;
    for (const QLabel* label : page->findChildren<QLabel*>()) {
        if (label->cursor().shape() == Qt::BitmapCursor) {
            withHand << label->objectName();
            QCOMPARE(label->cursor().hotSpot(), QPoint(3, 1));
            QCOMPARE(label->cursor().pixmap().size(), QSize(16, 16));
        }
    }
    QStringList expected;
    for (const char* name : kHandLabels) {
        expected << QLatin1String(name);
    }
    withHand.sort();
    expected.sort();
    QCOMPARE(withHand, expected);
    page->CursoreNormale();
    for (const char* name : kHandLabels) {
        QCOMPARE(Named(page.Page(), QLatin1String(name))->cursor().shape(), Qt::ArrowCursor);
    }
    VERIFY_SCRIPT(page.script);
}

void ControlsTest::handFileMissingOrDamaged_data()
{
    QTest::addColumn<bool>("there");
    QTest::addColumn<QString>("report");
    QTest::newRow("missing") << false << "CursoreMano - ERRORE : 53 File non trovato";
    QTest::newRow("damaged") << true << "CursoreMano - ERRORE : 481 Immagine non valida";
}

void ControlsTest::handFileMissingOrDamaged()
{
    QFETCH(bool, there);
    QFETCH(QString, report);
    DayPage page;
    page.Start();
    if (there) {
        page.folder.Write(QStringLiteral("mano.cur"), "no pointer");
    } else {
        page.folder.Remove(QStringLiteral("mano.cur"));
    }
    page.script.Expect(Report(report));
    page->CursoreMano();
    VERIFY_SCRIPT(page.script);
    QCOMPARE(page->lblKm->cursor().shape(), Qt::ArrowCursor);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::ControlsTest)
#include "ControlsTest.moc"
