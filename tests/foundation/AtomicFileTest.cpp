#include "foundation/AtomicFile.h"
#include "foundation/DiagnosticLog.h"
#include "support/FileSizeLimit.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

TEST(AtomicFile, replacesWholeAndLeavesTheOldFileOnFailure) {
    const TemporaryFolder folder;
    const auto file = folder.path / "styles.css";
    const std::string old(100'000, 'x');
    EXPECT_FALSE(writeFileAtomically(file, old));
    std::filesystem::create_directory(folder.path / "taken");
    const auto fullDisk = limitFileSize(4096);
    EXPECT_EQ(writeFileAtomically(file, std::string(100'000, 'y')), std::errc::file_too_large);
    EXPECT_TRUE(writeFileAtomically(folder.path / "taken", "new"));
    EXPECT_EQ(contentsOf(file), old);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator{folder.path}, {}), 2) << "of its own none";
}

TEST(DiagnosticLog, writesEachMessageAsOneLine) {
    testing::internal::CaptureStderr();
    DiagnosticLog::write("one\tline:\n\r");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "one\tline:\\n\\r\n");
}

} // namespace
} // namespace tessaly
