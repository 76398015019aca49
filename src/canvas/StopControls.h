#pragma once

#include "canvas/ColorMarkers.h"
#include "canvas/ControlInterfaces.h"
#include "canvas/StopValue.h"
#include "model/ColorConversion.h"
#include "model/GlobalData.h"
#include "model/History.h"

#include <array>
#include <functional>

namespace tessaly {

/// The controls beside the canvas. They outlive what works with them.
struct StopControlSet {
    struct Pair {
        TextField* field = nullptr;
        Stepper* stepper = nullptr;
    };

    std::array<Pair, stopValues.size()> pairs; ///< by StopValue
    ColorWell* selectedColor = nullptr;
    TextField* hexadecimal = nullptr;
    ComboBox* selectedOrientationComboBox = nullptr;
    ComboBox* selectedColorFormatComboBox = nullptr;
};

/// Carries what is typed, stepped or chosen into the gradient, and shows the selected stop. A handler does
/// nothing while `formReady` is down, which it is before a stop was shown and while the controls are being
/// written to.
class StopControls {
  public:
    /// `repaint` repaints the canvas; `announce` tells that the code is to be written anew. Record and
    /// markers must outlive the object.
    StopControls(const StopControlSet& controls, GlobalData& record, ColorMarkers& markers, History& history,
                 std::function<void()> repaint, std::function<void()> announce);

    /// The user changed a text field, or a stepper.
    void updateTextFieldValue(StopValue value);
    void updateStepperValue(StopValue value);

    void updateOrientationComboBoxValue();
    void updateColorFormatComboBoxValue();

    /// The user gave the selected stop a colour outright; its opacity counts where the notation carries one.
    void takeColor(const Color& color, double opacity);

    /// The colour well has a new colour.
    void colorChanged();
    /// The colour panel was opened.
    void pickingBegun() { history_.endRun(); }
    /// Takes back what was picked in the colour panel, unless something else was touched since.
    void pickingGivenUp();

    /// Selects the items of orientation and notation in the lists, or nothing new for an unknown code.
    void showChoices();

    /// Shows the colour well's colour in the fields.
    void showColor();

    /// Shows colour, position and opacity of the selected stop, if there is one, and then raises `formReady`.
    void showSelectedStop();
    /// Enables what can be edited: nothing of a stop that is not there, opacity only where the notation
    /// carries it.
    void updateEnabledState();

  private:
    const StopControlSet::Pair& pair(StopValue value) const {
        return controls_.pairs[static_cast<std::size_t>(value)];
    }
    bool handle(std::string_view step, const History::Run& run, const std::function<void()>& change);
    void takeStepper(StopValue value); ///< into the field beside it and the gradient
    void updateColorBoxFromHSL();
    void showRGB(const RGBValue& rgb);
    void showHSL();
    void setNumber(StopValue value, double number);
    void setColorBox(const RGBValue& rgb);
    void takeColorBox(); ///< into the gradient
    std::int32_t stepperInteger(StopValue value) const;

    StopControlSet controls_;
    GlobalData& record_;
    ColorMarkers& markers_;
    History& history_;
    std::function<void()> repaint_;
    std::function<void()> announce_;
    bool formReady_ = false;
};

} // namespace tessaly
