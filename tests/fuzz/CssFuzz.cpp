// Any text as CSS, and what is written from what was found read again.

#include "FuzzTarget.h"
#include "codegen/StylesheetText.h"
#include "exchange/CssReader.h"
#include "model/ColorFormat.h"

#include <cmath>
#include <string_view>

using namespace tessaly;

static bool isFraction(double value) {
    return value >= 0.0 && value <= 1.0;
}

static void requireRanges(const Gradient& gradient) {
    require(!gradient.stops().empty(), "a gradient has stops");
    require(gradient.orientation() >= orientation::bottomToTop &&
                gradient.orientation() <= orientation::radial,
            "and an orientation");
    for (const ColorStop& stop : gradient.stops()) {
        require(isFraction(stop.position) && isFraction(stop.opacity),
                "positions and opacities are fractions");
        require(stop.color.calibratedRGB() && stop.color.calibratedRGB()->alpha == 1.0, "colours are opaque");
    }
}

static void requireSame(const Gradient& read, const Gradient& gradient) {
    require(read.orientation() == gradient.orientation(), "the direction comes back");
    require(read.stops().size() == gradient.stops().size(), "so do the stops");
    for (std::size_t i = 0; i < read.stops().size(); ++i) {
        const ColorStop& a = read.stops()[i];
        const ColorStop& b = gradient.stops()[i];
        require(a.position <= b.position + 1e-6 && b.position - a.position < 0.001001,
                "positions but for digits");
        require(std::abs(a.opacity - b.opacity) < 0.0501, "opacities");
        const RGBAComponents x = a.color.calibratedRGB().value();
        const RGBAComponents y = b.color.calibratedRGB().value();
        require(std::abs(x.red - y.red) + std::abs(x.green - y.green) + std::abs(x.blue - y.blue) < 0.02,
                "colours");
    }
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    for (const FoundGradient& found : readCssGradients(text).gradients) {
        requireRanges(found.gradient);
        for (const std::string& note : found.notes) {
            require(!note.empty() && note.size() < 200, "a note is a phrase");
        }
        const auto written = stylesheetText(declarationTexts(found.gradient, colorFormat::rgba));
        const Reading again = readCssGradients(written);
        require(again.gradients.size() == 1 && again.complete, "the stylesheet holds one gradient");
        require(again.gradients.front().notes.empty(), "and nothing is changed");
        requireSame(again.gradients.front().gradient, found.gradient);
    }
    return 0;
}
