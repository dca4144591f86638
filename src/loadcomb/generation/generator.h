#pragma once

#include "contract/records/lcoe.h"
#include "contract/records/lcug.h"
#include "contract/records/lcwd.h"
#include "contract/records/sift.h"
#include "contract/records/slcf.h"
#include "loadcomb/generation/code_rows.h"
#include "loadcomb/generation/combination_list.h"
#include "loadcomb/generation/description.h"
#include "loadcomb/generation/expansion.h"
#include "loadcomb/generation/origin.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zel::loadcomb {

/// What the generator reads of a model. A record that could not be read is missing.
struct GeneratorModel {
    std::vector<LoadCase> cases;  ///< in the sequence of the table
    std::optional<T_LCWD_D> windSets;
    std::optional<T_LCOE_D> orthogonal;
    std::optional<T_LCUG_D> underground;
    std::optional<T_SLCF_D> seismic;
    std::optional<T_SIFT_D> undergroundSeismic;
};

/// What the user chose.
struct GeneratorOptions {
    int kind = 1;  ///< design kind, 1 to 5; only kind 1 has code tables
    codes::CombType combType = codes::CombType::strength;
    bool orthoOption = false;  ///< the 100:30 rule
    double alphaH = 1.0;
    KeyFactors scaleFactors;
    KeyPairs eccentricCases;  ///< a value 0 is no entry
    int loadCode = 1;
};

/// A factor of a row, with its load group.
struct RowFactor {
    double factor = 0.0;                    ///< exactly 0 for no pair
    const _CCmd_Loadcase* group = nullptr;  ///< null for no pair
};

/// Where a row stands in the table of its code.
struct RowPlace {
    std::string_view block;
    std::string_view clause;  ///< of the printed code; "" where the table names none
};

/// Turns a code's rows into combinations over the load cases of a model. Needs no database.
///
///     Generator generator(model, options);
///     generator.start(0, 0);
///     if (generator.dispatch("AIK-USD94")) use(generator.rows());
class ZEL_CMD_API Generator {
public:
    Generator(GeneratorModel model, GeneratorOptions options);

    /// Keeps where each combination comes from. To be called before the dispatch.
    void trace() { m_state.tracing = true; }

    /// Starts a run: no rows, the first name after `lastNumber`.
    /// @param rowCount  combinations that the kind holds already
    void start(int rowCount, std::int64_t lastNumber);

    /// Runs the table of a code. A name without a table, and a kind other than 1, give no rows.
    /// @return  false if the model has no load case
    bool dispatch(std::string_view codeName);

    /// Runs a table.
    void runTable(const codes::CodeTable& table);

    /// Adds what a row gives: analysis of the text, feasibility, expansion, description, name, storing.
    /// @param pairs  at most twelve in tables; here any number
    void addRow(codes::Flag flag, std::string_view text, std::span<const RowFactor> pairs, const RowPlace& place = {});
    /// The same with the flag as a number, which may hold a pass as well.
    /// @param serviceOrStrength  0 service, 1 strength; from 11 on a tens digit of 1 or 3 reads "SL" for "LR" in the text, and the units count
    void addRow(int serviceOrStrength, std::string_view text, std::span<const RowFactor> pairs);

    // The readings of a run, each by itself.
    void readOrthogonalPairs();
    void readWindSets();
    void readUndergroundSets();
    void readSeismicFactors();

    [[nodiscard]] const LoadGroups& groups() const { return m_groups; }
    [[nodiscard]] ExpansionState& state() { return m_state; }
    [[nodiscard]] const ExpansionState& state() const { return m_state; }

    [[nodiscard]] std::vector<T_LCOM_D>& rows() { return m_list.rows(); }
    [[nodiscard]] const std::vector<T_LCOM_D>& rows() const { return m_list.rows(); }
    /// Beside `rows()` while tracing, else empty.
    [[nodiscard]] const std::vector<Origin>& origins() const { return m_origins; }
    /// One for each row that was added, in order.
    [[nodiscard]] const std::vector<RowOutcome>& outcomes() const { return m_outcomes; }

private:
    void noteOutcome(RowResult result, std::string missing = {});
    void finish(Draft&& draft, bool strength, Choices choices, const SharedRewriting& rewriting);
    void appendExtras(T_LCOM_D& record) const;

    GeneratorModel m_model;
    int m_kind;
    int m_loadCode;
    LoadGroups m_groups;
    ExpansionState m_state;
    CombinationList m_list;
    std::vector<Origin> m_origins;
    std::vector<RowOutcome> m_outcomes;
};

}  // namespace zel::loadcomb
