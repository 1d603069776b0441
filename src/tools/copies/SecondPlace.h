// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/copies/CopyStore.h"

#include <filesystem>

namespace zelvia
{

/// A second place for the copies, such as a stick or a synchronised folder: the user names a folder, and the copies are
/// in a subfolder of it, in the form of the first place. The subfolder is made when the place is named: if it is
/// missing, the folder is on another disk, or nothing is plugged in. Everything raises FileFailure or
/// std::filesystem::filesystem_error.

/// The folder that was named; empty for none.
std::filesystem::path SecondPlace();

/// Names one, and makes the copies' folder in it.
void NameSecondPlace(const std::filesystem::path& place);

/// Drops the second place. The copies in it stay.
void ForgetSecondPlace();

/// The folder of the copies in a place, which may be that folder itself. It must exist.
std::filesystem::path CopiesIn(const std::filesystem::path& place);

/// Adds the newest copy of a program folder to the second place, if there is one without it. NothingThere for no
/// place or no copy.
CopyOutcome BringToSecondPlace(const CopyStore& first, const std::filesystem::path& folder);

} // namespace zelvia
