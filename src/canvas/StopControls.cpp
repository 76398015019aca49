#include "canvas/StopControls.h"

#include "canvas/NumberFormatter.h"
#include "foundation/DiagnosticLog.h"
#include "foundation/NumberText.h"
#include "model/EditStep.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tessaly {
namespace {

Color colorOf(const RGBValue& rgb) {
    const auto [red, green, blue, alpha] =
        rgbOfBytes(static_cast<float>(rgb.red), static_cast<float>(rgb.green), static_cast<float>(rgb.blue));
    return Color::calibratedRGB(red, green, blue, alpha);
}

void logConversion(const HSLValue& hsl, const RGBValue& rgb) {
    if (hsl.saturation != 0) { // a grey has no hue to convert
        const auto [red, green, blue] = huePositions(hsl.hue);
        DiagnosticLog::write("Temporary RGB: " + fixedText(red, 6) + ", " + fixedText(green, 6) + ", " +
                             fixedText(blue, 6));
    }
    DiagnosticLog::write("RGB: " + std::to_string(rgb.red) + ", " + std::to_string(rgb.green) + ", " +
                         std::to_string(rgb.blue));
}

constexpr History::Run picking{"Color panel", History::anyPause};

std::string_view stepOf(StopValue value) {
    switch (value) {
    case StopValue::Position:
        return editStep::changePosition;
    case StopValue::Opacity:
        return editStep::changeOpacity;
    default:
        return editStep::changeColor;
    }
}

} // namespace

StopControls::StopControls(const StopControlSet& controls, GlobalData& record, ColorMarkers& markers,
                           History& history, std::function<void()> repaint, std::function<void()> announce)
    : controls_{controls},
      record_{record},
      markers_{markers},
      history_{history},
      repaint_{std::move(repaint)},
      announce_{std::move(announce)} {}

bool StopControls::handle(std::string_view step, const History::Run& run,
                          const std::function<void()>& change) {
    if (!formReady_) {
        return false;
    }
    formReady_ = false;
    history_.act(step, run, [&] {
        change();
        repaint_();
    });
    formReady_ = true;
    return true;
}

void StopControls::updateTextFieldValue(StopValue value) {
    handle(stepOf(value), {}, [&] {
        const auto& [field, stepper] = pair(value);
        stepper->setValue(NumberFormatter{value}.value(field->text()));
        takeStepper(value);
    });
}

void StopControls::updateStepperValue(StopValue value) {
    handle(stepOf(value), {traitsOf(value).name}, [&] { takeStepper(value); });
}

void StopControls::takeStepper(StopValue value) {
    const double number = pair(value).stepper->value();
    pair(value).field->setText(NumberFormatter{value}.text(number));
    switch (value) {
    case StopValue::Red:
    case StopValue::Green:
    case StopValue::Blue:
        setColorBox({stepperInteger(StopValue::Red), stepperInteger(StopValue::Green),
                     stepperInteger(StopValue::Blue)});
        showHSL();
        break;
    case StopValue::Hue:
    case StopValue::Saturation:
    case StopValue::Lightness:
        updateColorBoxFromHSL();
        break;
    case StopValue::Position:
        markers_.changeSelected([&](ColorStop& stop) { stop.position = number; });
        break;
    case StopValue::Opacity:
        markers_.changeSelected([&](ColorStop& stop) { stop.opacity = number; });
        break;
    }
}

void StopControls::updateOrientationComboBoxValue() {
    handle(editStep::changeOrientation, {"Orientation"}, [&] {
        const std::int64_t item = controls_.selectedOrientationComboBox->indexOfSelectedItem();
        if (item >= 0 && item < std::ssize(orientation::items)) {
            record_.gradient.setOrientation(orientation::items[static_cast<std::size_t>(item)].code);
        }
    });
}

void StopControls::updateColorFormatComboBoxValue() {
    const bool handled = handle(editStep::changeNotation, {"Color notation"}, [&] {
        const std::int64_t item = controls_.selectedColorFormatComboBox->indexOfSelectedItem();
        if (colorFormat::isKnown(item)) {
            record_.colorFormatType = item;
        }
    });
    if (handled) {
        announce_(); // once more than the repaint did: deliberate, listeners hear a change of notation twice
    }
}

void StopControls::colorChanged() {
    handle(editStep::changeColor, picking, [&] {
        DiagnosticLog::write("colorChangedNotification");
        takeColorBox();
        showColor();
    });
}

void StopControls::takeColor(const Color& color, double opacity) {
    handle(editStep::changeColor, {}, [&] {
        controls_.selectedColor->setBackgroundColor(color);
        markers_.changeSelected([&](ColorStop& stop) {
            stop.color = color;
            stop.opacity = colorFormat::carriesOpacity(record_.colorFormatType) ? opacity : stop.opacity;
        });
        showColor();
    });
}

void StopControls::pickingGivenUp() {
    history_.undoRun(picking.control);
}

void StopControls::showChoices() {
    const auto item =
        std::ranges::find(orientation::items, record_.gradient.orientation(), &orientation::Item::code);
    if (item != orientation::items.end()) {
        controls_.selectedOrientationComboBox->selectItemAtIndex(item - orientation::items.begin());
    }
    if (colorFormat::isKnown(record_.colorFormatType)) {
        controls_.selectedColorFormatComboBox->selectItemAtIndex(record_.colorFormatType);
    }
}

std::int32_t StopControls::stepperInteger(StopValue value) const {
    return static_cast<std::int32_t>(pair(value).stepper->value());
}

void StopControls::setNumber(StopValue value, double number) {
    // The field may show what its stepper cannot hold: a full channel reads 256 beside 255.
    pair(value).stepper->setValue(number);
    pair(value).field->setText(NumberFormatter{value}.text(number));
}

void StopControls::setColorBox(const RGBValue& rgb) {
    controls_.selectedColor->setBackgroundColor(colorOf(rgb));
    takeColorBox();
}

void StopControls::takeColorBox() {
    markers_.changeSelected(
        [&](ColorStop& stop) { stop.color = controls_.selectedColor->backgroundColor(); });
}

void StopControls::updateColorBoxFromHSL() {
    const HSLValue hsl{std::trunc(pair(StopValue::Hue).stepper->value()),
                       std::trunc(pair(StopValue::Saturation).stepper->value()),
                       std::trunc(pair(StopValue::Lightness).stepper->value())};
    const RGBValue rgb = hslToRGB(hsl);
    logConversion(hsl, rgb);
    showRGB(rgb);
    setColorBox(rgb);
}

void StopControls::showRGB(const RGBValue& rgb) {
    setNumber(StopValue::Red, rgb.red);
    setNumber(StopValue::Green, rgb.green);
    setNumber(StopValue::Blue, rgb.blue);
}

void StopControls::showHSL() {
    const HSLValue hsl = hslValueOfAnNSColor(controls_.selectedColor->backgroundColor());
    setNumber(StopValue::Hue, std::trunc(hsl.hue));
    setNumber(StopValue::Saturation, std::trunc(hsl.saturation));
    setNumber(StopValue::Lightness, std::trunc(hsl.lightness));
}

void StopControls::showColor() {
    showRGB(rgbValueOfAnNSColor(controls_.selectedColor->backgroundColor()));
    showHSL();
}

void StopControls::showSelectedStop() {
    const auto stop = markers_.selectedStop();
    if (!stop) {
        return;
    }
    controls_.selectedColor->setBackgroundColor(stop->color);
    controls_.hexadecimal->setText(hexadecimalText(stop->color).value_or(""));
    formReady_ = false;
    for (const auto& [value, number] :
         {std::pair{StopValue::Position, stop->position}, std::pair{StopValue::Opacity, stop->opacity}}) {
        pair(value).field->setText(fixedText(number, 3));
        pair(value).stepper->setValue(number);
    }
    formReady_ = true; // even when it was down before: deliberate, a repaint leaves the form open for input
}

void StopControls::updateEnabledState() {
    const bool anyStop = markers_.selectedStop().has_value();
    const bool anyOpacity = colorFormat::carriesOpacity(record_.colorFormatType);
    for (const StopValueTraits& traits : stopValues) {
        const bool enabled = anyStop && (traits.value != StopValue::Opacity || anyOpacity);
        pair(traits.value).field->setEnabled(enabled);
        pair(traits.value).stepper->setEnabled(enabled);
    }
    controls_.hexadecimal->setEnabled(anyStop);
    controls_.selectedColor->setEnabled(anyStop);
}

} // namespace tessaly
