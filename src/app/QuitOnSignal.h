#pragma once

#include <QObject>
#include <array>
#include <csignal>

class QSocketNotifier;

namespace tessaly {

/// Ends the event loop in order when the process is asked to end by a signal (a terminal's Ctrl+C, a session
/// that closes), so that nothing is left behind. One object per process.
class QuitOnSignal : public QObject {
    Q_OBJECT

  public:
    explicit QuitOnSignal(QObject* parent = nullptr);
    QuitOnSignal(const QuitOnSignal&) = delete;
    QuitOnSignal& operator=(const QuitOnSignal&) = delete;
    ~QuitOnSignal() override;

  private:
    static constexpr std::array endingSignals{SIGINT, SIGTERM, SIGHUP};

    std::array<void (*)(int), endingSignals.size()> before_{};
    QSocketNotifier* notifier_ = nullptr;
};

} // namespace tessaly
