// The generator of load combinations on a tower: one case each of D, L, LR and S, n wind sets with along, across and torsion case, 8 earthquake
// cases in 4 orthogonal pairs, each with an eccentric partner; code "KDS 41 20 : 2022", orthogonal. n is the argument.
//
//   Generate          in memory, without a model
//     rows_per_second       combinations made in a second
//     ratio_to_bare_build   time over a loop that copies the same names, formulas and items into the same structs
//     bytes_ratio           peak of the memory taken during the run over the bytes of the rows
//     growth                exponent of the time over n: from n/10 (n/4 for 400) to n
//   Store             the rows of a run into a model file
//     ratio_to_bare_insert  time over prepared inserts of the same rows in one transaction
//
// Each ratio is measured inside one run, the two sides in turn.

#include "bare_combinations.h"
#include "contract/tables/load_combination_table.h"
#include "counted_memory.h"
#include "loadcomb/generation/generator.h"
#include "platform/modeldb/model_document.h"
#include "tower.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cmath>

namespace {

using zel::bench::bareInsert;
using zel::bench::memory;
using zel::bench::scratch;
using zel::bench::timed;
using zel::bench::Tower;
using zel::loadcomb::Generator;

std::vector<T_LCOM_D> generated(const Tower& tower)
{
    Generator generator(tower.model, tower.options);
    generator.dispatch(Tower::code);
    return std::move(generator.rows());
}

/// The same structs with the same contents, as bare as they can be built.
std::vector<T_LCOM_D> built(const std::vector<T_LCOM_D>& rows)
{
    std::vector<T_LCOM_D> copies;
    for (const T_LCOM_D& row : rows) {
        T_LCOM_D& copy = copies.emplace_back();
        copy.kind = row.kind;
        copy.name = row.name;
        copy.number = row.number;
        copy.active = row.active;
        copy.description = row.description;
        copy.items = row.items;
    }
    return copies;
}

std::ptrdiff_t peakOf(const Tower& tower)
{
    memory = {true, 0, 0};
    const std::vector<T_LCOM_D> rows = generated(tower);
    memory.on = false;
    return memory.peak;
}

std::ptrdiff_t bytesOf(const std::vector<T_LCOM_D>& rows)
{
    std::ptrdiff_t bytes = 0;
    for (const T_LCOM_D& row : rows) {
        std::size_t size = sizeof row + row.items.size() * sizeof(T_LCOM_ITEM);
        if (row.description.size() > 15)  // longer than what a string holds in itself
            size += row.description.size() + 1;
        bytes += static_cast<std::ptrdiff_t>(size);
    }
    return bytes;
}

double bestTime(const Tower& tower, int runs)
{
    double best = 1e9;
    for (int i = 0; i < runs; ++i)
        best = std::min(best, timed([&] { benchmark::DoNotOptimize(generated(tower)); }));
    return best;
}

void Generate(benchmark::State& state)
{
    const Tower tower(state.range(0));
    double ours = 0.0;
    double bare = 0.0;
    double rowCount = 0.0;
    for (auto iteration : state) {
        std::vector<T_LCOM_D> rows;
        const double seconds = timed([&] { rows = generated(tower); });
        std::vector<T_LCOM_D> copies;
        bare += timed([&] { copies = built(rows); });
        ours += seconds;
        rowCount = static_cast<double>(rows.size());
        state.SetIterationTime(seconds);
    }
    state.counters["rows"] = rowCount;
    state.counters["rows_per_second"] = static_cast<double>(state.iterations()) * rowCount / ours;
    state.counters["ratio_to_bare_build"] = ours / bare;
    state.counters["bytes_ratio"] = static_cast<double>(peakOf(tower)) / static_cast<double>(bytesOf(generated(tower)));
    if (state.range(0) > 1) {
        const double smaller = static_cast<double>(state.range(0) >= 400 ? state.range(0) / 4 : state.range(0) / 10);
        const double ratio = bestTime(tower, 5) / bestTime(Tower(static_cast<std::int64_t>(smaller)), 5);
        state.counters["growth"] = std::log(ratio) / std::log(static_cast<double>(state.range(0)) / smaller);
    }
}
BENCHMARK(Generate)->Arg(1)->Arg(10)->Arg(100)->Arg(400)->UseManualTime()->Unit(benchmark::kMillisecond);

void Store(benchmark::State& state)
{
    const std::vector<T_LCOM_D> rows = generated(Tower(state.range(0)));
    double ours = 0.0;
    double bare = 0.0;
    for (auto iteration : state) {
        bare += bareInsert(scratch("zel-bench-loadcomb-bare.db"), rows);
        const auto model = zel::ModelDocument::create(scratch("zel-bench-loadcomb.qvx"));
        std::vector<T_LCOM_D> given = rows;
        const double seconds = timed([&] {
            if (CDataLcom().Add(1, std::move(given)) == 0)
                state.SkipWithError("the model refused the rows");
        });
        ours += seconds;
        state.SetIterationTime(seconds);
    }
    state.counters["ratio_to_bare_insert"] = ours / bare;
    state.counters["rows_per_second"] = static_cast<double>(state.iterations()) * static_cast<double>(rows.size()) / ours;
}
BENCHMARK(Store)->Arg(10)->Arg(100)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace

BENCHMARK_MAIN();
