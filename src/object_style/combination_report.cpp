#include "object_style/combination_report.h"

#include "contract/format_text.h"
#include "contract/messages.h"
#include "object_style/jhasso_loadcomb_loadcase.h"

namespace {

CString right(const CString& text, std::size_t width)
{
    return text.size() < width ? CString(width - text.size(), ' ') + text : text;
}

/// A label and its value.
CString entry(const char* labelKey, const CString& value)
{
    constexpr std::size_t labelWidth = 10;
    constexpr std::size_t valueWidth = 5;
    return right(CMsgDll::pfuncLoadStr(labelKey, 0), labelWidth) + right(value, valueWidth);
}

}  // namespace

namespace zel::object_style {

CString reportTitle()
{
    return std::string("\n") + CMsgDll::pfuncLoadStr("IDS_ZEL_CMD______AUTO_GENERATION_OF_LOAD_COMBINATIO", 0) + "\n\n";
}

CString combinationBlock(const JhloadCombination& combination)
{
    CString block = combination.name + "\n";
    block += entry("IDS_ZEL_CMD__kind___", std::to_string(combination.kind)) + "\n";
    block += entry("IDS_ZEL_CMD__desc___", combination.description) + "\n";
    for (const JhassoLoadcombLoadcase* link : combination.cases) {
        const Jhloadcase* loadcase = link->loadcase();
        block += entry("IDS_ZEL_CMD__factor___", formatText("%g", static_cast<double>(link->factor)));
        block += entry("IDS_ZEL_CMD__Loadcase___", loadcase != nullptr ? loadcase->name : CString());
        block += entry("IDS_ZEL_CMD__type___", loadcase != nullptr ? loadcase->type : CString()) + "\n";
    }
    return block;
}

}  // namespace zel::object_style
