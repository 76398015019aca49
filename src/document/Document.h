#pragma once

#include "canvas/GradientEditor.h"
#include "canvas/StopTools.h"
#include "exchange/CssColor.h"
#include "model/GlobalData.h"
#include "model/History.h"
#include "presets/PresetGallery.h"
#include "presets/PresetStore.h"

#include <filesystem>
#include <functional>
#include <string_view>
#include <vector>

namespace tessaly {

/// All that the user edits, whole and without its toolkit: the gradient with what edits it, the presets with
/// their store, and the history of both.
class Document {
  public:
    /// What shows the document and takes the user's input; outlives it.
    struct Views {
        const CanvasGeometry& geometry;
        CanvasSurface& surface;
        StopControlSet controls;
        PresetGalleryView& gallery;
    };

    /// The presets' folder is made in `applicationSupport`. `actionEnded`: what can be taken back or done
    /// again may have another name; also after an undo or a redo.
    Document(const Views& views, const std::filesystem::path& applicationSupport,
             std::function<void()> actionEnded, History::Clock clock = std::chrono::steady_clock::now);

    /// Reads the stored presets, and then starts with the default gradient; once, when everything is wired.
    void open();

    /// Closes the store, which saves what is still to be saved.
    void close() { store_.closeDB(); }

    const GlobalData& record() const { return record_; }
    GradientEditor& editor() { return editor_; }
    PresetGallery& gallery() { return gallery_; }
    History& history() { return history_; }

    // Each is one step.

    /// Edits the gradient of the start.
    void newGradient();

    /// Edits a gradient that came in, in a notation that can say its opacities.
    void takeGradient(const Gradient& gradient, std::string_view step);

    /// Whether the tool would change something.
    bool canUse(StopTool tool) const;
    void use(StopTool tool);

    /// Gives the selected stop the colour. False: there is no such stop.
    bool takeColor(const ReadColor& color);

    void addToPresets(const std::vector<Gradient>& gradients) { gallery_.addGradientsIntoPreset(gradients); }

  private:
    std::optional<StopSelection> madeBy(StopTool tool) const;
    void replaceGradient(const Gradient& gradient);
    DocumentState state() const;
    void restore(const DocumentState& shown, const DocumentState& wanted);

    GlobalData record_;
    History history_;
    GradientEditor editor_;
    PresetGallery gallery_;
    PresetStore store_;
};

} // namespace tessaly
