#include "contract/forms/grid_column.h"

#include "contract/number_text.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace zel {

CString gridNumberText(const CString& text, const GridNumberStyle& style)
{
    using Form = GridNumberStyle::Form;
    if (style.form == Form::asKept)
        return text;
    const auto value = number::read(text);
    if (!value)
        return text;
    const char* const format = style.form == Form::fixed ? "%.*f" : style.form == Form::general ? "%.*g" : "%.*e";
    std::array<char, 352> shown{};  // the longest: 309 digits of the greatest double, sign, point and places
    const int length = std::snprintf(shown.data(), shown.size(), format, std::clamp(style.places, 0, 30), *value);
    return length > 0 ? CString{shown.data()} : text;
}

}  // namespace zel
