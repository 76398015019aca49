#include "chrome/LinkAddress.h"
#include "chrome/ProductInfo.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

TEST(LinkAddress, knowsOnePrefixAndFindsItAnywhere) {
    struct Row {
        std::string_view label, address, logLine;
    };
    const std::vector<Row> rows{
        {"example.org", "http://example.org", "Not Found example.org"},
        {"HTTP://Example.org/A", "HTTP://Example.org/A", "Found HTTP://Example.org/A"},
        {"see hTTp://example.org", "see hTTp://example.org", "Found see hTTp://example.org"},
        {"https://example.org", "http://https://example.org", "Not Found https://example.org"},
        {"http:/x", "http://http:/x", "Not Found http:/x"},
        {"", "http://", "Not Found "},
        {"\xC3\xA4 100%@", "http://\xC3\xA4 100%@", "Not Found \xC3\xA4 100%@"},
    };
    for (const Row& row : rows) {
        const LinkAddress link = LinkAddress::ofLabel(row.label);
        EXPECT_EQ(link.address, row.address);
        EXPECT_EQ(link.logLine, row.logLine);
    }
}

TEST(LinkAddress, aLabelForAnAddressOpensThatHost) {
    EXPECT_EQ(LinkAddress::labelText("https://example.org/"), "example.org");
    EXPECT_EQ(LinkAddress::labelText("http://example.org/a"), "http://example.org/a");
    EXPECT_EQ(LinkAddress::labelText(""), "");
    const std::string label = LinkAddress::labelText(product::homepage());
    EXPECT_EQ(LinkAddress::ofLabel(label).address.find("https"), std::string::npos);
}

} // namespace
} // namespace tessaly
