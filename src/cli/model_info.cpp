#include "cli/commands.h"

#include "contract/table_list.h"
#include "contract/units.h"
#include "platform/modeldb/file_format.h"
#include "platform/modeldb/json_text.h"
#include "platform/modeldb/model_document.h"

#include <cstdio>
#include <iostream>
#include <nlohmann/json.hpp>
#include <vector>

namespace zel::cli {

namespace {

struct TableCount {
    const TableInfo* table;
    int count;
};

int countOf(ITable& table)
{
    int count = 0;
    for (const int kind : kindsOf(table.info()))
        count += table.count(kind);
    return count;
}

/// The tables that hold something, in their order.
std::vector<TableCount> counts(CDBDoc& document)
{
    std::vector<TableCount> found;
    for (const TableInfo& info : tableList()) {
        const int count = countOf(document.table(info.table));
        if (count != 0)
            found.push_back({&info, count});
    }
    return found;
}

std::string hexadecimal(std::int32_t number)
{
    char text[16];
    std::snprintf(text, sizeof text, "0x%08X", static_cast<unsigned>(number));
    return text;
}

Json infoJson(const std::filesystem::path& path, ModelDocument& document, const FileFacts& facts)
{
    Json tables = Json::object();
    for (const TableCount& each : counts(document))
        tables[std::string(each.table->code)] = each.count;
    const T_UNIT_INDEX units = document.units();
    return {{"model", path.string()},
            {"size", facts.size},
            {"schemaVersion", facts.schema},
            {"applicationId", hexadecimal(applicationId)},
            {"journalMode", facts.journalMode},
            {"createdBy", facts.createdBy},
            {"hashes", "ok"},  // else the file had not been opened
            {"units", {{"length", lengthUnitName(units.length)}, {"force", forceUnitName(units.force)}}},
            {"tables", tables}};
}

void printInfo(const std::filesystem::path& path, ModelDocument& document, const FileFacts& facts)
{
    const T_UNIT_INDEX units = document.units();
    std::cout << "Model           " << path.string() << '\n'
              << "Size            " << facts.size << " bytes\n"
              << "Schema version  " << facts.schema << '\n'
              << "Application id  " << hexadecimal(applicationId) << '\n'
              << "Journal mode    " << facts.journalMode << '\n'
              << "Created by      " << facts.createdBy << '\n'
              << "Hashes          ok: every table is what was stored\n"
              << "Units           " << lengthUnitName(units.length) << ", " << forceUnitName(units.force) << '\n';
    const std::vector<TableCount> found = counts(document);
    std::cout << (found.empty() ? "Records         none\n" : "Records\n");
    for (const TableCount& each : found) {
        const std::string count = std::to_string(each.count);
        std::cout << "  " << each.table->code << std::string(count.size() < 12 ? 12 - count.size() : 1, ' ') << count << "  " << each.table->noun << '\n';
    }
}

}  // namespace

int modelInfo(const ModelInfo& job)
{
    const std::unique_ptr<ModelDocument> document = ModelDocument::open(job.model, ModelFile::Access::readOnly);
    document->checkStructure();
    const FileFacts facts = document->fileFacts().value();
    if (job.json)
        std::cout << printJson(infoJson(job.model, *document, facts)) << '\n';
    else
        printInfo(job.model, *document, facts);
    if (!std::cout.flush())
        throw std::runtime_error("standard output can't be written; is the disk full?");
    return succeeded;
}

}  // namespace zel::cli
