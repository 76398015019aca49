// Any bytes as the presets' database: the program reads or keeps what is there, and saves.

#include "FuzzTarget.h"
#include "foundation/DiagnosticLog.h"
#include "presets/SqliteConnection.h"
#include "support/PresetProgram.h"
#include "support/TemporaryFolder.h"

using namespace tessaly;

// The presets of a database, told by what is not clamped; none where they cannot be read to the end. An index
// that the check does not compare with its table is not asked.
static std::optional<std::string> presetsIn(const std::filesystem::path& file) {
    const SqliteConnection database = SqliteConnection::open(file);
    database.execute("create table if not exists MainTable (mainIndex INTEGER PRIMARY KEY, orientationType)");
    database.execute("create table if not exists AdditionalTable (mainIndex, position, opacity)");
    const auto presets = database.value("select group_concat(printf('%d %f %f', orientationType & "
                                        "4294967295, position, opacity)) from (select *"
                                        " from MainTable m left join AdditionalTable a not indexed on "
                                        "a.mainIndex = m.mainIndex order by m.rowid, a.rowid)");
    return database.value("pragma quick_check(1)") == "ok" ? presets : std::nullopt;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t firstPage = 512; // has the schema and the counters, which every program changes
    DiagnosticLog::exchangeSink([](auto) {});
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const TemporaryFolder support;
    const auto file = support.path / "Tessaly" / "localDB.sqlite3";
    std::filesystem::create_directory(file.parent_path());
    for (const auto& path : {file, support.path / "original", support.path / "tables"}) {
        std::ofstream{path, std::ios::binary} << bytes;
    }
    const std::optional<std::string> before = presetsIn(support.path / "original");
    auto program = std::make_unique<PresetProgram>(support.path);
    program->gallery.addGradientIntoPreset();
    std::vector<Gradient> saved = program->presets();
    program.reset();
    for (Gradient& gradient : saved) {
        gradient.setOrientation(static_cast<std::int32_t>(gradient.orientation())); // as stored
    }
    require(PresetProgram{support.path}.presets() == saved, "a save brings the list back after a restart");
    const auto tables =
        SqliteConnection::open(support.path / "tables")
            .value("select count(*) from sqlite_master where name in ('MainTable', 'AdditionalTable')");
    const bool hasTables = tables.value_or("2") == "2"; // else they are made
    const auto isKept = [&](const std::filesystem::directory_entry& entry) {
        const std::string kept = contentsOf(entry.path());
        const std::size_t end = std::max(firstPage, std::min(size, kept.size()));
        const bool samePages = size < end || std::equal(&bytes[firstPage], &bytes[end], &kept[firstPage]);
        return entry.path().native().find("-set-aside-") != std::string::npos && (samePages || !hasTables);
    };
    const bool isSetAside = std::any_of(std::filesystem::directory_iterator{file.parent_path()}, {}, isKept);
    require(isSetAside || (before && presetsIn(file).value_or("").starts_with(*before)), "no preset is lost");
    return 0;
}
