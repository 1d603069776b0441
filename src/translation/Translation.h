// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <filesystem>

namespace zelvia
{

// Our own texts in the first of the desktop's languages for which there is a "zelvia_LANGUAGE.qm" beside the guide.
// They stay Italian otherwise, as the diary always is.

/// Where what is shared lies: as installed, as the build makes it, and beside the program.
std::array<std::filesystem::path, 4> SharedFolders();

/// The windows of the tools, with Qt's own texts, and what the actions say. Needs the application.
void InstallTranslation();

/// The window of the guide alone: Qt's own texts, which the diary shows too, stay Italian. Needs the application; only
/// the first call, of this or of the other, does something.
void InstallGuideTranslation();

/// What the actions say. The commands leave it Italian, for the programs that read it. Loads nothing until the first
/// text is asked for.
void TranslateTools();

} // namespace zelvia
