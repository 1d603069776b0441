// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/watch/Activity.h"

#include <string_view>

namespace zelvia
{

/// True when the bytes begin as a FIT file does.
bool IsFit(std::string_view bytes);

/// Reads the activities of a FIT file, of several that were put one behind the other too. A file that is cut or damaged
/// gives what comes before the damage; without its summary an activity is made up of its laps and points.
WatchFile ReadFit(std::string_view bytes);

} // namespace zelvia
