#pragma once

#include "presets/PresetGalleryView.h"

namespace tessaly {

/// A container of thumbnails without a toolkit.
class FakeGalleryView : public PresetGalleryView {
  public:
    double scrollViewHeight() const override { return scrollHeight; }
    void setContainerSize(Size size) override { containerSize = size; }
    void thumbnailInserted(std::size_t /*position*/) override { ++thumbnails; }
    void thumbnailRemoved(std::size_t /*position*/) override { --thumbnails; }
    void thumbnailsMoved() override { ++relayouts; }

    double scrollHeight = 250.0;
    Size containerSize;
    int thumbnails = 0;
    int relayouts = 0;
};

} // namespace tessaly
