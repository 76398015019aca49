#include "exchange/PngWriter.h"
#include "raster/GradientPicture.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <png.h>

namespace tessaly {
namespace {

GradientPicture pictureOf(int width, int height) {
    const Gradient shaded{{{0.0, Color::calibratedRGB(0.2, 0.4, 0.6), 0.0}, {0.7, Color::white(), 0.5}},
                          orientation::radial};
    return {shaded, GradientRamp::Opacity::Drawn, width, height};
}

std::vector<std::uint32_t> decoded(const std::filesystem::path& file) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    EXPECT_NE(png_image_begin_read_from_file(&image, file.c_str()), 0) << image.message;
    EXPECT_EQ(image.format, static_cast<png_uint_32>(PNG_FORMAT_RGBA)) << "8 bits, with alpha";
    std::vector<std::uint32_t> pixels(std::size_t{image.width} * image.height);
    EXPECT_NE(png_image_finish_read(&image, nullptr, pixels.data(), 0, nullptr), 0) << image.message;
    return pixels;
}

TEST(PngWriter, writesThePictureRowByRowAndTellsHowFarItIs) {
    const TemporaryFolder temporary;
    const auto file = temporary.path / "gradient.png";
    for (const GradientPicture& picture :
         {pictureOf(1, 1), pictureOf(157, 584), pictureOf(GradientPicture::largestSide, 9)}) {
        std::vector<std::uint32_t> expected(static_cast<std::size_t>(picture.width() * picture.height()));
        picture.fillRows(0, expected);
        double last = 0;
        const auto grows = [&last](double share) { return share > std::exchange(last, share); };
        EXPECT_FALSE(writePngFile(picture, file, grows)) << picture.width();
        EXPECT_EQ(decoded(file), expected) << picture.width();
        EXPECT_EQ(last, 1.0);
        EXPECT_NE(contentsOf(file).find("sRGB"), std::string::npos);
    }
}

TEST(PngWriter, leavesTheOldFileWhenItIsEnded) {
    const TemporaryFolder temporary;
    const auto file = temporary.path / "gradient.png";
    std::ofstream{file} << "old";
    const GradientPicture picture = pictureOf(1000, 1000);
    const auto untilHalf = [](double share) { return share < 0.5; };
    EXPECT_EQ(writePngFile(picture, file, untilHalf), std::errc::operation_canceled);
    EXPECT_EQ(contentsOf(file), "old");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator{temporary.path}, {}), 1);
}

TEST(PngWriter, tellsWhereverItFails) {
    int calls = 0;
    const GradientPicture picture = pictureOf(300, 300);
    EXPECT_FALSE(writePng(picture, [&](auto) { return ++calls, std::error_code{}; }));
    for (int failing = 1; failing <= calls; ++failing) {
        int call = 0;
        const auto fails = [&](auto) {
            return ++call == failing ? std::make_error_code(std::errc::io_error) : std::error_code{};
        };
        EXPECT_EQ(writePng(picture, fails), std::errc::io_error) << failing;
        EXPECT_EQ(call, failing) << "nothing is written after a failure";
    }
    EXPECT_EQ(writePng(pictureOf(1'600'000, 1), [](auto) { return std::error_code{}; }),
              std::errc::not_enough_memory)
        << "more than the encoder takes";
}

} // namespace
} // namespace tessaly
