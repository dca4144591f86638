#pragma once

#include "cli/combination_printer.h"
#include "contract/records/unit_index.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// The commands of `zel`, each in the file of its name. They return the exit code of the program and throw what ends the job
/// with code 1: a std::exception whose text says what went wrong, where, and what to do.
namespace zel::cli {

inline constexpr int succeeded = 0;
inline constexpr int jobFailed = 1;
inline constexpr int wrongUsage = 2;
inline constexpr int interrupted = 130;  ///< by Ctrl-C, as shells number it

struct NewModel {
    std::filesystem::path model;
    T_UNIT_INDEX units;
};
int newModel(const NewModel& job);

struct ModelInfo {
    std::filesystem::path model;
    bool json = false;
};
int modelInfo(const ModelInfo& job);

struct CheckModel {
    std::filesystem::path model;
    std::optional<std::filesystem::path> salvage;  ///< new file for what can be read
    bool json = false;
};
/// @return  0 without a fault, 1 with faults, 2 when the file can't be read at all
int checkModel(const CheckModel& job);

struct LoadModel {
    std::string file;  ///< "-" is standard input
    std::filesystem::path model;
    bool replace = false;
};
int loadModel(const LoadModel& job);

struct DumpModel {
    std::filesystem::path model;
};
int dumpModel(const DumpModel& job);

struct PlayJournal {
    std::optional<std::filesystem::path> model;  ///< none: a new one in memory
    std::string script = "-";
    std::string transcript = "-";
    bool showKeys = false;
    bool runHostCommands = true;
    bool strict = false;
};
int playJournal(const PlayJournal& job);

struct GenerateCombinations {
    std::filesystem::path model;
    std::string code;
    int kind = 1;
    bool replace = false;
    int combType = 0;
    bool orthogonal = false;
    double alphaH = 1.0;
    std::vector<std::string> scales;  ///< "CASE=FACTOR[,PARTNER]"
    bool dryRun = false;
    Format format = Format::table;
    std::string out = "-";
    std::vector<std::string> explain;  ///< names of combinations
    bool whyNot = false;
};
int generateCombinations(const GenerateCombinations& job);

struct ListCombinations {
    std::filesystem::path model;
    std::optional<int> kind;  ///< none: all kinds
    Format format = Format::table;
    std::string out = "-";
};
int listCombinations(const ListCombinations& job);

struct ListEnvelopes {
    std::filesystem::path model;
};
int listEnvelopes(const ListEnvelopes& job);

struct ImportLcb {
    std::filesystem::path model;
    std::string file;  ///< "-" is standard input
    int kind = 1;
};
int importLcb(const ImportLcb& job);

struct ListCodes {
    bool json = false;
    std::string rows;  ///< name of the code whose rows are listed; empty: all codes are
};
int listCodes(const ListCodes& job);

/// Reads jobs from standard input, one a line, and prints the result of each on a line.
int runBatch();

}  // namespace zel::cli
