#pragma once

#include "contract/forms/lists.h"
#include "contract/records/seis_lctp.h"
#include "contract/records/stld.h"
#include "contract/table_store.h"

#include <functional>
#include <vector>

/// Static load cases in the lists of the dialogs.
namespace zel {

/// The host's command that opens Static Load Cases.
inline constexpr unsigned openStaticLoadCases = 32869;

/// Key of the first load case with that name, case not regarded; 0 if there is none.
Key loadCaseKey(const CString& name);

/// A load case's name as lists of several kinds of case show it: with "(ST)", for static, behind it.
CString staticCaseText(const CString& name);

/// The name in such a text. A name that itself ends in those letters comes back whole.
CString staticCaseName(CString text);

/// Adds the names of the load cases that `offers` accepts to a list, in the sequence of the table, with the key as the value of the item.
void addLoadCases(ItemControl& list, const std::function<bool(const T_STLD_D&)>& offers);

/// Selects the line that reads exactly so; none if no line does. Returns whether one does.
bool selectText(CComboBox& list, const CString& text);

/// A load case list whose lines bear the mark of their kind: "DL(ST)". Beside the lines it keeps which kind each is of.
class LoadCaseCombo : public CComboBox {
public:
    using CComboBox::CComboBox;

    /// Empties it and fills it with the static load cases that `offers` accepts.
    void fill(const std::function<bool(const T_STLD_D&)>& offers);

    /// Name of the selected load case; empty if no line is selected.
    [[nodiscard]] CString selectedName() const { return staticCaseName(GetItemText(GetCurSel())); }
    /// Kind of the load case at a line; 0, static, also for a line that is not there.
    [[nodiscard]] int GetLoadCaseType(int line) const;

private:
    std::vector<T_SEIS_LCTP> m_kinds;
};

}  // namespace zel
