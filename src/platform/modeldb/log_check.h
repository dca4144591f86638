#pragma once

#include <string_view>

namespace zel {

/// Whether a write-ahead log is damaged in a way that no crash leaves: SQLite would take it for one that ends there, and drop every change behind.
///
/// A change is written when the one before it is safe on the disk. So where a frame does not fit its checksum, and behind it stand the end of its
/// change and frames of a later one, it was whole once. A fault in the last change of a log looks like a write that was cut off, and is none here.
///
/// @param log  all bytes of the file; an empty one is sound
/// @source https://www.sqlite.org/fileformat.html, section 4
bool isDamagedLog(std::string_view log);

}  // namespace zel
