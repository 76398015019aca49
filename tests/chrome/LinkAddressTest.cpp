#include "chrome/LinkAddress.h"

#include <array>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

TEST(LinkAddress, knowsOnePrefixAndFindsItAnywhere) {
    const std::vector<std::array<std::string_view, 3>> rows{
        {"HTTP://Example.org/A", "HTTP://Example.org/A", "Found HTTP://Example.org/A"},
        {"see hTTp://example.org", "see hTTp://example.org", "Found see hTTp://example.org"},
        {"https://example.org", "http://https://example.org", "Not Found https://example.org"},
        {"", "http://", "Not Found "},
        {"\xC3\xA4 100%@", "http://\xC3\xA4 100%@", "Not Found \xC3\xA4 100%@"}};
    for (const auto& [label, address, logLine] : rows) {
        const LinkAddress link = LinkAddress::ofLabel(label);
        EXPECT_EQ(link.address, address);
        EXPECT_EQ(link.logLine, logLine);
    }
}

TEST(LinkAddress, aLabelForAnAddressOpensThatHost) {
    EXPECT_EQ(LinkAddress::labelText("https://example.org/"), "example.org");
    EXPECT_EQ(LinkAddress::labelText("http://example.org/a"), "http://example.org/a");
    EXPECT_EQ(LinkAddress::labelText(""), "");
}

} // namespace
} // namespace tessaly
