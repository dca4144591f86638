#include "house/tree.h"

#include <regex>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

using house::File;

struct Rule {
    const char* folder;
    std::vector<std::string> endings;
    const char* hint;  ///< plain text that every line against the rule holds: most lines need no regular expression
    const char* mustNotContain;
    const char* sayInstead;
};

const std::vector<std::string> anyFile{""};
const std::vector<std::string> sources{".h", ".cpp"};

// clang-format off
const Rule rules[] = {
    // where    endings   hint                 must not contain                                 say instead
    {"src/",    {".h"},   "using namespace",   "using namespace",                               "the full name; using-directives belong in .cpp files"},
    {"src/",    sources,  "sto",               "\\bstd::sto(i|l|ll|ul|ull|f|d|ld)\\b",          "zel::number::read, which does not follow the locale"},
    {"src/",    sources,  "ato",               "\\bato(f|i|l|ll)\\s*\\(",                       "zel::number::read, which does not follow the locale"},
    {"src/",    sources,  "strto",             "\\bstrto(d|f|ld|l|ul|ll|ull)\\s*\\(",           "zel::number::read, which does not follow the locale"},
    {"src/",    sources,  "scanf",             "\\b[fs]?scanf\\s*\\(",                          "zel::number::read, which does not follow the locale"},
    {"src/",    sources,  "locale",            "\\bsetlocale\\s*\\(|\\bstd::locale\\b",         "nothing: no text depends on the locale"},
    {"src/",    sources,  "sprintf",           "\\bv?sprintf\\s*\\(",                           "std::snprintf, which knows the size"},
    {"src/platform/", sources, "std::c",       "\\bstd::(cout|cerr|clog)\\b",                   "the output services of the user interface"},
    {"src/journal/", sources, "std::c",        "\\bstd::(cout|cerr|clog)\\b",                   "a stream that is passed in"},
    {"src/",    sources,  "TODO",              "\\bTODO\\b",                                    "do it, or open an issue"},
    {"src/",    sources,  "FIXME",             "\\bFIXME\\b",                                   "mend it, or open an issue"},
    {"src/",    sources,  "#include <format>", "#include <format>",                             "std::snprintf or std::to_chars: clang 14 has no <format>"},
    {"tests/",  sources,  "DISABLED",          "\\bDISABLED" "_",                               "mend the test, or take it out with its reason in the commit"},
    {"tests/",  sources,  "SKIP",              "\\bGTEST_" "SKIP\\b",                           "a test that runs everywhere"},
    {"",        anyFile,  "art",               "\\bParts? [1-7]\\.[0-9]",                       "what the rule is and why, in the words of the trade"},
    {"",        anyFile,  "pecification",      "\\bspecification\\b",                           "what the rule is and why, in the words of the trade"},
    {"",        anyFile,  "he spec",           "\\bthe [s]pec\\b",                              "what the rule is and why, in the words of the trade"},
};
// clang-format on

TEST(HouseRules, WordsThatAreNotUsed)
{
    for (const Rule& rule : rules) {
        const std::regex pattern(rule.mustNotContain, std::regex::icase);
        for (const File& file : house::files()) {
            if (!house::isIn(file, rule.folder, rule.endings))
                continue;
            for (std::size_t i = 0; i < file.lines.size(); ++i) {
                if (file.lines[i].find(rule.hint) != std::string::npos && std::regex_search(file.lines[i], pattern))
                    ADD_FAILURE() << house::place(file, i) << "\n    say instead: " << rule.sayInstead;
            }
        }
    }
}

}  // namespace
