// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/book/Book.h"
#include "tools/strumenti/ToolsDesk.h"

#include <string>
#include <vector>

namespace zelvia::test
{

/// A program folder with the diary of a small year: in 2023 a run on 1 March whose date is still that of 2019, a race
/// on the next day, on 31 December only a note, and 99 km in the place of a 366th day. It has no folder of its own.
class BookDesk : public ToolsDesk
{
public:
    BookDesk();

    /// The book of a diary of the folder.
    Book Make(const std::string& diary) const;
    void LayRun(const std::string& diary, int year, const QByteArray& km) const;
};

const BookChapter* ChapterOf(const Book& book, const std::string& id);

/// The parts of one kind of a chapter, in order; none of a chapter that is not there.
template <typename Part>
std::vector<Part> PartsOf(const Book& book, const std::string& id)
{
    std::vector<Part> parts;
    if (const BookChapter* chapter = ChapterOf(book, id)) {
        for (const BookPart& part : chapter->parts) {
            if (const auto* one = std::get_if<Part>(&part)) {
                parts.push_back(*one);
            }
        }
    }
    return parts;
}

/// "caption=value" of each fact.
std::vector<std::string> Joined(const std::vector<BookFact>& facts);

} // namespace zelvia::test
