#pragma once

#include "contract/forms/child_dialog.h"
#include "contract/forms/forms.h"
#include "contract/forms/graph.h"
#include "contract/user_interface.h"
#include "desktop/desktop_fixture.h"

#include <memory>
#include <vector>

namespace desktop_test {

/// Shows a dialog of its own beside the views.
template <class Dialog> zel::desktop::FormWindow& showSample(zel::desktop::MainWindow& window, Dialog& dialog)
{
    dialog.Create();
    dialog.ShowWindow();
    zel::desktop::FormWindow& form = *window.services().windowOf(dialog);
    (void)QTest::qWaitForWindowExposed(&form);
    form.activateWindow();
    (void)QTest::qWaitForWindowActive(&form);
    settle();
    return form;
}

/// A page of tabs.
class SamplePage final : public CDlgChild {
public:
    SamplePage(unsigned templateId, int fields) : CDlgChild(templateId, {})
    {
        for (int i = 0; i < fields; ++i) {
            edits.push_back(
                std::make_unique<CEdit>(*this, "field" + std::to_string(templateId) + std::to_string(i), "Coefficient " + std::to_string(i + 1) + " :"));
        }
    }

    std::vector<std::unique_ptr<CEdit>> edits;
    bool hidesFirst = false;
};

/// Something of every kind that fields and choices have.
class SampleForm final : public CGlobalModeless {
public:
    SampleForm() : CGlobalModeless(77, "Sample")
    {
        length.enabledWhen([this] { return limited.GetCheck(); });
        later.visibleWhen([this] { return more.GetCheck(); });
        SetDefButton(apply);
        name.onChange([this] { ++typed; });
        name.onKillFocus([this] { ++left; });
        search.onEnter([this] { ++searched; });
    }

    int typed = 0;
    int left = 0;
    int searched = 0;
    int applied = 0;
    int clickedUp = 0;

    CEdit name{*this, "name", "Name        :"};
    CRow searchRow{*this};
    CEdit search{searchRow, "search", "Search :"};
    CButton searchButton{searchRow, "searchButton", "...", [this] { ++searched; }};
    CRadioGroup mode{*this};
    CRadioButton modeAdd{mode, "modeAdd", "Add"};
    CRadioButton modeReplace{mode, "modeReplace", "Replace"};
    CGroup limits{*this, "Limits"};
    CRow lengthRow{limits};
    CCheckBox limited{lengthRow, "limited", "Limit :"};
    CEditUnit length{lengthRow, "length", {}, Unit::length};
    CTextUnit lengthUnit{lengthRow, "lengthUnit", Unit::length};
    CRow countRow{limits};
    CEdit count{countRow, "count", "Number of Pieces :"};
    CSpinButtonCtrl countSpin{countRow, "countSpin", count};
    CComboBox code{limits, "code", "Code :"};
    CCheckBox more{limits, "more", "More..."};
    CGroup later{*this, "Later"};
    CEdit remark{later, "remark", "A remark with a long label :"};
    CButton laterButton{later, "laterButton", "Alone"};
    CEdit lines{*this, "lines", "Description :"};
    CDlgTabCtrl tabs{*this, "tabs"};
    CButtonRow buttons{*this};
    CButton apply{buttons, "apply", "Apply", [this] { ++applied; }};
    CButton close{buttons, "close", "Close", [this] { End(); }};

    SamplePage small{81, 1};
    SamplePage large{82, 4};

protected:
    int OnInitDialog() override
    {
        lines.setMultiLine();
        count.SetWindowText("3");
        code.AddString("One");
        code.AddString("Two");
        code.SetCurSel(0);
        tabs.AddPage("Small", small);
        tabs.AddPage("Large", large);
        return 1;
    }
};

class SampleChild final : public CChildDialog {
public:
    SampleChild(unsigned templateId, int fields) : CChildDialog(templateId)
    {
        for (int i = 0; i < fields; ++i)
            edits.push_back(std::make_unique<CEdit>(*this, "value" + std::to_string(templateId) + std::to_string(i), "Value " + std::to_string(i + 1) + " :"));
    }

    std::vector<std::unique_ptr<CEdit>> edits;
};

/// A form whose combo box exchanges what stands in its panel.
class PanelForm final : public CGlobalModeless {
public:
    PanelForm() : CGlobalModeless(78, "Panels") {}

    CComboBox shape{*this, "shape", "Shape :", [this] { Exchange(); }};
    CPanel panel{*this, "panel"};
    CButtonRow buttons{*this};
    CButton ok{buttons, "ok", "OK", &PanelForm::OnOK};
    CButton cancel{buttons, "cancel", "Cancel", &PanelForm::OnCancel};

    SampleChild box{91, 2};
    SampleChild pipe{92, 5};
    bool asks = false;  ///< it tells about the exchange, while the widget that began it is still at work

    void Exchange()
    {
        (shape.GetCurSel() == 0 ? pipe : box).End();
        (shape.GetCurSel() == 0 ? box : pipe).CreateInit(panel);
        if (asks)
            AfxMessageBox("exchanged", 0, 0);
    }

protected:
    int OnInitDialog() override
    {
        shape.AddString("Box");
        shape.AddString("Pipe");
        shape.SetCurSel(0);
        box.CreateInit(panel);
        return 1;
    }
};

/// Drawings, and controls that come and go.
class DrawingForm final : public CGlobalModeless {
public:
    DrawingForm() : CGlobalModeless(79, "Drawings") {}

    CEdit first{*this, "first", "First :"};
    std::unique_ptr<CEdit> second = std::make_unique<CEdit>(*this, "second", "Second :");
    CButton remove{*this, "remove", "Remove", [this] { second.reset(); }};
    SREGraphView graph{*this, "graph", "Spectrum"};
    CPicture picture{*this, "picture", 120, 80};
};

/// A modal form that opens another of its kind.
class NestedForm final : public CInternationalDlg {
public:
    explicit NestedForm(int level) : CInternationalDlg(static_cast<unsigned>(100 + level), "Level " + std::to_string(level)), m_level(level) {}

    CEdit value{*this, "value", "Value :"};
    CButton deeper{*this, "deeper", "Deeper", [this] { code = NestedForm(m_level + 1).DoModal(); }};
    CButton ask{*this, "ask", "Ask", [this] { answer = AfxMessageBox("Really?", MB_YESNO, 0); }};
    CButton both{*this, "both", "Ask and End", [this] {
                     if (AfxMessageBox("End?", MB_YESNO, 0) == IDYES)
                         EndDialog(40 + m_level);
                 }};
    CButtonRow buttons{*this};
    CButton ok{buttons, "ok", "OK", &NestedForm::OnOK};
    CButton cancel{buttons, "cancel", "Cancel", &NestedForm::OnCancel};

    int code = 0;
    int answer = 0;

private:
    int m_level;
};

}  // namespace desktop_test
