#pragma once

#include "contract/forms/grid_common.h"
#include "contract/notices.h"
#include "contract/tables/static_load_case_table.h"

/// The list of the static load cases, in their sequence. It shows the table and lets the user select rows and drag them to
/// another place; what is entered goes through the form of its dialog.
class CCMLoadCaseGrid final : public CTBCommon {
public:
    using CTBCommon::CTBCommon;

    void Initialize() override;
    /// Follows the changes of the load cases.
    void UpdateBuffer(const CViewBuff& buffer);
    /// Key of the load case in a row; 0 on the append row and where there is no row.
    [[nodiscard]] zel::Key KeyOf(int row) const { return IsDataRow(row) ? GetRowKey(row) : 0; }
    [[nodiscard]] zel::Key GetCurrentKey() const { return KeyOf(GetCurrentRow()); }
    /// Makes the row of a load case current, which shows it in the form.
    void ShowLoadCase(zel::Key key, const T_STLD_D& record);

    bool AddToDB(int row) override;
    bool AddToDB(const zel::GridValues& keys, const zel::GridValues& records) override;
    bool DeleteFromDB(int row) override;
    bool DeleteFromDB(const CArray<int>& rows) override;
    bool ModifyToDB(int row) override;
    bool ModifyToDB(const zel::GridValues& oldKeys, const zel::GridValues& keys, const zel::GridValues& records) override;
    [[nodiscard]] CString GetNewKey() override;
    [[nodiscard]] const CArray<CString>& GetDefValueArray() override;
    bool MakeKeyAndDataArray(const CArray<CString>& texts, const CArray<int>& columns, zel::GridValues& keys, zel::GridValues& records) override;
    void DeleteKeyAndDataArray(zel::GridValues& keys, zel::GridValues& records) override;
    bool ValidateField(const CString& text, int column) override;
    bool ValidateRecord(const CArray<CString>& texts, const CArray<int>& columns) override;
    [[nodiscard]] int GetCountData() override;
    void MakeItemFiltered(int count, const CArray<int>& rows, const CArray<int>& columns) override;
    void MakeItemNormal(int count, const CArray<int>& columns) override;
    void MakeItemEditingRecord(int row, const CArray<CString>& texts) override;
    /// Load cases have no values with units.
    void UnitChanged() override {}
    bool OnSelDragRowsDrop(int firstRow, int lastRow, int targetRow) override;
    bool OnSelDragColsDrop(int firstColumn, int lastColumn, int targetColumn) override;

private:
    /// Turns the texts of a row into key and record; fields without a column stay as they are. False, with a warning, for bad texts.
    bool MakeKeyAndData(const CArray<CString>& texts, const CArray<int>& columns, zel::Key& key, T_STLD_D& record);
    [[nodiscard]] static CArray<CString> TextsOf(zel::Key key, const T_STLD_D& record);
    [[nodiscard]] CArray<CString> SortTextsFor(const CDataStld& data) const { return SortTextsOf(TextsOf(data.currentKey, data.currentRecord)); }
    void InsertRow(const CDataStld& data);
    void DeleteRow(const CDataStld& data);
};
