#pragma once

#include <cstddef>
#include <string_view>

namespace tessaly {

/// `removed` units of a text at `position` were replaced by `added` others. All count UTF-16 units.
struct TextEdit {
    std::size_t position = 0;
    std::size_t removed = 0;
    std::size_t added = 0;

    bool isNone() const { return removed == 0 && added == 0; }

    /// Where an offset lies after the edit: what stood in the replaced stretch stays as far from its start,
    /// as far as it reaches.
    std::size_t mapped(std::size_t offset) const;

    /// This edit and the one that came after it, as one.
    TextEdit followedBy(const TextEdit& next) const;

    /// What turns `before` into `after`, without the beginning and end that both have. Never cuts a
    /// surrogate pair in two.
    static TextEdit between(std::u16string_view before, std::u16string_view after);

    /// A toolkit's report of an edit, for a text that was `before` units long and is now `after`: its
    /// stretches may count the separator that ends the last line. A report that contradicts the lengths
    /// becomes an edit of the whole text.
    static TextEdit reported(const TextEdit& report, std::size_t before, std::size_t after);

    bool operator==(const TextEdit&) const = default;
};

} // namespace tessaly
