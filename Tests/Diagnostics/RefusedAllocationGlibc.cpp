#include "Tests/Diagnostics/RefusedAllocation.h"

#include <atomic>
#include <cstddef>
#include <unistd.h>

namespace {

constinit std::atomic<bool> isRefused { false };

void checkAllocation()
{
    if (isRefused)
        ::_exit(Orvello::Testing::allocatedAlthoughRefused);
}

} // namespace

namespace Orvello::Testing {

void refuseAllocation() { isRefused = true; }

} // namespace Orvello::Testing

// These stand before the C library's functions, whose work they leave to its other names for it.
extern "C" {

// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp): glibc's own names.
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)

void* malloc(std::size_t size)
{
    checkAllocation();
    return __libc_malloc(size);
}

void* calloc(std::size_t count, std::size_t size)
{
    checkAllocation();
    return __libc_calloc(count, size);
}

void* realloc(void* memory, std::size_t size)
{
    checkAllocation();
    return __libc_realloc(memory, size);
}
}
