// What no crash, no full disk, no lock, no damage and no other program may do: cost the user a preset.

#include "support/FailingDisk.h"
#include "support/FileSizeLimit.h"
#include "support/PresetTest.h"

#include <functional>
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

class PresetFileTest : public PresetTest {
  protected:
    std::vector<fs::path> setAside() const {
        std::vector<fs::path> found(fs::directory_iterator{folder}, {});
        std::erase_if(found, [](const fs::path& path) {
            return path.native().find("-set-aside-") == std::string::npos || path.native().ends_with("-wal");
        });
        return found;
    }
    /// Presets in each of them, or "none" in what is no database.
    std::vector<std::string> countsSetAside() const {
        std::vector<std::string> counts;
        for (const fs::path& path : setAside()) {
            const auto count = SqliteConnection::open(path).value("select count(*) from MainTable");
            counts.push_back(count.value_or("none"));
        }
        return counts;
    }
    void saveAlone(std::int64_t number) const {
        PresetProgram program{support.path};
        save(program, number);
    }

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
};

TEST_F(PresetFileTest, aFailureAtAnyCallLosesNothingAndWhatCannotBeReadIsSetAside) {
    const auto by = [this](const char* sql) { return [this, sql] { other(sql); }; };
    struct Row {
        const char* name;
        std::size_t shown; ///< presets, before the first save
        std::function<void()> damage;
    };
    const Row rows[] = {
        {"no damage", 7, [] {}},
        {"no database", 0, [&] { overwrite(0, 'x', 100); }},
        {"a later format that can only be read", 7, [&] { overwrite(18, '!', 1); }},
        {"a broken page of stops", 7, [&] { overwrite(8192, '\xFF', 100); }},
        {"a cut page that reads as other values", 7, [this] { fs::resize_file(file, 12'200); }},
        {"another column", 0, by("alter table MainTable rename orientationType to kind")},
        {"a table that a module makes up", 0,
         by("drop table MainTable; create virtual table MainTable using fts4(mainIndex, orientationType)")},
        {"a view that never ends", 0,
         by("drop table MainTable; create view MainTable as with recursive n(mainIndex) as (select 1 "
            "union all select mainIndex + 1 from n) select mainIndex, 1 as orientationType from n")},
        {"a view", 7,
         by("alter table AdditionalTable rename to Stops;"
            "create view AdditionalTable as select * from Stops")}};
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
    const fs::path elsewhere = support.path / "elsewhere.sqlite3";
    const fs::path safetyCopy = folder / "localDB.sqlite3.safety";
    std::shared_ptr<void> held;
    const auto hold = [&](const char* sql) { return [&, sql] { held = other(sql); }; };
    const auto write = [&](const char* sql) { return [&, sql] { other(sql); }; };
    const auto keepSafe = [&](const fs::path& copied, const char* sql) {
        return [&, sql] { fs::copy_file(copied, safetyCopy), hold(sql)(); };
    };
    const auto nothing = [] {};
    const auto release = [&] { held.reset(); };
    const auto copyOver = [&] { fs::copy_file(elsewhere, file, fs::copy_options::overwrite_existing); };
    const auto fill = [&] { held = limitFileSize(0); };
    const auto breakSafetyCopy = [&] { std::ofstream{safetyCopy} << "neither is this"; };
    const auto crash = [&] { crashAfter("delete from MainTable; delete from AdditionalTable"); };
    const auto becomeALink = [&] {
        fs::rename(file, elsewhere);
        fs::permissions(elsewhere, fs::perms{0400});
        fs::create_symlink("../elsewhere.sqlite3", file);
    };
    const char* const more = "insert into MainTable values (99, 0)";
    const char* const moreInALog = "pragma journal_mode=wal; insert into MainTable values (99, 0)";
    struct Row {
        const char* name;
        std::function<void()> before;    ///< what is done to a file with list 27, list 24 lying elsewhere
        std::function<void()> meanwhile; ///< the program runs, and then saves list 22, or ends
        std::vector<std::string> presetsSetAside{};
        std::vector<Gradient> expected = listOf({22});
        fs::perms permissions{0600}; ///< of the file, or of that behind the link
    };
    const Row rows[] = {
        {"copied over", nothing, copyOver, {"4"}},
        {"removed", nothing, [&] { fs::remove(file); }},
        {"written to by others", nothing, write(more), {"8"}},
        {"kept open by another program, with a log", nothing, hold(moreInALog), {"8"}},
        {"read by another program", nothing, hold("begin; select * from MainTable")},
        {"locked", hold("begin exclusive"), release, {}, listOf({27, 22})},
        {"no room", nothing, fill},
        {"a link to what can only be read", becomeALink, nothing, {}, listOf({22}), fs::perms{0400}},
        {"a link to a file that is removed", becomeALink, [&] { fs::remove(elsewhere); }},
        {"a log that a crash left", crash, nothing},
        {"a safety copy of a save that did not finish",
         keepSafe(file, "delete from MainTable where mainIndex > 0"),
         nothing,
         {"1"}},
        {"a safety copy that holds less",
         keepSafe(elsewhere, "begin exclusive"),
         release,
         {"4"},
         listOf({27, 22})},
        {"a safety copy that holds no more", keepSafe(file, "select 1"), nothing, {"7"}},
        {"an empty safety copy", [&] { std::ofstream{safetyCopy}; }, nothing, {"none"}},
        {"a broken safety copy", breakSafetyCopy, nothing, {"none"}}};
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
        EXPECT_EQ(countsSetAside(), row.presetsSetAside);
        EXPECT_EQ(fs::is_symlink(file), isLink);
        EXPECT_EQ(fs::status(file).permissions(), row.permissions);
    }
}

} // namespace
} // namespace tessaly
