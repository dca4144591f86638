// The model database against bare SQLite on the same rows: 100,000 static load cases in one table.
//
//   ratio_to_bare_insert   bulk add in one change, durable, over a bare prepared insert of the same rows in one transaction
//   ratio_to_bare_read     opening the file with every hash checked, over reading the same rows into records
//   ratio_replace_to_first opening a model of 21,600 combinations, replacing them all in one change and closing it, over opening a
//                          model without any, adding them and closing it
//   ns_per_get             Get by key and by name
//
// Each ratio is measured inside one run, the two sides in turn.

#include "contract/change_scope.h"
#include "contract/table.h"
#include "contract/tables/load_combination_table.h"
#include "contract/tables/static_load_case_table.h"
#include "measure.h"
#include "platform/modeldb/file_format.h"
#include "platform/modeldb/model_document.h"

#include <benchmark/benchmark.h>
#include <random>

namespace {

using zel::bench::check;
using zel::bench::scratch;
using zel::bench::timed;

constexpr int rowCount = 100'000;

std::vector<T_STLD_D> records()
{
    std::vector<T_STLD_D> made(rowCount);
    for (int i = 0; i < rowCount; ++i) {
        T_STLD_D& record = made[static_cast<std::size_t>(i)];
        record.name = "Load case " + std::to_string(i);
        record.type = "L";
        record.description = "Live load of storey " + std::to_string(i % 100);
        record.selfWeightFactor = 0.25 * i;
    }
    return made;
}

/// A prepared insert of the same rows into the same schema with the same settings, and nothing else.
double bareInsert(const std::filesystem::path& path, const std::vector<T_STLD_D>& rows)
{
    sqlite3* database = nullptr;
    check(sqlite3_open(path.c_str(), &database));
    const zel::SqlTable& table = zel::sqlTable(zel::tableInfo(Table::STLD));
    const CString setUp = "PRAGMA locking_mode=EXCLUSIVE; PRAGMA journal_mode=WAL; PRAGMA synchronous=FULL; PRAGMA cache_size=-65536; " + table.create;
    check(sqlite3_exec(database, setUp.c_str(), nullptr, nullptr, nullptr));
    sqlite3_stmt* insert = nullptr;
    check(sqlite3_prepare_v2(database, zel::insertStatement(table).c_str(), -1, &insert, nullptr));
    const double seconds = timed([&] {
        check(sqlite3_exec(database, "BEGIN", nullptr, nullptr, nullptr));
        int key = 0;
        for (const T_STLD_D& row : rows) {
            sqlite3_bind_int64(insert, 1, ++key);
            sqlite3_bind_text(insert, 2, row.name.data(), static_cast<int>(row.name.size()), SQLITE_STATIC);
            sqlite3_bind_int(insert, 3, key);
            sqlite3_bind_text(insert, 4, row.type.data(), static_cast<int>(row.type.size()), SQLITE_STATIC);
            sqlite3_bind_text(insert, 5, row.description.data(), static_cast<int>(row.description.size()), SQLITE_STATIC);
            sqlite3_bind_double(insert, 6, row.selfWeightFactor);
            sqlite3_bind_int(insert, 7, row.subLoadCaseCount);
            sqlite3_bind_int64(insert, 8, row.combinationType);
            sqlite3_bind_int(insert, 9, row.majorCase);
            check(sqlite3_step(insert));
            sqlite3_reset(insert);
        }
        check(sqlite3_exec(database, "COMMIT", nullptr, nullptr, nullptr));
    });
    sqlite3_finalize(insert);
    sqlite3_close(database);
    return seconds;
}

void BulkAdd(benchmark::State& state)
{
    const std::vector<T_STLD_D> rows = records();
    double ours = 0.0;
    double bare = 0.0;
    for (auto iteration : state) {
        bare += bareInsert(scratch("zel-bench-bare.db"), rows);
        const auto model = zel::ModelDocument::create(scratch("zel-bench-model.qvx"));
        const double seconds = timed([&] {
            if (CDataStld().Add(rows) == 0)
                state.SkipWithError("the model refused the rows");
        });
        ours += seconds;
        state.SetIterationTime(seconds);
    }
    state.counters["ratio_to_bare_insert"] = ours / bare;
    state.counters["rows_per_second"] = benchmark::Counter(static_cast<double>(state.iterations()) * rowCount / ours);
}
BENCHMARK(BulkAdd)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(7);

double bareRead(const std::filesystem::path& path)
{
    return timed([&] {
        sqlite3* database = nullptr;
        check(sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READONLY, nullptr));
        sqlite3_stmt* select = nullptr;
        check(sqlite3_prepare_v2(database, zel::selectStatement(zel::sqlTable(zel::tableInfo(Table::STLD))).c_str(), -1, &select, nullptr));
        const auto text = [&](int column) {
            return CString(reinterpret_cast<const char*>(sqlite3_column_text(select, column)), static_cast<std::size_t>(sqlite3_column_bytes(select, column)));
        };
        std::vector<std::pair<std::int64_t, T_STLD_D>> rows;
        while (sqlite3_step(select) == SQLITE_ROW) {
            auto& [key, row] = rows.emplace_back();
            key = sqlite3_column_int64(select, 0);
            row.name = text(1);
            row.no = sqlite3_column_int(select, 2);
            row.type = text(3);
            row.description = text(4);
            row.selfWeightFactor = sqlite3_column_double(select, 5);
            row.subLoadCaseCount = sqlite3_column_int(select, 6);
            row.combinationType = static_cast<std::uint32_t>(sqlite3_column_int64(select, 7));
            row.majorCase = sqlite3_column_int(select, 8);
        }
        benchmark::DoNotOptimize(rows.data());
        sqlite3_finalize(select);
        sqlite3_close(database);
    });
}

void Open(benchmark::State& state)
{
    const std::filesystem::path path = scratch("zel-bench-open.qvx");
    {
        const auto model = zel::ModelDocument::create(path);
        CDataStld().Add(records());
    }
    double ours = 0.0;
    double bare = 0.0;
    for (auto iteration : state) {
        bare += bareRead(path);
        std::unique_ptr<zel::ModelDocument> model;
        const double seconds = timed([&] { model = zel::ModelDocument::open(path); });
        ours += seconds;
        state.SetIterationTime(seconds);
    }
    state.counters["ratio_to_bare_read"] = ours / bare;
}
BENCHMARK(Open)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(11);

/// The combinations of a tower with many wind sets: 21,600 of 20 items.
std::vector<T_LCOM_D> combinations(const char* prefix)
{
    std::vector<T_LCOM_D> made(21'600);
    for (std::size_t i = 0; i < made.size(); ++i) {
        made[i].name = prefix + std::to_string(i + 1);
        made[i].description = "1.2(D) + 1.0E" + std::to_string(i % 100);
        for (zel::Key key = 1; key <= 20; ++key)
            made[i].items.push_back({1, key, 0.1 * static_cast<double>(key + i % 7)});
    }
    return made;
}

/// Opens the model, puts the combinations in the place of all that are there, and closes it.
double replaceAll(const std::filesystem::path& path, std::vector<T_LCOM_D> made)
{
    return timed([&] {
        const auto model = zel::ModelDocument::open(path);
        CDataLcom table;
        std::vector<CString> names;
        table.GetNameList(1, names);
        zel::ChangeScope change(*model, "Replace", CDBDoc::NoticeTime::atEnd);
        if ((!names.empty() && table.Del(1, names) == 0) || table.Add(1, std::move(made)) == 0 || change.end() == 0)
            throw std::runtime_error("the model refused the combinations");
    });
}

void ReplaceCombinations(benchmark::State& state)
{
    double first = 0.0;
    double again = 0.0;
    for (auto iteration : state) {
        const std::filesystem::path path = scratch("zel-bench-replace.qvx");
        zel::ModelDocument::create(path);
        first += replaceAll(path, combinations("gLCB"));
        const double seconds = replaceAll(path, combinations("gLCB"));
        again += seconds;
        state.SetIterationTime(seconds);
    }
    state.counters["ratio_replace_to_first"] = again / first;
}
BENCHMARK(ReplaceCombinations)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(7);

/// A model in memory with the rows, as big as the argument says.
std::unique_ptr<zel::ModelDocument> filled(std::int64_t size)
{
    auto model = zel::ModelDocument::inMemory();
    std::vector<T_STLD_D> rows = records();
    rows.resize(static_cast<std::size_t>(size));
    CDataStld().Add(rows);
    return model;
}

void GetByKey(benchmark::State& state)
{
    const auto model = filled(state.range(0));
    std::mt19937 random(1);
    CDataStld cases;
    const double seconds = timed([&] {
        for (auto iteration : state)
            benchmark::DoNotOptimize(cases.Get(static_cast<zel::Key>(random() % static_cast<unsigned>(state.range(0)) + 1)));
    });
    state.counters["ns_per_get"] = seconds * 1e9 / static_cast<double>(state.iterations());
}
BENCHMARK(GetByKey)->Arg(1'000)->Arg(rowCount);

void GetByName(benchmark::State& state)
{
    const auto model = filled(state.range(0));
    const std::vector<T_STLD_D> rows = records();
    std::mt19937 random(1);
    CDataStld cases;
    const double seconds = timed([&] {
        for (auto iteration : state)
            benchmark::DoNotOptimize(cases.Get(rows[random() % static_cast<unsigned>(state.range(0))].name));
    });
    state.counters["ns_per_get"] = seconds * 1e9 / static_cast<double>(state.iterations());
}
BENCHMARK(GetByName)->Arg(1'000)->Arg(rowCount);

/// One insert and one delete at the end of the sequence of a model of the given size.
void InsertAndDelete(benchmark::State& state)
{
    const auto model = filled(state.range(0));
    CDataStld cases;
    T_STLD_D record;
    record.name = "one more";
    for (auto iteration : state) {
        cases.Add(record);
        cases.Del(record.name);
    }
}
BENCHMARK(InsertAndDelete)->Arg(1'000)->Arg(rowCount);

}  // namespace

BENCHMARK_MAIN();
