#pragma once

#include "contract/forms/dialog_names.h"
#include "contract/forms/forms.h"
#include "contract/user_interface.h"

namespace journal_test {

/// A modal dialog with one field, which asks before it is cancelled.
class Question final : public CInternationalDlg {
public:
    Question() : CInternationalDlg(70002, "Question") {}

    CEdit text{*this, "text", "Text :"};
    CButton again{*this, "again", "Again...", &Question::OnAgain};
    CButton accept{*this, "ok", "OK", [this] { OnOK(); }};
    CButton cancel{*this, "cancel", "Cancel", [this] { OnCancel(); }};

private:
    void OnAgain()
    {
        Question inner;
        if (inner.DoModal() == IDOK)
            text.SetWindowText("inner " + inner.text.GetWindowText());
    }

    void OnCancel() override
    {
        if (AfxMessageBox("Sure?", MB_YESNO) == IDYES)
            CInternationalDlg::OnCancel();
    }
};

/// A modeless dialog with a control of each plain kind.
class Form final : public CGlobalModeless {
public:
    Form() : CGlobalModeless(70001, "Form")
    {
        shape.AddString("Round", 1);
        shape.AddString("Square", 2);
        rows.AddString("first");
        rows.AddString("second");
        ticks.AddString("A");
        ticks.AddString("B");
        table.InsertItem(0, "x");
        table.SetItemText(0, 1, "y");
        off.EnableWindow(false);
        away.ShowWindow(false);
        Create();
        ShowWindow();
        SetActiveWindow();
    }

    CEdit name{*this, "name", "&Name        :"};
    CGroup first{*this, "First"};
    CEdit firstValue{first, "firstValue", "Value :"};
    CGroup second{*this, "Second"};
    CEdit secondValue{second, "secondValue", "Value :"};
    CEdit slash{*this, "slash", "A/B #2"};
    CCheckBox tick{*this, "tick", "Tick"};
    CRadioGroup way{*this};
    CRadioButton left{way, "left", "Left"};
    CRadioButton right{way, "right", "Right"};
    CComboBox shape{*this, "shape", "Shape :"};
    CListBox rows{*this, "rows", ""};
    CCheckListBox ticks{*this, "ticks", ""};
    CListCtrl table{*this, "table", {{"One", 40}, {"Two", 50}}, [this] { ++selections; }};
    CEdit count{*this, "count", "Count :"};
    CSpinButtonCtrl spin{*this, "countSpin", count};
    CMouseEdit picked{*this, "picked", "Picked :"};
    CButton off{*this, "off", "Off"};
    CButton away{*this, "away", "Away"};
    CButton ask{*this, "ask", "Ask...", &Form::OnAsk};
    CButton tell{*this, "tell", "Tell", [] { AfxMessageBox("Done."); }};
    CButton open{*this, "open", "Open...", &Form::OnOpen};
    CButton browse{*this, "browse", "Browse...", &Form::OnBrowse};
    CButton post{*this, "post", "Post", [] { zel::postHostCommand(32869); }};
    CButton send{*this, "send", "Send", [] { zel::sendHostCommand(32869); }};
    CButton lines{*this, "lines", "Lines", &Form::OnLines};
    CButton fail{*this, "fail", "Fail", [] { throw std::runtime_error("the handler failed"); }};

    int selections = 0;
    int answered = 0;
    CString path = "old";

private:
    void OnAsk() { answered = AfxMessageBox("Go on?", MB_YESNO); }
    void OnOpen()
    {
        Question question;
        const int code = question.DoModal();
        GMsgOutFormatNF("%d", code);
        if (code == IDOK)
            name.SetWindowText(question.text.GetWindowText());
    }
    void OnBrowse()
    {
        if (zel::IUserInterface* host = zel::userInterface())
            host->openFile("Text *.txt|*.txt||", path);
    }
    void OnLines()
    {
        GMsgOutFormatNF("%s", "out");
        GSaveHistoryFormatNF("%s", "past");
    }
};

ZEL_DIALOG_NAME(Question)
ZEL_DIALOG_NAME(Form)

}  // namespace journal_test
