#include "loadcomb/generation/description.h"

#include "loadcomb/generation/number_token.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace zel::loadcomb {

namespace {

constexpr std::size_t nowhere = std::string::npos;
constexpr std::string_view alphaToken = "(APH)";
constexpr std::size_t longestDescription = 79;  // characters
constexpr std::size_t keptOfLonger = 76;
constexpr std::ptrdiff_t shortestPair = 4;  // distance of two parentheses that stay

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// The first letters of "DL", "LL", "SL", "RL", "TL".
bool losesItsL(char c)
{
    return c == 'D' || c == 'L' || c == 'S' || c == 'R' || c == 'T';
}

char at(std::string_view text, std::size_t i)
{
    return i < text.size() ? text[i] : '\0';
}

/// What is to be deleted because of the sign at `i`: the place in `from`, the number of characters as the result; 0 if it stays.
std::size_t looseSign(std::string_view text, std::size_t i, std::size_t& from)
{
    const char before = i > 0 ? text[i - 1] : '\0';
    const char behind = at(text, i + 1);
    from = i;
    if (text[i] == '-' && (i == 0 || (before == '(' && isDigit(behind))))
        return 0;
    if (behind == ')' || before == '(')
        return 1;
    if (behind == '(' && at(text, i + 2) == ')')
        return 3;
    if (before == ')' && i >= 2 && text[i - 2] == '(') {
        from = i - 2;
        return 3;
    }
    return 0;
}

void deleteLoose(std::string& text, char sign)
{
    for (std::size_t i = text.find(sign); i != nowhere; i = text.find(sign, i)) {
        std::size_t from = i;
        const std::size_t count = looseSign(text, i, from);
        if (count == 0) {
            ++i;
            continue;
        }
        text.erase(from, count);
        i = from;
    }
}

/// What the steps would find in a text, from one look at it: most formulas need their group names shortened and nothing else.
struct Findings {
    bool brackets = false;     ///< "(APH)", a loose sign or a short pair of parentheses
    bool nestedNames = false;  ///< a name that ends in "LL": shortening one may make another
    std::size_t firstName = nowhere;
};

constexpr std::array<bool, 256> marksOf(std::string_view marks)
{
    std::array<bool, 256> isMark{};
    for (const char mark : marks)
        isMark[static_cast<unsigned char>(mark)] = true;
    return isMark;
}

bool isParenthesis(char c)
{
    return c == '(' || c == ')';
}

/// Ends at the first bracket that it finds: the text is then looked at again when the brackets are done.
Findings lookAt(std::string_view text)
{
    static constexpr std::array<bool, 256> isMark = marksOf("()+-L");
    Findings found;
    std::size_t open = nowhere;  // of the innermost pair
    std::size_t ignored = 0;
    for (std::size_t i = 0; i < text.size() && !found.brackets; ++i) {
        if (!isMark[static_cast<unsigned char>(text[i])])
            continue;
        switch (text[i]) {
        case '(':
            open = i;
            found.brackets = at(text, i + 1) == alphaToken[1] && text.substr(i, alphaToken.size()) == alphaToken;
            break;
        case ')':
            found.brackets = open != nowhere && static_cast<std::ptrdiff_t>(i - open) < shortestPair;
            open = nowhere;
            break;
        case 'L':
            if (i > 0 && losesItsL(text[i - 1])) {
                if (found.firstName == nowhere)
                    found.firstName = i;
                found.nestedNames |= at(text, i + 1) == 'L';
            }
            break;
        default:  // no sign is loose but beside a parenthesis
            found.brackets = ((i > 0 && isParenthesis(text[i - 1])) || isParenthesis(at(text, i + 1))) && looseSign(text, i, ignored) != 0;
        }
    }
    return found;
}

/// Walks parentheses from left to right: how deep the place is, and whether one has closed what was not open.
struct Depth {
    int open = 0;
    bool unpaired = false;

    void pass(char c)
    {
        if (c == '(')
            ++open;
        else if (c == ')' && --open < 0)
            unpaired = true;
    }
};

/// Length of the longest part of `text`, no longer than `limit`, that ends before a blank and has all its parentheses in pairs.
std::size_t pairedFront(std::string_view text, std::size_t limit)
{
    Depth depth;
    std::size_t length = 0;
    for (std::size_t i = 0; i < std::min(text.size(), limit) && !depth.unpaired; ++i) {
        if (text[i] == ' ' && depth.open == 0)
            length = i;
        depth.pass(text[i]);
    }
    return length;
}

/// Length of the longest end of `text`, no longer than `limit`, that begins with a blank and has all its parentheses in pairs.
std::size_t pairedBack(std::string_view text, std::size_t limit)
{
    Depth depth;
    std::size_t length = 0;
    for (std::size_t i = 1; i <= std::min(text.size(), limit) && !depth.unpaired; ++i) {
        const char c = text[text.size() - i];
        depth.pass(c == '(' ? ')' : (c == ')' ? '(' : c));  // backwards each is the other
        if (c == ' ' && depth.open == 0 && !depth.unpaired)
            length = i;
    }
    return length;
}

/// Shortens names of which none overlaps another; `i` is the "L" of the first.
void shortenSeparateNames(std::string& text, std::size_t i)
{
    std::size_t to = i;
    for (++i; i < text.size(); ++i) {
        if (text[i] != 'L' || !losesItsL(text[i - 1]))
            text[to++] = text[i];
    }
    text.resize(to);
}

}  // namespace

void deleteAlphaTokens(std::string& text)
{
    replaceAll(text, alphaToken, "");
}

void deleteLooseSigns(std::string& text)
{
    deleteLoose(text, '+');
    deleteLoose(text, '-');
}

void deleteShortParentheses(std::string& text)
{
    std::vector<std::size_t> open;
    std::size_t kept = 0;  // characters of the result, which grows in the place of what has been read
    for (const char c : std::string_view(text)) {
        if (c == '(')
            open.push_back(kept);
        if (c == ')' && !open.empty()) {
            const std::size_t partner = open.back();
            open.pop_back();
            if (static_cast<std::ptrdiff_t>(kept - partner) < shortestPair) {
                std::copy(text.begin() + static_cast<std::ptrdiff_t>(partner) + 1, text.begin() + static_cast<std::ptrdiff_t>(kept),
                          text.begin() + static_cast<std::ptrdiff_t>(partner));
                --kept;
                continue;
            }
        }
        text[kept++] = c;
    }
    text.resize(kept);
}

void shortenGroupNames(std::string& text)
{
    for (const char* name : {"DL", "LL", "SL", "RL", "TL"})
        replaceAll(text, name, std::string_view(name, 1));
}

void rewriteDescription(std::string& text)
{
    Findings found = lookAt(text);
    if (found.brackets) {
        deleteAlphaTokens(text);
        deleteLooseSigns(text);
        deleteShortParentheses(text);
        found = lookAt(text);
    }
    if (found.nestedNames)
        shortenGroupNames(text);
    else if (found.firstName != nowhere)
        shortenSeparateNames(text, found.firstName);
}

SharedRewriting::SharedRewriting(const std::string& first, const std::string& last)
{
    const std::size_t shorter = std::min(first.size(), last.size());
    const auto alike =
        static_cast<std::size_t>(std::mismatch(first.begin(), first.begin() + static_cast<std::ptrdiff_t>(shorter), last.begin()).first - first.begin());
    m_front = first.substr(0, pairedFront(first, alike));
    const auto alikeBack =
        static_cast<std::size_t>(std::mismatch(first.rbegin(), first.rbegin() + static_cast<std::ptrdiff_t>(shorter), last.rbegin()).first - first.rbegin());
    m_back = first.substr(first.size() - pairedBack(first, std::min(alikeBack, shorter - m_front.size())));
    m_rewrittenFront = m_front;
    rewriteDescription(m_rewrittenFront);
    m_rewrittenBack = m_back;
    rewriteDescription(m_rewrittenBack);
}

void SharedRewriting::rewrite(std::string& text) const
{
    const std::size_t front = m_front.size();
    const std::size_t back = m_back.size();
    const bool shares = text.size() > front + back && (front == 0 || text[front] == ' ') && text.compare(0, front, m_front) == 0 &&
        text.compare(text.size() - back, back, m_back) == 0;
    if (!shares) {
        rewriteDescription(text);
        return;
    }
    const std::string_view middle(text.data() + front, text.size() - front - back);
    const Findings found = lookAt(middle);
    if (found.brackets || found.nestedNames || found.firstName != nowhere) {
        std::string own(middle);
        rewriteDescription(own);
        text.assign(m_rewrittenFront).append(own).append(m_rewrittenBack);
        return;
    }
    // The middle stays and only moves: rewriting never makes a text longer.
    char* to = std::copy(m_rewrittenFront.begin(), m_rewrittenFront.end(), text.data());
    to = std::copy(middle.begin(), middle.end(), to);
    to = std::copy(m_rewrittenBack.begin(), m_rewrittenBack.end(), to);
    text.resize(static_cast<std::size_t>(to - text.data()));
}

void cutDescription(std::string& text)
{
    if (text.size() <= longestDescription)
        return;
    std::size_t characters = 0;
    std::size_t end = 0;  // of the part that is kept of a longer text [bytes]
    for (std::size_t i = 0; i < text.size(); ++i) {
        if ((static_cast<unsigned char>(text[i]) & 0xC0U) == 0x80U)
            continue;  // goes on with a character
        if (characters == keptOfLonger)
            end = i;
        ++characters;
    }
    if (characters > longestDescription)
        text.replace(end, nowhere, "...");
}

}  // namespace zel::loadcomb
