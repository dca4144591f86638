#include "cli/run_monitor.h"

#include "platform/os/terminal.h"

#include <algorithm>
#include <iostream>

namespace zel::cli {

namespace {

constexpr std::chrono::milliseconds patience{500};  ///< a run that is over by then shows nothing
constexpr std::chrono::milliseconds interval{100};
constexpr unsigned callsAClock = 64;  ///< a look at the clock costs more than a record

}  // namespace

RunMonitor::RunMonitor() : m_former(setRunWatcher(this)), m_terminal(os::isErrorTerminal()), m_next(Clock::now() + patience) {}

RunMonitor::~RunMonitor()
{
    setRunWatcher(m_former);
    if (m_width > 0)
        std::cerr << '\r' << std::string(m_width, ' ') << '\r' << std::flush;
}

void RunMonitor::check() const
{
    if (os::Interruption::asked())
        throw Interrupted();
}

bool RunMonitor::goOn(RunPhase phase, std::size_t done, std::size_t total)
{
    if (m_terminal && ++m_calls % callsAClock == 0 && Clock::now() >= m_next) {
        m_next = Clock::now() + interval;
        show(runText(phase, done, total));
    }
    const bool formerGoesOn = m_former == nullptr || m_former->goOn(phase, done, total);
    return formerGoesOn && !os::Interruption::asked();
}

void RunMonitor::show(const std::string& line)
{
    const std::size_t before = m_width;
    m_width = std::max(m_width, line.size());
    std::cerr << '\r' << line << std::string(std::max(before, line.size()) - line.size(), ' ') << std::flush;
}

}  // namespace zel::cli
