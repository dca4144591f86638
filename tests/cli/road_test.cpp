#include "build_paths.h"
#include "cli/program.h"
#include "modeldb/model_text.h"

namespace {

using cli_test::contents;
using cli_test::Outcome;
using cli_test::zel;

class RoadOfOneRequest : public cli_test::CliTest {};

// Load cases by their form; the editor, the generation with a wind set and a scale factor; edits in both forms, a drag, a copy, an import;
// an envelope; real loads of a combination. Transcript and dump were read line by line when they were taken over.
TEST_F(RoadOfOneRequest, FromAnEmptyModelToAnEnvelopeSavedReopenedAndDumped)
{
    const std::string road = zel::test::sourceFolder() + "/tests/cli/road/";
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder);  // the journal names the file to import without a folder
    std::filesystem::copy_file(road + "road.lcb", path("road.lcb"));
    ASSERT_EQ(zel({"new", "model.qvx"}).code, 0);
    const Outcome played = zel({"play", "model.qvx", "--script", road + "road.jsonl"});
    const Outcome dumped = zel({"dump", "model.qvx"});
    const Outcome envelopes = zel({"envelopes", "model.qvx"});
    std::filesystem::current_path(before);
    EXPECT_EQ(played.code, 0);
    EXPECT_EQ(played.out, contents(road + "road.expected"));
    EXPECT_EQ(zel::test::withoutEmptyTables(dumped.out), contents(road + "dump.expected"));
    EXPECT_EQ(envelopes.out, "ENV: strength\n  CB   SERVICE\n  CB   gLCB1  \n");
}

}  // namespace
