#include "presets/PresetGallery.h"

#include "foundation/DiagnosticLog.h"
#include "foundation/NumberText.h"
#include "model/EditStep.h"
#include "presets/PresetGalleryView.h"

#include <algorithm>
#include <utility>

namespace tessaly {
namespace {

void logItemPos(std::size_t position) {
    const Point pos = PresetSlotGeometry::itemPos(position);
    DiagnosticLog::write("Index: " + std::to_string(position + 1));
    DiagnosticLog::write("PosX: " + fixedText(pos.x, 6) + "; PosY: " + fixedText(pos.y, 6));
}

} // namespace

PresetGallery::PresetGallery(Gradient& edited, History& history, PresetGalleryView& view, Actions actions)
    : edited_{edited}, history_{history}, view_{view}, actions_{std::move(actions)} {
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

void PresetGallery::append(std::shared_ptr<const Gradient> gradient) {
    logItemPos(presetGradient_.size());
    presetGradient_.push_back(std::move(gradient));
    snapshot_.reset();
    room_ = presetGradient_.size();
    redrawPresetGradientContainer(false);
    view_.thumbnailsChanged();
}

void PresetGallery::addGradientIntoPreset(Gradient gradient) {
    append(std::make_shared<const Gradient>(std::move(gradient)));
}

void PresetGallery::addGradientIntoPreset() {
    history_.act(editStep::addPreset, [this] {
        addGradientIntoPreset(edited_);
        actions_.insertData();
    });
}

void PresetGallery::addGradientsIntoPreset(const std::vector<Gradient>& gradients) {
    history_.act(editStep::addToPresets, [&] {
        for (const Gradient& gradient : gradients) {
            addGradientIntoPreset(gradient);
        }
        actions_.insertData();
    });
}

void PresetGallery::applyPreset(std::size_t position) {
    DiagnosticLog::write("updateGradientNotification");
    history_.act(editStep::applyPreset, [&] {
        edited_ = *presetGradient_[position];
        actions_.presetApplied();
    });
}

void PresetGallery::deletePreset(std::size_t position) {
    DiagnosticLog::write("deletePresetGradientNotification");
    DiagnosticLog::write("index: " + std::to_string(position));
    history_.act(editStep::deletePreset, [&] {
        presetGradient_.erase(presetGradient_.begin() + static_cast<std::ptrdiff_t>(position));
        snapshot_.reset();
        redrawPresetGradientContainer(true);
        actions_.insertData();
    });
}

void PresetGallery::movePresetBeside(std::size_t position, int direction) {
    const std::size_t to = position + static_cast<std::size_t>(direction); // before the first: wraps
    if (to < presetGradient_.size()) {
        move(position, to, {"Presets"});
    }
}

void PresetGallery::move(std::size_t from, std::size_t to, const History::Run& run) {
    if (from == to) {
        return;
    }
    const std::shared_ptr<const Gradient> preset = presetGradient_[from];
    if (std::exchange(moved_, preset) != preset) {
        history_.endRun();
    }
    history_.act(editStep::movePreset, run, [&] {
        presetGradient_.erase(presetGradient_.begin() + static_cast<std::ptrdiff_t>(from));
        presetGradient_.insert(presetGradient_.begin() + static_cast<std::ptrdiff_t>(to), preset);
        snapshot_.reset();
        redrawPresetGradientContainer(true);
        actions_.insertData();
    });
    const auto found = std::ranges::find(presetGradient_, preset); // the save may have put others in front
    view_.showThumbnail(static_cast<std::size_t>(found - presetGradient_.begin()));
}

std::shared_ptr<const GradientList> PresetGallery::snapshot() const {
    if (snapshot_ == nullptr) {
        snapshot_ = std::make_shared<const GradientList>(presetGradient_);
    }
    return snapshot_;
}

// Where the one preset is, in a list to come, that moves or is added; of one that goes, where it was.
std::size_t PresetGallery::changedPosition(const GradientList& wanted) const {
    const GradientList& shown = presetGradient_;
    const auto first = std::ranges::mismatch(shown, wanted).in2 - wanted.begin();
    if (shown.size() != wanted.size() || first == std::ssize(wanted)) {
        return static_cast<std::size_t>(first);
    }
    const auto same = std::mismatch(shown.rbegin(), shown.rend(), wanted.rbegin()).second - wanted.rbegin();
    const auto last = std::ssize(wanted) - 1 - same;
    const auto at = [](const GradientList& list, auto position) {
        return list[static_cast<std::size_t>(position)];
    };
    const bool movesForth = at(shown, first) == at(wanted, last);
    const bool movesBack = at(shown, last) == at(wanted, first); // so do both of two neighbours
    const bool isFirst = movesBack && (!movesForth || at(wanted, first) == moved_);
    return static_cast<std::size_t>(isFirst ? first : last);
}

void PresetGallery::restore(const std::shared_ptr<const GradientList>& snapshot) {
    const std::size_t changed = changedPosition(*snapshot);
    presetGradient_ = *snapshot;
    snapshot_ = snapshot;
    room_ = std::max(room_, presetGradient_.size());
    redrawPresetGradientContainer(true);
    view_.showThumbnail(changed);
    actions_.insertData();
}

void PresetGallery::insertStored(const std::function<void()>& readStored) {
    const GradientList added = std::exchange(presetGradient_, {});
    readStored();
    history_.prependPresets(presetGradient_);
    for (const auto& gradient : added) {
        append(gradient);
    }
}

} // namespace tessaly
