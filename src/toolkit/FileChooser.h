// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "toolkit/CommonDialog.h"

#include <QFileDialog>

class QLineEdit;

namespace zelvia
{

/// The dialog that a CommonDialog shows. It accepts a name only when a file of that name can be kept and found again;
/// otherwise it says why and stays. A name without the filter's suffix gets it, whatever the current directory is; one
/// that differs from a file's name only in case means that file.
class FileChooser : public QFileDialog
{
public:
    FileChooser(QWidget* owner, const CommonDialog& settings, FileDialogMode mode);

    /// The path accepted, in backslash form.
    const Text& Chosen() const { return chosen_; }

    void accept() override;

private:
    bool Opens() const { return acceptMode() == AcceptOpen; }
    void TakeChoice();
    Text NameRefusal(const QString& path) const;
    Text PathRefusal(const Text& path) const;
    Text PathMeant(const QString& typed) const;
    bool MayReplace(const QString& path);
    void EnableOpen();

    const CommonDialog& settings_;
    QString suffix_; ///< With its dot.
    QLineEdit* nameEdit_;
    Text chosen_;
};

} // namespace zelvia
