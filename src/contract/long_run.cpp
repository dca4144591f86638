#include "contract/long_run.h"

#include <utility>

namespace zel {

namespace {

RunWatcher* installed = nullptr;
int stoppableRuns = 0;

const char* textOf(RunPhase phase)
{
    switch (phase) {
    case RunPhase::reading:
        return "Reading the model: ";
    case RunPhase::generating:
        return "Generating combinations: ";
    case RunPhase::storing:
        return "Storing: ";
    case RunPhase::printing:
        return "Printing: ";
    }
    return "";
}

}  // namespace

CString runText(RunPhase phase, std::size_t done, std::size_t total)
{
    return textOf(phase) + std::to_string(done) + (total != 0 ? " of " + std::to_string(total) : "");
}

RunWatcher* setRunWatcher(RunWatcher* watcher)
{
    return std::exchange(installed, watcher);
}

bool isStoppable()
{
    return stoppableRuns > 0;
}

StoppableRun::StoppableRun()
{
    ++stoppableRuns;
}

StoppableRun::~StoppableRun()
{
    --stoppableRuns;
}

void reportRun(RunPhase phase, std::size_t done, std::size_t total)
{
    if (installed != nullptr && !installed->goOn(phase, done, total) && isStoppable())
        throw Interrupted();
}

}  // namespace zel
