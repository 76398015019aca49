#include "app/QuitOnSignal.h"

#include <QCoreApplication>
#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <unistd.h>

namespace tessaly {
namespace {

// A handler may do next to nothing, so it wakes the event loop through a pipe.
std::array<int, 2> wakePipe{-1, -1};

void wake(int /*signal*/) {
    const int error = errno; // whoever was interrupted may be about to look at it
    const char byte = 0;
    [[maybe_unused]] const ssize_t written =
        ::write(wakePipe[1], &byte, 1); // a full pipe has woken the loop already
    errno = error;
}

} // namespace

QuitOnSignal::QuitOnSignal() {
    if (::pipe2(wakePipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return; // the signals then end the process at once, as they do without us
    }
    notifier_ = std::make_unique<QSocketNotifier>(wakePipe[0], QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this] {
        notifier_->setEnabled(false);
        QCoreApplication::exit(); // asks no window: whoever sent the signal wants the program to end
    });
    for (std::size_t i = 0; i < endingSignals.size(); ++i) {
        before_[i] = std::signal(endingSignals[i], wake);
        if (before_[i] == SIG_IGN) {
            std::signal(endingSignals[i], SIG_IGN); // whoever started us wants us to outlive it
        }
    }
}

QuitOnSignal::~QuitOnSignal() {
    if (notifier_ == nullptr) {
        return;
    }
    for (std::size_t i = 0; i < endingSignals.size(); ++i) {
        std::signal(endingSignals[i], before_[i]);
    }
    for (const int end : wakePipe) {
        ::close(end);
    }
}

} // namespace tessaly
