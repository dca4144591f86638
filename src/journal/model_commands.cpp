#include "journal/model_commands.h"

#include "contract/design_kind.h"
#include "contract/nearest.h"
#include "contract/table_operations.h"
#include "contract/units.h"
#include "platform/modeldb/record_json.h"

#include <array>
#include <functional>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <utility>

namespace zel {

namespace {

constexpr Key singleKey = 1;

/// One `db` command with the table that it names.
struct TableCommand {
    const JournalCommand& command;
    ITable& table;

    [[nodiscard]] const TableInfo& info() const { return table.info(); }
    [[nodiscard]] std::string code() const { return std::string(info().code); }
    [[nodiscard]] bool isSingle() const { return info().shape == TableShape::single; }
    [[nodiscard]] bool isKinded() const { return info().shape == TableShape::kinded; }

    /// The design kind that the command or its record names, else the first.
    [[nodiscard]] int kind() const
    {
        if (!isKinded())
            return 0;
        if (command.has("kind"))
            return kindFromJson(command.at("kind"), "kind");
        if (command.has("record") && command.at("record").is_object() && command.at("record").contains("kind"))
            return kindFromJson(command.at("record").at("kind"), "record.kind");
        return firstDesignKind;
    }

    /// All kinds, or the one that the command names.
    [[nodiscard]] std::pair<int, int> kinds() const
    {
        return isKinded() && !command.has("kind") ? std::pair(firstDesignKind, lastDesignKind) : std::pair(kind(), kind());
    }

    void needNames() const
    {
        if (info().names == NameRule::none)
            throw JsonFault("name", "records of " + code() + " have no name; address them by key");
    }

    [[nodiscard]] Key keyNamed(const std::string& name) const
    {
        needNames();
        return table.keyByName(kind(), name);
    }

    /// The key that `key` or `name` gives; 0 where there is no record of that name.
    [[nodiscard]] Key address() const
    {
        if (command.has("key") == command.has("name"))
            throw JsonFault("key", "one of key and name is needed");
        return command.has("key") ? command.key("key") : keyNamed(command.text("name"));
    }

    [[nodiscard]] JsonRecord record(const void* base) const { return recordFromJson(info(), command.at("record"), "record", base); }
};

void needMany(const TableCommand& on)
{
    if (on.isSingle())
        throw JsonFault("op", on.code() + " holds one record; use single, put and clear");
}

void needSingle(const TableCommand& on)
{
    if (!on.isSingle())
        throw JsonFault("op", on.code() + " holds many records; use list, get, add, modify and delete");
}

Json listRecords(const TableCommand& on)
{
    Json records = Json::array();
    for (int kind = on.kinds().first; kind <= on.kinds().second; ++kind) {
        for (const Key key : on.table.keys(kind))
            records.push_back(recordToJson(on.info(), kind, key, on.table.find(kind, key).get()));
    }
    return records;
}

Json countRecords(const TableCommand& on)
{
    int count = 0;
    for (int kind = on.kinds().first; kind <= on.kinds().second; ++kind)
        count += on.table.count(kind);
    return count;
}

Json recordUnder(const TableCommand& on, Key key)
{
    const RecordPtr found = on.table.find(on.kind(), key);
    return found ? recordToJson(on.info(), on.kind(), key, found.get()) : Json();
}

Json getRecord(const TableCommand& on)
{
    needMany(on);
    return recordUnder(on, on.address());
}

/// The key that a command and its record agree on; 0 when neither says one.
Key agreedKey(Key said, Key recordSays)
{
    if (said != 0 && recordSays != 0 && said != recordSays)
        throw JsonFault("record.key", "is " + std::to_string(recordSays) + ", but the command says " + std::to_string(said));
    return said != 0 ? said : recordSays;
}

void needSameKind(const TableCommand& on, const JsonRecord& read)
{
    if (read.kind != 0 && read.kind != on.kind())
        throw JsonFault("record.kind", "is " + std::to_string(read.kind) + ", but the command says " + std::to_string(on.kind()));
}

/// One record for each of several keys, replacing what stands there.
Json addForKeys(const TableCommand& on, const JsonRecord& read)
{
    if (!offers(on.info(), Op::AddForKeys))
        throw JsonFault("keys", on.code() + " takes each record under a key of its own; use key");
    if (on.command.has("key") || read.key != 0)
        throw JsonFault("keys", "stands beside key; give one of them");
    const std::vector<Key> keys = on.command.keys("keys");
    if (keys.empty())
        throw JsonFault("keys", "is empty; a record needs a key");
    return on.table.add(on.kind(), keys, std::vector<RecordPtr>(keys.size(), read.record), true);
}

Json addRecord(const TableCommand& on)
{
    needMany(on);
    const JsonRecord read = on.record(nullptr);
    needSameKind(on, read);
    if (on.command.has("keys"))
        return addForKeys(on, read);
    const Key key = agreedKey(on.command.has("key") ? on.command.key("key") : 0, read.key);
    return on.table.add(on.kind(), {key}, {read.record}, false);
}

/// What the record leaves out stays as it is stored.
Json modifyRecord(const TableCommand& on)
{
    needMany(on);
    const Key key = on.address();
    const RecordPtr stored = key != 0 ? on.table.find(on.kind(), key) : nullptr;
    const JsonRecord read = on.record(stored.get());
    needSameKind(on, read);
    if (key == 0)
        return refuseMissing(on.info(), on.command.text("name"));
    const Key newKey = on.command.has("newKey") ? on.command.key("newKey") : key;
    if (read.key != 0 && read.key != key && read.key != newKey)
        agreedKey(key, read.key);
    return on.table.modify(on.kind(), {key}, {newKey}, {read.record});
}

Json deleteRecords(const TableCommand& on)
{
    needMany(on);
    std::vector<Key> keys;
    std::vector<std::string> names;
    if (on.command.has("keys"))
        keys = on.command.keys("keys");
    else if (on.command.has("names"))
        names = on.command.texts("names");
    else if (on.command.has("name"))
        names = {on.command.text("name")};
    else if (on.command.has("key"))
        keys = {on.command.key("key")};
    else
        throw JsonFault("key", "one of key, name, keys and names is needed");
    for (const std::string& name : names) {
        const Key key = on.keyNamed(name);
        if (key == 0)
            return refuseMissing(on.info(), name);
        keys.push_back(key);
    }
    return on.table.remove(on.kind(), keys);
}

Json changeSequence(const TableCommand& on)
{
    if (on.info().sequenceField == nullptr)
        throw JsonFault("op", on.code() + " has no sequence of its own; it stands in the order of its keys");
    Key after = 0;
    if (on.command.has("after") && on.command.at("after") != Json(0))
        after = on.command.key("after");
    return on.table.changeSequence(on.kind(), on.command.keys("keys"), after);
}

Json putRecord(const TableCommand& on)
{
    needSingle(on);
    return on.table.add(0, {singleKey}, {on.record(nullptr).record}, true);
}

Json readSingle(const TableCommand& on)
{
    needSingle(on);
    return recordUnder(on, singleKey);
}

Json clearSingle(const TableCommand& on)
{
    needSingle(on);
    return on.table.remove(0, {singleKey});
}

struct Operation {
    std::string_view name;
    Json (*run)(const TableCommand&);
};

constexpr std::array<Operation, 10> operations{{
    {"list", listRecords},
    {"get", getRecord},
    {"count", countRecords},
    {"add", addRecord},
    {"modify", modifyRecord},
    {"delete", deleteRecords},
    {"sequence", changeSequence},
    {"put", putRecord},
    {"single", readSingle},
    {"clear", clearSingle},
}};

/// The entry of a list that bears a name.
/// @throws JsonFault  that proposes the nearest one
template <class Entries> const auto& entryNamed(const Entries& entries, const std::string& name, const std::string& field, const std::string& what)
{
    std::vector<std::string_view> names;
    for (const auto& entry : entries) {
        if (entry.name == name)
            return entry;
        names.push_back(entry.name);
    }
    throw JsonFault(field, "there is no " + what + " \"" + name + "\"" + didYouMean(name, names));
}

const TableInfo& tableNamed(const std::string& code)
{
    const TableInfo* found = findTable(code);
    if (found != nullptr)
        return *found;
    std::vector<std::string_view> codes;
    for (const TableInfo& table : tableList())
        codes.push_back(table.code);
    throw JsonFault("table", "there is no table \"" + code + "\"" + didYouMean(code, codes));
}

int unitNamed(const JournalCommand& command, const char* field, int (*indexOf)(std::string_view), int preset)
{
    if (!command.has(field))
        return preset;
    const int index = indexOf(command.text(field));
    if (index < 0)
        throw JsonFault(field, "there is no unit \"" + command.text(field) + "\"");
    return index;
}

struct ObjectKind {
    std::string_view name;
    std::vector<Key> T_SELECTION::*keys;
};

constexpr std::array<ObjectKind, 5> objectKinds{{
    {"points", &T_SELECTION::points},
    {"lines", &T_SELECTION::lines},
    {"areas", &T_SELECTION::areas},
    {"nodes", &T_SELECTION::nodes},
    {"elements", &T_SELECTION::elements},
}};

}  // namespace

Json actOnTable(CDBDoc& document, const JournalCommand& command)
{
    const Operation& operation = entryNamed(operations, command.text("op"), "op", "operation");
    const TableInfo& info = tableNamed(command.text("table"));
    return operation.run({command, document.table(info.table)});
}

Json changeUnits(CDBDoc& document, const JournalCommand& command)
{
    if (!command.has("length") && !command.has("force"))
        throw JsonFault("length", "one of length and force is needed");
    T_UNIT_INDEX index;
    document.GetUnitCtrl()->GetUnitIndexCurrent(index);
    index.length = unitNamed(command, "length", lengthUnitIndex, index.length);
    index.force = unitNamed(command, "force", forceUnitIndex, index.force);
    return document.GetUnitCtrl()->SetUnitIndexCurrent(index, 1);
}

T_SELECTION selectionFromJson(const Json& json, const std::string& field)
{
    if (!json.is_object())
        throw JsonFault(field, std::string("must be an object, not ") + jsonKind(json));
    T_SELECTION selection;
    for (const auto& member : json.get_ref<const Json::object_t&>()) {
        const std::string path = memberPath(field, member.first);
        std::vector<Key>& keys = selection.*entryNamed(objectKinds, member.first, field, "kind of object").keys;
        if (!member.second.is_array())
            throw JsonFault(path, std::string("must be a list, not ") + jsonKind(member.second));
        for (const Json& key : member.second)
            keys.push_back(keyFromJson(key, elementPath(path, keys.size())));
    }
    return selection;
}

Json selectionToJson(const T_SELECTION& selection)
{
    Json json = Json::object();
    for (const ObjectKind& kind : objectKinds) {
        if (!(selection.*kind.keys).empty())
            json[std::string(kind.name)] = selection.*kind.keys;
    }
    return json;
}

}  // namespace zel
