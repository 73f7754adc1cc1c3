#include <cstdlib>
#include <new>

/// The allocation behind so many fails. All forms together: memory of one must be freed by its partner.
int g_nAllocationsLeft = 1 << 30;
void* operator new(std::size_t nSize, const std::nothrow_t&) noexcept {
    return g_nAllocationsLeft-- == 0 ? nullptr : std::malloc(nSize);
}
void* operator new(std::size_t nSize) {
    return g_nAllocationsLeft-- == 0 ? throw std::bad_alloc() : std::malloc(nSize);
}
void operator delete(void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }
void operator delete(void* p, const std::nothrow_t&) noexcept { std::free(p); }
