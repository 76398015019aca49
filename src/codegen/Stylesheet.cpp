#include "codegen/Stylesheet.h"

#include "codegen/CodeText.h"
#include "codegen/StylesheetText.h"
#include "foundation/DiagnosticLog.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <span>

namespace tessaly {
namespace {

TextRange within(TextRange range, std::size_t textLength) {
    const std::size_t location = std::min(range.location, textLength);
    return {location, std::min(range.length, textLength - location)};
}

TextRange startingFrom(TextRange range, std::size_t location) {
    const std::size_t start = std::max(range.location, location);
    return {start, std::max(range.end(), start) - start};
}

// Where `wanted` stands between `from` and the end of `text`, as near to `likely` as can be; nowhere is an
// empty range. The user may have written the same elsewhere.
TextRange find(const std::u16string& wanted, std::u16string_view text, std::size_t likely, std::size_t from) {
    constexpr std::size_t npos = std::u16string_view::npos;
    const std::size_t after = text.find(wanted, likely);
    const std::size_t before = text.rfind(wanted, likely);
    const bool isBefore = before != npos && before >= from && likely - before < after - likely;
    const std::size_t found = isBefore ? before : after;
    return found == npos ? TextRange{} : TextRange{found, wanted.size()};
}

constexpr std::hash<std::u16string_view> hashOf;

} // namespace

void Stylesheet::insertCSS3Code(const Gradient& gradient, std::int64_t notation) {
    texts_ = declarationTexts(gradient, notation);
    view_.replaceCharacters({0, view_.text().size()}, stylesheetText(texts_));
    DiagnosticLog::write("backgroundColorOldText: " + texts_[Declaration::Old]);
    std::size_t location = stylesheetOpening.size();
    for (const Declaration declaration : allDeclarations) {
        ranges_.place(declaration, {location, texts_[declaration].size()});
        location = ranges_[declaration].end();
    }
    written(gradient, notation);
}

bool Stylesheet::update(const Gradient& gradient, std::int64_t notation) {
    if (written_ == Written{gradient, notation, view_.text().size()}) {
        return false;
    }
    texts_ = declarationTexts(gradient, notation);
    for (const Declaration declaration : allDeclarations) {
        // The recorded range is cut to the text, whatever happened to it behind our back.
        const TextRange range = within(ranges_[declaration], view_.text().size());
        ranges_.place(declaration, range);
        view_.replaceCharacters(range, texts_[declaration]);
        ranges_.resize(declaration, texts_[declaration].size());
    }
    written(gradient, notation);
    return true;
}

void Stylesheet::written(const Gradient& gradient, std::int64_t notation) {
    written_ = Written{gradient, notation, view_.text().size()};
    rangesOfTexts_.clear();
    rangesOfTexts_.emplace(hashOf(view_.text()), ranges_);
}

void Stylesheet::edited(const TextEdit& edit) {
    written_.reset();
    const std::u16string_view text = view_.text();
    const DeclarationRanges before = ranges_;
    ranges_.follow(edit);
    const auto [known, isNew] = rangesOfTexts_.try_emplace(hashOf(text), ranges_);
    if (!isNew) {
        ranges_ = known->second; // an undo or a redo has brought the text back
        return;
    }
    if (edit.added > 0) {
        if (edit.removed == 0 && text[edit.position] == u'\n') {
            keepLineFeedsApart(before, edit.position);
        }
        findDeclarations(before, edit);
        known->second = ranges_;
    }
}

// A line feed typed at the end of a declaration's last line, before the one that ends it, takes its place:
// what is typed next stands below the declaration and not in it.
void Stylesheet::keepLineFeedsApart(const DeclarationRanges& before, std::size_t typedAt) {
    for (const Declaration declaration : allDeclarations) {
        if (before[declaration].length > 0 && before[declaration].end() == typedAt + 1) {
            ranges_.place(declaration, before[declaration]);
        }
    }
}

// Text dragged elsewhere is reported as one edit of all between, and several undone steps may be: a
// declaration that the edit touched and that stands unchanged nearby keeps its place there.
void Stylesheet::findDeclarations(const DeclarationRanges& before, const TextEdit& edit) {
    const auto touched = [&](Declaration declaration) {
        const TextRange& old = before[declaration];
        return old.location <= edit.position + edit.removed && edit.position <= old.end();
    };
    const auto first = std::find_if(allDeclarations.begin(), allDeclarations.end(), touched);
    const auto last = std::find_if_not(first, allDeclarations.end(), touched);
    if (first == last) {
        return;
    }
    const std::size_t limit = last == allDeclarations.end() ? view_.text().size() : ranges_[*last].location;
    std::size_t from = first == allDeclarations.begin() ? 0 : ranges_[*std::prev(first)].end();
    for (const Declaration declaration : std::span{first, last}) {
        ranges_.place(declaration, found(declaration, before[declaration], edit, {from, limit - from}));
        from = ranges_[declaration].end();
    }
}

// Where a touched declaration stands now, in the room between its neighbours.
TextRange Stylesheet::found(Declaration declaration, const TextRange& before, const TextEdit& edit,
                            TextRange room) const {
    const std::u16string own{texts_[declaration].begin(), texts_[declaration].end()};
    const TextRange followed = startingFrom(ranges_[declaration], room.location);
    const bool wasInside = edit.position < before.location && before.location < edit.position + edit.removed;
    // The edit can have moved only what now stands in it or reaches into it.
    const std::size_t start = std::max(room.location, edit.position - std::min(edit.position, own.size()));
    const std::size_t end = std::min(room.end(), edit.position + edit.added + own.size());
    const TextRange found = find(own, view_.text().substr(0, end),
                                 std::max(wasInside ? before.location : followed.location, start), start);
    return found.length > 0 ? found : followed;
}

} // namespace tessaly
