#pragma once

#include "document/Incoming.h"

#include <functional>

class QWidget;

namespace tessaly {

/// Runs `reader` on a thread of its own, with its progress and a Cancel over the window, which waits
/// meanwhile. `done` then hears what was read, on the main thread; after Cancel it does not.
void readBeside(QWidget& window, const std::function<Incoming(const Progress& progress)>& reader,
                const std::function<void(const Incoming&)>& done);

} // namespace tessaly
