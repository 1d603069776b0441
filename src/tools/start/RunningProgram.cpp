// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/start/RunningProgram.h"

#include "core/Descriptor.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

namespace zelvia
{

bool ProgramAnswers(const std::filesystem::path& folder)
{
    struct stat lock {
    };
    if (::stat((folder / ".zelvia.lock").c_str(), &lock) != 0) {
        return false;
    }
    // The abstract address that the program listens at, which InstanceLock names after the lock.
    sockaddr_un name{};
    name.sun_family = AF_UNIX;
    const int letters =
        std::snprintf(name.sun_path + 1, sizeof name.sun_path - 1, "zelvia-%jx-%jx",
                      static_cast<std::uintmax_t>(lock.st_dev), static_cast<std::uintmax_t>(lock.st_ino));
    const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + static_cast<std::size_t>(letters));
    const Descriptor socket(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0));
    return ::connect(socket.Number(), reinterpret_cast<const sockaddr*>(&name), length) == 0;
}

} // namespace zelvia
