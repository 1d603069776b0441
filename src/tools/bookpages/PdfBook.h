// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/book/Book.h"
#include "tools/bookpages/PageFlow.h"

#include <QByteArray>

#include <functional>

namespace zelvia
{

/// The book as a PDF to be printed on both sides and bound. `progress` is called with each page and the number of
/// pages.
QByteArray BookAsPdf(const Book& book, const BookPaper& paper, const std::function<void(int, int)>& progress);

} // namespace zelvia
