#include "codegen/PreviewFiles.h"

#include "codegen/PageText.h"
#include "codegen/WebView.h"
#include "support/FakeCodeText.h"
#include "support/FileSizeLimit.h"
#include "support/LogCapture.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

namespace fs = std::filesystem;

struct FakeWebView : WebView {
    void loadFile(const fs::path& page) override { loaded = page; }
    void reload() override { ++reloads; }

    fs::path loaded;
    int reloads = 0;
};

class PreviewFilesTest : public testing::Test {
  protected:
    void update(const std::u16string& stylesheet) {
        css.contents = stylesheet;
        files->writeCSSFile();
    }
    bool lastLogged(std::string_view what) const { return log.messages.back().starts_with(what); }

    const LogCapture log;
    const TemporaryFolder temporary;
    const fs::path first = temporary.path / "WebFolder0", second = temporary.path / "WebFolder1";
    FakeCodeText css;
    FakeWebView web;
    std::optional<PreviewFiles> files{std::in_place, css, web, temporary.path};
};

TEST_F(PreviewFilesTest, lieInTheFirstFreeFolderAndGoWithItAtTheEnd) {
    fs::create_symlink("nowhere", first);
    files->createHTMLIndexFile();
    EXPECT_EQ(fs::status(second).permissions(), fs::perms::owner_all);
    EXPECT_EQ(web.loaded, second / "index.html");
    update(u"changed");
    EXPECT_EQ(contentsOf(second / "styles.css"), "changed");
    EXPECT_EQ(web.reloads, 1);
    EXPECT_EQ(contentsOf(second / "index.html"), pageText);
    EXPECT_TRUE(files->isAsWritten());
    std::ofstream{second / "styles.css"} << "another";
    EXPECT_FALSE(files->isAsWritten()) << "somebody else wrote it, in as many bytes";
    files.reset();
    EXPECT_EQ(std::distance(fs::directory_iterator{temporary.path}, {}), 1) << "its folder goes, others stay";
}

TEST_F(PreviewFilesTest, areMissingWhenTheDiskRefusesAndNothingElseIs) {
    PreviewFiles{css, web, temporary.path / "missing"}.createHTMLIndexFile();
    EXPECT_TRUE(lastLogged("No preview folder: "));
    EXPECT_EQ(web.loaded, "");
    css.contents = u"old";
    std::shared_ptr<void> full = limitFileSize(0);
    files->createHTMLIndexFile();
    EXPECT_FALSE(files->isAsWritten()) << "there is none";
    full.reset();
    update(u"old");
    EXPECT_TRUE(files->isAsWritten()) << "in another folder";
    fs::remove(second / "styles.css");
    fs::create_directories(second / "styles.css" / "theirs");
    update(u"new");
    EXPECT_TRUE(lastLogged("Preview file not written: "));
    EXPECT_FALSE(files->isAsWritten()) << "to be tried again";
    files.reset();
    EXPECT_TRUE(fs::exists(second / "styles.css" / "theirs"));
}

TEST_F(PreviewFilesTest, areMadeAnewWhenTheirFolderIsTakenAwayAndNothingInItsPlaceIsTouched) {
    files->createHTMLIndexFile();
    const fs::path theirs = temporary.path / "theirs";
    const std::string names[] = {"styles.css", "index.html"};
    fs::create_directory(theirs);
    for (const std::string& name : names) {
        std::ofstream{theirs / name} << "theirs";
    }
    fs::rename(first, temporary.path / "moved");
    fs::create_symlink(theirs, first);
    EXPECT_FALSE(files->isAsWritten());
    const fs::path away{temporary.path.native() + "-away"};
    fs::rename(temporary.path, away);
    update(u"one");
    EXPECT_TRUE(lastLogged("No preview folder: ")) << "and tried again at the next change";
    fs::rename(away, temporary.path);
    update(u"two");
    EXPECT_EQ(contentsOf(second / "styles.css"), "two");
    EXPECT_EQ(web.loaded, second / "index.html");
    fs::rename(second, temporary.path / "moved again");
    fs::create_directory(second);
    files.reset();
    for (const std::string& name : names) {
        EXPECT_EQ(contentsOf(theirs / name), "theirs");
    }
    EXPECT_TRUE(fs::exists(second)) << "that of another";
}

} // namespace
} // namespace tessaly
