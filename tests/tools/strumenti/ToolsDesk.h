// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/TempFolder.h"

#include <QByteArray>

#include <string>
#include <vector>

namespace zelvia::test
{

/// What an action has said, and how it ended.
struct Outcome {
    int status = -1;
    QByteArray out;
    QByteArray err;
};

/// A home with the sample diary in its "Zelvia", and the tools at work in it.
class ToolsDesk
{
public:
    ToolsDesk();

    /// Without a terminal.
    Outcome Run(const std::vector<std::string>& words) const;
    /// With someone who types that line.
    Outcome Answer(const std::vector<std::string>& words, const std::string& line) const;

    /// The same with one who types these lines, and then nothing more.
    Outcome Answers(const std::vector<std::string>& words, std::vector<std::string> lines) const;

    /// A native path from the program folder on; the folder itself for an empty one.
    std::string Native(const std::string& path = {}) const
    {
        return home.Native(path.empty() ? "Zelvia" : "Zelvia/" + path);
    }
    Text Read(const std::string& path) const { return home.Read("Zelvia/" + path); }
    void Write(const std::string& path, TextView bytes) const { home.Write("Zelvia/" + path, bytes); }
    bool Has(const std::string& path) const { return home.Has("Zelvia/" + path); }

    /// Every file and folder of the program folder but its lock, with its content, hidden ones included.
    QByteArray Everything() const;
    /// The number of copies kept.
    int Copies() const;

    TempFolder home;
};

} // namespace zelvia::test
