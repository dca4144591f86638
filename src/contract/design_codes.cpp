#include "contract/design_codes.h"

#include <algorithm>
#include <vector>

namespace {

/// What was handed in. Made at the first use, which may come before this file's own constants are.
std::vector<zel::DesignCode>& designCodes()
{
    static std::vector<zel::DesignCode> codes;
    return codes;
}

const zel::DesignCode* find(std::string_view name)
{
    const auto found = std::ranges::find(designCodes(), name, &zel::DesignCode::name);
    return found == designCodes().end() ? nullptr : &*found;
}

}  // namespace

void zel::setDesignCodes(std::span<const DesignCode> codes)
{
    designCodes().assign(codes.begin(), codes.end());
}

void CDBLib::GetConLcomCodeNameList(CArray<CString, CString&>& names)
{
    names.clear();
    for (const zel::DesignCode& code : designCodes())
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
    const zel::DesignCode* code = find(name);
    return code != nullptr && code->windSets;
}

bool CDBLib::IsConCode_SeisLcom(const CString& name)
{
    const zel::DesignCode* code = find(name);
    return code != nullptr && code->seismicFactors;
}

bool CDBLib::IsConCode_UnderGroundLcom(const CString& name)
{
    const zel::DesignCode* code = find(name);
    return code != nullptr && code->undergroundSets;
}

bool CDBLib::IsConCode_Ortho(const CString& name)
{
    return IsConCode_SeisLcom(name);
}
