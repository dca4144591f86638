#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <string>

namespace zel::test {

/// What plain SQLite answers about a file: a line for each row, columns between bars.
inline std::string query(const std::filesystem::path& file, const std::string& sql)
{
    sqlite3* database = nullptr;
    EXPECT_EQ(sqlite3_open(std::filesystem::absolute(file).c_str(), &database), SQLITE_OK);
    std::string result;
    char* error = nullptr;
    sqlite3_exec(
        database, sql.c_str(),
        [](void* into, int count, char** values, char**) {
            auto& text = *static_cast<std::string*>(into);
            for (int i = 0; i < count; ++i)
                text += std::string(i == 0 ? "" : "|") + (values[i] != nullptr ? values[i] : "NULL");
            text += "\n";
            return 0;
        },
        &result, &error);
    EXPECT_EQ(error, nullptr) << error;
    sqlite3_free(error);
    sqlite3_close(database);
    return result;
}

}  // namespace zel::test
