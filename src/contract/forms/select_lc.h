#pragma once

#include "contract/forms/lists.h"
#include "contract/notices.h"

#include <cstdint>

/// The load-case picker: a combo box that offers the model's load cases, in their sequence. It follows changes of the load cases
/// by itself and keeps what is selected; when that case is deleted, nothing is.
class CSelectLC : public CComboBox, private CDBUpdateConnector {
public:
    CSelectLC(const zel::Place& place, std::string_view id, CString label, zel::Action<> onSelect = {});
    /// Shows a field that holds the key of a load case.
    CSelectLC(const zel::Place& place, std::string_view id, CString label, const zel::Field& field, zel::Action<> onSelect = {});

    /// Fills it. Selected is then the first line.
    /// @param kind        1: static load cases; any other kind offers nothing
    /// @param casesOnly   0: an empty line, which stands for key 0, comes first; 1: cases only
    /// @param reserved    0
    void SetLoadType(unsigned kind, int casesOnly, int reserved);
    /// What is selected; key 0 when nothing is. Returns 0 then.
    /// @param extra  set to 0 when it is not nil
    int GetSelectedLoad(unsigned& kind, zel::Key& key, unsigned* extra) const;
    /// Selects a case by its key; a key that is not offered, and 0 without an empty line, clears the selection. Returns 0 then.
    int ChangeSelect(unsigned kind, zel::Key key, unsigned reserved);

private:
    void OnUpdate(CView* sender, long long hint, CObject* object) override;
    void fill();

    unsigned m_kind = 0;
    bool m_casesOnly = true;
};
