#include "command/messages.h"

#include "contract/format_text.h"
#include "contract/messages.h"
#include "contract/user_interface.h"

#include <string_view>

namespace zel {

namespace {

CString argumentText(const TextArgument& argument)
{
    if (const auto* text = std::get_if<CString>(&argument))
        return *text;
    if (const auto* integer = std::get_if<int>(&argument))
        return std::to_string(*integer);
    return numberText("%g", std::get<double>(argument));
}

}  // namespace

CString loadText(const char* key)
{
    return CMsgDll::pfuncLoadStr(key, 0);
}

CString formatText(const CString& format, std::initializer_list<TextArgument> arguments)
{
    CString text;
    const auto* next = arguments.begin();
    for (std::size_t i = 0; i < format.size(); ++i) {
        const char after = i + 1 < format.size() ? format[i + 1] : '\0';
        if (format[i] == '%' && after == '%') {
            text += '%';
            ++i;
        } else if (format[i] == '%' && std::string_view("sdg").find(after) != std::string_view::npos && next != arguments.end()) {
            text += argumentText(*next++);
            ++i;
        } else {
            text += format[i];
        }
    }
    return text;
}

CString numberText(const char* format, double value)
{
    return formatText(format, value);
}

void showMessage(const char* key)
{
    AfxMessageBox(loadText(key), MB_OK, 0);
}

void showMessage(const char* key, std::initializer_list<TextArgument> arguments)
{
    AfxMessageBox(formatText(loadText(key), arguments), MB_OK, 0);
}

bool askYesNo(const char* key)
{
    return AfxMessageBox(loadText(key), MB_YESNO, 0) == IDYES;
}

}  // namespace zel
