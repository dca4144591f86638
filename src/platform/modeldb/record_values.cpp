#include "platform/modeldb/record_values.h"

#include "contract/letter_case.h"
#include "contract/units.h"
#include "platform/modeldb/flat_layout.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <type_traits>
#include <xxhash.h>

namespace zel {

namespace {

template <class Record, class Visit> void eachReal(const FlatLayout& layout, Record* record, Visit&& visit)
{
    for (const FlatColumn& column : layout.columns) {
        if (column.type == FieldType::real)
            visit(column, column.in<double>(record));
    }
    for (const FlatList& list : layout.lists) {
        const auto size = list.operations->size(list.in(record));
        for (std::size_t i = 0; i < size; ++i) {
            if constexpr (std::is_const_v<Record>)
                eachReal(*list.element, list.operations->at(list.in(record), i), visit);
            else
                eachReal(*list.element, list.operations->edit(list.in(record), i), visit);
        }
    }
}

bool layoutHasUnits(const FlatLayout& layout)
{
    return std::any_of(layout.columns.begin(), layout.columns.end(),
                       [](const FlatColumn& column) { return column.type == FieldType::real && column.unit != Unit::none; }) ||
        std::any_of(layout.lists.begin(), layout.lists.end(), [](const FlatList& list) { return layoutHasUnits(*list.element); });
}

/// Bytes of a row in a fixed order, gathered for the hash.
class RowBytes {
public:
    void clear() { m_bytes.clear(); }

    template <class T> void put(T value) { m_bytes.append(reinterpret_cast<const char*>(&value), sizeof value); }

    void put(const FlatLayout& layout, const void* record)
    {
        for (const FlatColumn& column : layout.columns)
            put(column, record);
        for (const FlatList& list : layout.lists) {
            const auto size = list.operations->size(list.in(record));
            put(static_cast<std::uint64_t>(size));
            for (std::size_t i = 0; i < size; ++i)
                put(*list.element, list.operations->at(list.in(record), i));
        }
    }

    [[nodiscard]] std::uint64_t hash() const { return XXH3_64bits(m_bytes.data(), m_bytes.size()); }

private:
    void put(const FlatColumn& column, const void* record)
    {
        switch (column.type) {
        case FieldType::int32:
        case FieldType::uint32:
            put(column.in<std::uint32_t>(record));
            break;
        case FieldType::real:
            put(column.in<double>(record) + 0.0);  // SQLite gives -0.0 back as 0.0
            break;
        case FieldType::text: {
            const auto& text = column.in<CString>(record);
            put(static_cast<std::uint64_t>(text.size()));
            m_bytes += text;
            break;
        }
        case FieldType::record:
            break;  // flattened into columns of its own
        }
    }

    std::string m_bytes;
};

}  // namespace

void convertRecord(const TableInfo& table, void* record, const T_UNIT_INDEX& from, const T_UNIT_INDEX& to)
{
    eachReal(flatLayout(*table.record), record, [&](const FlatColumn& column, double& value) {
        const int unit = column.unit == Unit::byRecord ? table.record->unitOf(record, column.field, column.element) : column.unit;
        if (unit != Unit::none)  // extended precision: there and back, a value keeps every digit that "%.15g" shows
            value = static_cast<double>(static_cast<long double>(value) * unitFactor(unit, from) / unitFactor(unit, to));
    });
}

bool hasUnits(const TableInfo& table)
{
    return layoutHasUnits(flatLayout(*table.record));
}

std::string_view notFiniteField(const TableInfo& table, const void* record)
{
    std::string_view found;
    eachReal(flatLayout(*table.record), record, [&](const FlatColumn& column, const double& value) {
        if (found.empty() && !std::isfinite(value))
            found = column.field;
    });
    return found;
}

const CString& recordName(const TableInfo& table, const void* record)
{
    static const CString none;
    return table.nameField != nullptr ? *static_cast<const CString*>(table.nameField->in(record)) : none;
}

NameFault nameFault(const TableInfo& table, const CString& name)
{
    const bool blank = name.find_first_not_of(" \t\r\n") == CString::npos;
    if ((table.names == NameRule::filled && blank) || (table.names == NameRule::notEmpty && name.empty()))
        return NameFault::notFilled;
    return name.size() > longestName && characterCount(name) > longestName ? NameFault::tooLong : NameFault::none;
}

std::size_t characterCount(std::string_view text)
{
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

std::int32_t recordPlace(const TableInfo& table, const void* record)
{
    return table.sequenceField != nullptr ? *static_cast<const std::int32_t*>(table.sequenceField->in(record)) : 0;
}

RecordPtr withKeptFields(const TableInfo& table, RecordPtr record, int kind, Key key, std::int32_t place)
{
    std::shared_ptr<void> changed;
    const auto keep = [&](const FieldInfo* field, auto value) {
        if (field == nullptr)
            return;
        using Value = decltype(value);
        const void* current = changed ? changed.get() : record.get();
        if (*static_cast<const Value*>(field->in(current)) == value)
            return;
        if (!changed)  // records are made as changeable objects; whoever holds one alone may still change it
            changed = record.use_count() == 1 ? std::const_pointer_cast<void>(std::move(record)) : table.record->copy(record.get());
        *static_cast<Value*>(field->in(changed.get())) = value;
    };
    keep(table.sequenceField, place);
    keep(table.keyField, key);
    keep(table.kindField, static_cast<std::int32_t>(kind));
    return changed ? RecordPtr(changed) : record;
}

std::uint64_t rowHash(const TableInfo& table, int kind, Key key, const void* record)
{
    thread_local RowBytes bytes;
    bytes.clear();
    bytes.put(kind);
    bytes.put(key);
    bytes.put(flatLayout(*table.record), record);
    return bytes.hash();
}

}  // namespace zel
