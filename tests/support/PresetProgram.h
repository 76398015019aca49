#pragma once

#include "model/GlobalData.h"
#include "presets/PresetGallery.h"
#include "presets/PresetStore.h"
#include "support/FakeGalleryView.h"

#include <filesystem>

namespace tessaly {

/// What the program does with its store before the first event.
inline void start(PresetStore& store) {
    store.openDB();
    if (!store.isTableExists("MainTable")) {
        store.createMainTable();
    }
    if (!store.isTableExists("AdditionalTable")) {
        store.createAdditionalTable();
    }
    store.readData();
}

/// The gallery and its store, wired and started as the program does it.
struct PresetProgram {
    explicit PresetProgram(const std::filesystem::path& applicationSupport)
        : store{gallery, applicationSupport} {
        start(store);
    }

    const std::vector<Preset>& presets() const { return gallery.presetGradient(); }

    FakeGalleryView view;
    PresetGallery gallery{view, {[this] { ++applied; }, [this] { store.insertData(); }}};
    PresetStore store;
    int applied = 0;
};

/// Makes a gradient with that many stops the one being edited; all its numbers follow from `number`.
inline void editGradient(std::int64_t number, int stops) {
    GlobalData& data = GlobalData::sharedData();
    data = GlobalData{};
    data.setOrientationType(number % 5);
    for (int i = 0; i < stops; ++i) {
        const double fraction = 1.0 / static_cast<double>(number + i + 2);
        data.colorMarkerPos().push_back(fraction);
        data.colorMarkerColor().push_back(
            Color::calibratedRGB(fraction, 1.0 - fraction, fraction * fraction));
        data.colorMarkerOpacity().push_back(1.0 - fraction * 0.5);
    }
}

} // namespace tessaly
