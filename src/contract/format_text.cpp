#include "contract/format_text.h"

#include "contract/plain_numbers.h"

#include <cstddef>
#include <cstdio>

namespace zel {

CString formatText(const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    CString text = formatTextList(format, arguments);
    va_end(arguments);
    return text;
}

CString formatTextList(const char* format, std::va_list arguments)
{
    const PlainNumbers plain;
    std::va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, again);
    va_end(again);
    if (length <= 0)
        return {};
    CString text(static_cast<std::size_t>(length), '\0');
    std::vsnprintf(text.data(), text.size() + 1, format, arguments);
    return text;
}

}  // namespace zel
