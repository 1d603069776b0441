// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/CommonDialog.h"

#include "core/Conversions.h"
#include "core/Files.h"
#include "core/RunTimeError.h"
#include "toolkit/Events.h"
#include "toolkit/QtText.h"

#include <QFileDialog>

namespace zelvia
{
namespace
{

FileDialogHandler& Handler()
{
    static FileDialogHandler handler;
    return handler;
}

struct FilterParts {
    QString description;
    QString pattern;
};

FilterParts Parse(TextView filter)
{
    const auto bar = InStr(filter, "|");
    const Text pattern = Mid(filter, bar + 1);
    return {ToQString(Left(filter, bar - 1)), ToQString(Left(pattern, InStr(pattern, "|") - 1))};
}

QString NativeString(TextView path)
{
    return ToQString(path).replace(QLatin1Char('\\'), QLatin1Char('/'));
}

/// The chosen path in backslash form; error 52 for a name that the diary's character set can't hold.
Text ChosenPath(const QString& native)
{
    if (!IsInCharacterSet(native)) {
        throw ErroreRunTime(Errore::NomeFileNonValido);
    }
    return SystemPath(native.toStdString());
}

std::optional<Text> ShowDialog(const CommonDialog& settings, FileDialogMode mode)
{
    const BoxUp up;
    QFileDialog dialog(up.Owner());
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setWindowTitle(ToQString(settings.DialogTitle));
    dialog.setDirectory(NativeString(settings.InitDir));
    dialog.setAcceptMode(mode == FileDialogMode::Open ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    dialog.setFileMode((settings.Flags & DialogFlags::FileMustExist) != 0 ? QFileDialog::ExistingFile
                                                                          : QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, (settings.Flags & DialogFlags::OverwritePrompt) == 0);

    // The description is shown as it is given; the pattern behind it is the one that filters, and Qt hides it.
    const FilterParts filter = Parse(settings.Filter);
    dialog.setNameFilter(filter.description + QLatin1String(" (") + filter.pattern + QLatin1Char(')'));
    dialog.setDefaultSuffix(filter.pattern.section(QLatin1Char('.'), -1));
    if (!settings.FileName.empty()) {
        dialog.selectFile(NativeString(Mid(settings.FileName, InStrRev(settings.FileName, "\\") + 1)));
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return ChosenPath(dialog.selectedFiles().first());
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
