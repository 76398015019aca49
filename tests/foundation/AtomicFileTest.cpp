#include "foundation/AtomicFile.h"
#include "foundation/DiagnosticLog.h"
#include "support/TemporaryFolder.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace tessaly {
namespace {

// Lets no file grow beyond a number of bytes, as a full disk does.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(rlim_t bytes) : handler_{std::signal(SIGXFSZ, SIG_IGN)} {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }

  private:
    rlimit before_{};
    void (*handler_)(int);
};

TEST(AtomicFile, replacesWholeAndLeavesTheOldFileOnFailure) {
    const TemporaryFolder folder;
    const auto file = folder.path / "styles.css";
    EXPECT_FALSE(writeFileAtomically(file, "old"));
    EXPECT_FALSE(writeFileAtomically(file, std::string(100'000, 'x')));
    EXPECT_EQ(contentsOf(file).size(), 100'000U);
    {
        const FileSizeLimit fullDisk{4096};
        EXPECT_EQ(writeFileAtomically(file, std::string(100'000, 'y')), std::errc::file_too_large);
    }
    EXPECT_EQ(contentsOf(file), std::string(100'000, 'x'));
    EXPECT_TRUE(writeFileAtomically(folder.path / "missing" / "styles.css", "new"));
    std::filesystem::create_directory(folder.path / "taken");
    EXPECT_TRUE(writeFileAtomically(folder.path / "taken", "new"));
    EXPECT_EQ(folder.entries(), 2U) << "no temporary file is left behind";
}

TEST(DiagnosticLog, writesEachMessageAsOneLine) {
    testing::internal::CaptureStderr();
    DiagnosticLog::write("backgroundColorOldText: \tbackground: #000000;\n");
    DiagnosticLog::write("Success!");
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "backgroundColorOldText: \tbackground: #000000;\\n\nSuccess!\n");
}

} // namespace
} // namespace tessaly
