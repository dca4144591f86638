#include "cli/commands.h"

#include "contract/units.h"
#include "contract/version.h"
#include "loadcomb/tables/code_table.h"

#include <functional>
#include <iostream>
#include <string>

#include <CLI/CLI.hpp>

namespace {

using namespace zel::cli;

const std::string version = std::string("zel ") + zel::versionText;

using Job = std::function<int()>;

/// A unit option, which takes the name of a unit in either case.
void addUnit(CLI::App& command, const std::string& option, const std::string& what, std::int32_t& index, int count, const char* (*nameOf)(int))
{
    std::map<std::string, std::int32_t> names;
    std::string list;
    for (int i = 0; i < count; ++i) {
        names[nameOf(i)] = i;
        list += std::string(i > 0 ? ", " : "") + nameOf(i);
    }
    command.add_option(option, index, what + ": " + list)
        ->transform(CLI::CheckedTransformer(names, CLI::ignore_case).description(""))
        ->type_name("UNIT")
        ->default_str(nameOf(index));
}

CLI::App& addCommand(CLI::App& app, const std::string& name, const std::string& what, const std::string& example)
{
    CLI::App& command = *app.add_subcommand(name, what);
    command.footer("Example:\n  " + example);
    return command;
}

void addNew(CLI::App& app, Job& job)
{
    CLI::App& command = addCommand(app, "new", "Make a new empty model file", "zel new tower.qvx --length M --force KN");
    auto options = std::make_shared<NewModel>();
    command.add_option("MODEL", options->model, "the file to make; it must not exist")->required();
    addUnit(command, "--length", "unit of length", options->units.length, zel::lengthUnitCount, zel::lengthUnitName);
    addUnit(command, "--force", "unit of force", options->units.force, zel::forceUnitCount, zel::forceUnitName);
    command.callback([options, &job] { job = [options] { return newModel(*options); }; });
}

void addInfo(CLI::App& app, Job& job)
{
    CLI::App& command = addCommand(app, "info", "Check a model file and tell what is in it", "zel info tower.qvx");
    auto options = std::make_shared<ModelInfo>();
    command.add_option("MODEL", options->model, "the model file")->required();
    command.add_flag("--json", options->json, "print one JSON object");
    command.callback([options, &job] { job = [options] { return modelInfo(*options); }; });
}

void addCheck(CLI::App& app, Job& job)
{
    CLI::App& command = addCommand(app, "check", "Look for every fault of a model file, and save what can be read", "zel check tower.qvx --salvage saved.qvx");
    auto options = std::make_shared<CheckModel>();
    command.add_option("MODEL", options->model, "the model file; it is not altered")->required();
    command.add_option("--salvage", options->salvage, "make this new model of what can be read")->type_name("FILE");
    command.add_flag("--json", options->json, "print one JSON object");
    command.callback([options, &job] { job = [options] { return checkModel(*options); }; });
    command.footer("Example:\n  zel check tower.qvx --salvage saved.qvx\n\n"
                   "Exit status: 0 no fault; 1 faults, or the new model can't be made; 2 MODEL can't be read at all.");
}

void addLoad(CLI::App& app, Job& job)
{
    CLI::App& command = addCommand(app, "load", "Make a model file from a model in JSON", "zel load tower.json tower.qvx --replace");
    auto options = std::make_shared<LoadModel>();
    command.add_option("FILE", options->file, "the model in JSON; - is standard input")->required();
    command.add_option("MODEL", options->model, "the file to make")->required();
    command.add_flag("--replace", options->replace, "replace MODEL if it exists; if the load fails it stays as it is");
    command.callback([options, &job] { job = [options] { return loadModel(*options); }; });
}

void addDump(CLI::App& app, Job& job)
{
    CLI::App& command = addCommand(app, "dump", "Print a whole model as JSON", "zel dump tower.qvx > tower.json");
    auto options = std::make_shared<DumpModel>();
    command.add_option("MODEL", options->model, "the model file")->required();
    command.callback([options, &job] { job = [options] { return dumpModel(*options); }; });
}

void addPlay(CLI::App& app, Job& job)
{
    CLI::App& command =
        addCommand(app, "play", "Play a journal: drive the dialogs by script", "zel play tower.qvx --script cases.jsonl --transcript replies.jsonl --strict");
    auto options = std::make_shared<PlayJournal>();
    command.add_option("MODEL", options->model, "the model file; without it a new empty model in memory");
    command.add_option("--script", options->script, "the journal; - is standard input")->capture_default_str();
    command.add_option("--transcript", options->transcript, "file for the replies; - is standard output")->capture_default_str();
    command.add_flag("--show-keys", options->showKeys, "show the message key in front of each text of the catalogue");
    auto host = std::make_shared<std::string>("run");
    command.add_option("--host-commands", *host, "run: carry out what dialogs ask of the host; log: only tell it")
        ->check(CLI::IsMember({"run", "log"}).description(""))
        ->type_name("run|log")
        ->capture_default_str();
    command.add_flag("--strict", options->strict, "stop at the first command that can't be carried out");
    command.callback([options, host, &job] {
        options->runHostCommands = *host == "run";
        job = [options] { return playJournal(*options); };
    });
    command.footer("Example:\n  zel play tower.qvx --script cases.jsonl --transcript replies.jsonl --strict\n\n"
                   "Exit status: 0 every command was carried out; 1 the journal ended while a modal dialog was open, or a file can't\n"
                   "be opened; 2 some command could not be carried out.");
}

CLI::Option* addFormat(CLI::App& command, Format& format)
{
    static const std::map<std::string, Format> formats{{"table", Format::table}, {"json", Format::json}, {"csv", Format::csv}, {"lcb", Format::lcb}};
    return command.add_option("--format", format, "table, for reading; json; csv, for spreadsheets; lcb, lines for other programs")
        ->transform(CLI::CheckedTransformer(formats).description(""))
        ->type_name("table|json|csv|lcb")
        ->default_str("table");
}

void addGenerate(CLI::App& app, Job& job)
{
    std::map<std::string, int> types;
    std::string typeNames;
    for (const zel::codes::CombType type : zel::codes::combTypes) {
        types.emplace(zel::codes::nameOf(type), static_cast<int>(type));
        typeNames.append(typeNames.empty() ? "" : "|").append(zel::codes::nameOf(type));
    }
    CLI::App& command = addCommand(app, "generate", "Generate the load combinations of a design code",
                                   "zel generate tower.qvx --code \"KDS 41 20 : 2022\" --replace --orthogonal --scale EX=1.25,EXe");
    auto options = std::make_shared<GenerateCombinations>();
    command.add_option("MODEL", options->model, "the model file")->required();
    command.add_option("--code", options->code, "name of the design code; \"zel codes\" lists them")->required();
    command.add_option("--kind", options->kind, "design kind, 1 to 5; only kind 1 (general) has design codes")->check(CLI::Range(1, 5))->capture_default_str();
    CLI::Option* replace = command.add_flag("--replace", options->replace, "replace the combinations of the kind");
    command.add_flag("--add")->description("add to the combinations of the kind (the default)")->excludes(replace);
    command.add_option("--type", options->combType, "type of the combinations")
        ->transform(CLI::CheckedTransformer(types).description(""))
        ->type_name(typeNames)
        ->default_str(std::string(zel::codes::nameOf(zel::codes::CombType::strength)));
    command.add_flag("--orthogonal", options->orthogonal, "orthogonal effect by the 100:30 rule");
    command.add_option("--alpha-h", options->alphaH, "alpha_H of horizontal earth pressure")->capture_default_str();
    command.add_option("--scale", options->scales, "scale factor of a response spectrum case and its eccentric case; a case by name or #KEY; may be repeated")
        ->type_name("CASE=FACTOR[,PARTNER]")
        ->take_all();
    command.add_flag("--dry-run", options->dryRun, "print, and store nothing");
    addFormat(command, options->format);
    command.add_option("--out", options->out, "file for the result; - is standard output")->capture_default_str();
    command.add_option("--explain", options->explain, "print where this combination comes from, instead of the result")->type_name("NAME");
    command.add_flag("--why-not", options->whyNot, "print which rows of the code gave nothing and why, instead of the result");
    command.callback([options, &job] { job = [options] { return generateCombinations(*options); }; });
}

void addCombinations(CLI::App& app, Job& job)
{
    CLI::App& command =
        addCommand(app, "combinations", "List or export the stored load combinations", "zel combinations tower.qvx --format csv --out tower.csv");
    auto options = std::make_shared<ListCombinations>();
    command.add_option("MODEL", options->model, "the model file")->required();
    command.add_option("--kind", options->kind, "design kind, 1 to 5; all kinds without it")->check(CLI::Range(1, 5));
    addFormat(command, options->format);
    command.add_option("--out", options->out, "file for the result; - is standard output")->capture_default_str();
    command.callback([options, &job] { job = [options] { return listCombinations(*options); }; });
}

void addEnvelopes(CLI::App& app, Job& job)
{
    CLI::App& command = addCommand(app, "envelopes", "List the envelopes and what each is made of", "zel envelopes tower.qvx");
    auto options = std::make_shared<ListEnvelopes>();
    command.add_option("MODEL", options->model, "the model file")->required();
    command.callback([options, &job] { job = [options] { return listEnvelopes(*options); }; });
}

void addImportLcb(CLI::App& app, Job& job)
{
    CLI::App& command = addCommand(app, "import-lcb", "Add the load combinations of an LCB file", "zel import-lcb tower.qvx tower.lcb");
    auto options = std::make_shared<ImportLcb>();
    command.add_option("MODEL", options->model, "the model file")->required();
    command.add_option("FILE", options->file, "the LCB file; - is standard input")->required();
    command.add_option("--kind", options->kind, "design kind, 1 to 5")->check(CLI::Range(1, 5))->capture_default_str();
    command.callback([options, &job] { job = [options] { return importLcb(*options); }; });
    command.footer("One combination a line: its ID, any text, then load case and factor by turns. A load case is named by its place in the\n"
                   "sequence of the static load cases, from 1. \"**\" as a field begins a comment, and lines of one ID are one combination:\n"
                   "  12, any, 1, 1.2, 2, 1.6, ** dead and live\n"
                   "The combinations are named LCB and their ID. All of them are stored, or none.\n\n"
                   "Example:\n  zel import-lcb tower.qvx tower.lcb\n\n"
                   "Exit status: 0 all combinations were stored; 1 the file or the model has a fault, and nothing was stored; 2 wrong usage.");
}

void addCodes(CLI::App& app, Job& job)
{
    CLI::App& command = addCommand(app, "codes", "List the design codes and what each treats", "zel codes");
    auto options = std::make_shared<ListCodes>();
    command.add_flag("--json", options->json, "print a JSON list");
    command.callback([options, &job] { job = [options] { return listCodes(*options); }; });
}

void addBatch(CLI::App& app, Job& job)
{
    CLI::App& command = addCommand(app, "batch", "Generate for many models: jobs from standard input, one JSON object a line, a result line each",
                                   "zel batch < jobs.jsonl > results.jsonl");
    command.callback([&job] { job = [] { return runBatch(); }; });
}

int run(const Job& job)
{
    try {
        return job();
    } catch (const std::exception& fault) {
        std::cout.flush();
        std::cerr << "zel: " << fault.what() << '\n';
    }
    return jobFailed;
}

}  // namespace

int main(int argc, char** argv)
{
    Job job;
    CLI::App app("ZEL: models, dialogs and load combinations of slabs and mat foundations, from the command line.", "zel");
    app.set_version_flag("--version", version);
    app.require_subcommand(1);
    app.footer("\"zel COMMAND --help\" tells more about a command.\nExample:\n  zel new tower.qvx --length M --force KN");
    addNew(app, job);
    addInfo(app, job);
    addCheck(app, job);
    addLoad(app, job);
    addDump(app, job);
    addPlay(app, job);
    addGenerate(app, job);
    addCombinations(app, job);
    addImportLcb(app, job);
    addEnvelopes(app, job);
    addCodes(app, job);
    addBatch(app, job);
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& asked) {  // --help or --version
        return app.exit(asked);
    } catch (const CLI::ParseError& fault) {
        std::cerr << "zel: " << fault.what() << "\nRun with --help for more information.\n";
        return wrongUsage;
    }
    return run(job);
}
