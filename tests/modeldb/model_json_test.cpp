#include "modeldb/model_text.h"
#include "platform/modeldb/model_json.h"

#include "contract/table.h"
#include "contract/tables/load_combination_table.h"
#include "contract/tables/load_set_tables.h"
#include "contract/tables/model_tables.h"
#include "contract/tables/static_load_case_table.h"
#include "platform/modeldb/model_document.h"
#include "platform/modeldb/record_json.h"

#include <nlohmann/json.hpp>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace {

using zel::ModelDocument;

std::string printed(CDBDoc& document)
{
    std::ostringstream out;
    zel::printModelJson(document, out);
    return out.str();
}

std::unique_ptr<ModelDocument> loaded(const std::string& text)
{
    const zel::Json json = zel::parseJson(text);
    std::unique_ptr<ModelDocument> document = ModelDocument::inMemory(zel::unitsOfModelJson(json));
    zel::storeRows(*document, zel::rowsOfModelJson(json));
    return document;
}

std::string model(const std::string& tables)
{
    return R"({"format": "zel-model", "version": 1, )" + tables + "}";
}

std::string faultOf(const std::string& text)
{
    try {
        const std::unique_ptr<ModelDocument> document = loaded(text);
    } catch (const zel::JsonFault& fault) {
        return fault.what();
    }
    return "none";
}

TEST(ModelJson, AnEmptyModelIsItsHeadAndEmptyLists)
{
    const std::unique_ptr<ModelDocument> document = ModelDocument::inMemory({T_UNIT_INDEX::M, T_UNIT_INDEX::TON});
    EXPECT_NE(printed(*document).find(",\n \"STLD\": [],\n \"LCOM\": []"), std::string::npos);
    EXPECT_EQ(printed(*document).find("LCWD"), std::string::npos) << "one record that was never written";
    EXPECT_EQ(zel::test::withoutEmptyTables(printed(*document)),
              "{\"format\": \"zel-model\", \"version\": 1, \"units\": {\"length\": \"M\", \"force\": \"TON\"}}\n");
}

TEST(ModelJson, RecordsStandInSequenceUnderTheirFieldNames)
{
    const std::unique_ptr<ModelDocument> document = ModelDocument::inMemory();
    CDataStld cases;
    T_STLD_D dead;
    dead.name = "DL";
    dead.selfWeightFactor = -1.0;
    T_STLD_D live;
    live.name = "LL";
    live.type = "L";
    ASSERT_TRUE(cases.Add(std::vector<T_STLD_D>{dead, live}));
    ASSERT_TRUE(cases.ChangeSequence({2}, 0));
    const zel::Json json = zel::parseJson(printed(*document));
    ASSERT_EQ(json.at("STLD").size(), 2U);
    EXPECT_EQ(zel::printJson(json.at("STLD")[1]),
              R"({"key": 1, "name": "DL", "no": 2, "type": "D", "description": "", "selfWeightFactor": -1.0, "subLoadCaseCount": 0, )"
              R"("combinationType": 0, "majorCase": 0})");
    EXPECT_EQ(json.at("STLD")[0].at("name"), "LL");
}

TEST(ModelJson, AModelPrintedAndLoadedAgainIsTheSame)
{
    const std::string text = model(R"("units": {"length": "M", "force": "KN"},
        "STLD": [{"key": 7, "name": "W", "type": "W"}, {"key": 2, "name": "DL", "selfWeightFactor": 0.1}],
        "LCOM": [{"kind": 1, "key": 1, "name": "gLCB1  ", "active": 0, "description": "1.2DL", "items": [{"type": 1, "key": 2, "factor": 1.2}]},
                 {"kind": 3, "key": 1, "name": "gLCB1  "}],
        "WKAR": [{"key": 9, "name": "A1", "angle": 30, "outerPoints": [1, 2, 3]}],
        "SECT": [{"key": 1, "name": "S", "base": {"sizes": [1, 2, 3]}}],
        "LCWD": {"sets": []})");
    const std::string first = printed(*loaded(text));
    EXPECT_EQ(printed(*loaded(first)), first);
    const zel::Json json = zel::parseJson(first);
    EXPECT_EQ(json.at("STLD")[0].at("key"), 7);
    EXPECT_EQ(json.at("STLD")[0].at("no"), 1);
    EXPECT_EQ(json.at("LCOM")[0].at("items")[0].at("factor"), 1.2);
    EXPECT_EQ(json.at("LCOM")[1].at("kind"), 3);
    EXPECT_EQ(json.at("WKAR")[0].at("key"), 9);
    EXPECT_EQ(json.at("SECT")[0].at("base").at("sizes")[2], 3.0);
    EXPECT_TRUE(json.contains("LCWD"));
    EXPECT_FALSE(json.contains("SLCF")) << "a single record that was never written is absent";
}

TEST(ModelJson, PlacesFollowTheOrderOfTheArray)
{
    const std::unique_ptr<ModelDocument> document = loaded(model(R"("STLD": [{"name": "B", "no": 9}, {"name": "A", "no": 1}])"));
    CDataStld cases;
    std::vector<T_STLD_D> records;
    cases.GetDataList(records);
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].name, "B");
    EXPECT_EQ(records[0].no, 1);
}

TEST(ModelJson, AMissingKeyIsGivenAboveAllOthers)
{
    const std::unique_ptr<ModelDocument> document = loaded(model(R"("STLD": [{"name": "A"}, {"name": "B", "key": 5}, {"name": "C"}])"));
    CDataStld cases;
    std::vector<zel::Key> keys;
    cases.GetKeyList(keys);
    EXPECT_EQ(keys, (std::vector<zel::Key>{6, 5, 7}));
}

TEST(ModelJson, AMissingFieldTakesItsDefaultInTheModelsUnits)
{
    const std::unique_ptr<ModelDocument> document = loaded(model(R"("units": {"length": "M"}, "MCTL": {})"));
    CDataMctl control;
    ASSERT_TRUE(control.Get());
    EXPECT_DOUBLE_EQ(control.currentRecord.maxMeshDimension, 1.0);  // one metre
}

struct FaultyModel {
    const char* what;
    const char* tables;
    const char* fault;  // how the sentence begins
};
void PrintTo(const FaultyModel& row, std::ostream* out)
{
    *out << row.what;
}

const FaultyModel faultyModels[] = {
    {"UnknownTable", R"("STLDD": [])", R"(STLDD: there is no such table; did you mean "STLD"?)"},
    {"UnknownField", R"("STLD": [{"name": "A"}, {"nmae": "B"}])", R"(STLD[1].nmae: there is no such field; did you mean "name"?)"},
    {"UnknownInnerField", R"("LCOM": [{"name": "A", "items": [{}, {"faktor": 1}]}])", "LCOM[0].items[1].faktor: there is no such field"},
    {"WrongType", R"("STLD": [{"name": 3}])", "STLD[0].name: must be a text, not a number"},
    {"TextForNumber", R"("STLD": [{"name": "A", "selfWeightFactor": "1"}])", "STLD[0].selfWeightFactor: must be a number, not a text"},
    {"TableNoList", R"("STLD": {})", "STLD: must be a list of records, not an object"},
    {"RecordNoObject", R"("STLD": [1])", "STLD[0]: must be an object, not a number"},
    {"SingleNoObject", R"("LCWD": [])", "LCWD: must be an object, not a list"},
    {"ListNoList", R"("LCOM": [{"name": "A", "items": 1}])", "LCOM[0].items: must be a list, not a number"},
    {"HalfInteger", R"("STLD": [{"name": "A", "majorCase": 1.5}])", "STLD[0].majorCase: must be a whole number from -2147483648 to 2147483647"},
    {"IntegerTooBig", R"("STLD": [{"name": "A", "majorCase": 2147483648}])", "STLD[0].majorCase: must be a whole number"},
    {"IntegerBeyond64Bits", R"("STLD": [{"name": "A", "majorCase": 18446744073709551615}])", "STLD[0].majorCase: must be a whole number"},
    {"UnsignedBelowZero", R"("STLD": [{"name": "A", "combinationType": -1}])", "STLD[0].combinationType: must be a whole number from 0"},
    {"KeyZero", R"("STLD": [{"name": "A", "key": 0}])", "STLD[0].key: must be a whole number from 1 to 4294967295"},
    {"KeyTwice", R"("STLD": [{"name": "A", "key": 3}, {"name": "B", "key": 3}])", "STLD[1].key: 3 stands already at STLD[0]"},
    {"NameTwiceInOtherCase", R"("STLD": [{"name": "DL"}, {"name": "dl"}])", R"(STLD[1].name: "dl" stands already at STLD[0])"},
    {"NameBlank", R"("STLD": [{"name": "  "}])", "STLD[0].name: must not be empty or blank"},
    {"NameMissing", R"("STLD": [{}])", "STLD[0].name: must not be empty or blank"},
    {"KindOutOfRange", R"("LCOM": [{"kind": 6, "name": "A"}])", "LCOM[0].kind: must be a whole number from 1 to 5"},
    {"TooManyPlaces", R"("PTLA": [{"value": [1, 2, 3, 4, 5, 6, 7]}])", "PTLA[0].value: has 7 elements; at most 6 are taken"},
    {"NulInText", R"("STLD": [{"name": "A\u0000B"}])", "STLD[0].name: holds a NUL"},
    {"UnknownUnit", R"("units": {"length": "YARD"})", "units.length: must be one of MM, CM, M, INCH, FEET"},
    {"UnknownQuantity", R"("units": {"time": "S"})", "units.time: is unknown"},
    {"NoKeyLeft", R"("STLD": [{"name": "A", "key": 4294967295}, {"name": "B"}])", "STLD[1].key: is missing, and no higher key"},
};

class FaultyModelJson : public testing::TestWithParam<FaultyModel> {};

TEST_P(FaultyModelJson, IsRefusedWithThePathOfTheFault)
{
    EXPECT_TRUE(faultOf(model(GetParam().tables)).starts_with(GetParam().fault)) << faultOf(model(GetParam().tables));
}

INSTANTIATE_TEST_SUITE_P(Rows, FaultyModelJson, testing::ValuesIn(faultyModels), [](const auto& row) { return std::string(row.param.what); });

TEST(ModelJson, TellsWhatIsNoModelAndWhatIsTooNew)
{
    EXPECT_EQ(faultOf("[]"), "a model must be an object, not a list");
    EXPECT_EQ(faultOf(R"({"format": "another"})"), "format: must be \"zel-model\"; this is no model");
    EXPECT_EQ(faultOf("{}"), "none") << "what is missing takes its default";
    EXPECT_TRUE(faultOf(R"({"format": "zel-model", "version": 2})").starts_with("version: is newer than 1"));
}

TEST(ModelJson, NamesOfDifferentKindsAreASpaceOfTheirOwn)
{
    EXPECT_EQ(faultOf(model(R"("LCOM": [{"kind": 1, "name": "A", "key": 1}, {"kind": 2, "name": "A", "key": 1}])")), "none");
    EXPECT_TRUE(faultOf(model(R"("LCOM": [{"kind": 2, "name": "A"}, {"kind": 1, "name": "A"}, {"kind": 2, "name": "a"}])"))
                    .starts_with("LCOM[2].name: \"a\" stands already at LCOM[0]"));
}

TEST(ModelJson, EveryTableComesBackWithItsDefaults)
{
    const std::unique_ptr<ModelDocument> document = ModelDocument::inMemory();
    for (const zel::TableInfo& table : zel::tableList()) {
        const zel::JsonRecord read = zel::recordFromJson(table, zel::Json::object(), "record");
        const zel::Json first = zel::recordToJson(table, 1, 1, read.record.get());
        const zel::JsonRecord again = zel::recordFromJson(table, first, "record");
        EXPECT_TRUE(table.record->equal(read.record.get(), again.record.get())) << table.code;
        EXPECT_EQ(again.key, table.shape == zel::TableShape::single ? 0U : 1U) << table.code;
    }
}

TEST(RecordJson, WhatIsLeftOutStaysAsInTheBase)
{
    const std::unique_ptr<ModelDocument> document = ModelDocument::inMemory();
    T_LCOM_D base;
    base.name = "A";
    base.active = 0;
    base.items = {{1, 2, 1.5}, {1, 3, 0.5}};
    const zel::JsonRecord read =
        zel::recordFromJson(zel::tableInfo(Table::LCOM), zel::parseJson(R"({"description": "x", "items": [{"key": 9}]})"), "record", &base);
    const auto& made = *static_cast<const T_LCOM_D*>(read.record.get());
    EXPECT_EQ(made.name, "A");
    EXPECT_EQ(made.active, 0);
    EXPECT_EQ(made.description, "x");
    ASSERT_EQ(made.items.size(), 1U);
    EXPECT_EQ(made.items[0], (T_LCOM_ITEM{0, 9, 0.0})) << "elements of a list are new";
}

}  // namespace
