#pragma once

#include "contract/text.h"

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
