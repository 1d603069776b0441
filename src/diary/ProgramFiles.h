// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"

#include <filesystem>

namespace zelvia
{

/// The program's folder in backslash form: `given` if there is one, else the folder `own` of the executable when it
/// holds the start pointer or the folder of the diaries, else "Zelvia" in the folder `home`. Empty when `home` is
/// unknown too.
Text ChooseProgramFolder(const std::filesystem::path& given, const std::filesystem::path& own,
                         const std::filesystem::path& home);

/// Makes a folder without diaries a program folder: a start pointer that names no diary, and an empty folder of the
/// diaries. A start pointer that is there stays. False when that fails, which is reported.
bool LayProgramFolder(TextView folder);

/// Where the installation of the executable in the folder `own` keeps its files, in backslash form; empty when it has
/// no such place.
Text ShareFolder(const std::filesystem::path& own);
void SetShareFolder(TextView folder);

/// The path of a file that comes with the program: in the program's folder, or in the share folder when it is only
/// there.
Text InstalledFile(TextView name);

/// The diary to open at the start instead of the one that the start pointer names; empty for that one.
const Text& StartDiary();
void SetStartDiary(TextView path);

} // namespace zelvia
