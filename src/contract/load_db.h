#pragma once

#include "contract/text.h"

/// The catalogue of static load types. A type has a short code ("D"), which records hold, and a display name
/// ("Dead Load (D)"), which forms offer; each tells the other.
class CLoadDB {
public:
    CLoadDB() = default;
    CLoadDB(const CLoadDB&) = delete;
    CLoadDB& operator=(const CLoadDB&) = delete;
    virtual ~CLoadDB() = default;

    /// Fills `types` with the codes, in catalogue order.
    virtual void GetLoadTypeList(CArray<CString, CString&>* types) const = 0;

    /// The display name of a code; empty for a code that is not in the catalogue. Case matters.
    [[nodiscard]] virtual CString GetLoadTypeName(const CString& type) const = 0;

    /// The code of a display name; empty for a name that is not in the catalogue. Case matters.
    [[nodiscard]] virtual CString GetLoadType(const CString& name) const = 0;
};
