#pragma once

#include "contract/text.h"

#include <cstdarg>

namespace zel {

/// A text formatted as printf does in a locale with a decimal point, whatever the locale of the process is:
/// `formatText("%g", factor)`, `formatText(CMsgDll::pfuncLoadStr(key, 0), name.c_str())`.
[[nodiscard]] CString formatText(const char* format, ...);
[[nodiscard]] CString formatTextList(const char* format, std::va_list arguments);

}  // namespace zel
