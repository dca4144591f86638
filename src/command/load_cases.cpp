#include "command/load_cases.h"

#include "contract/load_types.h"
#include "contract/tables/static_load_case_table.h"

#include <algorithm>
#include <cctype>
#include <ranges>

namespace zel {

namespace {

bool sameWithoutCase(const CString& left, const CString& right)
{
    return std::ranges::equal(left, right, [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); });
}

}  // namespace

Key loadCaseKey(const CString& name)
{
    CDataStld cases;
    std::vector<Key> keys;
    std::vector<T_STLD_D> records;
    cases.GetList(keys, records);
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (sameWithoutCase(records[i].name, name))
            return keys[i];
    }
    return 0;
}

CString staticCaseText(const CString& name)
{
    return name + CString(staticCaseMark);
}

CString staticCaseName(CString text)
{
    for (const char mark : {')', 'T', 'S', '('})
        text.erase(text.find_last_not_of(mark) + 1);
    return text;
}

void addLoadCases(ItemControl& list, const std::function<bool(const T_STLD_D&)>& offers)
{
    CDataStld cases;
    std::vector<Key> keys;
    cases.GetKeyList(keys);
    for (const Key key : keys) {
        T_STLD_D record;
        if (cases.Get(key, record) != 0 && offers(record))
            list.AddString(record.name, key);
    }
}

void LoadCaseCombo::fill(const std::function<bool(const T_STLD_D&)>& offers)
{
    ResetContent();
    m_kinds.clear();
    CDataStld cases;
    std::vector<Key> keys;
    cases.GetKeyList(keys);
    for (const Key key : keys) {
        T_STLD_D record;
        if (cases.Get(key, record) == 0 || !offers(record))
            continue;
        const int line = AddString(staticCaseText(record.name), key);
        m_kinds.push_back({line, 0});
    }
}

int LoadCaseCombo::GetLoadCaseType(int line) const
{
    const auto found = std::ranges::find(m_kinds, line, &T_SEIS_LCTP::line);
    return found == m_kinds.end() ? 0 : found->kind;
}

bool selectText(CComboBox& list, const CString& text)
{
    list.SetCurSel(-1);
    for (int line = 0; line < list.GetCount(); ++line) {
        if (list.GetItemText(line) == text)
            list.SetCurSel(line);
    }
    return list.GetCurSel() >= 0;
}

}  // namespace zel
