#pragma once

#include "app/InstanceSocket.h"

#include <QLockFile>
#include <QObject>
#include <QStringList>

namespace tessaly {

/// Keeps a second copy of the program from working on the same presets: the second asks the first to show
/// itself.
class SingleInstance : public QObject {
    Q_OBJECT

  public:
    /// `folder` is what must not be worked on twice. A copy that was killed does not count, and one that is
    /// closing is waited for, for two seconds at most. The one that runs is handed the paths of `files`.
    explicit SingleInstance(const QString& folder, const QStringList& files = {}, QObject* parent = nullptr);

    /// False when another copy runs.
    bool isFirst() const { return first_; }

    /// Whether that copy has answered.
    bool wasHeard() const { return heard_; }

  Q_SIGNALS:
    /// Another copy was started, and ends in favour of this one; with files to open.
    void startedAgain(const QStringList& files);

  private:
    void listen(const QString& socketPath);

    QLockFile lock_;
    InstanceSocket socket_;
    bool first_;
    bool heard_ = false;
};

} // namespace tessaly
