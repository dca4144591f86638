#include "platform/messages/message_catalogue.h"

#include "platform/messages/embedded_messages.h"

#include <algorithm>
#include <cstdint>
#include <optional>

namespace {

using Bytes = std::span<const unsigned char>;

/// The header of a catalogue file, and the tables of strings that it points to. All numbers are 32-bit words.
class MoReader {
public:
    /// Recognises the byte order by the file's first word. `valid` tells whether it is a catalogue.
    explicit MoReader(Bytes bytes) : bytes_(bytes)
    {
        constexpr std::uint32_t magic = 0x950412de;
        if (word(0) == magic)
            valid_ = true;
        else {
            bigEndian_ = true;
            valid_ = word(0) == magic;
        }
    }

    [[nodiscard]] bool valid() const { return valid_; }
    [[nodiscard]] std::size_t count() const { return word(8).value_or(0); }
    [[nodiscard]] std::optional<std::string_view> key(std::size_t index) const { return text(word(12), index); }
    [[nodiscard]] std::optional<std::string_view> translation(std::size_t index) const { return text(word(16), index); }

private:
    [[nodiscard]] std::optional<std::uint32_t> word(std::size_t at) const
    {
        if (bytes_.size() < 4 || at > bytes_.size() - 4)
            return std::nullopt;
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < 4; ++i)
            value |= static_cast<std::uint32_t>(bytes_[at + i]) << (8 * (bigEndian_ ? 3 - i : i));
        return value;
    }

    /// Entry `index` of the table at `table`: a length and the place of the text.
    [[nodiscard]] std::optional<std::string_view> text(std::optional<std::uint32_t> table, std::size_t index) const
    {
        if (!table)
            return std::nullopt;
        const std::optional<std::uint32_t> length = word(*table + 8 * index);
        const std::optional<std::uint32_t> at = word(*table + 8 * index + 4);
        if (!length || !at || *at > bytes_.size() || *length > bytes_.size() - *at)
            return std::nullopt;
        return std::string_view(reinterpret_cast<const char*>(bytes_.data()) + *at, *length);
    }

    Bytes bytes_;
    bool bigEndian_ = false;
    bool valid_ = false;
};

/// The text without the bars that gettext needs outside of a line break at its ends.
std::string_view withoutBars(std::string_view text)
{
    if (text.starts_with("|\n"))
        text.remove_prefix(1);
    if (text.ends_with("\n|"))
        text.remove_suffix(1);
    return text;
}

}  // namespace

namespace zel {

MessageCatalogue::MessageCatalogue(Bytes mo)
{
    read(mo);
}

MessageCatalogue& MessageCatalogue::builtIn()
{
    // Never destroyed: texts must outlive every static object that may still show one.
    static MessageCatalogue& catalogue = *new MessageCatalogue(embeddedMessages());
    return catalogue;
}

void MessageCatalogue::read(Bytes mo)
{
    const MoReader reader(mo);
    if (!reader.valid())
        return;
    const std::size_t most = mo.size() / 16;  // each entry takes that much in the two tables
    const std::size_t count = std::min(reader.count(), most);
    for (std::size_t i = 0; i < count; ++i) {
        const std::optional<std::string_view> key = reader.key(i);
        const std::optional<std::string_view> text = reader.translation(i);
        if (key && text && !key->empty())  // the empty key holds the file's own header
            texts_.insert_or_assign(std::string(*key), std::string(withoutBars(*text)));
    }
}

const char* MessageCatalogue::find(std::string_view key)
{
    const std::lock_guard lock(mutex_);
    const std::string name(key);
    const auto known = texts_.find(name);
    const std::string& text = known != texts_.end() ? known->second : unknown_.try_emplace(name, name).first->second;
    if (!showKeys_)
        return text.c_str();
    const auto shown = prefixed_.find(key);
    return (shown != prefixed_.end() ? shown : prefixed_.emplace(name, "[" + name + "]" + text).first)->second.c_str();
}

void MessageCatalogue::showKeys(bool show)
{
    const std::lock_guard lock(mutex_);
    showKeys_ = show;
}

std::vector<std::string> MessageCatalogue::keys() const
{
    std::vector<std::string> sorted;
    for (const auto& entry : texts_)
        sorted.push_back(entry.first);
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

}  // namespace zel
