// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Numbers.h"
#include "core/RunTimeError.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace zelvia;

namespace
{

template <typename Number>
Number Read(bool fails)
{
    if (fails) {
        throw ErroreRunTime(Errore::Overflow);
    }
    return Number(1);
}

/// A volatile pointer keeps the compiler from seeing through the call.
template <typename Number>
Number (*volatile read_number)(bool) = Read<Number>;

template <typename Number>
Number LocalBehindTheTrap(Number before, bool fails)
{
    Number number = before;
    TrapWith([&] { number = read_number<Number>(fails); }, [](const ErroreRunTime&) {});
    return number;
}

template <typename Number>
Number shared_number;

template <typename Number>
Number GlobalBehindTheTrap(Number before, bool fails)
{
    shared_number<Number> = before;
    TrapWith([&] { shared_number<Number> = read_number<Number>(fails); }, [](const ErroreRunTime&) {});
    return shared_number<Number>;
}

template <typename Number>
Number (*volatile ways[])(Number, bool) = {LocalBehindTheTrap<Number>, GlobalBehindTheTrap<Number>};

template <typename Number>
void CompareBehindTheTrap()
{
    for (auto& way : ways<Number>) {
        for (const int before : {7, 1234, -5}) {
            QCOMPARE(way(Number(before), true).value(), Number(before).value());
            QCOMPARE(way(Number(before), false).value(), Number(1).value());
        }
    }
}

} // namespace

/// An assignment whose right side fails leaves the old value, on the flags of this build: see
/// cmake/ThrowingStore.cmake.
class ThrowingStoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ShortsStand() { CompareBehindTheTrap<i16>(); }
    void LongsStand() { CompareBehindTheTrap<i32>(); }
};

ZELVIA_TEST(ThrowingStoreTest)
#include "ThrowingStoreTest.moc"
