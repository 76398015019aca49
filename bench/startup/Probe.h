#pragma once

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <unistd.h>

namespace tessaly {

/// Runs the event loop until the window has been painted, prints the milliseconds since `startedAt`
/// (nanoseconds of the system clock, as text) and the resident memory in KiB, and ends.
class Probe : public QObject {
  public:
    Probe(QWidget& window, const char* startedAt) : startedAt_{startedAt} { window.installEventFilter(this); }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            QTimer::singleShot(0, this, &Probe::report); // by then the picture is with the display
        }
        return false;
    }

  private:
    void report() {
        const auto now = std::chrono::system_clock::now().time_since_epoch();
        const double nanoseconds =
            std::chrono::duration<double, std::nano>{now}.count() - std::stod(startedAt_);
        std::ifstream memory{"/proc/self/statm"};
        long all = 0;
        long resident = 0;
        memory >> all >> resident;
        std::printf("%.1f %ld\n", nanoseconds / 1e6, resident * (::sysconf(_SC_PAGESIZE) / 1024));
        QApplication::quit();
    }

    std::string startedAt_;
};

} // namespace tessaly
