#include "app/QuitOnSignal.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace tessaly {
namespace {

constexpr std::array endingSignals{SIGINT, SIGTERM, SIGHUP};

// A handler may do next to nothing, so it wakes the event loop through a pipe.
std::array<int, 2> wakePipe{-1, -1};

void wake(int /*signal*/) {
    const char byte = 0;
    [[maybe_unused]] const ssize_t written =
        ::write(wakePipe[1], &byte, 1); // a full pipe has woken the loop already
}

} // namespace

QuitOnSignal::QuitOnSignal(QObject* parent) : QObject{parent} {
    if (::pipe2(wakePipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return; // the signals then end the process at once, as they do without us
    }
    notifier_ = new QSocketNotifier{wakePipe[0], QSocketNotifier::Read, this};
    connect(notifier_, &QSocketNotifier::activated, this, [this] {
        notifier_->setEnabled(false);
        QCoreApplication::exit(); // asks no window: whoever sent the signal wants the program to end
    });
    for (const int signal : endingSignals) {
        std::signal(signal, wake);
    }
}

QuitOnSignal::~QuitOnSignal() {
    if (notifier_ == nullptr) {
        return;
    }
    for (const int signal : endingSignals) {
        std::signal(signal, SIG_DFL);
    }
    for (const int end : wakePipe) {
        ::close(end);
    }
}

} // namespace tessaly
