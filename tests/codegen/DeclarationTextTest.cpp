#include "codegen/DeclarationText.h"
#include "codegen/ColorNotation.h"
#include "model/ColorFormat.h"
#include "model/Gradient.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

// The colour in all notations, in the order of their codes.
std::string notations(const Color& color, double opacity) {
    std::string texts;
    for (std::int64_t code = 0; code < std::ssize(colorFormat::notations); ++code) {
        texts += colorNotation::colorText(code, color, opacity).value_or("none") + '|';
    }
    return texts;
}

TEST(ColorNotation, writesEveryNotation) {
    EXPECT_EQ(notations(Color::white(), 1.0),
              "#ffffff|rgb(256,256,256)|rgba(256,256,256, 1)|hsl(0.0,0.0%,100.0%)|hsla(0.0,0.0%,100.0%, 1)|");
    EXPECT_EQ(notations(Color::calibratedRGB(1, 0, 0), 0.05),
              "#ff0000|rgb(256,0,0)|rgba(256,0,0, 0.05)|hsl(0.0,100.0%,50.0%)|hsla(0.0,100.0%,50.0%, 0.05)|");
    EXPECT_EQ(
        notations(Color::calibratedRGB(0.7, 0.2, 0.4), 0.75),
        "#b33366|rgb(179,51,102)|rgba(179,51,102, 0.8)|hsl(336.0,55.6%,45.0%)|hsla(336.0,55.6%,45.0%, 0.8)|");
    EXPECT_EQ(notations(Color::withoutRGBForm(), 0.0),
              "none|rgb(0,0,0)|rgba(0,0,0, 0)|hsl(0.0,0.0%,0.0%)|hsla(0.0,0.0%,0.0%, 0)|");
}

// Red, a colour without RGB form, white: as many as there are positions.
std::string text(const std::vector<double>& positions, std::int64_t notation, Declaration declaration) {
    std::vector<ColorStop> stops{
        {0, Color::calibratedRGB(1, 0, 0), 0.4}, {0, Color::withoutRGBForm(), 0.5}, {0, Color::white(), 1.0}};
    stops.resize(positions.size());
    for (std::size_t i = 0; i < stops.size(); ++i) {
        stops[i].position = positions[i];
    }
    return declarationText(declaration, Gradient{stops}, notation);
}

TEST(DeclarationText, keepsArrayOrderAndOpacityAndSurvivesMissingPieces) {
    using enum Declaration;
    const std::string standard = "\tbackground: linear-gradient(to right, ";
    const std::string filter = "\tfilter: progid:DXImageTransform.Microsoft.gradient(\n\t\tstartColorstr='";
    EXPECT_EQ(text({0.9, 0.2567, 0.2567}, 0, Standard),
              standard + "\n\t\t\t\t#ff0000 90%, \n\t\t\t\t(null) 25.6%, \n\t\t\t\t#ffffff 25.6%);\n");
    EXPECT_EQ(text({0.9, 1.0}, 2, Standard),
              standard + "\n\t\t\t\trgba(256,0,0, 0.4) 90%, \n\t\t\t\trgba(0,0,0, 0.5) 100%);\n");
    EXPECT_EQ(text({0.9, 1.0}, 2, Old), "\tbackground: rgba(256,0,0, 0.4);\n");
    EXPECT_EQ(text({0.9, 1.0}, 2, MSFilter),
              filter + "#ff0000',\n\t\tendColorstr='(null)',GradientType=1 );\n");
    EXPECT_EQ(text({0.5}, 0, Standard), standard + "\n\t\t\t\t#ff0000 50%);\n");
    for (const std::int64_t unknown : {std::int64_t{-1}, std::ssize(colorFormat::notations)}) {
        EXPECT_EQ(text({0.9}, unknown, Standard), standard + "(null));\n");
        EXPECT_EQ(text({0.9}, unknown, Old), "\tbackground: (null);\n");
    }
    EXPECT_EQ(text({}, 0, Old) + text({}, 0, Standard) + text({}, 0, MSFilter), "");
}

} // namespace
} // namespace tessaly
