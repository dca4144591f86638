#pragma once

#include "contract/text.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <sqlite3.h>
#include <stdexcept>
#include <string_view>

namespace zel {

/// A text for a message: control characters and bytes that are no UTF-8 stand as "\x1B".
CString printable(std::string_view text);

/// A failure that SQLite reports, with its result code.
class SqliteError : public std::runtime_error {
public:
    SqliteError(int code, const CString& what) : std::runtime_error(printable(what)), m_code(code) {}
    [[nodiscard]] int code() const { return m_code & 0xFF; }
    /// Whether what was written could not be made safe, so that nobody knows whether it is on the disk.
    [[nodiscard]] bool isSync() const;

private:
    int m_code;
};

class Statement;

/// One connection to a database file.
class Database {
public:
    /// Any name is the name of a file: ":memory:" and "file:x" too.
    /// @throws SqliteError
    Database(const std::filesystem::path& path, int flags);

    /// @param vfs  a registered place for files, in which `name` means something
    Database(const CString& name, int flags, const char* vfs);

    /// The settings of a connection to a model. Nobody else can use the file from its next use on.
    void prepareForModel();

    /// Puts all that is in the write-ahead log into the database file, and empties the log.
    void moveLogIntoFile();

    /// The bytes of a database file that holds what is committed now.
    [[nodiscard]] std::string contents();

    void run(const CString& sql);
    [[nodiscard]] std::int64_t number(const CString& sql);  ///< first column of the first row; 0 if there is no row
    [[nodiscard]] CString text(const CString& sql);
    [[nodiscard]] int changes() const { return sqlite3_changes(m_handle.get()); }
    [[nodiscard]] sqlite3* handle() const { return m_handle.get(); }

private:
    void open(const CString& name, int flags, const char* vfs);

    struct Close {
        void operator()(sqlite3* handle) const { sqlite3_close(handle); }
    };
    std::unique_ptr<sqlite3, Close> m_handle;
};

/// A prepared statement. Parameters count from 1, columns from 0.
class Statement {
public:
    Statement(Database& database, const CString& sql);

    void bind(int parameter, std::int64_t value);
    void bind(int parameter, double value);
    /// The text must live until the statement is run.
    void bind(int parameter, std::string_view value);

    /// Makes one step; false at the end.
    bool step();
    /// Runs a statement without rows and makes it ready for the next run.
    void run();
    void reset() { sqlite3_reset(m_handle.get()); }

    [[nodiscard]] bool isNull(int column) const { return sqlite3_column_type(m_handle.get(), column) == SQLITE_NULL; }
    [[nodiscard]] int type(int column) const { return sqlite3_column_type(m_handle.get(), column); }  ///< SQLITE_INTEGER, ...
    [[nodiscard]] std::int64_t integer(int column) const { return sqlite3_column_int64(m_handle.get(), column); }
    [[nodiscard]] double real(int column) const { return sqlite3_column_double(m_handle.get(), column); }
    [[nodiscard]] std::string_view text(int column) const;

private:
    void check(int code) const
    {
        if (code != SQLITE_OK)
            fail(code);
    }
    [[noreturn]] void fail(int code) const;

    struct Finalize {
        void operator()(sqlite3_stmt* handle) const { sqlite3_finalize(handle); }
    };
    sqlite3* m_database;
    std::unique_ptr<sqlite3_stmt, Finalize> m_handle;
};

}  // namespace zel
