#pragma once

#include "model/Gradient.h"

#include <memory>
#include <vector>

namespace tessaly {

/// Gradients that no list changes, so that lists share them.
using GradientList = std::vector<std::shared_ptr<const Gradient>>;

} // namespace tessaly
