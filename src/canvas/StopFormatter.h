#pragma once

#include "canvas/NumberFormatter.h"
#include "canvas/StopValue.h"

namespace tessaly {

/// Judges what is typed for a value, in its field and behind it; lives as long as the program.
const NumberFormatter& formatterOf(StopValue value);

} // namespace tessaly
