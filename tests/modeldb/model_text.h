#pragma once

#include <string>

namespace zel::test {

/// A dump without the tables that hold nothing, which it lists as "[]".
inline std::string withoutEmptyTables(std::string dump)
{
    const std::string empty = "\": []";
    for (std::size_t end = dump.find(empty); end != std::string::npos; end = dump.find(empty)) {
        const std::size_t begin = dump.rfind(",\n \"", end);
        dump.erase(begin, end + empty.size() - begin);
    }
    return dump;
}

}  // namespace zel::test
