// A grid of 100,000 rows and 60 columns, filled as it is read, in the window of its dialog. Off screen.
//
//   Open      from opening the dialog to the painted window
//     open_ms          mean
//     budget_ms        what it must stay below
//   Scroll    100 steps down through the rows, each painted
//     scroll_frame_ms  mean of a step
//   Refresh   one cell changes: what is shown follows, and is painted
//     refresh_ms       mean
//     hidden_scan_ms   part of it: asking each row whether it is hidden

#include "contract/forms/dialog.h"
#include "contract/forms/grid_common.h"
#include "desktop/forms/form_window.h"
#include "platform/forms/headless_user_interface.h"

#include <QApplication>
#include <QScrollBar>
#include <QTableView>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <chrono>

namespace {

constexpr int rowCount = 100'000;
constexpr int columnCount = 60;
constexpr int scrollSteps = 100;
constexpr double openBudget = 300.0;  ///< [ms]

class LongGrid final : public CTBCommon {
public:
    explicit LongGrid(const zel::Place& place) : CTBCommon(place, "grid")
    {
        AddColInfo("No", 1, 0);
        for (int index = 1; index < columnCount; ++index) {
            SetColPlaces(AddColInfo("Factor " + std::to_string(index), 2, 0), 4);
        }
        SetColDisabled(0);
        SetColFrozen(0);
        ShowRowsOnDemand(true);
    }

    int filled = 0;  ///< rows; they are filled when they are painted

    int GetCountData() override { return rowCount; }
    void MakeItemNormal(int /*count*/, const CArray<ColumnIndex>& /*columns*/) override {}
    void MakeItemFiltered(int /*count*/, const CArray<Row>& rows, const CArray<ColumnIndex>& /*columns*/) override
    {
        filled += static_cast<int>(rows.size());
        for (const Row row : rows) {
            CArray<CString> texts{std::to_string(row.number())};
            for (int index = 1; index < columnCount; ++index)
                texts.push_back(std::to_string(row.number() % 97) + "." + std::to_string(index));
            SetRowTexts(row, texts);
        }
    }
};

class LongDialog final : public CDlgMove {
public:
    LongDialog() : CDlgMove(1, "Rows") {}

    LongGrid grid{*this};

    void open()
    {
        openModeless();
        SetActiveWindow();
        grid.Initialize();
    }
};

/// The dialog and its window, painted.
class Desk {
public:
    Desk()
    {
        dialog.open();
        window = std::make_unique<zel::desktop::FormWindow>(dialog, hand, nullptr);
        window->resize(1200, 800);
        window->show();
        paint();
    }
    ~Desk() { dialog.DestroyWindow(); }
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    QTableView& view() { return dynamic_cast<QTableView&>(window->viewOf(dialog.grid)->widget()); }
    /// Lets what has changed be shown and painted.
    static void paint() { QCoreApplication::processEvents(); }

    zel::UserHand hand;
    LongDialog dialog;
    std::unique_ptr<zel::desktop::FormWindow> window;

private:
    zel::HeadlessUserInterface m_user;
};

/// Time that some work takes [ms].
template <class Work> double timed(Work work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

void Open(benchmark::State& state)
{
    double sum = 0.0;
    for (auto iteration : state) {
        std::unique_ptr<Desk> desk;
        const double time = timed([&] { desk = std::make_unique<Desk>(); });
        state.SetIterationTime(time / 1000.0);
        sum += time;
        if (desk->dialog.grid.filled == 0)
            state.SkipWithError("the rows were not painted");
    }
    const double mean = sum / static_cast<double>(state.iterations());
    state.counters["open_ms"] = mean;
    state.counters["budget_ms"] = openBudget;
    state.SetLabel(mean <= openBudget ? "within its budget" : "OVER ITS BUDGET");
}
BENCHMARK(Open)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);

void Scroll(benchmark::State& state)
{
    Desk desk;
    QScrollBar& bar = *desk.view().verticalScrollBar();
    double sum = 0.0;
    for (auto iteration : state) {
        bar.setValue(bar.maximum() / 3);
        desk.paint();
        const double time = timed([&] {
            for (int step = 0; step < scrollSteps; ++step) {
                bar.setValue(bar.value() + 3 * desk.view().rowHeight(0));
                desk.paint();
            }
        });
        state.SetIterationTime(time / 1000.0);
        sum += time / scrollSteps;
    }
    if (desk.dialog.grid.filled < scrollSteps)
        state.SkipWithError("the rows were not painted");
    state.counters["scroll_frame_ms"] = sum / static_cast<double>(state.iterations());
}
BENCHMARK(Scroll)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

void Refresh(benchmark::State& state)
{
    Desk desk;
    double sum = 0.0;
    double scan = 0.0;
    int value = 0;
    for (auto iteration : state) {
        const double time = timed([&] {
            desk.dialog.grid.SetTextAt(5, 3, std::to_string(++value));
            desk.paint();
        });
        scan += timed([&] {
            int hidden = 0;
            for (zel::Row row = 1; row <= rowCount; ++row)
                hidden += desk.dialog.grid.IsRowHidden(row) ? 1 : 0;
            benchmark::DoNotOptimize(hidden);
        });
        state.SetIterationTime(time / 1000.0);
        sum += time;
    }
    state.counters["refresh_ms"] = sum / static_cast<double>(state.iterations());
    state.counters["hidden_scan_ms"] = scan / static_cast<double>(state.iterations());
}
BENCHMARK(Refresh)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(100);

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir own;  // only its owner may enter it, as Qt wants it
    qputenv("XDG_RUNTIME_DIR", own.path().toUtf8());
    benchmark::Initialize(&argc, argv);
    const QApplication application(argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
