#include "loadcomb/editor/cm_load_comb_dlg.h"

#include "command/dialog_class.h"
#include "command/messages.h"
#include "command/view_buffer.h"
#include "contract/tables/load_combination_table.h"
#include "contract/tables/static_load_case_table.h"
#include "loadcomb/editor/auto_load_comb_dlg.h"
#include "loadcomb/editor/lcb_import.h"

#include <array>

namespace {

struct KindOfTab {
    const char* text;  ///< message key
    int kind;
};

/// All tabs there are texts for, in their order.
constexpr std::array<KindOfTab, 5> kindsOfTabs{{
    {"IDS_ZEL_CMD__General", 1},
    {"IDS_ZEL_CMD__Steel_Design", 2},
    {"IDS_ZEL_CMD__Concrete_Design", 3},
    {"IDS_ZEL_CMD__SRC_Design", 5},
    {"IDS_ZEL_CMD__Footing_Design", 4},
}};

/// So many of them are in the strip: combinations are made for the general kind alone.
constexpr std::size_t shownTabs = 1;

}  // namespace

ZEL_DIALOG(CCMLoadCombDlg)

CCMLoadCombDlg::CCMLoadCombDlg(CWnd* parent) : CDBDlgBase(14052, "Load Combinations", parent)
{
    const auto normalForm = [this] { return !m_spreadsheet; };
    mainGrid.visibleWhen(normalForm);
    subGrid.visibleWhen(normalForm);
    grid.visibleWhen([this] { return m_spreadsheet; });
    subGrid.enabledWhen([this] { return subGrid.HasCombination(); });
    mainGrid.enabledWhen([this] { return !subGrid.IsRefused(); });  // an item that is refused is corrected first, or given up
}

CCMLoadCombDlg::~CCMLoadCombDlg() = default;

int CCMLoadCombDlg::OnInitDialog()
{
    CDBDlgBase::OnInitDialog();
    tabs.DeleteAllPages();
    for (std::size_t tab = 0; tab < shownTabs; ++tab)
        tabs.AddTab(zel::loadText(kindsOfTabs[tab].text));
    mainGrid.Initialize();
    subGrid.Initialize();
    grid.Initialize();
    ShowToggleText();
    return 1;
}

int CCMLoadCombDlg::DestroyWindow()
{
    subGrid.OnTerminate(2);
    ShownGrid().OnTerminate(2);
    return CDBDlgBase::DestroyWindow();
}

zel::CombinationGrid& CCMLoadCombDlg::ShownGrid()
{
    if (m_spreadsheet)
        return grid;
    return mainGrid;
}

bool CCMLoadCombDlg::EndEditing()
{
    if (subGrid.IsRefused())
        return false;  // the user has just been told
    return subGrid.OnTerminate(1) != 0 && ShownGrid().OnTerminate(1) != 0;
}

// The forms

void CCMLoadCombDlg::ShowToggleText()
{
    toggle.SetWindowText(zel::loadText(m_spreadsheet ? "IDS_ZEL_CMD__Normal_Form" : "IDS_ZEL_CMD__Spread_Sheet_Form"));
}

/// The combination that is current in one form is so in the other.
void CCMLoadCombDlg::OnToggle()
{
    if (!EndEditing())
        return;
    const zel::Key current = ShownGrid().KeyOf(ShownGrid().GetCurrentRow());
    m_spreadsheet = !m_spreadsheet;
    ShownGrid().ShowCombination(current);
    ShowToggleText();
    formChanged();
}

void CCMLoadCombDlg::OnSelectTab()
{
    const int tab = tabs.GetCurSel();
    if (!EndEditing() || tab < 0 || tab >= static_cast<int>(kindsOfTabs.size())) {
        tabs.SetCurSel(m_tab);
        return;
    }
    m_tab = tab;
    m_kind = kindsOfTabs[static_cast<std::size_t>(tab)].kind;
    mainGrid.ShowKind();
    grid.ShowKind();
}

// The buttons

void CCMLoadCombDlg::OnCopy()
{
    CDataLcom data;
    const zel::CombinationGrid& shown = ShownGrid();
    const zel::Key key = shown.KeyOf(shown.GetCurrentRow());
    if (key == 0) {
        zel::showMessage("IDS_ZEL_CMD__Error___No_specified_load_combination_");
        return;
    }
    if (IsRowUnderEdit()) {
        zel::showMessage("IDS_ZEL_CMD__Error___Can_t_copy_while_editing_");
        return;
    }
    if (data.Get(m_kind, key) == 0)
        return;
    data.currentRecord.name = zel::newCombinationName(m_kind);
    data.Add(m_kind, data.currentRecord);
}

void CCMLoadCombDlg::OnImport()
{
    zel::lcb::importFile(m_kind);
}

void CCMLoadCombDlg::OnAutoGeneration()
{
    CCMAutoLoadCombDlg(m_kind, this).DoModal();
}

// Following

void CCMLoadCombDlg::UpdateBuffer(const CViewBuff& buffer)
{
    bool combinations = false;
    bool loadCases = false;
    std::unordered_set<zel::Key> changed;
    const auto ofKind = [&](const CDataLcom& data) {
        const bool concerns = data.currentRecord.kind == m_kind;
        combinations = combinations || concerns;
        return concerns;
    };
    const auto nowThere = [&](const CDataLcom& now) {
        if (ofKind(now))
            changed.insert(now.currentKey);
    };
    const auto noteCase = [&](const CDataStld& /*loadCase*/) { loadCases = true; };
    zel::readChanges(buffer,
                     zel::TableWatch<CDataLcom>{
                         .added = nowThere,
                         .deleted = ofKind,
                         .modified = [&](const CDataLcom& now, const CDataLcom& /*before*/) { nowThere(now); },
                     },
                     zel::TableWatch<CDataStld>{
                         .added = noteCase,
                         .deleted = noteCase,
                         .modified = [&](const CDataStld& now, const CDataStld& /*before*/) { noteCase(now); },
                     });
    if (loadCases) {
        grid.FollowLoadCases();
        subGrid.FollowLoadCases();
    }
    if (combinations) {
        mainGrid.Follow(changed);
        subGrid.Follow(changed);
        grid.Follow(changed);
    }
}
