#include "cli/commands.h"
#include "cli/job_checks.h"
#include "cli/output.h"

#include "contract/design_codes.h"
#include "contract/letter_case.h"
#include "loadcomb/generation/code_rows.h"
#include "loadcomb/tables/code_registry.h"
#include "platform/modeldb/json_text.h"
#include "platform/modeldb/record_values.h"

#include <algorithm>
#include <array>
#include <iterator>
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

/// The code of a name in any case.
/// @throws std::runtime_error  with the nearest names
const codes::CodeEntry& codeNamed(const std::string& name)
{
    const auto found = std::ranges::find_if(codes::codeRegistry, [&](const codes::CodeEntry& entry) { return equalIgnoringCase(entry.name, name); });
    if (found == std::end(codes::codeRegistry))
        requireCode(name);
    return *found;
}

const char* flagText(codes::Flag flag)
{
    return flag == codes::service ? "service" : "strength";
}

/// When a row is used: its part's condition and its own.
std::string conditionOf(const loadcomb::ListedRow& row)
{
    const bool both = !row.partCondition.empty() && !row.condition.empty();
    return std::string(row.partCondition) + (both ? ", " : "") + std::string(row.condition);
}

void printRowsJson(const codes::CodeEntry& code, std::ostream& out)
{
    Json rows = Json::array();
    for (const loadcomb::ListedRow& row : loadcomb::listRows(*code.table)) {
        Json made{{"block", std::string(row.block)}, {"flag", flagText(row.flag)}, {"formula", row.formula}, {"condition", conditionOf(row)}};
        if (!row.clause.empty())
            made["clause"] = std::string(row.clause);
        rows.push_back(made);
    }
    out << printJson({{"name", std::string(code.name)}, {"edition", std::string(code.edition)}, {"rows", rows}}) << '\n';
}

/// A line a row, under the titles of its columns. "Used when" and "Clause" stand only where some row has one.
void printRows(const codes::CodeEntry& code, std::ostream& out)
{
    constexpr std::size_t columns = 5;
    std::vector<std::array<std::string, columns>> lines{{"Block", "Flag", "Clause", "Formula", "Used when"}};
    for (const loadcomb::ListedRow& row : loadcomb::listRows(*code.table))
        lines.push_back({std::string(row.block), flagText(row.flag), std::string(row.clause), row.formula, conditionOf(row)});
    std::array<std::size_t, columns> widths{};
    std::array<bool, columns> filled{};
    for (std::size_t line = 0; line < lines.size(); ++line) {
        for (std::size_t i = 0; i < columns; ++i) {
            widths[i] = std::max(widths[i], characterCount(lines[line][i]));
            filled[i] = filled[i] || (line > 0 && !lines[line][i].empty());
        }
    }
    out << code.name << ": " << code.edition << '\n';
    for (const auto& cells : lines) {
        std::string text;
        for (std::size_t i = 0; i < columns; ++i) {
            if (filled[i])
                text.append(text.empty() ? 0 : 2, ' ').append(cells[i]).append(widths[i] - characterCount(cells[i]), ' ');
        }
        text.erase(text.find_last_not_of(' ') + 1);
        out << text << '\n';
    }
}

}  // namespace

int listCodes(const ListCodes& job)
{
    Output output("-");
    if (!job.rows.empty()) {
        const codes::CodeEntry& code = codeNamed(job.rows);
        if (job.json)
            printRowsJson(code, output.stream());
        else
            printRows(code, output.stream());
    } else if (job.json) {
        printJsonList(output.stream());
    } else {
        printList(output.stream());
    }
    output.finish();
    return succeeded;
}

}  // namespace zel::cli
