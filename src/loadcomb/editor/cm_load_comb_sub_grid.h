#pragma once

#include "contract/forms/grid_records.h"
#include "contract/tables/load_combination_table.h"

#include <optional>
#include <unordered_set>
#include <vector>

namespace zel {

/// An item as a row holds it; none where the row is empty or its factor is 0.
using RowItem = std::optional<T_LCOM_ITEM>;

}  // namespace zel

/// The items of one combination in the normal form, in their order: a load case and its factor. A row that is left writes the
/// combination.
class CCMLoadCombSubGrid final : public CTBRecordGrid<zel::RowItem> {
public:
    /// @param kind  the design kind, which is the editor's
    CCMLoadCombSubGrid(const zel::Place& place, std::string_view id, const int& kind) : CTBRecordGrid(place, id), m_kind(kind) {}

    void Initialize() override;
    /// Shows the items of a combination, as they are now; key 0: of none. A row under edit of another one is ended first.
    void ShowItems(zel::Key key);
    /// Follows a change of combinations: those with the keys `changed` may have other items now.
    void Follow(const std::unordered_set<zel::Key>& changed);
    [[nodiscard]] bool HasCombination() const { return m_key != 0; }
    /// Follows changes of the load cases. If any came, went or has another name, a row under edit is ended first.
    void FollowLoadCases();
    /// Whether the user was refused when leaving the grid: its row waits for a correction.
    [[nodiscard]] bool IsRefused() const { return m_refused && IsEdit(); }

    bool AddToDB(Row row) override;
    bool AddToDB(const Keys& keys, const Records& records) override;
    bool DeleteFromDB(Row row) override { return DeleteFromDB(CArray<Row>{row}); }
    bool DeleteFromDB(const CArray<Row>& rows) override;
    bool ModifyToDB(Row row) override;
    bool ModifyToDB(const Keys& oldKeys, const Keys& keys, const Records& records) override;
    [[nodiscard]] ColumnIndex GetKeyColID() const override { return placeColumn; }
    [[nodiscard]] CString GetNewKey() override { return std::to_string(GetCountData() + 1); }
    bool MakeKeyAndDataArray(const CArray<CString>& texts, const CArray<ColumnIndex>& columns, Keys& keys, Records& records) override;
    void DeleteKeyAndDataArray(Keys& keys, Records& records) override;
    bool ValidateField(const CString& text, ColumnIndex column) override;
    bool ValidateRecord(const CArray<CString>& texts, const CArray<ColumnIndex>& columns) override;
    [[nodiscard]] int GetCountData() override { return static_cast<int>(Items().size()); }
    void MakeItemNormal(int count, const CArray<ColumnIndex>& columns) override;
    [[nodiscard]] CString GetPasteRefusedText(const CString& warning) override;
    /// Takes load cases out of the host's tree: lines of type, key, name with "(ST)", and factor, separated by tabs.
    bool OnDropText(Row row, ColumnPlace column, const CString& text) override;
    /// Leaving the grid leaves its row.
    void lostFocus() override;

private:
    static constexpr ColumnIndex caseColumn = 0;
    static constexpr ColumnIndex factorColumn = 1;
    static constexpr ColumnIndex placeColumn = 2;  ///< hidden: number of the item, from 1

    struct Case {
        zel::Key key = 0;
        CString text;

        bool operator==(const Case&) const = default;
    };
    [[nodiscard]] static std::vector<Case> ReadCases();
    void OfferCases(std::vector<Case>&& cases);
    /// Key of a load case by its text in the list; 0 if it is none of them.
    [[nodiscard]] zel::Key CaseOf(const CString& text) const;
    /// @param stored  the item before; null for a new one. Its factor is kept if its text is
    [[nodiscard]] zel::RowItem ItemOf(const CArray<CString>& texts, const T_LCOM_ITEM* stored) const;
    /// Tests a factor's text and that there is one, with a warning.
    bool ValidateFactor(const CString& text);
    void WarnOfMissing(const char* what);

    [[nodiscard]] std::vector<T_LCOM_ITEM> Items() const;
    /// Writes the items of the combination in place of all. False, with nothing changed, if there are too many or the model refuses.
    bool Write(const std::vector<T_LCOM_ITEM>& items);

    const int& m_kind;
    zel::Key m_key = 0;  ///< of the combination that is shown
    std::vector<Case> m_cases;
    std::optional<std::vector<T_LCOM_ITEM>> m_beforePaste;  ///< while a block is pasted: the items before any of it was written
    bool m_refused = false;
};
