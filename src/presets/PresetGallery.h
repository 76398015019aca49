#pragma once

#include "foundation/NotificationCenter.h"
#include "presets/PresetList.h"
#include "presets/PresetSlotGeometry.h"

#include <array>
#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace tessaly {

class PresetGalleryView;

/// The list of presets and the layout of their thumbnails: adds the gradient being edited, applies a preset
/// to it, deletes presets, and asks for a save after each change that the user made. Main thread only.
class PresetGallery : public PresetList {
  public:
    struct Actions {
        std::function<void()> presetApplied; ///< the gradient being edited was replaced
        std::function<void()> insertData;    ///< saves the list
    };

    /// Gives the container the size of an empty gallery and follows the notifications of any thumbnail. The
    /// gradient being edited and the view must outlive the gallery.
    PresetGallery(Gradient& edited, PresetGalleryView& view, Actions actions);

    const std::vector<Preset>& presetGradient() const override { return presetGradient_; }
    std::vector<Preset> takePresets() override { return std::exchange(presetGradient_, {}); }
    void setGradientIndex(std::int64_t index) override { gradientIndex_ = index; }

    /// Where the thumbnails lie now.
    PresetSlotGeometry slots() const { return PresetSlotGeometry{presetGradientThumbDistant_}; }

    /// Appends the gradient being edited; saves the list unless `sender` is null.
    void addGradientIntoPreset(const void* sender);

    /// Appends a stored preset; saves nothing.
    void addGradientIntoPreset(Gradient gradient) override;

  private:
    void updateGradientNotification(const Notification& notification);
    void deletePresetGradientNotification(const Notification& notification);

    /// Sizes the container and, when that changes the distance of the columns or `force` is set, lays out
    /// every thumbnail anew and makes each `index` the position in the list.
    void redrawPresetGradientContainer(bool force);

    Gradient& edited_;
    PresetGalleryView& view_;
    Actions actions_;
    std::vector<Preset> presetGradient_;
    /// Counted at the last add: a delete deliberately leaves them, so that the container keeps its height
    /// under the mouse.
    std::int64_t maxPresetGradientRow_ = 0;
    std::int64_t presetGradientThumbDistant_ = PresetSlotGeometry::wideThumbDistant;
    std::int64_t gradientIndex_ = 0;
    std::array<NotificationCenter::Observation, 2> observations_;
};

} // namespace tessaly
