#include "journal/recorder_fixture.h"

#include <optional>

// A journal that is played before the eyes of somebody.

namespace {

using journal_test::Form;
using zel::JournalPlayer;
using zel::JournalStatus;

class WatchedJournal : public journal_test::RecorderTest {
protected:
    WatchedJournal()
    {
        dialogs = [this] { form = new Form; };  // its window frees it
        begin();
        options.watching = &host;
        options.ended = [this](JournalStatus status) {
            ended = status;
            return leaveOpen;
        };
    }

    JournalStatus play(const std::string& script)
    {
        std::istringstream in(script);
        std::ostringstream out;
        JournalPlayer player(*document, in, out, options);
        m_player = &player;
        return player.play();
    }

    Form* form = nullptr;
    zel::JournalOptions options;
    bool leaveOpen = true;
    std::optional<JournalStatus> ended;
    JournalPlayer* m_player = nullptr;
};

const char* const openModal = "{\"do\": \"press\", \"control\": \"Open...\"}\n{\"do\": \"set\", \"control\": \"Text\", \"value\": \"scripted\"}\n";

TEST_F(WatchedJournal, ShowsWhatHappensAndAnswersByTheScript)
{
    EXPECT_EQ(play("{\"do\": \"answer\", \"with\": \"no\"}\n{\"do\": \"press\", \"control\": \"Ask...\"}\n{\"do\": \"press\", \"control\": \"Lines\"}\n"),
              JournalStatus::done);
    EXPECT_EQ(form->answered, IDNO);
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(host.outputs, std::vector<CString>{"out"});
    EXPECT_EQ(ended, JournalStatus::done);
}

TEST_F(WatchedJournal, AModalDialogThatIsLeftIsAnsweredByThePerson)
{
    host.answer(IDNO);
    host.inEachModal = [this](CDialog& dialog) {
        EXPECT_EQ(ended, JournalStatus::endedInModalDialog);
        EXPECT_TRUE(dialog.userClose());  // asks: the person, not the script
        EXPECT_FALSE(dialog.hasEnded());
        EXPECT_TRUE(at("OK").press());
    };
    EXPECT_EQ(play("{\"do\": \"answer\", \"with\": \"no\"}\n" + std::string(openModal)), JournalStatus::endedInModalDialog);
    EXPECT_EQ(host.boxes.size(), 1U);
    EXPECT_EQ(form->name.GetWindowText(), "scripted");
    EXPECT_EQ(zel::userInterface(), &host);
}

TEST_F(WatchedJournal, AModalDialogThatIsNotLeftIsCancelled)
{
    leaveOpen = false;
    EXPECT_EQ(play(openModal), JournalStatus::endedInModalDialog);
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_EQ(form->name.GetWindowText(), "");
    EXPECT_EQ(zel::activeDialog(), form);
}

TEST_F(WatchedJournal, TellsEachReplyAndStopsWhenItIsToldTo)
{
    std::vector<std::string> replies;
    options.replied = [&](const zel::JournalReply& reply) {
        replies.push_back(std::to_string(reply.line) + " " + reply.command + (reply.error.empty() ? "" : " failed"));
        if (replies.size() == 2)
            m_player->stop();
    };
    EXPECT_EQ(play("{\"do\": \"press\", \"control\": \"none\"}\n\n{\"do\": \"undo\"}\n{\"do\": \"redo\"}\n"), JournalStatus::commandFailed);
    EXPECT_EQ(replies, (std::vector<std::string>{"1 press failed", "3 undo"}));
}

TEST_F(WatchedJournal, TheHostsModeIsThatOfWhoWatches)
{
    options.host = &commands;
    EXPECT_EQ(play("{\"do\": \"view\", \"mode\": \"model\"}\n"), JournalStatus::done);
    EXPECT_TRUE(commands.isPost());
}

}  // namespace
