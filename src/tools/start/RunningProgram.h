// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

namespace zelvia
{

/// True when a program that runs in that folder answers a second start. The tools, which hold the same lock, don't.
bool ProgramAnswers(const std::filesystem::path& folder);

} // namespace zelvia
