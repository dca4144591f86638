#pragma once

#include "contract/records/sect_stiffness.h"
#include "contract/text.h"
#include "contract/unit_types.h"

#include <array>
#include <cstdint>

using T_SECT_SECTBASE_UNIT = std::array<int, 8>;

/// Shape data of one end of a section.
struct T_SECT_SECTBASE_D {
    CString                dbName;             ///< name of the section database; empty for a user-defined section
    CString                sectName;           ///< name of the section there; empty for a user-defined section
    std::array<double, 10> sizes{};            ///< of the shape, in the order of its titles; forms edit places 0 to 5 [length]
    double                 perimeter = 0.0;    ///< [length]
    std::int32_t           builtUp = 2;        ///< 1 built-up section, 2 not built up
    T_SECT_STIFFNESS       stiffness;
    double                 yBar = 0.0;         ///< centre of the section, y [length]
    double                 zBar = 0.0;         ///< centre of the section, z [length]

    static constexpr T_SECT_SECTBASE_UNIT unit{
        Unit::none, Unit::none,        // database, section
        Unit::length,                  // sizes
        Unit::length, Unit::length,    // perimeter: forms read the second of the two
        Unit::none,                    // stiffness has a list of its own
        Unit::none, Unit::none,        // the centre's units stand in T_SECT_DESIGN
    };

    bool operator==(const T_SECT_SECTBASE_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("dbName", &T_SECT_SECTBASE_D::dbName);
        field("sectName", &T_SECT_SECTBASE_D::sectName);
        field("sizes", &T_SECT_SECTBASE_D::sizes, Unit::length);
        field("perimeter", &T_SECT_SECTBASE_D::perimeter, Unit::length);
        field("builtUp", &T_SECT_SECTBASE_D::builtUp);
        field("stiffness", &T_SECT_SECTBASE_D::stiffness);
        field("yBar", &T_SECT_SECTBASE_D::yBar, Unit::length);
        field("zBar", &T_SECT_SECTBASE_D::zBar, Unit::length);
    }
};

using T_SECT_DESIGN_UNIT = std::array<int, 2>;

/// The centre of a section as forms list it; it exists for its unit types.
struct T_SECT_DESIGN {
    double yBar = 0.0;    ///< [length]
    double zBar = 0.0;    ///< [length]

    static constexpr T_SECT_DESIGN_UNIT unit{
        Unit::length, Unit::length,
    };

    bool operator==(const T_SECT_DESIGN&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("yBar", &T_SECT_DESIGN::yBar, Unit::length);
        field("zBar", &T_SECT_DESIGN::zBar, Unit::length);
    }
};

/// Properties of one part of a section of more parts.
struct T_SECT_PART {
    T_SECT_STIFFNESS stiffness;
    double           perimeter = 0.0;    ///< [length]
    double           yBar = 0.0;         ///< centre of the part, y [length]
    double           zBar = 0.0;         ///< centre of the part, z [length]

    bool operator==(const T_SECT_PART&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("stiffness", &T_SECT_PART::stiffness);
        field("perimeter", &T_SECT_PART::perimeter, Unit::length);
        field("yBar", &T_SECT_PART::yBar, Unit::length);
        field("zBar", &T_SECT_PART::zBar, Unit::length);
    }
};

/// One section.
struct T_SECT_D {
    std::int32_t               kind = 1;            ///< 1 by shape and sizes, 3 by values; 2 and 4 to 8 hold more parts, no form makes them
    CString                    name;                ///< not empty when saved
    CString                    shapeName = "SB";    ///< shape code
    std::int32_t               offset = 5;          ///< reference point: 1 to 9 row by row from the left top, 5 centre
    T_SECT_SECTBASE_D          base;
    T_SECT_SECTBASE_D          secondBase;          ///< second end; of kinds 5 and 6 only
    std::array<T_SECT_PART, 4> parts;               ///< 0 combined values of kinds 2, 4, 7, 8; 1 before and 2 after of kind 6; 3 spare

    bool operator==(const T_SECT_D&) const = default;

    void Initialize() { *this = {}; }

    template <class F> static void visit(F& field)
    {
        field("kind", &T_SECT_D::kind);
        field("name", &T_SECT_D::name);
        field("shapeName", &T_SECT_D::shapeName);
        field("offset", &T_SECT_D::offset);
        field("base", &T_SECT_D::base);
        field("secondBase", &T_SECT_D::secondBase);
        field("parts", &T_SECT_D::parts);
    }
};
