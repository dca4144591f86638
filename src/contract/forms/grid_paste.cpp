#include "contract/forms/grid_browser_ex.h"

#include <algorithm>

using zel::Taken;

/// A block on its way into the grid.
struct CTBBrowserWndEx::Pasted {
    struct Records {
        zel::GridValues keys;
        zel::GridValues records;
    };

    CArray<int> rows;                      ///< data rows that change
    CArray<CArray<CString>> changedTexts;  ///< their new texts
    CArray<CArray<CString>> addedTexts;    ///< texts of new rows
    Records former;
    Records changed;
    Records added;
};

Taken CTBBrowserWndEx::layOut(const zel::GridBlock& block, int row, int column, Pasted& pasted)
{
    CArray<int> indices;
    for (int on = column; on <= GetColCount(); ++on)
        if (!GetColInfo(GetColIndex(on)).hidden)
            indices.push_back(GetColIndex(on));

    bool any = false;
    int target = row;
    for (const CArray<CString>& line : block) {
        while (IsRowHidden(target))
            ++target;
        const bool added = !IsDataRow(target);
        if (added && GetAppendRow() == 0)
            return refuse("has no room for the " + std::to_string(block.size()) + " rows of the block");
        const int styleRow = added ? GetAppendRow() : target;
        CArray<CString> texts = added ? newRowTexts() : GetRowTexts(target);
        for (std::size_t cell = 0; cell < line.size(); ++cell) {
            if (cell >= indices.size()) {
                if (line[cell].empty())
                    continue;
                return refuse("has no room for the " + std::to_string(line.size()) + " columns of the block");
            }
            const int index = indices[cell];
            if (!IsCellEditable(styleRow, index))
                continue;
            if (Taken offered = offers(styleRow, index, line[cell]); !offered)
                return offered;
            texts[static_cast<std::size_t>(index)] = line[cell];
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

bool CTBBrowserWndEx::makeRecords(Pasted& pasted)
{
    const CArray<int> columns = GetAllColumns();
    const auto make = [&](const CArray<CString>& texts, Pasted::Records& into) { return MakeKeyAndDataArray(texts, columns, into.keys, into.records); };
    for (std::size_t i = 0; i < pasted.rows.size(); ++i)
        if (!make(GetRowTexts(pasted.rows[i]), pasted.former) || !make(pasted.changedTexts[i], pasted.changed))
            return false;
    return std::all_of(pasted.addedTexts.begin(), pasted.addedTexts.end(), [&](const CArray<CString>& texts) { return make(texts, pasted.added); });
}

bool CTBBrowserWndEx::writeRecords(Pasted& pasted)
{
    const zel::GridPaintLock lock{*this};
    bool written = true;
    const bool changedMirrored = touchesRows([&] {
        if (!pasted.rows.empty())
            written = ModifyToDB(pasted.former.keys, pasted.changed.keys, pasted.changed.records);
    });
    if (!written)
        return false;
    const bool addedMirrored = touchesRows([&] {
        if (!pasted.addedTexts.empty())
            written = AddToDB(pasted.added.keys, pasted.added.records);
    });
    if (!written) {
        if (!pasted.rows.empty())
            ModifyToDB(pasted.changed.keys, pasted.former.keys, pasted.former.records);
        return false;
    }
    if (!changedMirrored && !addedMirrored) {
        CArray<int> rows = pasted.rows;
        following(rows, [&] {
            for (std::size_t i = 0; i < rows.size(); ++i)
                mirrorChanged(followed(i, rows.size()), writtenTexts(pasted.changedTexts[i]));
        });
        for (const CArray<CString>& texts : pasted.addedTexts)
            mirrorAdded(writtenTexts(texts));
    }
    return true;
}

Taken CTBBrowserWndEx::paste(int row, int column, const CString& text)
{
    const zel::UserAction action;
    int gridRow = 0;
    int gridColumn = 0;
    if (Taken there = focusCell(row, column, gridRow, gridColumn); !there)
        return there;
    if (Taken free = changeable(); !free)
        return free;
    const zel::GridBlock block = zel::readGridBlock(text);
    if (block.empty())
        return refuse("was given nothing to paste");

    CArray<int> followed{gridRow};
    bool closed = false;
    following(followed, [&] { closed = closeRow(); });
    if (!closed)
        return {};
    gridRow = row == append ? GetAppendRow() : followed.front();

    Pasted pasted;
    if (Taken laidOut = layOut(block, gridRow, gridColumn, pasted); !laidOut)
        return laidOut;
    SetWarningText({});
    const bool good = makeRecords(pasted);
    const bool written = good && writeRecords(pasted);
    for (Pasted::Records* records : {&pasted.former, &pasted.changed, &pasted.added})
        DeleteKeyAndDataArray(records->keys, records->records);
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
    int row = 0;
    int column = 0;
    CArray<int> rows = GetSelectedRows();
    if (rows.empty())
        return GetCurrentCell(row, column) != 0 ? zel::writeGridBlock({{GetValueRowCol(row, column)}}) : CString{};
    std::sort(rows.begin(), rows.end());
    zel::GridBlock block;
    for (const int selected : rows) {
        CArray<CString>& line = block.emplace_back();
        for (int on = 1; on <= GetColCount(); ++on)
            if (!GetColInfo(GetColIndex(on)).hidden)
                line.push_back(GetValueRowCol(selected, on));
    }
    return zel::writeGridBlock(block);
}
