// Failure injection and accounting for the library's non-throwing array
// allocations. Include in exactly one source file of a test program: it
// replaces the program's global operators new[] (both forms) and delete[],
// which the library's calls bind to as well, so every array is made and
// released by one malloc / free pair. Only the nothrow form can be made to
// fail; unarmed, the operators just count the live arrays. Tools that replace
// the allocator themselves (valgrind) take these replacements over; then
// arrayAllocationFailureWorks() reports false and the tests skip.
#ifndef KORVEX_TESTS_FAILING_ALLOCATION_H
#define KORVEX_TESTS_FAILING_ALLOCATION_H

#include <cstddef>
#include <cstdlib>
#include <new>

#include <korvex/capi.h>

namespace {

int allocationsUntilFailure = 0; // 0: never fail
int liveArrays = 0;              // arrays made and not yet released

// The n-th nothrow array allocation from now on (n >= 1) returns null;
// later ones succeed again.
void failNthArrayAllocation(int n) { allocationsUntilFailure = n; }

// Disarms the injection when a test ends, also after a failed assertion.
struct ArrayAllocationFailureGuard {
    ~ArrayAllocationFailureGuard() { allocationsUntilFailure = 0; }
};

// Probes through the library, whose calls are the ones that matter (a tool
// may redirect them while leaving the program's own calls alone).
bool arrayAllocationFailureWorks()
{
    failNthArrayAllocation(1);
    double *probe = NewStr1D(0);
    failNthArrayAllocation(0);
    if (!probe)
        return true;
    DelStr1D(&probe);
    return false;
}

} // namespace

void *operator new[](std::size_t size, const std::nothrow_t &) noexcept
{
    if (allocationsUntilFailure > 0 && --allocationsUntilFailure == 0)
        return nullptr;
    void *p = std::malloc(size ? size : 1);
    if (p)
        ++liveArrays;
    return p;
}

void *operator new[](std::size_t size)
{
    void *p = std::malloc(size ? size : 1);
    if (!p)
        throw std::bad_alloc();
    ++liveArrays;
    return p;
}

void operator delete[](void *p) noexcept
{
    if (p)
        --liveArrays;
    std::free(p);
}

void operator delete[](void *p, std::size_t) noexcept { operator delete[](p); }

#endif
