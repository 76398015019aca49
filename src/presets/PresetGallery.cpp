#include "presets/PresetGallery.h"

#include "foundation/DiagnosticLog.h"
#include "foundation/NumberText.h"
#include "foundation/Truncation.h"
#include "presets/PresetGalleryView.h"
#include "presets/PresetNotification.h"

namespace tessaly {
namespace {

// Column and row, counting from 0, of a slot counting from 1.
Point getPresetGradientItemPos(std::int64_t slot) {
    DiagnosticLog::write("Index: " + std::to_string(slot));
    const Point pos = PresetSlotGeometry::itemPos(slot);
    DiagnosticLog::write("PosX: " + fixedText(pos.x, 6) + "; PosY: " + fixedText(pos.y, 6));
    return pos;
}

} // namespace

PresetGallery::PresetGallery(Gradient& edited, PresetGalleryView& view, Actions actions)
    : edited_{edited}, view_{view}, actions_{std::move(actions)} {
    view_.setContainerSize(PresetSlotGeometry::containerSize(maxPresetGradientRow_));
    NotificationCenter& center = NotificationCenter::defaultCenter();
    observations_ = {center.addObserver(presetNotification::gradientIndexChanged, nullptr,
                                        [this](const auto& n) { updateGradientNotification(n); }),
                     center.addObserver(presetNotification::deleteGradient, nullptr,
                                        [this](const auto& n) { deletePresetGradientNotification(n); })};
}

void PresetGallery::redrawPresetGradientContainer(bool force) {
    const std::int64_t before = presetGradientThumbDistant_;
    const Size size = PresetSlotGeometry::containerSize(maxPresetGradientRow_);
    view_.setContainerSize(size);
    presetGradientThumbDistant_ = PresetSlotGeometry::thumbDistantFor(size.height, view_.scrollViewHeight());
    if (presetGradientThumbDistant_ == before && !force) {
        return;
    }
    for (std::size_t i = 0; i < presetGradient_.size(); ++i) {
        const auto position = static_cast<std::int64_t>(i);
        getPresetGradientItemPos(position + 1); // for the log: the places follow from the position alone
        presetGradient_[i].index = position;
    }
    gradientIndex_ = static_cast<std::int64_t>(presetGradient_.size());
    view_.thumbnailsChanged();
}

void PresetGallery::addGradientIntoPreset(Gradient gradient) {
    const Point pos = getPresetGradientItemPos(static_cast<std::int64_t>(presetGradient_.size()) + 1);
    presetGradient_.push_back({std::move(gradient), gradientIndex_++});
    maxPresetGradientRow_ = truncated(pos.y + 1);
    redrawPresetGradientContainer(false);
    view_.thumbnailsChanged();
}

void PresetGallery::addGradientIntoPreset(const void* sender) {
    addGradientIntoPreset(edited_);
    if (sender != nullptr) {
        actions_.insertData();
    }
}

void PresetGallery::updateGradientNotification(const Notification& notification) {
    DiagnosticLog::write("updateGradientNotification");
    if (const Gradient* const gradient = presetNotification::gradientOf(notification)) {
        edited_ = *gradient;
        actions_.presetApplied();
    }
}

void PresetGallery::deletePresetGradientNotification(const Notification& notification) {
    DiagnosticLog::write("deletePresetGradientNotification");
    const std::optional<std::int64_t> index = presetNotification::indexOf(notification);
    if (!index) {
        return;
    }
    DiagnosticLog::write("index: " + std::to_string(*index));
    if (*index < 0 || *index >= static_cast<std::int64_t>(presetGradient_.size())) {
        return;
    }
    presetGradient_.erase(presetGradient_.begin() + *index);
    redrawPresetGradientContainer(true);
    actions_.insertData();
}

} // namespace tessaly
