#include "load/dgn_gen_seis_factor.h"

#include "command/dialog_class.h"

ZEL_DIALOG(CDgnGenSeisFactor)

CDgnGenSeisFactor::CDgnGenSeisFactor(CWnd* parent) : SeismicFactorDialog(14283, "Factors for Seismic Design", &T_SLCF_D::overStrengthFactors, parent) {}

CDgnGenSeisFactor::~CDgnGenSeisFactor() = default;

std::vector<zel::FieldColumn> CDgnGenSeisFactor::Columns() const
{
    return {{"Load Case", 85, &entry.loadCase}, {"Factor", 60, &entry.factor}};
}
