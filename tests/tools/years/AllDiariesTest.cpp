// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/years/AllDiaries.h"

#include "core/Conversions.h"
#include "core/MessageBox.h"
#include "diary/CategoryStatistics.h"
#include "diary/Module1.h"
#include "diary/RunSearch.h"
#include "support/Bytes.h"
#include "support/DiaryBytes.h"
#include "support/TempFolder.h"
#include "support/TestProgram.h"
#include "tools/years/Periods.h"

#include <QTest>

#include <algorithm>
#include <filesystem>
#include <numeric>

using namespace zelvia;
using namespace zelvia::test;

class AllDiariesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ADay();
    void ADaysPlaceTellsItsDate();
    void EachYearFrom2001();
    void ABlankDiary();
    void DamagedOnes_data();
    void DamagedOnes();
    void AConflictCopy();
    void SeveralOfOneYear_data();
    void SeveralOfOneYear();
    void WhereTheyLie();
    void ProgressAndItsEnd();
    void NoFolder();
    void TheProgramsStateStays();
    void TheSampleYear();
    void Times_data();
    void Times();
};

namespace
{

void Put(const TempFolder& folder, const std::string& diary, const DiaryBytes& bytes)
{
    folder.MakeFolder("ZelviaFile");
    folder.Write("ZelviaFile/" + diary + ".zlv", TextOf(bytes.Bytes()));
}

/// A year with so many kilometres on its first day.
DiaryBytes YearOfKm(int year, int kilometres)
{
    DiaryBytes diary = DiaryBytes::Blank(year);
    diary.SetLine(1, DiaryBytes::Km, QByteArray::number(kilometres));
    return diary;
}

QByteArrayList LeftOut(const AllDiaries& all)
{
    QByteArrayList lines;
    for (const DiaryLeftOut& one : all.leftOut) {
        lines << QByteArray::fromStdString(one.diary + ": " + one.why);
    }
    return lines;
}

} // namespace

void AllDiariesTest::ADay()
{
    const TempFolder folder;
    DiaryBytes diary = DiaryBytes::Blank(2025);
    diary.SetLine(32, DiaryBytes::Route, "\" Lungomare \"");
    diary.SetLine(32, DiaryBytes::Km, "10");
    diary.SetLine(32, DiaryBytes::Metres, "550");
    diary.SetLine(32, DiaryBytes::Kind, "\" gara \"");
    diary.SetLine(32, DiaryBytes::Time, "\"0:49:06\"");
    diary.SetLine(32, DiaryBytes::Weight, "71");
    diary.SetLine(33, DiaryBytes::Km, "4"); // No type: kilometres, but no run.
    diary.SetLine(34, DiaryBytes::Kind, "\"Riposo\"");
    diary.SetLine(35, DiaryBytes::Weight, "70");
    diary.SetLine(36, DiaryBytes::Km, "-5"); // Counts as none, like blanks for a type.
    diary.SetLine(36, DiaryBytes::Kind, "\"  \"");
    diary.SetLine(37, DiaryBytes::Notes, "\"solo una nota\"");
    Put(folder, "2025", diary);
    const AllDiaries all = ReadAllDiaries(folder.Native());
    QCOMPARE(all.years.size(), std::size_t{1});
    QCOMPARE(all.years[0].year, 2025);
    const std::vector<DiaryDay> expected = {
        {CalendarDate(2025, 2, 1), "Lungomare", 10'550, 49 * 60 + 6, 71, true, true},
        {CalendarDate(2025, 2, 2), "", 4'000, 0, 0, false, false},
        {CalendarDate(2025, 2, 3), "", 0, 0, 0, true, false},
        {CalendarDate(2025, 2, 4), "", 0, 0, 70, false, false}};
    QVERIFY(all.years[0].days == expected);
    QVERIFY(all.Days() == expected);
}

/// The date that is kept with a day is that of the year in which the program showed it last.
void AllDiariesTest::ADaysPlaceTellsItsDate()
{
    const TempFolder folder;
    DiaryBytes leap = DiaryBytes::Blank(2024);
    leap.SetLine(60, DiaryBytes::Km, "6");
    leap.SetLine(60, DiaryBytes::Stamp, "#2026-03-01#");
    leap.SetLine(366, DiaryBytes::Km, "8");
    DiaryBytes common = DiaryBytes::Blank(2025);
    common.SetLine(60, DiaryBytes::Km, "6");
    common.SetLine(366, DiaryBytes::Km, "8"); // No day of that year.
    Put(folder, "2024", leap);
    Put(folder, "2025", common);
    const std::vector<DiaryDay> days = ReadAllDiaries(folder.Native()).Days();
    QCOMPARE(days.size(), std::size_t{3});
    QVERIFY(days[0].date == CalendarDate(2024, 2, 29));
    QVERIFY(days[1].date == CalendarDate(2024, 12, 31));
    QVERIFY(days[2].date == CalendarDate(2025, 3, 1));
}

void AllDiariesTest::EachYearFrom2001()
{
    const TempFolder folder;
    for (int year = 2001; year <= 2030; ++year) {
        DiaryBytes diary = YearOfKm(year, year - 2000);
        diary.SetLine(60, DiaryBytes::Metres, "500");
        Put(folder, std::to_string(year), diary);
    }
    const AllDiaries all = ReadAllDiaries(folder.Native());
    QVERIFY(all.leftOut.empty());
    const std::vector<PeriodTotal> years = YearsOf(all);
    QCOMPARE(years.size(), std::size_t{30});
    long sum = 0;
    for (int i = 0; i < 30; ++i) {
        const int year = 2001 + i;
        QCOMPARE(years[static_cast<std::size_t>(i)].number, year);
        QCOMPARE(years[static_cast<std::size_t>(i)].metres, (year - 2000) * 1000L + 500);
        const bool leap = year % 4 == 0;
        QVERIFY(all.Find(year)->days[1].date == CalendarDate(year, leap ? 2 : 3, leap ? 29 : 1));
        sum += years[static_cast<std::size_t>(i)].metres;
    }
    QCOMPARE(sum, 480'000L); // 1 + 2 + ... + 30 kilometres, and half a one thirty times.
}

void AllDiariesTest::ABlankDiary()
{
    const TempFolder folder;
    Put(folder, "2025", DiaryBytes::Blank(2025));
    const AllDiaries all = ReadAllDiaries(folder.Native());
    QCOMPARE(all.years.size(), std::size_t{1});
    QVERIFY(all.years[0].days.empty());
    QCOMPARE(YearsOf(all)[0].metres, 0L);
    QVERIFY(all.Find(2024) == nullptr);
    QVERIFY(all.leftOut.empty());
}

void AllDiariesTest::DamagedOnes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("why");
    const QByteArray whole = YearOfKm(2024, 5).Bytes();
    QTest::newRow("nothing in it") << QByteArray() << QByteArray("Lettura oltre la fine del file");
    QTest::newRow("cut") << whole.left(whole.size() / 2) << QByteArray("Lettura oltre la fine del file");
    QTest::newRow("no diary") << QByteArray("x\r\n") << QByteArray("Tipo non corrispondente");
    QTest::newRow("a number too large") << QByteArray(whole).replace("\r\n5\r\n", "\r\n99999\r\n")
                                        << QByteArray("Numero oltre i limiti");
}

/// The others are there all the same.
void AllDiariesTest::DamagedOnes()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, why);
    const TempFolder folder;
    Put(folder, "2023", YearOfKm(2023, 3));
    folder.Write("ZelviaFile/2024.zlv", bytes.toStdString());
    Put(folder, "2025", YearOfKm(2025, 4));
    const AllDiaries all = ReadAllDiaries(folder.Native());
    QCOMPARE(all.years.size(), std::size_t{2});
    QCOMPARE(YearsOf(all)[0].metres, 3'000L);
    QCOMPARE(YearsOf(all)[1].metres, 4'000L);
    QCOMPARE(LeftOut(all), QByteArrayList{"2024: non si legge per intero («" + why + "»)"});
}

/// Nor does one win for its name, which comes first.
void AllDiariesTest::AConflictCopy()
{
    const TempFolder folder;
    const std::string conflict = "alfa (conflicted copy 2026-11-01)";
    Put(folder, "alfa", YearOfKm(2024, 3));
    Put(folder, conflict, YearOfKm(2024, 5));
    const AllDiaries all = ReadAllDiaries(folder.Native());
    QCOMPARE(all.years.size(), std::size_t{1});
    QCOMPARE(YearsOf(all)[0].metres, 3'000L);
    QCOMPARE(LeftOut(all), QByteArrayList{QByteArray::fromStdString(
                               conflict + ": è in conflitto con «ZelviaFile/alfa.zlv»: «Due computer», negli "
                                          "strumenti, li unisce")});
}

void AllDiariesTest::SeveralOfOneYear_data()
{
    QTest::addColumn<QByteArray>("pointer");
    QTest::addColumn<int>("kilometres");
    QTest::addColumn<QByteArray>("valid");
    QTest::addColumn<QByteArrayList>("others");
    QTest::newRow("the one that opens") << QByteArray("altro") << 1 << QByteArray("altro")
                                        << QByteArrayList{"2024", "prova"};
    QTest::newRow("the one named after it")
        << QByteArray("2001") << 2 << QByteArray("2024") << QByteArrayList{"altro", "prova"};
    // Without a name the program opens "prova".
    QTest::newRow("no name") << QByteArray() << 3 << QByteArray("prova") << QByteArrayList{"2024", "altro"};
}

void AllDiariesTest::SeveralOfOneYear()
{
    QFETCH(QByteArray, pointer);
    QFETCH(int, kilometres);
    QFETCH(QByteArray, valid);
    QFETCH(QByteArrayList, others);
    const TempFolder folder;
    Put(folder, "altro", YearOfKm(2024, 1));
    Put(folder, "2024", YearOfKm(2024, 2));
    Put(folder, "prova", YearOfKm(2024, 3));
    if (!pointer.isEmpty()) {
        folder.Write("nomeload", "\"" + folder.Path("ZelviaFile/" + pointer.toStdString() + ".zlv") + "\"\r\n");
    }
    const AllDiaries all = ReadAllDiaries(folder.Native());
    QCOMPARE(all.years.size(), std::size_t{1});
    QCOMPARE(QByteArray::fromStdString(all.years[0].diary), valid);
    QCOMPARE(YearsOf(all)[0].metres, kilometres * 1000L);
    QByteArrayList names;
    for (const DiaryLeftOut& one : all.leftOut) {
        names << QByteArray::fromStdString(one.diary);
    }
    std::sort(names.begin(), names.end());
    QCOMPARE(names, others);
    const QByteArray reason = "è dell'anno 2024 come il diario «" + valid + "», che vale";
    QCOMPARE(QByteArray::fromStdString(all.leftOut.back().why), reason);
}

void AllDiariesTest::WhereTheyLie()
{
    const TempFolder folder;
    Put(folder, "2025", YearOfKm(2025, 1));
    folder.MakeFolder("ZelviaFile/vecchi");
    Put(folder, "vecchi/2020", YearOfKm(2020, 2));
    folder.Write("ZelviaFile/2021.ZLV", TextOf(YearOfKm(2021, 3).Bytes()));
    folder.Write("ZelviaFile/appunti.txt", "x");
    folder.Write("2022.zlv", TextOf(YearOfKm(2022, 4).Bytes()));
    std::filesystem::create_symlink(folder.Native("2022.zlv"), folder.Native("ZelviaFile/2022.zlv"));
    const AllDiaries all = ReadAllDiaries(folder.Native());
    QCOMPARE(LeftOut(all), QByteArrayList());
    QCOMPARE(all.years.size(), std::size_t{3});
    QCOMPARE(all.years[0].diary, std::string("vecchi/2020"));
    QCOMPARE(all.years[1].diary, std::string("2021"));
    QCOMPARE(all.years[2].diary, std::string("2025"));
}

void AllDiariesTest::ProgressAndItsEnd()
{
    const TempFolder folder;
    for (const int year : {2021, 2022, 2023}) {
        Put(folder, std::to_string(year), DiaryBytes::Blank(year));
    }
    QList<std::pair<int, int>> told;
    const AllDiaries all = ReadAllDiaries(folder.Native(), [&](int read, int of) {
        told << std::pair(read, of);
        return read < 2;
    });
    QCOMPARE(told, (QList<std::pair<int, int>>{{1, 3}, {2, 3}}));
    QCOMPARE(all.years.size(), std::size_t{2});
}

void AllDiariesTest::NoFolder()
{
    const TempFolder folder;
    QVERIFY_THROWS_EXCEPTION(std::filesystem::filesystem_error, ReadAllDiaries(folder.Native("assente")));
    const AllDiaries all = ReadAllDiaries(folder.Native());
    QVERIFY(all.years.empty() && all.leftOut.empty());
}

void AllDiariesTest::TheProgramsStateStays()
{
    const TempFolder folder;
    Put(folder, "2025", YearOfKm(2025, 1));
    folder.Write("ZelviaFile/2024.zlv", "x");
    Module1::Giorni[1].Km = 77;
    Module1::session.NomeFile = "altrove";
    int boxes = 0;
    SetMsgBoxHandler([&](const MsgRequest&) {
        ++boxes;
        return MsgAnswer::OK;
    });
    ReadAllDiaries(folder.Native());
    SetMsgBoxHandler({});
    QCOMPARE(boxes, 0);
    QVERIFY(Module1::Giorni[1].Km == 77);
    QCOMPARE(Module1::session.NomeFile, Text("altrove"));
    Module1::Giorni[1] = RecordGiorno();
    Module1::AzzeraStato();
}

/// Kilometres and times are those that the program's own search finds in the whole year, runs and races those that its
/// statistic of the types counts.
void AllDiariesTest::TheSampleYear()
{
    const std::string demo = ZELVIA_SOURCE_DIR "/share/demo";
    Module1::CaricaDiario(SystemPath(demo + "/ZelviaFile/prova.zlv"));
    SearchCriteria criteria;
    SearchTotals totals = FindRuns(Module1::Giorni, 366, criteria, {}).totals;
    const long metres = totals.TotKm.value() * 1000L + totals.TotMetri.value();
    TempiTotali(totals);
    const long seconds = (totals.TotOre.value() * 60L + totals.TotMinuti.value()) * 60 + totals.TotSecondi.value();
    QVERIFY(metres > 0 && seconds > 0);

    const AllDiaries all = ReadAllDiaries(demo);
    QCOMPARE(all.years.size(), std::size_t{1});
    Module1::GiornoCorrente = 365;
    Module1::CountValues(StatisticOf(Categoria::Tipo));
    int runs = 0;
    int races = 0;
    for (int i = 1; i <= kMaxCategories; ++i) {
        runs += Module1::ContaCategoria[i].value();
        races += Module1::NomeCategoria[i] == "Gara" ? Module1::ContaCategoria[i].value() : 0;
    }
    QVERIFY(races > 0);
    QCOMPARE(YearsOf(all)[0].runs, runs);
    QCOMPARE(YearsOf(all)[0].races, races);
    QCOMPARE(YearsOf(all)[0].metres, metres);
    const auto add = [](long sum, const PeriodTotal& one) { return sum + one.metres; };
    const std::vector<PeriodTotal> months = MonthsOf(all.Days(), 2026);
    QCOMPARE(std::accumulate(months.begin(), months.end(), 0L, add), metres);
    const std::vector<PeriodTotal> weeks = WeeksOf(all.Days(), 2026);
    const std::vector<PeriodTotal> before = WeeksOf(all.Days(), 2025);
    QCOMPARE(std::accumulate(weeks.begin(), weeks.end(), before.back().metres, add), metres);
    QCOMPARE(CurveOf(all.Days(), 2026, CalendarDate(2026, 12, 31)).back(), metres);
    long own = 0;
    for (const DiaryDay& day : all.Days()) {
        own += day.metres > 0 ? day.seconds : 0; // It leaves out what has no distance.
    }
    QCOMPARE(own, seconds);
}

void AllDiariesTest::Times_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("seconds");
    QTest::newRow("as on the page") << QByteArray("0:49:06") << 2946;
    QTest::newRow("hours") << QByteArray("12:00:01") << 43201;
    QTest::newRow("none") << QByteArray("") << 0;
    QTest::newRow("blank") << QByteArray("0:00:00") << 0;
    QTest::newRow("past midnight") << QByteArray("-1:10:00") << 0;
    QTest::newRow("two parts") << QByteArray("49:06") << 0;
    QTest::newRow("four parts") << QByteArray("0:49:06:1") << 0;
    QTest::newRow("words") << QByteArray("un'ora") << 0;
    QTest::newRow("no number at the end") << QByteArray("0:49:") << 0;
    QTest::newRow("too long a number") << QByteArray("99999999999:00:00") << 0;
}

void AllDiariesTest::Times()
{
    QFETCH(QByteArray, text);
    QTEST(SecondsOf(text.toStdString()), "seconds");
}

ZELVIA_TEST(AllDiariesTest)
#include "AllDiariesTest.moc"
