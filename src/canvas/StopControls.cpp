#include "canvas/StopControls.h"

#include "canvas/NumberFormatter.h"
#include "canvas/OrientationItems.h"
#include "foundation/DiagnosticLog.h"
#include "foundation/NumberText.h"
#include "foundation/Truncation.h"

#include <algorithm>
#include <utility>

namespace tessaly {
namespace {

// From channels 0 ... 255, computed in single precision.
Color generateSelectedColor(std::int64_t red, std::int64_t green, std::int64_t blue) {
    const auto component = [](std::int64_t channel) {
        return static_cast<double>(static_cast<float>(channel) / 255.0F);
    };
    return Color::calibratedRGB(component(red), component(green), component(blue));
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

} // namespace

StopControls::StopControls(const StopControlSet& controls, GlobalData& record, ColorMarkers& markers,
                           std::function<void()> repaint, std::function<void()> announce)
    : controls_{controls},
      record_{record},
      markers_{markers},
      repaint_{std::move(repaint)},
      announce_{std::move(announce)} {}

void StopControls::handle(const std::function<void()>& change) {
    if (!formReady_) {
        return;
    }
    formReady_ = false;
    change();
    repaint_();
    formReady_ = true;
}

void StopControls::updateTextFieldValue(StopValue value) {
    handle([&] {
        const auto& [field, stepper] = pair(value);
        double number = NumberFormatter{value}.value(field->text());
        if (!traitsOf(value).decimal) {
            number = static_cast<double>(static_cast<float>(number));
        }
        stepper->setValue(number);
        const bool inRange = number >= stepper->minimum() && number <= stepper->maximum();
        field->setText(NumberFormatter{value}.text(inRange ? number : stepper->value()));
        apply(value);
    });
}

void StopControls::updateStepperValue(StopValue value) {
    handle([&] {
        pair(value).field->setText(NumberFormatter{value}.text(pair(value).stepper->value()));
        apply(value);
    });
}

void StopControls::apply(StopValue value) {
    switch (value) {
    case StopValue::Red:
    case StopValue::Green:
    case StopValue::Blue:
        updateColorBoxFromRGB();
        updateHSLFromColorBox();
        break;
    case StopValue::Hue:
    case StopValue::Saturation:
    case StopValue::Lightness:
        updateColorBoxFromHSL();
        break;
    case StopValue::Position:
        markers_.changeSelected([&](ColorStop& stop) { stop.position = pair(value).stepper->value(); });
        break;
    case StopValue::Opacity:
        markers_.changeSelected([&](ColorStop& stop) { stop.opacity = pair(value).stepper->value(); });
        break;
    }
}

void StopControls::updateOrientationComboBoxValue() {
    handle([&] {
        const std::int64_t item = controls_.selectedOrientationComboBox->indexOfSelectedItem();
        if (item >= 0 && item < std::ssize(orientationItems)) {
            record_.gradient.setOrientation(orientationItems[static_cast<std::size_t>(item)].code);
        }
    });
}

void StopControls::updateColorFormatComboBoxValue() {
    if (!formReady_) {
        return;
    }
    handle([&] {
        const std::int64_t item = controls_.selectedColorFormatComboBox->indexOfSelectedItem();
        if (colorFormat::isKnown(item)) {
            record_.colorFormatType = item;
        }
        updateEnabledState();
    });
    announce_(); // once more than the repaint did: deliberate, listeners hear a change of notation twice
}

void StopControls::colorChanged() {
    handle([&] {
        DiagnosticLog::write("colorChangedNotification");
        takeColorBox();
        updateRGBFromColorBox();
        updateHSLFromColorBox();
    });
}

void StopControls::updateOrientationTypeComboBox() {
    const std::int64_t code = record_.gradient.orientation();
    const auto item = std::find_if(orientationItems.begin(), orientationItems.end(),
                                   [&](const OrientationItem& candidate) { return candidate.code == code; });
    if (item != orientationItems.end()) {
        controls_.selectedOrientationComboBox->selectItemAtIndex(item - orientationItems.begin());
    }
}

void StopControls::updateColorFormatTypeComboBox() {
    const std::int64_t code = record_.colorFormatType;
    if (colorFormat::isKnown(code)) {
        controls_.selectedColorFormatComboBox->selectItemAtIndex(code);
    }
    updateEnabledState();
}

std::int64_t StopControls::stepperInteger(StopValue value) const {
    return truncated(pair(value).stepper->value());
}

void StopControls::setNumber(StopValue value, double number) {
    // The field may show what its stepper cannot hold: a full channel reads 256 beside 255.
    pair(value).stepper->setValue(number);
    pair(value).field->setText(NumberFormatter{value}.text(number));
}

void StopControls::setColorBox(std::int64_t red, std::int64_t green, std::int64_t blue) {
    controls_.selectedColor->setBackgroundColor(generateSelectedColor(red, green, blue));
    takeColorBox();
}

void StopControls::takeColorBox() {
    markers_.changeSelected(
        [&](ColorStop& stop) { stop.color = controls_.selectedColor->backgroundColor(); });
}

void StopControls::updateColorBoxFromRGB() {
    setColorBox(stepperInteger(StopValue::Red), stepperInteger(StopValue::Green),
                stepperInteger(StopValue::Blue));
}

void StopControls::updateColorBoxFromHSL() {
    const HSLValue hsl{static_cast<double>(stepperInteger(StopValue::Hue)),
                       static_cast<double>(stepperInteger(StopValue::Saturation)),
                       static_cast<double>(stepperInteger(StopValue::Lightness))};
    const RGBValue rgb = hslToRGB(hsl);
    logConversion(hsl, rgb);
    showRGB(rgb);
    setColorBox(rgb.red, rgb.green, rgb.blue);
}

void StopControls::showRGB(const RGBValue& rgb) {
    setNumber(StopValue::Red, rgb.red);
    setNumber(StopValue::Green, rgb.green);
    setNumber(StopValue::Blue, rgb.blue);
}

void StopControls::updateRGBFromColorBox() {
    showRGB(rgbValueOfAnNSColor(controls_.selectedColor->backgroundColor()));
}

void StopControls::updateHSLFromColorBox() {
    const HSLValue hsl = hslValueOfAnNSColor(controls_.selectedColor->backgroundColor());
    setNumber(StopValue::Hue, static_cast<double>(truncated(hsl.hue)));
    setNumber(StopValue::Saturation, static_cast<double>(truncated(hsl.saturation)));
    setNumber(StopValue::Lightness, static_cast<double>(truncated(hsl.lightness)));
}

void StopControls::showSelectedStop() {
    const auto stop = markers_.selectedStop();
    if (!stop) {
        return;
    }
    controls_.selectedColor->setBackgroundColor(stop->color);
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
    const std::int64_t code = record_.colorFormatType;
    if (colorFormat::isKnown(code)) {
        opacityEditable_ = colorFormat::carriesOpacity(code);
    }
    for (const StopValueTraits& traits : stopValues) {
        const bool enabled = anyStop && (traits.value != StopValue::Opacity || opacityEditable_);
        pair(traits.value).field->setEnabled(enabled);
        pair(traits.value).stepper->setEnabled(enabled);
    }
    controls_.selectedColor->setEnabled(anyStop);
}

} // namespace tessaly
