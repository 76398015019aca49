// Any bytes as a document of SVG: what comes of it is a gradient that the program can show, write and read
// again.

#include "FuzzTarget.h"
#include "exchange/Readers.h"
#include "exchange/SvgReader.h"
#include "foundation/NumberText.h"
#include "model/Orientation.h"

#include <algorithm>
#include <string>

using namespace tessaly;

static bool isShare(double value) {
    return value >= 0.0 && value <= 1.0;
}

static std::string number(double value) {
    return fixedText(value, 17);
}

// The gradient as a document of its own, its colors by their bytes.
static std::string written(const Gradient& gradient) {
    constexpr std::string_view ways[] = {"<linearGradient x2='0' y1='1'>", "<linearGradient>",
                                         "<linearGradient y1='1'>", "<linearGradient x1='1' x2='0' y1='1'>"};
    const bool isRadial = gradient.orientation() == orientation::radial;
    std::string text = "<svg>";
    text += isRadial ? "<radialGradient r='.70710678'>" : ways[gradient.orientation()];
    for (const ColorStop& stop : gradient.stops()) {
        const RGBAComponents color = stop.color.calibratedRGB().value();
        text += "<stop offset='" + number(stop.position) + "' stop-opacity='" + number(stop.opacity) +
                "' stop-color='#";
        for (const double channel : {color.red, color.green, color.blue}) {
            text += hexByteText(static_cast<std::uint32_t>(channel * 255.0 + 0.5));
        }
        text += "'/>";
    }
    return text + (isRadial ? "</radialGradient></svg>" : "</linearGradient></svg>");
}

static void check(const FoundGradient& found) {
    const auto& stops = found.gradient.stops();
    require(!stops.empty() && stops.size() <= 10'000, "there are stops, and not too many");
    require(found.gradient.orientation() >= 0 && found.gradient.orientation() <= orientation::radial,
            "it is of one of the orientations");
    require(std::ranges::all_of(stops,
                                [](const ColorStop& stop) {
                                    return isShare(stop.position) && isShare(stop.opacity) &&
                                           stop.color.calibratedRGB();
                                }),
            "positions and opacities are shares");
    require(std::ranges::none_of(found.notes, &std::string::empty), "notes say something");

    const auto again = readSvgGradients(written(found.gradient));
    require(again && again->gradients.size() == 1, "what is written is found");
    const Gradient& same = again->gradients[0].gradient;
    require(same.orientation() == found.gradient.orientation() &&
                std::ranges::equal(same.stops(), stops,
                                   [](const ColorStop& a, const ColorStop& b) {
                                       return std::abs(a.position - b.position) < 1e-12 &&
                                              std::abs(a.opacity - b.opacity) < 1e-12;
                                   }),
            "and is the same");
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    readGradients(text);
    const auto reading = readSvgGradients(text);
    require(!reading || !reading->gradients.empty(), "a reading has gradients");
    if (reading) {
        std::ranges::for_each(reading->gradients, check);
    }
    double last = 0.0;
    const auto ended = readSvgGradients(text, [&last](double share) {
        require(share >= last && share <= 1.0, "the share that is read grows");
        last = share;
        return false;
    });
    require(!ended || ended->gradients.empty(), "nothing comes of a reading that was ended");
    return 0;
}
