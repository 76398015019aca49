#pragma once

#include "exchange/Reading.h"

#include <optional>
#include <string_view>

namespace tessaly {

/// Every gradient of an SVG document. None when it is no well-formed XML, or has none.
std::optional<Reading> readSvgGradients(std::string_view text, const Progress& progress = {});

} // namespace tessaly
