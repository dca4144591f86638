#pragma once

#include "contract/records/lcom.h"
#include "contract/table.h"
#include "measure.h"
#include "platform/modeldb/file_format.h"

#include <vector>

namespace zel::bench {

/// Prepared inserts of load combinations into the tables of a model file with its settings, and nothing else. Returns their time [s].
inline double bareInsert(const std::filesystem::path& path, const std::vector<T_LCOM_D>& rows)
{
    sqlite3* database = nullptr;
    check(sqlite3_open(path.c_str(), &database));
    const SqlTable& table = sqlTable(tableInfo(Table::LCOM));
    const SqlTable& itemTable = table.lists.front();
    const CString settings =
        "PRAGMA locking_mode=EXCLUSIVE; PRAGMA journal_mode=WAL; PRAGMA synchronous=FULL; PRAGMA foreign_keys=ON; PRAGMA cache_size=-65536";
    for (const CString& statement : {settings, table.create, itemTable.create})
        check(sqlite3_exec(database, statement.c_str(), nullptr, nullptr, nullptr));
    sqlite3_stmt* insert = nullptr;
    sqlite3_stmt* insertItem = nullptr;
    check(sqlite3_prepare_v2(database, insertStatement(table).c_str(), -1, &insert, nullptr));
    check(sqlite3_prepare_v2(database, insertStatement(itemTable).c_str(), -1, &insertItem, nullptr));
    const double seconds = timed([&] {
        check(sqlite3_exec(database, "BEGIN", nullptr, nullptr, nullptr));
        int key = 0;
        for (const T_LCOM_D& row : rows) {
            sqlite3_bind_int(insert, 1, 1);
            sqlite3_bind_int64(insert, 2, ++key);
            sqlite3_bind_text(insert, 3, row.name.data(), static_cast<int>(row.name.size()), SQLITE_STATIC);
            sqlite3_bind_int(insert, 4, key);
            sqlite3_bind_int(insert, 5, row.active);
            sqlite3_bind_text(insert, 6, row.description.data(), static_cast<int>(row.description.size()), SQLITE_STATIC);
            check(sqlite3_step(insert));
            sqlite3_reset(insert);
            int place = 0;
            for (const T_LCOM_ITEM& item : row.items) {
                sqlite3_bind_int(insertItem, 1, 1);
                sqlite3_bind_int64(insertItem, 2, key);
                sqlite3_bind_int(insertItem, 3, ++place);
                sqlite3_bind_int(insertItem, 4, item.type);
                sqlite3_bind_int64(insertItem, 5, item.key);
                sqlite3_bind_double(insertItem, 6, item.factor);
                check(sqlite3_step(insertItem));
                sqlite3_reset(insertItem);
            }
        }
        check(sqlite3_exec(database, "COMMIT", nullptr, nullptr, nullptr));
    });
    sqlite3_finalize(insert);
    sqlite3_finalize(insertItem);
    sqlite3_close(database);
    return seconds;
}

}  // namespace zel::bench
