#include "load/load_case_under_main_grid.h"

#include "command/load_cases.h"
#include "command/messages.h"
#include "contract/load_types.h"
#include "contract/number_text.h"
#include "contract/tables/static_load_case_table.h"

#include <algorithm>

namespace {

// Indices of the columns.
constexpr zel::ColumnIndex noColumn = 0;
constexpr zel::ColumnIndex loadCaseColumn = 1;
constexpr zel::ColumnIndex directionColumn = 2;

std::vector<CString> namesOfEarthquakes()
{
    std::vector<T_STLD_D> records;
    CDataStld().GetDataList(records);
    std::vector<CString> names;
    for (const T_STLD_D& record : records) {
        if (record.type == zel::load_type::earthquake)
            names.push_back(record.name);
    }
    return names;
}

}  // namespace

void CLoadCaseUnderMainGrid::Initialize()
{
    RemoveColumns();
    AddColInfo(zel::loadText("IDS_ZEL_CMD__No"), static_cast<int>(zel::GridKind::integer), 0);
    AddColInfo(zel::loadText("IDS_ZEL_CMD__Load_Case"), static_cast<int>(zel::GridKind::text), 0);
    AddColInfo(zel::loadText("IDS_ZEL_TB__Direction"), static_cast<int>(zel::GridKind::text), 0);
    SetColDisabled(noColumn);
    SetColAlign(noColumn, zel::GridAlign::right);
    SetColChoices(loadCaseColumn, namesOfEarthquakes());
    SetColChoices(directionColumn, {GetDirTitle(zel::plusDirection), GetDirTitle(zel::minusDirection)});
    CTBCommon::Initialize();
}

CString CLoadCaseUnderMainGrid::GetDirTitle(int direction)
{
    return zel::loadText(direction == zel::minusDirection ? "IDS_ZEL_CMD_MINUS" : "IDS_ZEL_CMD_PLUS");
}

int CLoadCaseUnderMainGrid::GetDirByTitle(const CString& title)
{
    return title == GetDirTitle(zel::minusDirection) ? zel::minusDirection : zel::plusDirection;
}

T_LCUG_SEIS* CLoadCaseUnderMainGrid::GroupOf(Row row)
{
    return row >= 1 && row <= GetCountData() ? &m_groups[row.place()] : nullptr;
}

T_LCUG_SEIS* CLoadCaseUnderMainGrid::GroupOf(const CString& rowName)
{
    for (Row row = 1; row <= GetDataRowCount(); ++row) {
        if (GetRowHeaderText(row) == rowName)
            return GroupOf(row);
    }
    return nullptr;
}

void CLoadCaseUnderMainGrid::MakeItemNormal(int count, const CArray<ColumnIndex>& /*columns*/)
{
    for (Row row = 1; row <= count; ++row) {
        const T_LCUG_SEIS& group = m_groups[row.place()];
        SetRowTexts(row, {std::to_string(row.number()), CDataStld().GetNameByKey(group.loadCaseKey), GetDirTitle(group.direction)});
    }
}

void CLoadCaseUnderMainGrid::ShowRows()
{
    const zel::GridUpdate update(*this);
    RebuildRows();
}

// Texts and rows

void CLoadCaseUnderMainGrid::ReadTexts(const CArray<CString>& texts, T_LCUG_SEIS& group)
{
    group.loadCaseKey = CDataStld().GetKeyByName(texts[loadCaseColumn.place()]);
    group.direction = GetDirByTitle(texts[directionColumn.place()]);
}

zel::Row CLoadCaseUnderMainGrid::RowOf(const CArray<CString>& texts)
{
    return Row::of(zel::number::readInteger(texts[noColumn.place()]).value_or(0));
}

bool CLoadCaseUnderMainGrid::IsFree(const T_LCUG_SEIS& group, const CArray<T_LCUG_SEIS>& groups, Row exceptRow)
{
    for (std::size_t i = 0; i < groups.size(); ++i) {
        const bool same = groups[i].loadCaseKey == group.loadCaseKey && groups[i].direction == group.direction;
        if (same && Row::at(i) != exceptRow) {
            const CString name = CDataStld().GetNameByKey(group.loadCaseKey);
            SetWarningText(zel::formatText(zel::loadText("IDS_CMD_ERR_SAME_LC_SAME_DIR"), {name, GetDirTitle(group.direction)}));
            return false;
        }
    }
    return true;
}

bool CLoadCaseUnderMainGrid::IsComplete(const CArray<CString>& texts)
{
    const CString missing = zel::loadText("IDS_ZEL_CMD___has_not_been_entered_");
    return ValidateTexts({texts[loadCaseColumn.place()], texts[directionColumn.place()]}, {loadCaseColumn, directionColumn}, missing, Fields::passOver);
}

bool CLoadCaseUnderMainGrid::ValidateRecord(const CArray<CString>& texts, const CArray<ColumnIndex>& /*columns*/)
{
    if (!IsComplete(texts))
        return false;
    T_LCUG_SEIS group;
    ReadTexts(texts, group);
    return IsFree(group, m_groups, RowOf(texts));
}

bool CLoadCaseUnderMainGrid::AddToDB(Row row)
{
    T_LCUG_SEIS group;
    ReadTexts(GetRowTexts(row), group);
    m_groups.push_back(group);
    return true;
}

bool CLoadCaseUnderMainGrid::ModifyToDB(Row row)
{
    T_LCUG_SEIS* group = GroupOf(row);
    if (group == nullptr)
        return false;
    ReadTexts(GetRowTexts(row), *group);
    return true;
}

bool CLoadCaseUnderMainGrid::DeleteFromDB(const CArray<Row>& rows)
{
    if (m_onDelete)
        m_onDelete(dialog());
    CArray<Row> lastFirst = rows;
    std::ranges::sort(lastFirst, std::greater());
    for (const Row row : lastFirst) {
        if (GroupOf(row) != nullptr)
            m_groups.erase(m_groups.begin() + static_cast<std::ptrdiff_t>(row.place()));
    }
    ShowRows();
    ShowCurrentRow();  // under the same number there may stand another case now
    return true;
}

// Pasting: the key of a row is its number. Whether rows are alike shows when all of them stand together.

bool CLoadCaseUnderMainGrid::MakeKeyAndDataArray(const CArray<CString>& texts, const CArray<ColumnIndex>& /*columns*/, Keys& keys, Records& records)
{
    if (!IsComplete(texts))
        return false;
    const Row row = RowOf(texts);
    const T_LCUG_SEIS* stored = GroupOf(row);
    T_LCUG_SEIS group = stored != nullptr ? *stored : T_LCUG_SEIS();
    ReadTexts(texts, group);
    keys.push_back(static_cast<std::uint32_t>(row.number()));
    records.push_back(group);
    return true;
}

bool CLoadCaseUnderMainGrid::Take(const CArray<T_LCUG_SEIS>& groups)
{
    for (std::size_t i = 0; i < groups.size(); ++i) {
        if (!IsFree(groups[i], groups, Row::at(i)))
            return false;
    }
    m_groups = groups;
    ShowRows();
    return true;
}

bool CLoadCaseUnderMainGrid::AddToDB(const Keys& /*keys*/, const Records& records)
{
    CArray<T_LCUG_SEIS> groups = m_groups;
    groups.insert(groups.end(), records.begin(), records.end());
    return Take(groups);
}

bool CLoadCaseUnderMainGrid::ModifyToDB(const Keys& oldKeys, const Keys& /*keys*/, const Records& records)
{
    CArray<T_LCUG_SEIS> groups = m_groups;
    for (std::size_t i = 0; i < oldKeys.size(); ++i)
        groups[oldKeys[i] - 1] = records[i];
    return Take(groups);
}
