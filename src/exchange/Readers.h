#pragma once

#include "exchange/Reading.h"

#include <string_view>

namespace tessaly {

/// Every gradient of a text of any kind: those of its CSS, then those of SVG, in a document of its own, in a
/// page or by themselves. UTF-8, UTF-16 with a byte-order mark, or bytes of an encoding that has ASCII in it.
Reading readGradients(std::string_view text, const Progress& progress = {});

} // namespace tessaly
