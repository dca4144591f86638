#pragma once

#include "contract/records/unit_index.h"

#include <filesystem>
#include <optional>
#include <string>

/// The commands of `zel`, each in the file of its name. They return the exit code of the program and throw what ends the job
/// with code 1: a std::exception whose text says what went wrong, where, and what to do.
namespace zel::cli {

inline constexpr int succeeded = 0;
inline constexpr int jobFailed = 1;
inline constexpr int wrongUsage = 2;

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

struct LoadModel {
    std::string file;    ///< "-" is standard input
    std::filesystem::path model;
    bool replace = false;
};
int loadModel(const LoadModel& job);

struct DumpModel {
    std::filesystem::path model;
};
int dumpModel(const DumpModel& job);

struct PlayJournal {
    std::optional<std::filesystem::path> model;    ///< none: a new one in memory
    std::string script = "-";
    std::string transcript = "-";
    bool showKeys = false;
    bool runHostCommands = true;
    bool strict = false;
};
int playJournal(const PlayJournal& job);

}  // namespace zel::cli
