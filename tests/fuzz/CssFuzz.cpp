// Any text as CSS, and what is written from what was found read again.

#include "FuzzTarget.h"
#include "codegen/StylesheetText.h"
#include "exchange/CssReader.h"
#include "support/SameGradient.h"

#include <string>

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
        require(isSameButForDigits(again.gradients.front().gradient, found.gradient, colorFormat::rgba),
                "the gradient comes back");
    }
    return 0;
}
