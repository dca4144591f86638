// An LCB file from any bytes. What is taken obeys the rules of combinations, and goes into a model and out of it again as one change.

#include "contract/tables/load_combination_table.h"
#include "contract/tables/static_load_case_table.h"
#include "loadcomb/editor/lcb_import.h"
#include "platform/modeldb/model_document.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <set>
#include <sstream>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

void checkCombinations(const std::vector<T_LCOM_D>& combinations, const std::vector<zel::Key>& cases)
{
    const std::set<zel::Key> known(cases.begin(), cases.end());
    std::set<std::int32_t> ids;
    for (const T_LCOM_D& each : combinations) {
        require(ids.insert(each.number).second);
        require(each.name == "LCB" + std::to_string(each.number));
        require(each.items.size() <= static_cast<std::size_t>(CDataLcom::mergeLimit));
        for (const T_LCOM_ITEM& item : each.items)
            require(item.type == 1 && known.contains(item.key) && item.factor != 0.0 && std::isfinite(item.factor));
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::unique_ptr<zel::ModelDocument> document = zel::ModelDocument::inMemory();
    for (const char* name : {"DL", "LL", "EX"}) {
        T_STLD_D record;
        record.name = name;
        require(CDataStld().Add(record) != 0);
    }
    std::vector<zel::Key> cases;
    CDataStld().GetKeyList(cases);

    const std::string text(reinterpret_cast<const char*>(data), size);
    std::istringstream file(text);
    const zel::lcb::Contents contents = zel::lcb::read(file, cases);
    require(!contents.fault || contents.combinations.empty());
    checkCombinations(contents.combinations, cases);

    std::istringstream again(text);
    const int imported = zel::lcb::importFile(1, again);
    require((imported != 0) == !contents.fault);
    require(CDataLcom().GetCount(1) == static_cast<int>(contents.combinations.size()));
    if (!contents.combinations.empty()) {
        require(document->Undo() != 0);
        require(CDataLcom().GetCount(1) == 0);
    }
    return 0;
}
