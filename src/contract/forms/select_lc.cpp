#include "contract/forms/select_lc.h"

#include "contract/tables/static_load_case_table.h"

CSelectLC::CSelectLC(const zel::Place& place, std::string_view id, CString label, zel::Action<> onSelect)
    : CComboBox(place, id, std::move(label), std::move(onSelect))
{
}

CSelectLC::CSelectLC(const zel::Place& place, std::string_view id, CString label, const zel::Field& field, zel::Action<> onSelect)
    : CComboBox(place, id, std::move(label), field, std::move(onSelect))
{
}

void CSelectLC::SetLoadType(unsigned kind, int casesOnly, int /*reserved*/)
{
    m_kind = kind;
    m_casesOnly = casesOnly != 0;
    fill();
    SetCurSel(GetCount() > 0 ? 0 : -1);
}

int CSelectLC::GetSelectedLoad(unsigned& kind, zel::Key& key, unsigned* extra) const
{
    kind = m_kind;
    key = static_cast<zel::Key>(selectedData());
    if (extra != nullptr)
        *extra = 0;
    return key != 0 ? 1 : 0;
}

int CSelectLC::ChangeSelect(unsigned kind, zel::Key key, unsigned /*reserved*/)
{
    SetCurSel(kind == m_kind ? FindData(key) : -1);
    return GetCurSel() >= 0 ? 1 : 0;
}

void CSelectLC::fill()
{
    ResetContent();
    if (m_kind != 1 || CDBDoc::GetDocPoint() == nullptr)
        return;
    if (!m_casesOnly)
        AddString({}, 0);
    const CDataStld cases;
    std::vector<zel::Key> keys;
    cases.GetKeyList(keys);
    for (const zel::Key key : keys)
        AddString(cases.GetNameByKey(key), key);
}

void CSelectLC::OnUpdate(CView* /*sender*/, long long hint, CObject* /*object*/)
{
    if (m_kind == 0 || !Hint::isData(hint))
        return;
    const CViewBuff& changes = *CDBDoc::GetDocPoint()->GetViewBuff();
    bool concerned = false;
    for (POSITION position = changes.GetStartBuffer(); position != nullptr;) {
        const int code = changes.GetNextBuffer(position).updateCode;
        concerned = concerned || code == CDataStld::UR_STLD_ADD || code == CDataStld::UR_STLD_DEL || code == CDataStld::UR_STLD_MFS;
    }
    if (!concerned)
        return;
    const auto selected = static_cast<zel::Key>(selectedData());
    fill();
    ChangeSelect(m_kind, selected, 0);
}
