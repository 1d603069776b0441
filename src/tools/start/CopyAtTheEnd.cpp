// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/start/CopyAtTheEnd.h"

#include "core/Descriptor.h"
#include "core/Tr.h"
#include "tools/copies/CopyStore.h"
#include "tools/copies/SecondPlace.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <exception>
#include <fcntl.h>
#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace zelvia
{
namespace
{

constexpr const char* kSecondPlaceNote = "secondo posto";

/// Set once the session ends.
volatile std::sig_atomic_t sessionEnds = 0;

void NoteSessionEnd(int /*signal*/)
{
    sessionEnds = 1;
}

void Detach()
{
    ::setsid();
    // Not ignored: a box that is shown would ignore them as well, and hold up the session's end.
    for (const int signal : {SIGHUP, SIGINT, SIGTERM, SIGQUIT}) {
        std::signal(signal, NoteSessionEnd);
    }
    const Descriptor nowhere(::open("/dev/null", O_RDWR | O_CLOEXEC));
    if (::chdir("/") != 0 || ::dup2(nowhere.Number(), STDIN_FILENO) < 0 ||
        ::dup2(nowhere.Number(), STDOUT_FILENO) < 0) {
        return;
    }
}

void AwaitEnd(int process)
{
    pollfd end{process, POLLIN, 0};
    while (::poll(&end, 1, -1) < 0 && errno == EINTR) {
    }
}

} // namespace

void CopyAtTheEnd(Start& start)
{
    CopyStore store(CopyFolder());
    try {
        store.Take(start.folder, std::chrono::system_clock::now());
    } catch (const std::exception&) {
        // The next start tries again, and says it when that fails.
    }
    try {
        BringToSecondPlace(store, start.folder);
        start.memory.Note(kSecondPlaceNote, start.folder, "");
    } catch (const std::exception& error) {
        const std::string reason = error.what();
        if (sessionEnds == 0 && start.memory.Of(kSecondPlaceNote, start.folder) != reason) {
            start.memory.Note(kSecondPlaceNote, start.folder, reason);
            start.speaker.tell(
                Tools::Tr("La copia nel secondo posto non è riuscita: %1.\nLe copie di sempre ci sono tutte. Quella si "
                          "farà da sé alla fine di Zelvia, quando sarà possibile; fino ad allora non verrà più detto.",
                          reason));
        }
    }
}

void CopyAtTheEndOf(pid_t program, Start& start)
{
    const Descriptor process(static_cast<int>(::syscall(SYS_pidfd_open, program, 0)));
    if (process.Number() < 0 || CopyFolder().empty() || ::fork() != 0) {
        return;
    }
    Detach();
    AwaitEnd(process.Number());
    CopyAtTheEnd(start);
    ::_exit(0);
}

} // namespace zelvia
