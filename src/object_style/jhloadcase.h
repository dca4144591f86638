#pragma once

#include "object_style/jhobject.h"
#include "object_style/object_list.h"

class JhassoLoadcombLoadcase;

/// A load case of the model, or an abstract load kind that table rows combine.
class Jhloadcase : public Jhobject {
public:
    explicit Jhloadcase(std::uint32_t number) : Jhobject("Jhloadcase", number) {}

    zel::object_style::ObjectList<JhassoLoadcombLoadcase> combinations;  ///< links to this case
    CString type;                                                        ///< the type symbol: "D", "L", "W", "E", ...
    CString description;
    float factor = 1.0F;  ///< scale factor of an earthquake case
};
