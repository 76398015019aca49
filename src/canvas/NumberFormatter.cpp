#include "canvas/NumberFormatter.h"

namespace tessaly {

std::optional<double> NumberFormatter::scanned(std::string_view text) const {
    const auto start = text.find_first_not_of(" \t\n\r\v\f");
    text.remove_prefix(start == std::string_view::npos ? text.size() : start);
    const auto number = scan(text);
    return text.empty() ? number : std::nullopt;
}

} // namespace tessaly
