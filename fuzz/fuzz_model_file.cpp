// Opening of a model file with any damage. It is refused and left as it is, or holds what it held.
//
// The input is a list of edits of a sound file: three bytes for the place, one for the number of bytes, then the bytes (none: the file is cut
// there), so that a small input reaches every page.

#include "platform/modeldb/file_refusal.h"
#include "platform/modeldb/model_document.h"
#include "platform/modeldb/model_json.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>

#include <unistd.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

namespace fs = std::filesystem;

const fs::path& path()
{
    static const fs::path file = fs::temp_directory_path() / ("zel-fuzz-" + std::to_string(getpid()) + ".qvx");
    return file;
}

std::string contents()
{
    std::ifstream file(path(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string printed(zel::ModelDocument& document)
{
    std::ostringstream out;
    zel::printModelJson(document, out);
    return out.str();
}

/// A small model, as bytes and as JSON.
struct Sound {
    std::string bytes;
    std::string json;

    Sound()
    {
        const std::unique_ptr<zel::ModelDocument> document = zel::ModelDocument::inMemory();
        zel::storeRows(*document,
                       zel::rowsOfModelJson(zel::parseJson(
                           R"({"format": "zel-model", "version": 1, "STLD": [{"key": 1, "name": "DL"}, {"key": 2, "name": "LL", "type": "L"}],)"
                           R"( "LCOM": [{"key": 1, "name": "C1", "items": [{"type": 1, "key": 1, "factor": 1.2}, {"type": 1, "key": 2, "factor": 1.6}]}]})")));
        document->saveCopy(path(), true);
        json = printed(*document);
        bytes = contents();
    }
};

std::string spoiled(std::string bytes, const std::uint8_t* data, std::size_t size)
{
    std::size_t at = 0;
    while (at + 4 <= size && !bytes.empty()) {
        const std::size_t place = (data[at] | static_cast<std::size_t>(data[at + 1]) << 8U | static_cast<std::size_t>(data[at + 2]) << 16U) % bytes.size();
        const std::size_t count = std::min({static_cast<std::size_t>(data[at + 3]), size - at - 4, bytes.size() - place});
        at += 4;
        if (count == 0)
            bytes.resize(place);
        std::copy_n(data + at, count, bytes.begin() + static_cast<std::ptrdiff_t>(place));
        at += count;
    }
    return bytes;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const Sound sound;
    const std::string bytes = spoiled(sound.bytes, data, size);
    std::ofstream(path(), std::ios::binary) << bytes;
    bool same = false;
    try {
        same = printed(*zel::ModelDocument::open(path())) == sound.json;
    } catch (const zel::FileRefusal&) {
        same = contents() == bytes;
    }
    std::error_code ignored;
    for (const char* suffix : {"", "-wal", "-shm", "-journal"})
        fs::remove(path().string() + suffix, ignored);
    if (!same)
        std::abort();
    return 0;
}
