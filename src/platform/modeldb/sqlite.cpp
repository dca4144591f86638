#include "platform/modeldb/sqlite.h"

#include <cstdio>

namespace zel {

namespace {

/// How many bytes a character of UTF-8 takes at the start of a text; 0 if it is none.
std::size_t characterSize(std::string_view text)
{
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
    const std::size_t size = byte(0) < 0x80 ? 1 : (byte(0) & 0xE0U) == 0xC0 ? 2 : (byte(0) & 0xF0U) == 0xE0 ? 3 : (byte(0) & 0xF8U) == 0xF0 ? 4 : 0;
    if (size == 0 || size > text.size())
        return 0;
    for (std::size_t i = 1; i < size; ++i) {
        if ((byte(i) & 0xC0U) != 0x80)
            return 0;
    }
    return size;
}

}  // namespace

CString printable(std::string_view text)
{
    CString shown;
    while (!text.empty()) {
        const std::size_t size = characterSize(text);
        const auto first = static_cast<unsigned char>(text[0]);
        if (size == 0 || first < ' ' || first == 0x7F) {
            char escaped[8];
            std::snprintf(escaped, sizeof escaped, "\\x%02X", first);
            shown += escaped;
            text.remove_prefix(1);
        } else {
            shown += text.substr(0, size);
            text.remove_prefix(size);
        }
    }
    return shown;
}

bool SqliteError::isSync() const
{
    return m_code == SQLITE_IOERR_FSYNC || m_code == SQLITE_IOERR_DIR_FSYNC || m_code == SQLITE_IOERR_TRUNCATE || m_code == SQLITE_IOERR_DELETE;
}

Database::Database(const std::filesystem::path& path, int flags)
{
    open(std::filesystem::absolute(path).string(), flags, nullptr);
}

Database::Database(const CString& name, int flags, const char* vfs)
{
    open(name, flags, vfs);
}

void Database::open(const CString& name, int flags, const char* vfs)
{
    sqlite3* handle = nullptr;
    const int code = sqlite3_open_v2(name.c_str(), &handle, flags, vfs);
    m_handle.reset(handle);
    if (code != SQLITE_OK)
        throw SqliteError(code, handle != nullptr ? sqlite3_errmsg(handle) : "out of memory");
    sqlite3_extended_result_codes(handle, 1);
}

void Database::prepareForModel()
{
    run("PRAGMA locking_mode=EXCLUSIVE; PRAGMA trusted_schema=OFF; PRAGMA cell_size_check=ON; PRAGMA foreign_keys=OFF; PRAGMA synchronous=FULL; "
        "PRAGMA temp_store=MEMORY; PRAGMA cache_size=-65536");
}

void Database::moveLogIntoFile()
{
    if (number("PRAGMA wal_checkpoint(TRUNCATE)") != 0)
        throw SqliteError(SQLITE_BUSY, "the log can't be emptied");
}

std::string Database::contents()
{
    sqlite3_int64 size = 0;
    unsigned char* bytes = sqlite3_serialize(m_handle.get(), "main", &size, 0);
    if (bytes == nullptr)
        throw SqliteError(SQLITE_NOMEM, "out of memory");
    std::string copied(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(size));
    sqlite3_free(bytes);
    return copied;
}

void Database::run(const CString& sql)
{
    char* message = nullptr;
    const int code = sqlite3_exec(m_handle.get(), sql.c_str(), nullptr, nullptr, &message);
    if (code == SQLITE_OK)
        return;
    const CString reason = message != nullptr ? message : sqlite3_errstr(code);
    sqlite3_free(message);
    throw SqliteError(code, reason);
}

std::int64_t Database::number(const CString& sql)
{
    Statement statement(*this, sql);
    return statement.step() ? statement.integer(0) : 0;
}

CString Database::text(const CString& sql)
{
    Statement statement(*this, sql);
    return statement.step() ? CString(statement.text(0)) : CString();
}

Statement::Statement(Database& database, const CString& sql) : m_database(database.handle())
{
    sqlite3_stmt* handle = nullptr;
    const int code = sqlite3_prepare_v3(m_database, sql.c_str(), static_cast<int>(sql.size()), SQLITE_PREPARE_PERSISTENT, &handle, nullptr);
    m_handle.reset(handle);
    if (code != SQLITE_OK)
        fail(code);
}

void Statement::bind(int parameter, std::int64_t value)
{
    check(sqlite3_bind_int64(m_handle.get(), parameter, value));
}

void Statement::bind(int parameter, double value)
{
    check(sqlite3_bind_double(m_handle.get(), parameter, value));
}

void Statement::bind(int parameter, std::string_view value)
{
    const char* data = value.data() != nullptr ? value.data() : "";
    check(sqlite3_bind_text(m_handle.get(), parameter, data, static_cast<int>(value.size()), SQLITE_STATIC));
}

bool Statement::step()
{
    const int code = sqlite3_step(m_handle.get());
    if (code == SQLITE_ROW)
        return true;
    if (code != SQLITE_DONE)
        fail(code);
    return false;
}

void Statement::run()
{
    const int code = sqlite3_step(m_handle.get());
    if (code != SQLITE_DONE && code != SQLITE_ROW) {
        sqlite3_reset(m_handle.get());
        fail(code);
    }
    sqlite3_reset(m_handle.get());
}

std::string_view Statement::text(int column) const
{
    const auto* data = reinterpret_cast<const char*>(sqlite3_column_text(m_handle.get(), column));
    return data != nullptr ? std::string_view(data, static_cast<std::size_t>(sqlite3_column_bytes(m_handle.get(), column))) : std::string_view();
}

void Statement::fail(int code) const
{
    throw SqliteError(code, sqlite3_errmsg(m_database));
}

}  // namespace zel
