// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "diary/Fields.h"
#include "diary/Module1.h"
#include "support/Bytes.h"
#include "support/Days.h"
#include "support/FileFailures.h"
#include "support/MessageScript.h"
#include "support/TempFolder.h"
#include "support/TestProgram.h"

#include <QTest>

#include <algorithm>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <sys/resource.h>

using namespace zelvia;
using namespace zelvia::test;

class DiaryFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { ForgetDays(); }
    void ABlankYearIsWrittenLineByLine_data();
    void ABlankYearIsWrittenLineByLine();
    void ABlankYearComesBack();
    void ExtremeValuesComeBack();
    void TheLastSplitAndTheFirstNoteAreNotInTheFile();
    void ANoteWithQuotesEndsInTheReport();
    void ANoteOfCommasComesBack();
    void AWrongDayNumberLoadsSilently();
    void AnythingBehindTheLastValueIsIgnored();
    void LineFeedsAloneAreRead_data();
    void LineFeedsAloneAreRead();
    void AMissingFileIsSilent();
    void ReadingFailsWithAReport_data();
    void ReadingFailsWithAReport();
    void WritingFailsWithAReport_data() { AddWriteFailures(); }
    void WritingFailsWithAReport();
    void AWriteThatFailsHalfWayLeavesAShortFile();
    void AnExistingFileIsReplaced();
    void NothingButTheDaysIsTouched();
    void RandomYearsComeBack();

private:
    /// Saves, compares with lines made again, reads them over blank days and returns the days.
    std::vector<RecordGiorno> OutAndIn();

    TempFolder folder_;
};

namespace
{

std::string LinesOfYear()
{
    std::string text;
    for (int slot = 1; slot <= 366; ++slot) {
        text += Lines(LinesOfDay(Module1::Giorni[slot]));
    }
    return text;
}

/// A blank year written down from the calendar alone.
std::string BlankYear(int year)
{
    constexpr int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = year % 4 == 0;
    std::string text;
    int month = 1;
    int day = 1;
    for (int slot = 1; slot <= 366; ++slot) {
        char date[40];
        std::snprintf(date, sizeof date, "#%04d-%02d-%02d#", year, month, day);
        std::vector<std::string> lines = {std::to_string(slot), date, "\"\"", "\"\"", "0", "0", "\"\"", "\"\"", "\"\""};
        lines.insert(lines.end(), 6, "0");
        lines.insert(lines.end(), 2 + 100 + 3, "\"\"");
        lines.emplace_back("1");
        lines.insert(lines.end(), 5, "0");
        lines.insert(lines.end(), 10, "\"\"");
        text += Lines(lines);
        if (++day > lengths[month - 1] + (leap && month == 2 ? 1 : 0)) {
            day = 1;
            if (++month > 12) {
                month = 1;
                ++year;
            }
        }
    }
    return text;
}

/// What a file can't hold is dropped, so that days can be compared.
std::vector<RecordGiorno> AsFiled(std::vector<RecordGiorno> days)
{
    for (RecordGiorno& day : days) {
        day.ListaKm[100].clear();
        day.Note[0].clear();
    }
    days[0] = RecordGiorno();
    return days;
}

template <typename Assign>
void FillDays(const Assign& assign)
{
    for (int slot = 1; slot <= 366; ++slot) {
        VisitDiaryValues(Module1::Giorni[slot], [&](auto& value) { assign(value); });
    }
}

} // namespace

std::vector<RecordGiorno> DiaryFileTest::OutAndIn()
{
    const std::string expected = LinesOfYear();
    Module1::SalvaDiario(folder_.Path("prova.zlv"));
    [&] { QCOMPARE(Difference(folder_.Read("prova.zlv"), expected), QByteArray()); }();
    ForgetDays();
    Module1::CaricaDiario(folder_.Path("prova.zlv"));
    return AllDays();
}

void DiaryFileTest::ABlankYearIsWrittenLineByLine_data()
{
    QTest::addColumn<int>("year");
    QTest::newRow("2007, common") << 2007;
    QTest::newRow("2008, leap") << 2008;
}

void DiaryFileTest::ABlankYearIsWrittenLineByLine()
{
    QFETCH(int, year);
    MessageScript boxes;
    const FixedClock clock(CalendarDate(year, 5, 1));
    Module1::AzzeraAnno();
    Module1::SalvaDiario(folder_.Path("vuoto.zlv"));
    const Text file = folder_.Read("vuoto.zlv");
    QCOMPARE(std::count(file.begin(), file.end(), '\n'), std::ptrdiff_t{49776});
    QCOMPARE(Difference(file, BlankYear(year)), QByteArray());
    QCOMPARE(boxes.Shown(), 0);
}

void DiaryFileTest::ABlankYearComesBack()
{
    MessageScript boxes;
    const FixedClock clock(CalendarDate(2008, 5, 1));
    Module1::AzzeraAnno();
    const std::vector<RecordGiorno> blank = AllDays();
    QVERIFY(OutAndIn() == blank);
    for (int slot = 1; slot <= 366; ++slot) {
        QCOMPARE(Module1::Giorni[slot].Corridori.value(), 1);
    }
    QCOMPARE(boxes.Shown(), 0);
}

namespace
{

/// Gives each value one of its extremes, turn and turn about.
struct Extremes {
    unsigned turn = 0;

    void operator()(i16& value)
    {
        constexpr int values[] = {32767, -32768, 0, -1};
        value = values[turn++ % 4];
    }
    void operator()(i32& value)
    {
        constexpr std::int32_t values[] = {std::numeric_limits<std::int32_t>::max(),
                                           std::numeric_limits<std::int32_t>::min(), 0, -1};
        value = values[turn++ % 4];
    }
    void operator()(CalendarDate& value)
    {
        value = turn++ % 2 == 0 ? CalendarDate(100, 1, 1) : CalendarDate(9999, 12, 31);
    }
    void operator()(Text& value)
    {
        Text everyByte;
        for (int byte = 0; byte < 256; ++byte) {
            if (byte != '"') {
                everyByte += static_cast<char>(byte);
            }
        }
        const Text values[] = {"", everyByte, ",,,", "  ", "#2007-01-01#", "\r\n\r\n", "-1"};
        value = values[turn++ % 7];
    }
};

} // namespace

void DiaryFileTest::ExtremeValuesComeBack()
{
    MessageScript boxes;
    Extremes extremes;
    FillDays([&](auto& value) { extremes(value); });
    Module1::Giorni[200].Note[5] = Text(1'000'000, '\xE0');
    Module1::Giorni[366].Note[10] = Text(1'000'000, ',');
    const std::vector<RecordGiorno> days = AllDays();
    QVERIFY(OutAndIn() == days);
    QCOMPARE(boxes.Shown(), 0);
}

void DiaryFileTest::TheLastSplitAndTheFirstNoteAreNotInTheFile()
{
    MessageScript boxes;
    RecordGiorno& day = Module1::Giorni[100];
    for (int i = 0; i <= 100; ++i) {
        day.ListaKm[i] = std::to_string(i) + "\xB0 km";
    }
    for (int i = 0; i <= 10; ++i) {
        day.Note[i] = "nota " + std::to_string(i);
    }
    const std::vector<RecordGiorno> before = AllDays();
    const std::vector<RecordGiorno> after = OutAndIn();
    QCOMPARE(Bytes(after[100].ListaKm[99]), QByteArray("99\xB0 km"));
    QCOMPARE(Bytes(after[100].ListaKm[100]), QByteArray());
    QCOMPARE(Bytes(after[100].Note[0]), QByteArray());
    QCOMPARE(Bytes(after[100].Note[1]), QByteArray("nota 1"));
    QCOMPARE(Bytes(after[100].Note[2]), QByteArray("nota 2"));
    QVERIFY(after == AsFiled(before));
}

void DiaryFileTest::ANoteWithQuotesEndsInTheReport()
{
    MessageScript boxes;
    boxes.ExpectError("**ERRORE : ", 13);
    const FixedClock clock(CalendarDate(2007, 5, 1));
    Module1::AzzeraAnno();
    const std::vector<RecordGiorno> blank = AllDays();
    RecordGiorno& day = Module1::Giorni[50];
    day.Km = 12;
    day.Note[4] = "dice \"ciao\" a tutti";
    Module1::Giorni[51].Km = 5;
    const std::vector<RecordGiorno> after = OutAndIn();
    QVERIFY(boxes.AllShown());
    // The text ends at its second quote; what follows is the next value, and all later texts move down by one.
    // The number of day 51 then meets the last, empty text.
    QVERIFY(after[50].Km == 12);
    QCOMPARE(Bytes(after[50].Note[4]), QByteArray("dice "));
    QCOMPARE(Bytes(after[50].Note[5]), QByteArray("ciao\" a tutti\""));
    QCOMPARE(Bytes(after[50].Note[6]), QByteArray());
    QVERIFY(after[49] == blank[49]);
    for (std::size_t slot = 51; slot <= 366; ++slot) {
        QVERIFY(after[slot] == RecordGiorno());
    }
}

void DiaryFileTest::ANoteOfCommasComesBack()
{
    MessageScript boxes;
    Module1::Giorni[3].Note[3] = "vento, pioggia, freddo,";
    Module1::Giorni[3].Note[10] = ",";
    const std::vector<RecordGiorno> days = AllDays();
    QVERIFY(OutAndIn() == days);
}

void DiaryFileTest::AWrongDayNumberLoadsSilently()
{
    MessageScript boxes;
    const FixedClock clock(CalendarDate(2007, 5, 1));
    Module1::AzzeraAnno();
    Module1::Giorni[10].NumGiorno = 300;
    Module1::Giorni[11].NumGiorno = -5;
    Module1::Giorni[12].Data = CalendarDate(1999, 12, 31);
    const std::vector<RecordGiorno> days = AllDays();
    QVERIFY(OutAndIn() == days);
    QCOMPARE(boxes.Shown(), 0);
}

void DiaryFileTest::AnythingBehindTheLastValueIsIgnored()
{
    MessageScript boxes;
    folder_.Write("lungo.zlv", BlankYear(2007) + "\"altro\"\r\nancora \"\r\n");
    Module1::CaricaDiario(folder_.Path("lungo.zlv"));
    QCOMPARE(Difference(LinesOfYear(), BlankYear(2007)), QByteArray());
    QCOMPARE(boxes.Shown(), 0);
}

void DiaryFileTest::LineFeedsAloneAreRead_data()
{
    QTest::addColumn<QByteArray>("end");
    QTest::newRow("LF") << QByteArray("\n");
    QTest::newRow("CR") << QByteArray("\r");
}

void DiaryFileTest::LineFeedsAloneAreRead()
{
    QFETCH(QByteArray, end);
    MessageScript boxes;
    folder_.Write("fine.zlv", TextOf(Bytes(BlankYear(2008)).replace("\r\n", end)));
    Module1::CaricaDiario(folder_.Path("fine.zlv"));
    QCOMPARE(Difference(LinesOfYear(), BlankYear(2008)), QByteArray());
    QCOMPARE(boxes.Shown(), 0);
}

void DiaryFileTest::AMissingFileIsSilent()
{
    MessageScript boxes;
    Module1::Giorni[1].Percorso = "resta";
    const std::vector<RecordGiorno> days = AllDays();
    Module1::CaricaDiario(folder_.Path("manca.zlv"));
    QVERIFY(AllDays() == days);
    QCOMPARE(boxes.Shown(), 0);
}

void DiaryFileTest::ReadingFailsWithAReport_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("error");
    QTest::newRow("missing folder") << QByteArray("manca/prova.zlv") << 76;
    QTest::newRow("a folder") << QByteArray("cartella") << 75;
    QTest::newRow("a file where a folder is due") << QByteArray("vuoto/prova.zlv") << 76;
    QTest::newRow("an empty file") << QByteArray("vuoto") << 62;
    QTest::newRow("no name at all") << QByteArray() << 76;
}

void DiaryFileTest::ReadingFailsWithAReport()
{
    QFETCH(QByteArray, name);
    QFETCH(int, error);
    folder_.MakeFolder("cartella");
    folder_.Write("vuoto", "");
    Module1::Giorni[1].Percorso = "resta";
    Module1::Giorni[366].Percorso = "resta";
    const std::vector<RecordGiorno> days = AllDays();
    MessageScript boxes;
    boxes.ExpectError("**ERRORE : ", error);
    Module1::CaricaDiario(name.isEmpty() ? Text() : folder_.Path(name.toStdString()));
    QVERIFY(boxes.AllShown());
    QVERIFY(AllDays() == days);
}

void DiaryFileTest::WritingFailsWithAReport()
{
    QFETCH(QByteArray, name);
    QFETCH(int, error);
    const Text path = MakeFailingFile(folder_, name);
    MessageScript boxes;
    boxes.ExpectError("ERRORE : ", error);
    Module1::SalvaDiario(path);
    QVERIFY(boxes.AllShown());
}

void DiaryFileTest::AWriteThatFailsHalfWayLeavesAShortFile()
{
    // A limit on the size of files simulates a disk that fills up.
    constexpr rlim_t size = 100'000;
    const FixedClock clock(CalendarDate(2007, 5, 1));
    Module1::AzzeraAnno();
    rlimit before{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{size, before.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &limit), 0);
    {
        MessageScript boxes;
        boxes.ExpectError("ERRORE : ", 61);
        Module1::SalvaDiario(folder_.Path("corto.zlv"));
    }
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    QCOMPARE(Difference(folder_.Read("corto.zlv"), BlankYear(2007).substr(0, size)), QByteArray());
}

void DiaryFileTest::AnExistingFileIsReplaced()
{
    MessageScript boxes;
    folder_.Write("vecchio.zlv", Text(500'000, 'x'));
    const FixedClock clock(CalendarDate(2007, 5, 1));
    Module1::AzzeraAnno();
    Module1::SalvaDiario(folder_.Path("vecchio.zlv"));
    QCOMPARE(Difference(folder_.Read("vecchio.zlv"), BlankYear(2007)), QByteArray());
    QCOMPARE(boxes.Shown(), 0);
}

void DiaryFileTest::NothingButTheDaysIsTouched()
{
    MessageScript boxes;
    folder_.Write("prova.zlv", BlankYear(2007));
    Module1::FileModificato = 1;
    Module1::DataCorrente = CalendarDate(2020, 2, 2);
    Module1::GiornoCorrente = 33;
    Module1::CartellaDiario = "\\a\\b";
    Module1::Giorni[0].Percorso = "zero";
    Module1::CaricaDiario(folder_.Path("prova.zlv"));
    Module1::SalvaDiario(folder_.Path("prova.zlv"));
    QVERIFY(Module1::FileModificato == 1);
    QVERIFY(Module1::DataCorrente == CalendarDate(2020, 2, 2));
    QVERIFY(Module1::GiornoCorrente == 33);
    QCOMPARE(Bytes(Module1::CartellaDiario), QByteArray("\\a\\b"));
    QCOMPARE(Bytes(Module1::Giorni[0].Percorso), QByteArray("zero"));
    QCOMPARE(boxes.Shown(), 0);
}

void DiaryFileTest::RandomYearsComeBack()
{
    MessageScript boxes;
    std::mt19937 random(366);
    struct Fill {
        std::mt19937& random;
        void operator()(i16& value) const { value = static_cast<std::int16_t>(random()); }
        void operator()(i32& value) const { value = static_cast<std::int32_t>(random()); }
        void operator()(CalendarDate& value) const
        {
            value = CalendarDate(100, 1, 1).PlusDays(static_cast<int>(random() % 3615900));
        }
        void operator()(Text& value) const
        {
            value.clear();
            for (auto length = random() % 4 == 0 ? random() % 50 : 0; length > 0; --length) {
                const auto byte = static_cast<char>(random() % 256);
                value += byte == '"' ? ',' : byte;
            }
        }
    };
    for (int round = 0; round < 3; ++round) {
        FillDays(Fill{random});
        const std::vector<RecordGiorno> days = AllDays();
        QVERIFY(OutAndIn() == days);
    }
    QCOMPARE(boxes.Shown(), 0);
}

ZELVIA_TEST(DiaryFileTest)
#include "DiaryFileTest.moc"
