// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Whole years: the sample one, and years by chance, against a plain computation of the same.
#include "core/Files.h"
#include "diary/CategoryStatistics.h"
#include "diary/Module1.h"
#include "diary/PlainStatistics.h"
#include "support/Days.h"
#include "support/MessageScript.h"
#include "support/TestProgram.h"

#include <QTest>

#include <random>

using namespace zelvia;
using namespace zelvia::Module1;
using namespace zelvia::test;

namespace
{

class Lines : public StatisticView
{
public:
    void SetTitle(TextView text) override { title = Bytes(text); }
    void AddLine(TextView line) override { lines << Bytes(line); }

    QByteArray title;
    QByteArrayList lines;
};

/// A year by chance. Its texts are those of a vocabulary, spelt in small or capital letters; how many words it has and
/// how many days are empty differs from year to year.
class Chance
{
public:
    explicit Chance(unsigned seed) : engine_(seed) {}

    void FillYear()
    {
        words_ = Any(2) == 0 ? 3 : Any(2) == 0 ? 40 : 90;
        filled_ = 1 + Any(10);
        GiornoCorrente = 1 + Any(366);
        for (int day = 1; day <= 366; ++day) {
            RecordGiorno giorno;
            giorno.NumGiorno = day;
            for (Text* text : {&giorno.Percorso, &giorno.Lunghezza, &giorno.Modo, &giorno.Fondo, &giorno.Tipo,
                               &giorno.Stagione, &giorno.TempoAtm, &giorno.Temperatura}) {
                *text = Word();
            }
            giorno.Km = Number(12);
            giorno.Metri = Any(3) == 0 ? Number(9) * 100 : i16(0);
            giorno.Corridori = Any(words_);
            giorno.Peso = Number(80);
            giorno.Ripetizioni = Number(12);
            giorno.RipetizioniDistanza = Number(4) * 400;
            giorno.RipetizioniQuante = Number(2);
            giorno.RipetizioniTempi = Number(3);
            Giorni[day] = giorno;
        }
    }

private:
    int Any(int count) { return static_cast<int>(engine_() % static_cast<unsigned>(count)); }
    i16 Number(int highest) { return Any(10) < filled_ ? Any(highest + 1) : 0; }

    Text Word()
    {
        if (Any(10) >= filled_) {
            return {};
        }
        const QString word = QStringLiteral("località %1 di lunga descrizione").arg(Any(words_));
        const QString spelt = Any(4) == 0 ? word.toUpper() : word;
        return spelt.left(22 + Any(2) * 20).toLatin1().toStdString();
    }

    std::mt19937 engine_;
    int words_ = 0;
    int filled_ = 0;
};

std::vector<PlainDay> DaysOnShow()
{
    std::vector<PlainDay> days;
    for (int day = 1; day <= GiornoCorrente; ++day) {
        days.push_back(PlainDayOf(Giorni[day]));
    }
    return days;
}

/// Runs one statistic on the year in memory and compares all that it leaves.
void Compare(const QByteArray& title)
{
    const std::vector<PlainRow> rows = Ranked(title, DaysOnShow());
    const Statistic* statistic = StatisticOf(TextOf(title));
    QVERIFY(statistic != nullptr);
    Lines view;
    RunStatistic(*statistic, view);
    QCOMPARE(view.title, title);
    QCOMPARE(Bytes(TitoloStatistica), title);
    QCOMPARE(view.lines, LinesOf(title, rows));
    for (int slot = 1; slot <= kMaxCategories; ++slot) {
        const auto place = static_cast<std::size_t>(slot - 1);
        const PlainRow row = place < rows.size() ? rows[place] : PlainRow{IsNumeric(title) ? "0" : "", 0};
        QCOMPARE(int{ContaCategoria[slot].value()}, row.count);
        QCOMPARE(Bytes(NomeCategoria[slot]), IsNumeric(title) ? QByteArray() : row.value);
        if (IsNumeric(title)) {
            QCOMPARE(QByteArray::number(ValoreCategoria[slot].value()), row.value);
        }
    }
}

} // namespace

class StatisticsYearsTest : public QObject
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

void StatisticsYearsTest::init()
{
    ForgetDays();
    ClearStatistic();
    boxes_ = std::make_unique<MessageScript>();
}

void StatisticsYearsTest::cleanup()
{
    QCOMPARE(boxes_->Shown(), 0);
    boxes_.reset();
}

void StatisticsYearsTest::TheSampleYear_data()
{
    QTest::addColumn<int>("until");
    for (const int until : {1, 59, 140, 250, 365, 366}) {
        QTest::addRow("to day %d", until) << until;
    }
}

void StatisticsYearsTest::TheSampleYear()
{
    QFETCH(int, until);
    CaricaDiario(SystemPath(ZELVIA_SOURCE_DIR "/share/demo/ZelviaFile/prova.zlv"));
    QVERIFY(!Giorni[80].Percorso.empty() || !Giorni[81].Percorso.empty());
    GiornoCorrente = until;
    for (const QByteArray& title : kTitles) {
        Compare(title);
        if (QTest::currentTestFailed()) {
            return;
        }
    }
}

void StatisticsYearsTest::YearsByChance_data()
{
    QTest::addColumn<unsigned>("seed");
    constexpr unsigned years = 40;
    for (unsigned seed = 1; seed <= years; ++seed) {
        QTest::addRow("year %u", seed) << seed;
    }
}

void StatisticsYearsTest::YearsByChance()
{
    QFETCH(unsigned, seed);
    Chance(seed).FillYear();
    for (const QByteArray& title : kTitles) {
        Compare(title);
        if (QTest::currentTestFailed()) {
            return;
        }
    }
}

ZELVIA_TEST(StatisticsYearsTest)
#include "StatisticsYearsTest.moc"
