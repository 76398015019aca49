#include "exchange/SvgValue.h"

#include "exchange/CssCharacter.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace tessaly {
void skipSeparators(std::string_view& text) {
    while (!text.empty() && (text.front() == ',' || isBlank(text.front()))) {
        text.remove_prefix(1);
    }
}

std::optional<std::string_view> takeWord(std::string_view& text) {
    text = trimmed(text);
    const auto end = std::ranges::find_if(text, isBlank<char>);
    const std::string_view word = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(word.size());
    return word.empty() ? std::nullopt : std::optional{word};
}

bool hasWord(std::string_view text, std::string_view word) {
    while (const auto taken = takeWord(text)) {
        if (*taken == word) {
            return true;
        }
    }
    return false;
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
