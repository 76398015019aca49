#pragma once

#include "foundation/Geometry.h"

#include <cstddef>

namespace tessaly {

/// What the gallery asks of the toolkit: the container of the thumbnails and the scroll view around it.
class PresetGalleryView {
  public:
    virtual ~PresetGalleryView() = default;

    /// In points.
    virtual double scrollViewHeight() const = 0;

    /// In points; the container's origin stays.
    virtual void setContainerSize(Size size) = 0;

    /// The list of presets has changed, or the places of their thumbnails.
    virtual void thumbnailsChanged() = 0;

    /// Makes the thumbnail the current one and brings it into view; nothing where there is none of that
    /// position.
    virtual void showThumbnail(std::size_t position) = 0;
};

} // namespace tessaly
