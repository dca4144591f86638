#pragma once

#include "command/model_listener.h"
#include "contract/forms/forms.h"
#include "contract/records/envl.h"

/// Envelope: the list of the envelopes, and what the selected one is made of.
class CCMEnvlListDlg final : public CDlgMove, public zel::ModelListener {
public:
    explicit CCMEnvlListDlg(CWnd* parent = nullptr);
    ~CCMEnvlListDlg() override;

private:
    int OnInitDialog() override;
    void MakeItemEx();
    void ShowItems();
    void OnAdd();
    void OnModify();
    void OnDelete();
    /// Loads the selected envelope; reported if there is none.
    bool GetSelectedItem(T_ENVL_D& envelope);

    void UpdateBuffer(const CViewBuff& buffer) override;
    [[nodiscard]] bool canUpdate() const override { return IsWindow(); }

    CListBox envelopeList{*this, "envelopeList", "Envelope List", &CCMEnvlListDlg::ShowItems};
    CGroup itemGroup{*this, "Load Case && Combination List"};
    CListCtrl items{itemGroup, "items"};
    CButtonRow buttons{*this};
    CButton add{buttons, "add", "&Add", &CCMEnvlListDlg::OnAdd};
    CButton modify{buttons, "modify", "&Modify", &CCMEnvlListDlg::OnModify};
    CButton del{buttons, "del", "&Delete", &CCMEnvlListDlg::OnDelete};
    CButton close{buttons, "close", "&Close", &CCMEnvlListDlg::OnCancel};
};
