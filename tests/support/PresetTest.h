#pragma once

#include "presets/SqliteConnection.h"
#include "support/LogCapture.h"
#include "support/PresetProgram.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <memory>

namespace tessaly {

/// Tests with a database of presets, of which other programs know as well.
class PresetTest : public testing::Test {
  protected:
    std::vector<Gradient> stored() const { return PresetProgram{support.path}.presets(); }

    /// Another program's connection, in the midst of something.
    std::shared_ptr<SqliteConnection> other(const std::string& statement) const {
        auto connection = std::make_shared<SqliteConnection>(SqliteConnection::open(file));
        EXPECT_EQ(connection->execute(statement).message, std::nullopt) << statement;
        return connection;
    }
    /// The database as another program left it that crashed after the statement, which is in the log alone.
    void crashAfter(const std::string& statement) const {
        [[maybe_unused]] const auto held = other("pragma journal_mode=wal; " + statement);
        for (const char* const suffix : {"", "-wal"}) { // before it is tidied up at the end
            std::filesystem::copy_file(file.native() + suffix, support.path.native() + "/left" + suffix);
        }
        std::filesystem::remove_all(folder);
        std::filesystem::create_directory(folder);
        for (const char* const suffix : {"", "-wal"}) {
            std::filesystem::rename(support.path.native() + "/left" + suffix, file.native() + suffix);
        }
    }
    void overwrite(std::streamoff place, char with, std::size_t bytes) const {
        std::fstream{file, std::ios::in | std::ios::out}.seekp(place) << std::string(bytes, with);
    }

    LogCapture log;
    // In memory where that can be had: some tests force thousands of files to the disk.
    const TemporaryFolder support{
        std::filesystem::exists("/dev/shm") ? "/dev/shm" : std::filesystem::temp_directory_path()};
    const std::filesystem::path folder = support.path / "Tessaly";
    const std::filesystem::path file = folder / "localDB.sqlite3";
};

} // namespace tessaly
