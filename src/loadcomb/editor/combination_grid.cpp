#include "loadcomb/editor/combination_grid.h"

#include "command/messages.h"
#include "command/row_move.h"
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

Row CombinationGrid::RowOf(const CDataLcom& combination) const
{
    const Row row = Row::of(combination.currentRecord.number);
    return KeyOf(row) == combination.currentKey ? row : Row();
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
    const ColumnIndex index = AddColInfo(loadText("IDS_ZEL_CMD__No"), static_cast<int>(GridKind::integer), 0);
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
    texts[noColumn.place()] = std::to_string(record.number);
    texts[at.name.place()] = record.name;
    texts[at.active.place()] = record.active != 0 ? "1" : "0";
    texts[at.description.place()] = record.description;
    ShowItems(record, texts);
    return texts;
}

/// Texts by index into a record, which holds what is stored or, for a new row, nothing. False, after a message, if that can't be done.
bool CombinationGrid::ReadTexts(const CArray<CString>& texts, T_LCOM_D& record)
{
    const Columns at = columns();
    const auto isOn = [](const CString& text) { return number::read(text).value_or(0.0) != 0.0; };
    record.number = number::readInteger(texts[noColumn.place()]).value_or(0);
    record.active = isOn(texts[at.active.place()]) ? 1 : 0;
    record.name = texts[at.name.place()];
    record.description = texts[at.description.place()];
    return ReadItems(texts, record);
}

bool CombinationGrid::ValidateRecord(const CArray<CString>& texts, const CArray<ColumnIndex>& columnsOfTexts)
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

CString CombinationGrid::GetDefValue(ColumnIndex column)
{
    if (column == columns().name)
        return newCombinationName(m_kind);
    return column == columns().active ? "1" : CString();
}

int CombinationGrid::GetSelectedKeys(CArray<std::uint32_t>& keys)
{
    keys.clear();
    for (const Row row : GetSelectedRows())
        keys.push_back(KeyOf(row));
    return static_cast<int>(keys.size());
}

// Writing

bool CombinationGrid::AddToDB(Row row)
{
    T_LCOM_D record;
    return ReadTexts(GetRowTexts(row), record) && CDataLcom().Add(m_kind, record) != 0;
}

bool CombinationGrid::ModifyToDB(Row row)
{
    CDataLcom data;
    const Key key = KeyOf(row);
    return data.Get(m_kind, key) != 0 && ReadTexts(GetRowTexts(row), data.currentRecord) && data.Modify(m_kind, {key}, {data.currentRecord}) != 0;
}

bool CombinationGrid::DeleteFromDB(const CArray<Row>& rows)
{
    if (rows.empty())
        return true;
    std::vector<Key> keys;
    for (const Row row : rows)
        keys.push_back(KeyOf(row));
    return CDataLcom().Del(m_kind, keys) != 0;
}

// Pasting. The place in the sequence says which combination a row holds; 0 is the key of a new one.

bool CombinationGrid::MakeKeyAndDataArray(const CArray<CString>& texts, const CArray<ColumnIndex>& columnsOfTexts, Keys& keys, Records& records)
{
    CArray<CString> byIndex(static_cast<std::size_t>(GetColCount()));
    for (std::size_t i = 0; i < columnsOfTexts.size(); ++i) {
        if (!ValidateField(texts[i], columnsOfTexts[i]))
            return false;
        byIndex[columnsOfTexts[i].place()] = texts[i];
    }
    if (!ValidateRecord(texts, columnsOfTexts))
        return false;
    const Key key = KeyOf(Row::of(number::readInteger(byIndex[noColumn.place()]).value_or(0)));
    T_LCOM_D record;
    if ((key != 0 && CDataLcom().Get(m_kind, key, record) == 0) || !ReadTexts(byIndex, record))
        return false;
    keys.push_back(key);
    records.push_back(std::move(record));
    return true;
}

bool CombinationGrid::AddToDB(const Keys& /*keys*/, const Records& records)
{
    // Every new row starts with the same name. Where none was pasted over it, the rows behind the first are counted on.
    const CString startName = newCombinationName(m_kind);
    std::unordered_set<CString> taken;
    for (const T_LCOM_D& each : records)
        taken.insert(each.name);
    int next = GetCountData() + 1;
    bool startNameGiven = false;
    Records added = records;
    for (T_LCOM_D& each : added) {
        CString& name = each.name;
        if (name != startName)
            continue;
        while (startNameGiven && (taken.contains(name) || CDataLcom().Exist(m_kind, name) != 0))
            name = "LCB" + std::to_string(next++);
        startNameGiven = true;
        taken.insert(name);
    }
    return CDataLcom().Add(m_kind, std::move(added)) != 0;
}

bool CombinationGrid::ModifyToDB(const Keys& oldKeys, const Keys& /*keys*/, const Records& records)
{
    return CDataLcom().Modify(m_kind, oldKeys, records) != 0;
}

CString CombinationGrid::GetPasteRefusedText(const CString& /*warning*/)
{
    return loadText("IDS_ZEL_CMD__Invalid_data__Operation_has_been_cance");
}

// Filling

void CombinationGrid::MakeItemNormal(int count, const CArray<ColumnIndex>& /*columns*/)
{
    CDataLcom().GetKeyList(m_kind, m_keys);
    for (Row row = 1; row <= count; ++row)
        SetRowKey(row, m_keys[row.place()]);
}

void CombinationGrid::MakeItemFiltered(int /*count*/, const CArray<Row>& rows, const CArray<ColumnIndex>& /*columns*/)
{
    CDataLcom data;
    for (const Row row : rows) {
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
    const Row firstOther = Row::at(static_cast<std::size_t>(oldEnd - m_keys.begin()));
    std::unordered_map<Key, Row> oldRows;
    for (Row row = firstOther; row.place() < m_keys.size(); ++row)
        oldRows.emplace(m_keys[row.place()], row);

    CArray<Row> order;  // rows behind those that stay, as they shall stand
    for (auto key = newEnd; key != keys.end(); ++key) {
        if (const auto found = oldRows.find(*key); found != oldRows.end()) {
            order.push_back(found->second);
            oldRows.erase(found);
            continue;
        }
        const Row row = Row::of(GetDataRowCount() + 1);
        InsertRecord(row);
        SetRowKey(row, *key);
        order.push_back(row);
    }
    const bool moves = !std::ranges::is_sorted(order) || (!oldRows.empty() && !order.empty());
    if (moves)
        MoveRecords(order, firstOther);
    for (std::size_t gone = 0; gone < oldRows.size(); ++gone)
        DeleteRecord(Row::of(GetDataRowCount()));
    m_keys = keys;
}

void CombinationGrid::Refresh(const std::unordered_set<Key>& changed)
{
    if (changed.size() > fewRows) {
        const CArray<Row> selected = GetSelectedRows();
        RebuildRows();
        SelectRows(selected);
        return;
    }
    CDataLcom data;
    for (const Key key : changed) {
        if (data.Get(m_kind, key) != 0 && RowOf(data) > 0)
            SetRowTexts(RowOf(data), TextsOf(data.currentRecord));
    }
}

void CombinationGrid::ShowCombination(Key key)
{
    CDataLcom data;
    if (data.Get(m_kind, key) != 0)
        MakeRowCurrent(RowOf(data));
}

// Dragging

/// Always refuses the move: the grid itself moves nothing, since the notice of the new sequence moves the rows.
bool CombinationGrid::OnSelDragRowsDrop(Row /*firstRow*/, Row /*lastRow*/, Row targetRow)
{
    constexpr RowMoveRefusals refusals{.editing = "IDS_ZEL_CMD__Can_t_Move_row_while_editing_",
                                       .nothingSelected = "IDS_ZEL_CMD__Error___No_selected_load_combination_",
                                       .noTarget = "IDS_ZEL_CMD__Error___Select_target_load_combination"};
    if (const auto move = droppedRows(*this, targetRow, refusals))
        CDataLcom().ChangeSequence(m_kind, move->keys, move->afterKey);
    return false;
}

/// The place in the sequence stays in front.
bool CombinationGrid::OnSelDragColsDrop(ColumnPlace firstColumn, ColumnPlace /*lastColumn*/, ColumnPlace targetColumn)
{
    return firstColumn > 1 && targetColumn > 1;
}

}  // namespace zel
