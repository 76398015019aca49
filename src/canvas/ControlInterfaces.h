#pragma once

#include "model/Color.h"

#include <cstdint>
#include <string>
#include <string_view>

/// What the rules of the canvas ask of the controls beside it. Setting a value never counts as user input.
namespace tessaly {

/// A text field.
class TextField {
  public:
    virtual ~TextField() = default;
    virtual std::string text() const = 0;
    virtual void setText(std::string_view text) = 0;
    virtual void setEnabled(bool enabled) = 0;
};

/// A stepper; it keeps its value within its bounds.
class Stepper {
  public:
    virtual ~Stepper() = default;
    virtual double value() const = 0;
    virtual void setValue(double value) = 0;
    virtual void setEnabled(bool enabled) = 0;
};

/// A swatch that shows a colour and announces every setting of it with "ColorChanged", itself as object.
class ColorWell {
  public:
    virtual ~ColorWell() = default;
    virtual Color backgroundColor() const = 0;
    virtual void setBackgroundColor(const Color& color) = 0;
    virtual void setEnabled(bool enabled) = 0;
};

/// A list to choose one item from.
class ComboBox {
  public:
    virtual ~ComboBox() = default;
    virtual std::int64_t indexOfSelectedItem() const = 0;
    virtual void selectItemAtIndex(std::int64_t index) = 0;
};

} // namespace tessaly
