#include "contract/forms/grid_column.h"

#include "contract/format_text.h"
#include "contract/number_text.h"

#include <algorithm>

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
    return formatText(format, std::clamp(style.places, 0, 30), *value);
}

}  // namespace zel
