#include "foundation/NumberText.h"
#include "foundation/Truncation.h"
#include "foundation/Utf8.h"

#include <gtest/gtest.h>
#include <limits>

namespace tessaly {
namespace {

TEST(NumberText, writesThePrintfFormsWithAPointAndCutsPercentsToOneDecimal) {
    std::string texts = fixedText(33.25, 1) + ' ' + fixedText(1.0, 3) + ' ' + fixedText(-0.333, 6);
    for (const double value : {1.0, 0.0, 0.75, 0.25, 0.05, 0.55, 0.00001}) {
        texts += ' ' + significantText(value, 1);
    }
    for (const double fraction : {0.0, 1.0, 0.2567, 0.9999, 0.333, 0.334, 0.0049, -0.0001, 0.07, 1e-12}) {
        texts += ' ' + percentText(fraction);
    }
    EXPECT_EQ(texts, "33.2 1.000 -0.333000 1 0 0.8 0.2 0.05 0.6 1e-05 0 100 25.6 99.9 33.3 33.4 0.4 0 7 0");
    EXPECT_EQ(fixedText(std::numeric_limits<double>::max(), 1).size(), 311U);
    EXPECT_EQ(hexByteText(0) + hexByteText(10) + hexByteText(255), "000aff");
}

TEST(Truncation, cutsTowardZeroAndNeverOverflows) {
    EXPECT_EQ(truncated(-5.9), -5);
    EXPECT_EQ(truncated(1e300), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(truncated(-1e300), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(truncated(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(Utf8, encodesEveryPlaneAndMendsLoneSurrogates) {
    EXPECT_EQ(toUtf8(u"a\u00e9\u20ac\U0001F308"), "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x8C\x88");
    EXPECT_EQ(toUtf8(std::u16string{0xD83C, u'y', 0xDF08}), "\xEF\xBF\xBDy\xEF\xBF\xBD");
}

} // namespace
} // namespace tessaly
