#include "journal/recorder_fixture.h"

#include "build_paths.h"
#include "command/command.h"
#include "command/dialog_table.h"
#include "contract/forms/buttons.h"
#include "contract/forms/tabs.h"

#include <random>

// A person who does whatever the forms let him do, at random. What he did is recorded, and must give the same again.

namespace {

using journal_test::Recording;
using zel::Control;
using zel::Kind;

class Walk : public journal_test::RecorderTest, public testing::WithParamInterface<unsigned> {
protected:
    Walk()
    {
        start = [] {
            std::ifstream file(zel::test::sourceFolder() + "/examples/tower.json");
            std::stringstream text;
            text << file.rdbuf();
            const zel::Json json = zel::parseJson(text.str());
            std::unique_ptr<zel::ModelDocument> model = zel::ModelDocument::inMemory(zel::unitsOfModelJson(json));
            zel::storeRows(*model, zel::rowsOfModelJson(json));
            return model;
        };
    }

    int below(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }
    template <class Item> const Item& anyOf(const std::vector<Item>& items) { return items[static_cast<std::size_t>(below(static_cast<int>(items.size())))]; }
    CString text() { return anyOf(std::vector<CString>{"DL", "LL", "WX", "1", "-0.5", "2*3", "abc", "", "1.2", "N1", "N2", "\xC3\xA9 \"x\"", "0", "100000"}); }
    std::vector<int> someRows(int count)
    {
        std::vector<int> rows;
        for (int row = 0; row < count; ++row) {
            if (below(4) == 0)
                rows.push_back(row);
        }
        return rows;
    }

    void walk(int steps)
    {
        for (int i = 0; i < steps; ++i) {
            anyStep();
            settle();
        }
    }

    void anyStep()
    {
        host.inEachModal = [this](CDialog& dialog) { inModal(dialog); };
        const int what = below(20);
        if (zel::activeDialog() == nullptr || what == 0)
            menu();
        else if (what == 1)
            formStep();
        else
            controlStep();
    }

    /// The steps while a modal dialog waits, to its end.
    void inModal(CDialog& dialog)
    {
        ++m_depth;
        for (int i = 0; i < 12 && !dialog.hasEnded() && m_depth < 4; ++i) {
            anyStep();
            if (!dialog.hasEnded())
                settle();
        }
        for (int i = 0; i < 50 && !dialog.hasEnded(); ++i) {
            host.inEachModal = [this](CDialog& inner) { inModal(inner); };
            (void)hand.close(dialog);
        }
        EXPECT_TRUE(dialog.hasEnded()) << dialog.ClassName();
        --m_depth;
    }

    void menu()
    {
        const bool modalOpen = zel::activeDialog() != nullptr && zel::activeDialog()->isModal();
        const int what = below(8);
        if (what == 0)
            hand.undo(*document);
        else if (what == 1)
            hand.redo(*document);
        else if (what == 2)
            hand.units(*document, {below(zel::lengthUnitCount), below(zel::forceUnitCount)});
        else if (what == 3 && !modalOpen)
            hand.select(*document, {{1, 2}, {}, {static_cast<zel::Key>(below(3) + 1)}, {}, {}});
        else if (modalOpen)
            return;
        else if (what == 4)
            hand.open(
                anyOf(std::vector<CString>{"CDgnGenSeisFactor", "CUnderSeisFactor", "CCmdSetOrthoLCDlg", "CLoadCaseWindDirectDlg", "CLoadCaseUndergroundDlg"}));
        else if (what == 5)
            hand.modal(anyOf(std::vector<unsigned>{2, 15}));
        else
            hand.modeless(below(2) == 0 ? D_CMD_MODEL_LOAD_LOADCASE : D_CMD_RESULT_LOADCOMB);
    }

    void formStep()
    {
        CDialog& dialog = *anyOf(zel::openDialogs());
        const int what = below(12);
        if (what == 0)
            (void)hand.close(dialog);
        else if (what == 1)
            (void)hand.key(dialog, zel::UserKey::escape);
        else if (what < 5)
            (void)hand.key(dialog, below(2) == 0 ? zel::UserKey::enter : zel::UserKey::tab);
        else
            (void)hand.activate(dialog);
    }

    void controlStep()
    {
        CDialog& dialog = below(4) == 0 ? *anyOf(zel::openDialogs()) : *zel::activeDialog();
        std::vector<Control*> seen;
        for (Control* control : dialog.controls()) {
            const bool only = control->kind() == Kind::label || control->kind() == Kind::unit || control->kind() == Kind::graph;
            if (!only && (control->IsWindowVisible() || below(10) == 0))
                seen.push_back(control);
        }
        if (!seen.empty())
            act(*anyOf(seen));
    }

    void act(Control& control)
    {
        switch (control.kind()) {
        case Kind::edit:
        case Kind::number:
        case Kind::pick:
            return typeInto(dynamic_cast<CEdit&>(control));
        case Kind::check:
            return (void)hand.act(control, {.verb = zel::Verb::set, .value = below(2) == 0});
        case Kind::radio:
            return (void)hand.act(control, {.verb = zel::Verb::set, .value = true});
        case Kind::combo:
            return (void)hand.choose(control, below(dynamic_cast<CComboBox&>(control).GetCount() + 1));
        case Kind::list:
            return (void)hand.act(control, {.verb = zel::Verb::select, .rows = someRows(dynamic_cast<CListBox&>(control).GetCount())});
        case Kind::checklist:
            return (void)hand.act(control, {.verb = zel::Verb::tick, .row = below(4), .on = below(2) == 0});
        case Kind::report:
            return report(dynamic_cast<CListCtrl&>(control));
        case Kind::grid:
            return grid(dynamic_cast<CTBBrowserWndEx&>(control));
        case Kind::tabs:
            return (void)hand.choose(control, below(dynamic_cast<CDlgTabCtrl&>(control).GetPageCount()));
        case Kind::spin:
            return (void)hand.act(control, {.verb = zel::Verb::spin, .delta = below(2) == 0 ? 1 : -1});
        default:
            host.answer(below(3) == 0 ? IDNO : IDYES);
            if (below(3) == 0)
                (void)hand.focus(control);
            return (void)hand.act(control, {zel::Verb::press});
        }
    }

    void typeInto(CEdit& field)
    {
        const CString typed = text();
        for (std::size_t length = 1; length <= typed.size(); ++length) {
            if (!hand.type(field, typed.substr(0, length)))
                return;
        }
        if (below(2) == 0)
            (void)hand.leave(field);
    }

    void report(CListCtrl& list)
    {
        if (list.GetItemCount() > 0 && below(6) == 0)
            (void)hand.act(list, {.verb = zel::Verb::doubleClick, .row = below(list.GetItemCount())});
        else
            (void)hand.act(list, {.verb = zel::Verb::select, .rows = someRows(list.GetItemCount())});
    }

    void grid(CTBBrowserWndEx& grid)
    {
        const int rows = grid.GetDataRowCount();
        const int row = rows == 0 || below(4) == 0 ? CTBGrid::append.number() : below(rows);
        const int column = below(std::max(grid.GetColCount(), 1));
        const zel::ColumnIndex index = grid.GetColIndex(CTBGrid::toColumn(column));
        const std::vector<CString> choices = index >= 0 && grid.toRow(row) > 0 ? grid.GetCellChoices(grid.toRow(row), index) : std::vector<CString>{};
        const CString typed = choices.empty() || below(8) == 0 ? text() : anyOf(choices);
        switch (below(12)) {
        case 0:
            return (void)hand.act(grid, {.verb = zel::Verb::current, .row = row, .column = column});
        case 1:
        case 2:
            return (void)hand.act(grid, {.verb = zel::Verb::cell, .row = row, .column = column, .text = typed});
        case 3:
        case 4:
        case 5:
            return inSteps(grid, row, column, typed);
        case 6:
            return (void)hand.act(grid, {.verb = zel::Verb::select, .rows = someRows(rows)});
        case 7:
            return (void)hand.act(grid, {zel::Verb::leaveRow});
        case 8:
            return (void)hand.act(grid, {.verb = zel::Verb::key, .key = below(2) == 0 ? zel::UserKey::tab : zel::UserKey::enter});
        case 9:
            return (void)(below(3) == 0 && rows > 0 ? hand.act(grid, {.verb = zel::Verb::deleteRows, .rows = {below(rows)}})
                                                    : hand.act(grid, {zel::Verb::escape}));
        case 10:
            return (void)hand.act(grid, {.verb = zel::Verb::paste, .row = row, .column = column, .text = typed + "\t" + text() + "\n" + text()});
        default:
            return (void)(rows > 0 ? hand.act(grid, {.verb = zel::Verb::dragRows, .rows = {below(rows)}, .to = below(rows + 1)})
                                   : hand.doubleClickCell(grid, row, column));
        }
    }

    void inSteps(CTBBrowserWndEx& grid, int row, int column, const CString& typed)
    {
        if (!hand.openCell(grid, row, column))
            return;
        if (below(5) > 0)
            (void)hand.typeText(grid, typed);
        const int end = below(4);
        if (end == 0)
            (void)hand.act(grid, {zel::Verb::escape});
        else if (end == 1)
            (void)hand.act(grid, {.verb = zel::Verb::key, .key = zel::UserKey::escape});
        else if (end == 2)
            (void)hand.leaveCell(grid);
    }

    std::mt19937 m_random{GetParam()};
    int m_depth = 0;
};

TEST_P(Walk, WhatIsRecordedGivesTheSameModelAndTheSameTranscript)
{
    const Recording recording = record([this] {
        hand.modeless(D_CMD_RESULT_LOADCOMB);
        walk(300);
    });
    EXPECT_GT(recording.lines().size(), 200U);
    std::map<std::string, int> counts;
    for (const std::string& line : recording.lines())
        ++counts[line.starts_with('#') ? "comment" : zel::parseJson(line).at("do").get<std::string>()];
    for (const auto& [command, count] : counts)
        RecordProperty("do_" + command, count);
}

INSTANTIATE_TEST_SUITE_P(Seeds, Walk, testing::Range(1U, 13U));

}  // namespace
