// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace zelvia
{

/// Runs the program that draws the pages of a book, so that no other action of the tools needs to load what draws, and
/// returns what it writes. `told` is passed each line of its messages. Raises FileFailure when it can't be run or does
/// not end well.
std::string RunBookProgram(const std::vector<std::string>& words, const std::function<void(std::string_view)>& told);

} // namespace zelvia
