#include "cli/combination_printer.h"

#include "cli/lcb_writer.h"
#include "cli/sheet.h"
#include "contract/long_run.h"
#include "contract/record.h"
#include "platform/modeldb/record_json.h"

#include <nlohmann/json.hpp>
#include <ostream>
#include <utility>

namespace zel::cli {

namespace {

/// The same combinations, with a word on how far the printing is.
EachCombination counted(const EachCombination& combinations)
{
    return [&combinations](const std::function<void(const PrintedCombination&)>& take) {
        std::size_t done = 0;
        combinations([&](const PrintedCombination& each) {
            reportRun(RunPhase::printing, ++done);
            take(each);
        });
    };
}

}  // namespace

void printCombinations(Format format, const EachCombination& combinations, std::ostream& out)
{
    switch (format) {
    case Format::table:
        printTable(counted(combinations), out);
        break;
    case Format::csv:
        printCsv(counted(combinations), out);
        break;
    case Format::lcb:
        printLcb(counted(combinations), out);
        break;
    case Format::json:
        printResultJson(true, {}, combinations, out);
        break;
    }
}

void printResultJson(bool ok, const std::vector<std::string>& messages, const EachCombination& combinations, std::ostream& out, const std::string& ending)
{
    out << "{\"ok\": " << (ok ? 1 : 0) << ", \"messages\": " << printJson(messages) << ", \"rows\": [";
    const char* separator = "";
    counted(combinations)(
        [&](const PrintedCombination& each) { out << std::exchange(separator, ", ") << printJson(fieldsToJson(describe<T_LCOM_D>(), each.record)); });
    out << ']' << ending << "}\n";
}

}  // namespace zel::cli
