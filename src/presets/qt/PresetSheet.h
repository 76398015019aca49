#pragma once

#include <QImage>
#include <cstddef>
#include <memory>
#include <unordered_map>

class QPainter;
class QPointF;
class QRect;

namespace tessaly {

class Gradient;
class PresetDrag;
class PresetGallery;

/// Paints the thumbnails of a gallery, and keeps the pictures of those painted last: a gradient may have so
/// many stops that it cannot be made anew for every repaint.
class PresetSheet {
  public:
    /// Those that reach into an area of the container; one that is carried away fades there.
    void paint(QPainter& painter, const PresetGallery& gallery, const QRect& area,
               const PresetDrag& drag) const;

    /// One, with its top left corner at `origin`.
    void paintThumbnail(QPainter& painter, const std::shared_ptr<const Gradient>& gradient,
                        QPointF origin) const;

  private:
    mutable double ratio_ = 0; ///< of device pixels to points, in the pictures
    mutable std::unordered_map<std::shared_ptr<const Gradient>, QImage> pictures_;
};

} // namespace tessaly
