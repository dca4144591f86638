#pragma once

#include "contract/forms/grid_records.h"
#include "contract/records/lcug.h"
#include "contract/table_store.h"

namespace zel {

/// Direction of a seismic case in a group, as records hold it.
enum SeismicDirection : int { plusDirection = 0, minusDirection = 1 };

}  // namespace zel

/// Seismic load cases, each in one direction, with the earth pressures that act with it. The grid holds the rows and writes
/// nothing by itself; the earth pressures of the current row stand in the check lists beside it.
class CLoadCaseUnderMainGrid final : public CTBRecordGrid<T_LCUG_SEIS> {
public:
    /// @param onDelete  rows are about to be deleted: what stands beside the grid belongs to none of them from now on
    CLoadCaseUnderMainGrid(const zel::Place& place, std::string_view id, zel::Action<Row> onCurrentRow, zel::Action<> onDelete)
        : CTBRecordGrid(place, id, std::move(onCurrentRow)), m_onDelete(std::move(onDelete))
    {
    }

    void Initialize() override;
    /// Takes other rows over; Initialize or RebuildRows shows them.
    void SetData(const CArray<T_LCUG_SEIS>& groups) { m_groups = groups; }
    [[nodiscard]] const CArray<T_LCUG_SEIS>& GetData() const { return m_groups; }
    /// What a row holds; null for a row that is none of the data rows, and for a name in the row headers that none has.
    [[nodiscard]] T_LCUG_SEIS* GroupOf(Row row);
    [[nodiscard]] T_LCUG_SEIS* GroupOf(const CString& rowName);

    bool AddToDB(Row row) override;
    bool AddToDB(const Keys& keys, const Records& records) override;
    bool DeleteFromDB(Row row) override { return DeleteFromDB(CArray<Row>{row}); }
    bool DeleteFromDB(const CArray<Row>& rows) override;
    bool ModifyToDB(Row row) override;
    bool ModifyToDB(const Keys& oldKeys, const Keys& keys, const Records& records) override;
    [[nodiscard]] CString GetNewKey() override { return std::to_string(m_groups.size() + 1); }
    bool MakeKeyAndDataArray(const CArray<CString>& texts, const CArray<ColumnIndex>& columns, Keys& keys, Records& records) override;
    bool ValidateRecord(const CArray<CString>& texts, const CArray<ColumnIndex>& columns) override;
    [[nodiscard]] int GetCountData() override { return static_cast<int>(m_groups.size()); }
    void MakeItemNormal(int count, const CArray<ColumnIndex>& columns) override;

    /// Texts of a direction, 0 plus and 1 minus.
    [[nodiscard]] static CString GetDirTitle(int direction);
    [[nodiscard]] static int GetDirByTitle(const CString& title);

private:
    /// Whether load case and direction have been entered; a warning if not.
    bool IsComplete(const CArray<CString>& texts);
    /// Which row the texts are of; 0 for a new one.
    [[nodiscard]] static Row RowOf(const CArray<CString>& texts);
    /// Load case and direction out of the texts of a row; the earth pressures stay.
    static void ReadTexts(const CArray<CString>& texts, T_LCUG_SEIS& group);
    /// Whether no other row than `exceptRow` (from 1; 0: none) has the load case in that direction. A warning if one has.
    bool IsFree(const T_LCUG_SEIS& group, const CArray<T_LCUG_SEIS>& groups, Row exceptRow);
    /// Takes rows over that were pasted, unless two of them are alike.
    bool Take(const CArray<T_LCUG_SEIS>& groups);
    void ShowRows();

    zel::Action<> m_onDelete;
    CArray<T_LCUG_SEIS> m_groups;  ///< one a row, in their order
};
