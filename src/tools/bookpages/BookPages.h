// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/book/Book.h"
#include "tools/bookpages/PageFlow.h"

namespace zelvia
{

/// Lays a book out: title page, contents, and each chapter from a right-hand page on.
PageFlow LayOut(const Book& book, const BookPaper& paper);

} // namespace zelvia
