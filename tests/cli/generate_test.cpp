#include "cli/program.h"

#include <algorithm>
#include <sstream>

#include <nlohmann/json.hpp>

namespace {

using cli_test::contents;
using cli_test::Outcome;
using cli_test::zel;
using nlohmann::json;

constexpr const char* fourCases =
    R"({"format": "zel-model", "version": 1, "STLD": [{"key": 1, "name": "DL", "type": "D"}, {"key": 2, "name": "LL", "type": "L"}, {"key": 3, "name": "WX", "type": "W"}, {"key": 4, "name": "EX", "type": "E"}]})";

/// Dead, live, wind and earthquake load, and nothing else.
class Generate : public cli_test::CliTest {
protected:
    void SetUp() override
    {
        CliTest::SetUp();
        model = path("four.qvx");
        ASSERT_EQ(zel({"load", "-", model}, fourCases).code, 0);
    }

    [[nodiscard]] std::string stored() const { return zel({"combinations", model, "--format", "json"}).out; }

    std::string model;
};

// AIK-USD94 over DL, LL, WX, EX: expected combinations derived by hand from the printed rows of the code.
struct WorkedRow {
    const char* name;
    int active;
    const char* description;
    double dead, live, wind, quake;  // 0 for no item
};

constexpr double thirds = 0.6666666666666666;
constexpr double factor1_05 = 0.75 * 1.4;

constexpr WorkedRow worked[] = {
    {"gLCB1  ", 0, "1.0D + 1.0L", 1.0, 1.0, 0, 0},
    {"gLCB2  ", 0, "(1.0D + 1.0L + 1.0WX)/1.5", thirds, thirds, thirds, 0},
    {"gLCB3  ", 0, "(1.0D + 1.0L - 1.0WX)/1.5", thirds, thirds, -thirds, 0},
    {"gLCB4  ", 0, "(1.0D + 1.0L + 1.0EX)/1.5", thirds, thirds, 0, thirds},
    {"gLCB5  ", 0, "(1.0D + 1.0L - 1.0EX)/1.5", thirds, thirds, 0, -thirds},
    {"gLCB6  ", 1, "1.4D + 1.7L", 1.4, 1.7, 0, 0},
    {"gLCB7  ", 1, "0.75(1.4D + 1.7L + 1.7WX)", factor1_05, 1.275, 1.275, 0},
    {"gLCB8  ", 1, "0.75(1.4D + 1.7L - 1.7WX)", factor1_05, 1.275, -1.275, 0},
    {"gLCB9  ", 1, "0.9D + 1.3WX", 0.9, 0, 1.3, 0},
    {"gLCB10 ", 1, "0.9D - 1.3WX", 0.9, 0, -1.3, 0},
    {"gLCB11 ", 1, "0.75(1.4D + 1.7L + 1.7(1.1EX))", factor1_05, 1.275, 0, 1.4025},
    {"gLCB12 ", 1, "0.75(1.4D + 1.7L - 1.7(1.1EX))", factor1_05, 1.275, 0, -1.4025},
    {"gLCB13 ", 1, "0.9D + 1.3(1.1EX)", 0.9, 0, 0, 1.43},
    {"gLCB14 ", 1, "0.9D - 1.3(1.1EX)", 0.9, 0, 0, -1.43},
    {"gLCB15 ", 1, "0.75(1.4D + 1.7L)", factor1_05, 1.275, 0, 0},
    {"gLCB16 ", 1, "1.4D", 1.4, 0, 0, 0},
};

json workedRow(const WorkedRow& row)
{
    json items = json::array();
    const double factors[] = {row.dead, row.live, row.wind, row.quake};
    for (int key = 1; key <= 4; ++key) {
        if (factors[key - 1] != 0.0)
            items.push_back({{"type", 1}, {"key", key}, {"factor", factors[key - 1]}});
    }
    return {{"kind", 0}, {"name", row.name}, {"number", 0}, {"active", row.active}, {"description", row.description}, {"items", items}};
}

void expectWorked(const std::string& line)
{
    const json result = json::parse(line);
    EXPECT_EQ(result.at("ok"), 1);
    EXPECT_EQ(result.at("messages"), json::array());
    ASSERT_EQ(result.at("rows").size(), std::size(worked));
    for (std::size_t i = 0; i < std::size(worked); ++i)
        EXPECT_EQ(result.at("rows")[i], workedRow(worked[i])) << worked[i].name;
}

TEST_F(Generate, TheWorkedExampleComesOutRowByRow)
{
    const Outcome run = zel({"generate", model, "--code", "AIK-USD94", "--replace", "--format", "json"});
    EXPECT_EQ(run.code, 0) << run.error;
    EXPECT_EQ(run.error, "");
    expectWorked(run.out);
    const json kept = json::parse(stored());
    ASSERT_EQ(kept.at("rows").size(), std::size(worked));
    EXPECT_EQ(kept.at("rows")[6].at("name"), "gLCB7  ");
    EXPECT_EQ(kept.at("rows")[6].at("number"), 7) << "the model keeps the place";
}

TEST_F(Generate, BatchGivesTheSame)
{
    const std::string job = std::string("{\"model\": ") + fourCases + R"(, "options": {"kind": 1, "code": "AIK-USD94", "mode": 1}})";
    const Outcome run = zel({"batch"}, job + "\n\n" + job + "\n");
    EXPECT_EQ(run.code, 0) << run.error;
    std::istringstream lines(run.out);
    std::string first;
    std::string second;
    std::getline(lines, first);
    std::getline(lines, second);
    expectWorked(first);
    json again = json::parse(second);
    EXPECT_EQ(again.at("line"), 3);
    again["line"] = 1;
    EXPECT_EQ(json::parse(first), again) << "nothing is kept between jobs";
}

TEST_F(Generate, TheTableIsMadeForReading)
{
    const Outcome run = zel({"generate", model, "--code", "AIK-USD94"});
    EXPECT_EQ(run.code, 0) << run.error;
    std::istringstream lines(run.out);
    std::string line;
    std::getline(lines, line);
    EXPECT_EQ(line.substr(0, 27), "No  Name     Active  Formul") << line;
    for (const char* name : {"DL", "LL", "WX", "EX"})
        EXPECT_NE(line.find(name), std::string::npos);
    const std::size_t width = line.size();
    int rows = 0;
    while (std::getline(lines, line)) {
        EXPECT_LE(line.size(), width) << line;
        ++rows;
    }
    EXPECT_EQ(rows, 16);
}

TEST_F(Generate, ADryRunStoresNothing)
{
    const std::string before = contents(model);
    const Outcome run = zel({"generate", model, "--code", "AIK-USD94", "--replace", "--dry-run", "--format", "json"});
    EXPECT_EQ(run.code, 0);
    expectWorked(run.out);
    EXPECT_EQ(contents(model), before);
}

TEST_F(Generate, AddingNamesOnAndReplacingStartsAnew)
{
    ASSERT_EQ(zel({"generate", model, "--code", "AIK-USD94"}).code, 0);
    const Outcome added = zel({"generate", model, "--code", "AIK-USD94"});
    EXPECT_NE(added.out.find("17  gLCB17"), std::string::npos) << added.out;
    EXPECT_EQ(json::parse(stored()).at("rows").size(), 32U);
    ASSERT_EQ(zel({"generate", model, "--code", "AIK-USD94", "--replace"}).code, 0);
    EXPECT_EQ(json::parse(stored()).at("rows").size(), 16U);
}

TEST_F(Generate, CsvHoldsAFactorColumnForEachLoadCaseInUse)
{
    const Outcome run = zel({"generate", model, "--code", "AIK-USD94", "--dry-run", "--format", "csv"});
    EXPECT_TRUE(run.out.starts_with("No,Name,Active,Formula,DL,LL,WX,EX\r\n1,gLCB1  ,0,1.0D + 1.0L,1,1,,\r\n2,gLCB2  ,0,(1.0D + 1.0L + 1.0WX)/1.5,"))
        << run.out;
}

TEST_F(Generate, LcbNamesLoadCasesByTheirPlace)
{
    const Outcome run = zel({"generate", model, "--code", "AIK-USD94", "--dry-run", "--format", "lcb"});
    EXPECT_TRUE(run.out.starts_with("1, gLCB1, 1, 1, 2, 1, ** 1.0D + 1.0L\n")) << run.out;
    EXPECT_NE(run.out.find("\n10, gLCB10, 1, 0.9, 3, -1.3, ** 0.9D - 1.3WX\n"), std::string::npos) << run.out;
}

TEST_F(Generate, TheResultGoesToAFileThatAppearsWhole)
{
    const Outcome run = zel({"generate", model, "--code", "AIK-USD94", "--format", "csv", "--out", path("result.csv")});
    EXPECT_EQ(run.code, 0) << run.error;
    EXPECT_EQ(run.out, "");
    EXPECT_TRUE(contents(path("result.csv")).starts_with("No,Name"));
    cli_test::write(path("old.csv"), "old");
    EXPECT_EQ(zel({"generate", model, "--code", "AIK-USD94", "--explain", "nobody", "--out", path("old.csv")}).code, 1);
    EXPECT_EQ(contents(path("old.csv")), "old");
    EXPECT_EQ(zel({"generate", model, "--code", "AIK-USD94", "--out", path("no/folder/x")}).code, 1);
}

TEST_F(Generate, AWrongNameIsAnsweredWithTheNearest)
{
    const Outcome code = zel({"generate", model, "--code", "AIK-USD49"});
    EXPECT_EQ(code.code, 1);
    EXPECT_NE(code.error.find("\"AIK-USD94\""), std::string::npos) << code.error;
    const Outcome partial = zel({"generate", model, "--code", "KDS 41 20"});
    EXPECT_NE(partial.error.find("\"KDS 41 20 : 2022\""), std::string::npos) << partial.error;
    const Outcome loadCase = zel({"generate", model, "--code", "AIK-USD94", "--scale", "EXX=1.2"});
    EXPECT_EQ(loadCase.code, 1);
    EXPECT_NE(loadCase.error.find("\"EX\""), std::string::npos) << loadCase.error;
    EXPECT_EQ(zel({"generate", model, "--code", "AIK-USD94", "--scale", "EX"}).code, 1);
    EXPECT_EQ(zel({"generate", model, "--code", "AIK-USD94", "--scale", "EX=many"}).code, 1);
    EXPECT_EQ(json::parse(stored()).at("rows").size(), 0U);
}

TEST_F(Generate, ScaleFactorsAndEccentricCasesAreGivenByNameOrKey)
{
    ASSERT_EQ(
        zel({"load", "-", model, "--replace"},
            R"({"format": "zel-model", "version": 1, "STLD": [{"key": 1, "name": "DL", "type": "D"}, {"key": 7, "name": "E=X", "type": "E"}, {"key": 8, "name": "ecc,1"}]})")
            .code,
        0);
    const std::vector<std::string> job{"generate", model, "--code", "AIK-USD94", "--dry-run", "--format", "json", "--scale"};
    std::vector<std::string> byName = job;
    byName.push_back("E=X=1.25,ecc,1");
    std::vector<std::string> byKey = job;
    byKey.push_back("#7=1.25,#8");
    const Outcome named = zel(byName);
    EXPECT_EQ(named.code, 0) << named.error;
    EXPECT_EQ(named.out, zel(byKey).out);
    EXPECT_NE(named.out.find("\"key\": 8"), std::string::npos) << named.out;
    EXPECT_NE(named.out, zel({"generate", model, "--code", "AIK-USD94", "--dry-run", "--format", "json"}).out);
}

TEST_F(Generate, AModelWithoutLoadCasesGivesTheMessageTwiceAsKeys)
{
    ASSERT_EQ(zel({"load", "-", model, "--replace"}, R"({"format": "zel-model", "version": 1})").code, 0);
    const Outcome run = zel({"generate", model, "--code", "AIK-USD94", "--format", "json"});
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out,
              "{\"ok\": 0, \"messages\": [\"IDS_QV_CMD__ADDD__No_Existing_Load_Case_\", \"IDS_QV_CMD__ADDD__No_Existing_Load_Case_\"], \"rows\": []}\n");
    const Outcome table = zel({"generate", model, "--code", "AIK-USD94"});
    EXPECT_EQ(table.code, 1);
    EXPECT_EQ(table.out, "");
    EXPECT_EQ(table.error.find("IDS_"), std::string::npos) << table.error;
}

TEST_F(Generate, ExplainTellsRowChoicesAndProducts)
{
    const Outcome run = zel({"generate", model, "--code", "AIK-USD94", "--replace", "--dry-run", "--scale", "EX=1.25", "--explain", "gLCB13"});
    EXPECT_EQ(run.code, 0) << run.error;
    EXPECT_TRUE(run.out.starts_with("gLCB13: 0.9D + 1.3(1.25)(1.1EX)\n")) << run.out;
    EXPECT_NE(run.out.find("Code       AIK-USD94, row "), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("Earthquake EX\n"), std::string::npos) << run.out;
    EXPECT_NE(run.out.find(" = 1.43 x 1.25 x 1.0    (row x scale factor x over-strength)"), std::string::npos) << run.out;
    EXPECT_EQ(zel({"generate", model, "--code", "AIK-USD94", "--dry-run", "--explain", "gLCB99"}).code, 1);
}

/// The product of "0.7 x 1.25 x 1.0".
double product(const std::string& numbers)
{
    std::istringstream words(numbers);
    double result = 1.0;
    for (std::string word; words >> word;) {
        if (word != "x")
            result *= std::stod(word);
    }
    return result;
}

TEST_F(Generate, EveryExplainedProductIsTheFactorOfItsItem)
{
    ASSERT_EQ(zel({"load", "-", model, "--replace"},
                  R"({"format": "zel-model", "version": 1,
                      "STLD": [{"key": 1, "name": "DL", "type": "D"}, {"key": 2, "name": "LL", "type": "L"}, {"key": 3, "name": "WA", "type": "W"}, {"key": 4, "name": "WC", "type": "WA"},
                               {"key": 5, "name": "WT", "type": "WT"}, {"key": 6, "name": "EX", "type": "E"}, {"key": 7, "name": "EY", "type": "E"}, {"key": 8, "name": "EXe", "type": "USER"}],
                      "LCWD": {"sets": [{"along": 3, "across": 4, "torsion": 5}]}, "LCOE": {"pairs": [{"case1": 6, "case2": 7}]},
                      "SLCF": {"shortPeriodCoefficient": 0.5, "overStrengthFactors": [{"loadCaseKey": 6, "factor": 2.5}]}})")
                  .code,
              0);
    std::vector<std::string> job{"generate", model, "--code", "KDS 41 20 : 2022", "--dry-run", "--orthogonal", "--type", "special", "--scale", "EX=1.25,EXe"};
    std::vector<std::string> listing = job;
    listing.insert(listing.end(), {"--format", "json"});
    const json rows = json::parse(zel(listing).out).at("rows");
    ASSERT_GT(rows.size(), 50U);
    job.insert(job.end(), {"--explain", ""});
    for (std::size_t i = 0; i < rows.size(); i += 9) {
        job.back() = rows[i].at("name");
        const Outcome run = zel(job);
        ASSERT_EQ(run.code, 0) << run.error;
        std::istringstream lines(run.out.substr(run.out.find("Factors\n") + 8));
        std::string line;
        for (const json& item : rows[i].at("items")) {
            ASSERT_TRUE(std::getline(lines, line)) << run.out;
            const std::size_t equals = line.find(" = ");
            ASSERT_NE(equals, std::string::npos) << run.out;
            const std::string numbers = line.substr(equals + 3, line.find("    (") - equals - 3);
            EXPECT_NEAR(product(numbers), item.at("factor").get<double>(), 1e-9) << run.out;
        }
    }
}

TEST_F(Generate, WhyNotTellsTheRowsThatGaveNothingAndTheIdleCases)
{
    ASSERT_EQ(
        zel({"load", "-", model, "--replace"}, R"({"format": "zel-model", "version": 1, "STLD": [{"name": "DL", "type": "D"}, {"name": "X", "type": "USER"}]})")
            .code,
        0);
    const Outcome run = zel({"generate", model, "--code", "AIK-USD94", "--dry-run", "--why-not"});
    EXPECT_EQ(run.code, 0) << run.error;
    EXPECT_NE(run.out.find("no load case of \"LL\" or \"LR\"\n"), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("no load case of \"WL\"\n"), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("Load cases in no combination:\n  X\n"), std::string::npos) << run.out;
}

TEST_F(Generate, CodesListsWhatEachCodeTreats)
{
    const Outcome run = zel({"codes"});
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(std::count(run.out.begin(), run.out.end(), '\n'), 17);
    EXPECT_NE(run.out.find("AIK-USD94"), std::string::npos);
    const json list = json::parse(zel({"codes", "--json"}).out);
    ASSERT_EQ(list.size(), 16U);
    EXPECT_EQ(list[0], (json{{"name", "AIK-USD94"}, {"windSets", false}, {"seismic", false}, {"underground", false}, {"orthogonal", false}, {"rows", 24}}));
    EXPECT_EQ(list[3].at("windSets"), true);
    EXPECT_EQ(list[3].at("underground"), true);
}

TEST_F(Generate, ABadBatchLineIsToldWithItsNumberAndTheNextIsTaken)
{
    const std::string good = std::string("{\"model\": ") + fourCases + R"(, "options": {"code": "AIK-USD94"}})";
    const std::string modelPart = std::string("{\"model\": ") + fourCases + ", \"options\": ";
    const std::vector<std::pair<std::string, std::string>> bad{
        {"nonsense", "line 1, column 2"},
        {"[]", "must be an object"},
        {"{}", "model: is missing"},
        {"{\"model\": {}}", "options: is missing"},
        {modelPart + "{}}", "options.code: is missing"},
        {modelPart + R"({"code": "AIK-USD94", "kind": 6}})", "options.kind: must be a whole number from 1 to 5"},
        {modelPart + R"({"code": "AIK-USD94", "kinds": 1}})", "options.kinds: is unknown; did you mean \"kind\"?"},
        {modelPart + R"({"code": "AIK-USD94", "combType": 5}})", "options.combType: must be a whole number from 0 to 4"},
        {modelPart + R"({"code": "AIK-USD94", "orthoOption": "yes"}})", "options.orthoOption: must be true or false"},
        {modelPart + R"({"code": "AIK-USD94", "scaleFactors": {"x": 1}}})", "options.scaleFactors.x: is no key of a load case"},
        {modelPart + R"({"code": "AIK-USD94", "scaleFactors": {"7": "1"}}})", "options.scaleFactors.7: must be a number"},
        {modelPart + R"({"code": "AIK-USD94", "eccentricCases": [1]}})", "options.eccentricCases: must be an object"},
        {modelPart + R"({"code": "AIK-USD49"}})", "options.code: there is no design code \"AIK-USD49\". The nearest are \"AIK-USD94\""},
        {modelPart + R"({"code": "AIK-USD94", "scaleFactors": {"9": 1.25}}})",
         "options.scaleFactors.9: there is no load case with the key 9; the nearest are 4 \"EX\", 3 \"WX\", 2 \"LL\""},
        {modelPart + R"({"code": "AIK-USD94", "scaleFactors": {"4": -1}}})", "options.scaleFactors.4: a scale factor must not be below 0, and this is -1"},
        {modelPart + R"({"code": "AIK-USD94", "eccentricCases": {"4": 9}}})", "options.eccentricCases.4: there is no load case with the key 9"},
        {modelPart + R"({"code": "AIK-USD94", "eccentricCases": {"9": 4}}})", "options.eccentricCases.9: there is no load case with the key 9"},
        {modelPart + R"({"code": "AIK-USD94", "alphaH": -0.5}})", "options.alphaH: alpha_H must be from 0 to 2, not -0.5"},
        {modelPart + R"({"code": "AIK-USD94", "alphaH": 87.5}})", "options.alphaH: alpha_H must be from 0 to 2, not 87.5"},
        {R"({"model": {"format": "zel-model", "version": 1, "STLD": [{"name": 1}]}, "options": {"code": "AIK-USD94"}})", "model: STLD[0].name: must be a text"},
        {std::string(100000, '['), "nested deeper"},
    };
    std::string input;
    for (const auto& job : bad)
        input += job.first + "\n" + good + "\n";
    const Outcome run = zel({"batch"}, input);
    EXPECT_EQ(run.code, 1);
    std::istringstream lines(run.out);
    std::string line;
    for (std::size_t i = 0; i < bad.size(); ++i) {
        ASSERT_TRUE(std::getline(lines, line));
        const json failed = json::parse(line);
        EXPECT_EQ(failed.at("line"), 2 * i + 1);
        EXPECT_TRUE(failed.at("error").get<std::string>().starts_with("line " + std::to_string(2 * i + 1) + ": " + bad[i].second)) << line;
        ASSERT_TRUE(std::getline(lines, line));
        EXPECT_EQ(json::parse(line).at("ok"), 1) << bad[i].first;
    }
    EXPECT_FALSE(std::getline(lines, line));
}

TEST_F(Generate, EachResultOfABatchBearsTheIdOfItsJobAndItsLine)
{
    const std::string modelPart = std::string("\"model\": ") + fourCases + ", ";
    const std::string input = "{\"id\": \"A 1\", " + modelPart + R"("options": {"code": "AIK-USD94"}})" + "\n\n" + "{" + modelPart +
        R"("options": {"code": "no code"}, "id": {"row": [1, null]}})" + "\n{\"id\": 7}\n{" + modelPart + R"("options": {"code": "AIK-USD94"}})" + "\n";
    const Outcome run = zel({"batch"}, input);
    EXPECT_EQ(run.code, 1);
    std::istringstream lines(run.out);
    std::vector<json> results;
    for (std::string line; std::getline(lines, line);)
        results.push_back(json::parse(line));
    ASSERT_EQ(results.size(), 4U);
    EXPECT_EQ(results[0].at("ok"), 1);
    EXPECT_EQ(results[0].at("id"), "A 1");
    EXPECT_EQ(results[0].at("line"), 1);
    EXPECT_EQ(results[1].at("id"), json::parse(R"({"row": [1, null]})"));
    EXPECT_TRUE(results[1].contains("error"));
    EXPECT_EQ(results[1].at("line"), 3);
    EXPECT_EQ(results[2].at("id"), 7);
    EXPECT_EQ(results[2].at("error"), "line 4: model: is missing");
    EXPECT_FALSE(results[3].contains("id"));
}

TEST_F(Generate, AScaleOptionThatWouldDoNothingOrTwoThingsIsRefused)
{
    const std::vector<std::pair<std::vector<std::string>, std::string>> refused{
        {{"--scale", "WX=1.2"}, "--scale WX=1.2: \"WX\" is no earthquake case"},
        {{"--scale", "EX=1.2,EX"}, "--scale EX=1.2,EX: \"EX\" can't be its own eccentric partner."},
        {{"--scale", "EX=-0.1"}, "--scale EX=-0.1: a scale factor must not be below 0, and this is -0.1."},
        {{"--scale", "EX=1.2", "--scale", "#4=1.3"}, "--scale #4=1.3: \"EX\" has a scale factor already."},
        {{"--alpha-h", "3"}, "alpha_H must be from 0 to 2, not 3"},
    };
    for (const auto& [options, sentence] : refused) {
        std::vector<std::string> words{"generate", model, "--code", "AIK-USD94"};
        words.insert(words.end(), options.begin(), options.end());
        const Outcome run = zel(words);
        EXPECT_EQ(run.code, 1);
        EXPECT_TRUE(run.error.starts_with("zel: " + sentence)) << run.error;
    }
    EXPECT_EQ(json::parse(stored()).at("rows").size(), 0U);
}

TEST_F(Generate, ControlCharactersOfNamesAreWrittenOutInTables)
{
    ASSERT_EQ(
        zel({"load", "-", model, "--replace"},
            R"({"STLD": [{"name": "D\u001b[2JL", "type": "D"}, {"name": "L\nL", "type": "L"}], "ENVL": [{"name": "E\tN", "description": "a\rb", "items": []}]})")
            .code,
        0);
    const Outcome run = zel({"generate", model, "--code", "AIK-USD94"});
    EXPECT_EQ(run.code, 0) << run.error;
    EXPECT_NE(run.out.find("D\\x1B[2JL"), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("L\\nL"), std::string::npos) << run.out;
    EXPECT_EQ(run.out.find('\x1B'), std::string::npos);
    EXPECT_EQ(zel({"combinations", model}).out, run.out);
    EXPECT_EQ(zel({"envelopes", model}).out, "E\\tN: a\\rb\n");
    EXPECT_EQ(zel({"generate", model, "--code", "AIK-USD94", "--replace", "--explain", "gLCB1"}).out.find('\x1B'), std::string::npos);
}

}  // namespace
