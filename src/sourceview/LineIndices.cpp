#include "sourceview/LineIndices.h"

#include <algorithm>

namespace tessaly {
namespace {

constexpr char16_t carriageReturn = u'\r';
constexpr char16_t lineFeed = u'\n';

bool isTerminator(char16_t c) {
    if (c <= carriageReturn) {
        return c == lineFeed || c == carriageReturn;
    }
    return c == u'\u0085' || c == u'\u2028' || c == u'\u2029';
}

} // namespace

LineIndices::LineIndices(std::u16string_view text) : starts_{0} {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t c = text[i];
        if (!isTerminator(c)) {
            continue;
        }
        if (c == carriageReturn && i + 1 < text.size() && text[i + 1] == lineFeed) {
            ++i;
        }
        starts_.push_back(static_cast<std::uint32_t>(i + 1));
    }
}

std::size_t LineIndices::lineNumberForCharacterIndex(std::size_t index) const {
    const auto next = std::upper_bound(starts_.begin(), starts_.end(), index);
    return static_cast<std::size_t>(next - starts_.begin()) - 1;
}

} // namespace tessaly
