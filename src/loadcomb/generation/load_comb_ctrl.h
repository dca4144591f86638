#pragma once

#include "contract/export.h"
#include "contract/records/lcom.h"
#include "contract/text.h"
#include "loadcomb/generation/generator.h"

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

/// Generates the load combinations of a design code over the load cases of the current model, and stores them.
///
/// One object serves one run: set the options in any order, then call Generate.
class ZEL_CMD_API CLoadCombCtrl {
public:
    // What a run does with the combinations of the kind that are there.
    static constexpr int addMode = 0;
    static constexpr int replaceMode = 1;

    /// What happens to the rows of a run.
    enum class Storing {
        store,         ///< they go into the model
        storeAndKeep,  ///< and stay in `rows()` too
        dryRun         ///< they stay in `rows()`, and the model is not touched
    };

    /// Design kind: 1 general, 2 steel, 3 concrete, 4 footing, 5 SRC. Only kind 1 has code tables.
    void SetKind(int kind) { m_options.kind = kind; }
    /// Scale factors by earthquake case; replaces the former map.
    void SetScaleFactors(const std::map<std::uint32_t, double>& factors) { m_options.scaleFactors = factors; }
    /// Eccentric partners by earthquake case; replaces the former map. A value 0 is no entry.
    void SetEccentricCases(const std::map<std::uint32_t, std::uint32_t>& partners);
    /// The orthogonal effect by the 100:30 rule; not 0 for yes.
    void SetOrthoOption(int option) { m_options.orthoOption = option != 0; }
    void SetCombType(zel::codes::CombType type) { m_options.combType = type; }
    void SetAlphaH(double alphaH) { m_options.alphaH = alphaH; }
    /// Stores 1 whatever it is given: the choice of "Load Code" does not reach the tables, and that is meant.
    void SetLoadCode(int /*code*/) { m_options.loadCode = 1; }

    /// What is set, for those that show it.
    [[nodiscard]] const zel::loadcomb::GeneratorOptions& options() const { return m_options; }
    /// Keeps where each combination comes from, for `run()`.
    void Trace() { m_tracing = true; }

    /// Runs the table of a code.
    ///
    /// @param mode  addMode, or replaceMode, which deletes the old ones first, whatever follows
    /// @return  1, or 0 when nothing was stored: no load case or no row (a message says so), or the model refused
    int Generate(int mode, const CString& codeName, Storing storing = Storing::store);

    /// The rows of the last run as they are handed to the model; none after a run that stored without keeping.
    [[nodiscard]] const std::vector<T_LCOM_D>& rows() const;
    /// The last run, null before the first.
    [[nodiscard]] const zel::loadcomb::Generator* run() const { return m_run ? &*m_run : nullptr; }

private:
    int generate(int mode, const CString& codeName, Storing storing);
    [[nodiscard]] bool begin(int mode, Storing storing);
    void showProgress();
    int store(Storing storing);

    zel::loadcomb::GeneratorOptions m_options;
    bool m_tracing = false;
    std::optional<zel::loadcomb::Generator> m_run;
};

namespace zel::loadcomb {

/// The parts of the current model that the generator reads.
ZEL_CMD_API GeneratorModel readModel();

}  // namespace zel::loadcomb
