#include "platform/modeldb/json_text.h"

#include <charconv>
#include <cmath>
#include <nlohmann/json.hpp>
#include <unordered_set>
#include <utility>
#include <vector>

namespace zel {

namespace {

/// Builds a value from the parser's events. Unlike the library's own builder it watches the depth and refuses a member
/// that stands twice, and adds a member without searching the object.
class Builder final : public nlohmann::json_sax<Json> {
public:
    Json result;

    bool null() override { return put(nullptr); }
    bool boolean(bool value) override { return put(value); }
    bool number_integer(number_integer_t value) override { return put(value); }
    bool number_unsigned(number_unsigned_t value) override { return put(value); }
    bool number_float(number_float_t value, const string_t&) override { return put(value); }
    bool string(string_t& value) override { return put(std::move(value)); }
    bool binary(binary_t&) override { return false; }  // no JSON text holds any

    bool start_object(std::size_t) override { return open(Json::object()); }
    bool end_object() override { return close(); }
    bool start_array(std::size_t) override { return open(Json::array()); }
    bool end_array() override { return close(); }

    bool key(string_t& name) override
    {
        if (!m_open.back().names.insert(name).second)
            throw JsonFault(path(), "the member \"" + name + "\" stands here twice");
        m_open.back().name = std::move(name);
        return true;
    }

    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception& fault) override
    {
        std::string text = fault.what();
        if (const std::size_t end = text.find("] "); text.starts_with("[json.exception") && end != std::string::npos)
            text.erase(0, end + 2);
        if (text.starts_with("parse error at "))
            text.erase(0, std::string_view("parse error at ").size());
        throw JsonFault(text);
    }

private:
    struct Open {
        Json* value;
        std::string name;                       // of the member that comes next
        std::unordered_set<std::string> names;  // of the members so far
    };
    std::vector<Open> m_open;

    /// A child's address holds until its parent gets the next one, and by then the child is closed.
    template <class Value> Json* add(Value&& value)
    {
        if (m_open.empty()) {
            result = std::forward<Value>(value);
            return &result;
        }
        Open& parent = m_open.back();
        if (parent.value->is_array())
            return &parent.value->emplace_back(std::forward<Value>(value));
        auto& members = parent.value->get_ref<Json::object_t&>();
        members.push_back({std::move(parent.name), Json(std::forward<Value>(value))});
        return &members.back().second;
    }

    template <class Value> bool put(Value&& value)
    {
        add(std::forward<Value>(value));
        return true;
    }

    bool open(Json empty)
    {
        if (m_open.size() >= static_cast<std::size_t>(jsonDepthLimit))
            throw JsonFault("nested deeper than " + std::to_string(jsonDepthLimit) + " levels");
        m_open.push_back({add(std::move(empty)), {}, {}});
        return true;
    }

    bool close()
    {
        m_open.pop_back();
        return true;
    }

    [[nodiscard]] std::string path() const
    {
        std::string made;
        for (std::size_t i = 0; i + 1 < m_open.size(); ++i)
            made = m_open[i].value->is_array() ? elementPath(made, m_open[i].value->size() - 1) : memberPath(made, openMember(i));
        return made;
    }

    /// Name of the member of object `level` that is being read: the last one it got.
    [[nodiscard]] std::string_view openMember(std::size_t level) const { return m_open[level].value->get_ref<const Json::object_t&>().back().first; }
};

void printNumber(double value, std::string& out)
{
    if (!std::isfinite(value)) {
        out += "null";
        return;
    }
    char buffer[32];
    const std::to_chars_result end = std::to_chars(buffer, buffer + sizeof buffer, value);
    const std::string_view digits(buffer, static_cast<std::size_t>(end.ptr - buffer));
    out += digits;
    if (digits.find_first_of(".e") == std::string_view::npos)
        out += ".0";  // stays a real number for whoever reads it
}

void print(const Json& json, std::string& out)
{
    switch (json.type()) {
    case Json::value_t::object: {
        out += '{';
        bool first = true;
        for (const auto& member : json.get_ref<const Json::object_t&>()) {
            if (!std::exchange(first, false))
                out += ", ";
            out += Json(member.first).dump(-1, ' ', false, Json::error_handler_t::replace);
            out += ": ";
            print(member.second, out);
        }
        out += '}';
        break;
    }
    case Json::value_t::array: {
        out += '[';
        bool first = true;
        for (const Json& element : json) {
            if (!std::exchange(first, false))
                out += ", ";
            print(element, out);
        }
        out += ']';
        break;
    }
    case Json::value_t::number_float:
        printNumber(json.get<double>(), out);
        break;
    default:
        out += json.dump(-1, ' ', false, Json::error_handler_t::replace);
    }
}

}  // namespace

Json parseJson(std::string_view text)
{
    Builder builder;
    // A NUL would end the text for the parser, and what follows would be lost without a word.
    if (text.find('\0') != std::string_view::npos)
        throw JsonFault("the text holds a NUL byte");
    Json::sax_parse(text.begin(), text.end(), &builder);
    return std::move(builder.result);
}

std::string printJson(const Json& json)
{
    std::string out;
    print(json, out);
    return out;
}

std::string memberPath(const std::string& path, std::string_view name)
{
    return path.empty() ? std::string(name) : path + "." + std::string(name);
}

std::string elementPath(const std::string& path, std::size_t index)
{
    return path + "[" + std::to_string(index) + "]";
}

const char* jsonKind(const Json& json)
{
    switch (json.type()) {
    case Json::value_t::null:
        return "null";
    case Json::value_t::boolean:
        return "true or false";
    case Json::value_t::string:
        return "a text";
    case Json::value_t::array:
        return "a list";
    case Json::value_t::object:
        return "an object";
    default:
        return "a number";
    }
}

}  // namespace zel
