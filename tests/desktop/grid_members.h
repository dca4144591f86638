#pragma once

#include "desktop/grid_screen.h"
#include "forms/grid_fixture.h"

#include <optional>

namespace desktop_test {

using zel::ColumnIndex;
using zel::Row;

/// Three members in a window: hidden keys, names, lengths, kinds to choose from, and checks. Columns on screen: key 0, name 1, length 2, kind 3,
/// active 4.
template <class Grid = zel::test::MemberGrid> class MembersOnScreenOf : public DesktopTest {
protected:
    MembersOnScreenOf() { dialog.grid.data = {{1, "B1", 2.5, "beam", 1}, {2, "B2", 3.0, "beam", 0}, {3, "C1", 4.0, "column", 1}}; }
    ~MembersOnScreenOf() override { dialog.DestroyWindow(); }

    void open()
    {
        dialog.open();
        dialog.grid.Initialize();
        settle();
        form = window.services().windowOf(dialog);
        form->resize(640, 360);
        (void)QTest::qWaitForWindowExposed(form);
        form->activateWindow();
        (void)QTest::qWaitForWindowActive(form);
        screen.emplace(*form, dialog.grid);
        settle();
    }

    zel::test::GridDialog<Grid> dialog;
    Grid& grid = dialog.grid;
    zel::desktop::FormWindow* form = nullptr;
    std::optional<GridOnScreen> screen;
};

}  // namespace desktop_test
