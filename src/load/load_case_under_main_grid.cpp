#include "load/load_case_under_main_grid.h"

#include "command/load_cases.h"
#include "command/messages.h"
#include "contract/load_types.h"
#include "contract/number_text.h"
#include "contract/tables/static_load_case_table.h"

#include <algorithm>

namespace {

// Indices of the columns.
constexpr int noColumn = 0;
constexpr int loadCaseColumn = 1;
constexpr int directionColumn = 2;

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

T_LCUG_SEIS* CLoadCaseUnderMainGrid::GroupOf(int row)
{
    return row >= 1 && row <= GetCountData() ? &m_groups[static_cast<std::size_t>(row - 1)] : nullptr;
}

T_LCUG_SEIS* CLoadCaseUnderMainGrid::GroupOf(const CString& rowName)
{
    for (int row = 1; row <= GetDataRowCount(); ++row) {
        if (GetRowHeaderText(row) == rowName)
            return GroupOf(row);
    }
    return nullptr;
}

void CLoadCaseUnderMainGrid::MakeItemNormal(int count, const CArray<int>& /*columns*/)
{
    for (int row = 1; row <= count; ++row) {
        const T_LCUG_SEIS& group = m_groups[static_cast<std::size_t>(row - 1)];
        SetRowTexts(row, {std::to_string(row), CDataStld().GetNameByKey(group.loadCaseKey), GetDirTitle(group.direction)});
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
    group.loadCaseKey = CDataStld().GetKeyByName(texts[loadCaseColumn]);
    group.direction = GetDirByTitle(texts[directionColumn]);
}

bool CLoadCaseUnderMainGrid::IsFree(const T_LCUG_SEIS& group, const CArray<T_LCUG_SEIS>& groups, int exceptRow)
{
    for (std::size_t i = 0; i < groups.size(); ++i) {
        const bool same = groups[i].loadCaseKey == group.loadCaseKey && groups[i].direction == group.direction;
        if (same && static_cast<int>(i) + 1 != exceptRow) {
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
    return ValidateTexts({texts[loadCaseColumn], texts[directionColumn]}, {loadCaseColumn, directionColumn}, missing, Fields::passOver);
}

bool CLoadCaseUnderMainGrid::ValidateRecord(const CArray<CString>& texts, const CArray<int>& /*columns*/)
{
    if (!IsComplete(texts))
        return false;
    T_LCUG_SEIS group;
    ReadTexts(texts, group);
    return IsFree(group, m_groups, zel::number::readInteger(texts[noColumn]).value_or(0));
}

bool CLoadCaseUnderMainGrid::AddToDB(int row)
{
    T_LCUG_SEIS group;
    ReadTexts(GetRowTexts(row), group);
    m_groups.push_back(group);
    return true;
}

bool CLoadCaseUnderMainGrid::ModifyToDB(int row)
{
    T_LCUG_SEIS* group = GroupOf(row);
    if (group == nullptr)
        return false;
    ReadTexts(GetRowTexts(row), *group);
    return true;
}

bool CLoadCaseUnderMainGrid::DeleteFromDB(const CArray<int>& rows)
{
    if (m_onDelete)
        m_onDelete(dialog());
    CArray<int> lastFirst = rows;
    std::ranges::sort(lastFirst, std::greater());
    for (const int row : lastFirst) {
        if (GroupOf(row) != nullptr)
            m_groups.erase(m_groups.begin() + (row - 1));
    }
    ShowRows();
    ShowCurrentRow();  // under the same number there may stand another case now
    return true;
}

// Pasting: the key of a row is its number. Whether rows are alike shows when all of them stand together.

bool CLoadCaseUnderMainGrid::MakeKeyAndDataArray(const CArray<CString>& texts, const CArray<int>& /*columns*/, zel::GridValues& keys, zel::GridValues& records)
{
    if (!IsComplete(texts))
        return false;
    const int row = zel::number::readInteger(texts[noColumn]).value_or(0);
    const T_LCUG_SEIS* stored = GroupOf(row);
    T_LCUG_SEIS group = stored != nullptr ? *stored : T_LCUG_SEIS();
    ReadTexts(texts, group);
    keys.emplace_back(row);
    records.emplace_back(group);
    return true;
}

bool CLoadCaseUnderMainGrid::Take(const CArray<T_LCUG_SEIS>& groups)
{
    for (std::size_t i = 0; i < groups.size(); ++i) {
        if (!IsFree(groups[i], groups, static_cast<int>(i) + 1))
            return false;
    }
    m_groups = groups;
    ShowRows();
    return true;
}

bool CLoadCaseUnderMainGrid::AddToDB(const zel::GridValues& /*keys*/, const zel::GridValues& records)
{
    CArray<T_LCUG_SEIS> groups = m_groups;
    for (const std::any& record : records)
        groups.push_back(std::any_cast<const T_LCUG_SEIS&>(record));
    return Take(groups);
}

bool CLoadCaseUnderMainGrid::ModifyToDB(const zel::GridValues& oldKeys, const zel::GridValues& /*keys*/, const zel::GridValues& records)
{
    CArray<T_LCUG_SEIS> groups = m_groups;
    for (std::size_t i = 0; i < oldKeys.size(); ++i) {
        const int row = std::any_cast<int>(oldKeys[i]);
        groups[static_cast<std::size_t>(row - 1)] = std::any_cast<const T_LCUG_SEIS&>(records[i]);
    }
    return Take(groups);
}
