#include "canvas/NumberFormatter.h"

#include "foundation/NumberText.h"
#include "foundation/Truncation.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>

namespace tessaly {
namespace {

// What the conversion means where the number does not fit a double.
double outOfRange(std::string_view number) {
    const auto exponent = number.find_first_of("eE");
    if (exponent != std::string_view::npos) {
        return number.substr(exponent + 1).starts_with('-') ? 0.0 : std::numeric_limits<double>::max();
    }
    const bool wholePart = number.find_first_of("123456789") < number.find('.');
    return wholePart ? std::numeric_limits<double>::max() : 0.0;
}

// A text that is wholly a number, without white space and sign. The names of infinity and not-a-number are
// none.
std::optional<double> magnitude(std::string_view number, bool decimal) {
    const std::string_view digits = decimal ? "0123456789." : "0123456789";
    const auto unlike = number.find_first_not_of(digits);
    if (number.empty() || unlike == 0 || (!decimal && unlike != std::string_view::npos)) {
        return std::nullopt;
    }
    double value = 0;
    const char* const end = number.data() + number.size();
    const auto [stop, error] = std::from_chars(number.data(), end, value);
    if (error == std::errc::invalid_argument || stop != end) {
        return std::nullopt;
    }
    return error == std::errc::result_out_of_range ? outOfRange(number) : value;
}

std::optional<double> scanned(std::string_view text, bool decimal) {
    const auto start = text.find_first_not_of(" \t\n\r\v\f");
    text.remove_prefix(start == std::string_view::npos ? text.size() : start);
    const bool negative = text.starts_with('-');
    const auto number = magnitude(text.substr(negative || text.starts_with('+') ? 1 : 0), decimal);
    if (!number) {
        return std::nullopt;
    }
    const double value = negative ? -*number : *number;
    using Limits = std::numeric_limits<std::int32_t>;
    return decimal ? value : std::clamp<double>(value, Limits::min(), Limits::max());
}

} // namespace

bool NumberFormatter::isPartialStringValid(std::string_view text) const {
    return text.empty() || scanned(text, decimal_);
}

double NumberFormatter::value(std::string_view text) const {
    return scanned(text, decimal_).value_or(0.0);
}

std::string NumberFormatter::text(double value) const {
    if (!decimal_) {
        return std::to_string(truncated(value));
    }
    std::string text = fixedText(std::round(value * 10) / 10, 1); // halves go away from zero
    if (text.ends_with(".0")) {
        text.resize(text.size() - 2);
    }
    return text;
}

} // namespace tessaly
