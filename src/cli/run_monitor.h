#pragma once

#include "contract/long_run.h"
#include "platform/os/interruption.h"

#include <chrono>
#include <cstddef>
#include <string>

namespace zel::cli {

/// While it lives, a person at the terminal sees how far a long run is, on the last line of standard error, and can stop it with Ctrl-C.
class RunMonitor final : private RunWatcher {
public:
    RunMonitor();
    ~RunMonitor() override;

    /// Ends the job if the person has asked for it, also where the library has turned that into a refusal.
    /// @throws Interrupted
    void check() const;

private:
    using Clock = std::chrono::steady_clock;

    bool goOn(RunPhase phase, std::size_t done, std::size_t total) override;
    void show(const std::string& line);

    os::Interruption m_interruption;
    StoppableRun m_stoppable;
    RunWatcher* m_former;
    bool m_terminal;
    std::size_t m_width = 0;  ///< of what stands on the line
    unsigned m_calls = 0;
    Clock::time_point m_next;
};

}  // namespace zel::cli
