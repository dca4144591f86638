#include "cli/program.h"

#include <cstdlib>
#include <map>
#include <random>
#include <set>
#include <sstream>

#include <nlohmann/json.hpp>

namespace {

using cli_test::Outcome;
using cli_test::zel;
using nlohmann::json;

/// Jobs of all kinds: sparse keys, awkward names, every set form, code, type and option.
class Jobs {
public:
    explicit Jobs(unsigned seed) : m_random(seed) {}

    json next()
    {
        json model{{"format", "zel-model"}, {"version", 1}, {"STLD", cases()}};
        if (flip())
            model["LCWD"] = windSets();
        if (flip())
            model["LCOE"] = {{"pairs", list(3, [this] { return json{{"case1", anyKey()}, {"case2", anyKey()}}; })}};
        if (flip())
            model["SLCF"] = seismicFactors();
        if (flip())
            model["SIFT"] = seismicFactors();
        if (model.contains("SIFT"))
            model["SIFT"].erase("verticalForceFactor");
        if (flip())
            model["LCUG"] = underground();
        return {{"model", model}, {"options", options()}};
    }

private:
    int upTo(int most) { return static_cast<int>(m_random() % static_cast<unsigned>(most + 1)); }
    bool flip() { return upTo(1) == 1; }
    template <class Value, std::size_t N> const Value& oneOf(const Value (&values)[N]) { return values[m_random() % N]; }
    template <class Make> json list(int most, const Make& make)
    {
        json made = json::array();
        for (int count = upTo(most); count > 0; --count)
            made.push_back(make());
        return made;
    }

    std::string name()
    {
        static const std::string parts[] = {"DL",  "EL",  "LL",    "SL",  "W",   "(", ")", "+",  "-",  "%", "%s",  "%n", " ", "  ",
                                            "ZEL", "SPC", "(SUF)", "OMG", "APH", "#", ",", "\"", "가", "é", "1.0", "[",  "]", "E"};
        std::string made;
        for (int count = 1 + upTo(4); count > 0; --count)
            made += oneOf(parts);
        if (upTo(20) == 0)
            made += std::string(60, 'n');
        return made;
    }

    json cases()
    {
        static const char* const types[] = {"D", "L", "LR", "W", "W", "WA", "WT", "E", "E", "E", "S", "R", "FP", "EP", "WP", "EH", "EV", "EEP", "USER", ""};
        m_keys.clear();
        json made = json::array();
        std::set<std::string> names;
        unsigned key = 0;
        for (int count = upTo(12); count > 0; --count) {
            key += 1U + static_cast<unsigned>(upTo(upTo(5) == 0 ? 1000000 : 2));
            std::string unique = name();
            while (unique.find_first_not_of(' ') == std::string::npos || !names.insert(lower(unique)).second)
                unique += "x";
            const char* type = oneOf(types);
            made.push_back({{"key", key}, {"name", unique}, {"type", made.empty() && upTo(3) != 0 ? "D" : type}});
            m_keys.push_back(key);
        }
        return made;
    }

    static std::string lower(std::string text)
    {
        for (char& letter : text)
            letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
        return text;
    }

    unsigned knownKey() { return m_keys[m_random() % m_keys.size()]; }
    /// Mostly a key that is there; sometimes one that is not, or none.
    unsigned anyKey() { return m_keys.empty() || upTo(9) == 0 ? static_cast<unsigned>(upTo(20)) : knownKey(); }

    json windSets()
    {
        return {{"torsionDirection", upTo(2)}, {"sets", list(4, [this] {
                                                    return json{{"groupNo", 1},        {"buildingType", upTo(1)}, {"along", anyKey()},
                                                                {"across", anyKey()},  {"torsion", anyKey()},     {"gd", 1.0 + upTo(20) / 10.0},
                                                                {"k", upTo(10) / 10.0}};
                                                })}};
    }

    json seismicFactors()
    {
        return {{"shortPeriodCoefficient", upTo(3) / 4.0},
                {"verticalLoadFactor", upTo(2) / 10.0},
                {"verticalForceFactor", upTo(2) / 10.0},
                {"overStrengthFactors", list(3, [this] {
                     return json{{"loadCaseKey", anyKey()}, {"factor", 1.0 + upTo(8) / 4.0}};
                 })}};
    }

    json underground()
    {
        return {{"scaleUps",
                 list(2,
                      [this] {
                          return json{{"factor", 1.0 + upTo(4) / 8.0}, {"loadCaseKey", anyKey()}, {"eccentricKey", anyKey()}};
                      })},
                {"groups", list(3, [this] {
                     return json{{"loadCaseKey", anyKey()},
                                 {"direction", upTo(1)},
                                 {"seismicKeys", list(2, [this] { return json(anyKey()); })},
                                 {"staticKeys", list(2, [this] { return json(anyKey()); })}};
                 })}};
    }

    json options()
    {
        static const char* const codes[] = {"AIK-USD94", "KBC-USD16", "KDS 41 30 : 2018", "KDS 41 20 : 2022", "KCI-USD12", "KBC-USD09",
                                            "KBC-USD05", "KCI-USD99", "KSCE-USD96",       "ACI318-89",        "ACI318-95", "ACI318-99",
                                            "ACI318-02", "BS8110-97", "GB50010-02",       "CSA-A23.3-94"};
        json made{{"code", oneOf(codes)},   {"kind", upTo(9) == 0 ? 1 + upTo(4) : 1}, {"mode", upTo(1)}, {"combType", upTo(4)}, {"orthoOption", flip()},
                  {"alphaH", upTo(4) / 2.0}};
        json factors = json::object();
        json partners = json::object();
        for (int count = m_keys.empty() ? 0 : upTo(3); count > 0; --count) {
            factors[std::to_string(knownKey())] = upTo(12) / 8.0;
            partners[std::to_string(knownKey())] = upTo(3) == 0 ? 0 : knownKey();
        }
        made["scaleFactors"] = factors;
        made["eccentricCases"] = partners;
        return made;
    }

    std::mt19937 m_random;
    std::vector<unsigned> m_keys;
};

TEST(BatchJobs, ThousandsOfVariedJobsRunTwiceAlikeAndReferOnlyToCasesThatExist)
{
    const char* wanted = std::getenv("ZEL_BATCH_JOBS");
    const int count = wanted != nullptr ? std::atoi(wanted) : 200;
    Jobs jobs(41);
    std::string input;
    std::vector<json> given;
    for (int i = 0; i < count; ++i) {
        given.push_back(jobs.next());
        input += given.back().dump() + "\n";
    }
    const Outcome first = zel({"batch"}, input);
    EXPECT_EQ(first.code, 0) << first.error << first.out.substr(0, 2000);
    EXPECT_EQ(first.error, "");
    EXPECT_TRUE(zel({"batch"}, input).out == first.out) << "two runs differ";

    std::istringstream lines(first.out);
    std::string line;
    int stored = 0;
    for (const json& job : given) {
        ASSERT_TRUE(std::getline(lines, line)) << "fewer results than jobs";
        const json result = json::parse(line, nullptr, false);
        ASSERT_TRUE(result.is_object() && result.contains("ok")) << job.dump() << "\n" << line.substr(0, 500);
        stored += result.at("ok").get<int>();
        EXPECT_EQ(result.at("ok") == 1, !result.at("rows").empty() && result.at("messages").empty()) << job.dump();
        std::set<unsigned> keys;
        for (const json& loadCase : job.at("model").at("STLD"))
            keys.insert(loadCase.at("key").get<unsigned>());
        std::set<std::string> rows;
        int number = 0;
        for (const json& row : result.at("rows")) {
            const std::string name = row.at("name");
            EXPECT_EQ(name.substr(0, name.find_last_not_of(' ') + 1), "gLCB" + std::to_string(++number)) << "numbers are dense";
            EXPECT_TRUE(rows.insert(row.at("active").dump() + row.at("number").dump() + row.at("items").dump()).second) << "twice: " << row.dump();
            for (const json& item : row.at("items"))
                EXPECT_TRUE(keys.contains(item.at("key").get<unsigned>())) << row.dump();
        }
    }
    EXPECT_FALSE(std::getline(lines, line));
    EXPECT_GT(stored, count / 4) << "most jobs give nothing: they test little";
}

}  // namespace
