// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <filesystem>

namespace zelvia
{

class HelpViewer;

/// Shows a topic of the guide that comes with the program in `folder`, or with this one. A guide that can't be opened
/// is said in a box.
void OpenGuide(HelpViewer& viewer, const std::filesystem::path& folder, const QString& topic);

} // namespace zelvia
