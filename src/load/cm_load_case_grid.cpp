#include "load/cm_load_case_grid.h"

#include "command/messages.h"
#include "command/row_move.h"
#include "command/view_buffer.h"
#include "contract/document.h"
#include "contract/load_db.h"
#include "contract/number_text.h"

#include <algorithm>

namespace {

// Indices of the columns.
constexpr zel::ColumnIndex keyColumn = 0;
constexpr zel::ColumnIndex noColumn = 1;
constexpr zel::ColumnIndex nameColumn = 2;
constexpr zel::ColumnIndex typeColumn = 3;
constexpr zel::ColumnIndex factorColumn = 4;
constexpr zel::ColumnIndex descriptionColumn = 5;

/// Texts with which a new row begins, one for each column.
const CArray<CString> defaultTexts(6);

struct ColumnStyle {
    std::string_view title;  ///< message key, or the title itself
    zel::GridKind kind;
    std::size_t unit;  ///< entry of the record's unit types
    int width;
    int places;  ///< decimals of a number; -1 for a text
};

constexpr ColumnStyle columnStyles[] = {
    {"Key", zel::GridKind::integer, 0, 0, 0},
    {"IDS_ZEL_CMD__No", zel::GridKind::integer, 1, 40, 0},
    {"IDS_ZEL_CMD__Name", zel::GridKind::text, 0, 80, -1},
    {"IDS_ZEL_CMD__Type", zel::GridKind::text, 2, 135, -1},
    {"IDS_ZEL_CMD__Factor", zel::GridKind::real, 4, 60, 2},
    {"IDS_ZEL_CMD__Description", zel::GridKind::text, 3, 178, -1},
};

CString titleOf(const ColumnStyle& style)
{
    return style.title.starts_with("IDS_") ? zel::loadText(style.title.data()) : CString(style.title);
}

const CLoadDB& loadTypes()
{
    return *CDBDoc::GetDocPoint()->GetLoadDB();
}

}  // namespace

void CCMLoadCaseGrid::Initialize()
{
    RemoveColumns();
    for (const ColumnStyle& style : columnStyles) {
        const ColumnIndex index = AddColInfo(titleOf(style), static_cast<int>(style.kind), T_STLD_D::unit[style.unit]);
        SetColWidth(index, style.width);
        SetColAlign(index, style.places < 0 ? zel::GridAlign::left : zel::GridAlign::right);
        if (style.places >= 0)
            SetColPlaces(index, style.places);
    }
    SetColHidden(keyColumn);
    SetColResizable(keyColumn, false);
    SetColDisabled(keyColumn);
    SetColDisabled(noColumn);
    SetColFrozen(noColumn);
    SetSortColumns({noColumn, keyColumn});
    SetRowDrag(true);
    SetModeDisplayOnly(1);
    CTBCommon::Initialize();
}

// Texts and records

CArray<CString> CCMLoadCaseGrid::TextsOf(zel::Key key, const T_STLD_D& record)
{
    return {std::to_string(key), std::to_string(record.no), record.name, loadTypes().GetLoadTypeName(record.type), RealText(record.selfWeightFactor),
            record.description};
}

bool CCMLoadCaseGrid::MakeKeyAndData(const CArray<CString>& texts, const CArray<ColumnIndex>& columns, zel::Key& key, T_STLD_D& record)
{
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (!ValidateField(texts[i], columns[i]))
            return false;
    }
    if (!ValidateRecord(texts, columns))
        return false;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const CString text = ConvertFormulaToValue(texts[i]);
        switch (columns[i].number()) {
        case keyColumn.number():
            key = static_cast<zel::Key>(std::max(0, zel::number::readInteger(text).value_or(0)));
            break;
        case noColumn.number():
            record.no = zel::number::readInteger(text).value_or(0);
            break;
        case nameColumn.number():
            record.name = text;
            break;
        case typeColumn.number():
            record.type = loadTypes().GetLoadType(text);
            break;
        case factorColumn.number():
            record.selfWeightFactor = RealOf(text);
            break;
        case descriptionColumn.number():
            record.description = text;
            break;
        default:
            break;
        }
    }
    return true;
}

bool CCMLoadCaseGrid::MakeKeyAndDataArray(const CArray<CString>& texts, const CArray<ColumnIndex>& columns, Keys& keys, Records& records)
{
    zel::Key key = 0;
    T_STLD_D record;
    if (!MakeKeyAndData(texts, columns, key, record))
        return false;
    keys.emplace_back(key);
    records.emplace_back(record);
    return true;
}

bool CCMLoadCaseGrid::ValidateField(const CString& /*text*/, ColumnIndex column)
{
    if (column < GetColCount())
        return true;
    SetWarningText(zel::loadText("IDS_ZEL_CMD___CCMLoadCaseGrid__ValidateField__Error"));
    return false;
}

bool CCMLoadCaseGrid::ValidateRecord(const CArray<CString>& texts, const CArray<ColumnIndex>& columns)
{
    CArray<CString> checkedTexts;
    CArray<ColumnIndex> checked;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (columns[i] == nameColumn || columns[i] == typeColumn || columns[i] == factorColumn) {
            checked.push_back(columns[i]);
            checkedTexts.push_back(texts[i]);
        }
    }
    return ValidateTexts(checkedTexts, checked, zel::loadText("IDS_ZEL_CMD___has_not_been_entered_"), Fields::passOver);
}

// The table

CString CCMLoadCaseGrid::GetNewKey()
{
    return std::to_string(CDataStld().GetNewKey());
}

const CArray<CString>& CCMLoadCaseGrid::GetDefValueArray()
{
    return defaultTexts;
}

bool CCMLoadCaseGrid::AddToDB(Row row)
{
    zel::Key key = 0;
    T_STLD_D record;
    return MakeKeyAndData(GetRowTexts(row), GetAllColumns(), key, record) && CDataStld().Add(record) != 0;
}

bool CCMLoadCaseGrid::AddToDB(const Keys& /*keys*/, const Records& records)
{
    return CDataStld().Add(records) != 0;
}

bool CCMLoadCaseGrid::ModifyToDB(Row row)
{
    CDataStld data;
    const CString oldName = TextBeforeEdit(row, nameColumn);
    if (data.Get(oldName) == 0)
        return false;
    const zel::Key oldKey = data.currentKey;
    zel::Key key = 0;
    if (!MakeKeyAndData(GetRowTexts(row), GetAllColumns(), key, data.currentRecord))
        return false;
    data.currentKey = key != 0 ? key : oldKey;
    return data.Modify(oldName) != 0;
}

bool CCMLoadCaseGrid::ModifyToDB(const Keys& oldKeys, const Keys& /*keys*/, const Records& records)
{
    CDataStld data;
    std::vector<CString> oldNames;
    std::vector<T_STLD_D> changed;
    for (std::size_t i = 0; i < oldKeys.size(); ++i) {
        T_STLD_D stored;
        if (data.Get(oldKeys[i], stored) == 0)
            return false;
        oldNames.push_back(stored.name);
        const T_STLD_D& texts = records[i];
        stored.name = texts.name;
        stored.type = texts.type;
        stored.selfWeightFactor = texts.selfWeightFactor;
        stored.description = texts.description;
        changed.push_back(stored);
    }
    return data.Modify(oldNames, changed) != 0;
}

bool CCMLoadCaseGrid::DeleteFromDB(Row row)
{
    return CDataStld().Del(TextAt(row, nameColumn)) != 0;
}

bool CCMLoadCaseGrid::DeleteFromDB(const CArray<Row>& rows)
{
    if (rows.empty())
        return true;
    std::vector<CString> names;
    for (const Row row : rows)
        names.push_back(TextBeforeEdit(row, nameColumn));
    return CDataStld().Del(names) != 0;
}

int CCMLoadCaseGrid::GetCountData()
{
    return CDataStld().GetCount();
}

void CCMLoadCaseGrid::MakeItemNormal(int count, const CArray<ColumnIndex>& /*columns*/)
{
    std::vector<zel::Key> keys;
    std::vector<T_STLD_D> records;
    CDataStld().GetList(keys, records);
    for (Row row = 1; row <= count; ++row) {
        SetRowTexts(row, TextsOf(keys[row.place()], records[row.place()]));
        SetRowKey(row, keys[row.place()]);
    }
}

void CCMLoadCaseGrid::MakeItemFiltered(int /*count*/, const CArray<Row>& rows, const CArray<ColumnIndex>& /*columns*/)
{
    CDataStld data;
    for (const Row row : rows) {
        if (data.Get(GetRowKey(row)) != 0)
            SetRowTexts(row, TextsOf(data.currentKey, data.currentRecord));
    }
}

void CCMLoadCaseGrid::MakeItemEditingRecord(Row row, const CArray<CString>& texts)
{
    CDataStld data;
    data.Initialize();
    if (!MakeKeyAndData(texts, GetAllColumns(), data.currentKey, data.currentRecord))
        return;
    data.ConvertUnitPrev();
    SetRowTexts(row, TextsOf(data.currentKey, data.currentRecord));
}

// Following

void CCMLoadCaseGrid::InsertRow(const CDataStld& data)
{
    Row row;
    FindRecordByKey(SortTextsFor(data), row);
    InsertRecord(row);
    SetRowTexts(row, TextsOf(data.currentKey, data.currentRecord));
    SetRowKey(row, data.currentKey);
}

void CCMLoadCaseGrid::DeleteRow(const CDataStld& data)
{
    Row row;
    if (FindRecordByKey(SortTextsFor(data), row) != 0)
        DeleteRecord(row);
}

void CCMLoadCaseGrid::UpdateBuffer(const CViewBuff& buffer)
{
    const zel::GridUpdate update(*this);
    bool changed = false;
    zel::readChanges(buffer,
                     zel::TableWatch<CDataStld>{
                         .added =
                             [&](const CDataStld& now) {
                                 InsertRow(now);
                                 changed = true;
                             },
                         .deleted =
                             [&](const CDataStld& before) {
                                 DeleteRow(before);
                                 changed = true;
                             },
                         .modified =
                             [&](const CDataStld& now, const CDataStld& before) {
                                 DeleteRow(before);
                                 InsertRow(now);
                                 changed = true;
                             },
                     });
    if (changed)
        ResetSelection();
}

void CCMLoadCaseGrid::ShowLoadCase(zel::Key key, const T_STLD_D& record)
{
    Row row;
    if (FindRecordByKey(SortTextsOf(TextsOf(key, record)), row) != 0 && MakeRowCurrent(row) != 0)
        ShowCurrentRow();
}

// Dragging

/// Always refuses the move: the grid itself moves nothing, since the notice of the new sequence rebuilds the rows.
bool CCMLoadCaseGrid::OnSelDragRowsDrop(Row /*firstRow*/, Row /*lastRow*/, Row targetRow)
{
    constexpr zel::RowMoveRefusals refusals{.editing = "IDS_ZEL_CMD__Error___Can_t_move_row_while_editing_",
                                            .nothingSelected = "IDS_ZEL_CMD__Error___No_selected_static_load_case_",
                                            .noTarget = "IDS_ZEL_CMD__Error___Select_target_load_case_which_"};
    if (const auto move = zel::droppedRows(*this, targetRow, refusals))
        CDataStld().ChangeSequence(move->keys, move->afterKey);
    return false;
}

/// The key and the number stay in front.
bool CCMLoadCaseGrid::OnSelDragColsDrop(ColumnPlace firstColumn, ColumnPlace /*lastColumn*/, ColumnPlace targetColumn)
{
    constexpr ColumnPlace lastFixedColumn = 2;
    return firstColumn > lastFixedColumn && targetColumn > lastFixedColumn;
}
