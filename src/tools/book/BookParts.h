// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/book/Book.h"
#include "tools/years/AllDiaries.h"

#include <functional>
#include <string>
#include <vector>

namespace zelvia
{

// The chapters of a book, made of the diary in memory; one that has nothing to show has no parts.

/// The year at a glance, with the curves of the other years of the folder.
BookChapter YearChapter(int year, const AllDiaries& others);
BookChapter DaysChapter();
BookChapter RacesChapter(int year, Book& book);
BookChapter RoutesChapter(Book& book);
BookChapter StatisticsChapter(Book& book);
BookChapter TablesChapter(Book& book);

/// The year in figures.
std::vector<BookFact> YearFacts();

/// A text of the diary without control characters and blanks at its ends, UTF-8.
std::string PlainLine(TextView text);

/// Metres as kilometres: "7,500".
std::string KilometresText(long metres);

/// The months from 1 on: "gennaio".
std::string MonthName(int month);

/// Runs a routine of the diary; a box that it brings up becomes a warning of the book, that `what` can't be read
/// whole. True without one.
bool ReadOrWarn(Book& book, const std::string& what, const std::function<void()>& read);

} // namespace zelvia
