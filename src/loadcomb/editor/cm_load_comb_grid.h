#pragma once

#include "loadcomb/editor/combination_grid.h"

#include <cstdint>
#include <unordered_map>

/// A column of the spreadsheet that holds the factors of one load case.
struct SLcomColItem {
    CString title;
    std::int32_t type = 0;  ///< what `key` refers to, as in an item: 1 static load case
    zel::Key key = 0;

    bool operator==(const SLcomColItem&) const = default;
};

/// The spreadsheet of the combinations: a row each, and a column for each static load case, in their sequence. A cell shows four
/// decimals of a factor and holds all of it; an empty one, and one of 0, is no item.
class CCMLoadCombGrid final : public zel::CombinationGrid {
public:
    using CombinationGrid::CombinationGrid;

    /// Follows changes of the load cases. New names come into the headers; if cases came, went or changed places, an open edit is
    /// ended and the columns are made anew.
    void FollowLoadCases();

    bool ValidateField(const CString& text, ColumnIndex column) override;

private:
    static constexpr ColumnIndex firstCase = 3;

    [[nodiscard]] Columns columns() const override { return {.name = 2, .active = 1, .description = behindCases()}; }
    void AddColumns() override;
    void ShowItems(const T_LCOM_D& record, CArray<CString>& texts) const override;
    bool ReadItems(const CArray<CString>& texts, T_LCOM_D& record) override;

    [[nodiscard]] ColumnIndex behindCases() const { return firstCase + static_cast<int>(m_cases.size()); }
    [[nodiscard]] bool IsCase(ColumnIndex index) const { return index >= firstCase && index < behindCases(); }
    /// The load case of a column that has one.
    [[nodiscard]] const SLcomColItem& CaseAt(ColumnIndex index) const { return m_cases[static_cast<std::size_t>(index - firstCase)]; }
    /// Index of the column of an item; -1 if it has none.
    [[nodiscard]] ColumnIndex ColumnOf(const T_LCOM_ITEM& item) const;
    void RemakeColumns();

    std::vector<SLcomColItem> m_cases;                     ///< in the order of their columns
    std::unordered_map<zel::Key, ColumnIndex> m_columnOf;  ///< index of the column of each load case
};
