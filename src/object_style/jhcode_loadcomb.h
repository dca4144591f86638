#pragma once

#include "object_style/jhload_combination.h"

/// A design code: its name is that of the code, its combinations are the rows of the table.
class JhcodeLoadcomb : public Jhobject {
public:
    explicit JhcodeLoadcomb(std::uint32_t number) : Jhobject("JhcodeLoadcomb", number) {}

    zel::object_style::ObjectList<JhloadCombination> combinations;
};
