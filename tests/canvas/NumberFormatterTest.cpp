#include "canvas/OnlyDecimalValueFormatter.h"
#include "canvas/OnlyIntegerValueFormatter.h"

#include <gtest/gtest.h>
#include <limits>

namespace tessaly {
namespace {

constexpr double refused = std::numeric_limits<double>::infinity();

TEST(NumberFormatter, judgesWhatIsTypedOrPasted) {
    const OnlyIntegerValueFormatter integer;
    const OnlyDecimalValueFormatter decimal;
    const struct {
        std::string_view text;
        double asInteger;
        double asDecimal;
    } rows[] = {{"128", 128, 128},
                {"  7", 7, 7},
                {"7 ", refused, refused},
                {" ", refused, refused},
                {"-", refused, refused},
                {"+", refused, refused},
                {"+-1", refused, refused},
                {"-5", -5, -5},
                {"+5", 5, 5},
                {"12.5", refused, 12.5},
                {"0.25", refused, 0.25},
                {"0.", refused, 0},
                {".5", refused, 0.5},
                {".", refused, refused},
                {"0,5", refused, refused},
                {"1a", refused, refused},
                {"abc", refused, refused},
                {"0.2x", refused, refused},
                {"1e2", refused, 100},
                {"1e", refused, refused},
                {"1E-2", refused, 0.01},
                {"inf", refused, refused},
                {"nan", refused, refused},
                {"0x10", refused, refused},
                {"99999999999", 2147483647, 99999999999.0},
                {"-99999999999", -2147483648.0, -99999999999.0},
                {"1e999", refused, std::numeric_limits<double>::max()},
                {"1e-999", refused, 0},
                {"\xC3\xA9", refused, refused}};
    for (const auto& row : rows) {
        EXPECT_EQ(integer.isPartialStringValid(row.text), row.asInteger != refused) << row.text;
        EXPECT_EQ(decimal.isPartialStringValid(row.text), row.asDecimal != refused) << row.text;
        EXPECT_EQ(integer.value(row.text), row.asInteger == refused ? 0 : row.asInteger) << row.text;
        EXPECT_EQ(decimal.value(row.text), row.asDecimal == refused ? 0 : row.asDecimal) << row.text;
    }
    EXPECT_EQ(decimal.value("0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(decimal.value(std::string(400, '9')), std::numeric_limits<double>::max());
    EXPECT_TRUE(integer.isPartialStringValid("") && decimal.isPartialStringValid(""));
    EXPECT_EQ(integer.text(-1), "-1");
    EXPECT_EQ(decimal.text(0.25), "0.3");
    EXPECT_EQ(decimal.text(1.0), "1");
}

} // namespace
} // namespace tessaly
