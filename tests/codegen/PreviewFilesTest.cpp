#include "codegen/PreviewFiles.h"

#include "support/FakeCodeText.h"
#include "support/FakeWebView.h"
#include "support/LogCapture.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

class PreviewFilesTest : public testing::Test {
  protected:
    void update(const std::u16string& stylesheet) {
        css.contents = stylesheet;
        files->writeCSSFile();
    }

    const LogCapture log;
    const TemporaryFolder temporary;
    FakeCodeText html, css;
    FakeWebView web;
    std::optional<PreviewFiles> files{std::in_place, html, css, web, temporary.path};
};

TEST_F(PreviewFilesTest, lieInTheFirstFreeFolderAndGoWithItAtTheEnd) {
    std::filesystem::create_directory(temporary.path / "WebFolder0");
    std::filesystem::create_symlink("nowhere", temporary.path / "WebFolder1");
    const auto folder = temporary.path / "WebFolder2";
    html.contents = u"the page";
    css.contents = u"first";
    files->createHTMLIndexFile();
    EXPECT_EQ(std::filesystem::status(folder).permissions(), std::filesystem::perms::owner_all);
    EXPECT_EQ(contentsOf(folder / "styles.css"), "first");
    EXPECT_EQ(web.loaded, folder / "index.html");
    html.contents = u"edited by hand";
    for (const auto* const text : {u"second", u"third"}) {
        update(text);
        EXPECT_EQ(contentsOf(folder / "styles.css"), css.utf8());
    }
    EXPECT_EQ(web.reloads, 2);
    EXPECT_EQ(contentsOf(folder / "index.html"), "the page") << "never rewritten";
    EXPECT_TRUE(files->isAsWritten());
    std::ofstream{folder / "styles.css"} << "other";
    EXPECT_FALSE(files->isAsWritten()) << "somebody else wrote it, in as many bytes";
    files.reset();
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator{temporary.path}, {}), 2)
        << "its folder goes, others stay";
}

TEST_F(PreviewFilesTest, areMissingWhenTheDiskRefusesAndNothingElseIs) {
    PreviewFiles{html, css, web, temporary.path / "missing"}.createHTMLIndexFile();
    EXPECT_EQ(log.messages.back().rfind("No preview folder: ", 0), 0U);
    EXPECT_EQ(web.loaded, "");
    files->createHTMLIndexFile();
    const auto theirs = temporary.path / "WebFolder0" / "styles.css" / "theirs";
    std::filesystem::remove(theirs.parent_path());
    std::filesystem::create_directories(theirs);
    update(u"new");
    EXPECT_EQ(log.messages.back().rfind("Preview file not written: ", 0), 0U);
    files.reset();
    EXPECT_TRUE(std::filesystem::exists(theirs));
}

TEST_F(PreviewFilesTest, areMadeAnewWhenTheirFolderIsTakenAwayAndNothingInItsPlaceIsTouched) {
    files->createHTMLIndexFile();
    const auto first = temporary.path / "WebFolder0", second = temporary.path / "WebFolder1",
               elsewhere = temporary.path / "elsewhere";
    std::filesystem::create_directory(elsewhere);
    const auto theirs = {elsewhere / "styles.css", elsewhere / "index.html"};
    for (const auto& file : theirs) {
        std::ofstream{file} << "theirs";
    }
    std::filesystem::rename(first, temporary.path / "moved");
    std::filesystem::create_symlink(elsewhere, first);
    EXPECT_FALSE(files->isAsWritten());
    const std::filesystem::path away{temporary.path.native() + "-away"};
    std::filesystem::rename(temporary.path, away);
    update(u"one");
    EXPECT_EQ(log.messages.back().rfind("No preview folder: ", 0), 0U)
        << "and tried again at the next change";
    std::filesystem::rename(away, temporary.path);
    for (const auto* const text : {u"two", u"three"}) {
        update(text);
        EXPECT_EQ(contentsOf(second / "styles.css"), css.utf8());
    }
    EXPECT_TRUE(std::filesystem::exists(second / "index.html"));
    EXPECT_EQ(web.loaded, second / "index.html");
    std::filesystem::remove_all(second);
    update(u"four");
    EXPECT_EQ(web.loaded, second / "index.html") << "the first free one again";
    std::filesystem::rename(second, temporary.path / "moved again");
    std::filesystem::create_directory(second);
    files.reset();
    for (const auto& file : theirs) {
        EXPECT_EQ(contentsOf(file), "theirs");
    }
    EXPECT_TRUE(std::filesystem::exists(second)) << "that of another";
}

} // namespace
} // namespace tessaly
