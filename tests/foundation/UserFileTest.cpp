#include "foundation/SavedFile.h"
#include "foundation/UserFileError.h"
#include "support/FailingDisk.h"
#include "support/FileSizeLimit.h"
#include "support/TemporaryFolder.h"
#include "support/WithoutPrivileges.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

namespace fs = std::filesystem;
using Durability = AtomicFile::Durability;

const std::string large(100'000, 'y');

TEST(UserFile, followsLinksAndKeepsPermissions) {
    const TemporaryFolder temporary;
    const fs::path& folder = temporary.path;
    fs::create_directory(folder / "in");
    std::ofstream{folder / "own.css"} << "old";
    const auto odd = fs::perms::owner_read | fs::perms::owner_write | fs::perms::others_read;
    fs::permissions(folder / "own.css", odd);
    fs::create_symlink("../own.css", folder / "in/second");
    fs::create_symlink("in/second", folder / "first");
    fs::create_symlink(folder / "in/new.css", folder / "toNothing");
    const mode_t mask = ::umask(S_IWGRP | S_IWOTH);
    for (const auto& [written, changed] : {std::pair{"own.css", "own.css"},
                                           {"first", "own.css"},
                                           {"toNothing", "in/new.css"},
                                           {"fresh.css", "fresh.css"}}) {
        EXPECT_FALSE(writeUserFile(folder / written, large + written, Durability::Forced)) << written;
        EXPECT_EQ(contentsOf(folder / changed), large + written);
        const auto usual = odd | fs::perms::group_read;
        EXPECT_EQ(fs::status(folder / changed).permissions(), changed[0] == 'o' ? odd : usual) << written;
    }
    ::umask(mask);
    EXPECT_TRUE(fs::is_symlink(folder / "first") && fs::is_symlink(folder / "toNothing"));
    EXPECT_EQ(std::distance(fs::recursive_directory_iterator{folder}, {}), 7) << "nothing is left beside";
}

TEST(UserFile, tellsEveryFailureAndLeavesTheOldFileWhole) {
    const TemporaryFolder temporary;
    const fs::path& folder = temporary.path;
    const std::vector<std::string> names{"old.css", "readOnly.css", "in/old.css"};
    fs::create_directory(folder / "in");
    std::ranges::for_each(names, [&](const std::string& name) { std::ofstream{folder / name} << "old"; });
    fs::create_symlink("circle", folder / "circle");
    ::mkfifo((folder / "pipe").c_str(), S_IRUSR | S_IWUSR);
    for (const char* const name : {"readOnly.css", "in"}) {
        fs::permissions(folder / name, fs::perms::owner_read | fs::perms::owner_exec);
    }
    const auto full = [] { return limitFileSize(4096); };
    const auto failing = [](int error) {
        return [error] {
            FailingDisk::failAt(2, {error, false}); // the folder is opened before
            return std::shared_ptr<void>{};
        };
    };
    struct Row {
        const char* file;
        std::error_condition expected;
        std::function<std::shared_ptr<void>()> fault = withoutPrivileges;
    };
    for (const Row& row : {Row{"gone/new.css", std::errc::no_such_file_or_directory},
                           {"in", std::errc::is_a_directory},
                           {"in/", std::errc::is_a_directory},
                           {"old.css/new.css", std::errc::not_a_directory},
                           {"circle", std::errc::too_many_symbolic_link_levels},
                           {"pipe", make_error_code(UserFileError::NoOrdinaryFile).default_error_condition()},
                           {"readOnly.css", std::errc::permission_denied},
                           {"in/old.css", std::errc::permission_denied},
                           {"in/new.css", std::errc::permission_denied},
                           {"old.css", std::errc::file_too_large, full},
                           {"new.css", std::errc::file_too_large, full},
                           {"old.css", std::errc::io_error, failing(EIO)},
                           {"old.css", std::errc::no_space_on_device, failing(ENOSPC)},
                           {"old.css", std::errc::read_only_file_system, failing(EROFS)}}) {
        auto fault = row.fault();
        EXPECT_EQ(writeUserFile(folder / row.file, large, Durability::Forced), row.expected) << row.file;
        fault.reset();
        for (const std::string& name : names) {
            EXPECT_EQ(contentsOf(folder / name), "old") << row.file;
        }
        EXPECT_EQ(std::distance(fs::recursive_directory_iterator{folder}, {}), 6) << row.file;
    }
}

TEST(SavedFile, isSavedAgainAndAgainUnlessOthersChangeIt) {
    const TemporaryFolder temporary;
    const fs::path path = temporary.path / "own.css";
    fs::create_symlink("target.css", path);
    const std::function<void()> changes[] = {[&] {
                                                 std::ofstream{path, std::ios::app} << "theirs";
                                             },
                                             [&] { fs::remove(fs::canonical(path)); },
                                             [&] { writeUserFile(path, "mine", Durability::Eventual); }};
    for (const auto& change : changes) {
        SavedFile file{path};
        for (const char* const text : {"first", "second", "mine"}) {
            EXPECT_FALSE(file.save(text, Durability::Eventual));
            EXPECT_EQ(contentsOf(path), text);
        }
        change();
        const std::string theirs = contentsOf(path);
        EXPECT_EQ(file.save("more", Durability::Eventual), UserFileError::ChangedByOthers);
        EXPECT_EQ(contentsOf(path), theirs);
    }
}

} // namespace
} // namespace tessaly
