#pragma once

#include "object_style/tables/aci318_89.h"
#include "object_style/tables/aik_usd94.h"
#include "object_style/tables/kci_usd99.h"
#include "object_style/tables/ksce_usd96.h"

// The design codes of the object-style generator, one line each, in the order in which their objects are made.
namespace zel::object_style {

struct Code {
    const char* name;
    std::span<const Row> rows;
    std::span<const Row> further{};    ///< behind them
};

inline constexpr Code codeList[] = {
    {"AIK-USD94",  aik_usd94_rows},
    {"ACI318-89",  aci318_89_rows},
    {"ACI318-95",  aci318_89_rows},
    {"ACI318-99",  aci318_89_rows},
    {"KCI-USD99",  kci_usd99_shared, kci_usd99_rows},
    {"KSCE-USD96", ksce_usd96_rows},
};

}  // namespace zel::object_style
