#include "exchange/CssNumber.h"

#include <algorithm>
#include <charconv>

namespace tessaly {
namespace {

// Larger ones serve nobody, and what is computed from these stays finite.
constexpr double largestNumber = 1e30;

// Of a number that no double can hold: 0, or the largest.
double outOfRange(std::string_view text) {
    const auto exponent = text.find_first_of("eE");
    const bool isTiny = exponent != std::string_view::npos ? text[exponent + 1] == '-' : text.find('.') < 5;
    if (isTiny) {
        return 0.0;
    }
    return text.starts_with('-') ? -largestNumber : largestNumber;
}

} // namespace

double numberOf(const CssToken& token) {
    std::string_view text = token.text;
    text.remove_suffix(token.kind == CssToken::Kind::Percentage ? 1 : token.name.size());
    text.remove_prefix(text.starts_with('+') ? 1 : 0);
    double number = 0.0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    return result.ec == std::errc::result_out_of_range ? outOfRange(text)
                                                       : std::clamp(number, -largestNumber, largestNumber);
}

} // namespace tessaly
