// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/CommonDialog.h"

#include "core/RunTimeError.h"
#include "toolkit/Events.h"
#include "toolkit/FileChooser.h"

namespace zelvia
{
namespace
{

FileDialogHandler& Handler()
{
    static FileDialogHandler handler;
    return handler;
}

std::optional<Text> ShowDialog(const CommonDialog& settings, FileDialogMode mode)
{
    const BoxUp up;
    FileChooser dialog(up.Owner(), settings, mode);
    return dialog.exec() == QDialog::Accepted ? std::optional<Text>(dialog.Chosen()) : std::nullopt;
}

void Choose(CommonDialog& settings, FileDialogMode mode)
{
    const std::optional<Text> chosen = Handler() ? Handler()(settings, mode) : ShowDialog(settings, mode);
    if (chosen) {
        settings.FileName = *chosen;
    } else if (settings.CancelError) {
        throw ErroreRunTime(Errore::Annullato);
    }
}

} // namespace

void CommonDialog::ShowOpen()
{
    Choose(*this, FileDialogMode::Open);
}

void CommonDialog::ShowSave()
{
    Choose(*this, FileDialogMode::Save);
}

void SetFileDialogHandler(FileDialogHandler handler)
{
    Handler() = std::move(handler);
}

} // namespace zelvia
