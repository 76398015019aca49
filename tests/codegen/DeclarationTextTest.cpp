#include "codegen/DeclarationText.h"
#include "codegen/ColorNotation.h"
#include "codegen/StandardText.h"
#include "model/ColorFormat.h"
#include "support/Gradients.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

TEST(ColorNotation, writesEveryNotation) {
    const std::tuple<Color, double, const char*> rows[] = {
        {Color::white(), 1.0,
         "#ffffff|rgb(256,256,256)|rgba(256,256,256, 1)|hsl(0.0,0.0%,100.0%)|hsla(0.0,0.0%,100.0%, 1)|"},
        {Color::calibratedRGB(1, 0, 0), 0.05,
         "#ff0000|rgb(256,0,0)|rgba(256,0,0, 0.05)|hsl(0.0,100.0%,50.0%)|hsla(0.0,100.0%,50.0%, 0.05)|"},
        {Color::calibratedRGB(0.7, 0.2, 0.4), 0.75,
         "#b33366|rgb(179,51,102)|rgba(179,51,102, 0.8)|hsl(336.0,55.6%,45.0%)|hsla(336.0,55.6%,45.0%, "
         "0.8)|"},
        {Color::withoutRGBForm(), 0.0,
         "none|rgb(0,0,0)|rgba(0,0,0, 0)|hsl(0.0,0.0%,0.0%)|hsla(0.0,0.0%,0.0%, 0)|"}};
    for (const auto& [color, opacity, expected] : rows) {
        std::string texts;
        for (std::int64_t code = 0; code < std::ssize(colorFormat::notations); ++code) {
            texts += colorNotation::colorText(code, color, opacity).value_or("none") + '|';
        }
        EXPECT_EQ(texts, expected);
    }
}

TEST(DeclarationText, keepsArrayOrderAndOpacityAndSurvivesMissingPieces) {
    using enum Declaration;
    const ColorStop red{0.9, Color::calibratedRGB(1, 0, 0), 0.4},
        formless{0.2567, Color::withoutRGBForm(), 0.5};
    const std::string filter = "\tfilter: progid:DXImageTransform.Microsoft.gradient(\n\t\tstartColorstr='";
    const std::string standard = "\tbackground: linear-gradient(to right, ";
    const std::tuple<std::vector<ColorStop>, std::int64_t, Declaration, std::string> rows[] = {
        {{red, formless}, 0, Standard, standard + "\n\t\t\t\t#ff0000 90%, \n\t\t\t\t(null) 25.6%);\n"},
        {{red, formless},
         2,
         Standard,
         standard + "\n\t\t\t\trgba(256,0,0, 0.4) 90%, \n\t\t\t\trgba(0,0,0, 0.5) 25.6%);\n"},
        {{red, formless}, 2, Old, "\tbackground: rgba(256,0,0, 0.4);\n"},
        {{red, formless}, 2, MSFilter, filter + "#ff0000',\n\t\tendColorstr='(null)',GradientType=1 );\n"},
        {{red}, 5, Standard, standard + "(null));\n"},
        {{red}, 5, Old, "\tbackground: (null);\n"},
        {{}, 0, MSFilter, ""}};
    for (const auto& [stops, notation, declaration, text] : rows) {
        EXPECT_EQ(declarationText(declaration, Gradient{stops}, notation), text);
    }
}

TEST(StandardText, isTheStandardDeclarationOnOneLine) {
    EXPECT_EQ(standardDeclarationText(defaultRecord().gradient, 0),
              "background: linear-gradient(to right, #000000 0%, #ffffff 100%);");
    const auto withoutBlanks = [](std::string text) {
        std::erase_if(text, [](char c) { return c == ' ' || c == '\t' || c == '\n'; });
        return text;
    };
    std::mt19937 random{5};
    for (int round = 0; round < 300; ++round) {
        const auto [gradient, notation] = randomRecord(random);
        const std::string line = standardDeclarationText(gradient, notation);
        std::string whole = declarationText(Declaration::Standard, gradient, notation);
        if (const auto unknown = whole.find("((null)"); unknown != whole.npos) { // an orientation
            whole.replace(unknown, 7, "(to right");
        }
        EXPECT_EQ(withoutBlanks(line), withoutBlanks(whole));
        EXPECT_TRUE(line.find_first_of("\t\n") == line.npos && line.find("  ") == line.npos) << line;
        const std::string value = standardValueText(gradient, notation);
        EXPECT_EQ(value.empty() ? "" : "background: " + value + ";", line);
    }
}

} // namespace
} // namespace tessaly
