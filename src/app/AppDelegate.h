#pragma once

#include <QObject>

class QApplication;

namespace tessaly {

/// The application's delegate: ends the program when its window is closed.
class AppDelegate : public QObject {
    Q_OBJECT

  public:
    explicit AppDelegate(QApplication& application);

    /// Whether closing the last window ends the program: it does.
    static bool applicationShouldTerminateAfterLastWindowClosed() { return true; }
};

} // namespace tessaly
