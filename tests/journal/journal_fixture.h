#pragma once

#include "journal/journal_player.h"
#include "platform/modeldb/model_document.h"

#include <memory>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace journal_test {

using zel::Json;

/// What came of a journal.
struct Played {
    zel::JournalPlayer::Status status{};
    std::vector<Json> replies;
    std::string transcript;

    [[nodiscard]] const Json& reply(std::size_t index) const { return replies.at(index); }
    [[nodiscard]] std::string error(std::size_t index) const { return reply(index).value("error", ""); }
    /// Events of a reply that bear a name, on one line.
    [[nodiscard]] std::string events(std::size_t index, const std::string& name) const
    {
        Json found = Json::array();
        for (const Json& event : reply(index).at("events")) {
            if (event.at("event") == name)
                found.push_back(event);
        }
        return zel::printJson(found);
    }
};

inline std::vector<Json> linesOf(const std::string& transcript)
{
    std::vector<Json> replies;
    std::istringstream lines(transcript);
    for (std::string line; std::getline(lines, line);)
        replies.push_back(zel::parseJson(line));
    return replies;
}

/// A model in memory on which journals are played.
class JournalTest : public testing::Test {
protected:
    Played play(const std::string& script, zel::JournalOptions options = {})
    {
        std::istringstream in(script);
        std::ostringstream out;
        Played played;
        {
            zel::JournalPlayer player(*document, in, out, options);
            played.status = player.play();
        }
        played.transcript = out.str();
        played.replies = linesOf(played.transcript);
        return played;
    }

    /// The one reply to one command.
    Json replyTo(const std::string& command)
    {
        const Played played = play(command + "\n");
        return played.replies.size() == 1 ? played.replies.front() : Json();
    }
    std::string errorOf(const std::string& command) { return replyTo(command).value("error", ""); }
    Json resultOf(const std::string& command) { return replyTo(command).value("result", Json("no result")); }

    std::unique_ptr<zel::ModelDocument> document = zel::ModelDocument::inMemory();
};

}  // namespace journal_test
