#pragma once

#include "model/Color.h"
#include "model/ColorConversion.h"
#include "model/ColorFormat.h"
#include "model/Gradient.h"

#include <cstdint>
#include <string>
#include <utility>

namespace tessaly {

/// The record of what is being edited: the gradient, the notation of its code, and where the preview lies.
/// Setters neither check nor notify: whoever changes the gradient announces it. Main thread only.
class GlobalData {
  public:
    GlobalData() = default;

    /// The one record of the process.
    static GlobalData& sharedData();

    Gradient& gradient() { return gradient_; }
    const Gradient& gradient() const { return gradient_; }

    /// One of the codes of ColorFormat.h, or any other value for none.
    std::int64_t colorFormatType() const { return colorFormatType_; }
    void setColorFormatType(std::int64_t code) { colorFormatType_ = code; }

    /// Path of the preview folder; empty until there is one.
    const std::string& tempFolderPath() const { return tempFolderPath_; }
    void setTempFolderPath(std::string path) { tempFolderPath_ = std::move(path); }

    /// Channels rounded, so that a full one is deliberately 256; zeros for a colour without RGB form.
    static RGBValue rgbValueOfAnNSColor(const Color& color);

    /// Hue as a whole number 0 ... 360; zeros for a colour without RGB form.
    static HSLValue hslValueOfAnNSColor(const Color& color);

    /// Channels as computed, never clamped: hue 120 gives a red of -1. Writes what it computed to the log.
    static RGBValue hslToRGB(const HSLValue& hsl);

  private:
    Gradient gradient_;
    std::int64_t colorFormatType_ = colorFormat::hexadecimal;
    std::string tempFolderPath_;
};

} // namespace tessaly
