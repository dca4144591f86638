#include "loadcomb/editor/combination_grid.h"

#include "command/messages.h"
#include "contract/number_text.h"
#include "contract/table.h"
#include "contract/tables/static_load_case_table.h"

#include <algorithm>
#include <unordered_map>

namespace zel {

namespace {

constexpr int mostItems = 50;

/// Up to so many rows are filled at once after a change; of more the ones that are looked at.
constexpr std::size_t fewRows = 64;

bool isBlank(const CString& text)
{
    return number::trim(text).empty();
}

}  // namespace

bool itemsFit(const std::vector<T_LCOM_ITEM>& items)
{
    if (items.size() <= static_cast<std::size_t>(mostItems))
        return true;
    showMessage("IDS_ZEL_CMD__Error___Number_of_load_case_exceeds_li_MSG1", {mostItems});
    return false;
}

bool isLoadCase(Key key)
{
    return CDataStld().Get(key) != 0;
}

CString newCombinationName(int kind)
{
    const CDataLcom data;
    for (int number = data.GetCount(kind) + 1;; ++number) {
        CString name = "LCB" + std::to_string(number);
        if (data.Exist(kind, name) == 0)
            return name;
    }
}

// Columns

void CombinationGrid::Initialize()
{
    RemoveColumns();
    AddColumns();
    SetRowDrag(true);
    ShowRowsOnDemand(true);
    CTBCommon::Initialize();
}

void CombinationGrid::AddNo()
{
    const int index = AddColInfo(loadText("IDS_ZEL_CMD__No"), static_cast<int>(GridKind::integer), 0);
    SetColWidth(index, 50);
    SetColDisabled(index);
    SetColFrozen(index);
}

void CombinationGrid::AddName()
{
    SetColWidth(AddColInfo(loadText("IDS_ZEL_CMD__Name"), static_cast<int>(GridKind::text), 0), 58);
}

void CombinationGrid::AddActive()
{
    SetColWidth(AddColInfo(loadText("IDS_ZEL_CMD__Active"), static_cast<int>(GridKind::check), 0), 55);
}

void CombinationGrid::AddDescription()
{
    SetColWidth(AddColInfo(loadText("IDS_ZEL_CMD__Description"), static_cast<int>(GridKind::text), 0), 200);
}

void CombinationGrid::ShowKind()
{
    {
        const GridUpdate update(*this);
        RebuildRows();
    }
    ShowCurrentRow();
}

// Texts and records

CArray<CString> CombinationGrid::TextsOf(const T_LCOM_D& record) const
{
    const Columns at = columns();
    CArray<CString> texts(static_cast<std::size_t>(GetColCount()));
    texts[noColumn] = std::to_string(record.number);
    texts[static_cast<std::size_t>(at.name)] = record.name;
    texts[static_cast<std::size_t>(at.active)] = record.active != 0 ? "1" : "0";
    texts[static_cast<std::size_t>(at.description)] = record.description;
    ShowItems(record, texts);
    return texts;
}

/// Texts by index into a record, which holds what is stored or, for a new row, nothing. False, after a message, if that can't be done.
bool CombinationGrid::ReadTexts(const CArray<CString>& texts, T_LCOM_D& record)
{
    const Columns at = columns();
    const auto isOn = [](const CString& text) { return number::read(text).value_or(0.0) != 0.0; };
    record.number = number::readInteger(texts[noColumn]).value_or(0);
    record.active = isOn(texts[static_cast<std::size_t>(at.active)]) ? 1 : 0;
    record.name = texts[static_cast<std::size_t>(at.name)];
    record.description = texts[static_cast<std::size_t>(at.description)];
    return ReadItems(texts, record);
}

bool CombinationGrid::ValidateRecord(const CArray<CString>& texts, const CArray<int>& columnsOfTexts)
{
    for (std::size_t i = 0; i < columnsOfTexts.size(); ++i) {
        if (columnsOfTexts[i] == columns().name && isBlank(texts[i])) {
            SetWarningText(loadText("IDS_ZEL_CMD__Error___Name_has_not_been_input_"));
            return false;
        }
    }
    return true;
}

CString CombinationGrid::GetNewKey()
{
    return std::to_string(GetCountData() + 1);
}

CString CombinationGrid::GetDefValue(int column)
{
    if (column == columns().name)
        return newCombinationName(m_kind);
    return column == columns().active ? "1" : CString();
}

int CombinationGrid::GetSelectedKeys(CArray<std::uint32_t>& keys)
{
    keys.clear();
    for (const int row : GetSelectedRows())
        keys.push_back(KeyOf(row));
    return static_cast<int>(keys.size());
}

// Writing

bool CombinationGrid::AddToDB(int row)
{
    T_LCOM_D record;
    return ReadTexts(GetRowTexts(row), record) && CDataLcom().Add(m_kind, record) != 0;
}

bool CombinationGrid::ModifyToDB(int row)
{
    CDataLcom data;
    const Key key = KeyOf(row);
    return data.Get(m_kind, key) != 0 && ReadTexts(GetRowTexts(row), data.currentRecord) && data.Modify(m_kind, {key}, {data.currentRecord}) != 0;
}

bool CombinationGrid::DeleteFromDB(const CArray<int>& rows)
{
    if (rows.empty())
        return true;
    std::vector<Key> keys;
    for (const int row : rows)
        keys.push_back(KeyOf(row));
    return CDataLcom().Del(m_kind, keys) != 0;
}

// Pasting. The place in the sequence says which combination a row holds; 0 is the key of a new one.

bool CombinationGrid::MakeKeyAndDataArray(const CArray<CString>& texts, const CArray<int>& columnsOfTexts, GridValues& keys, GridValues& records)
{
    CArray<CString> byIndex(static_cast<std::size_t>(GetColCount()));
    for (std::size_t i = 0; i < columnsOfTexts.size(); ++i) {
        if (!ValidateField(texts[i], columnsOfTexts[i]))
            return false;
        byIndex[static_cast<std::size_t>(columnsOfTexts[i])] = texts[i];
    }
    if (!ValidateRecord(texts, columnsOfTexts))
        return false;
    const Key key = KeyOf(number::readInteger(byIndex[noColumn]).value_or(0));
    T_LCOM_D record;
    if ((key != 0 && CDataLcom().Get(m_kind, key, record) == 0) || !ReadTexts(byIndex, record))
        return false;
    keys.emplace_back(key);
    records.emplace_back(std::move(record));
    return true;
}

bool CombinationGrid::AddToDB(const GridValues& /*keys*/, const GridValues& records)
{
    // Every new row starts with the same name. Where none was pasted over it, the rows behind the first are counted on.
    const CString startName = newCombinationName(m_kind);
    std::unordered_set<CString> taken;
    for (const std::any& each : records)
        taken.insert(std::any_cast<const T_LCOM_D&>(each).name);
    int next = GetCountData() + 1;
    bool startNameGiven = false;
    std::vector<T_LCOM_D> added;
    for (const std::any& each : records) {
        added.push_back(std::any_cast<const T_LCOM_D&>(each));
        CString& name = added.back().name;
        if (name != startName)
            continue;
        while (startNameGiven && (taken.contains(name) || CDataLcom().Exist(m_kind, name) != 0))
            name = "LCB" + std::to_string(next++);
        startNameGiven = true;
        taken.insert(name);
    }
    return CDataLcom().Add(m_kind, std::move(added)) != 0;
}

bool CombinationGrid::ModifyToDB(const GridValues& oldKeys, const GridValues& /*keys*/, const GridValues& records)
{
    std::vector<Key> keys;
    std::vector<T_LCOM_D> changed;
    for (std::size_t i = 0; i < oldKeys.size(); ++i) {
        keys.push_back(std::any_cast<Key>(oldKeys[i]));
        changed.push_back(std::any_cast<const T_LCOM_D&>(records[i]));
    }
    return CDataLcom().Modify(m_kind, keys, changed) != 0;
}

CString CombinationGrid::GetPasteRefusedText(const CString& /*warning*/)
{
    return loadText("IDS_ZEL_CMD__Invalid_data__Operation_has_been_cance");
}

// Filling

void CombinationGrid::MakeItemNormal(int count, const CArray<int>& /*columns*/)
{
    CDataLcom().GetKeyList(m_kind, m_keys);
    for (int row = 1; row <= count; ++row)
        SetRowKey(row, m_keys[static_cast<std::size_t>(row - 1)]);
}

void CombinationGrid::MakeItemFiltered(int /*count*/, const CArray<int>& rows, const CArray<int>& /*columns*/)
{
    CDataLcom data;
    for (const int row : rows) {
        if (data.Get(m_kind, GetRowKey(row)) != 0)
            SetRowTexts(row, TextsOf(data.currentRecord));
    }
}

// Following. The buffer of a notice says which combinations have changed; the rows and their texts come from the model, so that
// they are right also where another listener has written meanwhile.

void CombinationGrid::Follow(const std::unordered_set<Key>& changed)
{
    const Key former = KeyOf(GetCurrentRow());
    {
        const GridUpdate update(*this);
        std::vector<Key> keys;
        CDataLcom().GetKeyList(m_kind, keys);
        TakeOrder(keys);
        Refresh(changed);
    }
    if (KeyOf(GetCurrentRow()) != former)
        ShowCurrentRow();
}

/// Brings the rows into the order of these keys. Rows stay with their keys, and so does what is typed into one or selected. However
/// many rows come, go and move, each is handled once: new ones are put in at the end, then all are moved at once, then the
/// ones that are gone are taken from the end.
void CombinationGrid::TakeOrder(const std::vector<Key>& keys)
{
    const auto [oldEnd, newEnd] = std::mismatch(m_keys.begin(), m_keys.end(), keys.begin(), keys.end());
    const int same = static_cast<int>(oldEnd - m_keys.begin());
    const int oldCount = static_cast<int>(m_keys.size());
    std::unordered_map<Key, int> oldRows;
    for (int row = same + 1; row <= oldCount; ++row)
        oldRows.emplace(m_keys[static_cast<std::size_t>(row - 1)], row);

    CArray<int> order;  // rows behind those that stay, as they shall stand
    for (auto key = newEnd; key != keys.end(); ++key) {
        if (const auto found = oldRows.find(*key); found != oldRows.end()) {
            order.push_back(found->second);
            oldRows.erase(found);
            continue;
        }
        const int row = GetDataRowCount() + 1;
        InsertRecord(row);
        SetRowKey(row, *key);
        order.push_back(row);
    }
    const bool moves = !std::ranges::is_sorted(order) || (!oldRows.empty() && !order.empty());
    if (moves)
        MoveRecords(order, same + 1);
    for (std::size_t gone = 0; gone < oldRows.size(); ++gone)
        DeleteRecord(GetDataRowCount());
    m_keys = keys;
}

void CombinationGrid::Refresh(const std::unordered_set<Key>& changed)
{
    if (changed.size() > fewRows) {
        const CArray<int> selected = GetSelectedRows();
        RebuildRows();
        SelectRows(selected);
        return;
    }
    CDataLcom data;
    for (const Key key : changed) {
        if (data.Get(m_kind, key) != 0 && KeyOf(data.currentRecord.number) == key)
            SetRowTexts(data.currentRecord.number, TextsOf(data.currentRecord));
    }
}

void CombinationGrid::ShowCombination(Key key)
{
    CDataLcom data;
    if (data.Get(m_kind, key) != 0 && KeyOf(data.currentRecord.number) == key)
        MakeRowCurrent(data.currentRecord.number);
}

// Dragging

/// Always refuses the move: the grid itself moves nothing, since the notice of the new sequence moves the rows.
bool CombinationGrid::OnSelDragRowsDrop(int /*firstRow*/, int /*lastRow*/, int targetRow)
{
    if (IsEdit()) {
        showMessage("IDS_ZEL_CMD__Can_t_Move_row_while_editing_");
        return false;
    }
    const CArray<int> selected = GetSelectedRows();
    if (selected.empty()) {
        showMessage("IDS_ZEL_CMD__Error___No_selected_load_combination_");
        return false;
    }
    const int behindAppendRow = GetRowCount() + 1;
    const int afterRow = targetRow == behindAppendRow ? targetRow - 2 : targetRow - 1;
    if (std::ranges::find(selected, afterRow) != selected.end()) {
        showMessage("IDS_ZEL_CMD__Error___Select_target_load_combination");
        return false;
    }
    std::vector<Key> keys;
    for (const int row : selected)
        keys.push_back(KeyOf(row));
    CDataLcom().ChangeSequence(m_kind, keys, KeyOf(afterRow));
    return false;
}

/// The place in the sequence stays in front.
bool CombinationGrid::OnSelDragColsDrop(int firstColumn, int /*lastColumn*/, int targetColumn)
{
    return firstColumn > 1 && targetColumn > 1;
}

}  // namespace zel
