#include "exchange/SvgValue.h"

#include <charconv>
#include <cmath>

namespace tessaly {
namespace {

constexpr std::string_view blanks = " \t\r\n\f";

} // namespace

void skipSeparators(std::string_view& text) {
    while (!text.empty() && (text.front() == ',' || blanks.find(text.front()) != std::string_view::npos)) {
        text.remove_prefix(1);
    }
}

std::string_view trimmed(std::string_view text) {
    const std::size_t begin = text.find_first_not_of(blanks);
    return begin == std::string_view::npos ? std::string_view{}
                                           : text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

std::optional<std::string_view> takeWord(std::string_view& text) {
    text = trimmed(text);
    const std::string_view word = text.substr(0, text.find_first_of(blanks));
    text.remove_prefix(word.size());
    return word.empty() ? std::nullopt : std::optional{word};
}

std::optional<double> takeNumber(std::string_view& text) {
    const bool hasPlus = text.starts_with('+') && !text.starts_with("+-");
    const std::string_view number = text.substr(hasPlus ? 1 : 0);
    double value = 0.0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error != std::errc{} || !std::isfinite(value)) {
        return std::nullopt;
    }
    text = number.substr(static_cast<std::size_t>(end - number.data()));
    return value;
}

std::optional<SvgLength> svgLength(std::string_view text) {
    text = trimmed(text);
    const std::optional<double> number = takeNumber(text);
    if (!number || (!text.empty() && text != "px" && text != "%")) {
        return std::nullopt;
    }
    const bool isShare = text == "%";
    return SvgLength{isShare ? *number / 100.0 : *number, isShare};
}

} // namespace tessaly
