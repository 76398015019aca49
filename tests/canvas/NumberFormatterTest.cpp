#include "canvas/NumberFormatter.h"

#include <gtest/gtest.h>
#include <limits>
#include <optional>

namespace tessaly {
namespace {

TEST(NumberFormatter, judgesWhatIsTypedOrPasted) {
    constexpr double most = std::numeric_limits<double>::max();
    constexpr auto none = std::nullopt;
    constexpr NumberFormatter integer{false};
    constexpr NumberFormatter decimal{true};
    const struct {
        std::string_view text;
        std::optional<double> whole, number; ///< whole: none where an integer field refuses it
    } rows[] = {{"", 0, 0},         {"128", 128, 128},    {"  7", 7, 7},         {"-5", -5, -5},
                {"+5", 5, 5},       {"12.5", none, 12.5}, {"0.", none, 0},       {".5", none, 0.5},
                {"1e2", none, 100}, {"1E-2", none, 0.01}, {"1e999", none, most}, {"1e-999", none, 0}};
    for (const auto& [text, whole, number] : rows) {
        SCOPED_TRACE(text);
        EXPECT_EQ(integer.isPartialStringValid(text), whole.has_value());
        EXPECT_EQ(integer.value(text), whole.value_or(0));
        EXPECT_TRUE(decimal.isPartialStringValid(text));
        EXPECT_EQ(decimal.value(text), number);
    }
    for (const std::string_view text :
         {" ", "7 ", "-", "+-1", ".", "0,5", "0.2x", "1e", "inf", "0x10", "\xC3\xA9"}) {
        EXPECT_FALSE(integer.isPartialStringValid(text) || decimal.isPartialStringValid(text)) << text;
    }
    EXPECT_EQ(integer.value("-99999999999"), -2147483648.0);
    EXPECT_EQ(integer.value(std::string(400, '9')), 2147483647);
    EXPECT_EQ(decimal.value(std::string(400, '9')), most);
    EXPECT_EQ(decimal.value("0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(integer.text(-1), "-1");
    EXPECT_EQ(decimal.text(0.25) + ' ' + decimal.text(1.0), "0.3 1") << "tenths, halves up";
}

} // namespace
} // namespace tessaly
