#include "presets/PresetReader.h"

#include "presets/SqliteConnection.h"
#include "support/LogCapture.h"
#include "support/PresetProgram.h"
#include "support/TemporaryFolder.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <sys/stat.h>

namespace tessaly {
namespace {

namespace fs = std::filesystem;

class PresetReaderTest : public testing::Test {
  protected:
    PresetReaderTest() {
        PresetProgram program{support.path};
        program.gallery.addGradientIntoPreset();
        program.record.gradient =
            Gradient{{{1.0 / 3, Color::white(), 0.5}, {0.25, Color::calibratedRGB(0.1, 0.2, 0.3)}},
                     orientation::radial};
        program.gallery.addGradientIntoPreset();
        saved = program.presets();
    }

    /// Another program's connection, in the midst of something.
    SqliteConnection other(const std::string& statement) const {
        SqliteConnection connection = SqliteConnection::open(file);
        EXPECT_EQ(connection.execute(statement).message, std::nullopt) << statement;
        return connection;
    }

    std::map<fs::path, std::string> all() const {
        std::map<fs::path, std::string> contents;
        for (const auto& entry : fs::directory_iterator{folder}) {
            contents[entry.path()] = entry.is_regular_file() ? contentsOf(entry.path()) : "";
        }
        return contents;
    }

    LogCapture log;
    const TemporaryFolder support;
    const fs::path folder = support.path / "Tessaly";
    const fs::path file = folder / "localDB.sqlite3";
    const fs::path aside = folder / "localDB-set-aside-20260102-030405.sqlite3";
    std::vector<Gradient> saved;
};

TEST_F(PresetReaderTest, readsWhateverProgramHasTheFileAndLeavesEverythingAsItIs) {
    using Read = std::optional<std::vector<Gradient>>;
    const std::string none = "delete from MainTable; delete from AdditionalTable";
    const Read empty{std::in_place};
    const Read whole{saved};
    std::optional<PresetProgram> program;
    SqliteConnection held;
    struct Row {
        const char* name;
        std::function<void()> before;
        Read expected;
    };
    const std::vector<Row> rows{
        {"at rest", [] {}, whole},
        {"of a copy that runs", [&] { program.emplace(support.path); }, whole},
        {"being written", [&] { held = other("begin exclusive; " + none); }, whole},
        {"half written",
         [&] {
             held =
                 other("pragma cache_size=1; begin; update MainTable set orientationType=7; create table x as"
                       " with recursive n(a) as (select 1 union all select a + 1 from n limit 9999) select * "
                       "from n");
         },
         whole},
        {"in a log", [&] { held = other("pragma journal_mode=wal; " + none); }, empty},
        {"in a log that was set aside",
         [&] {
             held = other("pragma journal_mode=wal; " + none);
             for (const char* const suffix : {"", "-wal"}) {
                 fs::copy_file(file.native() + suffix, aside.native() + suffix);
             }
             held = {};
             fs::remove(file);
             fs::rename(aside, file);
             fs::rename(aside.native() + "-wal", file.native() + "-wal");
         },
         empty},
        {"behind a link",
         [&] {
             fs::rename(file, aside);
             fs::create_symlink(aside.filename(), file);
         },
         whole},
        {"of a later format",
         [&] {
             std::fstream{file, std::ios::in | std::ios::out}.seekp(18) << '!';
         },
         whole},
        {"read-only", [&] { fs::permissions(file, fs::perms::owner_read); }, whole},
    };
    const std::string original = contentsOf(file);
    for (const Row& row : rows) {
        fs::remove_all(folder);
        fs::create_directory(folder);
        std::ofstream{file, std::ios::binary} << original;
        row.before();
        const auto before = all();
        const auto time = fs::last_write_time(file);
        EXPECT_EQ(readPresetFile(file), row.expected) << row.name;
        EXPECT_EQ(all(), before) << row.name;
        EXPECT_EQ(fs::last_write_time(file), time) << row.name;
        program.reset();
        held = {};
    }
}

TEST_F(PresetReaderTest, takesFromADamagedOrHostileFileWhatThereIs) {
    const std::string endless =
        " as with recursive n(mainIndex) as (select 1 union all select mainIndex + 1 from n) "
        "select mainIndex, 1 as orientationType, 0.5 as position from n";
    const auto add = [this](const char* columns, const std::string& value, int count) {
        other("with recursive n(i) as (select 0 union all select i + 1 from n limit " +
              std::to_string(count) + ") insert into " + columns + " select " + value + " from n");
    };
    constexpr std::size_t none = 99'999;
    struct Row {
        const char* name;
        std::function<void()> before;
        std::size_t presets;
        std::size_t stops; // of the first one
    };
    for (const auto& [name, before, presets, stops] : std::vector<Row>{
             {"missing", [&] { fs::remove(file); }, none, 0},
             {"empty", [&] { fs::resize_file(file, 0); }, none, 0},
             {"no database", [&] { std::ofstream{file} << std::string(9999, 'x'); }, none, 0},
             {"a folder",
              [&] {
                  fs::remove(file);
                  fs::create_directory(file);
              },
              none, 0},
             {"a pipe",
              [&] {
                  fs::remove(file);
                  ::mkfifo(file.c_str(), 0600);
              },
              none, 0},
             {"a device",
              [&] {
                  fs::remove(file);
                  fs::create_symlink("/dev/zero", file);
              },
              none, 0},
             {"a pipe beside it", [&] { ::mkfifo((file.native() + "-wal").c_str(), 0600); }, none, 0},
             {"too large", [&] { fs::resize_file(file, (16 << 20) + 1); }, none, 0},
             {"cut", [&] { fs::resize_file(file, 8192); }, none, 0},
             {"a broken page of stops",
              [&] {
                  std::fstream{file, std::ios::in | std::ios::out}.seekp(8192) << std::string(100, 'x');
              },
              2, 0},
             {"one table", [&] { other("drop table AdditionalTable"); }, none, 0},
             {"a view that never ends",
              [&] { other("drop table MainTable; create view MainTable" + endless); }, none, 0},
             {"a table that a module makes up",
              [&] {
                  other("drop table MainTable; create virtual table MainTable using fts5(mainIndex, "
                        "orientationType)");
              },
              none, 0},
             {"another column", [&] { other("alter table MainTable rename mainIndex to number"); }, none, 0},
             {"no colors", [&] { other("alter table AdditionalTable rename red to crimson"); }, 2, 0},
             {"a value that is made up and far too large",
              [&] {
                  other("drop table AdditionalTable; create table AdditionalTable (mainIndex, position as "
                        "(zeroblob(900000000)), red, green, blue, opacity);"
                        "insert into AdditionalTable values (0, 1, 1, 1, 1)");
              },
              2, 0},
             {"a large row",
              [&] {
                  other("alter table AdditionalTable add column note;"
                        "update AdditionalTable set note=zeroblob(9000000) where rowid=1");
              },
              2, 2},
             {"too many presets", [&] { add("MainTable(orientationType)", "i", 10'010); }, 10'000, 2},
             {"too many stops", [&] { add("AdditionalTable(mainIndex)", "0", 10'010); }, 2, 10'000},
             {"stops of no preset",
              [&] {
                  add("AdditionalTable(mainIndex)", "case i when 1 then null when 2 then 0.5 else 7 + i end",
                      10);
              },
              2, 2},
         }) {
        SCOPED_TRACE(name);
        fs::remove_all(folder);
        PresetProgram{support.path}.gallery.addGradientIntoPreset();
        PresetProgram{support.path}.gallery.addGradientIntoPreset();
        before();
        const auto read = readPresetFile(file);
        EXPECT_EQ(read ? read->size() : none, presets);
        EXPECT_EQ(read ? read->at(0).stops().size() : 0, stops);
    }
    other("update AdditionalTable set position=9e999, opacity=-3, red=NULL, green='x', blue=-1; update "
          "MainTable set "
          "orientationType=9");
    EXPECT_EQ(readPresetFile(file)->at(0),
              (Gradient{std::vector<ColorStop>(2, {1.0, Color::black(), 0.0}), 9}));
}

} // namespace
} // namespace tessaly
