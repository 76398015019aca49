#include "exchange/FoundGradients.h"

#include "exchange/CssName.h"

#include <array>

namespace tessaly {
namespace {

// What all properties are called that set the same picture.
std::string pictureOf(std::string_view written, CssForm form) {
    constexpr std::array<std::string_view, 2> suffixes{"-source", "-image"};
    if (form == CssForm::Filter) {
        return "background";
    }
    if (written.starts_with("--")) {
        return std::string{written};
    }
    const std::string name = cssName(written);
    std::string_view picture = name;
    takeBrowserPrefix(picture);
    for (const std::string_view suffix : suffixes) {
        picture.remove_suffix(picture.ends_with(suffix) ? suffix.size() : 0);
    }
    return std::string{picture};
}

} // namespace

bool FoundGradients::add(RuleGradients& rule, std::string_view property, SeenGradient&& seen) {
    const auto [place, isNew] = rule.try_emplace(pictureOf(property, seen.form), found_.size());
    if (isNew) {
        return add(std::move(seen));
    }
    SeenGradient& other = found_[place->second];
    const bool isNearer = seen.form <= other.form; // of one form the later holds
    if (seen.canBeTaken() && (isNearer || !other.canBeTaken())) {
        other = std::move(seen);
    }
    return true;
}

bool FoundGradients::add(SeenGradient&& seen) {
    const bool fits = found_.size() < mostGradients;
    if (fits) {
        found_.push_back(std::move(seen));
    } else {
        setIncomplete();
    }
    return fits;
}

Reading FoundGradients::taken() && {
    Reading reading;
    reading.complete = isComplete_;
    reading.gradients.reserve(found_.size());
    for (SeenGradient& seen : found_) {
        if (seen.canBeTaken()) {
            reading.gradients.push_back(std::move(seen.found));
        } else {
            reading.leftOut += 1;
            reading.reason = reading.reason.empty() ? seen.reason : reading.reason;
        }
    }
    return reading;
}

} // namespace tessaly
