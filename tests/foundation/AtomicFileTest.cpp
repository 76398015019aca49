#include "foundation/AtomicFile.h"
#include "foundation/Descriptor.h"
#include "foundation/DiagnosticLog.h"
#include "support/FileSizeLimit.h"
#include "support/TemporaryFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

TEST(AtomicFile, replacesWholeAndLeavesTheOldFileOnFailure) {
    const TemporaryFolder temporary;
    const Descriptor folder{::open(temporary.path.c_str(), O_RDONLY | O_DIRECTORY)};
    const auto file = temporary.path / "styles.css";
    const std::string old(100'000, 'x');
    std::ofstream{temporary.path / "theirs"} << "theirs";
    std::filesystem::create_symlink("theirs", file);
    EXPECT_FALSE(writeFileAtomically(folder, "styles.css", old));
    std::filesystem::create_directory(temporary.path / "taken");
    const auto fullDisk = limitFileSize(4096);
    EXPECT_EQ(writeFileAtomically(folder, "styles.css", std::string(100'000, 'y')),
              std::errc::file_too_large);
    EXPECT_TRUE(writeFileAtomically(folder, "taken", "new"));
    EXPECT_EQ(contentsOf(file), old);
    EXPECT_EQ(contentsOf(temporary.path / "theirs"), "theirs") << "no link is followed";
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator{temporary.path}, {}), 3) << "of its own none";
}

TEST(DiagnosticLog, writesEachMessageAsOneLine) {
    testing::internal::CaptureStderr();
    DiagnosticLog::write("one\tline:\n\r");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "one\tline:\\n\\r\n");
}

} // namespace
} // namespace tessaly
