#pragma once

#include "contract/text.h"

#include <span>
#include <string_view>

/// Facts about the design codes of load combinations. A code is known by its name, and case matters.
class CDBLib {
public:
    /// Names of the codes that have combinations of the general kind, in the order in which a form offers them.
    static void GetConLcomCodeNameList(CArray<CString, CString&>& names);
    /// The same for the concrete kind.
    static void GetConCodeNameList(CArray<CString, CString&>& names);

    static bool IsConCodeName(const CString& name);              ///< in one of the lists
    static bool IsConCode_WindLcom(const CString& name);         ///< reads wind direction sets
    static bool IsConCode_SeisLcom(const CString& name);         ///< reads factors for seismic design
    static bool IsConCode_UnderGroundLcom(const CString& name);  ///< reads underground load-case sets
    static bool IsConCode_Ortho(const CString& name);            ///< reads pairs of orthogonal earthquakes
};

namespace zel {

/// What `CDBLib` tells of one code.
struct DesignCode {
    std::string_view name;         ///< must outlive the catalogue
    bool windSets = false;         ///< its table reads wind direction sets
    bool seismicFactors = false;   ///< its table reads factors for seismic design; such a code reads orthogonal pairs too
    bool undergroundSets = false;  ///< its table reads underground load-case sets
};

/// Gives the catalogue its codes, in the order in which a form offers them, in the place of all that it had; it starts empty. Who has the
/// tables hands them in, so that no code is offered that nothing can generate: the command library does when it is loaded.
void setDesignCodes(std::span<const DesignCode> codes);

}  // namespace zel
