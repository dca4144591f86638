#include "cli/command_list.h"

#include "cli/commands.h"
#include "contract/units.h"
#include "loadcomb/tables/code_table.h"

#include <memory>

namespace zel::cli {

namespace {

constexpr const char* outText = "file for the result; - is standard output";

/// A unit option, which takes the name of a unit in either case.
void addUnit(Command& command, const std::string& option, const std::string& what, std::int32_t& index, int count, const char* (*nameOf)(int))
{
    std::vector<std::pair<std::string_view, std::int32_t>> units;
    std::string list;
    for (int i = 0; i < count; ++i) {
        units.emplace_back(nameOf(i), i);
        list += std::string(i > 0 ? ", " : "") + nameOf(i);
    }
    command.option(option, "UNIT", what + ": " + list, oneOf(index, units), nameOf(index));
}

void addFormat(Command& command, Format& format)
{
    command.option("--format", "table|json|csv|lcb", "table, for reading; json; csv, for spreadsheets; lcb, lines for other programs",
                   oneOf(format, {{"table", Format::table}, {"json", Format::json}, {"csv", Format::csv}, {"lcb", Format::lcb}}), "table");
}

template <class Options> void runs(Command& command, const std::shared_ptr<Options>& options, int (*job)(const Options&))
{
    command.does([options, job] { return job(*options); });
}

void addNew(CommandLine& line)
{
    Command& command = line.add("new", "Make a new empty model file");
    auto options = std::make_shared<NewModel>();
    command.argument("MODEL", "the file to make; it must not exist", into(options->model));
    addUnit(command, "--length", "unit of length", options->units.length, lengthUnitCount, lengthUnitName);
    addUnit(command, "--force", "unit of force", options->units.force, forceUnitCount, forceUnitName);
    command.example("zel new tower.qvx --length M --force KN");
    runs(command, options, newModel);
}

void addInfo(CommandLine& line)
{
    Command& command = line.add("info", "Check a model file and tell what is in it");
    auto options = std::make_shared<ModelInfo>();
    command.argument("MODEL", "the model file", into(options->model)).flag("--json", "print one JSON object", options->json).example("zel info tower.qvx");
    runs(command, options, modelInfo);
}

void addCheck(CommandLine& line)
{
    Command& command = line.add("check", "Look for every fault of a model file, and save what can be read");
    auto options = std::make_shared<CheckModel>();
    command.argument("MODEL", "the model file; it is not altered", into(options->model))
        .option("--salvage", "FILE", "make this new model of what can be read", into(options->salvage))
        .flag("--json", "print one JSON object", options->json)
        .note("Exit status: 0 no fault; 1 faults, or the new model can't be made; 2 MODEL can't be read at all.")
        .example("zel check tower.qvx --salvage saved.qvx");
    runs(command, options, checkModel);
}

void addLoad(CommandLine& line)
{
    Command& command = line.add("load", "Make a model file from a model in JSON");
    auto options = std::make_shared<LoadModel>();
    command.argument("FILE", "the model in JSON; - is standard input", into(options->file))
        .argument("MODEL", "the file to make", into(options->model))
        .flag("--replace", "replace MODEL if it exists; if the load fails it stays as it is", options->replace)
        .example("zel load tower.json tower.qvx --replace");
    runs(command, options, loadModel);
}

void addDump(CommandLine& line)
{
    Command& command = line.add("dump", "Print a whole model as JSON");
    auto options = std::make_shared<DumpModel>();
    command.argument("MODEL", "the model file", into(options->model)).example("zel dump tower.qvx > tower.json");
    runs(command, options, dumpModel);
}

void addPlay(CommandLine& line)
{
    Command& command = line.add("play", "Play a journal: drive the dialogs by script");
    auto options = std::make_shared<PlayJournal>();
    command.optionalArgument("MODEL", "the model file; without it a new empty model in memory", into(options->model))
        .option("--script", "FILE", "the journal; - is standard input", into(options->script), options->script)
        .option("--transcript", "FILE", "file for the replies; - is standard output", into(options->transcript), options->transcript)
        .flag("--show-keys", "show the message key in front of each text of the catalogue", options->showKeys)
        .option("--host-commands", "run|log", "run: carry out what dialogs ask of the host; log: only tell it",
                oneOf(options->runHostCommands, {{"run", true}, {"log", false}}), "run")
        .flag("--strict", "stop at the first command that can't be carried out", options->strict)
        .note("Exit status: 0 every command was carried out; 1 the journal ended while a modal dialog was open, or a file can't be opened or read; "
              "2 some command could not be carried out, or the model's file refused a write.")
        .example("zel play tower.qvx --script cases.jsonl --transcript replies.jsonl --strict");
    runs(command, options, playJournal);
}

void addGenerate(CommandLine& line)
{
    std::vector<std::pair<std::string_view, int>> types;
    std::string typeNames;
    for (const codes::CombType type : codes::combTypes) {
        types.emplace_back(codes::nameOf(type), static_cast<int>(type));
        typeNames.append(typeNames.empty() ? "" : ", ").append(codes::nameOf(type));
    }
    Command& command = line.add("generate", "Generate the load combinations of a design code");
    auto options = std::make_shared<GenerateCombinations>();
    command.argument("MODEL", "the model file", into(options->model))
        .neededOption("--code", "NAME", "name of the design code; \"zel codes\" lists them", into(options->code))
        .option("--kind", "1-5", "design kind; only kind 1 (general) has design codes", wholeNumber(options->kind, 1, 5), "1")
        .flag("--replace", "replace the combinations of the kind", options->replace)
        .defaultFlag("--add", "add to the combinations of the kind (the default)", "--replace")
        .option("--type", "TYPE", "type of the combinations: " + typeNames, oneOf(options->combType, types), std::string(codes::nameOf(codes::CombType::strength)))
        .flag("--orthogonal", "orthogonal effect by the 100:30 rule", options->orthogonal)
        .option("--alpha-h", "NUMBER", "alpha_H of horizontal earth pressure", into(options->alphaH), "1")
        .repeatedOption("--scale", "CASE=FACTOR[,PARTNER]",
                        "scale factor of a response spectrum case and its eccentric case; a case by name or #KEY; may be repeated", into(options->scales))
        .flag("--dry-run", "print, and store nothing", options->dryRun);
    addFormat(command, options->format);
    command.option("--out", "FILE", outText, into(options->out), options->out)
        .repeatedOption("--explain", "NAME[,NAME...]", "print where these combinations come from, instead of the result; stores nothing; may be repeated",
                        into(options->explain))
        .flag("--why-not", "print which rows of the code gave nothing and why, instead of the result; stores nothing", options->whyNot)
        .example("zel generate tower.qvx --code \"KDS 41 20 : 2022\" --replace --orthogonal --scale EX=1.25,EXe");
    runs(command, options, generateCombinations);
}

void addCombinations(CommandLine& line)
{
    Command& command = line.add("combinations", "List or export the stored load combinations");
    auto options = std::make_shared<ListCombinations>();
    command.argument("MODEL", "the model file", into(options->model))
        .option("--kind", "1-5", "design kind; all kinds without it", wholeNumber(options->kind, 1, 5));
    addFormat(command, options->format);
    command.option("--out", "FILE", outText, into(options->out), options->out).example("zel combinations tower.qvx --format csv --out tower.csv");
    runs(command, options, listCombinations);
}

void addImportLcb(CommandLine& line)
{
    Command& command = line.add("import-lcb", "Add the load combinations of an LCB file");
    auto options = std::make_shared<ImportLcb>();
    command.argument("MODEL", "the model file", into(options->model))
        .argument("FILE", "the LCB file; - is standard input", into(options->file))
        .option("--kind", "1-5", "design kind", wholeNumber(options->kind, 1, 5), "1")
        .note("One combination a line: its ID, any text, then load case and factor by turns. A load case is named by its place in the sequence of the "
              "static load cases, from 1. \"**\" as a field begins a comment, and lines of one ID are one combination:\n"
              "  12, any, 1, 1.2, 2, 1.6, ** dead and live\n"
              "The combinations are named LCB and their ID. All of them are stored, or none.")
        .note("Exit status: 0 all combinations were stored; 1 the file or the model has a fault, and nothing was stored; 2 wrong usage.")
        .example("zel import-lcb tower.qvx tower.lcb");
    runs(command, options, importLcb);
}

void addEnvelopes(CommandLine& line)
{
    Command& command = line.add("envelopes", "List the envelopes and what each is made of");
    auto options = std::make_shared<ListEnvelopes>();
    command.argument("MODEL", "the model file", into(options->model)).example("zel envelopes tower.qvx");
    runs(command, options, listEnvelopes);
}

void addCodes(CommandLine& line)
{
    Command& command = line.add("codes", "List the design codes and what each treats");
    auto options = std::make_shared<ListCodes>();
    command.option("--rows", "NAME", "list the rows of this code, with \"±\" and X written out", into(options->rows))
        .flag("--json", "print JSON", options->json)
        .example("zel codes --rows BS8110-97");
    runs(command, options, listCodes);
}

void addBatch(CommandLine& line)
{
    Command& command = line.add("batch", "Generate for many models: jobs from standard input, one JSON object a line, a result line each");
    command.example("zel batch < jobs.jsonl > results.jsonl").does([] { return runBatch(); });
}

void addHelp(CommandLine& line)
{
    Command& command = line.add("help", "Tell about a command, or about all");
    auto name = std::make_shared<std::string>();
    command.optionalArgument("COMMAND", "the command", into(*name)).example("zel help generate").does([&line, name] {
        line.printHelp(*name);
        return succeeded;
    });
}

}  // namespace

void addCommands(CommandLine& line)
{
    addNew(line);
    addInfo(line);
    addCheck(line);
    addLoad(line);
    addDump(line);
    addPlay(line);
    addGenerate(line);
    addCombinations(line);
    addImportLcb(line);
    addEnvelopes(line);
    addCodes(line);
    addBatch(line);
    addHelp(line);
}

}  // namespace zel::cli
