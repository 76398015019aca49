#include "codegen/WebCode.h"

#include "codegen/WebView.h"
#include "support/FakeCodeText.h"
#include "support/Gradients.h"
#include "support/LogCapture.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <utility>

namespace tessaly {
namespace {

// The expected texts stand in files, byte by byte.
std::string expectedText(const char* name) {
    return contentsOf(std::filesystem::path{TESSALY_TEST_DATA} / name);
}

class FakeWebView : public WebView {
  public:
    void loadFile(const std::filesystem::path& page) override { loaded = page; }
    void reload() override { ++reloads; }
    void redisplay() override {}

    std::filesystem::path loaded;
    int reloads = 0;
};

class WebCodeTest : public testing::Test {
  protected:
    WebCodeTest() {
        resetToDefaultGradient();
        code.insertHTML5Code();
        code.insertCSS3Code();
    }

    void update() { code.updateBackgroundColorDataUpdatedNotification({}); }

    // What the user does in the stylesheet view, and what the view reports of it: one edit without the
    // beginning and the end that both texts have.
    void become(const std::u16string& text) {
        const std::u16string before = std::exchange(css.contents, text);
        const std::size_t shorter = std::min(before.size(), text.size());
        std::size_t start = 0;
        while (start < shorter && before[start] == text[start]) {
            ++start;
        }
        std::size_t end = 0;
        while (end < shorter - start && before[before.size() - 1 - end] == text[text.size() - 1 - end]) {
            ++end;
        }
        code.stylesheetEdited(start, before.size() - start - end, text.size() - start - end);
    }
    void edit(std::size_t position, std::size_t removed, const std::u16string& added) {
        become(std::u16string{css.contents}.replace(position, removed, added));
    }

    static std::string freshStylesheet() {
        FakeCodeText html;
        FakeCodeText fresh;
        FakeWebView web;
        WebCode writer{html, fresh, web, {}};
        writer.insertCSS3Code();
        return fresh.utf8();
    }

    const LogCapture log;
    const TemporaryFolder temporary;
    FakeCodeText html;
    FakeCodeText css;
    FakeWebView web;
    WebCode code{html, css, web, temporary.path};
};

TEST_F(WebCodeTest, writesTheDefaultTexts) {
    EXPECT_EQ(css.utf8(), expectedText("default.css"));
    EXPECT_EQ(css.length(), 678U);
    const DeclarationRanges& ranges = code.ranges();
    EXPECT_EQ((std::array{ranges.backgroundColorOldIndex(), ranges.backgroundColorIndex(),
                          ranges.backgroundColorMozIndex(), ranges.backgroundColorOldWebKitIndex(),
                          ranges.backgroundColorNewWebKitIndex(), ranges.backgroundColorOperaIndex(),
                          ranges.backgroundColorIEIndex(), ranges.backgroundColorMSFilterIndex()}),
              (std::array<std::size_t, 8>{28, 50, 126, 203, 323, 403, 478, 554}));
    EXPECT_EQ(html.utf8(), expectedText("default.html"));
    EXPECT_TRUE(css.editable && html.editable);
    EXPECT_EQ(css.caret, 0U);
    EXPECT_FALSE(code.shouldChangeTextInRange());
    EXPECT_TRUE(log.has("backgroundColorOldText: \tbackground: #000000;\n"));
}

TEST_F(WebCodeTest, anyChangeLeavesTheTextThatIsWrittenFromScratch) {
    std::mt19937 random{1};
    for (int i = 0; i < 500; ++i) {
        setRandomGradient(random);
        update();
        ASSERT_EQ(css.utf8(), freshStylesheet()) << "change " << i;
    }
    EXPECT_TRUE(css.rangesInBounds);
}

TEST_F(WebCodeTest, keepsWhatTheUserAddsAroundTheDeclarations) {
    edit(0, 0, u"/* mine \U0001F308 */\n");
    edit(code.ranges().backgroundColorMozIndex(), 0, u"\tcolor: red;\n");
    edit(css.length() - 2, 0, u"\tmargin: 0;\n");
    GlobalData::sharedData().setColorFormatType(colorFormat::rgba);
    update();
    std::string expected = freshStylesheet();
    expected.insert(expected.size() - 2, "\tmargin: 0;\n");
    expected.insert(expected.find("\tbackground: -moz-"), "\tcolor: red;\n");
    EXPECT_EQ(css.utf8(), "/* mine \xF0\x9F\x8C\x88 */\n" + expected);
}

TEST_F(WebCodeTest, rewritesAChangedDeclarationAndBringsBackADeletedOne) {
    const DeclarationRanges& ranges = code.ranges();
    edit(ranges.backgroundColorIndex() + 5, 3, u"oops");                           // inside the standard one
    edit(ranges[Declaration::Moz].location, ranges[Declaration::Moz].length, u""); // a whole one
    edit(ranges.backgroundColorOperaIndex() - 10, 20, u"x"); // across an edge: the x is the user's
    update();
    std::string expected = freshStylesheet();
    expected.insert(expected.find("\tbackground: -o-"), "x");
    EXPECT_EQ(css.utf8(), expected);
    edit(0, css.length(), u"");
    update();
    EXPECT_EQ(css.utf8(), [&] {
        const std::string fresh = freshStylesheet();
        return fresh.substr(28, fresh.size() - 30); // all eight are back, the frame around them is not
    }());
}

TEST_F(WebCodeTest, anUndoneDeletionLeavesNothingBehind) {
    const std::u16string whole = css.text();
    const DeclarationRanges ranges = code.ranges();
    const TextRange rows[] = {
        ranges[Declaration::Old],
        {0, whole.size()},
        {ranges.backgroundColorIndex() + 50, 40},    // from one declaration into the next
        {ranges.backgroundColorIndex() - 1, 1},      // the line break between two
        {ranges.backgroundColorIndex(), 10},         // the start of one
        {ranges.backgroundColorMozIndex() + 10, 20}, // within one
    };
    std::int64_t orientation = 0;
    for (const TextRange& row : rows) {
        const std::u16string before = css.text();
        edit(row.location, row.length, u"");
        become(before);
        GlobalData::sharedData().setOrientationType(orientation++ % 2); // both texts are as long as the first
        update();
        ASSERT_EQ(css.utf8(), freshStylesheet()) << row.location;
        GlobalData::sharedData().setOrientationType(orientation::leftToRight);
        update();
    }
}

TEST_F(WebCodeTest, findsDeclarationsPastWhichTextWasDragged) {
    const std::u16string line = u"\tcolor: red;\n";
    const std::u16string plain = css.text();
    const DeclarationRanges ranges = code.ranges();
    const std::size_t places[] = {0, ranges.backgroundColorOldIndex(), ranges.backgroundColorMozIndex(),
                                  plain.size() - 2, plain.size()};
    const auto with = [&](const std::u16string& text, std::size_t place) {
        return std::u16string{text}.insert(place, line);
    };
    edit(0, 0, line);
    for (const std::size_t from : places) {
        for (const std::size_t to : places) {
            become(with(plain, from));
            become(with(plain, to));
            GlobalData::sharedData().setOrientationType(orientation::radial);
            update();
            std::string others = css.utf8();
            others.erase(others.find("\tcolor: red;\n"), line.size());
            ASSERT_EQ(others, freshStylesheet()) << from << " to " << to;
            GlobalData::sharedData().setOrientationType(orientation::leftToRight);
            update();
        }
    }
}

TEST_F(WebCodeTest, noRandomEditMakesARangeRunPastTheEnd) {
    std::mt19937 random{2};
    for (int i = 0; i < 2000; ++i) {
        const auto upTo = [&](std::size_t most) {
            return std::uniform_int_distribution<std::size_t>{0, most}(random);
        };
        const std::size_t position = upTo(css.length());
        const std::size_t removed = upTo(std::min<std::size_t>(css.length() - position, upTo(1) * 400));
        edit(position, removed, std::u16string(upTo(40), u'u'));
        if (i % 3 == 0) {
            setRandomGradient(random, 4);
            update();
        }
        std::size_t end = 0;
        for (const Declaration declaration : allDeclarations) {
            ASSERT_GE(code.ranges()[declaration].location, end);
            end = code.ranges()[declaration].end();
        }
        ASSERT_LE(end, css.length());
    }
    css.contents.resize(10); // shortened without a word
    update();
    EXPECT_TRUE(css.rangesInBounds);
}

TEST_F(WebCodeTest, writesThePreviewIntoTheFirstFreeFolderAndTakesItAwayAtTheEnd) {
    std::filesystem::create_directory(temporary.path / "WebFolder0");
    std::filesystem::create_symlink("nowhere", temporary.path / "WebFolder1");
    const auto folder = temporary.path / "WebFolder2";
    {
        WebCode owner{html, css, web, temporary.path};
        css.contents.clear();
        owner.insertCSS3Code();
        owner.createHTMLIndexFile();
        EXPECT_EQ(owner.folderPath(), folder);
        EXPECT_EQ(GlobalData::sharedData().tempFolderPath(), folder.native());
        EXPECT_EQ(std::filesystem::status(folder).permissions(), std::filesystem::perms::owner_all);
        EXPECT_EQ(contentsOf(folder / "styles.css"), expectedText("default.css"));
        EXPECT_EQ(contentsOf(folder / "index.html"), html.utf8());
        EXPECT_EQ(web.loaded, folder / "index.html");
        EXPECT_TRUE(log.has("htmlPath: " + (folder / "index.html").native()));
        EXPECT_FALSE(owner.needToWriteCSSFile());
        owner.writeFile();
        EXPECT_EQ(web.reloads, 0) << "nothing changed yet";

        html.contents = u"edited by hand";
        for (const std::int64_t orientation : {orientation::radial, orientation::bottomToTop}) {
            GlobalData::sharedData().setOrientationType(orientation);
            owner.updateBackgroundColorDataUpdatedNotification({});
            EXPECT_EQ(contentsOf(folder / "styles.css"), css.utf8());
        }
        EXPECT_EQ(web.reloads, 2);
        EXPECT_TRUE(owner.needToWriteCSSFile());
        EXPECT_FALSE(owner.needToWriteHTMLFile());
        EXPECT_NE(contentsOf(folder / "index.html"), html.utf8()) << "the page file is never rewritten";
    }
    EXPECT_FALSE(std::filesystem::exists(folder));
}

TEST_F(WebCodeTest, goesOnWithoutAPreviewWhenTheDiskRefuses) {
    const auto file = temporary.path / "file";
    std::ofstream{file} << "x";
    for (const auto& refused : {temporary.path / "missing", file}) {
        WebCode owner{html, css, web, refused};
        owner.createHTMLIndexFile();
        EXPECT_EQ(owner.folderPath(), "");
        EXPECT_EQ(log.messages.back().rfind("No preview folder: " + refused.native(), 0), 0U);
    }
    EXPECT_EQ(web.loaded, "");

    code.createHTMLIndexFile();
    std::filesystem::remove_all(code.folderPath()); // someone tidied up
    update();
    EXPECT_EQ(log.messages.back().rfind("Preview file not written: ", 0), 0U);
    EXPECT_EQ(css.utf8(), expectedText("default.css"));
}

} // namespace
} // namespace tessaly
