#pragma once

#include "contract/forms/dialog.h"
#include "contract/forms/grid_records.h"
#include "platform/forms/headless_user_interface.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace zel::test {

using zel::ColumnIndex;
using zel::ColumnPlace;
using zel::Row;

/// The fields of a grid as a form lists them, each as one text.
class GridFields : public IFieldWriter {
public:
    std::map<CString, CString, std::less<>> fields;

    void text(std::string_view name, const CString& value) override { put(name, value); }
    void flag(std::string_view name, bool value) override { put(name, value ? "true" : "false"); }
    void number(std::string_view name, std::optional<int> value) override { put(name, value ? std::to_string(*value) : "null"); }
    void numbers(std::string_view name, const std::vector<int>& values) override { put(name, joined(values)); }
    void keys(std::string_view /*name*/, const std::vector<unsigned>& /*values*/) override {}
    void texts(std::string_view /*name*/, const std::vector<CString>& /*values*/) override {}
    void columns(std::string_view name, const std::vector<ColumnView>& values) override
    {
        CString line;
        for (const ColumnView& column : values)
            line += "[" + column.title + "," + std::to_string(column.width) + (column.visible ? "" : ",hidden") +
                (column.choices.empty() ? "" : "," + std::to_string(column.choices.size()) + " choices") + "]";
        put(name, line);
    }
    void cell(std::string_view name, std::optional<int> row, int column) override
    {
        put(name, (row ? std::to_string(*row) : CString{"append"}) + "," + std::to_string(column));
    }
    void rows(std::string_view name, const std::vector<std::vector<CString>>& values) override
    {
        CString lines;
        for (const auto& row : values) {
            for (std::size_t i = 0; i < row.size(); ++i)
                lines += (i > 0 ? "|" : "") + row[i];
            lines += "\n";
        }
        put(name, lines);
    }
    void points(std::string_view /*name*/, const std::vector<GraphPoint>& /*values*/) override {}
    void shapes(std::string_view /*name*/, const std::vector<Shape>& /*values*/) override {}

private:
    static CString joined(const std::vector<int>& values)
    {
        CString line;
        for (const int value : values)
            line += (line.empty() ? "" : ",") + std::to_string(value);
        return line;
    }
    void put(std::string_view name, const CString& value) { fields[CString{name}] = value; }
};

inline CString fieldOf(const Control& control, std::string_view name)
{
    GridFields writer;
    control.describe(writer);
    const auto found = writer.fields.find(name);
    return found == writer.fields.end() ? "(no such field)" : found->second;
}

/// A member of a frame, as the test grids list them.
struct Member {
    int key = 0;
    CString name;
    double length = 0.0;
    CString kind = "beam";
    int active = 1;

    bool operator==(const Member&) const = default;
};

/// Members in memory. Column 0 is the key, column 1 the name by which rows are sorted. Names are unique, lengths positive.
class MemberGrid : public CTBRecordGrid<Member> {
public:
    enum Column { number, name, length, kind, active };

    explicit MemberGrid(const Place& place) : CTBRecordGrid(place, "members", [this](Row row) { calls.push_back("row " + std::to_string(row.number())); })
    {
        AddColInfo("Key", 1, 0);
        AddColInfo("Name", 3, 0);
        AddColInfo("Length", 2, 1);
        AddColInfo("Kind", 3, 0);
        AddColInfo("Active", 4, 0);
        SetColHidden(number);
        SetColDisabled(number);
        SetColWidth(name, 80);
        SetColPlaces(length, 2);
        SetColChoices(kind, {"beam", "column"});
        SetSortColumns({name});
    }

    std::vector<Member> data;
    bool mirrors = true;  ///< it updates its rows itself, as a grid of a table does at a notice
    bool refusesWrites = false;
    bool refusesAdds = false;
    std::vector<CString> calls;  ///< what the browser has asked it

    void Initialize() override
    {
        sort();
        CTBCommon::Initialize();
    }
    int GetCountData() override { return static_cast<int>(data.size()); }
    void MakeItemNormal(int count, const CArray<ColumnIndex>& /*columns*/) override
    {
        for (Row row = 1; row <= count; ++row)
            SetRowTexts(row, textsOf(data[row.place()]));
    }
    CString GetNewKey() override
    {
        int greatest = 0;
        for (const Member& member : data)
            greatest = std::max(greatest, member.key);
        return std::to_string(greatest + 1);
    }
    const CArray<CString>& GetDefValueArray() override
    {
        static const CArray<CString> values{"", "", "1.5", "beam", "1"};
        return values;
    }

    bool ValidateField(const CString& text, ColumnIndex column) override
    {
        calls.push_back("field " + std::to_string(column.number()) + " " + text);
        if (column != length)
            return true;
        if (!ValidateNumber(text, {"bad formula", "stray character", "too big"}))
            return false;
        if (text.empty() || RealOf(text) > 0.0)
            return true;
        SetWarningText("length must be positive");
        return false;
    }
    bool ValidateRecord(const CArray<CString>& texts, const CArray<ColumnIndex>& columns) override
    {
        calls.push_back("record " + texts[name]);
        return ValidateTexts(texts, columns, " is missing", Fields::validate);
    }
    bool MakeKeyAndDataArray(const CArray<CString>& texts, const CArray<ColumnIndex>& columns, Keys& keys, Records& records) override
    {
        if (!ValidateRecord(texts, columns))
            return false;
        const Member member = memberOf(texts);
        keys.push_back(static_cast<std::uint32_t>(member.key));
        records.push_back(member);
        return true;
    }

    bool AddToDB(Row row) override
    {
        const Member member = memberOf(GetRowTexts(row));
        calls.push_back("add " + member.name);
        return add({member});
    }
    bool AddToDB(const Keys& keys, const Records& records) override
    {
        calls.push_back("add block " + std::to_string(keys.size()));
        return add(records);
    }
    bool ModifyToDB(Row row) override
    {
        const CString oldName = TextBeforeEdit(row, name);
        const Member member = memberOf(GetRowTexts(row));
        calls.push_back("modify " + oldName + " " + member.name);
        return modify({member});
    }
    bool ModifyToDB(const Keys& oldKeys, const Keys& keys, const Records& records) override
    {
        calls.push_back("modify block " + std::to_string(oldKeys.size()) + " " + std::to_string(keys.size()));
        return modify(records);
    }
    bool DeleteFromDB(const CArray<Row>& rows) override
    {
        CArray<int> keys;
        for (const Row row : rows)
            keys.push_back(std::stoi(TextBeforeEdit(row, number)));
        calls.push_back("delete " + std::to_string(rows.size()));
        if (refusesWrites)
            return false;
        const GridUpdate update{*this};
        for (const int each : keys)
            erase(each);
        return true;
    }

    void OnChangedSelectionPublic(const CArray<Row>& rows, int count) override
    {
        CString line = "selected " + std::to_string(count) + ":";
        for (const Row row : rows)
            line += " " + std::to_string(row.number());
        calls.push_back(line);
    }
    void OnClickCell(Row row, ColumnPlace column) override { note("click", row, column); }
    void OnDoubleClickCell(Row row, ColumnPlace column) override { note("double click", row, column); }
    void OnRightDoubleClickCell(Row row, ColumnPlace column) override { note("right double click", row, column); }
    void OnEndEditing(Row row, ColumnIndex index) override { note("edited", row, index); }
    void OnCancelEditing(Row row, ColumnIndex index) override { note("given up", row, index); }

    [[nodiscard]] std::vector<CString> take() { return std::exchange(calls, {}); }

    /// A row of texts as it is kept: "1|B1|2.5|beam|1".
    [[nodiscard]] CString line(Row row) const
    {
        CString text;
        for (const ColumnIndex index : GetAllColumns())
            text += (index > 0 ? "|" : "") + TextAt(row, index);
        return text;
    }
    [[nodiscard]] std::vector<CString> lines() const
    {
        std::vector<CString> all;
        for (Row row = 1; row <= GetDataRowCount(); ++row)
            all.push_back(line(row));
        return all;
    }
    [[nodiscard]] CString field(std::string_view fieldName) const { return fieldOf(*this, fieldName); }

    static CArray<CString> textsOf(const Member& member)
    {
        return {std::to_string(member.key), member.name, RealText(member.length), member.kind, std::to_string(member.active)};
    }
    static Member memberOf(const CArray<CString>& texts)
    {
        return {std::stoi(texts[number]), texts[name], RealOf(texts[length]), texts[kind], std::stoi(texts[active])};
    }

protected:
    template <class Column> void note(const char* what, Row row, Column column)
    {
        calls.push_back(what + (" " + std::to_string(row.number())) + " " + std::to_string(column.number()));
    }
    void sort()
    {
        std::sort(data.begin(), data.end(), [](const Member& a, const Member& b) { return a.name < b.name; });
    }
    bool add(const std::vector<Member>& members)
    {
        if (refusesWrites || refusesAdds)
            return false;
        for (const Member& member : members)
            if (std::any_of(data.begin(), data.end(), [&](const Member& other) { return other.name == member.name; }))
                return false;
        const GridUpdate update{*this};
        for (Member member : members) {
            if (std::any_of(data.begin(), data.end(), [&](const Member& other) { return other.key == member.key; }))
                member.key = std::stoi(GetNewKey());
            insert(member);
        }
        return true;
    }
    bool modify(const std::vector<Member>& members)
    {
        if (refusesWrites)
            return false;
        const GridUpdate update{*this};
        for (const Member& member : members) {
            erase(member.key);
            insert(member);
        }
        return true;
    }
    void insert(const Member& member)
    {
        data.push_back(member);
        sort();
        if (!mirrors)
            return;
        Row row;
        FindRecordByKey({member.name}, row);
        InsertRecord(row);
        SetRowTexts(row, textsOf(member));
    }
    void erase(int memberKey)
    {
        const auto found = std::find_if(data.begin(), data.end(), [&](const Member& member) { return member.key == memberKey; });
        if (found == data.end())
            return;
        Row row;
        if (mirrors && FindRecordByKey({found->name}, row) != 0)
            DeleteRecord(row);
        data.erase(found);
    }
};

/// Counts what an observer is told of the grid.
class ChangeCount : public IFormObserver {
public:
    int changes = 0;
    void controlChanged(Control& /*control*/) override { ++changes; }
    void formChanged(CDialog& /*dialog*/) override {}
};

template <class Grid = MemberGrid> class GridDialog : public CDlgMove {
public:
    GridDialog() : CDlgMove(1, "Members") { observe(count); }

    Grid grid{*this};
    ChangeCount count;

    void open()
    {
        openModeless();
        SetActiveWindow();
    }
};

/// A dialog with a grid of three members, opened, and a host without a screen.
template <class Grid = MemberGrid> class GridTestOf : public testing::Test {
protected:
    GridTestOf()
    {
        grid.data = {{1, "B1", 2.5, "beam", 1}, {2, "B2", 3.0, "beam", 0}, {3, "C1", 4.0, "column", 1}};
        dialog.open();
        grid.Initialize();
        grid.calls.clear();
    }
    ~GridTestOf() override { dialog.DestroyWindow(); }

    HeadlessUserInterface host;
    GridDialog<Grid> dialog;
    Grid& grid = dialog.grid;
    static constexpr UserRow append = CTBGrid::append;
};

using Calls = std::vector<CString>;

}  // namespace zel::test
