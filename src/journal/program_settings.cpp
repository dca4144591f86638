#include "journal/program_settings.h"

#include "contract/init_ctrl.h"
#include "contract/nearest.h"
#include "contract/record.h"
#include "platform/modeldb/record_json.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace zel {

namespace {

/// One of the records, without its type.
struct Part {
    std::string_view name;  ///< in journals
    const RecordInfo& (*info)();
    void* (*in)(ProgramSettings&);
};

constexpr std::array<Part, 2> parts{{
    {"analysisOption", []() -> const RecordInfo& { return describe<T_ANALOPTION>(); },
     [](ProgramSettings& settings) -> void* { return &settings.analysisOption; }},
    {"preference", []() -> const RecordInfo& { return describe<T_PREFERENCE>(); }, [](ProgramSettings& settings) -> void* { return &settings.preference; }},
}};

Json toJson(const Part& part, ProgramSettings settings)
{
    return fieldsToJson(part.info(), part.in(settings));
}

}  // namespace

ProgramSettings ProgramSettings::of(CDBDoc& document)
{
    ProgramSettings settings;
    document.GetInitCtrl()->GetAnalysisOption(settings.analysisOption);
    document.GetInitCtrl()->GetPreference(settings.preference);
    return settings;
}

void ProgramSettings::putInto(CDBDoc& document) const
{
    document.GetInitCtrl()->SetAnalysisOption(analysisOption);
    document.GetInitCtrl()->SetPreference(preference);
}

Json settingsToJson(const ProgramSettings& settings)
{
    Json json = Json::object();
    for (const Part& part : parts)
        json[std::string(part.name)] = toJson(part, settings);
    return json;
}

Json changesToJson(const ProgramSettings& settings, const ProgramSettings& former)
{
    Json json = Json::object();
    for (const Part& part : parts) {
        const Json before = toJson(part, former);
        const Json now = toJson(part, settings);
        Json changed = Json::object();
        for (const auto& field : now.items()) {
            if (field.value() != before.at(field.key()))
                changed[field.key()] = field.value();
        }
        if (!changed.empty())
            json[std::string(part.name)] = std::move(changed);
    }
    return json;
}

Json changeSettings(CDBDoc& document, const JournalCommand& command)
{
    ProgramSettings settings = ProgramSettings::of(document);
    if (command.has("put")) {
        const Json& put = command.at("put");
        if (!put.is_object())
            throw JsonFault("put", std::string("must be an object, not ") + jsonKind(put));
        std::vector<std::string_view> names;
        for (const Part& part : parts)
            names.push_back(part.name);
        for (const auto& member : put.get_ref<const Json::object_t&>()) {
            const auto part = std::ranges::find(parts, member.first, &Part::name);
            if (part == parts.end())
                throw JsonFault(memberPath("put", member.first), "there are no such settings" + didYouMean(member.first, names));
            fieldsFromJson(part->info(), member.second, part->in(settings), memberPath("put", member.first));
        }
        settings.putInto(document);
    }
    return settingsToJson(ProgramSettings::of(document));
}

}  // namespace zel
