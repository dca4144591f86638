#pragma once

#include "load/dialog_test.h"

#include "contract/tables/load_combination_table.h"
#include "loadcomb/editor/auto_load_comb_dlg.h"

namespace zel::test {

/// The default load combination dialog over load cases of all the types that its codes need.
class DefaultCombinationTest : public DialogTest {
protected:
    static constexpr const char* code = "Design Code :";
    static constexpr const char* factor = "Scale Up Factor :";
    static constexpr const char* response = "RS Load Case :";
    static constexpr const char* eccentric = "ES Load Case :";
    static constexpr const char* eccentricity = "Consider Accidental Eccentricity";
    static constexpr const char* orthogonal = "Consider Orthogonal Effect (100:30 Rule)";
    static constexpr const char* alphaH = "Alpha_H :";
    static constexpr const char* pressure = "Consider Vertical Pressure Load(Earth)";

    Key dl = 0, ll = 0, ex = 0, ey = 0, ez = 0;
    CString none = shown("IDS_ZEL_CMD__NONE");

    void addCases()
    {
        dl = addCase("DL", "D");
        ll = addCase("LL", "L");
        ex = addCase("EX", "E");
        ey = addCase("EY", "E");
        ez = addCase("EZ", "E");
    }

    /// Runs the dialog; `use` is what the user does in it. Returns the end code: 2 when `use` leaves it open.
    int open(const std::function<void(const Form&)>& use, int kind = 1)
    {
        user.inModal([&use](CDialog& dialog) { use(Form(dialog)); });
        return loadcomb::selectDefaultCombination(kind);
    }

    static void enter(const Form& form, const char* loadCase, const char* value)
    {
        form.set(response, loadCase);
        form.set(factor, value);
    }
    static void add(const Form& form, const char* loadCase, const char* value)
    {
        enter(form, loadCase, value);
        form.press("add");
    }
    static void addPair(const Form& form, const char* loadCase, const char* value, const char* partner)
    {
        form.tick(eccentricity, true);
        form.set(eccentric, partner);
        add(form, loadCase, value);
    }

    static void store(const std::vector<T_SURS_SF>& scaleFactors) { ASSERT_NE(CDataSurs().Add({scaleFactors}), 0); }
    /// What is remembered; empty where there is no record.
    static std::vector<T_SURS_SF> stored()
    {
        T_SURS_D record;
        return CDataSurs().Get(record) != 0 ? record.scaleFactors : std::vector<T_SURS_SF>();
    }
    static std::vector<T_LCOM_D> combinations(int kind = 1)
    {
        std::vector<Key> keys;
        std::vector<T_LCOM_D> records;
        CDataLcom().GetList(kind, keys, records);
        return records;
    }
};

}  // namespace zel::test
