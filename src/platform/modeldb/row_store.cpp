#include "platform/modeldb/row_store.h"

#include "contract/long_run.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace zel {

namespace {

int bindColumns(Statement& statement, const SqlTable& table, const void* record, int parameter)
{
    for (std::size_t i = 0; i < table.layout->columns.size(); ++i) {
        if (table.skipped[i])
            continue;
        const FlatColumn& column = table.layout->columns[i];
        switch (column.type) {
        case FieldType::int32:
            statement.bind(parameter++, static_cast<std::int64_t>(column.in<std::int32_t>(record)));
            break;
        case FieldType::uint32:
            statement.bind(parameter++, static_cast<std::int64_t>(column.in<std::uint32_t>(record)));
            break;
        case FieldType::real:
            statement.bind(parameter++, column.in<double>(record));
            break;
        case FieldType::text:
            statement.bind(parameter++, std::string_view(column.in<CString>(record)));
            break;
        case FieldType::record:
            break;  // flattened into columns of its own
        }
    }
    return parameter;
}

template <class Integer> Integer narrow(std::int64_t value)
{
    if (value < std::numeric_limits<Integer>::min() || value > std::numeric_limits<Integer>::max())
        throw DamagedRows("a number is out of its range");
    return static_cast<Integer>(value);
}

void readColumns(const Statement& statement, const SqlTable& table, void* record, int place)
{
    for (std::size_t i = 0; i < table.layout->columns.size(); ++i) {
        if (table.skipped[i])
            continue;
        const FlatColumn& column = table.layout->columns[i];
        switch (column.type) {
        case FieldType::int32:
            column.in<std::int32_t>(record) = narrow<std::int32_t>(statement.integer(place));
            break;
        case FieldType::uint32:
            column.in<std::uint32_t>(record) = narrow<std::uint32_t>(statement.integer(place));
            break;
        case FieldType::real:
            column.in<double>(record) = statement.real(place);
            break;
        case FieldType::text:
            column.in<CString>(record) = statement.text(place);
            break;
        case FieldType::record:
            break;
        }
        ++place;
    }
}

bool sameScalars(const FlatLayout& layout, const void* left, const void* right)
{
    return std::all_of(layout.columns.begin(), layout.columns.end(), [&](const FlatColumn& column) {
        switch (column.type) {
        case FieldType::real:
            return column.in<double>(left) == column.in<double>(right);
        case FieldType::text:
            return column.in<CString>(left) == column.in<CString>(right);
        default:
            return column.in<std::uint32_t>(left) == column.in<std::uint32_t>(right);
        }
    });
}

bool sameLists(const FlatLayout& layout, const void* left, const void* right);

bool sameList(const FlatList& list, const void* left, const void* right)
{
    const auto size = list.operations->size(list.in(left));
    if (size != list.operations->size(list.in(right)))
        return false;
    for (std::size_t i = 0; i < size; ++i) {
        const void* a = list.operations->at(list.in(left), i);
        const void* b = list.operations->at(list.in(right), i);
        if (!sameScalars(*list.element, a, b) || !sameLists(*list.element, a, b))
            return false;
    }
    return true;
}

bool sameLists(const FlatLayout& layout, const void* left, const void* right)
{
    return std::all_of(layout.lists.begin(), layout.lists.end(), [&](const FlatList& list) { return sameList(list, left, right); });
}

/// Whether the row does not stay where it is.
bool moves(const Step& step)
{
    return !step.after || step.oldKey != step.newKey;
}

}  // namespace

bool RowAddress::operator==(const RowAddress& other) const
{
    return size == other.size && std::equal(parts, parts + size, other.parts);
}

int RowAddress::bindTo(Statement& statement, int parameter) const
{
    for (std::size_t i = 0; i < size; ++i)
        statement.bind(parameter++, parts[i]);
    return parameter;
}

void setAddressFields(const TableInfo& table, const StoredRow& row)
{
    if (table.kindField != nullptr)
        *static_cast<std::int32_t*>(table.kindField->in(row.record.get())) = row.kind;
    if (table.keyField != nullptr)
        *static_cast<Key*>(table.keyField->in(row.record.get())) = row.key;
}

RowAddress rowAddress(const TableInfo& table, int kind, Key key)
{
    RowAddress address;
    if (table.shape == TableShape::kinded)
        address.push(kind);
    address.push(key);
    return address;
}

Statement& RowStore::prepared(std::unique_ptr<Statement>& statement, const CString& sql)
{
    if (!statement)
        statement = std::make_unique<Statement>(m_database, sql);
    return *statement;
}

void RowStore::insert(const SqlTable& table, const RowAddress& address, const void* record)
{
    std::unique_ptr<Statement>& held = m_statements[&table].insert;
    Statement& statement = held ? *held : prepared(held, insertStatement(table));
    bindColumns(statement, table, record, address.bindTo(statement));
    statement.run();
    insertLists(table, address, record);
}

void RowStore::insertLists(const SqlTable& table, const RowAddress& address, const void* record)
{
    for (const SqlTable& child : table.lists)
        insertList(child, table.layout->lists[child.list], address, record);
}

void RowStore::insertList(const SqlTable& child, const FlatList& list, const RowAddress& address, const void* record)
{
    const auto size = list.operations->size(list.in(record));
    for (std::size_t i = 0; i < size; ++i) {
        RowAddress place = address;
        place.push(static_cast<std::int64_t>(i));
        insert(child, place, list.operations->at(list.in(record), i));
    }
}

void RowStore::update(const SqlTable& table, const RowAddress& address, const void* before, const void* after)
{
    if (!sameScalars(*table.layout, before, after)) {
        Statement& statement = prepared(m_statements[&table].update, updateStatement(table));
        address.bindTo(statement, bindColumns(statement, table, after, 1));
        statement.run();
        if (m_database.changes() != 1)
            throw DamagedRows("a row to change is not there");
    }
    for (const SqlTable& child : table.lists) {
        const FlatList& list = table.layout->lists[child.list];
        if (sameList(list, before, after))
            continue;
        removeList(child, list, {address, static_cast<Key>(address.parts[address.size - 1]), {before}, false});
        insertList(child, list, address, after);
    }
}

void RowStore::remove(const SqlTable& table, const Run& run, std::size_t rows)
{
    Statements& statements = m_statements[&table];
    Statement& statement =
        run.all ? prepared(statements.removeAll, deleteStatement(table, 0)) : prepared(statements.remove, deleteStatement(table, run.first.size));
    if (!run.all)
        statement.bind(run.first.bindTo(statement), static_cast<std::int64_t>(run.last));
    statement.run();
    if (static_cast<std::size_t>(m_database.changes()) != rows)
        throw DamagedRows("rows to delete are not there");
}

void RowStore::removeLists(const SqlTable& table, const Run& run)
{
    for (const SqlTable& child : table.lists)
        removeList(child, table.layout->lists[child.list], run);
}

/// The lists go before what they belong to, inner ones first.
void RowStore::removeList(const SqlTable& child, const FlatList& list, const Run& run)
{
    Run elements{run.first, run.last, {}, run.all};
    for (const void* record : run.records) {
        for (std::size_t i = 0; i < list.operations->size(list.in(record)); ++i)
            elements.records.push_back(list.operations->at(list.in(record), i));
    }
    removeLists(child, elements);
    remove(child, run, elements.records.size());
}

void RowStore::removeMoved(const TableInfo& info, const SqlTable& table, const Batch& batch, std::size_t stored)
{
    std::vector<const Step*> leaving;
    for (const Step& step : batch.steps) {
        if (step.before && moves(step))
            leaving.push_back(&step);
    }
    const auto place = [](const Step* step) { return std::pair(step->kind, step->oldKey); };
    std::sort(leaving.begin(), leaving.end(), [&](const Step* left, const Step* right) { return place(left) < place(right); });
    const bool all = leaving.size() == stored;
    for (auto step = leaving.begin(); step != leaving.end();) {
        Run run{rowAddress(info, (*step)->kind, (*step)->oldKey), (*step)->oldKey, {(*step)->before.get()}, all};
        const int kind = (*step)->kind;
        for (++step; step != leaving.end() && (all || place(*step) == std::pair(kind, run.last + 1)); ++step) {
            run.last = (*step)->oldKey;
            run.records.push_back((*step)->before.get());
        }
        removeLists(table, run);
        remove(table, run, run.records.size());
    }
}

void RowStore::write(const Batch& batch, std::size_t stored)
{
    const TableInfo& info = tableInfo(batch.table);
    const SqlTable& table = sqlTable(info);
    removeMoved(info, table, batch, stored);
    std::size_t done = 0;
    for (const Step& step : batch.steps) {
        reportRun(RunPhase::storing, ++done, batch.steps.size());
        if (!step.after)
            continue;
        const RowAddress address = rowAddress(info, step.kind, step.newKey);
        if (step.before && !moves(step))
            update(table, address, step.before.get(), step.after.get());
        else
            insert(table, address, step.after.get());
    }
}

namespace {

/// Lists first: a table that owns no rows any more is emptied without a look at each row's lists.
void empty(Database& database, const SqlTable& table)
{
    for (const SqlTable& list : table.lists)
        empty(database, list);
    database.run("delete from \"" + table.name + "\"");
}

}  // namespace

void RowStore::removeAll(const TableInfo& table)
{
    empty(m_database, sqlTable(table));
}

std::vector<StoredRow> RowStore::read(const TableInfo& table)
{
    const SqlTable& sql = sqlTable(table);
    const bool kinded = table.shape == TableShape::kinded;

    std::vector<StoredRow> rows;
    std::vector<Owner> owners;
    Statement statement(m_database, selectStatement(sql));
    while (statement.step()) {
        StoredRow row;
        int place = 0;
        if (kinded)
            row.kind = narrow<std::int32_t>(statement.integer(place++));
        row.key = narrow<Key>(statement.integer(place++));
        if (row.key == 0 || (kinded && !isDesignKind(row.kind)) || (table.shape == TableShape::single && row.key != 1))
            throw DamagedRows("a row has an impossible key");
        row.record = table.record->create();
        setAddressFields(table, row);
        readColumns(statement, sql, row.record.get(), place);
        for (const FlatList& list : sql.layout->lists)
            list.operations->resize(list.in(row.record.get()), 0);
        if (!sql.lists.empty())
            owners.push_back({rowAddress(table, row.kind, row.key), row.record.get()});
        rows.push_back(std::move(row));
        reportRun(RunPhase::reading, rows.size());
    }
    readLists(sql, owners);
    return rows;
}

void RowStore::readLists(const SqlTable& table, const std::vector<Owner>& owners)
{
    for (const SqlTable& child : table.lists) {
        const FlatList& list = table.layout->lists[child.list];
        Statement statement(m_database, selectStatement(child));
        auto owner = owners.begin();
        std::size_t size = 0;
        while (statement.step()) {
            RowAddress address;
            for (std::size_t i = 0; i + 1 < child.address.size(); ++i)
                address.push(statement.integer(static_cast<int>(i)));
            for (; owner != owners.end() && !(owner->address == address); ++owner)
                size = 0;
            const auto place = static_cast<std::size_t>(statement.integer(static_cast<int>(address.size)));
            if (owner == owners.end() || place != size)
                throw DamagedRows("a list has lost its record or one of its places");
            reportRun(RunPhase::reading, static_cast<std::size_t>(owner - owners.begin()) + 1, owners.size());
            list.operations->resize(list.in(owner->object), ++size);
            readColumns(statement, child, list.operations->edit(list.in(owner->object), place), static_cast<int>(child.address.size()));
        }
        if (child.lists.empty())
            continue;
        std::vector<Owner> elements;
        for (const Owner& each : owners) {
            const auto count = list.operations->size(list.in(each.object));
            for (std::size_t i = 0; i < count; ++i) {
                Owner element{each.address, list.operations->edit(list.in(each.object), i)};
                element.address.push(static_cast<std::int64_t>(i));
                elements.push_back(element);
            }
        }
        readLists(child, elements);
    }
}

}  // namespace zel
