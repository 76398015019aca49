#include "codegen/WebCode.h"

#include "sourceview/TextEdit.h"
#include "support/FakeCodeText.h"
#include "support/FakeWebView.h"
#include "support/Gradients.h"
#include "support/LogCapture.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <regex>

namespace tessaly {
namespace {

const std::filesystem::path data{TESSALY_TEST_DATA}; // the expected texts, byte by byte
const std::string radialCss = contentsOf(data / "radial.css");

class WebCodeTest : public testing::Test {
  protected:
    WebCodeTest() {
        resetToDefaultGradient();
        code->insertHTML5Code();
        code->insertCSS3Code();
    }

    void update(std::int64_t orientation = GlobalData::sharedData().gradient().orientation()) {
        GlobalData::sharedData().gradient().setOrientation(orientation);
        code->updateBackgroundColorDataUpdatedNotification({});
    }

    // What the user does in the stylesheet view, and what the view reports of it.
    void become(const std::u16string& text) {
        const TextEdit edit = TextEdit::between(css.contents, text);
        css.contents = text;
        code->stylesheetEdited(edit.position, edit.removed, edit.added);
    }
    void edit(TextRange range, const std::u16string& added) {
        become(std::u16string{css.contents}.replace(range.location, range.length, added));
    }

    const LogCapture log;
    const TemporaryFolder temporary;
    FakeCodeText html;
    FakeCodeText css;
    FakeWebView web;
    std::optional<WebCode> code{std::in_place, html, css, web, temporary.path};
};

TEST_F(WebCodeTest, writesThePageAndTheStylesheetOfEveryOrientation) {
    EXPECT_EQ(html.utf8(), contentsOf(data / "default.html"));
    EXPECT_TRUE(css.editable && html.editable && css.caret == 0);
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

TEST_F(WebCodeTest, rewritesChangedDeclarationsAndKeepsWhatTheUserAddsAroundThem) {
    edit({0, 0},
         u"/* \U0001F308 */ p {\n\tbackground: #000000;\n}\n"); // with a copy of the first declaration
    edit({code->ranges().backgroundColorOldIndex(), 0}, u"\tcolor: red;\n");
    edit({css.length() - 2, 0}, u"\tmargin: 0;\n");
    edit({code->ranges().backgroundColorIndex() + 5, 3}, u"oops");     // inside the standard one
    edit(code->ranges()[Declaration::OldWebKit], u"");                 // a whole one
    edit({code->ranges().backgroundColorOperaIndex() - 10, 20}, u"x"); // across an edge: the x is the user's
    GlobalData::sharedData().gradient().replace(0, {0.0, Color::white()});
    update(orientation::radial);
    const std::string fresh = std::regex_replace(radialCss, std::regex{"#000000"}, "#ffffff");
    std::string expected = fresh;
    expected.insert(expected.size() - 2, "\tmargin: 0;\n");
    expected.insert(expected.find("\tbackground: -o-"), "x");
    expected.insert(expected.find("\tbackground"), "\tcolor: red;\n");
    EXPECT_EQ(css.utf8(), "/* \xF0\x9F\x8C\x88 */ p {\n\tbackground: #000000;\n}\n" + expected);
    edit({0, css.length()}, u"");
    update();
    EXPECT_EQ(css.utf8(), fresh.substr(28, fresh.size() - 30)) << "all eight, without the frame";
}

TEST_F(WebCodeTest, findsDeclarationsAfterAnUndoAndPastDraggedText) {
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
    const std::size_t places[] = {0, 28, 126, plain.size() - 2, plain.size()}; // at edges of declarations
    for (const std::size_t from : places) {
        for (const std::size_t to : places) {
            survive(std::u16string{plain}.insert(from, line), std::u16string{plain}.insert(to, line));
        }
    }
}

TEST_F(WebCodeTest, tellsItsDeclarationsFromTheUsersCopiesAndNewLines) {
    const std::u16string plain{css.text()}, box = u".box {\n\tbackground: #000000;\n}\n",
                                            line = u"\tcolor: red;\n";
    const std::size_t first = code->ranges().backgroundColorOldIndex();
    const TextRange last = code->ranges()[Declaration::MSFilter];
    const std::vector<std::function<std::string()>> rows{
        [&] { // a letter within the first declaration, below a copy of it
            edit({0, 0}, box);
            edit({box.size() + first + 14, 0}, u"x");
            return toUtf8(box) + radialCss;
        },
        [&] { // the last one deleted, above a copy of the whole rule
            edit({plain.size(), 0}, plain);
            edit(last, u"");
            edit({last.location, 0}, u"\n");
            return std::string{radialCss}.insert(radialCss.find("\tfilter"), "\n") + toUtf8(plain);
        },
        [&] { // a line dragged over all of them, above a copy of one
            edit({plain.size(), 0}, box);
            edit({first, 0}, line);
            become(std::u16string{plain}.insert(last.end(), line) + box);
            return std::string{radialCss}.insert(radialCss.size() - 2, toUtf8(line)) + toUtf8(box);
        },
        [&] { // a line typed below a changed one
            edit({first + 21, 0}, u" /* x */");
            css.contents.insert(first + 29, u"\n");
            code->stylesheetEdited(first + 29, 0, 1);
            edit({first + 30, 0}, u"\tcolor: red;");
            return std::string{radialCss}.insert(first + 22, toUtf8(line));
        }};
    for (const auto& row : rows) {
        GlobalData::sharedData().gradient().setOrientation(orientation::leftToRight);
        code->insertCSS3Code();
        const std::string expected = row();
        update(orientation::radial);
        EXPECT_EQ(css.utf8(), expected);
    }
}

TEST_F(WebCodeTest, anyChangeAmongRandomEditsWritesEveryDeclaration) {
    std::mt19937 random{2};
    const auto upTo = [&](std::size_t most) {
        return std::uniform_int_distribution<std::size_t>{0, most}(random);
    };
    for (int i = 0; i < 1000; ++i) {
        for (std::size_t edits = upTo(3); edits > 0; --edits) {
            const std::u16string dragged = css.contents.substr(upTo(css.length()), upTo(1) * upTo(200));
            std::u16string text = css.contents;
            text.erase(text.find(dragged), dragged.size());
            become(text.insert(upTo(text.size()), dragged));
            const std::size_t place = upTo(css.length());
            edit({place, upTo(std::min(css.length() - place, upTo(1) * 400))},
                 std::u16string(upTo(40), u'u'));
        }
        setRandomGradient(random);
        update();
        std::size_t end = 0;
        for (const Declaration declaration : allDeclarations) {
            const TextRange range = code->ranges()[declaration];
            ASSERT_LE(end, range.location) << "change " << i;
            ASSERT_EQ(toUtf8(css.contents.substr(range.location, range.length)),
                      declarationText(declaration, GlobalData::sharedData().gradient(),
                                      GlobalData::sharedData().colorFormatType()));
            end = range.end();
        }
    }
    css.contents.resize(10); // shortened without a word
    update();
    EXPECT_TRUE(css.rangesInBounds);
}

TEST_F(WebCodeTest, writesThePreviewIntoTheFirstFreeFolderAndTakesItAwayAtTheEnd) {
    std::filesystem::create_directory(temporary.path / "WebFolder0");
    std::filesystem::create_symlink("nowhere", temporary.path / "WebFolder1");
    const auto folder = temporary.path / "WebFolder2";
    code->createHTMLIndexFile();
    EXPECT_EQ(GlobalData::sharedData().tempFolderPath(), folder.native());
    EXPECT_EQ(std::filesystem::status(folder).permissions(), std::filesystem::perms::owner_all);
    EXPECT_EQ(contentsOf(folder / "styles.css"), contentsOf(data / "default.css"));
    EXPECT_EQ(web.loaded, folder / "index.html");
    html.contents = u"edited by hand";
    for (const std::int64_t orientation : {orientation::radial, orientation::bottomToTop}) {
        update(orientation);
        EXPECT_EQ(contentsOf(folder / "styles.css"), css.utf8());
    }
    EXPECT_EQ(web.reloads, 2);
    EXPECT_EQ(contentsOf(folder / "index.html"), contentsOf(data / "default.html")) << "never rewritten";
    code.reset();
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator{temporary.path}, {}), 2)
        << "its folder goes, others stay";
}

TEST_F(WebCodeTest, goesOnWithoutAPreviewWhenTheDiskRefuses) {
    WebCode{html, css, web, temporary.path / "missing"}.createHTMLIndexFile();
    EXPECT_EQ(log.messages.back().rfind("No preview folder: ", 0), 0U);
    EXPECT_EQ(web.loaded, "");
    code->createHTMLIndexFile();
    const auto theirs = code->folderPath() / "styles.css" / "theirs";
    std::filesystem::remove(code->folderPath() / "styles.css");
    std::filesystem::create_directories(theirs);
    update();
    EXPECT_EQ(log.messages.back().rfind("Preview file not written: ", 0), 0U);
    EXPECT_EQ(css.utf8(), contentsOf(data / "default.css"));
    code.reset();
    EXPECT_TRUE(std::filesystem::exists(theirs));
}

TEST_F(WebCodeTest, makesAFolderThatWasTakenAwayAnewAndTouchesNothingThatStandsInItsPlace) {
    code->createHTMLIndexFile();
    const auto first = code->folderPath(), elsewhere = temporary.path / "elsewhere";
    std::filesystem::create_directory(elsewhere);
    const auto theirs = {elsewhere / "styles.css", elsewhere / "index.html"};
    for (const auto& file : theirs) {
        std::ofstream{file} << "theirs";
    }
    std::filesystem::rename(first, temporary.path / "moved");
    std::filesystem::create_symlink(elsewhere, first);
    const std::filesystem::path away{temporary.path.native() + "-away"};
    std::filesystem::rename(temporary.path, away);
    update();
    EXPECT_EQ(log.messages.back().rfind("No preview folder: ", 0), 0U)
        << "and tried again at the next change";
    std::filesystem::rename(away, temporary.path);
    for (const std::int64_t orientation : {orientation::radial, orientation::bottomToTop}) {
        update(orientation);
        EXPECT_EQ(contentsOf(temporary.path / "WebFolder1" / "styles.css"), css.utf8());
    }
    EXPECT_EQ(contentsOf(temporary.path / "WebFolder1" / "index.html"), contentsOf(data / "default.html"));
    EXPECT_EQ(web.loaded, temporary.path / "WebFolder1" / "index.html");
    EXPECT_EQ(GlobalData::sharedData().tempFolderPath(), code->folderPath().native());
    std::filesystem::remove_all(code->folderPath());
    update();
    EXPECT_EQ(web.loaded, temporary.path / "WebFolder1" / "index.html") << "the first free one again";
    std::filesystem::rename(code->folderPath(), temporary.path / "moved again");
    std::filesystem::create_directory(temporary.path / "WebFolder1");
    code.reset();
    for (const auto& file : theirs) {
        EXPECT_EQ(contentsOf(file), "theirs");
    }
    EXPECT_TRUE(std::filesystem::exists(temporary.path / "WebFolder1")) << "that of another";
}

} // namespace
} // namespace tessaly
