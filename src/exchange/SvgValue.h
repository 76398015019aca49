#pragma once

#include <optional>
#include <string_view>

namespace tessaly {

/// Takes blanks off the front of the text, and commas too.
void skipSeparators(std::string_view& text);

/// Takes the next word, which ends at a blank, off the front of the text.
std::optional<std::string_view> takeWord(std::string_view& text);

/// Whether that is one of the words of the text.
bool hasWord(std::string_view text, std::string_view word);

/// Takes a number off the front of the text. None: no finite one stands there, and the text stays.
std::optional<double> takeNumber(std::string_view& text);

/// A number of an attribute, which may be a share of something.
struct SvgLength {
    double value = 0.0; ///< of a percentage the hundredth part
    bool isShare = false;

    double of(double whole) const { return isShare ? value * whole : value; }
};

/// The whole text: a number, one of pixels, or a percentage.
std::optional<SvgLength> svgLength(std::string_view text);

} // namespace tessaly
