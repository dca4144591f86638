#pragma once

#include "command/command.h"
#include "contract/forms/grid_browser_ex.h"
#include "contract/forms/open_dialogs.h"
#include "contract/tables/load_combination_table.h"
#include "load/dialog_test.h"

#include <initializer_list>

namespace zel::test {

using zel::ColumnIndex;
using zel::ColumnPlace;
using zel::Row;

/// The editor of load combinations, as a person uses it. The model has the load cases DL, LL and WX with the keys 1, 2, 3.
class EditorTest : public DialogTest {
protected:
    EditorTest()
    {
        addCase("DL", "D");
        addCase("LL", "L");
        addCase("WX", "W");
    }

    /// Opens the editor, or brings it to the front.
    static Form open() { return Form(*CMD_DoModeless(D_CMD_RESULT_LOADCOMB, nullptr)); }
    static Form openSpreadsheet()
    {
        const Form form = open();
        form.press("toggle");
        return form;
    }

    static CTBBrowserWndEx& mainGrid(const Form& form) { return form.at<CTBBrowserWndEx>("mainGrid"); }
    static CTBBrowserWndEx& subGrid(const Form& form) { return form.at<CTBBrowserWndEx>("subGrid"); }
    static CTBBrowserWndEx& sheet(const Form& form) { return form.at<CTBBrowserWndEx>("grid"); }

    static T_LCOM_D combination(const CString& name, const std::vector<T_LCOM_ITEM>& items = {}, const char* description = "")
    {
        T_LCOM_D record;
        record.name = name;
        record.items = items;
        record.description = description;
        return record;
    }
    static Key store(const T_LCOM_D& record, int kind = 1)
    {
        CDataLcom data;
        EXPECT_NE(data.Add(kind, record), 0);
        EXPECT_NE(data.Get(kind, record.name), 0);
        return data.currentKey;
    }
    static Key store(const char* name, const std::vector<T_LCOM_ITEM>& items = {}) { return store(combination(name, items)); }

    static T_LCOM_D stored(const CString& name, int kind = 1)
    {
        CDataLcom data;
        EXPECT_NE(data.Get(kind, name), 0) << name;
        return data.currentRecord;
    }
    static Texts storedNames(int kind = 1)
    {
        Texts names;
        CDataLcom().GetNameList(kind, names);
        return names;
    }
    static void change(const char* name, const std::function<void(T_LCOM_D&)>& how)
    {
        CDataLcom data;
        ASSERT_NE(data.Get(1, CString(name)), 0);
        how(data.currentRecord);
        ASSERT_NE(data.Modify(1, CString(name)), 0);
    }

    /// The rows, cells joined by "|": as kept, and as shown.
    static Texts rows(const CTBGrid& grid)
    {
        return joined(grid, [&grid](Row row, ColumnIndex index) { return grid.TextAt(row, index); });
    }
    static Texts shownRows(const CTBGrid& grid)
    {
        return joined(grid, [&grid](Row row, ColumnIndex index) { return grid.GetShownText(row, index); });
    }
    static Texts column(const CTBGrid& grid, ColumnIndex index)
    {
        Texts texts;
        for (Row row = 1; row <= grid.GetDataRowCount(); ++row)
            texts.push_back(grid.TextAt(row, index));
        return texts;
    }
    static Texts titles(const CTBGrid& grid)
    {
        Texts texts;
        for (ColumnPlace at = 1; at <= grid.GetColCount(); ++at)
            texts.push_back(grid.GetColInfo(grid.GetColIndex(at)).header);
        return texts;
    }

    /// Types into the cells of a row (from 0, or `append`) and leaves the row.
    struct Cell {
        int column;
        const char* text;
    };
    static void type(CTBBrowserWnd& grid, UserRow row, std::initializer_list<Cell> cells)
    {
        typeOpen(grid, row, cells);
        done(grid.leaveRow());
    }
    /// The same without leaving the row.
    static void typeOpen(CTBBrowserWnd& grid, UserRow row, std::initializer_list<Cell> cells)
    {
        for (const Cell& cell : cells)
            done(grid.typeCell(row, cell.column, cell.text));
    }
    static void click(CTBBrowserWnd& grid, UserRow row, UserColumn column) { done(grid.clickCell(row, column)); }
    static void done(const Taken& taken) { EXPECT_TRUE(taken.ok()) << taken.refusal; }

    /// Keys of the grid warnings so far, each of a text that is one message; forgets them.
    Texts warnings()
    {
        Texts keys;
        for (const CString& text : user.warnings)
            keys.push_back(text.substr(0, text.find(']')).substr(1));
        user.warnings.clear();
        return keys;
    }

    // Columns, as they stand on the screen from 0.
    static constexpr zel::UserRow append = CTBGrid::append;
    static constexpr int no = 0;
    static constexpr int mainName = 1;
    static constexpr int mainActive = 2;
    static constexpr int mainDescription = 3;
    static constexpr int sheetActive = 1;
    static constexpr int sheetName = 2;
    static constexpr int dl = 3;
    static constexpr int ll = 4;
    static constexpr int wx = 5;
    static constexpr int sheetDescription = 6;
    static constexpr int loadCase = 0;
    static constexpr int factor = 1;

private:
    template <class TextOf> static Texts joined(const CTBGrid& grid, TextOf textOf)
    {
        Texts lines;
        for (Row row = 1; row <= grid.GetDataRowCount(); ++row) {
            CString& line = lines.emplace_back();
            for (const ColumnIndex index : grid.GetAllColumns())
                line += (index > 0 ? "|" : "") + textOf(row, index);
        }
        return lines;
    }
};

}  // namespace zel::test
