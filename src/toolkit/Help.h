// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"

namespace zelvia
{

/// What the help viewer is asked to show, under the numbers of the system call that help commands go by.
namespace HelpCommand
{
inline constexpr int Contents = 15;
inline constexpr int Search = 261;
} // namespace HelpCommand

/// Opens the program's help file for a command. Raises error 53 or the like when it can't be opened, 51 when it is no
/// help file.
void WinHelp(TextView file, int command);

} // namespace zelvia
