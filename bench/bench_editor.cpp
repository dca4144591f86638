// The load combination editor on n combinations of 8 items over 60 load cases; n is the argument.
//
//   Open           the dialog, until both forms hold their rows and a screenful of the spreadsheet is read
//   Toggle         to the other form, with a screenful read
//   AddAll         one notice of n additions
//   DeleteFirst    the first combination goes: one notice in which all others get another number
//   MoveLast       the last one goes to the front: the same, with the order changed
//   ModifyOne      one combination in the middle changes
//     growth           exponent of the time over n, from n/8 to n: 1 is linear, 2 quadratic
//     ratio_to_closed  time of the change with the editor open over the time of the same change without it
//
// The ratio is measured inside one run, the two sides in turn.

#include "command/command.h"
#include "contract/forms/dialog.h"
#include "contract/forms/find_control.h"
#include "contract/forms/grid_browser_ex.h"
#include "contract/tables/load_combination_table.h"
#include "contract/tables/static_load_case_table.h"
#include "measure.h"
#include "platform/forms/headless_user_interface.h"
#include "platform/modeldb/model_document.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cmath>
#include <stdexcept>

namespace {

using zel::bench::timed;

constexpr int caseCount = 60;
constexpr int itemCount = 8;
constexpr int screenful = 40;

void require(bool done)
{
    if (!done)
        throw std::runtime_error("a step of the bench was refused");
}

std::vector<T_LCOM_D> combinations(int count)
{
    std::vector<T_LCOM_D> records(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        T_LCOM_D& record = records[static_cast<std::size_t>(i)];
        record.name = "LCB" + std::to_string(i + 1);
        record.description = "1.2D + 1.6L + 0.5S, wind from " + std::to_string(i % 36 * 10);
        for (int item = 0; item < itemCount; ++item)
            record.items.push_back({1, static_cast<zel::Key>((i + 7 * item) % caseCount + 1), 1.2 + 0.1 * item});
    }
    return records;
}

/// A model in memory with its load cases and combinations, and the editor on it.
class Desk {
public:
    explicit Desk(int count)
    {
        std::vector<T_STLD_D> cases(caseCount);
        for (std::size_t i = 0; i < cases.size(); ++i) {
            cases[i].name = "CASE" + std::to_string(i + 1);
            cases[i].type = "L";
        }
        require(CDataStld().Add(cases) != 0);
        if (count > 0)
            require(CDataLcom().Add(1, combinations(count)) != 0);
    }

    void open()
    {
        m_editor = dynamic_cast<CDialog*>(CMD_DoModeless(D_CMD_RESULT_LOADCOMB, nullptr));
        require(m_editor != nullptr);
    }
    void toggle() { require(zel::findControl(*m_editor, "toggle").control->press().ok()); }
    /// Reads what a screen shows of the spreadsheet, from a row on.
    void readScreen(int first) const
    {
        const auto* grid = dynamic_cast<CTBGrid*>(zel::findControl(*m_editor, "grid").control);
        for (zel::Row row = zel::Row::of(first); row < first + screenful; ++row) {
            for (const zel::ColumnIndex index : grid->GetAllColumns())
                benchmark::DoNotOptimize(grid->GetShownText(row, index));
        }
    }

private:
    std::unique_ptr<zel::ModelDocument> m_model = zel::ModelDocument::inMemory();
    zel::HeadlessUserInterface m_user;
    CDialog* m_editor = nullptr;
};

// Each gives its time [s].

double openEditor(int count, bool /*editor*/)
{
    Desk desk(count);
    return timed([&] {
        desk.open();
        desk.readScreen(1);
    });
}

double toggleForms(int count, bool /*editor*/)
{
    Desk desk(count);
    desk.open();
    return timed([&] {
        desk.toggle();
        desk.readScreen(count / 2);
        desk.toggle();
    });
}

template <class Change> double changed(int count, bool editor, Change change)
{
    Desk desk(count);
    if (editor)
        desk.open();
    return timed([&] { require(change() != 0); });
}

double addAll(int count, bool editor)
{
    std::vector<T_LCOM_D> added = combinations(count);
    return changed(0, editor, [&] { return CDataLcom().Add(1, std::move(added)); });
}

double deleteFirst(int count, bool editor)
{
    return changed(count, editor, [] { return CDataLcom().Del(1, std::vector<CString>{"LCB1"}); });
}

double moveLast(int count, bool editor)
{
    const auto last = static_cast<zel::Key>(count);
    return changed(count, editor, [last] { return CDataLcom().ChangeSequence(1, {last}, 0); });
}

double modifyOne(int count, bool editor)
{
    return changed(count, editor, [count] {
        CDataLcom data;
        data.Get(1, static_cast<zel::Key>(count / 2));
        data.currentRecord.description += "!";
        return data.Modify(1, data.currentRecord.name);
    });
}

using Measure = double (*)(int count, bool editor);

double best(Measure measure, int count)
{
    double least = 1e9;
    for (int run = 0; run < 5; ++run)
        least = std::min(least, measure(count, true));
    return least;
}

void Editor(benchmark::State& state, Measure measure, bool comparable)
{
    const auto count = static_cast<int>(state.range(0));
    double open = 0.0;
    double closed = 0.0;
    for (auto iteration : state) {
        if (comparable)
            closed += measure(count, false);
        const double seconds = measure(count, true);
        open += seconds;
        state.SetIterationTime(seconds);
    }
    state.counters["growth"] = std::log(best(measure, count) / best(measure, count / 8)) / std::log(8.0);
    if (comparable)
        state.counters["ratio_to_closed"] = open / closed;
}
BENCHMARK_CAPTURE(Editor, Open, openEditor, false)->Arg(20'000)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);
BENCHMARK_CAPTURE(Editor, Toggle, toggleForms, false)->Arg(20'000)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);
BENCHMARK_CAPTURE(Editor, AddAll, addAll, true)->Arg(20'000)->Arg(160'000)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);
BENCHMARK_CAPTURE(Editor, DeleteFirst, deleteFirst, true)->Arg(20'000)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);
BENCHMARK_CAPTURE(Editor, MoveLast, moveLast, true)->Arg(20'000)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);
BENCHMARK_CAPTURE(Editor, ModifyOne, modifyOne, true)->Arg(20'000)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);

}  // namespace

BENCHMARK_MAIN();
