#include "presets/PresetStore.h"

#include "support/LogCapture.h"
#include "support/PresetProgram.h"
#include "support/TemporaryFolder.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

namespace fs = std::filesystem;

class PresetStoreTest : public testing::Test {
  protected:
    PresetProgram start() const { return PresetProgram{support.path / "deep"}; }

    // What the sqlite3 shell answers.
    std::string shell(const std::string& sql) const {
        const fs::path answer = support.path / "answer";
        const std::string command = "sqlite3 '" + file.native() + "' \"" + sql + "\" > " + answer.native();
        EXPECT_EQ(std::system(command.c_str()), 0);
        return contentsOf(answer);
    }

    LogCapture log;
    const TemporaryFolder support;
    const fs::path folder = support.path / "deep" / "Tessaly";
    const fs::path file = folder / "localDB.sqlite3";
};

TEST_F(PresetStoreTest, keepsWhatIsSavedInAPrivateFileForTheShellAndTheNextRun) {
    std::vector<Gradient> presets;
    {
        PresetProgram program = start();
        program.gallery.addGradientIntoPreset(program.record.gradient);
        program.gallery.addGradientIntoPreset(program.record.gradient);
        program.record.gradient = Gradient{{{1.0 / 3, Color::black()},
                                            {1.0, Color::calibratedRGB(1, 0, 0, 0.3), 0.5},
                                            {0.25, Color::withoutRGBForm(), 0.75},
                                            {0.5, Color::black(), 0.1}},
                                           orientation::diagonalToTopRight};
        program.record.gradient.remove(3); // which leaves its opacity behind
        program.gallery.addGradientIntoPreset();
        program.gallery.deletePreset(1);
        EXPECT_EQ(fs::status(file).permissions(), fs::perms{0600});
        presets = program.presets();
    }
    presets[1] = Gradient{
        {{1.0 / 3, Color::black()}, {1.0, Color::calibratedRGB(1, 0, 0), 0.5}, {0.25, Color::black(), 0.75}},
        orientation::diagonalToTopRight};
    EXPECT_EQ(start().presets(), presets) << "every double as it was";
    EXPECT_EQ(std::erase(log.messages, "userpath: " + file.native()), 2U);
    std::string logged;
    for (const std::string& message : log.messages) {
        logged += message + '\n';
    }
    EXPECT_EQ(logged, contentsOf(fs::path{TESSALY_TEST_DATA} / "log.txt"));
    EXPECT_EQ(shell("select sql from sqlite_master; select * from MainTable; select * from AdditionalTable; "
                    "pragma journal_mode"), // at rest it is one plain file
              contentsOf(fs::path{TESSALY_TEST_DATA} / "database.txt"));
    for (const auto& path : {folder, file}) {
        fs::permissions(path, fs::perms{0755});
        start();
        EXPECT_EQ(fs::status(path).permissions(), fs::perms{0700}) << "closed to others";
    }
}

TEST_F(PresetStoreTest, readsADatabaseMadeByHand) {
    start();
    shell("insert into MainTable values (7, 4), (3, 9), (5, 1);"
          "insert into AdditionalTable values (9, 7, 0.75, 1, 0, 0, 0.5), (2, 7, 0.5, 0, 1, 0, 1),"
          "(3, 3, 1, 0, 0, 1, 0), (4, 7, 0, 2, -1, 'x', 1), (5, 4, 0.5, 1, 1, 1, 1),"
          "(6, NULL, 0.5, 1, 1, 1, 1), (7, 'three', 0.5, 1, 1, 1, 1), (8, 3.5, 0.5, 1, 1, 1, 1)");
    PresetProgram program = start();
    const Color red = Color::calibratedRGB(1, 0, 0);
    const std::vector<Gradient> expected{
        Gradient{{{1.0, Color::calibratedRGB(0, 0, 1), 0.0}}, 9}, Gradient{},
        Gradient{{{0.5, Color::calibratedRGB(0, 1, 0)}, {0.0, red}, {0.75, red, 0.5}}, orientation::radial}};
    EXPECT_EQ(program.presets(), expected);
    program.gallery.deletePreset(1);
    EXPECT_EQ(shell("select * from MainTable; select mainIndex from AdditionalTable"),
              "0|9\n1|4\n0\n1\n1\n1\n")
        << "renumbered, and the orphans are gone";
}

TEST_F(PresetStoreTest, goesOnAfterAFailedMainRowAlone) {
    PresetProgram program = start();
    program.store.executeSQL("create trigger a before insert on MainTable when new.mainIndex=1 "
                             "begin select raise(abort, 'no row'); end;"
                             "create trigger b before insert on AdditionalTable when new.position=0.25 "
                             "begin select raise(abort, 'no room'); end");
    program.gallery.addGradientIntoPreset(Gradient{{{0.5}}});
    program.gallery.addGradientIntoPreset(Gradient{{{0.5}}});
    program.record.gradient = Gradient{{{0.5}, {0.25}, {1.0}}};
    program.gallery.addGradientIntoPreset();
    EXPECT_TRUE(log.has("Error while inserting: no row"));
    EXPECT_TRUE(log.has("Error while inserting: no room"));
    EXPECT_EQ(log.messages.back(), "Presets not saved: no row") << "what failed first";
    EXPECT_EQ(shell("select count(*) from MainTable"), "0\n") << "not half of a list";
    std::vector<std::vector<std::string>> rows;
    program.store.executeSQL("select group_concat(mainIndex) from AdditionalTable", rows);
    EXPECT_EQ(rows, (std::vector<std::vector<std::string>>{{"0,1,2"}}));
    const std::string wide = "\xC3\xA9\xF0\x9F\x8C\x88"; // 6 bytes, 3 units: the query ends 3 bytes early
    const std::string query =
        "select NULL, '" + wide + "', mainIndex from AdditionalTable where mainIndex<2999";
    EXPECT_TRUE(program.store.executeSQL(query, rows));
    EXPECT_EQ(rows, (std::vector<std::vector<std::string>>{{"", wide, "0"}, {"", wide, "1"}}));
}

TEST_F(PresetStoreTest, savesNothingWhereWhatWasThereCannotGo) {
    PresetProgram program = start();
    program.gallery.addGradientIntoPreset();
    program.store.executeSQL(
        "create trigger a before delete on AdditionalTable begin select raise(abort, 'stays'); end");
    program.gallery.addGradientIntoPreset();
    EXPECT_TRUE(log.has("Error delete data!"));
    EXPECT_EQ(log.messages.back(), "Presets not saved: stays");
    EXPECT_EQ(shell("select count(*) from AdditionalTable"), "2\n") << "none with the stops of another";
}

TEST_F(PresetStoreTest, worksOnWithoutADatabase) {
    std::ofstream{support.path / "deep"} << "in the way";
    PresetProgram program = start();
    program.gallery.addGradientIntoPreset();
    EXPECT_TRUE(log.has("Error: Create folder failed " + folder.native()));
    EXPECT_EQ(log.count("Error create table!"), 2);
    EXPECT_EQ(log.count("Error delete data!"), 2);
    EXPECT_TRUE(log.has("Error while inserting: unable to open database file"));
    EXPECT_EQ(log.messages.back(), "Presets not saved: unable to open database file");
    EXPECT_FALSE(log.has("Success!"));
}

TEST_F(PresetStoreTest, saysWhyItCannotSaveAndTriesOnceMoreAtTheEnd) {
    start();
    auto other = SqliteConnection::open(file);
    other.execute("begin exclusive");
    std::optional<PresetProgram> program{std::in_place, support.path / "deep"};
    program->gallery.addGradientIntoPreset();
    program->store.closeDB();
    EXPECT_EQ(log.count("Presets not saved: database is locked"), 2);
    other = {};
    const std::vector<std::string> messages = log.messages;
    program.reset();
    EXPECT_EQ(log.messages, messages) << "not when its window may be gone";
}

} // namespace
} // namespace tessaly
