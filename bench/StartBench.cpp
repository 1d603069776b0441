// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Alternately starts the page and a bare window, each in its own process, and compares the time to the first paint and
// the memory.
#include "bench/Measure.h"

#include <array>
#include <cstdlib>
#include <iostream>
#include <spawn.h>
#include <sstream>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace
{

using namespace zelvia::bench;

constexpr int kRounds = 40;
constexpr const char* kPlainLabels = "150"; ///< The labels of a plain window.

struct Start {
    double milliseconds = 0; ///< From the start of the process to the end of the first paint.
    double megabytes = 0;    ///< After the first paint.
    int controls = 0;
    int width = 0;
    int height = 0;
};

std::string ReadAll(int descriptor)
{
    std::string text;
    std::array<char, 256> part{};
    for (ssize_t got = 0; (got = read(descriptor, part.data(), part.size())) > 0;) {
        text.append(part.data(), static_cast<std::size_t>(got));
    }
    return text;
}

Start StartOnce(std::vector<std::string> command)
{
    std::vector<char*> arguments;
    for (std::string& word : command) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);

    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) {
        throw std::runtime_error("no pipe");
    }
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&actions, ends[0]);
    posix_spawn_file_actions_addclose(&actions, ends[1]);
    pid_t child = 0;
    const auto begun = Clock::now().time_since_epoch();
    const int failed = posix_spawn(&child, arguments[0], &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    const std::string report = failed == 0 ? ReadAll(ends[0]) : std::string();
    close(ends[0]);

    int status = 0;
    Start start;
    long long painted = 0;
    double kilobytes = 0;
    std::istringstream words(report);
    if (failed != 0 || waitpid(child, &status, 0) != child || status != 0 ||
        !(words >> painted >> kilobytes >> start.controls >> start.width >> start.height)) {
        throw std::runtime_error(command[0] + " did not paint");
    }
    start.milliseconds = std::chrono::duration<double, std::milli>(std::chrono::nanoseconds(painted) - begun).count();
    start.megabytes = kilobytes / 1024;
    return start;
}

void Compare(const std::string& platform, const std::string& programs, const std::string& folder)
{
    const std::vector<std::string> page = {programs + "/page_start", folder};
    const Start first = StartOnce(page);
    const std::vector<std::string> window = {programs + "/window_start", kPlainLabels, std::to_string(first.width),
                                             std::to_string(first.height)};
    Samples times;
    Samples memory;
    StartOnce(window);
    for (int round = 0; round < kRounds; ++round) {
        const Start measured = StartOnce(page);
        const Start baseline = StartOnce(window);
        times.measured.push_back(measured.milliseconds);
        times.baseline.push_back(baseline.milliseconds);
        memory.measured.push_back(measured.megabytes);
        memory.baseline.push_back(baseline.megabytes);
    }
    PrintMedians(("Start to the first page, " + platform).c_str(), times, "ms", "ratio <= 1.2");
    PrintMedians(("Memory of the opened page, " + platform).c_str(), memory, "MB", "ratio <= 1.2");
}

} // namespace

/// Takes the platform's name for the table, the folder of the two programs and the program folder with a diary.
int main(int argc, char* argv[])
{
    if (argc < 4) {
        return 2;
    }
    try {
        Compare(argv[1], argv[2], argv[3]);
    } catch (const std::exception& error) {
        std::cerr << "start_bench: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
