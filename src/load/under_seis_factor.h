#pragma once

#include "contract/export.h"
#include "contract/tables/load_set_tables.h"
#include "load/seismic_factor_dialog.h"

/// Factors for Seismic Design, for underground loads: the scalars of special seismic loads, and the over-strength factors of
/// earthquake load cases.
class ZEL_CMD_API CUnderSeisFactor final : public zel::SeismicFactorDialog<CDataSift, T_SIFT_BASE> {
public:
    explicit CUnderSeisFactor(CWnd* parent = nullptr);
    ~CUnderSeisFactor() override;

private:
    int OnInitDialog() override;
    EntryForm& Form() override { return entry; }
    std::vector<zel::FieldColumn> Columns() const override;

    CGroup special{*this, "Special Seismic Loads"};
    CEdit verticalLoadFactor{special, "verticalLoadFactor", "Vertical Load Factor :", &T_SIFT_D::verticalLoadFactor};
    CEdit shortPeriodCoefficient{special, "shortPeriodCoefficient", "Short Period Coefficient :", &T_SIFT_D::shortPeriodCoefficient};
    EntryForm entry{*this};
    CButtonRow closing{*this};
    CButton ok{closing, "ok", "OK", &CUnderSeisFactor::OnOK};
    CButton cancel{closing, "cancel", "Cancel", &CUnderSeisFactor::OnCancel};
};
