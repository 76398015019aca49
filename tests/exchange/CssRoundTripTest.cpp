#include "codegen/StylesheetText.h"
#include "exchange/CssReader.h"
#include "support/Gradients.h"
#include "support/SameGradient.h"

#include <gtest/gtest.h>
#include <random>

namespace tessaly {
namespace {

using Notes = std::vector<std::string>;

void expectSame(const std::string& text, const Gradient& gradient, std::int64_t notation,
                const std::string& name, const Notes& notes = {}) {
    const Reading reading = readCssGradients(text);
    ASSERT_EQ(reading.gradients.size(), 1U) << text;
    const FoundGradient& found = reading.gradients.front();
    EXPECT_TRUE(reading.complete && found.notes == notes && found.name == name) << text;
    EXPECT_TRUE(isSameButForDigits(found.gradient, gradient, notation)) << text;
}

TEST(CssRoundTrip, readsWhatTheProgramWrites) {
    std::mt19937 random{7};
    for (int round = 0; round < 40 && !testing::Test::HasFailure(); ++round) {
        for (std::int64_t orientation = orientation::bottomToTop; orientation <= orientation::radial;
             ++orientation) {
            for (std::int64_t notation = 0; notation < std::ssize(colorFormat::notations); ++notation) {
                Gradient gradient = randomGradient(random);
                gradient.setOrientation(orientation);
                const auto texts = declarationTexts(gradient, notation);
                using enum Declaration;
                const bool isSorted = std::ranges::is_sorted(gradient.stops(), {}, &ColorStop::position);
                expectSame(texts[OldWebKit], gradient, notation, "",
                           isSorted ? Notes{} : Notes{"stops left in the order written"}); // browsers sort
                for (const Declaration declaration : {Standard, Moz, NewWebKit, Opera, IE}) {
                    expectSame(texts[declaration], gradient, notation, "");
                }
                expectSame(stylesheetText(texts), gradient, notation, ".gradient");
                EXPECT_TRUE(readCssGradients(texts[Old]).gradients.empty());
                const Gradient ends{
                    {{0, gradient.stops().front().color}, {1, gradient.stops().back().color}}};
                expectSame(texts[MSFilter], ends, colorFormat::hexadecimal, "");
            }
        }
    }
}

} // namespace
} // namespace tessaly
