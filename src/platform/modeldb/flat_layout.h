#pragma once

#include "contract/record.h"
#include "contract/text.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace zel {

struct FlatLayout;

/// One scalar of a record, at a fixed place in its memory: a plain field, a field of an inner record or a place of an array.
struct FlatColumn {
    CString name;            ///< "name", "base_area", "value_3": the SQL column
    std::string_view field;  ///< its own field's name, and the place in that field
    std::size_t element = 0;
    FieldType type = FieldType::int32;
    std::size_t offset = 0;  ///< from the start of the record [bytes]
    int unit = Unit::none;

    template <class T> [[nodiscard]] const T& in(const void* record) const
    {
        return *reinterpret_cast<const T*>(static_cast<const std::byte*>(record) + offset);
    }
    template <class T> [[nodiscard]] T& in(void* record) const { return *reinterpret_cast<T*>(static_cast<std::byte*>(record) + offset); }
};

/// One list of a record, with the layout of its elements. A list of scalars has elements of one column, "value".
struct FlatList {
    CString name;
    std::size_t offset = 0;
    const ListOperations* operations = nullptr;
    std::unique_ptr<FlatLayout> element;

    [[nodiscard]] const void* in(const void* record) const { return static_cast<const std::byte*>(record) + offset; }
    [[nodiscard]] void* in(void* record) const { return static_cast<std::byte*>(record) + offset; }
};

/// A record type flattened: its scalars and its lists. What storage, hashing and unit conversion walk.
struct FlatLayout {
    std::vector<FlatColumn> columns;
    std::vector<FlatList> lists;
};

/// The layout of a record type, made once.
const FlatLayout& flatLayout(const RecordInfo& info);

}  // namespace zel
