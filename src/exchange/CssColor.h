#pragma once

#include "model/Color.h"

#include <optional>
#include <string_view>

namespace tessaly {

struct ReadColor {
    Color color;          ///< opaque
    double alpha = 1.0;   ///< 0.0 ... 1.0
    bool clipped = false; ///< was outside sRGB

    bool operator==(const ReadColor&) const = default;
};

/// The colour that the whole text is, in any syntax of CSS Color 4; blanks and comments around it are
/// allowed. None: it is no colour.
std::optional<ReadColor> readCssColor(std::string_view text);

/// The same of a text as people copy it: also with a semicolon, or as a declaration, "color: #fff;".
std::optional<ReadColor> readCopiedColor(std::string_view text);

} // namespace tessaly
