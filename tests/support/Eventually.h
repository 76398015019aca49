#pragma once

#include <QEventLoop>
#include <QTimer>
#include <functional>

namespace tessaly {

/// Runs the event loop until `condition` holds; false when that took longer than twenty seconds. Unlike the
/// toolkit's own wait it never sleeps between events, of which the browser engine handles hundreds for one
/// page.
inline bool eventually(const std::function<bool()>& condition) {
    QEventLoop loop;
    QTimer poll;
    QTimer::singleShot(20'000, &loop, [&] { loop.exit(1); });
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        if (condition()) {
            loop.exit(0);
        }
    });
    poll.start(20);
    return loop.exec() == 0;
}

} // namespace tessaly
