// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"

#include <QString>

#include <memory>

namespace zelvia
{

class HelpWindow;

/// What the help viewer is to show, by the numbers of the help commands.
namespace HelpCommand
{
inline constexpr int Topic = 1;
inline constexpr int Contents = 15;
inline constexpr int Search = 261;
} // namespace HelpCommand

/// The viewer of the program's help file: one window, made when it is first asked for and kept until Close.
class HelpViewer
{
public:
    HelpViewer();
    ~HelpViewer();

    /// Opens the help file for a command and brings the window to the front; `topic` goes with Topic alone. Raises
    /// error 53 or the like when the file can't be opened, 75 without a temporary folder, 51 when it is damaged or not
    /// this program's help file. The window is then left as it is.
    void WinHelp(TextView file, int command, const QString& topic = {});

    /// Deletes the window.
    void Close();

private:
    /// Makes the window, or replaces it when the file is another one.
    void Open(TextView file);

    std::unique_ptr<HelpWindow> window_;
    QString stamp_; ///< Path, time and size of the file that the window shows.
};

} // namespace zelvia
