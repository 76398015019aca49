#include "model/GlobalData.h"

#include <algorithm>

namespace tessaly {

GlobalData& GlobalData::sharedData() {
    static GlobalData data; // the language guards its creation against a second thread
    return data;
}

std::size_t GlobalData::stopCount() const {
    return std::min({colorMarkerPos_.size(), colorMarkerColor_.size(), colorMarkerOpacity_.size()});
}

std::optional<ColorStop> GlobalData::stopAt(std::int64_t index) const {
    if (index < 0 || static_cast<std::size_t>(index) >= stopCount()) {
        return std::nullopt;
    }
    const auto i = static_cast<std::size_t>(index);
    return ColorStop{colorMarkerPos_[i], colorMarkerColor_[i], colorMarkerOpacity_[i]};
}

} // namespace tessaly
