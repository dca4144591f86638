#include "loadcomb/editor/cm_load_comb_sub_grid.h"

#include "command/load_cases.h"
#include "command/messages.h"
#include "contract/load_types.h"
#include "contract/number_text.h"
#include "contract/tables/static_load_case_table.h"
#include "loadcomb/editor/combination_grid.h"

#include <algorithm>

namespace {

constexpr std::int32_t staticCase = 1;

CString trimmed(const CString& text)
{
    return CString{zel::number::trim(text)};
}

/// The load case that a line of a dropped text names; 0 if it names none of the model.
zel::Key droppedCase(const CArray<CString>& fields)
{
    constexpr std::size_t type = 0;
    constexpr std::size_t nameField = 2;
    if (fields.size() <= nameField || zel::number::readInteger(fields[type]) != staticCase)
        return 0;
    CString name = fields[nameField];
    if (name.ends_with(zel::staticCaseMark))
        name.resize(name.size() - zel::staticCaseMark.size());
    return zel::loadCaseKey(name);
}

}  // namespace

void CCMLoadCombSubGrid::Initialize()
{
    RemoveColumns();
    AddColInfo(zel::loadText("IDS_ZEL_CMD__LoadCase"), static_cast<int>(zel::GridKind::text), 0);
    AddColInfo(zel::loadText("IDS_ZEL_CMD__Factor"), static_cast<int>(zel::GridKind::real), 0);
    AddColInfo({}, static_cast<int>(zel::GridKind::integer), 0);
    SetColWidth(caseColumn, 100);
    SetColHidden(placeColumn);
    SetColDisabled(placeColumn);
    SetAppendRow(HasCombination());
    OfferCases(ReadCases());
    CTBCommon::Initialize();
}

std::vector<CCMLoadCombSubGrid::Case> CCMLoadCombSubGrid::ReadCases()
{
    std::vector<zel::Key> keys;
    std::vector<T_STLD_D> records;
    CDataStld().GetList(keys, records);
    std::vector<Case> cases;
    for (std::size_t i = 0; i < keys.size(); ++i)
        cases.push_back({keys[i], zel::staticCaseText(records[i].name)});
    return cases;
}

void CCMLoadCombSubGrid::OfferCases(std::vector<Case>&& cases)
{
    m_cases = std::move(cases);
    std::vector<CString> choices;
    for (const Case& each : m_cases)
        choices.push_back(each.text);
    choices.push_back(zel::loadText("IDS_ZEL_CMD__None"));
    SetColChoices(caseColumn, choices);
}

void CCMLoadCombSubGrid::FollowLoadCases()
{
    std::vector<Case> cases = ReadCases();
    if (cases == m_cases)
        return;
    OnTerminate(2);
    OfferCases(std::move(cases));
    ShowItems(m_key);
}

void CCMLoadCombSubGrid::ShowItems(zel::Key key)
{
    if (IsEdit() && key != m_key)
        OnTerminate(2);
    const zel::GridUpdate update(*this);
    m_key = key;
    SetAppendRow(HasCombination());
    RebuildRows();
}

void CCMLoadCombSubGrid::Follow(const std::unordered_set<zel::Key>& changed)
{
    if (changed.contains(m_key))
        ShowItems(m_key);
}

// Texts and items

zel::Key CCMLoadCombSubGrid::CaseOf(const CString& text) const
{
    const auto found = std::ranges::find(m_cases, text, &Case::text);
    return found == m_cases.end() ? 0 : found->key;
}

zel::RowItem CCMLoadCombSubGrid::ItemOf(const CArray<CString>& texts, const T_LCOM_ITEM* stored) const
{
    T_LCOM_ITEM item{staticCase, CaseOf(texts[caseColumn.place()]), RealOf(trimmed(texts[factorColumn.place()]))};
    if (stored != nullptr && texts[factorColumn.place()] == RealText(stored->factor))
        item.factor = stored->factor;
    return item.factor != 0.0 && zel::isLoadCase(item.key) ? zel::RowItem(item) : zel::RowItem();
}

void CCMLoadCombSubGrid::MakeItemNormal(int count, const CArray<ColumnIndex>& /*columns*/)
{
    const std::vector<T_LCOM_ITEM> items = Items();
    for (Row row = 1; row <= count; ++row) {
        const T_LCOM_ITEM& item = items[row.place()];
        const auto found = item.type == staticCase ? std::ranges::find(m_cases, item.key, &Case::key) : m_cases.end();
        const CString text = found == m_cases.end() ? zel::loadText("IDS_ZEL_CMD__None") : found->text;
        SetRowTexts(row, {text, RealText(item.factor), std::to_string(row.number())});
    }
}

bool CCMLoadCombSubGrid::ValidateField(const CString& text, ColumnIndex column)
{
    if (column != factorColumn)
        return true;
    return ValidateNumber(
        text, {zel::loadText("IDS_ZEL_CMD__Invalid_Formula_"), zel::loadText("IDS_ZEL_CMD__Input_Number_"), zel::loadText("IDS_ZEL_CMD__Out_of_range_")});
}

void CCMLoadCombSubGrid::WarnOfMissing(const char* what)
{
    SetWarningText(zel::loadText(what) + zel::loadText("IDS_ZEL_CMD___has_not_been_entered_"));
}

bool CCMLoadCombSubGrid::ValidateFactor(const CString& text)
{
    if (trimmed(text).empty()) {
        WarnOfMissing("IDS_ZEL_CMD__Factor");
        return false;
    }
    return ValidateField(text, factorColumn);
}

/// A row without load case and without factor passes: it is no item.
bool CCMLoadCombSubGrid::ValidateRecord(const CArray<CString>& texts, const CArray<ColumnIndex>& /*columns*/)
{
    const bool hasCase = CaseOf(texts[caseColumn.place()]) != 0;
    const bool hasFactor = !trimmed(texts[factorColumn.place()]).empty();
    if (hasCase == hasFactor)
        return true;
    WarnOfMissing(hasCase ? "IDS_ZEL_CMD__Factor" : "IDS_ZEL_CMD__Load_Case");
    return false;
}

// Writing

std::vector<T_LCOM_ITEM> CCMLoadCombSubGrid::Items() const
{
    T_LCOM_D record;
    if (m_key != 0)
        CDataLcom().Get(m_kind, m_key, record);
    return record.items;
}

bool CCMLoadCombSubGrid::Write(const std::vector<T_LCOM_ITEM>& items)
{
    CDataLcom data;
    if (data.Get(m_kind, m_key) == 0)
        return false;
    if (items.size() > data.currentRecord.items.size() && !zel::itemsFit(items))
        return false;
    data.currentRecord.items = items;
    return data.Modify(m_kind, {m_key}, {data.currentRecord}) != 0;
}

bool CCMLoadCombSubGrid::AddToDB(Row row)
{
    const zel::RowItem item = ItemOf(GetRowTexts(row), nullptr);
    if (!item) {
        RebuildRows();  // nothing to add: the row for a new item is empty again
        return true;
    }
    std::vector<T_LCOM_ITEM> items = Items();
    items.push_back(*item);
    return Write(items);
}

bool CCMLoadCombSubGrid::ModifyToDB(Row row)
{
    std::vector<T_LCOM_ITEM> items = Items();
    if (row < 1 || row.place() >= items.size())
        return false;
    T_LCOM_ITEM& stored = items[row.place()];
    if (const zel::RowItem item = ItemOf(GetRowTexts(row), &stored))
        stored = *item;
    else
        items.erase(items.begin() + static_cast<std::ptrdiff_t>(row.place()));
    return Write(items);
}

bool CCMLoadCombSubGrid::DeleteFromDB(const CArray<Row>& rows)
{
    const std::vector<T_LCOM_ITEM> items = Items();
    std::vector<T_LCOM_ITEM> left;
    for (std::size_t place = 0; place < items.size(); ++place) {
        if (std::ranges::find(rows, Row::at(place)) == rows.end())
            left.push_back(items[place]);
    }
    return rows.empty() || Write(left);
}

// Pasting. The key of a row is the number of its item.

bool CCMLoadCombSubGrid::MakeKeyAndDataArray(const CArray<CString>& texts, const CArray<ColumnIndex>& columns, Keys& keys, Records& records)
{
    if (!ValidateField(texts[factorColumn.place()], factorColumn) || !ValidateRecord(texts, columns))
        return false;
    const std::vector<T_LCOM_ITEM> items = Items();
    const auto place = static_cast<std::uint32_t>(std::max(0, zel::number::readInteger(texts[placeColumn.place()]).value_or(0)));
    const bool isStored = place >= 1 && place <= items.size();
    keys.push_back(place);
    records.push_back(ItemOf(texts, isStored ? &items[place - 1] : nullptr));
    return true;
}

void CCMLoadCombSubGrid::DeleteKeyAndDataArray(Keys& keys, Records& records)
{
    CTBRecordGrid::DeleteKeyAndDataArray(keys, records);
    m_beforePaste.reset();
}

bool CCMLoadCombSubGrid::ModifyToDB(const Keys& oldKeys, const Keys& /*keys*/, const Records& records)
{
    const std::vector<T_LCOM_ITEM> items = Items();
    if (!m_beforePaste)
        m_beforePaste = items;
    Records rows(items.begin(), items.end());
    for (std::size_t i = 0; i < oldKeys.size(); ++i) {
        if (oldKeys[i] < 1 || oldKeys[i] > rows.size())
            return false;
        rows[oldKeys[i] - 1] = records[i];
    }
    std::vector<T_LCOM_ITEM> left;
    for (const zel::RowItem& row : rows) {
        if (row)
            left.push_back(*row);
    }
    return Write(left);
}

bool CCMLoadCombSubGrid::AddToDB(const Keys& /*keys*/, const Records& records)
{
    std::vector<T_LCOM_ITEM> items = Items();
    for (const zel::RowItem& item : records) {
        if (item)
            items.push_back(*item);
    }
    if (Write(items))
        return true;
    if (m_beforePaste)
        Write(*m_beforePaste);  // rows that were pasted over may have gone, so that the rest no longer stands at its number
    return false;
}

CString CCMLoadCombSubGrid::GetPasteRefusedText(const CString& /*warning*/)
{
    return zel::loadText("IDS_ZEL_CMD__Invalid_data__Operation_has_been_cance");
}

// Dropping and leaving

bool CCMLoadCombSubGrid::OnDropText(Row /*row*/, ColumnPlace /*column*/, const CString& text)
{
    constexpr std::size_t factorField = 3;
    const zel::GridBlock lines = zel::readGridBlock(text);
    std::vector<T_LCOM_ITEM> items = Items();
    for (const CArray<CString>& fields : lines) {
        const zel::Key key = droppedCase(fields);
        const CString factor = fields.size() > factorField ? fields[factorField] : CString();
        if (key == 0 || !ValidateFactor(factor))
            return false;
        if (const double value = RealOf(trimmed(factor)); value != 0.0)
            items.push_back({staticCase, key, value});
    }
    return !lines.empty() && Write(items);
}

void CCMLoadCombSubGrid::lostFocus()
{
    m_refused = IsEdit() && OnTerminate(1) == 0;
}
