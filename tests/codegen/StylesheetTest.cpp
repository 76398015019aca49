#include "codegen/Stylesheet.h"

#include "codegen/DeclarationText.h"
#include "support/FakeCodeText.h"
#include "support/Gradients.h"
#include "support/LogCapture.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <regex>

namespace tessaly {
namespace {

const std::filesystem::path data{TESSALY_TEST_DATA}; // the expected texts, byte by byte
const std::string radialCss = contentsOf(data / "radial.css");

class StylesheetTest : public testing::Test {
  protected:
    StylesheetTest() { stylesheet.insertCSS3Code(record.gradient, record.colorFormatType); }

    bool update() { return stylesheet.update(record.gradient, record.colorFormatType); }
    bool update(std::int64_t orientation) {
        record.gradient.setOrientation(orientation);
        return update();
    }

    // What the user does in the stylesheet view, and what the view reports of it.
    void become(const std::u16string& text) {
        const TextEdit edit = TextEdit::between(css.contents, text);
        css.contents = text;
        stylesheet.edited(edit);
    }
    void edit(TextRange range, const std::u16string& added) {
        become(std::u16string{css.contents}.replace(range.location, range.length, added));
    }

    const LogCapture log;
    GlobalData record = defaultRecord();
    FakeCodeText css;
    Stylesheet stylesheet{css};
};

TEST_F(StylesheetTest, isWrittenForEveryOrientation) {
    const std::array<const char*, 3> rows[] = {
        {"linear-gradient((null)", "linear-gradient((null)", "(null)"},
        {"linear-gradient(to top", "linear-gradient(bottom", "linear, left bottom, left top"},
        {"linear-gradient(to right", "linear-gradient(left", "linear, left top, right top"},
        {"linear-gradient(45deg", "linear-gradient(45deg", "linear, left bottom, right top"},
        {"linear-gradient(-45deg", "linear-gradient(135deg", "linear, right bottom, left top"},
        {"radial-gradient(ellipse at center", "radial-gradient(center, ellipse cover",
         "radial, center center, 0px, center center, 100%"},
        {"linear-gradient((null)", "linear-gradient((null)", "(null)"}};
    std::int64_t orientation = -1; // the first row's
    for (const auto& [standard, prefixed, legacy] : rows) {
        std::string expected = contentsOf(data / "default.css");
        expected = std::regex_replace(expected, std::regex{"linear-gradient\\(to right"}, standard);
        expected = std::regex_replace(expected, std::regex{"linear-gradient\\(left"}, prefixed);
        expected = std::regex_replace(expected, std::regex{"linear, left top, right top"}, legacy);
        update(orientation++);
        EXPECT_EQ(css.utf8(), expected);
    }
}

TEST_F(StylesheetTest, findsDeclarationsAfterAnUndoAndPastDraggedText) {
    const std::u16string line = u"\tcolor: red;\n";
    const std::u16string plain{css.text()};
    const auto survive = [&](const std::u16string& first, const std::u16string& second) {
        become(first);
        become(second);
        update(orientation::radial);
        std::string declarations = css.utf8();
        declarations.erase(declarations.find("\tcolor: red;\n"), line.size());
        EXPECT_EQ(declarations, radialCss) << "after " << toUtf8(first);
        update(orientation::leftToRight);
    };
    edit({0, 0}, line);
    for (const std::u16string& text : {plain, std::u16string{plain}.replace(60, 3, u"oops")}) {
        for (std::size_t start = 0; start < plain.size(); start += 2) {
            for (const std::size_t length : {1U, 10U, 80U, 1000U}) {
                become(line + text);
                survive(line + std::u16string{text}.erase(start, length), line + text);
            }
        }
    }
    const std::size_t filter = plain.find(u"\tfilter"), end = plain.size();
    const std::size_t places[] = {0, 28, 126, filter, end - 2, end}; // at edges of declarations
    for (const std::size_t from : places) {
        for (const std::size_t to : places) {
            survive(std::u16string{plain}.insert(from, line), std::u16string{plain}.insert(to, line));
        }
    }
}

TEST_F(StylesheetTest, keepsWhatTheUserAddsAndTellsItsDeclarationsFromCopies) {
    const std::u16string plain{css.text()}, line = u"\tcolor: red;\n",
                                            box = u"/* \U0001F308 */ p {\n\tbackground: #000000;\n}\n";
    const std::size_t first = plain.find(u"\tbackground: #"), opera = plain.find(u"\tbackground: -o-"),
                      filter = plain.find(u"\tfilter"), end = plain.size() - 2;
    const auto radialWith = [&](const std::u16string& added, const std::string& place) {
        return std::string{radialCss}.insert(radialCss.find(place), toUtf8(added));
    };
    const std::function<std::string()> rows[] = {
        [&] { // a letter within the first declaration, below a copy of it
            edit({0, 0}, box);
            edit({box.size() + first + 14, 0}, u"x");
            return toUtf8(box) + radialCss;
        },
        [&] { // the last one deleted, above a copy of the whole rule
            edit({plain.size(), 0}, plain);
            edit({filter, end - filter}, u"");
            edit({filter, 0}, u"\n");
            return radialWith(u"\n", "\tfilter") + toUtf8(plain);
        },
        [&] { // a line dragged over all of them, above a copy of one
            edit({plain.size(), 0}, box);
            edit({first, 0}, line);
            become(std::u16string{plain}.insert(end, line) + box);
            return radialWith(line, "}\n") + toUtf8(box);
        },
        [&] { // a line typed below a changed one
            edit({first + 21, 0}, u" /* x */");
            css.contents.insert(first + 29, u"\n");
            stylesheet.edited({first + 29, 0, 1});
            edit({first + 30, 0}, u"\tcolor: red;");
            return radialWith(line, "\tbackground: radial");
        },
        [&] { // a line typed into a changed one; before an update the same text had it above
            edit({first, 0}, line);
            edit({first + line.size() + 14, 0}, u"x");
            stylesheet.insertCSS3Code(record.gradient, record.colorFormatType);
            edit({first + 14, 0}, u"x");
            css.contents.insert(first + 1, line.substr(1) + u'\t');
            stylesheet.edited({first + 1, 0, line.size()});
            return radialCss;
        },
        [&] { // a changed one cut out and brought back, after much else
            for (int i = 0; i < 1'500; ++i) {
                edit({0, 0}, u"x");
            }
            edit({1'500 + opera + 5, 3}, u"oops");
            const std::u16string changed{css.text()};
            edit({1'500 + opera, 80}, u"");
            become(changed);
            return std::string(1'500, 'x') + radialCss;
        }};
    for (const auto& row : rows) {
        record.gradient.setOrientation(orientation::leftToRight);
        stylesheet.insertCSS3Code(record.gradient, record.colorFormatType);
        const std::string expected = row();
        update(orientation::radial);
        EXPECT_EQ(css.utf8(), expected);
    }
}

TEST_F(StylesheetTest, anyChangeAmongRandomEditsWritesEveryDeclaration) {
    std::mt19937 random{2};
    const auto upTo = [&](std::size_t most) {
        return std::uniform_int_distribution<std::size_t>{0, most}(random);
    };
    for (int i = 0; i < 1000; ++i) {
        for (std::size_t edits = upTo(3); edits > 0; --edits) {
            const std::u16string dragged =
                css.contents.substr(upTo(css.contents.size()), upTo(1) * upTo(200));
            std::u16string text = css.contents;
            text.erase(text.find(dragged), dragged.size());
            become(text.insert(upTo(text.size()), dragged));
            const std::size_t place = upTo(css.contents.size());
            edit({place, upTo(std::min(css.contents.size() - place, upTo(1) * 400))},
                 std::u16string(upTo(40), u'u'));
        }
        record = randomRecord(random);
        update();
        const GlobalData written = std::exchange(record, randomRecord(random));
        css.replacements.clear();
        update();
        std::size_t end = 0;
        for (const Declaration declaration : allDeclarations) {
            const auto& again = css.replacements.at(static_cast<std::size_t>(declaration));
            ASSERT_LE(end, again.location) << "change " << i;
            ASSERT_EQ(toUtf8(again.removed),
                      declarationText(declaration, written.gradient, written.colorFormatType));
            end = again.location + again.added;
        }
    }
    css.contents.resize(10); // shortened without a word
    update();
    EXPECT_TRUE(css.rangesInBounds);
}

TEST_F(StylesheetTest, isWrittenOnceForAChangeThatIsAnnouncedTwice) {
    const auto isWrittenOnce = [&] {
        css.replacements.clear();
        return update() && !update() && css.replacements.size() == 8;
    };
    EXPECT_FALSE(update()) << "as inserted";
    record.gradient.setOrientation(orientation::radial);
    EXPECT_TRUE(isWrittenOnce());
    record.colorFormatType = colorFormat::hsla;
    EXPECT_TRUE(isWrittenOnce());
    edit({30, 3}, u"oops");
    EXPECT_TRUE(isWrittenOnce());
    css.contents.pop_back(); // without a word
    EXPECT_TRUE(isWrittenOnce());
}

} // namespace
} // namespace tessaly
