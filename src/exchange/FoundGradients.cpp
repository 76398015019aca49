#include "exchange/FoundGradients.h"

#include "exchange/CssName.h"

#include <algorithm>
#include <array>

namespace tessaly {
namespace {

// What all properties are called that set the same picture.
std::string pictureOf(std::string_view written, CssForm form) {
    constexpr std::array<std::string_view, 4> prefixes{"-webkit-", "-moz-", "-o-", "-ms-"};
    constexpr std::array<std::string_view, 2> suffixes{"-source", "-image"};
    if (form == CssForm::Filter) {
        return "background";
    }
    if (written.starts_with("--")) {
        return std::string{written};
    }
    const std::string name = cssName(written);
    std::string_view picture = name;
    for (const std::string_view prefix : prefixes) {
        picture.remove_prefix(picture.starts_with(prefix) ? prefix.size() : 0);
    }
    for (const std::string_view suffix : suffixes) {
        picture.remove_suffix(picture.ends_with(suffix) ? suffix.size() : 0);
    }
    return std::string{picture};
}

} // namespace

bool FoundGradients::add(RuleGradients& rule, std::string_view property, CssForm form, FoundGradient found) {
    const auto [place, isNew] = rule.try_emplace(pictureOf(property, form), found_.size());
    if (isNew) {
        return append(form, std::move(found));
    }
    Entry& entry = found_[place->second];
    if (form <= entry.form) { // of one form the later holds
        entry = {form, std::move(found)};
    }
    return true;
}

bool FoundGradients::add(FoundGradient found) {
    return append(CssForm::Standard, std::move(found));
}

bool FoundGradients::append(CssForm form, FoundGradient found) {
    const bool fits = found_.size() < mostGradients;
    if (fits) {
        found_.push_back({form, std::move(found)});
    } else {
        setIncomplete();
    }
    return fits;
}

Reading FoundGradients::taken() && {
    Reading reading{{}, isComplete_};
    reading.gradients.reserve(found_.size());
    std::ranges::transform(found_, std::back_inserter(reading.gradients),
                           [](Entry& entry) { return std::move(entry.found); });
    return reading;
}

} // namespace tessaly
