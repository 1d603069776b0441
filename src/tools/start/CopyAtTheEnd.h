// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/start/BeforeStart.h"

#include <sys/types.h>

namespace zelvia
{

/// Keeps a copy of the diaries and brings the newest one to the second place. What fails there is said, but not again
/// for the same reason.
void CopyAtTheEnd(Start& start);

/// Has a process of its own do that once the process `program` has ended, however it ends. It keeps no terminal, folder
/// or stream of the caller but the error stream, and a signal that ends the program does not end it.
void CopyAtTheEndOf(pid_t program, Start& start);

} // namespace zelvia
