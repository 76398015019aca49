#pragma once

#include "exchange/CssComponents.h"

namespace tessaly {

/// Whether a piece of a value is a length or a share of one, 0 included.
bool isCssLength(const CssComponent& component);

/// Whether an argument is a place in a box: "left", "20px 50%", "right 10% top 0".
bool isCssPlace(CssArgument argument);

/// Whether that place is the middle, whatever the size of the box.
bool isCssCenter(CssArgument place);

} // namespace tessaly
