#include "contract/forms/grid_browser_ex.h"

#include <algorithm>

using zel::Taken;

/// A block on its way into the grid.
struct CTBBrowserWndEx::Pasted {
    CArray<Row> rows;                      ///< data rows that change
    CArray<CArray<CString>> changedTexts;  ///< their new texts
    CArray<CArray<CString>> addedTexts;    ///< texts of new rows
};

namespace {

/// Of a grid that keeps no records: its rows are what they show.
class PastedTexts final : public zel::PastedRecords {
public:
    explicit PastedTexts(CTBBrowserWnd& grid) : m_grid(grid) {}

    bool make(Part /*part*/, const CArray<CString>& texts) override
    {
        const CArray<zel::ColumnIndex> columns = m_grid.GetAllColumns();
        const bool valid =
            std::all_of(columns.begin(), columns.end(), [&](zel::ColumnIndex column) { return m_grid.ValidateField(texts[column.place()], column); });
        return valid && m_grid.ValidateRecord(texts, columns);
    }
    bool modify() override { return true; }
    bool restore() override { return true; }
    bool add() override { return true; }

private:
    CTBBrowserWnd& m_grid;
};

}  // namespace

std::unique_ptr<zel::PastedRecords> CTBBrowserWndEx::newPastedRecords()
{
    return std::make_unique<PastedTexts>(*this);
}

Taken CTBBrowserWndEx::layOut(const zel::GridBlock& block, Row row, ColumnPlace column, Pasted& pasted)
{
    CArray<ColumnIndex> indices;
    for (ColumnPlace on = column; on <= GetColCount(); ++on)
        if (!GetColInfo(GetColIndex(on)).hidden)
            indices.push_back(GetColIndex(on));

    bool any = false;
    Row target = row;
    for (const CArray<CString>& line : block) {
        while (IsRowHidden(target))
            ++target;
        const bool added = !IsDataRow(target);
        if (added && GetAppendRow() == 0)
            return refuse("has no room for the " + std::to_string(block.size()) + " rows of the block");
        const Row styleRow = added ? GetAppendRow() : target;
        CArray<CString> texts = added ? newRowTexts() : GetRowTexts(target);
        for (std::size_t cell = 0; cell < line.size(); ++cell) {
            if (cell >= indices.size()) {
                if (line[cell].empty())
                    continue;
                return refuse("has no room for the " + std::to_string(line.size()) + " columns of the block");
            }
            const ColumnIndex index = indices[cell];
            if (!IsCellEditable(styleRow, index))
                continue;
            if (Taken offered = offers(styleRow, index, line[cell]); !offered)
                return offered;
            texts[index.place()] = line[cell];
            any = true;
        }
        if (added) {
            pasted.addedTexts.push_back(std::move(texts));
        } else {
            if (texts != GetRowTexts(target)) {
                pasted.rows.push_back(target);
                pasted.changedTexts.push_back(std::move(texts));
            }
            ++target;
        }
    }
    return any ? Taken{} : refuse("takes no text in the cells of the block");
}

bool CTBBrowserWndEx::makeRecords(const Pasted& pasted, zel::PastedRecords& records)
{
    using Part = zel::PastedRecords::Part;
    for (std::size_t i = 0; i < pasted.rows.size(); ++i)
        if (!records.make(Part::former, GetRowTexts(pasted.rows[i])) || !records.make(Part::changed, pasted.changedTexts[i]))
            return false;
    return std::all_of(pasted.addedTexts.begin(), pasted.addedTexts.end(), [&](const CArray<CString>& texts) { return records.make(Part::added, texts); });
}

bool CTBBrowserWndEx::writeRecords(const Pasted& pasted, zel::PastedRecords& records)
{
    const zel::GridPaintLock lock{*this};
    bool written = true;
    const bool changedMirrored = touchesRows([&] { written = pasted.rows.empty() || records.modify(); });
    if (!written)
        return false;
    const bool addedMirrored = touchesRows([&] { written = pasted.addedTexts.empty() || records.add(); });
    if (!written) {
        if (!pasted.rows.empty())
            (void)records.restore();
        return false;
    }
    if (!changedMirrored && !addedMirrored) {
        CArray<Row> rows = pasted.rows;
        following(rows, [&] {
            for (std::size_t i = 0; i < rows.size(); ++i)
                mirrorChanged(followed(i, rows.size()), writtenTexts(pasted.changedTexts[i]));
        });
        for (const CArray<CString>& texts : pasted.addedTexts)
            mirrorAdded(writtenTexts(texts));
    }
    return true;
}

Taken CTBBrowserWndEx::paste(UserRow row, UserColumn column, const CString& text)
{
    return changeAtCell(row, column, [&](Row gridRow, ColumnPlace gridColumn) -> Taken {
        const zel::GridBlock block = zel::readGridBlock(text);
        if (block.empty())
            return refuse("was given nothing to paste");
        CArray<Row> followed{gridRow};
        bool closed = false;
        following(followed, [&] { closed = closeRow(); });
        if (!closed)
            return {};
        return pasteAt(row == append ? GetAppendRow() : followed.front(), gridColumn, block);
    });
}

/// Nothing is open any more.
Taken CTBBrowserWndEx::pasteAt(Row row, ColumnPlace column, const zel::GridBlock& block)
{
    Pasted pasted;
    if (Taken laidOut = layOut(block, row, column, pasted); !laidOut)
        return laidOut;
    SetWarningText({});
    bool good = false;
    bool written = false;
    {
        const std::unique_ptr<zel::PastedRecords> records = newPastedRecords();
        good = makeRecords(pasted, *records);
        written = good && writeRecords(pasted, *records);
    }
    if (!good)
        SetWarningText(GetPasteRefusedText(GetWarningText()));
    showWarning();
    if (written)
        OnPasted();
    tellCurrentRow();
    return {};
}

CString CTBBrowserWndEx::copyText() const
{
    Row row;
    ColumnPlace column;
    CArray<Row> rows = GetSelectedRows();
    if (rows.empty())
        return GetCurrentCell(row, column) != 0 ? zel::writeGridBlock({{GetValueRowCol(row, column)}}) : CString{};
    std::sort(rows.begin(), rows.end());
    zel::GridBlock block;
    for (const Row selected : rows) {
        CArray<CString>& line = block.emplace_back();
        for (ColumnPlace on = 1; on <= GetColCount(); ++on)
            if (!GetColInfo(GetColIndex(on)).hidden)
                line.push_back(GetValueRowCol(selected, on));
    }
    return zel::writeGridBlock(block);
}
