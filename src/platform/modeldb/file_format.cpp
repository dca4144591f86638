#include "platform/modeldb/file_format.h"

#include <algorithm>
#include <memory>
#include <unordered_map>
#include <xxhash.h>

namespace zel {

namespace {

CString quoted(const CString& name)
{
    return "\"" + name + "\"";
}

const char* sqlType(FieldType type)
{
    switch (type) {
    case FieldType::real:
        return "REAL";
    case FieldType::text:
        return "TEXT";
    default:
        return "INTEGER";
    }
}

CString joined(const std::vector<CString>& parts, const char* between)
{
    CString text;
    for (const CString& part : parts)
        text += (text.empty() ? "" : between) + part;
    return text;
}

std::vector<CString> columnNames(const SqlTable& table)
{
    std::vector<CString> names;
    for (const CString& column : table.address)
        names.push_back(quoted(column));
    for (std::size_t i = 0; i < table.layout->columns.size(); ++i) {
        if (!table.skipped[i])
            names.push_back(quoted(table.layout->columns[i].name));
    }
    return names;
}

CString conditions(const SqlTable& table, std::size_t addressColumns)
{
    std::vector<CString> parts;
    for (std::size_t i = 0; i < addressColumns; ++i)
        parts.push_back(quoted(table.address[i]) + "=?");
    return joined(parts, " and ");
}

/// @param parent  the table whose rows own the list elements; null for a record table
void complete(SqlTable& table, const SqlTable* parent)
{
    std::vector<CString> lines;
    const bool rowid = parent == nullptr && table.address.size() == 1;  // a record table under one key
    for (const CString& column : table.address)
        lines.push_back(quoted(column) + " INTEGER " + (rowid ? "PRIMARY KEY" : "NOT NULL"));
    for (std::size_t i = 0; i < table.layout->columns.size(); ++i) {
        const FlatColumn& column = table.layout->columns[i];
        const bool address = std::find(table.address.begin(), table.address.end(), column.name) != table.address.end();
        table.skipped.push_back(address && parent == nullptr);
        if (!table.skipped.back())
            lines.push_back(quoted(column.name) + " " + sqlType(column.type) + " NOT NULL");
    }
    std::vector<CString> key;
    for (const CString& column : table.address)
        key.push_back(quoted(column));
    if (!rowid)
        lines.push_back("PRIMARY KEY(" + joined(key, ", ") + ")");
    if (parent != nullptr) {
        std::vector<CString> parentKey;
        for (const CString& column : parent->address)
            parentKey.push_back(quoted(column));
        key.pop_back();
        lines.push_back("FOREIGN KEY(" + joined(key, ", ") + ") REFERENCES " + quoted(parent->name) + "(" + joined(parentKey, ", ") + ") ON DELETE CASCADE");
    }
    table.create = "CREATE TABLE " + quoted(table.name) + "(\n    " + joined(lines, ",\n    ") + "\n) STRICT" + (rowid ? "" : ", WITHOUT ROWID");

    for (std::size_t i = 0; i < table.layout->lists.size(); ++i) {
        const FlatList& list = table.layout->lists[i];
        SqlTable child;
        child.name = table.name + "_" + list.name;
        child.layout = list.element.get();
        child.list = i;
        if (parent == nullptr) {
            for (const CString& column : table.address)
                child.address.push_back(column == "key" ? "parent" : "parent_" + column);
            child.address.emplace_back("seq");
        } else {
            child.address = table.address;
            child.address.push_back("seq" + std::to_string(table.address.size()));
        }
        complete(child, &table);
        table.lists.push_back(std::move(child));
    }
}

void collect(const SqlTable& table, std::string_view code, std::vector<SchemaObject>& objects)
{
    objects.push_back({table.name, table.create, code});
    for (const SqlTable& list : table.lists)
        collect(list, code, objects);
}

}  // namespace

const SqlTable& sqlTable(const TableInfo& table)
{
    static const std::unordered_map<std::string_view, SqlTable> tables = [] {
        std::unordered_map<std::string_view, SqlTable> made;
        for (const TableInfo& each : tableList()) {
            SqlTable& sql = made[each.code];
            sql.name = CString(each.code);
            if (each.shape == TableShape::kinded)
                sql.address.emplace_back("kind");
            sql.address.emplace_back("key");
            sql.layout = &flatLayout(*each.record);
            complete(sql, nullptr);
        }
        return made;
    }();
    return tables.at(table.code);
}

std::vector<SchemaObject> schemaObjects()
{
    std::vector<SchemaObject> objects{
        {CString(settingTable),
         "CREATE TABLE " + CString(settingTable) + "(\n    name TEXT NOT NULL PRIMARY KEY,\n    value TEXT NOT NULL\n) STRICT, WITHOUT ROWID",
         {}},
        {CString(checkTable),
         "CREATE TABLE " + CString(checkTable) +
             "(\n    code TEXT NOT NULL PRIMARY KEY,\n    row_count INTEGER NOT NULL,\n    row_hash INTEGER NOT NULL\n) STRICT, WITHOUT ROWID",
         {}},
        {CString(saveTable), "CREATE TABLE " + CString(saveTable) + "(\n    session INTEGER NOT NULL,\n    changes INTEGER NOT NULL\n) STRICT", {}},
    };
    for (const TableInfo& table : tableList())
        collect(sqlTable(table), table.code, objects);
    return objects;
}

std::uint64_t settingHash(const CString& name, const CString& value)
{
    const CString row = name + '\0' + value;
    return XXH3_64bits(row.data(), row.size());
}

CString insertStatement(const SqlTable& table)
{
    const std::vector<CString> names = columnNames(table);
    return "insert into " + quoted(table.name) + "(" + joined(names, ", ") + ") values(" + joined(std::vector<CString>(names.size(), "?"), ", ") + ")";
}

CString selectStatement(const SqlTable& table, std::size_t addressColumns, SqlOrder order)
{
    std::vector<CString> columns;
    for (const CString& column : table.address)
        columns.push_back(quoted(column) + (order == SqlOrder::descending ? " desc" : ""));
    const CString condition = addressColumns > 0 ? " where " + conditions(table, addressColumns) : CString();
    return "select " + joined(columnNames(table), ", ") + " from " + quoted(table.name) + condition + " order by " + joined(columns, ", ");
}

CString updateStatement(const SqlTable& table)
{
    std::vector<CString> parts;
    for (std::size_t i = 0; i < table.layout->columns.size(); ++i) {
        if (!table.skipped[i])
            parts.push_back(quoted(table.layout->columns[i].name) + "=?");
    }
    return "update " + quoted(table.name) + " set " + joined(parts, ", ") + " where " + conditions(table, table.address.size());
}

CString deleteStatement(const SqlTable& table, std::size_t addressColumns)
{
    if (addressColumns == 0)
        return "delete from " + quoted(table.name);
    const CString given = conditions(table, addressColumns - 1);
    return "delete from " + quoted(table.name) + " where " + given + (given.empty() ? "" : " and ") + quoted(table.address[addressColumns - 1]) +
        " between ? and ?";
}

}  // namespace zel
