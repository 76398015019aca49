// What no crash, no full disk, no lock and no damage may do: cost the user a preset.

#include "support/FailingDisk.h"
#include "support/FileSizeLimit.h"
#include "support/LogCapture.h"
#include "support/PresetProgram.h"
#include "support/TemporaryFolder.h"

#include <functional>
#include <gtest/gtest.h>
#include <sys/wait.h>

namespace tessaly {
namespace {

using Disk = FailingDisk;
namespace fs = std::filesystem;

/// A run of the program whose list of presets follows whole from one number: 27 has seven presets.
class ProgramRun : public PresetList {
  public:
    explicit ProgramRun(const fs::path& support) : store_{*this, support} { start(store_); }

    void save(std::int64_t number) {
        presets_ = listOf(number);
        store_.insertData();
    }

    /// Of the list: 0 for an empty one, -1 for one that was never saved like this.
    std::int64_t number() const {
        const std::int64_t number = presets_.empty() ? 0 : presets_[0].gradient.orientation();
        return presets_ == listOf(number) ? number : -1;
    }

    const std::vector<Preset>& presetGradient() const override { return presets_; }
    void setGradientIndex(std::int64_t /*index*/) override {}
    void addGradientIntoPreset(Gradient gradient) override {
        presets_.push_back({std::move(gradient), std::ssize(presets_)});
    }

  private:
    static std::vector<Preset> listOf(std::int64_t number) {
        std::vector<Preset> list;
        for (std::int64_t i = 0; number != 0 && i <= number % 7; ++i) {
            list.push_back(
                {Gradient{{{0.5, Color::white()}, {1.0, Color{}, static_cast<double>(i)}}, number}, i});
        }
        return list;
    }

    std::vector<Preset> presets_;
    PresetStore store_;
};

class PresetSafetyTest : public testing::Test {
  protected:
    std::vector<fs::path> setAside() const {
        std::vector<fs::path> found(fs::directory_iterator{folder}, {});
        std::erase_if(found,
                      [](const auto& path) { return !path.filename().native().starts_with("localDB-set"); });
        return found;
    }
    static std::optional<std::string> countIn(const fs::path& database) {
        return SqliteConnection::openImmutable(database).value("select count(*) from MainTable");
    }
    void save(std::int64_t number) const { ProgramRun{support.path}.save(number); }
    std::int64_t stored() const { return ProgramRun{support.path}.number(); }

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
    std::shared_ptr<void> holding(const char* statement) const {
        auto other = std::make_shared<SqliteConnection>(SqliteConnection::open(file));
        EXPECT_EQ(other->execute(statement).message, std::nullopt);
        return other;
    }

    LogCapture log;
    // In memory where that can be had: the tests force thousands of files to the disk.
    const TemporaryFolder support{fs::exists("/dev/shm") ? "/dev/shm" : fs::temp_directory_path()};
    const fs::path folder = support.path / "Tessaly";
    const fs::path file = folder / "localDB.sqlite3";
    const fs::path safetyCopy = folder / "localDB.sqlite3.safety";
};

TEST_F(PresetSafetyTest, aFailureAtAnyCallLosesNothingAndWhatCannotBeReadIsSetAside) {
    const auto overwrite = [this](std::streamoff place, char with, std::size_t bytes = 100) {
        std::fstream{file, std::ios::in | std::ios::out}.seekp(place) << std::string(bytes, with);
    };
    const std::vector<std::pair<const char*, std::function<void()>>> rows{
        {"no damage", [] {}},
        {"no database", [&] { overwrite(0, 'x'); }},
        {"a later format that can only be read", [&] { overwrite(18, '!', 1); }},
        {"cut short", [this] { fs::resize_file(file, 4096); }},
        {"a broken page of stops", [&] { overwrite(8192, '\xFF'); }},
        {"a cut page that reads as other values", [this] { fs::resize_file(file, 12'200); }},
        {"another column", [this] { holding("alter table MainTable rename orientationType to kind"); }},
        {"a view", [this] {
             holding("alter table AdditionalTable rename to Stops;"
                     "create view AdditionalTable as select * from Stops");
         }}};
    for (const auto& [name, damage] : rows) {
        fs::remove_all(folder);
        save(27);
        damage();
        const bool isDamaged = &name != &rows[0].first;
        const std::string bytes = contentsOf(file);
        const auto isKept = [&](const fs::path& path) {
            const bool hasPresets = countIn(path) == "7" || contentsOf(path) == bytes;
            return hasPresets && fs::status(path).permissions() == fs::perms{0600};
        };
        for (const Disk::Failure failure : {Disk::Crash, Disk::OneError, Disk::NoSpace, Disk::NoRename}) {
            int call = 1;
            for (bool struck = true; struck; ++call) {
                SCOPED_TRACE(testing::Message() << name << ", failure " << failure << " at call " << call);
                fs::remove_all(folder);
                fs::create_directory(folder);
                log.messages.clear(); // every fork copies them
                std::ofstream{file, std::ios::binary} << bytes;
                struck = isStruck([&] {
                    ProgramRun run{support.path};
                    Disk::failAt(call, failure);
                    run.save(22);
                    run.save(22);
                });
                if (fs::exists(safetyCopy)) { // the next start restores, and fails as well
                    isStruck([&] {
                        Disk::failAt(1 + call % 17, failure);
                        stored();
                    });
                }
                const std::int64_t found = stored();
                ASSERT_TRUE(found == 22 || (failure != Disk::OneError && (isDamaged || found == 27)));
                save(23);
                ASSERT_EQ(stored(), 23);
                const auto kept = setAside();
                ASSERT_TRUE(isDamaged ? std::any_of(kept.begin(), kept.end(), isKept) : kept.empty());
            }
            EXPECT_GT(call, 50) << "the calls must be reached";
        }
    }
}

TEST_F(PresetSafetyTest, whileSomethingIsInTheWayNothingIsChangedAndTheListIsShown) {
    const std::vector<std::pair<const char*, std::function<std::shared_ptr<void>()>>> obstacles{
        {"a full disk", [] { return limitFileSize(0); }},
        {"another copy of the program saves", [this] { return std::make_shared<FolderLock>(folder); }},
        {"another process writes", [this] { return holding("begin immediate"); }}};
    for (const auto& [name, obstacle] : obstacles) {
        SCOPED_TRACE(name);
        save(20);
        {
            ProgramRun run{support.path};
            std::shared_ptr<void> inTheWay = obstacle();
            run.save(21);
            inTheWay.reset();
            EXPECT_FALSE(fs::exists(safetyCopy));
            EXPECT_EQ(stored(), 20);
            run.save(27);
        }
        for (const auto& [call, expected] : {std::pair{45, 27}, {1000, 20}}) { // in its midst, and after it
            isStruck([&, at = call] {
                Disk::failAt(at, Disk::Crash);
                ProgramRun killed{support.path};
                killed.save(20);
                std::raise(SIGKILL);
            });
            std::shared_ptr<void> inTheWay = obstacle();
            EXPECT_EQ(stored(), expected);
            EXPECT_EQ(fs::exists(safetyCopy), expected == 27);
            inTheWay.reset();
            EXPECT_EQ(stored(), expected);
            EXPECT_FALSE(fs::exists(safetyCopy));
        }
    }
}

TEST_F(PresetSafetyTest, whatOthersWriteOrKeepLockedIsSetAsideToo) {
    save(27);
    std::shared_ptr<void> locked = holding("begin exclusive");
    ProgramRun run{support.path};
    run.save(20);
    locked.reset();
    run.save(20);
    EXPECT_EQ(countIn(setAside().at(0)), "7") << "what could not be read is kept";
    EXPECT_EQ(stored(), 20);

    const std::shared_ptr<void> reader = holding("begin; select * from MainTable");
    run.save(22);
    EXPECT_FALSE(fs::exists(safetyCopy)) << "a reader does not keep a save from being done";

    save(23); // a second copy of the program
    run.save(24);
    EXPECT_EQ(setAside().size(), 2U);
    EXPECT_EQ(stored(), 24);
}

TEST_F(PresetSafetyTest, aBrokenSafetyCopyIsKeptAndTheDatabaseRead) {
    save(27);
    std::ofstream{safetyCopy} << "not what it should be";
    EXPECT_EQ(stored(), 27);
    EXPECT_EQ(contentsOf(setAside().at(0)), "not what it should be");

    fs::copy_file(file, safetyCopy);
    std::ofstream{file} << "neither is this";
    std::ofstream{folder / "localDB.sqlite3.safety-unfinished"} << std::string(5000, 'x');
    ProgramRun run{support.path};
    EXPECT_EQ(run.number(), 27);
    EXPECT_EQ(setAside().size(), 2U) << "a broken database is kept as well";
    run.save(28);
    EXPECT_EQ(stored(), 28);
    EXPECT_EQ(setAside().size(), 2U) << "what a crash left of a copy is nobody's presets";
}

} // namespace
} // namespace tessaly
