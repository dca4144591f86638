#pragma once

#include "contract/text.h"

#include <cstdint>
#include <string>

/// Base of all objects of the object-style generator.
class Jhobject {
public:
    /// Names the object by the prefix and the decimal number: "LC12".
    Jhobject(const char* prefix, std::uint32_t number) : id(number), name(prefix + std::to_string(number)) {}
    Jhobject(const Jhobject&) = delete;
    Jhobject& operator=(const Jhobject&) = delete;
    virtual ~Jhobject() = default;

    std::uint32_t id;  ///< given by the maker; objects of two classes may have the same
    CString name;
};
