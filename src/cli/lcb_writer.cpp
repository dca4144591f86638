#include "cli/lcb_writer.h"

#include "cli/shortest.h"
#include "contract/tables/static_load_case_table.h"

#include <algorithm>
#include <ostream>
#include <stdexcept>
#include <string>
#include <unordered_map>

namespace zel::cli {

namespace {

constexpr std::size_t longestLine = 1019;  // bytes that a reader of such files takes

/// A text as one field: what would end the field or the line becomes a blank, and a field is never empty.
std::string field(const std::string& text)
{
    std::string made = text;
    std::replace_if(
        made.begin(), made.end(), [](unsigned char letter) { return letter == ',' || letter < ' '; }, ' ');
    made.erase(made.find_last_not_of(' ') + 1);
    made.erase(0, made.find_first_not_of(' '));
    return made.empty() || made == "**" ? "-" : made;
}

/// Cuts a text to so many bytes, never inside a character.
std::string cut(std::string text, std::size_t bytes)
{
    if (text.size() <= bytes)
        return text;
    while (bytes > 0 && (static_cast<unsigned char>(text[bytes]) & 0xC0U) == 0x80U)
        --bytes;
    return text.substr(0, bytes);
}

using Places = std::unordered_map<Key, std::size_t>;

Places placesOfCases()
{
    std::vector<Key> keys;
    CDataStld().GetKeyList(keys);
    Places places;
    for (std::size_t i = 0; i < keys.size(); ++i)
        places[keys[i]] = i + 1;
    return places;
}

void printCombination(const PrintedCombination& combination, const Places& places, std::ostream& out)
{
    const T_LCOM_D& record = *combination.record;
    if (record.items.empty())
        throw std::runtime_error("combination \"" + record.name + "\" has no load case; an lcb file can't hold it");
    const std::string head = std::to_string(combination.number) + ", " + field(record.name);
    std::string line = head;
    for (const T_LCOM_ITEM& item : record.items) {
        const auto place = places.find(item.key);
        if (item.type != 1 || place == places.end())
            throw std::runtime_error("combination \"" + record.name + "\" refers to something that is no static load case; an lcb file can't hold it");
        const std::string pair = ", " + std::to_string(place->second) + ", " + shortest(item.factor);
        if (line.size() + pair.size() > longestLine) {
            out << line << '\n';
            line = head;
        }
        line += pair;
    }
    const std::string comment = ", ** ";
    if (line.size() + comment.size() < longestLine)
        line += comment + cut(field(record.description), longestLine - line.size() - comment.size());
    out << line << '\n';
}

}  // namespace

void printLcb(const EachCombination& combinations, std::ostream& out)
{
    const Places places = placesOfCases();
    combinations([&](const PrintedCombination& each) { printCombination(each, places, out); });
}

}  // namespace zel::cli
