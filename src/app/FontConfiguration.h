#pragma once

#include <thread>

namespace tessaly {

/// Reads the system's font configuration, which the first text needs, on the second processor while the
/// toolkit connects to the display. Sets the locale.
std::jthread loadFontConfiguration();

} // namespace tessaly
