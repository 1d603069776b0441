// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The times of one value of a statistic: which days they are, and how they come and go.
#include "support/EntryPage.h"
#include "support/PrinterTray.h"
#include "support/StatisticsDesk.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
namespace
{

/// A row of the times on a day of January 2026.
QByteArray Row(int place, const char* time, int day, const char* average = "5:00")
{
    return QString::asprintf("  %d", place).toLatin1() + "\xB0|" + time + '|' + average + '|' +
           QString::asprintf("%02d/01/2026", day).toLatin1();
}

bool TimesAreGone(const StatisticsDesk& desk)
{
    return !desk.Window()->lvListaOrdinata->isVisible() && desk.Times().isEmpty();
}

} // namespace

class ValueTimesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sortedAndToTheLetter();
    void eachTextCategory_data();
    void eachTextCategory();
    void daysAfterTheOneOnShowAreLeftOut();
    void daysWithoutATimeAreDropped();
    void anEmptyTimeInherits();
    void sevenAndFiveHundred();
    void repetitions();
    void weight();
    void oneRowOffUnderCorridori();
    void noRowSelected_data();
    void noRowSelected();
    void unreadableRows_data();
    void unreadableRows();
    void longPiecesOfTime();
    void failures_data();
    void failures();
    void theKeyboardDoesTheSame_data();
    void theKeyboardDoesTheSame();
    void enterNeedsARow();
    void leaving_data();
    void leaving();
    void pressedTwice();
    void aRightPressLeavesThem();
};

void ValueTimesTest::sortedAndToTheLetter()
{
    StatisticsDesk desk;
    desk.Start();
    StatisticsDesk::PutRun(3, "Lago", "1:02:03", "6:12");
    StatisticsDesk::PutRun(5, "Lago", "0:50:00", "5:00");
    StatisticsDesk::PutRun(6, "LAGO", "0:10:00", "1:00"); // counted with it, not listed with it
    StatisticsDesk::PutRun(8, "Lago", "0:50:00", "5:00"); // of equal times the later first
    StatisticsDesk::PutRun(9, "Mare", "0:20:00", "2:00");
    desk.Choose("mnuPercorso");
    QCOMPARE(desk.Lines()[0].left(36), QByteArray("Lago").leftJustified(30) + "     4");
    desk.OpenTimes(0);
    QCOMPARE(desk.Times(), (QByteArrayList{Row(1, "0:50:00", 8), Row(2, "0:50:00", 5), Row(3, "1:02:03", 3, "6:12")}));
    VERIFY_SCRIPT(desk.script);
}

void ValueTimesTest::eachTextCategory_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<int>("field"); // among those set below
    int field = 0;
    for (const char* entry : {"mnuPercorso", "mnuLunghezza", "mnuAndatura", "mnuFondo", "mnuTipo", "mnuStagione",
                              "mnuMeteo", "mnuTemperatura"}) {
        QTest::newRow(entry) << QByteArray(entry) << field++;
    }
}

void ValueTimesTest::eachTextCategory()
{
    QFETCH(QByteArray, entry);
    QFETCH(int, field);
    StatisticsDesk desk;
    desk.Start();
    // One day for each field; on all of them the text is in no other field.
    for (int slot = 1; slot <= 8; ++slot) {
        RecordGiorno& day = Module1::Giorni[slot];
        Text* const fields[] = {&day.Percorso, &day.Lunghezza, &day.Modo,     &day.Fondo,
                                &day.Tipo,     &day.Stagione,  &day.TempoAtm, &day.Temperatura};
        *fields[slot - 1] = "Voce";
        day.TempoImpiegato = "0:50:00";
        day.MediaKm = "5:00";
    }
    desk.Choose(entry.constData());
    desk.OpenTimes(0);
    QCOMPARE(desk.Times(), QByteArrayList{Row(1, "0:50:00", field + 1)});
    VERIFY_SCRIPT(desk.script);
}

void ValueTimesTest::daysAfterTheOneOnShowAreLeftOut()
{
    StatisticsDesk desk;
    desk.Start();
    StatisticsDesk::PutRun(1, "Lago", "0:50:00", "5:00");
    StatisticsDesk::PutRun(140, "Lago", "0:55:00", "5:30");
    StatisticsDesk::PutRun(141, "Lago", "0:40:00", "4:00");
    desk->VisualizzaGiorno();
    desk.Choose("mnuPercorso");
    desk.OpenTimes(0);
    QCOMPARE(desk.Times(), (QByteArrayList{Row(1, "0:50:00", 1), "  2\xB0|0:55:00|5:30|20/05/2026"}));
    VERIFY_SCRIPT(desk.script);
}

void ValueTimesTest::daysWithoutATimeAreDropped()
{
    StatisticsDesk desk;
    desk.Start();
    for (int slot = 1; slot <= 5; ++slot) {
        StatisticsDesk::PutRun(slot, "Lago", slot == 4 ? "0:50:00" : "0:00:00", slot == 4 ? "5:00" : "0:00");
    }
    desk.Choose("mnuPercorso");
    QCOMPARE(desk.Lines()[0].mid(30, 6), QByteArray("     5"));
    desk.OpenTimes(0);
    QCOMPARE(desk.Times(), QByteArrayList{Row(1, "0:50:00", 4)});
    VERIFY_SCRIPT(desk.script);
}

void ValueTimesTest::anEmptyTimeInherits()
{
    StatisticsDesk desk;
    desk.Start();
    StatisticsDesk::PutRun(1, "Lago", "", "");
    StatisticsDesk::PutRun(2, "Lago", "1:05:30", "5:00");
    StatisticsDesk::PutRun(3, "Lago", "", "");
    desk.Choose("mnuPercorso");
    desk.OpenTimes(0);
    QCOMPARE(desk.Times(), (QByteArrayList{Row(1, "1:05:00", 3, ""), Row(2, "1:05:30", 2)}));
    VERIFY_SCRIPT(desk.script);
}

void ValueTimesTest::sevenAndFiveHundred()
{
    StatisticsDesk desk;
    desk.Start();
    const std::pair<int, int> distances[] = {{7, 500}, {7, 50}, {7, 500}, {7, 5}, {17, 500}, {7, 50}, {7, 500}};
    for (int slot = 1; slot <= 7; ++slot) {
        StatisticsDesk::PutRun(slot, "", "0:50:00", "5:00");
        Module1::Giorni[slot].Km = distances[slot - 1].first;
        Module1::Giorni[slot].Metri = distances[slot - 1].second;
    }
    desk.Choose("mnuKm");
    QCOMPARE(desk.Lines()[0].left(10), QByteArray(" 7,500    "));
    desk.OpenTimes(0);
    QCOMPARE(desk.Times(), (QByteArrayList{Row(1, "0:50:00", 7), Row(2, "0:50:00", 3), Row(3, "0:50:00", 1)}));
    hand::Key(Qt::Key_Escape);
    QTRY_VERIFY(TimesAreGone(desk));
    desk.OpenTimes(1);
    QCOMPARE(desk.Times(), (QByteArrayList{Row(1, "0:50:00", 6), Row(2, "0:50:00", 2)}));
    VERIFY_SCRIPT(desk.script);
}

void ValueTimesTest::repetitions()
{
    StatisticsDesk desk;
    desk.Start();
    // The first and last are alike, each of the others differs in one number.
    const int numbers[][4] = {{5, 400, 1, 20}, {6, 400, 1, 20}, {5, 800, 1, 20},
                              {5, 400, 2, 20}, {5, 400, 1, 2},  {5, 400, 1, 20}};
    for (int slot = 1; slot <= 6; ++slot) {
        StatisticsDesk::PutRun(slot, "", "0:50:00", "5:00");
        RecordGiorno& day = Module1::Giorni[slot];
        day.Ripetizioni = numbers[slot - 1][0];
        day.RipetizioniDistanza = numbers[slot - 1][1];
        day.RipetizioniQuante = numbers[slot - 1][2];
        day.RipetizioniTempi = numbers[slot - 1][3];
    }
    desk.Choose("mnuRipetizioni");
    QCOMPARE(desk.Lines().size(), 5);
    QCOMPARE(desk.Lines()[0].left(36), QByteArray(" 5 x 400  @ 1:20").leftJustified(30) + "     2");
    desk.OpenTimes(0);
    QCOMPARE(desk.Times(), (QByteArrayList{Row(1, "0:50:00", 6), Row(2, "0:50:00", 1)}));
    VERIFY_SCRIPT(desk.script);
}

void ValueTimesTest::weight()
{
    StatisticsDesk desk;
    desk.Start();
    for (int slot = 1; slot <= 3; ++slot) {
        StatisticsDesk::PutRun(slot, "", "0:50:00", "5:00");
        Module1::Giorni[slot].Peso = slot == 2 ? 71 : 70;
    }
    desk.Choose("mnuPeso");
    desk.OpenTimes(1);
    QCOMPARE(desk.Times(), QByteArrayList{Row(1, "0:50:00", 2)});
    VERIFY_SCRIPT(desk.script);
}

void ValueTimesTest::oneRowOffUnderCorridori()
{
    StatisticsDesk desk;
    desk.Start();
    // Ranked 3, 0, 8 and 4 runners; the line of 8 is the second, that of 4 the third.
    const int runners[] = {3, 0, 8, 3, 0, 8, 3, 0, 8, 3, 0, 4};
    for (int slot = 1; slot <= 12; ++slot) {
        StatisticsDesk::PutRun(slot, "", "0:50:00", "5:00");
        Module1::Giorni[slot].Km = 10;
        Module1::Giorni[slot].Corridori = runners[slot - 1];
    }
    StatisticsDesk::PutRun(13, "", "0:20:00", "5:00");
    Module1::Giorni[13].Corridori = 0; // no distance, so not counted, but listed
    desk.Choose("mnuCorridori");
    QByteArrayList values;
    for (const QByteArray& line : desk.Lines()) {
        values << line.left(30).trimmed();
    }
    QCOMPARE(values, (QByteArrayList{"3", "8", "4"}));
    const QByteArrayList ofRow[] = {
        {Row(1, "0:50:00", 10), Row(2, "0:50:00", 7), Row(3, "0:50:00", 4), Row(4, "0:50:00", 1)},
        {Row(1, "0:20:00", 13), Row(2, "0:50:00", 11), Row(3, "0:50:00", 8), Row(4, "0:50:00", 5),
         Row(5, "0:50:00", 2)},
        {Row(1, "0:50:00", 9), Row(2, "0:50:00", 6), Row(3, "0:50:00", 3)}};
    for (int row = 0; row < 3; ++row) {
        desk.OpenTimes(row);
        QCOMPARE(desk.Times(), ofRow[row]);
        hand::Key(Qt::Key_Escape);
        QTRY_VERIFY(TimesAreGone(desk));
    }
    VERIFY_SCRIPT(desk.script);
}

void ValueTimesTest::noRowSelected_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<int>("slot"); // of the one day that is listed
    QTest::newRow("Percorso") << QByteArray("mnuPercorso") << 22;
    QTest::newRow("Tipo") << QByteArray("mnuTipo") << 23;
    QTest::newRow("Km") << QByteArray("mnuKm") << 24;
    QTest::newRow("Ripetizioni") << QByteArray("mnuRipetizioni") << 25;
    QTest::newRow("Corridori") << QByteArray("mnuCorridori") << 26;
    QTest::newRow("Peso") << QByteArray("mnuPeso") << 27;
}

void ValueTimesTest::noRowSelected()
{
    QFETCH(QByteArray, entry);
    QFETCH(int, slot);
    StatisticsDesk desk;
    desk.Start();
    // Every field of each day is filled, but for one field of one day.
    for (int day = 1; day <= 140; ++day) {
        RecordGiorno& giorno = Module1::Giorni[day];
        giorno.TempoImpiegato = "0:50:00";
        giorno.MediaKm = "5:00";
        giorno.Percorso = day == 22 ? "" : "Lago";
        giorno.Tipo = day == 23 ? "" : "Gara";
        giorno.Km = day == 24 ? 0 : 10;
        giorno.Ripetizioni = day == 25 ? 0 : 5;
        giorno.Corridori = day == 26 ? 0 : 2;
        giorno.Peso = day == 27 ? 0 : 70;
    }
    desk->VisualizzaGiorno();
    desk.Choose(entry.constData());
    if (entry == "mnuRipetizioni") {
        for (const char* routine : {"ScomponiDistanza", "ScomponiQuante"}) {
            desk.script.Expect(Report(QLatin1String(routine) + QStringLiteral(" - ERRORE : 5 Argomento non valido")));
        }
    }
    QCOMPARE(desk.Window()->lstStatistica->ListIndex(), -1);
    desk.PressTimes();
    QTRY_COMPARE(desk.Times(), QByteArrayList{Row(1, "0:50:00", slot)});
    QTRY_COMPARE(StatisticsDesk::Focused(), QByteArray("lvListaOrdinata"));
    VERIFY_SCRIPT(desk.script);
}

/// Another window may have put other values into the slots since.
void ValueTimesTest::unreadableRows_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QList<int>>("pieces"); // What the day must hold that is listed: an unreadable piece counts as 0.
    QTest::addColumn<QStringList>("reports");
    const auto row = [](const char* entry, const char* value, const QList<int>& pieces, const QStringList& reports) {
        QTest::addRow("%s", value) << QByteArray(entry) << QByteArray(value) << pieces << reports;
    };
    const QString invalid = QStringLiteral(" - ERRORE : 5 Argomento non valido");
    const QString over = QStringLiteral(" - ERRORE : 6 Numero oltre i limiti");
    row("mnuKm", "Parco", {0, 0}, {});
    row("mnuKm", "40000,1", {0, 1}, {QStringLiteral("ScomponiKm") + over});
    row("mnuKm", "1,40000", {1, 0}, {QStringLiteral("ScomponiMetri") + over});
    row("mnuRipetizioni", "Lago", {0, 0, 0, 0},
        {QStringLiteral("ScomponiDistanza") + invalid, QStringLiteral("ScomponiQuante") + invalid});
    row("mnuRipetizioni", "40000 x 1 @ 1:1", {0, 1, 1, 1}, {QStringLiteral("ScomponiVolte") + over});
    row("mnuRipetizioni", "1 x 40000 @ 1:1", {1, 0, 1, 1}, {QStringLiteral("ScomponiDistanza") + over});
    row("mnuRipetizioni", "1 x 1 @ 40000:1", {1, 1, 0, 1}, {QStringLiteral("ScomponiQuante") + over});
    row("mnuRipetizioni", "1 x 1 @ 1:40000", {1, 1, 1, 0}, {QStringLiteral("ScomponiTempi") + over});
    row("mnuRipetizioni", "1 @ 1 x 1:1", {1, 0, 1, 1}, {QStringLiteral("ScomponiDistanza") + invalid});
    row("mnuRipetizioni", "1:1 x 1 @ 1", {1, 1, 0, 1}, {QStringLiteral("ScomponiQuante") + invalid});
}

namespace
{

/// A run of 50 minutes of which a category holds these pieces.
void PutPieces(int slot, const QByteArray& entry, const QList<int>& pieces)
{
    StatisticsDesk::PutRun(slot, "Lago", "0:50:00", "5:00");
    RecordGiorno& day = Module1::Giorni[slot];
    if (entry == "mnuKm") {
        day.Km = pieces[0];
        day.Metri = pieces[1];
        return;
    }
    day.Ripetizioni = pieces[0];
    day.RipetizioniDistanza = pieces[1];
    day.RipetizioniQuante = pieces[2];
    day.RipetizioniTempi = pieces[3];
}

} // namespace

void ValueTimesTest::unreadableRows()
{
    QFETCH(QByteArray, entry);
    QFETCH(QByteArray, value);
    QFETCH(QList<int>, pieces);
    QFETCH(QStringList, reports);
    StatisticsDesk desk;
    desk.Start();
    // One day holds what the row reads as; some differ from it in one piece, the others in all.
    const QList<int> other(pieces.size(), 7);
    for (int slot = 1; slot <= 140; ++slot) {
        PutPieces(slot, entry, other);
    }
    PutPieces(20, entry, pieces);
    for (int piece = 0; piece < pieces.size(); ++piece) {
        QList<int> nearly = pieces;
        nearly[piece] = 2;
        PutPieces(21 + piece, entry, nearly);
    }
    desk.Choose(entry.constData());
    Module1::NomeCategoria[1] = value.constData();
    desk.Select(0);
    for (const QString& report : reports) {
        desk.script.Expect(Report(report));
    }
    desk.PressTimes();
    QTRY_COMPARE(desk.Times(), QByteArrayList{Row(1, "0:50:00", 20)});
    QTRY_COMPARE(StatisticsDesk::Focused(), QByteArray("lvListaOrdinata"));
    VERIFY_SCRIPT(desk.script);
    QVERIFY(desk.Window()->lvListaOrdinata->isVisible());
}

void ValueTimesTest::longPiecesOfTime()
{
    StatisticsDesk desk;
    desk.Start();
    StatisticsDesk::PutRun(1, "Lago", "0:50:00", "5:00");
    StatisticsDesk::PutRun(2, "Lago", "1:0005:30", "5:00");  // a long piece is read as it is
    StatisticsDesk::PutRun(3, "Lago", "1000:05:30", "5:00"); // and beyond 99 hours the run is dropped
    StatisticsDesk::PutRun(4, "Lago", "2:40000:07", "5:00"); // the minutes and seconds are those of the one before
    desk.Choose("mnuPercorso");
    desk.Select(0);
    desk.script.Expect(Report(QStringLiteral("Trasforma - ERRORE : 6 Numero oltre i limiti")));
    desk.PressTimes();
    QTRY_COMPARE(desk.Times(), (QByteArrayList{Row(1, "0:50:00", 1), Row(2, "1:05:30", 2), Row(3, "2:05:30", 4)}));
    VERIFY_SCRIPT(desk.script);
}

void ValueTimesTest::failures_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::newRow("ListaWOrdinata") << QByteArray("mnuPercorso");
    QTest::newRow("ListavOrdinata") << QByteArray("mnuPeso");
}

void ValueTimesTest::failures()
{
    QFETCH(QByteArray, entry);
    StatisticsDesk desk;
    desk.Start();
    desk.Choose(entry.constData());
    // There is no such day.
    const i16 shown = std::exchange(Module1::GiornoCorrente, 367);
    desk.script.Expect(
        Report(QLatin1String(QTest::currentDataTag()) + QStringLiteral(" - ERRORE : 9 Indice oltre i limiti")));
    desk.PressTimes();
    TRY_SCRIPT(desk.script);
    Module1::GiornoCorrente = shown;
    QCOMPARE(desk.Times(), QByteArrayList());
    VERIFY_SCRIPT(desk.script);
}

void ValueTimesTest::theKeyboardDoesTheSame_data()
{
    QTest::addColumn<bool>("atTheButton");
    QTest::newRow("Enter on the row") << false;
    QTest::newRow("Enter on the button") << true;
}

void ValueTimesTest::theKeyboardDoesTheSame()
{
    QFETCH(bool, atTheButton);
    StatisticsDesk desk;
    desk.Start();
    StatisticsDesk::PutRun(1, "Lago", "0:50:00", "5:00");
    StatisticsDesk::PutRun(2, "Mare", "0:40:00", "4:00");
    desk.Choose("mnuPercorso");
    QTRY_COMPARE(StatisticsDesk::Focused(), QByteArray("lstStatistica"));
    hand::Key(Qt::Key_Down);
    hand::Key(Qt::Key_Down);
    QTRY_COMPARE(desk.Window()->lstStatistica->ListIndex(), 1);
    if (atTheButton) {
        hand::Key(Qt::Key_Tab);
        QTRY_COMPARE(StatisticsDesk::Focused(), QByteArray("cmdTempiLO"));
    }
    hand::Key(Qt::Key_Return);
    QTRY_COMPARE(StatisticsDesk::Focused(), QByteArray("lvListaOrdinata"));
    QCOMPARE(desk.Times(), QByteArrayList{Row(1, "0:40:00", 2, "4:00")});
    // Another key than Escape leaves them.
    hand::Key(Qt::Key_Return);
    hand::Key(Qt::Key_Down);
    QVERIFY(desk.Window()->lvListaOrdinata->isVisible());
    hand::Key(Qt::Key_Escape);
    QTRY_VERIFY(TimesAreGone(desk));
    QTRY_COMPARE(StatisticsDesk::Focused(), QByteArray("lstStatistica"));
    QCOMPARE(desk.Window()->lstStatistica->ListIndex(), 1);
    VERIFY_SCRIPT(desk.script);
}

void ValueTimesTest::enterNeedsARow()
{
    StatisticsDesk desk;
    desk.Start();
    StatisticsDesk::PutRun(1, "Lago", "0:50:00", "5:00");
    StatisticsDesk::PutRun(2, "", "0:40:00", "4:00");
    desk.Choose("mnuPercorso");
    QTRY_COMPARE(StatisticsDesk::Focused(), QByteArray("lstStatistica"));
    hand::Key(Qt::Key_Return);
    QVERIFY(StaysFalse([&] { return desk.Window()->lvListaOrdinata->isVisible(); }));
    QCOMPARE(desk.Window()->lstStatistica->ListIndex(), -1);
    VERIFY_SCRIPT(desk.script);
}

void ValueTimesTest::leaving_data()
{
    QTest::addColumn<QByteArray>("way");
    for (const char* way : {"Escape", "Tab", "another button", "beside the controls", "the title", "the page"}) {
        QTest::newRow(way) << QByteArray(way);
    }
}

void ValueTimesTest::leaving()
{
    QFETCH(QByteArray, way);
    StatisticsDesk desk;
    const PrinterTray tray;
    desk.Start();
    StatisticsDesk::PutRun(1, "Lago", "0:50:00", "5:00");
    desk.Choose("mnuPercorso");
    frmStatistiche1& window = *desk.Window();
    for (int time = 0; time < 2; ++time) {
        desk.OpenTimes(0);
        QCOMPARE(desk.Times(), QByteArrayList{Row(1, "0:50:00", 1)});
        if (way == "Escape") {
            hand::Key(Qt::Key_Escape);
        } else if (way == "Tab") {
            hand::Key(Qt::Key_Tab);
        } else if (way == "another button") {
            hand::Click(*window.cmdStampa);
        } else if (way == "beside the controls") {
            hand::Click(window, QPoint(4, window.height() - 4));
        } else if (way == "the title") {
            hand::Click(*window.lblTitolo);
        } else {
            desk.TakePageToFront();
        }
        QTRY_VERIFY(TimesAreGone(desk));
        QCOMPARE(desk.Lines().size(), 1);
        QCOMPARE(window.lstStatistica->ListIndex(), 0);
        window.raise();
        window.activateWindow();
        EntryPage::AwaitFront(window);
    }
    VERIFY_SCRIPT(desk.script);
}

void ValueTimesTest::pressedTwice()
{
    StatisticsDesk desk;
    desk.Start();
    StatisticsDesk::PutRun(1, "Lago", "0:50:00", "5:00");
    desk.Choose("mnuPercorso");
    desk.OpenTimes(0);
    desk.PressTimes();
    QTRY_COMPARE(StatisticsDesk::Focused(), QByteArray("lvListaOrdinata"));
    QCOMPARE(desk.Times(), QByteArrayList{Row(1, "0:50:00", 1)});
    QVERIFY(desk.Window()->lvListaOrdinata->isVisible());
    VERIFY_SCRIPT(desk.script);
}

void ValueTimesTest::aRightPressLeavesThem()
{
    StatisticsDesk desk;
    desk.Start();
    StatisticsDesk::PutRun(1, "Lago", "0:50:00", "5:00");
    desk.Choose("mnuPercorso");
    desk.OpenTimes(0);
    ListView& times = *desk.Window()->lvListaOrdinata;
    hand::Click(*times.viewport(), times.visualItemRect(times.topLevelItem(0)).center(), Qt::RightButton);
    QCOMPARE(StatisticsDesk::Focused(), QByteArray("lvListaOrdinata"));
    QVERIFY(times.isVisible() && times.selectedItems().isEmpty());
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::ValueTimesTest)
#include "ValueTimesTest.moc"
