#include "object_style/jhauto_gen_loadcomb.h"

#include "command/messages.h"
#include "loadcomb/generation/load_group.h"
#include "object_style/owned_objects.h"
#include "object_style/tables/code_list.h"
#include "object_style/tables/load_kinds.h"

#include <string_view>

// The tables of the codes as objects, over abstract load kinds in the place of load cases.

namespace {

using zel::loadcomb::makeIn;

/// The kind whose symbol is the type text of a load group: "D" for "DL". The sorting of load cases into groups decides it.
Jhloadcase* kindOfGroup(const JhautoGenLoadcomb::Loadcases& kinds, std::string_view group)
{
    std::vector<zel::loadcomb::LoadCase> cases;
    for (const Jhloadcase* kind : kinds)
        cases.push_back({kind->id, kind->name, kind->type});
    const zel::loadcomb::LoadGroups groups = zel::loadcomb::sortIntoGroups(cases);
    const _CCmd_Loadcase& found = groups[static_cast<std::size_t>(zel::codes::wordOf(group))];
    return found.hasCases() ? kinds.find(found.cases.front()) : nullptr;
}

}  // namespace

void JhautoGenLoadcomb::buildLoadKinds()
{
    for (const zel::codes::object_style::LoadKind& kind : zel::codes::object_style::loadKinds) {
        Jhloadcase& made = makeIn(m_loadKinds, static_cast<std::uint32_t>(m_loadKinds.count()));
        made.type = kind.symbol != nullptr ? kind.symbol : zel::loadText(kind.symbolKey);
        made.description = zel::loadText(kind.description);
    }
}

void JhautoGenLoadcomb::buildCodes()
{
    for (const zel::codes::object_style::Code& code : zel::codes::object_style::codeList) {
        JhcodeLoadcomb& made = makeIn(m_codes, static_cast<std::uint32_t>(m_codes.count() + 1));
        made.name = code.name;
        for (const zel::codes::Part& part : code.table->parts) {
            for (const zel::codes::Row& row : part.rows)
                buildRow(made, row);
        }
    }
}

void JhautoGenLoadcomb::buildRow(JhcodeLoadcomb& code, const zel::codes::Row& row)
{
    const std::uint8_t active = row.flag == zel::codes::strength ? 1 : 0;
    const auto number = static_cast<std::uint32_t>(m_codeCombinations.count() + 1);
    JhloadCombination& made = makeIn(m_codeCombinations, number, 1U, active, 0, CString(row.text));
    made.code = &code;
    code.combinations.add(made);
    for (const zel::codes::Pair& pair : row.pairs) {
        if (pair.group.name.empty())
            continue;
        JhassoLoadcombLoadcase& link = makeIn(m_codeLinks, static_cast<std::uint32_t>(m_codeLinks.count() + 1));
        link.factor = static_cast<float>(pair.factor);
        link.setCombination(&made);
        link.setLoadcase(kindOfGroup(m_loadKinds, pair.group.name));
    }
}
