// Reading of a compiled message catalogue from any bytes.

#include "platform/messages/message_catalogue.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    zel::MessageCatalogue catalogue({data, size});
    for (const std::string& key : catalogue.keys()) {
        const std::string plain = catalogue.find(key);
        catalogue.showKeys(true);
        if (key.find('\0') == std::string::npos && std::string(catalogue.find(key)) != "[" + key + "]" + plain)
            std::abort();
        catalogue.showKeys(false);
    }
    return 0;
}
