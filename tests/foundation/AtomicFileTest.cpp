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
