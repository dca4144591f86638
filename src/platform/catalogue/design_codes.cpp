#include "contract/design_codes.h"

#include <string_view>

namespace {

enum class Wind { single, sets };
enum class Seismic { plain, factors };  // a code that reads seismic factors reads orthogonal pairs too
enum class Underground { none, sets };

struct DesignCode {
    std::string_view name;
    Wind wind = Wind::single;
    Seismic seismic = Seismic::plain;
    Underground underground = Underground::none;
};

// In the order in which a form offers them.
constexpr DesignCode designCodes[] = {
    {"AIK-USD94"},
    {"KBC-USD16", Wind::sets, Seismic::factors},
    {"KDS 41 30 : 2018", Wind::sets, Seismic::factors, Underground::sets},
    {"KDS 41 20 : 2022", Wind::sets, Seismic::factors, Underground::sets},
    {"KCI-USD12", Wind::single, Seismic::factors},
    {"KBC-USD09", Wind::single, Seismic::factors},
    {"KBC-USD05", Wind::single, Seismic::factors},
    {"KCI-USD99"},
    {"KSCE-USD96"},
    {"ACI318-89"},
    {"ACI318-95"},
    {"ACI318-99"},
    {"ACI318-02"},
    {"BS8110-97"},
    {"GB50010-02"},
    {"CSA-A23.3-94"},
};

const DesignCode* find(std::string_view name)
{
    for (const DesignCode& code : designCodes) {
        if (code.name == name)
            return &code;
    }
    return nullptr;
}

}  // namespace

void CDBLib::GetConLcomCodeNameList(CArray<CString, CString&>& names)
{
    names.clear();
    for (const DesignCode& code : designCodes)
        names.emplace_back(code.name);
}

void CDBLib::GetConCodeNameList(CArray<CString, CString&>& names)
{
    GetConLcomCodeNameList(names);
}

bool CDBLib::IsConCodeName(const CString& name)
{
    return find(name) != nullptr;
}

bool CDBLib::IsConCode_WindLcom(const CString& name)
{
    const DesignCode* code = find(name);
    return code != nullptr && code->wind == Wind::sets;
}

bool CDBLib::IsConCode_SeisLcom(const CString& name)
{
    const DesignCode* code = find(name);
    return code != nullptr && code->seismic == Seismic::factors;
}

bool CDBLib::IsConCode_UnderGroundLcom(const CString& name)
{
    const DesignCode* code = find(name);
    return code != nullptr && code->underground == Underground::sets;
}

bool CDBLib::IsConCode_Ortho(const CString& name)
{
    return IsConCode_SeisLcom(name);
}
