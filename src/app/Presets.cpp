#include "app/Presets.h"

#include "presets/qt/PresetPanel.h"

namespace tessaly {

Presets::Presets(PresetPanel& panel, GradientEditor& editor, const std::filesystem::path& applicationSupport)
    : panel_{panel},
      gallery_{panel, {[&editor] { editor.gradientReplaced(); }, [this] { store_.insertData(); }}},
      store_{gallery_, applicationSupport} {
    panel.connectTo(gallery_);
}

Presets::~Presets() {
    panel_.disconnectFromGallery();
    store_.closeDB();
}

PresetSteps Presets::steps() {
    return {[this] { store_.openWithTables(); }, [this] { store_.readData(); },
            [this] { gallery_.observeNotifications(); }};
}

} // namespace tessaly
