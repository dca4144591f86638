#pragma once

#include "contract/export.h"
#include "contract/tables/load_set_tables.h"
#include "load/seismic_factor_dialog.h"

/// Factors for Seismic Design: the scalars of special and vertical seismic loads, and the over-strength factors of earthquake load
/// cases.
class ZEL_CMD_API CDgnGenSeisFactor final : public zel::SeismicFactorDialog<CDataSlcf, T_SOSF_BASE> {
public:
    explicit CDgnGenSeisFactor(CWnd* parent = nullptr);
    ~CDgnGenSeisFactor() override;

private:
    EntryForm& Form() override { return entry; }
    std::vector<zel::FieldColumn> Columns() const override;

    CGroup special{*this, "Special Seismic Loads"};
    CEdit verticalLoadFactor{special, "verticalLoadFactor", "Vertical Load Factor :", &T_SLCF_D::verticalLoadFactor};
    CEdit shortPeriodCoefficient{special, "shortPeriodCoefficient", "Short Period Coefficient :", &T_SLCF_D::shortPeriodCoefficient};
    CEdit verticalForceFactor{*this, "verticalForceFactor", "Vertical Force Factor :", &T_SLCF_D::verticalForceFactor};
    EntryForm entry{*this};
    CButtonRow closing{*this};
    CButton ok{closing, "ok", "OK", &CDgnGenSeisFactor::OnOK};
    CButton cancel{closing, "cancel", "Cancel", &CDgnGenSeisFactor::OnCancel};
};
