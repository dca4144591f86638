#pragma once

#include "contract/forms/forms.h"
#include "contract/records/lcug.h"
#include "contract/records/stld.h"
#include "contract/table_store.h"

#include <functional>
#include <map>
#include <vector>

namespace zel {

/// A part of a form: the scaled-up earthquake load cases. A list of factor, load case and case of accidental eccentricity, the fields of
/// one entry with Add, Modify and Delete, and beside the list two maps that hold what counts. A row that the user has kept may differ
/// from the maps.
class ScaleUpForm {
public:
    struct Words {
        const char* group;
        const char* caseId;     ///< id of the list of load cases; stands in journals
        const char* caseLabel;  ///< its label
        const char* caseTitle;  ///< message key of the title of its column
    };
    /// Where the two forms differ.
    struct Manner {
        bool refusesOddFactors;    ///< a factor out of range is refused; otherwise it is warned of and counts
        bool testsPairsByTheBox;   ///< pairs are tested while the box of eccentricity is ticked; otherwise where the entry has a partner
        bool keepsRefusedFactors;  ///< the factor of a case whose pair is refused counts all the same
        bool rowsTickTheBox;       ///< a row with a case of accidental eccentricity ticks its box, or Modify would lose the case
        bool deletionShowsNext;    ///< the row that is selected after a deletion is shown
    };

    ScaleUpForm(CDialog& dialog, const Words& words, const Manner& manner);
    ScaleUpForm(const ScaleUpForm&) = delete;
    ScaleUpForm& operator=(const ScaleUpForm&) = delete;

    /// Empties list and maps, and sets the columns.
    void InitListCtrl_RS();
    /// Fills the two lists of load cases with those that `offers` accepts, and selects the first.
    void SetComboBox_RS(const std::function<bool(const T_STLD_D&)>& offers);
    /// Enables or disables the fields of an entry.
    void Show_EditComboBox(bool enable);
    /// Empties list and maps.
    void ClearScaleUps();
    /// Takes an entry in as Add does. One of no case is passed over.
    void AddDataToScList(double factor, Key key, Key eccentricKey);

    /// What counts, in the order of the load cases.
    [[nodiscard]] std::vector<T_LCUG_SF> ScaleUps() const;
    [[nodiscard]] const std::map<Key, double>& factors() const { return m_factors; }
    [[nodiscard]] const std::map<Key, Key>& eccentricKeys() const { return m_eccentricKeys; }

private:
    [[nodiscard]] bool CheckRSSameLC() const;
    /// Whether the factor can be taken; a factor out of range, and no number, are told.
    [[nodiscard]] bool CheckRSScaleFactor() const;
    [[nodiscard]] bool CheckRSName(const CString& name, int& row) const;
    /// Whether one of the cases stands in an eccentric pair; pairs with the case `except` do not count.
    [[nodiscard]] bool IsInPair(Key key, Key eccentricKey, Key except) const;
    [[nodiscard]] Key GetKey() const;
    /// 0 without accidental eccentricity.
    [[nodiscard]] Key GetEccentricKey() const;
    /// The entry that a row shows; null for a row that is not there.
    [[nodiscard]] const T_LCUG_SF* ScaleUpAt(int row) const;

    void Add();
    void Modify();
    void Delete();
    void ShowSelected();

    /// Puts an entry into the maps and shows it: in a new row, or in the row of its case if the user agrees.
    void Store(const T_LCUG_SF& entry);
    void Forget(Key key);
    void Write_RSListCtrlBox(int row, const T_LCUG_SF& entry);

public:
    CGroup group;
    CEditUnit scaleUpFactor{group, "scaleUpFactor", "Scale Up Factor :"};
    CComboBox loadCase;
    CCheckBox eccentricity{group, "eccentricity", "Consider Accidental Eccentricity"};
    CComboBox esLoadCase{group, "esLoadCase", "ES Load Case :"};
    CListCtrl list{group, "list", [this] { ShowSelected(); }};
    CButtonRow buttons{group};
    CButton add{buttons, "add", "Add", [this] { Add(); }};
    CButton modify{buttons, "modify", "Modify", [this] { Modify(); }};
    CButton del{buttons, "del", "Delete", [this] { Delete(); }};

private:
    Words m_words;
    Manner m_manner;
    std::map<Key, double> m_factors;     ///< scale-up of each load case
    std::map<Key, Key> m_eccentricKeys;  ///< its case of accidental eccentricity, 0 for none
    std::vector<T_LCUG_SF> m_shown;      ///< what the rows show, row by row
};

}  // namespace zel
