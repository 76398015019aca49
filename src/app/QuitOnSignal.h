#pragma once

#include <QSocketNotifier>
#include <array>
#include <csignal>
#include <memory>

namespace tessaly {

/// Ends the event loop in order when the process is asked to end by a signal (a terminal's Ctrl+C, a session
/// that closes), so that nothing is left behind. One object per process.
class QuitOnSignal {
  public:
    QuitOnSignal();
    QuitOnSignal(const QuitOnSignal&) = delete;
    QuitOnSignal& operator=(const QuitOnSignal&) = delete;
    ~QuitOnSignal();

  private:
    static constexpr std::array endingSignals{SIGINT, SIGTERM, SIGHUP};

    std::array<void (*)(int), endingSignals.size()> before_{};
    std::unique_ptr<QSocketNotifier> notifier_; ///< none where there is no pipe
};

} // namespace tessaly
