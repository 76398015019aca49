#include "sourceview/qt/MarkerLineNumberView.h"

#include "model/qt/ColorBridge.h"
#include "sourceview/MarkerShape.h"

#include <QMouseEvent>
#include <QPainterPath>

namespace tessaly {
namespace {

// A quarter of a circle, counter-clockwise where y runs upwards. The path counts angles as if y ran
// downwards.
void addCorner(QPainterPath& path, Point center, double startDegrees) {
    constexpr double radius = MarkerShape::cornerRadius;
    path.arcTo(center.x - radius, center.y - radius, 2 * radius, 2 * radius, -startDegrees, -90);
}

} // namespace

void MarkerLineNumberView::setRuleThickness(double thickness) {
    WendleLineNumberView::setRuleThickness(thickness);
    if (markerImage_ != nullptr) {
        markerImage_->setSize({thickness, MarkerShape::height});
    }
}

std::shared_ptr<RulerImage> MarkerLineNumberView::markerImageWithSize(QSizeF size) {
    if (markerImage_ == nullptr) {
        markerImage_ = std::make_shared<RulerImage>(size, drawMarkerImageIntoRep);
    }
    return markerImage_;
}

void MarkerLineNumberView::drawMarkerImageIntoRep(QPainter& painter, QSizeF size) {
    const MarkerShape shape{Size{size.width(), size.height()}};
    QPainterPath tag{{shape.tip.x, shape.tip.y}};
    tag.lineTo(shape.upperEdge.x, shape.upperEdge.y);
    addCorner(tag, shape.upperCorner, 90);
    addCorner(tag, shape.lowerCorner, 180);
    tag.lineTo(shape.lowerEdge.x, shape.lowerEdge.y);
    tag.closeSubpath();
    painter.save();
    painter.translate(0, size.height());
    painter.scale(1, -1);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(tag, toQColor(MarkerShape::fill));
    painter.strokePath(tag, QPen{toQColor(MarkerShape::stroke), MarkerShape::lineWidth});
    painter.restore();
}

void MarkerLineNumberView::mousePressEvent(QMouseEvent* event) {
    update();
    event->accept();
}

} // namespace tessaly
