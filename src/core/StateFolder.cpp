// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/StateFolder.h"

#include <cstdlib>

namespace zelvia
{

std::filesystem::path StateFolder()
{
    const auto variable = [](const char* name) {
        const char* value = std::getenv(name);
        return std::filesystem::path(value != nullptr ? value : "");
    };
    if (const std::filesystem::path state = variable("XDG_STATE_HOME"); state.is_absolute()) {
        return state / "zelvia";
    }
    const std::filesystem::path home = variable("HOME");
    return home.is_absolute() ? home / ".local/state/zelvia" : std::filesystem::path();
}

std::filesystem::path StateFile(const std::filesystem::path& name)
{
    const std::filesystem::path folder = StateFolder();
    return folder.empty() ? folder : folder / name;
}

} // namespace zelvia
