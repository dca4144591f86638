#include "loadcomb/description.h"

#include "loadcomb/number_token.h"

#include <array>
#include <string_view>
#include <vector>

namespace zel::loadcomb {

namespace {

constexpr std::size_t nowhere = std::string::npos;
constexpr std::string_view alphaToken = "(APH)";
constexpr std::size_t longestDescription = 79;    // characters
constexpr std::size_t keptOfLonger = 76;
constexpr std::ptrdiff_t shortestPair = 4;        // distance of two parentheses that stay

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
    bool brackets = false;          ///< "(APH)", a loose sign or a short pair of parentheses
    bool nestedNames = false;       ///< a name that ends in "LL": shortening one may make another
    std::size_t firstName = nowhere;
};

constexpr std::array<bool, 256> marksOf(std::string_view marks)
{
    std::array<bool, 256> isMark{};
    for (const char mark : marks)
        isMark[static_cast<unsigned char>(mark)] = true;
    return isMark;
}

Findings lookAt(std::string_view text)
{
    static constexpr std::array<bool, 256> isMark = marksOf("()+-L");
    Findings found;
    std::size_t open = nowhere;    // of the innermost pair
    std::size_t ignored = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (!isMark[static_cast<unsigned char>(text[i])])
            continue;
        switch (text[i]) {
        case '(':
            open = i;
            found.brackets |= text.substr(i, alphaToken.size()) == alphaToken;
            break;
        case ')':
            found.brackets |= open != nowhere && static_cast<std::ptrdiff_t>(i - open) < shortestPair;
            open = nowhere;
            break;
        case 'L':
            if (i > 0 && losesItsL(text[i - 1])) {
                if (found.firstName == nowhere)
                    found.firstName = i;
                found.nestedNames |= at(text, i + 1) == 'L';
            }
            break;
        default:
            found.brackets |= looseSign(text, i, ignored) != 0;
        }
    }
    return found;
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
    std::string kept;
    std::vector<std::size_t> open;
    for (const char c : text) {
        if (c == '(')
            open.push_back(kept.size());
        if (c == ')' && !open.empty()) {
            const std::size_t partner = open.back();
            open.pop_back();
            if (static_cast<std::ptrdiff_t>(kept.size() - partner) < shortestPair) {
                kept.erase(partner, 1);
                continue;
            }
        }
        kept += c;
    }
    text = std::move(kept);
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

void cutDescription(std::string& text)
{
    if (text.size() <= longestDescription)
        return;
    std::size_t characters = 0;
    std::size_t end = 0;    // of the part that is kept of a longer text [bytes]
    for (std::size_t i = 0; i < text.size(); ++i) {
        if ((static_cast<unsigned char>(text[i]) & 0xC0U) == 0x80U)
            continue;    // goes on with a character
        if (characters == keptOfLonger)
            end = i;
        ++characters;
    }
    if (characters > longestDescription)
        text.replace(end, nowhere, "...");
}

}  // namespace zel::loadcomb
