#include "canvas/qt/CanvasPicture.h"

#include "foundation/qt/Flipped.h"
#include "model/qt/ColorBridge.h"
#include "raster/GradientRaster.h"

#include <QPainter>
#include <cmath>
#include <span>

namespace tessaly {
namespace {

// Rounded up, so that a fractional ratio leaves no edge uncovered.
QImage transparentImage(Size size, double ratio) {
    QImage image(static_cast<int>(std::ceil(size.width * ratio)),
                 static_cast<int>(std::ceil(size.height * ratio)), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    return image;
}

// Stroked first, then filled: the fill covers the inner half of the line.
void drawOval(QPainter& painter, const QRectF& rect, const QColor& fill) {
    painter.setPen(QPen{Qt::black, 1});
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(rect);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawEllipse(rect);
}

} // namespace

void CanvasPicture::setMedium(double devicePixelRatio, const QColor& controlColor) {
    if (devicePixelRatio == devicePixelRatio_ && controlColor == controlColor_) {
        return;
    }
    devicePixelRatio_ = devicePixelRatio;
    controlColor_ = controlColor;
    backgroundOffscreenRep_ = transparentImage(geometry_.viewSize(), devicePixelRatio);
    createColorMarker();
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

void CanvasPicture::createColorMarker() {
    QImage marker = transparentImage(CanvasGeometry::colorMarkerSize, devicePixelRatio_);
    QPainter painter{&marker};
    painter.setRenderHint(QPainter::Antialiasing);
    const double height = CanvasGeometry::colorMarkerSize.height;
    drawOval(painter, flipped(CanvasGeometry::markerRing, height), Qt::white);
    drawOval(painter, flipped(CanvasGeometry::markerInnerRing, height), QColor::fromRgbF(0.5F, 0.5F, 0.5F));
    painter.end();
    colorMarkerImage_ = QPixmap::fromImage(marker);
}

void CanvasPicture::paintScene() {
    paintGradient();
    QPainter painter{&backgroundOffscreenRep_};
    painter.setRenderHint(QPainter::Antialiasing);
    if (scene_->guideLine) {
        paintGuideLine(painter, *scene_->guideLine);
    }
    for (const CanvasScene::Marker& marker : scene_->markers) {
        drawColorMarker(painter, marker);
    }
}

void CanvasPicture::paintGradient() {
    QImage& picture = backgroundOffscreenRep_;
    picture.fill(controlColor_);
    if (scene_->gradient.stops().empty()) {
        return;
    }
    auto* const pixels = reinterpret_cast<std::uint32_t*>(picture.bits());
    const auto count = static_cast<std::size_t>(picture.width()) * static_cast<std::size_t>(picture.height());
    const PixelBuffer buffer{std::span{pixels, count}, picture.width(), picture.height(), devicePixelRatio_,
                             geometry_.viewSize().height};
    const GradientRamp ramp{scene_->gradient.stops(), scene_->opacity,
                            *fromQColor(controlColor_).calibratedRGB()};
    fillGradient(buffer, {geometry_.strip(), geometry_.radialCenter(), geometry_.radialRadius()},
                 scene_->gradient.orientation(), ramp);
}

void CanvasPicture::paintGuideLine(QPainter& painter, const GuideLine& guide) const {
    const double height = geometry_.viewSize().height;
    QPen pen{Qt::black, 1};
    pen.setCapStyle(Qt::FlatCap);
    pen.setDashPattern({CanvasGeometry::guideDash[0], CanvasGeometry::guideDash[1]});
    painter.setPen(pen);
    painter.drawLine(flipped(guide.black.from, height), flipped(guide.black.to, height));
    pen.setColor(Qt::white);
    painter.setPen(pen);
    painter.drawLine(flipped(guide.white.from, height), flipped(guide.white.to, height));
}

void CanvasPicture::drawColorMarker(QPainter& painter, const CanvasScene::Marker& marker) const {
    const double height = geometry_.viewSize().height;
    painter.drawPixmap(flipped(marker.frame, height).topLeft(), colorMarkerImage_);
    drawOval(painter, flipped(marker.dot, height), toQColor(marker.color));
}

} // namespace tessaly
