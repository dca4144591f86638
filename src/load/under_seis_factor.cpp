#include "load/under_seis_factor.h"

#include "command/dialog_class.h"

ZEL_DIALOG(CUnderSeisFactor)

CUnderSeisFactor::CUnderSeisFactor(CWnd* parent) : SeismicFactorDialog(14112, "Factors for Seismic Design", &T_SIFT_D::overStrengthFactors, parent) {}

CUnderSeisFactor::~CUnderSeisFactor() = default;

int CUnderSeisFactor::OnInitDialog()
{
    SeismicFactorDialog::OnInitDialog();
    const T_SIFT_BASE fresh;
    entry.factor.showField(&fresh);
    return 1;
}

std::vector<zel::FieldColumn> CUnderSeisFactor::Columns() const
{
    return {{zel::loadText("IDS_ZEL_CMD__Load_Case"), 85, &entry.loadCase}, {zel::loadText("IDS_ZEL_CMD__Factor"), 60, &entry.factor}};
}
