#pragma once

#include "contract/export.h"

#include <string>
#include <string_view>

// Numbers in formulas, and the replacing of tokens by them.
namespace zel::loadcomb {

/// A number that takes the place of a token: three decimals if the third is not 0, else two if the second is not 0, else one.
/// Which decimals are 0 is read from floor(1000 v) and floor(100 v).
ZEL_CMD_API std::string tokenNumber(double value);

/// A factor of a wind combination: one decimal if it is a whole number within 1e-7, else as "%g" prints it.
ZEL_CMD_API std::string windFactorText(double value);

/// As "%.*f" and "%g" print, whatever the locale.
std::string fixedText(double value, int decimals);
std::string generalText(double value);

/// Replaces `token` at every occurrence, left to right, without looking at what was put in. An empty token is nowhere.
ZEL_CMD_API void replaceAll(std::string& text, std::string_view token, std::string_view replacement);

}  // namespace zel::loadcomb
