#pragma once

#include "loadcomb/generation/generator.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// What a traced run tells about itself: where a combination comes from, and what gave nothing.
namespace zel::cli {

/// A row of a code.
struct ExplainedRow {
    std::string block;  ///< its number or block in the table of the code; may be empty
    bool service = false;
    std::string formula;
    std::string clause;  ///< of the printed code; empty where its table names none
};

/// A number of a product, and what it is.
struct Multiplier {
    double number = 1.0;
    const char* what = "";
};

struct ExplainedFactor {
    std::uint32_t key = 0;
    std::string loadCase;
    double factor = 0.0;
    std::vector<Multiplier> product;
    std::string note;  ///< why the case stands there, where its row does not say so
};

struct ExplainedEarthquake {
    std::string loadCase;
    double coefficient = 1.0;  ///< of the 100:30 rule, where the choice has two of them
    std::string partner;       ///< the case of accidental eccentricity; empty for none
    bool subtracted = false;
};

/// What was chosen for one group of the row.
struct ExplainedChoice {
    int windEntry = 0;  ///< of the wind sets, from 1; 0 for a wind case by itself
    std::string wind;   ///< the entry's formula, or the case; empty for none
    std::vector<ExplainedEarthquake> earthquakes;
};

/// Where a combination comes from: the row of the code, what was chosen among wind and earthquake cases, and each factor as its product.
struct Explanation {
    std::string name;  ///< without blanks at its end
    std::string description;
    std::string code;
    std::string edition;  ///< what is printed, by whom, when
    ExplainedRow row;
    std::vector<ExplainedChoice> choices;
    std::vector<ExplainedFactor> factors;
    std::vector<ExplainedRow> givenAgainBy;
};

/// @param index  of the combination among the rows of the run, which was traced
[[nodiscard]] Explanation explain(const loadcomb::Generator& run, const std::string& code, std::size_t index);

/// What a run left out.
struct Omissions {
    struct Row {
        ExplainedRow row;
        std::string reason;
    };
    std::string code;
    std::size_t printedRows = 0;  ///< that the table of the code has
    std::size_t askedRows = 0;    ///< of them whose condition this model and type meet
    std::vector<Row> rows;        ///< of those that gave nothing
    std::vector<std::string> idleCases;
};
[[nodiscard]] Omissions omissionsOf(const loadcomb::Generator& run, const std::string& code, std::size_t printedRows);

}  // namespace zel::cli
