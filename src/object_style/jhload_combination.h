#pragma once

#include "object_style/jhobject.h"
#include "object_style/object_list.h"

#include <utility>

class JhassoLoadcombLoadcase;
class JhcodeLoadcomb;

/// A load combination: of the model, a row of a code's table, or generated.
class JhloadCombination : public Jhobject {
public:
    explicit JhloadCombination(std::uint32_t number) : Jhobject(prefix, number) {}
    /// A combination whose name counts apart from its id: "LC" and `nameNumber`.
    JhloadCombination(std::uint32_t number, std::uint32_t nameNumber) : Jhobject(prefix, nameNumber) { id = number; }
    JhloadCombination(std::uint32_t number, std::uint32_t designKind, std::uint8_t isActive, std::int32_t combinationType, CString text)
        : Jhobject(prefix, number), kind(designKind), active(isActive), type(combinationType), description(std::move(text))
    {
    }

    const JhcodeLoadcomb* code = nullptr;                         ///< of a table row; null for all others
    zel::object_style::ObjectList<JhassoLoadcombLoadcase> cases;  ///< links of this combination
    std::uint32_t kind = 1;                                       ///< design kind, 1 to 5; table rows have 1
    std::uint8_t active = 1;                                      ///< of a table row 0 service, 1 strength
    std::int32_t type = 0;
    CString description;  ///< of a table row its formula

private:
    static constexpr const char* prefix = "LC";
};
