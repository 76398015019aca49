#include "canvas/OnlyDecimalValueFormatter.h"
#include "canvas/OnlyIntegerValueFormatter.h"

#include <gtest/gtest.h>
#include <limits>

namespace tessaly {
namespace {

constexpr double largest = std::numeric_limits<double>::max();

TEST(NumberFormatter, judgesWhatIsTypedOrPasted) {
    const OnlyIntegerValueFormatter integer;
    const OnlyDecimalValueFormatter decimal;
    const auto isValid = [](const NumberFormatter& formatter, std::string_view text) {
        return formatter.isPartialStringValid(text);
    };
    const std::pair<std::string_view, double> integers[] = {{"128", 128},
                                                            {"  7", 7},
                                                            {"-5", -5},
                                                            {"+5", 5},
                                                            {"99999999999", 2147483647},
                                                            {"-99999999999", -2147483648.0}};
    for (const auto& [text, value] : integers) {
        EXPECT_TRUE(isValid(integer, text) && isValid(decimal, text)) << text;
        EXPECT_EQ(integer.value(text), value);
    }
    const std::pair<std::string_view, double> decimals[] = {
        {"12.5", 12.5}, {"0.25", 0.25}, {"0.", 0},          {".5", 0.5},
        {"1e2", 100},   {"1E-2", 0.01}, {"1e999", largest}, {"1e-999", 0}};
    for (const auto& [text, value] : decimals) {
        EXPECT_TRUE(!isValid(integer, text) && isValid(decimal, text)) << text;
        EXPECT_EQ(decimal.value(text), value) << text;
        EXPECT_EQ(integer.value(text), 0) << text;
    }
    for (const std::string_view text : {"7 ", " ", "-", "+", "+-1", ".", "0,5", "1a", "abc", "0.2x", "1e",
                                        "inf", "nan", "0x10", "\xC3\xA9"}) {
        EXPECT_FALSE(isValid(integer, text) || isValid(decimal, text)) << text;
    }
    EXPECT_EQ(decimal.value("0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(decimal.value(std::string(400, '9')), largest);
    EXPECT_TRUE(integer.isPartialStringValid("") && decimal.isPartialStringValid(""));
    EXPECT_EQ(integer.text(-1), "-1");
    EXPECT_EQ(decimal.text(0.25), "0.3");
    EXPECT_EQ(decimal.text(1.0), "1");
}

} // namespace
} // namespace tessaly
