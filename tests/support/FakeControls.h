#pragma once

#include "canvas/CanvasNotification.h"
#include "canvas/CanvasScene.h"
#include "canvas/CanvasSurface.h"
#include "canvas/StopControls.h"
#include "foundation/NotificationCenter.h"

#include <algorithm>

namespace tessaly {

/// Any control that can be disabled.
template <typename Control>
struct FakeControl : Control {
    void setEnabled(bool value) override { enabled = value; }
    bool enabled = true;
};

struct FakeField : FakeControl<TextField> {
    std::string text() const override { return shown; }
    void setText(std::string_view text) override { shown = text; }
    std::string shown;
};

struct FakeStepper : FakeControl<Stepper> {
    double value() const override { return held; }
    void setValue(double value) override { held = std::clamp(value, 0.0, most); }
    double held = 0.0;
    double most = 1.0;
};

/// Announces every setting, as the real well does.
struct FakeWell : FakeControl<ColorWell> {
    Color backgroundColor() const override { return shown; }
    void setBackgroundColor(const Color& color) override {
        shown = color;
        NotificationCenter::defaultCenter().post({canvasNotification::colorChanged, this, {}});
    }
    Color shown;
};

struct FakeComboBox : ComboBox {
    std::int64_t indexOfSelectedItem() const override { return selected; }
    void selectItemAtIndex(std::int64_t index) override { selected = index; }
    std::int64_t selected = -1;
};

struct FakeSurface : CanvasSurface {
    void paint(const CanvasScene& shown) override { ++paints, scene = shown; }
    int paints = 0;
    std::optional<CanvasScene> scene;
};

/// One of each control that the canvas works with; the arrays by StopValue.
struct FakeControls {
    FakeControls() {
        for (std::size_t i = 0; i < stopValues.size(); ++i) {
            steppers[i].most = stopValues[i].maximum;
            set.pairs[i] = {&fields[i], &steppers[i]};
        }
    }
    std::array<FakeField, stopValues.size()> fields;
    std::array<FakeStepper, stopValues.size()> steppers;
    FakeWell well;
    FakeField hexadecimal;
    FakeComboBox orientation;
    FakeComboBox colorFormat;
    StopControlSet set{{}, &well, &hexadecimal, &orientation, &colorFormat};
};

} // namespace tessaly
