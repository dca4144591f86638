#pragma once

#include "contract/text.h"
#include "contract/unit_types.h"

#include <array>
#include <cstdint>

using T_PISD_UNIT = std::array<int, 17>;

/// One pile support type.
struct T_PISD_D {
    CString      name;                 ///< unique, not empty
    std::int32_t supportType = 1;      ///< 1 from the pile database or calculated, 2 by value
    std::int32_t dbCode = 0;           ///< code of the pile database
    std::int32_t pileType = 0;         ///< 1-based place in the type list of the database
    std::int32_t construction = 1;     ///< 1 driven, 2 augered, 3 pre-boring
    double       diameter = 0.0;       ///< [length]; -1 in the General page marks a diameter that was not chosen yet
    double       thickness = 0.0;      ///< of the wall [length]
    double       elasticity = 0.0;     ///< elastic modulus Ep [force/length^2]
    double       area = 0.0;           ///< of the pile, Ap [length^2]
    double       length = 0.0;         ///< L [length]
    double       stiffness = 0.0;      ///< support stiffness Kv [force/length]
    std::int32_t action = 1;           ///< 1 normal, 2 tension only, 3 compression only
    std::int32_t shape = 1;            ///< 1 round, 2 square, 3 H
    std::int32_t hIndex = 0;           ///< 1-based place of an H pile in the section list
    double       coefficient = 0.0;    ///< pile coefficient a
    std::int32_t isSpecial = 0;        ///< 1: a record of the Special page
    std::int32_t sectionIndex = 0;     ///< 0-based place in the special section list

    /// Unit types of the form, by field; the coefficient's is read at entry 12.
    static constexpr T_PISD_UNIT unit{
        Unit::none, Unit::none, Unit::none, Unit::none, Unit::none,    // 0 to 4
        Unit::length, Unit::length,                                    // 5 diameter, 6 thickness
        Unit::stress,                                                  // 7 elasticity
        Unit::area,                                                    // 8 area
        Unit::length,                                                  // 9 length
        Unit::spring,                                                  // 10 stiffness
        Unit::none, Unit::none,                                        // 11, and 12 coefficient
        Unit::none, Unit::none, Unit::none, Unit::none,                // 13 to 16
    };

    bool operator==(const T_PISD_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("name", &T_PISD_D::name);
        field("supportType", &T_PISD_D::supportType);
        field("dbCode", &T_PISD_D::dbCode);
        field("pileType", &T_PISD_D::pileType);
        field("construction", &T_PISD_D::construction);
        field("diameter", &T_PISD_D::diameter, Unit::length);
        field("thickness", &T_PISD_D::thickness, Unit::length);
        field("elasticity", &T_PISD_D::elasticity, Unit::stress);
        field("area", &T_PISD_D::area, Unit::area);
        field("length", &T_PISD_D::length, Unit::length);
        field("stiffness", &T_PISD_D::stiffness, Unit::spring);
        field("action", &T_PISD_D::action);
        field("shape", &T_PISD_D::shape);
        field("hIndex", &T_PISD_D::hIndex);
        field("coefficient", &T_PISD_D::coefficient, Unit::none);
        field("isSpecial", &T_PISD_D::isSpecial);
        field("sectionIndex", &T_PISD_D::sectionIndex);
    }
};
