#pragma once

#include "contract/load_db.h"

namespace zel {

/// The static load types of this system.
class LoadTypes final : public CLoadDB {
public:
    void GetLoadTypeList(CArray<CString, CString&>* types) const override;
    [[nodiscard]] CString GetLoadTypeName(const CString& type) const override;
    [[nodiscard]] CString GetLoadType(const CString& name) const override;
};

}  // namespace zel
