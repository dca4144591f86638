#pragma once

#include "contract/text.h"

#include <cstddef>
#include <stdexcept>

/// A run over very many records tells how far it is, and can be stopped by who watches.
namespace zel {

/// What a long run is at.
enum class RunPhase { reading, generating, storing, printing };

/// How far a run is, for a person: "Storing: 1200 of 21600".
[[nodiscard]] CString runText(RunPhase phase, std::size_t done, std::size_t total);

/// Thrown out of a run that who watches wants to end. On its way out everything that the run has changed is taken back.
class Interrupted : public std::runtime_error {
public:
    Interrupted() : std::runtime_error("The run was stopped; nothing was changed.") {}
};

/// Who watches long runs. One is installed at a time.
class RunWatcher {
public:
    RunWatcher() = default;
    RunWatcher(const RunWatcher&) = delete;
    RunWatcher& operator=(const RunWatcher&) = delete;
    virtual ~RunWatcher() = default;

    /// The run is at record `done` of `total`; 0 where the total is not known. Called for every record: an answer costs no time worth telling.
    /// @return  false to stop the run, where it can be stopped
    virtual bool goOn(RunPhase phase, std::size_t done, std::size_t total) = 0;
};

/// Installs who watches and returns the former; null: nobody.
RunWatcher* setRunWatcher(RunWatcher* watcher);

/// Whether a run may be stopped now.
[[nodiscard]] bool isStoppable();

/// While one lives, the run of this thread may be stopped: what it does is taken back as a whole when an exception leaves it.
class StoppableRun {
public:
    StoppableRun();
    ~StoppableRun();
    StoppableRun(const StoppableRun&) = delete;
    StoppableRun& operator=(const StoppableRun&) = delete;
};

/// Tells who watches how far a run is.
/// @throws Interrupted  when it is to end, and a StoppableRun lives
void reportRun(RunPhase phase, std::size_t done, std::size_t total = 0);

}  // namespace zel
