#include "cli/option_values.h"

#include "contract/letter_case.h"
#include "contract/nearest.h"
#include "contract/number_text.h"

#include <charconv>

namespace zel::cli {

namespace {

int readWhole(const std::string& text, int least, int most)
{
    int value = 0;
    const char* end = text.data() + text.size();
    const std::from_chars_result read = std::from_chars(text.data(), end, value);
    if (text.empty() || read.ec != std::errc() || read.ptr != end || value < least || value > most)
        throw UsageFault("must be a whole number from " + std::to_string(least) + " to " + std::to_string(most) + ", not \"" + text + "\"");
    return value;
}

}  // namespace

Take into(std::string& target)
{
    return [&target](const std::string& text) { target = text; };
}

Take into(std::filesystem::path& target)
{
    return [&target](const std::string& text) { target = text; };
}

Take into(std::optional<std::filesystem::path>& target)
{
    return [&target](const std::string& text) { target = text; };
}

Take into(std::vector<std::string>& target)
{
    return [&target](const std::string& text) { target.push_back(text); };
}

Take into(double& target)
{
    return [&target](const std::string& text) {
        const std::optional<double> read = number::read(text);
        if (!read)
            throw UsageFault("must be a number, not \"" + text + "\"");
        target = *read;
    };
}

Take wholeNumber(int& target, int least, int most)
{
    return [&target, least, most](const std::string& text) { target = readWhole(text, least, most); };
}

Take wholeNumber(std::optional<int>& target, int least, int most)
{
    return [&target, least, most](const std::string& text) { target = readWhole(text, least, most); };
}

std::size_t placeOf(const std::string& text, const std::vector<std::string_view>& names)
{
    std::string list;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (equalIgnoringCase(text, names[i]))
            return i;
        list += (i == 0 ? "" : i + 1 == names.size() ? " or " : ", ") + std::string(names[i]);
    }
    throw UsageFault("must be " + list + ", not \"" + text + "\"" + didYouMean(text, names));
}

}  // namespace zel::cli
