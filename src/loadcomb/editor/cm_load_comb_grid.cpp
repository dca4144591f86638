#include "loadcomb/editor/cm_load_comb_grid.h"

#include "command/messages.h"
#include "contract/number_text.h"
#include "contract/tables/static_load_case_table.h"

#include <algorithm>

namespace {

constexpr std::int32_t staticCase = 1;

std::vector<SLcomColItem> readCases()
{
    std::vector<zel::Key> keys;
    std::vector<T_STLD_D> records;
    CDataStld().GetList(keys, records);
    std::vector<SLcomColItem> cases;
    for (std::size_t i = 0; i < keys.size(); ++i)
        cases.push_back({zel::formatText(zel::loadText("IDS_ZEL_CMD___s_ST_"), {records[i].name}), staticCase, keys[i]});
    return cases;
}

CString factorText(double factor)
{
    return factor == 0.0 ? CString() : zel::numberText("%.18f", factor);
}

/// The factor of a load case, added up where a combination holds it several times.
double factorOf(const T_LCOM_D& record, zel::Key key)
{
    double factor = 0.0;
    for (const T_LCOM_ITEM& item : record.items)
        factor += item.type == staticCase && item.key == key ? item.factor : 0.0;
    return factor;
}

}  // namespace

void CCMLoadCombGrid::AddColumns()
{
    constexpr int caseWidth = 70;
    constexpr int places = 4;
    m_cases = readCases();
    m_columnOf.clear();
    AddNo();
    AddActive();
    AddName();
    for (const SLcomColItem& each : m_cases) {
        const ColumnIndex index = AddColInfo(each.title, static_cast<int>(zel::GridKind::real), 0);
        SetColWidth(index, caseWidth);
        SetColPlaces(index, places);
        m_columnOf[each.key] = index;
    }
    AddDescription();
}

zel::ColumnIndex CCMLoadCombGrid::ColumnOf(const T_LCOM_ITEM& item) const
{
    const auto found = item.type == staticCase ? m_columnOf.find(item.key) : m_columnOf.end();
    return found == m_columnOf.end() ? ColumnIndex{-1} : found->second;
}

// Cells and items

void CCMLoadCombGrid::ShowItems(const T_LCOM_D& record, CArray<CString>& texts) const
{
    for (const T_LCOM_ITEM& item : record.items) {
        if (const ColumnIndex column = ColumnOf(item); column >= 0)
            texts[column.place()] = factorText(factorOf(record, item.key));
    }
}

/// Cells that have not been changed keep the factor that is stored, to its last digit; items without a column stay. If no factor
/// has been changed, the items stay as they are.
bool CCMLoadCombGrid::ReadItems(const CArray<CString>& texts, T_LCOM_D& record)
{
    std::vector<T_LCOM_ITEM> items;
    bool changed = false;
    for (ColumnIndex column = firstCase; column < behindCases(); ++column) {
        const SLcomColItem& each = CaseAt(column);
        const CString text{zel::number::trim(texts[column.place()])};
        const double stored = factorOf(record, each.key);
        const bool same = text == factorText(stored);
        const double factor = same ? stored : RealOf(text);
        changed = changed || !same;
        if (factor != 0.0 && zel::isLoadCase(each.key))
            items.push_back({each.type, each.key, factor});
    }
    if (changed) {
        std::ranges::copy_if(record.items, std::back_inserter(items), [this](const T_LCOM_ITEM& item) { return ColumnOf(item) < 0; });
        record.items = std::move(items);
    }
    return zel::itemsFit(record.items);
}

bool CCMLoadCombGrid::ValidateField(const CString& text, ColumnIndex column)
{
    if (!IsCase(column))
        return true;
    return ValidateNumber(text,
                          {zel::loadText("IDS_ZEL_CMD__Invalid_formula_"), zel::loadText("IDS_ZEL_CMD__Character_exists_in_double_value"),
                           zel::loadText("IDS_ZEL_CMD__Value_is_too_big_")});
}

// Load cases

void CCMLoadCombGrid::FollowLoadCases()
{
    const std::vector<SLcomColItem> cases = readCases();
    const auto sameCase = [](const SLcomColItem& left, const SLcomColItem& right) { return left.type == right.type && left.key == right.key; };
    if (!std::ranges::equal(cases, m_cases, sameCase)) {
        OnTerminate(2);
        RemakeColumns();
        return;
    }
    for (std::size_t place = 0; place < cases.size(); ++place) {
        if (cases[place].title != m_cases[place].title)
            SetColHeader(firstCase + static_cast<int>(place), cases[place].title);
    }
    m_cases = cases;
}

/// The current cell stays in its row and, unless that has gone, in its column.
void CCMLoadCombGrid::RemakeColumns()
{
    const zel::GridPaintLock lock(*this);
    Row row;
    ColumnPlace column;
    const bool hasCurrent = GetCurrentCell(row, column) != 0;
    const ColumnIndex index = GetColIndex(column);
    const bool onDescription = index == columns().description;
    const zel::Key caseKey = IsCase(index) ? CaseAt(index).key : 0;
    const CArray<Row> selected = GetSelectedRows();

    Initialize();
    SelectRows(selected);
    if (!hasCurrent)
        return;
    if (onDescription)
        column = columnOf(columns().description);
    else if (const auto found = m_columnOf.find(caseKey); found != m_columnOf.end())
        column = columnOf(found->second);
    else if (!IsCase(index))
        column = columnOf(index);
    if (SetCurrentCell(row, column) == 0 && SetRightValidCell(row, column) == 0)
        SetLeftValidCell(row, column);
}
