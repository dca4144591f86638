#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <malloc.h>
#include <new>

// Counts the allocations of the program. It replaces the global operators: include it in one file of a program. They are not inlined: a
// compiler that saw malloc behind one `new` and not behind the next would warn of mismatched pairs.

namespace zel::bench {

/// Memory taken and given back while it is switched on [bytes].
struct MemoryCount {
    bool on = false;
    std::ptrdiff_t now = 0;
    std::ptrdiff_t peak = 0;
};
inline MemoryCount memory;

}  // namespace zel::bench

[[gnu::noinline]] void* operator new(std::size_t size)
{
    void* const taken = std::malloc(size == 0 ? 1 : size);
    if (taken == nullptr)
        throw std::bad_alloc();
    using zel::bench::memory;
    if (memory.on) {
        memory.now += static_cast<std::ptrdiff_t>(malloc_usable_size(taken));
        memory.peak = std::max(memory.peak, memory.now);
    }
    return taken;
}

[[gnu::noinline]] void* operator new(std::size_t size, const std::nothrow_t& /*nothrow*/) noexcept
{
    try {
        return operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

[[gnu::noinline]] void operator delete(void* given) noexcept
{
    using zel::bench::memory;
    if (memory.on)
        memory.now -= static_cast<std::ptrdiff_t>(malloc_usable_size(given));
    std::free(given);
}

[[gnu::noinline]] void operator delete(void* given, std::size_t) noexcept
{
    operator delete(given);
}
