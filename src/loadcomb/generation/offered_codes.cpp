#include "contract/design_codes.h"
#include "loadcomb/tables/code_registry.h"

#include <array>

// Hands the codes that have tables to the catalogue when this library is loaded. What the catalogue tells of a code is what the parts of
// its table read.
namespace zel::codes {

namespace {

constexpr auto offeredCodes()
{
    std::array<DesignCode, std::size(codeRegistry)> offered;
    for (std::size_t i = 0; i < offered.size(); ++i) {
        const CodeTable& table = *codeRegistry[i].table;
        offered[i] = {codeRegistry[i].name, readsOf(table, Reads::windSets), readsOf(table, Reads::seismicFactors), readsOf(table, Reads::undergroundSets)};
    }
    return offered;
}

[[maybe_unused]] const bool codesAreOffered = [] {
    static constexpr auto offered = offeredCodes();
    setDesignCodes(offered);
    return true;
}();

}  // namespace

}  // namespace zel::codes
