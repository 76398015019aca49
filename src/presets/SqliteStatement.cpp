#include "presets/SqliteStatement.h"

#include "presets/SqliteConnection.h"

#include <sqlite3.h>

namespace tessaly {
namespace {

// UTF-16 units of a UTF-8 text: one for each lead byte, two for that of a character beyond the first plane.
int utf16Length(const std::string& text) {
    int units = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        units += (byte & 0xC0U) == 0x80U ? 0 : byte >= 0xF0U ? 2 : 1;
    }
    return units;
}

} // namespace

void SqliteStatement::Finalizer::operator()(sqlite3_stmt* handle) const {
    sqlite3_finalize(handle);
}

SqliteStatement SqliteStatement::prepare(const SqliteConnection& connection, const std::string& text) {
    sqlite3_stmt* handle = nullptr;
    if (connection.isOpen()) {
        sqlite3_prepare_v2(connection.handle(), text.c_str(), -1, &handle, nullptr);
    }
    return SqliteStatement{handle};
}

SqliteStatement SqliteStatement::prepareFirstGeneration(const SqliteConnection& connection,
                                                        const std::string& text) {
    sqlite3_stmt* handle = nullptr;
    if (connection.isOpen()) {
        sqlite3_prepare(connection.handle(), text.c_str(), utf16Length(text), &handle, nullptr);
    }
    return SqliteStatement{handle};
}

void SqliteStatement::bindAt(int parameter, std::int64_t value) {
    sqlite3_bind_int64(handle_.get(), parameter, value);
}

void SqliteStatement::bindAt(int parameter, double value) {
    sqlite3_bind_double(handle_.get(), parameter, value);
}

int SqliteStatement::step() {
    const int result = handle_ ? sqlite3_step(handle_.get()) : SQLITE_MISUSE;
    // The first generation answers every failure alike, and tells which it was when it is reset.
    return result == SQLITE_ERROR ? sqlite3_reset(handle_.get()) : result;
}

void SqliteStatement::reset() {
    sqlite3_reset(handle_.get());
}

int SqliteStatement::columnCount() const {
    return sqlite3_column_count(handle_.get());
}

std::int64_t SqliteStatement::integer(int column) const {
    return sqlite3_column_int64(handle_.get(), column);
}

double SqliteStatement::real(int column) const {
    return sqlite3_column_double(handle_.get(), column);
}

std::string SqliteStatement::text(int column) const {
    const unsigned char* const text = sqlite3_column_text(handle_.get(), column);
    if (text == nullptr) {
        return {};
    }
    const auto length = static_cast<std::size_t>(sqlite3_column_bytes(handle_.get(), column));
    return {text, text + length};
}

} // namespace tessaly
