#include "contract/messages.h"

#include "platform/messages/message_catalogue.h"

#include <string_view>

namespace {

const char* loadFromCatalogue(const char* key, int /*reserved*/)
{
    return zel::MessageCatalogue::builtIn().find(key != nullptr ? std::string_view(key) : std::string_view());
}

}  // namespace

const char* (*CMsgDll::pfuncLoadStr)(const char* key, int reserved) = loadFromCatalogue;

CString CMsgDll::RemoveQuote(const char* text)
{
    const std::string_view whole = text != nullptr ? text : "";
    const bool quoted = whole.size() >= 2 && whole.front() == whole.back() && (whole.front() == '"' || whole.front() == '\'');
    return CString(quoted ? whole.substr(1, whole.size() - 2) : whole);
}
