#pragma once

#include "command/messages.h"
#include "contract/forms/forms.h"

/// Calculation of Alpha_H: the factor of horizontal earth pressure by the height of earth above the structure.
class CCMLoadCombAlphaHDlg final : public CInternationalDlg {
public:
    explicit CCMLoadCombAlphaHDlg(CWnd* parent = nullptr);
    ~CCMLoadCombAlphaHDlg() override;

    /// The result, after the dialog has ended with OK.
    [[nodiscard]] double alphaH() const { return m_alphaH; }

private:
    int OnInitDialog() override;
    /// A height that is no number leaves the dialog open, without a message.
    void OnOK() override;

    CGroup frame{*this, zel::loadText("IDS_ZEL_CMD_LOADCOMB_AUTO_ALPHAH_FRAME")};
    CRadioGroup range{frame};
    CRadioButton low{range, "low", zel::loadText("IDS_ZEL_CMD_LOADCOMB_AUTO_ALPHAH_H1")};
    CRadioButton high{range, "high", "h > 2.0m"};
    CStatic formula{frame, "formula", zel::loadText("IDS_ZEL_CMD_LOADCOMB_AUTO_ALPHAH_H2")};
    CRow heightRow{frame};
    CEditUnit height{heightRow, "height", "h :"};  // metres, whatever the units of the model are
    CStatic heightUnit{heightRow, "heightUnit", "m"};
    CButtonRow closing{*this};
    CButton ok{closing, "ok", "OK", &CCMLoadCombAlphaHDlg::OnOK};
    CButton cancel{closing, "cancel", "Cancel", &CCMLoadCombAlphaHDlg::OnCancel};

    double m_alphaH = 1.0;
};
