#pragma once

#include "platform/modeldb/json_text.h"

#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <utility>

namespace zel {

/// The reply to one command: a line of the transcript. Events are added as they happen, until it is written.
struct JournalReply {
    long line = 0;        ///< number of the command's line in the journal
    std::string command;  ///< empty where the line names none
    std::optional<Json> result;
    std::string error;  ///< empty when the command was carried out
    Json events = Json::array();

    /// One line, without its end.
    [[nodiscard]] std::string text() const
    {
        Json reply{{"n", line}, {"do", command.empty() ? Json() : Json(command)}};
        if (result)
            reply["result"] = *result;
        if (!error.empty())
            reply["error"] = error;
        reply["events"] = events;
        return printJson(reply);
    }
};

}  // namespace zel
