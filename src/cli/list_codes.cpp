#include "cli/commands.h"
#include "cli/output.h"

#include "contract/design_codes.h"
#include "loadcomb/generation/code_rows.h"
#include "loadcomb/tables/code_registry.h"
#include "platform/modeldb/json_text.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <ostream>

namespace zel::cli {

namespace {

struct Treatments {
    bool wind;
    bool seismic;
    bool underground;
    bool orthogonal;
    int rows;
};

Treatments treatmentsOf(const codes::CodeEntry& entry)
{
    const CString name(entry.name);
    return {CDBLib::IsConCode_WindLcom(name), CDBLib::IsConCode_SeisLcom(name), CDBLib::IsConCode_UnderGroundLcom(name), CDBLib::IsConCode_Ortho(name),
            loadcomb::countRows(*entry.table)};
}

void printJsonList(std::ostream& out)
{
    Json list = Json::array();
    for (const codes::CodeEntry& entry : codes::codeRegistry) {
        const Treatments has = treatmentsOf(entry);
        list.push_back({{"name", std::string(entry.name)},
                        {"windSets", has.wind},
                        {"seismic", has.seismic},
                        {"underground", has.underground},
                        {"orthogonal", has.orthogonal},
                        {"rows", has.rows}});
    }
    out << printJson(list) << '\n';
}

void printList(std::ostream& out)
{
    std::size_t width = 0;
    for (const codes::CodeEntry& entry : codes::codeRegistry)
        width = std::max(width, entry.name.size());
    const auto mark = [](bool has, std::size_t columns) { return std::string(columns - 3, ' ') + (has ? "yes" : "  -"); };
    out << "Code" << std::string(width - 4, ' ') << "  Wind sets  Seismic  Underground  Orthogonal  Rows\n";
    for (const codes::CodeEntry& entry : codes::codeRegistry) {
        const Treatments has = treatmentsOf(entry);
        const std::string rows = std::to_string(has.rows);
        out << entry.name << std::string(width - entry.name.size(), ' ') << mark(has.wind, 11) << mark(has.seismic, 9) << mark(has.underground, 13)
            << mark(has.orthogonal, 12) << std::string(6 - std::min<std::size_t>(6, rows.size()), ' ') << rows << '\n';
    }
}

}  // namespace

int listCodes(const ListCodes& job)
{
    Output output("-");
    if (job.json)
        printJsonList(output.stream());
    else
        printList(output.stream());
    output.finish();
    return succeeded;
}

}  // namespace zel::cli
