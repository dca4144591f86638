#include "contract/forms/row_numbers.h"

#include "contract/format_text.h"
#include "contract/forms/find_control.h"
#include "contract/nearest.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace zel {

CString faultOfRows(const std::vector<int>& rows, int count, bool multiple)
{
    if (rows.size() > 1 && !multiple)
        return "takes one row at a time";
    for (const int row : rows) {
        if (row < 0 || row >= count)
            return formatText("has no row %d: it has %d row%s, counted from 0", row, count, count == 1 ? "" : "s");
    }
    return {};
}

int entryNamed(const std::vector<CString>& entries, const UserValue& value)
{
    const int count = static_cast<int>(entries.size());
    if (const auto* place = std::get_if<double>(&value)) {
        const bool there = *place >= 0.0 && *place < count && std::floor(*place) == *place;
        return there ? static_cast<int>(*place) : -1;
    }
    const auto* text = std::get_if<CString>(&value);
    if (text == nullptr)
        return -1;
    auto found = std::find(entries.begin(), entries.end(), *text);
    if (found == entries.end()) {
        const CString name = normalisedLabel(*text);
        found = std::find_if(entries.begin(), entries.end(), [&name](const CString& entry) { return normalisedLabel(entry) == name; });
    }
    return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
}

CString noSuchEntry(const std::vector<CString>& entries, const UserValue& value)
{
    if (const auto* place = std::get_if<double>(&value)) {
        const int count = static_cast<int>(entries.size());
        return formatText("has no entry %g: it has %d, counted from 0", *place, count);
    }
    const auto* text = std::get_if<CString>(&value);
    if (text == nullptr)
        return "takes the text or the place of an entry";
    const std::vector<std::string_view> candidates(entries.begin(), entries.end());
    return "has no entry \"" + *text + "\"" + didYouMean(*text, candidates);
}

}  // namespace zel
