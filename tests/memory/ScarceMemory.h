// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zelvia::test
{

/// Refuses one request for memory, the `nth` from 1 that a routine of the program makes of itself for as long as this
/// lives; what Qt asks for is left alone. A program that is tested so must be linked together with this.
class ScarceMemory
{
public:
    explicit ScarceMemory(int nth);
    ~ScarceMemory();
    ScarceMemory(const ScarceMemory&) = delete;
    ScarceMemory& operator=(const ScarceMemory&) = delete;

    /// True once the request has come.
    bool Struck() const;
};

} // namespace zelvia::test
