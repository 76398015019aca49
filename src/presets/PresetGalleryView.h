#pragma once

#include "foundation/Geometry.h"

#include <cstddef>

namespace tessaly {

/// What the gallery asks of the toolkit: the container of the thumbnails and the scroll view around it.
/// Positions are those in the list of presets.
class PresetGalleryView {
  public:
    virtual ~PresetGalleryView() = default;

    /// In points.
    virtual double scrollViewHeight() const = 0;

    /// In points; the container's origin stays.
    virtual void setContainerSize(Size size) = 0;

    /// One thumbnail more, in front of the others; it is in the list already.
    virtual void thumbnailInserted(std::size_t position) = 0;

    /// One thumbnail less; it is still in the list.
    virtual void thumbnailRemoved(std::size_t position) = 0;

    /// Any thumbnail may have a new place.
    virtual void thumbnailsMoved() = 0;
};

} // namespace tessaly
