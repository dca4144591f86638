#pragma once

#include <cstdint>
#include <span>
#include <string_view>

// The format of a design code's table of load combinations: rows to be read beside the printed code, and nothing else.
//
// To add a code
//   1. Write `tables/<code>.h` (lower case, "_" for each blank, point and hyphen: "ACI318-02" is aci318_02.h) like
//      bs8110_97.h: a head that says what is covered and what is left out; one array of rows; the parts; the table; the checks.
//   2. Include it in code_registry.h and give it one line there, with its edition.
//
// A row
//
//     block  flag      condition    text                             group and factor, in the order of the items
//     {"U3", strength, "LL or WL",  "1.2(DL+EV) + 1.6X ± w2WL",      {{"DL", 1.2}, {"EV", 1.2}, {"X", 1.6}, {"WL", 1.0, w2}}},
//
// block      Number of the row or of its block, for comments, tests and explanations.
// flag       `service` or `strength`.
// condition  When the row is used; "" is always. Terms joined by ", " must all hold; a term is a choice joined by " or "; a word with
//            "no " before it must not hold. Words:
//              DL LL LR WL EL SL EEP RL FP EP WP EH EV    that load group has cases
//              X                                          one of LR, SL, RL has cases
//              strength special vertical underground underground-special     the type of combinations that is asked for
//              increments                                 special or underground-special, in a row that is not `service`
//              first-pass                                 not in a part of the pass `liveRoofIsSnow`
//            "EP or WP, EL or no WL": EP or WP has cases, and EL has cases or WL has none. A row whose text names a group without
//            cases outside parentheses drops out by itself and needs no condition for that.
// text       The formula. It steers the expansion: a group outside parentheses must have cases, of a set in parentheses one must.
//              ±          two rows: with "+", then with "-" and the factor of the term that follows (WL or EL) negated
//              X          the row stands for LR, then SL, then RL. Rows with an X that follow each other in one block are walked
//                         together: all for LR, then all for SL, then all for RL. A new block starts a new walk.
//              w1 to w4   the wind numbers of the table, below
//            Other signs stay as they are: (SUF) (OMG) (SPC) (ZEL) (APH) (VER) are replaced or deleted by the expansion.
// factors    At most twelve. A third entry varies the number: {"EV", 1.6, alphaH} is 1.6 * alpha_H, {"DL", 1.2, plusSpectrum} is
//            1.2 + S * V, {"DL", 0.9, minusSpectrum} is 0.9 - S * V, {"DL", -1.0, verticalForce} is the negative of the vertical force
//            factor, {"WL", 1.0, w1} is 1.0 * w1; S is the short-period coefficient and V the vertical load factor. A pair whose factor comes
//            out as exactly 0, and one without a group (""), is no pair.
//
// A wrong word in a condition, an unknown group and a row that its own checks refuse do not compile.
namespace zel::codes {

enum class Flag : std::uint8_t { service = 0, strength = 1 };
using enum Flag;

/// What varies the number of a factor.
enum class With : std::uint8_t { nothing, alphaH, plusSpectrum, minusSpectrum, verticalForce, w1, w2, w3, w4 };
using enum With;

/// The types of combinations that a run may be asked for. The numbers are those of forms and of batches.
enum class CombType : int { strength = 0, special = 1, vertical = 2, underground = 3, undergroundSpecial = 4 };
inline constexpr CombType combTypes[] = {CombType::strength, CombType::special, CombType::vertical, CombType::underground, CombType::undergroundSpecial};

/// The load groups, in the order in which the generator makes them, and the facts that conditions ask for.
enum class Word : std::uint8_t {
    DL, LL, LR, WL, EL, SL, EEP, RL, FP, EP, WP, EH, EV,
    X, typeStrength, typeSpecial, typeVertical, typeUnderground, typeUndergroundSpecial, increments, firstPass
};
inline constexpr std::string_view wordTexts[] = {
    "DL", "LL", "LR", "WL", "EL", "SL", "EEP", "RL", "FP", "EP", "WP", "EH", "EV",
    "X", "strength", "special", "vertical", "underground", "underground-special", "increments", "first-pass"
};
inline constexpr int groupCount = 13;

/// A set of words, bit n for word n.
using Facts = std::uint32_t;
constexpr Facts fact(Word word) { return Facts{1} << static_cast<unsigned>(word); }

/// The word of a type of combinations: "underground-special".
constexpr Word wordOf(CombType type) { return static_cast<Word>(static_cast<int>(Word::typeStrength) + static_cast<int>(type)); }
constexpr std::string_view nameOf(CombType type) { return wordTexts[static_cast<std::size_t>(wordOf(type))]; }
static_assert(nameOf(combTypes[0]) == "strength" && nameOf(combTypes[std::size(combTypes) - 1]) == "underground-special");

/// The word that `text` is. A text that is none does not compile (and throws where it is not evaluated by the compiler).
constexpr Word wordOf(std::string_view text)
{
    for (unsigned i = 0; i < std::size(wordTexts); ++i) {
        if (wordTexts[i] == text)
            return static_cast<Word>(i);
    }
    throw "not a load group and not a word of conditions";
}

/// A load group, "X" for the walk through LR, SL, RL, or "" for none.
struct Group {
    std::string_view name;

    constexpr Group() = default;
    constexpr Group(const char* text) : name(text)    // NOLINT(google-explicit-constructor): tables write texts
    {
        if (!name.empty() && wordOf(name) > Word::X)
            throw "a condition word is not a load group";
    }
};

/// A group with its factor.
struct Pair {
    Group group;
    double factor = 0.0;
    With with = nothing;
};

/// A condition of the format above, taken apart by the compiler.
struct Condition {
    static constexpr int maxTerms = 5;

    std::string_view text;
    int count = 0;
    Facts holds[maxTerms]{};       ///< a term is met when one of these words holds
    Facts holdsNot[maxTerms]{};    ///< or one of these does not

    constexpr Condition() = default;
    constexpr Condition(const char* condition) : text(condition)    // NOLINT(google-explicit-constructor): tables write texts
    {
        std::string_view rest = text;
        while (!rest.empty()) {
            std::string_view term = cut(rest, ", ");
            if (count == maxTerms)
                throw "too many terms in a condition";
            while (!term.empty())
                take(cut(term, " or "));
            ++count;
        }
    }

    [[nodiscard]] constexpr bool met(Facts facts) const
    {
        for (int i = 0; i < count; ++i) {
            if (((facts & holds[i]) | (~facts & holdsNot[i])) == 0)
                return false;
        }
        return true;
    }

private:
    /// Cuts the text before the first `separator` off the front of `rest`.
    static constexpr std::string_view cut(std::string_view& rest, std::string_view separator)
    {
        const std::size_t end = rest.find(separator);
        const std::string_view front = rest.substr(0, end);
        rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + separator.size());
        return front;
    }

    constexpr void take(std::string_view word)
    {
        if (word.substr(0, 3) == "no ")
            holdsNot[count] |= fact(wordOf(word.substr(3)));
        else
            holds[count] |= fact(wordOf(word));
    }
};

/// One row, or with "±" and "X" the few rows that are printed as one.
struct Row {
    static constexpr int maxPairs = 12;

    std::string_view block;
    Flag flag = strength;
    Condition when;
    std::string_view text;
    Pair pairs[maxPairs];
};

/// What the generator reads from the model before the rows of a part, in this order.
enum class Reads : std::uint8_t { nothing = 0, windSets = 1, undergroundSets = 2, seismicFactors = 4 };
constexpr Reads operator|(Reads left, Reads right) { return static_cast<Reads>(static_cast<unsigned>(left) | static_cast<unsigned>(right)); }
constexpr bool reads(Reads all, Reads one) { return (static_cast<unsigned>(all) & static_cast<unsigned>(one)) != 0; }

/// The factor that is printed as 2/3, in service rows that end in "/1.5".
inline constexpr double twoThirds = 0.6666666666666666;

/// The factor that is printed as 1/1.35, in service rows that end in "/1.35".
inline constexpr double over1_35 = 0.7407407407407407;

/// The factor that the earlier and foreign codes print as 1.05: three quarters of 1.4, one step below the decimal. All other printed
/// decimals are the numbers themselves.
inline constexpr double near1_05 = 0.75 * 1.4;

static_assert(twoThirds == 2.0 / 3.0 && over1_35 == 1.0 / 1.35 && near1_05 == 1.0499999999999998);

/// How the rows of a part are read: as they stand, or once more with text, pairs and conditions meaning SL where they say LR.
enum class Pass : std::uint8_t { asPrinted, liveRoofIsSnow };
using enum Pass;

/// Rows that are added one after the other, if `when` holds after the reading.
struct Part {
    std::string_view title;
    Reads reads = Reads::nothing;
    Condition when;
    std::span<const Row> rows;
    Pass pass = asPrinted;
    std::string_view clause{};    ///< of the printed code, where it is known: "2.3.2"
};

/// The number that stands for w1 to w4, as the text shows it and as the factor takes it.
struct WindNumber {
    std::string_view text;
    double factor = 0.0;
};
struct WindScale {
    WindNumber w[4];
};

/// The combinations of one design code.
struct CodeTable {
    std::span<const Part> parts;
    WindScale wind{};    ///< only where the rows name w1 to w4
};

/// Whether a part of the table reads that of the model: what a form has to offer for the code.
constexpr bool readsOf(const CodeTable& table, Reads what)
{
    for (const Part& part : table.parts) {
        if (reads(part.reads, what))
            return true;
    }
    return false;
}

/// Whether a factor of the table takes alpha_H.
constexpr bool takesAlphaH(const CodeTable& table)
{
    for (const Part& part : table.parts) {
        for (const Row& row : part.rows) {
            for (const Pair& pair : row.pairs) {
                if (pair.with == alphaH)
                    return true;
            }
        }
    }
    return false;
}

/// Rows `first` to `last` of a printed table, counted from 1, both included.
constexpr std::span<const Row> rows(std::span<const Row> table, std::size_t first, std::size_t last)
{
    return table.subspan(first - 1, last - first + 1);
}

inline constexpr std::string_view plusMinus = "±";

/// The term that a "±" of `text` governs: from behind the sign and its blank to the next blank. Empty if there is no "±".
constexpr std::string_view signedTerm(std::string_view text)
{
    const std::size_t sign = text.find(plusMinus);
    if (sign == std::string_view::npos)
        return {};
    const std::string_view behind = text.substr(sign + plusMinus.size() + 1);
    return behind.substr(0, behind.find(' '));
}

// What a table proves of itself: static_assert(textsNameTheirGroups(rows)), static_assert(signsAreClear(rows)).

/// Each pair's group stands in its row's text.
constexpr bool textsNameTheirGroups(std::span<const Row> table)
{
    for (const Row& row : table) {
        for (const Pair& pair : row.pairs) {
            if (row.text.find(pair.group.name) == std::string_view::npos)
                return false;
        }
    }
    return true;
}

/// A "±" stands at most once in a row, and its term names one group of the row, WL or EL.
constexpr bool signsAreClear(std::span<const Row> table)
{
    for (const Row& row : table) {
        if (row.text.find(plusMinus) == std::string_view::npos)
            continue;
        int governed = 0;
        for (const Pair& pair : row.pairs) {
            if ((pair.group.name == "WL" || pair.group.name == "EL") && signedTerm(row.text).find(pair.group.name) != std::string_view::npos)
                ++governed;
        }
        if (governed != 1 || row.text.find(plusMinus) != row.text.rfind(plusMinus))
            return false;
    }
    return true;
}

}  // namespace zel::codes
