#include "app/SingleInstance.h"

#include "foundation/DiagnosticLog.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QLocalSocket>
#include <QStandardPaths>

namespace tessaly {
namespace {

// In milliseconds, with a copy that does not answer.
constexpr int patience = 5'000;
constexpr int pause = 100;

// In the user's private folder for sockets; short, since the path of a socket has little room.
QString pathFor(const QString& folder, const char* ending) {
    const QByteArray hash =
        QCryptographicHash::hash(folder.toUtf8(), QCryptographicHash::Sha1).toHex().first(12);
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + QStringLiteral("/tessaly-") +
           QString::fromLatin1(hash) + QString::fromLatin1(ending);
}

constexpr char separator = '\0'; // the one character that no path has

bool tellFirst(const QString& socketPath, const QStringList& files) {
    QLocalSocket first;
    first.connectToServer(socketPath);
    if (!first.waitForConnected(patience)) {
        return false;
    }
    for (const QString& file : files) {
        first.write(file.toUtf8() + separator);
    }
    while (first.bytesToWrite() > 0 && first.waitForBytesWritten(patience)) {
    }
    return true;
}

QStringList filesIn(const QByteArray& told) {
    QStringList files;
    for (const QByteArray& file : told.split(separator)) {
        if (!file.isEmpty()) {
            files += QString::fromUtf8(file);
        }
    }
    return files;
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
    while (!first_ && !tellFirst(socketPath, files)) {
        if (end.hasExpired()) {
            DiagnosticLog::write("Another copy runs but does not answer");
            break;
        }
        first_ = lock_.tryLock(pause);
    }
    if (first_) {
        listen(socketPath);
    }
}

void SingleInstance::listen(const QString& socketPath) {
    // A crash leaves it; nobody else can own it while we have the lock.
    QLocalServer::removeServer(socketPath);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server_, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* const caller = server_.nextPendingConnection()) {
            const auto heard = [this, caller] {
                Q_EMIT startedAgain(filesIn(caller->readAll()));
                caller->deleteLater();
            };
            if (caller->state() == QLocalSocket::UnconnectedState) {
                heard();
            } else {
                connect(caller, &QLocalSocket::disconnected, this, heard);
            }
        }
    });
    // From then on a new start waits for the lock instead of asking in vain.
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, &server_, &QLocalServer::close);
    if (!server_.listen(socketPath)) {
        DiagnosticLog::write("A second start will not show this window: " +
                             server_.errorString().toStdString());
    }
}
} // namespace tessaly
