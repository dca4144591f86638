#include "loadcomb/generation/row_text.h"

#include <algorithm>
#include <string_view>

namespace zel::loadcomb {

namespace {

constexpr std::string_view::size_type none = std::string_view::npos;

/// Deletes the first `name` of the text, and with it a "+" or "-" directly behind.
void deleteName(std::string& text, std::string_view name)
{
    const std::size_t at = text.find(name);
    if (at == none)
        return;
    const std::size_t behind = at + name.size();
    const bool signBehind = behind < text.size() && (text[behind] == '+' || text[behind] == '-');
    text.erase(at, name.size() + (signBehind ? 1 : 0));
}

/// Walks the pairs of parentheses of one token, from the innermost outward.
class ParenthesisPairs {
public:
    explicit ParenthesisPairs(std::string_view token) : m_token(token), m_open(token.size())
    {
        const auto opening = std::count(token.begin(), token.end(), '(');
        const auto closing = std::count(token.begin(), token.end(), ')');
        m_left = static_cast<int>(std::min(opening, closing));
    }

    /// Gives the next pair with its parentheses. False when there is none left; an opening without a partner gives an empty text.
    bool next(std::string_view& inside)
    {
        if (m_left == 0)
            return false;
        --m_left;
        m_open = m_token.rfind('(', m_open - 1);  // there are at least as many as turns
        std::size_t close = m_token.find(')', m_open);
        while (close != none && std::find(m_paired.begin(), m_paired.end(), close) != m_paired.end())
            close = m_token.find(')', close + 1);
        inside = {};
        if (close != none) {
            m_paired.push_back(close);
            inside = m_token.substr(m_open, close - m_open + 1);
        }
        return true;
    }

private:
    std::string_view m_token;
    std::size_t m_open;
    int m_left = 0;
    std::vector<std::size_t> m_paired;
};

void appendLevel(_CCmd_Loadcase& group, int level)
{
    group.inParentheses = 1;
    // Texts of codes have a handful of levels; any text may come in, so the digits wrap instead of overflowing.
    group.levels = static_cast<std::int32_t>(static_cast<std::uint32_t>(group.levels) * 10U + static_cast<std::uint32_t>(level));
}

/// Cuts the term of a group out: from the sign before the name to the end of the name, then the blanks at both ends of the text.
void cutTerm(std::string& text, std::string_view name)
{
    const std::size_t at = text.find(name);
    if (at == none)
        return;
    const std::size_t sign = at == 0 ? none : text.find_last_of("+-", at - 1);
    const std::size_t from = sign == none ? 0 : sign;
    text.erase(from, at + name.size() - from);
    text.erase(0, std::min(text.find_first_not_of(' '), text.size()));
    text.erase(text.find_last_not_of(' ') + 1);
}

}  // namespace

int analyseText(std::string& text, std::vector<_CCmd_Loadcase>& groups)
{
    const std::string tokens = text;
    int level = 1;
    std::string_view rest = tokens;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(' '), rest.size());
        const std::string_view token = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));

        bool found = false;
        std::string_view inside;
        for (ParenthesisPairs pairs(token); pairs.next(inside);) {
            for (_CCmd_Loadcase& group : groups) {
                if (group.name.empty() || inside.find(group.name) == none)
                    continue;
                found = true;
                appendLevel(group, level);
                if (!group.hasCases())
                    deleteName(text, group.name);
            }
        }
        if (found)
            ++level;
    }
    return level;
}

Feasibility testFeasibility(std::string& text, const std::vector<_CCmd_Loadcase>& groups, int level)
{
    for (const _CCmd_Loadcase& group : groups) {
        if (group.name != "PS" && !group.hasCases() && group.inParentheses == 0)
            return {false, &group, 0};
    }
    for (int tested = level - 1; tested >= 1; --tested) {
        const bool met =
            std::any_of(groups.begin(), groups.end(), [tested](const _CCmd_Loadcase& group) { return group.hasCases() && group.isInLevel(tested); });
        if (!met)
            return {false, nullptr, tested};
    }
    for (const _CCmd_Loadcase& group : groups) {
        if (!group.hasCases() && group.inParentheses == 0)
            cutTerm(text, group.name);
    }
    return {};
}

}  // namespace zel::loadcomb
