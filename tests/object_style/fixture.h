#pragma once

#include "contract/tables/load_combination_table.h"
#include "object_style/jhauto_gen_loadcomb.h"
#include "modeldb/model_fixture.h"

#include <charconv>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace zel::test {

using Lines = std::vector<std::string>;

/// Shortest decimal text of a 32-bit number.
inline std::string shortest(float value)
{
    char digits[32];
    return {digits, std::to_chars(digits, digits + sizeof digits, value).ptr};
}

/// Works in a folder of its own, since the generator's report lies in the working directory.
class InOwnFolder {
public:
    InOwnFolder() { std::filesystem::current_path(folder.path()); }
    InOwnFolder(const InOwnFolder&) = delete;
    InOwnFolder& operator=(const InOwnFolder&) = delete;
    ~InOwnFolder() { std::filesystem::current_path(m_former); }

    Folder folder;

private:
    std::filesystem::path m_former = std::filesystem::current_path();
};

/// A model in memory, and what generators store in it as lines.
class ObjectStyleTest : public InMemoryModel {
protected:
    static constexpr int addMode = JhautoGenLoadcomb::addMode;
    static constexpr int replaceMode = JhautoGenLoadcomb::replaceMode;

    InOwnFolder here;

    /// Adds load cases "NAME:TYPE", separated by blanks. Their keys are 1, 2, 3, ...
    static void addCases(std::string_view cases)
    {
        while (!cases.empty()) {
            const std::string word(cases.substr(0, cases.find(' ')));
            cases.remove_prefix(std::min(word.size() + 1, cases.size()));
            const std::size_t colon = word.find(':');
            ASSERT_NE(CDataStld().Add(loadCase(word.substr(0, colon).c_str(), word.substr(colon + 1).c_str())), 0) << word;
        }
    }

    static void addCombination(const char* name, int kind = 1, std::vector<T_LCOM_ITEM> items = {{1, 1, 1.0}}, int active = 1)
    {
        T_LCOM_D record;
        record.name = name;
        record.active = active;
        record.description = std::string("text of ") + name;
        record.items = std::move(items);
        ASSERT_NE(CDataLcom().Add(kind, record), 0) << name;
    }

    /// "DL 0.6666667, WX -0.3"; a factor that is no 32-bit number shows as "64 bits".
    static std::string itemsOf(const T_LCOM_D& record)
    {
        std::string text;
        for (const T_LCOM_ITEM& item : record.items) {
            const auto factor = static_cast<float>(item.factor);
            const std::string name = CDataStld().GetNameByKey(item.key);
            text.append(text.empty() ? "" : ", ").append(name.empty() ? "?" : name).append(" ");
            text.append(static_cast<double>(factor) == item.factor ? shortest(factor) : "64 bits");
            if (item.type != 1)
                text.append(" of type ").append(std::to_string(item.type));
        }
        return text;
    }

    /// The stored combinations of a kind: "LC1 | 0 | 1.0DL+1.0LL | DL 1, LL 1". The number is `active`.
    static Lines stored(int kind = 1)
    {
        std::vector<Key> keys;
        std::vector<T_LCOM_D> records;
        CDataLcom().GetList(kind, keys, records);
        Lines lines;
        for (const T_LCOM_D& record : records)
            lines.push_back(record.name + " | " + std::to_string(record.active) + " | " + record.description + " | " + itemsOf(record));
        return lines;
    }

    static std::vector<CString> names(int kind = 1)
    {
        std::vector<CString> found;
        CDataLcom().GetNameList(kind, found);
        return found;
    }
};

}  // namespace zel::test
