// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace zelvia::test
{

/// A program folder of a test's own: the sample diary, an empty `nomeload` and a hand pointer, in a temporary folder
/// whose path has no dot. Paths given to it start from that folder.
class ProgramFolderCopy
{
public:
    ProgramFolderCopy();

    QString Native(const QString& path = {}) const;
    /// In backslash form, as the program knows it.
    Text System(const QString& path = {}) const;

    bool Exists(const QString& path) const;
    QByteArray Read(const QString& path) const;
    void Write(const QString& path, const QByteArray& bytes) const;
    void Remove(const QString& path) const;
    void MakeFolder(const QString& path) const;
    /// Puts a folder where a file is expected: opening it raises error 75.
    void Block(const QString& path) const;
    /// Puts a name that leads nowhere where a file is expected: writing it raises error 76.
    void Dangle(const QString& path) const;

    /// Names of all files of a folder and below it, hidden ones left out, sorted.
    QStringList Files(const QString& path = {}) const;

private:
    QTemporaryDir folder_;
};

/// The files of a diary's folder as a first use lays them down, sorted.
QStringList FullSet();

/// The seven lists that have a file, in the order in which they are written and read.
QStringList ListNames();

/// The bytes of a file of the sample diary as it is in the sources.
QByteArray SampleFile(const QString& path);

} // namespace zelvia::test
