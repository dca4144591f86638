#include "command/load_cases.h"

#include "command/messages.h"
#include "contract/letter_case.h"
#include "contract/load_types.h"
#include "contract/tables/static_load_case_table.h"

namespace zel {

namespace {

CString noLoadCase()
{
    return loadText("IDS_ZEL_CMD__NONE");
}

/// Hands the load cases that `offers` accepts to `use`, in the sequence of the table.
template <class Use> void eachLoadCase(const std::function<bool(const T_STLD_D&)>& offers, const Use& use)
{
    const CDataStld cases;
    std::vector<Key> keys;
    cases.GetKeyList(keys);
    for (const Key key : keys) {
        T_STLD_D record;
        if (cases.Get(key, record) != 0 && offers(record))
            use(key, record);
    }
}

}  // namespace

Key loadCaseKey(const CString& name)
{
    CDataStld cases;
    std::vector<Key> keys;
    std::vector<T_STLD_D> records;
    cases.GetList(keys, records);
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (equalIgnoringCase(records[i].name, name))
            return keys[i];
    }
    return 0;
}

CString staticCaseText(const CString& name)
{
    return name + CString(staticCaseMark);
}

CString staticCaseName(const CString& text)
{
    return text.ends_with(staticCaseMark) ? text.substr(0, text.size() - staticCaseMark.size()) : text;
}

void addLoadCases(ItemControl& list, const std::function<bool(const T_STLD_D&)>& offers)
{
    eachLoadCase(offers, [&list](Key key, const T_STLD_D& record) { list.AddString(record.name, key); });
}

LoadCaseCombo::LoadCaseCombo(const Place& place, std::string_view id, CString label, const Field& field, Lines lines)
    : CComboBox(place, id, std::move(label), field), m_lines(lines)
{
}

void LoadCaseCombo::fill(const std::function<bool(const T_STLD_D&)>& offers)
{
    ResetContent();
    m_kinds.clear();
    if (m_lines == Lines::namesOrNone)
        AddString(noLoadCase());
    eachLoadCase(offers, [this](Key key, const T_STLD_D& record) {
        const int line = AddString(m_lines == Lines::marked ? staticCaseText(record.name) : record.name, key);
        m_kinds.push_back({line, 0});
    });
}

int LoadCaseCombo::GetLoadCaseType(int line) const
{
    const auto found = std::ranges::find(m_kinds, line, &T_SEIS_LCTP::line);
    return found == m_kinds.end() ? 0 : found->kind;
}

Key LoadCaseCombo::keyAt(int line) const
{
    const CString& text = GetItemText(line);
    return loadCaseKey(m_lines == Lines::marked ? staticCaseName(text) : text);
}

bool LoadCaseCombo::readField(void* record) const
{
    if (GetCurSel() < 0)
        return !field().isRequired();
    field().setInteger(record, keyAt(GetCurSel()));
    return true;
}

CString LoadCaseCombo::fieldText(const void* record) const
{
    T_STLD_D loadCase;
    const bool exists = CDataStld().Get(static_cast<Key>(field().integer(record)), loadCase) != 0;
    if (m_lines == Lines::marked)
        return staticCaseText(loadCase.name);
    return exists ? loadCase.name : noLoadCase();
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
