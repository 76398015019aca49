#include "foundation/TextEdit.h"

#include "foundation/Utf16.h"

#include <algorithm>

namespace tessaly {
namespace {

std::size_t commonStart(std::u16string_view a, std::u16string_view b) {
    const auto [endA, endB] = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    auto length = static_cast<std::size_t>(endA - a.begin());
    if (length > 0 && isHighSurrogate(a[length - 1])) {
        --length;
    }
    return length;
}

std::size_t commonEnd(std::u16string_view a, std::u16string_view b) {
    const auto [endA, endB] = std::mismatch(a.rbegin(), a.rend(), b.rbegin(), b.rend());
    auto length = static_cast<std::size_t>(endA - a.rbegin());
    if (length > 0 && isLowSurrogate(a[a.size() - length])) {
        --length;
    }
    return length;
}

} // namespace

std::size_t TextEdit::mapped(std::size_t offset) const {
    if (offset <= position) {
        return offset;
    }
    if (offset < position + removed) {
        return std::min(offset, position + added);
    }
    return offset - removed + added;
}

TextEdit TextEdit::followedBy(const TextEdit& next) const {
    const std::size_t start = std::min(position, next.position);
    const std::size_t end = std::max(position + added, next.position + next.removed); // between the two
    return {start, end - added + removed - start, end - next.removed + next.added - start};
}

TextEdit TextEdit::between(std::u16string_view before, std::u16string_view after) {
    if (before == after) {
        return {};
    }
    const std::size_t start = commonStart(before, after);
    const std::size_t end = commonEnd(before.substr(start), after.substr(start));
    return {start, before.size() - start - end, after.size() - start - end};
}

TextEdit TextEdit::reported(const TextEdit& report, std::size_t before, std::size_t after) {
    const std::size_t position = std::min({report.position, before, after});
    const TextEdit edit{position, std::min(report.removed, before - position),
                        std::min(report.added, after - position)};
    return before - edit.removed + edit.added == after ? edit : TextEdit{0, before, after};
}

} // namespace tessaly
