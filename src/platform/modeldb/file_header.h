#pragma once

#include <filesystem>

namespace zel {

/// Looks at the file without opening it as a database: is it there, a model of ours, of a schema that we know, whole by its
/// size? A file that is none of these is never handed to SQLite, which would alter it.
/// @throws FileRefusal
void checkFileHeader(const std::filesystem::path& path);

/// Whether the file says of itself that it is a model, damaged or not: then nothing else is to be written over it.
bool isModelFile(const std::filesystem::path& path);

}  // namespace zel
