// What no crash, no full disk, no lock and no damage may do: cost the user a preset.

#include "presets/FolderLock.h"
#include "presets/SqliteConnection.h"
#include "support/FailingDisk.h"
#include "support/FileSizeLimit.h"
#include "support/LogCapture.h"
#include "support/PresetProgram.h"
#include "support/TemporaryFolder.h"

#include <atomic>
#include <functional>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/time.h>
#include <sys/wait.h>

namespace tessaly {
namespace {

using Failure = FailingDisk::Failure;
using std::filesystem::perms;

constexpr int never = 1'000'000;

/// A run of the program whose list of presets follows whole from one number: 27 has seven presets.
class ProgramRun : public PresetList {
  public:
    explicit ProgramRun(const std::filesystem::path& support) : store_{*this, support} { start(store_); }

    void save(std::int64_t number) {
        presets_ = listOf(number);
        store_.insertData();
    }

    /// The number of the list, 0 for an empty one, -1 for one that was never saved like this.
    std::int64_t number() const {
        const bool hasStops = !presets_.empty() && !presets_[0].colorMarkerPos.empty();
        const auto number = hasStops ? static_cast<std::int64_t>(presets_[0].colorMarkerPos[0]) : 0;
        return presets_ == listOf(number) ? number : -1;
    }

    const std::vector<Preset>& presetGradient() const override { return presets_; }
    void setGradientIndex(std::int64_t /*index*/) override {}
    void addGradientIntoPresetWithColorMarkerPos(std::vector<double> positions, std::vector<Color> colors,
                                                 std::vector<double> opacities, std::int64_t type) override {
        const auto index = static_cast<std::int64_t>(presets_.size());
        presets_.push_back({std::move(positions), std::move(colors), std::move(opacities), type, index});
    }

  private:
    static std::vector<Preset> listOf(std::int64_t number) {
        std::vector<Preset> list;
        const auto value = static_cast<double>(number);
        for (std::int64_t i = 0; number != 0 && i <= number % 7; ++i) {
            const std::vector<double> opacities{1.0, static_cast<double>(i)};
            list.push_back({{value, 0.5}, {Color::white(), Color{}}, opacities, number % 5, i});
        }
        return list;
    }

    std::vector<Preset> presets_;
    PresetStore store_;
};

class PresetSafetyTest : public testing::Test {
  protected:
    using Obstacle = std::pair<const char*, std::function<std::shared_ptr<void>()>>;

    std::filesystem::path folder() const { return support.path / "Tessaly"; }
    std::filesystem::path file() const { return folder() / "localDB.sqlite3"; }
    std::filesystem::path safetyCopy() const { return folder() / "localDB.sqlite3.safety"; }

    std::vector<std::filesystem::path> setAside() const {
        std::vector<std::filesystem::path> found(std::filesystem::directory_iterator{folder()}, {});
        std::erase_if(
            found, [](const auto& path) { return path.native().find("-set-aside-") == std::string::npos; });
        return found;
    }
    void save(std::int64_t number) const { ProgramRun{support.path}.save(number); }
    std::int64_t stored() const { return ProgramRun{support.path}.number(); }

    /// Runs in a process of its own. True: it ended by itself, neither killed nor crashed.
    static bool endsByItself(const std::function<void()>& run) {
        const pid_t child = ::fork();
        if (child == 0) {
            run();
            ::_exit(0);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        return WIFEXITED(status);
    }
    bool saveKilledAtCall(int call, std::int64_t number) const {
        return !endsByItself([&] {
            const FailingDisk disk{call, Failure::Crash};
            save(number);
        });
    }

    /// Another program's connection, in the midst of something.
    std::shared_ptr<void> holding(const char* statement) const {
        auto other = std::make_shared<SqliteConnection>(SqliteConnection::open(file()));
        EXPECT_EQ(other->execute(statement).message, std::nullopt);
        return other;
    }

    std::vector<Obstacle> obstacles() const {
        const auto upTo = [](rlim_t bytes) { return [=] { return std::make_shared<FileSizeLimit>(bytes); }; };
        return {
            {"a full disk", upTo(0)},
            {"room for a page", upTo(6000)},
            {"another copy of the program saves", [this] { return std::make_shared<FolderLock>(folder()); }},
            {"another process writes", [this] { return holding("begin immediate"); }}};
    }

    LogCapture log;
    // In memory where that can be had: the tests force thousands of files to the disk.
    const TemporaryFolder support{
        std::filesystem::exists("/dev/shm") ? "/dev/shm" : std::filesystem::temp_directory_path()};
};

TEST_F(PresetSafetyTest, aKillAtAnyMomentLeavesTheListBeforeOrAfter) {
    // How many lists were saved completely, shared with the processes that are killed.
    void* const memory =
        ::mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    auto& saved = *static_cast<std::atomic<int>*>(memory);
    int unfinished = 0;
    for (int i = 0; i < 250; ++i) {
        ASSERT_FALSE(endsByItself([&] {
            ProgramRun run{support.path};
            const itimerval moment{{}, {0, 1 + 40 * i}};
            ::setitimer(ITIMER_REAL, &moment, nullptr); // its signal ends the process
            for (;; ++saved) {
                run.save(saved + 1);
            }
        }));
        unfinished += std::filesystem::exists(safetyCopy()) ? 1 : 0;
        const std::int64_t found = stored();
        ASSERT_TRUE(found == saved || found == saved + 1) << found << " after " << saved;
        saved = static_cast<int>(found);
    }
    EXPECT_GT(unfinished, 50) << "the kills must hit saves";
    EXPECT_TRUE(setAside().empty());
    ::munmap(memory, sizeof saved);
}

TEST_F(PresetSafetyTest, aKillAtEverySystemCallOfSaveAndRestoreLosesNothing) {
    save(20);
    std::int64_t before = 20;
    int call = 1;
    for (; saveKilledAtCall(call, before + 1); ++call) {
        endsByItself([&] { // the next start, where it restores, is killed too
            const FailingDisk disk{1 + call % 17, Failure::Crash};
            stored();
        });
        const std::int64_t found = stored();
        ASSERT_TRUE(found == before || found == before + 1) << found << " at call " << call;
        before = found;
    }
    EXPECT_GT(call, 60) << "the calls must be reached";
    EXPECT_TRUE(setAside().empty());
}

TEST_F(PresetSafetyTest, aDiskThatFailsAtAnyCallLosesNothingAndTheNextSaveMendsIt) {
    for (const Failure failure : {Failure::OneError, Failure::NoSpace}) {
        save(20);
        bool struck = true;
        for (int call = 1; struck; ++call) {
            for (const int at : {call, never}) {
                const FailingDisk disk{at, failure};
                if (at == call) {
                    save(21);
                    struck = disk.hasStruck();
                }
                const std::int64_t found = stored();
                ASSERT_TRUE(found == 20 || found == 21) << found << ", failing from call " << call;
            }
            const std::size_t asideBefore = setAside().size();
            {
                ProgramRun run{support.path};
                for (const auto& [number, at] : {std::pair{22, call}, {20, never}}) {
                    const FailingDisk disk{at, failure};
                    run.save(number);
                }
            }
            ASSERT_EQ(stored(), 20) << "at call " << call;
            ASSERT_FALSE(std::filesystem::exists(safetyCopy())) << "at call " << call;
            ASSERT_EQ(setAside().size(), asideBefore) << "what was read is not damaged; call " << call;
        }
    }
}

TEST_F(PresetSafetyTest, aSaveThatCannotBeGuardedChangesNothing) {
    for (const auto& [name, obstacle] : obstacles()) {
        save(20);
        ProgramRun run{support.path};
        log.messages.clear();
        std::shared_ptr<void> inTheWay = obstacle();
        run.save(21);
        EXPECT_EQ(std::count(log.messages.begin(), log.messages.end(), "Error delete data!"), 2) << name;
        EXPECT_EQ(log.messages.back().rfind("Error while inserting: ", 0), 0U) << name;
        inTheWay.reset();
        EXPECT_FALSE(std::filesystem::exists(safetyCopy())) << name;
        EXPECT_EQ(stored(), 20) << name;
        EXPECT_EQ(run.number(), 21) << name;
        run.save(21);
        EXPECT_EQ(stored(), 21) << name;
    }
    EXPECT_TRUE(setAside().empty());
}

TEST_F(PresetSafetyTest, showsThePresetsAfterACrashEvenIfNothingCanBeRestored) {
    constexpr int midst = 45; // a call within the save
    for (const auto& [name, obstacle] : obstacles()) {
        for (const auto& [call, expected] : {std::pair{midst, 27}, {never, 20}}) {
            save(27);
            endsByItself([&, at = call] {
                const FailingDisk disk{at, Failure::Crash};
                ProgramRun run{support.path};
                run.save(20);
                std::raise(SIGKILL);
            });
            for (std::shared_ptr<void> inTheWay = obstacle(); inTheWay; inTheWay.reset()) {
                EXPECT_EQ(stored(), expected) << name;
                EXPECT_EQ(std::filesystem::exists(safetyCopy()), call == midst) << name;
            }
            EXPECT_EQ(stored(), expected) << name;
            EXPECT_FALSE(std::filesystem::exists(safetyCopy()));
        }
    }
}

TEST_F(PresetSafetyTest, whatCannotBeReadIsSetAsideBeforeItIsOverwritten) {
    const auto cut = [this](std::uintmax_t size) { std::filesystem::resize_file(file(), size); };
    const auto overwrite = [this](std::streamoff place, char with) {
        std::fstream{file(), std::ios::in | std::ios::out}.seekp(place) << std::string(100, with);
    };
    const auto execute = [this](const char* sql) { SqliteConnection::open(file()).execute(sql); };
    constexpr const char* mainRows = "select count(*) from MainTable";
    // What is set aside still has 7 or 14 values to count; or, without a query, the same bytes.
    const std::vector<std::tuple<const char*, std::function<void()>, const char*>> rows{
        {"no database", [&] { overwrite(0, 'x'); }, nullptr},
        {"cut short", [&] { cut(4096); }, nullptr},
        {"a broken page of stops", [&] { overwrite(8192, '\xFF'); }, mainRows},
        {"a cut page that reads as other values", [&] { cut(12'200); }, mainRows},
        {"another column", [&] { execute("alter table MainTable rename column orientationType to kind"); },
         "select count(kind) from MainTable"},
        {"a column less", [&] { execute("alter table AdditionalTable drop column blue"); },
         "select count(green) from AdditionalTable"},
        {"no table", [&] { execute("drop table AdditionalTable; create view AdditionalTable as select 1"); },
         mainRows}};
    for (const auto& [name, damage, query] : rows) {
        std::filesystem::remove_all(folder());
        save(27);
        damage();
        const std::string bytes = contentsOf(file());
        const auto isKept = [&, text = query](const auto& found) {
            const auto count = text ? SqliteConnection::openImmutable(found).value(text) : std::nullopt;
            return text ? count == "7" || count == "14" : contentsOf(found) == bytes;
        };
        for (const Failure failure : {Failure::Crash, Failure::OneError, Failure::NoSpace}) {
            bool struck = true;
            for (int call = 1; struck; ++call) {
                std::filesystem::remove_all(folder());
                std::filesystem::create_directory(folder());
                std::ofstream{file(), std::ios::binary} << bytes;
                stored();
                EXPECT_TRUE(setAside().empty()) << name << ": as long as nothing is saved";
                const auto saveTwice = [&] {
                    const FailingDisk disk{call, failure};
                    ProgramRun run{support.path};
                    run.save(22);
                    run.save(22);
                    return disk.hasStruck();
                };
                struck = failure == Failure::Crash ? saveKilledAtCall(call, 22) : saveTwice();
                std::vector<std::filesystem::path> candidates = setAside();
                const std::int64_t found = stored();
                EXPECT_TRUE(found == 22 || failure != Failure::OneError) << name << " at call " << call;
                candidates.push_back(file());
                EXPECT_TRUE(std::any_of(candidates.begin(), candidates.end(), isKept))
                    << name << " at call " << call;
            }
        }
        save(23);
        EXPECT_EQ(stored(), 23) << name;
        ASSERT_EQ(setAside().size(), 1U) << name;
        EXPECT_EQ(std::filesystem::status(setAside()[0]).permissions(), perms{0600});
    }
}

TEST_F(PresetSafetyTest, whatOthersWriteOrKeepLockedIsSetAsideToo) {
    save(27);
    std::shared_ptr<void> locked = holding("begin exclusive");
    ProgramRun run{support.path};
    EXPECT_EQ(run.number(), 0);
    run.save(20);
    EXPECT_EQ(log.messages.back().rfind("Error while inserting: ", 0), 0U);
    locked.reset();
    run.save(20);
    ASSERT_EQ(setAside().size(), 1U) << "the seven that could not be read are kept";
    EXPECT_EQ(SqliteConnection::openImmutable(setAside()[0]).value("select count(*) from MainTable"), "7");
    EXPECT_EQ(stored(), 20);

    const std::shared_ptr<void> reader = holding("begin; select * from MainTable");
    run.save(22);
    EXPECT_FALSE(std::filesystem::exists(safetyCopy())) << "a reader does not keep a save from being done";
    EXPECT_EQ(setAside().size(), 1U) << "nor does it leave a trace";

    save(23); // a second copy of the program
    run.save(24);
    EXPECT_EQ(setAside().size(), 2U);
    EXPECT_EQ(stored(), 24);
}

TEST_F(PresetSafetyTest, aBrokenSafetyCopyIsKeptAndTheDatabaseRead) {
    save(27);
    std::ofstream{safetyCopy()} << "not what it should be";
    EXPECT_EQ(stored(), 27);
    ASSERT_EQ(setAside().size(), 1U);
    EXPECT_EQ(contentsOf(setAside()[0]), "not what it should be");

    std::filesystem::copy_file(file(), safetyCopy());
    std::ofstream{file()} << "neither is this";
    std::ofstream{safetyCopy() += "-unfinished"} << std::string(5000, 'x');
    ProgramRun run{support.path};
    EXPECT_EQ(run.number(), 27);
    EXPECT_EQ(setAside().size(), 2U) << "a broken database is kept as well";
    run.save(28);
    EXPECT_FALSE(std::filesystem::exists(safetyCopy()));
    EXPECT_EQ(stored(), 28);
    EXPECT_EQ(setAside().size(), 2U) << "what a crash left of a copy is nobody's presets";
}

TEST_F(PresetSafetyTest, aReadOnlyFolderIsReadAndLeftAlone) {
    save(27);
    const bool isRoot = ::geteuid() == 0; // root may write anywhere, so not as root
    const auto become = [&](uid_t user, perms permissions) {
        ASSERT_TRUE(!isRoot || ::seteuid(0) == 0);
        for (const auto& path : {file(), folder(), support.path}) {
            ASSERT_TRUE(!isRoot || ::chown(path.c_str(), user, user) == 0);
            std::filesystem::permissions(path, permissions);
        }
        ASSERT_TRUE(!isRoot || ::seteuid(user) == 0);
    };
    become(65534, perms{0500});
    ProgramRun run{support.path};
    EXPECT_EQ(run.number(), 27);
    run.save(20);
    EXPECT_TRUE(log.has("LastError: attempt to write a readonly database"));
    EXPECT_EQ(stored(), 27);
    become(0, perms{0700});
}

} // namespace
} // namespace tessaly
