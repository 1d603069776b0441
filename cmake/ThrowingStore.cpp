// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Ends with 0 if the compiler keeps a store that precedes an assignment of a class value from a call that throws.
// GCC 12 drops it as soon as it optimises, and what is read behind the catch is what happened to lie there; so several
// values are tried. What the compiler must not see through is called by way of a volatile pointer.
#include <initializer_list>

namespace
{

struct Number {
    Number() = default;
    Number(int number) : value(static_cast<short>(number)) {}
    short value = 0;
};

Number Read(int number)
{
    if (number > 0) {
        throw number;
    }
    return Number(number);
}

Number (*volatile read)(int) = Read;

template <typename Block>
void Trap(Block&& block)
{
    try {
        block();
    } catch (int) {
    }
}

int KeptByALocal(int before)
{
    Number number = before;
    Trap([&] { number = read(1); });
    return number.value;
}

Number shared;

int KeptByAGlobal(int before)
{
    shared = before;
    Trap([&] { shared = read(1); });
    return shared.value;
}

int (*volatile ways[])(int) = {KeptByALocal, KeptByAGlobal};

} // namespace

int main()
{
    for (auto& way : ways) {
        for (const int before : {7, 1234, -5}) {
            if (way(before) != before) {
                return 1;
            }
        }
    }
}
