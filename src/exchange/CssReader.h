#pragma once

#include "exchange/Reading.h"

#include <string_view>

namespace tessaly {

/// Every gradient of a CSS text: a value, a declaration, a rule, a stylesheet or a page.
Reading readCssGradients(std::string_view text, const Progress& progress = {});

} // namespace tessaly
