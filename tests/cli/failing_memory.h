#pragma once

#include <cstddef>

/// Memory that runs out on purpose: `new` of this test program throws while it is armed.
namespace failing_memory {

/// From the n-th allocation on, counted from 1, the next `count` ones of at least `least` bytes fail. `disarm` ends it.
void arm(std::size_t n, std::size_t count = 1, std::size_t least = 0);
/// Gives the number of allocations since it was armed.
std::size_t disarm();

}  // namespace failing_memory
