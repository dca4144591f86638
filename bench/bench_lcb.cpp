// An LCB file of 100,000 lines, each a combination of four load cases.
//
//   Read      the file in memory into records
//     lines_per_second
//     bytes_ratio           peak of the memory taken over the bytes of the records
//   Import    the file into a model file, in one change
//     lines_per_second
//     ratio_to_bare_insert  time over prepared inserts of the same rows in one transaction
//
// The ratio is measured inside one run, the two sides in turn.

#include "bare_combinations.h"
#include "contract/tables/static_load_case_table.h"
#include "counted_memory.h"
#include "loadcomb/editor/lcb_import.h"
#include "platform/modeldb/model_document.h"

#include <benchmark/benchmark.h>
#include <sstream>
#include <string>

namespace {

using zel::bench::memory;
using zel::bench::timed;

constexpr int lineCount = 100'000;
constexpr int caseCount = 20;

std::string file()
{
    std::string text;
    for (int id = 1; id <= lineCount; ++id) {
        text += std::to_string(id) + ", storey " + std::to_string(id % 40);
        for (int i = 0; i < 4; ++i)
            text += ", " + std::to_string((id + 5 * i) % caseCount + 1) + ", " + std::to_string(1.2 + 0.05 * i);
        text += ", ** generated\n";
    }
    return text;
}

std::vector<zel::Key> cases()
{
    std::vector<zel::Key> keys;
    for (zel::Key key = 1; key <= caseCount; ++key)
        keys.push_back(key);
    return keys;
}

std::vector<T_LCOM_D> combinations(const std::string& text)
{
    std::istringstream stream(text);
    return zel::lcb::read(stream, cases()).combinations;
}

void Read(benchmark::State& state)
{
    const auto model = zel::ModelDocument::inMemory();
    const std::string text = file();
    double seconds = 0.0;
    for (auto iteration : state) {
        const double once = timed([&] { benchmark::DoNotOptimize(combinations(text)); });
        seconds += once;
        state.SetIterationTime(once);
    }
    std::istringstream stream(text);
    const std::vector<zel::Key> keys = cases();
    memory = {true, 0, 0};
    const zel::lcb::Contents contents = zel::lcb::read(stream, keys);
    memory.on = false;
    std::size_t bytes = 0;
    for (const T_LCOM_D& each : contents.combinations)
        bytes += sizeof each + each.items.size() * sizeof(T_LCOM_ITEM);
    state.counters["lines_per_second"] = static_cast<double>(state.iterations()) * lineCount / seconds;
    state.counters["bytes_ratio"] = static_cast<double>(memory.peak) / static_cast<double>(bytes);
}
BENCHMARK(Read)->UseManualTime()->Unit(benchmark::kMillisecond);

void Import(benchmark::State& state)
{
    const std::string text = file();
    const std::vector<T_LCOM_D> rows = [&] {
        const auto model = zel::ModelDocument::inMemory();
        return combinations(text);
    }();
    double ours = 0.0;
    double bare = 0.0;
    for (auto iteration : state) {
        bare += zel::bench::bareInsert(zel::bench::scratch("zel-bench-lcb-bare.db"), rows);
        const auto model = zel::ModelDocument::create(zel::bench::scratch("zel-bench-lcb.qvx"));
        for (int i = 1; i <= caseCount; ++i) {
            T_STLD_D record;
            record.name = "case " + std::to_string(i);
            CDataStld().Add(record);
        }
        std::istringstream stream(text);
        const double seconds = timed([&] {
            if (zel::lcb::importFile(1, stream) == 0)
                state.SkipWithError("the import failed");
        });
        ours += seconds;
        state.SetIterationTime(seconds);
    }
    state.counters["lines_per_second"] = static_cast<double>(state.iterations()) * lineCount / ours;
    state.counters["ratio_to_bare_insert"] = ours / bare;
}
BENCHMARK(Import)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace

BENCHMARK_MAIN();
