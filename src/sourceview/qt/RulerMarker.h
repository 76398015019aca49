#pragma once

#include "sourceview/qt/RulerImage.h"

#include <QPointF>
#include <memory>
#include <utility>

namespace tessaly {

class VerticalRuler;

/// An image at a place of a ruler.
class RulerMarker {
  public:
    /// `location` runs along the ruler, in points of the text that it is beside, downwards. `imageOrigin` is
    /// the point of the image that comes there, at the ruler's left edge. The ruler is not owned.
    RulerMarker(VerticalRuler* ruler, double location, std::shared_ptr<RulerImage> image, QPointF imageOrigin)
        : ruler_{ruler}, markerLocation_{location}, image_{std::move(image)}, imageOrigin_{imageOrigin} {}
    virtual ~RulerMarker() = default;

    VerticalRuler* ruler() const { return ruler_; }
    double markerLocation() const { return markerLocation_; }
    const std::shared_ptr<RulerImage>& image() const { return image_; }
    QPointF imageOrigin() const { return imageOrigin_; }

  protected:
    RulerMarker(const RulerMarker&) = default;
    RulerMarker(RulerMarker&&) = default;
    RulerMarker& operator=(const RulerMarker&) = default;
    RulerMarker& operator=(RulerMarker&&) = default;

  private:
    VerticalRuler* ruler_;
    double markerLocation_;
    std::shared_ptr<RulerImage> image_;
    QPointF imageOrigin_;
};

} // namespace tessaly
