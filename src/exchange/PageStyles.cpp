#include "exchange/PageStyles.h"

#include "exchange/CharacterReferences.h"
#include "exchange/CssCharacter.h"
#include "exchange/CssFinder.h"
#include "exchange/CssName.h"

#include <algorithm>
#include <array>

namespace tessaly {
namespace {

// Elements whose content is no markup.
constexpr std::array<std::string_view, 7> rawElements{"style", "script", "textarea", "title",
                                                      "xmp",   "iframe", "noembed"};

bool endsTagName(char c) {
    return isBlank(c) || c == '/' || c == '>';
}

} // namespace

bool PageStyles::isPage(std::string_view text) {
    constexpr std::string_view comment = "<!--"; // a stylesheet may stand within one
    for (text = trimmed(text); text.starts_with(comment); text = trimmed(text)) {
        const std::size_t end = text.find("-->");
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 3);
    }
    return text.starts_with('<');
}

void PageStyles::run() {
    bool goesOn = true;
    while (goesOn) {
        place_ = std::min(page_.find('<', place_), page_.size());
        goesOn = place_ < page_.size() && progress_.reach(place_) && readTag();
    }
}

bool PageStyles::readTag() {
    if (page_.substr(place_, 4) == "<!--") {
        place_ += 2; // "<!-->" is a whole one
        readUntil("-->");
        return true;
    }
    ++place_;
    if (!isLetter(at(place_))) {
        return true;
    }
    const std::string_view element = readName();
    while (place_ < page_.size() && at(place_) != '>') {
        if (!readAttribute()) {
            return false;
        }
    }
    place_ = std::min(place_ + 1, page_.size());
    return readContent(element);
}

std::string_view PageStyles::readName() {
    const std::size_t begin = place_;
    while (place_ < page_.size() && !endsTagName(page_[place_]) &&
           (place_ == begin || page_[place_] != '=')) {
        ++place_;
    }
    return page_.substr(begin, place_ - begin);
}

void PageStyles::passBlanks() {
    while (isBlank(at(place_))) {
        ++place_;
    }
}

std::string_view PageStyles::readUntil(std::string_view end) {
    const auto found = std::min(page_.find(end, place_), page_.size());
    const std::string_view content = page_.substr(place_, found - place_);
    place_ = std::min(found + end.size(), page_.size());
    return content;
}

std::string_view PageStyles::readAttributeValue() {
    if (isQuote(at(place_))) {
        ++place_;
        return readUntil(page_.substr(place_ - 1, 1));
    }
    const std::size_t begin = place_;
    while (place_ < page_.size() && !isBlank(page_[place_]) && page_[place_] != '>') {
        ++place_;
    }
    return page_.substr(begin, place_ - begin);
}

bool PageStyles::readAttribute() {
    while (isBlank(at(place_)) || at(place_) == '/') {
        ++place_;
    }
    if (place_ >= page_.size() || at(place_) == '>') {
        return true;
    }
    const std::string_view name = readName();
    passBlanks();
    if (at(place_) != '=') {
        return true;
    }
    ++place_;
    passBlanks();
    const std::size_t offset = place_;
    const std::string_view value = readAttributeValue();
    if (!isCssName(name, "style")) {
        return true;
    }
    const std::string style = withoutCharacterReferences(value);
    return CssFinder{style, found_, progress_, offset}.run();
}

// What stands in an element without markup, up to the tag that closes it.
bool PageStyles::readContent(std::string_view element) {
    const auto is = [&](std::string_view name) { return isCssName(element, name); };
    if (std::ranges::none_of(rawElements, is)) {
        return true;
    }
    const std::size_t begin = place_;
    std::size_t end = begin;
    for (;; end += 2) {
        end = std::min(page_.find("</", end), page_.size());
        const std::size_t behind = end + 2 + element.size();
        if (end == page_.size() ||
            (behind <= page_.size() && isCssName(page_.substr(end + 2, element.size()), cssName(element)) &&
             (behind == page_.size() || endsTagName(page_[behind])))) {
            break;
        }
    }
    place_ = end;
    return !is("style") || CssFinder{page_.substr(begin, end - begin), found_, progress_, begin}.run();
}

} // namespace tessaly
