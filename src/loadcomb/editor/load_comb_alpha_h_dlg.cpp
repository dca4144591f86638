#include "loadcomb/editor/load_comb_alpha_h_dlg.h"

#include "contract/forms/dialog_names.h"

ZEL_DIALOG_NAME(CCMLoadCombAlphaHDlg)

namespace {

constexpr double defaultHeight = 2.0;
constexpr double smallestAlphaH = 0.875;

double alphaOfHeight(double height)
{
    const double alphaH = 1.05 - 0.025 * height;
    return alphaH > smallestAlphaH ? alphaH : smallestAlphaH;
}

}  // namespace

CCMLoadCombAlphaHDlg::CCMLoadCombAlphaHDlg(CWnd* parent) : CInternationalDlg(31003, "Calculation of Alpha_H", parent)
{
    height.enabledWhen([this] { return high.GetCheck(); });
}

CCMLoadCombAlphaHDlg::~CCMLoadCombAlphaHDlg() = default;

int CCMLoadCombAlphaHDlg::OnInitDialog()
{
    range.SetSel(0);
    height.SetEditUnit(defaultHeight);
    return 1;
}

void CCMLoadCombAlphaHDlg::OnOK()
{
    double value = 0.0;
    if (high.GetCheck() && height.GetEditValue(value) == 0)
        return;
    m_alphaH = high.GetCheck() ? alphaOfHeight(value) : 1.0;
    EndDialog(IDOK);
}
