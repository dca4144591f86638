#include "object_style/jhauto_gen_loadcomb.h"

#include "contract/messages.h"
#include "object_style/owned_objects.h"
#include "object_style/tables/code_list.h"
#include "object_style/tables/load_kinds.h"

#include <algorithm>
#include <span>
#include <string_view>

// The tables of the codes as objects, over abstract load kinds in the place of load cases.

namespace {

using zel::object_style::makeIn;

Jhloadcase* kindOf(const JhautoGenLoadcomb::Loadcases& kinds, std::string_view symbol)
{
    const auto found = std::find_if(kinds.begin(), kinds.end(), [&](const Jhloadcase* kind) { return kind->type == symbol; });
    return found != kinds.end() ? *found : nullptr;
}

}  // namespace

void JhautoGenLoadcomb::buildLoadKinds()
{
    for (const zel::object_style::LoadKind& kind : zel::object_style::loadKinds) {
        Jhloadcase& made = makeIn(m_loadKinds, static_cast<std::uint32_t>(m_loadKinds.count()));
        made.type = kind.symbol != nullptr ? kind.symbol : CMsgDll::pfuncLoadStr(kind.symbolKey, 0);
        made.description = CMsgDll::pfuncLoadStr(kind.description, 0);
    }
}

void JhautoGenLoadcomb::buildCodes()
{
    for (const zel::object_style::Code& code : zel::object_style::codeList) {
        JhcodeLoadcomb& made = makeIn(m_codes, static_cast<std::uint32_t>(m_codes.count() + 1));
        made.name = code.name;
        for (const std::span<const zel::object_style::Row> rows : {code.rows, code.further}) {
            for (const zel::object_style::Row& row : rows)
                buildRow(made, row);
        }
    }
}

void JhautoGenLoadcomb::buildRow(JhcodeLoadcomb& code, const zel::object_style::Row& row)
{
    const std::uint8_t active = row.flag == zel::object_style::strength ? 1 : 0;
    const auto number = static_cast<std::uint32_t>(m_codeCombinations.count() + 1);
    JhloadCombination& made = makeIn(m_codeCombinations, number, 1U, active, 0, CString(row.text));
    made.code = &code;
    code.combinations.add(made);
    for (const zel::object_style::Pair& pair : row.pairs) {
        if (pair.kind.empty())
            continue;
        JhassoLoadcombLoadcase& link = makeIn(m_codeLinks, static_cast<std::uint32_t>(m_codeLinks.count() + 1));
        link.factor = static_cast<float>(pair.factor);
        link.setCombination(&made);
        link.setLoadcase(kindOf(m_loadKinds, pair.kind));
    }
}
