// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The race of the day as a slip on the page.
#include "core/Messages.h"
#include "diary/CalendarModel.h"
#include "support/CalendarDesk.h"
#include "support/WindowTest.h"

namespace zelvia::test
{

class SlipTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void atTheStart();
    void theTexts_data();
    void theTexts();
    void theDaysAround();
    void anotherYear();
    void theLowerOfTwoRows();
    void changesWaitForTheNextDay();
    void thePlanStaysAwayOnARaceDay();
    void openAndNew();
    void theDayIsNotTouched();
};

namespace
{

constexpr const char* kRaceControls[] = {"pctCalGara",         "pctCalLocalita",       "pctCalLunghezza",
                                         "pctCalPartecipanti", "pctCalTempoImpiegato", "pctCalRisultato",
                                         "pctCalCategoria",    "pctCalRisCategoria",   "lblGara",
                                         "lblLocalita",        "lblLunghezzaGara",     "lblPartecipanti",
                                         "lblTempoImpiegato",  "lblRisultato",         "lblCategoria",
                                         "lblRisultatoCat"};
constexpr const char* kPlanControls[] = {"pctTabAllenamenti", "pctTabKm",         "pctTabTempo",       "pctTabMedia",
                                         "pctTabAndatura",    "pctTabTerreno",    "pctTabRipetizioni", "lblTabNomeFile",
                                         "lblKmTab",          "lblTempoTab",      "lblMediaTab",       "lblAndaturaTab",
                                         "lblFondoTab",       "lblRipetizioniTab"};

/// "race" or "plan" when all controls of the one are visible and none of the other, else the names that are wrong.
QByteArray Panel(const DayPage& page)
{
    const bool race = page->lblGara->isVisible();
    QByteArray wrong;
    const auto check = [&](const char* name, bool visible) {
        const auto* control = page->findChild<QWidget*>(QLatin1String(name));
        if (control == nullptr || control->isVisible() != visible) {
            wrong += name + QByteArray(" ");
        }
    };
    for (const char* name : kRaceControls) {
        check(name, race);
    }
    for (const char* name : kPlanControls) {
        check(name, !race);
    }
    return wrong.isEmpty() ? QByteArray(race ? "race" : "plan") : wrong;
}

/// The eight labels of the slip, in the order in which they are filled.
QByteArray Slip(const DayPage& page)
{
    QByteArrayList texts;
    for (const char* name : {"lblGara", "lblLocalita", "lblPartecipanti", "lblTempoImpiegato", "lblRisultato",
                             "lblCategoria", "lblRisultatoCat", "lblLunghezzaGara"}) {
        texts << page.Caption(name).toLatin1();
    }
    return texts.join('|');
}

} // namespace

void SlipTest::atTheStart()
{
    CalendarBytes file;
    file.SetRow(57, "20|5|2026|giro DELLE mura|Lago|10|50|1234|592|0|49|6|MM45|84");
    CalendarDesk desk(file);
    desk.Start();
    QCOMPARE(Panel(desk), QByteArray("race"));
    QCOMPARE(Slip(desk), QByteArray("giro DELLE mura|Lago|1.234|0:49:06|592|MM45|84|10,50"));
    VERIFY_SCRIPT(desk.script);
}

void SlipTest::theTexts_data()
{
    QTest::addColumn<QByteArray>("race");
    QTest::addColumn<QByteArray>("slip");
    const auto row = [](const char* name, const char* race, const char* slip) {
        QTest::newRow(name) << QByteArray(race) << QByteArray(slip);
    };
    row("a date alone", "20|5|2026", "|||0:00:00||||0,0");
    row("10 km and 50 m", "20|5|2026|Corrida||10|50", "Corrida|||0:00:00||||10,50");
    row("5 km", "20|5|2026|Corrida||5", "Corrida|||0:00:00||||5,0");
    row("800 m", "20|5|2026|||0|800", "|||0:00:00||||0,800");
    row("a result", "20|5|2026|M|L|42|195|12345|999|3|5|9|S50|1000", "M|L|12.345|3:05:09|999|S50|1.000|42,195");
}

void SlipTest::theTexts()
{
    QFETCH(QByteArray, race);
    QFETCH(QByteArray, slip);
    CalendarBytes file;
    file.SetRow(1, race);
    CalendarDesk desk(file);
    desk.Start();
    QCOMPARE(Panel(desk), QByteArray("race"));
    QCOMPARE(Slip(desk), slip);
}

void SlipTest::theDaysAround()
{
    CalendarBytes file;
    file.SetRow(1, "21|5|2026|Corrida").SetRow(2, "20|6|2026|Notturna");
    CalendarDesk desk(file);
    desk.Start();
    QCOMPARE(Panel(desk), QByteArray("plan"));
    desk.Up(*desk->upGiorno);
    QCOMPARE(Panel(desk), QByteArray("race"));
    QCOMPARE(desk.Caption("lblGara"), QStringLiteral("Corrida"));
    desk.Up(*desk->upGiorno);
    QCOMPARE(Panel(desk), QByteArray("plan"));
    desk.GoTo(140);
    desk.Up(*desk->upMese);
    QCOMPARE(Panel(desk), QByteArray("race"));
    QCOMPARE(desk.Caption("lblGara"), QStringLiteral("Notturna"));
    VERIFY_SCRIPT(desk.script);
}

void SlipTest::anotherYear()
{
    CalendarBytes file;
    file.SetRow(1, "20|5|2025|Corrida").SetRow(2, "20|5|2027|Corrida").SetRow(3, "0|5|2026|Senza giorno");
    CalendarDesk desk(file);
    desk.Start();
    QCOMPARE(Panel(desk), QByteArray("plan"));
}

void SlipTest::theLowerOfTwoRows()
{
    CalendarDesk desk;
    desk.StartOpen();
    desk.WriteRow(9, "21|5|2026|Notturna");
    desk.WriteRow(4, "21|5|2026|Corrida");
    desk.script.Expect(Messages::kSaveRaces, QMessageBox::Ok);
    desk.script.Expect(Stop(QStringLiteral("21-5-2026   DATA PRESENTE AL  N° 4  E AL N° 9  ")));
    hand::Click(*desk.Window()->cmdSalva);
    TRY_SCRIPT(desk.script);
    QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
    desk.GoTo(141);
    QCOMPARE(Panel(desk), QByteArray("race"));
    QCOMPARE(desk.Caption("lblGara"), QStringLiteral("Corrida"));
}

void SlipTest::changesWaitForTheNextDay()
{
    CalendarBytes file;
    file.SetRow(1, "20|5|2026|Corrida");
    CalendarDesk desk(file);
    desk.StartOpen();
    desk.Write(RaceColumn::Gara, 1, QStringLiteral("Notturna"));
    desk.Save();
    QTRY_COMPARE(desk.File(), CalendarBytes().SetRow(1, "20|5|2026|Notturna").Bytes());
    QCOMPARE(desk.Caption("lblGara"), QStringLiteral("Corrida"));
    // The page takes the days while the calendar is open.
    desk.GoTo(141);
    QCOMPARE(Panel(desk), QByteArray("plan"));
    desk.GoTo(140);
    QCOMPARE(Panel(desk), QByteArray("race"));
    QCOMPARE(desk.Caption("lblGara"), QStringLiteral("Notturna"));
    VERIFY_SCRIPT(desk.script);
}

void SlipTest::thePlanStaysAwayOnARaceDay()
{
    CalendarBytes file;
    file.SetRow(1, "20|5|2026|Corrida");
    CalendarDesk desk(file);
    desk.folder.Write(QStringLiteral("prova/nometab"),
                      "\"" + QByteArray::fromStdString(desk.folder.System(QStringLiteral("prova/Base 10 km.tab"))) +
                          "\"\r\n");
    desk.Start();
    QCOMPARE(desk.Caption("lblTabNomeFile"), QStringLiteral("Base 10 km"));
    QCOMPARE(Panel(desk), QByteArray("race"));
    // The reading of the table that its editor asks for brings the texts of the plan up to date, but not the plan.
    desk->RequestTableReading();
    QTRY_COMPARE(desk.Caption("lblTimerTab"), QStringLiteral("0"));
    QCOMPARE(Panel(desk), QByteArray("race"));
    desk.GoTo(141);
    QCOMPARE(Panel(desk), QByteArray("plan"));
    desk->RequestTableReading();
    QTRY_COMPARE(desk.Caption("lblTimerTab"), QStringLiteral("0"));
    QCOMPARE(Panel(desk), QByteArray("plan"));
    VERIFY_SCRIPT(desk.script);
}

void SlipTest::openAndNew()
{
    CalendarBytes file;
    file.SetRow(1, "20|5|2026|Corrida");
    CalendarDesk desk(file);
    desk.folder.Write(QStringLiteral("ZelviaFile/altra.zlv"), desk.folder.Read(QStringLiteral("ZelviaFile/prova.zlv")));
    for (const char* list : {"Percorso", "Lunghezza", "Modo", "Fondo", "Tipo", "TempoAtm", "Temperatura"}) {
        const QString name = QStringLiteral("%1.lsx").arg(QLatin1String(list));
        desk.folder.Write(QStringLiteral("altra/") + name, desk.folder.Read(QStringLiteral("prova/") + name));
    }
    for (const char* name : {"ListePercorso", "nometab"}) {
        const QString path = QLatin1String(name);
        desk.folder.Write(QStringLiteral("altra/") + path, desk.folder.Read(QStringLiteral("prova/") + path));
    }
    desk.folder.Write(QStringLiteral("altra/CalendarioGare"), CalendarBytes().SetRow(2, "20|5|2026|Altra").Bytes());
    desk.Start();
    QCOMPARE(desk.Caption("lblGara"), QStringLiteral("Corrida"));
    Module1::FileModificato = 0;
    desk.script.Expect(desk.OpenDialog(QStringLiteral("prova.zlv"), QStringLiteral("altra.zlv")));
    desk.Menu("mnuFile", Qt::Key_A);
    VERIFY_SCRIPT(desk.script);
    QCOMPARE(Panel(desk), QByteArray("race"));
    QCOMPARE(desk.Caption("lblGara"), QStringLiteral("Altra"));

    desk.script.Expect(desk.NewDialog(QStringLiteral("nuova")));
    desk.Menu("mnuFile", Qt::Key_N);
    VERIFY_SCRIPT(desk.script);
    QCOMPARE(Panel(desk), QByteArray("plan"));
    QVERIFY(Module1::GiornoGara[2] == 0);
}

void SlipTest::theDayIsNotTouched()
{
    CalendarBytes file;
    file.SetRow(1, "21|5|2026|Corrida|Lago|10|0|100|7|0|45|30|MM45|1");
    CalendarDesk desk(file);
    desk.Start();
    desk.GoTo(141);
    desk.GoTo(140);
    const RecordGiorno& day = Module1::Giorni[141];
    QVERIFY(day.Km == 0 && day.Tipo.empty() && day.Percorso.empty());
    QCOMPARE(desk.Caption("lblNumGare"), QStringLiteral("0"));
    desk.Menu("mnuFile", Qt::Key_S);
    QCOMPARE(desk.File(), file.Bytes());
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::SlipTest)
#include "SlipTest.moc"
