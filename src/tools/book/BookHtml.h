// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/book/Book.h"

#include <string>

namespace zelvia
{

/// The book as one HTML file that needs nothing outside itself.
std::string BookAsHtml(const Book& book);

} // namespace zelvia
