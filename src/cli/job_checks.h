#pragma once

#include "contract/table_store.h"

#include <string>

/// What every way of asking for a generation checks in the same words.
namespace zel::cli {

/// @throws std::runtime_error  with the nearest names for a code that there is not
void requireCode(const std::string& code);

/// Alpha_H is 1.0 for earth of up to 2 m and falls to 0.875 with its height; 0 takes the pressure out, and a choice of one's own stays below 2.
/// @throws std::runtime_error  for a value outside 0 to 2
void requireAlphaH(double value);

/// @throws std::runtime_error  for a scale factor below 0 or without an end
void requireScaleFactor(double factor);

/// @throws std::runtime_error  with the nearest load cases for a key that the current model does not have
void requireLoadCase(Key key);

}  // namespace zel::cli
