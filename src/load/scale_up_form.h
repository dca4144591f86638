#pragma once

#include "contract/forms/list_ctrl.h"
#include "contract/records/lcug.h"
#include "contract/table_store.h"

#include <map>
#include <vector>

namespace zel {

/// What the forms for scaled-up earthquake load cases have in common: a list of factor, load case and case of accidental
/// eccentricity, and beside it two maps that hold what counts. A row that the user has kept may differ from the maps.
class ScaleUpForm {
public:
    ScaleUpForm() = default;
    ScaleUpForm(const ScaleUpForm&) = delete;
    ScaleUpForm& operator=(const ScaleUpForm&) = delete;

protected:
    virtual ~ScaleUpForm() = default;

    // Columns of the list.
    static constexpr int factorColumn = 0;
    static constexpr int loadCaseColumn = 1;
    static constexpr int eccentricColumn = 2;

    virtual CListCtrl& ScaleUpList() = 0;

    /// Empties list and maps, and sets the columns.
    /// @param loadCaseTitle  message key of the title of the second column
    void InitListCtrl_RS(const char* loadCaseTitle);
    /// Empties list and maps.
    void ClearScaleUps();

    /// Whether one of the cases stands in an eccentric pair; pairs with the case `except` do not count.
    [[nodiscard]] bool IsInPair(Key key, Key eccentricKey, Key except) const;
    /// Whether the list holds the name of a load case, and in which row.
    [[nodiscard]] bool CheckRSName(const CString& name, int& row);

    /// Stores an entry in the maps and shows it: in a new row, or in the row of its case if the user agrees.
    void StoreScaleUp(const T_LCUG_SF& entry);
    /// Puts an entry in the place of the one in a row, and selects the row.
    void ReplaceScaleUp(int row, const T_LCUG_SF& entry);
    /// Takes the entry of a row out, and selects the row that stands there now, or the last.
    void RemoveScaleUp(int row);
    /// The entry that a row shows; null for a row that is not there.
    [[nodiscard]] const T_LCUG_SF* ScaleUpAt(int row) const;

    /// Shows an entry in a row, and selects the row.
    void Write_RSListCtrlBox(int row, double factor, const CString& name, const CString& eccentricName);
    void OverWrite_RSListCtrlBox(int row, double factor, const CString& name, const CString& eccentricName);

    /// Name of a load case as the list shows it: no case is "NONE".
    [[nodiscard]] static CString ScaleUpName(Key key);

    std::map<Key, double> m_factors;     ///< scale-up of each load case
    std::map<Key, Key> m_eccentricKeys;  ///< its case of accidental eccentricity, 0 for none

private:
    void ShowScaleUp(int row);

    std::vector<T_LCUG_SF> m_shown;  ///< what the rows show, row by row
};

}  // namespace zel
