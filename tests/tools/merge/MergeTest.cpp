// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/merge/Merge.h"

#include "support/Bytes.h"
#include "support/CalendarBytes.h"
#include "support/DiaryBytes.h"
#include "support/TableBytes.h"
#include "support/TestProgram.h"

#include <QTest>

#include <algorithm>
#include <functional>
#include <random>

using namespace zelvia;
using namespace zelvia::test;

class MergeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Days_data();
    void Days();
    void WithoutABase();
    void EveryFieldOfADay();
    void WhatIsShownOfADay();
    void ADayThatWasOnlyLookedAt();
    void Lists_data();
    void Lists();
    void Routes_data();
    void Routes();
    void AllRoutesTaken();
    void Races_data();
    void Races();
    void Tables();
    void Pointers();
    void LineEnds();
    void Whole();
    void Years();
    void Bases_data();
    void Bases();
    void BasesOfDiaries();
    void AtRandom_data();
    void AtRandom();
};

namespace
{

constexpr char kNone[] = "-";

/// What becomes of a file when all that has changed there alone is taken, and which sides the changes have.
struct Merged {
    Text bytes;
    QByteArray sides;
};

Merged Merge(FileKind kind, const std::optional<Text>& base, const Text& here, const Text& there)
{
    std::vector<SideChange> changes = CompareSides(kind, base, here, there);
    Merged merged;
    for (const SideChange& change : changes) {
        merged.sides += change.side == Side::Here ? 'h' : change.side == Side::There ? 't' : 'b';
    }
    merged.bytes = MergedFile(kind, base, here, there, changes);
    return merged;
}

/// A diary with a weight on day 60.
Text Weighing(const QByteArray& weight)
{
    DiaryBytes diary = DiaryBytes::Blank(2026);
    diary.SetLine(60, DiaryBytes::Weight, weight);
    return TextOf(diary.Bytes());
}

/// A list of the words.
Text ListOf(const QByteArray& words)
{
    Text bytes;
    for (const QByteArray& word : words.split(' ')) {
        bytes += word.isEmpty() ? "" : "\"" + TextOf(word) + "\"\r\n";
    }
    return bytes;
}

/// The route file of "PLACE NAME METRES, ...".
Text RoutesOf(const QByteArray& routes)
{
    constexpr int places = 200;
    constexpr int lines = 62;
    QList<QByteArray> file;
    for (int i = 0; i < places * lines; ++i) {
        const int line = i % lines;
        file << (line == 0 || (line > 1 && (line - 2) % 3 == 0) ? "\"\"" : "0");
    }
    for (const QByteArray& route : routes.split(',')) {
        const QList<QByteArray> parts = route.trimmed().split(' ');
        if (parts.size() == 3) {
            const int first = (parts[0].toInt() - 1) * lines;
            file[first] = "\"" + parts[1] + "\"";
            file[first + 1] = parts[2];
        }
    }
    return TextOf(file.join("\r\n") + "\r\n");
}

/// The calendar of "ROW DAY NAME, ...", all in May 2026.
Text RacesOf(const QByteArray& races)
{
    CalendarBytes calendar;
    for (const QByteArray& race : races.split(',')) {
        const QList<QByteArray> parts = race.trimmed().split(' ');
        if (parts.size() == 3) {
            calendar.SetRow(parts[0].toInt(), parts[1] + "|5|2026|" + parts[2] + "|Borgo|10");
        }
    }
    return TextOf(calendar.Bytes());
}

Text TableOf(const QByteArray& km)
{
    return TextOf(TableBytes(QDate(2026, 3, 2)).Set(1, TableBytes::Km, km).Bytes());
}

void AddRows(std::initializer_list<std::array<const char*, 6>> rows)
{
    QTest::addColumn<QByteArray>("base");
    QTest::addColumn<QByteArray>("here");
    QTest::addColumn<QByteArray>("there");
    QTest::addColumn<QByteArray>("merged");
    QTest::addColumn<QByteArray>("sides");
    for (const auto& [name, base, here, there, merged, sides] : rows) {
        QTest::newRow(name) << QByteArray(base) << QByteArray(here) << QByteArray(there) << QByteArray(merged)
                            << QByteArray(sides);
    }
}

void CheckRow(FileKind kind, Text (*file)(const QByteArray&))
{
    QFETCH(QByteArray, base);
    QFETCH(QByteArray, here);
    QFETCH(QByteArray, there);
    QFETCH(QByteArray, merged);
    QFETCH(QByteArray, sides);
    const auto result = Merge(kind, base == kNone ? std::nullopt : std::optional(file(base)), file(here), file(there));
    QCOMPARE(result.sides, sides);
    QVERIFY(result.bytes == file(merged));
}

} // namespace

void MergeTest::Days_data()
{
    AddRows({{"nothing", "70", "70", "70", "70", ""},
             {"changed here", "70", "71", "70", "71", "h"},
             {"changed there", "70", "70", "71", "71", "t"},
             {"changed alike", "70", "71", "71", "71", ""},
             {"changed differently", "70", "71", "72", "71", "b"},
             {"entered here", "0", "71", "0", "71", "h"},
             {"entered there", "0", "0", "71", "71", "t"},
             {"cleared here", "70", "0", "70", "0", "h"},
             {"cleared there", "70", "70", "0", "0", "t"},
             {"cleared here, changed there", "70", "0", "71", "0", "b"}});
}

void MergeTest::Days()
{
    CheckRow(FileKind::Diary, Weighing);
}

void MergeTest::WithoutABase()
{
    QCOMPARE(Merge(FileKind::Diary, std::nullopt, Weighing("70"), Weighing("70")).sides, QByteArray());
    const Merged merged = Merge(FileKind::Diary, std::nullopt, Weighing("0"), Weighing("70"));
    QCOMPARE(merged.sides, QByteArray("b"));
    QVERIFY(merged.bytes == Weighing("0"));
}

void MergeTest::EveryFieldOfADay()
{
    const DiaryBytes blank = DiaryBytes::Blank(2026);
    const Text base = TextOf(blank.Bytes());
    DiaryBytes other = blank;
    other.SetLine(201, DiaryBytes::Km, "12");
    const Text here = TextOf(other.Bytes());
    for (int line = 3; line <= DiaryBytes::kLines; ++line) {
        DiaryBytes changed = blank;
        const bool number = !changed.Line(200, line).startsWith('"');
        changed.SetLine(200, line, number ? "7" : "\"Sette\"");
        const Text there = TextOf(changed.Bytes());
        const std::vector<SideChange> changes = CompareSides(FileKind::Diary, base, base, there);
        QCOMPARE(changes.size(), 1U);
        QCOMPARE(changes[0].here, 200);
        QCOMPARE(changes[0].fields.size(), 1U);
        QCOMPARE(changes[0].fields[0].there, number ? "7" : "Sette");
        // A change of another day goes with it.
        changed.SetLine(201, DiaryBytes::Km, "12");
        QVERIFY(Merge(FileKind::Diary, base, here, there).bytes == TextOf(changed.Bytes()));
    }
}

void MergeTest::WhatIsShownOfADay()
{
    // 1 March 2026 is day 60, a Sunday.
    DiaryBytes base = DiaryBytes::Blank(2026);
    base.SetLine(60, DiaryBytes::Weight, "70");
    base.SetLine(60, DiaryBytes::Km, "10");
    DiaryBytes here = base;
    here.SetLine(60, DiaryBytes::Weight, "71");
    DiaryBytes there = base;
    there.SetLine(60, DiaryBytes::Km, "12");
    there.SetLine(60, DiaryBytes::Notes + 2, "\"Pioggia\"");
    const std::vector<SideChange> changes =
        CompareSides(FileKind::Diary, TextOf(base.Bytes()), TextOf(here.Bytes()), TextOf(there.Bytes()));
    QCOMPARE(changes.size(), 1U);
    QCOMPARE(changes[0].name, "domenica 1 marzo 2026");
    QCOMPARE(changes[0].date, "2026-03-01");
    QVERIFY(changes[0].side == Side::Both);
    QVERIFY(!changes[0].taken);
    QByteArray fields;
    for (const SideField& field : changes[0].fields) {
        fields += Bytes(field.name + "|" + field.base + "|" + field.here + "|" + field.there + "\n");
    }
    QCOMPARE(fields, QByteArray("Km|10|10|12\nPeso|70|71|70\nNote, riga 1|||Pioggia\n"));
}

void MergeTest::ADayThatWasOnlyLookedAt()
{
    const DiaryBytes base = DiaryBytes::Blank(2026);
    DiaryBytes there = base;
    there.Visit(60, QDate(2026, 3, 1));
    QCOMPARE(Merge(FileKind::Diary, TextOf(base.Bytes()), TextOf(base.Bytes()), TextOf(there.Bytes())).sides,
             QByteArray());
}

void MergeTest::Lists_data()
{
    AddRows({{"nothing", "a b", "a b", "a b", "a b", ""},
             {"new here", "a b", "a b c", "a b", "a b c", "h"},
             {"new there", "a b", "a b", "a c b", "a c b", "t"},
             {"new on both", "a b", "a b c", "a b d e", "a b c d e", "htt"},
             {"the same new one", "a", "a b c", "a C", "a b c", "h"},
             {"removed here", "a b c", "a c", "a b c", "a c", "h"},
             {"removed there", "a b c", "a b c", "b", "b", "tt"},
             {"removed there, new here", "a b c", "a b c d", "a c", "a c d", "th"},
             {"of no base", "-", "a b", "c a", "a b c", "ht"},
             {"in another case", "a b", "A b", "a b c", "A b c", "t"},
             {"empty here", "", "", "a", "a", "t"}});
}

void MergeTest::Lists()
{
    CheckRow(FileKind::List, ListOf);
}

void MergeTest::Routes_data()
{
    AddRows({{"nothing", "1 Lago 5000", "1 Lago 5000", "1 Lago 5000", "1 Lago 5000", ""},
             {"changed here", "1 Lago 5000", "1 Lago 5100", "1 Lago 5000", "1 Lago 5100", "h"},
             {"changed there", "1 Lago 5000", "1 Lago 5000", "1 Lago 5100", "1 Lago 5100", "t"},
             {"changed on both", "1 Lago 5000", "1 Lago 5100", "1 Lago 5200", "1 Lago 5100", "b"},
             {"changed alike", "1 Lago 5000", "1 Lago 5100", "1 Lago 5100", "1 Lago 5100", ""},
             {"new there", "1 Lago 5000", "1 Lago 5000, 2 Bosco 7000", "1 Lago 5000, 3 Colle 9000",
              "1 Lago 5000, 2 Bosco 7000, 3 Colle 9000", "ht"},
             // Days know a route by its name: another number is no change.
             {"another number there", "1 Lago 5000", "1 Lago 5000", "7 Lago 5000", "1 Lago 5000", ""},
             {"another number and length", "1 Lago 5000", "1 Lago 5000, 2 Bosco 7000", "2 Lago 5100",
              "1 Lago 5100, 2 Bosco 7000", "th"},
             {"the number taken here", "1 Lago 5000", "1 Lago 5000, 2 Bosco 7000", "1 Lago 5000, 2 Colle 9000",
              "1 Lago 5000, 2 Bosco 7000, 3 Colle 9000", "ht"},
             {"removed here", "1 Lago 5000, 2 Bosco 7000", "2 Bosco 7000", "1 Lago 5000, 2 Bosco 7100", "2 Bosco 7100",
              "th"},
             {"removed there", "1 Lago 5000, 2 Bosco 7000", "1 Lago 5000, 2 Bosco 7000, 3 Colle 9000", "2 Bosco 7000",
              "2 Bosco 7000, 3 Colle 9000", "th"},
             {"removed here, changed there", "1 Lago 5000", "", "1 Lago 5100", "", "b"},
             {"changed here, removed there", "1 Lago 5000", "1 Lago 5100", "", "1 Lago 5100", "b"},
             {"the place of a removed one", "1 Lago 5000", "1 Lago 5000, 2 Bosco 7000", "1 Colle 9000",
              "1 Colle 9000, 2 Bosco 7000", "tht"},
             {"of no base", "-", "1 Lago 5000, 2 Bosco 7000", "1 Lago 5100, 2 Colle 9000",
              "1 Lago 5000, 2 Bosco 7000, 3 Colle 9000", "bht"}});
}

void MergeTest::Routes()
{
    CheckRow(FileKind::Routes, RoutesOf);
}

void MergeTest::AllRoutesTaken()
{
    QByteArray all;
    for (int i = 1; i <= 199; ++i) {
        all += QByteArray::number(i) + " R" + QByteArray::number(i) + " 1000,";
    }
    const Text base = RoutesOf(all);
    const Text here = RoutesOf(all + "200 Qui 2000");
    const Text there = RoutesOf(all + "200 Altrove 3000");
    std::vector<SideChange> changes = CompareSides(FileKind::Routes, base, here, there);
    QCOMPARE(changes.size(), 2U);
    QVERIFY(changes[1].taken);
    QVERIFY(MergedFile(FileKind::Routes, base, here, there, changes) == here);
    QVERIFY(!changes[1].taken);
}

void MergeTest::Races_data()
{
    AddRows(
        {{"nothing", "1 3 Corrida", "1 3 Corrida", "1 3 Corrida", "1 3 Corrida", ""},
         {"another row there", "1 3 Corrida", "1 3 Corrida", "5 3 Corrida", "1 3 Corrida", ""},
         {"changed there", "1 3 Corrida", "1 3 Corrida", "1 3 Corsetta", "1 3 Corsetta", "t"},
         {"changed on both", "1 3 Corrida", "1 3 Corsa", "1 3 Corsetta", "1 3 Corsa", "b"},
         {"new on both", "", "1 3 Corrida", "1 10 Notturna, 2 17 Alba", "1 3 Corrida, 2 10 Notturna, 3 17 Alba", "htt"},
         {"another day there", "1 3 Corrida", "1 3 Corrida, 2 17 Alba", "1 4 Corrida", "1 4 Corrida, 2 17 Alba", "tht"},
         {"removed there", "1 3 Corrida, 2 17 Alba", "1 3 Corrida, 2 17 Alba", "2 17 Alba", "2 17 Alba", "t"},
         {"no day yet", "1 0 Idea", "1 0 Idea", "2 3 Corrida", "2 3 Corrida", "tt"},
         {"no day yet here", "", "1 0 Idea", "1 3 Corrida", "1 0 Idea, 2 3 Corrida", "ht"},
         {"two of a day", "1 3 Corrida", "1 3 Corrida", "1 3 Corrida, 2 3 Notturna", "1 3 Corrida, 2 3 Notturna",
          "t"}});
}

void MergeTest::Races()
{
    CheckRow(FileKind::Races, RacesOf);
}

void MergeTest::Tables()
{
    const auto sides = [](const QByteArray& base, const QByteArray& here, const QByteArray& there) {
        return Merge(FileKind::Table, TableOf(base), TableOf(here), TableOf(there)).sides;
    };
    QCOMPARE(sides("5", "5", "5"), QByteArray());
    QCOMPARE(sides("5", "6", "5"), QByteArray("h"));
    QCOMPARE(sides("5", "5", "6"), QByteArray("t"));
    QCOMPARE(sides("5", "6", "7"), QByteArray("b"));
    QVERIFY(Merge(FileKind::Table, TableOf("5"), TableOf("5"), TableOf("6")).bytes == TableOf("6"));
    QVERIFY(Merge(FileKind::Table, TableOf("5"), TableOf("6"), TableOf("7")).bytes == TableOf("6"));
    QCOMPARE(Merge(FileKind::Table, std::nullopt, TableOf("5"), TableOf("6")).sides, QByteArray("b"));
    // One that is to be taken all the same.
    std::vector<SideChange> changes = CompareSides(FileKind::Table, TableOf("5"), TableOf("6"), TableOf("7"));
    changes[0].taken = true;
    QVERIFY(MergedFile(FileKind::Table, TableOf("5"), TableOf("6"), TableOf("7"), changes) == TableOf("7"));
}

void MergeTest::Pointers()
{
    const Text here = "\"C:\\qui.tab\"\r\n";
    const Merged merged = Merge(FileKind::Pointer, here, here, "\"C:\\la.tab\"\r\n");
    QCOMPARE(merged.sides, QByteArray());
    QCOMPARE(merged.bytes, here);
}

void MergeTest::LineEnds()
{
    Text there = Weighing("71");
    std::erase(there, '\r');
    QCOMPARE(Merge(FileKind::Diary, Weighing("71"), Weighing("71"), there).sides, QByteArray());
    QVERIFY(Merge(FileKind::Diary, Weighing("70"), Weighing("70"), there).bytes == Weighing("71"));
}

void MergeTest::Whole()
{
    QVERIFY(IsWhole(FileKind::Diary, Weighing("70")));
    QVERIFY(!IsWhole(FileKind::Diary, Weighing("70") + "0\r\n"));
    QVERIFY(!IsWhole(FileKind::Diary, ""));
    QVERIFY(IsWhole(FileKind::Routes, RoutesOf("")));
    QVERIFY(!IsWhole(FileKind::Routes, RacesOf("")));
    QVERIFY(IsWhole(FileKind::Races, RacesOf("")));
    QVERIFY(!IsWhole(FileKind::Races, "0\r\n"));
    QVERIFY(IsWhole(FileKind::Table, TableOf("5")));
    QVERIFY(!IsWhole(FileKind::Table, TextOf(TableBytes(QDate(2026, 3, 2)).Cut(464))));
    QVERIFY(IsWhole(FileKind::List, ""));
}

void MergeTest::Years()
{
    QCOMPARE(YearOfDiary(Weighing("70")), 2026);
    // The last place of a common year is 1 January of the next.
    QCOMPARE(YearOfDiary(TextOf(DiaryBytes::Blank(2027).Bytes())), 2027);
    QCOMPARE(YearOfDiary(""), 0);
    QCOMPARE(YearOfDiary("x\r\n"), 0);
}

void MergeTest::Bases_data()
{
    QTest::addColumn<QByteArrayList>("copies");
    QTest::addColumn<QByteArray>("here");
    QTest::addColumn<QByteArray>("there");
    QTest::addColumn<int>("base");

    const auto row = [](const char* name, const char* copies, const char* here, const char* there, int base) {
        const QByteArray all(copies);
        QTest::newRow(name) << (all.isEmpty() ? QByteArrayList() : all.split(',')) << QByteArray(here)
                            << QByteArray(there) << base;
    };
    row("no copy", "", "a b", "a c", -1);
    row("one", "a", "a b", "a c", 0);
    row("the last", "a,a b", "a b c", "a b d", 1);
    // The copies go on with the version here after the two have parted at "a b", or with the one there.
    row("younger copies of here", "a,a b,a b c,a b c d", "a b c d e", "a b x", 1);
    row("younger copies of there", "a,a b,a b x,a b x y", "a b c", "a b x y z", 1);
    row("there is an old one", "a,a b,a b c", "a b c d", "a b", 1);
    row("here is an old one", "a,a b,a b c", "a b", "a b c d", 1);
    row("equally near", "a,a b", "a c", "a b d", 0);
}

void MergeTest::Bases()
{
    QFETCH(QByteArrayList, copies);
    QFETCH(QByteArray, here);
    QFETCH(QByteArray, there);
    QFETCH(int, base);
    std::vector<Text> texts;
    for (const QByteArray& copy : copies) {
        texts.push_back(ListOf(copy));
    }
    const auto found = FindBase(FileKind::List, texts, ListOf(here), ListOf(there));
    QCOMPARE(found ? static_cast<int>(*found) : -1, base);
}

void MergeTest::BasesOfDiaries()
{
    const auto base = [](const std::vector<Text>& copies, const Text& here, const Text& there, FileKind kind) {
        const auto found = FindBase(kind, copies, here, there);
        return found ? static_cast<int>(*found) : -1;
    };
    Text cut = Weighing("70");
    cut.resize(cut.size() / 2);
    QCOMPARE(base({cut}, Weighing("70"), Weighing("71"), FileKind::Diary), -1);
    QCOMPARE(base({Weighing("0"), cut, Weighing("70")}, Weighing("70"), Weighing("71"), FileKind::Diary), 0);
    QCOMPARE(base({TableOf("4"), TableOf("5")}, TableOf("5"), TableOf("5"), FileKind::Table), 1);
    QCOMPARE(base({TextOf(TableBytes(QDate(2026, 3, 2)).Cut(9))}, TableOf("5"), TableOf("5"), FileKind::Table), -1);
}

void MergeTest::AtRandom_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("days") << static_cast<int>(FileKind::Diary);
    QTest::newRow("lists") << static_cast<int>(FileKind::List);
    QTest::newRow("routes") << static_cast<int>(FileKind::Routes);
    QTest::newRow("races") << static_cast<int>(FileKind::Races);
    QTest::newRow("tables") << static_cast<int>(FileKind::Table);
}

namespace
{

/// Files of one kind with some parts changed at random.
class RandomFiles
{
public:
    explicit RandomFiles(FileKind kind) : kind_(kind) {}

    using Content = QMap<int, int>;

    Content Changed(Content content)
    {
        for (int i = static_cast<int>(random_() % 5); i > 0; --i) {
            const int place = 1 + static_cast<int>(random_() % 5);
            if (random_() % 4 == 0) {
                content.remove(place);
            } else {
                content[place] = 1 + static_cast<int>(random_() % 3);
            }
        }
        return content;
    }

    Text File(const Content& content) const
    {
        QByteArray parts;
        DiaryBytes diary = DiaryBytes::Blank(2026);
        TableBytes table(QDate(2026, 3, 2));
        for (auto part = content.begin(); part != content.end(); ++part) {
            const QByteArray place = QByteArray::number(part.key());
            const QByteArray value = QByteArray::number(part.value());
            diary.SetLine(part.key() * 40, DiaryBytes::Km, value);
            table.Set(part.key(), TableBytes::Km, value);
            parts += kind_ == FileKind::List     ? "V" + place + " "
                     : kind_ == FileKind::Routes ? place + " N" + place + " " + value + ","
                                                 : place + " " + place + " G" + value + ",";
        }
        switch (kind_) {
        case FileKind::Diary: return TextOf(diary.Bytes());
        case FileKind::List: return ListOf(parts);
        case FileKind::Routes: return RoutesOf(parts);
        case FileKind::Races: return RacesOf(parts);
        default: return TextOf(table.Bytes());
        }
    }

private:
    FileKind kind_;
    std::mt19937 random_{20261122};
};

/// The sides as the other one sees them, in any order.
QByteArray Mirrored(QByteArray sides)
{
    std::transform(sides.begin(), sides.end(), sides.begin(), [](char side) {
        return side == 'h' ? 't' : side == 't' ? 'h' : side;
    });
    std::sort(sides.begin(), sides.end());
    return sides;
}

} // namespace

void MergeTest::AtRandom()
{
    QFETCH(int, kind);
    const auto fileKind = static_cast<FileKind>(kind);
    RandomFiles random(fileKind);
    int conflicts = 0;
    int free = 0;
    for (int i = 0; i < 40; ++i) {
        const RandomFiles::Content common = random.Changed(random.Changed({}));
        const Text base = random.File(common);
        const Text a = random.File(random.Changed(common));
        const Text b = random.File(random.Changed(common));
        QVERIFY(Merge(fileKind, base, a, base).bytes == a);
        QVERIFY(Merge(fileKind, base, base, b).bytes == b);
        QVERIFY(Merge(fileKind, base, a, a).bytes == a);
        const Merged ab = Merge(fileKind, base, a, b);
        const Merged ba = Merge(fileKind, base, b, a);
        QByteArray sides = ab.sides;
        std::sort(sides.begin(), sides.end());
        QCOMPARE(sides, Mirrored(ba.sides));
        const auto apart = CompareSides(fileKind, std::nullopt, ab.bytes, ba.bytes).size();
        // They differ in what both have changed and in nothing else.
        QCOMPARE(static_cast<qsizetype>(apart), sides.count('b'));
        conflicts += sides.contains('b') ? 1 : 0;
        free += sides.contains('b') ? 0 : 1;
    }
    QVERIFY(fileKind == FileKind::List || conflicts > 3);
    QVERIFY(free > 3);
}

ZELVIA_TEST(MergeTest)

#include "MergeTest.moc"
