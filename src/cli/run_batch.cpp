#include "cli/commands.h"
#include "cli/console.h"

#include "contract/nearest.h"
#include "loadcomb/generation/load_comb_ctrl.h"
#include "platform/modeldb/model_document.h"
#include "platform/modeldb/model_json.h"
#include "platform/modeldb/record_json.h"

#include <algorithm>
#include <charconv>
#include <iostream>
#include <limits>
#include <map>
#include <nlohmann/json.hpp>
#include <span>
#include <stdexcept>

namespace zel::cli {

namespace {

/// One job: a model and what is to be generated.
struct Job {
    Json model;
    std::string code;
    int mode = 0;
    loadcomb::GeneratorOptions options;
};

void checkMembers(const Json& json, const std::string& path, std::span<const std::string_view> known)
{
    if (!json.is_object())
        throw JsonFault(path, std::string("must be an object, not ") + jsonKind(json));
    for (const auto& member : json.get_ref<const Json::object_t&>()) {
        if (std::find(known.begin(), known.end(), member.first) == known.end())
            throw JsonFault(memberPath(path, member.first), "is unknown" + didYouMean(member.first, known));
    }
}

double numberFrom(const Json& json, const std::string& path)
{
    if (!json.is_number())
        throw JsonFault(path, std::string("must be a number, not ") + jsonKind(json));
    return json.get<double>();
}

bool flagFrom(const Json& json, const std::string& path)
{
    if (json.is_boolean())
        return json.get<bool>();
    if (!json.is_number_integer() && !json.is_number_unsigned())
        throw JsonFault(path, std::string("must be true or false, not ") + jsonKind(json));
    return integerFromJson(json, path, 0, 1) != 0;
}

/// A key that stands as a member's name: "7".
Key keyFromName(const std::string& name, const std::string& path)
{
    Key key = 0;
    const char* end = name.data() + name.size();
    const std::from_chars_result read = std::from_chars(name.data(), end, key);
    if (read.ec != std::errc() || read.ptr != end || key == 0)
        throw JsonFault(memberPath(path, name), "is no key of a load case");
    return key;
}

template <class Value, class Read> std::map<Key, Value> mapFrom(const Json& json, const std::string& path, const Read& read)
{
    if (!json.is_object())
        throw JsonFault(path, std::string("must be an object, not ") + jsonKind(json));
    std::map<Key, Value> values;
    for (const auto& member : json.get_ref<const Json::object_t&>())
        values[keyFromName(member.first, path)] = read(member.second, memberPath(path, member.first));
    return values;
}

Key partnerFrom(const Json& json, const std::string& path)
{
    return static_cast<Key>(integerFromJson(json, path, 0, std::numeric_limits<Key>::max()));
}

void readOption(Job& job, const std::string& name, const Json& value)
{
    const std::string path = memberPath("options", name);
    if (name == "kind")
        job.options.kind = kindFromJson(value, path);
    else if (name == "code")
        job.code = textFromJson(value, path);
    else if (name == "mode")
        job.mode = static_cast<int>(integerFromJson(value, path, 0, 1));
    else if (name == "combType")
        job.options.combType = codes::combTypes[integerFromJson(value, path, 0, std::size(codes::combTypes) - 1)];
    else if (name == "orthoOption")
        job.options.orthoOption = flagFrom(value, path);
    else if (name == "alphaH")
        job.options.alphaH = numberFrom(value, path);
    else if (name == "scaleFactors")
        job.options.scaleFactors = mapFrom<double>(value, path, numberFrom);
    else
        job.options.eccentricCases = mapFrom<Key>(value, path, partnerFrom);
}

Job readJob(const std::string& line)
{
    static constexpr std::string_view parts[] = {"model", "options"};
    static constexpr std::string_view options[] = {"kind", "code", "mode", "combType", "orthoOption", "alphaH", "scaleFactors", "eccentricCases"};
    Json json = parseJson(line);
    checkMembers(json, {}, parts);
    if (!json.contains("model"))
        throw JsonFault("model", "is missing");
    if (!json.contains("options"))
        throw JsonFault("options", "is missing");
    checkMembers(json.at("options"), "options", options);
    Job job;
    for (const auto& member : json.at("options").get_ref<const Json::object_t&>())
        readOption(job, member.first, member.second);
    if (job.code.empty())
        throw JsonFault("options.code", "is missing");
    job.model = std::move(json.at("model"));
    return job;
}

std::unique_ptr<ModelDocument> modelOf(const Job& job, const Console& console)
{
    try {
        std::unique_ptr<ModelDocument> document = ModelDocument::inMemory(unitsOfModelJson(job.model));
        storeRows(*document, rowsOfModelJson(job.model));
        return document;
    } catch (const JsonFault& fault) {
        const std::string told = console.told();
        throw JsonFault("model: " + std::string(fault.what()) + (told.empty() ? "" : ": " + told));
    }
}

void runJob(const std::string& line, Console& console)
{
    const Job job = readJob(line);
    console.forget();
    const std::unique_ptr<ModelDocument> document = modelOf(job, console);
    CLoadCombCtrl control;
    control.SetKind(job.options.kind);
    control.SetScaleFactors(job.options.scaleFactors);
    control.SetEccentricCases(job.options.eccentricCases);
    control.SetOrthoOption(job.options.orthoOption ? 1 : 0);
    control.SetCombType(job.options.combType);
    control.SetAlphaH(job.options.alphaH);
    const bool ok = control.Generate(job.mode, job.code, CLoadCombCtrl::Storing::storeAndKeep) != 0;
    std::vector<PrintedCombination> rows;
    for (const T_LCOM_D& row : control.rows())
        rows.push_back({&row, job.options.kind, 0});
    printResultJson(ok, console.keys(), rows, std::cout);
}

}  // namespace

int runBatch()
{
    Console console;
    int code = succeeded;
    std::string line;
    for (long number = 1; std::getline(std::cin, line); ++number) {
        if (line.find_first_not_of(" \t\r") == std::string::npos)
            continue;
        try {
            runJob(line, console);
        } catch (const std::exception& fault) {
            code = jobFailed;
            std::cout << printJson({{"error", "line " + std::to_string(number) + ": " + fault.what()}, {"line", number}}) << '\n';
        }
        if (!std::cout.flush())
            throw std::runtime_error("standard output can't be written; is the disk full?");
    }
    return code;
}

}  // namespace zel::cli
