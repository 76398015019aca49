#include "canvas/GradientEditor.h"

#include "canvas/CanvasNotification.h"
#include "canvas/CanvasScene.h"
#include "canvas/CanvasSurface.h"

namespace tessaly {

GradientEditor::GradientEditor(GlobalData& record, History& history, const CanvasGeometry& geometry,
                               CanvasSurface& surface, const StopControlSet& controls)
    : record_{record},
      geometry_{geometry},
      surface_{surface},
      markers_{record.gradient},
      interaction_{geometry_, markers_, history, [this] { createBackground(); }},
      controls_{controls, record, markers_, history, [this] { createBackground(); }, [this] { announce(); }},
      colorChanged_{NotificationCenter::defaultCenter().addObserver(
          canvasNotification::colorChanged, controls.selectedColor,
          [this](const Notification& /*notification*/) { controls_.colorChanged(); })} {}

void GradientEditor::awakeFromNib() {
    markers_.append({0.0, Color::black()});
    markers_.append({1.0, Color::white()});
    gradientReplaced();
    controls_.showColor();
}

void GradientEditor::createBackground() {
    surface_.paint({geometry_, record_, markers_.selectedColorMarkerIndex()});
    controls_.updateEnabledState();
    controls_.showSelectedStop();
    announce();
}

void GradientEditor::gradientReplaced() {
    controls_.showChoices();
    createBackground();
}

void GradientEditor::gradientReplaced(std::int64_t selectedStop) {
    markers_.select(selectedStop);
    gradientReplaced();
}

void GradientEditor::announce() const {
    NotificationCenter::defaultCenter().post({canvasNotification::needToUpdateWebCode, this, {}});
}

} // namespace tessaly
