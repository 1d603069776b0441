// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"

#include <QByteArray>

#include <functional>
#include <string>
#include <vector>

namespace zelvia::test
{

/// A file of a diary with its routines, which take it from CartellaDiario, and what it keeps in memory.
struct SavedFile {
    const char* name;
    Text writeTitle = "ERRORE : "; ///< Of the reports.
    Text readTitle = "ERRORE : ";
    bool quietWhenMissing = false; ///< Error 53 is not reported.
    bool descriptionOnly = false;  ///< A failed read is reported without its number and with the file's name after it.
    bool clearedWhenOpen = false;  ///< Reading starts afresh instead of going over what is in memory.
    std::function<void()> write;
    std::function<void()> read;
    std::function<void()> fill = {};   ///< Puts a value of its own into each place; as a file well over 500,000 bytes.
    std::function<void()> forget = {}; ///< Puts another value into each place.
    std::function<std::vector<std::string>()> lines = {}; ///< What is in memory, as the lines of the file.
};

const std::vector<SavedFile>& SavedFiles();

/// A row of test data for each file and the column "file", its place in SavedFiles().
void AddFileRows();

/// The file of the row of test data at hand.
const SavedFile& FetchedFile();

/// The report of a failed write or read, or the empty text when there is none or `error` is 0.
Text WriteReport(const SavedFile& file, int error);
Text ReadReport(const SavedFile& file, int error);

/// Writes or reads a file; the report of `error`, if it is not 0 and has one, must come up and nothing else.
void WriteFor(const SavedFile& file, int error);
void ReadFor(const SavedFile& file, int error);

/// Compares what is in memory after a read over forgotten values that got no further than `available` bytes: the
/// values that are wholly in them are the file's, the one in hand may be, the rest is as before. Empty when it is so,
/// else the first difference; forgets the values.
QByteArray WrongAfterCut(const SavedFile& file, const std::vector<std::string>& filed, std::size_t available);

} // namespace zelvia::test
