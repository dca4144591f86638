#pragma once

#include "contract/forms/dialog_names.h"
#include "contract/forms/forms.h"
#include "platform/forms/headless_user_interface.h"
#include "platform/modeldb/model_document.h"

#include <memory>
#include <vector>

namespace forms_test {

/// A modeless dialog with one control of most kinds; it writes down which handlers ran.
class SampleForm : public CDBDlgBase {
public:
    SampleForm() : CDBDlgBase(4711, "Sample") { ++living; }
    ~SampleForm() override { --living; }

    static inline int living = 0;

    std::vector<CString> ran;

    CEdit name{*this, "name", "&Name        :", &SampleForm::OnName};
    CGroup applied{*this, "Applied in"};
    CComboBox type{applied, "type", "Type :", [this] { ran.push_back("type"); }};
    CCheckBox active{applied, "active", "Active", [this] { ran.push_back("active"); }};
    CRadioGroup mode{applied, [this] { ran.push_back("mode"); }};
    CRadioButton add{mode, "modeAdd", "Append"};
    CRadioButton replace{mode, "modeReplace", "Replace"};
    CEdit count{*this, "count", "Count"};
    CSpinButtonCtrl countSpin{*this, "countSpin", count};
    CListBox list{*this, "list", "", [this] { ran.push_back("list"); }, CListBox::Selection::multiple};
    CCheckListBox checks{*this, "checks", "", [this] { ran.push_back("checks"); }};
    CListCtrl report{*this, "report", {{"Load Case", 85}, {"Factor", 60}}, [this] { ran.push_back("report"); }};
    CButtonRow buttons{*this};
    CButton press{buttons, "press", "Press", [this] { ran.push_back("press"); }};
    CButton end{buttons, "end", "Close", &SampleForm::OnEnd};

    int created = 0;

protected:
    int OnInitDialog() override
    {
        ++created;
        return 1;
    }

private:
    void OnName() { ran.push_back("name"); }
    void OnEnd() { DestroyWindow(); }
};

ZEL_DIALOG_NAME(SampleForm)

/// An open SampleForm and a user interface without a screen.
class OpenForm {
public:
    OpenForm()
    {
        form->Create(CDBDlgBase::RegisterDialog(), 4711, nullptr);
        form->ShowWindow();
        form->SetActiveWindow();
    }

    std::unique_ptr<zel::ModelDocument> model = zel::ModelDocument::inMemory();
    zel::HeadlessUserInterface host;
    SampleForm* form = new SampleForm;  // goes with the document
};

}  // namespace forms_test
