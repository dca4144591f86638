#include "cli/commands.h"
#include "cli/console.h"
#include "cli/input.h"
#include "cli/job_checks.h"

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
#include <new>
#include <nlohmann/json.hpp>
#include <span>
#include <sstream>
#include <stdexcept>

namespace zel::cli {

namespace {

constexpr const char* notEnoughMemory = "there is not enough memory for this job";

/// One job: a model and what is to be generated.
struct Job {
    const Json* model = nullptr;
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

Job readJob(const Json& json)
{
    static constexpr std::string_view parts[] = {"id", "model", "options"};
    static constexpr std::string_view options[] = {"kind", "code", "mode", "combType", "orthoOption", "alphaH", "scaleFactors", "eccentricCases"};
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
    job.model = &json.at("model");
    return job;
}

std::unique_ptr<ModelDocument> modelOf(const Job& job, const Console& console)
{
    try {
        std::unique_ptr<ModelDocument> document = ModelDocument::inMemory(unitsOfModelJson(*job.model));
        storeRows(*document, rowsOfModelJson(*job.model));
        return document;
    } catch (const JsonFault& fault) {
        const std::string told = console.told();
        throw JsonFault("model: " + std::string(fault.what()) + (told.empty() ? "" : ": " + told));
    }
}

/// Which job a result belongs to, as further members: its line, and the id that it gave itself.
std::string signature(const Json& json, long line)
{
    std::string members = ", \"line\": " + std::to_string(line);
    if (json.is_object() && json.contains("id"))
        members += ", \"id\": " + printJson(json.at("id"));
    return members;
}

/// Runs `check`, and says which option it refuses.
template <class Check> void checkOption(const std::string& path, const Check& check)
{
    try {
        check();
    } catch (const std::runtime_error& fault) {
        throw JsonFault(path, fault.what());
    }
}

void checkOptions(const Job& job)
{
    checkOption("options.code", [&] { requireCode(job.code); });
    checkOption("options.alphaH", [&] { requireAlphaH(job.options.alphaH); });
    for (const auto& [key, factor] : job.options.scaleFactors) {
        checkOption(memberPath("options.scaleFactors", std::to_string(key)), [key = key, factor = factor] {
            requireLoadCase(key);
            requireScaleFactor(factor);
        });
    }
    for (const auto& [key, partner] : job.options.eccentricCases) {
        checkOption(memberPath("options.eccentricCases", std::to_string(key)), [key = key, partner = partner] {
            requireLoadCase(key);
            if (partner != 0)
                requireLoadCase(partner);
        });
    }
}

void runJob(const Json& json, const std::string& signature, Console& console)
{
    const Job job = readJob(json);
    console.forget();
    const std::unique_ptr<ModelDocument> document = modelOf(job, console);
    checkOptions(job);
    CLoadCombCtrl control;
    control.SetKind(job.options.kind);
    control.SetScaleFactors(job.options.scaleFactors);
    control.SetEccentricCases(job.options.eccentricCases);
    control.SetOrthoOption(job.options.orthoOption ? 1 : 0);
    control.SetCombType(job.options.combType);
    control.SetAlphaH(job.options.alphaH);
    const bool ok = control.Generate(job.mode, job.code, CLoadCombCtrl::Storing::storeAndKeep) != 0;
    console.throwFailures();
    const EachCombination rows = [&](const std::function<void(const PrintedCombination&)>& take) {
        for (const T_LCOM_D& row : control.rows())
            take({&row, job.options.kind, 0});
    };
    std::ostringstream result;  // a line is printed whole or not at all
    printResultJson(ok, console.keys(), rows, result, signature);
    if (!result)
        throw std::bad_alloc();
    std::cout << std::move(result).str();
}

void printError(const std::string& fault, long number, const std::string& signature)
{
    std::cout << "{\"error\": " << printJson("line " + std::to_string(number) + ": " + fault) << signature << "}\n";
}

/// Takes one line: prints its result or its error. False for an error.
bool takeLine(const std::string& line, long number, Console& console)
{
    std::string ending = signature({}, number);
    std::string fault;
    try {
        const Json json = parseJson(line);
        ending = signature(json, number);
        runJob(json, ending, console);
        return true;
    } catch (const std::bad_alloc&) {
        fault = notEnoughMemory;
    } catch (const std::exception& caught) {
        fault = caught.what();
    }
    printError(fault, number, ending);
    return false;
}

/// The next line; false at the end. One that is too long for the memory is passed over and told.
bool nextLine(std::string& line, long number, int& code)
{
    try {
        std::getline(std::cin, line);
    } catch (const std::bad_alloc&) {
        line = {};
        code = jobFailed;
        printError(notEnoughMemory, number, signature({}, number));
        std::cin.clear();
        std::cin.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
        return true;
    }
    return !std::cin.fail();
}

}  // namespace

int runBatch()
{
    Console console;
    Input input("-");
    int code = succeeded;
    std::string line;
    std::cin.exceptions(std::ios::badbit);  // else a line without memory looks like the end
    for (long number = 1; nextLine(line, number, code); ++number) {
        if (line.find_first_not_of(" \t\r") != std::string::npos && !takeLine(line, number, console))
            code = jobFailed;
        if (!std::cout.flush())
            throw std::runtime_error("standard output can't be written; is the disk full?");
    }
    input.check();
    return code;
}

}  // namespace zel::cli
