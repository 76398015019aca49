#include "codegen/DeclarationRanges.h"

#include <algorithm>

namespace tessaly {
namespace {

// Where an offset lies once `removed` units at `position` are gone.
std::size_t afterRemoval(std::size_t offset, std::size_t position, std::size_t removed) {
    return offset <= position ? offset : std::max(position, offset - std::min(offset, removed));
}

} // namespace

void DeclarationRanges::resize(Declaration declaration, std::size_t length) {
    const std::size_t oldLength = ranges_[declaration].length;
    ranges_[declaration].length = length;
    for (const Declaration later : allDeclarations) {
        if (later > declaration) {
            ranges_[later].location = ranges_[later].location - oldLength + length;
        }
    }
}

void DeclarationRanges::follow(const TextEdit& edit) {
    const auto& [position, removed, added] = edit;
    for (const Declaration declaration : allDeclarations) {
        TextRange& range = ranges_[declaration];
        std::size_t start = afterRemoval(range.location, position, removed);
        std::size_t end = afterRemoval(range.end(), position, removed);
        if (position <= start) {
            start += added;
            end += added;
        } else if (position < end) {
            end += added;
        }
        range = {start, end - start};
    }
}

} // namespace tessaly
