// A model in JSON from any bytes. What is taken is printed, loaded again and printed again, and must be the same.

#include "platform/modeldb/model_document.h"
#include "platform/modeldb/model_json.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

std::string printed(const zel::Json& json)
{
    const std::unique_ptr<zel::ModelDocument> document = zel::ModelDocument::inMemory(zel::unitsOfModelJson(json));
    zel::storeRows(*document, zel::rowsOfModelJson(json));
    std::ostringstream out;
    zel::printModelJson(*document, out);
    return out.str();
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string first;
    try {
        first = printed(zel::parseJson({reinterpret_cast<const char*>(data), size}));
    } catch (const zel::JsonFault&) {
        return 0;
    }
    if (printed(zel::parseJson(first)) != first)
        std::abort();
    return 0;
}
