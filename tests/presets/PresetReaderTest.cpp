#include "presets/PresetReader.h"

#include "support/PresetTest.h"

#include <functional>
#include <map>
#include <sys/stat.h>

namespace tessaly {
namespace {

namespace fs = std::filesystem;

class PresetReaderTest : public PresetTest {
  protected:
    PresetReaderTest() {
        PresetProgram program{support.path};
        program.gallery.addGradientIntoPreset();
        program.record.gradient =
            Gradient{{{1.0 / 3, Color::white(), 0.5}, {0.25, Color::calibratedRGB(0.1, 0.2, 0.3)}},
                     orientation::radial};
        program.gallery.addGradientIntoPreset();
        saved = program.presets();
        bytes = contentsOf(file);
    }

    void restore() const {
        fs::remove_all(folder);
        fs::create_directory(folder);
        std::ofstream{file, std::ios::binary} << bytes;
    }

    std::map<fs::path, std::string> all() const {
        std::map<fs::path, std::string> contents;
        for (const fs::path& path : fs::directory_iterator{folder}) {
            contents[path] = contentsOf(path);
        }
        return contents;
    }

    std::vector<Gradient> saved;
    std::string bytes;
};

TEST_F(PresetReaderTest, readsWhateverProgramHasTheFileAndLeavesEverythingAsItIs) {
    const std::string none = "delete from MainTable; delete from AdditionalTable";
    const std::string half =
        "pragma cache_size=1; begin; update MainTable set orientationType=7;"
        "create table x as with recursive n(a) as (select 1 union all select a + 1 from n "
        "limit 9999) select * from n";
    std::shared_ptr<void> held;
    const auto hold = [&](const std::string& sql) { return [&, sql] { held = other(sql); }; };
    const auto becomeALink = [&] {
        fs::rename(file, folder / "elsewhere");
        fs::create_symlink("elsewhere", file);
    };
    struct Row {
        const char* name;
        std::function<void()> before;
        std::vector<Gradient> expected;
    };
    const Row rows[] = {
        {"of a copy that runs", [&] { held = std::make_shared<PresetProgram>(support.path); }, saved},
        {"being written", hold("begin exclusive; " + none), saved},
        {"half written", hold(half), saved},
        {"in a log", hold("pragma journal_mode=wal; " + none), {}},
        {"in a log that was left", [&] { crashAfter(none); }, {}},
        {"behind a link", becomeALink, saved},
        {"of a later format", [&] { overwrite(18, '!', 1); }, saved},
        {"read-only", [&] { fs::permissions(file, fs::perms::owner_read); }, saved}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        restore();
        row.before();
        const auto before = all();
        const auto time = fs::last_write_time(file);
        EXPECT_EQ(readPresetFile(file), row.expected);
        EXPECT_EQ(all(), before);
        EXPECT_EQ(fs::last_write_time(file), time);
        held.reset();
    }
}

TEST_F(PresetReaderTest, takesFromADamagedOrHostileFileWhatThereIs) {
    const auto counted = [](const std::string& limit, const std::string& columns) {
        return " with recursive n(i) as (select 0 union all select i + 1 from n" + limit + ") select " +
               columns + " from n";
    };
    const std::string many = " limit 10010";
    const auto by = [this](const std::string& sql) { return [this, sql] { other(sql); }; };
    constexpr std::size_t none = 99'999;
    struct Row {
        const char* name;
        std::function<void()> before;
        std::size_t presets;
        std::size_t stops; // of the first one
    };
    const Row rows[] = {
        {"a pipe beside it", [&] { ::mkfifo((file.native() + "-wal").c_str(), 0600); }, none, 0},
        {"too large", [&] { fs::resize_file(file, (16 << 20) + 1); }, none, 0},
        {"cut", [&] { fs::resize_file(file, 8192); }, none, 0},
        {"a broken page of stops", [&] { overwrite(8192, 'x', 100); }, 2, 0},
        {"one table", by("drop table AdditionalTable"), none, 0},
        {"a view that never ends",
         by("drop table MainTable; create view MainTable as" +
            counted("", "i as mainIndex, 1 as orientationType")),
         none, 0},
        {"a table that a module makes up",
         by("drop table MainTable; create virtual table MainTable using fts5(mainIndex, orientationType)"),
         none, 0},
        {"another column", by("alter table MainTable rename mainIndex to number"), none, 0},
        {"no colors", by("alter table AdditionalTable rename red to crimson"), 2, 0},
        {"a value that is made up and far too large",
         by("drop table AdditionalTable; create table AdditionalTable (mainIndex, position as "
            "(zeroblob(900000000)), red, green, blue, opacity);"
            "insert into AdditionalTable values (0, 1, 1, 1, 1)"),
         2, 0},
        {"a large row",
         by("alter table AdditionalTable add column note;"
            "update AdditionalTable set note=zeroblob(9000000) where rowid=1"),
         2, 2},
        {"too many presets", by("insert into MainTable(orientationType)" + counted(many, "i")), 10'000, 2},
        {"too many stops", by("insert into AdditionalTable(mainIndex)" + counted(many, "0")), 2, 10'000},
        {"stops of no preset", by("insert into AdditionalTable(mainIndex) values (null), (0.5), (7)"), 2, 2}};
    for (const auto& [name, before, presets, stops] : rows) {
        SCOPED_TRACE(name);
        restore();
        before();
        const auto read = readPresetFile(file);
        EXPECT_EQ(read ? read->size() : none, presets);
        EXPECT_EQ(read ? read->at(0).stops().size() : 0, stops);
    }
    other("update AdditionalTable set position=9e999, opacity=-3, red=NULL, green='x', blue=-1;"
          "update MainTable set orientationType=9");
    EXPECT_EQ(readPresetFile(file)->at(0),
              (Gradient{std::vector<ColorStop>(2, {1.0, Color::black(), 0.0}), 9}));
}

} // namespace
} // namespace tessaly
