#pragma once

#include "canvas/CanvasNotifications.h"
#include "canvas/CanvasScene.h"
#include "canvas/CanvasSurface.h"
#include "canvas/StopControls.h"
#include "foundation/NotificationCenter.h"

#include <algorithm>
#include <array>

namespace tessaly {

struct FakeField : NumberField {
    std::string text() const override { return shown; }
    void setText(std::string_view text) override { shown = text; }
    void setEnabled(bool value) override { enabled = value; }

    std::string shown;
    bool enabled = true;
};

struct FakeStepper : Stepper {
    double value() const override { return held; }
    void setValue(double value) override { held = std::clamp(value, 0.0, most); }
    double minimum() const override { return 0.0; }
    double maximum() const override { return most; }
    void setEnabled(bool value) override { enabled = value; }

    double held = 0.0;
    double most = 1.0;
    bool enabled = true;
};

/// Announces every setting, and keeps no colour without RGB form, as the real well does.
struct FakeWell : ColorWell {
    Color backgroundColor() const override { return shown; }
    void setBackgroundColor(const Color& color) override {
        shown = color.calibratedRGB() ? color : Color::calibratedRGB(0.75, 0.75, 0.75);
        NotificationCenter::defaultCenter().post({canvasNotification::colorChanged, this, {}});
    }
    void setEnabled(bool value) override { enabled = value; }

    Color shown;
    bool enabled = true;
};

struct FakeComboBox : ComboBox {
    std::int64_t indexOfSelectedItem() const override { return selected; }
    void selectItemAtIndex(std::int64_t index) override { selected = index; }

    std::int64_t selected = -1;
};

struct FakeSurface : CanvasSurface {
    void paint(const CanvasScene& scene) override {
        ++paints;
        markers = scene.markers;
    }
    void setNeedsDisplay() override { ++redraws; }

    int paints = 0;
    int redraws = 0;
    std::vector<CanvasScene::Marker> markers;
};

/// One of each control that the canvas works with.
struct FakeControls {
    FakeControls() {
        for (const StopValueTraits& traits : stopValues) {
            stepper(traits.value).most = traits.maximum;
        }
    }

    FakeField& field(StopValue value) { return fields[static_cast<std::size_t>(value)]; }
    FakeStepper& stepper(StopValue value) { return steppers[static_cast<std::size_t>(value)]; }

    StopControlSet set() {
        StopControlSet all;
        for (std::size_t i = 0; i < stopValues.size(); ++i) {
            all.pairs[i] = {&fields[i], &steppers[i]};
        }
        all.selectedColor = &well;
        all.selectedOrientationComboBox = &orientation;
        all.selectedColorFormatComboBox = &colorFormat;
        return all;
    }

    std::array<FakeField, stopValues.size()> fields;
    std::array<FakeStepper, stopValues.size()> steppers;
    FakeWell well;
    FakeComboBox orientation;
    FakeComboBox colorFormat;
};

} // namespace tessaly
