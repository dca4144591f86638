#pragma once

#include <nlohmann/json_fwd.hpp>
#include <stdexcept>
#include <string>
#include <string_view>

namespace zel {

/// JSON whose members keep the order in which they were written. Who makes or reads one includes <nlohmann/json.hpp>, which takes long.
using Json = nlohmann::ordered_json;

/// Something in a JSON text that can't be taken. `what()` is the place followed by a sentence: "STLD[3].name: must be a text".
class JsonFault : public std::runtime_error {
public:
    explicit JsonFault(const std::string& sentence) : std::runtime_error(sentence) {}
    JsonFault(const std::string& path, const std::string& sentence) : std::runtime_error(path.empty() ? sentence : path + ": " + sentence) {}
};

/// Levels of nesting that a text may have: several times what any model or journal needs, and far below what the stack bears.
inline constexpr int jsonDepthLimit = 64;

/// Reads one JSON value.
/// @throws JsonFault  with line and column for a text that is no JSON, is not UTF-8 or holds a number beyond a double; with
///                    the path for a member that stands twice in one object and for nesting beyond `jsonDepthLimit`
Json parseJson(std::string_view text);

/// The value on one line, with a blank behind each colon and comma. A double is printed with the fewest digits that read
/// back exactly, bytes that are not UTF-8 as U+FFFD.
std::string printJson(const Json& json);

/// Path of a member or an element: "STLD" and "name" give "STLD.name".
std::string memberPath(const std::string& path, std::string_view name);
std::string elementPath(const std::string& path, std::size_t index);

/// Which kind of value it is, for a sentence: "a text", "a list".
const char* jsonKind(const Json& json);

}  // namespace zel
