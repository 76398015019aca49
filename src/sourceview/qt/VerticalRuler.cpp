#include "sourceview/qt/VerticalRuler.h"

#include <cmath>

namespace tessaly {

void VerticalRuler::setRuleThickness(double thickness) {
    ruleThickness_ = thickness;
    scrollView_->setVerticalRuler(this, static_cast<int>(std::ceil(requiredThickness())));
    update();
}

void VerticalRuler::setMarkers(const std::vector<MarkerPointer>& markers) {
    markers_.clear();
    for (const MarkerPointer& marker : markers) {
        addMarker(marker);
    }
}

} // namespace tessaly
