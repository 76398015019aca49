#include "canvas/GradientEditor.h"

#include "canvas/CanvasNotification.h"
#include "canvas/CanvasScene.h"
#include "canvas/CanvasSurface.h"

namespace tessaly {

GradientEditor::GradientEditor(GlobalData& record, const CanvasGeometry& geometry, CanvasSurface& surface,
                               const StopControlSet& controls)
    : record_{record},
      geometry_{geometry},
      surface_{surface},
      well_{controls.selectedColor},
      markers_{record.gradient},
      interaction_{geometry_, hitAreas_, markers_, [this] { repaint(); }},
      controls_{controls, record, markers_, [this] { repaint(); }, [this] { announce(); }} {}

void GradientEditor::awakeFromNib() {
    controls_.updateOrientationTypeComboBox();
    controls_.updateColorFormatTypeComboBox();
    record_.gradient.setOrientation(orientation::leftToRight);
    markers_.addColorMarker(Color::black(), 0.0, 1.0, ColorMarkers::append);
    markers_.addColorMarker(Color::white(), 1.0, 1.0, ColorMarkers::append);
    repaint();
    colorChanged_ = NotificationCenter::defaultCenter().addObserver(
        canvasNotification::colorChanged, well_,
        [this](const Notification& /*notification*/) { controls_.colorChanged(); });
    controls_.updateRGBFromColorBox();
    controls_.updateHSLFromColorBox();
    controls_.setFormReady(); // last: what was written above is no user input
}

void GradientEditor::createBackground() {
    const CanvasScene scene{geometry_, record_, markers_.selectedColorMarkerIndex()};
    hitAreas_.rebuild(scene);
    surface_.paint(scene);
    controls_.updateEnabledState();
    controls_.showSelectedStop();
    announce();
}

void GradientEditor::repaint() {
    createBackground();
    surface_.setNeedsDisplay();
}

void GradientEditor::gradientReplaced() {
    controls_.updateOrientationTypeComboBox();
    repaint();
}

void GradientEditor::announce() const {
    NotificationCenter::defaultCenter().post({canvasNotification::needToUpdateWebCode, this, {}});
}

} // namespace tessaly
