#include "presets/PresetGallery.h"

#include "foundation/DiagnosticLog.h"
#include "foundation/NumberText.h"
#include "presets/PresetGalleryView.h"

namespace tessaly {
namespace {

void logItemPos(std::size_t position) {
    const Point pos = PresetSlotGeometry::itemPos(position);
    DiagnosticLog::write("Index: " + std::to_string(position + 1));
    DiagnosticLog::write("PosX: " + fixedText(pos.x, 6) + "; PosY: " + fixedText(pos.y, 6));
}

} // namespace

PresetGallery::PresetGallery(Gradient& edited, PresetGalleryView& view, Actions actions)
    : edited_{edited}, view_{view}, actions_{std::move(actions)} {
    view_.setContainerSize(PresetSlotGeometry::containerSize(room_));
}

void PresetGallery::redrawPresetGradientContainer(bool force) {
    const Size size = PresetSlotGeometry::containerSize(room_);
    view_.setContainerSize(size);
    const double before =
        std::exchange(presetGradientThumbDistant_,
                      PresetSlotGeometry::thumbDistantFor(size.height, view_.scrollViewHeight()));
    if (presetGradientThumbDistant_ == before && !force) {
        return;
    }
    for (std::size_t position = 0; position < presetGradient_.size(); ++position) {
        logItemPos(position);
    }
    view_.thumbnailsChanged();
}

void PresetGallery::addGradientIntoPreset(Gradient gradient) {
    logItemPos(presetGradient_.size());
    presetGradient_.push_back(std::move(gradient));
    room_ = presetGradient_.size();
    redrawPresetGradientContainer(false);
    view_.thumbnailsChanged();
}

void PresetGallery::addGradientIntoPreset() {
    addGradientIntoPreset(edited_);
    actions_.insertData();
}

void PresetGallery::applyPreset(std::size_t position) {
    DiagnosticLog::write("updateGradientNotification");
    edited_ = presetGradient_[position];
    actions_.presetApplied();
}

void PresetGallery::deletePreset(std::size_t position) {
    DiagnosticLog::write("deletePresetGradientNotification");
    DiagnosticLog::write("index: " + std::to_string(position));
    presetGradient_.erase(presetGradient_.begin() + static_cast<std::ptrdiff_t>(position));
    redrawPresetGradientContainer(true);
    actions_.insertData();
}

} // namespace tessaly
