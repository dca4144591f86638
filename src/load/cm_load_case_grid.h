#pragma once

#include "contract/forms/grid_records.h"
#include "contract/notices.h"
#include "contract/tables/static_load_case_table.h"

/// The list of the static load cases, in their sequence. It shows the table and lets the user select rows and drag them to
/// another place; what is entered goes through the form of its dialog.
class CCMLoadCaseGrid final : public CTBRecordGrid<T_STLD_D> {
public:
    using CTBRecordGrid::CTBRecordGrid;

    void Initialize() override;
    /// Follows the changes of the load cases.
    void UpdateBuffer(const CViewBuff& buffer);
    /// Key of the load case in a row; 0 on the append row and where there is no row.
    [[nodiscard]] zel::Key KeyOf(Row row) const { return IsDataRow(row) ? GetRowKey(row) : 0; }
    [[nodiscard]] zel::Key GetCurrentKey() const { return KeyOf(GetCurrentRow()); }
    /// Makes the row of a load case current, which shows it in the form.
    void ShowLoadCase(zel::Key key, const T_STLD_D& record);

    bool AddToDB(Row row) override;
    bool AddToDB(const Keys& keys, const Records& records) override;
    bool DeleteFromDB(Row row) override;
    bool DeleteFromDB(const CArray<Row>& rows) override;
    bool ModifyToDB(Row row) override;
    bool ModifyToDB(const Keys& oldKeys, const Keys& keys, const Records& records) override;
    [[nodiscard]] CString GetNewKey() override;
    [[nodiscard]] const CArray<CString>& GetDefValueArray() override;
    bool MakeKeyAndDataArray(const CArray<CString>& texts, const CArray<ColumnIndex>& columns, Keys& keys, Records& records) override;
    bool ValidateField(const CString& text, ColumnIndex column) override;
    bool ValidateRecord(const CArray<CString>& texts, const CArray<ColumnIndex>& columns) override;
    [[nodiscard]] int GetCountData() override;
    void MakeItemFiltered(int count, const CArray<Row>& rows, const CArray<ColumnIndex>& columns) override;
    void MakeItemNormal(int count, const CArray<ColumnIndex>& columns) override;
    void MakeItemEditingRecord(Row row, const CArray<CString>& texts) override;
    /// Load cases have no values with units.
    void UnitChanged() override {}
    bool OnSelDragRowsDrop(Row firstRow, Row lastRow, Row targetRow) override;
    bool OnSelDragColsDrop(ColumnPlace firstColumn, ColumnPlace lastColumn, ColumnPlace targetColumn) override;

private:
    /// Turns the texts of a row into key and record; fields without a column stay as they are. False, with a warning, for bad texts.
    bool MakeKeyAndData(const CArray<CString>& texts, const CArray<ColumnIndex>& columns, zel::Key& key, T_STLD_D& record);
    [[nodiscard]] static CArray<CString> TextsOf(zel::Key key, const T_STLD_D& record);
    [[nodiscard]] CArray<CString> SortTextsFor(const CDataStld& data) const { return SortTextsOf(TextsOf(data.currentKey, data.currentRecord)); }
    void InsertRow(const CDataStld& data);
    void DeleteRow(const CDataStld& data);
};
