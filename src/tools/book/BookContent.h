// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/book/Book.h"
#include "tools/years/AllDiaries.h"

#include <string>

namespace zelvia
{

/// True when the diary in memory has a day with an entry.
bool HasEntries();

/// The book of the diary in memory, with the races and tables of its folder; a diary of the same year among the others
/// is passed over. The days in memory get the dates of their places in the year.
Book MakeBook(const std::string& diary, const AllDiaries& others);

} // namespace zelvia
