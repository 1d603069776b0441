// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"

#include <functional>
#include <optional>

namespace zelvia
{

/// The flags of a file dialog that make a difference here.
namespace DialogFlags
{
inline constexpr int OverwritePrompt = 2;
inline constexpr int HideReadOnly = 4;
inline constexpr int NoChangeDir = 8;
inline constexpr int FileMustExist = 4096;
} // namespace DialogFlags

/// A file dialog's settings; paths in backslash form. FileName survives from one dialog to the next.
struct CommonDialog {
    bool CancelError = false;
    int Flags = 0;
    Text InitDir;
    Text Filter; ///< Description and pattern, each followed by a bar.
    Text DialogTitle;
    Text FileName;
    /// True for a path that can't be chosen, after the box that says why. Asked while the dialog is up, which then
    /// stays.
    std::function<bool(const Text& path)> Refuses;

    /// Shows the dialog and takes the chosen path into FileName; one in the folder of InitDir begins with that. Raises
    /// error 32755 on Cancel when CancelError is on.
    void ShowOpen();
    void ShowSave();
};

enum class FileDialogMode { Open, Save };

/// Returns the chosen path in backslash form, or nothing on Cancel.
using FileDialogHandler = std::function<std::optional<Text>(const CommonDialog&, FileDialogMode)>;

/// Makes `handler` answer all file dialogs; an empty one restores the toolkit's own.
void SetFileDialogHandler(FileDialogHandler handler);

} // namespace zelvia
