#pragma once

#include "contract/text.h"
#include "contract/unit_types.h"

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <type_traits>
#include <vector>

/// How records describe themselves.
///
/// A record is a plain struct with public members, defaults in the members, and one static `visit` that names each field
/// once, in the documented order:
///
///     template <class F> static void visit(F& field)
///     {
///         field("name", &T_STLD_D::name);
///         field("selfWeightFactor", &T_STLD_D::selfWeightFactor, Unit::none);
///     }
///
/// A member is an int32, a uint32, a double, a text or a record, one of them, a `std::array` or a `std::vector` of them.
/// `describe<Record>()` turns `visit` into a table that storage, JSON, unit conversion and test printing walk with plain
/// loops. A field name that has left the program is in files and journals: retire a field, never rename it.
namespace zel {

struct RecordInfo;

enum class FieldType { int32, uint32, real, text, record };
enum class FieldShape { one, array, list };

/// The operations of one `std::vector` type, on untyped pointers to it.
struct ListOperations {
    std::size_t (*size)(const void* list);
    const void* (*at)(const void* list, std::size_t index);
    void* (*edit)(void* list, std::size_t index);
    void (*resize)(void* list, std::size_t size);
};

/// One field of a record.
struct FieldInfo {
    std::string_view name;
    FieldType type = FieldType::int32;
    FieldShape shape = FieldShape::one;
    int unit = Unit::none;                 ///< unit type of a real field; Unit::byRecord where the record decides
    std::size_t offset = 0;                ///< of the member in the record [bytes]
    std::size_t count = 1;                 ///< places of an array, 1 otherwise
    std::size_t stride = 0;                ///< size of one element [bytes]
    const RecordInfo* inner = nullptr;     ///< of a field of records
    const ListOperations* list = nullptr;  ///< of a list

    [[nodiscard]] const void* in(const void* record) const { return static_cast<const std::byte*>(record) + offset; }
    [[nodiscard]] void* in(void* record) const { return static_cast<std::byte*>(record) + offset; }

    /// Number of elements that `record` holds in this field.
    [[nodiscard]] std::size_t sizeIn(const void* record) const { return list != nullptr ? list->size(in(record)) : count; }

    /// Element `index` of this field in `record`; 0 is the member itself for a field of shape `one`.
    [[nodiscard]] const void* element(const void* record, std::size_t index) const
    {
        return list != nullptr ? list->at(in(record), index) : static_cast<const std::byte*>(in(record)) + index * stride;
    }
    [[nodiscard]] void* element(void* record, std::size_t index) const
    {
        return list != nullptr ? list->edit(in(record), index) : static_cast<std::byte*>(in(record)) + index * stride;
    }
};

/// A record type: its fields in order, and how to make, copy and compare one without knowing the type.
struct RecordInfo {
    std::vector<FieldInfo> fields;
    std::shared_ptr<void> (*create)();  ///< with defaults
    std::shared_ptr<void> (*copy)(const void* record);
    bool (*equal)(const void* left, const void* right);

    /// Unit type of an element of a field with Unit::byRecord, asked of the outermost record: a field inside a list or an inner
    /// record is named by its own name, and `element` counts within that field.
    int (*unitOf)(const void* record, std::string_view field, std::size_t element);

    /// The field of that name; null if there is none.
    [[nodiscard]] const FieldInfo* find(std::string_view name) const
    {
        for (const FieldInfo& field : fields) {
            if (field.name == name)
                return &field;
        }
        return nullptr;
    }
};

template <class Record> const RecordInfo& describe();

namespace detail {

template <class T> struct Shape {
    using Element = T;
    static constexpr FieldShape shape = FieldShape::one;
    static constexpr std::size_t count = 1;
};
template <class T, std::size_t N> struct Shape<std::array<T, N>> {
    using Element = T;
    static constexpr FieldShape shape = FieldShape::array;
    static constexpr std::size_t count = N;
};
template <class T> struct Shape<std::vector<T>> {
    using Element = T;
    static constexpr FieldShape shape = FieldShape::list;
    static constexpr std::size_t count = 1;
};

template <class T> constexpr FieldType fieldType()
{
    if constexpr (std::same_as<T, std::int32_t>)
        return FieldType::int32;
    else if constexpr (std::same_as<T, std::uint32_t>)
        return FieldType::uint32;
    else if constexpr (std::same_as<T, double>)
        return FieldType::real;
    else if constexpr (std::same_as<T, CString>)
        return FieldType::text;
    else {
        static_assert(std::is_class_v<T>, "a record field is an int32, a uint32, a double, a text or a record");
        return FieldType::record;
    }
}

template <class T> const ListOperations* listOperations()
{
    using List = std::vector<T>;
    static constexpr ListOperations operations{
        [](const void* list) { return static_cast<const List*>(list)->size(); },
        [](const void* list, std::size_t index) -> const void* { return &(*static_cast<const List*>(list))[index]; },
        [](void* list, std::size_t index) -> void* { return &(*static_cast<List*>(list))[index]; },
        [](void* list, std::size_t size) { static_cast<List*>(list)->resize(size); },
    };
    return &operations;
}

/// Where a member lies in its record [bytes]. It is measured on an object, so no record needs to be standard-layout.
template <class Record, class Member> std::size_t offsetOf(const Record& sample, Member Record::*member)
{
    return static_cast<std::size_t>(reinterpret_cast<const std::byte*>(&(sample.*member)) - reinterpret_cast<const std::byte*>(&sample));
}

/// Collects the fields of one record type; the visitor of `describe`.
template <class Record> struct Describer {
    RecordInfo& info;
    const Record& sample;

    template <class Member> void operator()(std::string_view name, Member Record::*member, int unit = Unit::none)
    {
        using Element = typename Shape<Member>::Element;
        FieldInfo field;
        field.name = name;
        field.type = fieldType<Element>();
        field.shape = Shape<Member>::shape;
        field.unit = unit;
        field.offset = offsetOf(sample, member);
        field.count = Shape<Member>::count;
        field.stride = sizeof(Element);
        if constexpr (fieldType<Element>() == FieldType::record)
            field.inner = &describe<Element>();
        if constexpr (Shape<Member>::shape == FieldShape::list)
            field.list = listOperations<Element>();
        info.fields.push_back(field);
    }
};

}  // namespace detail

/// The description of a record type, made once from its `visit`.
template <class Record> const RecordInfo& describe()
{
    static const RecordInfo info = [] {
        RecordInfo made{};
        const Record sample{};
        detail::Describer<Record> describer{made, sample};
        Record::visit(describer);
        made.create = []() -> std::shared_ptr<void> { return std::make_shared<Record>(); };
        made.copy = [](const void* record) -> std::shared_ptr<void> { return std::make_shared<Record>(*static_cast<const Record*>(record)); };
        made.equal = [](const void* left, const void* right) { return *static_cast<const Record*>(left) == *static_cast<const Record*>(right); };
        made.unitOf = [](const void* record, std::string_view field, std::size_t element) {
            if constexpr (requires(const Record& r) { r.unitOf(field, element); })
                return static_cast<const Record*>(record)->unitOf(field, element);
            else {
                (void)record;
                (void)field;
                (void)element;
                return Unit::none;
            }
        };
        return made;
    }();
    return info;
}

/// The description of a member of a record; null for one that `visit` leaves out.
template <class Record, class Member> const FieldInfo* fieldOf(Member Record::*member)
{
    const std::size_t offset = detail::offsetOf(Record{}, member);
    for (const FieldInfo& field : describe<Record>().fields) {
        if (field.offset == offset)
            return &field;
    }
    return nullptr;
}

}  // namespace zel
