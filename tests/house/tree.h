#pragma once

#include <string>
#include <vector>

namespace house {

/// A text file of the project.
struct File {
    std::string path;  ///< from the project's root, with "/"
    std::vector<std::string> lines;
};

/// All text files of the project: not the build folder, not what git keeps for itself, no binary files.
const std::vector<File>& files();

/// Whether the path lies below `folder` ("src/load/") and ends with one of the endings.
bool isIn(const File& file, const std::string& folder, const std::vector<std::string>& endings);

/// Header or source of C++.
bool isSource(const File& file, const std::string& folder);

/// "path:line: text", for a failure's message.
std::string place(const File& file, std::size_t line);

}  // namespace house
