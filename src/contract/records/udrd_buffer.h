#pragma once

#include <cstdint>

/// One entry of the record of the last change.
struct T_UDRD_BUFFER {
    std::int32_t reserved = 0;      ///< not read
    std::int32_t updateCode = 0;    ///< a `UR_XXX_ADD`, `_DEL`, `_MFD` or `_MFS` of a table
    std::int32_t dataIndex = 0;     ///< for `CViewBuff::GetData`

    bool operator==(const T_UDRD_BUFFER&) const = default;

    void Initialize() { *this = {}; }
};
