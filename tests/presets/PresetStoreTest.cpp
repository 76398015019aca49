#include "presets/PresetStore.h"

#include "support/LogCapture.h"
#include "support/PresetProgram.h"
#include "support/TemporaryFolder.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

using Texts = std::vector<std::string>;
using std::filesystem::perms;

const std::string schema =
    "CREATE TABLE MainTable (mainIndex INTEGER PRIMARY KEY, orientationType INTEGER)\n"
    "CREATE TABLE AdditionalTable (additionalIndex INTEGER PRIMARY KEY, mainIndex INTEGER, "
    "position FLOAT, red FLOAT, green FLOAT, blue FLOAT, opacity FLOAT)";
const std::string insertMain = "sql: insert into MainTable (mainIndex, orientationType) VALUES (?, ?);";
const std::string insertStop = "sql: insert into AdditionalTable (mainIndex, position, red, green, blue, "
                               "opacity) VALUES (?, ?, ?, ?, ?, ?);";
const std::string selectMain = "sql: select mainIndex, orientationType from MainTable";
const std::string selectStops =
    "sql: select position, red, green, blue, opacity from AdditionalTable where mainIndex=";

class PresetStoreTest : public testing::Test {
  protected:
    std::filesystem::path folder() const { return support.path / "deep" / "Tessaly"; }
    std::filesystem::path file() const { return folder() / "localDB.sqlite3"; }
    PresetProgram start() const { return PresetProgram{support.path / "deep"}; }

    void add(PresetProgram& program, std::int64_t number, int stops) const {
        editGradient(number, stops);
        program.gallery.addGradientIntoPreset(this);
    }

    // What the sqlite3 shell answers, without the last line's end.
    std::string shell(const std::string& sql) const {
        const std::filesystem::path answer = support.path / "answer";
        const std::string command =
            "sqlite3 '" + file().native() + "' \"" + sql + "\" > " + answer.native() + " 2>&1";
        EXPECT_EQ(std::system(command.c_str()), 0) << contentsOf(answer);
        return contentsOf(answer).substr(0, contentsOf(answer).find_last_not_of('\n') + 1);
    }

    LogCapture log;
    const TemporaryFolder support;
};

TEST_F(PresetStoreTest, firstRunMakesAPrivateDatabaseWithTwoTables) {
    {
        const PresetProgram program = start();
        EXPECT_EQ(log.messages,
                  (Texts{"userpath", "userpath: " + file().native(), "Success!",
                         "sql: select name from sqlite_master where name='MainTable'",
                         "sql: select name from sqlite_master where name='AdditionalTable'", selectMain}));
        EXPECT_EQ(shell("pragma journal_mode"), "wal");
        for (const char* const suffix : {"", "-wal", "-shm"}) {
            EXPECT_EQ(std::filesystem::status(file().native() + suffix).permissions(), perms{0600});
        }
    }
    EXPECT_EQ(shell("select sql from sqlite_master"), schema);
    EXPECT_EQ(shell("pragma journal_mode"), "delete") << "at rest it is one plain file";
    for (const auto& path : {folder(), file()}) {
        std::filesystem::permissions(path, perms{0755});
        start();
        EXPECT_EQ(std::filesystem::status(path).permissions(), perms{0700}) << "closed to others";
    }
}

TEST_F(PresetStoreTest, savesWhatTheShellReadsAndTheNextRunShows) {
    PresetProgram program = start();
    add(program, 3, 3);
    GlobalData& data = GlobalData::sharedData();
    data.setColorMarkerPos({0.0, 1.0, 0.25});
    data.setColorMarkerColor({Color::black(), Color::calibratedRGB(1, 1, 1, 0.3), Color::withoutRGBForm()});
    data.setColorMarkerOpacity({1.0, 0.5, 0.75, 0.1}); // one left over from a deleted stop
    data.setOrientationType(2);
    log.messages.clear();
    program.gallery.addGradientIntoPreset(this);
    EXPECT_EQ(log.messages, (Texts{"Index: 2", "PosX: 1.000000; PosY: 0.000000", insertMain, insertStop,
                                   insertStop, insertStop, insertMain, insertStop, insertStop, insertStop}));
    EXPECT_EQ(shell("select * from MainTable"), "0|3\n1|2");
    EXPECT_EQ(shell("select * from AdditionalTable where mainIndex=1"),
              "4|1|0.0|0.0|0.0|0.0|1.0\n5|1|1.0|1.0|1.0|1.0|0.5\n6|1|0.25|0.0|0.0|0.0|0.75");
    log.messages.clear();
    const PresetProgram next = start();
    EXPECT_EQ(
        Texts(log.messages.begin() + 5, log.messages.end()),
        (Texts{selectMain, "mainIndex: 0", selectStops + "0", "Index: 1", "PosX: 0.000000; PosY: 0.000000",
               "mainIndex: 1", selectStops + "1", "Index: 2", "PosX: 1.000000; PosY: 0.000000"}));
    const Preset odd{
        {0.0, 1.0, 0.25}, {Color::black(), Color::white(), Color::black()}, {1.0, 0.5, 0.75}, 2, 1};
    EXPECT_EQ(next.presets(), (std::vector<Preset>{program.presets()[0], odd})) << "every double as it was";
}

TEST_F(PresetStoreTest, readsADatabaseMadeByHand) {
    std::filesystem::create_directories(folder());
    std::string statements = schema;
    statements.replace(statements.find('\n'), 1, ";");
    shell(statements +
          ";insert into MainTable values (7, 4), (3, 9), (5, 1);"
          "insert into AdditionalTable values (9, 7, 0.75, 1, 0, 0, 0.5), (2, 7, 0.5, 0, 1, 0, 1),"
          "(3, 3, 1, 0, 0, 1, 0), (4, 7, 0, 2, -1, 'x', 1), (5, 4, 0.5, 1, 1, 1, 1),"
          "(6, NULL, 0.5, 1, 1, 1, 1), (7, 'three', 0.5, 1, 1, 1, 1), (8, 3.5, 0.5, 1, 1, 1, 1)");
    PresetProgram program = start();
    const Color red = Color::calibratedRGB(1, 0, 0);
    const std::vector<Preset> expected{
        {{1.0}, {Color::calibratedRGB(0, 0, 1)}, {0.0}, 9, 0},
        {{}, {}, {}, 1, 1},
        {{0.5, 0.0, 0.75}, {Color::calibratedRGB(0, 1, 0), red, red}, {1.0, 1.0, 0.5}, 4, 2}};
    EXPECT_EQ(program.presets(), expected);

    FakeGalleryView view; // one by one, by its own query, a preset reads as among all
    PresetGallery single{view, {}};
    PresetStore store{single, support.path / "deep"};
    store.openDB();
    for (const auto& [mainIndex, orientationType] : {std::pair{3, 9}, {5, 1}, {7, 4}}) {
        store.readAdditionalData(mainIndex, orientationType);
    }
    EXPECT_EQ(single.presetGradient(), expected);
    store.closeDB();

    program.gallery.deletePresetGradientNotification({"", nullptr, {{"index", std::int64_t{1}}}});
    EXPECT_EQ(shell("select * from MainTable"), "0|9\n1|4") << "renumbered";
    EXPECT_EQ(shell("select mainIndex from AdditionalTable"), "0\n1\n1\n1") << "the orphans are gone";
}

TEST_F(PresetStoreTest, numbersRowsByIndexAndByPlaceAndGoesOnAfterAFailedMainRowAlone) {
    PresetProgram program = start();
    for (const std::int64_t index : {(std::int64_t{1} << 32) + 7, std::int64_t{7}}) { // cut to 32 bits
        program.gallery.setGradientIndex(index);
        log.messages.clear();
        add(program, 1, 1);
    }
    EXPECT_EQ(Texts(log.messages.begin() + 2, log.messages.end()),
              (Texts{insertMain, insertStop, insertMain,
                     "Error while inserting: UNIQUE constraint failed: MainTable.mainIndex", insertStop}));
    EXPECT_EQ(shell("select * from MainTable; select mainIndex from AdditionalTable"), "7|1\n0\n1");

    program.store.executeSQL("create trigger t before insert on AdditionalTable when new.position=1.0/6 "
                             "begin select raise(abort, 'no room'); end");
    log.messages.clear();
    add(program, 3, 3); // at 1/5, 1/6 and 1/7
    EXPECT_EQ(log.messages.back(), "Error while inserting: no room");
    EXPECT_EQ(std::count(log.messages.begin(), log.messages.end(), insertStop), 4);
    EXPECT_EQ(std::filesystem::file_size(file().native() + "-wal"), 0U) << "the room is given back";
}

TEST_F(PresetStoreTest, answersStatementsAndQueries) {
    PresetProgram program = start();
    PresetStore& store = program.store;
    log.messages.clear();
    EXPECT_TRUE(store.executeSQL("create index byOrientation on MainTable (orientationType)"));
    EXPECT_TRUE(store.executeSQL("insert into MainTable values (1, NULL), (2, 4)"));
    EXPECT_EQ(log.messages, Texts{});
    EXPECT_FALSE(store.executeSQL("selec"));
    store.createMainTable();
    EXPECT_EQ(log.messages, (Texts{"LastError: near \"selec\": syntax error",
                                   "LastError: table MainTable already exists", "Error create table!"}));
    for (const auto& [name, found] :
         {std::pair{"MainTable", true}, {"byOrientation", true}, {"Nothing", false}, {"Main'Table", false}}) {
        EXPECT_EQ(store.isTableExists(name), found) << name;
    }
    EXPECT_EQ(store.LastError(), "near \"Table\": syntax error");
    EXPECT_FALSE(store.isRecordFound("select * from MainTable where mainIndex=3"));

    std::vector<Texts> rows{{"from before"}};
    EXPECT_TRUE(store.executeSQL("select mainIndex, orientationType, 0.5 from MainTable", rows));
    EXPECT_EQ(rows, (std::vector<Texts>{{"1", "", "0.5"}, {"2", "4", "0.5"}}));
    EXPECT_TRUE(store.executeSQL("select '\xC3\xA9' ", rows)) << "the end cut off is a blank";
    EXPECT_EQ(rows, (std::vector<Texts>{{"\xC3\xA9"}}));
    EXPECT_TRUE(store.executeSQL("select '\xF0\x9F\x8C\x88' ", rows)) << "the end cut off has the quote";
    EXPECT_TRUE(rows.empty());
}

TEST_F(PresetStoreTest, worksOnWithoutADatabase) {
    std::ofstream{support.path / "Tessaly"} << "in the way";
    for (const auto& place : {support.path, support.path / "Tessaly"}) {
        log.messages.clear();
        PresetProgram program{place};
        EXPECT_EQ(log.has("Error: Create folder failed " + (place / "Tessaly").native()),
                  place != support.path);
        EXPECT_FALSE(log.has("Success!"));
        EXPECT_TRUE(log.has("Error create table!"));
        add(program, 1, 2);
        EXPECT_EQ(std::count(log.messages.begin(), log.messages.end(), "Error delete data!"), 2);
        EXPECT_EQ(log.messages.back(), "Error while inserting: unable to open database file");
        std::vector<Texts> rows{{"from before"}};
        EXPECT_TRUE(program.store.executeSQL("select 1", rows));
        EXPECT_TRUE(rows.empty());
    }
    EXPECT_EQ(contentsOf(support.path / "Tessaly"), "in the way");
}

} // namespace
} // namespace tessaly
