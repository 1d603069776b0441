// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/ChartData.h"
#include "core/Date.h"

#include <cstddef>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace zelvia
{

// What the book of a year holds, in the order of its pages, before it is known how it will look. Texts are UTF-8.

/// A caption and what is written behind it.
struct BookFact {
    std::string caption;
    std::string value;
};

/// Opens a part of a chapter, such as a month or a route. The id is unique in the book.
struct BookHeading {
    std::string id;
    std::string title;
};

struct BookParagraph {
    std::string text;
};

/// The year in figures.
struct BookFigures {
    std::vector<BookFact> facts;
};

/// The days of the year with their kilometres.
struct BookDots {
    struct Day {
        int month; ///< 1..12
        int day;
        int metres;
        bool race;
    };

    int year;
    std::vector<Day> days; ///< Those with a distance.
};

/// The kilometres of years as they add up, the book's own year first.
struct BookCurves {
    struct Curve {
        int year;
        std::vector<double> km; ///< From 1 January on, up to the last day with a run.
    };

    std::string title;
    std::vector<Curve> curves;
};

/// A day with an entry, as its page has it.
struct BookDay {
    std::string id;
    CalendarDate date;
    bool race;
    std::vector<BookFact> head;   ///< Distance, time and average.
    std::vector<BookFact> fields; ///< What else was entered.
    std::vector<std::string> splits;
    std::vector<std::string> notes; ///< Line by line.
};

struct BookTable {
    struct Column {
        std::string heading;
        bool right = false;
    };

    std::vector<Column> columns;
    std::vector<std::vector<std::string>> rows;
    std::optional<std::size_t> best = {}; ///< The row to be pointed out.
};

using BookPart =
    std::variant<BookHeading, BookParagraph, BookFigures, BookDots, ChartData, BookCurves, BookDay, BookTable>;

struct BookChapter {
    std::string id;
    std::string title;
    std::vector<BookPart> parts;
};

struct Book {
    int year = 0;
    std::string diary;
    std::vector<BookFact> facts; ///< The year in figures.
    std::vector<BookChapter> chapters;
    std::vector<std::string> warnings; ///< What could not be read, a sentence each.
};

/// What a reader is told of a day: "domenica 22 marzo 2026".
std::string DayTitle(const BookDay& day);

} // namespace zelvia
