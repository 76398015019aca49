#include "app/SingleInstance.h"

#include "foundation/DiagnosticLog.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QStandardPaths>
#include <cerrno>
#include <system_error>

namespace tessaly {
namespace {

// In milliseconds, with a copy that does not answer.
constexpr int patience = 1'700; // the start of this copy takes its time too
constexpr int pause = 100;

// In the user's private folder for sockets; short, since the path of a socket has little room.
QString pathFor(const QString& folder, const char* ending) {
    const QByteArray hash =
        QCryptographicHash::hash(folder.toUtf8(), QCryptographicHash::Sha1).toHex().first(12);
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + QStringLiteral("/tessaly-") +
           QString::fromLatin1(hash) + QString::fromLatin1(ending);
}

} // namespace

SingleInstance::SingleInstance(const QString& folder, const QStringList& files, QObject* parent)
    : QObject{parent}, lock_{pathFor(folder, ".lock")} {
    lock_.setStaleLockTime(0); // held for as long as its owner lives
    // What stops us is another copy alone, not a lock that cannot be had for another reason.
    first_ = lock_.tryLock(0) || lock_.error() != QLockFile::LockFailedError;
    const QString socketPath = pathFor(folder, ".socket");
    // A copy that does not answer is closing, or has started just now.
    const QDeadlineTimer end{patience};
    while (!first_ && !heard_ && !end.hasExpired()) {
        heard_ = InstanceSocket::tell(socketPath, files, end);
        first_ = !heard_ && lock_.tryLock(pause);
    }
    if (first_) {
        listen(socketPath);
    } else if (!heard_) {
        DiagnosticLog::write("Another copy runs but does not answer");
    }
}

void SingleInstance::listen(const QString& socketPath) {
    connect(&socket_, &InstanceSocket::told, this, &SingleInstance::startedAgain);
    // From then on a new start waits for the lock instead of asking in vain.
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, &socket_, &InstanceSocket::close);
    if (!socket_.listen(socketPath)) {
        DiagnosticLog::write("A second start will not show this window: " +
                             std::generic_category().message(errno));
    }
}

} // namespace tessaly
