#pragma once

#include <functional>

class QWidget;

namespace tessaly {

/// Runs `task` from the event loop once the widget has been painted: what takes time and is not in the
/// picture then does not hold it up. A widget that its children cover is never painted itself.
void afterFirstPaint(QWidget& widget, std::function<void()> task);

} // namespace tessaly
