#pragma once

#include <cstdint>
#include <string_view>

/// The short codes of the static load types, as records hold them: permanent. `CLoadDB` tells their names.
namespace zel::load_type {

inline constexpr std::string_view user = "USER";
inline constexpr std::string_view dead = "D";
inline constexpr std::string_view live = "L";
inline constexpr std::string_view roofLive = "LR";
inline constexpr std::string_view wind = "W";
inline constexpr std::string_view acrossWind = "WA";
inline constexpr std::string_view torsionalWind = "WT";
inline constexpr std::string_view earthquake = "E";
inline constexpr std::string_view snow = "S";
inline constexpr std::string_view rain = "R";
inline constexpr std::string_view liveImpact = "IL";
inline constexpr std::string_view buoyancy = "B";
inline constexpr std::string_view fluidPressure = "FP";
inline constexpr std::string_view earthPressure = "EP";
inline constexpr std::string_view streamFlow = "WP";
inline constexpr std::string_view horizontalEarth = "EH";
inline constexpr std::string_view verticalEarth = "EV";
inline constexpr std::string_view seismicEarth = "EEP";

}  // namespace zel::load_type

namespace zel {

/// What an item of a load combination names by its key: a static load case. Records hold the number.
inline constexpr std::int32_t staticCaseItem = 1;

/// Stands behind the name of a static load case where lists hold several kinds of case: "DL(ST)".
inline constexpr std::string_view staticCaseMark = "(ST)";

}  // namespace zel
