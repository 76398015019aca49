#include "canvas/qt/CanvasPicture.h"

#include "foundation/qt/Flipped.h"
#include "model/qt/ColorBridge.h"
#include "raster/DiscRaster.h"
#include "raster/GradientRaster.h"

#include <QPainter>
#include <cmath>
#include <span>
#include <utility>

namespace tessaly {
namespace {

constexpr RGBAComponents black;
constexpr RGBAComponents white{1.0, 1.0, 1.0};
constexpr RGBAComponents grey{0.5, 0.5, 0.5};

// Within a line of one point, of which the fill covers the inner half.
void drawOval(const PixelBuffer& buffer, const Rect& rect, const RGBAComponents& fill) {
    const double radius = rect.width / 2;
    fillDisc(buffer, rect.center(), radius + 0.5, black);
    fillDisc(buffer, rect.center(), radius, fill);
}

void drawColorMarker(const PixelBuffer& buffer, const CanvasScene::Marker& marker) {
    const auto part = [&](const Rect& within) {
        return Rect{marker.frame.x + within.x, marker.frame.y + within.y, within.width, within.height};
    };
    drawOval(buffer, part(CanvasGeometry::markerRing), white);
    drawOval(buffer, part(CanvasGeometry::markerInnerRing), grey);
    drawOval(buffer, part(marker.selected ? CanvasGeometry::selectedMarkerDot : CanvasGeometry::markerDot),
             marker.color.calibratedRGB().value_or(black));
}

} // namespace

void CanvasPicture::setMedium(double devicePixelRatio, const QColor& controlColor) {
    if (devicePixelRatio == devicePixelRatio_ && controlColor == controlColor_) {
        return;
    }
    devicePixelRatio_ = devicePixelRatio;
    controlColor_ = controlColor;
    // Rounded up, so that a fractional ratio leaves no edge uncovered.
    const auto pixels = [&](double points) { return static_cast<int>(std::ceil(points * devicePixelRatio)); };
    const auto [width, height] = geometry_.viewSize();
    backgroundOffscreenRep_ = QImage(pixels(width), pixels(height), QImage::Format_ARGB32_Premultiplied);
    backgroundOffscreenRep_.setDevicePixelRatio(devicePixelRatio);
    if (scene_) {
        paintScene();
    }
}

void CanvasPicture::paint(const CanvasScene& scene) {
    if (scene_ != scene) {
        scene_ = scene;
        paintScene();
    }
}

PixelBuffer CanvasPicture::buffer() {
    QImage& picture = backgroundOffscreenRep_;
    auto* const pixels = reinterpret_cast<std::uint32_t*>(picture.bits());
    const auto count = static_cast<std::size_t>(picture.width()) * static_cast<std::size_t>(picture.height());
    return {std::span{pixels, count}, picture.width(), picture.height(), devicePixelRatio_,
            geometry_.viewSize().height};
}

void CanvasPicture::paintScene() {
    backgroundOffscreenRep_.fill(controlColor_);
    if (!scene_->gradient.stops().empty()) {
        const GradientRamp ramp{scene_->gradient.stops(), scene_->opacity,
                                *fromQColor(controlColor_).calibratedRGB()};
        const double radius = geometry_.radialRadius();
        fillGradient(buffer(), {geometry_.strip(), geometry_.radialCenter(), {radius, radius}},
                     scene_->gradient.orientation(), ramp);
    }
    if (scene_->guideLine) {
        paintGuideLine(*scene_->guideLine);
    }
    for (const CanvasScene::Marker& marker : scene_->markers) {
        drawColorMarker(buffer(), marker);
    }
}

void CanvasPicture::paintGuideLine(const GuideLine& guide) {
    const double height = geometry_.viewSize().height;
    QPainter painter{&backgroundOffscreenRep_};
    painter.setRenderHint(QPainter::Antialiasing);
    QPen pen{Qt::black, 1};
    pen.setCapStyle(Qt::FlatCap);
    pen.setDashPattern({CanvasGeometry::guideDash[0], CanvasGeometry::guideDash[1]});
    for (const auto& [color, line] : {std::pair{Qt::black, guide.black}, std::pair{Qt::white, guide.white}}) {
        pen.setColor(color);
        painter.setPen(pen);
        painter.drawLine(flipped(line.from, height), flipped(line.to, height));
    }
}

} // namespace tessaly
