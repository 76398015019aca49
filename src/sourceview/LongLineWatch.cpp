#include "sourceview/LongLineWatch.h"

#include <algorithm>

namespace tessaly {
namespace {

constexpr std::size_t limit = LongLineWatch::longestWrapped;

// The first line too long among those that hold the offsets `from` to `to`. Looks no further than the limit
// beyond them.
std::optional<std::size_t> longLineIn(std::u16string_view text, std::size_t from, std::size_t to) {
    const std::size_t earliest = from - std::min(from, limit + 1);
    const std::size_t before = text.substr(earliest, from - earliest).rfind(u'\n');
    std::size_t start = before == std::u16string_view::npos ? earliest : earliest + before + 1;
    while (start <= to) {
        const std::size_t reach = std::max(start, to) + limit + 1;
        const std::size_t end = std::min(text.substr(0, reach).find(u'\n', start), text.size());
        if (LongLineWatch::isTooLong(end - start)) {
            return start;
        }
        start = end + 1;
    }
    return std::nullopt;
}

} // namespace

void LongLineWatch::textEdited(std::u16string_view text, const TextEdit& edit) {
    if (!longLine_) {
        longLine_ = longLineIn(text, edit.position, edit.position + edit.added);
        return;
    }
    const std::size_t known = std::min(edit.mapped(*longLine_), text.size());
    longLine_ = longLineIn(text, known, known);
    if (!longLine_) {
        longLine_ = longLineIn(text, 0, text.size());
    }
}

bool LongLineWatch::hasTooLongLine(std::u16string_view text) {
    return longLineIn(text, 0, text.size()).has_value();
}

} // namespace tessaly
