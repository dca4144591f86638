#include "contract/messages.h"

#include <string_view>

namespace {

const char* keyItself(const char* key, int /*reserved*/)
{
    return key != nullptr ? key : "";
}

}  // namespace

const char* (*CMsgDll::pfuncLoadStr)(const char* key, int reserved) = keyItself;

CString CMsgDll::RemoveQuote(const char* text)
{
    const std::string_view whole = text != nullptr ? text : "";
    const bool quoted = whole.size() >= 2 && whole.front() == whole.back() && (whole.front() == '"' || whole.front() == '\'');
    return CString(quoted ? whole.substr(1, whole.size() - 2) : whole);
}
