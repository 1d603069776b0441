// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/Text.h"
#include "diary/RouteModel.h"
#include "support/Bytes.h"
#include "support/TestProgram.h"

#include <QTest>

#include <cstdint>
#include <numeric>
#include <random>
#include <vector>

using namespace zelvia;
using namespace zelvia::Module1;
using zelvia::test::RaisedBy;
using zelvia::test::TextOf;

class RouteTotalsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void Totals_data();
    void Totals();
    void TotalsOutOfRange_data();
    void TotalsOutOfRange();
    void RandomTotals();
    void PlaceOfAName_data();
    void PlaceOfAName();
    void PlaceIsTheFirstOfTwo();
    void PlaceZeroIsNotSearched();
    void AbsentNameWithAPlaceFree();
    void AbsentNameWithAllPlacesTaken();
    void EmptyNameIsTheFirstFreePlace();
    void FirstFreePlace();
    void AFreedPlaceIsTakenAgain();
};

namespace
{

constexpr int kPlaces = 200;

/// Gives all 200 places a name of their own.
void TakeAllPlaces()
{
    for (int i = 1; i <= kPlaces; ++i) {
        NomiPercorso[i] = "Percorso " + std::to_string(i);
    }
}

RouteLength TotalOf(const std::vector<i32>& km, const std::vector<i32>& metres)
{
    const auto sum = [](const std::vector<i32>& parts) { return std::accumulate(parts.begin(), parts.end(), i32(0)); };
    return LengthOf(sum(km), sum(metres));
}

/// The place as a plain number, -1 for nothing.
int PlaceOf(TextView name)
{
    const auto place = RoutePlace(name);
    return place ? int{place->value()} : -1;
}

} // namespace

void RouteTotalsTest::init()
{
    AzzeraPercorsi();
    AzzeraPercorso(0);
}

using Lengths = std::vector<int>;
Q_DECLARE_METATYPE(Lengths)

void RouteTotalsTest::Totals_data()
{
    QTest::addColumn<Lengths>("km");
    QTest::addColumn<Lengths>("metres");
    QTest::addColumn<int>("totalKm");
    QTest::addColumn<int>("totalMetres");
    QTest::newRow("no stretch") << Lengths{} << Lengths{} << 0 << 0;
    QTest::newRow("20 empty stretches") << Lengths(20, 0) << Lengths(20, 0) << 0 << 0;
    QTest::newRow("one stretch") << Lengths{3} << Lengths{250} << 3 << 250;
    QTest::newRow("metres below a thousand") << Lengths{1, 2} << Lengths{499, 500} << 3 << 999;
    QTest::newRow("metres of exactly a thousand") << Lengths{1, 2} << Lengths{500, 500} << 4 << 0;
    QTest::newRow("metres just above a thousand") << Lengths{1, 2} << Lengths{501, 500} << 4 << 1;
    QTest::newRow("metres just below two thousand") << Lengths{0, 0, 0} << Lengths{999, 999, 1} << 1 << 999;
    QTest::newRow("metres of exactly two thousand") << Lengths{0, 0, 0} << Lengths{999, 999, 2} << 2 << 0;
    QTest::newRow("20 stretches of 999 metres") << Lengths(20, 0) << Lengths(20, 999) << 19 << 980;
    QTest::newRow("20 full stretches") << Lengths(20, 99) << Lengths(20, 999) << 1999 << 980;
    QTest::newRow("each of the 20 stretches counts once")
        << Lengths{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20}
        << Lengths{20, 19, 18, 17, 16, 15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1} << 210 << 210;
    QTest::newRow("kilometres at the end of their range") << Lengths{2147483647} << Lengths{999} << 2147483647 << 999;
    QTest::newRow("metres at the end of their range") << Lengths{0} << Lengths{2147483647} << 2147483 << 647;
}

void RouteTotalsTest::Totals()
{
    QFETCH(Lengths, km);
    QFETCH(Lengths, metres);
    QFETCH(int, totalKm);
    QFETCH(int, totalMetres);
    const auto total = TotalOf({km.begin(), km.end()}, {metres.begin(), metres.end()});
    QCOMPARE(total.km.value(), totalKm);
    QCOMPARE(total.metres.value(), totalMetres);
}

void RouteTotalsTest::TotalsOutOfRange_data()
{
    QTest::addColumn<Lengths>("km");
    QTest::addColumn<Lengths>("metres");
    QTest::newRow("kilometres") << Lengths{2147483647, 1} << Lengths{0, 0};
    QTest::newRow("metres") << Lengths{0, 0} << Lengths{2147483647, 1};
    QTest::newRow("kilometres with those of the metres") << Lengths{2147483647, 0} << Lengths{999, 1};
}

void RouteTotalsTest::TotalsOutOfRange()
{
    QFETCH(Lengths, km);
    QFETCH(Lengths, metres);
    QCOMPARE(RaisedBy([&] { TotalOf({km.begin(), km.end()}, {metres.begin(), metres.end()}); }), 6);
}

/// Whatever the 20 boxes can hold: the total in metres is that of the stretches, and the rest stays below a kilometre.
void RouteTotalsTest::RandomTotals()
{
    std::mt19937 random(1969);
    for (int route = 0; route < 2000; ++route) {
        std::vector<i32> km;
        std::vector<i32> metres;
        std::int64_t length = 0;
        for (int stretch = 0; stretch < 20; ++stretch) {
            const int kmPart = static_cast<int>(random() % 100);
            const int metrePart = static_cast<int>(random() % 1000);
            km.push_back(kmPart);
            metres.push_back(metrePart);
            length += kmPart * 1000 + metrePart;
        }
        const auto total = TotalOf(km, metres);
        QCOMPARE(std::int64_t{total.km.value()}, length / 1000);
        QCOMPARE(std::int64_t{total.metres.value()}, length % 1000);
    }
}

void RouteTotalsTest::PlaceOfAName_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QByteArray>("sought");
    QTest::addColumn<bool>("same");
    const auto row = [](const char* name, const char* stored, const char* sought, bool same) {
        QTest::newRow(name) << QByteArray(stored) << QByteArray(sought) << same;
    };
    row("same letters", "Lungofiume", "Lungofiume", true);
    row("upper case", "Lungofiume", "LUNGOFIUME", true);
    row("lower case", "Lungofiume", "lungofiume", true);
    row("accented letter in lower case", "CITT\xC0 ALTA", "citt\xE0 alta", true);
    row("accented letter in upper case", "caff\xE8", "CAFF\xC8", true);
    row("letters of the upper half's start", "\x8Akofja", "\x9AKOFJA", true);
    row("umlaut of two ranges", "\x9Fpern", "\xFFPERN", true);
    row("accent against none", "caff\xE8", "caffe", false);
    row("grave against acute", "caff\xE8", "caff\xE9", false);
    row("multiplication against division sign",
        "2\xD7"
        "5",
        "2\xF7"
        "5",
        false);
    row("a blank behind", "Lungofiume", "Lungofiume ", false);
    row("the beginning of a name", "Lungofiume", "Lungo", false);
    row("a name and more", "Lungo", "Lungofiume", false);
    row("another name", "Lungofiume", "Lungomare", false);
}

void RouteTotalsTest::PlaceOfAName()
{
    QFETCH(QByteArray, stored);
    QFETCH(QByteArray, sought);
    QFETCH(bool, same);
    for (const int place : {1, 2, 77, 199, 200}) {
        TakeAllPlaces();
        NomiPercorso[place] = TextOf(stored);
        QCOMPARE(PlaceOf(TextOf(sought)), same ? place : -1);
        NomiPercorso[place == 100 ? 101 : 100].clear();
        QCOMPARE(PlaceOf(TextOf(sought)), same ? place : 0);
    }
}

void RouteTotalsTest::PlaceIsTheFirstOfTwo()
{
    NomiPercorso[9] = "PINETA";
    NomiPercorso[4] = "Pineta";
    QCOMPARE(PlaceOf("PINETA"), 4);
}

void RouteTotalsTest::PlaceZeroIsNotSearched()
{
    NomiPercorso[0] = "Pineta";
    QCOMPARE(PlaceOf("Pineta"), 0);
    TakeAllPlaces();
    QCOMPARE(PlaceOf("Pineta"), -1);
    NomiPercorso[0].clear();
    QCOMPARE(PlaceOf("Pineta"), -1);
}

void RouteTotalsTest::AbsentNameWithAPlaceFree()
{
    QCOMPARE(PlaceOf("Pineta"), 0);
    for (const int place : {1, 123, 200}) {
        TakeAllPlaces();
        NomiPercorso[place].clear();
        QCOMPARE(PlaceOf("Pineta"), 0);
    }
}

void RouteTotalsTest::AbsentNameWithAllPlacesTaken()
{
    TakeAllPlaces();
    QCOMPARE(PlaceOf("Pineta"), -1);
    QCOMPARE(PlaceOf(""), -1);
    QCOMPARE(PlaceOf("percorso 200"), 200);
    // A blank is a name.
    NomiPercorso[200] = " ";
    QCOMPARE(PlaceOf("Pineta"), -1);
    QCOMPARE(PlaceOf(""), -1);
}

void RouteTotalsTest::EmptyNameIsTheFirstFreePlace()
{
    QCOMPARE(PlaceOf(""), 1);
    TakeAllPlaces();
    NomiPercorso[200].clear();
    QCOMPARE(PlaceOf(""), 200);
    NomiPercorso[57].clear();
    QCOMPARE(PlaceOf(""), 57);
}

void RouteTotalsTest::FirstFreePlace()
{
    QCOMPARE(int{LowestFreePlace().value()}, 1);
    for (int taken = 1; taken <= kPlaces; ++taken) {
        NomiPercorso[taken] = "Percorso";
        QCOMPARE(int{LowestFreePlace().value()}, taken < kPlaces ? taken + 1 : 0);
    }
    // What has no place does not count as one.
    NomiPercorso[0].clear();
    QCOMPARE(int{LowestFreePlace().value()}, 0);
}

void RouteTotalsTest::AFreedPlaceIsTakenAgain()
{
    TakeAllPlaces();
    AzzeraPercorso(150);
    AzzeraPercorso(3);
    AzzeraPercorso(40);
    for (const int place : {3, 40, 150, 0}) {
        QCOMPARE(int{LowestFreePlace().value()}, place);
        NomiPercorso[place] = "Pineta " + std::to_string(place);
    }
    QCOMPARE(PlaceOf("PINETA 40"), 40);
}

ZELVIA_TEST(RouteTotalsTest)
#include "RouteTotalsTest.moc"
