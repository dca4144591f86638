#pragma once

#include "contract/forms/control.h"
#include "contract/table_store.h"
#include "platform/modeldb/json_text.h"

#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zel {

/// One line of a journal: an object with the command's name under `do` and its fields. The readers below throw a JsonFault
/// that names the field when it is missing or of the wrong type.
class JournalCommand {
public:
    /// @throws JsonFault  for a line that is no JSON or has no `do`
    explicit JournalCommand(std::string_view line);

    [[nodiscard]] const std::string& name() const { return m_name; }
    [[nodiscard]] const Json& json() const { return m_json; }

    [[nodiscard]] bool has(std::string_view field) const;
    /// The field as it stands.
    [[nodiscard]] const Json& at(std::string_view field) const;

    [[nodiscard]] const std::string& text(std::string_view field) const;
    [[nodiscard]] bool flag(std::string_view field) const;
    /// A whole number that an int holds.
    [[nodiscard]] int integer(std::string_view field) const;
    /// The number, or `preset` where the field is missing.
    [[nodiscard]] int integer(std::string_view field, int preset) const;
    [[nodiscard]] Key key(std::string_view field) const;
    [[nodiscard]] std::vector<Key> keys(std::string_view field) const;
    [[nodiscard]] std::vector<std::string> texts(std::string_view field) const;
    /// Row numbers from 0.
    [[nodiscard]] std::vector<int> rows(std::string_view field) const;
    /// A text, true or false, or a number.
    [[nodiscard]] UserValue value(std::string_view field) const;

private:
    [[nodiscard]] const Json& list(std::string_view field) const;

    Json m_json;
    std::string m_name;
};

}  // namespace zel
