#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

class QApplication;

namespace tessaly {

/// The application's delegate: ends the program when its window is closed.
class AppDelegate : public QObject {
    Q_OBJECT

  public:
    explicit AppDelegate(QApplication& application);

    /// The main window, while there is one.
    QWidget* window() const { return window_.data(); }
    void setWindow(QWidget* window) { window_ = window; }

    /// Nothing is left to do at either moment: the window sets itself up, and its parts clean up behind
    /// themselves.
    void applicationDidFinishLaunching() {}
    void applicationWillTerminate() {}

    /// Whether closing the last window ends the program: it does.
    static bool applicationShouldTerminateAfterLastWindowClosed() { return true; }

  private:
    QPointer<QWidget> window_;
};

} // namespace tessaly
