#include "contract/key_text.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>
#include <string_view>
#include <system_error>

namespace {

using Key = std::uint32_t;

struct KeyRange {
    Key first = 0;
    Key last = 0;
    Key step = 1;

    [[nodiscard]] bool holds(Key key) const { return key >= first && key <= last && (key - first) % step == 0; }
};

/// Reads "7", "4-9" and "20-30:5", entry by entry.
class KeyTextReader {
public:
    explicit KeyTextReader(std::string_view text) : rest_(text) {}

    /// Whether there is a further entry.
    bool more()
    {
        skip(" \t\r\n,");
        return !rest_.empty();
    }

    /// The next entry; nothing if it is malformed.
    std::optional<KeyRange> next()
    {
        const std::optional<Key> first = number();
        if (!first)
            return std::nullopt;
        KeyRange range{*first, *first, 1};
        if (take('-')) {
            const std::optional<Key> last = number();
            if (!last || *last < *first)
                return std::nullopt;
            range.last = *last;
            if (take(':')) {
                const std::optional<Key> step = number();
                if (!step || *step == 0)
                    return std::nullopt;
                range.step = *step;
            }
        }
        return range;
    }

private:
    void skip(std::string_view what) { rest_.remove_prefix(std::min(rest_.find_first_not_of(what), rest_.size())); }

    /// Takes `mark`, with blanks before it, if it comes next.
    bool take(char mark)
    {
        const std::size_t at = rest_.find_first_not_of(" \t");
        if (at == std::string_view::npos || rest_[at] != mark)
            return false;
        rest_.remove_prefix(at + 1);
        return true;
    }

    /// A number, with blanks before it. One that is too great for a key is the greatest key.
    std::optional<Key> number()
    {
        skip(" \t");
        Key value = 0;
        const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), value);
        if (error == std::errc::invalid_argument)
            return std::nullopt;
        rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
        return error == std::errc::result_out_of_range ? std::numeric_limits<Key>::max() : value;
    }

    std::string_view rest_;
};

/// The end of the evenly spaced run that begins at `begin`.
std::size_t endOfRun(const CArray<Key>& keys, std::size_t begin)
{
    std::size_t end = begin + 1;
    while (end < keys.size() && keys[end] - keys[end - 1] == keys[begin + 1] - keys[begin])
        ++end;
    return end;
}

}  // namespace

CString CNumericOptimizer::Optimize(const CArray<Key>& keys)
{
    CArray<Key> sorted = keys;
    std::sort(sorted.begin(), sorted.end());
    sorted.erase(std::unique(sorted.begin(), sorted.end()), sorted.end());

    CString text;
    for (std::size_t begin = 0; begin < sorted.size();) {
        if (!text.empty())
            text += ',';
        text += std::to_string(sorted[begin]);
        const std::size_t end = endOfRun(sorted, begin);
        if (end - begin < 3) {
            ++begin;
            continue;
        }
        text += '-' + std::to_string(sorted[end - 1]);
        const Key step = sorted[begin + 1] - sorted[begin];
        if (step > 1)
            text += ':' + std::to_string(step);
        begin = end;
    }
    return text;
}

int CNumericOptimizer::SelectNumByStr(const CArray<Key>& keys, const CString& text, CArray<Key>& result)
{
    CArray<Key> sorted = keys;
    std::sort(sorted.begin(), sorted.end());
    std::vector<bool> named(sorted.size(), false);

    result.clear();
    KeyTextReader reader(text);
    while (reader.more()) {
        const std::optional<KeyRange> range = reader.next();
        if (!range)
            return 0;
        auto at = std::lower_bound(sorted.begin(), sorted.end(), range->first);
        for (; at != sorted.end() && *at <= range->last; ++at) {
            if (range->holds(*at))
                named[static_cast<std::size_t>(at - sorted.begin())] = true;
        }
    }
    for (const Key key : keys) {
        const auto at = std::lower_bound(sorted.begin(), sorted.end(), key);
        if (named[static_cast<std::size_t>(at - sorted.begin())])
            result.push_back(key);
    }
    return 1;
}
