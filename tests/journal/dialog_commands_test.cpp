#include "journal/journal_fixture.h"
#include "journal/test_dialogs.h"

#include "contract/forms/open_dialogs.h"

namespace {

using journal_test::Form;
using journal_test::Json;
using journal_test::Played;

/// A form stands open; when its window goes it deletes itself.
class DialogCommands : public journal_test::JournalTest {
protected:
    void TearDown() override
    {
        if (zel::activeDialog() != nullptr)
            form->DestroyWindow();
        zel::deleteClosedDialogs();
    }

    Json control(const std::string& id)
    {
        const Json shown = resultOf(R"({"do": "form"})");
        for (const Json& each : shown.at("controls")) {
            if (each.at("id") == id)
                return each;
        }
        return {};
    }

    Form* form = new Form;
};

TEST_F(DialogCommands, FormShowsHeadAndControlsInReadingOrder)
{
    const Json shown = resultOf(R"({"do": "form"})");
    EXPECT_EQ(shown.at("dialog"), "Form");
    EXPECT_EQ(shown.at("template"), 70001);
    EXPECT_EQ(shown.at("title"), "Form");
    EXPECT_EQ(shown.at("modal"), false);
    EXPECT_EQ(zel::printJson(shown.at("controls")[0]),
              R"({"id": "name", "label": "&Name        :", "kind": "edit", "group": "", "page": "", "enabled": true, "visible": true, "value": ""})");
    EXPECT_EQ(shown.at("controls")[1].at("group"), "First");
    EXPECT_EQ(control("away").at("visible"), false);
    EXPECT_EQ(control("off").at("enabled"), false);
    EXPECT_EQ(control("table").at("columns"),
              zel::parseJson(R"([{"title": "One", "width": 40, "visible": true}, {"title": "Two", "width": 50, "visible": true}])"));
    EXPECT_EQ(control("table").at("rows"), zel::parseJson(R"([["x", "y"]])"));
    EXPECT_EQ(control("shape").at("items"), zel::parseJson(R"(["Round", "Square"])"));
    EXPECT_TRUE(control("shape").at("selected").is_null());
    EXPECT_EQ(control("ticks").at("ticked"), Json::array());
    EXPECT_EQ(control("countSpin").at("control"), "count");
}

TEST_F(DialogCommands, AControlIsNamedByLabelIdGroupOrNumber)
{
    for (const char* name : {"Name", "name", "Name   :", "&Name        :", "Na&me"})
        EXPECT_EQ(errorOf(zel::printJson({{"do", "set"}, {"control", name}, {"value", name}})), "") << name;
    EXPECT_EQ(errorOf(R"({"do": "set", "control": "First/Value", "value": "1"})"), "");
    EXPECT_EQ(errorOf(R"({"do": "set", "control": "Value#2", "value": "2"})"), "");
    EXPECT_EQ(errorOf(R"({"do": "set", "control": "A/B #2", "value": "3"})"), "") << "a label may hold a slash and a number";
    EXPECT_EQ(form->firstValue.GetWindowText(), "1");
    EXPECT_EQ(form->secondValue.GetWindowText(), "2");
    EXPECT_EQ(form->slash.GetWindowText(), "3");
}

TEST_F(DialogCommands, AControlThatIsNotThereOrNotClearIsAnError)
{
    for (const char* name : {"Nobody", "Value", "Value#3", "Value#0", "Third/Value", ""})
        EXPECT_NE(errorOf(zel::printJson({{"do", "set"}, {"control", name}, {"value", "x"}})), "") << name;
    EXPECT_EQ(form->firstValue.GetWindowText(), "");
    EXPECT_EQ(errorOf(R"({"do": "set", "value": "x"})"), "control: is missing");
    EXPECT_EQ(errorOf(R"({"do": "set", "control": 7, "value": "x"})"), "control: must be a text, not a number");
}

TEST_F(DialogCommands, SetTypesChoosesAndTicks)
{
    const Played played = play(R"({"do": "set", "control": "Name", "value": "DL"}
{"do": "set", "control": "Tick", "value": true}
{"do": "set", "control": "Right", "value": true}
{"do": "set", "control": "Shape", "value": "Square"}
)");
    EXPECT_EQ(played.status, zel::JournalPlayer::done);
    EXPECT_EQ(form->name.GetWindowText(), "DL");
    EXPECT_TRUE(form->tick.GetCheck());
    EXPECT_TRUE(form->right.GetCheck());
    EXPECT_EQ(form->shape.GetCurSel(), 1);
    EXPECT_EQ(errorOf(R"({"do": "set", "control": "Shape", "value": 0})"), "");
    EXPECT_EQ(form->shape.GetCurSel(), 0);
    EXPECT_EQ(errorOf(R"({"do": "set", "control": "Tick", "value": false})"), "");
    EXPECT_FALSE(form->tick.GetCheck());
}

TEST_F(DialogCommands, WhatAControlDoesNotTakeIsAnErrorAndChangesNothing)
{
    const Json before = resultOf(R"({"do": "form"})");
    for (const char* command : {
             R"({"do": "set", "control": "Shape", "value": "Triangle"})",
             R"({"do": "set", "control": "Shape", "value": 2})",
             R"({"do": "set", "control": "Shape", "value": -1})",
             R"({"do": "set", "control": "Shape", "value": 0.5})",
             R"({"do": "set", "control": "Shape", "value": 1e300})",
             R"({"do": "set", "control": "Left", "value": false})",
             R"({"do": "set", "control": "Tick", "value": "yes"})",
             R"({"do": "set", "control": "Name", "value": [1]})",
             R"({"do": "set", "control": "Name", "value": null})",
             R"({"do": "set", "control": "Off", "value": "x"})",
             R"({"do": "press", "control": "Off"})",
             R"({"do": "press", "control": "Away"})",
             R"({"do": "press", "control": "Name"})",
             R"({"do": "select", "control": "rows", "rows": [2]})",
             R"({"do": "select", "control": "rows", "rows": [0, 1]})",
             R"({"do": "select", "control": "rows", "rows": [-1]})",
             R"({"do": "select", "control": "rows", "rows": 0})",
             R"({"do": "select", "control": "rows", "rows": [99999999999]})",
             R"({"do": "select", "control": "Name", "rows": [0]})",
             R"({"do": "double_click", "control": "rows", "row": 5})",
             R"({"do": "tick", "control": "ticks", "row": 9, "value": true})",
             R"({"do": "tick", "control": "ticks", "row": 0, "value": 1})",
             R"({"do": "tick", "control": "rows", "row": 0, "value": true})",
             R"({"do": "spin", "control": "countSpin", "delta": 2})",
             R"({"do": "spin", "control": "Name", "delta": 1})",
             R"({"do": "tab", "control": "Shape", "value": 0})",
             R"({"do": "cell", "control": "table", "row": 0, "column": 0, "text": "z"})",
             R"({"do": "current", "control": "table", "row": 0, "column": 0})",
             R"({"do": "leave_row", "control": "table"})",
             R"({"do": "escape", "control": "table"})",
             R"({"do": "delete_rows", "control": "table", "rows": [0]})",
             R"({"do": "paste", "control": "table", "row": 0, "column": 0, "text": "z"})",
             R"({"do": "drag_rows", "control": "table", "rows": [0], "to": 0})",
             R"({"do": "drop", "control": "table", "row": 0, "column": 0, "text": "z"})",
             R"({"do": "key", "control": "Name", "value": "F1"})",
             R"({"do": "pick", "control": "Name", "keys": [1]})",
             R"({"do": "pick", "control": "Picked", "keys": [0]})",
         }) {
        const Json reply = replyTo(command);
        EXPECT_NE(reply.value("error", ""), "") << command;
        EXPECT_EQ(reply.at("events"), Json::array()) << command;
    }
    EXPECT_EQ(resultOf(R"({"do": "form"})"), before);
}

TEST_F(DialogCommands, ListsAreSelectedTickedAndSpun)
{
    EXPECT_EQ(errorOf(R"({"do": "select", "control": "rows", "rows": [1]})"), "");
    EXPECT_EQ(form->rows.GetCurSel(), 1);
    EXPECT_EQ(errorOf(R"({"do": "select", "control": "rows", "rows": []})"), "");
    EXPECT_EQ(form->rows.GetCurSel(), -1);
    EXPECT_EQ(errorOf(R"({"do": "tick", "control": "ticks", "row": 1, "value": true})"), "");
    EXPECT_EQ(form->ticks.checkedItems(), (std::vector<int>{1}));
    EXPECT_EQ(errorOf(R"({"do": "select", "control": "table", "rows": [0]})"), "");
    EXPECT_EQ(errorOf(R"({"do": "select", "control": "table", "rows": []})"), "");
    EXPECT_EQ(form->selections, 2) << "the handler runs also when nothing is selected";
    EXPECT_EQ(errorOf(R"({"do": "set", "control": "Count", "value": "4"})"), "");
    EXPECT_EQ(errorOf(R"({"do": "spin", "control": "countSpin", "delta": 1})"), "");
    EXPECT_EQ(form->count.GetWindowText(), "5");
    EXPECT_EQ(errorOf(R"({"do": "spin", "control": "countSpin", "delta": -1})"), "");
    EXPECT_EQ(form->count.GetWindowText(), "4");
    EXPECT_EQ(errorOf(R"({"do": "pick", "control": "Picked", "keys": [7, 3], "closed": true})"), "");
    EXPECT_EQ(control("picked").at("keys"), zel::parseJson("[7, 3]"));
}

TEST_F(DialogCommands, AQuestionTakesTheNextAnswerElseYes)
{
    const Played played = play(R"({"do": "press", "control": "Ask..."}
{"do": "answer", "with": "no"}
{"do": "press", "control": "Tell"}
{"do": "press", "control": "Ask..."}
{"do": "answer", "with": "maybe"}
)");
    EXPECT_EQ(played.events(0, "message"), R"([{"event": "message", "text": "Go on?", "buttons": "yesno", "answer": "yes"}])");
    EXPECT_EQ(played.events(2, "message"), R"([{"event": "message", "text": "Done.", "buttons": "ok", "answer": "ok"}])") << "\"no\" waits for a question";
    EXPECT_EQ(played.events(3, "message"), R"([{"event": "message", "text": "Go on?", "buttons": "yesno", "answer": "no"}])");
    EXPECT_EQ(form->answered, IDNO);
    EXPECT_EQ(played.error(4), "with: must be ok, yes, no or cancel");
}

TEST_F(DialogCommands, AFileQuestionTakesTheNextPathElseItIsCancelled)
{
    const Played played = play(R"({"do": "press", "control": "Browse..."}
{"do": "file", "path": "a.txt"}
{"do": "file", "path": null}
{"do": "press", "control": "Browse..."}
{"do": "press", "control": "Browse..."}
{"do": "file"}
)");
    EXPECT_EQ(played.events(0, "file"), R"([{"event": "file", "filter": "Text *.txt|*.txt||", "path": null}])");
    EXPECT_EQ(played.events(3, "file"), R"([{"event": "file", "filter": "Text *.txt|*.txt||", "path": "a.txt"}])");
    EXPECT_EQ(played.events(4, "file"), R"([{"event": "file", "filter": "Text *.txt|*.txt||", "path": null}])");
    EXPECT_EQ(played.error(5), "path: is missing");
    EXPECT_EQ(form->path, "a.txt");
}

TEST_F(DialogCommands, OutputHistoryAndHostCommandsAreEvents)
{
    const Played played = play(R"({"do": "press", "control": "Lines"}
{"do": "press", "control": "Post"}
{"do": "press", "control": "Send"}
)",
                               {false, false});
    EXPECT_EQ(zel::printJson(played.reply(0).at("events")), R"([{"event": "output", "text": "out"}, {"event": "history", "text": "past"}])");
    EXPECT_EQ(zel::printJson(played.reply(1).at("events")), R"([{"event": "command", "number": 32869, "how": "posted"}])");
    EXPECT_EQ(zel::printJson(played.reply(2).at("events")), R"([{"event": "command", "number": 32869, "how": "sent"}])");
}

TEST_F(DialogCommands, AModalDialogTakesTheCommandsUntilItEnds)
{
    const Played played = play(R"({"do": "press", "control": "Open..."}
{"do": "dialogs"}
{"do": "set", "control": "Text", "value": "typed"}
{"do": "press", "control": "OK"}
{"do": "form"}
)");
    EXPECT_EQ(played.status, zel::JournalPlayer::done);
    EXPECT_EQ(zel::printJson(played.reply(0).at("events")),
              R"([{"event": "opened", "dialog": "Question", "template": 70002, "title": "Question", "modal": true}])");
    EXPECT_EQ(played.reply(1).at("result"), zel::parseJson(R"(["Question", "Form"])"));
    EXPECT_EQ(zel::printJson(played.reply(3).at("events")), R"([{"event": "closed", "dialog": "Question", "result": 1}, {"event": "output", "text": "1"}])")
        << "what the ending led to comes with the command that ended it";
    EXPECT_EQ(played.reply(4).at("result").at("dialog"), "Form");
    EXPECT_EQ(form->name.GetWindowText(), "typed");
}

TEST_F(DialogCommands, ModalDialogsNest)
{
    const Played played = play(R"({"do": "press", "control": "Open..."}
{"do": "press", "control": "Again..."}
{"do": "press", "control": "Again..."}
{"do": "dialogs"}
{"do": "set", "control": "Text", "value": "deep"}
{"do": "press", "control": "OK"}
{"do": "press", "control": "OK"}
{"do": "press", "control": "OK"}
)");
    EXPECT_EQ(played.status, zel::JournalPlayer::done);
    EXPECT_EQ(played.replies.size(), 8U);
    EXPECT_EQ(played.reply(3).at("result").size(), 4U);
    EXPECT_EQ(form->name.GetWindowText(), "inner inner deep");
}

TEST_F(DialogCommands, ADialogBehindAModalOneIsOutOfReach)
{
    const Played played = play(R"({"do": "press", "control": "Open..."}
{"do": "set", "dialog": "Form", "control": "Name", "value": "x"}
{"do": "set", "dialog": "Nothing", "control": "Name", "value": "x"}
{"do": "db", "op": "add", "table": "STLD", "record": {"name": "DL"}}
{"do": "press", "control": "OK"}
)");
    EXPECT_EQ(played.status, zel::JournalPlayer::commandFailed);
    EXPECT_NE(played.error(1), "");
    EXPECT_EQ(played.error(2), "dialog: no dialog Nothing is open");
    EXPECT_EQ(played.reply(3).at("result"), 1) << "the model can be written while a modal dialog is open";
}

TEST_F(DialogCommands, CloseCancelsAModalDialogWhichMayRefuse)
{
    const Played played = play(R"({"do": "press", "control": "Open..."}
{"do": "answer", "with": "no"}
{"do": "close"}
{"do": "close"}
)");
    EXPECT_EQ(played.status, zel::JournalPlayer::done);
    EXPECT_EQ(played.events(2, "closed"), "[]");
    EXPECT_EQ(played.events(3, "closed"), R"([{"event": "closed", "dialog": "Question", "result": 2}])");
}

TEST_F(DialogCommands, TheEndOfTheJournalCancelsModalDialogs)
{
    const Played played = play("{\"do\": \"press\", \"control\": \"Open...\"}\n{\"do\": \"press\", \"control\": \"Again...\"}\n");
    EXPECT_EQ(played.status, zel::JournalPlayer::endedInModalDialog);
    EXPECT_EQ(played.replies.size(), 2U);
    EXPECT_EQ(form->name.GetWindowText(), "");
    EXPECT_EQ(zel::activeDialog(), form);
}

TEST_F(DialogCommands, ADialogThatDoesNotWantToCloseIsEndedAtTheEndOfTheJournal)
{
    const Played played = play("{\"do\": \"press\", \"control\": \"Open...\"}\n{\"do\": \"answer\", \"with\": \"no\"}\n");
    EXPECT_EQ(played.status, zel::JournalPlayer::endedInModalDialog);
}

TEST_F(DialogCommands, AHandlerThatThrowsIsAnErrorAndTheJournalGoesOn)
{
    const Played played = play("{\"do\": \"press\", \"control\": \"Fail\"}\n{\"do\": \"set\", \"control\": \"Name\", \"value\": \"on\"}\n");
    EXPECT_EQ(played.error(0), "the handler failed");
    EXPECT_EQ(played.error(1), "");
    EXPECT_EQ(played.replies.size(), 2U);
}

TEST_F(DialogCommands, AClosedModelessDialogIsGone)
{
    const Played played = play("{\"do\": \"close\"}\n{\"do\": \"dialogs\"}\n{\"do\": \"form\"}\n");
    EXPECT_EQ(played.events(0, "closed"), R"([{"event": "closed", "dialog": "Form", "result": null}])");
    EXPECT_EQ(played.reply(1).at("result"), Json::array());
    EXPECT_EQ(played.error(2), "no dialog is open");
}

TEST_F(DialogCommands, EscapeAndEnterReachTheDialog)
{
    const Played played = play(R"({"do": "press", "control": "Open..."}
{"do": "key", "control": "Text", "value": "Enter"}
{"do": "press", "control": "Open..."}
{"do": "key", "value": "Escape"}
)");
    EXPECT_EQ(played.status, zel::JournalPlayer::done);
    EXPECT_EQ(played.events(1, "closed"), R"([{"event": "closed", "dialog": "Question", "result": 1}])");
    EXPECT_EQ(played.events(3, "closed"), R"([{"event": "closed", "dialog": "Question", "result": 2}])");
}

}  // namespace
