// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Searches and both charts on whole years, the sample one and years by chance, against a plain computation of the same.
#include "core/Conversions.h"
#include "core/Files.h"
#include "diary/ChartModel.h"
#include "diary/Module1.h"
#include "diary/PlainSearch.h"
#include "diary/RunSearch.h"
#include "support/Days.h"
#include "support/MessageScript.h"
#include "support/TestProgram.h"

#include <QTest>

#include <memory>
#include <random>

using namespace zelvia;
using namespace zelvia::Module1;
using namespace zelvia::test;

namespace
{

class Chance
{
public:
    explicit Chance(unsigned seed) : engine_(seed) {}

    int Any(int count) { return static_cast<int>(engine_() % static_cast<unsigned>(count)); }
    bool Once(int in) { return Any(in) == 0; }

    /// A year whose few words are spelt in small or capital letters, so that conditions often meet.
    void FillYear()
    {
        const int words = 2 + Any(4);
        const CalendarDate first(2007 + Any(60), 1, 1);
        GiornoCorrente = Once(3) ? 366 : 1 + Any(366);
        for (int day = 1; day <= 366; ++day) {
            RecordGiorno giorno;
            giorno.NumGiorno = day;
            giorno.Data = first.PlusDays(day - 1);
            for (Text* text : {&giorno.Percorso, &giorno.Lunghezza, &giorno.Modo, &giorno.Fondo, &giorno.Tipo,
                               &giorno.Stagione, &giorno.TempoAtm, &giorno.Temperatura}) {
                *text = Once(6) ? Text() : Text(Once(3) ? "VOCE \xC0 " : "voce \xE0 ") + std::to_string(Any(words));
            }
            giorno.Km = Once(4) ? 0 : Any(14);
            giorno.Metri = Once(2) ? 0 : Any(10) * 50;
            giorno.Corridori = Any(words);
            giorno.Peso = Any(3) * 35;
            giorno.Ripetizioni = Once(2) ? 0 : 8 + Any(3);
            giorno.RipetizioniDistanza = 800 + Any(2) * 200;
            giorno.RipetizioniQuante = 3;
            giorno.RipetizioniTempi = Any(2);
            giorno.TempoImpiegato = Time();
            giorno.MediaKm = Average();
            Giorni[day] = giorno;
        }
    }

    /// Up to four conditions, each a value of the year or now and then one that no day has, and perhaps a period.
    PlainQuery Query(const std::vector<PlainDay>& days)
    {
        PlainQuery query;
        for (int conditions = Any(5); conditions > 0; --conditions) {
            const QByteArray& title = kTitles[Any(static_cast<int>(kTitles.size()))];
            const std::vector<PlainRow> rows = Ranked(title, days);
            const QByteArray none = IsNumeric(title) ? "12345" : "nessuno";
            query.values[title] = rows.empty() || Once(12)
                                      ? none
                                      : rows[static_cast<std::size_t>(Any(static_cast<int>(rows.size())))].value;
        }
        const auto dateOf = [&] {
            const QByteArray& date = days[static_cast<std::size_t>(Any(static_cast<int>(days.size())))].date;
            return QDate::fromString(QString::fromLatin1(date), QStringLiteral("dd/MM/yyyy"));
        };
        query.from = Once(3) ? QDate() : dateOf();
        query.to = Once(3) ? QDate() : dateOf();
        return query;
    }

private:
    Text Time()
    {
        if (Once(30)) {
            return "1234:05:06";
        }
        return Once(8) ? Text()
                       : PlainText(i32(Any(3))) + ":" + Format(i32(Any(60)), "00") + ":" + Format(i32(Any(60)), "00");
    }

    Text Average()
    {
        if (Once(30)) {
            return "5:0607";
        }
        return Once(8) ? Text() : PlainText(i32(Any(14))) + ":" + Format(i32(Any(60)), "00");
    }

    std::mt19937 engine_;
};

std::vector<PlainDay> DaysOnShow()
{
    std::vector<PlainDay> days;
    for (int day = 1; day <= GiornoCorrente; ++day) {
        PlainDay plain = PlainDayOf(Giorni[day]);
        plain.time = Bytes(Giorni[day].TempoImpiegato);
        plain.average = Bytes(Giorni[day].MediaKm);
        plain.date = Bytes(Format(Giorni[day].Data, "dd/mm/yyyy"));
        days.push_back(plain);
    }
    return days;
}

SearchCriteria ConditionsOf(const PlainQuery& query)
{
    SearchCriteria conditions;
    conditions.GiornoInizio = query.from.isValid() ? query.from.day() : 0;
    conditions.MeseInizio = query.from.isValid() ? query.from.month() : 0;
    conditions.AnnoInizio = query.from.isValid() ? query.from.year() : 0;
    conditions.GiornoFine = query.to.isValid() ? query.to.day() : 0;
    conditions.MeseFine = query.to.isValid() ? query.to.month() : 0;
    conditions.AnnoFine = query.to.isValid() ? query.to.year() : 0;
    Text* const texts[] = {&conditions.CercaPercorso, &conditions.CercaLunghezza,  &conditions.CercaAndatura,
                           &conditions.CercaFondo,    &conditions.CercaTipo,       &conditions.CercaStagione,
                           &conditions.CercaMeteo,    &conditions.CercaTemperatura};
    for (qsizetype i = 0; i < 8; ++i) {
        *texts[i] = TextOf(query.values.value(kTitles[i]));
    }
    conditions.CercaKm = TextOf(query.values.value("Km"));
    conditions.CercaRipetizioni = TextOf(query.values.value("Ripetizioni"));
    conditions.CercaCorridori = query.values.value("Corridori").toInt();
    conditions.CercaPeso = query.values.value("Peso").toInt();
    return conditions;
}

QByteArrayList Told(const std::vector<SearchError>& errors)
{
    QByteArrayList told;
    for (const SearchError& error : errors) {
        told << Bytes(error.title) + QByteArray::number(error.error.Number());
    }
    return told;
}

/// Searches by both ways and compares all that comes of it; the number of runs found.
int Compare(const PlainQuery& query)
{
    const PlainResult expected = Search(DaysOnShow(), query);
    const SearchResult result = FindRuns(Giorni, GiornoCorrente, ConditionsOf(query), {});
    QByteArrayList lines;
    for (const Text& line : result.lines) {
        lines << Bytes(line);
    }
    QTest::qCompare(lines, expected.lines, "lines", "expected", __FILE__, __LINE__);
    SearchTotals totals = result.totals;
    SommaKm(totals);
    TempiTotali(totals);
    MediaTotali(totals);
    QTest::qCompare(
        Bytes(RunsText(totals) + "|" + DistanceText(totals) + "|" + TimesText(totals) + "|" + MeanText(totals)),
        expected.totals, "totals", "expected", __FILE__, __LINE__);
    QByteArrayList errors;
    for (const QByteArray& unreadable : expected.unreadable) {
        errors << (unreadable.startsWith('T') ? "Somma Tempi - ERRORE : 5" : "Somma Media - ERRORE : 5");
    }
    QTest::qCompare(Told(result.errors), errors, "errors", "expected", __FILE__, __LINE__);

    // The chart: as many places as the first 350 hold paces, from the first on.
    const auto charted =
        std::count_if(expected.paces.begin(), expected.paces.begin() + std::min<qsizetype>(350, expected.paces.size()),
                      [](double pace) { return pace > 0; });
    const ChartData chart = PaceChart(totals.Medie);
    QTest::qCompare(static_cast<qsizetype>(chart.RowCount()), static_cast<qsizetype>(charted), "points", "paces",
                    __FILE__, __LINE__);
    for (int row = 1; row <= chart.RowCount(); ++row) {
        const double pace = expected.paces[row - 1];
        QByteArray written = QByteArray::number(pace, 'g', 4).replace('.', ',');
        QTest::qCompare(Bytes(chart.RowLabel(row)), written, "label", "pace", __FILE__, __LINE__);
        QTest::qVerify(std::abs(chart.Data(row, 1) - pace) < 1e-6, "value", "pace", __FILE__, __LINE__);
    }
    return static_cast<int>(lines.size());
}

/// The bars of all categories against a plain count.
void CompareBars()
{
    const std::vector<PlainDay> days = DaysOnShow();
    for (const QByteArray& title : kTitles) {
        const std::vector<PlainRow> rows = Ranked(title, days);
        CountValues(*StatisticOf(TextOf(title)));
        const ChartData chart = CategoryChart(TextOf(title), NomeCategoria, ContaCategoria, ValoreCategoria);
        QCOMPARE(Bytes(chart.TitleText), title);
        QCOMPARE(chart.ColumnCount(), static_cast<int>(rows.size()));
        QCOMPARE(chart.RowCount(), 1);
        for (int column = 1; column <= chart.ColumnCount(); ++column) {
            const PlainRow& row = rows[static_cast<std::size_t>(column - 1)];
            QCOMPARE(Bytes(chart.ColumnLabel(column)), row.value);
            QCOMPARE(chart.Data(1, column), static_cast<double>(row.count));
        }
    }
}

} // namespace

class SearchYearsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void TheSampleYear_data();
    void TheSampleYear();
    void YearsByChance_data();
    void YearsByChance();

private:
    std::unique_ptr<MessageScript> boxes_;
};

void SearchYearsTest::init()
{
    ForgetDays();
    ClearStatistic();
    boxes_ = std::make_unique<MessageScript>();
}

void SearchYearsTest::cleanup()
{
    boxes_.reset();
    ForgetDays();
    ClearStatistic();
}

void SearchYearsTest::TheSampleYear_data()
{
    QTest::addColumn<int>("day");
    QTest::newRow("January's first") << 1;
    QTest::newRow("20 May") << 140;
    QTest::newRow("the whole year") << 365;
}

void SearchYearsTest::TheSampleYear()
{
    QFETCH(int, day);
    const QByteArray path = ZELVIA_SOURCE_DIR "/share/demo/ZelviaFile/prova.zlv";
    CaricaDiario(SystemPath(path.toStdString()));
    GiornoCorrente = day;
    const DiaryBytes diary(Bytes(ReadWhole(path.toStdString())));
    // What the search is compared with comes from the lines of the file.
    const std::vector<PlainDay> read = DaysOnShow();
    for (int slot = 1; slot <= day; ++slot) {
        const PlainDay plain = PlainDayOf(diary, slot);
        const PlainDay& other = read[static_cast<std::size_t>(slot - 1)];
        QCOMPARE(other.date, plain.date);
        QCOMPARE(other.time, plain.time);
        QCOMPARE(other.average, plain.average);
        QCOMPARE(other.km * 1000 + other.metres, plain.km * 1000 + plain.metres);
    }
    CompareBars();
    Compare({});
    Chance chance(static_cast<unsigned>(day));
    int found = 0;
    for (int i = 0; i < 150 && !QTest::currentTestFailed(); ++i) {
        found += Compare(chance.Query(read));
    }
    QVERIFY(found > 0 || day == 1);
}

void SearchYearsTest::YearsByChance_data()
{
    QTest::addColumn<int>("seed");
    for (int seed = 1; seed <= 25; ++seed) {
        QTest::addRow("seed %d", seed) << seed;
    }
}

void SearchYearsTest::YearsByChance()
{
    QFETCH(int, seed);
    Chance chance(static_cast<unsigned>(seed));
    chance.FillYear();
    CompareBars();
    int found = Compare({});
    const std::vector<PlainDay> days = DaysOnShow();
    for (int i = 0; i < 40 && !QTest::currentTestFailed(); ++i) {
        found += Compare(chance.Query(days));
    }
    QVERIFY(found > 0);
}

ZELVIA_TEST(SearchYearsTest)
#include "SearchYearsTest.moc"
