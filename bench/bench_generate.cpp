// `zel generate` as a user runs it.
//
//   Process   the worked example, from the start of the process to its end; each run on a model file that holds no combination yet
//     median_ms
//   Replace   the generation of a tower (see bench_loadcomb) into a model file that holds its combinations already; the argument is the
//             number of wind sets
//     ratio_to_first_run    time over that of the first generation, into an empty table
//     rows                  combinations that are replaced

#include "contract/tables/load_combination_table.h"
#include "contract/tables/load_set_tables.h"
#include "contract/tables/static_load_case_table.h"
#include "loadcomb/generation/load_comb_ctrl.h"
#include "measure.h"
#include "platform/forms/headless_user_interface.h"
#include "platform/modeldb/model_document.h"
#include "tower.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

using zel::bench::scratch;
using zel::bench::timed;
using zel::bench::Tower;

constexpr const char* worked = "AIK-USD94";

/// The program beside this one.
std::filesystem::path zelProgram()
{
    return std::filesystem::read_symlink("/proc/self/exe").parent_path() / "zel";
}

/// Runs a program without output; whether it ended with 0.
bool run(const std::vector<std::string>& words)
{
    std::vector<char*> arguments;
    for (const std::string& word : words)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t process = 0;
    const int failed = posix_spawn(&process, arguments.front(), &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    int status = -1;
    return failed == 0 && waitpid(process, &status, 0) == process && status == 0;
}

/// The worked example of docs/combinations.md, as a model file.
std::filesystem::path workedModel()
{
    const std::filesystem::path path = scratch("zel-bench-worked.qvx");
    const auto model = zel::ModelDocument::create(path);
    for (const auto& [name, type] : {std::pair{"DL", "D"}, {"LL", "L"}, {"WX", "W"}, {"EX", "E"}}) {
        T_STLD_D loadCase;
        loadCase.name = name;
        loadCase.type = type;
        CDataStld().Add(loadCase);
    }
    return path;
}

void Process(benchmark::State& state)
{
    const std::string program = zelProgram().string();
    const std::filesystem::path model = workedModel();
    std::vector<double> times;
    for (auto iteration : state) {
        const std::filesystem::path copy = scratch("zel-bench-process.qvx");
        std::filesystem::copy_file(model, copy);
        bool ok = false;
        const double seconds = timed([&] { ok = run({program, "generate", copy.string(), "--code", worked}); });
        if (!ok) {
            state.SkipWithError("zel is not built beside this bench, or refused");
            return;
        }
        times.push_back(seconds);
        state.SetIterationTime(seconds);
    }
    std::nth_element(times.begin(), times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2), times.end());
    state.counters["median_ms"] = 1000.0 * times[times.size() / 2];
}
BENCHMARK(Process)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(100);

/// Puts the load cases and sets of a tower into the current model.
void store(const Tower& tower)
{
    for (const zel::loadcomb::LoadCase& each : tower.model.cases) {
        T_STLD_D loadCase;
        loadCase.name = each.name;
        loadCase.type = each.type;
        CDataStld().Add(loadCase);
    }
    CDataLcwd().Add(*tower.model.windSets);
    CDataLcoe().Add(*tower.model.orthogonal);
}

double replace(const Tower& tower)
{
    CLoadCombCtrl control;
    control.SetScaleFactors(tower.options.scaleFactors);
    control.SetEccentricCases(tower.options.eccentricCases);
    control.SetOrthoOption(1);
    return timed([&] {
        constexpr int replaceMode = 1;
        if (control.Generate(replaceMode, Tower::code) == 0)
            throw std::runtime_error("the model refused the rows");
    });
}

void Replace(benchmark::State& state)
{
    const Tower tower(state.range(0));
    zel::HeadlessUserInterface host;
    double first = 0.0;
    double again = 0.0;
    for (auto iteration : state) {
        const auto model = zel::ModelDocument::create(scratch("zel-bench-replace.qvx"));
        store(tower);
        first += replace(tower);
        const double seconds = replace(tower);
        again += seconds;
        state.SetIterationTime(seconds);
        state.counters["rows"] = CDataLcom().GetCount(1);
    }
    state.counters["ratio_to_first_run"] = again / first;
}
BENCHMARK(Replace)->Arg(10)->Arg(100)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace

BENCHMARK_MAIN();
