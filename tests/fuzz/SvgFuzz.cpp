// Any bytes as a document of SVG: what comes of it is a gradient that the program can show, write and read
// again.

#include "FuzzTarget.h"
#include "exchange/PresetTexts.h"
#include "exchange/Readers.h"
#include "exchange/SvgReader.h"
#include "model/Orientation.h"

#include <algorithm>
#include <string>

using namespace tessaly;

static bool isShare(double value) {
    return value >= 0.0 && value <= 1.0;
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

    const auto again = readSvgGradients(presetsSvgText({&found.gradient, 1}));
    require(again.gradients.size() == 1, "what is written is found");
    require(again.gradients[0].gradient == found.gradient, "and is the same");
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    readGradients(text);
    std::ranges::for_each(readSvgGradients(text).gradients, check);
    double last = 0.0;
    const auto ended = readSvgGradients(text, [&last](double share) {
        require(share >= last && share <= 1.0, "the share that is read grows");
        last = share;
        return false;
    });
    require(ended.gradients.empty(), "nothing comes of a reading that was ended");
    return 0;
}
