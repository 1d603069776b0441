// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace zelvia
{

/// How what comes before the start talks with the user; all texts are Italian, UTF-8.
struct Speaker {
    /// Says something that needs no answer.
    std::function<void(const std::string& text)> tell;
    /// Asks; none when nobody can answer, or the box was closed. `command` tells how to do it later, where there is no
    /// display to ask on.
    std::function<std::optional<std::size_t>(const std::string& text, const std::vector<std::string>& buttons,
                                             const std::string& command)>
        ask;
    /// Opens the tools' window on the folder, and waits for its end.
    std::function<void(const std::filesystem::path& folder)> openTools;
};

/// The one that speaks on the error stream and, where there is a display, through the programs beside this one. What
/// needs no answer opens no box on a terminal.
Speaker SpeakerOnDisplay();

/// The first of those lines, each as a point of its own, and how many more there are.
std::string PointsOf(const std::vector<std::string>& lines);

/// Whether there is a display to ask on.
bool HasDisplay();

} // namespace zelvia
