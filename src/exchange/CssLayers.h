#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessaly {

/// What a value says besides the function at `gradient`, an offset in it, and would be seen: a phrase for
/// each kind of it. Further gradients are not told here. `shows`: what lies behind the gradient shows
/// through.
std::vector<std::string> readCssLayers(std::string_view value, std::size_t gradient, bool shows);

} // namespace tessaly
