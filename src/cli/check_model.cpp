#include "cli/commands.h"

#include "platform/modeldb/file_refusal.h"
#include "platform/modeldb/json_text.h"
#include "platform/modeldb/model_check.h"
#include "platform/modeldb/model_file.h"

#include <algorithm>
#include <iostream>
#include <nlohmann/json.hpp>
#include <stdexcept>

namespace zel::cli {

namespace {

constexpr int faultsFound = 1;
constexpr int unreadable = 2;

/// "LCOM, kind 1, key 4, items[2].factor: is not a finite number".
std::string lineOf(const FileFault& fault)
{
    std::string line;
    const auto add = [&line](const std::string& part) { line += (line.empty() ? "" : ", ") + part; };
    if (!fault.table.empty())
        add(std::string(fault.table));
    if (fault.kind != 0)
        add("kind " + std::to_string(fault.kind));
    if (fault.key != 0)
        add("key " + std::to_string(fault.key));
    if (!fault.field.empty())
        add(fault.field);
    return (line.empty() ? "the file" : line) + ": " + fault.what;
}

Json jsonOf(const FileFault& fault)
{
    Json json = Json::object();
    if (!fault.table.empty())
        json["table"] = std::string(fault.table);
    if (fault.kind != 0)
        json["kind"] = fault.kind;
    if (fault.key != 0)
        json["key"] = fault.key;
    if (!fault.field.empty())
        json["field"] = fault.field;
    json["fault"] = fault.what;
    json["leftOut"] = fault.leftOut;
    return json;
}

void printJsonReport(const CheckModel& job, const ExaminedFile& found, std::ostream& out)
{
    Json faults = Json::array();
    for (const FileFault& fault : found.faults)
        faults.push_back(jsonOf(fault));
    Json report{{"model", job.model.string()}, {"ok", found.faults.empty()}, {"records", found.recordCount()}, {"faults", faults}};
    if (job.salvage)
        report["salvaged"] = job.salvage->string();
    out << printJson(report) << '\n';
}

std::string counted(std::size_t count, const char* noun)
{
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

void printReport(const CheckModel& job, const ExaminedFile& found, std::ostream& out)
{
    for (const FileFault& fault : found.faults)
        out << lineOf(fault) << (fault.leftOut ? " (left out)" : "") << '\n';
    out << counted(found.faults.size(), "fault") << ", " << counted(found.recordCount(), "record") << " can be read\n";
    if (job.salvage)
        out << "Saved as " << job.salvage->string() << '\n';
    else if (!found.faults.empty())
        out << "With --salvage NEW.qvx what can be read is saved as a new model.\n";
}

}  // namespace

int checkModel(const CheckModel& job)
{
    if (job.salvage && std::filesystem::exists(*job.salvage))
        throw FileRefusal(FileRefusal::Reason::exists, *job.salvage, "exists already. Give another name for what is saved.");
    ExaminedFile found;
    try {
        found = examineModelFile(job.model);
    } catch (const FileRefusal& refusal) {
        std::cerr << "zel: " << refusal.what() << '\n';
        return unreadable;
    }
    if (job.salvage)
        ModelFile::create(*job.salvage, found.units, found.records, false);
    if (job.json)
        printJsonReport(job, found, std::cout);
    else
        printReport(job, found, std::cout);
    if (!std::cout.flush())
        throw std::runtime_error("standard output can't be written; is the disk full?");
    return found.faults.empty() ? succeeded : faultsFound;
}

}  // namespace zel::cli
