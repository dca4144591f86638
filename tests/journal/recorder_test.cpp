#include "journal/recorder_fixture.h"

#include "command/command.h"
#include "contract/unit_types.h"

#include <gmock/gmock.h>

namespace {

using journal_test::Form;
using journal_test::Recording;
using testing::ElementsAre;

using Recorder = journal_test::RecorderTest;

TEST_F(Recorder, MenusAreWrittenByTheirCommands)
{
    const Recording recording = record([this] {
        EXPECT_NE(hand.modeless(D_CMD_MODEL_LOAD_LOADCASE), nullptr);
        host.inEachModal = [this](CDialog& dialog) { EXPECT_TRUE(hand.close(dialog)); };
        EXPECT_EQ(hand.modal(2), IDCANCEL);
        host.inEachModal = [this](CDialog&) { press("Cancel"); };
        EXPECT_TRUE(hand.open("CDgnGenSeisFactor"));
        EXPECT_FALSE(hand.open("CNoSuchDialog"));
        EXPECT_EQ(hand.units(*document, {T_UNIT_INDEX::M, T_UNIT_INDEX::TON}), 1);
        EXPECT_EQ(hand.undo(*document), 1);
        EXPECT_EQ(hand.redo(*document), 1);
        EXPECT_EQ(hand.redo(*document), 0);
    });
    EXPECT_THAT(recording.lines(),
                ElementsAre(R"({"do": "modeless", "id": "D_CMD_MODEL_LOAD_LOADCASE"})", R"({"do": "modal", "number": 2})", R"({"do": "close"})",
                            R"({"do": "open", "class": "CDgnGenSeisFactor"})", R"({"do": "press", "control": "Cancel"})",
                            R"({"do": "units", "length": "M", "force": "TON"})", R"({"do": "undo"})", R"({"do": "redo"})", R"({"do": "redo"})"));
}

TEST_F(Recorder, TheViewsSelectionAndModeAreWritten)
{
    const Recording recording = record([this] {
        hand.select(*document, {});
        hand.mode(*document, commands, true);
        EXPECT_TRUE(commands.isPost());
        hand.mode(*document, commands, false);
        EXPECT_FALSE(commands.isPost());
    });
    EXPECT_THAT(recording.lines(), ElementsAre(R"({"do": "view", "select": {}})", R"({"do": "view", "mode": "model"})", R"({"do": "view", "mode": "post"})"));
}

TEST_F(Recorder, AllButTheLastCommandHasLeftTheProgram)
{
    begin();
    std::ostringstream journal;
    zel::JournalRecorder recorder(*document, journal);
    hand.setRecorder(&recorder);
    hand.undo(*document);
    EXPECT_EQ(journal.str(), "");
    hand.redo(*document);
    EXPECT_EQ(journal.str(), "{\"do\": \"undo\"}\n");
    EXPECT_EQ(recorder.commandCount(), 2);
    hand.setRecorder(nullptr);
    recorder.stop();
    EXPECT_EQ(journal.str(), "{\"do\": \"undo\"}\n{\"do\": \"redo\"}\n");
}

/// A place that takes so many bytes and no more.
class FullDisk final : public std::streambuf {
public:
    explicit FullDisk(int bytes) : m_left(bytes) {}

protected:
    int_type overflow(int_type c) override { return m_left-- > 0 ? c : traits_type::eof(); }

private:
    int m_left;
};

TEST_F(Recorder, AJournalThatCantBeWrittenIsToldOnceAndEnds)
{
    begin();
    FullDisk disk(20);
    std::ostream journal(&disk);
    std::ostringstream transcript;
    int told = 0;
    zel::JournalRecorder recorder(*document, journal, {&transcript, [&told] { ++told; }});
    hand.setRecorder(&recorder);
    for (int i = 0; i < 5; ++i)
        hand.undo(*document);
    EXPECT_TRUE(recorder.hasFailed());
    EXPECT_EQ(told, 1);
    hand.setRecorder(nullptr);
}

TEST_F(Recorder, BeginsWhereTheUserStands)
{
    begin();
    hand.modeless(D_CMD_RESULT_LOADCOMB);
    hand.modeless(D_CMD_MODEL_LOAD_LOADCASE);
    new Form;  // its window frees it
    hand.mode(*document, commands, true);
    std::ostringstream journal;
    zel::JournalRecorder recorder(*document, journal);
    recorder.note("first\nline");
    recorder.writeStart(commands);
    EXPECT_THAT((Recording{journal.str(), {}}.lines()),
                ElementsAre("# first line", R"({"do": "modeless", "id": "D_CMD_RESULT_LOADCOMB"})", R"({"do": "modeless", "id": "D_CMD_MODEL_LOAD_LOADCASE"})",
                            "# The dialog \"Form\" was open. No command opens it here.", R"({"do": "view", "mode": "model"})"));
}

TEST_F(Recorder, HandsEverythingOnToTheHost)
{
    begin();
    std::ostringstream journal;
    const zel::IUserInterface* former = zel::userInterface();
    {
        zel::JournalRecorder recorder(*document, journal);
        EXPECT_NE(zel::userInterface(), former);
        auto* form = new Form;
        EXPECT_TRUE(form->lines.press());
        EXPECT_TRUE(form->tell.press());
        CPrefer::SetUpPrefer(3);
        recorder.stop();
        EXPECT_EQ(zel::userInterface(), former);
    }
    EXPECT_THAT(host.events, ElementsAre("opened Form", "output out", "history past", "message Done.", "preferences 3"));
}

TEST_F(Recorder, CommentsOfAJournalCountAsLinesOfItsTranscript)
{
    const Recording recording = recordOnly([this] {
        hand.recorder()->note("made by hand");
        hand.undo(*document);
    });
    EXPECT_EQ(recording.transcript, "{\"n\": 2, \"do\": \"undo\", \"result\": 0, \"events\": []}\n");
}

}  // namespace
