// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/ProgramFolderCopy.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>

#include <map>

namespace zelvia
{
class frmMain;
} // namespace zelvia

namespace zelvia::monkey
{

/// Watches the files of the program's folder: which ones change, whether they then hold what the program holds in
/// memory, and whether its readers and writers agree about them to the byte.
class FileWatch
{
public:
    explicit FileWatch(const test::ProgramFolderCopy& folder) : folder_(folder) {}

    /// Compares the folder with how it was when last looked at: each file that was written must hold to the byte what
    /// memory holds. Collects the names of what changed. What is wrong, or nothing.
    QString Look(const frmMain* page);

    /// What has been written, made and removed since Forget().
    const QStringList& Changed() const { return changed_; }
    void Forget() { changed_.clear(); }

    /// Reads every file as the program does and rewrites it: the bytes must be the same. Memory is put back. What
    /// is wrong, or nothing.
    QString ReadAll();

    /// Where the days in memory differ from the diary at a path of the system, or nothing; a missing one counts as no
    /// difference.
    QString DiaryDifference(const Text& path) const;

    long checked = 0; ///< Files compared.

private:
    struct Stamp {
        QDateTime written;
        qint64 size;
        bool operator==(const Stamp&) const = default;
    };

    QString CheckWritten(const QString& file, const frmMain* page);
    QString ReadBack(const QStringList& files) const;
    QString ReadBack(const QString& file) const;

    const test::ProgramFolderCopy& folder_;
    std::map<QString, Stamp> stamps_;
    bool known_ = false;
    QStringList changed_;
};

} // namespace zelvia::monkey
