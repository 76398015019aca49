#include "exchange/Readers.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

std::string utf16(std::string_view ascii, bool isBigEndian) {
    std::string bytes = isBigEndian ? "\xFE\xFF" : "\xFF\xFE";
    for (const char c : ascii) {
        bytes += isBigEndian ? std::string{'\0', c} : std::string{c, '\0'};
    }
    return bytes;
}

TEST(ReadersTest, tellsADocumentOfSvgInAnyEncodingFromOtherTexts) {
    const std::string svg = "<svg><linearGradient id='a'><stop/></linearGradient></svg>";
    const std::string latin1 = "<svg><linearGradient id='\xE4'><stop/></linearGradient></svg>";
    struct Row {
        std::string text;
        std::optional<std::string> name; // none: there is no gradient
    };
    for (const auto& [text, name] : std::vector<Row>{
             {svg, "a"},
             {"\xEF\xBB\xBF \n<?xml version='1.0' encoding='UTF-8'?><!-- <p> --> <?x?>" + svg, "a"},
             {"<!DOCTYPE svg PUBLIC '-//W3C//DTD SVG 1.1//EN' 'svg11.dtd' [ <!ATTLIST svg> ] >\n" + svg, "a"},
             {"<!DOCTYPE s:svg><s:svg xmlns:s='x'><s:linearGradient><s:stop/></s:linearGradient></s:svg>",
              ""},
             {utf16("<?xml version='1.0' encoding='UTF-16'?>" + svg, true), "a"},
             {utf16("<?xml version='1.0' encoding='UTF-16'?>" + svg, false) + '\0', "a"},
             {latin1, "\u00E4"},
             {"<?xml version='1.0' encoding='windows-1252'?>" + latin1, "\u00E4"},
             {"<!DOCTYPE html><p>a<br>&nbsp;</p>" + svg + "<br>", "a"},
             {"<html><style>.b{background:linear-gradient(red,blue)}</style>" + svg + "</html>", ".b"},
             {"x" + svg, "a"},
             {svg + "\nand what <else>", "a"},
             {svg.substr(5, svg.size() - 11) + " <svg>", "a"},
             {"<defs>\n<radialGradient id='b' href='#a'/></defs>" + svg, "b"},
             {"<!DOCTYPE svg [<!ENTITY ns 'http://www.w3.org/2000/svg'>]><svg xmlns='&ns;'>" + svg.substr(5),
              "a"},
             {"<!--\n.a { background: linear-gradient(red, blue) }\n-->", ".a"},
             {"<!-- a --><style>.b{background:linear-gradient(red,blue)}</style>", ".b"},
             {"<svg><linearGradient id='" + std::string(9'000'000, 'i') + "'><stop/></linearGradient></svg>",
              std::string(120, 'i')},
             {"<!-- " + svg, std::nullopt},
         }) {
        const Reading reading = readGradients(text);
        ASSERT_EQ(!reading.gradients.empty(), name.has_value()) << text;
        EXPECT_EQ(name ? reading.gradients[0].name : "", name.value_or("")) << text;
    }
}

} // namespace
} // namespace tessaly
