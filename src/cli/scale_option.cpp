#include "cli/scale_option.h"

#include "cli/job_checks.h"
#include "contract/load_types.h"
#include "contract/nearest.h"
#include "contract/number_text.h"
#include "contract/tables/static_load_case_table.h"

#include <charconv>
#include <optional>
#include <stdexcept>
#include <vector>

namespace zel::cli {

namespace {

/// The key of a load case by name or "#KEY"; 0 if there is none.
Key caseNamed(const std::string& name)
{
    CDataStld cases;
    if (const Key key = cases.GetKeyByName(name); key != 0)
        return key;
    Key key = 0;
    const char* end = name.data() + name.size();
    if (!name.starts_with('#') || std::from_chars(name.data() + 1, end, key).ptr != end)
        return 0;
    return key != 0 && cases.Exist(key) != 0 ? key : 0;
}

[[noreturn]] void unknownCase(const std::string& option, const std::string& name)
{
    std::vector<std::string> names;
    CDataStld().GetNameList(names);
    const std::string nearby = quotedList(nearestNames(name, std::vector<std::string_view>(names.begin(), names.end()), 3));
    throw std::runtime_error("--scale " + option + ": there is no load case \"" + name + "\"" +
                             (nearby.empty() ? ". The model has none." : ". The nearest are " + nearby + "."));
}

/// "FACTOR" or "FACTOR,PARTNER"; nothing for any other text. `partner` is empty where none is named.
bool splitValue(const std::string& value, double& factor, std::string& partner)
{
    const std::size_t comma = value.find(',');
    const std::optional<double> read = number::read(value.substr(0, comma));
    if (!read || (comma != std::string::npos && comma + 1 == value.size()))
        return false;
    factor = *read;
    partner = comma == std::string::npos ? std::string() : value.substr(comma + 1);
    return true;
}

/// One option, before it is checked.
struct ScaleOption {
    Key loadCase = 0;
    double factor = 1.0;
    Key partner = 0;
};

ScaleOption readScale(const std::string& text)
{
    std::optional<std::string> unknown;
    for (std::size_t equals = text.find('='); equals != std::string::npos; equals = text.find('=', equals + 1)) {
        ScaleOption option;
        std::string partner;
        if (!splitValue(text.substr(equals + 1), option.factor, partner))
            continue;
        option.loadCase = caseNamed(text.substr(0, equals));
        option.partner = partner.empty() ? 0 : caseNamed(partner);
        if (option.loadCase != 0 && (partner.empty() || option.partner != 0))
            return option;
        if (!unknown)
            unknown = option.loadCase == 0 ? text.substr(0, equals) : partner;
    }
    if (unknown)
        unknownCase(text, *unknown);
    throw std::runtime_error("--scale " + text + ": write CASE=FACTOR or CASE=FACTOR,PARTNER, for instance --scale EX=1.25,EXe");
}

void check(const ScaleOption& scale)
{
    CDataStld cases;
    requireScaleFactor(scale.factor);
    T_STLD_D loadCase;
    if (cases.Get(scale.loadCase, loadCase) != 0 && loadCase.type != load_type::earthquake)
        throw std::runtime_error("\"" + loadCase.name + "\" is no earthquake case (type " + std::string(load_type::earthquake) + "), so that its factor would do nothing");
    if (scale.partner == scale.loadCase)
        throw std::runtime_error("\"" + loadCase.name + "\" can't be its own eccentric partner");
}

}  // namespace

ScaleOptions readScales(const std::vector<std::string>& options)
{
    ScaleOptions scales;
    for (const std::string& text : options) {
        const ScaleOption scale = readScale(text);
        try {
            check(scale);
        } catch (const std::runtime_error& fault) {
            throw std::runtime_error("--scale " + text + ": " + fault.what() + ".");
        }
        if (!scales.factors.emplace(scale.loadCase, scale.factor).second)
            throw std::runtime_error("--scale " + text + ": \"" + CDataStld().GetNameByKey(scale.loadCase) + "\" has a scale factor already.");
        scales.partners.emplace(scale.loadCase, scale.partner);
    }
    return scales;
}

}  // namespace zel::cli
