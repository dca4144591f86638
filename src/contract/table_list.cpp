#include "contract/table_list.h"

#include "contract/record.h"
#include "contract/records/all.h"
#include "contract/table.h"
#include "contract/tables/all.h"

#include <algorithm>
#include <array>

namespace zel {

namespace {

#define ZEL_ONE(...) +1
constexpr std::size_t tableCount = 0 ZEL_TABLES(ZEL_ONE);
#undef ZEL_ONE

template <class Record> const FieldInfo* nameField(NameRule rule)
{
    if constexpr (requires { &Record::name; })
        return rule == NameRule::none ? nullptr : fieldOf(&Record::name);
    else
        return nullptr;
}

#define ZEL_INFO(CODE, RECORD, HANDLE, NOUN, SHAPE, NAMES, CODES, ...)                                                                                         \
    TableInfo{.table = Table::CODE,                                                                                                                            \
              .code = #CODE,                                                                                                                                   \
              .noun = NOUN,                                                                                                                                    \
              .record = &describe<RECORD>(),                                                                                                                   \
              .shape = TableShape::SHAPE,                                                                                                                      \
              .names = NameRule::NAMES,                                                                                                                        \
              .codes = Codes::CODES,                                                                                                                           \
              .nameField = nameField<RECORD>(NameRule::NAMES),                                                                                                 \
              __VA_ARGS__},
std::array<TableInfo, tableCount> makeList()
{
    return {{ZEL_TABLES(ZEL_INFO)}};
}
#undef ZEL_INFO

}  // namespace

std::span<const TableInfo> tableList()
{
    static const std::array<TableInfo, tableCount> list = makeList();
    return list;
}

std::span<const int> kindsOf(const TableInfo& table)
{
    static constexpr auto kinds = [] {
        std::array<int, designKinds.size()> numbers{};
        std::ranges::transform(designKinds, numbers.begin(), [](DesignKind kind) { return static_cast<int>(kind); });
        return numbers;
    }();
    static constexpr std::array noKind{0};
    return table.shape == TableShape::kinded ? std::span<const int>(kinds) : std::span<const int>(noKind);
}

const TableInfo* findTable(std::string_view code)
{
    const std::span<const TableInfo> list = tableList();
    const auto found = std::find_if(list.begin(), list.end(), [&](const TableInfo& table) { return table.code == code; });
    return found != list.end() ? &*found : nullptr;
}

template <class Record> const TableInfo& tableOfRecord()
{
    static const std::span<const TableInfo> list = tableList();
    static const TableInfo& found = *std::find_if(list.begin(), list.end(), [](const TableInfo& table) { return table.record == &describe<Record>(); });
    return found;
}

#define ZEL_TABLE_OF(CODE, RECORD, ...) template const TableInfo& tableOfRecord<RECORD>();
ZEL_TABLES(ZEL_TABLE_OF)
#undef ZEL_TABLE_OF

}  // namespace zel

// clang-format off
#define ZEL_CODES_none(CODE, HANDLE)
#define ZEL_CODES_addAndDelete(CODE, HANDLE)                                                                                                                   \
    const int HANDLE::UR_##CODE##_ADD = zel::updateCode(Table::CODE, zel::Change::added);                                                                      \
    const int HANDLE::UR_##CODE##_DEL = zel::updateCode(Table::CODE, zel::Change::deleted);
#define ZEL_CODES_all(CODE, HANDLE)                                                                                                                            \
    ZEL_CODES_addAndDelete(CODE, HANDLE)                                                                                                                       \
    const int HANDLE::UR_##CODE##_MFD = zel::updateCode(Table::CODE, zel::Change::modified);                                                                   \
    const int HANDLE::UR_##CODE##_MFS = zel::updateCode(Table::CODE, zel::Change::modifiedFrom);
#define ZEL_DEFINE_CODES(CODE, RECORD, HANDLE, NOUN, SHAPE, NAMES, CODES, ...) ZEL_CODES_##CODES(CODE, HANDLE)
ZEL_TABLES(ZEL_DEFINE_CODES)
#undef ZEL_DEFINE_CODES
#undef ZEL_CODES_all
#undef ZEL_CODES_addAndDelete
#undef ZEL_CODES_none
// clang-format on
