// What no crash, no full disk, no lock, no damage and no other program may do: cost the user a preset.

#include "support/FailingDisk.h"
#include "support/FileSizeLimit.h"
#include "support/LogCapture.h"
#include "support/PresetProgram.h"
#include "support/TemporaryFolder.h"
#include "support/WithoutPrivileges.h"

#include <functional>
#include <gtest/gtest.h>
#include <span>
#include <sys/wait.h>

namespace tessaly {
namespace {

using Disk = FailingDisk;
namespace fs = std::filesystem;

/// The list of presets number 27 has seven, those of the others follow whole from their numbers too.
std::vector<Gradient> listOf(std::initializer_list<std::int64_t> numbers) {
    std::vector<Gradient> list;
    for (const std::int64_t number : numbers) {
        for (std::int64_t i = 0; i <= number % 7; ++i) {
            list.push_back(Gradient{{{0.5, Color::white()}, {1.0, Color{}, static_cast<double>(i)}}, number});
        }
    }
    return list;
}

void save(PresetProgram& program, std::int64_t number) {
    GradientList list;
    for (const Gradient& gradient : listOf({number})) {
        list.push_back(std::make_shared<const Gradient>(gradient));
    }
    program.gallery.restore(std::make_shared<const GradientList>(list)); // which saves it
}

class PresetFileTest : public testing::Test {
  protected:
    std::vector<fs::path> setAside() const {
        std::vector<fs::path> found(fs::directory_iterator{folder}, {});
        std::erase_if(found, [](const fs::path& path) {
            return path.native().find("-set-aside-") == std::string::npos || path.native().ends_with("-wal");
        });
        return found;
    }
    static std::string countIn(const fs::path& database) {
        return SqliteConnection::open(database).value("select count(*) from MainTable").value_or("none");
    }
    void saveAlone(std::int64_t number) const {
        PresetProgram program{support.path};
        save(program, number);
    }
    std::vector<Gradient> stored() const { return PresetProgram{support.path}.presets(); }

    /// Runs in a process of its own. True: it came to the call at which its disk fails.
    static bool isStruck(const std::function<void()>& run) {
        const pid_t child = ::fork();
        if (child == 0) {
            run();
            ::_exit(Disk::hasStruck() ? 2 : 0);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        const bool struck = status == SIGKILL || (WIFEXITED(status) && WEXITSTATUS(status) == 2);
        EXPECT_TRUE(struck || status == 0) << "a crash of its own: " << status;
        return struck;
    }

    /// Another program's connection, in the midst of something.
    std::shared_ptr<SqliteConnection> other(const char* statement) const {
        auto other = std::make_shared<SqliteConnection>(SqliteConnection::open(file));
        EXPECT_EQ(other->execute(statement).message, std::nullopt);
        return other;
    }
    void overwrite(std::streamoff place, char with, std::size_t bytes) const {
        std::fstream{file, std::ios::in | std::ios::out}.seekp(place) << std::string(bytes, with);
    }

    LogCapture log;
    // In memory where that can be had: the tests force thousands of files to the disk.
    const TemporaryFolder support{fs::exists("/dev/shm") ? "/dev/shm" : fs::temp_directory_path()};
    const fs::path folder = support.path / "Tessaly";
    const fs::path file = folder / "localDB.sqlite3";
    const fs::path safetyCopy = folder / "localDB.sqlite3.safety";
};

TEST_F(PresetFileTest, aFailureAtAnyCallLosesNothingAndWhatCannotBeReadIsSetAside) {
    struct Row {
        const char* name;
        std::size_t shown; ///< presets, before the first save
        std::function<void()> damage;
    };
    const std::vector<Row> rows{
        {"no damage", 7, [] {}},
        {"no database", 0, [&] { overwrite(0, 'x', 100); }},
        {"a later format that can only be read", 7, [&] { overwrite(18, '!', 1); }},
        {"cut short", 0, [this] { fs::resize_file(file, 4096); }},
        {"a broken page of stops", 7, [&] { overwrite(8192, '\xFF', 100); }},
        {"a cut page that reads as other values", 7, [this] { fs::resize_file(file, 12'200); }},
        {"another column", 0, [this] { other("alter table MainTable rename orientationType to kind"); }},
        {"a table that a module makes up", 0,
         [this] {
             other("drop table MainTable; create virtual table MainTable using fts4(mainIndex, "
                   "orientationType)");
         }},
        {"a view that never ends", 0,
         [this] {
             other("drop table MainTable; create view MainTable as with recursive n(mainIndex) as (select 1 "
                   "union all select mainIndex + 1 from n) select mainIndex, 1 as orientationType from n");
         }},
        {"a view", 7, [this] {
             other("alter table AdditionalTable rename to Stops;"
                   "create view AdditionalTable as select * from Stops");
         }}};
    for (const Row& row : rows) {
        fs::remove_all(folder);
        saveAlone(27);
        row.damage();
        const bool isDamaged = &row != &rows[0];
        const std::string bytes = contentsOf(file);
        EXPECT_EQ(stored().size(), row.shown) << row.name;
        const auto isKept = [&](const fs::path& path) {
            return contentsOf(path) == bytes && fs::status(path).permissions() == fs::perms{0600};
        };
        const Disk::Failure failures[] = {{0, false},      {EIO, false},    {ENOSPC, true},
                                          {ENOSPC, false}, {EMFILE, false}, {EACCES, false}};
        for (const Disk::Failure failure : std::span{failures}.first(isDamaged ? 2 : 6)) {
            int call = 1;
            for (bool struck = true; struck; ++call) {
                SCOPED_TRACE(testing::Message()
                             << row.name << ", failure " << failure.error << " at call " << call);
                fs::remove_all(folder);
                fs::create_directory(folder);
                log.messages.clear(); // every fork copies them
                std::ofstream{file, std::ios::binary} << bytes;
                struck = isStruck([&] {
                    Disk::failAt(call, failure);
                    PresetProgram program{support.path};
                    save(program, 22);
                    save(program, 22);
                });
                const bool mayBeOld = failure.error == 0 || failure.lasting;
                const std::vector<Gradient> found = stored();
                ASSERT_TRUE(found == listOf({22}) || (mayBeOld && (isDamaged || found == listOf({27}))));
                saveAlone(23);
                ASSERT_EQ(stored(), listOf({23}));
                const auto kept = setAside();
                ASSERT_TRUE(isDamaged ? std::any_of(kept.begin(), kept.end(), isKept) : kept.empty());
            }
            EXPECT_GT(call, 10) << "the calls must be reached";
        }
    }
}

TEST_F(PresetFileTest, whatOthersDoToTheFileOrLeftBesideItIsKept) {
    const auto unprivileged = withoutPrivileges();
    const fs::path elsewhere = support.path / "elsewhere.sqlite3";
    std::shared_ptr<void> held;
    const auto nothing = [] {};
    const auto copyOverFile = [&] { fs::copy_file(elsewhere, file, fs::copy_options::overwrite_existing); };
    struct Row {
        const char* name;
        std::function<void()> before;    ///< what is done to a file with list 27
        std::function<void()> meanwhile; ///< the program runs, and then saves list 22, or ends
        std::vector<std::string> presetsSetAside{};
        std::vector<Gradient> expected = listOf({22});
        fs::perms permissions{0600}; ///< of the file, or of that behind the link
    };
    const auto makeLink = [&](fs::perms permissions) {
        fs::rename(file, elsewhere);
        fs::permissions(elsewhere, permissions);
        fs::create_symlink("../elsewhere.sqlite3", file);
    };
    const std::vector<Row> rows{
        {"nothing", nothing, nothing},
        {"copied over", nothing, copyOverFile, {"4"}},
        {"moved over", nothing, [&] { fs::rename(elsewhere, file); }, {"4"}},
        {"removed", nothing, [&] { fs::remove(file); }},
        {"written to by others", nothing, [&] { other("insert into MainTable values (99, 0)"); }, {"8"}},
        {"kept open by another program, with a log",
         nothing,
         [&] { held = other("pragma journal_mode=wal; insert into MainTable values (99, 0)"); },
         {"8"}},
        {"read by another program", nothing, [&] { held = other("begin; select * from MainTable"); }},
        {"locked", [&] { held = other("begin exclusive"); }, [&] { held.reset(); }, {}, listOf({27, 22})},
        {"no room", nothing, [&] { held = limitFileSize(0); }},
        {"a link", [&] { makeLink(fs::perms{0640}); }, nothing, {}, listOf({22}), fs::perms{0640}},
        {"a link to a file that can only be read",
         [&] { makeLink(fs::perms{0400}); },
         nothing,
         {},
         listOf({22}),
         fs::perms{0400}},
        {"a link to a file that is removed", [&] { makeLink(fs::perms{0640}); },
         [&] { fs::remove(elsewhere); }},
        {"a log that a crash left",
         [&] {
             other("pragma journal_mode=wal; update MainTable set orientationType=99");
             held = other("delete from MainTable; delete from AdditionalTable");
             for (const char* const suffix : {"", "-wal"}) {
                 fs::copy_file(file.native() + suffix, elsewhere.native() + suffix,
                               fs::copy_options::overwrite_existing);
             }
             held.reset();
             fs::rename(elsewhere, file);
             fs::rename(elsewhere.native() + "-wal", file.native() + "-wal");
         },
         nothing},
        {"a safety copy of a save that did not finish",
         [&] {
             fs::copy_file(file, safetyCopy);
             other("delete from MainTable where mainIndex > 0");
         },
         nothing,
         {"1"}},
        {"locked, and a safety copy that holds less",
         [&] {
             fs::copy_file(elsewhere, safetyCopy);
             held = other("begin exclusive");
         },
         [&] { held.reset(); },
         {"4"},
         listOf({27, 22})},
        {"a safety copy that holds no more", [&] { fs::copy_file(file, safetyCopy); }, nothing, {"7"}},
        {"an empty safety copy", [&] { std::ofstream{safetyCopy}; }, nothing, {"none"}},
        {"a broken safety copy", [&] { std::ofstream{safetyCopy} << "neither is this"; }, nothing, {"none"}}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        fs::remove_all(folder);
        saveAlone(24);
        fs::remove(elsewhere);
        fs::copy_file(file, elsewhere);
        saveAlone(27);
        row.before();
        const bool isLink = fs::is_symlink(file);
        {
            PresetProgram program{support.path};
            row.meanwhile();
            save(program, 22);
            held.reset();
        }
        EXPECT_EQ(stored(), row.expected);
        std::vector<std::string> found;
        for (const fs::path& path : setAside()) {
            found.push_back(countIn(path));
        }
        EXPECT_EQ(found, row.presetsSetAside);
        EXPECT_EQ(fs::is_symlink(file), isLink);
        EXPECT_EQ(fs::status(file).permissions(), row.permissions);
    }
}

} // namespace
} // namespace tessaly
