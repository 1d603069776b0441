// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Bad input to the boxes of the table editor, and to the list of the tables.
#include "boxes/BoxHand.h"
#include "diary/TableModel.h"
#include "support/Bytes.h"
#include "support/TableBytes.h"
#include "support/TableDesk.h"
#include "support/WindowTest.h"

namespace zelvia::test
{
namespace
{

using namespace TableGrid;

constexpr int kFreeRow = 31;
const QString kHours = QStringLiteral("MAX 24 ORE                ");
const QString kMinutes = QStringLiteral("MAX 59 MINUTI                ");
const QString kSeconds = QStringLiteral("MAX 59 SECONDI                ");
const QString kMinutesOf60 = QStringLiteral("MAX 60 MINUTI                 ");

struct BoxRow {
    const char* name;
    Column box;
    int limit;
    const NumberKind* kind; ///< None for texts.
    QString message;        ///< Of a number beyond the limit.
    TableBytes::Column inFile;
    Module1::PlanColumn<i16>* values;
    Module1::PlanColumn<Text>* texts = nullptr;
};

const BoxRow kBoxes[] = {
    {"txtKm", Km, 2, &kTwoCharacters, {}, TableBytes::Km, &Module1::TabKm},
    {"txtMetri", Metri, 3, &kThreeDigits, {}, TableBytes::Metres, &Module1::TabMetri},
    {"txtOre", Ore, 2, &kTwoCharactersToALimit, kHours, TableBytes::Hours, &Module1::TabOre},
    {"txtMinuti", Minuti, 2, &kTwoDigitsToALimit, kMinutes, TableBytes::Minutes, &Module1::TabMinuti},
    {"txtSecondi", Secondi, 2, &kTwoDigitsToALimit, kSeconds, TableBytes::Seconds, &Module1::TabSecondi},
    {"txtMediaMinuti", MediaMinuti, 2, &kTwoCharactersToALimit, kMinutesOf60, TableBytes::AverageMinutes,
     &Module1::TabMediaMinuti},
    {"txtMediaSecondi", MediaSecondi, 2, &kTwoDigitsToALimit, kSeconds, TableBytes::AverageSeconds,
     &Module1::TabMediaSecondi},
    {"txtMediaMillesimi", MediaMillesimi, 3, &kThreeDigits, {}, TableBytes::Thousandths, &Module1::TabMediaMillesimi},
    {"txtAndatura", Andatura, 22, nullptr, {}, TableBytes::Pace, nullptr, &Module1::TabAndatura},
    {"txtFondo", Fondo, 22, nullptr, {}, TableBytes::Ground, nullptr, &Module1::TabFondo},
    {"txtRipetVolte", RipetVolte, 2, &kTwoCharacters, {}, TableBytes::Times, &Module1::TabRipetVolte},
    {"txtRipetDistanza", RipetDistanza, 5, &kThousandsTo9999, QStringLiteral("MAX 9.999                   "),
     TableBytes::Distance, &Module1::TabRipetDistanza},
    {"txtRipetQuante", RipetQuante, 2, &kTwoCharactersToALimit, kMinutesOf60, TableBytes::EachMinutes,
     &Module1::TabRipetQuante},
    {"txtRipetTempi", RipetTempi, 2, &kTwoDigitsToALimit, kSeconds, TableBytes::EachSeconds, &Module1::TabRipetTempi},
};

struct DateRow {
    const char* name;
    int limit;
    const NumberKind* kind;
    QString message;
};

const DateRow kDate[] = {
    {"txtGiornoInizio", 2, &kTwoCharactersToALimit, QStringLiteral("MAX 31 GIORNI                 ")},
    {"txtMeseInizio", 2, &kTwoCharactersToALimit, QStringLiteral("MAX 12 MESI                   ")},
    {"txtAnnoInizio", 4, &kYear, QStringLiteral("MAX ANNO 2099                 ")},
};

class Desk : public TableDesk
{
public:
    /// Saves the new table, compares its file and opens it again.
    void SaveAndOpenAgain(const TableBytes& expected)
    {
        const QString name = QStringLiteral("nuova.tab");
        script.Expect(SaveTableDialog({}, name));
        hand::Click(*Editor()->cmdSalva);
        AwaitBoxes();
        CompareFile(ReadTable("nuova.tab"), expected.Bytes());
        LeaveEditor();
        OpenTable("nuova.tab");
    }
};

} // namespace

class TableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyBoxHasItsRow();
    void numbers_data() { AddBoxRows(kBoxes, true); }
    void numbers();
    void texts_data() { AddBoxRows(kBoxes, false); }
    void texts();
    void dateBoxes_data() { AddBoxRows(kDate, true); }
    void dateBoxes();
    void dates_data();
    void dates();
    void aTextThatIsNoDate();
    void keysThatAreNoneOfTheList();
};

void TableTest::everyBoxHasItsRow()
{
    TableDesk desk;
    desk.StartNew();
    QByteArrayList named;
    for (const BoxRow& row : kBoxes) {
        named << Counted(row.name, kFreeRow);
    }
    for (const DateRow& row : kDate) {
        named << Counted(row.name, 1);
    }
    QCOMPARE(BoxesOf(*desk.Editor()), Sorted(named));
    QCOMPARE(BoxesOf(*desk.List()), QByteArrayList{Counted("flbListaTabelle", 1)});
    const auto limitOf = [](const QByteArray& name) { return std::max(LimitIn(kBoxes, name), LimitIn(kDate, name)); };
    QCOMPARE(BoxesOfOtherLength(*desk.Editor(), limitOf), QByteArrayList());
    VERIFY_SCRIPT(desk.script);
}

void TableTest::numbers()
{
    QFETCH(int, index);
    const BoxRow& row = kBoxes[index];
    Desk desk;
    desk.StartNew();
    TableBytes expected(QDate(2007, 1, 1));
    QList<int> values;
    for (int i = 1; i <= int(kNumberInputs); ++i) {
        const Outcome& outcome = (*row.kind)[static_cast<std::size_t>(i - 1)];
        TextBox& box = desk.Box(row.box, i);
        Fill(box, NumberInputs()[static_cast<std::size_t>(i - 1)]);
        QTRY_COMPARE(box.text(), outcome.Shown());
        LeaveByTab(desk, box, outcome, Warning(row.message));
        values << (outcome.refused ? 1 : outcome.value);
        expected.Set(i, row.inFile, QByteArray::number(values.last()));
    }
    // Another one goes on as ever.
    Fill(desk.Box(Andatura, kFreeRow), {"", Entry::Typed, QStringLiteral("lenta")});
    expected.Set(kFreeRow, TableBytes::Pace, "\"lenta\"");
    desk.SaveAndOpenAgain(expected);
    for (int i = 1; i <= int(kNumberInputs); ++i) {
        QCOMPARE((*row.values)[i].value(), values[i - 1]);
        QCOMPARE(desk.Held(row.box, i).isEmpty(), values[i - 1] == 0);
    }
    VERIFY_SCRIPT(desk.script);
}

void TableTest::texts()
{
    QFETCH(int, index);
    const BoxRow& row = kBoxes[index];
    Desk desk;
    desk.StartNew();
    TableBytes expected(QDate(2007, 1, 1));
    QByteArrayList values;
    for (const BadInput& input : TextInputs()) {
        const int i = static_cast<int>(values.size()) + 1;
        const QByteArray shown = Shown(input, row.limit).toUtf8();
        TextBox& box = desk.Box(row.box, i);
        Fill(box, input);
        QTRY_COMPARE(box.text(), QString::fromUtf8(shown));
        LeaveByTab(desk, box, {shown.constData(), 0}, {});
        values << Bytes(FromQString(QString::fromUtf8(shown)));
        expected.Set(i, row.inFile, '"' + values.last() + '"');
    }
    Fill(desk.Box(Km, kFreeRow), {"", Entry::Typed, QStringLiteral("9")});
    expected.Set(kFreeRow, TableBytes::Km, "9");
    desk.SaveAndOpenAgain(expected);
    for (int i = 1; i <= values.size(); ++i) {
        QCOMPARE(Bytes((*row.texts)[i]), values[i - 1]);
        QCOMPARE(Bytes(desk.Box(row.box, i).Content()), values[i - 1]);
    }
    VERIFY_SCRIPT(desk.script);
}

void TableTest::dateBoxes()
{
    QFETCH(int, index);
    const DateRow& row = kDate[index];
    Desk desk;
    desk.StartNew();
    TextBox& box = *desk.Editor()->dateBoxes[static_cast<std::size_t>(index)];
    QCOMPARE(box.objectName(), QLatin1String(row.name));
    for (std::size_t i = 0; i < kNumberInputs; ++i) {
        Fill(box, NumberInputs()[i]);
        QTRY_COMPARE(box.text(), (*row.kind)[i].Shown());
        LeaveByTab(desk, box, (*row.kind)[i], Warning(row.message));
    }
    VERIFY_SCRIPT(desk.script);
}

void TableTest::dates_data()
{
    QTest::addColumn<QStringList>("typed");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QDate>("start");
    const QString minDay = QStringLiteral("DATA INIZIO  MIN GIORNO 1                 ");
    const QString minMonth = QStringLiteral("DATA INIZIO  MIN MESE  1               ");
    const QString minYear = QStringLiteral("DATA INIZIO MIN ANNO 2008                 ");
    const auto row = [](const char* day, const char* month, const char* year) {
        return QStringList{QString::fromUtf8(day), QString::fromUtf8(month), QString::fromUtf8(year)};
    };
    QTest::newRow("a blank before the day") << row(" 7", "5", "2026") << QString() << QDate(2026, 5, 7);
    QTest::newRow("a blank before the month") << row("7", " 5", "2026") << QString() << QDate(2026, 5, 7);
    QTest::newRow("a blank behind the month") << row("7", "5 ", "2026") << QString() << QDate(2026, 5, 7);
    QTest::newRow("day 0") << row("0", "5", "2026") << minDay << QDate(2026, 5, 1);
    QTest::newRow("letters for the day") << row("ab", "5", "2026") << minDay << QDate(2026, 5, 1);
    QTest::newRow("a day below 0") << row("-5", "5", "2026") << minDay << QDate(2026, 5, 1);
    QTest::newRow("month 0") << row("7", "0", "2026") << minMonth << QDate(2026, 1, 7);
    QTest::newRow("accents for the month") << row("7", "àè", "2026") << minMonth << QDate(2026, 1, 7);
    QTest::newRow("no year") << row("7", "5", "    ") << minYear << QDate(2008, 5, 7);
    QTest::newRow("a year below 0") << row("7", "5", "-200") << minYear << QDate(2008, 5, 7);
}

void TableTest::dates()
{
    QFETCH(QStringList, typed);
    QFETCH(QString, message);
    QFETCH(QDate, start);
    Desk desk;
    desk.StartNew();
    for (std::size_t i = 0; i < 3; ++i) {
        Fill(*desk.Editor()->dateBoxes[i], {"", Entry::Pasted, typed[static_cast<qsizetype>(i)]});
    }
    if (!message.isEmpty()) {
        desk.script.Expect(Warning(message));
    }
    hand::Click(*desk.Editor()->cmdOK);
    desk.AwaitBoxes();
    QTRY_COMPARE(desk.Enabled(), QByteArray("cmdAttiva"));
    desk.SaveAndOpenAgain(TableBytes(start));
    QCOMPARE(desk.StartDate(), start.toString(QStringLiteral("d|M|yyyy")).toLatin1());
    VERIFY_SCRIPT(desk.script);
}

void TableTest::aTextThatIsNoDate()
{
    // It passes for 1, and each of the rows fails on the date.
    Desk desk;
    desk.StartNew();
    Fill(desk.Box(Km, 3), {"", Entry::Typed, QStringLiteral("8")});
    const char* const parts[] = {"1,", "5", "2026"};
    for (std::size_t i = 0; i < 3; ++i) {
        Fill(*desk.Editor()->dateBoxes[i], {"", Entry::Pasted, QString::fromLatin1(parts[i])});
    }
    desk.script.Expect(Report(QStringLiteral("ControllaSaveTab - ERRORE : 13 Tipo non corrispondente")));
    for (int row = 1; row <= kRows; ++row) {
        desk.script.Expect(Report(QStringLiteral("AssegnaTab - ERRORE : 13 Tipo non corrispondente")));
    }
    hand::Click(*desk.Editor()->cmdOK);
    desk.AwaitBoxes();
    // The rows were taken all the same.
    QCOMPARE(Module1::TabKm[3].value(), 8);
    desk.WriteStart("1", {}, {});
    desk.SaveAndOpenAgain(TableBytes(QDate(2026, 5, 1)).Set(3, TableBytes::Km, "8"));
    VERIFY_SCRIPT(desk.script);
}

void TableTest::keysThatAreNoneOfTheList()
{
    TableDesk desk;
    desk.Start();
    desk.OpenList();
    const QByteArrayList before = desk.Entries();
    QVERIFY(!before.isEmpty());
    desk.Select(0);
    PressForeignKeys();
    QCOMPARE(desk.Entries(), before);
    QVERIFY(desk.List()->findChild<QLineEdit*>() == nullptr);
    desk.OpenTable(before.first());
    desk.LeaveEditor();
    QCOMPARE(desk.Entries(), before);
    VERIFY_SCRIPT(desk.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::TableTest)
#include "TableTest.moc"
