// A journal from any bytes, played on a small model. Every command gets one reply, which is JSON.

#include "journal/dialog_commands.h"
#include "journal/journal_player.h"
#include "platform/modeldb/model_document.h"
#include "platform/modeldb/model_json.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::unique_ptr<zel::ModelDocument> document = zel::ModelDocument::inMemory();
    zel::storeRows(*document,
                   zel::rowsOfModelJson(zel::parseJson(
                       R"({"format": "zel-model", "version": 1, "STLD": [{"name": "DL"}, {"name": "LL", "type": "L"}, {"name": "EX", "type": "E"}]})")));
    const std::string text(reinterpret_cast<const char*>(data), size);
    std::istringstream script(text);
    std::ostringstream transcript;
    {
        zel::JournalPlayer player(*document, script, transcript);
        player.play();
    }
    zel::closeAllDialogs();

    std::istringstream commands(text);
    zel::JournalScript counted(commands);
    std::istringstream replies(transcript.str());
    std::string reply;
    while (counted.next()) {
        if (!std::getline(replies, reply) || zel::parseJson(reply).at("n") != counted.line())
            std::abort();
    }
    if (std::getline(replies, reply))
        std::abort();
    return 0;
}
