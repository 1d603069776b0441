// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/strumenti/FileSet.h"
#include "tools/years/DiaryYear.h"

#include <filesystem>
#include <string>

namespace zelvia
{

/// Raises FileFailure unless a diary of that year's name can be made.
void RefuseYear(const std::filesystem::path& folder, int year);

/// Prepares the blank diary of a year, with the lists, routes and tables of the present one.
void PrepareYear(FileSet& files, const std::filesystem::path& folder, int year, const std::string& present,
                 bool opensAtStart);

} // namespace zelvia
