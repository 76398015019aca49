// Published gradients: what a real browser engine paints, and what is painted of them once they are read.

#include "BoxPage.h"
#include "exchange/CssReader.h"
#include "raster/GradientRaster.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <gtest/gtest.h>
#include <iomanip>
#include <iostream>
#include <map>
#include <span>

namespace tessaly {
namespace {

using Pixels = std::vector<std::uint32_t>;

constexpr int side = 101;     // of a box, in pixels
constexpr int sameWithin = 2; // levels of 255

// The prefixes of other engines stand before the same syntax as that of this one.
std::string withOwnPrefix(std::string value) {
    for (const std::string_view prefix : {"-moz-", "-ms-", "-o-"}) {
        for (std::size_t at = value.find(prefix); at != std::string::npos; at = value.find(prefix, at)) {
            value.replace(at, prefix.size(), "-webkit-");
        }
    }
    return value;
}

// A value, a tab and its source on each line, remarks behind "#".
std::vector<std::string> publishedGradients() {
    std::ifstream file{TESSALY_TEST_DATA "/gradients.tsv"};
    std::vector<std::string> values;
    for (std::string line; std::getline(file, line);) {
        if (!line.starts_with('#')) {
            values.push_back(line.substr(0, line.find('\t')));
        }
    }
    return values;
}

// In a square box on white, moved by some pixels.
Pixels painted(const Gradient& gradient, double right, double up) {
    Pixels pixels(side * side);
    const PixelBuffer buffer{pixels, side, side, 1.0, side};
    const Rect box{right, up, side, side};
    fillGradient(buffer, GradientPlace::inBox(box), gradient.orientation(),
                 GradientRamp{gradient.stops(), GradientRamp::Opacity::Drawn, {1, 1, 1, 1}});
    return pixels;
}

// By how many levels the picture is off at most. Where colours meet without a passage the two need not find
// the same side of the edge: at every pixel counts the nearest of the colours within a hair of its middle.
int levelsOff(const QImage& picture, const Gradient& gradient) {
    constexpr double hair = 0.01; // of a pixel
    const std::array pictures{painted(gradient, 0, 0), painted(gradient, hair, hair),
                              painted(gradient, -hair, hair), painted(gradient, hair, -hair),
                              painted(gradient, -hair, -hair)};
    int most = 0;
    for (int i = 0; i < side * side; ++i) {
        const QRgb theirs = picture.pixel(i % side, i / side);
        for (const unsigned shift : {0U, 8U, 16U}) {
            const auto channel = [shift](std::uint32_t pixel) {
                return static_cast<int>(pixel >> shift & 0xFFU);
            };
            const auto ours = [&](const Pixels& pixels) {
                return channel(pixels[static_cast<std::size_t>(i)]);
            };
            std::array<int, pictures.size()> near{};
            std::ranges::transform(pictures, near.begin(), ours);
            const auto [low, high] = std::ranges::minmax(near);
            most = std::max({most, low - channel(theirs), channel(theirs) - high});
        }
    }
    return most;
}

// What comes of a value: what it is called, and which values it came of.
using Outcomes = std::map<std::string_view, std::vector<std::string>>;

constexpr std::string_view mistaken = "another picture, nothing told";

std::string_view outcome(const BoxPage::Picture& picture, const Reading& reading) {
    const bool isRead = !reading.gradients.empty();
    if (!picture) {
        return isRead ? "refused by this engine, read" : "refused by this engine, not read";
    }
    if (!isRead) {
        return "painted, not read";
    }
    const FoundGradient& found = reading.gradients.front();
    if (levelsOff(*picture, found.gradient) <= sameWithin) {
        return found.notes.empty() ? "the same picture, nothing told"
                                   : "the same picture in a square box, told";
    }
    return found.notes.empty() ? mistaken : "another picture, told";
}

Outcomes outcomesOf(const std::vector<std::string>& values, BoxPage& page) {
    Outcomes outcomes;
    for (std::size_t first = 0; first < values.size(); first += page.mostBoxes()) {
        const std::size_t count = std::min(page.mostBoxes(), values.size() - first);
        const std::span batch = std::span{values}.subspan(first, count);
        std::vector<std::string> forEngine(count);
        std::ranges::transform(batch, forEngine.begin(), withOwnPrefix);
        const std::vector<BoxPage::Picture> pictures = page.paint(forEngine);
        EXPECT_EQ(pictures.size(), count) << "the engine does not answer";
        for (std::size_t i = 0; i < pictures.size(); ++i) {
            outcomes[outcome(pictures[i], readCssGradients(batch[i]))].push_back(batch[i]);
        }
    }
    return outcomes;
}

TEST(PublishedGradients, areTheSamePictureUnlessSomethingIsTold) {
    const std::vector<std::string> values = publishedGradients();
    BoxPage page{{side, side}, 12, 9};
    ASSERT_TRUE(page.open());
    Outcomes outcomes = outcomesOf(values, page);
    for (const auto& [name, all] : outcomes) {
        std::cout << std::setw(5) << all.size() << "  " << name << '\n';
    }
    EXPECT_EQ(outcomes[mistaken], std::vector<std::string>{});
    EXPECT_EQ(outcomes["painted, not read"], std::vector<std::string>{});
    EXPECT_GE(outcomes["the same picture, nothing told"].size(), 400U); // the oldest engine paints so many
}

} // namespace
} // namespace tessaly
