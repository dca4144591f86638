#pragma once

#include "contract/text.h"

#include <filesystem>

/// What differs between operating systems about files.
namespace zel::os {

/// Whether the file's permissions let anybody write it. Also for an administrator, whom the system would not stop.
bool isWritable(const std::filesystem::path& file);

/// Makes a rename in this folder survive a power failure. Does nothing where the system has no such call.
void syncFolder(const std::filesystem::path& folder);

/// Number of this process, for the names of temporary files.
CString processNumber();

/// Whether a process of that number is there. True also where the system does not tell.
bool isRunning(const CString& process);

}  // namespace zel::os
