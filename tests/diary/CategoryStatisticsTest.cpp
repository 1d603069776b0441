// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/CategoryStatistics.h"

#include "diary/Module1.h"
#include "support/Bytes.h"
#include "support/Days.h"
#include "support/MessageScript.h"
#include "support/TestProgram.h"

#include <QByteArrayList>
#include <QTest>

using namespace zelvia;
using namespace zelvia::Module1;
using zelvia::test::Bytes;
using zelvia::test::ForgetDays;
using zelvia::test::MessageScript;
using zelvia::test::TextOf;

namespace
{

/// Keeps what a statistic shows.
class View : public StatisticView
{
public:
    void SetTitle(TextView title) override { titles << Bytes(title); }
    void AddLine(TextView line) override { lines << Bytes(line); }

    QByteArrayList titles;
    QByteArrayList lines;
};

/// One that takes no line.
class FullView : public View
{
public:
    void AddLine(TextView /*line*/) override { throw ErroreRunTime(Errore::MemoriaEsaurita); }
};

View Run(Categoria category)
{
    View view;
    RunStatistic(StatisticOf(category), view);
    return view;
}

/// A value and a count as in the 40 columns.
QByteArray Line(const char* name, int count)
{
    return QByteArray(name).leftJustified(30) + QByteArray::number(count).rightJustified(6) + "    ";
}

/// Puts a route on each of the days 1, 2, ... and makes the last of them the one on show.
void PutRoutes(const QByteArrayList& routes)
{
    for (int day = 1; day <= routes.size(); ++day) {
        Giorni[day].Percorso = TextOf(routes[day - 1]);
    }
    GiornoCorrente = static_cast<int>(routes.size());
}

void PutRunners(const QList<int>& runners)
{
    for (int day = 1; day <= runners.size(); ++day) {
        Giorni[day].Km = 10;
        Giorni[day].Corridori = runners[day - 1];
    }
    GiornoCorrente = static_cast<int>(runners.size());
}

struct Row {
    Categoria category;
    const char* title;
    const char* routine;
    void (*fill)(RecordGiorno&); ///< What makes a day count, and nothing but that.
    const char* line;
};

const Row kRows[] = {
    {Categoria::Percorso, "Percorso", "StatisPercorso", [](RecordGiorno& day) { day.Percorso = "Lago"; }, "Lago"},
    {Categoria::Lunghezza, "Lunghezza", "StatisLunghezza", [](RecordGiorno& day) { day.Lunghezza = "Medio"; }, "Medio"},
    {Categoria::Andatura, "Andatura", "SatisAndatura", [](RecordGiorno& day) { day.Modo = "Lenta"; }, "Lenta"},
    {Categoria::Fondo, "Terreno", "StatisFondo", [](RecordGiorno& day) { day.Fondo = "Strada"; }, "Strada"},
    {Categoria::Tipo, "Tipo", "StatisTipo", [](RecordGiorno& day) { day.Tipo = "Gara"; }, "Gara"},
    {Categoria::Stagione, "Stagione", "StatisStagione", [](RecordGiorno& day) { day.Stagione = "Estate"; }, "Estate"},
    {Categoria::Meteo, "Meteo", "StatisMeteo", [](RecordGiorno& day) { day.TempoAtm = "Vento"; }, "Vento"},
    {Categoria::Temperatura, "Temperatura", "StatisTemperatura", [](RecordGiorno& day) { day.Temperatura = "Mite"; },
     "Mite"},
    {Categoria::Corridori, "Corridori", "StatisCorridori", [](RecordGiorno& day) { day.Metri = 1; }, " 1"},
    {Categoria::Peso, "Peso", "StatisPeso", [](RecordGiorno& day) { day.Peso = 70; }, " 70"},
    {Categoria::Km, "Km", "StatisKm", [](RecordGiorno& day) { day.Km = 7; }, " 7,0"},
    {Categoria::Ripetizioni, "Ripetizioni", "StatisRipetizioni", [](RecordGiorno& day) { day.Ripetizioni = 5; },
     " 5 x 0  @ 0:0"},
};

void AddRows()
{
    QTest::addColumn<int>("row");
    for (std::size_t i = 0; i < std::size(kRows); ++i) {
        QTest::newRow(kRows[i].title) << static_cast<int>(i);
    }
}

} // namespace

class CategoryStatisticsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void EachCountsItsField_data() { AddRows(); }
    void EachCountsItsField();
    void NoDayCounts_data() { AddRows(); }
    void NoDayCounts();
    void ErrorsBearItsName_data() { AddRows(); }
    void ErrorsBearItsName();
    void TitlesAreFoundToTheLetter();
    void OnlyDaysUpToTheOneOnShow();
    void CaseIsOneValue();
    void EqualCountsByTheirFirstDay();
    void BlanksAreAValue();
    void TheSixtyFirstValueIsLeftOut();
    void DistanceInEitherPart();
    void RepetitionsOfNoneAreLeftOut();
    void NoRunnersAreCountedButNotShown();
    void RunnersBeyondAShort();
    void RunnersBeyondAShortAsSixtyFirst();
    void NegativeNumbers();
    void TextsLeaveTheNumbers();
    void NumbersLeaveNoNames();
    void SlotZeroIsNeverWritten();
    void LongNamesAreCutInTheirLineOnly();
    void CountsEndInOneColumn_data();
    void CountsEndInOneColumn();
    void ShownBelowWhatIsThere();
    void FailuresOfTheView();

private:
    std::unique_ptr<MessageScript> boxes_;
};

void CategoryStatisticsTest::init()
{
    ForgetDays();
    ClearStatistic();
    boxes_ = std::make_unique<MessageScript>();
}

void CategoryStatisticsTest::cleanup()
{
    QVERIFY(boxes_->AllShown());
    boxes_.reset();
}

void CategoryStatisticsTest::EachCountsItsField()
{
    QFETCH(int, row);
    GiornoCorrente = 9;
    kRows[row].fill(Giorni[4]);
    kRows[row].fill(Giorni[6]);
    for (const Row& each : kRows) {
        // Another field does not make the day count; a distance counts for two.
        const bool same = each.category == kRows[row].category;
        const bool distances = (each.category == Categoria::Km && kRows[row].category == Categoria::Corridori) ||
                               (each.category == Categoria::Corridori && kRows[row].category == Categoria::Km);
        const View view = Run(each.category);
        QCOMPARE(view.titles, QByteArrayList{each.title});
        QCOMPARE(Bytes(TitoloStatistica), QByteArray(each.title));
        if (!distances) {
            QCOMPARE(view.lines, same ? QByteArrayList{Line(each.line, 2)} : QByteArrayList());
        }
    }
    QCOMPARE(boxes_->Shown(), 0);
}

void CategoryStatisticsTest::NoDayCounts()
{
    QFETCH(int, row);
    GiornoCorrente = 366;
    NomeCategoria[3] = "vecchio";
    ContaCategoria[3] = 9;
    const View view = Run(kRows[row].category);
    QCOMPARE(view.titles, QByteArrayList{kRows[row].title});
    QCOMPARE(view.lines, QByteArrayList());
    QVERIFY(ContaCategoria == PerCategory<i16>());
    QVERIFY(NomeCategoria == PerCategory<Text>());
    QCOMPARE(boxes_->Shown(), 0);
}

void CategoryStatisticsTest::ErrorsBearItsName()
{
    QFETCH(int, row);
    // There is no such day.
    GiornoCorrente = 367;
    boxes_->ExpectError(Text(kRows[row].routine) + " - ERRORE : ", 9);
    const View view = Run(kRows[row].category);
    QCOMPARE(view.titles, QByteArrayList());
    QCOMPARE(Bytes(TitoloStatistica), QByteArray(kRows[row].title));
}

void CategoryStatisticsTest::TitlesAreFoundToTheLetter()
{
    for (const Row& row : kRows) {
        QCOMPARE(StatisticOf(TextView(row.title)), &StatisticOf(row.category));
    }
    for (const char* none : {"", "percorso", "Percorso ", "Fondo"}) {
        QVERIFY(StatisticOf(TextView(none)) == nullptr);
    }
}

void CategoryStatisticsTest::OnlyDaysUpToTheOneOnShow()
{
    PutRoutes({"Lago", "Bosco", "Lago", "Lago"});
    Giorni[366].Percorso = "Mare";
    GiornoCorrente = 1;
    QCOMPARE(Run(Categoria::Percorso).lines, QByteArrayList{Line("Lago", 1)});
    GiornoCorrente = 3;
    QCOMPARE(Run(Categoria::Percorso).lines, (QByteArrayList{Line("Lago", 2), Line("Bosco", 1)}));
    GiornoCorrente = 365;
    QCOMPARE(Run(Categoria::Percorso).lines, (QByteArrayList{Line("Lago", 3), Line("Bosco", 1)}));
    GiornoCorrente = 366;
    QCOMPARE(Run(Categoria::Percorso).lines, (QByteArrayList{Line("Lago", 3), Line("Bosco", 1), Line("Mare", 1)}));
}

void CategoryStatisticsTest::CaseIsOneValue()
{
    PutRoutes({"lago", "LAGO", "Citt\xE0", "Lago", "CITT\xC0", "Lago "});
    QCOMPARE(Run(Categoria::Percorso).lines, (QByteArrayList{Line("lago", 3), Line("Citt\xE0", 2), Line("Lago", 1)}));
    QCOMPARE(Bytes(NomeCategoria[1]), QByteArray("lago"));
    QCOMPARE(Bytes(NomeCategoria[3]), QByteArray("Lago "));
}

void CategoryStatisticsTest::EqualCountsByTheirFirstDay()
{
    PutRoutes({"Mare", "Lago", "Bosco", "Colle", "Bosco", "Lago", "Bosco"});
    QCOMPARE(Run(Categoria::Percorso).lines,
             (QByteArrayList{Line("Bosco", 3), Line("Lago", 2), Line("Mare", 1), Line("Colle", 1)}));
}

void CategoryStatisticsTest::BlanksAreAValue()
{
    PutRoutes({" ", "", " "});
    QCOMPARE(Run(Categoria::Percorso).lines, QByteArrayList{Line(" ", 2)});
}

void CategoryStatisticsTest::TheSixtyFirstValueIsLeftOut()
{
    constexpr int routes = 61;
    QByteArrayList year;
    for (int turn = 0; turn < 3; ++turn) {
        for (int route = 1; route <= routes; ++route) {
            year << "R" + QByteArray::number(route);
        }
    }
    year << "r7"; // an early one still counts
    PutRoutes(year);
    const View view = Run(Categoria::Percorso);
    QCOMPARE(view.lines.size(), 60);
    QCOMPARE(view.lines[0], Line("R7", 4));
    int total = 0;
    for (int slot = 1; slot <= 60; ++slot) {
        QVERIFY(NomeCategoria[slot] != "R61");
        QVERIFY(ContaCategoria[slot] == (slot == 1 ? 4 : 3));
        total += ContaCategoria[slot].value();
    }
    QCOMPARE(total, 3 * routes + 1 - 3);
    QCOMPARE(boxes_->Shown(), 0);
}

void CategoryStatisticsTest::DistanceInEitherPart()
{
    GiornoCorrente = 5;
    Giorni[1].Km = 7;
    Giorni[2].Km = 7;
    Giorni[2].Metri = 50;
    Giorni[3].Metri = 500;
    Giorni[4].Km = 12;
    Giorni[5].Km = 7;
    QCOMPARE(Run(Categoria::Km).lines,
             (QByteArrayList{Line(" 7,0", 2), Line(" 7,50", 1), Line(" 0,500", 1), Line("12,0", 1)}));
}

void CategoryStatisticsTest::RepetitionsOfNoneAreLeftOut()
{
    GiornoCorrente = 2;
    for (int day : {1, 2}) {
        Giorni[day].RipetizioniDistanza = 1000;
        Giorni[day].RipetizioniQuante = 4;
        Giorni[day].RipetizioniTempi = 30;
    }
    QCOMPARE(Run(Categoria::Ripetizioni).lines, QByteArrayList());
    Giorni[2].Ripetizioni = 10;
    QCOMPARE(Run(Categoria::Ripetizioni).lines, QByteArrayList{Line("10 x 1000 @ 4:30", 1)});
}

void CategoryStatisticsTest::NoRunnersAreCountedButNotShown()
{
    PutRunners({3, 0, 0, 5, 3, 0});
    Giorni[7].Corridori = 9; // no distance: no run
    GiornoCorrente = 7;
    QCOMPARE(Run(Categoria::Corridori).lines, (QByteArrayList{Line(" 3", 2), Line(" 5", 1)}));
    QVERIFY(ValoreCategoria[1] == 0 && ContaCategoria[1] == 3);
    QVERIFY(ValoreCategoria[2] == 3 && ContaCategoria[2] == 2);
    QVERIFY(ValoreCategoria[3] == 5 && ContaCategoria[3] == 1);
}

void CategoryStatisticsTest::RunnersBeyondAShort()
{
    PutRunners({4, 32767, 32767, 32768, 4});
    boxes_->ExpectError("StatisCorridori - ERRORE : ", 6);
    const View view = Run(Categoria::Corridori);
    QCOMPARE(view.titles, QByteArrayList());
    QCOMPARE(view.lines, QByteArrayList());
    // It ended there, before the ranking.
    QVERIFY(ValoreCategoria[1] == 4 && ContaCategoria[1] == 1);
    QVERIFY(ValoreCategoria[2] == 32767 && ContaCategoria[2] == 2);
    QVERIFY(ValoreCategoria[3] == 0 && ContaCategoria[3] == 0);
}

void CategoryStatisticsTest::RunnersBeyondAShortAsSixtyFirst()
{
    QList<int> runners;
    for (int value = 1; value <= 60; ++value) {
        runners << value;
    }
    PutRunners(runners << 40000 << 60);
    QCOMPARE(Run(Categoria::Corridori).lines.size(), 60);
    QVERIFY(ValoreCategoria[1] == 60 && ContaCategoria[1] == 2);
    QCOMPARE(boxes_->Shown(), 0);
}

void CategoryStatisticsTest::NegativeNumbers()
{
    PutRunners({-5, 7, -5});
    QCOMPARE(Run(Categoria::Corridori).lines, (QByteArrayList{Line("-5", 2), Line(" 7", 1)}));
}

void CategoryStatisticsTest::TextsLeaveTheNumbers()
{
    PutRunners({6, 6});
    Run(Categoria::Corridori);
    PutRoutes({"Lago", "Bosco"});
    Run(Categoria::Percorso);
    QVERIFY(ValoreCategoria[1] == 6);
    QVERIFY(NomeCategoria[2] == "Bosco");
}

void CategoryStatisticsTest::NumbersLeaveNoNames()
{
    PutRoutes({"Lago", "Bosco"});
    Run(Categoria::Percorso);
    Giorni[2].Peso = 71;
    QCOMPARE(Run(Categoria::Peso).lines, QByteArrayList{Line(" 71", 1)});
    QVERIFY(NomeCategoria == PerCategory<Text>());
    QVERIFY(ContaCategoria[2] == 0);
    PutRunners({2});
    Run(Categoria::Corridori);
    QVERIFY(ValoreCategoria[1] == 2);
}

void CategoryStatisticsTest::SlotZeroIsNeverWritten()
{
    NomeCategoria[0] = "zero";
    ContaCategoria[0] = 77;
    ValoreCategoria[0] = 88;
    PutRoutes({"Lago", "Bosco"});
    PutRunners({1, 2});
    for (const Categoria category : kAllCategories) {
        Run(category);
        QVERIFY(NomeCategoria[0] == "zero" && ContaCategoria[0] == 77 && ValoreCategoria[0] == 88);
    }
}

void CategoryStatisticsTest::LongNamesAreCutInTheirLineOnly()
{
    const QByteArray thirty = "123456789 123456789 123456789 ";
    PutRoutes({thirty + "a", thirty + "b", thirty, "corto"});
    const QByteArray cut = thirty + "     1    ";
    QCOMPARE(Run(Categoria::Percorso).lines, (QByteArrayList{cut, cut, cut, Line("corto", 1)}));
    QCOMPARE(Bytes(NomeCategoria[1]), thirty + "a");
    QCOMPARE(Bytes(NomeCategoria[2]), thirty + "b");
}

void CategoryStatisticsTest::CountsEndInOneColumn_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QByteArray>("columns"); // 31 to 40
    QTest::newRow("one") << 1 << QByteArray("     1    ");
    QTest::newRow("nine") << 9 << QByteArray("     9    ");
    QTest::newRow("ten") << 10 << QByteArray("    10    ");
    QTest::newRow("ninety-nine") << 99 << QByteArray("    99    ");
    QTest::newRow("a hundred") << 100 << QByteArray("   100    ");
    QTest::newRow("a leap year") << 366 << QByteArray("   366    ");
}

void CategoryStatisticsTest::CountsEndInOneColumn()
{
    QFETCH(int, count);
    QFETCH(QByteArray, columns);
    const QByteArray line = Bytes(StatisticLine("Lago", count));
    QCOMPARE(line, "Lago                          " + columns);
    QCOMPARE(line.size(), 40);
    PutRoutes(QByteArrayList(count, "Lago"));
    QCOMPARE(Run(Categoria::Percorso).lines, QByteArrayList{line});
}

void CategoryStatisticsTest::ShownBelowWhatIsThere()
{
    PutRoutes({"Lago"});
    Giorni[1].Peso = 70;
    View view;
    RunStatistic(StatisticOf(Categoria::Percorso), view);
    RunStatistic(StatisticOf(Categoria::Peso), view);
    QCOMPARE(view.titles, (QByteArrayList{"Percorso", "Peso"}));
    QCOMPARE(view.lines, (QByteArrayList{Line("Lago", 1), Line(" 70", 1)}));
}

void CategoryStatisticsTest::FailuresOfTheView()
{
    PutRoutes({"Lago"});
    Giorni[1].Peso = 70;
    FullView view;
    boxes_->ExpectError("VisualStat - ERRORE : ", 7);
    RunStatistic(StatisticOf(Categoria::Percorso), view);
    boxes_->ExpectError("VisualStatint - ERRORE : ", 7);
    RunStatistic(StatisticOf(Categoria::Peso), view);
    QCOMPARE(view.titles, (QByteArrayList{"Percorso", "Peso"}));
}

ZELVIA_TEST(CategoryStatisticsTest)
#include "CategoryStatisticsTest.moc"
