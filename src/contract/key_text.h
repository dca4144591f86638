#pragma once

#include "contract/text.h"

#include <cstdint>

/// Key lists as compact texts that people can read and type: "1,4-9,20-30:5".
class CNumericOptimizer {
public:
    /// The keys in ascending order, each once, separated by ",". A run of three or more is "first-last", an evenly spaced
    /// run of three or more "first-last:step".
    static CString Optimize(const CArray<std::uint32_t>& keys);

    /// Fills `result` with those of `keys` that `text` names, in the order of `keys`. Entries are separated by commas or
    /// blanks; numbers that are not in `keys` are passed over. Returns 0, with `result` empty, if the text has anything
    /// else in it, a range that runs down, or a step of 0.
    static int SelectNumByStr(const CArray<std::uint32_t>& keys, const CString& text, CArray<std::uint32_t>& result);
};
