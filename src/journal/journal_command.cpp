#include "journal/journal_command.h"

#include "platform/modeldb/record_json.h"

#include <limits>

namespace zel {

namespace {

constexpr int mostRows = std::numeric_limits<int>::max();

int integerOf(const Json& json, const std::string& path)
{
    return static_cast<int>(integerFromJson(json, path, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

}  // namespace

JournalCommand::JournalCommand(std::string_view line) : m_json(parseJson(line))
{
    if (!m_json.is_object())
        throw JsonFault("a command must be an object, not " + std::string(jsonKind(m_json)));
    if (!has("do"))
        throw JsonFault("do", "is missing; it names the command");
    m_name = text("do");
}

bool JournalCommand::has(std::string_view field) const
{
    return m_json.find(std::string(field)) != m_json.end();
}

const Json& JournalCommand::at(std::string_view field) const
{
    const auto found = m_json.find(std::string(field));
    if (found == m_json.end())
        throw JsonFault(std::string(field), "is missing");
    return *found;
}

const std::string& JournalCommand::text(std::string_view field) const
{
    return textFromJson(at(field), std::string(field));
}

bool JournalCommand::flag(std::string_view field) const
{
    const Json& json = at(field);
    if (!json.is_boolean())
        throw JsonFault(std::string(field), std::string("must be true or false, not ") + jsonKind(json));
    return json.get<bool>();
}

int JournalCommand::integer(std::string_view field) const
{
    return integerOf(at(field), std::string(field));
}

int JournalCommand::integer(std::string_view field, int preset) const
{
    return has(field) ? integer(field) : preset;
}

Key JournalCommand::key(std::string_view field) const
{
    return keyFromJson(at(field), std::string(field));
}

std::vector<Key> JournalCommand::keys(std::string_view field) const
{
    std::vector<Key> keys;
    for (const Json& element : list(field))
        keys.push_back(keyFromJson(element, elementPath(std::string(field), keys.size())));
    return keys;
}

std::vector<std::string> JournalCommand::texts(std::string_view field) const
{
    std::vector<std::string> texts;
    for (const Json& element : list(field))
        texts.push_back(textFromJson(element, elementPath(std::string(field), texts.size())));
    return texts;
}

std::vector<int> JournalCommand::rows(std::string_view field) const
{
    std::vector<int> rows;
    for (const Json& element : list(field))
        rows.push_back(static_cast<int>(integerFromJson(element, elementPath(std::string(field), rows.size()), 0, mostRows)));
    return rows;
}

UserValue JournalCommand::value(std::string_view field) const
{
    const Json& json = at(field);
    if (json.is_boolean())
        return json.get<bool>();
    if (json.is_number())
        return json.get<double>();
    if (json.is_string())
        return textFromJson(json, std::string(field));
    throw JsonFault(std::string(field), std::string("must be a text, a number, or true or false, not ") + jsonKind(json));
}

const Json& JournalCommand::list(std::string_view field) const
{
    const Json& json = at(field);
    if (!json.is_array())
        throw JsonFault(std::string(field), std::string("must be a list, not ") + jsonKind(json));
    return json;
}

}  // namespace zel
