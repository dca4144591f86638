#pragma once

#include "contract/export.h"
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

/// The name in such a text: the mark is taken off once, and a text without it is a name.
CString staticCaseName(const CString& text);

/// Adds the names of the load cases that `offers` accepts to a list, in the sequence of the table, with the key as the value of the item.
void addLoadCases(ItemControl& list, const std::function<bool(const T_STLD_D&)>& offers);

/// Selects the line that reads exactly so; none if no line does. Returns whether one does.
bool selectText(CComboBox& list, const CString& text);

/// A list of static load cases, which shows the field that holds a key of one.
class ZEL_CMD_API LoadCaseCombo : public CComboBox {
public:
    enum class Lines {
        marked,       ///< "DL(ST)": the name with the mark of its kind
        names,        ///< "DL"
        namesOrNone,  ///< the same, with a line for none before them
    };

    LoadCaseCombo(const Place& place, std::string_view id, CString label, const Field& field, Lines lines = Lines::marked);

    /// Empties it and fills it with the static load cases that `offers` accepts.
    void fill(const std::function<bool(const T_STLD_D&)>& offers);

    /// Kind of the load case at a line; 0, static, also for a line that is not there.
    [[nodiscard]] int GetLoadCaseType(int line) const;
    /// Key of the load case that a line names; 0 if no case has that name now.
    [[nodiscard]] Key keyAt(int line) const;

    /// Selects the line of the load case, or no line if none reads so.
    void showField(const void* record) override { selectText(*this, fieldText(record)); }
    [[nodiscard]] bool readField(void* record) const override;
    [[nodiscard]] CString fieldText(const void* record) const override;

private:
    Lines m_lines;
    std::vector<T_SEIS_LCTP> m_kinds;
};

}  // namespace zel
