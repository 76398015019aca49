#pragma once

#include "presets/PresetGallery.h"
#include "presets/PresetGalleryView.h"
#include "presets/PresetStore.h"
#include "support/Gradients.h"
#include "support/NoHistory.h"

#include <filesystem>

namespace tessaly {

/// A container of thumbnails without a toolkit.
class FakeGalleryView : public PresetGalleryView {
  public:
    double scrollViewHeight() const override { return scrollHeight; }
    void setContainerSize(Size size) override { containerSize = size; }
    void thumbnailsChanged() override { ++changes; }
    void showThumbnail(std::size_t position) override { shown = position; }

    double scrollHeight = 250.0;
    Size containerSize;
    int changes = 0;
    std::size_t shown = 0; ///< the thumbnail brought into view last
};

inline std::vector<Gradient> gradientsIn(const PresetGallery& gallery) {
    std::vector<Gradient> gradients;
    for (const auto& preset : gallery.presetGradient()) {
        gradients.push_back(*preset);
    }
    return gradients;
}

/// The gallery and its store, wired and started as the program does it.
struct PresetProgram {
    explicit PresetProgram(const std::filesystem::path& support) : store{gallery, support} { store.openDB(); }

    std::vector<Gradient> presets() const { return gradientsIn(gallery); }

    GlobalData record = defaultRecord();
    NoHistory history;
    FakeGalleryView view;
    PresetGallery gallery{record.gradient, history, view, {[] {}, [this] { store.insertData(); }}};
    PresetStore store;
};

} // namespace tessaly
