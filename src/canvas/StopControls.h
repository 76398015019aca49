#pragma once

#include "canvas/ColorMarkers.h"
#include "canvas/ControlInterfaces.h"
#include "canvas/StopValue.h"
#include "model/ColorConversion.h"
#include "model/GlobalData.h"

#include <array>
#include <functional>

namespace tessaly {

/// The controls beside the canvas. They outlive what works with them.
struct StopControlSet {
    struct Pair {
        NumberField* field = nullptr;
        Stepper* stepper = nullptr;
    };

    std::array<Pair, stopValues.size()> pairs; ///< by StopValue
    ColorWell* selectedColor = nullptr;
    ComboBox* selectedOrientationComboBox = nullptr;
    ComboBox* selectedColorFormatComboBox = nullptr;
};

/// Carries what is typed, stepped or chosen into the gradient, and shows the selected stop. A handler does
/// nothing while `formReady` is down, which it is while the controls are being written to.
class StopControls {
  public:
    /// `repaint` repaints the canvas; `announce` tells that the code is to be written anew. Record and
    /// markers must outlive the object.
    StopControls(const StopControlSet& controls, GlobalData& record, ColorMarkers& markers,
                 std::function<void()> repaint, std::function<void()> announce);

    /// The user changed a text field, or a stepper.
    void updateTextFieldValue(StopValue value);
    void updateStepperValue(StopValue value);

    void updateOrientationComboBoxValue();
    void updateColorFormatComboBoxValue();

    /// The colour well has a new colour.
    void colorChanged();

    /// Selects the item of the gradient's orientation, or nothing new for an unknown code.
    void updateOrientationTypeComboBox();
    /// Selects the item of the gradient's notation and enables the opacity accordingly.
    void updateColorFormatTypeComboBox();

    /// Show the colour well's colour in the fields.
    void updateRGBFromColorBox();
    void updateHSLFromColorBox();

    /// Shows colour, position and opacity of the selected stop, if there is one, and then raises `formReady`.
    void showSelectedStop();
    /// Enables what can be edited: nothing of a stop that is not there, opacity only where the notation
    /// carries it.
    void updateEnabledState();

    /// From now on what the controls report is user input.
    void setFormReady() { formReady_ = true; }

  private:
    const StopControlSet::Pair& pair(StopValue value) const {
        return controls_.pairs[static_cast<std::size_t>(value)];
    }
    void handle(const std::function<void()>& change);
    void apply(StopValue value);
    void updateColorBoxFromRGB();
    void updateColorBoxFromHSL();
    void showRGB(const RGBValue& rgb);
    void setNumber(StopValue value, double number);
    void setColorBox(std::int64_t red, std::int64_t green, std::int64_t blue);
    void takeColorBox(); ///< into the gradient
    std::int64_t stepperInteger(StopValue value) const;

    StopControlSet controls_;
    GlobalData& record_;
    ColorMarkers& markers_;
    std::function<void()> repaint_;
    std::function<void()> announce_;
    bool opacityEditable_ = true;
    bool formReady_ = false;
};

} // namespace tessaly
