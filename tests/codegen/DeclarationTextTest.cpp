#include "codegen/DeclarationText.h"
#include "codegen/ColorNotation.h"
#include "support/Gradients.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

const Color red = Color::calibratedRGB(1, 0, 0);

class DeclarationTextTest : public testing::Test {
  protected:
    DeclarationTextTest() { resetToDefaultGradient(); }

    static std::string text(Declaration declaration) { return declarationText(declaration, data()); }
    static GlobalData& data() { return GlobalData::sharedData(); }
};

TEST(ColorNotation, writesEveryNotation) {
    const struct {
        Color color;
        double opacity;
        std::array<std::string, 5> expected;
    } rows[] = {
        {Color::black(),
         0.5,
         {"#000000", "rgb(0,0,0)", "rgba(0,0,0, 0.5)", "hsl(0.0,0.0%,0.0%)", "hsla(0.0,0.0%,0.0%, 0.5)"}},
        {Color::white(),
         1.0,
         {"#ffffff", "rgb(256,256,256)", "rgba(256,256,256, 1)", "hsl(0.0,0.0%,100.0%)",
          "hsla(0.0,0.0%,100.0%, 1)"}},
        {red,
         0.05,
         {"#ff0000", "rgb(256,0,0)", "rgba(256,0,0, 0.05)", "hsl(0.0,100.0%,50.0%)",
          "hsla(0.0,100.0%,50.0%, 0.05)"}},
        {Color::calibratedRGB(0.7, 0.2, 0.4),
         0.75,
         {"#b33366", "rgb(179,51,102)", "rgba(179,51,102, 0.8)", "hsl(336.0,55.6%,45.0%)",
          "hsla(336.0,55.6%,45.0%, 0.8)"}},
        {Color::withoutRGBForm(),
         0.0,
         {"none", "rgb(0,0,0)", "rgba(0,0,0, 0)", "hsl(0.0,0.0%,0.0%)", "hsla(0.0,0.0%,0.0%, 0)"}}};
    for (const auto& row : rows) {
        for (std::int64_t code = 0; code < 5; ++code) {
            EXPECT_EQ(colorNotation::colorText(code, row.color, row.opacity).value_or("none"),
                      row.expected[static_cast<std::size_t>(code)]);
        }
    }
    EXPECT_FALSE(colorNotation::colorText(-1, red, 1.0));
    EXPECT_FALSE(colorNotation::colorText(5, red, 1.0));
}

TEST_F(DeclarationTextTest, writesThePhrasesOfEveryOrientation) {
    const struct {
        std::int64_t orientation;
        std::string standard, prefixed, legacy;
    } rows[] = {{0, "linear-gradient(to top, ", "linear-gradient(bottom, ", "linear, left bottom, left top"},
                {1, "linear-gradient(to right, ", "linear-gradient(left, ", "linear, left top, right top"},
                {2, "linear-gradient(45deg, ", "linear-gradient(45deg, ", "linear, left bottom, right top"},
                {3, "linear-gradient(-45deg, ", "linear-gradient(135deg, ", "linear, right bottom, left top"},
                {4, "radial-gradient(ellipse at center, ", "radial-gradient(center, ellipse cover, ",
                 "radial, center center, 0px, center center, 100%"},
                {5, "linear-gradient((null), ", "linear-gradient((null), ", "(null)"},
                {-1, "linear-gradient((null), ", "linear-gradient((null), ", "(null)"}};
    const std::string stops = "\n\t\t\t\t#000000 0%, \n\t\t\t\t#ffffff 100%);\n";
    const std::string legacyStops =
        "\n\t\t\t\tcolor-stop(0%,#000000), \n\t\t\t\tcolor-stop(100%,#ffffff));\n";
    for (const auto& row : rows) {
        data().setOrientationType(row.orientation);
        EXPECT_EQ(text(Declaration::Standard), "\tbackground: " + row.standard + stops);
        EXPECT_EQ(text(Declaration::Moz), "\tbackground: -moz-" + row.prefixed + stops);
        EXPECT_EQ(text(Declaration::NewWebKit), "\tbackground: -webkit-" + row.prefixed + stops);
        EXPECT_EQ(text(Declaration::Opera), "\tbackground: -o-" + row.prefixed + stops);
        EXPECT_EQ(text(Declaration::IE), "\tbackground: -ms-" + row.prefixed + stops);
        EXPECT_EQ(text(Declaration::OldWebKit),
                  "\tbackground: -webkit-gradient(" + row.legacy + ", " + legacyStops);
        EXPECT_EQ(text(Declaration::Old), "\tbackground: #000000;\n");
        EXPECT_EQ(text(Declaration::MSFilter),
                  "\tfilter: progid:DXImageTransform.Microsoft.gradient(\n\t\tstartColorstr='#000000',\n"
                  "\t\tendColorstr='#ffffff',GradientType=1 );\n");
    }
}

TEST_F(DeclarationTextTest, writesOpacityOnlyWhereTheNotationCarriesIt) {
    data().colorMarkerOpacity() = {0.4, 0.5};
    data().setColorFormatType(colorFormat::rgba);
    EXPECT_EQ(text(Declaration::Old), "\tbackground: rgba(0,0,0, 0.4);\n");
    EXPECT_EQ(text(Declaration::Standard),
              "\tbackground: linear-gradient(to right, \n\t\t\t\trgba(0,0,0, 0.4) "
              "0%, \n\t\t\t\trgba(256,256,256, 0.5) 100%);\n");
    EXPECT_NE(text(Declaration::MSFilter).find("startColorstr='#000000'"), std::string::npos);
    data().setColorFormatType(colorFormat::rgb);
    EXPECT_EQ(text(Declaration::Old), "\tbackground: rgb(0,0,0);\n");
}

TEST_F(DeclarationTextTest, keepsArrayOrderAndSurvivesMissingPieces) {
    data().setColorMarkerPos({0.9, 0.2567, 0.2567});
    data().setColorMarkerColor({red, Color::withoutRGBForm(), Color::white()});
    data().setColorMarkerOpacity({1.0, 1.0, 1.0, 0.5});
    EXPECT_EQ(text(Declaration::Standard), "\tbackground: linear-gradient(to right, \n\t\t\t\t#ff0000 90%, \n"
                                           "\t\t\t\t(null) 25.6%, \n\t\t\t\t#ffffff 25.6%);\n");
    data().setColorFormatType(7);
    EXPECT_EQ(text(Declaration::Standard), "\tbackground: linear-gradient(to right, (null));\n");
    EXPECT_EQ(text(Declaration::OldWebKit),
              "\tbackground: -webkit-gradient(linear, left top, right top, (null));\n");
    EXPECT_EQ(text(Declaration::Old), "\tbackground: (null);\n");
    data().setColorFormatType(0);
    data().setColorMarkerPos({0.5});
    EXPECT_EQ(text(Declaration::Standard),
              "\tbackground: linear-gradient(to right, \n\t\t\t\t#ff0000 50%);\n");
    EXPECT_NE(text(Declaration::MSFilter).find("endColorstr='#ff0000'"), std::string::npos);
    data().setColorMarkerPos({});
    for (const Declaration declaration : allDeclarations) {
        EXPECT_EQ(text(declaration), "");
    }
}

} // namespace
} // namespace tessaly
