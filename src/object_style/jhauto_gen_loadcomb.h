#pragma once

#include "contract/records/lcom.h"
#include "object_style/jhasso_loadcomb_loadcase.h"
#include "object_style/jhcode_loadcomb.h"

#include <fstream>
#include <map>
#include <vector>

namespace zel::object_style {
struct Row;
}

/// The object-style generator: load cases and combinations of the current model as linked objects, a code's table expanded over them,
/// and the result stored. It owns all objects.
///
///     JhautoGenLoadcomb generator(1);
///     generator.SetScaleFactors({{earthquakeCase, 1.25}});
///     generator.Run(1, "ACI318-89", 1);
///     generator.PrintReport();
///
/// Factors are 32-bit numbers; stored items show that: 1.4 is stored as 1.39999998. One object serves one run.
class JhautoGenLoadcomb : public Jhobject {
public:
    /// What a run does with the combinations that are there.
    static constexpr int addMode = 0;
    static constexpr int replaceMode = 1;

    /// Creates or empties the report file `lcomb.out` in the working directory.
    explicit JhautoGenLoadcomb(std::uint32_t number);
    ~JhautoGenLoadcomb() override;

    /// Scale factors by earthquake case; replaces the former map. A key that is no load case of the model is passed over.
    void SetScaleFactors(const std::map<std::uint32_t, double>& factors) { m_scaleFactors = factors; }

    /// Generates the combinations of a code and stores them, in one change of the model.
    ///
    /// Names are LC and a number: in add mode it runs on from the count of existing combinations, in replace mode from 1. A name
    /// that is taken is refused by the model, which says so; the others are stored.
    /// @param kind      design kind under which to store, 1 to 5
    /// @param codeName  one of the six names of the tables, exactly; any other gives no combination
    /// @param mode      addMode or replaceMode, which deletes all combinations of `kind` even if nothing takes their place
    /// @return  number of combinations that were stored; 0 without a load case in the model, and a message says so
    int Run(int kind, const CString& codeName, int mode);

    /// Write the title and the three sections to the report file, or one section. False if the file did not take it.
    bool PrintReport();
    bool PrintCodeCombinations() { return printSection("IDS_ZEL_CMD__JhloadCombination_Objects_for_Code__", m_codeCombinations); }
    bool PrintCurrentCombinations() { return printSection("IDS_ZEL_CMD__JhloadCombination_Objects_for_Current_", m_currentCombinations); }
    bool PrintGeneratedCombinations() { return printSection("IDS_ZEL_CMD__JhloadCombination_Objects_for_Generate", m_generatedCombinations); }

    // The objects, for those that show them.
    using Loadcases = zel::object_style::ObjectList<Jhloadcase>;
    using Combinations = zel::object_style::ObjectList<JhloadCombination>;
    using Codes = zel::object_style::ObjectList<JhcodeLoadcomb>;
    using Links = zel::object_style::ObjectList<JhassoLoadcombLoadcase>;
    [[nodiscard]] const Loadcases& currentLoadcases() const { return m_currentLoadcases; }
    [[nodiscard]] const Combinations& currentCombinations() const { return m_currentCombinations; }
    [[nodiscard]] const Combinations& generatedCombinations() const { return m_generatedCombinations; }
    [[nodiscard]] const Codes& codes() const { return m_codes; }
    [[nodiscard]] const Combinations& codeCombinations() const { return m_codeCombinations; }
    [[nodiscard]] const Loadcases& loadKinds() const { return m_loadKinds; }
    /// The kind whose combinations were read: 2 to 5 as passed to the run, 1 for any other.
    [[nodiscard]] std::uint32_t designKind() const { return m_designKind; }
    [[nodiscard]] const CString& reportName() const { return m_reportName; }

private:
    int run();
    [[nodiscard]] bool readLoadcases();
    void readCombinations();

    void buildLoadKinds();
    void buildCodes();
    void buildRow(JhcodeLoadcomb& code, const zel::object_style::Row& row);

    void expandCode();
    void expandRow();
    void generate(const Jhloadcase* chosen);
    [[nodiscard]] std::vector<Jhloadcase*> casesOf(const CString& symbol) const;

    [[nodiscard]] T_LCOM_D recordOf(const JhloadCombination& combination) const;
    [[nodiscard]] int store() const;
    [[nodiscard]] int replaceRecords(const std::vector<T_LCOM_D>& records) const;

    bool printSection(const char* headingKey, const Combinations& combinations);

    Combinations m_currentCombinations;
    Loadcases m_currentLoadcases;
    Combinations m_generatedCombinations;
    Links m_generatedLinks;  // also those of the current combinations, under the same counter
    Combinations m_codeCombinations;
    Codes m_codes;
    Loadcases m_loadKinds;
    Links m_codeLinks;

    const JhloadCombination* m_row = nullptr;  // that is being expanded
    std::uint32_t m_generatedCount = 0;        // for names
    std::uint32_t m_linkCount = 0;
    std::uint32_t m_combinationCount = 0;  // for ids
    std::uint32_t m_designKind = 1;
    int m_kind = 1;
    CString m_codeName;
    int m_mode = addMode;
    std::map<std::uint32_t, double> m_scaleFactors;
    CString m_reportName{"lcomb.out"};
    std::ofstream m_report;
};
