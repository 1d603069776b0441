// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The boxes of the calendar's grid: lengths, digits, limits, formats, Enter and the dashes of the date.
#include "support/CalendarDesk.h"
#include "support/WindowTest.h"

Q_DECLARE_METATYPE(zelvia::CalendarGrid::RaceColumn)

namespace zelvia::test
{

class BoxesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void limitsHoldTheFocus_data();
    void limitsHoldTheFocus();
    void theHighestIsTaken();
    void lengthsAndDigits();
    void formatsOnLeaving();
    void enterGoesAlong();
    void typingTakesTheTextsPlace();
    void enterInTheLastBoxStays();
    void theDashesComeWithTheDay();
};

void BoxesTest::limitsHoldTheFocus_data()
{
    QTest::addColumn<RaceColumn>("box");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("message");
    const QString thousands = QStringLiteral("MAX 999.999                   ");
    QTest::newRow("day") << RaceColumn::Giorno << "32"
                         << "MAX 31 GIORNI                 ";
    QTest::newRow("month") << RaceColumn::Mese << "13"
                           << "MAX 12 MESI                   ";
    QTest::newRow("year") << RaceColumn::Anno << "2100"
                          << "MAX ANNO 2099                 ";
    QTest::newRow("runners") << RaceColumn::Partecipanti << "1000000" << thousands;
    QTest::newRow("placing") << RaceColumn::Risultato << "9999999" << thousands;
    QTest::newRow("hours") << RaceColumn::Ore << "25"
                           << "MAX 24 ORE                ";
    QTest::newRow("minutes") << RaceColumn::Minuti << "60"
                             << "MAX 59 MINUTI                ";
    QTest::newRow("seconds") << RaceColumn::Secondi << "99"
                             << "MAX 59 SECONDI                ";
    QTest::newRow("placing in the category") << RaceColumn::RisultatoCat << "1000000" << thousands;
}

void BoxesTest::limitsHoldTheFocus()
{
    QFETCH(RaceColumn, box);
    QFETCH(QString, typed);
    QFETCH(QString, message);
    CalendarDesk desk;
    desk.StartOpen();
    desk.Write(box, 4, typed);
    // Enter, Tab, another box and a button, each with its one message.
    for (int way = 0; way < 4; ++way) {
        desk.script.Expect(Warning(message));
        if (way < 2) {
            hand::Key(way == 0 ? Qt::Key_Return : Qt::Key_Tab);
        } else {
            hand::Click(way == 2 ? static_cast<QWidget&>(desk.Box(RaceColumn::Gara, 9)) : *desk.Window()->cmdSalva);
        }
        TRY_SCRIPT(desk.script);
        QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
        QTRY_VERIFY(desk.Window()->isActiveWindow());
        QTRY_COMPARE(CalendarDesk::Focused(), desk.Box(box, 4).objectName().toLatin1());
        QCOMPARE(desk.Box(box, 4).text(), typed);
    }
    VERIFY_SCRIPT(desk.script);
}

void BoxesTest::theHighestIsTaken()
{
    CalendarDesk desk;
    desk.StartOpen();
    desk.WriteRow(7, "31|12|2099|||99|999|999999|999999|24|59|59||999999");
    QTRY_COMPARE(CalendarDesk::Focused(), QByteArray("txtGiornoGara(8)"));
    QCOMPARE(desk.Row(7), QByteArray("31|12|2099|||99|999|999.999|999.999|24|59|59||999.999"));
    // With the dot the limit is tested on the number without it.
    hand::Click(desk.Box(RaceColumn::Partecipanti, 7));
    hand::Key(Qt::Key_Tab);
    QTRY_COMPARE(CalendarDesk::Focused(), QByteArray("txtRisultato(7)"));
    VERIFY_SCRIPT(desk.script);
}

void BoxesTest::lengthsAndDigits()
{
    CalendarDesk desk;
    desk.StartOpen();
    const QString mixed = QStringLiteral("a1-2. 3x4,5z6y7w8v9");
    const std::pair<RaceColumn, const char*> digits[] = {
        {RaceColumn::Giorno, "12"},           {RaceColumn::Mese, "12"},
        {RaceColumn::Anno, "1234"},           {RaceColumn::Km, "12"},
        {RaceColumn::Metri, "123"},           {RaceColumn::Partecipanti, "1234567"},
        {RaceColumn::Risultato, "1234567"},   {RaceColumn::Ore, "12"},
        {RaceColumn::Minuti, "12"},           {RaceColumn::Secondi, "12"},
        {RaceColumn::RisultatoCat, "1234567"}};
    for (const auto& [box, held] : digits) {
        desk.Write(box, 2, mixed);
        QTRY_COMPARE(desk.Box(box, 2).text(), QLatin1String(held));
        desk.Write(box, 2, QStringLiteral("1"));
    }
    const QString letters = QStringLiteral("abcdefghijklmnopqrstuvwxyz0123456789");
    for (const auto& [box, length] :
         {std::pair{RaceColumn::Gara, 31}, {RaceColumn::Localita, 20}, {RaceColumn::Categoria, 8}}) {
        desk.Write(box, 2, letters);
        QTRY_COMPARE(desk.Box(box, 2).text(), letters.left(length));
    }
    VERIFY_SCRIPT(desk.script);
}

void BoxesTest::formatsOnLeaving()
{
    CalendarDesk desk;
    desk.StartOpen();
    const std::tuple<RaceColumn, const char*, const char*> rows[] = {
        {RaceColumn::Giorno, "05", "05"},
        {RaceColumn::Mese, "5", "5"},
        {RaceColumn::Anno, "26", "26"},
        {RaceColumn::Gara, "MEZZA DEL LAGO", "Mezza Del Lago"},
        {RaceColumn::Gara, "mezza del Lago", "mezza del Lago"},
        {RaceColumn::Localita, "SANT'ANNA", "Sant'Anna"},
        {RaceColumn::Km, "05", "05"},
        {RaceColumn::Metri, "5", "005"},
        {RaceColumn::Metri, "97", "097"},
        {RaceColumn::Metri, "", ""},
        {RaceColumn::Partecipanti, "999", "999"},
        {RaceColumn::Partecipanti, "1234", "1.234"},
        {RaceColumn::Risultato, "12345", "12.345"},
        {RaceColumn::Ore, "1", "1"},
        {RaceColumn::Minuti, "5", "05"},
        {RaceColumn::Minuti, "", ""},
        {RaceColumn::Secondi, "0", "00"},
        {RaceColumn::Categoria, "MM45", "MM45"},
        {RaceColumn::RisultatoCat, "1000", "1.000"},
        {RaceColumn::RisultatoCat, "", ""},
    };
    for (const auto& [box, typed, left] : rows) {
        desk.Write(box, 3, QLatin1String(typed));
        QTRY_COMPARE(desk.Box(box, 3).text(), QLatin1String(typed));
        hand::Key(Qt::Key_Tab);
        QTRY_COMPARE(desk.Box(box, 3).text(), QLatin1String(left));
    }
    VERIFY_SCRIPT(desk.script);
}

void BoxesTest::enterGoesAlong()
{
    CalendarDesk desk;
    desk.StartOpen();
    hand::Click(desk.Box(RaceColumn::Giorno, 1));
    for (const char* next :
         {"txtMeseGara(1)", "txtAnnoGara(1)", "txtGare(1)", "txtLocalita(1)", "txtKm(1)", "txtMetri(1)",
          "txtPartecipanti(1)", "txtRisultato(1)", "txtOre(1)", "txtMinuti(1)", "txtSecondi(1)", "txtCategoria(1)",
          "txtRisultatoCat(1)", "txtGiornoGara(2)", "txtMeseGara(2)"}) {
        hand::Key(Qt::Key_Return);
        QTRY_COMPARE(CalendarDesk::Focused(), QByteArray(next));
    }
    // Tab takes the same way.
    hand::Key(Qt::Key_Tab);
    QTRY_COMPARE(CalendarDesk::Focused(), QByteArray("txtAnnoGara(2)"));
    VERIFY_SCRIPT(desk.script);
}

void BoxesTest::typingTakesTheTextsPlace()
{
    CalendarBytes file;
    file.SetRow(1, "7|6|2026|Notturna|Lecco|10|50|1234|87|1|45|30|S50|9");
    CalendarDesk desk(file);
    desk.StartOpen();
    // The opening gives the focus to the first box, Enter to each of the others.
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtGiornoGara(1)"));
    for (const char* value : {"21", "12", "2027", "Diurna", "Como", "9", "120", "50", "34", "2", "5", "6", "MM", "1"}) {
        hand::Type(QString::fromLatin1(value));
        hand::Key(Qt::Key_Return);
    }
    QTRY_COMPARE(EntryPage::Focused(), QByteArray("txtGiornoGara(2)"));
    QCOMPARE(desk.Row(1), QByteArray("21|12|2027|Diurna|Como|9|120|50|34|2|05|06|MM|1"));
    VERIFY_SCRIPT(desk.script);
}

void BoxesTest::enterInTheLastBoxStays()
{
    CalendarDesk desk;
    desk.StartOpen();
    // It does not leave the box, so nothing is tested or formatted.
    desk.Write(RaceColumn::RisultatoCat, 20, QStringLiteral("1000000"));
    hand::Key(Qt::Key_Return);
    QCOMPARE(CalendarDesk::Focused(), QByteArray("txtRisultatoCat(20)"));
    QCOMPARE(desk.Box(RaceColumn::RisultatoCat, 20).text(), QStringLiteral("1000000"));
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    VERIFY_SCRIPT(desk.script);
}

void BoxesTest::theDashesComeWithTheDay()
{
    const QByteArray dashes = "      -      -    ";
    const QByteArray blank(18, ' ');
    CalendarDesk desk;
    desk.StartOpen();
    QCOMPARE(desk.Dashes(5), blank);
    const std::pair<const char*, QByteArray> rows[] = {{"", blank}, {"0", blank}, {"7", dashes}, {"00", blank}};
    for (const auto& [typed, after] : rows) {
        desk.Write(RaceColumn::Giorno, 5, QLatin1String(typed));
        QTRY_COMPARE(desk.Dashes(5), dashes);
        hand::Key(Qt::Key_Tab);
        QTRY_COMPARE(CalendarDesk::Focused(), QByteArray("txtMeseGara(5)"));
        QCOMPARE(desk.Dashes(5), after);
    }
    QCOMPARE(desk.Dashes(6), blank);
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::BoxesTest)
#include "BoxesTest.moc"
