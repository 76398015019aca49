#include "foundation/NumberText.h"

#include <array>
#include <charconv>
#include <limits>

namespace tessaly {
namespace {

// The longest text is that of the largest double in fixed notation with a few decimals.
constexpr std::size_t longestText = std::numeric_limits<double>::max_exponent10 + 64;

template <typename... Arguments>
std::string textOf(Arguments... arguments) {
    std::array<char, longestText> buffer;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), arguments...);
    return {buffer.data(), result.ptr};
}

} // namespace

std::string fixedText(double value, int decimals) {
    return textOf(value, std::chars_format::fixed, decimals);
}

std::string significantText(double value, int digits) {
    return textOf(value, std::chars_format::general, digits);
}

std::string exactText(double value) {
    return textOf(value);
}

std::string hexByteText(std::uint32_t value) {
    const std::string digits = textOf(value, 16);
    return digits.size() < 2 ? '0' + digits : digits;
}

std::string percentText(double fraction) {
    std::string text = textOf(static_cast<float>(fraction * 100.0), std::chars_format::fixed);
    if (const auto point = text.find('.'); point != std::string::npos) {
        const bool wholeNumber = text[point + 1] == '0';
        text.resize(wholeNumber ? point : point + 2);
    }
    return text == "-0" ? "0" : text;
}

} // namespace tessaly
