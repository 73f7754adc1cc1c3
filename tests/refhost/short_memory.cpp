#include "short_memory.h"

#include <climits>
#include <cstdlib>
#include <new>

static int g_nLeft = INT_MAX;

CAllocationsScope::CAllocationsScope(int nLeft) { g_nLeft = nLeft; }
CAllocationsScope::~CAllocationsScope() { g_nLeft = INT_MAX; }

// All forms together: memory of one must be freed by its partner.
void* operator new(std::size_t nSize, const std::nothrow_t&) noexcept {
    return g_nLeft-- > 0 ? std::malloc(nSize != 0 ? nSize : 1) : nullptr;
}
void* operator new(std::size_t nSize) {
    void* const p = operator new(nSize, std::nothrow);
    return p != nullptr ? p : throw std::bad_alloc();
}
void operator delete(void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }
void operator delete(void* p, const std::nothrow_t&) noexcept { std::free(p); }
