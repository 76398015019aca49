#pragma once

#include "foundation/Descriptor.h"

#include <QObject>
#include <QSocketNotifier>
#include <QString>
#include <QStringList>
#include <memory>

class QDeadlineTimer;

namespace tessaly {

/// The socket on which the copy that runs hears of later starts, and answers them. Not the toolkit's own,
/// which would have every start load what a program needs to speak with the network.
class InstanceSocket : public QObject {
    Q_OBJECT

  public:
    explicit InstanceSocket(QObject* parent = nullptr) : QObject{parent} {}
    InstanceSocket(const InstanceSocket&) = delete;
    InstanceSocket& operator=(const InstanceSocket&) = delete;
    ~InstanceSocket() override;

    /// Tells the copy that listens at `path` what files to open. True when it has answered by `end`, which it
    /// does from its event loop.
    static bool tell(const QString& path, const QStringList& files, const QDeadlineTimer& end);

    /// Takes the place of a socket that a crash has left there; for this user alone. False, with the reason
    /// in `errno`, where that cannot be done.
    bool listen(const QString& path);

    /// No later start is heard.
    void close();

  Q_SIGNALS:
    void told(const QStringList& files);

  private:
    struct Call;

    void answer();
    bool hear(Call& call);

    QString path_; ///< empty: none is there
    Descriptor socket_;
    std::unique_ptr<QSocketNotifier> calls_;
};

} // namespace tessaly
