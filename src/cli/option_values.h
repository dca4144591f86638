#pragma once

#include <filesystem>
#include <functional>
#include <initializer_list>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// What the arguments of a command line may hold: how each is read, and how its value is refused.
namespace zel::cli {

/// A command line that can't be carried out, in a sentence.
class UsageFault : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Takes the text of an argument.
/// @throws UsageFault  what the value must be: "must be a whole number from 1 to 5, not \"x\""
using Take = std::function<void(const std::string& text)>;

[[nodiscard]] Take into(std::string& target);
[[nodiscard]] Take into(std::filesystem::path& target);
[[nodiscard]] Take into(std::optional<std::filesystem::path>& target);
/// One more each time.
[[nodiscard]] Take into(std::vector<std::string>& target);
/// A number in any form that the fields of a form take.
[[nodiscard]] Take into(double& target);
/// A whole number between the limits, which belong to the range.
[[nodiscard]] Take wholeNumber(int& target, int least, int most);
[[nodiscard]] Take wholeNumber(std::optional<int>& target, int least, int most);

/// The place of a text in a list of names, without regard to case.
/// @throws UsageFault  with the names, and the nearest of them
[[nodiscard]] std::size_t placeOf(const std::string& text, const std::vector<std::string_view>& names);

/// One of a few words. A number is none of them.
template <class Value> Take oneOf(Value& target, std::vector<std::pair<std::string_view, Value>> choices)
{
    return [&target, choices = std::move(choices)](const std::string& text) {
        std::vector<std::string_view> names;
        for (const auto& choice : choices)
            names.push_back(choice.first);
        target = choices[placeOf(text, names)].second;
    };
}

}  // namespace zel::cli
