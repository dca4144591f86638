#include "platform/modeldb/sqlite.h"

namespace zel {

Database::Database(const std::filesystem::path& path, int flags)
{
    sqlite3* handle = nullptr;
    const int code = sqlite3_open_v2(path.string().c_str(), &handle, flags, nullptr);
    m_handle.reset(handle);
    if (code != SQLITE_OK)
        throw SqliteError(code, handle != nullptr ? sqlite3_errmsg(handle) : "out of memory");
    sqlite3_extended_result_codes(handle, 1);
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
