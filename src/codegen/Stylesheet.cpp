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

// Where an offset lies once `removed` units at `position` are gone.
std::size_t afterRemoval(std::size_t offset, std::size_t position, std::size_t removed) {
    return offset <= position ? offset : std::max(position, offset - std::min(offset, removed));
}

// What appears at an edge of a declaration is outside of it; what is cut out of one, or typed into it,
// changes its length.
TextRange followed(TextRange range, const TextEdit& edit) {
    std::size_t start = afterRemoval(range.location, edit.position, edit.removed);
    std::size_t end = afterRemoval(range.end(), edit.position, edit.removed);
    if (edit.position <= start) {
        start += edit.added;
        end += edit.added;
    } else if (edit.position < end) {
        end += edit.added;
    }
    return {start, end - start};
}

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

} // namespace

void Stylesheet::insertCSS3Code(const Gradient& gradient, std::int64_t notation) {
    const std::string text = laidOut(gradient, notation);
    view_.replaceCharacters({0, view_.text().size()}, text);
    DiagnosticLog::write("backgroundColorOldText: " + texts_[Declaration::Old]);
    written(gradient, notation);
}

void Stylesheet::writeAnew(const Gradient& gradient, std::int64_t notation) {
    view_.typeOver(stylesheetText(declarationTexts(gradient, notation)));
    laidOut(gradient, notation); // once what is typed has been followed
    written_ = Written{gradient, notation, view_.text().size()};
    remember(shownText()); // and the one before, for an undo
}

// Of the whole text, which is answered.
std::string Stylesheet::laidOut(const Gradient& gradient, std::int64_t notation) {
    texts_ = declarationTexts(gradient, notation);
    std::size_t location = stylesheetOpening.size();
    for (const Declaration declaration : allDeclarations) {
        ranges_[declaration] = {location, texts_[declaration].size()};
        location = ranges_[declaration].end();
    }
    return stylesheetText(texts_);
}

bool Stylesheet::update(const Gradient& gradient, std::int64_t notation) {
    if (written_ && written_->notation == notation && written_->length == view_.text().size() &&
        written_->gradient == gradient) {
        return false;
    }
    texts_ = declarationTexts(gradient, notation);
    std::size_t removed = 0; // in front of the declaration that is rewritten
    std::size_t added = 0;
    for (const Declaration declaration : allDeclarations) {
        const std::string& text = texts_[declaration];
        TextRange& range = ranges_[declaration];
        // The recorded range is cut to the text, whatever happened to it behind our back.
        range = within({range.location - removed + added, range.length}, view_.text().size());
        view_.replaceCharacters(range, text);
        removed += range.length;
        added += text.size();
        range.length = text.size();
    }
    written(gradient, notation);
    return true;
}

void Stylesheet::written(const Gradient& gradient, std::int64_t notation) {
    written_ = Written{gradient, notation, view_.text().size()};
    knownTexts_.clear();
    remember(shownText());
}

Stylesheet::TextKey Stylesheet::shownText() const {
    const std::u16string_view text = view_.text();
    return {std::hash<std::u16string_view>{}(text), text.size()};
}

void Stylesheet::remember(const TextKey& text) {
    const auto known = std::ranges::find(knownTexts_, text, &KnownText::key);
    if (known != knownTexts_.end()) {
        known->ranges = ranges_;
        return;
    }
    knownTexts_.push_back({text, ranges_});
    if (knownTexts_.size() > mostKnownTexts) {
        knownTexts_.pop_front();
    }
}

void Stylesheet::edited(const TextEdit& edit) {
    written_.reset();
    const std::u16string_view text = view_.text();
    const DeclarationRanges before = ranges_;
    for (const Declaration declaration : allDeclarations) {
        ranges_[declaration] = followed(before[declaration], edit);
    }
    const TextKey shown = shownText();
    const auto known = std::ranges::find(knownTexts_, shown, &KnownText::key);
    if (known != knownTexts_.end()) {
        ranges_ = known->ranges; // an undo or a redo has brought the text back
        return;
    }
    if (edit.added > 0) {
        if (edit.removed == 0 && text[edit.position] == u'\n') {
            keepLineFeedsApart(before, edit.position);
        }
        findDeclarations(before, edit);
    }
    remember(shown);
}

// A line feed typed at the end of a declaration's last line, before the one that ends it, takes its place:
// what is typed next stands below the declaration and not in it.
void Stylesheet::keepLineFeedsApart(const DeclarationRanges& before, std::size_t typedAt) {
    for (const Declaration declaration : allDeclarations) {
        if (before[declaration].length > 0 && before[declaration].end() == typedAt + 1) {
            ranges_[declaration] = before[declaration];
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
        ranges_[declaration] = found(declaration, before[declaration], edit, {from, limit - from});
        from = ranges_[declaration].end();
    }
}

// Where a touched declaration stands now, in the room between its neighbours.
TextRange Stylesheet::found(Declaration declaration, const TextRange& before, const TextEdit& edit,
                            TextRange room) const {
    const std::u16string own{texts_[declaration].begin(), texts_[declaration].end()};
    const TextRange likely = startingFrom(ranges_[declaration], room.location);
    const bool wasInside = edit.position < before.location && before.location < edit.position + edit.removed;
    // The edit can have moved only what now stands in it or reaches into it.
    const std::size_t start = std::max(room.location, edit.position - std::min(edit.position, own.size()));
    const std::size_t end = std::min(room.end(), edit.position + edit.added + own.size());
    const TextRange found = find(own, view_.text().substr(0, end),
                                 std::max(wasInside ? before.location : likely.location, start), start);
    return found.length > 0 ? found : likely;
}

} // namespace tessaly
