#include "load/dgn_gen_seis_factor.h"

#include "contract/forms/dialog_names.h"

ZEL_DIALOG_NAME(CDgnGenSeisFactor)

CDgnGenSeisFactor::CDgnGenSeisFactor(CWnd* parent) : SeismicFactorDialog(14283, "Factors for Seismic Design", &T_SLCF_D::overStrengthFactors, parent) {}

CDgnGenSeisFactor::~CDgnGenSeisFactor() = default;

std::vector<zel::NumberField<T_SLCF_D>> CDgnGenSeisFactor::NumberFields()
{
    return {
        {verticalLoadFactor, &T_SLCF_D::verticalLoadFactor},
        {shortPeriodCoefficient, &T_SLCF_D::shortPeriodCoefficient},
        {verticalForceFactor, &T_SLCF_D::verticalForceFactor},
    };
}

void CDgnGenSeisFactor::SetListCtrlHeader()
{
    List().AddColumn("Load Case", 85);
    List().AddColumn("Factor", 60);
}
