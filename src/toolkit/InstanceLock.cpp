// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/InstanceLock.h"

#include <QFile>
#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

namespace zelvia
{
namespace
{

/// What a start under Wayland was given by whoever the user clicked: the right to bring a window to the front.
constexpr const char* kTokenVariable = "XDG_ACTIVATION_TOKEN";
constexpr std::size_t kLongestToken = 1024;

/// Opens any entry of that name for locking: folders and read-only files can be locked too.
int OpenForLock(const QString& path)
{
    constexpr int common = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    const QByteArray native = QFile::encodeName(path);
    const int file = ::open(native.constData(), O_RDWR | O_CREAT | common, 0666);
    return file >= 0 ? file : ::open(native.constData(), O_RDONLY | common);
}

/// An abstract socket address: it exists only in the kernel and ends with the process. It is named after the locked
/// file, so that it is the same for every path to the folder.
struct Address {
    sockaddr_un name{};
    socklen_t length = 0;
};

Address AddressOf(int file)
{
    struct stat status {
    };
    Address address;
    if (::fstat(file, &status) != 0) {
        return address;
    }
    address.name.sun_family = AF_UNIX;
    const int letters =
        std::snprintf(address.name.sun_path + 1, sizeof address.name.sun_path - 1, "zelvia-%jx-%jx",
                      static_cast<std::uintmax_t>(status.st_dev), static_cast<std::uintmax_t>(status.st_ino));
    address.length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + static_cast<std::size_t>(letters));
    return address;
}

int OpenSocket()
{
    return ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
}

} // namespace

InstanceLock::InstanceLock(const QString& path) : file_(OpenForLock(path)) {}

InstanceLock::~InstanceLock() = default;

bool InstanceLock::Take()
{
    int result = 0;
    do {
        result = ::flock(file_.Number(), LOCK_EX | LOCK_NB);
    } while (result != 0 && errno == EINTR);
    return result == 0 || errno != EWOULDBLOCK;
}

void InstanceLock::Answer(std::function<void()> asked)
{
    const Address address = AddressOf(file_.Number());
    socket_ = std::make_unique<Descriptor>(OpenSocket());
    const int socket = socket_->Number();
    if (socket < 0 || address.length == 0 ||
        ::bind(socket, reinterpret_cast<const sockaddr*>(&address.name), address.length) != 0) {
        socket_.reset();
        return;
    }
    notifier_ = std::make_unique<QSocketNotifier>(socket, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [socket, asked = std::move(asked)] {
        // Those that have asked meanwhile are answered together, by the token of the last one.
        constexpr int most = 1000;
        std::array<char, kLongestToken + 1> token{};
        ssize_t length = 0;
        for (int i = 0; i < most; ++i) {
            const ssize_t received = ::recv(socket, token.data(), kLongestToken, 0);
            if (received < 0) {
                break;
            }
            length = received;
        }
        token[static_cast<std::size_t>(length)] = 0;
        // Qt takes it from there for the window that is activated now. Nothing later may take it.
        qputenv(kTokenVariable, token.data());
        asked();
        qunsetenv(kTokenVariable);
    });
}

bool InstanceLock::Ask() const
{
    const Address address = AddressOf(file_.Number());
    const Descriptor socket(OpenSocket());
    QByteArray token = qgetenv(kTokenVariable);
    if (token.size() >= static_cast<qsizetype>(kLongestToken)) {
        token.clear();
    }
    // With the zero at its end: an empty one is a message too.
    const ssize_t sent = ::sendto(socket.Number(), token.constData(), static_cast<std::size_t>(token.size()) + 1, 0,
                                  reinterpret_cast<const sockaddr*>(&address.name), address.length);
    // A run that does not read for a while has been asked often enough.
    return sent == token.size() + 1 || errno == EAGAIN;
}

} // namespace zelvia
