#include "loadcomb/generation/load_group.h"

#include "contract/load_types.h"

#include <string>

namespace {

namespace load_type = zel::load_type;

// The type text of the cases of each group, in the order of the groups.
constexpr std::string_view groupTypes[zel::codes::groupCount] = {
    load_type::dead,          load_type::live, load_type::roofLive,      load_type::wind,          load_type::earthquake, load_type::snow,
    load_type::seismicEarth,  load_type::rain, load_type::fluidPressure, load_type::earthPressure, load_type::streamFlow, load_type::horizontalEarth,
    load_type::verticalEarth,
};

}  // namespace

bool _CCmd_Loadcase::isInLevel(int level) const
{
    return std::to_string(levels).find(std::to_string(level)) != std::string::npos;
}

namespace zel::loadcomb {

LoadGroups sortIntoGroups(const std::vector<LoadCase>& cases)
{
    LoadGroups groups;
    for (std::size_t i = 0; i < groups.size(); ++i) {
        groups[i].name = codes::wordTexts[i];
        for (const LoadCase& loadCase : cases) {
            if (loadCase.type == groupTypes[i])
                groups[i].cases.push_back(loadCase.key);
        }
    }
    return groups;
}

codes::Facts factsOf(const LoadGroups& groups)
{
    codes::Facts facts = 0;
    for (std::size_t i = 0; i < groups.size(); ++i) {
        if (groups[i].hasCases())
            facts |= codes::Facts{1} << i;
    }
    if ((facts & (codes::fact(codes::Word::LR) | codes::fact(codes::Word::SL) | codes::fact(codes::Word::RL))) != 0)
        facts |= codes::fact(codes::Word::X);
    return facts;
}

}  // namespace zel::loadcomb
