#pragma once

#include "canvas/CanvasGeometry.h"
#include "canvas/ColorMarkers.h"
#include "canvas/MarkerInteraction.h"
#include "canvas/StopControls.h"
#include "foundation/NotificationCenter.h"

namespace tessaly {

class CanvasSurface;

/// The canvas without its toolkit: puts geometry, markers, mouse rules and controls together. It is the
/// object of the "NeedToUpdateWebCode" notifications.
class GradientEditor {
  public:
    /// All must outlive the editor.
    GradientEditor(GlobalData& record, History& history, const CanvasGeometry& geometry,
                   CanvasSurface& surface, const StopControlSet& controls);
    GradientEditor(const GradientEditor&) = delete;
    GradientEditor& operator=(const GradientEditor&) = delete;
    ~GradientEditor() = default;

    /// Sets the editor up with the default gradient; once, when everything is wired.
    void awakeFromNib();

    /// Paints and shows the picture, refreshes the controls of the selected stop and announces the change.
    /// From an idle form the refreshed colour well makes it run once more, nested.
    void createBackground();

    /// The gradient was replaced as a whole.
    void gradientReplaced();
    /// Gradient and notation were, and this is the selection with them.
    void gradientReplaced(std::int64_t selectedStop);

    const ColorMarkers& markers() const { return markers_; }
    const MarkerInteraction& interaction() const { return interaction_; }
    MarkerInteraction& interaction() { return interaction_; }
    StopControls& controls() { return controls_; }

  private:
    void announce() const;

    GlobalData& record_;
    const CanvasGeometry& geometry_;
    CanvasSurface& surface_;
    ColorMarkers markers_;
    MarkerInteraction interaction_;
    StopControls controls_;
    NotificationCenter::Observation colorChanged_;
};

} // namespace tessaly
