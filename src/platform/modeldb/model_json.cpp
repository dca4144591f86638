#include "platform/modeldb/model_json.h"

#include "contract/name_text.h"
#include "contract/nearest.h"
#include "contract/units.h"
#include "platform/modeldb/record_json.h"
#include "platform/modeldb/record_values.h"

#include <algorithm>
#include <limits>
#include <map>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <unordered_map>

namespace zel {

namespace {

// Heads

void checkHead(const Json& model)
{
    if (!model.is_object())
        throw JsonFault("a model must be an object, not " + std::string(jsonKind(model)));
    const auto format = model.find("format");
    if (format != model.end() && *format != Json(modelJsonFormat))
        throw JsonFault("format", "must be \"" + std::string(modelJsonFormat) + "\"; this is no model");
    const auto version = model.find("version");
    if (version != model.end() && integerFromJson(*version, "version", 1, std::numeric_limits<int>::max()) != modelJsonVersion)
        throw JsonFault("version", "is newer than " + std::to_string(modelJsonVersion) + ", which this program reads; take a newer program");
}

template <class NameAt> int unitFromJson(const Json& units, const char* member, int preset, int count, NameAt nameAt)
{
    const auto unit = units.find(member);
    if (unit == units.end())
        return preset;
    const std::string path = memberPath("units", member);
    const std::string& name = textFromJson(*unit, path);
    std::string known;
    for (int i = 0; i < count; ++i) {
        if (name == nameAt(i))
            return i;
        known += std::string(i > 0 ? ", " : "") + nameAt(i);
    }
    throw JsonFault(path, "must be one of " + known);
}

// Rows

/// What has been read of one kind of a table, with the places in the text for the faults.
struct Reading {
    TableRows rows;
    std::vector<std::size_t> places;
    std::unordered_map<Key, std::size_t> keys;  // to the place
    std::unordered_map<std::string, std::size_t> names;
};

void checkName(const TableInfo& table, const void* record, std::size_t place, Reading& reading)
{
    if (table.names == NameRule::none)
        return;
    const CString& name = recordName(table, record);
    const std::string path = memberPath(elementPath(std::string(table.code), place), "name");
    const NameFault fault = nameFault(table, name);
    if (fault == NameFault::notFilled)
        throw JsonFault(path, table.names == NameRule::filled ? "must not be empty or blank" : "must not be empty");
    if (fault == NameFault::tooLong)
        throw JsonFault(path, "is longer than " + std::to_string(longestName) + " characters");
    if (name.empty())
        return;
    const auto [known, fresh] = reading.names.emplace(foldedName(name), place);
    if (!fresh)
        throw JsonFault(path, "\"" + name + "\" stands already at " + elementPath(std::string(table.code), known->second) + "; names differ in more than case");
}

void addRow(const TableInfo& table, const Json& json, std::size_t place, std::map<int, Reading>& kinds)
{
    const std::string path = elementPath(std::string(table.code), place);
    JsonRecord read = recordFromJson(table, json, path);
    const int kind = table.shape == TableShape::kinded && read.kind == 0 ? firstDesignKind : read.kind;
    Reading& reading = kinds[kind];
    if (read.key != 0) {
        const auto [known, fresh] = reading.keys.emplace(read.key, place);
        if (!fresh)
            throw JsonFault(memberPath(path, "key"), std::to_string(read.key) + " stands already at " + elementPath(std::string(table.code), known->second));
    }
    checkName(table, read.record.get(), place, reading);
    reading.rows.keys.push_back(read.key);
    reading.rows.records.push_back(std::move(read.record));
    reading.places.push_back(place);
}

/// Gives keys to the records that came without one.
void assignKeys(const TableInfo& table, Reading& reading)
{
    Key largest = 0;
    for (const Key key : reading.rows.keys)
        largest = std::max(largest, key);
    for (std::size_t i = 0; i < reading.rows.keys.size(); ++i) {
        if (reading.rows.keys[i] != 0)
            continue;
        if (largest == std::numeric_limits<Key>::max())
            throw JsonFault(memberPath(elementPath(std::string(table.code), reading.places[i]), "key"), "is missing, and no higher key is left to give");
        reading.rows.keys[i] = ++largest;
    }
}

void readTable(const TableInfo& table, const Json& json, std::vector<TableRows>& all)
{
    const std::string code(table.code);
    if (table.shape == TableShape::single) {
        all.push_back({&table, 0, {1}, {recordFromJson(table, json, code).record}});
        return;
    }
    if (!json.is_array())
        throw JsonFault(code, "must be a list of records, not " + std::string(jsonKind(json)));
    std::map<int, Reading> kinds;
    for (std::size_t i = 0; i < json.size(); ++i)
        addRow(table, json[i], i, kinds);
    for (auto& entry : kinds) {
        assignKeys(table, entry.second);
        entry.second.rows.table = &table;
        entry.second.rows.kind = entry.first;
        all.push_back(std::move(entry.second.rows));
    }
}

[[noreturn]] void unknownTable(const std::string& name)
{
    std::vector<std::string_view> codes;
    for (const TableInfo& table : tableList())
        codes.push_back(table.code);
    throw JsonFault(name, "there is no such table" + didYouMean(name, codes));
}

// Printing

void printRow(ITable& table, int kind, Key key, std::ostream& out)
{
    out << printJson(recordToJson(table.info(), kind, key, table.find(kind, key).get()));
}

void printRows(ITable& table, std::ostream& out)
{
    const char* separator = "\n  ";
    out << "[";
    for (const int kind : kindsOf(table.info())) {
        for (const Key key : table.keys(kind)) {
            out << separator;
            printRow(table, kind, key, out);
            separator = ",\n  ";
        }
    }
    out << "]";
}

}  // namespace

T_UNIT_INDEX unitsOfModelJson(const Json& model)
{
    checkHead(model);
    T_UNIT_INDEX index;
    const auto units = model.find("units");
    if (units == model.end())
        return index;
    if (!units->is_object())
        throw JsonFault("units", "must be an object with length and force, not " + std::string(jsonKind(*units)));
    for (const auto& member : units->get_ref<const Json::object_t&>()) {
        if (member.first != "length" && member.first != "force")
            throw JsonFault(memberPath("units", member.first), "is unknown; units have length and force");
    }
    index.length = unitFromJson(*units, "length", index.length, lengthUnitCount, lengthUnitName);
    index.force = unitFromJson(*units, "force", index.force, forceUnitCount, forceUnitName);
    return index;
}

std::vector<TableRows> rowsOfModelJson(const Json& model)
{
    checkHead(model);
    std::vector<TableRows> rows;
    for (const auto& member : model.get_ref<const Json::object_t&>()) {
        const std::string& name = member.first;
        if (name == "format" || name == "version" || name == "units")
            continue;
        const TableInfo* table = findTable(name);
        if (table == nullptr)
            unknownTable(name);
        readTable(*table, member.second, rows);
    }
    return rows;
}

void storeRows(CDBDoc& document, const std::vector<TableRows>& rows)
{
    document.beginChange("Load model");
    for (const TableRows& part : rows) {
        if (!part.keys.empty() && document.table(part.table->table).add(part.kind, part.keys, part.records, false) == 0) {
            document.endChange(0);
            throw JsonFault(std::string(part.table->code), "the model refused these records");
        }
    }
    if (document.endChange(1) == 0)
        throw JsonFault("the model could not be written");
}

void printModelJson(CDBDoc& document, std::ostream& out)
{
    T_UNIT_INDEX units;
    document.GetUnitCtrl()->GetUnitIndexCurrent(units);
    out << "{\"format\": \"" << modelJsonFormat << "\", \"version\": " << modelJsonVersion << ", \"units\": {\"length\": \"" << lengthUnitName(units.length)
        << "\", \"force\": \"" << forceUnitName(units.force) << "\"}";
    for (const TableInfo& info : tableList()) {
        ITable& table = document.table(info.table);
        if (info.shape == TableShape::single && table.count(0) == 0)  // never written: absent, which is not the same as its defaults
            continue;
        out << ",\n \"" << info.code << "\": ";
        if (info.shape == TableShape::single)
            printRow(table, 0, 1, out);
        else
            printRows(table, out);
    }
    out << "}\n";
}

}  // namespace zel
