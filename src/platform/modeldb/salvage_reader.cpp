#include "platform/modeldb/salvage_reader.h"

#include "contract/record.h"
#include "platform/modeldb/record_values.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zel {

namespace {

/// Keys that are asked for one by one between the records before a page that can't be read and those behind it.
constexpr Key longestGap = 1'000'000;

template <class Integer> bool fits(std::int64_t value)
{
    return value >= std::numeric_limits<Integer>::min() && value <= std::numeric_limits<Integer>::max();
}

bool isUtf8(std::string_view text)
{
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text[i]);
        const std::size_t length = lead < 0x80 ? 1 : lead >> 5U == 0x06 ? 2 : lead >> 4U == 0x0E ? 3 : lead >> 3U == 0x1E ? 4 : 0;
        if (length == 0 || lead == 0xC0 || lead == 0xC1 || i + length > text.size())
            return false;
        for (std::size_t k = 1; k < length; ++k) {
            if ((static_cast<unsigned char>(text[i + k]) & 0xC0U) != 0x80U)
                return false;
        }
        i += length;
    }
    return true;
}

/// Puts a column's value into the object. Returns what is wrong with it; empty if nothing is.
CString take(const Statement& statement, int place, const FlatColumn& column, void* object)
{
    const int stored = statement.type(place);
    switch (column.type) {
    case FieldType::int32:
    case FieldType::uint32: {
        const std::int64_t value = statement.integer(place);
        if (stored != SQLITE_INTEGER)
            return "is not a whole number";
        if (column.type == FieldType::int32 ? !fits<std::int32_t>(value) : !fits<std::uint32_t>(value))
            return std::to_string(value) + " is out of range";
        if (column.type == FieldType::int32)
            column.in<std::int32_t>(object) = static_cast<std::int32_t>(value);
        else
            column.in<std::uint32_t>(object) = static_cast<std::uint32_t>(value);
        return {};
    }
    case FieldType::real: {
        const double value = statement.real(place);
        if (stored != SQLITE_FLOAT && stored != SQLITE_INTEGER)
            return "is not a number";
        if (!std::isfinite(value))
            return "is not a finite number";
        column.in<double>(object) = value;
        return {};
    }
    case FieldType::text: {
        const std::string_view value = statement.text(place);
        if (stored != SQLITE_TEXT)
            return "is not a text";
        if (!isUtf8(value) || value.find('\0') != std::string_view::npos)
            return "holds bytes that are no text";
        column.in<CString>(object) = value;
        return {};
    }
    case FieldType::record:
        break;  // flattened into columns of its own
    }
    return {};
}

CString inWords(const SqliteError& error)
{
    return CString("can't be read (") + error.what() + ")";
}

}  // namespace

/// A record or an element of one of its lists.
struct SalvageReader::Object {
    void* values = nullptr;
    RowAddress address;
    CString path;  ///< of its fields: empty, or "items[3]."
    ReadRecord* record = nullptr;
};

void SalvageReader::fault(const TableInfo& table, const StoredRow& row, const CString& field, const CString& what)
{
    m_faults.push_back({table.code, row.kind, table.shape == TableShape::single ? 0 : row.key, field, what, true});
}

void SalvageReader::faultOfTable(const TableInfo& table, const CString& field, const CString& what)
{
    m_faults.push_back({table.code, 0, 0, field, what, true});
}

std::vector<ReadRecord> SalvageReader::read(const TableInfo& table)
{
    const SqlTable& sql = sqlTable(table);
    std::vector<ReadRecord> records;
    for (const int kind : kindsOf(table))
        readKind(table, kind, records);
    try {
        const CString outside =
            table.shape == TableShape::kinded ? "kind<" + std::to_string(firstDesignKind) + " or kind>" + std::to_string(lastDesignKind) : CString("0");
        if (const std::int64_t count = m_database.number("select count(*) from \"" + sql.name + "\" where " + outside); count > 0)
            faultOfTable(table, "kind", std::to_string(count) + " records are of a design kind that there is not");
        for (ReadRecord& record : records)
            readLists(table, sql, {record.row.record.get(), rowAddress(table, record.row.kind, record.row.key), {}, &record});
        tellLostRows(table, sql);
    } catch (const SqliteError& error) {
        faultOfTable(table, {}, inWords(error));
    }
    return records;
}

void SalvageReader::readKind(const TableInfo& table, int kind, std::vector<ReadRecord>& records)
{
    const SqlTable& sql = sqlTable(table);
    const std::size_t given = table.shape == TableShape::kinded ? 1 : 0;
    const auto walk = [&](SqlOrder order, std::vector<ReadRecord>& found) -> CString {
        try {
            Statement statement(m_database, selectStatement(sql, given, order));
            if (given != 0)
                statement.bind(1, static_cast<std::int64_t>(kind));
            while (statement.step())
                found.push_back(recordAt(statement, table, kind));
            return {};
        } catch (const SqliteError& error) {
            return inWords(error);
        }
    };
    std::vector<ReadRecord> front;
    const std::size_t faultsBefore = m_faults.size();
    const CString stopped = walk(SqlOrder::ascending, front);
    if (!stopped.empty()) {
        // A page in the middle can't be read: those behind it come from the other end, those between one by one.
        std::vector<ReadRecord> back;
        walk(SqlOrder::descending, back);
        const Key last = front.empty() ? 0 : front.back().row.key;
        std::erase_if(back, [&](const ReadRecord& record) { return record.row.key <= last; });
        readGap(table, kind, last, back.empty() ? std::nullopt : std::optional(back.back().row.key), front);
        front.insert(front.end(), std::make_move_iterator(back.rbegin()), std::make_move_iterator(back.rend()));
        m_faults.insert(m_faults.begin() + static_cast<std::ptrdiff_t>(faultsBefore), {table.code, kind, 0, {}, "a part " + stopped, true});
    }
    records.insert(records.end(), std::make_move_iterator(front.begin()), std::make_move_iterator(front.end()));
}

void SalvageReader::readGap(const TableInfo& table, int kind, Key after, std::optional<Key> before, std::vector<ReadRecord>& records)
{
    const SqlTable& sql = sqlTable(table);
    const Key end = before.value_or(after > std::numeric_limits<Key>::max() - longestGap ? std::numeric_limits<Key>::max() : after + longestGap);
    if (end - after > longestGap)
        return;
    Statement statement(m_database, selectStatement(sql, sql.address.size(), SqlOrder::ascending));
    for (Key key = after; ++key < end;) {
        try {
            const RowAddress address = rowAddress(table, kind, key);
            for (std::size_t i = 0; i < address.size; ++i)
                statement.bind(static_cast<int>(i) + 1, address.parts[i]);
            if (statement.step())
                records.push_back(recordAt(statement, table, kind));
        } catch (const SqliteError&) {
            // its page is the one that can't be read
        }
        statement.reset();
    }
}

ReadRecord SalvageReader::recordAt(const Statement& statement, const TableInfo& table, int kind)
{
    const SqlTable& sql = sqlTable(table);
    ReadRecord record;
    StoredRow& row = record.row;
    row.kind = kind;
    const int keyPlace = table.shape == TableShape::kinded ? 1 : 0;
    const std::int64_t key = statement.integer(keyPlace);
    row.record = table.record->create();
    for (const FlatList& list : sql.layout->lists)
        list.operations->resize(list.in(row.record.get()), 0);
    if (!fits<Key>(key) || key == 0 || (table.shape == TableShape::single && key != 1)) {
        record.usable = false;
        faultOfTable(table, "key", std::to_string(key) + " is no key of a record");
        return record;
    }
    row.key = static_cast<Key>(key);
    setAddressFields(table, row);
    readColumns(statement, table, sql, {row.record.get(), {}, {}, &record}, keyPlace + 1);
    return record;
}

void SalvageReader::readColumns(const Statement& statement, const TableInfo& table, const SqlTable& sql, const Object& object, int place)
{
    for (std::size_t i = 0; i < sql.layout->columns.size(); ++i) {
        if (sql.skipped[i])
            continue;
        const CString what = take(statement, place++, sql.layout->columns[i], object.values);
        if (what.empty())
            continue;
        object.record->usable = false;
        fault(table, object.record->row, object.path + sql.layout->columns[i].name, what);
    }
}

void SalvageReader::readLists(const TableInfo& table, const SqlTable& sql, const Object& owner)
{
    for (const SqlTable& child : sql.lists)
        readList(table, child, sql.layout->lists[child.list], owner);
}

void SalvageReader::readList(const TableInfo& table, const SqlTable& child, const FlatList& list, const Object& owner)
{
    const auto bad = [&](const CString& what) {
        owner.record->usable = false;
        fault(table, owner.record->row, owner.path + list.name, what);
    };
    try {
        Statement statement(m_database, selectStatement(child, owner.address.size, SqlOrder::ascending));
        for (std::size_t i = 0; i < owner.address.size; ++i)
            statement.bind(static_cast<int>(i) + 1, owner.address.parts[i]);
        std::size_t size = 0;
        while (statement.step()) {
            if (statement.integer(static_cast<int>(owner.address.size)) != static_cast<std::int64_t>(size))
                return bad("place " + std::to_string(size) + " is missing");
            list.operations->resize(list.in(owner.values), ++size);
            const CString path = owner.path + list.name + "[" + std::to_string(size - 1) + "].";
            readColumns(statement, table, child, {list.operations->edit(list.in(owner.values), size - 1), {}, path, owner.record},
                        static_cast<int>(child.address.size()));
        }
        for (std::size_t i = 0; i < size && !child.lists.empty(); ++i) {
            RowAddress address = owner.address;
            address.push(static_cast<std::int64_t>(i));
            const CString path = owner.path + list.name + "[" + std::to_string(i) + "].";
            readLists(table, child, {list.operations->edit(list.in(owner.values), i), address, path, owner.record});
        }
    } catch (const SqliteError& error) {
        bad(inWords(error));
    }
}

/// Rows of lists whose record is gone, list by list.
void SalvageReader::tellLostRows(const TableInfo& table, const SqlTable& parent)
{
    for (const SqlTable& child : parent.lists) {
        CString same;
        for (std::size_t i = 0; i < parent.address.size(); ++i)
            same += (i > 0 ? " and p.\"" : "p.\"") + parent.address[i] + "\"=c.\"" + child.address[i] + "\"";
        const std::int64_t count =
            m_database.number("select count(*) from \"" + child.name + "\" c where not exists (select 1 from \"" + parent.name + "\" p where " + same + ")");
        if (count > 0)
            faultOfTable(table, parent.layout->lists[child.list].name, std::to_string(count) + " rows belong to no record");
        tellLostRows(table, child);
    }
}

}  // namespace zel
