#pragma once

/// Unit types: small integers, each standing for one physical quantity. They are stored nowhere, but journals, forms and
/// the `unit` statics of the records use their numbers, so a number never changes its meaning.
namespace Unit {

inline constexpr int none = 0;  ///< counts, ratios, names
inline constexpr int length = 1;
inline constexpr int force = 2;
inline constexpr int area = 3;
inline constexpr int firstMoment = 4;  ///< first moment of area, section modulus
inline constexpr int inertia = 5;      ///< second moment of area
inline constexpr int stress = 6;       ///< also modulus of elasticity
inline constexpr int lineLoad = 7;
inline constexpr int areaLoad = 8;  ///< also soil stress
inline constexpr int weightDensity = 9;
inline constexpr int subgrade = 10;  ///< modulus of subgrade reaction
inline constexpr int acceleration = 11;
inline constexpr int moment = 12;
inline constexpr int spring = 13;  ///< translation
inline constexpr int springRotation = 14;
inline constexpr int springPerLength = 15;  ///< translation, per length of wall
inline constexpr int springRotationPerLength = 16;
inline constexpr int springCoupled = 17;  ///< translation against rotation
inline constexpr int degrees = 18;
inline constexpr int radians = 19;
inline constexpr int time = 20;
inline constexpr int frequency = 21;
inline constexpr int thermal = 22;  ///< coefficient of thermal expansion
inline constexpr int temperature = 23;
inline constexpr int mass = 24;
inline constexpr int massPerLength = 25;
inline constexpr int massPerArea = 26;
inline constexpr int massDensity = 27;
inline constexpr int velocity = 28;
inline constexpr int forceRate = 29;   ///< force per time
inline constexpr int momentRate = 30;  ///< moment per time
inline constexpr int count = 31;

/// A field whose quantity depends on the record that holds it; the outermost record answers in `unitOf(field, element)`.
inline constexpr int byRecord = -1;

}  // namespace Unit
