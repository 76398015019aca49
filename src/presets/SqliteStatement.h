#pragma once

#include <cstdint>
#include <memory>
#include <string>

struct sqlite3_stmt;

namespace tessaly {

class SqliteConnection;

/// A prepared statement, or none when its text could not be prepared: then every step fails. Must not outlive
/// its connection.
class SqliteStatement {
  public:
    /// Prepares the whole text by the second-generation call.
    static SqliteStatement prepare(const SqliteConnection& connection, const std::string& text);

    /// Prepares by the first-generation call, handing on the text's length in UTF-16 units instead of bytes.
    /// That deliberately cuts the end off a text that is not plain ASCII, for those who count on it.
    static SqliteStatement prepareFirstGeneration(const SqliteConnection& connection,
                                                  const std::string& text);

    /// To the parameters from the first on: std::int64_t or double.
    template <typename... Values>
    void bind(Values... values) {
        int parameter = 0;
        (bindAt(++parameter, values), ...);
    }

    /// SQLITE_ROW, SQLITE_DONE or an error code.
    int step();

    /// Back before the first step; what is bound stays.
    void reset();

    /// Columns of the current row, counting from 0; NULL reads 0, 0.0 or an empty text.
    int columnCount() const;
    std::int64_t integer(int column) const;
    double real(int column) const;
    std::string text(int column) const;

  private:
    struct Finalizer {
        void operator()(sqlite3_stmt* handle) const;
    };

    explicit SqliteStatement(sqlite3_stmt* handle) : handle_{handle} {}

    void bindAt(int parameter, std::int64_t value);
    void bindAt(int parameter, double value);

    std::unique_ptr<sqlite3_stmt, Finalizer> handle_;
};

} // namespace tessaly
