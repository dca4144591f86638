#pragma once

#include "contract/text.h"

#include <string_view>

namespace zel {

/// Lines of cells, as spreadsheets exchange them.
using GridBlock = CArray<CArray<CString>>;

/// Reads tab-separated lines. A cell that begins with a double quote ends at the next single one; in it tabs and line breaks are
/// text, and two double quotes are one. The line break at the end of the last line opens no further line.
[[nodiscard]] GridBlock readGridBlock(std::string_view text);

/// Writes lines that end in "\r\n", with quotes around the cells that need them.
[[nodiscard]] CString writeGridBlock(const GridBlock& block);

}  // namespace zel
