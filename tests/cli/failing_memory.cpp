#include "cli/failing_memory.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace failing_memory {

namespace {

std::atomic<bool> armed = false;
std::atomic<std::size_t> made = 0;
std::atomic<std::size_t> failing = 0;
std::size_t first = 0;
std::size_t smallest = 0;

}  // namespace

void arm(std::size_t n, std::size_t count, std::size_t least)
{
    made = 0;
    failing = count;
    first = n;
    smallest = least;
    armed = true;
}

std::size_t disarm()
{
    armed = false;
    return made;
}

void* allocate(std::size_t size, std::size_t alignment)
{
    if (armed && ++made >= first && size >= smallest && failing > 0) {
        --failing;
        throw std::bad_alloc();
    }
    void* memory = alignment == 0 ? std::malloc(size == 0 ? 1 : size) : std::aligned_alloc(alignment, (size + alignment - 1) / alignment * alignment);
    if (memory == nullptr)
        throw std::bad_alloc();
    return memory;
}

}  // namespace failing_memory

void* operator new(std::size_t size)
{
    return failing_memory::allocate(size, 0);
}

void* operator new[](std::size_t size)
{
    return failing_memory::allocate(size, 0);
}

void* operator new(std::size_t size, std::align_val_t alignment)
{
    return failing_memory::allocate(size, static_cast<std::size_t>(alignment));
}

void* operator new[](std::size_t size, std::align_val_t alignment)
{
    return failing_memory::allocate(size, static_cast<std::size_t>(alignment));
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    try {
        return failing_memory::allocate(size, 0);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::align_val_t) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, std::align_val_t) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t, std::align_val_t) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, std::size_t, std::align_val_t) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, const std::nothrow_t&) noexcept
{
    std::free(memory);
}
