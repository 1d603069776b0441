// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "monkey/Trail.h"

#include <QFile>

#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <thread>
#include <unistd.h>

// Of the sanitizers' own run time, absent in a plain build.
extern "C" void __sanitizer_set_death_callback(void (*callback)()) __attribute__((weak));

namespace zelvia::monkey
{
namespace
{

constexpr int kKept = 30;
constexpr int kLength = 400;

// Plain memory: it is read from a signal and from the watching thread.
char lines[kKept][kLength];
std::atomic<long> current = 0;
std::atomic<quint64> seedOfRun = 0;
std::atomic<bool> told = false;

std::unique_ptr<QFile> logFile;
std::jthread watcher;

const char* LineOf(long number)
{
    return lines[number % kKept];
}

void WriteAll(const char* text)
{
    std::size_t left = std::strlen(text);
    while (left > 0) {
        const ssize_t written = ::write(STDERR_FILENO, text, left);
        if (written <= 0) {
            return;
        }
        text += written;
        left -= static_cast<std::size_t>(written);
    }
}

template <typename Out>
void Tell(Out&& out)
{
    char head[120];
    const long last = current;
    std::snprintf(head, sizeof head, "--seed %llu, action %ld; the last actions:\n",
                  static_cast<unsigned long long>(seedOfRun), last);
    out(head);
    for (long number = last < kKept ? 1 : last - kKept + 1; number <= last; ++number) {
        out(LineOf(number));
        out("\n");
    }
}

void TellOnce()
{
    if (!told.exchange(true)) {
        WriteAll("\nThe monkey fell: ");
        Tell(WriteAll);
    }
}

void OnSignal(int number)
{
    TellOnce();
    std::signal(number, SIG_DFL);
    std::raise(number);
}

void Watch(const std::stop_token& stop, int patience)
{
    using namespace std::chrono_literals;
    long seen = -1;
    int quiet = 0;
    while (!stop.stop_requested()) {
        std::this_thread::sleep_for(100ms);
        const long now = current;
        quiet = now == seen ? quiet + 1 : 0;
        seen = now;
        if (quiet > 10 * patience) {
            WriteAll("\nThe program waits for something that does not come.\n");
            TellOnce();
            std::abort();
        }
    }
}

} // namespace

Trail::Trail(quint64 seed, int patience, const QString& log)
{
    seedOfRun = seed;
    if (__sanitizer_set_death_callback != nullptr) {
        __sanitizer_set_death_callback(TellOnce);
        std::signal(SIGABRT, OnSignal);
    } else {
        for (const int number : {SIGABRT, SIGSEGV, SIGFPE, SIGBUS, SIGILL}) {
            std::signal(number, OnSignal);
        }
    }
    if (!log.isEmpty()) {
        logFile = std::make_unique<QFile>(log);
        if (!logFile->open(QIODevice::WriteOnly)) {
            qFatal("cannot write %s", qPrintable(log));
        }
    }
    watcher = std::jthread([patience](const std::stop_token& stop) { Watch(stop, patience); });
}

Trail::~Trail()
{
    watcher = {};
    logFile.reset();
}

void Trail::Begin(long number)
{
    std::snprintf(lines[number % kKept], kLength, "%6ld ", number);
    current = number;
}

void Trail::Note(const QString& what)
{
    if (OnNote) {
        OnNote();
    }
    char* line = lines[current % kKept];
    const std::size_t used = std::strlen(line);
    std::snprintf(line + used, kLength - used, " %s", what.toUtf8().constData());
}

void Trail::Log(const QByteArray& line)
{
    if (logFile != nullptr) {
        logFile->write(LineOf(current) + QByteArray(" | ") + line + '\n');
        logFile->flush();
    }
}

QByteArray Trail::Told() const
{
    QByteArray text;
    Tell([&text](const char* part) { text += part; });
    return text;
}

} // namespace zelvia::monkey
