// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/watch/Activity.h"

#include <string_view>

namespace zelvia
{

/// True when the bytes begin as an XML file does.
bool IsXml(std::string_view bytes);

/// Reads the activities of a TCX or GPX file. A file that is cut or damaged gives what comes before the damage.
WatchFile ReadTrackFile(std::string_view bytes);

} // namespace zelvia
