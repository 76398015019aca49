#pragma once

#include "model/Color.h"
#include "model/ColorConversion.h"
#include "model/ColorFormat.h"
#include "model/ColorStop.h"
#include "model/Orientation.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tessaly {

/// The gradient being edited: three parallel arrays of colour stops, an orientation and a notation code.
///
/// Element i of each array describes stop i. Adding a stop changes all three; deleting one deliberately
/// leaves its opacity behind, so the opacities may be more than the stops, never fewer. The order is that of
/// the editor, which is ascending unless a position was typed. There may be no stops. Setters neither check
/// nor notify: whoever changes the gradient announces it. Main thread only.
class GlobalData {
  public:
    GlobalData() = default;

    /// The one record of the process.
    static GlobalData& sharedData();

    bool formReady() const { return formReady_; }
    void setFormReady(bool ready) { formReady_ = ready; }

    /// Path of the preview folder; empty until there is one.
    const std::string& tempFolderPath() const { return tempFolderPath_; }
    void setTempFolderPath(std::string path) { tempFolderPath_ = std::move(path); }

    /// One of the codes of Orientation.h, or any other value for none.
    std::int64_t orientationType() const { return orientationType_; }
    void setOrientationType(std::int64_t code) { orientationType_ = code; }

    /// One of the codes of ColorFormat.h, or any other value for none.
    std::int64_t colorFormatType() const { return colorFormatType_; }
    void setColorFormatType(std::int64_t code) { colorFormatType_ = code; }

    /// Positions along the gradient, 0.0 ... 1.0. The live array.
    std::vector<double>& colorMarkerPos() { return colorMarkerPos_; }
    const std::vector<double>& colorMarkerPos() const { return colorMarkerPos_; }
    void setColorMarkerPos(std::vector<double> positions) { colorMarkerPos_ = std::move(positions); }

    /// Colours of the stops; their own alpha is not the stop's opacity. The live array.
    std::vector<Color>& colorMarkerColor() { return colorMarkerColor_; }
    const std::vector<Color>& colorMarkerColor() const { return colorMarkerColor_; }
    void setColorMarkerColor(std::vector<Color> colors) { colorMarkerColor_ = std::move(colors); }

    /// Opacities of the stops, 0.0 ... 1.0 (opaque). The live array.
    std::vector<double>& colorMarkerOpacity() { return colorMarkerOpacity_; }
    const std::vector<double>& colorMarkerOpacity() const { return colorMarkerOpacity_; }
    void setColorMarkerOpacity(std::vector<double> opacities) { colorMarkerOpacity_ = std::move(opacities); }

    /// How many stops the three arrays hold completely.
    std::size_t stopCount() const;

    /// Stop `index`, or none when there is no such stop.
    std::optional<ColorStop> stopAt(std::int64_t index) const;

    /// Channels rounded, so that a full one is deliberately 256; zeros for a colour without RGB form.
    static RGBValue rgbValueOfAnNSColor(const Color& color);

    /// Hue as a whole number 0 ... 360; zeros for a colour without RGB form.
    static HSLValue hslValueOfAnNSColor(const Color& color);

    /// Channels as computed, never clamped: hue 120 gives a red of -1. Writes what it computed to the log.
    static RGBValue hslToRGB(const HSLValue& hsl);

  private:
    bool formReady_ = false;
    std::string tempFolderPath_;
    std::int64_t orientationType_ = orientation::leftToRight;
    std::int64_t colorFormatType_ = colorFormat::hexadecimal;
    std::vector<double> colorMarkerPos_;
    std::vector<Color> colorMarkerColor_;
    std::vector<double> colorMarkerOpacity_;
};

} // namespace tessaly
