#include "canvas/OnlyDecimalValueFormatter.h"

#include "foundation/NumberText.h"

#include <charconv>
#include <cmath>
#include <limits>

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

} // namespace

std::string OnlyDecimalValueFormatter::text(double value) const {
    std::string text = fixedText(std::round(value * 10) / 10, 1); // halves go away from zero
    if (text.ends_with(".0")) {
        text.resize(text.size() - 2);
    }
    return text;
}

std::optional<double> OnlyDecimalValueFormatter::scan(std::string_view& text) const {
    const bool negative = text.starts_with('-');
    std::string_view number = text.substr(negative || text.starts_with('+') ? 1 : 0);
    if (number.empty() || number.find_first_of("0123456789.") != 0) {
        return std::nullopt; // the names of infinity and not-a-number are no numbers here
    }
    double value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error == std::errc::invalid_argument) {
        return std::nullopt;
    }
    const auto length = static_cast<std::size_t>(end - number.data());
    if (error == std::errc::result_out_of_range) {
        value = outOfRange(number.substr(0, length));
    }
    text = number.substr(length);
    return negative ? -value : value;
}

} // namespace tessaly
