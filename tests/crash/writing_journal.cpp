#include "crash/writing_journal.h"

#include <algorithm>
#include <sstream>

#include <nlohmann/json.hpp>

namespace crash_test {

namespace {

using Json = nlohmann::json;

enum class Answer { acknowledged, refused, open };

Answer answerOf(const std::string& line)
{
    const Json reply = Json::parse(line, nullptr, false);
    if (reply.is_discarded())
        return Answer::open;  // cut by the end of the program
    const Json result = reply.value("result", Json());
    if (!reply.contains("error") && result.is_number() && result != 0)
        return Answer::acknowledged;
    return leavesOpen(line) ? Answer::open : Answer::refused;
}

std::vector<std::string> linesOf(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

/// "1#2 x 1.5; ": type, key and factor of each item.
std::string textOf(const Json& items)
{
    std::string text;
    for (const Json& item : items)
        text += std::to_string(item.at("type").get<int>()) + "#" + std::to_string(item.at("key").get<int>()) + " x " +
            std::to_string(item.at("factor").get<double>()) + "; ";
    return text;
}

std::string shown(const std::string& value)
{
    return value.empty() ? "nothing" : "\"" + value.substr(0, 40) + "\"";
}

}  // namespace

bool leavesOpen(std::string_view sentence)
{
    return sentence.find("may be in the file") != std::string_view::npos;
}

Facts factsOf(const std::string& dump)
{
    Facts facts;
    const Json json = Json::parse(dump, nullptr, false);
    if (json.is_discarded())
        return {{"dump", "is no JSON"}};
    facts["units"] = json.at("units").at("length");
    for (const Json& record : json.value("STLD", Json::array()))
        facts["case " + record.at("name").get<std::string>()] = "is there: " + record.value("description", std::string());
    for (const Json& record : json.value("LCOM", Json::array()))
        facts["combination " + record.at("name").get<std::string>()] = "is there: " + textOf(record.at("items"));
    return facts;
}

Facts factsOfTwoCases()
{
    return {{"units", "MM"}, {"case DL", "is there: "}, {"case LL", "is there: "}};
}

WritingJournal::WritingJournal(int actions, const std::string& prefix)
{
    const std::string units[] = {"M", "CM", "MM"};
    std::vector<std::string> there;
    for (int k = 1; k <= actions; ++k) {
        const std::string number = std::to_string(k);
        if (k % 11 == 0) {
            const std::string& unit = units[static_cast<std::size_t>(k / 11 % 3)];
            act(R"({"do": "units", "length": ")" + unit + "\"}", {{"units", unit}});
        } else if (k % 7 == 0 && !there.empty()) {
            const std::string description = "changed by " + number;
            act(R"({"do": "db", "op": "modify", "table": "STLD", "name": ")" + there.back() + R"(", "record": {"description": ")" + description + "\"}}",
                {{"case " + there.back(), "is there: " + description}});
        } else if (k % 5 == 0) {
            const Json items = Json::array({{{"type", 1}, {"key", 1}, {"factor", k}}, {{"type", 1}, {"key", 2}, {"factor", 1.5}}});
            const std::string name = prefix + "C" + number;
            act(R"({"do": "db", "op": "add", "table": "LCOM", "record": {"name": ")" + name + R"(", "items": )" + items.dump() + "}}",
                {{"combination " + name, "is there: " + textOf(items)}});
        } else if (k % 3 == 0 && there.size() >= 2) {
            const std::string last = there[there.size() - 1];
            const std::string beforeLast = there[there.size() - 2];
            there.resize(there.size() - 2);
            act(R"({"do": "db", "op": "delete", "table": "STLD", "names": [")" + beforeLast + R"(", ")" + last + R"("]})",
                {{"case " + beforeLast, ""}, {"case " + last, ""}});
        } else {
            there.push_back(prefix + "A" + number);
            const std::string description(300, 'x');
            act(R"({"do": "db", "op": "add", "table": "STLD", "record": {"name": ")" + there.back() + R"(", "description": ")" + description + R"("}})",
                {{"case " + there.back(), "is there: " + description}});
        }
    }
}

void WritingJournal::act(const std::string& line, Facts effect)
{
    m_text += line + "\n";
    m_actions.push_back(std::move(effect));
}

int WritingJournal::answered(const std::string& replies)
{
    return static_cast<int>(std::count(replies.begin(), replies.end(), '\n'));
}

std::string WritingJournal::faultOf(const Facts& found, const std::string& replies, const Facts& before) const
{
    std::map<std::string, std::set<std::string>> allowed;
    for (const auto& [what, value] : before)
        allowed[what] = {value};
    const auto allow = [&](const Facts& effect) {
        for (const auto& [what, value] : effect) {
            if (allowed[what].empty())
                allowed[what].insert("");
            allowed[what].insert(value);
        }
    };
    const std::vector<std::string> lines = linesOf(replies);
    if (lines.size() > m_actions.size())
        return "more replies than commands";
    const Facts* last = nullptr;  // left open, and nothing came after it
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const Answer answer = answerOf(lines[i]);
        last = nullptr;
        if (answer == Answer::acknowledged) {
            for (const auto& [what, value] : m_actions[i])
                allowed[what] = {value};
        } else if (answer == Answer::open) {
            allow(m_actions[i]);
            last = &m_actions[i];
        }
    }
    if (lines.size() < m_actions.size()) {
        last = &m_actions[lines.size()];
        allow(*last);
    }
    for (const auto& [what, value] : found)
        allowed.try_emplace(what, std::set<std::string>{""});

    std::size_t done = 0;
    for (const auto& [what, values] : allowed) {
        const auto there = found.find(what);
        const std::string value = there == found.end() ? "" : there->second;
        if (!values.contains(value))
            return what + ": " + shown(value) + " in place of " + shown(*values.rbegin()) + ", after " + std::to_string(lines.size()) + " replies";
        done += static_cast<std::size_t>(last != nullptr && last->contains(what) && last->at(what) == value);
    }
    return last != nullptr && done != 0 && done != last->size() ? "the last step is there by halves" : "";
}

}  // namespace crash_test
