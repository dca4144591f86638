#include "load/under_seis_factor.h"

#include "contract/forms/dialog_names.h"

ZEL_DIALOG_NAME(CUnderSeisFactor)

CUnderSeisFactor::CUnderSeisFactor(CWnd* parent) : SeismicFactorDialog(14112, "Factors for Seismic Design", &T_SIFT_D::overStrengthFactors, parent) {}

CUnderSeisFactor::~CUnderSeisFactor() = default;

int CUnderSeisFactor::OnInitDialog()
{
    SeismicFactorDialog::OnInitDialog();
    entry.factor.SetWindowText(zel::numberText("%g", T_SIFT_BASE().factor));
    return 1;
}

std::vector<zel::NumberField<T_SIFT_D>> CUnderSeisFactor::NumberFields()
{
    return {
        {verticalLoadFactor, &T_SIFT_D::verticalLoadFactor},
        {shortPeriodCoefficient, &T_SIFT_D::shortPeriodCoefficient},
    };
}

void CUnderSeisFactor::SetListCtrlHeader()
{
    List().AddColumn(zel::loadText("IDS_ZEL_CMD__Load_Case"), 85);
    List().AddColumn(zel::loadText("IDS_ZEL_CMD__Factor"), 60);
}
