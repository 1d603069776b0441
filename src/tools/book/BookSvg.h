// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/book/Book.h"

#include <string>

// The drawings of a book as SVG for a page of HTML, whose style sheet colours them.
namespace zelvia
{

std::string SvgOf(const ChartData& chart);
std::string SvgOf(const BookDots& dots);
std::string SvgOf(const BookCurves& curves);

/// A text for HTML and SVG.
std::string Escaped(const std::string& text);

} // namespace zelvia
