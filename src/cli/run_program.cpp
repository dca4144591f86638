#include "cli/run_program.h"

#include "cli/command_list.h"
#include "cli/commands.h"
#include "cli/shown_text.h"
#include "contract/long_run.h"
#include "contract/version.h"

#include <exception>
#include <functional>
#include <iostream>
#include <new>
#include <stdexcept>
#include <string>

namespace zel::cli {

namespace {

constexpr const char* notEnoughMemory = "zel: there is not enough memory for this job.\n";

/// A job's own fault is told after what it has printed.
int tell(const char* sentence, int code)
{
    std::cout.flush();
    std::cerr << "zel: " << shownText(sentence) << '\n';
    return code;
}

/// A job whose result did not arrive has failed.
void finishStandardOutput()
{
    if (!std::cout.flush())
        throw std::runtime_error("standard output can't be written; is the disk full?");
}

}  // namespace

int runProgram(int argc, const char* const* argv)
{
    try {
        CommandLine line(std::string("zel ") + versionText);
        addCommands(line);
        const std::function<int()> job = line.read(argc, argv);
        const int code = job();
        finishStandardOutput();
        return code;
    } catch (const Interrupted& stopped) {
        return tell(stopped.what(), interrupted);
    } catch (const UsageFault& fault) {
        return tell(fault.what(), wrongUsage);
    } catch (const std::bad_alloc&) {
        std::cerr << notEnoughMemory;
        return jobFailed;
    } catch (const std::exception& fault) {
        return tell(fault.what(), jobFailed);
    }
}

}  // namespace zel::cli
