#pragma once

// The abstract load kinds that table rows combine: a load case belongs to the kind whose symbol is its type.
namespace zel::object_style {

struct LoadKind {
    const char* symbol;         ///< type text of the load cases; null where a message gives it
    const char* symbolKey;      ///< message of the symbol, null where it is fixed
    const char* description;    ///< message
};

// The id of a kind is its place, counted from 0. No row uses the kinds from 6 on, nor LR.
inline constexpr LoadKind loadKinds[] = {
    // symbol  its message           description
    {nullptr, "IDS_ZEL_CMD__USER", "IDS_ZEL_CMD__User_Defined_Load"},
    {"D",     nullptr,             "IDS_ZEL_CMD__Dead_Load"},
    {"L",     nullptr,             "IDS_ZEL_CMD__Live_Load"},
    {"LR",    nullptr,             "IDS_ZEL_CMD__Roof_Live_Load"},
    {"W",     nullptr,             "IDS_ZEL_CMD__Wind_Load_on_Structure"},
    {"E",     nullptr,             "IDS_ZEL_CMD__Earthquake"},
    {"S",     nullptr,             "IDS_ZEL_CMD__Snow_Load"},
    {"R",     nullptr,             "IDS_ZEL_CMD__Rain_Load"},
    {"IL",    nullptr,             "IDS_ZEL_CMD__Live_Load_Impact"},
    {"B",     nullptr,             "IDS_ZEL_CMD__Buoyancy"},
    {"WP",    nullptr,             "IDS_ZEL_CMD__Stream_Flow_Pressure"},
};

}  // namespace zel::object_style
