#include "cli/program.h"

namespace {

using cli_test::Outcome;
using cli_test::zel;

class ListEnvelopes : public cli_test::CliTest {};

TEST_F(ListEnvelopes, NamesEachItemWithItsTypeAndSaysWhichAreGone)
{
    const std::string model = path("m.qvx");
    ASSERT_EQ(zel({"load", "-", model},
                  R"({"format": "zel-model", "version": 1, "STLD": [{"key": 1, "name": "DL", "type": "D"}],
                      "LCOM": [{"kind": 3, "key": 2, "name": "cLCB1"}],
                      "ENVL": [{"key": 1, "name": "E1", "description": "of all", "items": [{"type": 0, "key": 1}, {"type": 8, "key": 2}, {"type": 6, "key": 9}]},
                               {"key": 2, "name": "E2", "items": []}]})")
                  .code,
              0);
    const Outcome listed = zel({"envelopes", model});
    EXPECT_EQ(listed.code, 0);
    EXPECT_EQ(listed.out, "E1: of all\n  ST   DL\n  CBC  cLCB1\n  CB   (no longer in the model)\nE2\n");
}

TEST_F(ListEnvelopes, RefuseAModelThatIsNotThere)
{
    const Outcome refused = zel({"envelopes", path("none.qvx")});
    EXPECT_EQ(refused.code, 1);
    EXPECT_NE(refused.error.find("none.qvx"), std::string::npos);
    EXPECT_EQ(zel({"envelopes"}).code, 2);
}

}  // namespace
