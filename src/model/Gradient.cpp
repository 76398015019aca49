#include "model/Gradient.h"

#include <algorithm>
#include <iterator>

namespace tessaly {

std::optional<ColorStop> Gradient::stopAt(std::int64_t index) const {
    return index >= 0 && index < std::ssize(stops_) ? std::optional{stops_[static_cast<std::size_t>(index)]}
                                                    : std::nullopt;
}

void Gradient::append(const ColorStop& stop) {
    stops_.push_back(stop);
    if (!leftOpacities_.empty()) {
        leftOpacities_.push_back(stop.opacity);
        stops_.back().opacity = leftOpacities_.front();
        leftOpacities_.erase(leftOpacities_.begin());
    }
}

std::int64_t Gradient::insertSorted(const ColorStop& stop) {
    const auto greater =
        std::ranges::find_if(stops_, [&](const ColorStop& other) { return other.position > stop.position; });
    const std::int64_t place = greater - stops_.begin();
    if (greater == stops_.end()) {
        append(stop);
    } else {
        stops_.insert(greater, stop);
    }
    return place;
}

void Gradient::remove(std::int64_t index) {
    leftOpacities_.insert(leftOpacities_.begin(), stops_.back().opacity);
    for (std::size_t i = stops_.size() - 1; i > static_cast<std::size_t>(index); --i) {
        stops_[i].opacity = stops_[i - 1].opacity;
    }
    stops_.erase(stops_.begin() + index);
}

std::int64_t Gradient::move(std::int64_t index, double position) {
    ColorStop stop = stops_[static_cast<std::size_t>(index)];
    stop.position = position;
    stops_.erase(stops_.begin() + index);
    return insertSorted(stop);
}

} // namespace tessaly
