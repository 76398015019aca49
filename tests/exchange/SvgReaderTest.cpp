#include "exchange/SvgReader.h"

#include "foundation/NumberText.h"
#include "model/ColorConversion.h"
#include "raster/GradientRaster.h"
#include "support/Repeated.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <random>

namespace tessaly {
namespace {

const std::string redToBlue = "<stop stop-color='#f00'/><stop offset='1' stop-color='#00f'/>";

std::string svg(const std::string& content, const std::string& attributes = {}) {
    return "<svg xmlns='http://www.w3.org/2000/svg' " + attributes + ">" + content + "</svg>";
}

std::string linear(const std::string& attributes, const std::string& stops = redToBlue) {
    return "<linearGradient " + attributes + ">" + stops + "</linearGradient>";
}

std::string radial(const std::string& attributes) {
    return "<radialGradient " + attributes + ">" + redToBlue + "</radialGradient>";
}

// "1: #ff0000 0, #0000ff/0.5 1 (note; note)" for an orientation, its stops with their opacities, and the
// notes.
std::string told(const FoundGradient& found) {
    std::string text = std::to_string(found.gradient.orientation()) + ":";
    for (const ColorStop& stop : found.gradient.stops()) {
        text += (text.ends_with(':') ? " " : ", ") + *hexadecimalText(stop.color) +
                (stop.opacity < 1 ? "/" + significantText(stop.opacity, 3) : "") + " " +
                significantText(stop.position, 15);
    }
    for (std::size_t i = 0; i < found.notes.size(); ++i) {
        text += (i == 0 ? " (" : "; ") + found.notes[i] + (i + 1 == found.notes.size() ? ")" : "");
    }
    return text;
}

std::vector<std::string> readFrom(const std::string& text) {
    const Reading reading = readSvgGradients(text);
    EXPECT_TRUE(reading.complete);
    std::vector<std::string> found(reading.gradients.size());
    std::ranges::transform(reading.gradients, found.begin(), told);
    return found;
}

struct Row {
    std::string text;
    std::vector<std::string> expected;
};

void expectEach(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        EXPECT_EQ(readFrom(row.text), row.expected) << row.text;
    }
}

TEST(SvgReaderTest, takesALineAsTheNearestDirectionAndTellsWhatIsNotTheSame) {
    const std::string plain = "#ff0000 0, #0000ff 1";
    const std::string turned = "#0000ff 0, #ff0000 1";
    const std::string inProportion = " (lengths taken in proportion)";
    std::vector<Row> rows{
        {"", {"1: " + plain}},
        {"x2='0' y2='100%'", {"0: " + turned}},
        {"x2='0' y1='1'", {"0: " + plain}},
        {"y1='1'", {"2: " + plain}},
        {"y2='1'", {"3: " + turned}},
        {"x1='1' x2='0' y2='1'", {"2: " + turned}},
        {"x1='0.2' x2='80%'", {"1: #ff0000 0.2, #0000ff 0.8"}},
        {"x1='-1' x2='2'", {"1: #aa0055 0, #5500aa 1 (cut at the edges)"}},
        {"x1='-3' x2='-2'", {"1: #0000ff 0 (cut at the edges)"}},
        {"y2='0.5' x2='0.5'", {"3: #0000ff 0.5, #ff0000 1"}},
        {"y1='0.5'", {"2: #ff0000 0.166666666667, #0000ff 1 (63.4° taken as 45°)"}},
        {"gradientTransform='rotate(90)' y1='-.5' y2='-.5'", {"0: " + turned}},
        {"gradientTransform='rotate(37 .5,.5)'",
         {"3: #0000ff 0.142972037821, #ff0000 0.857027962179 (127° taken as 135°)"}},
        {"gradientTransform='matrix(.5 0 0 .5 .25 0)'", {"1: #ff0000 0.25, #0000ff 0.75"}},
        {"gradientTransform='translate(.5) scale(.5)'", {"1: #ff0000 0.5, #0000ff 1"}},
        {"gradientTransform='skewX(45)' x2='0' y2='1'", {"0: " + turned}}, // slants lines that lie level
        {"gradientTransform='skewY(45)'", {"1: " + plain}},
        {"gradientTransform='skewX(45)'", {"2: #ff0000 0.5, #0000ff 1"}},
        {"gradientTransform='scale(1e200)'", {}},
        {"gradientTransform='scale(1e200,1e-200)'", {"1: #ff0000 0, #ff0000 1 (cut at the edges)"}},
        {"x1='.5' x2='.5'", {"1: #0000ff 1 (no length, its last color taken)"}},
        {"x1='inf' x2='nan' y1='1e999'", {"1: " + plain}},
        {"gradientUnits='userSpaceOnUse' x1='3' y1='3' x2='21' y2='21'", {"3: " + turned + inProportion}},
        {"gradientUnits='userSpaceOnUse'", {"1: " + plain}}, // through the whole picture
        {"gradientUnits='userSpaceOnUse' x1='1'", {"1: " + plain + inProportion}},
        {"gradientUnits='userSpaceOnUse' y2='50%'", {"3: " + turned + inProportion}},
        {"spreadMethod='reflect'", {"1: " + plain}}, // there is no room for it
        {"spreadMethod='reflect' x2='.5'", {"1: #ff0000 0, #0000ff 0.5 (repeating taken once)"}},
        {"style='color-interpolation: linearRGB'",
         {"1: " + plain + " (mixing in linear light taken as in sRGB)"}},
    };
    for (const char* const none :
         {"rotate(90) nothing(1)", "matrix(.5 0 0 1 0)", "matrix(.5 0 0 1 0 0 0)", "translate(.5 0 0)",
          "scale(.5 1 1)", "rotate(90 0)", "rotate(90 0 0 0)", "skewX(30 0)", "skewY(30 0)", "skewX()"}) {
        rows.push_back({std::string{"y2='1' gradientTransform='"} + none + "'", {"3: " + turned}});
    }
    for (Row& row : rows) {
        row.text = svg(linear(row.text), "viewBox='0 0 20 40'");
    }
    rows.push_back({linear("xmlns='http://www.w3.org/2000/svg'"), {"1: " + plain}}); // all that there is
    expectEach(rows);
}

TEST(SvgReaderTest, takesEveryDiscAndTellsWhatIsNotTheSame) {
    const std::string plain = "4: #ff0000 0, #0000ff 1";
    std::vector<Row> rows{
        {"r='70.71%'", {plain}},
        {"r='0.7071' gradientTransform='rotate(30 .5 .5)' fx='.5'", {plain}},
        {"r='1.4142' cx='1' cy='1' gradientTransform='scale(.5)'", {plain}},
        {"", {plain + " (size taken as farthest-corner)"}},
        {"r='-1'", {plain + " (size taken as farthest-corner)"}},
        {"spreadMethod='repeat'", {plain + " (size taken as farthest-corner; repeating taken once)"}},
        {"r='.7071' cx='.3'", {plain + " (place taken as center)"}},
        {"r='.7071' fx='.3'", {plain + " (focus moved to the center)"}},
        {"r='.7071' fr='.3'", {plain + " (focus moved to the center)"}},
        {"r='.7071' gradientTransform='matrix(2 0 0 .5 -.5 .25)'",
         {plain + " (ellipse taken as the box has it)"}},
        {"gradientUnits='userSpaceOnUse' cx='7' cy='9' r='3'", {plain + " (lengths taken in proportion)"}},
        {"r='0'", {"4: #0000ff 1 (no length, its last color taken)"}},
        {"gradientTransform='scale(1 0)'", {}},
    };
    for (Row& row : rows) {
        row.text = svg(radial(row.text));
    }
    expectEach(rows);
}

TEST(SvgReaderTest, findsTheStopsOfADocumentWithTheirStyles) {
    const auto stops = [](const std::string& text, const std::string& rules = {}) {
        return svg(linear("", text) + "<style>" + rules + "</style>");
    };
    expectEach({
        {stops("<stop offset='-1'/><stop offset='60%' stop-color='#fff'/><stop offset='.2' "
               "stop-color='#f00'/><stop offset='7' stop-color='nothing'/>"),
         {"1: #000000 0, #ffffff 0.6, #ff0000 0.2, #000000 1"}},
        {stops("<stop offset='.5' stop-color='#ff000080' stop-opacity='50%'/>"), {"1: #ff0000/0.251 0.5"}},
        {stops("<stop stop-color='#f00' stop-opacity='2' style='stop-color:#0f0; ;x;stop-opacity: .25'/>"),
         {"1: #00ff00/0.25 0"}},
        {stops("<stop style='stop-color:#0f0 !important;stop-color:#00f'/>"), {"1: #00ff00 0"}},
        {stops("<stop stop-color='currentColor'/><stop offset='1' stop-color='#fff'/>"),
         {"1: #000000 0, #ffffff 1 (style of a stop left out: it uses currentColor)"}},
        {svg("<g color='#f00'>" +
             linear("class='c'", "<stop stop-color='currentColor'/>"
                                 "<stop style='color: #0f0; stop-color: currentcolor'/>") +
             "</g><style>g { color: #00f }</style>"),
         {"1: #0000ff 0, #00ff00 0"}},
        {stops(
             "<stop stop-color='var(--x, #0f0)' stop-opacity='var(--o)'/><stop style='stop-color:var(--y)'/>"
             "<stop style='stop-color:color-mix(in srgb, red, blue)'/>",
             ":root { --o: 50%; --y: #00f }"),
         {"1: #00ff00/0.5 0, #0000ff 0, #000000 0 (style of a stop left out: it uses color-mix())"}},
        {svg("<defs id='g' class='d e'>" +
             linear("", "<stop class='a'/><stop class='b c'/><stop id='i' style='STOP-COLOR: #f0f'/>"
                        "<stop class='x'/>") +
             "</defs><style>stop.a { Stop-Color: #f00 ! important } .a { stop-color: #fff } .c.b.a, .c { "
             "stop-color: "
             "#888 } #g.e .b.c{stop-color:#00f} svg #g linearGradient#h stop, #g g .a, g.d .c, rect #i {"
             "stop-color:#fff !important} :root .d .x { stop-color: #123456 }</style>"),
         {"1: #ff0000 0, #0000ff 0, #ff00ff 0, #123456 0"}},
        {stops("<stop class='a'/>", "linearGradient > .a:not(.b, g) { stop-color: #f00 } "
                                    ".a[x='b .a'] , p > .a{} .a:hover{stop-color:#00f}"),
         {"1: #000000 0 (style of a stop left out: it needs another selector)"}},
        {stops("<stop class='a b' id='i'/><stop class='b a' stop-color='#fff'/><stop class='x'/>",
               "/* { */ .a{stop-color:#f00} .b, p > q , #j {stop-color:#00f;stop-opacity:.5} "
               "@media print { .b { stop-color: #fff } } #i{stop-color:#0f0} stop{stop-color:#ff0}"),
         {"1: #00ff00/0.5 0, #0000ff/0.5 0, #ffff00 0"}},
        {stops("<stop/>", "@import 'x;y'; <![CDATA[stop{stop-color:#f00}]]> .open{stop-color:#0f0"),
         {"1: #ff0000 0"}},
        {stops("<stop stop-color='#f00'/><stop class='x between' offset='.5'/><stop offset='1' "
               "stop-color='#00f' stop-opacity='0'/>"),
         {"1: #ff0000 0, #0000ff/0 1"}},
        {stops("<stop stop-color='#f00'/><stop offset='1' stop-color='#00f' stop-opacity='0'/>"),
         {"1: #ff0000 0, #0000ff/0 1 (opacity mixed as in CSS)"}},
        {svg(linear("x1='.5' x2='1.5'",
                    "<stop stop-color='#f00'/><stop offset='.5' stop-color='#00f' stop-opacity='0'/>")),
         {"1: #ff0000 0.5, #0000ff/0 1 (opacity mixed as in CSS)"}},
        {stops("<g><stop/></g>"), {}},
        {svg("<g>" + linear("", "<stop><animate/></stop><desc/><stop offset='1'/>") + "<stop/></g>"),
         {"1: #000000 0, #000000 1"}},
    });
}

TEST(SvgReaderTest, followsReferencesButNotInCircles) {
    const auto to = [](const std::string& attributes) { return linear(attributes, ""); };
    expectEach({
        {svg(to("id='a' xlink:href='#b' y1='1'") + to("id='b' href=' #c' xlink:href='#a' y2='.5'") +
             linear("id='c' x2='.5' spreadMethod='repeat'")),
         {"2: #ff0000 0, #0000ff 0.5 (repeating taken once)",
          "3: #0000ff 0.5, #ff0000 1 (repeating taken once)",
          "1: #ff0000 0, #0000ff 0.5 (repeating taken once)"}},
        {svg(radial("id='r' r='.7071' gradientTransform='rotate(90)' cy='-.5'") +
             to("xlink:href='#r' y1='-1' y2='-1'")),
         {"4: #ff0000 0, #0000ff 1", "0: #0000ff 0, #ff0000 1"}},
        {svg(to("id='a' href='#b'") + to("id='b' href='#a'") + to("id='c' href='#c'") + to("href='#a'") +
             to("href='other.svg#d'") + to("href='#'") + linear("id='d'") + linear("id='d' y1='1'") +
             to("href='#d'")),
         {"1: #ff0000 0, #0000ff 1", "2: #ff0000 0, #0000ff 1", "1: #ff0000 0, #0000ff 1"}},
    });
    const auto named = readSvgGradients(svg(linear("id='sky &amp; sea'") + linear("")));
    EXPECT_EQ(named.gradients[0].name, "sky & sea");
    EXPECT_EQ(named.gradients[1].name, "");
}

// A gradient of one color channel in every direction that the program has: where the document says it, and
// what is painted.
TEST(SvgReaderTest, paintsTheSamePictureInASquareBox) {
    constexpr int size = 40;
    std::mt19937 random{1};
    const auto any = [&random](double from, double to) {
        return std::uniform_real_distribution<double>{from, to}(random);
    };
    for (int round = 0; round < 500; ++round) {
        const double x = any(-1, 1);
        const double x2 = x + any(0.2, 1.5) * (round % 2 == 0 ? 1 : -1);
        const double angle = 45.0 * std::uniform_int_distribution{-8, 8}(random);
        const double middle = any(0.1, 0.9);
        const auto number = [](double value) { return fixedText(value, 9); };
        const std::string text = svg(linear("x1='" + number(x) + "' x2='" + number(x2) +
                                                "' gradientTransform='rotate(" + number(angle) + ")'",
                                            "<stop/><stop offset='" + number(middle) +
                                                "' stop-color='#f00'/><stop offset='1' "
                                                "stop-color='#300'/>"));
        const FoundGradient found = readSvgGradients(text).gradients.at(0);
        std::vector<std::uint32_t> pixels(size * size);
        const PixelBuffer buffer{pixels, size, size, 1.0, size};
        fillGradient(buffer, {{0, 0, size, size}, {}, {}}, found.gradient.orientation(),
                     GradientRamp{found.gradient.stops(), GradientRamp::Opacity::Drawn});
        const double radians = angle * std::numbers::pi / 180;
        for (int i = 0; i < size * size; ++i) {
            const double across = (i % size + 0.5) / size;
            const double down = (i / size + 0.5) / size;
            const double along = across * std::cos(radians) + down * std::sin(radians);
            const double offset = std::clamp((along - x) / (x2 - x), 0.0, 1.0);
            const double red =
                offset < middle ? 255 * offset / middle : 255 - 204 * (offset - middle) / (1 - middle);
            const std::uint32_t painted = pixels[static_cast<std::size_t>(i)] >> 16U & 0xFFU;
            ASSERT_NEAR(painted, red, 1.0) << text << told(found) << i;
        }
    }
}

TEST(SvgReaderTest, answersToAnythingWithoutGrowing) {
    const std::string good = svg(linear(""));
    const std::string entities =
        "<!DOCTYPE svg [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '&a;&a;&a;&a;&a;&a;&a;'>]>";
    for (const std::string& none : std::vector<std::string>{
             "", "<svg", "<svg/>", good.substr(0, good.size() - 1), svg("<linearGradient/>"),
             entities + svg(linear("id='&b;'")), "<!-- " + good,
             "<!DOCTYPE svg [<!ENTITY a SYSTEM 'file:///etc/passwd'>]>" + svg(linear("") + "&a;"),
             svg(linear("id='\xED\xA0\x80'")), svg(linear("") + std::string(1, '\0')),
             svg(repeated("<g>", 100'000)), repeated("<", 100'000), repeated("<svg><!--", 100'000),
             repeated("<svg", 100'000), repeated("<svg a='", 100'000)}) {
        EXPECT_TRUE(readSvgGradients(none).gradients.empty()) << none.substr(0, 100);
    }
    for (const std::string& one : std::vector<std::string>{
             "<!DOCTYPE svg PUBLIC 'a' 'http://127.0.0.1:1/none.dtd'>" + good,
             "<!DOCTYPE svg [<!ENTITY % a SYSTEM 'file:///etc/passwd'>%a;]>" + good,
             svg(repeated("<g>", 100'000) + linear("", "<stop/>") + repeated("</g>", 100'000)),
             svg(linear("id='" + std::string(10'000'000, 'a') + "'")),
             svg(linear("") + "<style>" + repeated("({[", 1'000'000) + "</style>"),
             svg(linear("", "<stop class='" + repeated("a ", 3000) + "' stop-color='currentColor'/>") +
                 "<style>" + repeated(".b .a{stop-color:red}", 3000) + "</style>")}) {
        EXPECT_EQ(readSvgGradients(one).gradients.size(), 1U) << one.substr(0, 100);
    }

    struct Limit {
        std::string text;
        std::size_t gradients;
        std::size_t stops; // of the last one
    };
    std::string chain = linear("id='0'");
    for (int i = 1; i < 10'000; ++i) {
        chain += linear("id='" + std::to_string(i) + "' href='#" + std::to_string(i - 1) + "'", "");
    }
    const std::string ownStops = linear("id='s'", repeated("<stop/>", 10'001));
    for (const auto& [text, gradients, stops] : std::vector<Limit>{
             {chain + linear("id='too-many'"), 10'000, 2},
             {ownStops, 1, 10'000},
             {ownStops + repeated(linear("href='#s'", ""), 100), 25, 10'000},
             {linear("") + "<!--" + std::string(16 << 20, 'a'), 1, 2},
         }) {
        const auto reading = readSvgGradients(svg(text));
        EXPECT_FALSE(reading.complete);
        ASSERT_EQ(reading.gradients.size(), gradients);
        EXPECT_EQ(reading.gradients.back().gradient.stops().size(), stops);
    }
}

TEST(SvgReaderTest, tellsHowFarItIsAndEndsWhenTold) {
    const std::string text = svg(linear("") + "<desc>" + std::string(5 << 20, 'a') + "</desc>");
    std::vector<double> shares;
    const auto isGoingOn = [&shares](double share) {
        shares.push_back(share);
        return shares.size() < 3;
    };
    EXPECT_TRUE(readSvgGradients(text, isGoingOn).gradients.empty());
    EXPECT_EQ(shares.size(), 3U);
}

} // namespace
} // namespace tessaly
