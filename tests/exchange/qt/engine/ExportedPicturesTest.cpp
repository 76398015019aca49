// What is exported of random gradients against what a real browser engine paints for their code.

#include "BoxPage.h"
#include "codegen/StandardText.h"
#include "exchange/PngWriter.h"
#include "exchange/SvgWriter.h"
#include "model/ColorFormat.h"
#include "raster/GradientPicture.h"
#include "support/TemporaryFolder.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <numeric>
#include <random>

namespace tessaly {
namespace {

constexpr int sameWithin = 2; // levels of 255

// TESSALY_PICTURES says how many gradients there are to be of each size.
int pictureCount() {
    const char* const text = std::getenv("TESSALY_PICTURES");
    return text == nullptr ? 5 : std::stoi(text);
}

// Of 2 to 20 stops whose numbers the digits of the code hold exactly. No two are at one position: two
// painters need not put a hard edge on the same side of a pixel's middle.
Gradient randomGradient(std::mt19937& random, std::int64_t orientation, std::int64_t notation) {
    const auto any = [&random](int from, int to) { return std::uniform_int_distribution{from, to}(random); };
    const auto channel = [&] {
        const int byte = any(0, 255); // the decimal notation writes those above the middle one too high
        const bool isHeld = notation == colorFormat::hexadecimal || byte < 128;
        return static_cast<float>(isHeld ? byte : 255) / 255.0F;
    };
    std::vector<int> thousandths(1001);
    std::iota(thousandths.begin(), thousandths.end(), 0);
    // A stop exactly in the middle of a row makes the engine paint that row with a full channel as 0.
    std::erase_if(thousandths, [](int n) { return n % 5 == 0 && n > 0 && n < 1000; });
    std::vector<int> positions;
    std::ranges::sample(thousandths, std::back_inserter(positions), any(2, 20), random);
    Gradient gradient{{}, orientation};
    for (const int position : positions) {
        const Color color = Color::calibratedRGB(channel(), channel(), channel());
        gradient.append({position / 1000.0, color, any(0, 10) / 10.0});
    }
    return gradient;
}

// On white, as the page has it.
QImage onWhite(QImage picture) {
    picture.convertTo(QImage::Format_ARGB32);
    auto* const pixels = reinterpret_cast<QRgb*>(picture.bits()); // rows without gaps
    std::transform(pixels, pixels + picture.sizeInBytes() / 4, pixels, [](QRgb pixel) {
        const auto over = [pixel](int channel) {
            return (channel * qAlpha(pixel) + 255 * (255 - qAlpha(pixel)) + 127) / 255;
        };
        return qRgb(over(qRed(pixel)), over(qGreen(pixel)), over(qBlue(pixel)));
    });
    return picture;
}

QImage exportedPng(const Gradient& gradient, GradientRamp::Opacity opacity, QSize size) {
    const TemporaryFolder folder;
    const auto file = folder.path / "gradient.png";
    EXPECT_FALSE(writePngFile(GradientPicture{gradient, opacity, size.width(), size.height()}, file));
    const QImage picture{QString::fromStdString(file.native())};
    EXPECT_EQ(picture.size(), size);
    return onWhite(picture);
}

int levelsOff(const QImage& one, const QImage& other) {
    const auto* const bytes = one.constBits(); // of both four a pixel
    return std::inner_product(
        bytes, bytes + one.sizeInBytes(), other.constBits(), 0, [](int a, int b) { return std::max(a, b); },
        [](int a, int b) { return std::abs(a - b); });
}

void expectSamePictures(BoxPage& page, const Gradient& gradient, std::int64_t notation, QSize size) {
    const auto opacity = GradientRamp::opacityIn(notation);
    const std::array contents{standardValueText(gradient, notation),
                              svgPictureText(gradient, opacity, size.width(), size.height())};
    const std::vector<BoxPage::Picture> painted = page.paint(contents);
    ASSERT_TRUE(painted.size() == 2 && painted[0] && painted[1]) << "the engine does not answer";
    EXPECT_LE(levelsOff(*painted[0], exportedPng(gradient, opacity, size)), sameWithin) << contents[0];
    EXPECT_LE(levelsOff(*painted[0], *painted[1]), sameWithin) << contents[0] << '\n' << contents[1];
}

class ExportedPictures : public testing::TestWithParam<QSize> {};

TEST_P(ExportedPictures, areWhatTheEnginePaints) {
    const int count = pictureCount();
    ASSERT_GT(count, 0);
    std::mt19937 random{9};
    BoxPage page{GetParam(), 1, 2};
    ASSERT_TRUE(page.open());
    for (int i = 0; i < count; ++i) {
        const std::int64_t notation = i % 4 == 3 ? colorFormat::hexadecimal : colorFormat::rgba;
        const std::int64_t orientation = i % (orientation::radial + 1);
        expectSamePictures(page, randomGradient(random, orientation, notation), notation, GetParam());
    }
}

// In numbers that every notation holds.
TEST(ExportedPicture, isWhatTheEnginePaintsInEveryOrientationAndNotation) {
    constexpr QSize size{400, 236};
    BoxPage page{size, 1, 2};
    ASSERT_TRUE(page.open());
    Gradient gradient{{{0.1, Color::calibratedRGB(1.0, 0.2, 0.0)},
                       {0.25, Color::white(), 0.5},
                       {0.6, Color::black(), 0.2},
                       {0.999, Color::calibratedRGB(0.0, 0.2, 0.4), 0.8}}};
    for (std::int64_t orientation = 0; orientation <= orientation::radial; ++orientation) {
        gradient.setOrientation(orientation);
        for (std::int64_t notation = 0; notation < std::ssize(colorFormat::notations); ++notation) {
            expectSamePictures(page, gradient, notation, size);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(InABox, ExportedPictures,
                         testing::Values(QSize{1920, 1080}, QSize{300, 300}, QSize{157, 584}, QSize{1, 1}));

} // namespace
} // namespace tessaly
