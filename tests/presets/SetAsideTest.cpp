#include "presets/SetAside.h"

#include "support/FailingDisk.h"
#include "support/LogCapture.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <map>

namespace tessaly {
namespace {

namespace fs = std::filesystem;

TEST(SetAside, movesAllThatBelongsTogetherOrNothing) {
    const LogCapture log;
    bool wasRefused = false;
    for (int call = 1; call < 12; ++call) {
        for (const bool lasting : {false, true}) {
            SCOPED_TRACE(call);
            const TemporaryFolder folder;
            const fs::path file = folder.path / "presets.sqlite3";
            for (const char* const suffix : {"", "-wal", "-journal"}) {
                std::ofstream{file.native() + suffix} << "of" << suffix;
            }
            FailingDisk::failAt(call, {EIO, lasting});
            const bool isAside = setAside(file);
            FailingDisk::failAt(1'000'000, {EIO, false});
            std::map<std::string, std::string> found; // without the date
            for (const fs::path& path : fs::directory_iterator{folder.path}) {
                const std::string name = path.filename().native();
                found[name.starts_with("presets.") ? name : name.substr(name.find(".sqlite3"))] =
                    contentsOf(path);
            }
            const std::string stem = isAside ? "" : "presets";
            EXPECT_EQ(found, (std::map<std::string, std::string>{{stem + ".sqlite3", "of"},
                                                                 {stem + ".sqlite3-wal", "of-wal"},
                                                                 {stem + ".sqlite3-journal", "of-journal"}}));
            EXPECT_EQ(log.messages.back().starts_with("Presets not set aside: "), !isAside);
            wasRefused = wasRefused || !isAside;
        }
    }
    EXPECT_TRUE(wasRefused);
}

} // namespace
} // namespace tessaly
