#include "platform/modeldb/stored_state.h"

#include "contract/units.h"
#include "platform/modeldb/file_format.h"
#include "platform/modeldb/record_values.h"

#include <map>
#include <utility>

namespace zel {

namespace {

/// What SQLite itself puts into a schema when somebody has it count the rows (ANALYZE), which changes no model.
bool isStatistics(std::string_view statement)
{
    return statement == "CREATE TABLE sqlite_stat1(tbl,idx,stat)" || statement == "CREATE TABLE sqlite_stat4(tbl,idx,neq,nlt,ndlt,sample)";
}

}  // namespace

void checkSchema(Database& database)
{
    // Only what the program itself makes, by its exact text: a trigger or a view would run with it, whatever its name.
    std::map<CString, CString> expected;
    for (SchemaObject& object : schemaObjects())
        expected.emplace(std::move(object.name), std::move(object.text));
    Statement statement(database, "select type, name, tbl_name, sql from sqlite_schema");
    while (statement.step()) {
        const CString name(statement.text(1));
        if (isStatistics(statement.text(3)))
            continue;
        const auto found = expected.find(name);
        if (found == expected.end() || statement.text(0) != "table" || statement.text(2) != name || statement.text(3) != found->second)
            throw DamagedRows("it holds \"" + printable(name) + "\", which is not of a model");
        expected.erase(found);
    }
    if (!expected.empty())
        throw DamagedRows("tables are missing");
}

StoredState readState(Database& database)
{
    StoredState state;
    Statement checks(database, "select code, row_count, row_hash from " + CString(checkTable));
    while (checks.step())
        state.checks[CString(checks.text(0))] = {checks.integer(1), static_cast<std::uint64_t>(checks.integer(2))};

    TableCheck found;
    Statement settings(database, "select name, value from " + CString(settingTable));
    while (settings.step()) {
        const CString name(settings.text(0));
        const CString& value = state.settings[name] = CString(settings.text(1));
        ++found.rows;
        found.hash += settingHash(name, value);
    }
    state.units.length = lengthUnitIndex(state.settings["length"]);
    state.units.force = forceUnitIndex(state.settings["force"]);
    if (found != state.checks[CString(settingTable)] || state.units.length < 0 || state.units.force < 0)
        throw DamagedRows("its settings are not as they were stored");
    return state;
}

std::vector<StoredRow> readChecked(RowStore& rows, const TableInfo& table, const StoredState& state)
{
    const CString code(table.code);
    std::vector<StoredRow> read;
    try {
        read = rows.read(table);
    } catch (const DamagedRows& fault) {
        throw DamagedRows("in table " + code + " " + fault.what());
    }
    TableCheck found{static_cast<std::int64_t>(read.size()), 0};
    for (const StoredRow& row : read)
        found.hash += rowHash(table, row.kind, row.key, row.record.get());
    const auto stored = state.checks.find(code);
    if (stored == state.checks.end())
        throw DamagedRows("its list of tables is not complete");
    if (found != stored->second)
        throw DamagedRows("the records of table " + code + " are not as they were stored");
    return read;
}

void checkWhole(Database& database)
{
    checkStructure(database);
    checkSchema(database);
    const StoredState state = readState(database);
    RowStore rows(database);
    for (const TableInfo& table : tableList())
        readChecked(rows, table, state);
}

void checkStructure(Database& database)
{
    if (database.text("PRAGMA integrity_check(1)") != "ok")
        throw DamagedRows("its structure is broken");
}

}  // namespace zel
