#pragma once

#include <string>

namespace zel::test {

/// The root of the source tree, for tests that read examples, documents or sources.
const std::string& sourceFolder();

/// The folder of the built programs, for tests that run them.
const std::string& programFolder();

}  // namespace zel::test
