// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Files.h"
#include "core/Text.h"
#include "support/Bytes.h"

#include <QDir>
#include <QString>
#include <QTemporaryDir>

#include <filesystem>
#include <stdexcept>
#include <string>

namespace zelvia::test
{

/// A folder that goes with its object. Its path holds no dot, since the folder rule of a diary stops at the first one.
class TempFolder
{
public:
    TempFolder() : dir_(Template())
    {
        if (!dir_.isValid() || dir_.path().contains(QLatin1Char('.'))) {
            throw std::runtime_error("no temporary folder without a dot in its path");
        }
    }

    /// The native path to `name`, slashes inside allowed; the folder itself for an empty name.
    std::string Native(const std::string& name = {}) const
    {
        const std::string folder = dir_.path().toStdString();
        return name.empty() ? folder : folder + "/" + name;
    }

    /// The same in the backslash form of the system.
    Text Path(const std::string& name = {}) const { return SystemPath(Native(name)); }

    void Write(const std::string& name, TextView bytes) const { WriteWhole(Native(name), bytes); }
    Text Read(const std::string& name) const { return ReadWhole(Native(name)); }
    void MakeFolder(const std::string& name) const { std::filesystem::create_directories(Native(name)); }
    bool Has(const std::string& name) const { return std::filesystem::exists(Native(name)); }

    /// A name on which every write fails as on a full disk.
    Text FullDisk() const
    {
        if (!Has("pieno")) {
            std::filesystem::create_symlink("/dev/full", Native("pieno"));
        }
        return Path("pieno");
    }

private:
    static QString Template()
    {
        const QString folder = QDir::tempPath();
        return (folder.contains(QLatin1Char('.')) ? QStringLiteral("/tmp") : folder) + QStringLiteral("/zelvia-XXXXXX");
    }

    QTemporaryDir dir_;
};

} // namespace zelvia::test
