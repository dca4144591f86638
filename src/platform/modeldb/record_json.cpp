#include "platform/modeldb/record_json.h"

#include "contract/nearest.h"
#include "contract/record.h"
#include "contract/table_handle.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <nlohmann/json.hpp>
#include <vector>

namespace zel {

namespace {

constexpr std::string_view keyMember = "key";
constexpr std::string_view kindMember = "kind";

/// Longest list that is believed: a limit against texts that would fill the memory many times over.
constexpr std::size_t listLimit = 10'000'000;

// Writing

Json elementToJson(const FieldInfo& field, const void* element)
{
    switch (field.type) {
    case FieldType::int32:
        return *static_cast<const std::int32_t*>(element);
    case FieldType::uint32:
        return *static_cast<const std::uint32_t*>(element);
    case FieldType::real:
        return *static_cast<const double*>(element);
    case FieldType::text:
        return *static_cast<const CString*>(element);
    case FieldType::record:
        return fieldsToJson(*field.inner, element);
    }
    return nullptr;
}

Json fieldToJson(const FieldInfo& field, const void* record)
{
    if (field.shape == FieldShape::one)
        return elementToJson(field, field.element(record, 0));
    Json elements = Json::array();
    for (std::size_t i = 0; i < field.sizeIn(record); ++i)
        elements.push_back(elementToJson(field, field.element(record, i)));
    return elements;
}

/// Objects search for a member before they add it; the fields of a record are known to be different.
void append(Json& object, std::string_view name, Json value)
{
    object.get_ref<Json::object_t&>().push_back({std::string(name), std::move(value)});
}

void appendFields(Json& object, const RecordInfo& info, const void* record, const FieldInfo* without, const FieldInfo* alsoWithout)
{
    for (const FieldInfo& field : info.fields) {
        if (&field != without && &field != alsoWithout)
            append(object, field.name, fieldToJson(field, record));
    }
}

// Reading

[[noreturn]] void wrongType(const std::string& path, const char* wanted, const Json& json)
{
    throw JsonFault(path, std::string("must be ") + wanted + ", not " + jsonKind(json));
}

double realFromJson(const Json& json, const std::string& path)
{
    if (!json.is_number())
        wrongType(path, "a number", json);
    const double value = json.get<double>();
    if (!std::isfinite(value))
        throw JsonFault(path, "must be a finite number");
    return value;
}

void readFields(const Json& json, const RecordInfo& info, void* record, const std::string& path);

void readElement(const Json& json, const FieldInfo& field, void* element, const std::string& path)
{
    switch (field.type) {
    case FieldType::int32:
        *static_cast<std::int32_t*>(element) =
            static_cast<std::int32_t>(integerFromJson(json, path, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()));
        break;
    case FieldType::uint32:
        *static_cast<std::uint32_t*>(element) = static_cast<std::uint32_t>(integerFromJson(json, path, 0, std::numeric_limits<std::uint32_t>::max()));
        break;
    case FieldType::real:
        *static_cast<double*>(element) = realFromJson(json, path);
        break;
    case FieldType::text:
        *static_cast<CString*>(element) = textFromJson(json, path);
        break;
    case FieldType::record:
        readFields(json, *field.inner, element, path);
        break;
    }
}

void readField(const Json& json, const FieldInfo& field, void* record, const std::string& path)
{
    if (field.shape == FieldShape::one) {
        readElement(json, field, field.element(record, 0), path);
        return;
    }
    if (!json.is_array())
        wrongType(path, "a list", json);
    const std::size_t most = field.shape == FieldShape::array ? field.count : listLimit;
    if (json.size() > most)
        throw JsonFault(path, "has " + std::to_string(json.size()) + " elements; at most " + std::to_string(most) + " are taken");
    if (field.list != nullptr) {
        field.list->resize(field.in(record), 0);  // what stood in a base must not show through
        field.list->resize(field.in(record), json.size());
    }
    for (std::size_t i = 0; i < json.size(); ++i)
        readElement(json[i], field, field.element(record, i), elementPath(path, i));
}

[[noreturn]] void unknownField(const RecordInfo& info, const std::string& name, const std::string& path)
{
    std::vector<std::string_view> names;
    for (const FieldInfo& field : info.fields)
        names.push_back(field.name);
    throw JsonFault(memberPath(path, name), "there is no such field" + didYouMean(name, names));
}

void readFields(const Json& json, const RecordInfo& info, void* record, const std::string& path)
{
    if (!json.is_object())
        wrongType(path, "an object", json);
    for (const auto& member : json.get_ref<const Json::object_t&>()) {
        const FieldInfo* field = info.find(member.first);
        if (field == nullptr)
            unknownField(info, member.first, path);
        readField(member.second, *field, record, memberPath(path, member.first));
    }
}

}  // namespace

Json fieldsToJson(const RecordInfo& info, const void* record)
{
    Json object = Json::object();
    appendFields(object, info, record, nullptr, nullptr);
    return object;
}

void fieldsFromJson(const RecordInfo& info, const Json& json, void* record, const std::string& path)
{
    readFields(json, info, record, path);
}

Json recordToJson(const TableInfo& table, int kind, Key key, const void* record)
{
    Json object = Json::object();
    if (table.shape == TableShape::kinded)
        append(object, kindMember, kind);
    if (table.shape != TableShape::single)
        append(object, keyMember, key);
    appendFields(object, *table.record, record, table.keyField, table.kindField);
    return object;
}

JsonRecord recordFromJson(const TableInfo& table, const Json& json, const std::string& path, const void* base)
{
    if (!json.is_object())
        wrongType(path, "an object", json);
    JsonRecord read;
    read.record = base != nullptr ? table.record->copy(base) : table.record->create();
    if (base == nullptr)
        convertDefaults(table, read.record.get());

    for (const auto& member : json.get_ref<const Json::object_t&>()) {
        const std::string at = memberPath(path, member.first);
        if (member.first == keyMember && table.shape != TableShape::single)
            read.key = keyFromJson(member.second, at);
        else if (member.first == kindMember && table.shape == TableShape::kinded)
            read.kind = kindFromJson(member.second, at);
        else if (const FieldInfo* field = table.record->find(member.first))
            readField(member.second, *field, read.record.get(), at);
        else
            unknownField(*table.record, member.first, path);
    }
    return read;
}

Key keyFromJson(const Json& json, const std::string& path)
{
    return static_cast<Key>(integerFromJson(json, path, 1, std::numeric_limits<Key>::max()));
}

int kindFromJson(const Json& json, const std::string& path)
{
    return static_cast<int>(integerFromJson(json, path, firstDesignKind, lastDesignKind));
}

long long integerFromJson(const Json& json, const std::string& path, long long least, long long most)
{
    if (!json.is_number())
        wrongType(path, "a whole number", json);
    const std::string range = "must be a whole number from " + std::to_string(least) + " to " + std::to_string(most);
    if (json.is_number_float() || (json.is_number_unsigned() && json.get<std::uint64_t>() > static_cast<std::uint64_t>(most)))
        throw JsonFault(path, range);
    const auto value = json.get<std::int64_t>();
    if (value < least || value > most)
        throw JsonFault(path, range);
    return value;
}

const std::string& textFromJson(const Json& json, const std::string& path)
{
    if (!json.is_string())
        wrongType(path, "a text", json);
    const auto& text = json.get_ref<const std::string&>();
    if (text.find('\0') != std::string::npos)
        throw JsonFault(path, "holds a NUL, which no text of the model may");
    return text;
}

}  // namespace zel
