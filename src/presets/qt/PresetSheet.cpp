#include "presets/qt/PresetSheet.h"

#include "presets/PresetGallery.h"
#include "presets/qt/PresetDrag.h"
#include "presets/qt/PresetThumbnail.h"

#include <QPainter>
#include <utility>

namespace tessaly {
namespace {

constexpr std::size_t mostPictures = 1'000; // by far more than can be seen at once, some 10 MB
constexpr double fadedOpacity = 0.3;

} // namespace

void PresetSheet::paint(QPainter& painter, const PresetGallery& gallery, const QRect& area,
                        const PresetDrag& drag) const {
    const GradientList& presets = gallery.presetGradient();
    const auto visible =
        PresetSlotGeometry::positionsBetween(area.top(), area.top() + area.height(), presets.size());
    for (std::size_t position = visible.first; position < visible.last; ++position) {
        const Rect place = gallery.slots().thumbnailRect(position);
        painter.setOpacity(drag.carries(position) ? fadedOpacity : 1.0);
        paintThumbnail(painter, presets[position], {place.x, place.y});
    }
    painter.setOpacity(1.0);
}

void PresetSheet::paintThumbnail(QPainter& painter, const std::shared_ptr<const Gradient>& gradient,
                                 QPointF origin) const {
    const double ratio = painter.device()->devicePixelRatioF();
    const bool isElsewhere = std::exchange(ratio_, ratio) != ratio; // on another screen
    if (isElsewhere || pictures_.size() > mostPictures) {
        pictures_.clear();
    }
    QImage& picture = pictures_[gradient];
    if (picture.isNull()) {
        picture = presetPicture(*gradient, ratio);
    }
    drawPresetThumbnail(painter, picture, origin);
}

} // namespace tessaly
