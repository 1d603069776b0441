// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diary/Fields.h"
#include "diary/Module1.h"
#include "support/Bytes.h"
#include "support/Days.h"
#include "support/MessageScript.h"
#include "support/TempFolder.h"
#include "support/TestProgram.h"

#include <QTest>

#include <algorithm>
#include <cstdint>
#include <numeric>

using namespace zelvia;
using namespace zelvia::test;

/// Diaries cut short or with a line gone wrong: what was read stays, the rest is as before, one report gives the
/// reason.
class DiaryDamageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void CutInsideADay_data();
    void CutInsideADay();
    void CutBetweenDays_data();
    void CutBetweenDays();
    void GarbledLine_data();
    void GarbledLine();
    void SilentlyGarbledInAWholeYear_data();
    void SilentlyGarbledInAWholeYear();
    void BytesOfChance();

private:
    using DayLines = std::vector<std::string>;

    /// What the days must hold after a load: days before `inHand` as in the file, `inHand` as given, `filedBehind` days
    /// after it as in the file, the rest as before.
    struct Outcome {
        int inHand = 1;
        DayLines lines;
        int filedBehind = 0;
        int error = 0;
    };

    std::string YearTo(int slot) const;
    void LoadAndCheck(const std::string& file, const Outcome& outcome);
    Outcome CutOutcome(int slot, std::size_t line, std::size_t position) const;
    Outcome GarbledOutcome(int slot, std::size_t line, const std::string& garbage) const;
    void Unclosed(Outcome& outcome, std::size_t line, const std::string& garbage) const;
    static void Parted(Outcome& outcome, std::size_t line, const std::string& before, const std::string& behind);
    static void FailAt(Outcome& outcome, std::size_t line, int error, const DayLines& old);

    TempFolder folder_;
    std::vector<RecordGiorno> filed_;
    std::vector<DayLines> filedLines_;
    std::string year_;
    std::vector<std::size_t> endOfDay_ = {0};
    RecordGiorno before_;
    DayLines beforeLines_;
};

namespace
{

constexpr std::size_t kLines = 136;

enum class Kind { Short, Long, Day, Words };

/// The kind of each line of a day, counted from 0.
Kind KindOf(std::size_t line)
{
    if (line == 1) {
        return Kind::Day;
    }
    if (line == 120) {
        return Kind::Long;
    }
    const bool number =
        line == 0 || line == 4 || line == 5 || (line >= 9 && line <= 14) || (line >= 121 && line <= 125);
    return number ? Kind::Short : Kind::Words;
}

/// A day in which each value differs from its neighbours and no text is empty.
RecordGiorno FiledDay(int slot)
{
    RecordGiorno day;
    int line = 0;
    const auto fill = [&](auto& value) {
        ++line;
        if constexpr (std::is_same_v<std::decay_t<decltype(value)>, Text>) {
            value = "testo " + std::to_string(slot) + "/" + std::to_string(line);
        } else if constexpr (!std::is_same_v<std::decay_t<decltype(value)>, CalendarDate>) {
            value = 100 + line;
        }
    };
    VisitDiaryValues(day, fill);
    day.NumGiorno = slot;
    day.Data = CalendarDate(2007, 1, 1).PlusDays(slot - 1);
    day.Peso = -755;
    day.Corridori = 123456;
    return day;
}

RecordGiorno OldDay()
{
    RecordGiorno day;
    VisitDiaryValues(day, [](auto& value) {
        if constexpr (std::is_same_v<std::decay_t<decltype(value)>, Text>) {
            value = "prima";
        } else if constexpr (std::is_same_v<std::decay_t<decltype(value)>, CalendarDate>) {
            value = CalendarDate(1950, 5, 5);
        } else {
            value = 77;
        }
    });
    return day;
}

} // namespace

void DiaryDamageTest::initTestCase()
{
    before_ = OldDay();
    beforeLines_ = LinesOfDay(before_);
    filed_.emplace_back();
    filedLines_.emplace_back();
    for (int slot = 1; slot <= 366; ++slot) {
        filed_.push_back(FiledDay(slot));
        filedLines_.push_back(LinesOfDay(filed_.back()));
        year_ += Lines(filedLines_.back());
        endOfDay_.push_back(year_.size());
    }
    for (RecordGiorno& day : Module1::Giorni) {
        day = before_;
    }
    QCOMPARE(filedLines_[1].size(), kLines);
    for (std::size_t line = 0; line < kLines; ++line) {
        const char first = filedLines_[1][line][0];
        QCOMPARE(KindOf(line) == Kind::Words, first == '"');
        QCOMPARE(KindOf(line) == Kind::Day, first == '#');
    }
}

/// The lines of days 1..slot.
std::string DiaryDamageTest::YearTo(int slot) const
{
    return year_.substr(0, endOfDay_[static_cast<std::size_t>(slot)]);
}

void DiaryDamageTest::LoadAndCheck(const std::string& file, const Outcome& outcome)
{
    folder_.Write("guasto.zlv", file);
    {
        MessageScript boxes;
        if (outcome.error != 0) {
            boxes.ExpectError("**ERRORE : ", outcome.error);
        }
        Module1::CaricaDiario(folder_.Path("guasto.zlv"));
        QVERIFY(boxes.AllShown());
    }
    QCOMPARE(Difference(Lines(LinesOfDay(Module1::Giorni[outcome.inHand])), Lines(outcome.lines)), QByteArray());
    const int lastFiled = outcome.inHand + outcome.filedBehind;
    int firstWrong = 0;
    for (int slot = 366; slot >= 1; --slot) {
        RecordGiorno& day = Module1::Giorni[slot];
        const RecordGiorno& wanted = slot <= lastFiled ? filed_[static_cast<std::size_t>(slot)] : before_;
        firstWrong = slot != outcome.inHand && !(day == wanted) ? slot : firstWrong;
        if (slot <= lastFiled) {
            day = before_;
        }
    }
    QCOMPARE(firstWrong, 0);
}

void DiaryDamageTest::CutInsideADay_data()
{
    QTest::addColumn<int>("slot");
    QTest::addColumn<int>("line");
    for (const int slot : {1, 2, 200, 366}) {
        for (int line = 0; line < static_cast<int>(kLines); ++line) {
            QTest::addRow("day %d, line %d", slot, line + 1) << slot << line;
        }
    }
}

/// What a file must give that ends at `position` of a line: 0 is the line's start, its length the place before CR.
DiaryDamageTest::Outcome DiaryDamageTest::CutOutcome(int slot, std::size_t line, std::size_t position) const
{
    const DayLines& filed = filedLines_[static_cast<std::size_t>(slot)];
    Outcome outcome;
    outcome.inHand = slot;
    outcome.lines = filed;
    outcome.error = 62;
    const std::string rest = filed[line].substr(0, position);
    const bool whole = position >= filed[line].size();
    const bool number = KindOf(line) == Kind::Short || KindOf(line) == Kind::Long;
    if (number && !rest.empty() && rest != "-") {
        // Fewer digits are a number too: it is taken, and the end is met at the next value.
        outcome.lines[line] = rest;
        FailAt(outcome, line + 1, 62, beforeLines_);
    } else if (whole) {
        const bool lastOfAll = slot == 366 && line + 1 == kLines;
        FailAt(outcome, line + 1, lastOfAll ? 0 : 62, beforeLines_);
    } else {
        const bool nothing = rest.empty() || KindOf(line) == Kind::Words;
        FailAt(outcome, line, nothing ? 62 : 13, beforeLines_);
    }
    return outcome;
}

/// The value of `line`, and all after it, stay as before.
void DiaryDamageTest::FailAt(Outcome& outcome, std::size_t line, int error, const DayLines& old)
{
    outcome.error = error;
    const auto at = static_cast<std::ptrdiff_t>(line);
    std::copy(old.begin() + at, old.end(), outcome.lines.begin() + at);
}

void DiaryDamageTest::CutInsideADay()
{
    QFETCH(int, slot);
    QFETCH(int, line);
    const auto index = static_cast<std::size_t>(line);
    const DayLines& filed = filedLines_[static_cast<std::size_t>(slot)];
    const std::string start = YearTo(slot - 1) + Lines(DayLines(filed.begin(), filed.begin() + line));
    const std::string ended = filed[index] + "\r\n";
    // Every byte of the line in the first day; the telling ones in the later days, where a load takes longer.
    std::vector<std::size_t> positions(ended.size());
    std::iota(positions.begin(), positions.end(), std::size_t{0});
    if (slot == 2) {
        positions = {0, 1, filed[index].size(), filed[index].size() + 1};
    } else if (slot == 200) {
        positions = {0, filed[index].size() / 2};
    } else if (slot == 366) {
        positions = {filed[index].size() / 2};
    }
    for (const std::size_t position : positions) {
        LoadAndCheck(start + ended.substr(0, position), CutOutcome(slot, index, position));
        QVERIFY2(!QTest::currentTestFailed(), qPrintable(QString::number(position)));
    }
}

void DiaryDamageTest::CutBetweenDays_data()
{
    QTest::addColumn<int>("days");
    for (int days = 1; days <= 366; ++days) {
        QTest::addRow("behind day %d", days) << days;
    }
}

void DiaryDamageTest::CutBetweenDays()
{
    QFETCH(int, days);
    Outcome outcome;
    outcome.inHand = days;
    outcome.lines = filedLines_[static_cast<std::size_t>(days)];
    outcome.error = days == 366 ? 0 : 62;
    LoadAndCheck(YearTo(days), outcome);
}

namespace
{

struct Garbage {
    const char* name;
    const char* line;
};

constexpr Garbage kGarbage[] = {
    {"text", "xyz"},
    {"empty line", ""},
    {"quoted number", "\"7\""},
    {"99999", "99999"},
    {"1.5", "1.5"},
    {"no opening quote", "abc\""},
    {"quote inside a number", "1\"2"},
    {"no closing quote", "\"abc"},
    {"quote in the middle", "\"ab\"cd\""},
};

} // namespace

void DiaryDamageTest::GarbledLine_data()
{
    QTest::addColumn<int>("slot");
    QTest::addColumn<int>("line");
    QTest::addColumn<QByteArray>("garbage");
    const auto row = [](int slot, int line, const Garbage& garbage) {
        QTest::addRow("day %d, line %d: %s", slot, line + 1, garbage.name) << slot << line << QByteArray(garbage.line);
    };
    for (const Garbage& garbage : kGarbage) {
        for (int line = 0; line < static_cast<int>(kLines); ++line) {
            row(1, line, garbage);
        }
        // The first and last lines of each run of texts and of numbers.
        for (const int line : {0, 1, 2, 3, 4, 5, 6, 8, 9, 14, 15, 16, 17, 119, 120, 121, 125, 126, 135}) {
            row(2, line, garbage);
            row(366, line, garbage);
        }
    }
}

/// A text whose closing quote is missing runs on to the next quote of the file.
void DiaryDamageTest::Unclosed(Outcome& outcome, std::size_t line, const std::string& garbage) const
{
    std::string swallowed = garbage.substr(1) + "\r\n";
    std::size_t next = line + 1;
    while (next < kLines && KindOf(next) != Kind::Words) {
        swallowed += outcome.lines[next] + "\r\n";
        ++next;
    }
    if (next == kLines) {
        if (outcome.inHand == 366) {
            FailAt(outcome, line, 62, beforeLines_);
            return;
        }
        const DayLines& following = filedLines_[static_cast<std::size_t>(outcome.inHand) + 1];
        swallowed += following[0] + "\r\n" + following[1] + "\r\n";
    }
    outcome.lines[line] = LineOf(swallowed);
    if (next == line + 1 && next < kLines) {
        // Silent: the quote that opens the next text closes this one, and the rest of that line is the next value.
        outcome.lines[next] = LineOf(outcome.lines[next].substr(1));
        return;
    }
    FailAt(outcome, line + 1, 13, beforeLines_);
}

/// A text that ends early: what follows its second quote is the next value, so the texts after it move down by one
/// until a number meets a text. At the very end of the file nothing follows, and the last text is left over.
void DiaryDamageTest::Parted(Outcome& outcome, std::size_t line, const std::string& before, const std::string& behind)
{
    const DayLines filed = outcome.lines;
    outcome.lines[line] = LineOf(before);
    std::size_t next = line + 1;
    for (; next < kLines && KindOf(next) == Kind::Words; ++next) {
        outcome.lines[next] = next == line + 1 ? LineOf(behind) : filed[next - 1];
    }
    outcome.error = next == kLines && outcome.inHand == 366 ? 0 : 13;
}

DiaryDamageTest::Outcome DiaryDamageTest::GarbledOutcome(int slot, std::size_t line, const std::string& garbage) const
{
    Outcome outcome;
    outcome.inHand = slot;
    outcome.lines = filedLines_[static_cast<std::size_t>(slot)];
    const Kind kind = KindOf(line);
    const bool number = kind == Kind::Short || kind == Kind::Long;
    if (kind == Kind::Words && garbage == "\"abc") {
        Unclosed(outcome, line, garbage);
    } else if (kind == Kind::Words && garbage == "\"ab\"cd\"") {
        Parted(outcome, line, "ab", "cd\"");
        std::size_t stop = line + 1;
        while (stop < kLines && KindOf(stop) == Kind::Words) {
            ++stop;
        }
        FailAt(outcome, stop, outcome.error, beforeLines_);
    } else if (kind == Kind::Words) {
        // Silent: any line is a text, with or without its quotes.
        outcome.lines[line] = garbage == "\"7\"" ? garbage : LineOf(garbage);
    } else if (number && garbage == "1.5") {
        outcome.lines[line] = "2"; // Silent: a fraction is rounded.
    } else if (kind == Kind::Long && garbage == "99999") {
        outcome.lines[line] = "99999"; // Silent: it is in the range of a long.
    } else {
        FailAt(outcome, line, number && garbage == "99999" ? 6 : 13, beforeLines_);
    }
    return outcome;
}

void DiaryDamageTest::GarbledLine()
{
    QFETCH(int, slot);
    QFETCH(int, line);
    QFETCH(QByteArray, garbage);
    const auto index = static_cast<std::size_t>(line);
    DayLines lines = filedLines_[static_cast<std::size_t>(slot)];
    lines[index] = garbage.toStdString();
    std::string file = YearTo(slot - 1) + Lines(lines);
    Outcome outcome = GarbledOutcome(slot, index, garbage.toStdString());
    // One day follows, to show that the reading went on; the file then ends, so that a silent case ends with 62.
    if (slot < 366) {
        file += Lines(filedLines_[static_cast<std::size_t>(slot) + 1]);
        if (outcome.error == 0) {
            outcome.filedBehind = 1;
            outcome.error = 62;
        }
    }
    LoadAndCheck(file, outcome);
}

void DiaryDamageTest::SilentlyGarbledInAWholeYear_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<QByteArray>("garbage");
    QTest::newRow("route without quotes") << 2 << QByteArray("xyz");
    QTest::newRow("route on an empty line") << 2 << QByteArray();
    QTest::newRow("route as a quoted number") << 2 << QByteArray("\"7\"");
    QTest::newRow("route as a number") << 2 << QByteArray("99999");
    QTest::newRow("kilometres with a fraction") << 4 << QByteArray("1.5");
    QTest::newRow("runners in the range of a long") << 120 << QByteArray("99999");
    QTest::newRow("split without its closing quote") << 50 << QByteArray("\"abc");
}

void DiaryDamageTest::SilentlyGarbledInAWholeYear()
{
    QFETCH(int, line);
    QFETCH(QByteArray, garbage);
    constexpr int slot = 180;
    const auto index = static_cast<std::size_t>(line);
    DayLines lines = filedLines_[slot];
    lines[index] = garbage.toStdString();
    std::string file = YearTo(slot - 1) + Lines(lines);
    for (std::size_t i = slot + 1; i <= 366; ++i) {
        file += Lines(filedLines_[i]);
    }
    Outcome outcome = GarbledOutcome(slot, index, garbage.toStdString());
    QCOMPARE(outcome.error, 0);
    outcome.filedBehind = 366 - slot;
    LoadAndCheck(file, outcome);
}

/// Bytes that mean nothing: the load ends with one report, and the days it did not reach are as before.
void DiaryDamageTest::BytesOfChance()
{
    std::uint32_t state = 42;
    const auto next = [&state] { return state = state * 1664525U + 1013904223U; };
    for (int round = 0; round < 200; ++round) {
        std::string file = YearTo(2);
        for (auto hits = 1 + next() / 7 % 5; hits > 0; --hits) {
            file[(next() >> 8) % file.size()] = static_cast<char>(next() >> 24);
        }
        folder_.Write("caso.zlv", file);
        const MessageLog reports;
        Module1::CaricaDiario(folder_.Path("caso.zlv"));
        QVERIFY(reports.texts.size() == 1 && reports.texts.front().starts_with("**ERRORE : "));
        // Two days of bytes can't fill four.
        for (int slot = 4; slot <= 366; ++slot) {
            QVERIFY(Module1::Giorni[slot] == before_);
        }
        for (int slot = 1; slot <= 3; ++slot) {
            Module1::Giorni[slot] = before_;
        }
    }
}

ZELVIA_TEST(DiaryDamageTest)
#include "DiaryDamageTest.moc"
