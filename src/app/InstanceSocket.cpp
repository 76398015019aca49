#include "app/InstanceSocket.h"

#include <QDataStream>
#include <QDeadlineTimer>
#include <QFile>
#include <QIODevice>
#include <algorithm>
#include <array>
#include <cerrno>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <utility>

namespace tessaly {
namespace {

constexpr char answerText = '\n'; // anything: it says that the event loop there runs
constexpr int mostWaiting = 16;   // calls that are not taken yet

Descriptor unconnected() {
    return Descriptor{::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)};
}

// `use` is `bind` or `connect`.
bool at(const QString& path, const Descriptor& socket, int (*use)(int, const sockaddr*, socklen_t)) {
    const QByteArray name = QFile::encodeName(path);
    sockaddr_un address{AF_UNIX, {}};
    if (static_cast<std::size_t>(name.size()) >= sizeof address.sun_path) {
        errno = ENAMETOOLONG;
        return false;
    }
    std::ranges::copy(name, address.sun_path);
    return use(socket.number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

bool waitFor(short event, const Descriptor& socket, const QDeadlineTimer& end) {
    pollfd waited{socket.number(), event, 0};
    return ::poll(&waited, 1, static_cast<int>(end.remainingTime())) > 0;
}

} // namespace

/// A start that speaks.
struct InstanceSocket::Call {
    Descriptor socket;
    QByteArray message;
};

InstanceSocket::~InstanceSocket() {
    close();
}

bool InstanceSocket::tell(const QString& path, const QStringList& files, const QDeadlineTimer& end) {
    const Descriptor socket = unconnected();
    if (!at(path, socket, ::connect)) {
        return false;
    }
    QByteArray message;
    QDataStream stream{&message, QIODevice::WriteOnly};
    stream << files;
    while (!message.isEmpty()) {
        const ssize_t sent = waitFor(POLLOUT, socket, end)
                                 ? ::send(socket.number(), message.constData(),
                                          static_cast<std::size_t>(message.size()), MSG_NOSIGNAL)
                                 : -1;
        if (sent < 0) {
            return false;
        }
        message.remove(0, sent);
    }
    char answered = 0;
    return waitFor(POLLIN, socket, end) && ::recv(socket.number(), &answered, 1, 0) == 1;
}

bool InstanceSocket::listen(const QString& path) {
    QFile::remove(path);
    socket_ = unconnected();
    const mode_t mask = ::umask(S_IXUSR | S_IRWXG | S_IRWXO);
    const bool isThere = at(path, socket_, ::bind);
    ::umask(mask);
    if (!isThere) {
        return false;
    }
    path_ = path;
    calls_ = std::make_unique<QSocketNotifier>(socket_.number(), QSocketNotifier::Read);
    connect(calls_.get(), &QSocketNotifier::activated, this, &InstanceSocket::answer);
    return ::listen(socket_.number(), mostWaiting) == 0;
}

void InstanceSocket::close() {
    calls_.reset();
    socket_.close();
    if (!path_.isEmpty()) {
        QFile::remove(std::exchange(path_, {}));
    }
}

void InstanceSocket::answer() {
    const auto call = std::make_shared<Call>(
        Call{Descriptor{::accept4(socket_.number(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK)}, {}});
    if (!call->socket) {
        return;
    }
    auto* const speaks = new QSocketNotifier{call->socket.number(), QSocketNotifier::Read, this};
    connect(speaks, &QSocketNotifier::activated, this, [this, call, speaks] {
        if (!hear(*call)) {
            speaks->setEnabled(false);
            speaks->deleteLater();
        }
    });
}

// Whether there is more to come.
bool InstanceSocket::hear(Call& call) {
    std::array<char, 4096> part{};
    const ssize_t length = ::recv(call.socket.number(), part.data(), part.size(), 0);
    if (length <= 0) {
        return length < 0 && (errno == EAGAIN || errno == EINTR);
    }
    call.message.append(part.data(), length);
    QStringList files;
    QDataStream message{call.message};
    message.startTransaction();
    message >> files;
    if (!message.commitTransaction()) {
        return true;
    }
    ::send(call.socket.number(), &answerText, 1, MSG_NOSIGNAL); // who does not wait for it has gone
    Q_EMIT told(files);
    return false;
}

} // namespace tessaly
