// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/desk/ToolRunner.h"

#include <QObject>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace zelvia
{

/// What the pages of the window share: the folder that they work on, and the runner.
class Desk : public QObject
{
    Q_OBJECT

public:
    Desk(std::filesystem::path folder, std::string diary);

    /// Absolute and without links; empty when the home is not known.
    const std::filesystem::path& Folder() const { return folder_; }
    /// The chosen diary; empty for the one that is opened at the start.
    const std::string& Diary() const { return diary_; }
    void Choose(const std::filesystem::path& folder, const std::string& diary);

    ToolRunner& Runner() { return runner_; }
    /// The words of a command line on the folder and the chosen diary.
    std::vector<std::string> Command(const std::vector<std::string>& words) const;

    /// The diary's own program; the one beside this one unless set.
    std::filesystem::path Program;
    /// Opens the window over all diaries of a folder; none where there is no such window.
    std::function<void(const std::filesystem::path& folder)> OpenAllYears;

Q_SIGNALS:
    /// The folder or the diary is another one.
    void Changed();

private:
    std::filesystem::path folder_;
    std::string diary_;
    ToolRunner runner_;
};

/// A file or folder that was typed: absolute, from the home on unless it says otherwise; empty for an empty one.
std::filesystem::path PathTyped(const QString& text);

} // namespace zelvia
