#include "journal/notice_json.h"

#include "contract/table_list.h"

#include <array>
#include <nlohmann/json.hpp>
#include <string>

namespace zel {

Json changesToJson(const CViewBuff& changes)
{
    static constexpr std::array<const char*, 4> names{"ADD", "DEL", "MFD", "MFS"};
    Json list = Json::array();
    POSITION position = changes.GetStartBuffer();
    while (position != nullptr) {
        const T_UDRD_BUFFER buffer = changes.GetNextBuffer(position);
        const std::int32_t code = buffer.updateCode - firstUpdateCode;
        const TableInfo& table = tableList()[static_cast<std::size_t>(code / 4)];
        list.push_back(Json::array({std::string(table.code), names[static_cast<std::size_t>(code % 4)], changes.at(buffer.dataIndex).key}));
    }
    return list;
}

}  // namespace zel
