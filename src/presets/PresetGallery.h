#pragma once

#include "model/GradientList.h"
#include "model/History.h"
#include "presets/PresetSlotGeometry.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

namespace tessaly {

class PresetGalleryView;

/// The list of presets and the layout of their thumbnails: adds the gradient being edited, applies a preset
/// to it, moves and deletes presets, and asks for a save after each change that the user made. Main thread
/// only.
class PresetGallery {
  public:
    struct Actions {
        std::function<void()> presetApplied; ///< the gradient being edited was replaced
        std::function<void()> insertData;    ///< saves the list
    };

    /// Gives the container the size of an empty gallery. The gradient being edited and the view must outlive
    /// the gallery.
    PresetGallery(Gradient& edited, History& history, PresetGalleryView& view, Actions actions);

    /// In the order shown and saved.
    const GradientList& presetGradient() const { return presetGradient_; }

    /// The list as it is now, shared by all who ask until it changes.
    std::shared_ptr<const GradientList> snapshot() const;

    /// Brings a snapshot back and saves it.
    void restore(const std::shared_ptr<const GradientList>& snapshot);

    /// Puts stored presets, which could not be read before, in front of those there are, now and in all that
    /// can be taken back.
    void insertStored(const std::function<void()>& readStored);

    /// Where the thumbnails lie now.
    PresetSlotGeometry slots() const { return PresetSlotGeometry{presetGradientThumbDistant_}; }

    /// Appends the gradient being edited and saves the list.
    void addGradientIntoPreset();

    /// Appends gradients that came in, and saves the list once.
    void addGradientsIntoPreset(const std::vector<Gradient>& gradients);

    /// Appends a stored preset; saves nothing.
    void addGradientIntoPreset(Gradient gradient);

    // Of a preset that is there.
    void applyPreset(std::size_t position);
    void deletePreset(std::size_t position);

    /// Puts a preset where another one is; those in between give way. Its thumbnail becomes the current one.
    void movePreset(std::size_t from, std::size_t to) { move(from, to, {}); }

    /// Lets a preset change places with the one before it (-1) or behind it (1), if there is one. Those of
    /// one preset that follow each other closely are one step.
    void movePresetBeside(std::size_t position, int direction);

  private:
    void move(std::size_t from, std::size_t to, const History::Run& run);
    std::size_t changedPosition(const GradientList& wanted) const;
    void append(std::shared_ptr<const Gradient> gradient);

    /// Sizes the container and, when that changes the distance of the columns or `force` is set, lays out
    /// every thumbnail anew.
    void redrawPresetGradientContainer(bool force);

    Gradient& edited_;
    History& history_;
    PresetGalleryView& view_;
    Actions actions_;
    GradientList presetGradient_;
    mutable std::shared_ptr<const GradientList> snapshot_; ///< null: the list changed since
    /// The thumbnails that the container has room for: as many as there were at the last add. A delete
    /// deliberately leaves it, so that the container keeps its height under the mouse.
    std::size_t room_ = 0;
    std::shared_ptr<const Gradient> moved_; ///< the one that was moved last; null: none yet
    double presetGradientThumbDistant_ = PresetSlotGeometry::wideThumbDistant;
};

} // namespace tessaly
