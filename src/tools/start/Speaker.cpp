// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/start/Speaker.h"

#include "core/Tr.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <iostream>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

/// The exit status of the box for its first button.
constexpr int kFirstButton = 10;

/// Runs a program to its end. Its exit status, or -1.
int Run(std::vector<std::string> words)
{
    std::vector<char*> arguments;
    for (std::string& word : words) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    pid_t child = 0;
    if (posix_spawn(&child, arguments.front(), nullptr, nullptr, arguments.data(), environ) != 0) {
        return -1;
    }
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

fs::path OwnFolder()
{
    return fs::read_symlink("/proc/self/exe").parent_path();
}

int ShowBox(const std::string& text, const std::vector<std::string>& buttons)
{
    std::vector<std::string> words = {(OwnFolder() / "zelvia-avviso").string(), text};
    words.insert(words.end(), buttons.begin(), buttons.end());
    return Run(std::move(words));
}

void Tell(const std::string& text)
{
    std::cerr << text << std::endl;
    if (HasDisplay() && ::isatty(STDERR_FILENO) == 0) {
        ShowBox(text, {});
    }
}

std::optional<std::size_t> Ask(const std::string& text, const std::vector<std::string>& buttons,
                               const std::string& command)
{
    std::cerr << text << std::endl;
    if (!HasDisplay()) {
        std::cerr << command << std::endl;
        return std::nullopt;
    }
    const int button = ShowBox(text, buttons) - kFirstButton;
    return button >= 0 && button < static_cast<int>(buttons.size()) ? std::optional(static_cast<std::size_t>(button))
                                                                    : std::nullopt;
}

/// In the package the tools are a command of the user's; where the programs were built all are in one folder.
void OpenTools(const fs::path& folder)
{
    const fs::path beside = OwnFolder() / "zelvia-strumenti";
    const fs::path tools =
        fs::exists(beside) ? beside : OwnFolder().parent_path().parent_path() / "bin" / "zelvia-strumenti";
    Run({tools.string(), "--cartella", folder.string()});
}

} // namespace

std::string PointsOf(const std::vector<std::string>& lines)
{
    constexpr std::size_t most = 5;
    std::string text;
    for (std::size_t i = 0; i < std::min(most, lines.size()); ++i) {
        text += "• " + lines[i] + ".\n";
    }
    if (lines.size() > most) {
        text += Tools::Tr("… e altri %1.", lines.size() - most) + "\n";
    }
    return text;
}

bool HasDisplay()
{
    const auto given = [](const char* name) {
        const char* value = std::getenv(name);
        return value != nullptr && *value != '\0';
    };
    return given("DISPLAY") || given("WAYLAND_DISPLAY");
}

Speaker SpeakerOnDisplay()
{
    return {Tell, Ask, OpenTools};
}

} // namespace zelvia
