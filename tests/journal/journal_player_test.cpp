#include "journal/journal_fixture.h"

#include <algorithm>
#include <random>
#include <streambuf>

namespace {

using journal_test::Json;
using journal_test::Played;

class JournalPlayerTest : public journal_test::JournalTest {};

/// A script that notes, whenever a further line is asked for, how many replies have been written.
class WatchedScript final : public std::streambuf {
public:
    WatchedScript(std::vector<std::string> lines, const std::ostringstream& transcript) : m_lines(std::move(lines)), m_transcript(transcript) {}

    std::vector<long> repliesAtRead;

protected:
    int_type underflow() override
    {
        const std::string written = m_transcript.str();
        repliesAtRead.push_back(std::count(written.begin(), written.end(), '\n'));
        if (m_next == m_lines.size())
            return traits_type::eof();
        m_line = m_lines[m_next++] + "\n";
        setg(m_line.data(), m_line.data(), m_line.data() + m_line.size());
        return traits_type::to_int_type(m_line.front());
    }

private:
    std::vector<std::string> m_lines;
    std::string m_line;
    std::size_t m_next = 0;
    const std::ostringstream& m_transcript;
};

TEST_F(JournalPlayerTest, RepliesBearTheNumberOfTheLine)
{
    const Played played = play("# a comment\n\n{\"do\": \"dialogs\"}\n   \n{\"do\": \"undo\"}\r\n");
    ASSERT_EQ(played.replies.size(), 2U);
    EXPECT_EQ(zel::printJson(played.reply(0)), R"({"n": 3, "do": "dialogs", "result": [], "events": []})");
    EXPECT_EQ(played.reply(1).at("n"), 5);
}

TEST_F(JournalPlayerTest, EachReplyIsWrittenBeforeTheNextCommandIsRead)
{
    std::ostringstream transcript;
    WatchedScript watched({R"({"do": "dialogs"})", R"({"do": "undo"})", R"({"do": "redo"})"}, transcript);
    std::istream script(&watched);
    zel::JournalPlayer(*document, script, transcript).play();
    EXPECT_EQ(watched.repliesAtRead, (std::vector<long>{0, 1, 2, 3}));
}

TEST_F(JournalPlayerTest, AByteOrderMarkIsPassedOver)
{
    EXPECT_EQ(play("\xEF\xBB\xBF{\"do\": \"dialogs\"}\n").status, zel::JournalPlayer::done);
}

TEST_F(JournalPlayerTest, AFailedCommandIsToldAndTheJournalGoesOn)
{
    const Played played = play("{\"do\": \"prss\"}\n{\"do\": \"dialogs\"}\n");
    EXPECT_EQ(played.status, zel::JournalPlayer::commandFailed);
    EXPECT_EQ(zel::printJson(played.reply(0)), R"({"n": 1, "do": "prss", "error": "do: there is no command \"prss\"; did you mean \"press\"?", "events": []})");
    EXPECT_EQ(played.replies.size(), 2U);
}

TEST_F(JournalPlayerTest, StrictStopsAtTheFirstFailedCommand)
{
    const Played played = play("{\"do\": \"prss\"}\n{\"do\": \"dialogs\"}\n", {true, true});
    EXPECT_EQ(played.status, zel::JournalPlayer::commandFailed);
    EXPECT_EQ(played.replies.size(), 1U);
}

TEST_F(JournalPlayerTest, AnUnknownFieldIsAnError)
{
    EXPECT_EQ(errorOf(R"({"do": "press", "contol": "Add"})"), "contol: press has no such field; did you mean \"control\"?");
}

TEST_F(JournalPlayerTest, CommandsWithoutADialogSaySo)
{
    for (const char* command : {R"({"do": "form"})", R"({"do": "close"})", R"({"do": "press", "control": "x"})", R"({"do": "key", "value": "Enter"})"})
        EXPECT_EQ(errorOf(command), "no dialog is open") << command;
    EXPECT_EQ(errorOf(R"({"do": "activate"})"), "dialog: is missing");
}

TEST_F(JournalPlayerTest, ANumberThatOpensNothingComesBackWithZero)
{
    for (const char* number : {"0", "6", "7", "29", "4294967295"}) {
        const Json reply = replyTo(std::string(R"({"do": "modal", "number": )") + number + "}");
        EXPECT_FALSE(reply.contains("error")) << number;
        EXPECT_EQ(zel::printJson(reply.at("events")), R"([{"event": "returned", "call": "modal", "value": 0}])") << number;
    }
    EXPECT_NE(errorOf(R"({"do": "modal", "number": -1})"), "");
    EXPECT_NE(errorOf(R"({"do": "modal", "number": 4294967296})"), "");
    EXPECT_NE(errorOf(R"({"do": "modal"})"), "");
}

TEST_F(JournalPlayerTest, AnUnknownModelessIdIsCarriedOutWithANullResult)
{
    const Json reply = replyTo(R"({"do": "modeless", "id": "D_CMD_NOTHING"})");
    EXPECT_TRUE(reply.at("result").is_null());
    EXPECT_FALSE(reply.contains("error"));
}

TEST_F(JournalPlayerTest, AnUnknownClassCantBeOpened)
{
    EXPECT_NE(errorOf(R"({"do": "open", "class": "CNobody"})"), "");
}

TEST_F(JournalPlayerTest, HostileLinesAreErrorsAndNoMore)
{
    const std::vector<std::string> lines{
        "{",
        "]",
        "nonsense",
        "\"text\"",
        "17",
        "null",
        "[]",
        "{}",
        "{\"do\": null}",
        "{\"do\": {}}",
        "{\"do\": \"\"}",
        std::string(100000, '['),
        std::string(100000, '{'),
        "{\"do\": \"press\", \"control\": " + std::string(1000, '[') + "1" + std::string(1000, ']') + "}",
        "{\"do\": \"press\", \"do\": \"press\"}",
        "{\"do\": \"press\"} trailing",
        "{\"do\": \"\xFF\xFE\"}",
        std::string("{\"do\": \"a\0b\"}", 14),
        "{\"do\": \"\\u0000\"}",
        "{\"do\": \"\\ud800\"}",
        "{\"do\": \"modal\", \"number\": 1e999}",
        "{\"do\": \"modal\", \"number\": 1.5}",
        "{\"do\": \"modal\", \"number\": 16, \"args\": []}",
        "{\"do\": \"modal\", \"number\": 16, \"args\": {\"key\": -1}}",
        "{\"do\": \"modal\", \"number\": 16, \"args\": {\"key\": 1, \"record\": 5}}",
        "{\"do\": \"modal\", \"number\": 99999999999999999999999}",
        "{\"do\": \"db\", \"op\": \"add\", \"table\": \"STLD\", \"key\": 18446744073709551615, \"record\": {\"name\": \"x\"}}",
        "{\"do\": \"db\", \"op\": \"add\", \"table\": \"STLD\", \"record\": {\"name\": \"x\", \"selfWeightFactor\": 1e400}}",
        "{\"do\": \"db\", \"op\": \"delete\", \"table\": \"STLD\", \"names\": {}}",
        "{\"do\": \"view\", \"select\": {\"points\": [\"1\"]}}",
        "{\"do\": \"" + std::string(1000000, 'x') + "\"}",
    };
    std::string script;
    for (const std::string& line : lines)
        script += line + "\n";
    const Played played = play(script);
    ASSERT_EQ(played.replies.size(), lines.size());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        EXPECT_NE(played.error(i), "") << lines[i].substr(0, 80);
        EXPECT_EQ(played.reply(i).at("events"), Json::array()) << lines[i].substr(0, 80);
    }
    EXPECT_EQ(document->undoName(), "") << "nothing was changed";
}

TEST_F(JournalPlayerTest, AMutilatedJournalNeverEndsThePlayer)
{
    const std::vector<std::string> seeds{
        R"({"do": "db", "op": "add", "table": "STLD", "key": 3, "record": {"name": "DL", "type": "D", "selfWeightFactor": -1.5}})",
        R"({"do": "db", "op": "modify", "table": "LCOM", "kind": 1, "key": 1, "record": {"items": [{"type": 1, "key": 1, "factor": 1.2}]}})",
        R"({"do": "view", "select": {"points": [1, 2]}, "mode": "post"})",
        R"({"do": "units", "length": "M", "force": "KN"})",
        R"({"do": "modal", "number": 6, "args": {"key": 1, "record": {}}, "flag": 1})",
    };
    std::mt19937 random(20240601);
    std::string script;
    std::size_t commands = 0;
    for (int round = 0; round < 400; ++round) {
        std::string line = seeds[random() % seeds.size()];
        for (unsigned change = 0; change < 1 + random() % 4; ++change)
            line[random() % line.size()] = static_cast<char>(random() % 256);
        line.erase(std::remove(line.begin(), line.end(), '\n'), line.end());
        if (line.starts_with('#') || line.find_first_not_of(" \t\r") == std::string::npos)
            continue;
        script += line + "\n";
        ++commands;
    }
    EXPECT_EQ(play(script).replies.size(), commands);
}

TEST_F(JournalPlayerTest, ATranscriptThatCantBeWrittenEndsTheJournal)
{
    std::istringstream script("{\"do\": \"dialogs\"}\n{\"do\": \"dialogs\"}\n");
    std::ostringstream transcript;
    transcript.setstate(std::ios::badbit);
    zel::JournalPlayer player(*document, script, transcript);
    EXPECT_THROW(player.play(), std::runtime_error);
}

TEST_F(JournalPlayerTest, ThePlayerGivesTheUserInterfaceBack)
{
    zel::IUserInterface* before = zel::userInterface();
    play("{\"do\": \"dialogs\"}\n");
    EXPECT_EQ(zel::userInterface(), before);
}

}  // namespace
