// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/strumenti/BookProgram.h"

#include "core/Descriptor.h"
#include "core/Tr.h"
#include "tools/copies/SafeFiles.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zelvia
{
namespace
{

namespace fs = std::filesystem;

constexpr const char* kName = "zelvia-libro";

/// Beside this program, or where the package keeps what only other programs run.
fs::path ProgramPath()
{
    const fs::path own = fs::read_symlink("/proc/self/exe").parent_path();
    for (const fs::path& path : {own / kName, own.parent_path() / "libexec/zelvia" / kName}) {
        if (fs::exists(path)) {
            return path;
        }
    }
    throw FileFailure(Tools::Tr("manca il programma che disegna le pagine («%1»)", (own / kName)));
}

struct Pipe {
    std::array<int, 2> ends = [] {
        std::array<int, 2> opened{};
        if (::pipe2(opened.data(), O_CLOEXEC) != 0) {
            throw FileFailure(kName, errno);
        }
        return opened;
    }();
    Descriptor read{ends[0]};
    Descriptor write{ends[1]};
};

/// The process, which gets the writing ends of the two pipes.
pid_t Start(const std::vector<std::string>& words, const Pipe& out, const Pipe& err)
{
    const std::string path = ProgramPath().string();
    std::vector<char*> arguments = {const_cast<char*>(path.c_str())};
    for (const std::string& word : words) {
        arguments.push_back(const_cast<char*>(word.c_str()));
    }
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&files, out.write.Number(), STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&files, err.write.Number(), STDERR_FILENO);
    pid_t process = -1;
    const int failure = ::posix_spawn(&process, path.c_str(), &files, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&files);
    if (failure != 0) {
        throw FileFailure(path, failure);
    }
    return process;
}

/// Appends what is there to be read; false at the end.
bool ReadSome(const Descriptor& end, std::string& text)
{
    constexpr std::size_t piece = 65536;
    std::string bytes(piece, '\0');
    const ssize_t count = ::read(end.Number(), bytes.data(), bytes.size());
    if (count > 0) {
        text.append(bytes, 0, static_cast<std::size_t>(count));
    }
    return count > 0 || (count < 0 && errno == EINTR);
}

/// Passes on the whole lines and removes them.
void TellLines(std::string& text, const std::function<void(std::string_view)>& told)
{
    std::size_t start = 0;
    for (std::size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n', start)) {
        told(std::string_view(text).substr(start, end - start));
        start = end + 1;
    }
    text.erase(0, start);
}

} // namespace

std::string RunBookProgram(const std::vector<std::string>& words, const std::function<void(std::string_view)>& told)
{
    Pipe out;
    Pipe err;
    const pid_t process = Start(words, out, err);
    out.write.Close();
    err.write.Close();
    std::string written;
    std::string messages;
    std::array<pollfd, 2> ends = {{{out.read.Number(), POLLIN, 0}, {err.read.Number(), POLLIN, 0}}};
    while (ends[0].fd >= 0 || ends[1].fd >= 0) {
        ::poll(ends.data(), ends.size(), -1);
        if (ends[0].revents != 0 && !ReadSome(out.read, written)) {
            ends[0].fd = -1;
        }
        if (ends[1].revents != 0 && !ReadSome(err.read, messages)) {
            ends[1].fd = -1;
        }
        TellLines(messages, told);
    }
    int status = 0;
    while (::waitpid(process, &status, 0) < 0 && errno == EINTR) {
    }
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        throw FileFailure(Tools::Tr("le pagine del libro non si possono disegnare"));
    }
    return written;
}

} // namespace zelvia
