#include "journal/recorder_fixture.h"

#include "journal/control_name.h"

#include <gmock/gmock.h>

namespace {

using journal_test::Form;
using journal_test::Recording;
using testing::ElementsAre;

class RecordedControls : public journal_test::RecorderTest {
protected:
    RecordedControls()
    {
        dialogs = [this] { form = new Form; };  // its window frees it
    }

    Form* form = nullptr;
};

TEST_F(RecordedControls, EveryControlHasANameThatLeadsToIt)
{
    begin();
    for (const zel::Control* control : form->controls()) {
        const CString name = zel::controlName(*control);
        EXPECT_EQ(zel::findControl(*form, name).control, control) << name;
    }
    EXPECT_EQ(zel::controlName(form->name), "Name");
    EXPECT_EQ(zel::controlName(form->firstValue), "First/Value");
    EXPECT_EQ(zel::controlName(form->secondValue), "Second/Value");
    EXPECT_EQ(zel::controlName(form->rows), "rows");
    EXPECT_EQ(zel::controlName(form->slash), "A/B #2");
}

TEST_F(RecordedControls, ANameIsThatOfTheControlThatIsSeen)
{
    begin();
    form->secondValue.ShowWindow(false);
    EXPECT_EQ(zel::controlName(form->firstValue), "Value");
    EXPECT_EQ(zel::controlName(form->secondValue), "Second/Value");
}

TEST_F(RecordedControls, TypingIsOneCommandWithTheTextThatStandsAtTheEnd)
{
    const Recording recording = record([this] {
        type("Name", "Beam");
        EXPECT_TRUE(hand.type(form->name, "Be"));
        press("Tell");
    });
    EXPECT_THAT(recording.lines(), ElementsAre(R"({"do": "set", "control": "Name", "value": "Be"})", R"({"do": "press", "control": "Tell"})"));
}

TEST_F(RecordedControls, AFieldThatIsLeftAndEnteredAgainIsTwoCommands)
{
    const Recording recording = record([this] {
        type("Name", "A");
        EXPECT_TRUE(hand.focus(form->firstValue));
        type("Name", "AB");
    });
    EXPECT_THAT(recording.lines(), ElementsAre(R"({"do": "set", "control": "Name", "value": "A"})", R"({"do": "set", "control": "Name", "value": "AB"})"));
}

TEST_F(RecordedControls, WhatIsTypedIsWrittenWhenTheRecordingStops)
{
    EXPECT_THAT(recordOnly([this] { type("Name", "X"); }).lines(), ElementsAre(R"({"do": "set", "control": "Name", "value": "X"})"));
}

TEST_F(RecordedControls, ChoicesAreWrittenByTheirTexts)
{
    const Recording recording = record([this] {
        EXPECT_TRUE(hand.act(form->tick, {.verb = zel::Verb::set, .value = true}));
        EXPECT_TRUE(hand.act(form->right, {.verb = zel::Verb::set, .value = true}));
        EXPECT_TRUE(hand.choose(form->shape, 1));
        EXPECT_TRUE(hand.act(form->shape, {.verb = zel::Verb::set, .value = CString("Round")}));
        EXPECT_TRUE(hand.act(form->firstValue, {.verb = zel::Verb::set, .value = 2.5}));
        EXPECT_TRUE(hand.act(form->rows, {.verb = zel::Verb::select, .rows = {1}}));
        EXPECT_TRUE(hand.act(form->rows, {.verb = zel::Verb::doubleClick, .row = 0}));
        EXPECT_TRUE(hand.act(form->table, {.verb = zel::Verb::select, .rows = {0}}));
        EXPECT_TRUE(hand.act(form->table, {.verb = zel::Verb::select, .rows = {}}));
        EXPECT_TRUE(hand.act(form->ticks, {.verb = zel::Verb::tick, .row = 1, .on = true}));
        EXPECT_TRUE(hand.act(form->spin, {.verb = zel::Verb::spin, .delta = -1}));
        EXPECT_TRUE(hand.act(form->picked, {.verb = zel::Verb::pick, .keys = {3, 5}, .closed = true}));
    });
    EXPECT_THAT(recording.lines(),
                ElementsAre(R"({"do": "set", "control": "Tick", "value": true})", R"({"do": "set", "control": "Right", "value": true})",
                            R"({"do": "set", "control": "Shape", "value": "Square"})", R"({"do": "set", "control": "Shape", "value": "Round"})",
                            R"({"do": "set", "control": "First/Value", "value": 2.5})", R"({"do": "select", "control": "rows", "rows": [1]})",
                            R"({"do": "double_click", "control": "rows", "row": 0})", R"({"do": "select", "control": "table", "rows": [0]})",
                            R"({"do": "select", "control": "table", "rows": []})", R"({"do": "tick", "control": "ticks", "row": 1, "value": true})",
                            R"({"do": "spin", "control": "countSpin", "delta": -1})",
                            R"({"do": "pick", "control": "Picked", "keys": [3, 5], "closed": true})"));
}

TEST_F(RecordedControls, AnEntryWhoseTextStandsTwiceIsWrittenByItsPlace)
{
    dialogs = [this] {
        form = new Form;
        form->shape.AddString("Round", 3);
    };
    const Recording recording = record([this] {
        EXPECT_TRUE(hand.choose(form->shape, 2));
        EXPECT_TRUE(hand.choose(form->shape, 0));
    });
    EXPECT_THAT(recording.lines(), ElementsAre(R"({"do": "set", "control": "Shape", "value": 2})", R"({"do": "set", "control": "Shape", "value": "Round"})"));
}

TEST_F(RecordedControls, ARefusedStepLeavesNothing)
{
    const Recording recording = record([this] {
        EXPECT_FALSE(hand.act(form->off, {zel::Verb::press}));
        EXPECT_FALSE(hand.act(form->away, {zel::Verb::press}));
        EXPECT_FALSE(hand.choose(form->shape, 7));
        press("Tell");
        EXPECT_FALSE(hand.act(form->off, {zel::Verb::press}));
    });
    EXPECT_THAT(recording.lines(), ElementsAre(R"({"do": "press", "control": "Tell"})"));
}

TEST_F(RecordedControls, AnAnswerStandsBeforeTheCommandThatAsked)
{
    host.answer(IDNO);
    const Recording recording = record([this] {
        type("Name", "X");
        press("Ask...");
        press("Ask...");
    });
    EXPECT_THAT(recording.lines(),
                ElementsAre(R"({"do": "set", "control": "Name", "value": "X"})", R"({"do": "answer", "with": "no"})", R"({"do": "press", "control": "Ask..."})",
                            R"({"do": "answer", "with": "yes"})", R"({"do": "press", "control": "Ask..."})"));
}

TEST_F(RecordedControls, ABoxWithOkAloneTakesNoAnswerAway)
{
    const Recording recording = record([this] {
        press("Tell");
        host.answer(IDNO);
        press("Ask...");
    });
    EXPECT_THAT(recording.lines(),
                ElementsAre(R"({"do": "press", "control": "Tell"})", R"({"do": "answer", "with": "no"})", R"({"do": "press", "control": "Ask..."})"));
}

TEST_F(RecordedControls, AChosenFileStandsBeforeTheCommandThatAskedForIt)
{
    host.file("/tmp/a b.txt");
    const Recording recording = record([this] {
        press("Browse...");
        press("Browse...");
    });
    EXPECT_THAT(recording.lines(),
                ElementsAre(R"({"do": "file", "path": "/tmp/a b.txt"})", R"({"do": "press", "control": "Browse..."})", R"({"do": "file", "path": null})",
                            R"({"do": "press", "control": "Browse..."})"));
}

TEST_F(RecordedControls, NestedModalDialogsAreRecordedWhereTheyWait)
{
    const Recording recording = record([this] {
        host.inEachModal = [this](CDialog&) {
            type("Text", "outer");
            host.inEachModal = [this](CDialog&) {
                type("Text", "in");
                press("OK");
            };
            press("Again...");
            press("OK");
        };
        type("Name", "was");
        press("Open...");
        EXPECT_EQ(form->name.GetWindowText(), "inner in");
    });
    EXPECT_THAT(recording.lines(),
                ElementsAre(R"({"do": "set", "control": "Name", "value": "was"})", R"({"do": "press", "control": "Open..."})",
                            R"({"do": "set", "control": "Text", "value": "outer"})", R"({"do": "press", "control": "Again..."})",
                            R"({"do": "set", "control": "Text", "value": "in"})", R"({"do": "press", "control": "OK"})",
                            R"({"do": "press", "control": "OK"})"));
}

TEST_F(RecordedControls, TextThatADialogTakesWithItIsNotWritten)
{
    const Recording recording = record([this] {
        host.inEachModal = [this](CDialog& dialog) {
            type("Text", "gone");
            EXPECT_TRUE(hand.close(dialog));  // asks, and is answered with yes
        };
        press("Open...");
    });
    EXPECT_THAT(recording.lines(), ElementsAre(R"({"do": "press", "control": "Open..."})", R"({"do": "answer", "with": "yes"})", R"({"do": "close"})"));
}

TEST_F(RecordedControls, TextStaysInADialogThatDoesNotCloseAfterAll)
{
    const Recording recording = record([this] {
        host.inEachModal = [this](CDialog& dialog) {
            type("Text", "stays");
            host.answer(IDNO);
            EXPECT_TRUE(hand.key(dialog, zel::UserKey::escape));
            EXPECT_FALSE(dialog.hasEnded());
            press("OK");
        };
        press("Open...");
        EXPECT_EQ(form->name.GetWindowText(), "stays");
    });
    EXPECT_THAT(recording.lines(),
                ElementsAre(R"({"do": "press", "control": "Open..."})", R"({"do": "set", "control": "Text", "value": "stays"})",
                            R"({"do": "answer", "with": "no"})", R"({"do": "key", "control": "Text", "value": "Escape"})",
                            R"({"do": "press", "control": "OK"})"));
}

TEST_F(RecordedControls, EnterGoesToTheControlWithTheFocus)
{
    const Recording recording = record([this] {
        host.inEachModal = [this](CDialog& dialog) {
            type("Text", "typed");
            EXPECT_TRUE(hand.key(dialog, zel::UserKey::enter));
        };
        press("Open...");
        EXPECT_EQ(form->name.GetWindowText(), "typed");
    });
    EXPECT_EQ(recording.lines().back(), R"({"do": "key", "control": "Text", "value": "Enter"})");
}

TEST_F(RecordedControls, CommandsForTheHostAreNoStepsOfTheUser)
{
    const Recording recording = record([this] {
        press("Post");
        EXPECT_EQ(front().ClassName(), "CCMLoadCaseDlg");
        EXPECT_TRUE(hand.close(front()));
        press("Send");
        EXPECT_TRUE(hand.act(form->tell, {zel::Verb::press}));
        EXPECT_TRUE(hand.activate(*form));
        EXPECT_TRUE(hand.activate(*form));
        press("Lines");
    });
    EXPECT_THAT(recording.lines(),
                ElementsAre(R"({"do": "press", "control": "Post"})", R"({"do": "close"})", R"({"do": "press", "control": "Send"})",
                            R"({"do": "press", "dialog": "Form", "control": "Tell"})", R"({"do": "activate", "dialog": "Form"})",
                            R"({"do": "press", "control": "Lines"})"));
}

TEST_F(RecordedControls, WhileTheHandIsLockedNothingIsTaken)
{
    const Recording recording = recordOnly([this] {
        hand.setLocked(true);
        EXPECT_FALSE(hand.act(form->tell, {zel::Verb::press}));
        EXPECT_FALSE(hand.type(form->name, "X"));
        EXPECT_FALSE(hand.focus(form->name));
        EXPECT_FALSE(hand.close(*form));
        EXPECT_EQ(hand.undo(*document), 0);
        hand.setLocked(false);
    });
    EXPECT_TRUE(recording.journal.empty());
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_TRUE(form->IsWindow());
}

}  // namespace
