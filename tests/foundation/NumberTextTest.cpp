#include "foundation/NumberText.h"
#include "foundation/Truncation.h"
#include "foundation/Utf8.h"

#include <gtest/gtest.h>
#include <limits>

namespace tessaly {
namespace {

TEST(NumberText, writesThePrintfFormsWithAPoint) {
    const std::pair<std::string, std::string> rows[] = {{significantText(1.0, 1), "1"},
                                                        {significantText(0.0, 1), "0"},
                                                        {significantText(0.75, 1), "0.8"},
                                                        {significantText(0.25, 1), "0.2"},
                                                        {significantText(0.05, 1), "0.05"},
                                                        {significantText(0.55, 1), "0.6"},
                                                        {significantText(0.00001, 1), "1e-05"},
                                                        {fixedText(33.25, 1), "33.2"},
                                                        {fixedText(100.0, 1), "100.0"},
                                                        {fixedText(1.0, 3), "1.000"},
                                                        {fixedText(0.0625, 3), "0.062"},
                                                        {fixedText(-0.333, 6), "-0.333000"},
                                                        {hexByteText(0), "00"},
                                                        {hexByteText(10), "0a"},
                                                        {hexByteText(255), "ff"}};
    for (const auto& [actual, expected] : rows) {
        EXPECT_EQ(actual, expected);
    }
    EXPECT_EQ(fixedText(std::numeric_limits<double>::max(), 1).size(), 311U);
}

TEST(NumberText, cutsPercentTextsToOneDecimal) {
    const std::pair<double, std::string> rows[] = {
        {0.0, "0"},       {1.0, "100"},    {0.5, "50"},     {0.2567, "25.6"},  {0.999, "99.9"},
        {0.9999, "99.9"}, {0.333, "33.3"}, {0.334, "33.4"}, {1.0 / 3, "33.3"}, {0.0004, "0"},
        {0.0049, "0.4"},  {-0.0001, "0"},  {0.07, "7"},     {0.145, "14.5"},   {1e-12, "0"}};
    for (const auto& [fraction, expected] : rows) {
        EXPECT_EQ(percentText(fraction), expected) << fraction;
    }
}

TEST(Truncation, cutsTowardZeroAndNeverOverflows) {
    EXPECT_EQ(truncated(-5.9), -5);
    EXPECT_EQ(truncated(5.9), 5);
    EXPECT_EQ(truncated(1e300), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(truncated(-1e300), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(truncated(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(Utf8, encodesEveryPlaneAndMendsLoneSurrogates) {
    EXPECT_EQ(toUtf8(u"a\u00e9\u20ac\U0001F308"), "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x8C\x88");
    EXPECT_EQ(toUtf8(std::u16string{u'x', char16_t{0xD83C}, u'y', char16_t{0xDF08}}),
              "x\xEF\xBF\xBDy\xEF\xBF\xBD");
}

} // namespace
} // namespace tessaly
