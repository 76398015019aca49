#include "presets/qt/PresetThumbnail.h"

#include "model/Gradient.h"
#include "presets/PresetSlotGeometry.h"
#include "raster/GradientRaster.h"

#include <QImage>
#include <QPainter>
#include <cmath>
#include <span>

namespace tessaly {
namespace {

constexpr double size = PresetSlotGeometry::thumbnailSize;
constexpr double outerInset = 1;
constexpr double cornerRadius = 4;

QRectF inset(QPointF origin, double way) {
    return {origin.x() + way, origin.y() + way, size - 2 * way, size - 2 * way};
}

// The nearest place that lies on the corner of a device pixel.
QPointF onPixels(const QPainter& painter, QPointF place) {
    const QTransform& toDevice = painter.deviceTransform();
    const QPointF pixel = toDevice.map(place);
    return toDevice.inverted().map(QPointF{std::round(pixel.x()), std::round(pixel.y())});
}

} // namespace

QImage presetPicture(const Gradient& gradient, double devicePixelRatio) {
    const int pixels = static_cast<int>(std::ceil(size * devicePixelRatio));
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    if (gradient.stops().empty()) {
        return image;
    }
    const auto count = static_cast<std::size_t>(pixels) * static_cast<std::size_t>(pixels);
    const PixelBuffer buffer{std::span{reinterpret_cast<std::uint32_t*>(image.bits()), count}, pixels, pixels,
                             devicePixelRatio, size};
    constexpr double side = size - 2 * outerInset;
    fillGradient(buffer, {{outerInset, outerInset, side, side}, {size / 2, size / 2}, {size / 2, size / 2}},
                 gradient.orientation(), GradientRamp{gradient.stops(), GradientRamp::Opacity::Drawn});
    return image;
}

void drawPresetThumbnail(QPainter& painter, const Gradient& gradient, QPointF origin) {
    drawPresetThumbnail(painter, presetPicture(gradient, painter.device()->devicePixelRatioF()), origin);
}

void drawPresetThumbnail(QPainter& painter, const QImage& picture, QPointF origin) {
    const double ratio = painter.device()->devicePixelRatioF();
    const auto wholePixels = [&](double points) { return std::round(points * ratio) / ratio; };
    const QPointF corner = onPixels(painter, origin);
    const double outer = wholePixels(outerInset);
    painter.setRenderHint(QPainter::Antialiasing);
    QBrush filling{picture};
    filling.setTransform(QTransform::fromTranslate(corner.x(), corner.y()).scale(1 / ratio, 1 / ratio));
    painter.setPen(Qt::NoPen);
    painter.setBrush(filling);
    painter.drawRoundedRect(inset(corner, outer), cornerRadius, cornerRadius);

    // Of the grey line only the inner half is to be seen, half a point, and the white one starts behind it;
    // both fill whole pixels.
    const double grey = std::ceil(0.5 * ratio) / ratio;
    const double white = wholePixels(1.0);
    const auto drawLine = [&](const QColor& color, double from, double width) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen{color, width});
        const double middle = from + width / 2;
        painter.drawRoundedRect(inset(corner, middle), cornerRadius, cornerRadius);
    };
    drawLine(QColor::fromRgbF(0.5F, 0.5F, 0.5F), outer, grey);
    drawLine(Qt::white, outer + grey, white);
}

} // namespace tessaly
