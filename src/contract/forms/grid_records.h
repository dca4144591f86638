#pragma once

#include "contract/forms/grid_common.h"

/// A grid whose rows are records of one type, each with a number that tells it: the key of its record, or its place.
template <class Record> class CTBRecordGrid : public CTBCommon {
public:
    using Keys = CArray<std::uint32_t>;
    using Records = CArray<Record>;

    using CTBCommon::CTBCommon;

    using CTBCommon::AddToDB;
    using CTBCommon::ModifyToDB;
    /// Write several new records of a paste; several changed ones. All or none.
    virtual bool AddToDB(const Keys& keys, const Records& records) = 0;
    virtual bool ModifyToDB(const Keys& oldKeys, const Keys& keys, const Records& records) = 0;

    /// Adds one key and one record, filled from the texts of a row; false, with a warning, for bad texts.
    virtual bool MakeKeyAndDataArray(const CArray<CString>& texts, const CArray<ColumnIndex>& columns, Keys& keys, Records& records) = 0;
    /// Lets go of what MakeKeyAndDataArray made: a paste is at its end.
    virtual void DeleteKeyAndDataArray(Keys& keys, Records& records)
    {
        keys.clear();
        records.clear();
    }

protected:
    [[nodiscard]] std::unique_ptr<zel::PastedRecords> newPastedRecords() override { return std::make_unique<Pasted>(*this); }

private:
    class Pasted final : public zel::PastedRecords {
    public:
        explicit Pasted(CTBRecordGrid& grid) : m_grid(grid), m_columns(grid.GetAllColumns()) {}
        ~Pasted() override
        {
            for (Rows& rows : m_parts)
                m_grid.DeleteKeyAndDataArray(rows.keys, rows.records);
        }

        bool make(Part part, const CArray<CString>& texts) override
        {
            Rows& rows = of(part);
            return m_grid.MakeKeyAndDataArray(texts, m_columns, rows.keys, rows.records);
        }
        bool modify() override { return m_grid.ModifyToDB(of(Part::former).keys, of(Part::changed).keys, of(Part::changed).records); }
        bool restore() override { return m_grid.ModifyToDB(of(Part::changed).keys, of(Part::former).keys, of(Part::former).records); }
        bool add() override { return m_grid.AddToDB(of(Part::added).keys, of(Part::added).records); }

    private:
        struct Rows {
            Keys keys;
            Records records;
        };
        [[nodiscard]] Rows& of(Part part) { return m_parts[static_cast<std::size_t>(part)]; }

        CTBRecordGrid& m_grid;
        CArray<ColumnIndex> m_columns;
        std::array<Rows, 3> m_parts;  ///< by `Part`
    };
};
