#pragma once

#include "exchange/CssToken.h"

namespace tessaly {

/// The number of a number, a percentage or a dimension, cut to what can still be computed with.
double numberOf(const CssToken& token);

} // namespace tessaly
