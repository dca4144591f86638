#pragma once

#include "contract/long_run.h"
#include "contract/user_interface.h"

#include <exception>
#include <new>

namespace zel {

/// Runs an entry of the library. Nothing thrown inside reaches the host: what it was goes to the output pane, and the entry
/// returns `failed`.
template <class Result, class Run> Result guarded(Result failed, const Run& run) noexcept
{
    try {
        return run();
    } catch (const Interrupted& stopped) {
        GMsgOutFormatNF("%s", stopped.what());
    } catch (const std::bad_alloc&) {
        GMsgOutFormatNF("%s", "There is not enough memory for this; nothing was changed.");
    } catch (const std::exception& exception) {
        GMsgOutFormatNF("%s", exception.what());
    } catch (...) {
        GMsgOutFormatNF("%s", "The command failed for an unknown reason.");
    }
    return failed;
}

}  // namespace zel
