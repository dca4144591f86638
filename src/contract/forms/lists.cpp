#include "contract/forms/lists.h"

#include "contract/format_text.h"
#include "contract/forms/field_writer.h"
#include "contract/forms/find_control.h"
#include "contract/forms/row_numbers.h"
#include "contract/letter_case.h"

#include <algorithm>
#include <cmath>

using zel::Taken;

namespace {

const CString nothing;

std::size_t at(int index)
{
    return static_cast<std::size_t>(index);
}

std::vector<int> marked(const std::vector<bool>& marks)
{
    std::vector<int> indices;
    for (std::size_t i = 0; i < marks.size(); ++i) {
        if (marks[i])
            indices.push_back(static_cast<int>(i));
    }
    return indices;
}

}  // namespace

namespace zel {

int ItemControl::AddString(const CString& text, std::uintptr_t data)
{
    return InsertString(GetCount(), text, data);
}

int ItemControl::AddCode(const CString& code, const CString& text)
{
    const int index = AddString(text);
    m_items[at(index)].code = code;
    return index;
}

int ItemControl::InsertString(int index, const CString& text, std::uintptr_t data)
{
    index = std::clamp(index, 0, GetCount());
    m_items.insert(m_items.begin() + index, {text, data});
    changed();
    return index;
}

int ItemControl::DeleteString(int index)
{
    if (!has(index))
        return 0;
    m_items.erase(m_items.begin() + index);
    changed();
    return 1;
}

void ItemControl::ResetContent()
{
    m_items.clear();
    changed();
}

std::uintptr_t ItemControl::GetItemData(int index) const
{
    return has(index) ? m_items[at(index)].data : 0;
}

int ItemControl::SetItemData(int index, std::uintptr_t data)
{
    if (!has(index))
        return 0;
    m_items[at(index)].data = data;
    return 1;
}

const CString& ItemControl::GetItemText(int index) const
{
    return has(index) ? m_items[at(index)].text : nothing;
}

int ItemControl::FindStringExact(const CString& text) const
{
    const auto found = std::find_if(m_items.begin(), m_items.end(), [&text](const Item& item) { return zel::equalIgnoringCase(item.text, text); });
    return found == m_items.end() ? -1 : static_cast<int>(found - m_items.begin());
}

int ItemControl::FindData(std::uintptr_t data) const
{
    const auto found = std::find_if(m_items.begin(), m_items.end(), [data](const Item& item) { return item.data == data; });
    return found == m_items.end() ? -1 : static_cast<int>(found - m_items.begin());
}

int ItemControl::FindCode(const CString& code) const
{
    const auto found = std::ranges::find(m_items, code, &Item::ownCode);
    return found == m_items.end() ? -1 : static_cast<int>(found - m_items.begin());
}

std::vector<CString> ItemControl::items() const
{
    std::vector<CString> texts;
    texts.reserve(m_items.size());
    for (const Item& item : m_items)
        texts.push_back(item.text);
    return texts;
}

int ItemControl::named(const UserValue& value) const
{
    return entryNamed(items(), value);
}

Taken ItemControl::noEntry(const UserValue& value) const
{
    return refuse(noSuchEntry(items(), value));
}

}  // namespace zel

CComboBox::CComboBox(const zel::Place& place, std::string_view id, CString label, zel::Action<> onSelect)
    : CComboBox(place, id, std::move(label), zel::Field(), std::move(onSelect))
{
}

CComboBox::CComboBox(const zel::Place& place, std::string_view id, CString label, const zel::Field& field, zel::Action<> onSelect)
    : ItemControl(place, id, std::move(label), field), m_onSelect(std::move(onSelect))
{
    for (const zel::Choice& choice : field.choices())
        m_items.push_back({choiceText(choice), static_cast<std::uintptr_t>(choice.code)});
}

int CComboBox::itemOf(const void* record) const
{
    return field().type() == zel::FieldType::text ? FindCode(field().text(record)) : FindData(static_cast<std::uintptr_t>(field().integer(record)));
}

void CComboBox::showField(const void* record)
{
    SetCurSel(itemOf(record));
}

bool CComboBox::readField(void* record) const
{
    if (!has(m_selected))
        return !field().isRequired();
    const Item& item = m_items[at(m_selected)];
    if (field().type() == zel::FieldType::text)
        field().setText(record, item.ownCode());
    else
        field().setInteger(record, static_cast<std::int64_t>(item.data));
    return true;
}

CString CComboBox::fieldText(const void* record) const
{
    return GetItemText(itemOf(record));
}

void CComboBox::SetCurSel(int index)
{
    m_selected = std::max(index, -1);
    m_text.clear();
    changed();
}

int CComboBox::SelectString(const CString& text)
{
    const int index = FindStringExact(text);
    if (index >= 0)
        SetCurSel(index);
    return index;
}

const CString& CComboBox::GetWindowText() const
{
    return m_selected < 0 ? m_text : GetItemText(m_selected);
}

void CComboBox::SetWindowText(const CString& text)
{
    if (!m_editable) {
        SelectString(text);
        return;
    }
    m_selected = -1;
    m_text = text;
    changed();
}

int CComboBox::InsertString(int index, const CString& text, std::uintptr_t data)
{
    const int place = ItemControl::InsertString(index, text, data);
    if (m_selected >= place && m_selected < GetCount() - 1)  // an item was selected, and has moved down
        ++m_selected;
    return place;
}

int CComboBox::DeleteString(int index)
{
    if (ItemControl::DeleteString(index) == 0)
        return 0;
    if (index == m_selected)
        m_selected = -1;
    else if (index < m_selected)
        --m_selected;
    return 1;
}

void CComboBox::ResetContent()
{
    m_selected = -1;
    m_text.clear();
    ItemControl::ResetContent();
}

Taken CComboBox::choose(const zel::UserValue& value)
{
    if (Taken reached = reach(); !reached)
        return reached;
    const int index = named(value);
    const auto* typed = std::get_if<CString>(&value);
    if (index < 0 && (!m_editable || typed == nullptr))
        return noEntry(value);
    const zel::UserAction action;
    if (Taken focused = focus(); !focused)
        return focused;
    if (index >= 0) {
        SetCurSel(index);
        fire(m_onSelect);
    } else {
        SetWindowText(*typed);
        fire(m_onEdit);
    }
    return {};
}

Taken CComboBox::set(const zel::UserValue& value)
{
    const zel::UserAction action;
    const Taken chosen = choose(value);
    return chosen ? leave() : chosen;
}

Taken CComboBox::select(const std::vector<int>& rows)
{
    if (rows.size() != 1)
        return refuse("takes one entry");
    return choose(static_cast<double>(rows.front()));
}

void CComboBox::describe(zel::IFieldWriter& writer) const
{
    writer.texts("items", items());
    writer.number("selected", has(m_selected) ? std::optional<int>(m_selected) : std::nullopt);
    writer.text("value", GetWindowText());
    writer.flag("editable", m_editable);
}

CListBox::CListBox(const zel::Place& place, std::string_view id, CString label, zel::Action<> onSelect, Selection selection)
    : ItemControl(place, id, std::move(label)), m_onSelect(std::move(onSelect)), m_multiple(selection == Selection::multiple)
{
}

void CListBox::SetCurSel(int index)
{
    m_selected.assign(m_selected.size(), false);
    if (has(index))
        m_selected[at(index)] = true;
    changed();
}

int CListBox::GetCurSel() const
{
    const std::vector<int> all = GetSelItems();
    return all.empty() ? -1 : all.front();
}

void CListBox::SetSel(int index, bool selected)
{
    if (!has(index))
        return;
    if (selected && !m_multiple)
        m_selected.assign(m_selected.size(), false);
    m_selected[at(index)] = selected;
    changed();
}

std::vector<int> CListBox::GetSelItems() const
{
    return marked(m_selected);
}

int CListBox::InsertString(int index, const CString& text, std::uintptr_t data)
{
    const int place = ItemControl::InsertString(index, text, data);
    m_selected.insert(m_selected.begin() + place, false);
    return place;
}

int CListBox::DeleteString(int index)
{
    if (ItemControl::DeleteString(index) == 0)
        return 0;
    m_selected.erase(m_selected.begin() + index);
    return 1;
}

void CListBox::ResetContent()
{
    m_selected.clear();
    ItemControl::ResetContent();
}

Taken CListBox::select(const std::vector<int>& rows)
{
    if (Taken reached = reach(); !reached)
        return reached;
    if (const CString fault = zel::faultOfRows(rows, GetCount(), m_multiple); !fault.empty())
        return refuse(fault);
    const zel::UserAction action;
    if (Taken focused = focus(); !focused)
        return focused;
    m_selected.assign(m_selected.size(), false);
    for (const int row : rows)
        m_selected[at(row)] = true;
    changed();
    fire(m_onSelect);
    return {};
}

Taken CListBox::choose(const zel::UserValue& value)
{
    const int index = named(value);
    return index < 0 ? noEntry(value) : select({index});
}

Taken CListBox::doubleClick(int row)
{
    const zel::UserAction action;
    if (Taken selected = select({row}); !selected)
        return selected;
    if (reach())
        fire(m_onDoubleClick);
    return {};
}

void CListBox::describe(zel::IFieldWriter& writer) const
{
    writer.texts("items", items());
    writer.numbers("selected", GetSelItems());
}

CCheckListBox::CCheckListBox(const zel::Place& place, std::string_view id, CString label, zel::Action<> onCheck)
    : CListBox(place, id, std::move(label)), m_onCheck(std::move(onCheck))
{
}

void CCheckListBox::SetCheck(int index, bool checked)
{
    if (!has(index))
        return;
    m_ticked[at(index)] = checked;
    changed();
}

std::vector<int> CCheckListBox::checkedItems() const
{
    return marked(m_ticked);
}

int CCheckListBox::InsertString(int index, const CString& text, std::uintptr_t data)
{
    const int place = CListBox::InsertString(index, text, data);
    m_ticked.insert(m_ticked.begin() + place, false);
    return place;
}

int CCheckListBox::DeleteString(int index)
{
    if (CListBox::DeleteString(index) == 0)
        return 0;
    m_ticked.erase(m_ticked.begin() + index);
    return 1;
}

void CCheckListBox::ResetContent()
{
    m_ticked.clear();
    CListBox::ResetContent();
}

Taken CCheckListBox::tick(int row, bool on)
{
    if (Taken reached = reach(); !reached)
        return reached;
    if (const CString fault = zel::faultOfRows({row}, GetCount(), false); !fault.empty())
        return refuse(fault);
    const zel::UserAction action;
    if (Taken focused = focus(); !focused)
        return focused;
    if (GetCheck(row) == on)
        return {};
    SetCheck(row, on);
    fire(m_onCheck);
    return {};
}

void CCheckListBox::describe(zel::IFieldWriter& writer) const
{
    writer.texts("items", items());
    writer.numbers("ticked", checkedItems());
    writer.numbers("selected", GetSelItems());
}
