#include "journal/journal_fixture.h"

namespace {

using journal_test::Json;
using journal_test::Played;

class ModelCommands : public journal_test::JournalTest {
protected:
    /// Adds the static load cases DL, LL and WX under the keys 1 to 3.
    void SetUp() override
    {
        for (const char* record : {R"({"name": "DL"})", R"({"name": "LL", "type": "L"})", R"({"name": "WX", "type": "W", "description": "wind"})"})
            ASSERT_EQ(resultOf(std::string(R"({"do": "db", "op": "add", "table": "STLD", "record": )") + record + "}"), 1);
    }

    std::string names()
    {
        std::string all;
        for (const Json& record : resultOf(R"({"do": "db", "op": "list", "table": "STLD"})"))
            all += record.at("name").get<std::string>() + " ";
        return all;
    }
};

TEST_F(ModelCommands, ListGetAndCountReadATable)
{
    EXPECT_EQ(names(), "DL LL WX ");
    EXPECT_EQ(resultOf(R"({"do": "db", "op": "count", "table": "STLD"})"), 3);
    EXPECT_EQ(resultOf(R"({"do": "db", "op": "get", "table": "STLD", "key": 2})").at("name"), "LL");
    EXPECT_EQ(resultOf(R"({"do": "db", "op": "get", "table": "STLD", "name": "wx"})").at("key"), 3);
    EXPECT_TRUE(resultOf(R"({"do": "db", "op": "get", "table": "STLD", "key": 9})").is_null());
    EXPECT_TRUE(resultOf(R"({"do": "db", "op": "get", "table": "STLD", "name": "nobody"})").is_null());
}

TEST_F(ModelCommands, EveryWriteGivesOneNoticeWithItsChanges)
{
    const Played played = play(R"({"do": "db", "op": "add", "table": "STLD", "key": 9, "record": {"name": "EX", "type": "E"}})"
                               "\n"
                               R"({"do": "db", "op": "modify", "table": "STLD", "name": "EX", "record": {"name": "EY"}})"
                               "\n"
                               R"({"do": "db", "op": "delete", "table": "STLD", "key": 9})"
                               "\n"
                               R"({"do": "db", "op": "put", "table": "LCWD", "record": {}})"
                               "\n");
    EXPECT_EQ(played.events(0, "notice"), R"([{"event": "notice", "hint": 0, "changes": [["STLD", "ADD", 9]]}])");
    EXPECT_EQ(played.events(1, "notice"), R"([{"event": "notice", "hint": 0, "changes": [["STLD", "MFD", 9], ["STLD", "MFS", 9]]}])");
    EXPECT_EQ(played.events(2, "notice"), R"([{"event": "notice", "hint": 0, "changes": [["STLD", "DEL", 9]]}])");
    EXPECT_EQ(played.events(3, "notice"), R"([{"event": "notice", "hint": 0, "changes": []}])") << "a table without update codes";
}

TEST_F(ModelCommands, AddWritesARecordForEachOfSeveralKeys)
{
    ASSERT_EQ(resultOf(R"({"do": "db", "op": "add", "table": "SECF", "keys": [3, 4], "record": {"fArea": 0.5}})"), 1);
    ASSERT_EQ(resultOf(R"({"do": "db", "op": "add", "table": "SECF", "keys": [4, 7], "record": {"fArea": 0.7}})"), 1);
    EXPECT_EQ(resultOf(R"({"do": "db", "op": "count", "table": "SECF"})"), 3);
    EXPECT_EQ(resultOf(R"({"do": "db", "op": "get", "table": "SECF", "key": 3})").at("fArea"), 0.5);
    EXPECT_EQ(resultOf(R"({"do": "db", "op": "get", "table": "SECF", "key": 4})").at("fArea"), 0.7);
}

TEST_F(ModelCommands, AddWithKeysIsRefusedWhereARecordHasOneKey)
{
    EXPECT_EQ(errorOf(R"({"do": "db", "op": "add", "table": "STLD", "keys": [7, 8], "record": {"name": "EX"}})"),
              "keys: STLD takes each record under a key of its own; use key");
    EXPECT_EQ(errorOf(R"({"do": "db", "op": "add", "table": "SECF", "keys": [7], "key": 8, "record": {}})"), "keys: stands beside key; give one of them");
    EXPECT_EQ(errorOf(R"({"do": "db", "op": "add", "table": "SECF", "keys": [], "record": {}})"), "keys: is empty; a record needs a key");
    EXPECT_EQ(names(), "DL LL WX ");
}

TEST_F(ModelCommands, ARefusalByTheTableIsResultZeroWithAMessageAndNoError)
{
    const Played played = play(R"({"do": "db", "op": "add", "table": "STLD", "record": {"name": "dl"}})"
                               "\n"
                               R"({"do": "db", "op": "delete", "table": "STLD", "name": "nobody"})"
                               "\n"
                               R"({"do": "db", "op": "modify", "table": "STLD", "key": 77, "record": {"name": "Q"}})"
                               "\n");
    EXPECT_EQ(played.status, zel::JournalPlayer::done);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(played.reply(i).at("result"), 0) << i;
        EXPECT_FALSE(played.reply(i).contains("error")) << i;
        EXPECT_NE(played.events(i, "message"), "[]") << i;
        EXPECT_EQ(played.events(i, "notice"), "[]") << i;
    }
    EXPECT_EQ(names(), "DL LL WX ");
}

TEST_F(ModelCommands, ModifyKeepsWhatTheRecordLeavesOutAndCanMoveARecord)
{
    EXPECT_EQ(resultOf(R"({"do": "db", "op": "modify", "table": "STLD", "name": "WX", "newKey": 30, "record": {"name": "WY"}})"), 1);
    EXPECT_TRUE(resultOf(R"({"do": "db", "op": "get", "table": "STLD", "key": 3})").is_null());
    const Json moved = resultOf(R"({"do": "db", "op": "get", "table": "STLD", "key": 30})");
    EXPECT_EQ(moved.at("name"), "WY");
    EXPECT_EQ(moved.at("type"), "W");
    EXPECT_EQ(moved.at("description"), "wind");
    EXPECT_EQ(moved.at("no"), 3);
}

TEST_F(ModelCommands, ARecordThatWasReadCanBeWrittenBack)
{
    Json record = resultOf(R"({"do": "db", "op": "get", "table": "STLD", "key": 2})");
    record["description"] = "live";
    EXPECT_EQ(resultOf(zel::printJson({{"do", "db"}, {"op", "modify"}, {"table", "STLD"}, {"key", 2}, {"record", record}})), 1);
    EXPECT_EQ(resultOf(R"({"do": "db", "op": "get", "table": "STLD", "key": 2})").at("description"), "live");
    EXPECT_EQ(errorOf(zel::printJson({{"do", "db"}, {"op", "modify"}, {"table", "STLD"}, {"key", 1}, {"record", record}})),
              "record.key: is 2, but the command says 1");
}

TEST_F(ModelCommands, DeleteTakesKeysOrNamesInOneChange)
{
    EXPECT_EQ(resultOf(R"({"do": "db", "op": "delete", "table": "STLD", "names": ["DL", "WX"]})"), 1);
    EXPECT_EQ(names(), "LL ");
    EXPECT_EQ(resultOf(R"({"do": "undo"})"), 1);
    EXPECT_EQ(names(), "DL LL WX ");
    EXPECT_EQ(resultOf(R"({"do": "db", "op": "delete", "table": "STLD", "keys": [1, 2]})"), 1);
    EXPECT_EQ(names(), "WX ");
}

TEST_F(ModelCommands, SequenceMovesRecordsBehindAnother)
{
    EXPECT_EQ(resultOf(R"({"do": "db", "op": "sequence", "table": "STLD", "keys": [3], "after": 0})"), 1);
    EXPECT_EQ(names(), "WX DL LL ");
    EXPECT_EQ(resultOf(R"({"do": "db", "op": "sequence", "table": "STLD", "keys": [3, 1], "after": 2})"), 1);
    EXPECT_EQ(names(), "LL WX DL ");
    EXPECT_EQ(errorOf(R"({"do": "db", "op": "sequence", "table": "LNLD", "keys": [1]})"),
              "op: LNLD has no sequence of its own; it stands in the order of its keys");
}

TEST_F(ModelCommands, ASingleRecordIsPutReadAndCleared)
{
    EXPECT_TRUE(resultOf(R"({"do": "db", "op": "single", "table": "SLCF"})").is_null());
    EXPECT_EQ(resultOf(R"({"do": "db", "op": "put", "table": "SLCF", "record": {"shortPeriodCoefficient": 0.5}})"), 1);
    EXPECT_EQ(resultOf(R"({"do": "db", "op": "single", "table": "SLCF"})").at("shortPeriodCoefficient"), 0.5);
    EXPECT_EQ(resultOf(R"({"do": "db", "op": "single", "table": "SLCF"})").at("verticalLoadFactor"), 0.2);
    EXPECT_EQ(resultOf(R"({"do": "db", "op": "clear", "table": "SLCF"})"), 1);
    EXPECT_TRUE(resultOf(R"({"do": "db", "op": "single", "table": "SLCF"})").is_null());
    EXPECT_EQ(errorOf(R"({"do": "db", "op": "single", "table": "STLD"})"), "op: STLD holds many records; use list, get, add, modify and delete");
    EXPECT_EQ(errorOf(R"({"do": "db", "op": "add", "table": "SLCF", "record": {}})"), "op: SLCF holds one record; use single, put and clear");
}

TEST_F(ModelCommands, KindsAreTablesOfTheirOwn)
{
    EXPECT_EQ(resultOf(R"({"do": "db", "op": "add", "table": "LCOM", "kind": 3, "record": {"name": "A", "items": [{"type": 1, "key": 1, "factor": 1.4}]}})"),
              1);
    EXPECT_EQ(resultOf(R"({"do": "db", "op": "add", "table": "LCOM", "record": {"kind": 2, "name": "A"}})"), 1);
    EXPECT_EQ(resultOf(R"({"do": "db", "op": "count", "table": "LCOM"})"), 2);
    EXPECT_EQ(resultOf(R"({"do": "db", "op": "count", "table": "LCOM", "kind": 3})"), 1);
    EXPECT_EQ(resultOf(R"({"do": "db", "op": "get", "table": "LCOM", "kind": 3, "name": "A"})").at("items")[0].at("factor"), 1.4);
    EXPECT_TRUE(resultOf(R"({"do": "db", "op": "get", "table": "LCOM", "kind": 1, "name": "A"})").is_null());
    EXPECT_EQ(errorOf(R"({"do": "db", "op": "count", "table": "LCOM", "kind": 6})"), "kind: must be a whole number from 1 to 5");
}

TEST_F(ModelCommands, WhatCantBeCarriedOutSaysWhy)
{
    EXPECT_EQ(errorOf(R"({"do": "db", "op": "lst", "table": "STLD"})"), "op: there is no operation \"lst\"; did you mean \"list\"?");
    EXPECT_EQ(errorOf(R"({"do": "db", "op": "list", "table": "STDL"})"), "table: there is no table \"STDL\"; did you mean \"STLD\"?");
    EXPECT_EQ(errorOf(R"({"do": "db", "op": "list"})"), "table: is missing");
    EXPECT_EQ(errorOf(R"({"do": "db", "op": "get", "table": "STLD"})"), "key: one of key and name is needed");
    EXPECT_EQ(errorOf(R"({"do": "db", "op": "get", "table": "STLD", "key": 1, "name": "DL"})"), "key: one of key and name is needed");
    EXPECT_EQ(errorOf(R"({"do": "db", "op": "get", "table": "SPDI", "name": "DL"})"), "name: records of SPDI have no name; address them by key");
    EXPECT_EQ(errorOf(R"({"do": "db", "op": "add", "table": "STLD", "record": {"nam": "X"}})"), "record.nam: there is no such field; did you mean \"name\"?");
    EXPECT_EQ(errorOf(R"({"do": "db", "op": "delete", "table": "STLD"})"), "key: one of key, name, keys and names is needed");
    EXPECT_EQ(errorOf(R"({"do": "db", "op": "delete", "table": "STLD", "keys": [1, 0]})"), "keys[1]: must be a whole number from 1 to 4294967295");
    EXPECT_EQ(names(), "DL LL WX ");
}

TEST_F(ModelCommands, UnitsConvertTheModelInOneUndoStep)
{
    ASSERT_EQ(resultOf(R"({"do": "db", "op": "add", "table": "PONT", "record": {"x": 1500.0}})"), 1);
    const Played played = play(R"({"do": "units", "length": "M"})"
                               "\n"
                               R"({"do": "db", "op": "get", "table": "PONT", "key": 1})"
                               "\n"
                               R"({"do": "undo"})"
                               "\n"
                               R"({"do": "db", "op": "get", "table": "PONT", "key": 1})"
                               "\n");
    EXPECT_EQ(played.reply(0).at("result"), 1);
    EXPECT_EQ(played.events(0, "notice"), R"([{"event": "notice", "hint": 4, "changes": []}])");
    EXPECT_EQ(played.reply(1).at("result").at("x"), 1.5);
    EXPECT_EQ(played.events(2, "notice"), R"([{"event": "notice", "hint": 4, "changes": []}])");
    EXPECT_EQ(played.reply(3).at("result").at("x"), 1500.0);
    EXPECT_EQ(errorOf(R"({"do": "units", "length": "YARD"})"), "length: there is no unit \"YARD\"");
    EXPECT_EQ(errorOf(R"({"do": "units"})"), "length: one of length and force is needed");
}

TEST_F(ModelCommands, UndoAndRedoTellTheirHints)
{
    const Played played = play("{\"do\": \"undo\"}\n{\"do\": \"redo\"}\n{\"do\": \"redo\"}\n");
    EXPECT_EQ(played.events(0, "notice"), R"([{"event": "notice", "hint": 1, "changes": [["STLD", "DEL", 3]]}])");
    EXPECT_EQ(played.events(1, "notice"), R"([{"event": "notice", "hint": 3, "changes": [["STLD", "ADD", 3]]}])");
    EXPECT_EQ(played.reply(2).at("result"), 0) << "nothing is left to do again";
    EXPECT_FALSE(played.reply(2).contains("error"));
}

TEST_F(ModelCommands, ViewSelectsObjectsAndLeavesModes)
{
    ASSERT_EQ(resultOf(R"({"do": "db", "op": "add", "table": "PONT", "record": {}})"), 1);
    const Played played = play(R"({"do": "view", "select": {"points": [1]}})"
                               "\n"
                               R"({"do": "view", "mode": "post"})"
                               "\n"
                               R"({"do": "view", "mode": "model"})"
                               "\n");
    EXPECT_EQ(played.events(0, "notice"), R"([{"event": "notice", "hint": 5, "changes": []}])");
    EXPECT_EQ(played.events(1, "notice"), R"([{"event": "notice", "hint": 7, "changes": []}])");
    EXPECT_EQ(played.events(2, "notice"), R"([{"event": "notice", "hint": 8, "changes": []}])");
    EXPECT_EQ(document->GetViewCtrl()->selection().points, (std::vector<zel::Key>{1}));
    EXPECT_EQ(errorOf(R"({"do": "view", "select": {"point": [1]}})"), "select: there is no kind of object \"point\"; did you mean \"points\"?");
    EXPECT_EQ(errorOf(R"({"do": "view", "mode": "both"})"), "mode: must be model or post");
}

}  // namespace
