#include "contract/load_db.h"

#include <string_view>

namespace {

struct LoadType {
    std::string_view code;
    std::string_view name;
};

constexpr LoadType loadTypes[] = {
    {"USER", "User Defined Load"},
    {"D", "Dead Load"},
    {"L", "Live Load"},
    {"LR", "Roof Live Load"},
    {"W", "Wind Load on Structure"},
    {"WA", "Across Wind Load"},
    {"WT", "Torsional Wind Load"},
    {"E", "Earthquake"},
    {"S", "Snow Load"},
    {"R", "Rain Load"},
    {"IL", "Live Load Impact"},
    {"B", "Buoyancy"},
    {"FP", "Fluid Pressure"},
    {"EP", "Earth Pressure"},
    {"WP", "Stream Flow Pressure"},
    {"EH", "Horizontal Earth Pressure"},
    {"EV", "Vertical Earth Pressure"},
    {"EEP", "Seismic Earth Pressure"},
};

CString displayName(const LoadType& type)
{
    return CString(type.name) + " (" + CString(type.code) + ")";
}

}  // namespace

void CLoadDB::GetLoadTypeList(CArray<CString, CString&>* types) const
{
    types->clear();
    for (const LoadType& type : loadTypes)
        types->emplace_back(type.code);
}

CString CLoadDB::GetLoadTypeName(const CString& type) const
{
    for (const LoadType& row : loadTypes) {
        if (row.code == type)
            return displayName(row);
    }
    return {};
}

CString CLoadDB::GetLoadType(const CString& name) const
{
    for (const LoadType& row : loadTypes) {
        if (displayName(row) == name)
            return CString(row.code);
    }
    return {};
}
