// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/strumenti/ToolsDesk.h"

#include "tools/strumenti/Actions.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <optional>
#include <sstream>
#include <utility>

namespace zelvia::test
{
namespace
{

namespace fs = std::filesystem;

Outcome RunWith(const std::vector<std::string>& words, std::function<std::optional<std::string>()> readLine)
{
    std::ostringstream out;
    std::ostringstream err;
    Terminal terminal{out, err, std::move(readLine)};
    Outcome outcome;
    outcome.status = RunTools(words, terminal);
    outcome.out = QByteArray::fromStdString(out.str());
    outcome.err = QByteArray::fromStdString(err.str());
    return outcome;
}

} // namespace

ToolsDesk::ToolsDesk()
{
    qputenv("HOME", QByteArray::fromStdString(home.Native()));
    qputenv("XDG_STATE_HOME", QByteArray::fromStdString(home.Native("stato")));
    fs::copy(ZELVIA_SOURCE_DIR "/share/demo", Native(), fs::copy_options::recursive);
    Write("nomeload", "\"\"\r\n");
}

Outcome ToolsDesk::Run(const std::vector<std::string>& words) const
{
    return RunWith(words, {});
}

Outcome ToolsDesk::Answer(const std::vector<std::string>& words, const std::string& line) const
{
    return RunWith(words, [&line] { return line; });
}

Outcome ToolsDesk::Answers(const std::vector<std::string>& words, std::vector<std::string> lines) const
{
    return RunWith(words, [&lines, next = std::size_t{0}]() mutable {
        return next < lines.size() ? std::optional(lines[next++]) : std::nullopt;
    });
}

QByteArray ToolsDesk::Everything() const
{
    std::vector<std::string> entries;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(Native())) {
        if (entry.path().filename() != ".zelvia.lock") {
            entries.push_back(fs::relative(entry.path(), Native()).string() + "\n" +
                              (entry.is_regular_file() ? ReadWhole(entry.path().string()) : "") + "\n");
        }
    }
    std::sort(entries.begin(), entries.end());
    QByteArray all;
    for (const std::string& entry : entries) {
        all += Bytes(entry);
    }
    return all;
}

int ToolsDesk::Copies() const
{
    return home.Has("stato/zelvia/copie")
               ? static_cast<int>(std::count_if(fs::directory_iterator(home.Native("stato/zelvia/copie")),
                                                fs::directory_iterator(),
                                                [](const auto& entry) { return entry.is_directory(); }))
               : 0;
}

} // namespace zelvia::test
