#include "platform/catalogue/load_types.h"

#include "contract/load_types.h"

#include <string_view>

namespace zel {

namespace {

struct LoadType {
    std::string_view code;
    std::string_view name;
};

constexpr LoadType loadTypes[] = {
    {load_type::user, "User Defined Load"},
    {load_type::dead, "Dead Load"},
    {load_type::live, "Live Load"},
    {load_type::roofLive, "Roof Live Load"},
    {load_type::wind, "Wind Load on Structure"},
    {load_type::acrossWind, "Across Wind Load"},
    {load_type::torsionalWind, "Torsional Wind Load"},
    {load_type::earthquake, "Earthquake"},
    {load_type::snow, "Snow Load"},
    {load_type::rain, "Rain Load"},
    {load_type::liveImpact, "Live Load Impact"},
    {load_type::buoyancy, "Buoyancy"},
    {load_type::fluidPressure, "Fluid Pressure"},
    {load_type::earthPressure, "Earth Pressure"},
    {load_type::streamFlow, "Stream Flow Pressure"},
    {load_type::horizontalEarth, "Horizontal Earth Pressure"},
    {load_type::verticalEarth, "Vertical Earth Pressure"},
    {load_type::seismicEarth, "Seismic Earth Pressure"},
};

CString displayName(const LoadType& type)
{
    return CString(type.name) + " (" + CString(type.code) + ")";
}

}  // namespace

void LoadTypes::GetLoadTypeList(CArray<CString, CString&>* types) const
{
    types->clear();
    for (const LoadType& type : loadTypes)
        types->emplace_back(type.code);
}

CString LoadTypes::GetLoadTypeName(const CString& type) const
{
    for (const LoadType& row : loadTypes) {
        if (row.code == type)
            return displayName(row);
    }
    return {};
}

CString LoadTypes::GetLoadType(const CString& name) const
{
    for (const LoadType& row : loadTypes) {
        if (displayName(row) == name)
            return CString(row.code);
    }
    return {};
}

}  // namespace zel
