#include "contract/name_text.h"

#include <algorithm>

namespace zel {

CString foldedName(std::string_view name)
{
    CString folded(name);
    std::transform(folded.begin(), folded.end(), folded.begin(), [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return folded;
}

}  // namespace zel
