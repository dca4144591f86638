#include "contract/messages.h"
#include "platform/messages/message_catalogue.h"

#include <string_view>

namespace {

const char* textOf(const char* key, int /*reserved*/)
{
    return zel::MessageCatalogue::builtIn().find(key != nullptr ? std::string_view(key) : std::string_view());
}

/// Set while the library loads: a host that puts its own function there later is left alone.
[[maybe_unused]] const bool installed = (CMsgDll::pfuncLoadStr = textOf, true);

}  // namespace
