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
    update();
    for (const MarkerPointer& marker : markers) {
        addMarker(marker);
    }
}

void VerticalRuler::addMarker(const MarkerPointer& marker) {
    markers_.push_back(marker);
    update();
}

void VerticalRuler::removeMarker(const MarkerPointer& marker) {
    std::erase(markers_, marker);
    update();
}

void VerticalRuler::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter{this};
    drawHashMarksAndLabelsInRect(painter);
    drawMarkers(painter);
}

// cppcheck-suppress constParameter ; the images draw with it
void VerticalRuler::drawMarkers(QPainter& painter) const {
    const double top = scrollView_->visibleRect().y();
    for (const MarkerPointer& marker : markers_) {
        if (marker->image() != nullptr) {
            marker->image()->draw(painter,
                                  QPointF{0, marker->markerLocation() - top} - marker->imageOrigin());
        }
    }
}

} // namespace tessaly
