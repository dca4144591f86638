#pragma once

#include <cstddef>
#include <map>
#include <mutex>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace zel {

/// Message texts by key, read from the bytes of a compiled gettext catalogue (.mo) of either byte order.
class MessageCatalogue {
public:
    /// Reads the catalogue. Entries whose text lies outside of `mo` are left out; bytes that are no catalogue at all give
    /// an empty one. The bytes are copied.
    explicit MessageCatalogue(std::span<const unsigned char> mo);

    /// The English texts that are built into the library.
    static MessageCatalogue& builtIn();

    /// The text of a key; the key itself if it has no text. The pointer stays valid as long as the catalogue.
    [[nodiscard]] const char* find(std::string_view key);

    /// From now on, `find` puts "[KEY]" before each text.
    void showKeys(bool show);

    /// All keys that have a text, sorted.
    [[nodiscard]] std::vector<std::string> keys() const;

private:
    void read(std::span<const unsigned char> mo);

    std::unordered_map<std::string, std::string> texts_;
    std::map<std::string, std::string, std::less<>> unknown_;   ///< keys without a text that were asked for
    std::map<std::string, std::string, std::less<>> prefixed_;  ///< texts with their keys before them, as asked for
    std::mutex mutex_;
    bool showKeys_ = false;
};

}  // namespace zel
