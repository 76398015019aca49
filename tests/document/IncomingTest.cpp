#include "document/Incoming.h"

#include "support/PresetProgram.h"
#include "support/ReadGradients.h"
#include "support/TemporaryFolder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace tessaly {
namespace {

// What there is to take, or the sentence that says why there is nothing.
std::string offered(const Incoming& incoming) {
    if (incoming.color) {
        return "color " + hexadecimalText(incoming.color->color).value();
    }
    if (incoming.gradients.empty()) {
        return incoming.failure;
    }
    return described({incoming.gradients}) + (incoming.leftOut.empty() ? "" : "; " + incoming.leftOut);
}

TEST(Incoming, aTextIsAColorOrHasGradientsOrIsToldOf) {
    const std::vector<std::pair<std::string, std::string>> texts{
        {" rebeccapurple ", "color #663399"},
        {"<svg xmlns='http://www.w3.org/2000/svg'><radialGradient id='a'><stop/><stop offset='1' "
         "stop-color='red'/></radialGradient></svg>",
         "a: 4 #000000 0, #ff0000 100 (size taken as farthest-corner)"},
        {"color: #ff5f6d;", "color #ff5f6d"},
        {"\n#FF5F6D ; ", "color #ff5f6d"},
        {"--brand: red ! important", "color #ff0000"},
        {"color: red; width: 1px", "No gradient in the clipboard"},
        {"a { color: red }", "No gradient in the clipboard"},
        {"conic-gradient(red, blue)", "The gradient is conic"},
        {"a { background: linear-gradient(currentColor, red); color: inherit }",
         "The gradient uses currentColor"},
        {"a { background: linear-gradient(var(--x), red) } b { mask: conic-gradient(red, blue) }",
         "None of 2 gradients can be taken: the first uses var()"},
        {"linear-gradient(red, blue); mask: linear-gradient(light-dark(red, blue), red)",
         "0 #0000ff 0, #ff0000 100; 1 more gradient left out: it uses light-dark()"},
        {"linear-gradient(red, " + std::string(80'000, ',') + "red); linear-gradient(red, blue);" +
             "conic-gradient(red, blue); linear-gradient(color-mix(in lab, red, blue), red)",
         "0 #0000ff 0, #ff0000 100; 2 more gradients left out: the first is conic; what was too much to "
         "read is left out"},
        {"", "No gradient in the clipboard"},
        {"red" + std::string(253, ' '), "color #ff0000"},
        {"red" + std::string(254, ' '), "No gradient in the clipboard"},
        {std::string(longestIncoming, ' '), "No gradient in the clipboard"},
        {std::string(longestIncoming + 1, ' '), "More than 16 MB in the clipboard: not read"}};
    for (const auto& [text, expected] : texts) {
        EXPECT_EQ(offered(readIncomingText(text, "the clipboard")), expected) << text.substr(0, 80);
    }
}

TEST(Incoming, aFileIsReadForWhatItIs) {
    const TemporaryFolder folder;
    std::ofstream{folder.path / "a.css"} << ".a{background:linear-gradient(to right,red,blue)}";
    std::ofstream{folder.path / "empty.svg"};
    ::mkfifo((folder.path / "pipe").c_str(), 0600);
    PresetProgram{folder.path}.gallery.addGradientIntoPreset();
    std::ofstream{folder.path / "no.sqlite3"} << "SQLite format 3, or not";
    const std::vector<std::pair<std::string, std::string>> files{
        {"a.css", ".a: 1 #ff0000 0, #0000ff 100"},
        {"Tessaly/localDB.sqlite3", "1 #000000 0, #ffffff 100"},
        {"empty.svg", "No gradient in empty.svg"},
        {"no.sqlite3", "No presets in no.sqlite3"},
        {"none.css", "none.css does not exist"},
        {"Tessaly", "Tessaly is no file"},
        {"pipe", "pipe is no file"}};
    for (const auto& [file, expected] : files) {
        EXPECT_EQ(offered(readIncomingFile(folder.path / file)), expected);
    }
}

} // namespace
} // namespace tessaly
