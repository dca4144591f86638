#include "contract/forms/find_control.h"

#include "contract/forms/control.h"
#include "contract/forms/dialog.h"
#include "contract/nearest.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <optional>
#include <vector>

namespace zel {

namespace {

using Controls = std::vector<Control*>;

/// A name without its "#2", and the 2.
struct Counted {
    std::string_view name;
    std::optional<std::size_t> count;
};

Counted splitCount(std::string_view name)
{
    const std::size_t mark = name.rfind('#');
    if (mark == std::string_view::npos)
        return {name, std::nullopt};
    std::size_t count = 0;
    const std::string_view digits = name.substr(mark + 1);
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), count);
    if (error != std::errc{} || end != digits.data() + digits.size() || count == 0)
        return {name, std::nullopt};
    return {name.substr(0, mark), count};
}

Controls matching(const Controls& all, const std::function<bool(const Control&)>& matches)
{
    Controls found;
    std::copy_if(all.begin(), all.end(), std::back_inserter(found), [&matches](const Control* control) { return matches(*control); });
    return found;
}

bool isIn(const Control& control, const CString& container)
{
    const bool inGroup = control.group() != nullptr && normalisedLabel(control.group()->GetWindowText()) == container;
    return inGroup || normalisedLabel(control.page()) == container;
}

bool isCalled(const Control& control, const CString& label)
{
    return !label.empty() && normalisedLabel(control.label()) == label;
}

/// The controls that bear a name, with a group or a page before it if they need one; by label, else by id.
Controls bearing(const Controls& all, std::string_view name)
{
    const CString label = normalisedLabel(name);
    Controls found = matching(all, [&label](const Control& control) { return isCalled(control, label); });
    if (found.empty())
        found = matching(all, [name](const Control& control) { return control.id() == name; });
    for (std::size_t slash = name.find('/'); found.empty() && slash != std::string_view::npos; slash = name.find('/', slash + 1)) {
        const CString container = normalisedLabel(name.substr(0, slash));
        found = bearing(matching(all, [&container](const Control& control) { return isIn(control, container); }), name.substr(slash + 1));
    }
    return found;
}

CString quoted(const CString& text)
{
    return "\"" + text + "\"";
}

/// How to say which of several controls of one name is meant.
CString waysToTell(const Controls& found)
{
    CString ways;
    for (std::size_t i = 0; i < found.size(); ++i) {
        const Control& control = *found[i];
        CString where = control.group() != nullptr ? normalisedLabel(control.group()->GetWindowText()) : CString();
        if (where.empty())
            where = normalisedLabel(control.page());
        const CString name = where.empty() ? control.name() + "#" + std::to_string(i + 1) : where + "/" + control.name();
        ways += (i == 0 ? "" : ", ") + quoted(name) + " (id " + control.id() + ")";
    }
    return ways;
}

CString unknownName(const CDialog& dialog, const Controls& all, std::string_view name)
{
    std::vector<CString> names;
    for (const Control* control : all) {
        names.push_back(control->name());
        names.push_back(control->id());
    }
    std::sort(names.begin(), names.end());
    names.erase(std::unique(names.begin(), names.end()), names.end());
    const std::vector<std::string_view> candidates(names.begin(), names.end());
    return dialog.ClassName() + " has no control " + quoted(CString(name)) + didYouMean(normalisedLabel(name), candidates);
}

}  // namespace

CString normalisedLabel(std::string_view label)
{
    CString name;
    for (const char c : label) {
        if (c == '&')
            continue;
        const bool blank = c == ' ' || c == '\t' || c == '\r' || c == '\n';
        if (!blank)
            name += c;
        else if (name.empty() || name.back() != ' ')
            name += ' ';
    }
    const std::size_t last = name.find_last_not_of(" :");
    name.erase(last == CString::npos ? 0 : last + 1);
    return name;
}

FoundControl findControl(const CDialog& dialog, std::string_view name)
{
    const Controls all = dialog.controls();
    const Counted counted = splitCount(name);
    Controls found = bearing(all, name);
    if (found.empty() && counted.count) {
        found = bearing(all, counted.name);
        if (*counted.count <= found.size())
            return {found[*counted.count - 1], {}};
        if (!found.empty())
            return {nullptr, dialog.ClassName() + " has only " + std::to_string(found.size()) + " of " + quoted(CString(counted.name))};
    }
    if (found.empty())
        return {nullptr, unknownName(dialog, all, name)};
    if (found.size() == 1)
        return {found.front(), {}};
    const Controls seen = matching(found, [](const Control& control) { return control.IsWindowVisible(); });
    if (seen.size() == 1)
        return {seen.front(), {}};
    return {nullptr,
            dialog.ClassName() + " has " + std::to_string(found.size()) + " controls called " + quoted(CString(name)) + ": say which, " + waysToTell(found)};
}

}  // namespace zel
