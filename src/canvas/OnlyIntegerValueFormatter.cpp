#include "canvas/OnlyIntegerValueFormatter.h"

#include "foundation/Truncation.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace tessaly {

std::string OnlyIntegerValueFormatter::text(double value) const {
    return std::to_string(truncated(value));
}

std::optional<double> OnlyIntegerValueFormatter::scan(std::string_view& text) const {
    const bool signedNumber = text.starts_with('-') || text.starts_with('+');
    const bool negative = text.starts_with('-');
    std::size_t i = signedNumber ? 1 : 0;
    const std::size_t firstDigit = i;
    double number = 0;
    for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
        number = number * 10 + (text[i] - '0');
    }
    if (i == firstDigit) {
        return std::nullopt;
    }
    text.remove_prefix(i);
    using Limits = std::numeric_limits<std::int32_t>;
    return std::clamp<double>(negative ? -number : number, Limits::min(), Limits::max());
}

} // namespace tessaly
